#include "e2e/ProgramUnderTest.h"

#include <QClipboard>
#include <QColor>
#include <QCursor>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcessEnvironment>
#include <QRect>
#include <QScreen>
#include <QTest>

#include <cmath>

namespace {

constexpr int patience = 20000; // milliseconds
constexpr QSize patchSize(60, 18);

/// The part of the picture by which it is recognised: around its first dark pixel, which belongs
/// to the title.
QRect patchOf(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width() - patchSize.width(); ++x)
            if (qGray(picture.pixel(x, y)) < 64)
                return {QPoint(x, y), patchSize};
    return {};
}

bool looksAlike(const QImage &screen, QPoint at, const QImage &picture, const QRect &patch)
{
    for (int y = 0; y < patch.height(); ++y)
        for (int x = 0; x < patch.width(); ++x) {
            const int seen = qGray(screen.pixel(at.x() + x, at.y() + y));
            const int wanted = qGray(picture.pixel(patch.x() + x, patch.y() + y));
            if (std::abs(seen - wanted) > 12)
                return false;
        }
    return true;
}

} // namespace

ProgramUnderTest::ProgramUnderTest(const QString &picturePath)
    : m_picturePath(picturePath)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.filePath("config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.filePath("data"));
    environment.insert(QStringLiteral("CURVEGRAB_LANGUAGE"), QStringLiteral("en"));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.start(QStringLiteral(CURVEGRAB_PROGRAM), {picturePath});
}

ProgramUnderTest::~ProgramUnderTest()
{
    m_process.kill();
    m_process.waitForFinished();
}

std::optional<QPoint> ProgramUnderTest::findPictureOnScreen() const
{
    const QImage picture(m_picturePath);
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    const QRect patch = patchOf(picture);
    for (int y = 0; y < screen.height() - patch.height(); ++y)
        for (int x = 0; x < screen.width() - patch.width(); ++x)
            if (looksAlike(screen, {x, y}, picture, patch))
                return QPoint(x, y) - patch.topLeft();
    return std::nullopt;
}

bool ProgramUnderTest::waitForPicture()
{
    m_pictureHeight = QImage(m_picturePath).height();
    std::optional<QPoint> before;
    // The window manager may move the window once more: it stands when two looks agree.
    return QTest::qWaitFor(
        [this, &before] {
            const std::optional<QPoint> now = findPictureOnScreen();
            const bool stands = now && now == before;
            before = now;
            m_pictureTopLeft = now.value_or(QPoint());
            return stands;
        },
        patience);
}

QPoint ProgramUnderTest::onScreen(QPointF point) const
{
    return m_pictureTopLeft + QPoint(static_cast<int>(std::lround(point.x())),
                                     static_cast<int>(std::lround(m_pictureHeight - point.y())));
}

void ProgramUnderTest::xdotool(const QStringList &arguments)
{
    QProcess::execute(QStringLiteral("xdotool"), arguments);
}

QByteArray ProgramUnderTest::answerOfXdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed();
}

QByteArray ProgramUnderTest::activeWindow() { return answerOfXdotool({"getactivewindow"}); }

bool ProgramUnderTest::waitForActiveWindow(const QByteArray &window)
{
    return QTest::qWaitFor([&window] { return activeWindow() == window; }, patience);
}

QByteArray ProgramUnderTest::windowNamed(const QString &beginning)
{
    QByteArray window;
    static_cast<void>(QTest::qWaitFor(
        [&window, &beginning] {
            window = answerOfXdotool({"search", "--onlyvisible", "--name", u'^' + beginning});
            return !window.isEmpty();
        },
        patience));
    return window;
}

QByteArray ProgramUnderTest::newWindow()
{
    const QByteArray before = activeWindow();
    key(QStringLiteral("ctrl+n"));
    static_cast<void>(QTest::qWaitFor(
        [&before] { return !activeWindow().isEmpty() && activeWindow() != before; }, patience));
    return activeWindow();
}

