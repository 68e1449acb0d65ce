#include "app/CommandKeys.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

namespace {

class CommandKeys : public ::testing::Test
{
protected:
    CommandKeys()
    {
        QMenu *menu = window.menuBar()->addMenu(QStringLiteral("View"));
        zoomIn = menu->addMenu(QStringLiteral("Zoom"))->addAction(QStringLiteral("In"));
        zoomIn->setObjectName(QStringLiteral("zoomIn"));
    }

    [[nodiscard]] QString keysOf(const char *name)
    {
        return commandkeys::ofCommand(QString::fromLatin1(name), {&other, &window});
    }

    QWidget other;
    QMainWindow window;
    QAction *zoomIn = nullptr;
};

} // namespace

TEST_F(CommandKeys, areThoseOfTheActionInAnyMenuOfAnyWindow)
{
    zoomIn->setShortcut(QKeySequence(QStringLiteral("Ctrl++")));
    EXPECT_EQ(keysOf("zoomIn"), QStringLiteral("Ctrl++"));
}

TEST_F(CommandKeys, severalAreSeparatedByCommas)
{
    zoomIn->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))});
    EXPECT_EQ(keysOf("zoomIn"), QStringLiteral("Ctrl++, Ctrl+="));
}

TEST_F(CommandKeys, areEmptyForACommandWithoutKeysOrNoCommand)
{
    EXPECT_EQ(keysOf("zoomIn"), QString());
    EXPECT_EQ(keysOf("nothing"), QString());
}
