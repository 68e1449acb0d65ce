#include "capture/SeriesExport.h"

#include "SeriesFixture.h"
#include "platform/Texts.h"
#include "support/FakeFilePanels.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace {

/// A disk on which no file grows beyond a few bytes.
class FullDisk
{
public:
    FullDisk()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        m_handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = m_before;
        limit.rlim_cur = 4;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_before{};
    void (*m_handlerBefore)(int) = SIG_DFL;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// Formats of the test's own: the text, and one that tells what it was made of.
class TwoFormats final : public SeriesFormats
{
public:
    [[nodiscard]] std::vector<FileKind> offered() const override
    {
        return {{QStringLiteral("Text"), QStringLiteral(".txt")},
                {QStringLiteral("Other"), QStringLiteral(".other")}};
    }
    [[nodiscard]] std::size_t lastChosen() const override { return kind; }
    [[nodiscard]] QString lastFolder() const override { return folder; }
    void remember(std::size_t newKind, const QString &newFolder) override
    {
        kind = newKind;
        folder = newFolder;
    }
    [[nodiscard]] Maker maker(const IndexSet &series, bool withTitle) const override
    {
        return [this, series, withTitle](std::size_t made) {
            const QByteArray text = QByteArray::number(static_cast<int>(made)) + ':' +
                                    QByteArray::number(static_cast<int>(series.size()));
            return fails ? std::nullopt : std::optional(withTitle ? "titled " + text : text);
        };
    }
    [[nodiscard]] QString reasonOfNothing() const override { return QStringLiteral("no reason"); }

    std::size_t kind = 0;
    QString folder;
    bool fails = false;
};

} // namespace

class SeriesExportFixture : public SeriesFixture
{
protected:
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    FakeFilePanels panels;
    QString displayName = QStringLiteral("Chart.crvgrab");
    TwoFormats formats;
    SeriesExport dataExport{{series, panels, document.messages, prefs, formats},
                            [this] { return displayName; }};
};

TEST_F(SeriesExportFixture, savingAllAsksWithTheMessageForAll)
{
    fill({0});
    dataExport.saveDataAs();
    ASSERT_EQ(panels.saveCount(), 1);
    EXPECT_EQ(panels.message(), texts::localized("SaveAllMessage"));
}

TEST_F(SeriesExportFixture, savingTheSelectionAsksWithTheMessageForTheSelection)
{
    fill({0});
    table.selection = {0};
    dataExport.saveSelectionAs();
    ASSERT_EQ(panels.saveCount(), 1);
    EXPECT_EQ(panels.message(), texts::localized("SaveSelectionMessage"));
}

TEST_F(SeriesExportFixture, savingAllTakesEverySeriesThatHoldsPoints)
{
    fill({1, 4});
    dataExport.saveDataAs();
    panels.confirm(path(QStringLiteral("all.txt")));
    EXPECT_EQ(contentOf(path(QStringLiteral("all.txt"))), QByteArray("1\t1\t4\t4\n"));
    EXPECT_TRUE(document.messages.shown.empty());
}

TEST_F(SeriesExportFixture, savingTheSelectionTakesTheSelectedSeries)
{
    fill({1, 4});
    table.selection = {4};
    dataExport.saveSelectionAs();
    panels.confirm(path(QStringLiteral("some.txt")));
    EXPECT_EQ(contentOf(path(QStringLiteral("some.txt"))), QByteArray("4\t4\n"));
}

TEST_F(SeriesExportFixture, theTitleLineFollowsThePreferenceForSaving)
{
    prefs.saveTitle = true;
    prefs.copyTitle = false;
    fill({0});
    dataExport.saveDataAs();
    panels.confirm(path(QStringLiteral("titled.txt")));
    EXPECT_EQ(contentOf(path(QStringLiteral("titled.txt"))),
              QByteArray("Series_01_x\tSeries_01_y\n0\t0\n"));
}

TEST_F(SeriesExportFixture, withoutPointsSavingAllDoesNothing)
{
    prefs.saveTitle = true;
    dataExport.saveDataAs();
    EXPECT_EQ(panels.saveCount(), 0);
    EXPECT_TRUE(document.messages.shown.empty());
}

TEST_F(SeriesExportFixture, withoutSelectionSavingTheSelectionDoesNothing)
{
    fill({0});
    dataExport.saveSelectionAs();
    EXPECT_EQ(panels.saveCount(), 0);
    EXPECT_TRUE(document.messages.shown.empty());
}

TEST_F(SeriesExportFixture, theTextIsTheOneOfTheMomentOfAsking)
{
    fill({0});
    dataExport.saveDataAs();
    fill({0, 1});
    panels.confirm(path(QStringLiteral("held.txt")));
    EXPECT_EQ(contentOf(path(QStringLiteral("held.txt"))), QByteArray("0\t0\n"));
}

TEST_F(SeriesExportFixture, savingDoesNotMarkTheDocument)
{
    fill({0});
    const int before = document.changeCount;
    dataExport.saveDataAs();
    panels.confirm(path(QStringLiteral("clean.txt")));
    EXPECT_EQ(document.changeCount, before);
}

