// What exporting costs: the data of 100 documents with pictures of 12 megapixels, against a program
// that does nothing but read the same files. Both are processes of their own, turn by turn, with
// the files in the memory of the system:
//   build/release/bench/export_bench [rounds [program]]
#include "archiving/ArchivedCopy.h"
#include "document/DocumentArchive.h"
#include "document/DocumentKeys.h"
#include "geometry/ZKVector.h"
#include "imageview/ArchivedPicture.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int documents = 100;
constexpr int points = 500;

/// A scanned page: paper is never quite white.
std::shared_ptr<const ArchivedPicture> scan()
{
    QImage pixels(4000, 3000, QImage::Format_RGB32);
    std::mt19937 random(1);
    for (int y = 0; y < pixels.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(pixels.scanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            const auto bits = static_cast<int>(random());
            line[x] = qRgb(248 + (bits & 7), 248 + (bits >> 3 & 7), 248 + (bits >> 6 & 7));
        }
    }
    return ArchivedPicture::archived(*Picture::fromPixels(pixels, {4000, 3000}));
}

/// A document of one series, not the same as the others.
QByteArray document(const std::shared_ptr<const ArchivedPicture> &picture, int number)
{
    ArchiveArray list;
    for (int i = 0; i < points; ++i)
        list.push_back({std::shared_ptr<const Archivable>(
            std::make_shared<ArchivedCopy<ZKVector>>(ZKVector::vectorWithX(i / 7.0, number)))});
    ArchiveDictionary series;
    series.set("Data Series", {ArchiveArray{{list}}});
    ArchiveDictionary view;
    view.set("Original Image", {std::shared_ptr<const Archivable>(picture)});
    ArchiveDictionary root;
    root.set(documentkeys::graphImageViewData, {view});
    root.set(documentkeys::dataSeriesData, {series});
    return documentarchive::archivedData(root);
}

std::vector<std::string> makeDocuments(const QTemporaryDir &folder)
{
    const auto picture = scan();
    std::vector<std::string> paths;
    for (int i = 0; i < documents; ++i) {
        QFile file(folder.filePath(QStringLiteral("%1.crvgrab").arg(i)));
        const QByteArray bytes = document(picture, i);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            std::abort();
        paths.push_back(file.fileName().toStdString());
    }
    return paths;
}

struct Cost
{
    double wall = 0; ///< milliseconds
    double user = 0;
    double system = 0;
    double megabytes = 0; ///< most memory that was resident
};

double milliseconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// Runs a program; what it prints is thrown away.
Cost costOf(std::vector<std::string> command)
{
    std::vector<char *> arguments;
    for (std::string &argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    QElapsedTimer clock;
    clock.start();
    const pid_t process = fork();
    if (process == 0) {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        execvp(arguments.front(), arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(process, &status, 0, &usage);
    if (status != 0)
        std::abort();
    return {static_cast<double>(clock.nsecsElapsed()) / 1e6, milliseconds(usage.ru_utime),
            milliseconds(usage.ru_stime), static_cast<double>(usage.ru_maxrss) / 1024};
}

/// Turn by turn, because a machine has good and bad moments.
class Contest
{
public:
    void add(const char *name, const std::vector<std::string> &command)
    {
        m_entries.push_back({name, command, {}});
    }

    void run(int rounds)
    {
        for (int round = 0; round <= rounds; ++round)
            for (Entry &entry : m_entries) {
                const Cost cost = costOf(entry.command);
                if (round > 0) // before, files may come from the disk
                    entry.costs.push_back(cost);
            }
        for (Entry &entry : m_entries)
            std::printf("%-22s wall %7.1f ms, processor %7.1f ms (user %.1f, system %.1f), "
                        "at most %.1f MB resident\n",
                        entry.name, entry.median(&Cost::wall),
                        entry.median(&Cost::user) + entry.median(&Cost::system),
                        entry.median(&Cost::user), entry.median(&Cost::system),
                        entry.median(&Cost::megabytes));
    }

private:
    struct Entry
    {
        const char *name;
        std::vector<std::string> command;
        std::vector<Cost> costs;

        double median(double Cost::*part)
        {
            std::sort(costs.begin(), costs.end(),
                      [part](const Cost &a, const Cost &b) { return a.*part < b.*part; });
            return costs[costs.size() / 2].*part;
        }
    };
    std::vector<Entry> m_entries;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 9;
    const std::string program = argc > 2 ? argv[2] : CURVEGRAB_PROGRAM;
    const QTemporaryDir folder;
    const std::vector<std::string> paths = makeDocuments(folder);
    std::printf("%d documents of %.1f MB\n", documents,
                static_cast<double>(QFile(QString::fromStdString(paths.front())).size()) / 1e6);

    const auto with = [&paths](std::vector<std::string> command) {
        command.insert(command.end(), paths.begin(), paths.end());
        return command;
    };
    Contest contest;
    contest.add("cat:", with({"cat"}));
    contest.add("export of one:", {program, "--export", "-", paths.front()});
    contest.add("export:", with({program, "--export", "-"}));
    contest.add("export as JSON:", with({program, "--export", "-", "--format", "json"}));
    contest.add("info:", with({program, "--info"}));
    contest.run(rounds);
    return 0;
}
