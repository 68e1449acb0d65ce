#include "document/TestDocument.h"

#include "capture/DataTableView.h"
#include "support/ControlNames.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QLabel>

#include <gtest/gtest.h>

// What a screen reader is told of a document's window.

namespace {

class DocumentAccessibility : public ::testing::Test
{
protected:
    // As with a screen reader, which has interfaces forgotten with their objects.
    DocumentAccessibility() { QAccessible::setActive(true); }

    [[nodiscard]] QAccessibleInterface *picture()
    {
        return QAccessible::queryAccessibleInterface(&test.document->graphView());
    }

    /// Whole-picture axes read out pixels; two points in the first series.
    void capture()
    {
        test.command("wholePosition");
        test.digitize();
        test.click(100, 50);
        test.click(200, 60);
    }

    TestDocument test;
};

} // namespace

TEST_F(DocumentAccessibility, everyControlThatTakesTheKeyboardHasAName)
{
    EXPECT_EQ(controlnames::unnamed(test.document->window()).join(u'\n').toStdString(), "");
}

TEST_F(DocumentAccessibility, everyButtonWithoutTextHasATooltip)
{
    for (const QAbstractButton *button :
         test.document->window().findChildren<QAbstractButton *>()) {
        const bool isSymbol = button->focusPolicy() != Qt::NoFocus && button->text().isEmpty();
        EXPECT_FALSE(isSymbol && button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
}

TEST_F(DocumentAccessibility, thePictureIsAGraphic)
{
    ASSERT_NE(picture(), nullptr);
    EXPECT_EQ(picture()->role(), QAccessible::Graphic);
    EXPECT_EQ(picture()->text(QAccessible::Name), qtTrId("imageview.view.name"));
}

TEST_F(DocumentAccessibility, thePictureTellsItsSizeAndPage)
{
    EXPECT_EQ(picture()->text(QAccessible::Description),
              qtTrId("document.picture.onAxisPage").arg(500).arg(400));
    test.digitize();
    EXPECT_EQ(picture()->text(QAccessible::Description),
              qtTrId("document.picture.onDigitizingPage").arg(500).arg(400));
    test.setAxes();
    test.command("imageRotateCw");
    EXPECT_EQ(picture()->text(QAccessible::Description),
              qtTrId("document.picture.onAxisPage").arg(400).arg(500));
}

TEST_F(DocumentAccessibility, thePictureSaysTheGraphValuesWhereTheKeysHaveLed)
{
    test.command("wholePosition");
    test.digitize();
    test.services.desktop->pointer =
        test.document->graphView().mapToGlobal(test.widgetPosition(100, 50));
    QTest::keyClick(&test.document->graphView(), Qt::Key_Right);
    const QString values = qtTrId("document.status.graph").arg(101).arg(50);
    EXPECT_EQ(picture()->text(QAccessible::Value), values);
    ASSERT_NE(picture()->valueInterface(), nullptr);
    EXPECT_EQ(picture()->valueInterface()->currentValue().toString(), values);
}

TEST_F(DocumentAccessibility, thePictureSaysWhichPartOfTheAxesIsChosen)
{
    QTest::keyClick(&test.document->graphView(), Qt::Key_PageDown);
    EXPECT_TRUE(picture()->text(QAccessible::Value).startsWith(qtTrId("axes.part.origin")))
        << picture()->text(QAccessible::Value).toStdString();
}

TEST_F(DocumentAccessibility, theTableCanBeRead)
{
    capture();
    QAccessibleInterface *const view =
        QAccessible::queryAccessibleInterface(&test.document->dataTableView());
    ASSERT_NE(view, nullptr);
    QAccessibleTableInterface *const table = view->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 2);
    ASSERT_NE(table->cellAt(1, 0), nullptr);
    const QAbstractItemModel *const model = test.document->dataTableView().model();
    EXPECT_EQ(table->cellAt(1, 0)->text(QAccessible::Name),
              model->data(model->index(1, 0)).toString());
    EXPECT_FALSE(table->cellAt(1, 0)->text(QAccessible::Name).isEmpty());
    EXPECT_EQ(table->columnDescription(0),
              model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString());
    EXPECT_FALSE(table->columnDescription(0).isEmpty());
}
