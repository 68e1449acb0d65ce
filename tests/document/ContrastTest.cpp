#include "support/Contrast.h"
#include "document/ChosenButtonStyle.h"
#include "document/EmptyPictureHint.h"
#include "document/TableDrawer.h"

#include <QLabel>
#include <QToolButton>

#include <gtest/gtest.h>

// The colours that are ours can be told apart in bright and in dark windows.

namespace {

class Contrast : public ::testing::TestWithParam<bool>
{
protected:
    [[nodiscard]] static QPalette palette()
    {
        return GetParam() ? contrast::darkPalette() : contrast::lightPalette();
    }
};

} // namespace

TEST_P(Contrast, wordsInTheEmptyPictureAreReadable)
{
    QWidget area;
    area.setPalette(palette());
    const EmptyPictureHint hint(&area);
    for (const QLabel *label : hint.findChildren<QLabel *>())
        EXPECT_GE(contrast::ratio(label->palette().color(QPalette::WindowText), Qt::white),
                  contrast::ofText);
}

TEST_P(Contrast, theTextOfAChosenButtonIsReadable)
{
    QToolButton button;
    ChosenButtonStyle style;
    button.setStyle(&style);
    button.setPalette(palette());
    button.setCheckable(true);
    button.setChecked(true);
    button.resize(60, 30);
    const QColor ground = button.grab().toImage().pixelColor(30, 15);
    EXPECT_GE(contrast::ratio(palette().color(QPalette::ButtonText), ground), contrast::ofText);
}

TEST_P(Contrast, aChosenButtonIsMarkedByMoreThanItsColour)
{
    QToolButton button;
    ChosenButtonStyle style;
    button.setStyle(&style);
    button.setPalette(palette());
    button.setCheckable(true);
    button.resize(60, 30);
    const QRect leadingEdge(2, 6, 6, 18);
    const auto mark = [&] {
        const QImage shot = button.grab().toImage();
        return contrast::strongest(shot.copy(leadingEdge), shot.pixelColor(30, 15));
    };
    EXPECT_LT(mark(), contrast::ofGraphics);
    button.setChecked(true);
    EXPECT_GE(mark(), contrast::ofGraphics);
}

TEST_P(Contrast, theHandleOfTheTableIsSeen)
{
    QWidget window;
    window.setPalette(palette());
    TableDrawer drawer(&window);
    drawer.resize(40, 200);
    auto *const handle = drawer.findChild<QWidget *>(QStringLiteral("drawerHandle"));
    ASSERT_NE(handle, nullptr);
    handle->resize(handle->width(), 60);
    EXPECT_GE(contrast::strongest(handle->grab().toImage(), palette().color(QPalette::Window)),
              contrast::ofGraphics);
}

INSTANTIATE_TEST_SUITE_P(BrightAndDark, Contrast, ::testing::Bool());
