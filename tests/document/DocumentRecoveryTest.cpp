#include "document/TestDocument.h"

#include "capture/DataSeries.h"
#include "document/RecoveryStore.h"

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

std::size_t pointsKept(TestServices &services)
{
    const auto document = RecoveryStore::read(keptFiles(services, "*.unsaved").value(0));
    if (!document)
        return 0;
    const ArchiveDictionary *series = document->root.dictionaryForKey("DataSeries Data");
    return std::get<ArchiveArray>(series->arrayForKey("Data Series")->at(0).value).size();
}

void addPoint(TestDocument &test, int x)
{
    test.click(x, 100);
    test.document->keepSafeNow();
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
    addPoint(test, 100);
    const QString picture = keptFiles(test.services, "*.picture").value(0);
    ASSERT_FALSE(picture.isEmpty());
    const auto written = std::filesystem::last_write_time(picture.toStdString());
    addPoint(test, 150);
    EXPECT_EQ(keptFiles(test.services, "*.picture"), QStringList{picture});
    EXPECT_EQ(std::filesystem::last_write_time(picture.toStdString()), written);
    EXPECT_EQ(pointsKept(test.services), 2U);
}

TEST(DocumentRecovery, anotherPictureTakesThePlaceOfTheFirst)
{
    TestDocument test;
    addPoint(test, 100);
    const QString first = keptFiles(test.services, "*.picture").value(0);
    QImage picture(300, 200, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    test.document->graphView().replaceImageWithImageRep(picture);
    test.endEvent();
    test.document->keepSafeNow();
    const QStringList pictures = keptFiles(test.services, "*.picture");
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_NE(pictures.first(), first);
}

TEST(DocumentRecovery, aSaveEndsTheNeed)
{
    const QTemporaryDir folder;
    TestDocument test;
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    test.command("saveDocumentAs");
    ASSERT_TRUE(test.services.panels->confirm(folder.filePath("a.crvgrab")));
    EXPECT_TRUE(keptFiles(test.services, "*").filter("lock").size() == 1);
    EXPECT_TRUE(keptFiles(test.services, "*.unsaved").isEmpty());
    EXPECT_TRUE(keptFiles(test.services, "*.picture").isEmpty());
}

TEST(DocumentRecovery, undoingTheLastChangeEndsTheNeed)
{
    TestDocument test;
    test.markSaved();
    test.document->updateChangeCount(ChangeKind::Done);
    test.document->keepSafeNow();
    ASSERT_TRUE(isKept(test.services));
    test.document->updateChangeCount(ChangeKind::Undone);
    EXPECT_TRUE(keptFiles(test.services, "*.unsaved").isEmpty());
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
    EXPECT_TRUE(keptFiles(test.services, "*.unsaved").isEmpty());
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
