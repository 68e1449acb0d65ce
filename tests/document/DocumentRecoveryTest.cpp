#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/DocumentFile.h"
#include "document/RecoveryStore.h"
#include "imageview/ArchivedPicture.h"
#include "platform/GeometryText.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

/// Files below the folder in which the documents of a test are kept safe, with their sizes.
QStringList keptFiles(TestServices &services, const char *pattern)
{
    QStringList found;
    const QDir folder(services.recoveryFolder());
    for (const QString &session : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir inside(folder.filePath(session));
        for (const QString &name : inside.entryList({QString::fromLatin1(pattern)}, QDir::Files))
            found.append(inside.filePath(name));
    }
    return found;
}

bool isKept(TestServices &services)
{
    // A few seconds after the change, and well before ten.
    return QTest::qWaitFor([&services] { return !keptFiles(services, "*.unsaved").isEmpty(); },
                           9000);
}

std::shared_ptr<const ArchivedPicture> pictureKept(TestServices &services)
{
    const auto document = RecoveryStore::read(keptFiles(services, "*.unsaved").value(0));
    const ArchiveDictionary *view =
        document ? document->root.dictionaryForKey("GraphImageView Data") : nullptr;
    return view == nullptr ? nullptr
                           : std::dynamic_pointer_cast<const ArchivedPicture>(
                                 view->objectForKey("Original Image"));
}

std::size_t pointsKept(TestServices &services)
{
    const auto document = RecoveryStore::read(keptFiles(services, "*.unsaved").value(0));
    if (!document)
        return 0;
    const ArchiveDictionary *series = document->root.dictionaryForKey("DataSeries Data");
    return std::get<ArchiveArray>(series->arrayForKey("Data Series")->at(0).value).size();
}

bool pointsAreKept(TestServices &services, std::size_t count)
{
    return QTest::qWaitFor([&] { return pointsKept(services) == count; }, 9000);
}

bool nothingIsKept(TestServices &services)
{
    return QTest::qWaitFor([&services] {
        return keptFiles(services, "*.unsaved").isEmpty() &&
               keptFiles(services, "*.picture").isEmpty();
    });
}

/// A picture that takes a while to be encoded.
QImage largePicture()
{
    QImage picture(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb((x * 89 ^ y * 57) % 256, x * y % 256, (x + y) % 256));
    return picture;
}

} // namespace

TEST(DocumentRecovery, aChangeIsOnTheDiskWithinSeconds)
{
    TestDocument test;
    EXPECT_TRUE(isKept(test.services));
    EXPECT_EQ(keptFiles(test.services, "*.picture").size(), 1);
}

TEST(DocumentRecovery, thePictureIsWrittenOnlyOnce)
{
    TestDocument test;
    test.digitize();
    test.click(100, 100);
    test.document->keepSafeNow();
    ASSERT_TRUE(pointsAreKept(test.services, 1));
    const QString picture = keptFiles(test.services, "*.picture").value(0);
    ASSERT_FALSE(picture.isEmpty());
    const auto written = std::filesystem::last_write_time(picture.toStdString());
    test.click(150, 100);
    test.document->keepSafeNow();
    EXPECT_TRUE(pointsAreKept(test.services, 2));
    EXPECT_EQ(keptFiles(test.services, "*.picture"), QStringList{picture});
    EXPECT_EQ(std::filesystem::last_write_time(picture.toStdString()), written);
}

TEST(DocumentRecovery, anotherPictureTakesThePlaceOfTheFirst)
{
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    const QString first = keptFiles(test.services, "*.picture").value(0);
    QImage picture(300, 200, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    test.document->graphView().replaceImageWithImageRep(picture);
    test.endEvent();
    test.document->keepSafeNow();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QStringList pictures = keptFiles(test.services, "*.picture");
        return pictures.size() == 1 && pictures.first() != first;
    }));
}

TEST(DocumentRecovery, aSaveEndsTheNeed)
{
    const QTemporaryDir folder;
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    test.command("saveDocumentAs");
    ASSERT_TRUE(test.services.panels->confirm(folder.filePath("a.crvgrab")));
    EXPECT_TRUE(nothingIsKept(test.services));
    EXPECT_TRUE(keptFiles(test.services, "*").filter("lock").size() == 1);
}

