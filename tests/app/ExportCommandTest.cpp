#include "app/ConsoleFixture.h"
#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/TestDocument.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>

#include <sys/resource.h>

namespace {

class ExportCommand : public ConsoleFixture
{};

} // namespace

TEST_F(ExportCommand, aDocumentBecomesTabSeparatedText)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({2, 0, 1}));
    EXPECT_EQ(run({"--export", "-", file}), exitcode::success);
    EXPECT_EQ(out(), "Series_01_x\tSeries_01_y\tSeries_03_x\tSeries_03_y\n"
                     "1\t-1\t1\t-1\n"
                     "2\t-2\t\t\n");
    EXPECT_EQ(err(), QString());
}

TEST_F(ExportCommand, theTextIsThatOfTheWindowsSaveCommandByteForByte)
{
    TestDocument window;
    window.digitize();
    window.click(210, 151);
    window.click(333, 77);
    window.command("moveToNextSeries");
    window.click(50, 391);
    window.command("saveDataAs");
    ASSERT_TRUE(window.services.panels->confirm(path("window.txt")));

    ArchiveDictionary root;
    root.set(documentkeys::dataSeriesData, {window.document->dataSeries().dataForSave()});
    const QString file = writeDocument("a.crvgrab", root);
    EXPECT_EQ(run({"--export", path("text.txt"), file}, window.services.prefs().saveWithTitle()),
              exitcode::success);
    EXPECT_EQ(bytesOf("text.txt"), bytesOf("window.txt"));
    EXPECT_EQ(bytesOf("text.txt").count('\n'), 3);
}

TEST_F(ExportCommand, withoutTitleOptionsThePreferenceDecides)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    EXPECT_EQ(run({"--export", "-", file}, false), exitcode::success);
    EXPECT_EQ(out(), "1\t-1\n");
}

TEST_F(ExportCommand, titleOptionsWinOverThePreference)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    run({"--export", path("with.txt"), "--titles", file}, false);
    run({"--export", path("without.txt"), "--no-titles", file}, true);
    EXPECT_EQ(bytesOf("with.txt"), "Series_01_x\tSeries_01_y\n1\t-1\n");
    EXPECT_EQ(bytesOf("without.txt"), "1\t-1\n");
}

TEST_F(ExportCommand, theLongestSeriesCountsEvenIfItIsNotExported)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1, 3}));
    run({"--export", "-", "--series", "1", "--no-titles", file});
    EXPECT_EQ(out(), "1\t-1\n\t\n\t\n");
}

TEST_F(ExportCommand, emptySeriesAreLeftOutWithAWarning)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1, 0, 2}));
    EXPECT_EQ(run({"--export", "-", "--series", "2-3", "--no-titles", file}), exitcode::success);
    EXPECT_EQ(out(), "1\t-1\n2\t-2\n");
    EXPECT_TRUE(err().contains("Series 2")) << qPrintable(err());
    EXPECT_TRUE(err().contains(file));
}

TEST_F(ExportCommand, withoutAnyPointNothingIsWritten)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({0, 0, 1}));
    EXPECT_EQ(run({"--export", path("out.txt"), "--series", "1,2", file}), exitcode::failure);
    EXPECT_FALSE(QFileInfo::exists(path("out.txt")));
    EXPECT_TRUE(err().startsWith("curvegrab: " + file + ": ")) << qPrintable(err());
    // That there are none is said once, not of each series.
    EXPECT_EQ(err().count(file), 1) << qPrintable(err());
}

TEST_F(ExportCommand, aDocumentWithoutPointsCannotBeExported)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({}));
    EXPECT_EQ(run({"--export", "-", file}), exitcode::failure);
    EXPECT_EQ(out(), QByteArray());
}

