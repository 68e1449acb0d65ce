#include "axes/AnchorDrag.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

namespace {

constexpr float scale = 2;
constexpr FloatPoint press{50, 40};

/// The pointer after moving by `d` picture points from the press.
FloatPoint movedBy(FloatPoint d, FloatPoint from = press)
{
    return {from.x + d.x * scale, from.y + d.y * scale};
}

/// The anchors after one move by `d` picture points.
Anchors dragged(int axisType, int part, const Anchors &start, FloatPoint d)
{
    return AnchorDrag(axisType, part, start, press, scale).moved(movedBy(d), start);
}

void expectNear(FloatPoint actual, FloatPoint expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-4F);
    EXPECT_NEAR(actual.y, expected.y, 1e-4F);
}

/// A parallelogram with a level bottom; its left and right sides lean by (20, 50).
constexpr Anchors parallelogram{{10, 10}, {110, 10}, {130, 60}, {30, 60}};

/// Bottom and top meet in (160, 0), left and right in (0, 200).
constexpr Anchors quadrangle{{0, 0}, {100, 0}, {80, 40}, {0, 80}};

constexpr Anchors disc{{100, 100}, {150, 100}, {1, 2}, {3, 4}};

} // namespace

void PrintTo(const Anchors &a, std::ostream *out)
{
    for (const FloatPoint &p : {a.anchor1, a.anchor2, a.anchor3, a.anchor4})
        *out << "(" << p.x << ", " << p.y << ") ";
}

TEST(AnchorDrag, areaMovesAllAnchors)
{
    const Anchors expected{{15, 20}, {115, 20}, {135, 70}, {35, 70}};
    EXPECT_EQ(dragged(axistype::parallel, 1, parallelogram, {5, 10}), expected);
    EXPECT_EQ(dragged(axistype::quadrangle, 1, parallelogram, {5, 10}), expected);
}

TEST(AnchorDrag, parallelOriginSlidesItsNeighboursAlongTheFarSides)
{
    const Anchors expected{{15, 20}, {114, 20}, {130, 60}, {31, 60}};
    EXPECT_EQ(dragged(axistype::parallel, 2, parallelogram, {5, 10}), expected);
}

TEST(AnchorDrag, parallelXMaximumTakesTheFarCornerAlong)
{
    const Anchors expected{{10, 10}, {115, 20}, {135, 70}, {30, 60}};
    EXPECT_EQ(dragged(axistype::parallel, 3, parallelogram, {5, 10}), expected);
}

TEST(AnchorDrag, parallelFarCornerSlidesItsNeighboursAlongTheAxes)
{
    const Anchors expected{{10, 10}, {111, 10}, {135, 70}, {34, 70}};
    EXPECT_EQ(dragged(axistype::parallel, 4, parallelogram, {5, 10}), expected);
}

TEST(AnchorDrag, parallelYMaximumTakesTheFarCornerAlong)
{
    const Anchors expected{{10, 10}, {110, 10}, {135, 70}, {35, 70}};
    EXPECT_EQ(dragged(axistype::parallel, 5, parallelogram, {5, 10}), expected);
}

TEST(AnchorDrag, parallelSidesSlideAlongTheirNeighbours)
{
    EXPECT_EQ(dragged(axistype::parallel, 6, parallelogram, {5, 10}),
              (Anchors{{14, 20}, {114, 20}, {130, 60}, {30, 60}}));
    EXPECT_EQ(dragged(axistype::parallel, 7, parallelogram, {5, 10}),
              (Anchors{{10, 10}, {111, 10}, {131, 60}, {30, 60}}));
    EXPECT_EQ(dragged(axistype::parallel, 8, parallelogram, {5, 10}),
              (Anchors{{10, 10}, {110, 10}, {134, 70}, {34, 70}}));
    EXPECT_EQ(dragged(axistype::parallel, 9, parallelogram, {5, 10}),
              (Anchors{{11, 10}, {110, 10}, {130, 60}, {31, 60}}));
}

TEST(AnchorDrag, everyMoveStartsFromTheAnchorsAtThePress)
{
    for (int part = 1; part <= 9; ++part) {
        for (const int type : {axistype::parallel, axistype::quadrangle}) {
            const AnchorDrag drag(type, part, quadrangle, press, scale);
            const Anchors afterDetour =
                drag.moved(movedBy({3, 4}), drag.moved(movedBy({-17, 25}), quadrangle));
            EXPECT_EQ(afterDetour, drag.moved(movedBy({3, 4}), quadrangle)) << type << " " << part;
        }
    }
}

