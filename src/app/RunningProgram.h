#pragma once

#include "app/HeldFile.h"
#include "app/LocalSocket.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

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
    /// if there is none, then this one serves the next start, as far as the system lets it; or if
    /// it does not answer.
    [[nodiscard]] bool handOver(const QStringList &paths);

Q_SIGNALS:
    /// Another start handed over these files, and ended.
    void filesGiven(const QStringList &paths);

private:
    class Visitor;

    /// The program that runs already. Closed if it does not listen, or if there is none: then this
    /// one serves.
    [[nodiscard]] LocalSocket firstOrMyself();
    void serve();
    void welcome();
    void answer(Visitor &visitor, const QByteArray &request);

    QString m_name;
    HeldFile m_first; ///< held by the program that serves the next starts
    LocalSocket m_server;
};