TEST_F(ExportCommand, severalTextsFollowEachOtherWithAnEmptyLineBetween)
{
    const QString one = writeDocument("one.crvgrab", rootWithPoints({1}));
    const QString two = writeDocument("two.crvgrab", rootWithPoints({0, 2}));
    EXPECT_EQ(run({"--export", "-", "--no-titles", one, two}), exitcode::success);
    EXPECT_EQ(out(), "1\t-1\n\n1\t-1\n2\t-2\n");
}

TEST_F(ExportCommand, thePictureIsNeitherDecodedNorAReasonToFail)
{
    // A picture of its size is said to be there, but what stands for its pixels is none.
    QByteArray bytes =
        documentarchive::archivedData(sampleroots::root(sampleroots::Kind::Parallel));
    const qsizetype pixels = bytes.indexOf("IDAT") + 4;
    ASSERT_GE(pixels, 4);
    bytes.replace(pixels, 20, QByteArray(20, 'x'));
    const QString file = writeBytes("a.crvgrab", bytes);
    const QString whole =
        writeDocument("b.crvgrab", sampleroots::root(sampleroots::Kind::Parallel));
    EXPECT_EQ(run({"--export", path("a.json"), file}), exitcode::success);
    EXPECT_EQ(run({"--export", path("b.json"), whole}), exitcode::success);
    EXPECT_TRUE(bytesOf("a.json").contains("\"picture\""));
    EXPECT_EQ(bytesOf("a.json").replace("a.crvgrab", "b.crvgrab"), bytesOf("b.json"));
}

TEST_F(ExportCommand, aPictureThatNoMemoryCouldHoldDoesNotMatter)
{
    // Its head says 60,000 by 60,000 pixels.
    QByteArray bytes =
        documentarchive::archivedData(sampleroots::root(sampleroots::Kind::Parallel));
    const qsizetype size = bytes.indexOf("IHDR") + 4;
    ASSERT_GE(size, 4);
    bytes.replace(size, 8, QByteArray::fromHex("0000ea600000ea60"));
    const QString file = writeBytes("a.crvgrab", bytes);
    EXPECT_EQ(run({"--export", "-", "--no-titles", file}), exitcode::success);
    EXPECT_EQ(out().count('\n'), 5);
}

TEST_F(ExportCommand, theExtensionOfTheOutputNamesTheFormat)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({2, 0, 1}));
    EXPECT_EQ(run({"--export", path("out.csv"), file}), exitcode::success);
    EXPECT_EQ(bytesOf("out.csv"), "Series_01_x,Series_01_y,Series_03_x,Series_03_y\r\n"
                                  "1,-1,1,-1\r\n"
                                  "2,-2,,\r\n");
    EXPECT_EQ(run({"--export", path("out.dat"), "--no-titles", file}), exitcode::success);
    EXPECT_EQ(bytesOf("out.dat"), "1\t-1\t1\t-1\n2\t-2\t\t\n");
}

TEST_F(ExportCommand, theFormatThatIsNamedWinsOverTheExtension)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    run({"--export", path("out.csv"), "--format", "text", "--no-titles", file});
    EXPECT_EQ(bytesOf("out.csv"), "1\t-1\n");
    run({"--export", "-", "--format", "csv", "--no-titles", file});
    EXPECT_EQ(out(), "1,-1\r\n");
}

TEST_F(ExportCommand, numbersKeepAllTheirDigitsUnlessSomeAreChosen)
{
    const QString file =
        writeDocument("a.crvgrab", sampleroots::root(sampleroots::Kind::Parallel, 2));
    run({"--export", path("all.csv"), "--no-titles", file});
    EXPECT_EQ(bytesOf("all.csv"), "0,0\r\n0.14285714285714285,0.001\r\n");
    run({"--export", path("some.csv"), "--no-titles", "--digits", "3", file});
    EXPECT_EQ(bytesOf("some.csv"), "0,0\r\n0.143,0.001\r\n");
}

