#include "infopanel/InfoTexts.h"

#include <gtest/gtest.h>

namespace {

InfoFacts sampleFacts(int axisType)
{
    InfoFacts facts;
    facts.imageSize = FloatSize{500, 400};
    facts.axes = {axisType, {{{100, 80}, {400, 80.25F}, {400, 320}, {100, 320}}}, 300, 240, 300,
                  -12.34};
    facts.data = {2, 7, 3, 12};
    return facts;
}

} // namespace

TEST(InfoTexts, withoutADocumentEverythingIsDashed)
{
    EXPECT_EQ(infotexts::imageInfo(nullptr), QStringLiteral("No document"));
    for (const QString &info : infotexts::axisTexts(nullptr).info)
        EXPECT_EQ(info, QStringLiteral("-----"));
    for (const QString &info : infotexts::dataInfo(nullptr))
        EXPECT_EQ(info, QStringLiteral("-----"));
}

TEST(InfoTexts, withoutADocumentTheCaptionsStayAsTheyAre)
{
    EXPECT_FALSE(infotexts::axisTexts(nullptr).labels);
}

TEST(InfoTexts, withoutAPictureTheAxesAreNotShownAlthoughThereAreAnchors)
{
    InfoFacts facts = sampleFacts(0);
    facts.imageSize.reset();
    EXPECT_EQ(infotexts::imageInfo(&facts), QStringLiteral("No picture yet"));
    EXPECT_EQ(infotexts::axisTexts(&facts).info[1], QStringLiteral("-----"));
    EXPECT_FALSE(infotexts::axisTexts(&facts).labels);
    EXPECT_EQ(infotexts::dataInfo(&facts)[0], QStringLiteral("-----"));
}

TEST(InfoTexts, thePictureSizeIsWidthTimesHeight)
{
    const InfoFacts facts = sampleFacts(0);
    EXPECT_EQ(infotexts::imageInfo(&facts), QStringLiteral("500 × 400"));
}

TEST(InfoTexts, parallelAxesShowFourAnchorsAndTwoLengths)
{
    const InfoFacts facts = sampleFacts(0);
    const infotexts::AxisTexts axes = infotexts::axisTexts(&facts);
    EXPECT_EQ(axes.info[0], QStringLiteral("Parallel"));
    EXPECT_EQ(axes.info[1], QStringLiteral("{ 100.0, 80.0 }"));
    EXPECT_EQ(axes.info[2], QStringLiteral("{ 400.0, 80.2 }"));
    EXPECT_EQ(axes.info[3], QStringLiteral("{ 400.0, 320.0 }"));
    EXPECT_EQ(axes.info[4], QStringLiteral("{ 100.0, 320.0 }"));
    EXPECT_EQ(axes.info[5], QStringLiteral("300.0"));
    EXPECT_EQ(axes.info[6], QStringLiteral("240.0"));
    ASSERT_TRUE(axes.labels);
    EXPECT_EQ(axes.labels->at(0), QStringLiteral("Anchor 1 (lower left):"));
    EXPECT_EQ(axes.labels->at(5), QStringLiteral("Length of side 1–4:"));
}

TEST(InfoTexts, anyKindButParallelAndPolarIsAQuadrangle)
{
    for (const int type : {1, 7, -1}) {
        const InfoFacts facts = sampleFacts(type);
        EXPECT_EQ(infotexts::axisTexts(&facts).info[0], QStringLiteral("Quadrangle")) << type;
    }
}

TEST(InfoTexts, polarAxesShowCentreRadiusAndInclinationWithTheirCaptions)
{
    const InfoFacts facts = sampleFacts(2);
    const infotexts::AxisTexts axes = infotexts::axisTexts(&facts);
    EXPECT_EQ(axes.info[0], QStringLiteral("Polar"));
    EXPECT_EQ(axes.info[2], QStringLiteral("{ 400.0, 80.2 }"));
    EXPECT_EQ(axes.info[3], QStringLiteral("300.0"));
    EXPECT_EQ(axes.info[4], QStringLiteral("-12.3°"));
    EXPECT_EQ(axes.info[5], QStringLiteral("-----"));
    EXPECT_EQ(axes.info[6], QStringLiteral("-----"));
    ASSERT_TRUE(axes.labels);
    EXPECT_EQ(axes.labels->at(0), QStringLiteral("Centre:"));
    EXPECT_EQ(axes.labels->at(3), QStringLiteral("Angle of the radius:"));
    EXPECT_EQ(axes.labels->at(4), QStringLiteral("-----:"));
    EXPECT_EQ(axes.labels->at(5), QStringLiteral("-----:"));
}

TEST(InfoTexts, seriesCountFromOneAndRowsAsTheyAre)
{
    const InfoFacts facts = sampleFacts(0);
    EXPECT_EQ(infotexts::dataInfo(&facts)[0], QStringLiteral("3"));
    EXPECT_EQ(infotexts::dataInfo(&facts)[1], QStringLiteral("7"));
}

TEST(InfoTexts, theSingularStandsForNoneAndForOne)
{
    InfoFacts facts = sampleFacts(0);
    for (const int count : {0, 1}) {
        facts.data.maxRows = count;
        EXPECT_EQ(infotexts::dataInfo(&facts)[3], QStringLiteral("%1 row").arg(count));
    }
    facts.data.maxRows = 2;
    EXPECT_EQ(infotexts::dataInfo(&facts)[3], QStringLiteral("2 rows"));
}

TEST(InfoTexts, theNumberOfSeriesIsThatOfTheSeriesWithPoints)
{
    const InfoFacts facts = sampleFacts(0);
    EXPECT_EQ(infotexts::dataInfo(&facts)[2], QStringLiteral("3 series"));
}
