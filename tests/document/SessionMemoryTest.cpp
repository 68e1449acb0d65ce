#include "document/SessionMemory.h"

#include "document/TestDocument.h"

#include <QDir>
#include <QFile>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using Panel = PanelFolders::Panel;

namespace {

class SessionMemoryTest : public testing::Test
{
protected:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("session.json")); }
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    void put(const QByteArray &json) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(json) == json.size());
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SessionMemoryTest, beginsWithoutAnything)
{
    const SessionMemory memory(path());
    EXPECT_FALSE(memory.windowPlace());
    EXPECT_EQ(memory.folderOf(Panel::OpenFiles), QString());
}

TEST_F(SessionMemoryTest, keepsTheWindowPlaceForTheNextSession)
{
    SessionMemory(path()).setWindowPlace({-40, 30, 900, 700});
    EXPECT_EQ(SessionMemory(path()).windowPlace(), QRect(-40, 30, 900, 700));
}

TEST_F(SessionMemoryTest, keepsTheFolderOfEveryKindOfPanel)
{
    SessionMemory(path()).setFolderOf(Panel::OpenFiles, folder());
    SessionMemory(path()).setFolderOf(Panel::SaveDocument, QDir::rootPath());
    const SessionMemory next(path());
    EXPECT_EQ(next.folderOf(Panel::OpenFiles), folder());
    EXPECT_EQ(next.folderOf(Panel::SaveDocument), QDir::rootPath());
    EXPECT_EQ(next.folderOf(Panel::OpenPicture), QString());
}

TEST_F(SessionMemoryTest, aFolderThatIsGoneCountsAsNone)
{
    SessionMemory memory(path());
    memory.setFolderOf(Panel::OpenFiles, folder() + QStringLiteral("/gone"));
    EXPECT_EQ(memory.folderOf(Panel::OpenFiles), QString());
}

TEST_F(SessionMemoryTest, nonsenseInTheFileCountsAsNothing)
{
    for (const char *json : {R"({"Document Window": [900]})", R"({"Document Window": "large"})",
                             R"({"Document Window": [0, 0, -5, 700]})",
                             R"({"Document Window": [0, 0, 900, 700, 1]})"}) {
        put(json);
        EXPECT_FALSE(SessionMemory(path()).windowPlace()) << json;
    }
}

TEST(WindowSize, aClosedWindowLeavesItsSizeToTheNextOne)
{
    TestDocument test(QSize{});
    const auto sizeWithoutDrawer = [](const MyDocument &document) {
        return document.window().size() -
               QSize(document.window().ui().dataTableDrawer->widthInWindow(), 0);
    };
    test.document->window().resize(1200, 700);
    const QSize size = sizeWithoutDrawer(*test.document);
    test.document->performClose();
    MyDocument next(test.services);
    next.showWindow();
    EXPECT_EQ(sizeWithoutDrawer(next), size);
}

TEST(WindowSize, theDrawerIsLeftOut)
{
    TestDocument test;
    test.markSaved();
    if (!test.ui().dataTableDrawer->isOpen())
        test.document->showHideDataTable();
    const QSize size =
        test.document->window().size() - QSize(test.ui().dataTableDrawer->widthInWindow(), 0);
    EXPECT_LT(size.width(), test.document->window().width());
    test.document->performClose();
    EXPECT_EQ(test.services.sessionMemory().windowPlace()->size(), size);
}

TEST(WindowSize, aSizeTooSmallForTheControlsIsRaised)
{
    TestDocument test(QSize{});
    test.services.sessionMemory().setWindowPlace({0, 0, 20, 20});
    MyDocument next(test.services);
    next.showWindow();
    EXPECT_GE(next.window().width(), next.window().minimumWidth());
    EXPECT_GE(next.window().height(), next.window().minimumHeight());
}

TEST(WindowPlace, theNextFirstWindowStandsWhereTheLastOneStood)
{
    TestDocument test(QSize{});
    const QPoint place =
        test.document->window().screen()->availableGeometry().topLeft() + QPoint(53, 47);
    test.document->window().move(place);
    test.document->performClose();
    MyDocument next(test.services);
    next.showWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return next.window().pos() == place; }));
}

TEST(WindowPlace, thatIsOnNoScreenIsBroughtOntoOne)
{
    TestDocument test(QSize{});
    test.services.sessionMemory().setWindowPlace({90'000, 90'000, 700, 500});
    MyDocument next(test.services);
    next.showWindow();
    EXPECT_TRUE(next.window().screen()->geometry().contains(next.window().pos()));
}
