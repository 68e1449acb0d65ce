#include "capture/MarkerLayer.h"

#include "conversion/ZKConvCoordinateAffine.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>

namespace {

using Converter = std::shared_ptr<const ZKConvCoordinate>;

constexpr int side = 120; ///< of the view, in points

/// Graph values are picture pixels times `unit`.
Converter plainAxes(double unit = 1)
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {10, 0}, 0, 10 * unit, false,
                                                        {0, 0}, {0, 10}, 0, 10 * unit, false);
}

/// Places points where their values say, and counts them.
class CountingAxes final : public ZKConvCoordinate
{
public:
    std::optional<ZKVector> convertToCartesian(const ZKVector &graphValues) const override
    {
        ++placed;
        return graphValues;
    }
    mutable int placed = 0;
};

class Chart final : public MarkerSource, public CapturePrefs
{
public:
    Chart()
    {
        converters.fill(plainAxes());
        styles.fill({.color = {1, 0, 0, 1}, .size = 8, .thickness = 2, .shape = 0});
        modes.fill(1);
    }
    const PointList &list(int series) const override { return lists.at(index(series)); }
    Converter converterOf(int series) const override { return converters.at(index(series)); }
    int markerDrawOf(int series) const override { return modes.at(index(series)); }
    PlotStyle plotPrefsForSeries(int series) const override { return styles.at(index(series)); }
    bool copyWithTitle() const override { return false; }
    bool saveWithTitle() const override { return false; }
    DeviceColor guideColor() const override { return {}; }
    float guideThick() const override { return 1; }
    float axisThick() const override { return 1; }

    std::array<PointList, 10> lists;
    std::array<Converter, 10> converters;
    std::array<PlotStyle, 10> styles;
    std::array<int, 10> modes{};
    float scale = 1;

private:
    static std::size_t index(int series) { return static_cast<std::size_t>(series); }
};

/// What a window shows of the view: `visible` counts downwards from the view's top left corner.
struct Screen
{
    QRect visible{0, 0, side, side};
    qreal pixelRatio = 1;
};