TEST(DocumentRecovery, undoingTheLastChangeEndsTheNeed)
{
    TestDocument test;
    test.markSaved();
    test.document->updateChangeCount(ChangeKind::Done);
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    test.document->updateChangeCount(ChangeKind::Undone);
    EXPECT_TRUE(nothingIsKept(test.services));
}

TEST(DocumentRecovery, closingWithoutSavingEndsTheNeed)
{
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    test.document->window().close();
    ASSERT_EQ(test.services.sheets->waitingCount(), 1U);
    EXPECT_TRUE(isKept(test.services));
    test.services.sheets->answerFirst(SheetAnswer::Other);
    EXPECT_TRUE(nothingIsKept(test.services));
}

TEST(DocumentRecovery, aDocumentThatIsNotModifiedIsNotKept)
{
    TestDocument test{QSize(0, 0)};
    test.document->keepSafeNow();
    EXPECT_TRUE(keptFiles(test.services, "*").isEmpty());
}

TEST(DocumentRecovery, aDiskThatRefusesIsToldOnce)
{
    TestDocument test;
    QFile inTheWay(test.services.recoveryFolder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    test.document->keepSafeNow();
    EXPECT_TRUE(
        test.ui().statusBar->currentMessage().contains(qtTrId("document.recovery.noFolder")));
    test.ui().statusBar->clearMessage();
    test.document->keepSafeNow();
    EXPECT_TRUE(test.ui().statusBar->currentMessage().isEmpty());
}

TEST(DocumentRecovery, ofManyChangesTheLastIsOnTheDisk)
{
    TestDocument test;
    test.digitize();
    for (int i = 1; i <= 20; ++i) {
        test.click(100 + 10 * i, 100);
        test.document->keepSafeNow();
    }
    EXPECT_TRUE(pointsAreKept(test.services, 20));
}

TEST(DocumentRecovery, changesDoNotWaitForALargePicture)
{
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    test.document->graphView().replaceImageWithImageRep(largePicture());
    test.digitize();
    test.click(100, 100);
    ASSERT_FALSE(test.document->graphView().pictureIsEncoded());
    test.document->keepSafeNow();
    EXPECT_TRUE(pointsAreKept(test.services, 1));
    // The picture follows, encoded or not.
    EXPECT_TRUE(QTest::qWaitFor([&] { return pictureKept(test.services) != nullptr; }, 9000));
}

TEST(DocumentRecovery, aPictureThatIsNotEncodedYetIsKeptAsItIs)
{
    TestDocument test;
    test.document->graphView().replaceImageWithImageRep(largePicture());
    ASSERT_FALSE(test.document->graphView().pictureIsEncoded());
    test.document->keepSafeNow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pictureKept(test.services) != nullptr; }, 9000));
    const auto kept = pictureKept(test.services);
    EXPECT_FALSE(kept->isEncoded());
    EXPECT_EQ(kept->picture()->pixels(), largePicture());
    // Once it is encoded it is not written anew.
    const QStringList files = keptFiles(test.services, "*.picture");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return test.document->graphView().pictureIsEncoded(); }, 60'000));
    test.digitize();
    test.click(100, 100);
    test.document->keepSafeNow();
    ASSERT_TRUE(pointsAreKept(test.services, 1));
    EXPECT_EQ(keptFiles(test.services, "*.picture"), files);
}

TEST(DocumentRecovery, aDocumentComesBackToTheSameBytesWhetherThePictureWasEncodedOrNot)
{
    const auto isRead = [](TestDocument &test) {
        return QTest::qWaitFor([&] { return test.document->graphView().pictureIsEncoded(); },
                               60'000);
    };
    TestDocument test{QSize(0, 0)};
    test.document->graphView().replaceImageWithImageRep(largePicture());
    test.document->keepSafeNow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pictureKept(test.services) != nullptr; }, 9000));
    const auto kept = RecoveryStore::read(keptFiles(test.services, "*.unsaved").value(0));
    ASSERT_TRUE(isRead(test));
    TestDocument later{QSize(0, 0)};
    later.document->loadRecovered(*kept);
    later.document->windowControllerDidLoadNib();
    ASSERT_TRUE(later.document->hasImage());
    ASSERT_TRUE(isRead(later));
    EXPECT_EQ(later.document->dataOfType({}), test.document->dataOfType({}));
}

