#include "imageview/ChoosePageController.h"

#include "imageview/ChoosePdfView.h"
#include "imageview/PageSource.h"
#include "support/ControlNames.h"
#include "ui_ChoosePagePanel.h"

#include <QPointF>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <vector>

namespace {

/// A document that paints a page when the test says so.
class PagesOnDemand final : public PageSource
{
public:
    explicit PagesOnDemand(int count)
        : m_count(count)
    {}

    QString name() const override { return QStringLiteral("paper 1%.pdf"); }
    int numberOfPages() const override { return m_count; }
    void preview(int page, double pixelsPerPoint,
                 std::function<void(const QImage &)> painted) override
    {
        previewed.push_back(page);
        finerBy = pixelsPerPoint;
        paint = std::move(painted);
    }
    void getImageOfPage(int page, float withScale,
                        std::function<void(const PictureReading &)> read) override
    {
        readPage = page;
        readScale = withScale;
        read({Picture::fromImageRep(QImage(400, 300, QImage::Format_RGB32)), {}, {}});
    }

    std::vector<int> previewed;
    double finerBy = 0;
    std::function<void(const QImage &)> paint;
    std::optional<int> readPage;
    float readScale = 0;

private:
    int m_count;
};

class ChoosePageControllerTest : public testing::Test
{
protected:
    void choose(int pages)
    {
        document.emplace(pages);
        controller.chooseAPageOf(*document, 4, &window, [this](const PictureReading &reading) {
            ++ends;
            ended = reading;
        });
        panel = controller.choosePagePanel();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(panel));
        panel->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(panel));
    }
    template <class Control>
    Control *control(const char *name) const
    {
        return panel->findChild<Control *>(QString::fromLatin1(name));
    }
    ChoosePdfView *view() const { return control<ChoosePdfView>("pageView"); }
    QLineEdit *field() const { return control<QLineEdit>("pageField"); }
    PageSlider *slider() const { return control<PageSlider>("pageSlider"); }
    void click(const char *button) const
    {
        QTest::mouseClick(control<QWidget>(button), Qt::LeftButton);
    }
    void scroll(int eighths) const
    {
        const QPointF middle = QRectF(view()->rect()).center();
        QWheelEvent event(middle, view()->mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view(), &event);
    }
    void type(const QString &text) const
    {
        field()->selectAll();
        QTest::keyClicks(field(), text);
    }

    QWidget window;
    ChoosePageController controller;
    std::optional<PagesOnDemand> document;
    QDialog *panel = nullptr;
    PictureReading ended;
    int ends = 0;
};

} // namespace

