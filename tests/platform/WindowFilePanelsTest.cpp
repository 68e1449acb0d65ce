#include "platform/WindowFilePanels.h"

#include "platform/WindowSheets.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMap>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

namespace {

class KeptFolders final : public PanelFolders
{
public:
    QString folderOf(Panel panel) const override { return m_folders.value(panel); }
    void setFolderOf(Panel panel, const QString &folder) override { m_folders[panel] = folder; }

private:
    QMap<Panel, QString> m_folders;
};

class WindowFilePanelsTest : public testing::Test
{
protected:
    WindowFilePanelsTest()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_window.show();
    }

    template <typename Dialog>
    Dialog *shown() const
    {
        for (auto *dialog : m_window.findChildren<Dialog *>()) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    QString inFolder(const QString &name) const { return m_folder.filePath(name); }

    void create(const QString &name) const
    {
        QFile file(inFolder(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    void askToSave() { ask({{QStringLiteral("Text"), QStringLiteral(".txt")}}); }

    void ask(const std::vector<FileKind> &kinds, const QString &folder = {})
    {
        m_panels.chooseFileToSave(
            {QStringLiteral("Save all series"), QStringLiteral("chart"), kinds, 0, folder},
            [this](const QString &path, std::size_t kind) {
                m_chosen += path;
                m_kind = kind;
            });
    }

    /// Asks for a text or a table.
    void askForTwoKinds()
    {
        ask({{QStringLiteral("Text"), QStringLiteral(".txt")},
             {QStringLiteral("Table"), QStringLiteral(".csv")}});
    }

    /// Chooses a filter as the user does, by its place in the list.
    void chooseFilter(int index) const
    {
        auto *const filters =
            shown<QFileDialog>()->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        ASSERT_TRUE(filters);
        filters->setCurrentIndex(index);
        Q_EMIT filters->textActivated(filters->currentText());
        Q_EMIT filters->activated(index);
    }

    /// Types `name` into the panel and confirms it.
    void confirm(const QString &name) const
    {
        auto *const panel = shown<QFileDialog>();
        ASSERT_TRUE(panel);
        panel->setDirectory(m_folder.path());
        auto *const field = panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        ASSERT_TRUE(field);
        panel->activateWindow();
        field->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([field] { return field->hasFocus(); }));
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        ASSERT_FALSE(panel->isVisible());
    }

    void answerQuestion(const QString &button) const
    {
        auto *const question = shown<QMessageBox>();
        ASSERT_TRUE(question);
        for (QAbstractButton *candidate : question->buttons()) {
            if (candidate->text().remove(QLatin1Char('&')) == button) {
                candidate->click();
                return;
            }
        }
        FAIL() << "no button " << button.toStdString();
    }

    QTemporaryDir m_folder;
    QWidget m_window;
    WindowSheets m_sheets{&m_window};
    KeptFolders m_folders;
    WindowFilePanels m_panels{m_sheets, m_folders};
    QStringList m_chosen;
    std::size_t m_kind = 99;
};

} // namespace

TEST_F(WindowFilePanelsTest, theSavePanelShowsMessageAndNameWithoutBlocking)
{
    askToSave();
    auto *const panel = shown<QFileDialog>();
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->windowTitle(), QStringLiteral("Save all series"));
    EXPECT_EQ(panel->windowModality(), Qt::WindowModal);
    EXPECT_EQ(panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text(),
              QStringLiteral("chart.txt"));
    EXPECT_EQ(m_chosen, QStringList());
}

TEST_F(WindowFilePanelsTest, aNameWithoutTheSuffixGetsIt)
{
    askToSave();
    confirm(QStringLiteral("data"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("data.txt"))}));
}

TEST_F(WindowFilePanelsTest, anotherSuffixIsPartOfTheName)
{
    askToSave();
    confirm(QStringLiteral("data.v2"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("data.v2.txt"))}));
}

TEST_F(WindowFilePanelsTest, theSuffixCountsInAnyCase)
{
    askToSave();
    confirm(QStringLiteral("DATA.TXT"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("DATA.TXT"))}));
}

TEST_F(WindowFilePanelsTest, aTypedSuffixChoosesTheKindOfFile)
{
    askForTwoKinds();
    confirm(QStringLiteral("data.csv"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("data.csv"))}));
    EXPECT_EQ(m_kind, 1U);
}

