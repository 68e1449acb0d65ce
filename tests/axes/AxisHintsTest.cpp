#include "axes/AxisHints.h"

#include "axes/Anchors.h"

#include <gtest/gtest.h>

#include <set>

using axishints::hintForPart;

TEST(AxisHints, everyPartOfFourCornersHasATextOfItsOwn)
{
    for (const int type : {axistype::parallel, axistype::quadrangle}) {
        std::set<QString> hints;
        for (int part = 0; part <= 9; ++part)
            hints.insert(hintForPart(type, part));
        EXPECT_EQ(hints.size(), 10U) << type;
    }
}

TEST(AxisHints, everyPolarPartHasAText)
{
    std::set<QString> hints;
    for (const int part : {0, 1, 10, 11, 12, 14, 16})
        hints.insert(hintForPart(axistype::polar, part));
    EXPECT_EQ(hints.size(), 7U);
    EXPECT_EQ(hintForPart(axistype::polar, 12), hintForPart(axistype::polar, 13));
    EXPECT_EQ(hintForPart(axistype::polar, 14), hintForPart(axistype::polar, 15));
    EXPECT_EQ(hintForPart(axistype::polar, 16), hintForPart(axistype::polar, 17));
}

TEST(AxisHints, textsAreInTheCatalogue)
{
    for (int type = 0; type <= 2; ++type) {
        for (int part = 0; part <= 17; ++part)
            EXPECT_FALSE(hintForPart(type, part).contains(QStringLiteral("axes.hint")))
                << type << " " << part;
    }
}

TEST(AxisHints, textsSayWhatTheAnchorStandsFor)
{
    EXPECT_TRUE(hintForPart(axistype::parallel, 3).contains(QStringLiteral("X maximum")));
    EXPECT_TRUE(hintForPart(axistype::quadrangle, 3).contains(QStringLiteral("bottom right")));
    EXPECT_TRUE(hintForPart(axistype::polar, 14).contains(QStringLiteral("turn")));
}

TEST(AxisHints, strangePartsReadAsNothing)
{
    EXPECT_EQ(hintForPart(axistype::parallel, 42), hintForPart(axistype::parallel, 0));
    EXPECT_EQ(hintForPart(axistype::parallel, -1), hintForPart(axistype::parallel, 0));
    EXPECT_EQ(hintForPart(axistype::polar, 5), hintForPart(axistype::polar, 0));
    EXPECT_EQ(hintForPart(axistype::polar, 18), hintForPart(axistype::polar, 0));
}
