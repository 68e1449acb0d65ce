#include "imageview/ImageViewFixture.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>
#include <QWindow>

namespace {

constexpr Qt::DropActions everything = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

/// A drag through the window, as the window system reports it.
class DropTest : public ImageViewTest
{
protected:
    DropTest()
    {
        QImage image(330, 200, QImage::Format_RGB32);
        image.fill(Qt::red);
        picture.setImageData(image);
        text.setText("text");
    }
    ~DropTest() override
    {
        if (m_inside)
            leave();
    }

    /// Enters the window; returns whether the drag is accepted.
    bool enter(QPoint position, const QMimeData &dragged, Qt::DropActions actions = everything)
    {
        QDragEnterEvent event(position, actions, &dragged, Qt::LeftButton, Qt::NoModifier);
        m_inside = true;
        return sent(event);
    }
    bool move(QPoint position, const QMimeData &dragged, Qt::DropActions actions = everything)
    {
        QDragMoveEvent event(position, actions, &dragged, Qt::LeftButton, Qt::NoModifier);
        return sent(event);
    }
    void leave()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(window.windowHandle(), &event);
        m_inside = false;
    }
    bool drop(QPoint position, const QMimeData &dragged, Qt::DropActions actions = everything)
    {
        QDropEvent event(position, actions, &dragged, Qt::NoButton, Qt::NoModifier);
        m_inside = false;
        return sent(event);
    }
    QColor colourAt(QPoint position) const { return view->grab().toImage().pixelColor(position); }

    static constexpr QPoint middle{200, 150};
    QMimeData picture;
    QMimeData text;
    Qt::DropAction answered = Qt::IgnoreAction;

private:
    bool sent(QDropEvent &event)
    {
        event.ignore();
        QCoreApplication::sendEvent(window.windowHandle(), &event);
        answered = event.dropAction();
        return event.isAccepted();
    }

    bool m_inside = false;
};

} // namespace

TEST_F(DropTest, anAcceptableDragIsAnsweredWithCopy)
{
    install(500, 400);
    show();
    EXPECT_TRUE(enter(middle, picture));
    EXPECT_EQ(answered, Qt::CopyAction);
    EXPECT_TRUE(view->becameDropTarget());
    EXPECT_TRUE(move(middle + QPoint(5, 5), picture));
    EXPECT_EQ(answered, Qt::CopyAction);
}

TEST_F(DropTest, theVeilIsAFifthOfGreen)
{
    install(500, 400);
    show();
    const QPoint clearOfAxes(100, 100);
    EXPECT_EQ(colourAt(clearOfAxes), QColor(0, 0, 255));
    enter(middle, picture);
    const QColor veiled = colourAt(clearOfAxes);
    EXPECT_EQ(veiled.red(), 0);
    EXPECT_NEAR(veiled.green(), 51, 1);
    EXPECT_NEAR(veiled.blue(), 204, 1);
}

TEST_F(DropTest, theVeilLiesOnTheAxesToo)
{
    install(500, 400);
    show();
    enter(middle, picture);
    // The red square of the axes' recorder stands 20 above the bottom.
    const QColor veiled = colourAt({12, view->height() - 22});
    EXPECT_NEAR(veiled.red(), 204, 1);
    EXPECT_NEAR(veiled.green(), 51, 1);
}

TEST_F(DropTest, anEmptyViewIsVeiledToo)
{
    show();
    enter(middle, picture);
    const QColor veiled = colourAt(middle);
    EXPECT_NEAR(veiled.red(), 204, 1);
    EXPECT_EQ(veiled.green(), 255);
    EXPECT_NEAR(veiled.blue(), 204, 1);
}

TEST_F(DropTest, leavingLiftsTheVeil)
{
    install(500, 400);
    show();
    enter(middle, picture);
    leave();
    EXPECT_FALSE(view->becameDropTarget());
    EXPECT_EQ(colourAt({100, 100}), QColor(0, 0, 255));
}

TEST_F(DropTest, aDropInstallsThePictureAndLiftsTheVeil)
{
    install(500, 400);
    show();
    enter(middle, picture);
    EXPECT_TRUE(drop(middle, picture));
    EXPECT_EQ(answered, Qt::CopyAction);
    EXPECT_FALSE(view->becameDropTarget());
    EXPECT_EQ(view->hoveringDrag(), GraphImageView::HoveringDrag::None);
    EXPECT_EQ(view->imageSize(), (FloatSize{330, 200}));
}

TEST_F(DropTest, theVeilIsLiftedBeforeThePictureIsRead)
{
    install(500, 400);
    show();
    enter(middle, picture);
    bool veiled = true;
    around.whenAnchorRectsAreMade = [&] { veiled = view->becameDropTarget(); };
    drop(middle, picture);
    EXPECT_FALSE(veiled);
}

