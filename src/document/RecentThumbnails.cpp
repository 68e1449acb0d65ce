#include "document/RecentThumbnails.h"

#include "document/ThumbnailFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::seconds usualPatience{2};

/// A thread each: where so many hang, the rest stays without pictures.
constexpr int mostAtOnce = 12;

} // namespace

RecentThumbnails::RecentThumbnails(const QString &folder)
    : RecentThumbnails(folder, thumbnailfile::of, usualPatience)
{}

RecentThumbnails::RecentThumbnails(const QString &folder, Make make,
                                   std::chrono::milliseconds patience)
    : m_folder(folder)
    , m_make(std::move(make))
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, &RecentThumbnails::makeNext);
}

RecentThumbnails::~RecentThumbnails() { giveUpAll(); }

void RecentThumbnails::prepare(const QStringList &paths)
{
    m_waiting = paths;
    if (m_awaited.isEmpty())
        makeNext();
}

// One that hangs is not begun once more.
void RecentThumbnails::makeNext()
{
    m_patience.stop();
    m_awaited.clear();
    while (!m_waiting.isEmpty() && isBeingMade(m_waiting.constFirst()))
        m_waiting.removeFirst();
    const auto busy = std::count_if(m_making.begin(), m_making.end(),
                                    [](const auto &made) { return made.second.isWorking(); });
    if (!m_waiting.isEmpty() && busy < mostAtOnce)
        make(m_waiting.takeFirst());
}

void RecentThumbnails::make(const QString &path)
{
    m_awaited = path;
    m_patience.start();
    m_making[path].begin([this, path, make = m_make, folder = m_folder](
                             const std::stop_token &stop) -> BackgroundWork::Handler {
        const QImage picture = make(path, folder, stop);
        return [this, path, picture] {
            wasMade(path, picture);
            if (m_awaited == path || m_awaited.isEmpty())
                makeNext();
        };
    });
}

bool RecentThumbnails::isBeingMade(const QString &path) const
{
    const auto found = m_making.find(path);
    return found != m_making.end() && found->second.isWorking();
}

void RecentThumbnails::giveUpAll()
{
    for (auto &[path, making] : m_making)
        making.abandon();
    m_patience.stop();
    m_awaited.clear();
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
    giveUpAll();
    m_icons.clear();
    const QDir folder(m_folder);
    for (const QString &name : folder.entryList({QStringLiteral("*.png")}, QDir::Files))
        QFile::remove(folder.filePath(name));
}
