#pragma once

#include "platform/BackgroundWork.h"

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>
#include <map>
#include <stop_token>

/// Small pictures of the files that were used last, made in the background when they are about to
/// be looked at. A file that hangs, in the folder of a server that is gone, holds up no other.
class RecentThumbnails : public QObject
{
    Q_OBJECT

public:
    /// They are remembered in `folder`, which need not be there.
    explicit RecentThumbnails(const QString &folder);
    /// `make` gives the small picture of the file at `path`, in any thread, and remembers it in
    /// `folder`. One that takes longer than `patience` is not waited for any more.
    using Make = std::function<QImage(const QString &path, const QString &folder,
                                      const std::stop_token &stop)>;
    RecentThumbnails(const QString &folder, Make make, std::chrono::milliseconds patience);
    ~RecentThumbnails() override;

    /// Brings the pictures of the files up to date, one after the other, and leaves others alone.
    void prepare(const QStringList &paths);

    /// As far as known; a plain icon for a file that is gone or shows nothing.
    [[nodiscard]] QIcon iconOf(const QString &path) const;

    /// Forgets all of them, on the disk too.
    void clear();

Q_SIGNALS:
    /// iconOf() gives another icon.
    void iconChanged(const QString &path);

private:
    void makeNext();
    void make(const QString &path);
    void wasMade(const QString &path, const QImage &picture);
    [[nodiscard]] bool isBeingMade(const QString &path) const;
    void giveUpAll();

    const QString m_folder;
    const Make m_make;
    QStringList m_waiting;
    QHash<QString, QIcon> m_icons;
    std::map<QString, BackgroundWork> m_making; ///< for every path that was ever asked for
    QString m_awaited;                          ///< the one that the next waits for; empty: none
    QTimer m_patience;
};
