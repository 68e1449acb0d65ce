#include "document/TestDocument.h"

#include <gtest/gtest.h>

namespace {

void pressKeys(TestDocument &test)
{
    QWidget &window = test.document->window();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&test.document->graphView(), Qt::Key_G, Qt::ControlModifier);
    test.endEvent();
}

QImage shown(const TestDocument &test) { return test.document->graphView().grab().toImage(); }

} // namespace

TEST(AxisGridCommand, laysTheGridOverThePictureAndTakesItAway)
{
    TestDocument test;
    const QImage before = shown(test);
    pressKeys(test);
    EXPECT_TRUE(test.action("toggleAxisGrid")->isChecked());
    EXPECT_NE(shown(test), before);
    pressKeys(test);
    EXPECT_FALSE(test.action("toggleAxisGrid")->isChecked());
    EXPECT_EQ(shown(test), before);
}

TEST(AxisGridCommand, isThereForAPictureOnly)
{
    EXPECT_FALSE(TestDocument({0, 0}).action("toggleAxisGrid")->isEnabled());
    EXPECT_TRUE(TestDocument().action("toggleAxisGrid")->isEnabled());
}

TEST(AxisGridCommand, staysOnWhileDigitizing)
{
    TestDocument test;
    test.digitize();
    const QImage before = shown(test);
    pressKeys(test);
    EXPECT_NE(shown(test), before);
}

TEST(AxisGridCommand, isNoPartOfTheDocument)
{
    TestDocument test;
    test.markSaved();
    const QByteArray before = *test.document->dataOfType({});
    pressKeys(test);
    EXPECT_FALSE(test.document->isDocumentEdited());
    EXPECT_TRUE(*test.document->dataOfType({}) == before);
}
