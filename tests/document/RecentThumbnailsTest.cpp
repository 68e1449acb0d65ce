#include "document/RecentThumbnails.h"

#include "document/TestDocument.h"
#include "document/ThumbnailFile.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QSignalSpy>
#include <QStyle>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>

namespace {

constexpr int patience = 20'000; // milliseconds

class RecentThumbnailsTest : public testing::Test
{
protected:
    QString putPicture(const char *name)
    {
        QImage picture(400, 300, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString path = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(picture.save(path));
        return path;
    }

    [[nodiscard]] static bool isRed(const QIcon &icon)
    {
        return icon.pixmap(thumbnailfile::side).toImage().pixelColor(5, 5) == QColor(Qt::red);
    }

    [[nodiscard]] QString folder() const { return m_folder.filePath(QStringLiteral("small")); }

private:
    QTemporaryDir m_folder;
};

/// The menu of a document, as it looks when it comes down.
QMenu &shownMenu(const TestDocument &test)
{
    auto *menu = test.document->window().findChild<QMenu *>(QStringLiteral("recentFilesMenu"));
    Q_EMIT qobject_cast<QMenu *>(menu->parentWidget())->aboutToShow();
    Q_EMIT menu->aboutToShow();
    return *menu;
}

} // namespace

TEST_F(RecentThumbnailsTest, areMadeInTheBackgroundOneAfterTheOther)
{
    RecentThumbnails thumbnails(folder());
    const QStringList paths{putPicture("a.png"), putPicture("b.png")};
    QSignalSpy changed(&thumbnails, &RecentThumbnails::iconChanged);
    thumbnails.prepare(paths);
    EXPECT_EQ(changed.count(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 2; }, patience));
    EXPECT_EQ(changed.at(0).at(0).toString(), paths.at(0));
    EXPECT_TRUE(isRed(thumbnails.iconOf(paths.at(1))));
}

TEST_F(RecentThumbnailsTest, aFileThatVanishedGetsThePlainIcon)
{
    RecentThumbnails thumbnails(folder());
    const QString path = putPicture("a.png");
    QSignalSpy changed(&thumbnails, &RecentThumbnails::iconChanged);
    thumbnails.prepare({path});
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 1; }, patience));
    ASSERT_TRUE(QFile::remove(path));
    thumbnails.prepare({path});
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 2; }, patience));
    EXPECT_FALSE(isRed(thumbnails.iconOf(path)));
    EXPECT_FALSE(thumbnails.iconOf(path).isNull());
}

TEST_F(RecentThumbnailsTest, ofAFileThatHangsHoldUpNoOthers)
{
    const auto hanging = std::make_shared<std::promise<void>>();
    const auto begun = std::make_shared<std::atomic<int>>(0);
    const auto make = [begun, until = hanging->get_future().share()](
                          const QString &path, const QString &, const std::stop_token &) {
        if (path == QStringLiteral("hanging")) {
            ++*begun;
            until.wait();
        }
        QImage picture(thumbnailfile::side, thumbnailfile::side, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    };
    RecentThumbnails thumbnails(folder(), make, std::chrono::milliseconds(10));
    const QStringList paths{QStringLiteral("hanging"), QStringLiteral("a"), QStringLiteral("b")};
    QSignalSpy changed(&thumbnails, &RecentThumbnails::iconChanged);
    for (const int pictures : {2, 4}) {
        thumbnails.prepare(paths);
        ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == pictures; }, patience));
        EXPECT_FALSE(isRed(thumbnails.iconOf(paths.at(0))));
        EXPECT_TRUE(isRed(thumbnails.iconOf(paths.at(2))));
    }
    EXPECT_EQ(*begun, 1);
    hanging->set_value();
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 5; }, patience));
    EXPECT_TRUE(isRed(thumbnails.iconOf(paths.at(0))));
}

TEST_F(RecentThumbnailsTest, ofAFileThatHangsDoNotHoldUpTheirDestruction)
{
    const auto hanging = std::make_shared<std::promise<void>>();
    const auto ended = std::make_shared<std::promise<void>>();
    const auto make = [ended, until = hanging->get_future().share()](
                          const QString &path, const QString &, const std::stop_token &) {
        if (path == QStringLiteral("hanging")) {
            until.wait();
            ended->set_value();
        }
        return QImage(1, 1, QImage::Format_RGB32);
    };
    {
        RecentThumbnails thumbnails(folder(), make, std::chrono::milliseconds(10));
        const QSignalSpy changed(&thumbnails, &RecentThumbnails::iconChanged);
        thumbnails.prepare({QStringLiteral("hanging"), QStringLiteral("a")});
        ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 1; }, patience));
    }
    hanging->set_value();
    EXPECT_EQ(ended->get_future().wait_for(std::chrono::milliseconds(patience)),
              std::future_status::ready);
}

TEST_F(RecentThumbnailsTest, areForgottenOnTheDiskToo)
{
    RecentThumbnails thumbnails(folder());
    const QString path = putPicture("a.png");
    QSignalSpy changed(&thumbnails, &RecentThumbnails::iconChanged);
    thumbnails.prepare({path});
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 1; }, patience));
    thumbnails.clear();
    EXPECT_FALSE(isRed(thumbnails.iconOf(path)));
    EXPECT_TRUE(QDir(folder()).entryList(QDir::Files).isEmpty());
}

TEST_F(RecentThumbnailsTest, standInTheMenuOfRecentFiles)
{
    TestDocument test(QSize{});
    const QString gone = QStringLiteral("/nowhere/gone.png");
    test.services.recentFiles().add(gone);
    test.services.recentFiles().add(putPicture("a.png"));
    const QMenu &menu = shownMenu(test);
    EXPECT_FALSE(menu.actions().at(0)->icon().isNull());
    EXPECT_TRUE(QTest::qWaitFor([&menu] { return isRed(menu.actions().at(0)->icon()); }, patience));
    EXPECT_FALSE(menu.actions().at(1)->icon().isNull());
    EXPECT_FALSE(isRed(menu.actions().at(1)->icon()));
    EXPECT_EQ(menu.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &menu),
              thumbnailfile::side);
}
