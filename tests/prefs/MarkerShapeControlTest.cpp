#include "prefs/PrefsControllerFixture.h"

namespace {

QList<QAbstractButton *> segmentsOf(const MarkerShapeControl &control)
{
    return control.findChildren<QAbstractButton *>();
}

int checkedCount(const MarkerShapeControl &control)
{
    int count = 0;
    for (const QAbstractButton *segment : segmentsOf(control))
        count += segment->isChecked() ? 1 : 0;
    return count;
}

} // namespace

TEST(MarkerShapeControl, hasASegmentForEachOfTheFourShapes)
{
    const MarkerShapeControl control;
    ASSERT_EQ(segmentsOf(control).size(), 4);
    QStringList names;
    for (const QAbstractButton *segment : segmentsOf(control))
        names << segment->accessibleName();
    EXPECT_EQ(names.join(u'|').toStdString(),
              "Filled square|Open square|Filled circle|Open circle");
}

TEST(MarkerShapeControl, aClickChoosesOneSegment)
{
    MarkerShapeControl control;
    control.show();
    QTest::mouseClick(segmentsOf(control).at(2), Qt::LeftButton);
    EXPECT_EQ(control.selectedSegment(), 2);
    EXPECT_TRUE(segmentsOf(control).at(2)->isChecked());
    EXPECT_EQ(checkedCount(control), 1);
}

TEST(MarkerShapeControl, aShapeWithoutSegmentIsKeptAndLeavesAllUnchosen)
{
    MarkerShapeControl control;
    for (const int shape : {7, -1}) {
        control.setSelectedSegment(shape);
        EXPECT_EQ(control.selectedSegment(), shape);
        EXPECT_EQ(checkedCount(control), 0);
    }
}

TEST(MarkerShapeControl, arrowKeysChoose)
{
    MarkerShapeControl control;
    control.setSelectedSegment(1);
    control.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
    control.setFocus();
    QTest::keyClick(segmentsOf(control).at(1), Qt::Key_Right);
    EXPECT_EQ(control.selectedSegment(), 2);
}

TEST(MarkerShapeControl, drawsTheShapesInTheColorOfButtonTexts)
{
    const SquareMarkers markers;
    MarkerShapeControl control;
    control.setMarkers(markers);
    const auto middle = [&control] {
        const QIcon icon = segmentsOf(control).at(0)->icon();
        return icon.pixmap(16, QIcon::Normal, QIcon::On).toImage().pixelColor(8, 8);
    };
    QPalette palette = control.palette();
    palette.setColor(QPalette::ButtonText, Qt::black);
    control.setPalette(palette);
    EXPECT_EQ(middle(), QColor(Qt::black));
    palette.setColor(QPalette::ButtonText, Qt::white);
    control.setPalette(palette);
    EXPECT_EQ(middle(), QColor(Qt::white));
}
