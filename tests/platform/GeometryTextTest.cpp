#include "platform/GeometryText.h"

#include <gtest/gtest.h>

TEST(GeometryText, pointsAndSizesStandInBraces)
{
    EXPECT_EQ(geometrytext::stringFromPoint({1.5F, -2}), "{1.5, -2}");
    EXPECT_EQ(geometrytext::stringFromSize({320, 213.333F}), "{320, 213.333}");
}

TEST(GeometryText, rectanglesHoldTheOriginThenTheSize)
{
    EXPECT_EQ(geometrytext::stringFromRect({{1, 2}, {3, 4.5F}}), "{{1, 2}, {3, 4.5}}");
}

TEST(GeometryText, numbersHaveSixSignificantDigits)
{
    EXPECT_EQ(geometrytext::stringFromPoint({1234567, 0.1F}), "{1.23457e+06, 0.1}");
    EXPECT_EQ(geometrytext::stringFromPoint({-0.0F, 0}), "{-0, 0}");
}

TEST(GeometryText, readsWhatItWrites)
{
    const FloatRect rect{{-1.5F, 2.25F}, {1e-7F, 12345}};
    EXPECT_EQ(geometrytext::rectFromString(geometrytext::stringFromRect(rect)), rect);
    const FloatPoint point{0.1F, 1e20F};
    EXPECT_EQ(geometrytext::pointFromString(geometrytext::stringFromPoint(point)), point);
    const FloatSize size{640, 480.5F};
    EXPECT_EQ(geometrytext::sizeFromString(geometrytext::stringFromSize(size)), size);
}

TEST(GeometryText, allDigitsAreRead)
{
    EXPECT_EQ(geometrytext::pointFromString("{0.10000000149011612, 123.456787}"),
              (FloatPoint{0.1F, 123.456787F}));
}

TEST(GeometryText, blanksDoNotMatter)
{
    EXPECT_EQ(geometrytext::pointFromString(" { 1 ,2 } "), (FloatPoint{1, 2}));
    EXPECT_EQ(geometrytext::pointFromString("{1,2}"), (FloatPoint{1, 2}));
    EXPECT_EQ(geometrytext::rectFromString("\t{ {1,2} ,\n{ 3, 4} }\n"),
              (FloatRect{{1, 2}, {3, 4}}));
}

TEST(GeometryText, everyFormOfNumberIsRead)
{
    EXPECT_EQ(geometrytext::pointFromString("{+1, .5}"), (FloatPoint{1, 0.5F}));
    EXPECT_EQ(geometrytext::pointFromString("{5., -1E2}"), (FloatPoint{5, -100}));
}

TEST(GeometryText, aCommaIsNoPoint)
{
    EXPECT_EQ(geometrytext::pointFromString("{1,5}"), (FloatPoint{1, 5}));
    EXPECT_EQ(geometrytext::pointFromString("{1,5, 2}"), FloatPoint{});
}

TEST(GeometryText, otherPointTextsGiveZeros)
{
    for (const char *text :
         {"", "{}", "{1}", "{1, }", "{1, 2", "1, 2", "{1 2}", "{1, 2} x", "{a, 2}", "{1, inf}",
          "{nan, 1}", "{0x1, 2}", "{1, 1e39}", "{1, 2, 3}"})
        EXPECT_EQ(geometrytext::pointFromString(text), FloatPoint{}) << text;
}

TEST(GeometryText, otherRectangleTextsGiveZeros)
{
    for (const char *text : {"", "{1, 2}", "{{1, 2}}", "{{1, 2}, {3}}", "{{1, 2}, {3, 4}",
                             "{{1, 2} {3, 4}}", "{{1, 2}, {3, 4}} x", "{1, 2}, {3, 4}"})
        EXPECT_EQ(geometrytext::rectFromString(text), FloatRect{}) << text;
}
