#include "imageview/ImageViewFixture.h"

#include <QMimeData>

#include <functional>

// What is seen at once, without another reason to paint.

namespace {

constexpr auto measureKeys = Qt::ControlModifier | Qt::MetaModifier | Qt::ShiftModifier;
constexpr auto trimKeys = Qt::ControlModifier | Qt::MetaModifier;

class GraphImageViewRedrawTest : public ImageViewTest
{
protected:
    void SetUp() override
    {
        show();
        install(400, 300);
        view->rescaleImageWith(1, true);
    }
    int paints() const { return around.count("drawAxis") + around.count("drawMarkers"); }
    bool isRedrawnAfter(const std::function<void()> &action)
    {
        QCoreApplication::processEvents();
        const int before = paints();
        action();
        return QTest::qWaitFor([&] { return paints() > before; });
    }
};

} // namespace

TEST_F(GraphImageViewRedrawTest, aDraggedRectangleAndItsRelease)
{
    press({100, 80}, measureKeys);
    EXPECT_TRUE(isRedrawnAfter([this] { drag({50, 50}, measureKeys); }));
    EXPECT_TRUE(isRedrawnAfter([this] { drag({50, 50}, measureKeys); }));
    EXPECT_TRUE(isRedrawnAfter([this] { release(measureKeys); }));
}

TEST_F(GraphImageViewRedrawTest, aRectangleThatIsAbandoned)
{
    press({100, 80}, measureKeys);
    drag({50, 50}, measureKeys);
    EXPECT_TRUE(isRedrawnAfter([this] { QTest::keyClick(view, Qt::Key_Escape); }));
}

TEST_F(GraphImageViewRedrawTest, aTrimThatIsNotWanted)
{
    press({100, 80}, trimKeys);
    drag({50, 50}, trimKeys);
    release(trimKeys);
    EXPECT_TRUE(isRedrawnAfter([this] { around.answerSheet(SheetAnswer::Alternate); }));
}

TEST_F(GraphImageViewRedrawTest, theOtherPage)
{
    EXPECT_TRUE(isRedrawnAfter([this] {
        around.axisSetting = false;
        view->settingModeChanged();
    }));
    EXPECT_TRUE(isRedrawnAfter([this] {
        around.axisSetting = true;
        view->settingModeChanged();
    }));
}

TEST_F(GraphImageViewRedrawTest, newPreferences)
{
    EXPECT_TRUE(isRedrawnAfter([this] { view->prefsChanged(); }));
}

TEST_F(GraphImageViewRedrawTest, aSquareThatIsTurned)
{
    install(400, 400);
    EXPECT_TRUE(isRedrawnAfter([this] { view->imageRotateCw(); }));
}

TEST_F(GraphImageViewRedrawTest, aSavedViewOfTheSameSize)
{
    const ArchiveDictionary saved = view->dataForSave();
    EXPECT_TRUE(isRedrawnAfter([&] { view->loadFromData(&saved); }));
}

TEST_F(GraphImageViewRedrawTest, theSameScaleByCommand)
{
    EXPECT_TRUE(isRedrawnAfter([this] { view->zoomToActualSize(); }));
}

TEST_F(GraphImageViewRedrawTest, theVeilOfADragThatComesAndGoes)
{
    QMimeData pasteboard;
    QImage pixels(4, 4, QImage::Format_RGB32);
    pixels.fill(Qt::red);
    pasteboard.setImageData(pixels);
    EXPECT_TRUE(isRedrawnAfter([&] { view->draggingEntered(&pasteboard); }));
    EXPECT_TRUE(isRedrawnAfter([this] { view->draggingExited(); }));
    view->draggingEntered(&pasteboard);
    EXPECT_TRUE(isRedrawnAfter([this] { view->concludeDragOperation(); }));
}