void ProgramUnderTest::moveWindow(const QByteArray &window, QPoint screenPosition)
{
    xdotool({"windowmove", window, QString::number(screenPosition.x()),
             QString::number(screenPosition.y())});
}

void ProgramUnderTest::move(QPoint screenPosition)
{
    // For a pointer that does not move, xdotool would wait long.
    if (QCursor::pos() == screenPosition)
        return;
    xdotool({"mousemove", "--sync", QString::number(screenPosition.x()),
             QString::number(screenPosition.y())});
}

QImage ProgramUnderTest::windowImage()
{
    return QGuiApplication::primaryScreen()->grabWindow(activeWindow().toULongLong()).toImage();
}

QImage ProgramUnderTest::pictureImage() const
{
    const QSize size = QImage(m_picturePath).size();
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, m_pictureTopLeft.x(), m_pictureTopLeft.y(), size.width(), size.height())
        .toImage();
}

QImage ProgramUnderTest::screenAround(QPointF point) const
{
    constexpr int side = 60;
    const QPoint corner = onScreen(point) - QPoint(side / 2, side / 2);
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, corner.x(), corner.y(), side, side)
        .toImage();
}

void ProgramUnderTest::hover(QPointF point) { move(onScreen(point)); }

void ProgramUnderTest::click(QPointF point)
{
    move(onScreen(point));
    xdotool({"click", "1"});
}

void ProgramUnderTest::drag(QPointF from, QPointF to)
{
    move(onScreen(from));
    xdotool({"mousedown", "1"});
    move(onScreen((from + to) / 2));
    move(onScreen(to));
    xdotool({"mouseup", "1"});
}

void ProgramUnderTest::key(const QString &combination)
{
    xdotool({"key", "--clearmodifiers", combination});
}

void ProgramUnderTest::type(const QString &text) { xdotool({"type", "--delay", "2", "--", text}); }

void ProgramUnderTest::enter(const QString &mnemonic, const QString &text)
{
    key(mnemonic);
    key(QStringLiteral("ctrl+a"));
    type(text);
    key(QStringLiteral("Return"));
}

void ProgramUnderTest::toggleNextCheckBox()
{
    key(QStringLiteral("Tab"));
    key(QStringLiteral("space"));
}

bool ProgramUnderTest::fillPanel(const QString &text)
{
    // The panel may have the focus of the desktop while it still makes its fields. What a field
    // holds can be seen from outside only by copying it.
    QClipboard *const clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    const auto isFilled = [this, clipboard, &text] {
        key(QStringLiteral("ctrl+a"));
        type(text);
        key(QStringLiteral("ctrl+a"));
        key(QStringLiteral("ctrl+c"));
        return QTest::qWaitFor([clipboard, &text] { return clipboard->text() == text; }, 1000);
    };
    return QTest::qWaitFor(isFilled, patience);
}

std::vector<std::vector<double>> ProgramUnderTest::savedData()
{
    const QString path = m_folder.filePath("data.txt");
    const QByteArray mainWindow = activeWindow();
    key(QStringLiteral("ctrl+e"));
    const auto panelHasFocus = [&mainWindow] {
        const QByteArray window = activeWindow();
        return !window.isEmpty() && window != mainWindow &&
               answerOfXdotool({"getwindowfocus"}) == window;
    };
    if (!QTest::qWaitFor(panelHasFocus, patience) || !fillPanel(path))
        return {};
    // The list with proposals may come up late, and takes a Return for itself.
    const auto isSaved = [this, &path, panel = activeWindow()] {
        if (activeWindow() == panel)
            key(QStringLiteral("Return"));
        return QTest::qWaitFor([&path] { return QFileInfo(path).size() > 0; }, 1000);
    };
    if (!QTest::qWaitFor(isSaved, patience))
        return {};
    QFile file(path);
    std::vector<std::vector<double>> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    file.readLine(); // the titles
    while (!file.atEnd()) {
        std::vector<double> row;
        for (const QByteArray &cell : file.readLine().trimmed().split('\t'))
            row.push_back(cell.toDouble());
        rows.push_back(row);
    }
    return rows;
}
