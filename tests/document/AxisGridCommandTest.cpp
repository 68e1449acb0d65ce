#include "document/TestDocument.h"
#include "platform/TextField.h"

#include <QCheckBox>

#include <gtest/gtest.h>

#include <functional>

namespace {

void pressKeys(TestDocument &test)
{
    QWidget &window = test.document->window();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&test.document->graphView(), Qt::Key_G, Qt::ControlModifier);
    test.endEvent();
}

/// Counts the times that a widget was painted.
class Paintings final : public QObject
{
public:
    explicit Paintings(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }

    int count = 0;
};

/// Whether the picture is painted by itself after a change of the axes.
bool isPaintedAfter(TestDocument &test, const std::function<void()> &change)
{
    QCoreApplication::processEvents();
    const Paintings paintings(test.document->graphView());
    change();
    return QTest::qWaitFor([&paintings] { return paintings.count > 0; }, 1000);
}

void typeInto(TextField &field, const QString &text)
{
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
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

TEST(AxisGridCommand, theGridFollowsTypedAxisValues)
{
    TestDocument test;
    pressKeys(test);
    const QImage before = shown(test);
    EXPECT_TRUE(
        isPaintedAfter(test, [&test] { typeInto(*test.ui().maxXTextField, QStringLiteral("7")); }));
    EXPECT_NE(shown(test), before);
}

TEST(AxisGridCommand, theGridFollowsLogarithmicAxes)
{
    TestDocument test;
    pressKeys(test);
    EXPECT_TRUE(isPaintedAfter(test, [&test] { test.ui().logXCheck->click(); }));
}
