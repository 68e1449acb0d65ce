#include "capture/MarkerDrawing.h"

#include "capture/PointList.h"
#include "capture/RasterPlot.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "geometry/ZKVector.h"
#include "support/StartingLineStyle.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

using Points = std::vector<ZKVector>;
using Converter = std::shared_ptr<const ZKConvCoordinate>;

constexpr int side = 60;

/// Graph values are picture pixels times `unit`.
Converter plainAxes(double unit = 1)
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {10, 0}, 0, 10 * unit, false,
                                                        {0, 0}, {0, 10}, 0, 10 * unit, false);
}

ZKVector at(double x, double y) { return ZKVector::vectorWithX(x, y); }

PlotStyle style(int shape)
{
    return {.color = {1, 0, 0, 1}, .size = 10, .thickness = 2, .shape = shape};
}

QImage emptyCanvas(qreal devicePixelRatio = 1)
{
    const int pixels = qRound(side * devicePixelRatio);
    QImage canvas(pixels, pixels, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(devicePixelRatio);
    canvas.fill(Qt::white);
    return canvas;
}

/// A painter in view coordinates.
void turnUp(QPainter &painter)
{
    painter.translate(0, side);
    painter.scale(1, -1);
}

QImage drawn(const Points &points, const PlotStyle &prefs, int mode, float scale = 1)
{
    QImage canvas = emptyCanvas();
    QPainter painter(&canvas);
    turnUp(painter);
    markerdrawing::drawData(painter, points, plainAxes(), scale, prefs, mode);
    return canvas;
}

/// The pixel to the right of and above (x, y).
QRgb colorAt(const QImage &canvas, int x, int y)
{
    return canvas.pixel(x, canvas.height() - 1 - y);
}

bool isBlank(const QImage &canvas) { return canvas == emptyCanvas(canvas.devicePixelRatio()); }

constexpr QRgb red = qRgb(255, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);

} // namespace

TEST(MarkerDrawing, shape0IsAFilledSquareWithItsOutline)
{
    const QImage canvas = drawn({at(30, 20)}, style(0), 0);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 26, 16), red);
    EXPECT_EQ(colorAt(canvas, 24, 20), red); // the outer half of the outline
    EXPECT_EQ(colorAt(canvas, 35, 20), red);
    EXPECT_EQ(colorAt(canvas, 23, 20), white);
    EXPECT_EQ(colorAt(canvas, 36, 20), white);
}

TEST(MarkerDrawing, shape1IsTheOutlineOfASquare)
{
    const QImage canvas = drawn({at(30, 20)}, style(1), 0);
    EXPECT_EQ(colorAt(canvas, 30, 20), white);
    EXPECT_EQ(colorAt(canvas, 26, 20), white);
    EXPECT_EQ(colorAt(canvas, 25, 20), red);
    EXPECT_EQ(colorAt(canvas, 24, 20), red);
    EXPECT_EQ(colorAt(canvas, 25, 15), red);
}

TEST(MarkerDrawing, shape2IsAFilledCircleWithItsOutline)
{
    const QImage canvas = drawn({at(30, 20)}, style(2), 0);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 25, 20), red);
    EXPECT_NE(colorAt(canvas, 25, 15), red); // outside the circle, inside the square
}

TEST(MarkerDrawing, shape3IsTheOutlineOfACircle)
{
    const QImage canvas = drawn({at(30, 20)}, style(3), 0);
    EXPECT_EQ(colorAt(canvas, 30, 20), white);
    EXPECT_EQ(colorAt(canvas, 25, 20), red);
    EXPECT_EQ(colorAt(canvas, 30, 24), red);
}

TEST(MarkerDrawing, filledShapesAreFilledFirstAndOutlinedThen)
{
    PlotStyle translucent = style(0);
    translucent.color.alpha = 0.5F;
    const QImage canvas = drawn({at(30, 20)}, translucent, 0);
    const int filledOnce = qGreen(colorAt(canvas, 30, 20));
    const int filledAndOutlined = qGreen(colorAt(canvas, 25, 20));
    EXPECT_NEAR(filledOnce, 127, 2);
    EXPECT_NEAR(filledAndOutlined, 64, 2);
    EXPECT_NEAR(qGreen(colorAt(canvas, 24, 20)), 127, 2);
}

