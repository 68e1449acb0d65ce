// Drives the program as a user does and takes the pictures of the help book and of the README on
// the way; the document that it saves is the example document.
#include "e2e/ProgramUnderTest.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstdio>

namespace {

constexpr int windowWidth = 720; // that of the help's text
constexpr int detailWidth = 480;
constexpr int patience = 20000; // milliseconds

bool fail(const char *what)
{
    std::fputs(what, stderr);
    std::fputs("\n", stderr);
    return false;
}

/// Writes a compact picture of the help book, or one whose path is given, not wider than `widest`.
bool keep(const QImage &image, const QString &name, int widest)
{
    const QImage narrow =
        image.width() > widest ? image.scaledToWidth(widest, Qt::SmoothTransformation) : image;
    constexpr int smallest = 0; // the quality that compresses most
    return narrow.convertToFormat(QImage::Format_RGB888)
               .save(QDir(QStringLiteral(CURVEGRAB_HELP_PICTURES)).filePath(name), "PNG",
                     smallest) ||
           fail("a picture cannot be written");
}

/// A copy of an example in a folder of its own, where the program saves its document beside it.
class Copy
{
public:
    explicit Copy(const QString &name)
        : m_path(m_folder.filePath(name))
    {
        QFile::copy(QStringLiteral(CURVEGRAB_EXAMPLES "/") + name, m_path);
    }

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] QString documentPath() const
    {
        const QFileInfo file(m_path);
        return file.path() + u'/' + file.completeBaseName() + QStringLiteral(".crvgrab");
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

/// Rests the pointer at a point, and waits until the window shows that and has come to rest too.
void rest(ProgramUnderTest &program, QPointF point)
{
    const QImage away = ProgramUnderTest::windowImage();
    program.hover(point);
    QImage before = away;
    static_cast<void>(QTest::qWaitFor([&away, &before] {
        const QImage now = ProgramUnderTest::windowImage();
        const bool isSame = now == before && now != away;
        before = now;
        return isSame;
    }));
}

/// The second curve goes into the second series, and the README shows both.
bool windowOfReadme(ProgramUnderTest &program)
{
    program.key("ctrl+bracketright");
    for (int i = 0; i < 10; ++i) {
        const double x = 0.5 + i;
        program.click({100 + 850 * x / 10, 84 + 574 * (2 * std::sin(x) + 4) / 10});
    }
    rest(program, {700, 560});
    const QImage window = ProgramUnderTest::windowImage();
    return keep(window, QStringLiteral(CURVEGRAB_README_PICTURE), window.width());
}

bool parallelAxes()
{
    const Copy example(QStringLiteral("damped-oscillation.png"));
    ProgramUnderTest program(example.path());
    if (!program.waitForPicture())
        return fail("no picture");
    program.key("ctrl+i"); // the info panel is no part of these pictures
    if (!keep(program.pictureImage().copy(120, 90, 760, 520), "axes-parallel.png", detailWidth))
        return false;
    program.drag({200, 140}, {100, 84});
    program.drag({800, 84}, {950, 84});
    program.drag({100, 560}, {100, 658});
    program.enter("alt+i", "0");
    program.enter("alt+x", "10");
    program.enter("alt+n", "-4");
    program.enter("alt+m", "6");
    rest(program, {600, 300});
    if (!keep(ProgramUnderTest::windowImage(), "set-axes.png", windowWidth))
        return false;
    program.key("ctrl+2");
    for (int i = 0; i < 20; ++i) {
        const double x = 0.25 + 0.5 * i;
        const double y = 5 * std::exp(-x / 4) * std::cos(2 * x);
        program.click({100 + 850 * x / 10, 84 + 574 * (y + 4) / 10});
    }
    rest(program, {700, 420});
    if (!keep(ProgramUnderTest::windowImage(), "digitize.png", windowWidth))
        return false;
    program.key("ctrl+s");
    if (!QTest::qWaitFor([&example] { return QFile::exists(example.documentPath()); }, patience))
        return fail("no document");
    const QString target = QStringLiteral(CURVEGRAB_EXAMPLES "/damped-oscillation.crvgrab");
    QFile::remove(target);
    if (!QFile::copy(example.documentPath(), target))
        return fail("the document cannot be copied");
    return windowOfReadme(program);
}

bool quadrangleAxes()
{
    const Copy example(QStringLiteral("slanted-chart.png"));
    ProgramUnderTest program(example.path());
    if (!program.waitForPicture())
        return fail("no picture");
    program.key("ctrl+i"); // the info panel is no part of these pictures
    program.key("alt+a");
    program.key("q");
    program.drag({200, 140}, {120, 90});
    program.drag({800, 140}, {880, 150});
    program.drag({800, 560}, {800, 610});
    program.drag({200, 560}, {190, 560});
    rest(program, {20, 20});
    return keep(program.pictureImage(), "axes-quadrangle.png", detailWidth);
}

bool polarAxes()
{
    const Copy example(QStringLiteral("cardioid-polar.png"));
    ProgramUnderTest program(example.path());
    if (!program.waitForPicture())
        return fail("no picture");
    program.key("ctrl+i"); // the info panel is no part of these pictures
    program.key("alt+a");
    program.key("o");
    rest(program, {10, 10});
    return keep(program.pictureImage(), "axes-polar.png", detailWidth);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return quadrangleAxes() && polarAxes() && parallelAxes() ? 0 : 1;
}
