#include "document/ControllerFixture.h"

#include "capture/DataSeries.h"
#include "document/ApplicationPanels.h"
#include "imageview/GraphImageView.h"
#include "prefs/PrefsController.h"
#include "ui_MyDocument.h"

#include <QAction>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include <gtest/gtest.h>

using sampleroots::Kind;

namespace {

class DocumentControllerTest : public ControllerFixture
{};

} // namespace

TEST_F(DocumentControllerTest, changedPreferencesReachEveryDocumentThatIsStillOpen)
{
    controller.start(
        {putDocument("a.crvgrab"), putDocument("b.crvgrab"), putDocument("c.crvgrab")});
    document(0).window().close();
    ASSERT_EQ(controller.documents().size(), 2U);
    const auto markerSize = [this](std::size_t index) {
        return document(index).window().ui().markerPreview->markerSize();
    };
    for (std::size_t index : {0U, 1U}) {
        document(index).showDigitizing();
        ASSERT_EQ(markerSize(index), 8.0F);
    }
    controller.editPreferences();
    QDialog &panel = controller.panels().prefsController().prefsWindow();
    auto *size = panel.findChild<QLineEdit *>(QStringLiteral("markerSizeTex1"));
    size->selectAll();
    QTest::keyClicks(size, QStringLiteral("12"));
    QTest::mouseClick(panel.findChild<QPushButton *>(QStringLiteral("okButton")), Qt::LeftButton);
    EXPECT_EQ(markerSize(0), 12.0F);
    EXPECT_EQ(markerSize(1), 12.0F);
}

TEST_F(DocumentControllerTest, preferencesMayChangeWhileAWindowAsksWhetherToSave)
{
    controller.start({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    document(0).updateChangeCount(ChangeKind::Done);
    document(0).performClose();
    controller.editPreferences();
    QDialog &panel = controller.panels().prefsController().prefsWindow();
    QTest::mouseClick(panel.findChild<QPushButton *>(QStringLiteral("okButton")), Qt::LeftButton);
    press(sheetOf(document(0)), "document.close.dontSave");
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.documents().size() == 1; }));
}

TEST_F(DocumentControllerTest, startsWithOneEmptyWindow)
{
    start({});
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().isUntouched());
    EXPECT_EQ(document().drawerOpenButtonState(), 0);
}

TEST_F(DocumentControllerTest, opensEachFileInAWindowOfItsOwn)
{
    start({putDocument("a.crvgrab"), putDocument("B.CRVGRAB"), putPicture("c.png")});
    ASSERT_EQ(controller.documents().size(), 3U);
    EXPECT_EQ(document(0).dataSeries().maxRows(), 5);
    EXPECT_FALSE(document(0).isDocumentEdited());
    EXPECT_EQ(document(1).displayName(), "B.CRVGRAB");
    EXPECT_EQ(document(2).displayName(), "c.crvgrab");
    EXPECT_TRUE(QTest::qWaitFor([this] { return document(2).hasImage(); }));
}