TEST(MarkerDrawing, outlinesHaveRoundJoins)
{
    PlotStyle thick = style(1);
    thick.thickness = 5;
    const QImage canvas = drawn({at(30, 30)}, thick, 0);
    EXPECT_EQ(colorAt(canvas, 30, 36), red);
    EXPECT_NE(colorAt(canvas, 36, 36), red); // the corner is rounded off
}

TEST(MarkerDrawing, leavesRoundCapsAndJoinsAsTheDefault)
{
    const StartingLineStyle atStart;
    static_cast<void>(drawn({at(30, 30)}, style(1), 0));
    EXPECT_EQ(defaultlinestyle::capStyle(), Qt::RoundCap);
    EXPECT_EQ(defaultlinestyle::joinStyle(), Qt::RoundJoin);
}

TEST(MarkerDrawing, anUnknownShapeDrawsNoMarker)
{
    for (const int shape : {-1, 4, 7, 1000})
        EXPECT_TRUE(isBlank(drawn({at(30, 20)}, style(shape), 0)));
}

TEST(MarkerDrawing, anUnknownShapeStillHasItsLine)
{
    const QImage canvas = drawn({at(10, 20), at(50, 20)}, style(7), 1);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 10, 24), white);
}

TEST(MarkerDrawing, mode0DrawsNoLine)
{
    const QImage canvas = drawn({at(10, 20), at(50, 20)}, style(0), 0);
    EXPECT_EQ(colorAt(canvas, 10, 20), red);
    EXPECT_EQ(colorAt(canvas, 30, 20), white);
}

TEST(MarkerDrawing, mode1DrawsMarkersAndTheLine)
{
    const QImage canvas = drawn({at(10, 20), at(50, 20)}, style(0), 1);
    EXPECT_EQ(colorAt(canvas, 10, 24), red);
    EXPECT_EQ(colorAt(canvas, 50, 24), red);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 30, 19), red);
    EXPECT_EQ(colorAt(canvas, 30, 21), white);
}

TEST(MarkerDrawing, mode2DrawsTheLineOnly)
{
    const QImage canvas = drawn({at(10, 20), at(50, 20)}, style(0), 2);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 10, 24), white);
    EXPECT_EQ(colorAt(canvas, 50, 16), white);
}

TEST(MarkerDrawing, theLineFollowsTheOrderOfThePoints)
{
    const QImage canvas = drawn({at(10, 10), at(50, 50), at(50, 10)}, style(0), 2);
    EXPECT_EQ(colorAt(canvas, 30, 30), red);
    EXPECT_EQ(colorAt(canvas, 50, 30), red);
    EXPECT_EQ(colorAt(canvas, 30, 10), white); // not closed
}

TEST(MarkerDrawing, theLineHasRoundEnds)
{
    PlotStyle thick = style(0);
    thick.thickness = 8;
    const QImage canvas = drawn({at(20, 30), at(40, 30)}, thick, 2);
    EXPECT_EQ(colorAt(canvas, 18, 30), red);
    EXPECT_EQ(colorAt(canvas, 41, 29), red);
    EXPECT_NE(colorAt(canvas, 16, 33), red); // a square end would reach here
    EXPECT_EQ(colorAt(canvas, 15, 30), white);
}

TEST(MarkerDrawing, onePointHasNoLine)
{
    EXPECT_TRUE(isBlank(drawn({at(30, 20)}, style(0), 2)));
    const QImage canvas = drawn({at(30, 20)}, style(1), 1);
    EXPECT_EQ(colorAt(canvas, 25, 20), red);
    EXPECT_EQ(colorAt(canvas, 30, 20), white);
}

TEST(MarkerDrawing, theScaleMovesMarkersAndLeavesTheirSize)
{
    const QImage canvas = drawn({at(15, 10)}, style(0), 0, 2);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 24, 20), red);
    EXPECT_EQ(colorAt(canvas, 35, 20), red);
    EXPECT_EQ(colorAt(canvas, 23, 20), white);
    EXPECT_EQ(colorAt(canvas, 36, 20), white);
    EXPECT_EQ(colorAt(canvas, 15, 10), white);
}

