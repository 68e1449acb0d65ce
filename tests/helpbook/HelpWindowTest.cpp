#include "helpbook/HelpWindow.h"

#include "helpbook/HelpBookViewer.h"
#include "helpbook/SampleBook.h"
#include "platform/StateFile.h"
#include "support/ControlNames.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <QWindow>

namespace {

class HelpWindowTest : public ::testing::Test
{
protected:
    HelpWindowTest()
        : m_state(m_folder.filePath(QStringLiteral("help.json")))
    {
        makeWindow();
    }

    void makeWindow()
    {
        window = std::make_unique<HelpWindow>(QStringLiteral("Help"), m_sample.book(), m_state);
    }

    void show(const QString &anchor = {})
    {
        window->showAnchor(anchor);
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <class T>
    [[nodiscard]] T *child(const char *name) const
    {
        return window->findChild<T *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QTextBrowser *page() const { return child<QTextBrowser>("helpPage"); }
    [[nodiscard]] QString pageTitle() const { return page()->documentTitle(); }
    [[nodiscard]] QListWidget *contents() const { return child<QListWidget>("helpContents"); }
    [[nodiscard]] QLineEdit *findText() const { return child<QLineEdit>("helpFindText"); }
    [[nodiscard]] QString findResult() const { return child<QLabel>("helpFindResult")->text(); }

    void find(const QString &text)
    {
        QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return findText()->hasFocus(); }));
        QTest::keyClicks(findText(), text);
    }

    std::unique_ptr<HelpWindow> window;

private:
    QTemporaryDir m_folder;
    StateFile m_state;
    SampleBook m_sample;
};

} // namespace

TEST_F(HelpWindowTest, opensAtTheFirstPageWithoutAnAnchor)
{
    show();
    EXPECT_EQ(pageTitle(), QStringLiteral("First page"));
    EXPECT_EQ(contents()->currentRow(), 0);
    EXPECT_EQ(contents()->count(), 3);
}

TEST_F(HelpWindowTest, opensAtTheFirstPageForAnUnknownAnchor)
{
    show(QStringLiteral("shallow"));
    EXPECT_EQ(pageTitle(), QStringLiteral("First page"));
}

TEST_F(HelpWindowTest, opensScrolledToAnAnchor)
{
    show(QStringLiteral("deep"));
    EXPECT_EQ(pageTitle(), QStringLiteral("Second page"));
    EXPECT_EQ(contents()->currentRow(), 1);
    EXPECT_GT(page()->verticalScrollBar()->value(), 0);
}

TEST_F(HelpWindowTest, afterOpeningAtAnAnchorThereIsNoWayBack)
{
    show(QStringLiteral("deep"));
    EXPECT_FALSE(child<QAction>("helpBack")->isEnabled());
}

TEST_F(HelpWindowTest, aClickOnTheContentsOpensThePage)
{
    show();
    const QRect item = contents()->visualItemRect(contents()->item(2));
    QTest::mouseClick(contents()->viewport(), Qt::LeftButton, {}, item.center());
    EXPECT_TRUE(page()->toPlainText().startsWith(QStringLiteral("Notes")));
}

TEST_F(HelpWindowTest, pagesShowTheKeysOfCommands)
{
    show();
    EXPECT_TRUE(page()->toPlainText().contains(QStringLiteral("Press Ctrl+<")));
}