TEST_F(SeriesExportFixture, theProposedNameHasTheExtensionTxt)
{
    const std::vector<std::pair<QString, QString>> names = {
        {QStringLiteral("Chart.crvgrab"), QStringLiteral("Chart.txt")},
        {QStringLiteral("scan.v2.png"), QStringLiteral("scan.v2.txt")},
        {QStringLiteral("Untitled"), QStringLiteral("Untitled.txt")},
        {QStringLiteral("Untitled 2"), QStringLiteral("Untitled 2.txt")},
        {QStringLiteral(".hidden"), QStringLiteral(".hidden.txt")},
    };
    fill({0});
    for (const auto &[shown, proposed] : names) {
        displayName = shown;
        dataExport.saveDataAs();
        EXPECT_EQ(panels.proposedName(), proposed);
    }
}

TEST_F(SeriesExportFixture, theFileIsAsciiWithLineFeedsOnly)
{
    dataExport.savePanelDidEnd(path(QStringLiteral("ascii.txt")), QStringLiteral("\u03b8\tr\n"));
    EXPECT_EQ(contentOf(path(QStringLiteral("ascii.txt"))), QByteArray("?\tr\n"));
}

TEST_F(SeriesExportFixture, anEmptyTextMakesAnEmptyFile)
{
    dataExport.savePanelDidEnd(path(QStringLiteral("empty.txt")), QString());
    EXPECT_EQ(contentOf(path(QStringLiteral("empty.txt"))), QByteArray());
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("empty.txt"))));
}

TEST_F(SeriesExportFixture, anExistingFileIsReplaced)
{
    write(path(QStringLiteral("old.txt")), "a long old content\n");
    dataExport.savePanelDidEnd(path(QStringLiteral("old.txt")), QStringLiteral("1\t2\n"));
    EXPECT_EQ(contentOf(path(QStringLiteral("old.txt"))), QByteArray("1\t2\n"));
}

TEST_F(SeriesExportFixture, aMissingFolderIsToldWithTheFileAndTheReason)
{
    dataExport.savePanelDidEnd(path(QStringLiteral("gone/data.txt")), QStringLiteral("1\t2\n"));
    ASSERT_EQ(document.messages.shown.size(), 1U);
    const Sheet &sheet = document.messages.shown[0];
    EXPECT_TRUE(sheet.message.contains(QStringLiteral("data.txt")));
    EXPECT_EQ(sheet.informativeText, texts::localized("platform.file.folderGone"));
    EXPECT_EQ(sheet.defaultButton, texts::localized("OK"));
    EXPECT_TRUE(sheet.alternateButton.isEmpty());
}

TEST_F(SeriesExportFixture, aFolderInThePlaceOfTheFileIsTold)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("taken.txt")));
    dataExport.savePanelDidEnd(path(QStringLiteral("taken.txt")), QStringLiteral("1\t2\n"));
    ASSERT_EQ(document.messages.shown.size(), 1U);
    EXPECT_EQ(document.messages.shown[0].informativeText,
              texts::localized("platform.file.isFolder"));
}

TEST_F(SeriesExportFixture, aFullDiskIsToldAndLeavesTheOldFile)
{
    const QString file = path(QStringLiteral("kept.txt"));
    write(file, "old\n");
    {
        const FullDisk disk;
        dataExport.savePanelDidEnd(file, QStringLiteral("1\t2\n3\t4\n"));
    }
    EXPECT_EQ(contentOf(file), QByteArray("old\n"));
    ASSERT_EQ(document.messages.shown.size(), 1U);
    EXPECT_EQ(document.messages.shown[0].informativeText,
              texts::localized("platform.file.tooLarge"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("kept.txt")});
}

TEST_F(SeriesExportFixture, anotherFormatIsMadeOfTheSameSeries)
{
    prefs.saveTitle = true;
    fill({1, 4});
    dataExport.saveDataAs();
    panels.confirm(path(QStringLiteral("all.other")));
    EXPECT_EQ(contentOf(path(QStringLiteral("all.other"))), QByteArray("titled 1:2"));
}

TEST_F(SeriesExportFixture, formatAndFolderAreThoseOfTheLastTime)
{
    fill({0});
    dataExport.saveDataAs();
    EXPECT_EQ(panels.file().kind, 0U);
    EXPECT_TRUE(panels.file().folder.isEmpty());
    panels.confirm(path(QStringLiteral("a.other")));
    dataExport.saveDataAs();
    EXPECT_EQ(panels.file().kind, 1U);
    EXPECT_EQ(panels.file().folder, folder.path());
    EXPECT_EQ(panels.proposedName(), QStringLiteral("Chart.other"));
}

TEST_F(SeriesExportFixture, aFormatThatCannotBeMadeIsToldAndWritesNothing)
{
    formats.fails = true;
    fill({0});
    dataExport.saveDataAs();
    panels.confirm(path(QStringLiteral("a.other")));
    ASSERT_EQ(document.messages.shown.size(), 1U);
    EXPECT_EQ(document.messages.shown[0].informativeText, QStringLiteral("no reason"));
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("a.other"))));
}

TEST_F(SeriesExportFixture, everyTextOfTheExportIsWritten)
{
    for (const char *key : {"SaveAllMessage", "SaveSelectionMessage", "capture.export.failed"})
        EXPECT_NE(texts::localized(key), QString::fromLatin1(key));
}
