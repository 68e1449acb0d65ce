#include "app/RunningProgram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QStandardPaths>

#include <utility>

namespace {

// One line of JSON goes there, an array of paths, and one line comes back.
constexpr char accepted[] = "opened\n";
constexpr qsizetype longestRequest = 1'000'000;

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

/// Whether the program at the other end took `paths`.
bool isTaken(const LocalSocket &running, const QStringList &paths)
{
    const QByteArray request =
        QJsonDocument(QJsonArray::fromStringList(paths)).toJson(QJsonDocument::Compact) + '\n';
    if (!running.send(request))
        return false;
    QByteArray answer;
    while (!answer.contains('\n')) {
        const std::optional<QByteArray> more = running.awaited();
        if (!more)
            return false;
        answer += *more;
    }
    return answer == accepted;
}

} // namespace

/// A start that has called, until it hangs up or is hung up on.
class RunningProgram::Visitor : public QObject
{
public:
    Visitor(LocalSocket socket, RunningProgram &host)
        : QObject(&host)
        , m_socket(std::move(socket))
        , m_notifier(m_socket.descriptor(), QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, [this, &host] { read(host); });
    }

    void send(const QByteArray &bytes) const { static_cast<void>(m_socket.send(bytes)); }

private:
    void read(RunningProgram &host)
    {
        const std::optional<QByteArray> bytes = m_socket.received();
        if (bytes)
            m_request += *bytes;
        const qsizetype end = m_request.indexOf('\n');
        if (bytes && end < 0 && m_request.size() <= longestRequest)
            return;
        m_notifier.setEnabled(false);
        if (end >= 0)
            host.answer(*this, m_request.left(end));
        m_socket.close();
        deleteLater();
    }

    LocalSocket m_socket;
    QSocketNotifier m_notifier;
    QByteArray m_request;
};

RunningProgram::RunningProgram(const QString &name, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_first(name + QStringLiteral(".lock"))
{}

RunningProgram::~RunningProgram()
{
    if (m_server.isOpen())
        QFile::remove(m_name);
}

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
    const LocalSocket running = firstOrMyself();
    return running.isOpen() && isTaken(running, paths);
}

// Starts take turns here, so that whoever finds another one to be the first finds it listening.
LocalSocket RunningProgram::firstOrMyself()
{
    HeldFile turn(m_name + QStringLiteral(".turn"));
    turn.waitAndHold();
    if (!m_first.hold())
        return LocalSocket::connectedTo(m_name);
    serve();
    return {};
}

void RunningProgram::serve()
{
    QFile::remove(m_name); // what a program left that was killed
    m_server = LocalSocket::listeningAt(m_name);
    if (!m_server.isOpen())
        return;
    auto *notifier = new QSocketNotifier(m_server.descriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &RunningProgram::welcome);
}

void RunningProgram::welcome()
{
    LocalSocket socket = m_server.accepted();
    if (socket.isOpen())
        new Visitor(std::move(socket), *this);
}

// The start that called waits for the answer, but not for what the files bring about.
void RunningProgram::answer(Visitor &visitor, const QByteArray &request)
{
    const std::optional<QStringList> paths = pathsIn(request);
    if (!paths)
        return;
    visitor.send(accepted);
    QMetaObject::invokeMethod(
        this, [this, paths = *paths] { Q_EMIT filesGiven(paths); }, Qt::QueuedConnection);
}
