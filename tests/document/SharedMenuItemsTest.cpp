#include "document/TestDocument.h"

#include <gtest/gtest.h>

// The menu items that all documents share, which follow the one in use.

namespace {

void activate(MyDocument &document)
{
    document.window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&document.window()));
}

/// A second document of the application of `test`, in a shown window.
std::unique_ptr<MyDocument> secondDocument(TestDocument &test)
{
    auto second = std::make_unique<MyDocument>(test.services);
    second->showWindow();
    return second;
}

} // namespace

TEST(SharedMenuItems, theTableItemFollowsTheDocumentThatBecomesKey)
{
    TestDocument first;
    const auto second = secondDocument(first);
    activate(*second);
    second->showHideDataTable();
    EXPECT_EQ(first.services.showHideTable.text(), qtTrId("ShowTable"));
    activate(*first.document);
    EXPECT_EQ(first.services.showHideTable.text(), qtTrId("HideTable"));
    activate(*second);
    EXPECT_EQ(first.services.showHideTable.text(), qtTrId("ShowTable"));
}

TEST(SharedMenuItems, theLockItemsFollowTheDocumentThatBecomesKey)
{
    TestDocument first;
    activate(*first.document);
    first.digitize();
    first.document->lockUnlockX();
    first.document->lockUnlockY();
    const QString unlockX = first.services.lockUnlockX.text();
    const QString unlockY = first.services.lockUnlockY.text();
    const auto second = secondDocument(first);
    activate(*second);
    EXPECT_EQ(first.services.lockUnlockX.text(), qtTrId("LockXValue"));
    EXPECT_EQ(first.services.lockUnlockY.text(), qtTrId("LockYValue"));
    EXPECT_FALSE(first.services.lockUnlockX.isEnabled());
    EXPECT_FALSE(first.services.lockUnlockY.isEnabled());
    activate(*first.document);
    EXPECT_EQ(first.services.lockUnlockX.text(), unlockX);
    EXPECT_EQ(first.services.lockUnlockY.text(), unlockY);
    EXPECT_NE(unlockX, qtTrId("LockXValue"));
    EXPECT_NE(unlockY, qtTrId("LockYValue"));
    EXPECT_TRUE(first.services.lockUnlockX.isEnabled());
    EXPECT_TRUE(first.services.lockUnlockY.isEnabled());
}

TEST(SharedMenuItems, aDocumentInTheBackgroundLeavesTheLockItemsAlone)
{
    TestDocument first;
    const auto second = secondDocument(first);
    activate(*first.document);
    first.digitize();
    EXPECT_TRUE(first.services.lockUnlockX.isEnabled());
    second->showsChanged();
    EXPECT_TRUE(first.services.lockUnlockX.isEnabled());
}