TEST_F(DocumentControllerTest, anUntouchedWindowIsUsedForAFile)
{
    start({});
    const MyDocument *empty = &document();
    openFiles({putDocument("a.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_EQ(&document(), empty);
    EXPECT_EQ(document().displayName(), "a.crvgrab");
    EXPECT_EQ(document().drawerOpenButtonState(), 1);
    EXPECT_FALSE(document().isDocumentEdited());
    openFiles({putPicture("c.png")});
    EXPECT_EQ(controller.documents().size(), 2U);
}

TEST_F(DocumentControllerTest, anOpenFileIsNotOpenedTwice)
{
    const QString file = putDocument("a.crvgrab");
    ASSERT_TRUE(QFile::link(file, path("link.crvgrab")));
    start({file, file, path("link.crvgrab")});
    EXPECT_EQ(controller.documents().size(), 1U);
}

TEST_F(DocumentControllerTest, whatIsNoDocumentAndNoPictureIsRefused)
{
    start({QDir(putPicture("plot.png")).path()});
    ASSERT_TRUE(QFile::copy(path("plot.png"), path("plot.dat")));
    openFiles({path("plot.dat")});
    EXPECT_EQ(controller.documents().size(), 1U);
    QMessageBox *box = sheetOf(document());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.open.unknownType"));
}

TEST_F(DocumentControllerTest, aMissingFileIsToldInAnEmptyWindowAndForgotten)
{
    controller.recentFiles().add(path("gone.crvgrab"));
    start({path("gone.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 1U);
    QMessageBox *box = sheetOf(document());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.open.missing"));
    EXPECT_TRUE(controller.recentFiles().paths().isEmpty());
}

TEST_F(DocumentControllerTest, aDamagedDocumentOffersWhatIsLeft)
{
    const QByteArray whole = documentarchive::archivedData(sampleroots::root(Kind::Polar, 200));
    start({put("cut.crvgrab", whole.left(whole.size() - 1500))});
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_FALSE(document().hasImage());
    press(sheetOf(document()), "document.open.remains");
    EXPECT_TRUE(document().hasImage());
    EXPECT_GT(document().dataSeries().maxRows(), 100);
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(document().fileUrl().isEmpty());
}

TEST_F(DocumentControllerTest, aDocumentWithNothingLeftIsOnlyTold)
{
    start({put("text.crvgrab", "hello")});
    QMessageBox *box = sheetOf(document());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.damage.noDocument"));
    EXPECT_EQ(box->buttons().size(), 1);
    EXPECT_TRUE(document().isUntouched());
}

TEST_F(DocumentControllerTest, recentFilesAreOfferedAndCanBeForgotten)
{
    const QString file = putDocument("a&b.crvgrab");
    start({file});
    controller.newDocument();
    auto *menu = document(1).window().findChild<QMenu *>(QStringLiteral("recentFilesMenu"));
    ASSERT_NE(menu, nullptr);
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_TRUE(menu->actions().at(0)->text().startsWith("a&&b.crvgrab"));
    EXPECT_EQ(menu->actions().at(0)->toolTip(), file);
    menu->actions().at(2)->trigger();
    EXPECT_TRUE(controller.recentFiles().paths().isEmpty());
}

TEST_F(DocumentControllerTest, aRecentFileThatVanishedIsToldAndForgotten)
{
    const QString file = putDocument("a.crvgrab");
    start({file});
    controller.newDocument();
    ASSERT_TRUE(QFile::remove(file));
    document(0).window().close();
    auto *menu = document(0).window().findChild<QMenu *>(QStringLiteral("recentFilesMenu"));
    Q_EMIT menu->aboutToShow();
    menu->actions().at(0)->trigger();
    QMessageBox *box = sheetOf(document(0));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.open.missing"));
    EXPECT_TRUE(controller.recentFiles().paths().isEmpty());
}

TEST_F(DocumentControllerTest, theWindowMenuListsTheWindowsAndBringsThemToTheFront)
{
    start({putDocument("a&b.crvgrab"), putDocument("c.crvgrab")});
    auto *command = document(1).window().findChild<QAction *>(QStringLiteral("zoomWindow"));
    auto *menu = qobject_cast<QMenu *>(command->associatedObjects().at(0));
    ASSERT_NE(menu, nullptr);
    Q_EMIT menu->aboutToShow();
    Q_EMIT menu->aboutToShow();
    const QList<QAction *> windows = menu->actions().mid(menu->actions().size() - 2);
    EXPECT_EQ(windows.at(0)->text(), "a&&b.crvgrab");
    EXPECT_EQ(windows.at(0)->toolTip(), document(0).fileUrl().toLocalFile());
    EXPECT_FALSE(windows.at(0)->isChecked());
    EXPECT_TRUE(windows.at(1)->isChecked());
    ASSERT_TRUE(menu->actions().at(menu->actions().size() - 3)->isSeparator());
    windows.at(0)->trigger();
    EXPECT_TRUE(QTest::qWaitFor([this] { return document(0).window().isActiveWindow(); }));
}

TEST_F(DocumentControllerTest, documentsWithoutAFileAreNumberedFromOne)
{
    start({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    controller.newDocument();
    EXPECT_EQ(document(2).displayName(), qtTrId("document.title.untitled"));
    controller.newDocument();
    EXPECT_EQ(document(3).displayName(), qtTrId("document.title.numbered").arg(2));
}

TEST_F(DocumentControllerTest, recentFilesAreKeptApartFromThePreferencesAndBounded)
{
    for (int i = 0; i < 15; ++i)
        controller.recentFiles().add(path(std::to_string(i).c_str()));
    const RecentFiles next(path("state/state.json"));
    EXPECT_EQ(next.paths().size(), RecentFiles::most);
    EXPECT_EQ(next.paths().first(), path("14"));
    EXPECT_FALSE(QFile::exists(path("settings.json")));
}

TEST_F(DocumentControllerTest, aDroppedDocumentIsOpened)
{
    start({});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(putDocument("a.crvgrab"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&document().window(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&document().window(), &drop);
    EXPECT_TRUE(QTest::qWaitFor([this] { return document().displayName() == "a.crvgrab"; }));
    waitUntilRead();
    EXPECT_EQ(document().dataSeries().maxRows(), 5);
}

TEST_F(DocumentControllerTest, otherDropsAreNotTheWindows)
{
    start({});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path("a.txt"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&document().window(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(DocumentControllerTest, quittingAsksDocumentByDocument)
{
    start({putDocument("a.crvgrab"), putDocument("b.crvgrab"), putDocument("c.crvgrab")});
    document(0).updateChangeCount(ChangeKind::Done);
    document(2).updateChangeCount(ChangeKind::Done);
    controller.terminate();
    EXPECT_EQ(controller.documents().size(), 3U);
    press(sheetOf(document(0)), "document.close.dontSave");
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.documents().size() == 2; }));
    press(sheetOf(document(1)), "document.close.dontSave");
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.documents().empty(); }));
}

TEST_F(DocumentControllerTest, aCancelledQuestionEndsTheQuitting)
{
    start({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    document(0).updateChangeCount(ChangeKind::Done);
    controller.terminate();
    press(sheetOf(document(0)), "Cancel");
    QCoreApplication::processEvents();
    EXPECT_EQ(controller.documents().size(), 2U);
    document(1).window().close();
    EXPECT_EQ(controller.documents().size(), 1U);
}

TEST_F(DocumentControllerTest, aCancelledQuestionInTheMiddleKeepsTheRest)
{
    start({putDocument("a.crvgrab"), putDocument("b.crvgrab"), putDocument("c.crvgrab")});
    document(0).updateChangeCount(ChangeKind::Done);
    document(1).updateChangeCount(ChangeKind::Done);
    controller.terminate();
    press(sheetOf(document(0)), "document.close.dontSave");
    ASSERT_TRUE(QTest::qWaitFor([this] { return controller.documents().size() == 2; }));
    press(sheetOf(document(0)), "Cancel");
    QCoreApplication::processEvents();
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_TRUE(document(0).isDocumentEdited());
    EXPECT_TRUE(document(1).window().isVisible());
}

TEST_F(DocumentControllerTest, quittingGoesOnFromAQuestionThatIsOpenAlready)
{
    start({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    document(0).updateChangeCount(ChangeKind::Done);
    EXPECT_FALSE(document(0).window().close());
    QMessageBox *question = sheetOf(document(0));
    controller.terminate();
    press(question, "document.close.dontSave");
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.documents().empty(); }));
}

TEST_F(DocumentControllerTest, whatACrashLeftIsBroughtBack)
{
    leaveUnsaved("chart.crvgrab");
    start({});
    press(sheetOf(document()), "document.recovery.bringBack");
    waitUntilRead();
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(document().hasImage());
    EXPECT_EQ(document().displayName(), QStringLiteral("chart.crvgrab"));
    EXPECT_EQ(document().dataSeries().validSeries().size(), 1U);
    // It is kept anew, for the next crash.
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return !QFile::exists(path("state/recovery/crashed/1.unsaved")); }));
    EXPECT_EQ(keptDocuments(), 1);
}

TEST_F(DocumentControllerTest, whatACrashLeftCanBeDiscarded)
{
    leaveUnsaved("chart.crvgrab");
    start({});
    press(sheetOf(document()), "document.recovery.discard");
    EXPECT_TRUE(document().isUntouched());
    EXPECT_EQ(keptDocuments(), 0);
}

TEST_F(DocumentControllerTest, whatACrashLeftCanWait)
{
    leaveUnsaved("chart.crvgrab");
    start({});
    press(sheetOf(document()), "document.recovery.later");
    EXPECT_TRUE(document().isUntouched());
    EXPECT_EQ(keptDocuments(), 1);
}

TEST_F(DocumentControllerTest, aDocumentThatWasOpenedAgainShowsItsUnsavedChanges)
{
    const QString path = putDocument("chart.crvgrab");
    leaveUnsaved("chart.crvgrab");
    start({path});
    press(sheetOf(document()), "document.recovery.bringBack");
    waitUntilRead();
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_EQ(document().fileUrl().toLocalFile(), path);
}

TEST_F(DocumentControllerTest, newerWorkOnTheSameFileIsNotReplaced)
{
    const QString path = putDocument("chart.crvgrab");
    leaveUnsaved("chart.crvgrab");
    start({path});
    QMessageBox *question = sheetOf(document());
    document().updateChangeCount(ChangeKind::Done);
    press(question, "document.recovery.bringBack");
    waitUntilRead();
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_EQ(document(0).fileUrl().toLocalFile(), path);
    EXPECT_TRUE(document(1).fileUrl().isEmpty());
    EXPECT_TRUE(document(1).isDocumentEdited());
}

TEST_F(DocumentControllerTest, aRecoveredDocumentNoticesThatItsFileChanged)
{
    leaveUnsaved("chart.crvgrab");
    putDocument("chart.crvgrab");
    start({});
    press(sheetOf(document()), "document.recovery.bringBack");
    waitUntilRead();
    document().saveDocument();
    QMessageBox *question = sheetOf(document());
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->informativeText(), qtTrId("document.save.changedText"));
}

TEST_F(DocumentControllerTest, aDocumentThatComesBackWithoutItsPictureLeavesItsFileAlone)
{
    const QString file = putDocument("chart.crvgrab");
    leaveUnsaved("chart.crvgrab");
    ASSERT_TRUE(QFile::remove(path("state/recovery/crashed/1-1.picture")));
    start({});
    press(sheetOf(document()), "document.recovery.bringBack");
    waitUntilRead();
    QMessageBox *told = sheetOf(document());
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told->text(), qtTrId("document.open.damagedTitle").arg("chart.crvgrab"));
    press(told, "OK");
    EXPECT_TRUE(document().fileUrl().isEmpty());
    EXPECT_TRUE(document().isDocumentEdited());
    // What is missing may be mended by hand.
    EXPECT_TRUE(QFile::exists(path("state/recovery/crashed/1.unsaved")));
}

TEST_F(DocumentControllerTest, aCancelledBringingBackLeavesTheOpenDocumentItsFile)
{
    const QString file = putDocument("chart.crvgrab");
    leaveUnsaved("chart.crvgrab");
    start({file});
    press(sheetOf(document()), "document.recovery.bringBack");
    cancelReading(document());
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_EQ(document().fileUrl().toLocalFile(), file);
    EXPECT_TRUE(document().fileStamp());
    EXPECT_TRUE(QFile::exists(path("state/recovery/crashed/1.unsaved")));
}

TEST_F(DocumentControllerTest, whatACrashLeftAndCannotBeReadIsNotThrownAway)
{
    leaveUnsaved("chart.crvgrab");
    put("state/recovery/crashed/1.unsaved", "no document");
    put("state/recovery/crashed/2.unsaved", "");
    start({});
    EXPECT_TRUE(QFile::exists(path("state/recovery/crashed/1.unsaved")));
    EXPECT_FALSE(QFile::exists(path("state/recovery/crashed/2.unsaved")));
}

TEST_F(DocumentControllerTest, aStartAfterAnEndInOrderAsksNothing)
{
    start({});
    QCoreApplication::processEvents();
    EXPECT_TRUE(document().window().findChildren<QMessageBox *>().isEmpty());
}

TEST_F(DocumentControllerTest, aFileIsReadWhileTheWindowsGoOn)
{
    controller.start({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_TRUE(document(0).isReading());
    EXPECT_TRUE(document(1).isReading());
    EXPECT_FALSE(document(0).window().isVisible());
    waitUntilRead();
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_TRUE(document(i).window().isVisible());
        EXPECT_TRUE(document(i).window().centralWidget()->isEnabled());
        EXPECT_EQ(document(i).dataSeries().maxRows(), 5);
    }
}

TEST_F(DocumentControllerTest, aFileThatIsBeingReadIsNotOpenedTwice)
{
    const QString file = putDocument("a.crvgrab");
    controller.start({file});
    controller.openFiles({file});
    EXPECT_EQ(controller.documents().size(), 1U);
    waitUntilRead();
}

TEST_F(DocumentControllerTest, aCancelledOpeningLeavesNoWindow)
{
    start({putDocument("a.crvgrab")});
    controller.openFiles({putDocument("b.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 2U);
    cancelReading(document(1));
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_EQ(document().displayName(), "a.crvgrab");
    EXPECT_EQ(controller.recentFiles().paths(), QStringList{path("a.crvgrab")});
}

TEST_F(DocumentControllerTest, aWindowWhosePictureCouldNotBeOpenedTakesTheNextFile)
{
    const QString damaged = path("damaged.png");
    ASSERT_TRUE(QFile(damaged).open(QIODevice::WriteOnly));
    start({damaged});
    press(sheetOf(document()), "OK");
    EXPECT_TRUE(QTest::qWaitFor([this] { return document().isUntouched(); }));
    openFiles({putPicture("c.png")});
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(QTest::qWaitFor([this] { return document().hasImage(); }));
    EXPECT_FALSE(document().isUntouched());
    EXPECT_EQ(document().fileUrl().fileName(), QStringLiteral("c.crvgrab"));
}

TEST_F(DocumentControllerTest, aCopyDoesNotGetTheNameOfAPictureThatDidNotCome)
{
    start({put("damaged.png", "x")});
    press(sheetOf(document()), "OK");
    EXPECT_TRUE(QTest::qWaitFor([this] { return document().isUntouched(); }));
    controller.openCopy(putDocument("example.crvgrab"));
    waitUntilRead();
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_EQ(document().fileUrl(), QUrl());
}

TEST_F(DocumentControllerTest, aWindowThatStillWaitsForItsPictureTakesNoOtherFile)
{
    controller.start({});
    controller.openFiles({putPicture("a.png"), putPicture("b.png")});
    EXPECT_EQ(controller.documents().size(), 2U);
}

TEST_F(DocumentControllerTest, aCancelledOpeningAtTheStartLeavesAnEmptyWindow)
{
    controller.start({putDocument("a.crvgrab")});
    cancelReading(document());
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().window().isVisible());
    EXPECT_TRUE(document().isUntouched());
    EXPECT_EQ(document().drawerOpenButtonState(), 0);
}

TEST_F(DocumentControllerTest, aCancelledOpeningGivesAnEmptyWindowBack)
{
    controller.start({});
    controller.openFiles({putDocument("a.crvgrab")});
    EXPECT_FALSE(document().isUntouched());
    EXPECT_FALSE(document().window().centralWidget()->isEnabled());
    cancelReading(document());
    EXPECT_TRUE(document().isUntouched());
    EXPECT_TRUE(document().window().centralWidget()->isEnabled());
    openFiles({path("a.crvgrab")});
    EXPECT_EQ(document().dataSeries().maxRows(), 5);
}

TEST_F(DocumentControllerTest, aWindowMayCloseWhileItsFileIsRead)
{
    controller.start({});
    controller.openFiles({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_TRUE(document(0).window().close());
    // The program does not end under the other file, whose window has not been shown yet.
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().window().isVisible());
    waitUntilRead();
    EXPECT_EQ(document().displayName(), "b.crvgrab");
    EXPECT_EQ(document().dataSeries().maxRows(), 5);
}

TEST_F(DocumentControllerTest, quittingDoesNotWaitForAFile)
{
    controller.start({putDocument("a.crvgrab"), putDocument("b.crvgrab")});
    controller.terminate();
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.documents().empty(); }));
}

TEST_F(DocumentControllerTest, whatACrashLeftIsOfferedAfterTheFilesAreRead)
{
    leaveUnsaved("chart.crvgrab");
    controller.start({putDocument("a.crvgrab"), path("gone.crvgrab")});
    EXPECT_TRUE(document().window().findChildren<QMessageBox *>().isEmpty());
    waitUntilRead();
    ASSERT_EQ(controller.documents().size(), 1U);
    QMessageBox *box = sheetOf(document());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.open.missing"));
    press(box, "OK");
    press(sheetOf(document()), "document.recovery.later");
}

TEST_F(DocumentControllerTest, aFolderNamedLikeADocumentIsRefused)
{
    ASSERT_TRUE(QDir().mkpath(path("folder.crvgrab")));
    start({path("folder.crvgrab")});
    QMessageBox *box = sheetOf(document());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.open.noFile"));
}

TEST_F(DocumentControllerTest, aFileLargerThanTheMemoryIsRefused)
{
    QFile file(path("huge.crvgrab"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64{1} << 40)); // takes no room on the disk
    start({file.fileName()});
    ASSERT_EQ(controller.documents().size(), 1U);
    QMessageBox *box = sheetOf(document());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), qtTrId("document.open.tooLarge"));
    EXPECT_TRUE(document().isUntouched());
}