TEST(DocumentRecovery, aCutPictureIsDamage)
{
    TestDocument test{QSize(0, 0)};
    test.document->graphView().replaceImageWithImageRep(largePicture());
    test.document->keepSafeNow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pictureKept(test.services) != nullptr; }, 9000));
    QFile picture(keptFiles(test.services, "*.picture").value(0));
    ASSERT_TRUE(picture.resize(picture.size() / 2));
    const auto kept = RecoveryStore::read(keptFiles(test.services, "*.unsaved").value(0));
    ASSERT_TRUE(kept.has_value());
    ASSERT_EQ(kept->damages.size(), 1U);
    EXPECT_EQ(kept->damages[0].fault, documentarchive::Fault::DamagedPicture);
}

TEST(DocumentRecovery, anAnchorIsKeptWhereItsDragHasEnded)
{
    TestDocument test;
    QWidget *view = &test.document->graphView();
    const auto moveTo = [&](int x, int y) { QTest::mouseMove(view, test.widgetPosition(x, y)); };
    QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, test.widgetPosition(100, 80));
    moveTo(110, 90);
    moveTo(120, 95);
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    moveTo(130, 110);
    QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, test.widgetPosition(130, 110));
    const auto anchorKept = [&]() -> std::string {
        const auto document = RecoveryStore::read(keptFiles(test.services, "*.unsaved").value(0));
        const auto *axes = document ? document->root.dictionaryForKey("CurrentAxes Data") : nullptr;
        return axes == nullptr ? std::string() : axes->stringForKey("Anchor Position 1");
    };
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return anchorKept() ==
                   geometrytext::stringFromPoint(test.document->currentAxes().anchor1Point());
        },
        9000))
        << anchorKept();
}

TEST(DocumentRecovery, aWriteThatFailsIsTold)
{
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    QDir(test.services.recoveryFolder()).removeRecursively();
    test.document->keepSafeNow();
    EXPECT_TRUE(QTest::qWaitFor([&test] {
        return test.ui().statusBar->currentMessage().contains(qtTrId("platform.file.folderGone"));
    }));
}

TEST(DocumentRecovery, theWarningGoesWithASave)
{
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    QDir(test.services.recoveryFolder()).removeRecursively();
    test.document->keepSafeNow();
    const QStatusBar &status = *test.ui().statusBar;
    ASSERT_TRUE(QTest::qWaitFor([&status] { return !status.currentMessage().isEmpty(); }));
    const QTemporaryDir folder;
    test.document->setFileUrl(
        QUrl::fromLocalFile(folder.filePath(QStringLiteral("chart.crvgrab"))));
    test.command("saveDocument");
    EXPECT_EQ(status.currentMessage(), QString());
}

TEST(DocumentRecovery, whatItTakesThePlaceOfGoesOnceItIsKept)
{
    TestDocument test;
    const QTemporaryDir folder;
    RecoveryStore crashed(folder.filePath(QStringLiteral("recovery")));
    const QString key = crashed.newKey();
    ASSERT_FALSE(RecoveryStore::keep(key, {test.document->rootDictionary(), {}, {}, {}}, {}));
    test.document->keepSafeNow(key);
    EXPECT_TRUE(QTest::qWaitFor([&key] { return !QFile::exists(key); }));
    EXPECT_TRUE(isKept(test.services));
}

TEST(DocumentRecovery, whatItTakesThePlaceOfGoesWithADocumentThatIsNotWanted)
{
    TestDocument test;
    const QTemporaryDir folder;
    RecoveryStore crashed(folder.filePath(QStringLiteral("recovery")));
    const QString key = crashed.newKey();
    ASSERT_FALSE(RecoveryStore::keep(key, {test.document->rootDictionary(), {}, {}, {}}, {}));
    test.document->keepSafeNow(key);
    test.markSaved();
    EXPECT_TRUE(QTest::qWaitFor([&key] { return !QFile::exists(key); }));
    EXPECT_TRUE(nothingIsKept(test.services));
}

TEST(DocumentRecovery, aUserWhoNeverRestsIsKeptSafeToo)
{
    TestDocument test;
    QTimer changes;
    QObject::connect(&changes, &QTimer::timeout, test.document.get(),
                     [&test] { test.document->updateChangeCount(ChangeKind::Done); });
    changes.start(100);
    EXPECT_TRUE(isKept(test.services));
}
