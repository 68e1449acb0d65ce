#include "document/DocumentFile.h"

#include "document/DocumentKeys.h"
#include "document/SampleRoots.h"
#include "imageview/ArchivedPicture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

using documentarchive::Fault;
using sampleroots::Kind;

namespace {

constexpr auto unlimited = std::numeric_limits<std::uint64_t>::max();

class DocumentFileTest : public testing::Test
{
protected:
    DocumentFileTest()
        : bytes(documentarchive::archivedData(sampleroots::root(Kind::Parallel)))
        , path(m_folder.filePath(QStringLiteral("chart.crvgrab")))
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

private:
    QTemporaryDir m_folder;

protected:
    QByteArray bytes;
    QString path;
};

std::shared_ptr<const ArchivedPicture> pictureOf(const ArchiveDictionary &root)
{
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    return std::dynamic_pointer_cast<const ArchivedPicture>(view->objectForKey("Original Image"));
}

} // namespace

TEST_F(DocumentFileTest, readsEverythingAndTheStateOfTheFile)
{
    std::atomic<int> percent{0};
    const documentfile::Document read = documentfile::read(path, unlimited, {}, &percent);
    EXPECT_TRUE(read.error.isEmpty());
    EXPECT_TRUE(read.reading.isWhole());
    EXPECT_EQ(read.stamp, durablefile::stampOf(path));
    ASSERT_NE(pictureOf(read.reading.root), nullptr);
    EXPECT_TRUE(pictureOf(read.reading.root)->picture());
    EXPECT_EQ(percent, 100);
}

TEST_F(DocumentFileTest, aFileThatDoesNotFitIsNotRead)
{
    const auto size = static_cast<std::uint64_t>(bytes.size());
    // Its bytes are there twice while the archive is taken apart.
    EXPECT_EQ(documentfile::contentOf(path, 2 * size).bytes, bytes);
    const documentfile::Content refused = documentfile::contentOf(path, 2 * size - 1);
    EXPECT_EQ(refused.error, qtTrId("document.open.tooLarge"));
    EXPECT_TRUE(refused.bytes.isEmpty());
}

TEST_F(DocumentFileTest, aFolderIsSaidToBeOne)
{
    EXPECT_EQ(documentfile::contentOf(QDir::tempPath(), unlimited).error,
              qtTrId("document.open.noFile"));
}

TEST_F(DocumentFileTest, aDeviceWithoutEndIsNotReadForEver)
{
    const auto content = documentfile::contentOf(QStringLiteral("/dev/zero"), 50'000'000);
    EXPECT_EQ(content.error, qtTrId("document.open.tooLarge"));
}

TEST_F(DocumentFileTest, aPictureThatDoesNotFitIsLeftOutAndTold)
{
    // Room for the file, but not for the picture that it holds.
    const auto read = documentfile::read(path, 2 * static_cast<std::uint64_t>(bytes.size()));
    ASSERT_EQ(read.reading.damages.size(), 1U);
    EXPECT_EQ(read.reading.damages[0].fault, Fault::PictureTooLarge);
    EXPECT_EQ(documentarchive::description(read.reading.damages),
              qtTrId("document.damage.pictureTooLarge"));
    EXPECT_EQ(pictureOf(read.reading.root), nullptr);
}

TEST_F(DocumentFileTest, aMissingFileIsAnError)
{
    EXPECT_FALSE(documentfile::read(path + u'x', unlimited).error.isEmpty());
}

TEST_F(DocumentFileTest, aReadingThatIsGivenUpLeavesOff)
{
    std::stop_source stop;
    stop.request_stop();
    const documentfile::Document read = documentfile::read(path, unlimited, stop.get_token());
    EXPECT_TRUE(read.reading.root.entries().empty());
}
