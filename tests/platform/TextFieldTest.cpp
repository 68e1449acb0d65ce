#include "platform/TextField.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

namespace {

class TextFieldTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *const column = new QVBoxLayout(&m_window);
        column->addWidget(m_field);
        column->addWidget(m_other);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_window.isActiveWindow(); }));
        m_field->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_field->hasFocus(); }));
    }

    void loseFocus(Qt::FocusReason reason)
    {
        QFocusEvent event(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(m_field, &event);
    }

    QWidget m_window;
    TextField *m_field = new TextField(&m_window);
    TextField *m_other = new TextField(&m_window);
    QSignalSpy m_committed{m_field, &TextField::committed};
};

} // namespace

TEST_F(TextFieldTest, returnSendsTheAction)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    EXPECT_EQ(m_committed.count(), 0);
    QTest::keyClick(m_field, Qt::Key_Return);
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, enterOnTheKeypadSendsTheAction)
{
    QTest::keyClick(m_field, Qt::Key_Enter);
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, returnSendsTheActionWithoutAnyChangeToo)
{
    QTest::keyClick(m_field, Qt::Key_Return);
    QTest::keyClick(m_field, Qt::Key_Return);
    EXPECT_EQ(m_committed.count(), 2);
}

TEST_F(TextFieldTest, losingFocusAfterAChangeSendsTheAction)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_TRUE(m_other->hasFocus());
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, losingFocusWithoutAChangeSendsNothing)
{
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_TRUE(m_other->hasFocus());
    EXPECT_EQ(m_committed.count(), 0);
}

TEST_F(TextFieldTest, returnThenLosingFocusSendsOnce)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    QTest::keyClick(m_field, Qt::Key_Return);
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, hidingTheFieldWithItsPageSendsTheChange)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    m_field->hide();
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, aPopupAMenuOrAnotherWindowTakesTheFocusOnlyForAWhile)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    loseFocus(Qt::PopupFocusReason);
    loseFocus(Qt::MenuBarFocusReason);
    loseFocus(Qt::ActiveWindowFocusReason);
    EXPECT_EQ(m_committed.count(), 0);
    loseFocus(Qt::MouseFocusReason);
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, aMenuThatOpensOverTheFieldSendsNothing)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    QMenu menu(&m_window);
    menu.addAction(QStringLiteral("An entry"));
    menu.popup(m_window.mapToGlobal(QPoint(5, 5)));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    menu.close();
    EXPECT_EQ(m_committed.count(), 0);
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, aTextSetByTheProgramReplacesWhatTheUserBegan)
{
    QTest::keyClicks(m_field, QStringLiteral("12"));
    m_field->setStringValue(QStringLiteral("0.1"));
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_EQ(m_committed.count(), 0);
    EXPECT_EQ(m_field->text(), QStringLiteral("0.1"));
}

TEST_F(TextFieldTest, aFieldMayReplaceItsTextWhileItSendsItsAction)
{
    QObject::connect(m_field, &TextField::committed, m_field,
                     [this] { m_field->setDoubleValue(0.1); });
    QTest::keyClicks(m_field, QStringLiteral("-5"));
    EXPECT_EQ(m_field->text(), QStringLiteral("-5"));
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_EQ(m_field->text(), QStringLiteral("0.1"));
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, anActionThatMovesTheFocusIsNotSentTwice)
{
    QObject::connect(m_field, &TextField::committed, m_field, [this] { m_other->setFocus(); });
    QTest::keyClicks(m_field, QStringLiteral("12"));
    QTest::keyClick(m_field, Qt::Key_Return);
    EXPECT_TRUE(m_other->hasFocus());
    EXPECT_EQ(m_committed.count(), 1);
}

TEST_F(TextFieldTest, nothingThatIsTypedIsRefused)
{
    QTest::keyClicks(m_field, QStringLiteral("-1,5e+x%"));
    EXPECT_EQ(m_field->text(), QStringLiteral("-1,5e+x%"));
}

TEST_F(TextFieldTest, showsWhatItHasReadWhenItSendsItsAction)
{
    QString textAtTheAction;
    QObject::connect(m_field, &TextField::committed, m_field,
                     [&] { textAtTheAction = m_field->text(); });
    for (const auto &[typed, read] : {std::pair{"10^2", "10"},
                                      {"1,000", "1.000"},
                                      {" 7 ", "7"},
                                      {"-2.50e3 m", "-2.50e3"},
                                      {"abc", "0"}}) {
        m_field->clear();
        QTest::keyClicks(m_field, QString::fromLatin1(typed));
        EXPECT_EQ(m_field->text(), QString::fromLatin1(typed));
        QTest::keyClick(m_field, Qt::Key_Return);
        EXPECT_EQ(textAtTheAction, QString::fromLatin1(read)) << typed;
    }
}

TEST_F(TextFieldTest, aFieldThatWasEmptiedShowsTheZeroThatItMeans)
{
    m_field->setStringValue(QStringLiteral("5"));
    QTest::keyClick(m_field, Qt::Key_Backspace);
    QTest::keyClick(m_field, Qt::Key_Tab);
    EXPECT_EQ(m_field->text(), QStringLiteral("0"));
}

TEST_F(TextFieldTest, aTextThatNobodyTypedStaysAsItIs)
{
    m_field->setStringValue(QStringLiteral("-----"));
    QTest::keyClick(m_field, Qt::Key_Return);
    EXPECT_EQ(m_field->text(), QStringLiteral("-----"));
}

TEST_F(TextFieldTest, theTextReadsAsTheNumberItBeginsWith)
{
    m_field->setStringValue(QStringLiteral("12abc"));
    EXPECT_EQ(m_field->doubleValue(), 12.0);
    m_field->setStringValue(QStringLiteral("1,5"));
    EXPECT_EQ(m_field->doubleValue(), 1.5);
    m_field->setStringValue(QStringLiteral("250.9"));
    EXPECT_EQ(m_field->integerValue(), 250);
    m_field->setStringValue(QString());
    EXPECT_EQ(m_field->doubleValue(), 0.0);
}

TEST_F(TextFieldTest, numbersAreShownWithSixDigits)
{
    m_field->setDoubleValue(123456.5);
    EXPECT_EQ(m_field->text(), QStringLiteral("123456"));
    m_field->setDoubleValue(-0.0);
    EXPECT_EQ(m_field->text(), QStringLiteral("-0"));
    EXPECT_EQ(m_committed.count(), 0);
}
