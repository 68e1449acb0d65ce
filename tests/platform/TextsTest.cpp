#include "platform/Texts.h"

#include <gtest/gtest.h>

TEST(Texts, aKeyIsLookedUpInTheCatalogue)
{
    EXPECT_EQ(texts::localized("platform.files.replace"), QStringLiteral("Replace"));
}

// A key that the catalogue lacks reads as itself, so it can serve as a format.

TEST(Texts, theNumberTakesThePlaceOfItsMark)
{
    EXPECT_EQ(texts::localizedFormat("moved to series %d.", 7),
              QStringLiteral("moved to series 7."));
    EXPECT_EQ(texts::localizedFormat("%d", -12), QStringLiteral("-12"));
}

TEST(Texts, percentSignsAreReadInOnePassFromTheLeft)
{
    EXPECT_EQ(texts::localizedFormat("%%d is %d%%", 3), QStringLiteral("%d is 3%"));
    EXPECT_EQ(texts::localizedFormat("%%%d", 3), QStringLiteral("%3"));
}

TEST(Texts, whatIsNoMarkStays)
{
    EXPECT_EQ(texts::localizedFormat("100% of %s, %d and %d, %", 3),
              QStringLiteral("100% of %s, 3 and %d, %"));
}

TEST(Texts, realNumbersTakeTheirMarksInOrderWithTheirDecimals)
{
    EXPECT_EQ(texts::localizedFormat("%.0f × %.2f", {1000.0, 0.125}),
              QStringLiteral("1000 × 0.12"));
    EXPECT_EQ(texts::localizedFormat("%.1f%%", {-0.25}), QStringLiteral("-0.2%"));
}

TEST(Texts, marksWithoutAValueStay)
{
    EXPECT_EQ(texts::localizedFormat("%.1f and %.1f, %.f, %.1", {2.0}),
              QStringLiteral("2.0 and %.1f, %.f, %.1"));
}
