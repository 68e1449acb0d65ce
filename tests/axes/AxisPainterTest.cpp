#include "axes/AxisPainter.h"

#include "axes/DrawingRecorder.h"
#include "support/StartingLineStyle.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPainter>

#include <cstddef>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <utility>

namespace {

constexpr int canvasSize = 200;
constexpr float anchorSize = 10;
constexpr DeviceColor red{1, 0, 0, 1};

const QColor white(255, 255, 255);
const QColor solid(255, 0, 0);

/// A tenth of red over white.
const QColor shaded(255, 230, 230);

AnchorLayout frameLayout()
{
    return anchorlayout::make(axistype::parallel, {{40, 40}, {160, 40}, {160, 160}, {40, 160}},
                              {1, {canvasSize, canvasSize}, anchorSize});
}

/// Centre (100, 100), radius 50 to the right.
AnchorLayout discLayout()
{
    return anchorlayout::make(axistype::polar, {{100, 100}, {150, 100}, {}, {}},
                              {1, {canvasSize, canvasSize}, anchorSize});
}

/// A white canvas on which the axes were drawn in view coordinates, y upwards.
class Canvas
{
public:
    Canvas(int axisType, const AnchorLayout &layout, const axispainter::Style &style)
        : m_image(canvasSize, canvasSize, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        painter.translate(0, canvasSize);
        painter.scale(1, -1);
        axispainter::draw(painter, axisType, layout, style);
    }

    /// The pixel whose lower left corner is the view point (x, y).
    [[nodiscard]] QColor at(int x, int y) const
    {
        return m_image.pixelColor(x, canvasSize - 1 - y);
    }

    [[nodiscard]] bool isNear(int x, int y, const QColor &expected) const
    {
        const QColor actual = at(x, y);
        return std::abs(actual.red() - expected.red()) <= 2 &&
               std::abs(actual.green() - expected.green()) <= 2 &&
               std::abs(actual.blue() - expected.blue()) <= 2;
    }

private:
    QImage m_image;
};

} // namespace

TEST(AxisPainter, linesRunAcrossThePicture)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red, 2});
    for (const auto &[x, y] : {std::pair{5, 40}, std::pair{195, 39}, std::pair{5, 160},
                               std::pair{40, 5}, std::pair{159, 195}, std::pair{80, 40}})
        EXPECT_EQ(canvas.at(x, y), solid) << x << " " << y;
}

TEST(AxisPainter, linesHaveTheAxisThickness)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red, 4});
    EXPECT_EQ(canvas.at(20, 37), white);
    EXPECT_EQ(canvas.at(20, 38), solid);
    EXPECT_EQ(canvas.at(20, 41), solid);
    EXPECT_EQ(canvas.at(20, 42), white);
}

TEST(AxisPainter, onlyTheOriginSquareIsSolid)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red, 2});
    EXPECT_EQ(canvas.at(37, 37), solid);
    EXPECT_EQ(canvas.at(162, 37), white);
    EXPECT_EQ(canvas.at(162, 162), white);
    EXPECT_EQ(canvas.at(37, 162), white);
    EXPECT_EQ(canvas.at(165, 37), solid);
}

TEST(AxisPainter, sideHandlesAreRoundDots)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red, 2});
    EXPECT_EQ(canvas.at(100, 43), solid);
    EXPECT_EQ(canvas.at(100, 36), solid);
    EXPECT_EQ(canvas.at(104, 35), white);
    EXPECT_TRUE(canvas.isNear(104, 44, shaded));
}

TEST(AxisPainter, areaIsShadedByATenth)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red, 2});
    EXPECT_TRUE(canvas.isNear(70, 70, shaded));
    EXPECT_EQ(canvas.at(20, 70), white);
    EXPECT_EQ(canvas.at(70, 180), white);
}

TEST(AxisPainter, shadingIgnoresTheAlphaOfTheColour)
{
    const Canvas transparent(axistype::parallel, frameLayout(), {red.withAlpha(0), 2});
    EXPECT_TRUE(transparent.isNear(70, 70, shaded));
    EXPECT_EQ(transparent.at(5, 40), white);
}

TEST(AxisPainter, linesKeepTheAlphaOfTheColour)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red.withAlpha(0.5F), 2});
    EXPECT_TRUE(canvas.isNear(5, 40, QColor(255, 127, 127)));
}

TEST(AxisPainter, circleIsStrokedAndShaded)
{
    const Canvas canvas(axistype::polar, discLayout(), {red, 4});
    EXPECT_TRUE(canvas.isNear(75, 110, shaded));
    EXPECT_EQ(canvas.at(50, 120), white);
    // On the circle at (60, 130).
    EXPECT_EQ(canvas.at(60, 130), solid);
    EXPECT_EQ(canvas.at(60, 69), solid);
}

TEST(AxisPainter, centreAndRadiusEndAreSolid)
{
    const Canvas canvas(axistype::polar, discLayout(), {red, 1});
    EXPECT_EQ(canvas.at(97, 97), solid);
    EXPECT_EQ(canvas.at(153, 97), solid);
    EXPECT_EQ(canvas.at(97, 153), white);
}

TEST(AxisPainter, diameterEndsAtItsHandlesAndTheRadiusAtThePicture)
{
    const Canvas canvas(axistype::polar, discLayout(), {red, 2});
    EXPECT_EQ(canvas.at(100, 60), solid);
    EXPECT_EQ(canvas.at(100, 140), solid);
    EXPECT_EQ(canvas.at(100, 20), white);
    EXPECT_EQ(canvas.at(100, 180), white);
    EXPECT_EQ(canvas.at(5, 100), solid);
    EXPECT_EQ(canvas.at(195, 100), solid);
}

