#include "axes/AnchorLayout.h"

#include "geometry/ZKRect.h"

#include <gtest/gtest.h>

namespace {

constexpr float side = 8;

/// The layout for a picture of 100 x 50 points, shown at twice its size.
AnchorLayout laidOut(int axisType, const Anchors &anchors)
{
    return anchorlayout::make(axisType, anchors, {2, {200, 100}, side});
}

Anchors frame() { return {{10, 10}, {60, 10}, {70, 40}, {20, 40}}; }

Anchors disc() { return {{50, 25}, {60, 30}, {1, 2}, {3, 4}}; }

void expectCentre(const FloatRect &rect, float x, float y)
{
    EXPECT_NEAR(ZKRect::centerOfRect(rect).x, x, 1e-4F);
    EXPECT_NEAR(ZKRect::centerOfRect(rect).y, y, 1e-4F);
    EXPECT_EQ(rect.size, (FloatSize{side, side}));
}

void expectEnds(const std::optional<ZKLineSegment> &segment, FloatPoint end1, FloatPoint end2)
{
    ASSERT_TRUE(segment.has_value());
    EXPECT_EQ(segment->getEndNSPoint1(), end1);
    EXPECT_EQ(segment->getEndNSPoint2(), end2);
}

} // namespace

TEST(AnchorLayout, squaresStandOnTheScaledAnchors)
{
    const AnchorLayout layout = laidOut(axistype::parallel, frame());
    EXPECT_EQ(layout.anchor1Rect, (FloatRect{{16, 16}, {side, side}}));
    EXPECT_EQ(layout.anchor2Rect, (FloatRect{{116, 16}, {side, side}}));
    EXPECT_EQ(layout.anchor3Rect, (FloatRect{{136, 76}, {side, side}}));
    EXPECT_EQ(layout.anchor4Rect, (FloatRect{{36, 76}, {side, side}}));
}

TEST(AnchorLayout, sideHandlesStandInTheMiddleOfTheSides)
{
    const AnchorLayout layout = laidOut(axistype::quadrangle, frame());
    expectCentre(layout.anchor12Rect, 70, 20);
    expectCentre(layout.anchor23Rect, 130, 50);
    expectCentre(layout.anchor34Rect, 90, 80);
    expectCentre(layout.anchor41Rect, 30, 50);
}

TEST(AnchorLayout, handlesKeepTheirSizeAtEveryScale)
{
    for (const float scale : {0.125F, 1.0F, 2.0F}) {
        const AnchorLayout layout =
            anchorlayout::make(axistype::parallel, frame(), {scale, {100, 100}, side});
        EXPECT_EQ(layout.anchor3Rect.size, (FloatSize{side, side}));
    }
}

TEST(AnchorLayout, axisLinesRunAcrossTheScaledPicture)
{
    const AnchorLayout layout =
        laidOut(axistype::parallel, {{10, 10}, {60, 10}, {60, 40}, {10, 40}});
    expectEnds(layout.axisLineSegment1, {0, 20}, {200, 20});
    expectEnds(layout.axisLineSegment2, {0, 80}, {200, 80});
    expectEnds(layout.axisLineSegment3, {120, 0}, {120, 100});
    expectEnds(layout.axisLineSegment4, {20, 0}, {20, 100});
}

TEST(AnchorLayout, axisLinesOfTheWholePictureLieOnItsEdges)
{
    const AnchorLayout layout = laidOut(axistype::parallel, {{0, 0}, {100, 0}, {100, 50}, {0, 50}});
    expectEnds(layout.axisLineSegment1, {0, 0}, {200, 0});
    expectEnds(layout.axisLineSegment2, {0, 100}, {200, 100});
    EXPECT_TRUE(layout.axisLineSegment3.has_value());
    EXPECT_TRUE(layout.axisLineSegment4.has_value());
}

TEST(AnchorLayout, segmentsRunInTheirDirections)
{
    const AnchorLayout layout = laidOut(axistype::quadrangle, frame());
    const auto direction = [](const std::optional<ZKLineSegment> &segment) {
        return segment.value().direction().vectorToNSPoint();
    };
    EXPECT_EQ(direction(layout.axisLineSegment1), (FloatPoint{100, 0}));
    EXPECT_EQ(direction(layout.axisLineSegment2), (FloatPoint{100, 0}));
    EXPECT_EQ(direction(layout.axisLineSegment3), (FloatPoint{20, 60}));
    EXPECT_EQ(direction(layout.axisLineSegment4), (FloatPoint{20, 60}));
}

TEST(AnchorLayout, lineThatMissesThePictureIsNone)
{
    const AnchorLayout layout =
        laidOut(axistype::parallel, {{10, -10}, {60, -10}, {60, 40}, {10, 40}});
    EXPECT_FALSE(layout.axisLineSegment1.has_value());
    EXPECT_TRUE(layout.axisLineSegment2.has_value());
}

TEST(AnchorLayout, coincidentAnchorsHaveNoLine)
{
    const AnchorLayout layout =
        laidOut(axistype::parallel, {{10, 10}, {10, 10}, {60, 40}, {10, 40}});
    EXPECT_FALSE(layout.axisLineSegment1.has_value());
    EXPECT_TRUE(layout.axisLineSegment4.has_value());
}

