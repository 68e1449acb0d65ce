#include "document/TestDocument.h"

#include "document/EmptyPictureHint.h"
#include "imageview/ReadingProgress.h"
#include "platform/TextField.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

std::unique_ptr<QMimeData> picture()
{
    QImage image(330, 200, QImage::Format_RGB32);
    image.fill(Qt::red);
    auto content = std::make_unique<QMimeData>();
    content->setImageData(image);
    return content;
}

std::unique_ptr<QMimeData> text()
{
    auto content = std::make_unique<QMimeData>();
    content->setText(QStringLiteral("12.5"));
    return content;
}

/// A document whose window is the key window.
class DocumentPasteTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        test.document->window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&test.document->window()));
    }

    void put(std::unique_ptr<QMimeData> content)
    {
        test.services.fakePasteboard.setContent(std::move(content));
    }
    FloatSize size() const { return test.document->imageSize(); }
    QString hint() const
    {
        return test.document->window().findChild<QLabel *>("statusHint")->text();
    }
    /// Brings a drag over the middle of the picture area; whether it is accepted.
    bool drag(const QMimeData &dragged)
    {
        const QWidget *area = test.ui().pictureScrollArea;
        QDragEnterEvent event(area->mapTo(&test.document->window(), area->rect().center()),
                              Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(test.document->window().windowHandle(), &event);
        return event.isAccepted();
    }
    void endDrag()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(test.document->window().windowHandle(), &event);
    }

    TestDocument test;
    const FloatSize before{500, 400};
};

} // namespace

TEST_F(DocumentPasteTest, theCommandHasItsRuleAndItsKeys)
{
    ASSERT_NE(test.action("paste"), nullptr);
    EXPECT_EQ(test.action("paste")->property("tag").toInt(), 7002);
    EXPECT_TRUE(test.action("paste")->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_V)));
}

TEST_F(DocumentPasteTest, theCommandFollowsThePasteboard)
{
    EXPECT_FALSE(test.action("paste")->isEnabled());
    put(picture());
    EXPECT_TRUE(test.action("paste")->isEnabled());
    put(text());
    EXPECT_FALSE(test.action("paste")->isEnabled());
}

TEST_F(DocumentPasteTest, theDigitizingPageTakesNoPicture)
{
    put(picture());
    test.digitize();
    EXPECT_FALSE(test.action("paste")->isEnabled());
    test.setAxes();
    EXPECT_TRUE(test.action("paste")->isEnabled());
}

TEST_F(DocumentPasteTest, pastingReplacesThePicture)
{
    put(picture());
    test.command("paste");
    EXPECT_EQ(size(), (FloatSize{330, 200}));
}