TEST(AxisPainter, cornersOfSquaresAreMitred)
{
    const Canvas canvas(axistype::parallel, frameLayout(), {red, 6});
    EXPECT_EQ(canvas.at(167, 32), solid);
    EXPECT_EQ(canvas.at(168, 32), white);
}

TEST(AxisPainter, bothHalvesOfATwistedAreaAreShaded)
{
    const AnchorLayout twisted =
        anchorlayout::make(axistype::quadrangle, {{40, 40}, {160, 40}, {40, 160}, {160, 160}},
                           {1, {canvasSize, canvasSize}, anchorSize});
    const Canvas canvas(axistype::quadrangle, twisted, {red, 1});
    EXPECT_TRUE(canvas.isNear(90, 60, shaded));
    EXPECT_TRUE(canvas.isNear(90, 140, shaded));
    EXPECT_EQ(canvas.at(50, 100), white);
}

TEST(AxisPainter, drawsSquaresDotsSolidSquaresLinesAndShadingInThatOrder)
{
    DrawingRecorder sheet;
    QPainter painter(&sheet);
    axispainter::draw(painter, axistype::parallel, frameLayout(), {red, 2});
    painter.end();
    std::string order;
    for (const DrawnShape &shape : sheet.shapes())
        order += shape.kind + ' ';
    EXPECT_EQ(order, "rect rect rect rect ellipse ellipse ellipse ellipse rect "
                     "line line line line path ");
    ASSERT_EQ(sheet.shapes().size(), 14U);
    EXPECT_EQ(sheet.shapes()[0].brush.style(), Qt::NoBrush);
    EXPECT_EQ(sheet.shapes()[4].pen.style(), Qt::NoPen);
    EXPECT_EQ(sheet.shapes()[8].pen.style(), Qt::NoPen);
    EXPECT_EQ(sheet.shapes()[13].pen.style(), Qt::NoPen);
}

TEST(AxisPainter, drawsPolarAxesInTheirOrder)
{
    DrawingRecorder sheet;
    QPainter painter(&sheet);
    axispainter::draw(painter, axistype::polar, discLayout(), {red, 2});
    painter.end();
    std::string order;
    for (const DrawnShape &shape : sheet.shapes())
        order += shape.kind + ' ';
    EXPECT_EQ(order, "rect rect rect rect ellipse ellipse ellipse ellipse rect rect "
                     "path line line path ");
    ASSERT_EQ(sheet.shapes().size(), 14U);
    EXPECT_EQ(sheet.shapes()[10].brush.style(), Qt::NoBrush);
    EXPECT_NEAR(sheet.shapes()[13].brush.color().alphaF(), 0.1, 1e-4);
}

TEST(AxisPainter, linesAndOutlinesHaveButtCapsAndMitredJoins)
{
    DrawingRecorder sheet;
    QPainter painter(&sheet);
    axispainter::draw(painter, axistype::polar, discLayout(), {red, 3});
    painter.end();
    ASSERT_EQ(sheet.shapes().size(), 14U);
    for (const std::size_t stroked : {0U, 3U, 10U, 11U, 12U}) {
        const QPen &pen = sheet.shapes()[stroked].pen;
        EXPECT_EQ(pen.capStyle(), Qt::FlatCap) << stroked;
        EXPECT_EQ(pen.joinStyle(), Qt::MiterJoin) << stroked;
        EXPECT_EQ(pen.widthF(), 3) << stroked;
        EXPECT_FALSE(pen.isCosmetic()) << stroked;
    }
}

TEST(AxisPainter, linesFollowTheDefaultThatTheDrawingOfSeriesLeaves)
{
    const StartingLineStyle before;
    defaultlinestyle::setCapStyle(Qt::RoundCap);
    defaultlinestyle::setJoinStyle(Qt::RoundJoin);
    DrawingRecorder sheet;
    QPainter painter(&sheet);
    axispainter::draw(painter, axistype::polar, discLayout(), {red, 3});
    painter.end();
    const StartingLineStyle after;
    ASSERT_FALSE(sheet.shapes().empty());
    EXPECT_EQ(sheet.shapes().front().pen.capStyle(), Qt::RoundCap);
    EXPECT_EQ(sheet.shapes().front().pen.joinStyle(), Qt::RoundJoin);
}

TEST(AxisPainter, segmentsThatAreMissingAreSkipped)
{
    AnchorLayout layout = frameLayout();
    layout.axisLineSegment1.reset();
    layout.axisLineSegment3.reset();
    const Canvas canvas(axistype::parallel, layout, {red, 2});
    EXPECT_EQ(canvas.at(5, 40), white);
    EXPECT_EQ(canvas.at(5, 160), solid);
    EXPECT_EQ(canvas.at(40, 5), solid);
    EXPECT_EQ(canvas.at(160, 5), white);
}

TEST(AxisPainter, segmentsThreeAndFourAreNeverDrawnForPolarAxes)
{
    AnchorLayout layout = discLayout();
    layout.axisLineSegment3 = ZKLineSegment::lineWithNSPointA({10, 10}, {30, 10});
    layout.axisLineSegment4 = ZKLineSegment::lineWithNSPointA({10, 20}, {30, 20});
    const Canvas canvas(axistype::polar, layout, {red, 2});
    EXPECT_EQ(canvas.at(20, 10), white);
    EXPECT_EQ(canvas.at(20, 20), white);
}

TEST(AxisPainter, painterIsLeftAsItWas)
{
    QImage image(canvasSize, canvasSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QPen pen(Qt::blue, 7, Qt::DotLine);
    painter.setPen(pen);
    painter.setBrush(Qt::yellow);
    painter.setRenderHint(QPainter::Antialiasing, false);
    axispainter::draw(painter, axistype::parallel, frameLayout(), {red, 2});
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), QBrush(Qt::yellow));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}