TEST(AnchorDrag, cornersOfAQuadrangleAreFree)
{
    EXPECT_EQ(dragged(axistype::quadrangle, 2, quadrangle, {5, 10}),
              (Anchors{{5, 10}, {100, 0}, {80, 40}, {0, 80}}));
    EXPECT_EQ(dragged(axistype::quadrangle, 3, quadrangle, {5, 10}),
              (Anchors{{0, 0}, {105, 10}, {80, 40}, {0, 80}}));
    EXPECT_EQ(dragged(axistype::quadrangle, 4, quadrangle, {5, 10}),
              (Anchors{{0, 0}, {100, 0}, {85, 50}, {0, 80}}));
    EXPECT_EQ(dragged(axistype::quadrangle, 5, quadrangle, {5, 10}),
              (Anchors{{0, 0}, {100, 0}, {80, 40}, {5, 90}}));
}

TEST(AnchorDrag, quadrangleBottomPivotsAboutItsVanishingPoint)
{
    const Anchors a = dragged(axistype::quadrangle, 6, quadrangle, {0, 11});
    expectNear(a.anchor1, {0, 16});
    expectNear(a.anchor2, {96.842105F, 6.3157895F});
    EXPECT_EQ(a.anchor3, quadrangle.anchor3);
    EXPECT_EQ(a.anchor4, quadrangle.anchor4);
}

TEST(AnchorDrag, quadrangleRightSidePivotsAboutItsVanishingPoint)
{
    const Anchors a = dragged(axistype::quadrangle, 7, quadrangle, {18, 0});
    EXPECT_EQ(a.anchor1, quadrangle.anchor1);
    expectNear(a.anchor2, {120, 0});
    expectNear(a.anchor3, {102.857143F, 28.571429F});
    EXPECT_EQ(a.anchor4, quadrangle.anchor4);
}

TEST(AnchorDrag, quadrangleTopPivotsAboutItsVanishingPoint)
{
    const Anchors a = dragged(axistype::quadrangle, 8, quadrangle, {0, 12});
    EXPECT_EQ(a.anchor1, quadrangle.anchor1);
    EXPECT_EQ(a.anchor2, quadrangle.anchor2);
    expectNear(a.anchor3, {74.285714F, 51.428571F});
    expectNear(a.anchor4, {0, 96});
}

TEST(AnchorDrag, quadrangleLeftSidePivotsAboutItsVanishingPoint)
{
    const Anchors a = dragged(axistype::quadrangle, 9, quadrangle, {16, 0});
    expectNear(a.anchor1, {20, 0});
    EXPECT_EQ(a.anchor2, quadrangle.anchor2);
    EXPECT_EQ(a.anchor3, quadrangle.anchor3);
    expectNear(a.anchor4, {12.631579F, 73.684211F});
}

TEST(AnchorDrag, quadrangleWithParallelBottomAndTopMovesThemParallel)
{
    const Anchors trapezium{{0, 0}, {100, 0}, {80, 40}, {20, 40}};
    EXPECT_EQ(dragged(axistype::quadrangle, 6, trapezium, {3, 10}),
              (Anchors{{5, 10}, {95, 10}, {80, 40}, {20, 40}}));
    EXPECT_EQ(dragged(axistype::quadrangle, 8, trapezium, {3, 10}),
              (Anchors{{0, 0}, {100, 0}, {75, 50}, {25, 50}}));
}

TEST(AnchorDrag, quadrangleWithParallelLeftAndRightMovesThemParallel)
{
    const Anchors trapezium{{0, 0}, {40, 20}, {40, 80}, {0, 100}};
    EXPECT_EQ(dragged(axistype::quadrangle, 7, trapezium, {10, 3}),
              (Anchors{{0, 0}, {50, 25}, {50, 75}, {0, 100}}));
    EXPECT_EQ(dragged(axistype::quadrangle, 9, trapezium, {10, 3}),
              (Anchors{{10, 5}, {40, 20}, {40, 80}, {10, 95}}));
}

TEST(AnchorDrag, sideOnAFlatFigureKeepsItsMovedFirstEnd)
{
    // All lines are parallel: the first end has been moved by then, the second one not.
    const Anchors flat{{0, 0}, {10, 0}, {20, 0}, {30, 0}};
    EXPECT_EQ(dragged(axistype::parallel, 6, flat, {3, 4}),
              (Anchors{{3, 4}, {10, 0}, {20, 0}, {30, 0}}));
    EXPECT_EQ(dragged(axistype::quadrangle, 7, flat, {3, 4}),
              (Anchors{{0, 0}, {13, 4}, {20, 0}, {30, 0}}));
    EXPECT_EQ(dragged(axistype::parallel, 8, flat, {3, 4}),
              (Anchors{{0, 0}, {10, 0}, {23, 4}, {30, 0}}));
    EXPECT_EQ(dragged(axistype::parallel, 9, flat, {3, 4}),
              (Anchors{{0, 0}, {10, 0}, {20, 0}, {33, 4}}));
}