TEST(AnchorLayout, polarHandlesStandAroundTheCentreWithYUpwards)
{
    // Centre (100, 50), radius vector (20, 10).
    const AnchorLayout layout = laidOut(axistype::polar, disc());
    expectCentre(layout.anchor1Rect, 100, 50);
    expectCentre(layout.anchor2Rect, 120, 60);
    expectCentre(layout.anchor3Rect, 110, 30); // clockwise
    expectCentre(layout.anchor4Rect, 90, 70);  // counter-clockwise
    expectCentre(layout.anchor12Rect, 124, 62);
    expectCentre(layout.anchor23Rect, 76, 38);
    expectCentre(layout.anchor34Rect, 121.213203F, 42.928932F); // 45 degrees clockwise
    expectCentre(layout.anchor41Rect, 107.071068F, 71.213203F); // 45 degrees counter-clockwise
}

TEST(AnchorLayout, polarRadiusIsTrimmedAndItsDiameterIsNot)
{
    const AnchorLayout layout = laidOut(axistype::polar, {{50, 25}, {100, 25}, {0, 0}, {0, 0}});
    expectEnds(layout.axisLineSegment1, {0, 50}, {200, 50});
    expectEnds(layout.axisLineSegment2, {100, -50}, {100, 150});
    EXPECT_FALSE(layout.axisLineSegment3.has_value());
    EXPECT_FALSE(layout.axisLineSegment4.has_value());
}

TEST(AnchorLayout, polarAreaIsTheCircleThroughTheRadiusEnd)
{
    const AnchorLayout layout = laidOut(axistype::polar, {{50, 25}, {53, 29}, {0, 0}, {0, 0}});
    ASSERT_TRUE(layout.axisArea.has_value());
    ASSERT_NE(layout.axisArea->circle(), nullptr);
    EXPECT_EQ(layout.axisArea->circle()->centre, (FloatPoint{100, 50}));
    EXPECT_EQ(layout.axisArea->circle()->radius, 10.0F);
}

TEST(AnchorLayout, areaOfFourCornersIsTheirClosedPath)
{
    const AnchorLayout layout = laidOut(axistype::parallel, frame());
    ASSERT_TRUE(layout.axisArea.has_value());
    ASSERT_NE(layout.axisArea->corners(), nullptr);
    EXPECT_EQ(*layout.axisArea->corners(),
              (AxisArea::Corners{{{20, 20}, {120, 20}, {140, 80}, {40, 80}}}));
}

TEST(AnchorLayout, everyHandleHasItsPartCode)
{
    const AnchorLayout corners = laidOut(axistype::parallel, frame());
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {20, 20}), 2);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {120, 20}), 3);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {140, 80}), 4);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {40, 80}), 5);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::quadrangle, corners, {70, 20}), 6);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::quadrangle, corners, {130, 50}), 7);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::quadrangle, corners, {90, 80}), 8);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::quadrangle, corners, {30, 50}), 9);
}

TEST(AnchorLayout, everyPolarHandleHasItsPartCode)
{
    const AnchorLayout layout = laidOut(axistype::polar, disc());
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {100, 50}), 10);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {117, 57}), 11);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {110, 30}), 12);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {90, 70}), 13);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {126, 63}), 14);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {76, 38}), 15);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {121, 43}), 16);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, layout, {107, 71}), 17);
}

TEST(AnchorLayout, insideWithoutHandleIsTheAreaAndOutsideNothing)
{
    const AnchorLayout corners = laidOut(axistype::parallel, frame());
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {80, 50}), 1);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {5, 5}), 0);
    const AnchorLayout circle = laidOut(axistype::polar, disc());
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, circle, {108, 48}), 1);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, circle, {140, 50}), 0);
}

TEST(AnchorLayout, cornersWinOverSides)
{
    // The middle of the short bottom side lies within the squares of both its ends.
    const AnchorLayout layout =
        laidOut(axistype::parallel, {{10, 10}, {12, 10}, {12, 40}, {10, 40}});
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, layout, {20, 20}), 2);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, layout, {22, 20}), 2);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, layout, {25, 20}), 3);
}

TEST(AnchorLayout, overlappingHandlesGoToTheFirstInOrder)
{
    const AnchorLayout corners =
        laidOut(axistype::parallel, {{10, 10}, {10, 10}, {10, 10}, {10, 10}});
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, corners, {20, 20}), 2);
    const AnchorLayout circle = laidOut(axistype::polar, {{10, 10}, {10, 10}, {10, 10}, {10, 10}});
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, circle, {20, 20}), 10);
}

TEST(AnchorLayout, squaresAreHalfOpen)
{
    const AnchorLayout layout = laidOut(axistype::parallel, frame());
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, layout, {16, 16}), 2);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, layout, {23.99F, 23.99F}), 2);
    EXPECT_NE(anchorlayout::partOfHit(axistype::parallel, layout, {24, 20}), 2);
    EXPECT_NE(anchorlayout::partOfHit(axistype::parallel, layout, {20, 24}), 2);
}

TEST(AnchorLayout, nothingIsHitBeforeTheFirstLayout)
{
    EXPECT_EQ(anchorlayout::partOfHit(axistype::parallel, {}, {0, 0}), 0);
    EXPECT_EQ(anchorlayout::partOfHit(axistype::polar, {}, {0, 0}), 0);
}
