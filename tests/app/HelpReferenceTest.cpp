// What the help says about commands is what the menus have.
#include "app/CommandKeys.h"
#include "document/DocumentController.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "helpbook/HelpBook.h"
#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString referencePage = QStringLiteral("keys.html");

/// A row of the reference's table of commands.
struct Row
{
    QString menu;
    QString title;
    QString command;
};

/// A command with keys as the menus have it.
struct MenuCommand
{
    QString menu;
    const QAction *action = nullptr;
};

class HelpReference : public ::testing::Test
{
protected:
    HelpReference()
        : m_defaults(m_folder.filePath(QStringLiteral("settings.json")))
        , m_prefs(m_defaults)
    {
        m_prefs.awakeFromNib();
        m_documents = std::make_unique<DocumentController>(m_prefs, m_folder.path());
        m_documents->newDocument();
    }

    [[nodiscard]] QMainWindow &window() const { return m_documents->documents().front()->window(); }

    [[nodiscard]] std::vector<MenuCommand> commandsWithKeys() const
    {
        std::vector<MenuCommand> commands;
        for (const QAction *menu : window().menuBar()->actions())
            for (const QAction *action : menu->menu()->actions())
                if (!action->shortcuts().isEmpty())
                    commands.push_back({plain(menu->text()), action});
        return commands;
    }

    /// A title as running text has it: without mnemonic and dots.
    [[nodiscard]] static QString plain(QString title)
    {
        return title.remove(u'&').remove(QStringLiteral("…"));
    }

    [[nodiscard]] static std::vector<Row> rows()
    {
        static const QRegularExpression row(QStringLiteral(
            "<tr><td>([^<]*)</td><td>([^<]*)</td><td>\\{key:([A-Za-z]+)\\}</td></tr>"));
        const HelpBook book(QStringLiteral(":/help/en"));
        std::vector<Row> rows;
        for (const QRegularExpressionMatch &match : row.globalMatch(book.source(referencePage))) {
            const QString menu =
                match.captured(1).isEmpty() && !rows.empty() ? rows.back().menu : match.captured(1);
            rows.push_back({menu, match.captured(2), match.captured(3)});
        }
        return rows;
    }

private:
    QTemporaryDir m_folder;
    UserDefaults m_defaults;
    CurvegrabPrefs m_prefs;
    std::unique_ptr<DocumentController> m_documents;
};

} // namespace

TEST_F(HelpReference, everyCommandThatAPageNamesHasKeys)
{
    const HelpBook book(QStringLiteral(":/help/en"));
    int named = 0;
    for (const HelpBook::Page &page : book.pages()) {
        for (const QString &command : HelpBook::commandsIn(book.source(page.file))) {
            EXPECT_FALSE(commandkeys::ofCommand(command, {&window()}).isEmpty())
                << qPrintable(page.file) << ": " << qPrintable(command);
            ++named;
        }
    }
    EXPECT_GT(named, 60);
}

TEST_F(HelpReference, everyCommandWithKeysStandsInItOnceUnderItsMenu)
{
    const std::vector<MenuCommand> commands = commandsWithKeys();
    EXPECT_GT(commands.size(), 30U);
    for (const MenuCommand &command : commands) {
        QStringList menus;
        for (const Row &row : rows())
            if (row.command == command.action->objectName())
                menus += row.menu;
        EXPECT_EQ(menus, QStringList(command.menu)) << qPrintable(command.action->objectName());
    }
}

TEST_F(HelpReference, standsInTheOrderOfTheMenus)
{
    QStringList inMenus;
    for (const MenuCommand &command : commandsWithKeys())
        inMenus += command.action->objectName();
    QStringList inReference;
    for (const Row &row : rows())
        inReference += row.command;
    EXPECT_EQ(inReference, inMenus);
}

TEST_F(HelpReference, callsCommandsAsTheMenusDo)
{
    // These have two titles, and change between them.
    const QStringList changing{QStringLiteral("showHideDataTable"), QStringLiteral("showInfoPanel"),
                               QStringLiteral("lockUnlockX"), QStringLiteral("lockUnlockY")};
    for (const MenuCommand &command : commandsWithKeys()) {
        if (changing.contains(command.action->objectName()))
            continue;
        for (const Row &row : rows()) {
            if (row.command == command.action->objectName()) {
                EXPECT_EQ(row.title.toStdString(), plain(command.action->text()).toStdString());
            }
        }
    }
}
