// Drives the program as a user does, and keeps the documents that it saves as the examples that
// come with it.
#include "e2e/ProgramUnderTest.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstdio>
#include <functional>
#include <numbers>

namespace {

constexpr int patience = 20000; // milliseconds
constexpr int pointCount = 20;

bool fail(const char *what)
{
    std::fputs(what, stderr);
    std::fputs("\n", stderr);
    return false;
}

/// Opens a copy of the chart `name`, lets `digitize` work on it and keeps what it saves.
bool make(const QString &name, const std::function<void(ProgramUnderTest &)> &digitize)
{
    const QString examples = QStringLiteral(CURVEGRAB_EXAMPLES "/");
    const QTemporaryDir folder;
    const QString picture = folder.filePath(name + QStringLiteral(".png"));
    const QString saved = folder.filePath(name + QStringLiteral(".crvgrab"));
    const QString target = examples + name + QStringLiteral(".crvgrab");
    if (!QFile::copy(examples + name + QStringLiteral(".png"), picture))
        return fail("the chart cannot be copied");
    ProgramUnderTest program(picture);
    if (!program.waitForPicture())
        return fail("no picture");
    digitize(program);
    program.key("ctrl+s");
    if (!QTest::qWaitFor([&saved] { return QFile::exists(saved); }, patience))
        return fail("no document");
    QFile::remove(target);
    return QFile::copy(saved, target) || fail("the document cannot be copied");
}

void growth(ProgramUnderTest &program)
{
    program.drag({200, 140}, {100, 84});
    program.drag({800, 84}, {950, 84});
    program.drag({100, 560}, {100, 658});
    program.enter("alt+i", "0");
    program.enter("alt+x", "24");
    // The minimum stays below the maximum all the time: otherwise a message would take the keys.
    program.enter("alt+m", "1e9");
    program.enter("alt+n", "1000");
    program.key("alt+m");
    program.toggleNextCheckBox();
    program.key("ctrl+2");
    for (int i = 0; i < pointCount; ++i) {
        const double x = 0.6 + 1.2 * i;
        const double cells = 3e8 / (1 + 3e8 / 5e3 * std::exp(-0.9 * x));
        program.click({100 + 850 * x / 24, 84 + 574 * (std::log10(cells) - 3) / 6});
    }
}

double cross(QPointF a, QPointF b) { return a.x() * b.y() - a.y() * b.x(); }

/// Where the lines through p along d and through q along e meet.
QPointF meeting(QPointF p, QPointF d, QPointF q, QPointF e)
{
    return p + d * (cross(q - p, e) / cross(d, e));
}

void slantedChart(ProgramUnderTest &program)
{
    const QPointF lb(120, 90);
    const QPointF rb(880, 150);
    const QPointF rt(800, 610);
    const QPointF lt(190, 560);
    const QPointF vanishingX = meeting(lb, rb - lb, lt, rt - lt);
    const QPointF vanishingY = meeting(lb, lt - lb, rb, rt - rb);
    program.key("alt+a");
    program.key("q");
    program.drag({200, 140}, lb);
    program.drag({800, 140}, rb);
    program.drag({800, 560}, rt);
    program.drag({200, 560}, lt);
    program.enter("alt+x", "8");
    program.enter("alt+i", "0");
    program.enter("alt+m", "20");
    program.enter("alt+n", "0");
    program.key("ctrl+2");
    for (int i = 0; i < pointCount; ++i) {
        const double x = 0.2 + 0.4 * i;
        const QPointF onBottom = lb + (rb - lb) * (x / 8);
        const QPointF onLeft = lb + (lt - lb) * ((2 + 0.25 * x * x) / 20);
        program.click(meeting(onBottom, vanishingY - onBottom, onLeft, vanishingX - onLeft));
    }
}

void cardioid(ProgramUnderTest &program)
{
    program.key("alt+a");
    program.key("o");
    program.drag({560, 350}, {630, 350});
    program.enter("alt+m", "10");
    program.enter("alt+n", "0");
    program.key("ctrl+2");
    for (int i = 0; i < pointCount; ++i) {
        const double theta = (5.0 + 15.0 * (i < 10 ? i : i + 4)) / 180 * std::numbers::pi;
        const double length = 28 * (4 + 4 * std::cos(theta));
        program.click({350 + length * std::cos(theta), 350 + length * std::sin(theta)});
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return make(QStringLiteral("growth-semilogarithmic"), growth) &&
                   make(QStringLiteral("slanted-chart"), slantedChart) &&
                   make(QStringLiteral("cardioid-polar"), cardioid)
               ? 0
               : 1;
}