TEST(AnchorDrag, cornerOnAFlatFigureMovesAlone)
{
    const Anchors flat{{0, 0}, {10, 0}, {20, 0}, {30, 0}};
    EXPECT_EQ(dragged(axistype::parallel, 2, flat, {3, 4}),
              (Anchors{{3, 4}, {10, 0}, {20, 0}, {30, 0}}));
    EXPECT_EQ(dragged(axistype::parallel, 4, flat, {3, 4}),
              (Anchors{{0, 0}, {10, 0}, {23, 4}, {30, 0}}));
}

TEST(AnchorDrag, coincidentAnchorsHaveNoLineToCross)
{
    const Anchors start{{10, 10}, {10, 10}, {110, 60}, {10, 60}};
    EXPECT_EQ(dragged(axistype::parallel, 2, start, {5, 5}),
              (Anchors{{15, 15}, {10, 10}, {110, 60}, {15, 60}}));
    EXPECT_EQ(dragged(axistype::parallel, 6, start, {5, 5}),
              (Anchors{{15, 15}, {10, 10}, {110, 60}, {10, 60}}));
}

TEST(AnchorDrag, endWithoutCrossingKeepsThePlaceOfTheMoveBefore)
{
    const AnchorDrag drag(axistype::quadrangle, 6, quadrangle, press, scale);
    const Anchors before = drag.moved(movedBy({0, 11}), quadrangle);
    expectNear(before.anchor1, {0, 16});
    // Now the bottom points straight up from (160, 0), parallel to the left side.
    const Anchors after = drag.moved(movedBy({110, 11}), before);
    EXPECT_EQ(after.anchor1, before.anchor1);
    expectNear(after.anchor2, {160, -120});
}

TEST(AnchorDrag, sideDraggedOntoItsVanishingPointStays)
{
    const AnchorDrag drag(axistype::quadrangle, 6, quadrangle, press, scale);
    const Anchors before = drag.moved(movedBy({0, 11}), quadrangle);
    EXPECT_EQ(drag.moved(movedBy({110, 0}), before), before);
}

TEST(AnchorDrag, anchorsLeaveThePictureUnclamped)
{
    EXPECT_EQ(dragged(axistype::quadrangle, 2, quadrangle, {-5000, -6000}).anchor1,
              (FloatPoint{-5000, -6000}));
}

TEST(AnchorDrag, displacementIsOfSinglePrecision)
{
    const AnchorDrag drag(axistype::quadrangle, 2, parallelogram, {0, 0}, 3);
    EXPECT_EQ(drag.moved({1, 2}, parallelogram).anchor1,
              (FloatPoint{10.0F + 1.0F / 3.0F, 10.0F + 2.0F / 3.0F}));
}

TEST(AnchorDrag, unknownKindOfAxesDoesNotMove)
{
    EXPECT_EQ(dragged(-1, 2, parallelogram, {5, 5}), parallelogram);
    EXPECT_EQ(dragged(7, 10, parallelogram, {5, 5}), parallelogram);
}

TEST(AnchorDrag, partOfAnotherKindOfAxesDoesNotMove)
{
    EXPECT_EQ(dragged(axistype::parallel, 10, parallelogram, {5, 5}), parallelogram);
    EXPECT_EQ(dragged(axistype::quadrangle, 0, parallelogram, {5, 5}), parallelogram);
    EXPECT_EQ(dragged(axistype::polar, 2, disc, {5, 5}), disc);
}

TEST(AnchorDrag, circleAndCentreMoveCentreAndRadiusEnd)
{
    const Anchors expected{{103, 107}, {153, 107}, {1, 2}, {3, 4}};
    EXPECT_EQ(dragged(axistype::polar, 1, disc, {3, 7}), expected);
    EXPECT_EQ(dragged(axistype::polar, 10, disc, {3, 7}), expected);
}

TEST(AnchorDrag, radiusEndMovesAlone)
{
    EXPECT_EQ(dragged(axistype::polar, 11, disc, {3, 7}),
              (Anchors{{100, 100}, {153, 107}, {1, 2}, {3, 4}}));
}

