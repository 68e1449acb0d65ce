#include "document/RecoveryWriter.h"

#include "document/DocumentArchive.h"
#include "document/DocumentKeys.h"
#include "document/SampleRoots.h"
#include "imageview/ArchivedPicture.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class RecoveryWriterTest : public testing::Test
{
protected:
    RecoveryWriterTest()
        : folder(m_folder.filePath(QStringLiteral("recovery")))
        , store(std::make_unique<RecoveryStore>(folder))
        , writer(std::make_unique<RecoveryWriter>(*store))
        , key(store->newKey())
    {}

    void keep() const
    {
        const ArchiveDictionary root = sampleroots::root(sampleroots::Kind::Polar);
        const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
        const auto picture =
            std::dynamic_pointer_cast<const ArchivedPicture>(view->objectForKey("Original Image"));
        writer->keep({key, {root, {}, {}, {}}, picture->picture(), picture, {}});
    }

    /// Another picture, which nobody has encoded.
    void keepAnotherPicture() const
    {
        QImage pixels(40, 30, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        writer->keep({key,
                      {sampleroots::root(sampleroots::Kind::Polar), {}, {}, {}},
                      Picture::fromImageRep(pixels),
                      nullptr,
                      {}});
    }

    [[nodiscard]] QStringList files() const
    {
        return QFileInfo(key).dir().entryList({"*.unsaved", "*.picture"}, QDir::Files);
    }

private:
    QTemporaryDir m_folder;

protected:
    QString folder;
    std::unique_ptr<RecoveryStore> store;
    std::unique_ptr<RecoveryWriter> writer;
    QString key;
};

} // namespace

TEST_F(RecoveryWriterTest, keepsAndTells)
{
    QSignalSpy wrote(writer.get(), &RecoveryWriter::wrote);
    keep();
    ASSERT_TRUE(wrote.wait());
    EXPECT_EQ(wrote.first().first().value<std::optional<QString>>(), std::nullopt);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(RecoveryWriterTest, theKeptDocumentHasItsPictureUntilTheNextOneIsWritten)
{
    QSignalSpy wrote(writer.get(), &RecoveryWriter::wrote);
    keep();
    ASSERT_TRUE(wrote.wait());
    // A folder stands where the next picture would come.
    const QFileInfo document(key);
    ASSERT_TRUE(document.dir().mkdir(document.completeBaseName() + "-2.picture"));
    keepAnotherPicture();
    ASSERT_TRUE(wrote.wait());
    ASSERT_NE(wrote.last().first().value<std::optional<QString>>(), std::nullopt);
    const std::optional<RecoveryStore::Document> kept = RecoveryStore::read(key);
    ASSERT_TRUE(kept);
    EXPECT_NE(documentarchive::pictureIn(kept->root), nullptr);
}

TEST_F(RecoveryWriterTest, aFirstPictureThatCannotBeWrittenDoesNotHoldUpTheRest)
{
    QSignalSpy wrote(writer.get(), &RecoveryWriter::wrote);
    const QFileInfo document(key);
    ASSERT_TRUE(document.dir().mkdir(document.completeBaseName() + "-1.picture"));
    keepAnotherPicture();
    ASSERT_TRUE(wrote.wait());
    EXPECT_TRUE(RecoveryStore::read(key));
}

TEST_F(RecoveryWriterTest, whatIsForgottenWhileItIsWrittenIsGone)
{
    const QSignalSpy wrote(writer.get(), &RecoveryWriter::wrote);
    keep();
    writer->remove(key);
    EXPECT_TRUE(QTest::qWaitFor([&] { return wrote.count() > 0 && files().isEmpty(); }));
}

TEST_F(RecoveryWriterTest, theStoreGoesAfterTheLastWrite)
{
    keep();
    writer.reset();
    store.reset(); // a program that ends in order leaves nothing
    EXPECT_TRUE(QDir(folder).isEmpty());
}
