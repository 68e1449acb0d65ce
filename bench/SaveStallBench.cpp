#include "document/TestDocument.h"

#include "platform/DurableFile.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>

// How long a window does not answer while its document, around a picture of 100 megapixels of
// noise, is kept safe and saved: the longest time between two turns of the event loop.
namespace {

QImage noise()
{
    QImage image(12'000, 8'400, QImage::Format_RGB32);
    std::mt19937 random(3);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = 0xff000000U | static_cast<QRgb>(random() & 0xffffffU);
    }
    return image;
}

/// Turns the event loop until `isDone`, and tells how long that took and the longest turn.
void measure(const char *what, const std::function<bool()> &isDone)
{
    QElapsedTimer whole;
    QElapsedTimer turn;
    qint64 longest = 0;
    whole.start();
    turn.start();
    QTimer ticks;
    QEventLoop loop;
    QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
        longest = std::max(longest, turn.restart());
        if (isDone())
            loop.quit();
    });
    ticks.start(1);
    loop.exec();
    std::printf("%-40s %6lld ms, longest gap %4lld ms\n", what,
                static_cast<long long>(whole.elapsed()), static_cast<long long>(longest));
    std::fflush(stdout);
}

bool pictureIsKept(const TestDocument &test)
{
    const QDir folder(test.services.recoveryFolder());
    for (const QString &session : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir inside(folder.filePath(session));
        for (const QString &kept : inside.entryList({QStringLiteral("*.unsaved")}, QDir::Files)) {
            const auto document = RecoveryStore::readWithoutPicture(inside.filePath(kept));
            if (document && !document->root.stringForKey("Recovery Picture").empty())
                return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/i18n/curvegrab_en.qm")))
        return 2;
    QCoreApplication::installTranslator(&texts);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.crvgrab"));
    TestDocument test(QSize(0, 0));
    const MyDocument &document = *test.document;
    const auto isSaved = [&document] { return !document.isDocumentEdited(); };
    test.document->graphView().replaceImageWithImageRep(noise());
    measure("from the picture to its recovery file", [&test] { return pictureIsKept(test); });
    test.document->setFileUrl(QUrl::fromLocalFile(path));
    test.document->saveDocument();
    measure("first save, encoding under way", isSaved);
    test.digitize();
    test.click(100, 100);
    test.document->saveDocument();
    measure("save after a point", isSaved);
    return 0;
}
