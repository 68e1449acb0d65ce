#include "plot/PlotModule.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(PlotModule, isFoundInItsFolder)
{
    PlotModule module(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER));
    EXPECT_NE(module.maker(), nullptr);
    EXPECT_EQ(module.maker(), module.maker());
}

TEST(PlotModule, thatIsMissingMakesNothing)
{
    const QTemporaryDir folder;
    EXPECT_EQ(PlotModule(folder.path()).maker(), nullptr);
}

TEST(PlotModule, thatIsNoLibraryMakesNothing)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("curvegrabplot.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    EXPECT_EQ(PlotModule(folder.path()).maker(), nullptr);
}

TEST(PlotModule, liesBesideTheProgramWhereverThatIs)
{
    EXPECT_TRUE(PlotModule::folderFor(QStringLiteral("/opt/tool/bin"))
                    .startsWith(QStringLiteral("/opt/tool/")));
}