TEST_F(ExportCommand, jsonTellsThePictureTheAxesAndTheConverters)
{
    const QString file = writeDocument("a.crvgrab", sampleroots::root(sampleroots::Kind::Polar, 1));
    EXPECT_EQ(run({"--export", "-", "--format", "json", file, file}), exitcode::success);
    const QList<QByteArray> lines = out().trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], lines[1]);
    const QJsonObject object = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(object["document"].toString(), "a.crvgrab");
    EXPECT_EQ(object["picture"].toObject(), QJsonObject({{"width", 30}, {"height", 40}}));
    EXPECT_TRUE(object["axes"].isObject());
    const QJsonObject series = object["series"].toArray()[0].toObject();
    EXPECT_EQ(series["converter"].toObject()["kind"].toString(), "polar");
    EXPECT_EQ(series["quantities"].toArray(), QJsonArray({"theta", "r"}));
}

TEST_F(ExportCommand, jsonHasTheAxisValuesThatAWindowShows)
{
    ArchiveDictionary root = sampleroots::root(sampleroots::Kind::Parallel, 1);
    ArchiveDictionary axes = *root.dictionaryForKey(documentkeys::currentAxesData);
    axes.set("Min X Value", {0.123456789});
    axes.set("Max X Value", {1e7 / 3});
    axes.set("Axis Type", sampleroots::integer(7));
    root.set(documentkeys::currentAxesData, {axes});
    run({"--export", "-", "--format", "json", writeDocument("a.crvgrab", root)});
    const QJsonObject object = QJsonDocument::fromJson(out()).object()["axes"].toObject();

    const TestDocument window;
    CurrentAxes &shown = window.document->currentAxes();
    ASSERT_TRUE(shown.loadFromData(&axes));
    EXPECT_EQ(object["x"].toObject()["minimum"].toDouble(), shown.minXValue());
    EXPECT_EQ(object["x"].toObject()["maximum"].toDouble(), shown.maxXValue());
    EXPECT_EQ(object["kind"].toString(), QStringLiteral("parallel"));
}

TEST_F(ExportCommand, aWorkbookIsWrittenWholeAlsoToStandardOutput)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    EXPECT_EQ(run({"--export", path("out.xlsx"), file}), exitcode::success);
    EXPECT_TRUE(bytesOf("out.xlsx").startsWith("PK"));
    EXPECT_EQ(run({"--export", "-", "--format", "xlsx", file}), exitcode::success);
    EXPECT_EQ(out().size(), bytesOf("out.xlsx").size());
}

TEST_F(ExportCommand, oneBadFileKeepsEverythingUnwritten)
{
    const QString good = writeDocument("good.crvgrab", rootWithPoints({1}));
    writeBytes("out.txt", "what was there");
    EXPECT_EQ(run({"--export", path("out.txt"), good, path("missing.crvgrab")}), exitcode::failure);
    EXPECT_EQ(bytesOf("out.txt"), "what was there");
    EXPECT_TRUE(err().contains("missing.crvgrab")) << qPrintable(err());
}

TEST_F(ExportCommand, aDamagedDocumentIsNotExportedInPart)
{
    QByteArray bytes = documentarchive::archivedData(rootWithPoints({30}));
    bytes.chop(40);
    const QString file = writeBytes("cut.crvgrab", bytes);
    EXPECT_EQ(run({"--export", "-", file}), exitcode::failure);
    EXPECT_EQ(out(), QByteArray());
    EXPECT_TRUE(err().contains("ends too early")) << qPrintable(err());
}

