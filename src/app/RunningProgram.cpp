#include "app/RunningProgram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QStandardPaths>

namespace {

// One line of JSON goes there, an array of paths, and one line comes back.
constexpr char accepted[] = "opened\n";
constexpr qint64 longestRequest = 1'000'000;
constexpr int timeToConnect = 1000; // milliseconds
constexpr int timeToAnswer = 5000;
constexpr int timeToStart = 5000;

std::optional<QStringList> pathsIn(const QByteArray &line)
{
    const QJsonDocument request = QJsonDocument::fromJson(line);
    if (!request.isArray())
        return std::nullopt;
    QStringList paths;
    const QJsonArray entries = request.array();
    for (const auto &path : entries) {
        if (!path.isString() || !QDir::isAbsolutePath(path.toString()))
            return std::nullopt;
        paths.append(path.toString());
    }
    return paths;
}

} // namespace

RunningProgram::RunningProgram(const QString &name, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_starting(name + QStringLiteral(".lock"))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *other = m_server.nextPendingConnection())
            serve(other);
    });
}

RunningProgram::~RunningProgram() = default;

// The path of a socket must be short.
QString RunningProgram::nameFor(const QString &stateFolder)
{
    const QByteArray place = QDir(stateFolder).absolutePath().toUtf8() + '\n' + qgetenv("DISPLAY") +
                             '\n' + qgetenv("WAYLAND_DISPLAY");
    const QByteArray digest =
        QCryptographicHash::hash(place, QCryptographicHash::Sha256).toHex().left(16);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(folder).absoluteFilePath(QStringLiteral("curvegrab-") +
                                         QString::fromLatin1(digest));
}

bool RunningProgram::handOver(const QStringList &paths)
{
    const bool isAlone = m_starting.tryLock(timeToStart);
    QLocalSocket running;
    running.connectToServer(m_name);
    if (running.waitForConnected(timeToConnect)) {
        const bool taken = isTaken(running, paths);
        m_starting.unlock();
        return taken;
    }
    if (isAlone) {
        QLocalServer::removeServer(m_name); // what a program left that was killed
        m_server.listen(m_name);
    }
    m_starting.unlock();
    return false;
}

bool RunningProgram::isTaken(QLocalSocket &running, const QStringList &paths) const
{
    running.write(QJsonDocument(QJsonArray::fromStringList(paths)).toJson(QJsonDocument::Compact) +
                  '\n');
    while (!running.canReadLine()) {
        if (!running.waitForReadyRead(timeToAnswer))
            return false;
    }
    return running.readLine() == accepted;
}

void RunningProgram::serve(QLocalSocket *other)
{
    connect(other, &QLocalSocket::disconnected, other, &QObject::deleteLater);
    connect(other, &QLocalSocket::readyRead, this, [this, other] { read(other); });
    if (other->bytesAvailable() > 0)
        read(other);
}

void RunningProgram::read(QLocalSocket *other)
{
    if (!other->canReadLine()) {
        if (other->bytesAvailable() > longestRequest)
            other->abort();
        return;
    }
    const std::optional<QStringList> paths = pathsIn(other->readLine());
    if (!paths) {
        other->abort();
        return;
    }
    other->write(accepted);
    other->flush();
    other->disconnectFromServer();
    Q_EMIT filesGiven(*paths);
}