TEST_F(HelpWindowTest, backAndForwardGoThroughTheVisitedPages)
{
    show();
    auto *back = child<QAction>("helpBack");
    auto *forward = child<QAction>("helpForward");
    EXPECT_FALSE(back->isEnabled());
    contents()->setCurrentRow(1);
    EXPECT_TRUE(back->isEnabled());
    QTest::keyClick(window.get(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(pageTitle(), QStringLiteral("First page"));
    EXPECT_EQ(contents()->currentRow(), 0);
    EXPECT_TRUE(forward->isEnabled());
    QTest::keyClick(window.get(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(pageTitle(), QStringLiteral("Second page"));
    EXPECT_EQ(contents()->currentRow(), 1);
}

TEST_F(HelpWindowTest, findSelectsTheFirstMatchWhileOneTypes)
{
    show();
    find(QStringLiteral("wal"));
    EXPECT_EQ(page()->textCursor().selectedText(), QStringLiteral("wal"));
    EXPECT_EQ(findResult(), QStringLiteral("1 match"));
    EXPECT_EQ(page()->extraSelections().size(), 1);
}

TEST_F(HelpWindowTest, findIgnoresCaseAndGoesRound)
{
    show();
    find(QStringLiteral("whale"));
    EXPECT_EQ(findResult(), QStringLiteral("2 matches"));
    const int first = page()->textCursor().selectionStart();
    QTest::keyClick(findText(), Qt::Key_Return);
    EXPECT_EQ(page()->textCursor().selectedText(), QStringLiteral("Whale"));
    QTest::keyClick(window.get(), Qt::Key_F3);
    EXPECT_EQ(page()->textCursor().selectionStart(), first);
    QTest::keyClick(window.get(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page()->textCursor().selectedText(), QStringLiteral("Whale"));
}

TEST_F(HelpWindowTest, findSaysWhenThereIsNothing)
{
    show();
    find(QStringLiteral("narwhal"));
    EXPECT_EQ(findResult(), QStringLiteral("Not on this page"));
}

TEST_F(HelpWindowTest, anotherPageIsSearchedAgain)
{
    show();
    find(QStringLiteral("deep"));
    EXPECT_EQ(findResult(), QStringLiteral("Not on this page"));
    contents()->setCurrentRow(1);
    EXPECT_EQ(findResult(), QStringLiteral("1 match"));
}

TEST_F(HelpWindowTest, escapeClosesTheSearchFirstAndThenTheWindow)
{
    show();
    find(QStringLiteral("whale"));
    QTest::keyClick(findText(), Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(findText()->isVisible());
    EXPECT_TRUE(page()->extraSelections().isEmpty());
    EXPECT_TRUE(page()->hasFocus());
    QTest::keyClick(page(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HelpWindowTest, theCloseKeysCloseIt)
{
    show();
    QTest::keyClick(window.get(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HelpWindowTest, keysMakeTheTextLargerSmallerAndNormal)
{
    show();
    const double normal = page()->font().pointSizeF();
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(page()->font().pointSizeF(), normal + 2);
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(page()->font().pointSizeF(), normal + 1);
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(page()->font().pointSizeF(), normal);
}

TEST_F(HelpWindowTest, placeSizeAndTextSizeAreRemembered)
{
    show();
    const double normal = page()->font().pointSizeF();
    window->setGeometry(61, 72, 801, 602);
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    window->close();
    makeWindow();
    EXPECT_EQ(window->geometry(), QRect(61, 72, 801, 602));
    EXPECT_EQ(page()->font().pointSizeF(), normal + 1);
}

TEST_F(HelpWindowTest, everyButtonSaysItsKeys)
{
    show();
    for (const char *name :
         {"helpBack", "helpForward", "helpFind", "helpSmaller", "helpNormal", "helpLarger"}) {
        const auto *action = child<QAction>(name);
        EXPECT_TRUE(
            action->toolTip().contains(action->shortcut().toString(QKeySequence::NativeText)))
            << name;
        EXPECT_FALSE(action->toolTip().contains(QStringLiteral("%1"))) << name;
    }
}

TEST_F(HelpWindowTest, noKeyOfATextShows)
{
    show();
    find(QStringLiteral("whale"));
    QStringList texts;
    for (const QAction *action : window->findChildren<QAction *>())
        texts << action->text() << action->toolTip();
    for (const QWidget *widget : window->findChildren<QWidget *>())
        texts << widget->toolTip() << widget->accessibleName();
    for (const QLabel *label : window->findChildren<QLabel *>())
        texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("&Find:")));
    EXPECT_TRUE(texts.filter(QStringLiteral("help.")).isEmpty())
        << qPrintable(texts.filter(QStringLiteral("help.")).join(' '));
}

TEST_F(HelpWindowTest, anOpenHelpWindowDoesNotKeepTheProgramRunning)
{
    EXPECT_FALSE(window->testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(HelpWindowTest, canBeUsedBesideAPanelThatKeepsTheOthersWaiting)
{
    QDialog panel;
    panel.setWindowModality(Qt::ApplicationModal);
    panel.show();
    window->showAnchor({});
    EXPECT_EQ(window->windowHandle()->transientParent(), panel.windowHandle());
    panel.close();
    window->showAnchor({});
    EXPECT_EQ(window->windowHandle()->transientParent(), nullptr);
}

TEST(HelpBookViewer, opensTheProgramsBookAtAnAnchor)
{
    const QTemporaryDir folder;
    HelpBookViewer viewer(folder.filePath(QStringLiteral("help.json")), {});
    viewer.openHelpAnchor(QString::fromLatin1(helpbook::digitizing),
                          QString::fromLatin1(helpbook::bookName));
    ASSERT_NE(viewer.window(), nullptr);
    EXPECT_TRUE(viewer.window()->isVisible());
    EXPECT_EQ(viewer.window()->windowTitle(), QStringLiteral("Curvegrab X Help"));
    const auto *page = viewer.window()->findChild<QTextBrowser *>(QStringLiteral("helpPage"));
    EXPECT_TRUE(page->source().path().endsWith(QStringLiteral("/digitizing.html")));
}

TEST(HelpBookViewer, knowsNoOtherBook)
{
    const QTemporaryDir folder;
    HelpBookViewer viewer(folder.filePath(QStringLiteral("help.json")), {});
    viewer.openHelpAnchor({}, QStringLiteral("Another Help"));
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST(HelpBookViewer, keepsOneWindow)
{
    const QTemporaryDir folder;
    HelpBookViewer viewer(folder.filePath(QStringLiteral("help.json")), {});
    viewer.openHelpAnchor({}, QString::fromLatin1(helpbook::bookName));
    const HelpWindow *first = viewer.window();
    viewer.openHelpAnchor(QString::fromLatin1(helpbook::axisSettings),
                          QString::fromLatin1(helpbook::bookName));
    EXPECT_EQ(viewer.window(), first);
}

TEST_F(HelpWindowTest, everyControlHasAName)
{
    show();
    EXPECT_EQ(controlnames::unnamed(*window).join(u'\n').toStdString(), "");
}
