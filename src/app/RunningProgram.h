#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class QLocalSocket;

/// One program serves a user on a display: a second start hands its files to the running one.
class RunningProgram : public QObject
{
    Q_OBJECT

public:
    /// Programs of the same `name` find each other.
    explicit RunningProgram(const QString &name, QObject *parent = nullptr);
    ~RunningProgram() override;

    /// The name for this user, this display and the files in `stateFolder`.
    [[nodiscard]] static QString nameFor(const QString &stateFolder);

    /// Hands absolute `paths` (none: it only shows itself) to the program that runs already. False
    /// if there is none, or if it does not answer; then this one serves the next start, as far as
    /// the system lets it.
    [[nodiscard]] bool handOver(const QStringList &paths);

Q_SIGNALS:
    /// Another start handed over these files, and ended.
    void filesGiven(const QStringList &paths);

private:
    [[nodiscard]] bool isTaken(QLocalSocket &running, const QStringList &paths) const;
    void serve(QLocalSocket *other);
    void read(QLocalSocket *other);

    QString m_name;
    QLockFile m_starting; ///< held while a program finds out whether it is the first
    QLocalServer m_server;
};
