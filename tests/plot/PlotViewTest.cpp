// The view that the module makes.
#include "plot/PlotView.h"

#include "plot/PlotFigure.h"
#include "plot/PlotModule.h"
#include "plot/SampleContent.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace {

class PlotViewTest : public ::testing::Test
{
protected:
    PlotViewTest()
        : m_module(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER))
        , m_view(m_module.maker()->makeView(&m_window))
    {
        m_window.resize(500, 400);
        m_view->resize(500, 400);
        m_window.show();
    }

    QImage shown(const PlotContent &content)
    {
        m_view->showFigure(plotfigure::of(content));
        QCoreApplication::processEvents();
        QImage image(m_view->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        m_view->drawInto(painter, m_view->rect());
        return image;
    }

    static int pixelsOf(const QImage &image, QColor color)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == color ? 1 : 0;
        return count;
    }

    /// The middle of the marker that has this colour, without that of the legend at the right.
    static QPointF placeOf(const QImage &image, QColor color)
    {
        QPointF sum;
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width() * 3 / 4; ++x)
                if (image.pixelColor(x, y) == color) {
                    sum += QPointF(x, y);
                    ++count;
                }
        return count > 0 ? sum / count : QPointF();
    }

    QWidget m_window;
    PlotModule m_module;
    PlotView *m_view;
};

} // namespace

TEST_F(PlotViewTest, drawsThePointsAndTheLegend)
{
    const QImage image = shown(samplecontent::linear({{5, 5}}));
    const int beforeLegend = image.width() * 3 / 4;
    const QImage legend = image.copy(beforeLegend, 0, image.width() - beforeLegend, image.height());
    const int inLegend = pixelsOf(legend, Qt::red);
    EXPECT_GT(inLegend, 10);
    EXPECT_GT(pixelsOf(image, Qt::red), inLegend + 60);
}

TEST_F(PlotViewTest, drawsPointsWhereTheyBelong)
{
    const QPointF low = placeOf(shown(samplecontent::linear({{2, 2}})), Qt::red);
    const QPointF high = placeOf(shown(samplecontent::linear({{8, 8}})), Qt::red);
    const QPointF middle = placeOf(shown(samplecontent::linear({{5, 5}})), Qt::red);
    EXPECT_GT(high.x(), low.x() + 100);
    EXPECT_LT(high.y(), low.y() - 100);
    EXPECT_NEAR(middle.x(), (low.x() + high.x()) / 2, 1);
    EXPECT_NEAR(middle.y(), (low.y() + high.y()) / 2, 1);
}

TEST_F(PlotViewTest, drawsPolarPointsAboutTheMiddleOfTheCircles)
{
    const QPointF right = placeOf(shown(samplecontent::polar({{0, 9}})), Qt::red);
    const QPointF left = placeOf(shown(samplecontent::polar({{180, 9}})), Qt::red);
    const QPointF top = placeOf(shown(samplecontent::polar({{90, 9}})), Qt::red);
    EXPECT_NEAR(right.y(), left.y(), 1);
    EXPECT_NEAR(top.x(), (left.x() + right.x()) / 2, 1);
    EXPECT_NEAR(right.y() - top.y(), (right.x() - left.x()) / 2, 1);
}

TEST_F(PlotViewTest, changesBetweenTheKindsOfAxes)
{
    const QImage linear = shown(samplecontent::linear({{5, 5}}));
    const QImage polar = shown(samplecontent::polar({{5, 5}}));
    EXPECT_NE(polar, linear);
    EXPECT_EQ(shown(samplecontent::linear({{5, 5}})), linear);
}

TEST_F(PlotViewTest, leavesNothingOfFormerAxes)
{
    const QImage before = shown(samplecontent::linear({{5, 5}}));
    PlotContent other = samplecontent::linear({{5, 5}});
    other.x = {1, 1e6, true, false};
    EXPECT_NE(shown(other), before);
    EXPECT_EQ(shown(samplecontent::linear({{5, 5}})), before);
}

TEST_F(PlotViewTest, drawsLinesWhereTheSeriesHasThem)
{
    PlotContent content = samplecontent::linear({{0, 0}, {10, 10}});
    content.series[0].thickness = 3;
    const int markers = pixelsOf(shown(content), Qt::red);
    content.series[0].drawMode = 1;
    const int both = pixelsOf(shown(content), Qt::red);
    content.series[0].drawMode = 2;
    const int lines = pixelsOf(shown(content), Qt::red);
    EXPECT_GT(both, markers + 200);
    EXPECT_LT(lines, both);
}

TEST_F(PlotViewTest, tellsShapesApartWithoutColours)
{
    PlotContent content = samplecontent::linear({{5, 5}});
    content.series[0].color = Qt::black;
    content.series[0].size = 15;
    QList<QImage> images;
    for (int shape = 0; shape < 4; ++shape) {
        content.series[0].shape = shape;
        const QImage image = shown(content);
        EXPECT_FALSE(images.contains(image)) << shape;
        images += image;
    }
}

TEST_F(PlotViewTest, namesSeriesAtTheirEndsWhereThereAreSeveral)
{
    PlotContent content = samplecontent::linear({{5, 5}});
    content.series[0].drawMode = 0;
    const int alone = pixelsOf(shown(content), Qt::black);
    content.series.push_back(samplecontent::series({{2, 2}}, Qt::blue));
    content.series.back().name = QString();
    EXPECT_GT(pixelsOf(shown(content), Qt::black), alone);
}

TEST_F(PlotViewTest, showsAnythingWithoutHarm)
{
    PlotContent content;
    content.series = {samplecontent::series({{0, 0}}), samplecontent::series({})};
    for (const bool isPolar : {false, true}) {
        content.isPolar = isPolar;
        for (const bool isLogarithmic : {false, true}) {
            content.x.isLogarithmic = isLogarithmic;
            content.y.isLogarithmic = isLogarithmic;
            for (const double last : {1.0, 1e300, -1.0, std::nan("")}) {
                content.x.last = last;
                content.y.last = last;
                EXPECT_FALSE(shown(content).isNull());
            }
        }
    }
}

TEST_F(PlotViewTest, isWhiteToItsEdges)
{
    shown(samplecontent::linear({{5, 5}}));
    QImage image(m_view->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    {
        QPainter painter(&image);
        m_view->drawInto(painter, m_view->rect());
    }
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(image.width() - 2, image.height() - 2), QColor(Qt::white));
    EXPECT_EQ(m_view->grab().toImage().pixelColor(1, 1), QColor(Qt::white));
}