TEST(MarkerDrawing, placesCountToFractionsOfAPixel)
{
    const QImage canvas = drawn({at(30.5, 20.5)}, style(0), 0);
    EXPECT_EQ(colorAt(canvas, 35, 20), red);
    EXPECT_NEAR(qGreen(colorAt(canvas, 36, 20)), 127, 8);
    EXPECT_NEAR(qGreen(colorAt(canvas, 24, 20)), 127, 8);
}

TEST(MarkerDrawing, highResolutionScreensKeepThePlacesAndSizes)
{
    QImage canvas = emptyCanvas(2);
    QPainter painter(&canvas);
    turnUp(painter);
    markerdrawing::drawData(painter, {at(15, 20), at(45, 20)}, plainAxes(), 1, style(0), 1);
    painter.end();
    EXPECT_EQ(colorAt(canvas, 30, 40), red);
    EXPECT_EQ(colorAt(canvas, 18, 40), red); // 15 - 5 - 1, doubled
    EXPECT_EQ(colorAt(canvas, 17, 40), white);
    EXPECT_EQ(colorAt(canvas, 60, 41), red);
    EXPECT_EQ(colorAt(canvas, 60, 38), red);
    EXPECT_EQ(colorAt(canvas, 60, 42), white);
}

TEST(MarkerDrawing, surfacesThatKeepShapesGetTheSamePicture)
{
    QPicture shapes;
    {
        QPainter painter(&shapes);
        turnUp(painter);
        markerdrawing::drawData(painter, {at(10, 20), at(50, 20)}, plainAxes(), 1, style(3), 1);
        markerdrawing::drawData(painter, {at(30, 45)}, plainAxes(), 1, style(0), 0);
    }
    QImage canvas = emptyCanvas();
    {
        QPainter painter(&canvas);
        painter.drawPicture(0, 0, shapes);
    }
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 10, 24), red);
    EXPECT_EQ(colorAt(canvas, 10, 22), white);
    EXPECT_EQ(colorAt(canvas, 30, 45), red);
    EXPECT_EQ(colorAt(canvas, 24, 45), red);
    EXPECT_EQ(colorAt(canvas, 23, 45), white);
}

TEST(MarkerDrawing, slantedPaintersAreFollowed)
{
    QImage canvas = emptyCanvas();
    QPainter painter(&canvas);
    painter.rotate(90); // (x, y) goes to (-y, x)
    markerdrawing::drawData(painter, {at(20, -30)}, plainAxes(), 1, style(0), 0);
    painter.end();
    EXPECT_EQ(canvas.pixel(30, 20), red);
    EXPECT_EQ(canvas.pixel(30, 26), white);
}

TEST(MarkerDrawing, nothingIsDrawnOutsideTheClip)
{
    QImage canvas = emptyCanvas();
    QPainter painter(&canvas);
    turnUp(painter);
    painter.setClipRect(0, 0, 30, side);
    markerdrawing::drawData(painter, {at(30, 20), at(50, 20)}, plainAxes(), 1, style(0), 1);
    painter.end();
    EXPECT_EQ(colorAt(canvas, 29, 20), red);
    EXPECT_EQ(colorAt(canvas, 30, 20), white);
    EXPECT_EQ(colorAt(canvas, 40, 20), white);
}

TEST(MarkerDrawing, markersReachIntoTheClipFromOutside)
{
    const QImage canvas = drawn({at(-4, 20), at(63, 64)}, style(0), 0);
    EXPECT_EQ(colorAt(canvas, 0, 20), red);
    EXPECT_EQ(colorAt(canvas, 59, 59), red);
}

TEST(MarkerDrawing, pointsFarOutsideKeepTheLineThroughTheView)
{
    const QImage canvas = drawn({at(-1e9, 30), at(1e9, 30)}, style(0), 1);
    EXPECT_EQ(colorAt(canvas, 0, 30), red);
    EXPECT_EQ(colorAt(canvas, 59, 30), red);
    EXPECT_EQ(colorAt(canvas, 30, 33), white);
}

