#include "platform/SystemPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

TEST(SystemPasteboard, holdsWhatIsOnTheClipboard)
{
    const SystemPasteboard pasteboard;
    auto *const content = new QMimeData;
    content->setData(QStringLiteral("image/x-other"), QByteArrayLiteral("other"));
    QGuiApplication::clipboard()->setMimeData(content);
    ASSERT_NE(pasteboard.content(), nullptr);
    EXPECT_EQ(pasteboard.content()->data(QStringLiteral("image/x-other")), QByteArray("other"));
}

TEST(SystemPasteboard, tellsWhenTheClipboardChanges)
{
    const SystemPasteboard pasteboard;
    const QSignalSpy changed(&pasteboard, &Pasteboard::changed);
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    EXPECT_TRUE(QTest::qWaitFor([&changed] { return !changed.isEmpty(); }));
}
