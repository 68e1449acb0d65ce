#include "platform/Modules.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(Modules, lieBesideTheProgramWhereverThatIs)
{
    EXPECT_TRUE(modules::folderFor(QStringLiteral("/opt/tool/bin"))
                    .startsWith(QStringLiteral("/opt/tool/")));
}

TEST(Modules, areLookedForWhereTheyWereSaidToBe)
{
    const QString before = modules::folder();
    modules::setFolder(QStringLiteral("/elsewhere"));
    EXPECT_EQ(modules::folder(), QStringLiteral("/elsewhere"));
    modules::setFolder(before);
    EXPECT_EQ(modules::folder(), before);
}

TEST(Modules, oneThatIsMissingGivesNothing)
{
    const QTemporaryDir folder;
    EXPECT_EQ(modules::root(folder.path(), QStringLiteral("curvegrabplot")), nullptr);
}

TEST(Modules, oneThatIsNoLibraryGivesNothing)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("curvegrabplot.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    EXPECT_EQ(modules::root(folder.path(), QStringLiteral("curvegrabplot")), nullptr);
}
