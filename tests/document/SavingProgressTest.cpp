#include "document/SavingProgress.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <QtGlobal>

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

class SavingProgressTest : public testing::Test
{
protected:
    [[nodiscard]] QToolButton &button() const { return *progress.findChild<QToolButton *>(); }
    [[nodiscard]] QString text() const { return progress.findChild<QLabel *>()->text(); }

    SavingProgress progress;
};

/// The progress in a window with a field and a button, of which the button has the focus.
class SavingProgressInAWindow : public testing::Test
{
protected:
    SavingProgressInAWindow()
    {
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *part : std::initializer_list<QWidget *>{field, button, progress})
            layout->addWidget(part);
        progress->showPreparing(QStringLiteral("a.crvgrab"));
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        button->setFocus();
    }

    int cancelledByEscape(QWidget *focused)
    {
        const QSignalSpy cancelled(progress, &SavingProgress::cancelled);
        QTest::keyClick(focused, Qt::Key_Escape);
        return static_cast<int>(cancelled.count());
    }

    QWidget window;
    QLineEdit *field = new QLineEdit(&window);
    QToolButton *button = new QToolButton(&window);
    SavingProgress *progress = new SavingProgress(&window);
};

} // namespace

TEST_F(SavingProgressInAWindow, preparingIsCancelledByEscape)
{
    EXPECT_EQ(cancelledByEscape(button), 1);
}

TEST_F(SavingProgressInAWindow, writingIsNot)
{
    progress->showWriting(QStringLiteral("a.crvgrab"));
    EXPECT_EQ(cancelledByEscape(button), 0);
}

TEST_F(SavingProgressInAWindow, afterTheSaveEscapeMeansNothing)
{
    progress->hide();
    EXPECT_EQ(cancelledByEscape(button), 0);
}

TEST_F(SavingProgressInAWindow, otherKeysCancelNothing)
{
    const QSignalSpy cancelled(progress, &SavingProgress::cancelled);
    QTest::keyClick(button, Qt::Key_Backspace);
    EXPECT_EQ(cancelled.count(), 0);
}

TEST_F(SavingProgressInAWindow, escapeInAFieldThatIsBeingEditedIsItsOwn)
{
    field->setFocus();
    EXPECT_EQ(cancelledByEscape(field), 1);
    QTest::keyClicks(field, QStringLiteral("1.5"));
    EXPECT_EQ(cancelledByEscape(field), 0);
}

TEST_F(SavingProgressInAWindow, escapeDuringADragIsItsOwn)
{
    const QPoint somewhere(2, 2);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, somewhere);
    EXPECT_EQ(cancelledByEscape(button), 0);
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, somewhere);
    EXPECT_EQ(cancelledByEscape(button), 1);
}

TEST_F(SavingProgressTest, preparingCanBeCancelled)
{
    progress.showPreparing(QStringLiteral("a.crvgrab"));
    EXPECT_TRUE(progress.isVisible());
    EXPECT_EQ(text(), qtTrId("document.saving.preparing").arg(QStringLiteral("a.crvgrab")));
    const QSignalSpy cancelled(&progress, &SavingProgress::cancelled);
    button().setFocus();
    QTest::keyClick(&button(), Qt::Key_Space);
    EXPECT_EQ(cancelled.count(), 1);
}

TEST_F(SavingProgressTest, writingCannot)
{
    progress.showPreparing(QStringLiteral("a.crvgrab"));
    progress.showWriting(QStringLiteral("a.crvgrab"));
    EXPECT_EQ(text(), qtTrId("document.saving").arg(QStringLiteral("a.crvgrab")));
    EXPECT_FALSE(button().isVisible());
}

TEST_F(SavingProgressTest, aLongNameIsShortened)
{
    progress.showWriting(QString(200, QLatin1Char('a')) + QStringLiteral(".crvgrab"));
    EXPECT_LT(text().size(), 80);
    EXPECT_TRUE(text().contains(QStringLiteral("…")));
}