TEST(AnchorDrag, radiusFollowsTheHandlesAcrossIt)
{
    // The clockwise handle stands at (100, 50), the counter-clockwise one at (100, 150).
    EXPECT_EQ(dragged(axistype::polar, 12, disc, {3, 7}),
              (Anchors{{100, 100}, {143, 103}, {1, 2}, {3, 4}}));
    EXPECT_EQ(dragged(axistype::polar, 13, disc, {3, 7}),
              (Anchors{{100, 100}, {157, 97}, {1, 2}, {3, 4}}));
}

TEST(AnchorDrag, rotationHandleTurnsTheRadiusWithThePointer)
{
    const AnchorDrag drag(axistype::polar, 14, disc, {320, 200}, scale);
    const Anchors quarter = drag.moved({200, 320}, disc);
    expectNear(quarter.anchor2, {100, 150});
    EXPECT_EQ(quarter.anchor1, disc.anchor1);
    EXPECT_EQ(quarter.anchor3, disc.anchor3);
    EXPECT_EQ(quarter.anchor4, disc.anchor4);
    expectNear(drag.moved({200, 80}, disc).anchor2, {100, 50});
}

TEST(AnchorDrag, oppositeRotationHandleTurnsTheSameWay)
{
    const AnchorDrag drag(axistype::polar, 15, disc, {80, 200}, scale);
    expectNear(drag.moved({200, 80}, disc).anchor2, {100, 150});
    expectNear(drag.moved({200, 320}, disc).anchor2, {100, 50});
}

TEST(AnchorDrag, rotationIsTheChangeOfTheAngle)
{
    // Pressed beside the middle of the handle: the radius does not jump to the pointer.
    const AnchorDrag drag(axistype::polar, 14, disc, {322, 206}, scale);
    expectNear(drag.moved({322, 206}, disc).anchor2, disc.anchor2);
    // A quarter turn of the start vector (61, 3) is (-3, 61).
    expectNear(drag.moved({194, 322}, disc).anchor2, {100, 150});
}

TEST(AnchorDrag, rotationKeepsTheLengthOfTheRadius)
{
    const AnchorDrag drag(axistype::polar, 14, disc, {320, 200}, scale);
    for (const FloatPoint mouse : {FloatPoint{210, 230}, FloatPoint{900, -40}, FloatPoint{1, 2}}) {
        const Anchors a = drag.moved(mouse, disc);
        EXPECT_NEAR(std::hypot(a.anchor2.x - a.anchor1.x, a.anchor2.y - a.anchor1.y), 50, 1e-4);
    }
}

TEST(AnchorDrag, pointerOnTheCentreDoesNotTurnTheRadius)
{
    const AnchorDrag drag(axistype::polar, 14, disc, {320, 200}, scale);
    EXPECT_EQ(drag.moved({200, 200}, disc), disc);
}

TEST(AnchorDrag, sizeHandlesChangeTheRadiusByTheChangeOfTheDistance)
{
    for (const int part : {16, 17}) {
        // Pressed at a distance of 52, two outside the circle.
        const AnchorDrag drag(axistype::polar, part, disc, {200, 96}, scale);
        EXPECT_EQ(drag.moved({200, 96}, disc).anchor2, (FloatPoint{150, 100}));
        EXPECT_EQ(drag.moved({200, 76}, disc).anchor2, (FloatPoint{160, 100}));
        EXPECT_EQ(drag.moved({200, 116}, disc).anchor2, (FloatPoint{140, 100}));
    }
}

TEST(AnchorDrag, sizeDragKeepsTheDirectionOfTheRadius)
{
    const Anchors slanted{{100, 100}, {130, 140}, {}, {}};
    const AnchorDrag drag(axistype::polar, 16, slanted, {300, 200}, scale);
    for (const FloatPoint mouse :
         {FloatPoint{200, 360}, FloatPoint{110, 200}, FloatPoint{260, 190}}) {
        const Anchors a = drag.moved(mouse, slanted);
        EXPECT_NEAR((a.anchor2.x - 100) * 4, (a.anchor2.y - 100) * 3, 1e-3);
        EXPECT_GT(a.anchor2.x, 100);
    }
}

TEST(AnchorDrag, sizeHandleDraggedThroughTheCentreDoesNotFlipTheRadius)
{
    // From a distance of 53 to none: the radius of 50 becomes 3, not minus 3.
    const AnchorDrag drag(axistype::polar, 16, disc, {200, 94}, scale);
    expectNear(drag.moved({200, 200}, disc).anchor2, {103, 100});
}
