#include "document/TestDocument.h"

#include <QApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// A PDF file of several pages in a document's window.
namespace {

QUrl fileOfTwoPages(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("two.pdf"));
    QPdfWriter writer(path);
    QPainter painter(&writer);
    painter.drawLine(0, 0, 1000, 1000);
    writer.newPage();
    painter.drawLine(0, 1000, 1000, 0);
    painter.end();
    return QUrl::fromLocalFile(path);
}

} // namespace

TEST(DocumentPdf, choosingAPageTakesTheKeyboardFromTheDocumentAndGivesItBack)
{
    const QTemporaryDir folder;
    const TestDocument test;
    test.document->window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&test.document->window()));
    ASSERT_TRUE(test.document->isKey());
    test.document->graphView().openImageFile(fileOfTwoPages(folder));
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
    QWidget *const panel = QApplication::activeModalWidget();
    // A window counts as active together with its parent: ask for the one with the keyboard.
    ASSERT_TRUE(QTest::qWaitFor([panel] { return QApplication::activeWindow() == panel; }));
    EXPECT_FALSE(test.document->isKey());
    EXPECT_FALSE(test.document->graphView().mouseCheckTimer().isActive());
    QTest::keyClick(panel, Qt::Key_Escape);
    test.document->window().activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&test] { return test.document->isKey(); }));
}
