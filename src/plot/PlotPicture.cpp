#include "plot/PlotPicture.h"

#include "platform/Texts.h"
#include "plot/PlotView.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

constexpr int pixelsPerPoint = 2;
constexpr double pointsPerInch = 72;

void drawWhole(PlotView &view, QPaintDevice &device)
{
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing);
    view.drawInto(painter, QRectF(QPointF(0, 0), QSizeF(view.size())));
}

void writeSvg(PlotView &view, QIODevice &out, const QString &title)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    generator.setResolution(view.logicalDpiX());
    generator.setSize(view.size());
    generator.setViewBox(view.rect());
    generator.setTitle(title);
    drawWhole(view, generator);
}

void writePdf(PlotView &view, QIODevice &out, const QString &title)
{
    QPdfWriter writer(&out);
    // Texts have their size in points: with the screen's resolution they keep that of the view.
    const double resolution = view.logicalDpiX();
    writer.setResolution(view.logicalDpiX());
    writer.setPageSize(QPageSize(QSizeF(view.size()) * pointsPerInch / resolution, QPageSize::Point,
                                 {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    writer.setTitle(title);
    drawWhole(view, writer);
}

void writePng(PlotView &view, QIODevice &out)
{
    QImage image(view.size() * pixelsPerPoint, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelsPerPoint);
    image.fill(Qt::white);
    if (image.isNull())
        return;
    drawWhole(view, image);
    image.save(&out, "PNG");
}

} // namespace

QString plotpicture::suffixOf(Format format)
{
    switch (format) {
    case Format::Svg:
        return QStringLiteral(".svg");
    case Format::Pdf:
        return QStringLiteral(".pdf");
    default:
        return QStringLiteral(".png");
    }
}

QString plotpicture::nameOf(Format format)
{
    switch (format) {
    case Format::Svg:
        return texts::localized("plot.format.svg");
    case Format::Pdf:
        return texts::localized("plot.format.pdf");
    default:
        return texts::localized("plot.format.png");
    }
}

QByteArray plotpicture::bytesOf(PlotView &view, Format format, const QString &title)
{
    QByteArray bytes;
    QBuffer out(&bytes);
    if (!out.open(QIODevice::WriteOnly))
        return {};
    switch (format) {
    case Format::Svg:
        writeSvg(view, out, title);
        break;
    case Format::Pdf:
        writePdf(view, out, title);
        break;
    case Format::Png:
        writePng(view, out);
        break;
    }
    return bytes;
}
