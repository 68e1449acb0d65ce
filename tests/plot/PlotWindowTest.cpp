#include "plot/PlotWindow.h"

#include "plot/PlotChoices.h"
#include "plot/PlotModule.h"
#include "plot/PlotView.h"
#include "plot/SampleContent.h"
#include "support/FakeFilePanels.h"
#include "support/RecordingSheets.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace {

class PlotWindowTest : public ::testing::Test
{
protected:
    PlotWindowTest() { make(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER)); }

    void make(const QString &moduleFolder)
    {
        m_window.reset();
        m_module = std::make_unique<PlotModule>(moduleFolder);
        m_window = std::make_unique<PlotWindow>(*m_module, m_choices);
        m_window->setDialogs(m_sheets, m_panels);
    }

    void show(const PlotContent &content)
    {
        m_window->showContent(content);
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    }

    template <class Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }
    void clickSave() { QTest::mouseClick(child<QPushButton>("savePlotButton"), Qt::LeftButton); }
    [[nodiscard]] QString note() const { return child<QLabel>("plotNote")->text(); }

    [[nodiscard]] QByteArray content(const QString &name) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    PlotChoices m_choices{m_folder.filePath(QStringLiteral("plot.json"))};
    RecordingSheets m_sheets;
    FakeFilePanels m_panels;
    std::unique_ptr<PlotModule> m_module;
    std::unique_ptr<PlotWindow> m_window;
};

} // namespace

TEST_F(PlotWindowTest, hasTheNameOfTheDocument)
{
    show(samplecontent::linear({{5, 5}}));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("chart.crvgrab – Result"));
    EXPECT_TRUE(note().isEmpty());
}

TEST_F(PlotWindowTest, saysThatThereIsNothingYet)
{
    PlotContent content = samplecontent::linear({});
    content.series.clear();
    show(content);
    EXPECT_EQ(note(), QStringLiteral("No points have been captured yet."));
}

TEST_F(PlotWindowTest, countsWhatHasNoPlace)
{
    PlotContent content = samplecontent::linear({{5, 5}, {-1, 5}, {0, 5}});
    content.x = {1, 10, true, false};
    show(content);
    EXPECT_EQ(note(), QStringLiteral("Points that have no place on these axes: 2"));
}

TEST_F(PlotWindowTest, savesInTheFormatThatIsChosen)
{
    show(samplecontent::linear({{5, 5}}));
    for (const auto &[name, start] : {std::pair{"plot.svg", "<?xml"}, std::pair{"plot.pdf", "%PDF"},
                                      std::pair{"plot.png", "\x89PNG"}}) {
        clickSave();
        ASSERT_TRUE(m_panels.isAsking());
        m_panels.confirm(m_folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(content(QString::fromLatin1(name)).startsWith(start)) << name;
    }
    EXPECT_TRUE(m_sheets.presented().empty());
}

TEST_F(PlotWindowTest, proposesTheNameOfTheDocumentAndTheFormatAndFolderUsedLast)
{
    show(samplecontent::linear({{5, 5}}));
    clickSave();
    EXPECT_EQ(m_panels.proposedName(), QStringLiteral("chart.svg"));
    EXPECT_TRUE(m_panels.file().folder.isEmpty());
    m_panels.confirm(m_folder.filePath(QStringLiteral("plot.png")));
    clickSave();
    EXPECT_EQ(m_panels.proposedName(), QStringLiteral("chart.png"));
    EXPECT_EQ(m_panels.file().folder, m_folder.path());
}

TEST_F(PlotWindowTest, saysWhyAFileWasNotWritten)
{
    show(samplecontent::linear({{5, 5}}));
    clickSave();
    m_panels.confirm(m_folder.filePath(QStringLiteral("gone/plot.svg")));
    ASSERT_EQ(m_sheets.presented().size(), 1U);
    EXPECT_EQ(m_sheets.presented()[0].message, QStringLiteral("“plot.svg” could not be saved"));
    EXPECT_FALSE(m_sheets.presented()[0].informativeText.isEmpty());
    EXPECT_EQ(m_choices.folder(), QString());
}

TEST_F(PlotWindowTest, savesByKeysToo)
{
    show(samplecontent::linear({{5, 5}}));
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_panels.isAsking(); }));
}

TEST_F(PlotWindowTest, closesByKeys)
{
    show(samplecontent::linear({{5, 5}}));
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(PlotWindowTest, tellsScreenReadersWhatItShows)
{
    PlotContent content = samplecontent::linear({{5, 5}});
    content.series.push_back(samplecontent::series({{1, 1}}));
    content.series[1].name = QStringLiteral("Series 2");
    show(content);
    EXPECT_EQ(m_window->view()->accessibleName(), QStringLiteral("Plot of the captured points"));
    EXPECT_EQ(m_window->view()->accessibleDescription(), QStringLiteral("Series 1, Series 2"));
}

TEST_F(PlotWindowTest, withoutTheModuleSaysWhatToDo)
{
    make(m_folder.path());
    show(samplecontent::linear({{5, 5}}));
    const auto *message = child<QLabel>("plotMissing");
    ASSERT_NE(message, nullptr);
    EXPECT_TRUE(message->text().contains(m_folder.path()));
    EXPECT_FALSE(child<QPushButton>("savePlotButton")->isEnabled());
}

TEST_F(PlotWindowTest, standsWhereTheLastOneWasLeft)
{
    show(samplecontent::linear({{0, 0}, {1, 1}}));
    m_window->setGeometry(61, 72, 701, 502);
    m_window->close();
    make(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER));
    m_window->show();
    EXPECT_EQ(m_window->geometry(), QRect(61, 72, 701, 502));
}