TEST(MarkerDrawing, pointsWithoutAPlaceAreLeftOut)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const QImage canvas =
        drawn({at(10, 20), at(nan, 20), at(infinite, 30), at(50, 20)}, style(0), 1);
    EXPECT_EQ(colorAt(canvas, 10, 20), red);
    EXPECT_EQ(colorAt(canvas, 30, 20), red);
    EXPECT_EQ(colorAt(canvas, 50, 20), red);
}

TEST(MarkerDrawing, aTranslucentLineIsNotDarkerWhereItTurnsOrCrosses)
{
    PlotStyle translucent = style(0);
    translucent.color.alpha = 0.5F;
    translucent.thickness = 4;
    const QImage canvas =
        drawn({at(10, 10), at(50, 10), at(50, 50), at(30, 50), at(30, 0)}, translucent, 2);
    const QRgb once = colorAt(canvas, 20, 10);
    EXPECT_NEAR(qGreen(once), 127, 2);
    EXPECT_EQ(colorAt(canvas, 50, 10), once);
    EXPECT_EQ(colorAt(canvas, 30, 10), once);
}

TEST(MarkerDrawing, withoutConverterNothingIsDrawn)
{
    QImage canvas = emptyCanvas();
    QPainter painter(&canvas);
    markerdrawing::drawData(painter, {at(30, 20)}, nullptr, 1, style(0), 1);
    painter.end();
    EXPECT_TRUE(isBlank(canvas));
}