TEST_F(WindowFilePanelsTest, anotherFilterGivesTheNameItsSuffix)
{
    askForTwoKinds();
    chooseFilter(1);
    auto *const panel = shown<QFileDialog>();
    EXPECT_EQ(panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text(),
              QStringLiteral("chart.csv"));
    confirm(QStringLiteral("data"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("data.csv"))}));
    EXPECT_EQ(m_kind, 1U);
}

TEST_F(WindowFilePanelsTest, aTypedSuffixWinsOverTheFilter)
{
    for (const char *name : {"result.txt", "chart.txt"}) {
        askForTwoKinds();
        chooseFilter(1);
        confirm(QString::fromLatin1(name));
        EXPECT_EQ(m_chosen.takeLast(), inFolder(QString::fromLatin1(name)));
        EXPECT_EQ(m_kind, 0U);
    }
}

TEST_F(WindowFilePanelsTest, theSuffixOfAProposedNameFollowsTheFilter)
{
    askForTwoKinds();
    confirm(QStringLiteral("chart.txt"));
    EXPECT_EQ(m_kind, 0U);
    askForTwoKinds();
    chooseFilter(1);
    confirm(QStringLiteral("chart.csv"));
    EXPECT_EQ(m_chosen.last(), inFolder(QStringLiteral("chart.csv")));
    EXPECT_EQ(m_kind, 1U);
}

TEST_F(WindowFilePanelsTest, theSavePanelBeginsInTheFolderAskedFor)
{
    ask({{QStringLiteral("Text"), QStringLiteral(".txt")}}, m_folder.path());
    EXPECT_EQ(shown<QFileDialog>()->directory().path(), m_folder.path());
}

TEST_F(WindowFilePanelsTest, cancellingThePanelChoosesNothing)
{
    askToSave();
    ASSERT_TRUE(shown<QFileDialog>());
    QTest::keyClick(shown<QFileDialog>(), Qt::Key_Escape);
    EXPECT_EQ(m_chosen, QStringList());
    EXPECT_FALSE(m_sheets.isShowing());
}

TEST_F(WindowFilePanelsTest, overwritingTheCompletedNameIsAskedFirst)
{
    create(QStringLiteral("data.txt"));
    askToSave();
    confirm(QStringLiteral("data"));
    ASSERT_TRUE(shown<QMessageBox>());
    EXPECT_TRUE(shown<QMessageBox>()->text().contains(QStringLiteral("data.txt")));
    EXPECT_EQ(m_chosen, QStringList());
    answerQuestion(QStringLiteral("Replace"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("data.txt"))}));
}

TEST_F(WindowFilePanelsTest, overwritingIsAskedOnceForACompleteNameToo)
{
    create(QStringLiteral("data.txt"));
    askToSave();
    confirm(QStringLiteral("data.txt"));
    answerQuestion(QStringLiteral("Replace"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("data.txt"))}));
    EXPECT_FALSE(m_sheets.isShowing());
}

TEST_F(WindowFilePanelsTest, whoDoesNotOverwriteChoosesAnotherName)
{
    create(QStringLiteral("data.txt"));
    askToSave();
    confirm(QStringLiteral("data"));
    answerQuestion(QStringLiteral("Cancel"));
    EXPECT_EQ(m_chosen, QStringList());
    ASSERT_TRUE(shown<QFileDialog>());
    EXPECT_EQ(shown<QFileDialog>()->windowTitle(), QStringLiteral("Save all series"));
    confirm(QStringLiteral("other"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("other.txt"))}));
}

TEST_F(WindowFilePanelsTest, theFolderTypedBeforeANameIsTheNextPanelsFolder)
{
    const QTemporaryDir elsewhere;
    askToSave();
    confirm(elsewhere.filePath(QStringLiteral("data")));
    askToSave();
    ASSERT_TRUE(shown<QFileDialog>());
    EXPECT_EQ(shown<QFileDialog>()->directory(), QDir(elsewhere.path()));
}

TEST_F(WindowFilePanelsTest, theNextPanelOpensInTheFolderOfTheLastOne)
{
    askToSave();
    confirm(QStringLiteral("data"));
    askToSave();
    ASSERT_TRUE(shown<QFileDialog>());
    EXPECT_EQ(shown<QFileDialog>()->directory(), QDir(m_folder.path()));
}