TEST_F(DocumentPasteTest, theKeysPasteIntoThePicture)
{
    put(picture());
    test.document->graphView().setFocus();
    QTest::keyClick(&test.document->graphView(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(size(), (FloatSize{330, 200}));
}

TEST_F(DocumentPasteTest, theKeysPasteTextIntoAField)
{
    put(picture());
    QApplication::clipboard()->setText(QStringLiteral("12.5"));
    QLineEdit *field = test.ui().maxXTextField;
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field->text(), QStringLiteral("12.5"));
    EXPECT_EQ(size(), before);
}

TEST_F(DocumentPasteTest, theRuleIsLookedAtOnceMoreBeforeTheCommandActs)
{
    put(picture());
    test.document->windowDidResignKey();
    put(text());
    ASSERT_TRUE(test.action("paste")->isEnabled()); // nobody looks at this window
    test.command("paste");
    EXPECT_EQ(size(), before);
    EXPECT_TRUE(test.services.sheets->presented().empty());
}

TEST_F(DocumentPasteTest, aWindowThatComesToTheFrontKnowsThePasteboard)
{
    test.document->windowDidResignKey();
    put(picture());
    test.document->windowDidBecomeKey();
    EXPECT_TRUE(test.action("paste")->isEnabled());
}

TEST_F(DocumentPasteTest, thePasteboardIsLookedAtOncePerChange)
{
    put(picture());
    const int asked = test.services.fakePasteboard.askedCount();
    test.document->showsChanged();
    test.document->showsChanged();
    EXPECT_EQ(test.services.fakePasteboard.askedCount(), asked);
}

TEST(DocumentStart, thePasteboardIsLookedAtWhenTheWindowWasPainted)
{
    TestServices services;
    services.fakePasteboard.setContent(picture());
    MyDocument document(services);
    document.showWindow();
    document.window().activateWindow();
    EXPECT_EQ(services.fakePasteboard.askedCount(), 0);
    const auto *paste = document.window().findChild<QAction *>("paste");
    EXPECT_TRUE(QTest::qWaitFor([paste] { return paste->isEnabled(); }));
}

TEST_F(DocumentPasteTest, aDamagedImageIsToldAndKeepsThePicture)
{
    auto damaged = std::make_unique<QMimeData>();
    damaged->setData("image/png", "no picture");
    put(std::move(damaged));
    test.command("paste");
    EXPECT_EQ(size(), before);
    ASSERT_EQ(test.services.sheets->presented().size(), 1U);
    EXPECT_EQ(test.services.sheets->presented()[0].informativeText,
              qtTrId("imageview.pasted.not-a-picture"));
}

TEST_F(DocumentPasteTest, theStatusLineSaysWhatADropWouldDo)
{
    const auto dragged = picture();
    EXPECT_TRUE(drag(*dragged));
    EXPECT_EQ(hint(), qtTrId("document.status.dropReplaces"));
    endDrag();
    EXPECT_NE(hint(), qtTrId("document.status.dropReplaces"));
}

TEST_F(DocumentPasteTest, theStatusLineSaysWhyADragIsRefused)
{
    const auto number = text();
    EXPECT_FALSE(drag(*number));
    EXPECT_EQ(hint(), qtTrId("document.status.dropNoPicture"));
    endDrag();
    test.digitize();
    const auto dragged = picture();
    EXPECT_FALSE(drag(*dragged));
    EXPECT_EQ(hint(), qtTrId("document.status.dropWhileDigitizing"));
    endDrag();
    EXPECT_NE(hint(), qtTrId("document.status.dropWhileDigitizing"));
}

TEST(DocumentWindow, theWordsInAnEmptyWindowMakeRoomForTheProgressOfAReading)
{
    TestDocument test{QSize(0, 0)};
    DocumentWindow &window = test.document->window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto *words = window.findChild<EmptyPictureHint *>();
    ASSERT_TRUE(words->isVisible());
    const QList<ReadingProgress *> panels = window.findChildren<ReadingProgress *>();
    EXPECT_GE(panels.size(), 3); // of documents, pictures and PDF files
    for (ReadingProgress *panel : panels) {
        panel->showFor(QStringLiteral("chart.png"));
        EXPECT_FALSE(words->isVisible());
        panel->hide();
        EXPECT_TRUE(words->isVisible());
    }
}

TEST(DocumentDrop, theWordsInAnEmptyWindowTakeDrops)
{
    TestDocument test{QSize(0, 0)};
    DocumentWindow &window = test.document->window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    auto *words = window.findChild<EmptyPictureHint *>();
    ASSERT_TRUE(words->isVisible());
    const QPoint position = words->mapTo(&window, words->rect().center());
    const auto dragged = picture();
    QDragEnterEvent entered(position, Qt::CopyAction, dragged.get(), Qt::LeftButton,
                            Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &entered);
    EXPECT_TRUE(entered.isAccepted());
    QDropEvent dropped(position, Qt::CopyAction, dragged.get(), Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &dropped);
    EXPECT_EQ(test.document->imageSize(), (FloatSize{330, 200}));
    EXPECT_FALSE(words->isVisible());
}
