#include "document/ThumbnailFile.h"

#include "document/DocumentArchive.h"
#include "document/SampleRoots.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class ThumbnailFile : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString &name) const { return m_files.filePath(name); }
    [[nodiscard]] QString folder() const { return m_folder.filePath(QStringLiteral("small")); }
    [[nodiscard]] QStringList remembered() const { return QDir(folder()).entryList(QDir::Files); }
    [[nodiscard]] QImage thumbnailOf(const QString &name) const
    {
        return thumbnailfile::of(path(name), folder(), {});
    }

    void putPicture(const QString &name, QSize size, const QColor &color) const
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        ASSERT_TRUE(picture.save(path(name)));
    }

    void putDocument(const QString &name, QSize size, float rotation) const
    {
        ArchiveDictionary view;
        view.set("Rotation Angle", {rotation});
        view.set("Original Image", {sampleroots::picture(size)});
        ArchiveDictionary root;
        root.set(documentkeys::graphImageViewData, {view});
        put(name, documentarchive::archivedData(root));
    }

    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

private:
    QTemporaryDir m_files;
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ThumbnailFile, ofAPictureHasItsShapeAndColours)
{
    putPicture(QStringLiteral("a.png"), {400, 300}, Qt::red);
    const QImage small = thumbnailOf(QStringLiteral("a.png"));
    EXPECT_EQ(small.size(), QSize(thumbnailfile::side, thumbnailfile::side * 3 / 4));
    EXPECT_EQ(small.pixelColor(20, 15), QColor(Qt::red));
}

TEST_F(ThumbnailFile, ofAPhotographIsSmallToo)
{
    putPicture(QStringLiteral("a.jpg"), {3000, 2000}, Qt::white);
    EXPECT_EQ(thumbnailOf(QStringLiteral("a.jpg")).width(), thumbnailfile::side);
}

TEST_F(ThumbnailFile, ofADocumentIsThatOfItsPictureAsItIsTurned)
{
    putDocument(QStringLiteral("a.crvgrab"), {800, 400}, 90);
    EXPECT_EQ(thumbnailOf(QStringLiteral("a.crvgrab")).size(),
              QSize(thumbnailfile::side / 2, thumbnailfile::side));
}

TEST_F(ThumbnailFile, isRememberedUntilTheFileChanges)
{
    putPicture(QStringLiteral("a.png"), {40, 30}, Qt::red);
    ASSERT_FALSE(thumbnailOf(QStringLiteral("a.png")).isNull());
    ASSERT_EQ(remembered().size(), 1);
    // What is remembered is what is seen.
    QImage other(7, 7, QImage::Format_RGB32);
    ASSERT_TRUE(other.save(QDir(folder()).filePath(remembered().first())));
    EXPECT_EQ(thumbnailOf(QStringLiteral("a.png")).width(), 7);
    putPicture(QStringLiteral("a.png"), {80, 60}, Qt::blue);
    EXPECT_EQ(thumbnailOf(QStringLiteral("a.png")).pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(ThumbnailFile, ofWhatIsGoneOrNoPictureIsNone)
{
    put(QStringLiteral("a.png"), "no picture");
    put(QStringLiteral("a.crvgrab"), "no document");
    for (const char *name : {"a.png", "a.crvgrab", "gone.png", "gone.crvgrab", "."})
        EXPECT_TRUE(thumbnailOf(QString::fromLatin1(name)).isNull()) << name;
    EXPECT_TRUE(remembered().isEmpty());
}

TEST_F(ThumbnailFile, theFolderStaysSmall)
{
    for (int i = 0; i < thumbnailfile::mostInFolder + 5; ++i) {
        const QString name = QStringLiteral("%1.png").arg(i);
        putPicture(name, {40, 30}, Qt::red);
        ASSERT_FALSE(thumbnailOf(name).isNull());
    }
    EXPECT_EQ(remembered().size(), thumbnailfile::mostInFolder);
}
