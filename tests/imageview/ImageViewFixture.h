#pragma once

#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/PictureScrollArea.h"
#include "imageview/ZoomSlider.h"
#include "platform/Desktop.h"
#include "platform/Sheets.h"
#include "platform/UndoManager.h"
#include "support/FakePasswordSheets.h"

#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Stands for a converter: the view only hands it on.
std::shared_ptr<const ZKConvCoordinate> someConverter();

/// Everything around the view, in one recorder: `calls` has what was called, in order.
class Surroundings : public ImageViewDocument,
                     public ImageViewAxes,
                     public ImageViewGuide,
                     public ImageViewSeries,
                     public ImageViewInfoPanel,
                     public ImageViewPrefs,
                     public Sheets,
                     public Desktop
{
public:
    std::vector<std::string> calls;
    std::vector<FloatPoint> appended;
    std::vector<Sheet> sheetsShown;
    std::function<void(SheetAnswer)> answerSheet; ///< of the last one shown
    bool axisSetting = true;
    FloatSize frameSize{637, 607};
    FloatSize screenSize{1280, 1024};
    QPoint pointer{-1000, -1000};
    Qt::KeyboardModifiers held;
    double interval = 0.2;
    bool anchorIsHit = true;
    std::function<void()> whenAnchorRectsAreMade;
    bool dragging = false;
    FloatPoint dragStart;
    FloatPoint placeOfOnlyPart{20, 30}; ///< of part 1, picture points
    std::vector<FloatPoint> dragPositions;
    std::vector<FloatPoint> guidePositions;
    std::shared_ptr<const ZKConvCoordinate> made;
    std::shared_ptr<const ZKConvCoordinate> inForce;
    int changes = 0;
    UndoManager undo;
    FakePasswordSheets passwords;
    float scaleOfPages = 4;
    GraphImageView *view = nullptr;

    void note(const std::string &call) { calls.push_back(call); }
    int count(const std::string &call) const
    {
        return static_cast<int>(std::count(calls.begin(), calls.end(), call));
    }

    bool isInAxisSettingMode() const override { return axisSetting; }
    UndoManager &undoManager() override { return undo; }
    Sheets &sheets() override { return *this; }
    PasswordSheets &passwordSheets() override { return passwords; }
    Desktop &desktop() override { return *this; }
    void updateChangeCount(ChangeKind /*kind*/) override
    {
        ++changes;
        note("updateChangeCount");
    }
    void zoomWindow() override { note("zoomWindow"); }
    FloatSize windowFrameSize() const override { return frameSize; }
    void removeUndoOfDataSeries() override { note("removeUndoOfDataSeries"); }
    void removeUndoOfCurrentAxes() override { note("removeUndoOfCurrentAxes"); }

    void resetPositionFromImageView() override { note("resetPosition:view"); }
    void resetPosition() override { note("resetPosition:"); }
    void makeAnchorRectsWithScale(float /*scale*/) override
    {
        note("makeAnchorRects");
        if (whenAnchorRectsAreMade)
            whenAnchorRectsAreMade();
    }
    void drawAxisWithScale(QPainter &painter, float /*scale*/) override
    {
        note("drawAxis");
        painter.fillRect(QRectF(10, 20, 4, 4), Qt::red);
    }
    void registerUndoOfAnchors() override
    {
        note("registerUndoOfAnchors");
        undo.registerUndo(this, [this] { note("setAnchors"); });
    }
    void dragAnchor(FloatPoint start, FloatPoint now) override
    {
        note("dragAnchor");
        dragStart = start;
        dragPositions.push_back(now);
        dragging = anchorIsHit;
    }
    void continueDrag(FloatPoint now) override
    {
        note("continueDrag");
        dragPositions.push_back(now);
    }
    void endDrag(FloatPoint now) override
    {
        note("endDrag");
        dragPositions.push_back(now);
        dragging = false;
    }
    bool isDragging() const override { return dragging; }
    int partBeside(int part, int direction) const override { return part + direction; }
    std::optional<FloatPoint> placeOfPart(int part) const override
    {
        return part == 1 ? std::optional(placeOfOnlyPart) : std::nullopt;
    }
    void movePart(int /*part*/, FloatPoint way) override
    {
        note("movePart");
        placeOfOnlyPart = {placeOfOnlyPart.x + way.x, placeOfOnlyPart.y + way.y};
    }
    void endMovesOfPart() override { note("endMovesOfPart"); }
    std::shared_ptr<const ZKConvCoordinate> makeAxisConverter() override
    {
        note("makeAxisConverter");
        return made;
    }

    std::shared_ptr<const ZKConvCoordinate> converter() const override { return inForce; }
    void setConverter(std::shared_ptr<const ZKConvCoordinate> converter) override
    {
        note("setConverter");
        inForce = std::move(converter);
    }
    FloatPoint dataPointAt(FloatPoint point, float withScale) override
    {
        return {point.x / withScale, point.y / withScale};
    }
    void drawGuide(FloatPoint point, float /*withScale*/) override
    {
        note("drawGuide");
        guidePositions.push_back(point);
    }
    void forceDrawGuide(FloatPoint point, float /*withScale*/) override
    {
        note("forceDrawGuide");
        guidePositions.push_back(point);
    }
    void drawGuide(QPainter & /*painter*/) override { note("strokeGuide"); }
    void clearGuide() override { note("clearGuide"); }
    void lockStateChanged() override { note("lockStateChanged"); }

    void appendData(FloatPoint data, std::shared_ptr<const ZKConvCoordinate> converter) override
    {
        note("appendData");
        appended.push_back(data);
        EXPECT_EQ(converter, inForce);
    }
    void drawDataMarkersWithScale(QPainter & /*painter*/, float /*scale*/) override
    {
        note("drawMarkers");
    }

    void updateImageInfo() override { note("updateImageInfo"); }
    double guideInterval() const override { return interval; }
    float pdfScale() const override { return scaleOfPages; }

    void present(const Sheet &sheet, std::function<void(SheetAnswer)> ended) override
    {
        note("sheet");
        sheetsShown.push_back(sheet);
        answerSheet = std::move(ended);
    }

    FloatSize mainScreenSize() const override { return screenSize; }
    QPoint pointerPosition() const override { return pointer; }
    Qt::KeyboardModifiers modifiers() const override { return held; }
};

