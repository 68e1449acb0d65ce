// How long the program takes to start: from the start of its process until the screen shows its
// window, empty and with a picture of 12 megapixels. Turn by turn with the smallest program of the
// toolkit that shows the same, because a machine has good and bad moments. In an X server without a
// window manager, whose decoration would be taken for the window:
//   xvfb-run -a -s "-screen 0 1280x1024x24" build/release/bench/start_bench [rounds [program]]
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

constexpr QRgb paper = qRgb(255, 0, 255); // nothing else on the screen is of this colour
constexpr int patience = 30'000;          // milliseconds

QString makePicture(const QTemporaryDir &folder)
{
    QImage picture(4000, 3000, QImage::Format_RGB32);
    picture.fill(paper);
    QPainter painter(&picture);
    for (int x = 500; x < picture.width(); x += 500)
        painter.drawLine(x, 0, x, picture.height());
    for (int y = 500; y < picture.height(); y += 500)
        painter.drawLine(0, y, picture.width(), y);
    painter.end();
    const QString path = folder.filePath(QStringLiteral("chart.png"));
    return picture.save(path) ? path : QString();
}

/// A column of the screen that the window of every program covers.
QImage look() { return QGuiApplication::primaryScreen()->grabWindow(0, 350, 0, 1, 600).toImage(); }

bool shows(const QImage &column, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < column.height(); ++y)
        count += (column.pixel(0, y) | 0xff000000U) == colour ? 1 : 0;
    return count > 100;
}

/// Milliseconds until `isThere`; the program is ended then.
double timeToShow(const QString &program, const QStringList &arguments,
                  const QProcessEnvironment &environment, const std::function<bool()> &isThere)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    while (!isThere() && clock.elapsed() < patience)
        QThread::usleep(500);
    constexpr double perMillisecond = 1e6;
    const double time = static_cast<double>(clock.nsecsElapsed()) / perMillisecond;
    process.kill();
    process.waitForFinished();
    return time;
}

/// The window of a program that was ended goes a little later.
void awaitEmptyScreen(const QImage &nothing)
{
    while (look() != nothing)
        QThread::usleep(500);
}

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
    const QString program =
        argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral(CURVEGRAB_PROGRAM);
    const QString smallest = QStringLiteral(CURVEGRAB_SMALLEST_VIEWER);
    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(name), folder.path());
    const QString picture = makePicture(folder);
    const QImage nothing = look();

    const auto compare = [&](const char *what, const QStringList &arguments,
                             const std::function<bool()> &isThere) {
        std::vector<double> times;
        std::vector<double> smallestTimes;
        std::vector<double> ratios;
        for (int round = 0; round <= rounds; ++round) {
            awaitEmptyScreen(nothing);
            const double least = timeToShow(smallest, arguments, environment, isThere);
            awaitEmptyScreen(nothing);
            const double time = timeToShow(program, arguments, environment, isThere);
            if (round == 0)
                continue; // the files come from the disk
            smallestTimes.push_back(least);
            times.push_back(time);
            ratios.push_back(time / least);
        }
        std::printf("%-22s program %6.1f ms, smallest %6.1f ms, ratio of medians %.2f, "
                    "median of ratios %.2f\n",
                    what, median(times), median(smallestTimes),
                    median(times) / median(smallestTimes), median(ratios));
    };
    compare("an empty window:", {}, [&nothing] { return look() != nothing; });
    compare("12 megapixels:", {picture}, [] { return shows(look(), paper); });
    return 0;
}
