#include "plot/PlotChoices.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PlotChoicesTest : public ::testing::Test
{
protected:
    [[nodiscard]] PlotChoices choices() const
    {
        return PlotChoices(m_folder.filePath(QStringLiteral("plot.json")));
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(PlotChoicesTest, beginWithADrawing)
{
    EXPECT_EQ(choices().format(), plotpicture::Format::Svg);
    EXPECT_TRUE(choices().folder().isEmpty());
}

TEST_F(PlotChoicesTest, areKeptForTheNextSession)
{
    choices().remember(plotpicture::Format::Png, m_folder.path());
    EXPECT_EQ(choices().format(), plotpicture::Format::Png);
    EXPECT_EQ(choices().folder(), m_folder.path());
}

TEST_F(PlotChoicesTest, forgetAFolderThatIsGone)
{
    choices().remember(plotpicture::Format::Pdf, m_folder.filePath(QStringLiteral("gone")));
    EXPECT_TRUE(choices().folder().isEmpty());
    EXPECT_EQ(choices().format(), plotpicture::Format::Pdf);
}