TEST(MarkerDrawing, thePainterComesBackAsItWas)
{
    QImage canvas = emptyCanvas();
    QPainter painter(&canvas);
    turnUp(painter);
    painter.setPen(QPen(Qt::blue, 7));
    painter.setBrush(Qt::green);
    const QTransform transform = painter.worldTransform();
    markerdrawing::drawData(painter, {at(10, 20), at(50, 20)}, plainAxes(), 1, style(0), 1);
    EXPECT_EQ(painter.worldTransform(), transform);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::blue));
    EXPECT_EQ(painter.pen().width(), 7);
    EXPECT_EQ(painter.brush().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

// --- All series

namespace {

class TenSeries final : public MarkerSource
{
public:
    TenSeries() { converters.fill(plainAxes()); }
    [[nodiscard]] const PointList &list(int series) const override
    {
        return lists.at(static_cast<std::size_t>(series));
    }
    [[nodiscard]] Converter converterOf(int series) const override
    {
        return converters.at(static_cast<std::size_t>(series));
    }
    [[nodiscard]] int markerDrawOf(int series) const override
    {
        return modes.at(static_cast<std::size_t>(series));
    }

    std::array<PointList, 10> lists;
    std::array<Converter, 10> converters;
    std::array<int, 10> modes{};
};

/// Series i is drawn with i / 10 of red.
class GradedPrefs final : public CapturePrefs
{
public:
    [[nodiscard]] bool copyWithTitle() const override { return false; }
    [[nodiscard]] bool saveWithTitle() const override { return false; }
    [[nodiscard]] PlotStyle plotPrefsForSeries(int series) const override
    {
        PlotStyle plot = style(0);
        plot.color = {static_cast<float>(series) / 10.0F, 0, 0, 1};
        return plot;
    }
    [[nodiscard]] DeviceColor guideColor() const override { return {}; }
    [[nodiscard]] float guideThick() const override { return 1; }
    [[nodiscard]] float axisThick() const override { return 1; }

    static QRgb colorOf(int series)
    {
        return DeviceColor{static_cast<float>(series) / 10.0F, 0, 0, 1}.screenColor().rgb();
    }
};

QImage drawn(const TenSeries &source, float scale = 1)
{
    QImage canvas = emptyCanvas();
    QPainter painter(&canvas);
    turnUp(painter);
    markerdrawing::drawDataMarkersWithScale(painter, scale, source, GradedPrefs());
    return canvas;
}

} // namespace

TEST(MarkerDrawingOfAllSeries, drawsLaterSeriesOverEarlierOnes)
{
    TenSeries source;
    source.lists[9] = PointList({at(30, 30)});
    source.lists[2] = PointList({at(30, 30), at(10, 10)});
    const QImage canvas = drawn(source);
    EXPECT_EQ(colorAt(canvas, 30, 30), GradedPrefs::colorOf(9));
    EXPECT_EQ(colorAt(canvas, 10, 10), GradedPrefs::colorOf(2));
}

TEST(MarkerDrawingOfAllSeries, drawsEachWithItsOwnConverter)
{
    TenSeries source;
    source.lists[1] = PointList({at(20, 20)});
    source.lists[4] = PointList({at(20, 20)});
    source.converters[4] = plainAxes(0.5); // 20 is at pixel 40
    const QImage canvas = drawn(source);
    EXPECT_EQ(colorAt(canvas, 20, 20), GradedPrefs::colorOf(1));
    EXPECT_EQ(colorAt(canvas, 40, 40), GradedPrefs::colorOf(4));
}

TEST(MarkerDrawingOfAllSeries, drawsEachInItsOwnMode)
{
    TenSeries source;
    source.lists[0] = PointList({at(10, 10), at(50, 10)});
    source.lists[5] = PointList({at(10, 50), at(50, 50)});
    source.modes[5] = 2;
    const QImage canvas = drawn(source);
    EXPECT_EQ(colorAt(canvas, 30, 10), white);
    EXPECT_EQ(colorAt(canvas, 10, 14), GradedPrefs::colorOf(0));
    EXPECT_EQ(colorAt(canvas, 30, 50), GradedPrefs::colorOf(5));
    EXPECT_EQ(colorAt(canvas, 10, 54), white);
}

TEST(MarkerDrawingOfAllSeries, drawsAllAtTheScale)
{
    TenSeries source;
    source.lists[3] = PointList({at(20, 20)});
    EXPECT_EQ(colorAt(drawn(source, 0.5F), 10, 10), GradedPrefs::colorOf(3));
}

// --- The parts of a line that can be seen

namespace {

const QRectF window(0, 0, 100, 100);

std::vector<QPolygonF> parts(const std::vector<QPointF> &points)
{
    return RasterPlot::visibleParts(points, window);
}

} // namespace

TEST(RasterPlotVisibleParts, ofALineInsideAreTheLine)
{
    const auto visible = parts({{10, 10}, {20, 20}, {30, 10}});
    ASSERT_EQ(visible.size(), 1U);
    EXPECT_EQ(visible[0].size(), 3);
}

TEST(RasterPlotVisibleParts, ofALineOutsideAreNone)
{
    EXPECT_TRUE(parts({{-10, 10}, {-10, 90}, {-50, 200}, {20, 120}}).empty());
}

TEST(RasterPlotVisibleParts, endWhereTheLineLeaves)
{
    const auto visible = parts({{50, 50}, {150, 50}, {150, 80}, {50, 80}});
    ASSERT_EQ(visible.size(), 2U);
    EXPECT_DOUBLE_EQ(visible[0].back().x(), 100);
    EXPECT_DOUBLE_EQ(visible[1].front().x(), 100);
    EXPECT_DOUBLE_EQ(visible[1].front().y(), 80);
    EXPECT_DOUBLE_EQ(visible[1].back().x(), 50);
}

TEST(RasterPlotVisibleParts, ofALineAcrossAreItsMiddle)
{
    const auto visible = parts({{-100, -100}, {200, 200}});
    ASSERT_EQ(visible.size(), 1U);
    EXPECT_NEAR(visible[0].front().x(), 0, 1e-9);
    EXPECT_NEAR(visible[0].back().y(), 100, 1e-9);
}

TEST(RasterPlotVisibleParts, ofOnePointAreNone) { EXPECT_TRUE(parts({{10, 10}}).empty()); }

// --- The points of a line that make a difference

namespace {

double distanceFromStep(QPointF p, QPointF a, QPointF b)
{
    const QPointF step = b - a;
    const double squared = QPointF::dotProduct(step, step);
    const double t = squared > 0 ? QPointF::dotProduct(p - a, step) / squared : 0;
    const QPointF away = p - (a + step * std::min(1.0, std::max(0.0, t)));
    return std::hypot(away.x(), away.y());
}

/// The farthest that any of the points lies from the line.
double farthestFrom(const std::vector<QPointF> &line, const std::vector<QPointF> &points)
{
    double farthest = 0;
    for (const QPointF &point : points) {
        double nearest = std::numeric_limits<double>::infinity();
        for (std::size_t i = 1; i < line.size(); ++i)
            nearest = std::min(nearest, distanceFromStep(point, line[i - 1], line[i]));
        farthest = std::max(farthest, nearest);
    }
    return farthest;
}

} // namespace

TEST(RasterPlotThinned, aStraightCrowdIsItsEnds)
{
    std::vector<QPointF> crowd;
    for (int i = 0; i <= 1000; ++i)
        crowd.emplace_back(10 + i * 0.01, 50 + i * 0.02);
    const std::vector<QPointF> line = RasterPlot::thinned(crowd);
    ASSERT_EQ(line.size(), 2U);
    EXPECT_DOUBLE_EQ(line[0].x(), 10);
    EXPECT_DOUBLE_EQ(line[1].x(), 20);
}

TEST(RasterPlotThinned, aCurveKeepsItsShapeWithFewPoints)
{
    std::vector<QPointF> curve;
    for (int i = 0; i <= 4000; ++i)
        curve.emplace_back(i * 0.1, 150 + 100 * std::sin(i * 0.01));
    const std::vector<QPointF> line = RasterPlot::thinned(curve);
    EXPECT_LT(line.size(), 300U);
    EXPECT_LE(farthestFrom(line, curve), 0.125 + 1e-9);
}

TEST(RasterPlotThinned, aLineThatTurnsBackKeepsItsTip)
{
    const std::vector<QPointF> line = RasterPlot::thinned({{0, 0}, {10, 0}, {5, 0}});
    ASSERT_EQ(line.size(), 3U);
    EXPECT_DOUBLE_EQ(line[1].x(), 10);
}

TEST(RasterPlotThinned, aZigzagKeepsAllItsCorners)
{
    std::vector<QPointF> zigzag;
    for (int i = 0; i < 100; ++i)
        zigzag.emplace_back(i, i % 2);
    EXPECT_EQ(RasterPlot::thinned(zigzag).size(), 100U);
}

TEST(RasterPlotThinned, pointsAtOnePlaceKeepTheirEnds)
{
    EXPECT_EQ(RasterPlot::thinned({{5, 5}, {5, 5}, {5, 5}, {5, 5}}).size(), 2U);
    EXPECT_EQ(RasterPlot::thinned({{5, 5}}).size(), 1U);
    EXPECT_TRUE(RasterPlot::thinned({}).empty());
}

TEST(MarkerDrawing, pointsAtOnePlaceLeaveADotOfTheLine)
{
    const QImage canvas = drawn({at(30, 20), at(30, 20)}, style(0), 2);
    EXPECT_EQ(colorAt(canvas, 30, 25), white);
    EXPECT_NE(colorAt(canvas, 30, 20), white);
}

// --- The swatch

TEST(MarkerSwatch, showsTheMarkerInItsMiddle)
{
    const QImage swatch = markerdrawing::swatch(style(0), 20, 1).toImage();
    EXPECT_EQ(swatch.size(), QSize(20, 20));
    EXPECT_EQ(swatch.pixel(10, 10), red);
    EXPECT_EQ(swatch.pixelColor(1, 1).alpha(), 0);
}

TEST(MarkerSwatch, drawsALargeMarkerSmaller)
{
    PlotStyle large = style(1);
    large.size = 15;
    const QImage swatch = markerdrawing::swatch(large, 12, 1).toImage();
    EXPECT_EQ(swatch.pixel(6, 0), red);
    EXPECT_EQ(swatch.pixelColor(6, 6).alpha(), 0);
}

TEST(MarkerSwatch, hasAllPixelsOfTheScreen)
{
    const QPixmap swatch = markerdrawing::swatch(style(0), 13, 2);
    EXPECT_EQ(swatch.width(), 26);
    EXPECT_EQ(swatch.devicePixelRatio(), 2);
}
