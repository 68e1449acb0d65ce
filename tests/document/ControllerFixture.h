#pragma once

#include "document/DocumentArchive.h"
#include "document/DocumentController.h"
#include "document/DocumentKeys.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "document/SampleRoots.h"
#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

/// The application with its real sheets, in a folder of its own.
class ControllerFixture : public testing::Test
{
protected:
    ControllerFixture()
        : m_defaults(path("settings.json"))
        , m_prefs(m_defaults)
        , controller(m_prefs, path("state"))
    {
        m_prefs.awakeFromNib();
    }

    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

    QString put(const char *name, const QByteArray &bytes)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    QString putDocument(const char *name)
    {
        return put(name,
                   documentarchive::archivedData(sampleroots::root(sampleroots::Kind::Parallel)));
    }

    QString putPicture(const char *name)
    {
        QImage picture(400, 300, QImage::Format_RGB32);
        picture.fill(Qt::white);
        EXPECT_TRUE(picture.save(path(name), "png"));
        return path(name);
    }

    /// A document of that name with unsaved changes, left by a program that crashed.
    void leaveUnsaved(const char *name) const
    {
        RecoveryStore crashed(path("state/recovery"));
        const QString key = crashed.newKey();
        const ArchiveDictionary root = sampleroots::root(sampleroots::Kind::Quadrangle);
        const auto picture = std::dynamic_pointer_cast<const ArchivedPicture>(
            root.dictionaryForKey(documentkeys::graphImageViewData)
                ->objectForKey("Original Image"));
        const QString pictureName = QStringLiteral("1-1.picture");
        ASSERT_FALSE(RecoveryStore::keepPicture(key, *picture, pictureName));
        ASSERT_FALSE(RecoveryStore::keep(key,
                                         {root, path(name), QString::fromLatin1(name),
                                          durablefile::Stamp{1, QDateTime::currentDateTime()}},
                                         pictureName));
        ASSERT_TRUE(QDir().mkpath(path("state/recovery/crashed")));
        for (const QString &file : {key, QFileInfo(key).dir().filePath(pictureName)})
            ASSERT_TRUE(
                QFile::copy(file, path("state/recovery/crashed/") + QFileInfo(file).fileName()));
    }

    [[nodiscard]] int keptDocuments() const
    {
        int count = 0;
        const QDir folder(path("state/recovery"));
        for (const QString &session : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            count +=
                static_cast<int>(QDir(folder.filePath(session)).entryList({"*.unsaved"}).size());
        return count;
    }

    [[nodiscard]] MyDocument &document(std::size_t index = 0) const
    {
        return *controller.documents().at(index);
    }

    void waitUntilRead() const
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] {
                return std::none_of(controller.documents().begin(), controller.documents().end(),
                                    [](const auto &document) { return document->isReading(); });
            },
            30'000));
    }

    void start(const QStringList &paths)
    {
        controller.start(paths);
        waitUntilRead();
    }

    void openFiles(const QStringList &paths)
    {
        controller.openFiles(paths);
        waitUntilRead();
    }

    /// Cancels the reading of a document before it can end.
    static void cancelReading(const MyDocument &document)
    {
        ASSERT_TRUE(document.isReading());
        for (auto *panel : document.window().findChildren<QWidget *>(
                 QStringLiteral("readingProgress"), Qt::FindDirectChildrenOnly))
            panel->findChild<QPushButton *>(QStringLiteral("cancelReadingButton"))->click();
    }

    [[nodiscard]] static QMessageBox *sheetOf(const MyDocument &document)
    {
        QMessageBox *found = nullptr;
        const bool isUp = QTest::qWaitFor([&] {
            for (auto *box : document.window().findChildren<QMessageBox *>()) {
                if (box->isVisible())
                    found = box;
            }
            return found != nullptr;
        });
        return isUp ? found : nullptr;
    }

    static void press(QMessageBox *box, const char *textId)
    {
        ASSERT_NE(box, nullptr);
        for (QAbstractButton *button : box->buttons()) {
            if (button->text() == qtTrId(textId)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << textId;
    }

private:
    QTemporaryDir m_folder;
    UserDefaults m_defaults;
    CurvegrabPrefs m_prefs;

protected:
    DocumentController controller;
};