TEST_F(DropTest, theVeilTakesThePlaceOfADraggedRectangle)
{
    install(500, 400);
    show();
    constexpr auto zoomInKeys = Qt::ControlModifier | Qt::AltModifier;
    press({100, 100}, zoomInKeys);
    drag({100, 100}, zoomInKeys);
    const QPoint onRectangle(101, 100);
    EXPECT_NE(colourAt(onRectangle), QColor(0, 0, 255));
    view->draggingEntered(&picture);
    EXPECT_EQ(colourAt(onRectangle), colourAt({150, 150}));
    view->draggingExited();
    EXPECT_NE(colourAt(onRectangle), QColor(0, 0, 255));
}

TEST_F(DropTest, theAreaBesideASmallPictureTakesDrops)
{
    install(330, 200);
    show();
    const QPoint beside(390, 290);
    ASSERT_FALSE(view->geometry().contains(beside));
    EXPECT_TRUE(enter(beside, picture));
    EXPECT_TRUE(move(middle, picture));
    EXPECT_TRUE(view->becameDropTarget());
    EXPECT_TRUE(drop(beside, picture));
}

TEST_F(DropTest, theScrollBarsTakeDrops)
{
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    install(500, 400);
    show();
    const QPoint onBar = area->horizontalScrollBar()->mapTo(&window, QPoint(20, 4));
    EXPECT_TRUE(enter(onBar, picture));
    EXPECT_TRUE(view->becameDropTarget());
}

TEST_F(DropTest, theViewItselfIsReachedByDrags)
{
    install(500, 400);
    show();
    QDragEnterEvent event(QPoint(50, 50), everything, &picture, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &event);
    EXPECT_TRUE(event.isAccepted());
    EXPECT_TRUE(view->becameDropTarget());
    QDragLeaveEvent left;
    QCoreApplication::sendEvent(view, &left);
    EXPECT_FALSE(view->becameDropTarget());
}

TEST_F(DropTest, whatIsNoPictureIsRefused)
{
    install(500, 400);
    show();
    EXPECT_FALSE(enter(middle, text));
    EXPECT_FALSE(move(middle, text));
    EXPECT_FALSE(view->becameDropTarget());
    EXPECT_EQ(view->hoveringDrag(), GraphImageView::HoveringDrag::NoPicture);
    EXPECT_EQ(colourAt({100, 100}), QColor(0, 0, 255));
}

TEST_F(DropTest, aDragThatMayNotBeCopiedIsRefused)
{
    install(500, 400);
    show();
    EXPECT_FALSE(enter(middle, picture, Qt::MoveAction | Qt::LinkAction));
    EXPECT_FALSE(view->becameDropTarget());
}

TEST_F(DropTest, onTheDigitizingPageEveryDragIsRefused)
{
    install(500, 400);
    show();
    around.axisSetting = false;
    EXPECT_FALSE(enter(middle, picture));
    EXPECT_EQ(view->hoveringDrag(), GraphImageView::HoveringDrag::WhileDigitizing);
}

TEST_F(DropTest, aRefusedDragIsForgottenWhenItLeavesTheWindow)
{
    install(500, 400);
    show();
    enter(middle, text);
    leave();
    EXPECT_EQ(view->hoveringDrag(), GraphImageView::HoveringDrag::None);
}

TEST_F(DropTest, aRefusedDragIsForgottenWhenItLeavesTheArea)
{
    auto *below = new QWidget(&window);
    below->setFixedHeight(50);
    window.layout()->addWidget(below);
    install(500, 400);
    show();
    enter({100, 100}, text);
    move({100, 110}, text);
    EXPECT_EQ(view->hoveringDrag(), GraphImageView::HoveringDrag::NoPicture);
    move({100, 280}, text);
    EXPECT_EQ(view->hoveringDrag(), GraphImageView::HoveringDrag::None);
    EXPECT_TRUE(move({100, 100}, picture));
}

TEST_F(DropTest, aPageThatChangedDuringTheDragRefusesTheDrop)
{
    install(500, 400);
    show();
    enter(middle, picture);
    around.axisSetting = false;
    EXPECT_FALSE(drop(middle, picture));
    EXPECT_FALSE(view->becameDropTarget());
    EXPECT_EQ(view->imageSize(), (FloatSize{500, 400}));
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(DropTest, aDropThatGivesNoPictureIsRefused)
{
    install(500, 400);
    show();
    QMimeData missing;
    missing.setUrls({QUrl::fromLocalFile("/no/such/chart.png")});
    EXPECT_TRUE(enter(middle, missing));
    EXPECT_FALSE(drop(middle, missing));
    EXPECT_FALSE(view->becameDropTarget());
    EXPECT_EQ(around.sheetsShown.size(), 1U);
    EXPECT_EQ(view->imageSize(), (FloatSize{500, 400}));
}
