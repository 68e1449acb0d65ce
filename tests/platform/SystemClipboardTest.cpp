#include "platform/SystemClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

TEST(SystemClipboard, holdsTheTextWithItsTabsAndLineFeeds)
{
    SystemClipboard clipboard;
    clipboard.setText(QStringLiteral("1.5\t2\n3\t4\n"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1.5\t2\n3\t4\n"));
}

TEST(SystemClipboard, replacesWhateverWasThere)
{
    auto *const other = new QMimeData;
    other->setData(QStringLiteral("application/x-other"), QByteArrayLiteral("other"));
    QGuiApplication::clipboard()->setMimeData(other);
    SystemClipboard clipboard;
    clipboard.setText(QStringLiteral("text"));
    EXPECT_FALSE(
        QGuiApplication::clipboard()->mimeData()->hasFormat(QStringLiteral("application/x-other")));
}

TEST(SystemClipboard, anEmptyTextReplacesTheOldOne)
{
    SystemClipboard clipboard;
    clipboard.setText(QStringLiteral("old"));
    clipboard.setText(QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

TEST(SystemClipboard, aTableIsItsTextByteForByteAndATableBesideIt)
{
    SystemClipboard clipboard;
    clipboard.setTable(QStringLiteral("x\ty\n1.5\t\n"));
    const QMimeData *const content = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(content->data(QStringLiteral("text/plain")), QByteArray("x\ty\n1.5\t\n"));
    EXPECT_EQ(content->html().count(QStringLiteral("<tr>")), 2);
    EXPECT_TRUE(content->html().contains(QStringLiteral(">1.5</td><td></td>")));
}
