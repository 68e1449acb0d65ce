// Renders an icon of the desktop: render_icon <drawing.svg> <pixels> <icon.png>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool fail(const char *what)
{
    std::fputs(what, stderr);
    std::fputs("\n", stderr);
    return false;
}

bool render(const QString &drawing, int pixels, const QString &icon)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        return fail("render_icon: the drawing cannot be read");
    QImage image(pixels, pixels, QImage::Format_ARGB32);
    if (image.isNull())
        return fail("render_icon: there is no such size");
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        renderer.render(&painter);
    }
    return image.save(icon, "PNG") || fail("render_icon: the icon cannot be written");
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr int expected = 4;
    if (arguments.size() != expected)
        return fail("usage: render_icon <drawing.svg> <pixels> <icon.png>") ? 0 : 2;
    return render(arguments[1], arguments[2].toInt(), arguments[3]) ? 0 : 1;
}
