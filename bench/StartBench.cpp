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
#include <sys/resource.h>
#include <sys/time.h>
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

constexpr double nanosecondsOfOne = 1e6; // millisecond

struct Start
{
    double time = 0;      ///< milliseconds until the window is there
    double processor = 0; ///< milliseconds that it had a processor
};

/// Milliseconds that the programs that have ended up to now had a processor.
double processorTime()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto milliseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

/// Starts the program until `isThere`; it is ended then.
Start timeToShow(const QString &program, const QStringList &arguments,
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
    Start start{static_cast<double>(clock.nsecsElapsed()) / nanosecondsOfOne, -processorTime()};
    process.kill();
    process.waitForFinished();
    start.processor += processorTime();
    return start;
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

std::vector<double> each(const std::vector<Start> &starts, double Start::*value)
{
    std::vector<double> values;
    values.reserve(starts.size());
    for (const Start &start : starts)
        values.push_back(start.*value);
    return values;
}

void print(const char *what, double program, double smallest)
{
    std::printf("  %-24s program %6.1f ms, smallest %6.1f ms, ratio %.2f\n", what, program,
                smallest, program / smallest);
}

void report(const char *what, const std::vector<Start> &program, const std::vector<Start> &smallest)
{
    const std::vector<double> times = each(program, &Start::time);
    const std::vector<double> leastTimes = each(smallest, &Start::time);
    std::vector<double> ratios;
    for (std::size_t i = 0; i < times.size(); ++i)
        ratios.push_back(times[i] / leastTimes[i]);
    std::printf("%s median of ratios %.2f\n", what, median(ratios));
    print("median", median(times), median(leastTimes));
    print("shortest", *std::min_element(times.begin(), times.end()),
          *std::min_element(leastTimes.begin(), leastTimes.end()));
    print("processor, median", median(each(program, &Start::processor)),
          median(each(smallest, &Start::processor)));
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
        std::vector<Start> starts;
        std::vector<Start> smallestStarts;
        for (int round = 0; round <= rounds; ++round) {
            awaitEmptyScreen(nothing);
            const Start least = timeToShow(smallest, arguments, environment, isThere);
            awaitEmptyScreen(nothing);
            const Start start = timeToShow(program, arguments, environment, isThere);
            if (round == 0)
                continue; // the files come from the disk
            smallestStarts.push_back(least);
            starts.push_back(start);
        }
        report(what, starts, smallestStarts);
    };
    compare("an empty window:", {}, [&nothing] { return look() != nothing; });
    compare("12 megapixels:", {picture}, [] { return shows(look(), paper); });
    return 0;
}
