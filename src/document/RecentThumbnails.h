#pragma once

#include "platform/BackgroundWork.h"

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QString>
#include <QStringList>

/// Small pictures of the files that were used last, made in the background when they are about to
/// be looked at.
class RecentThumbnails : public QObject
{
    Q_OBJECT

public:
    /// They are remembered in `folder`, which need not be there.
    explicit RecentThumbnails(const QString &folder);

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
    void wasMade(const QString &path, const QImage &picture);

    const QString m_folder;
    QStringList m_waiting;
    QHash<QString, QIcon> m_icons;
    BackgroundWork m_making;
};
