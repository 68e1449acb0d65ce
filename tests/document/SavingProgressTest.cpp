#include "document/SavingProgress.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QtGlobal>

#include <gtest/gtest.h>

namespace {

class SavingProgressTest : public testing::Test
{
protected:
    [[nodiscard]] QToolButton &button() const { return *progress.findChild<QToolButton *>(); }
    [[nodiscard]] QString text() const { return progress.findChild<QLabel *>()->text(); }

    SavingProgress progress;
};

} // namespace

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
