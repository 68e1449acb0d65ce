#include "document/RecoveryStore.h"

#include "document/DocumentKeys.h"
#include "document/SampleRoots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

using sampleroots::Kind;

namespace {

std::shared_ptr<const ArchivedPicture> pictureIn(const ArchiveDictionary &root)
{
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    return std::dynamic_pointer_cast<const ArchivedPicture>(view->objectForKey("Original Image"));
}

class RecoveryStoreTest : public testing::Test
{
protected:
    [[nodiscard]] QString folder() const
    {
        return m_folder.filePath(QStringLiteral("state/recovery"));
    }

    static bool keepWithPicture(RecoveryStore &store, const RecoveryStore::Document &document)
    {
        const QString key = store.newKey();
        const QString picture = QFileInfo(key).completeBaseName() + QStringLiteral("-1.picture");
        return !RecoveryStore::keepPicture(key, *pictureIn(document.root), picture) &&
               !RecoveryStore::keep(key, document, picture);
    }

    /// Keeps `document` in a process that ends without warning.
    void keepAndCrash(const RecoveryStore::Document &document) const
    {
        const pid_t child = fork();
        if (child == 0) {
            RecoveryStore store(folder());
            _exit(keepWithPicture(store, document) ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }

    static RecoveryStore::Document sample()
    {
        return {sampleroots::root(Kind::Quadrangle), QStringLiteral("/charts/größe.crvgrab"),
                QStringLiteral("größe.crvgrab"),
                durablefile::Stamp{123456789012, QDateTime::fromMSecsSinceEpoch(1700000000123)}};
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RecoveryStoreTest, nothingIsOnTheDiskBeforeSomethingIsKept)
{
    RecoveryStore store(folder());
    EXPECT_TRUE(store.remains().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(folder()));
}

TEST_F(RecoveryStoreTest, whatACrashLeftComesBackWhole)
{
    const RecoveryStore::Document kept = sample();
    keepAndCrash(kept);
    RecoveryStore store(folder());
    const QStringList remains = store.remains();
    ASSERT_EQ(remains.size(), 1);
    const auto document = RecoveryStore::read(remains.first());
    ASSERT_TRUE(document.has_value());
    EXPECT_EQ(document->path, kept.path);
    EXPECT_EQ(document->name, kept.name);
    EXPECT_EQ(document->fileStamp, kept.fileStamp);
    ASSERT_NE(pictureIn(document->root), nullptr);
    EXPECT_EQ(*pictureIn(document->root)->bytes(), *pictureIn(kept.root)->bytes());
    for (const auto &[key, value] : kept.root.entries())
        EXPECT_NE(document->root.find(key), nullptr) << key;
}

TEST_F(RecoveryStoreTest, aDocumentThatWasNeverSavedHasNoFile)
{
    keepAndCrash({sampleroots::root(Kind::Parallel), {}, QStringLiteral("Untitled"), {}});
    RecoveryStore store(folder());
    const auto document = RecoveryStore::read(store.remains().value(0));
    ASSERT_TRUE(document.has_value());
    EXPECT_TRUE(document->path.isEmpty());
    EXPECT_FALSE(document->fileStamp.has_value());
}

TEST_F(RecoveryStoreTest, theWorkOfARunningProgramIsNotOffered)
{
    RecoveryStore running(folder());
    ASSERT_TRUE(keepWithPicture(running, sample()));
    RecoveryStore other(folder());
    EXPECT_TRUE(other.remains().isEmpty());
    EXPECT_TRUE(running.remains().isEmpty());
}

TEST_F(RecoveryStoreTest, onlyOneProgramIsOfferedTheRemains)
{
    keepAndCrash(sample());
    RecoveryStore first(folder());
    EXPECT_EQ(first.remains().size(), 1);
    RecoveryStore second(folder());
    EXPECT_TRUE(second.remains().isEmpty());
}

TEST_F(RecoveryStoreTest, remainsThatNobodyWantedYetAreKeptForTheNextStart)
{
    keepAndCrash(sample());
    {
        RecoveryStore store(folder());
        EXPECT_EQ(store.remains().size(), 1);
    }
    RecoveryStore next(folder());
    EXPECT_EQ(next.remains().size(), 1);
}

TEST_F(RecoveryStoreTest, aProgramThatEndsInOrderLeavesNothing)
{
    keepAndCrash(sample());
    {
        RecoveryStore store(folder());
        for (const QString &key : store.remains())
            RecoveryStore::remove(key);
        ASSERT_TRUE(keepWithPicture(store, sample()));
    }
    EXPECT_TRUE(QDir(folder()).isEmpty());
}

TEST_F(RecoveryStoreTest, removingTakesThePicturesAlong)
{
    RecoveryStore store(folder());
    const QString key = store.newKey();
    const RecoveryStore::Document document = sample();
    for (const char *name : {"1-1.picture", "1-2.picture"})
        ASSERT_FALSE(RecoveryStore::keepPicture(key, *pictureIn(document.root), name));
    ASSERT_FALSE(RecoveryStore::keep(key, document, QStringLiteral("1-2.picture")));
    RecoveryStore::remove(key);
    const QStringList left = QFileInfo(key).dir().entryList(QDir::Files);
    EXPECT_EQ(left, QStringList{QStringLiteral("lock")});
}

TEST_F(RecoveryStoreTest, thePictureIsNotInTheDocumentsOwnFile)
{
    RecoveryStore store(folder());
    const QString key = store.newKey();
    const RecoveryStore::Document document = sample();
    ASSERT_FALSE(RecoveryStore::keep(key, document, QString()));
    const auto read = RecoveryStore::read(key);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(pictureIn(read->root), nullptr);
}

TEST_F(RecoveryStoreTest, whatIsNoDocumentIsNotRead)
{
    RecoveryStore store(folder());
    const QString key = store.newKey();
    EXPECT_FALSE(RecoveryStore::read(key).has_value());
    QFile file(key);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("rubbish");
    file.close();
    EXPECT_FALSE(RecoveryStore::read(key).has_value());
}

TEST_F(RecoveryStoreTest, aFolderThatCannotBeMadeGivesNoKey)
{
    QFile inTheWay(QFileInfo(folder()).absolutePath());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    RecoveryStore store(folder());
    EXPECT_TRUE(store.newKey().isEmpty());
}

TEST_F(RecoveryStoreTest, aPictureThatIsGoneIsDamageAndNotNoPicture)
{
    keepAndCrash(sample());
    RecoveryStore store(folder());
    const QString key = store.remains().value(0);
    RecoveryStore::removePicture(key,
                                 QFileInfo(key).completeBaseName() + QStringLiteral("-1.picture"));
    const auto document = RecoveryStore::read(key);
    ASSERT_TRUE(document.has_value());
    ASSERT_EQ(document->damages.size(), 1U);
    EXPECT_EQ(document->damages[0].fault, documentarchive::Fault::DamagedPicture);
}

TEST_F(RecoveryStoreTest, damageOfTheKeptDocumentItselfIsTold)
{
    keepAndCrash(sample());
    RecoveryStore store(folder());
    QFile file(store.remains().value(0));
    ASSERT_TRUE(file.resize(file.size() - 40));
    const auto document = RecoveryStore::read(file.fileName());
    ASSERT_TRUE(document.has_value());
    EXPECT_FALSE(document->damages.empty());
}