TEST_F(ChoosePageControllerTest, opensApplicationModalAtPageOneAndReturns)
{
    choose(12);
    EXPECT_EQ(panel->objectName(), "choosePagePanel");
    EXPECT_EQ(panel->windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(panel->windowTitle().contains("“paper 1%.pdf”"));
    EXPECT_EQ(controller.currentPage(), 1);
    EXPECT_EQ(document->previewed, std::vector<int>{1});
    EXPECT_EQ(field()->text(), "1");
    EXPECT_EQ(slider()->integerValue(), -1);
    EXPECT_EQ(control<QLabel>("currentPageText")->text(), "Page 1 of 12");
    EXPECT_EQ(ends, 0);
}

TEST_F(ChoosePageControllerTest, theSliderFollowsTheNumberOfPages)
{
    choose(25);
    EXPECT_EQ(slider()->numberOfTickMarks(), 20);
    EXPECT_FALSE(slider()->allowsTickMarkValuesOnly());
    click("cancelButton");
    choose(12);
    EXPECT_EQ(slider()->numberOfTickMarks(), 12);
    EXPECT_TRUE(slider()->allowsTickMarkValuesOnly());
}

TEST_F(ChoosePageControllerTest, everyOpeningStartsAgain)
{
    choose(12);
    controller.setPageImage(5);
    click("cancelButton");
    choose(3);
    EXPECT_EQ(controller.currentPage(), 1);
    EXPECT_EQ(control<QLabel>("currentPageText")->text(), "Page 1 of 3");
}

TEST_F(ChoosePageControllerTest, buttonsTurnPages)
{
    choose(12);
    click("nextButton");
    click("nextButton");
    EXPECT_EQ(controller.currentPage(), 3);
    click("prevButton");
    EXPECT_EQ(controller.currentPage(), 2);
    EXPECT_EQ(field()->text(), "2");
    EXPECT_EQ(slider()->integerValue(), -2);
}

TEST_F(ChoosePageControllerTest, beyondTheEndsNothingChanges)
{
    choose(3);
    controller.prevPage();
    EXPECT_EQ(controller.currentPage(), 1);
    controller.setPageImage(3);
    controller.nextPage();
    EXPECT_EQ(controller.currentPage(), 3);
    EXPECT_EQ(document->previewed, (std::vector<int>{1, 3}));
}

TEST_F(ChoosePageControllerTest, thePresentPageIsNotPaintedAgain)
{
    choose(3);
    controller.setPageImage(1);
    EXPECT_EQ(document->previewed.size(), 1U);
}

TEST_F(ChoosePageControllerTest, goesToTheTypedPageAndDropsItsFraction)
{
    choose(12);
    type("3.9");
    click("gotoButton");
    EXPECT_EQ(controller.currentPage(), 3);
    EXPECT_EQ(field()->text(), "3");
}

TEST_F(ChoosePageControllerTest, pagesThatThereAreNotAreIgnored)
{
    choose(12);
    for (const char *number : {"0", "13", "-2", "abc", ""}) {
        type(QString::fromLatin1(number));
        click("gotoButton");
        EXPECT_EQ(controller.currentPage(), 1) << number;
    }
}

TEST_F(ChoosePageControllerTest, theFieldShowsThePageAgainAfterANumberThatIsNone)
{
    choose(12);
    type("77");
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(field()->text(), QStringLiteral("1"));
    QTest::keyClicks(field(), QStringLiteral("3"));
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(controller.currentPage(), 3);
}

TEST_F(ChoosePageControllerTest, returnInTheFieldGoesToThePageAndOpensNothing)
{
    choose(12);
    type("7");
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(controller.currentPage(), 7);
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(ChoosePageControllerTest, returnElsewhereOpensThePage)
{
    choose(12);
    click("nextButton");
    QTest::keyClick(view(), Qt::Key_Return);
    EXPECT_EQ(document->readPage, 2);
    EXPECT_EQ(document->readScale, 4);
    EXPECT_TRUE(ended.picture);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(ChoosePageControllerTest, everyControlHasAName)
{
    choose(12);
    EXPECT_EQ(controlnames::unnamed(*panel).join(u'\n').toStdString(), "");
}

TEST_F(ChoosePageControllerTest, escapeCancels)
{
    choose(12);
    QTest::keyClick(view(), Qt::Key_Escape);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(ended.problem, PictureProblem::Cancelled);
    EXPECT_FALSE(document->readPage);
}

TEST_F(ChoosePageControllerTest, keysTurnPages)
{
    choose(12);
    const auto pageAfter = [this](Qt::Key key) {
        QTest::keyClick(slider(), key);
        return controller.currentPage();
    };
    EXPECT_EQ(pageAfter(Qt::Key_PageDown), 2);
    EXPECT_EQ(pageAfter(Qt::Key_Down), 3);
    EXPECT_EQ(pageAfter(Qt::Key_Right), 4);
    EXPECT_EQ(pageAfter(Qt::Key_PageUp), 3);
    EXPECT_EQ(pageAfter(Qt::Key_Up), 2);
    EXPECT_EQ(pageAfter(Qt::Key_Left), 1);
    EXPECT_EQ(pageAfter(Qt::Key_End), 12);
    EXPECT_EQ(pageAfter(Qt::Key_Home), 1);
}

TEST_F(ChoosePageControllerTest, insideTheFieldTheArrowsAreItsOwn)
{
    choose(12);
    QTest::keyClick(field(), Qt::Key_Right);
    QTest::keyClick(field(), Qt::Key_End);
    EXPECT_EQ(controller.currentPage(), 1);
    QTest::keyClick(field(), Qt::Key_PageDown);
    EXPECT_EQ(controller.currentPage(), 2);
}

TEST_F(ChoosePageControllerTest, scrollingDownByANotchGoesToTheNextPage)
{
    choose(12);
    scroll(-120);
    EXPECT_EQ(controller.currentPage(), 2);
    scroll(-360);
    EXPECT_EQ(controller.currentPage(), 5);
    scroll(120);
    EXPECT_EQ(controller.currentPage(), 4);
}

TEST_F(ChoosePageControllerTest, partsOfNotchesAreDroppedAndNeverAddUp)
{
    choose(12);
    for (int i = 0; i < 5; ++i)
        scroll(-119);
    EXPECT_EQ(controller.currentPage(), 1);
    scroll(-239);
    EXPECT_EQ(controller.currentPage(), 2);
}

TEST_F(ChoosePageControllerTest, scrollingStopsAtTheEnds)
{
    choose(12);
    scroll(-120 * 100);
    EXPECT_EQ(controller.currentPage(), 12);
    scroll(120 * 100);
    EXPECT_EQ(controller.currentPage(), 1);
}

TEST_F(ChoosePageControllerTest, theSliderTurnsPages)
{
    choose(12);
    slider()->setSliderDown(true);
    slider()->setSliderPosition(-7000);
    EXPECT_EQ(controller.currentPage(), 7);
}

TEST_F(ChoosePageControllerTest, aDoubleClickChoosesThePage)
{
    choose(12);
    controller.setPageImage(6);
    QTest::mouseClick(view(), Qt::LeftButton);
    EXPECT_EQ(ends, 0);
    QTest::mouseDClick(view(), Qt::LeftButton);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(document->readPage, 6);
}

namespace {

struct QuickClick
{
    QEvent::Type type = QEvent::MouseButtonPress;
    QPointF place;
};

/// How often clicks 50 milliseconds apart choose the page.
int choicesOf(const std::vector<QuickClick> &clicks)
{
    ChoosePdfView alone;
    const QSignalSpy chosen(&alone, &ChoosePdfView::pageChosen);
    quint64 time = 1'000'000;
    for (const QuickClick &click : clicks) {
        QMouseEvent event(click.type, click.place, click.place, Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        event.setTimestamp(time += 50);
        QCoreApplication::sendEvent(&alone, &event);
    }
    return static_cast<int>(chosen.count());
}

} // namespace

TEST(ChoosePdfView, fourQuickClicksAreOneDoubleClick)
{
    EXPECT_EQ(choicesOf({{QEvent::MouseButtonPress, {5, 5}},
                         {QEvent::MouseButtonDblClick, {5, 5}},
                         {QEvent::MouseButtonPress, {5, 5}},
                         {QEvent::MouseButtonDblClick, {5, 5}}}),
              1);
}

TEST(ChoosePdfView, aDoubleClickAfterAQuickClickElsewhereCounts)
{
    EXPECT_EQ(choicesOf({{QEvent::MouseButtonPress, {5, 5}},
                         {QEvent::MouseButtonPress, {90, 90}},
                         {QEvent::MouseButtonDblClick, {91, 90}}}),
              1);
}

TEST_F(ChoosePageControllerTest, pagesTurnAtOnceAndTheirPicturesFollow)
{
    choose(12);
    const auto first = document->paint;
    controller.nextPage();
    EXPECT_EQ(control<QLabel>("currentPageText")->text(), "Page 2 of 12");
    QImage page(60, 80, QImage::Format_RGB32);
    page.fill(Qt::red);
    first(page);
    EXPECT_TRUE(view()->page().isNull()) << "the page was left before it was painted";
    document->paint(page);
    EXPECT_EQ(view()->page().size(), QSize(60, 80));
}

TEST_F(ChoosePageControllerTest, aSlowPageIsToldAfterAWhile)
{
    choose(12);
    EXPECT_TRUE(view()->note().isEmpty());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !view()->note().isEmpty(); }, 3000));
    document->paint(QImage(60, 80, QImage::Format_RGB32));
    EXPECT_TRUE(view()->note().isEmpty());
}

TEST_F(ChoosePageControllerTest, aPageThatCannotBePaintedIsTold)
{
    choose(12);
    document->paint({});
    EXPECT_FALSE(view()->note().isEmpty());
}

TEST_F(ChoosePageControllerTest, thePreviewIsFittedAndNeverEnlarged)
{
    ChoosePdfView alone;
    alone.resize(224, 324); // 200 x 300 within its margins
    QImage page(1000, 1000, QImage::Format_RGB32);
    page.fill(Qt::red);
    alone.showPage(page);
    const QImage fitted = alone.grab().toImage();
    EXPECT_EQ(fitted.pixelColor(14, 162), QColor(Qt::red));
    EXPECT_EQ(fitted.pixelColor(209, 162), QColor(Qt::red));
    EXPECT_NE(fitted.pixelColor(112, 50), QColor(Qt::red));
    QImage small(50, 50, QImage::Format_RGB32);
    small.fill(Qt::red);
    alone.showPage(small);
    const QImage own = alone.grab().toImage();
    EXPECT_EQ(own.pixelColor(112, 162), QColor(Qt::red));
    EXPECT_NE(own.pixelColor(60, 162), QColor(Qt::red));
}

TEST_F(ChoosePageControllerTest, rememberingItsSize)
{
    choose(12);
    panel->resize(700, 720);
    click("cancelButton");
    QWidget other;
    ChoosePageController second;
    second.chooseAPageOf(*document, 1, &other, [](const PictureReading &) {});
    EXPECT_EQ(second.choosePagePanel()->size(), QSize(700, 720));
    second.cancelOpeing();
}
