#pragma once

#include "app/ConsoleCommands.h"
#include "document/DocumentArchive.h"
#include "document/SampleRoots.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A folder with documents, and standard streams that a test reads.
class ConsoleFixture : public ::testing::Test
{
protected:
    ConsoleFixture()
    {
        m_in.open(QIODevice::ReadWrite);
        m_out.open(QIODevice::ReadWrite);
        m_err.open(QIODevice::ReadWrite);
    }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QString writeBytes(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << "cannot write " << qPrintable(name);
        return path(name);
    }

    QString writeDocument(const QString &name, const ArchiveDictionary &root) const
    {
        return writeBytes(name, documentarchive::archivedData(root));
    }

    [[nodiscard]] QByteArray bytesOf(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    /// A root whose series hold so many points: (1, -1), (2, -2) …
    [[nodiscard]] static ArchiveDictionary rootWithPoints(const std::vector<int> &counts)
    {
        ArchiveArray lists;
        for (const int count : counts) {
            ArchiveArray list;
            for (int i = 1; i <= count; ++i)
                list.push_back({std::shared_ptr<const Archivable>(
                    std::make_shared<ArchivedCopy<ZKVector>>(ZKVector::vectorWithX(i, -i)))});
            lists.push_back({list});
        }
        ArchiveDictionary series;
        series.set("Data Series", {lists});
        ArchiveDictionary root;
        root.set(documentkeys::dataSeriesData, {series});
        return root;
    }

    int run(const QStringList &arguments, bool titlesByDefault = true)
    {
        return consolecommands::run(CommandLine::parse(arguments), titlesByDefault,
                                    {m_in, m_out, m_err});
    }

    [[nodiscard]] QByteArray out() const { return m_out.data(); }
    [[nodiscard]] QString err() const { return QString::fromUtf8(m_err.data()); }

    void give(const QByteArray &bytes)
    {
        m_in.write(bytes);
        m_in.seek(0);
    }

private:
    QTemporaryDir m_folder;
    QBuffer m_in;
    QBuffer m_out;
    QBuffer m_err;
};
