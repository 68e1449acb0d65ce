#include "plot/PlotPicture.h"

#include "plot/PlotFigure.h"
#include "plot/PlotModule.h"
#include "plot/PlotView.h"
#include "plot/SampleContent.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace {

constexpr QSize size(400, 300);

class PlotPictureTest : public ::testing::Test
{
protected:
    PlotPictureTest()
        : m_module(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER))
        , m_view(m_module.maker()->makeView(&m_window))
    {
        m_window.resize(size);
        m_view->resize(size);
        m_window.show();
        m_view->showFigure(plotfigure::of(samplecontent::linear({{2, 2}, {5, 5}, {8, 8}})));
    }

    QByteArray bytes(plotpicture::Format format)
    {
        return plotpicture::bytesOf(*m_view, format, QStringLiteral("chart"));
    }

    static int redPixels(const QImage &image)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        return count;
    }

    QWidget m_window;
    PlotModule m_module;
    PlotView *m_view;
};

} // namespace

TEST_F(PlotPictureTest, ofPixelsHasTwiceAsManyAsTheScreen)
{
    const QImage image = QImage::fromData(bytes(plotpicture::Format::Png), "PNG");
    EXPECT_EQ(image.size(), size * 2);
    EXPECT_GT(redPixels(image), 4 * 3 * 50);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(PlotPictureTest, ofLinesShowsTheSame)
{
    QSvgRenderer renderer(bytes(plotpicture::Format::Svg));
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBox(), QRect(QPoint(0, 0), size));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    EXPECT_GT(redPixels(image), 3 * 40);
}

TEST_F(PlotPictureTest, asADocumentHasOnePageOfItsSize)
{
    const QByteArray document = bytes(plotpicture::Format::Pdf);
    EXPECT_TRUE(document.startsWith("%PDF-"));
    EXPECT_EQ(document.count("/Type /Page\n"), 1);
    EXPECT_TRUE(document.contains("/MediaBox [0 0 "));
}

TEST_F(PlotPictureTest, suffixesAndNamesTellTheFormatsApart)
{
    QStringList suffixes;
    QStringList names;
    for (const plotpicture::Format format : plotpicture::formats) {
        suffixes += plotpicture::suffixOf(format);
        names += plotpicture::nameOf(format);
    }
    EXPECT_EQ(suffixes, (QStringList{".svg", ".pdf", ".png"}));
    EXPECT_EQ(names, (QStringList{"SVG drawing", "PDF document", "PNG picture"}));
}
