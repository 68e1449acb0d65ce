#include "document/ControllerFixture.h"

#include "capture/DataSeries.h"
#include "document/TableDrawer.h"
#include "imageview/GraphImageView.h"
#include "ui_MyDocument.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>

#include <gtest/gtest.h>

// Which window a file gets, and what is remembered of it.
namespace {

class DocumentOpeningTest : public ControllerFixture
{
protected:
    [[nodiscard]] static TableDrawer &drawerOf(const MyDocument &document)
    {
        return *document.window().ui().dataTableDrawer;
    }

    void activate(MyDocument &document)
    {
        document.window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&document.window()));
    }

    /// The submenu of the files that were opened last, as it looks when it comes down.
    [[nodiscard]] QMenu &recentFilesMenu(const MyDocument &document) const
    {
        Q_EMIT document.window().menuBar()->actions().constFirst()->menu()->aboutToShow();
        auto *menu = document.window().findChild<QMenu *>(QStringLiteral("recentFilesMenu"));
        Q_EMIT menu->aboutToShow();
        return *menu;
    }

    /// A copy of a document with these parts only, in a window of its own.
    void openCopyOf(std::initializer_list<const char *> parts)
    {
        const ArchiveDictionary whole = sampleroots::root(sampleroots::Kind::Parallel);
        ArchiveDictionary root;
        for (const char *part : parts)
            root.set(part, *whole.find(part));
        controller.openCopy(put("example.crvgrab", documentarchive::archivedData(root)));
        waitUntilRead();
    }
};

} // namespace

TEST_F(DocumentOpeningTest, aFileWithItsTableHiddenClosesTheDrawerOfTheWindowThatTakesIt)
{
    start({});
    ASSERT_TRUE(drawerOf(document()).isOpen());
    openFiles({putDocument("a.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_FALSE(drawerOf(document()).isOpen());
}

TEST_F(DocumentOpeningTest, aPictureLeavesTheTableOfTheWindowThatTakesItShown)
{
    start({});
    openFiles({putPicture("c.png")});
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_EQ(document().drawerOpenButtonState(), 0);
    EXPECT_TRUE(drawerOf(document()).isOpen());
}

TEST_F(DocumentOpeningTest, anEmptyWindowWithUnsavedChangesIsNotUsedForAFile)
{
    start({});
    document().updateChangeCount(ChangeKind::Done);
    openFiles({putDocument("a.crvgrab")});
    EXPECT_EQ(controller.documents().size(), 2U);
}

TEST_F(DocumentOpeningTest, aCopyWithNothingButPointsIsNotReplacedByAFile)
{
    openCopyOf({documentkeys::dataSeriesData});
    ASSERT_FALSE(document().hasImage());
    openFiles({putDocument("a.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_EQ(document(0).dataSeries().maxRows(), 5);
}

TEST_F(DocumentOpeningTest, aCopyWithNothingButAPictureIsNotReplacedByAFile)
{
    openCopyOf({documentkeys::graphImageViewData});
    ASSERT_TRUE(document().hasImage());
    openFiles({putDocument("a.crvgrab")});
    EXPECT_EQ(controller.documents().size(), 2U);
}

TEST_F(DocumentOpeningTest, ofTwoEmptyWindowsTheOneInUseTakesTheFile)
{
    start({});
    controller.newDocument();
    activate(document(1));
    openFiles({putDocument("a.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_EQ(document(0).dataSeries().maxRows(), 0);
    EXPECT_EQ(document(1).displayName(), "a.crvgrab");
}

TEST_F(DocumentOpeningTest, aFileThatIsOpenComesToTheFront)
{
    const QString first = putDocument("a.crvgrab");
    start({first, putDocument("b.crvgrab")});
    activate(document(1));
    openFiles({first});
    EXPECT_TRUE(QTest::qWaitFor([this] { return document(0).window().isActiveWindow(); }));
}

TEST_F(DocumentOpeningTest, theDocumentBesideAPictureIsOpenedApartFromThePicturesOwn)
{
    start({putPicture("c.png")});
    ASSERT_EQ(document().displayName(), "c.crvgrab");
    openFiles({putDocument("c.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_EQ(document(1).dataSeries().maxRows(), 5);
}

TEST_F(DocumentOpeningTest, aPictureIsRememberedAmongTheRecentFiles)
{
    start({putDocument("a.crvgrab"), putPicture("c.png")});
    EXPECT_EQ(controller.recentFiles().paths(), (QStringList{path("a.crvgrab"), path("c.png")}));
}

TEST_F(DocumentOpeningTest, theRecentFilesAreListedOnceHoweverOftenTheirMenuComesDown)
{
    start({putDocument("a.crvgrab")});
    const auto count = recentFilesMenu(document()).actions().size();
    EXPECT_EQ(recentFilesMenu(document()).actions().size(), count);
}

TEST_F(DocumentOpeningTest, withoutRecentFilesTheirMenuIsDisabled)
{
    start({});
    EXPECT_FALSE(recentFilesMenu(document()).menuAction()->isEnabled());
    openFiles({putDocument("a.crvgrab")});
    EXPECT_TRUE(recentFilesMenu(document()).menuAction()->isEnabled());
}

TEST_F(DocumentOpeningTest, documentsThatAreDroppedTogetherAreAllOpened)
{
    start({});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(putDocument("a.crvgrab")),
                  QUrl::fromLocalFile(putDocument("b.crvgrab"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&document().window(), &enter);
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&document().window(), &drop);
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.documents().size() == 2; }));
    waitUntilRead();
    EXPECT_EQ(document(1).displayName(), "b.crvgrab");
}

TEST_F(DocumentOpeningTest, sharedCommandsGoToTheDocumentInUse)
{
    start({});
    controller.newDocument();
    activate(document(1));
    controller.sharedItems().showHideTable->trigger();
    EXPECT_TRUE(drawerOf(document(0)).isOpen());
    EXPECT_FALSE(drawerOf(document(1)).isOpen());
}
