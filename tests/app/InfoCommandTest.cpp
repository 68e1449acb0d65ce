#include "app/InfoCommand.h"
#include "app/ConsoleFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using sampleroots::Kind;

namespace {

class InfoCommand : public ConsoleFixture
{
protected:
    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(out()).object(); }
};

ArchiveDictionary emptyRoot() { return {}; }

} // namespace

TEST_F(InfoCommand, theTextHasTheRowsOfTheInfoPanel)
{
    const QString file = writeDocument("a.crvgrab", sampleroots::root(Kind::Parallel));
    EXPECT_EQ(run({"--info", file}), exitcode::success);
    // The picture of 40 × 30 is turned by a quarter.
    EXPECT_EQ(QString::fromUtf8(out()),
              file + QStringLiteral("\n"
                                    "Picture\n"
                                    "  Size:                   30 × 40\n"
                                    "Axes\n"
                                    "  Kind:                   Parallel\n"
                                    "  Anchor 1 (lower left):  { 10.0, 10.0 }\n"
                                    "  Anchor 2 (lower right): { 110.0, 10.0 }\n"
                                    "  Anchor 3 (upper right): { 110.0, 90.0 }\n"
                                    "  Anchor 4 (upper left):  { 10.0, 90.0 }\n"
                                    "  Length of side 1–2:     100.0\n"
                                    "  Length of side 1–4:     80.0\n"
                                    "Data\n"
                                    "  Current series:         1\n"
                                    "  Current row:            5\n"
                                    "  With points:            1 series\n"
                                    "  Longest series:         5 rows\n"));
}

TEST_F(InfoCommand, polarAxesHaveTheirOwnRowsAndNoEmptyOnes)
{
    const QString file = writeDocument("a.crvgrab", sampleroots::root(Kind::Polar));
    run({"--info", file});
    const QString text = QString::fromUtf8(out());
    EXPECT_TRUE(text.contains("Kind:                Polar")) << qPrintable(text);
    EXPECT_TRUE(text.contains("Radius:              100.0"));
    EXPECT_TRUE(text.contains("Angle of the radius: 0.0°"));
    EXPECT_FALSE(text.contains("-----"));
}

TEST_F(InfoCommand, withoutAPictureOnlyThatIsSaid)
{
    const QString file = writeDocument("a.crvgrab", emptyRoot());
    EXPECT_EQ(run({"--info", file}), exitcode::success);
    EXPECT_TRUE(QString::fromUtf8(out()).contains("No picture yet")) << out().constData();
    EXPECT_FALSE(QString::fromUtf8(out()).contains("Anchor"));
}

TEST_F(InfoCommand, jsonOfParallelAxesHasAnchorsAndLengths)
{
    const QString file = writeDocument("a.crvgrab", sampleroots::root(Kind::Parallel));
    EXPECT_EQ(run({"--info", "--json", file}), exitcode::success);
    EXPECT_EQ(json()["file"].toString(), file);
    EXPECT_EQ(json()["picture"].toObject(), QJsonObject({{"width", 30}, {"height", 40}}));
    const QJsonObject axes = json()["axes"].toObject();
    EXPECT_EQ(axes["kind"].toString(), QStringLiteral("parallel"));
    EXPECT_EQ(axes["anchors"].toArray().at(2).toObject(), QJsonObject({{"x", 110}, {"y", 90}}));
    EXPECT_EQ(axes["bottomLength"].toDouble(), 100);
    EXPECT_EQ(axes["leftLength"].toDouble(), 80);
    EXPECT_EQ(
        json()["data"].toObject(),
        QJsonObject(
            {{"currentSeries", 1}, {"currentRow", 5}, {"numberOfSeries", 1}, {"numberOfRows", 5}}));
}

TEST_F(InfoCommand, jsonOfPolarAxesHasCentreRadiusAndInclination)
{
    const QString file = writeDocument("a.crvgrab", sampleroots::root(Kind::Polar));
    run({"--info", "--json", file});
    EXPECT_EQ(json()["axes"].toObject(),
              QJsonObject({{"kind", "polar"},
                           {"centre", QJsonObject{{"x", 10}, {"y", 10}}},
                           {"radiusEnd", QJsonObject{{"x", 110}, {"y", 10}}},
                           {"radius", 100},
                           {"inclination", 0}}));
}

TEST_F(InfoCommand, jsonWithoutAPictureIsNull)
{
    const QString file = writeDocument("a.crvgrab", emptyRoot());
    run({"--info", "--json", file});
    EXPECT_TRUE(json()["picture"].isNull());
    EXPECT_TRUE(json()["axes"].isNull());
    EXPECT_TRUE(json()["data"].isNull());
}

TEST_F(InfoCommand, eachFileIsOneLineOfJson)
{
    const QString one = writeDocument("one.crvgrab", sampleroots::root(Kind::Parallel));
    const QString two = writeDocument("two\n.crvgrab", sampleroots::root(Kind::Polar));
    run({"--info", "--json", one, two});
    const QList<QByteArray> lines = out().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(QJsonDocument::fromJson(lines[1]).object()["file"].toString(), two);
}

TEST_F(InfoCommand, aBadFileIsToldAndTheOthersArePrinted)
{
    const QString good = writeDocument("good.crvgrab", sampleroots::root(Kind::Parallel));
    EXPECT_EQ(run({"--info", path("missing.crvgrab"), good}), exitcode::failure);
    EXPECT_TRUE(err().contains("missing.crvgrab"));
    EXPECT_TRUE(out().startsWith(good.toUtf8()));
}

TEST_F(InfoCommand, numbersAreNotRoundedAndKeepTheirShortestForm)
{
    ArchiveDictionary root = sampleroots::root(Kind::Parallel);
    ArchiveDictionary axes = *root.dictionaryForKey(documentkeys::currentAxesData);
    axes.set("Anchor Position 1", {std::string("{0.1, 33.3333}")});
    root.set(documentkeys::currentAxesData, {axes});
    run({"--info", "--json", writeDocument("a.crvgrab", root)});
    EXPECT_TRUE(out().contains("{\"x\":0.1,\"y\":33.3333}")) << out().constData();
}

TEST_F(InfoCommand, aKindOrASeriesThatIsNotThereLeavesTheFirstOneChosen)
{
    DocumentContents contents;
    contents.axes.type = 9;
    contents.currentSeries = -4;
    EXPECT_EQ(infocommand::factsOf(contents).axes.axisType, 0);
    EXPECT_EQ(infocommand::factsOf(contents).data.currentSeries, 0);
}
