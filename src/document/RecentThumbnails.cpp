#include "document/RecentThumbnails.h"

#include "document/ThumbnailFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QStyle>

RecentThumbnails::RecentThumbnails(const QString &folder)
    : m_folder(folder)
{}

void RecentThumbnails::prepare(const QStringList &paths)
{
    m_waiting = paths;
    if (!m_making.isWorking())
        makeNext();
}

void RecentThumbnails::makeNext()
{
    if (m_waiting.isEmpty())
        return;
    m_making.begin([this, path = m_waiting.takeFirst(),
                    folder = m_folder](const std::stop_token &stop) -> BackgroundWork::Handler {
        const QImage picture = thumbnailfile::of(path, folder, stop);
        return [this, path, picture] {
            wasMade(path, picture);
            makeNext();
        };
    });
}

void RecentThumbnails::wasMade(const QString &path, const QImage &picture)
{
    const bool hadOne = m_icons.remove(path) > 0;
    if (!picture.isNull())
        m_icons.insert(path, QIcon(QPixmap::fromImage(picture)));
    if (hadOne || !picture.isNull())
        Q_EMIT iconChanged(path);
}

QIcon RecentThumbnails::iconOf(const QString &path) const
{
    const auto known = m_icons.constFind(path);
    return known != m_icons.constEnd() ? *known
                                       : QApplication::style()->standardIcon(QStyle::SP_FileIcon);
}

void RecentThumbnails::clear()
{
    m_waiting.clear();
    m_making.abandon();
    m_icons.clear();
    const QDir folder(m_folder);
    for (const QString &name : folder.entryList({QStringLiteral("*.png")}, QDir::Files))
        QFile::remove(folder.filePath(name));
}
