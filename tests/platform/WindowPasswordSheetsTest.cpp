#include "platform/WindowPasswordSheets.h"

#include "platform/WindowSheets.h"

#include <QDialog>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class WindowPasswordSheetsTest : public testing::Test
{
protected:
    WindowPasswordSheetsTest()
    {
        m_window.show();
        m_passwords.askForPassword({QStringLiteral("Locked"), QStringLiteral("Type it.")},
                                   [this](const std::optional<QString> &password) {
                                       ++m_answers;
                                       m_password = password;
                                   });
    }

    QDialog *sheet() const { return m_window.findChild<QDialog *>("passwordSheet"); }
    QLineEdit *field() const { return m_window.findChild<QLineEdit *>("passwordField"); }

    QWidget m_window;
    WindowSheets m_sheets{&m_window};
    WindowPasswordSheets m_passwords{m_sheets};
    std::optional<QString> m_password;
    int m_answers = 0;
};

} // namespace

TEST_F(WindowPasswordSheetsTest, isASheetThatHidesWhatIsTyped)
{
    ASSERT_TRUE(sheet());
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(field()->echoMode(), QLineEdit::Password);
    EXPECT_EQ(m_answers, 0);
}

TEST_F(WindowPasswordSheetsTest, returnHandsThePasswordOver)
{
    QTest::keyClicks(field(), QStringLiteral("s3cret"));
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(m_answers, 1);
    EXPECT_EQ(m_password, QStringLiteral("s3cret"));
}

TEST_F(WindowPasswordSheetsTest, escapeCancels)
{
    QTest::keyClicks(field(), QStringLiteral("s3cret"));
    QTest::keyClick(field(), Qt::Key_Escape);
    EXPECT_EQ(m_answers, 1);
    EXPECT_FALSE(m_password.has_value());
}

TEST_F(WindowPasswordSheetsTest, waitsForOtherSheets)
{
    WindowSheets others(&m_window);
    WindowPasswordSheets passwords(others);
    others.present({"Before", "", "OK", ""}, {});
    passwords.askForPassword({"Second", ""}, [](const std::optional<QString> &) {});
    EXPECT_EQ(m_window.findChildren<QDialog *>("passwordSheet").size(), 1);
}