TEST_F(WindowFilePanelsTest, theFirstPanelOpensBesideTheFileOfTheWindow)
{
    m_window.setWindowFilePath(inFolder(QStringLiteral("chart.crvgrab")));
    askToSave();
    ASSERT_TRUE(shown<QFileDialog>());
    EXPECT_EQ(shown<QFileDialog>()->directory(), QDir(m_folder.path()));
}

TEST_F(WindowFilePanelsTest, aFolderThatIsGoneIsNotOffered)
{
    m_window.setWindowFilePath(inFolder(QStringLiteral("gone/chart.crvgrab")));
    askToSave();
    ASSERT_TRUE(shown<QFileDialog>());
    EXPECT_TRUE(shown<QFileDialog>()->directory().exists());
}

TEST_F(WindowFilePanelsTest, theFirstPanelBeginsAtHomeWhereThereIsNoFolderForDocuments)
{
    const QByteArray home = qgetenv("HOME");
    const auto restore = qScopeGuard([&home] { qputenv("HOME", home); });
    qputenv("HOME", m_folder.path().toLocal8Bit());
    m_panels.choosePictureToOpen({QStringLiteral("png")}, [](const QString &) {});
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown<QFileDialog>() != nullptr; }));
    EXPECT_EQ(shown<QFileDialog>()->directory(), QDir(m_folder.path()));
    EXPECT_EQ(shown<QFileDialog>()->findChild<QLineEdit *>()->text(), QString());
}

TEST_F(WindowFilePanelsTest, theFirstPanelOfAWindowBeginsWhereItsKindWasLeft)
{
    const QTemporaryDir elsewhere;
    m_folders.setFolderOf(PanelFolders::Panel::SaveData, m_folder.path());
    m_folders.setFolderOf(PanelFolders::Panel::OpenPicture, elsewhere.path());
    askToSave();
    ASSERT_TRUE(shown<QFileDialog>());
    EXPECT_EQ(shown<QFileDialog>()->directory(), QDir(m_folder.path()));
    shown<QFileDialog>()->reject();
    m_panels.choosePictureToOpen({QStringLiteral("png")}, [](const QString &) {});
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown<QFileDialog>() != nullptr; }));
    EXPECT_EQ(shown<QFileDialog>()->directory(), QDir(elsewhere.path()));
}

TEST_F(WindowFilePanelsTest, theFolderOfAFileIsKeptForItsKindOfPanel)
{
    create(QStringLiteral("chart.png"));
    m_panels.chooseFilesToOpen({QStringLiteral("png")}, [](const QStringList &) {});
    confirm(QStringLiteral("chart.png"));
    EXPECT_EQ(m_folders.folderOf(PanelFolders::Panel::OpenFiles), m_folder.path());
    EXPECT_EQ(m_folders.folderOf(PanelFolders::Panel::SaveDocument), QString());
}

TEST_F(WindowFilePanelsTest, theOpenPanelOffersPicturesAndEverything)
{
    m_panels.choosePictureToOpen({QStringLiteral("png"), QStringLiteral("jpg")},
                                 [this](const QString &path) { m_chosen += path; });
    auto *const panel = shown<QFileDialog>();
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->windowTitle(), QStringLiteral("Open Picture"));
    EXPECT_EQ(panel->nameFilters(), QStringList({QStringLiteral("Pictures (*.png *.jpg)"),
                                                 QStringLiteral("All files (*)")}));
}

TEST_F(WindowFilePanelsTest, theOpenPanelHandsOutTheChosenPicture)
{
    create(QStringLiteral("chart.png"));
    m_panels.choosePictureToOpen({QStringLiteral("png")},
                                 [this](const QString &path) { m_chosen += path; });
    confirm(QStringLiteral("chart.png"));
    EXPECT_EQ(m_chosen, QStringList({inFolder(QStringLiteral("chart.png"))}));
}

TEST_F(WindowFilePanelsTest, cancellingTheOpenPanelChoosesNothing)
{
    m_panels.choosePictureToOpen({QStringLiteral("png")},
                                 [this](const QString &path) { m_chosen += path; });
    ASSERT_TRUE(shown<QFileDialog>());
    QTest::keyClick(shown<QFileDialog>(), Qt::Key_Escape);
    EXPECT_EQ(m_chosen, QStringList());
}
