#pragma once

#include "platform/UserDefaults.h"

#include <QString>
#include <QStringList>

/// The files that were opened or saved last, the newest first; kept from session to session, apart
/// from the preferences.
class RecentFiles
{
public:
    static constexpr int most = 10;

    /// Kept in the file at `path`.
    explicit RecentFiles(const QString &path);

    /// Puts the file at the top of the list.
    void add(const QString &path);
    void remove(const QString &path);
    void clear();

    /// Absolute paths.
    [[nodiscard]] QStringList paths() const;

private:
    void keep(const QStringList &paths);

    UserDefaults m_state;
};