TEST_F(ExportCommand, aPictureIsNoDocument)
{
    const QString file = writeBytes("a.png", "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(run({"--export", "-", file}), exitcode::failure);
    EXPECT_TRUE(err().contains("not a Curvegrab X document")) << qPrintable(err());
}

TEST_F(ExportCommand, thePictureIsNotDecoded)
{
    QByteArray bytes =
        documentarchive::archivedData(sampleroots::root(sampleroots::Kind::Parallel));
    const auto pixels = bytes.indexOf("IDAT");
    ASSERT_GT(pixels, 0);
    bytes[pixels + 6] = static_cast<char>(bytes[pixels + 6] ^ 0xff);
    bytes[pixels + 9] = static_cast<char>(bytes[pixels + 9] ^ 0xff);
    const QString file = writeBytes("broken-pixels.crvgrab", bytes);
    EXPECT_EQ(run({"--export", "-", file}), exitcode::success);
    EXPECT_EQ(out().count('\n'), 6);
}

TEST_F(ExportCommand, polarSeriesAreTitledThetaAndR)
{
    const QString file =
        writeDocument("polar.crvgrab", sampleroots::root(sampleroots::Kind::Polar, 1));
    run({"--export", "-", file});
    EXPECT_EQ(out(), "Series_01_theta\tSeries_01_r\n0\t0\n");
}

TEST_F(ExportCommand, aDocumentMayComeFromStandardInput)
{
    give(documentarchive::archivedData(rootWithPoints({1})));
    EXPECT_EQ(run({"--export", "-", "--no-titles", "-"}), exitcode::success);
    EXPECT_EQ(out(), "1\t-1\n");
}

TEST_F(ExportCommand, messagesCallStandardInputByItsName)
{
    give("nonsense");
    EXPECT_EQ(run({"--export", "-", "-"}), exitcode::failure);
    EXPECT_TRUE(err().startsWith("curvegrab: standard input: ")) << qPrintable(err());
}

TEST_F(ExportCommand, anExistingFileIsReplaced)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    writeBytes("out.txt", QByteArray(1000, 'x'));
    EXPECT_EQ(run({"--export", path("out.txt"), "--no-titles", file}), exitcode::success);
    EXPECT_EQ(bytesOf("out.txt"), "1\t-1\n");
}

TEST_F(ExportCommand, aDocumentIsNotOverwrittenByItsOwnText)
{
    const QString file = writeDocument("document", rootWithPoints({1}));
    const QByteArray before = bytesOf("document");
    EXPECT_EQ(run({"--export", path("./document"), file}), exitcode::wrongUse);
    EXPECT_EQ(bytesOf("document"), before);
}

TEST_F(ExportCommand, aFolderThatIsNotThereIsTold)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    const QString output = path("nowhere/out.txt");
    EXPECT_EQ(run({"--export", output, file}), exitcode::failure);
    EXPECT_TRUE(err().startsWith("curvegrab: " + output + ": ")) << qPrintable(err());
}

TEST_F(ExportCommand, aFileThatMayNotGrowLeavesTheOldOneWhole)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({2000}));
    writeBytes("out.txt", "what was there");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit tight{1000, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    const int code = run({"--export", path("out.txt"), file});
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_EQ(code, exitcode::failure);
    EXPECT_TRUE(err().contains(qtTrId("platform.file.tooLarge"))) << qPrintable(err());
    EXPECT_TRUE(err().startsWith("curvegrab: " + path("out.txt") + ": ")) << qPrintable(err());
    EXPECT_EQ(bytesOf("out.txt"), "what was there");
}

TEST_F(ExportCommand, aFolderIsNotReplacedByAFile)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    ASSERT_TRUE(QDir().mkdir(path("folder")));
    EXPECT_EQ(run({"--export", path("folder"), file}), exitcode::failure);
    EXPECT_TRUE(QFileInfo(path("folder")).isDir());
}

TEST_F(ExportCommand, aDeviceIsWrittenToAndStaysADevice)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    EXPECT_EQ(run({"--export", "/dev/null", file}), exitcode::success);
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/null")).isFile());
}

TEST_F(ExportCommand, aFullDeviceIsTold)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    EXPECT_EQ(run({"--export", "/dev/full", file}), exitcode::failure);
    EXPECT_TRUE(err().startsWith("curvegrab: /dev/full: ")) << qPrintable(err());
}