/// A picture view in a window, with recorders around it.
class ImageViewTest : public ::testing::Test
{
protected:
    ImageViewTest()
        : area(new PictureScrollArea(&window))
        , view(new GraphImageView(*area))
        , rotateCW(new QPushButton(&window))
        , rotateCCW(new QPushButton(&window))
        , fitWidth(new QPushButton(&window))
        , fitHeight(new QPushButton(&window))
        , slider(new ZoomSlider(&window))
        , actionTab(new QWidget(&window))
        , noImageTab(new QWidget(&window))
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(area, 1);
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.resize(400, 300);
        for (QWidget *control :
             {static_cast<QWidget *>(rotateCW), static_cast<QWidget *>(rotateCCW),
              static_cast<QWidget *>(fitWidth), static_cast<QWidget *>(fitHeight),
              static_cast<QWidget *>(slider)})
            control->setGeometry(0, 0, 1, 1);
        around.view = view;
        view->connectOutlets({&around, &around, &around, &around, &around, &around, rotateCW,
                              rotateCCW, fitWidth, fitHeight, slider, actionTab, noImageTab});
        view->awakeFromNib();
        around.calls.clear();
    }

    /// Shows the window, whose clip is 400 x 300.
    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Installs a picture of one colour and forgets the calls.
    void install(int width, int height)
    {
        QImage pixels(width, height, QImage::Format_RGB32);
        pixels.fill(Qt::blue);
        ASSERT_TRUE(view->replaceImageWithImageRep(pixels));
        view->stopMouseChecking();
        around.calls.clear();
        around.changes = 0;
    }

    /// Puts the pointer on a widget position of the view.
    void pointAt(QPoint widgetPosition) { around.pointer = view->mapToGlobal(widgetPosition); }

    /// Sends a mouse event with the left button to the view, as the window system does.
    void mouse(QEvent::Type type, QPointF globalPosition,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton)
    {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
        QMouseEvent event(type, view->mapFromGlobal(globalPosition), globalPosition,
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
        QCoreApplication::sendEvent(view, &event);
    }
    void press(QPoint widgetPosition, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_mouse = view->mapToGlobal(QPointF(widgetPosition));
        mouse(QEvent::MouseButtonPress, m_mouse, modifiers);
    }
    /// Moves the mouse by some points of the screen, which stays where the view may not.
    void drag(QPointF way, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_mouse += way;
        mouse(QEvent::MouseMove, m_mouse, modifiers);
    }
    void release(Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonRelease, m_mouse, modifiers);
    }

    Surroundings around;
    QWidget window;
    PictureScrollArea *area;
    GraphImageView *view;
    QPushButton *rotateCW;
    QPushButton *rotateCCW;
    QPushButton *fitWidth;
    QPushButton *fitHeight;
    ZoomSlider *slider;
    QWidget *actionTab;
    QWidget *noImageTab;

private:
    QPointF m_mouse;
};