/// The view as `draw` draws it, on a gray picture.
template <typename Draw>
QImage shown(const Screen &screen, const Draw &draw)
{
    const int pixels = qRound(side * screen.pixelRatio);
    QImage canvas(pixels, pixels, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(screen.pixelRatio);
    canvas.fill(Qt::gray);
    QPainter painter(&canvas);
    painter.setClipRect(screen.visible);
    painter.translate(0, side);
    painter.scale(1, -1);
    draw(painter);
    return canvas;
}

QImage shownThrough(MarkerLayer &layer, const Chart &chart, const Screen &screen = {})
{
    return shown(screen,
                 [&](QPainter &painter) { layer.draw(painter, chart.scale, chart, chart); });
}

QImage shownAnew(const Chart &chart, const Screen &screen = {})
{
    return shown(screen, [&](QPainter &painter) {
        markerdrawing::drawDataMarkersWithScale(painter, chart.scale, chart, chart);
    });
}

/// The largest difference of a colour component.
int difference(const QImage &a, const QImage &b)
{
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            most = std::max({most, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                             std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return most;
}

/// Ten series blended in two steps round otherwise than in one; what is stale differs by far more.
constexpr int rounding = 24;

ZKVector at(double x, double y) { return ZKVector::vectorWithX(x, y); }

/// Changes one thing that can be seen and nothing else: a second change would hide that the first
/// goes unnoticed.
void changeSomething(Chart &chart, Screen &screen, std::mt19937 &random)
{
    const auto below = [&random](int end) {
        return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    const auto series = static_cast<std::size_t>(below(10));
    switch (below(12)) {
    case 0:
        chart.lists.at(series).clear();
        break;
    case 1:
        chart.lists.at(series).sort();
        break;
    case 2:
        chart.styles.at(series).color = {0, float(below(5)) / 4, 1, 1};
        break;
    case 3:
        chart.styles.at(series).shape = below(5);
        break;
    case 4:
        chart.modes.at(series) = below(3);
        break;
    case 5:
        chart.converters.at(series) = plainAxes(0.5 + below(3));
        break;
    case 6:
        chart.scale = float(1 + below(4)) / 2;
        break;
    case 7:
        screen.visible = QRect(below(50), below(50), 40 + below(30), 40 + below(30));
        break;
    default:
        for (int i = 0; i < 3; ++i)
            chart.lists.at(series).append(at(below(side), below(side)));
        break;
    }
}

} // namespace

TEST(MarkerLayer, showsWhatADrawingWithoutItShowsAfterEveryChange)
{
    std::mt19937 random(11);
    Chart chart;
    Screen screen;
    MarkerLayer layer;
    for (int step = 0; step < 400; ++step) {
        changeSomething(chart, screen, random);
        ASSERT_LE(difference(shownThrough(layer, chart, screen), shownAnew(chart, screen)),
                  rounding)
            << "step " << step;
    }
}

TEST(MarkerLayer, showsTheSameOnHighResolutionScreens)
{
    Chart chart;
    chart.lists[0] = PointList({at(20, 20), at(70, 55), at(110, 30)});
    MarkerLayer layer;
    const Screen screen{.visible = QRect(10, 20, 90, 70), .pixelRatio = 2};
    EXPECT_LE(difference(shownThrough(layer, chart, screen), shownAnew(chart, screen)), rounding);
}

TEST(MarkerLayer, showsTheSameOnScreensBetweenWholeResolutions)
{
    Chart chart;
    chart.lists[0] = PointList({at(20, 20), at(70, 55), at(110, 30)});
    for (const qreal ratio : {1.25, 1.5, 1.75}) {
        for (const QRect visible : {QRect(0, 0, side, side), QRect(11, 21, 89, 71)}) {
            MarkerLayer layer;
            const Screen screen{.visible = visible, .pixelRatio = ratio};
            const QImage anew = shownAnew(chart, screen);
            EXPECT_LE(difference(shownThrough(layer, chart, screen), anew), rounding) << ratio;
            EXPECT_LE(difference(shownThrough(layer, chart, screen), anew), rounding) << ratio;
        }
    }
}

TEST(MarkerLayer, followsTheWindowToAnotherScreen)
{
    Chart chart;
    chart.lists[0] = PointList({at(20, 20), at(70, 55), at(110, 30)});
    MarkerLayer layer;
    shownThrough(layer, chart);
    const Screen screen{.pixelRatio = 2};
    EXPECT_LE(difference(shownThrough(layer, chart, screen), shownAnew(chart, screen)), rounding);
}

TEST(MarkerLayer, placesNoPointAgainWhileNothingChanges)
{
    const auto axes = std::make_shared<CountingAxes>();
    Chart chart;
    chart.converters[3] = axes;
    chart.lists[3] = PointList({at(20, 20), at(60, 60)});
    MarkerLayer layer;
    shownThrough(layer, chart);
    ASSERT_EQ(axes->placed, 2);
    shownThrough(layer, chart);
    EXPECT_EQ(axes->placed, 2);
}

TEST(MarkerLayer, aPointTakenBackAndAnotherAddedAreSeen)
{
    Chart chart;
    chart.lists[0] = PointList({at(20, 20)});
    const PointList before = chart.lists[0];
    chart.lists[0].append(at(60, 60));
    MarkerLayer layer;
    shownThrough(layer, chart);
    chart.lists[0] = before;
    chart.lists[0].append(at(90, 90));
    EXPECT_LE(difference(shownThrough(layer, chart), shownAnew(chart)), rounding);
}

TEST(MarkerLayer, withoutAClipDrawsAtOnce)
{
    const auto axes = std::make_shared<CountingAxes>();
    Chart chart;
    chart.converters[0] = axes;
    chart.lists[0] = PointList({at(20, 20)});
    MarkerLayer layer;
    QImage canvas(side, side, QImage::Format_RGB32);
    QPainter painter(&canvas);
    layer.draw(painter, 1, chart, chart);
    layer.draw(painter, 1, chart, chart);
    EXPECT_EQ(axes->placed, 2);
}
