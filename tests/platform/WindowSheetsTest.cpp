#include "platform/WindowSheets.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <memory>

namespace {

Sheet message(const QString &title)
{
    return {title, QStringLiteral("The explanation."), QStringLiteral("OK"), QString()};
}

Sheet question(const QString &title)
{
    return {title, QString(), QStringLiteral("Replace"), QStringLiteral("Keep")};
}

class WindowSheetsTest : public testing::Test
{
protected:
    WindowSheetsTest()
    {
        m_window->show();
        m_sheets = std::make_unique<WindowSheets>(m_window.get());
    }

    /// The boxes that the user sees now.
    QList<QMessageBox *> shown() const
    {
        QList<QMessageBox *> boxes;
        for (auto *box : m_window->findChildren<QMessageBox *>()) {
            if (box->isVisible())
                boxes += box;
        }
        return boxes;
    }

    QMessageBox *box() const
    {
        const auto boxes = shown();
        return boxes.size() == 1 ? boxes.first() : nullptr;
    }

    void press(const QString &text) const
    {
        QMessageBox *const up = box();
        ASSERT_TRUE(up);
        for (QAbstractButton *button : up->buttons()) {
            if (button->text().remove(QLatin1Char('&')) == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        FAIL() << "no button " << text.toStdString();
    }

    std::function<void(SheetAnswer)> noting(const QString &name)
    {
        return [this, name](SheetAnswer answer) {
            m_ended += name + (answer == SheetAnswer::Default ? QStringLiteral(": default")
                                                              : QStringLiteral(": alternate"));
        };
    }

    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    std::unique_ptr<WindowSheets> m_sheets;
    QStringList m_ended;
};

} // namespace

TEST_F(WindowSheetsTest, aSheetShowsItsTextsAtOnceWithoutBlocking)
{
    m_sheets->present(message(QStringLiteral("Wrong value")), noting(QStringLiteral("a")));
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->text(), QStringLiteral("Wrong value"));
    EXPECT_EQ(box()->informativeText(), QStringLiteral("The explanation."));
    EXPECT_EQ(box()->buttons().size(), 1);
    EXPECT_EQ(box()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(m_ended, QStringList());
}

TEST_F(WindowSheetsTest, theTitleIsBoldAndNeverMarkup)
{
    m_sheets->present(message(QStringLiteral("<i>chart</i>.png")), {});
    ASSERT_TRUE(box());
    const auto *const title = box()->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    ASSERT_TRUE(title);
    EXPECT_TRUE(title->font().bold());
    EXPECT_EQ(title->textFormat(), Qt::PlainText);
}

TEST_F(WindowSheetsTest, theOnlyButtonAnswersDefault)
{
    m_sheets->present(message(QStringLiteral("a")), noting(QStringLiteral("a")));
    press(QStringLiteral("OK"));
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("a: default")}));
    EXPECT_FALSE(box());
}

TEST_F(WindowSheetsTest, eachButtonGivesItsAnswer)
{
    m_sheets->present(question(QStringLiteral("a")), noting(QStringLiteral("a")));
    press(QStringLiteral("Keep"));
    m_sheets->present(question(QStringLiteral("b")), noting(QStringLiteral("b")));
    press(QStringLiteral("Replace"));
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("a: alternate"), QStringLiteral("b: default")}));
}

TEST_F(WindowSheetsTest, returnPressesTheDefaultButton)
{
    m_sheets->present(question(QStringLiteral("a")), noting(QStringLiteral("a")));
    ASSERT_TRUE(box());
    QTest::keyClick(box(), Qt::Key_Return);
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("a: default")}));
}

TEST_F(WindowSheetsTest, escapePressesTheAlternateButton)
{
    m_sheets->present(question(QStringLiteral("a")), noting(QStringLiteral("a")));
    ASSERT_TRUE(box());
    QTest::keyClick(box(), Qt::Key_Escape);
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("a: alternate")}));
}

TEST_F(WindowSheetsTest, escapePressesTheOnlyButton)
{
    m_sheets->present(message(QStringLiteral("a")), noting(QStringLiteral("a")));
    ASSERT_TRUE(box());
    QTest::keyClick(box(), Qt::Key_Escape);
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("a: default")}));
}

TEST_F(WindowSheetsTest, closingTheBoxCountsAsEscape)
{
    m_sheets->present(question(QStringLiteral("a")), noting(QStringLiteral("a")));
    ASSERT_TRUE(box());
    box()->close();
    m_sheets->present(message(QStringLiteral("b")), noting(QStringLiteral("b")));
    ASSERT_TRUE(box());
    box()->close();
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("a: alternate"), QStringLiteral("b: default")}));
}

TEST_F(WindowSheetsTest, aSecondSheetWaitsForTheFirst)
{
    m_sheets->present(message(QStringLiteral("first")), noting(QStringLiteral("first")));
    m_sheets->present(message(QStringLiteral("second")), noting(QStringLiteral("second")));
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->text(), QStringLiteral("first"));
    press(QStringLiteral("OK"));
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->text(), QStringLiteral("second"));
    press(QStringLiteral("OK"));
    EXPECT_FALSE(box());
    EXPECT_EQ(m_ended,
              QStringList({QStringLiteral("first: default"), QStringLiteral("second: default")}));
}

TEST_F(WindowSheetsTest, theEndHandlerRunsBetweenTheTwoBoxes)
{
    qsizetype shownInHandler = -1;
    m_sheets->present(message(QStringLiteral("first")),
                      [&](SheetAnswer) { shownInHandler = shown().size(); });
    m_sheets->present(message(QStringLiteral("second")), {});
    press(QStringLiteral("OK"));
    EXPECT_EQ(shownInHandler, 0);
    EXPECT_EQ(shown().size(), 1);
}

TEST_F(WindowSheetsTest, aSheetAskedForByAnEndHandlerComesAfterThoseThatWait)
{
    m_sheets->present(message(QStringLiteral("first")), [this](SheetAnswer) {
        m_sheets->present(message(QStringLiteral("third")), noting(QStringLiteral("third")));
        EXPECT_TRUE(shown().isEmpty());
    });
    m_sheets->present(message(QStringLiteral("second")), {});
    press(QStringLiteral("OK"));
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->text(), QStringLiteral("second"));
    press(QStringLiteral("OK"));
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->text(), QStringLiteral("third"));
    press(QStringLiteral("OK"));
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("third: default")}));
}

TEST_F(WindowSheetsTest, twoWindowsShowTheirSheetsIndependently)
{
    QWidget otherWindow;
    otherWindow.show();
    WindowSheets otherSheets(&otherWindow);
    m_sheets->present(message(QStringLiteral("here")), {});
    otherSheets.present(message(QStringLiteral("there")), {});
    EXPECT_TRUE(box());
    EXPECT_TRUE(otherWindow.findChild<QMessageBox *>());
}

TEST_F(WindowSheetsTest, closedBoxesAreDeleted)
{
    m_sheets->present(message(QStringLiteral("a")), {});
    const QPointer<QMessageBox> closed(box());
    press(QStringLiteral("OK"));
    EXPECT_TRUE(QTest::qWaitFor([&closed] { return closed.isNull(); }));
}

TEST_F(WindowSheetsTest, theWindowsDeletionDropsTheQueueWithoutAnswers)
{
    m_sheets->present(message(QStringLiteral("first")), noting(QStringLiteral("first")));
    m_sheets->present(message(QStringLiteral("second")), noting(QStringLiteral("second")));
    m_window.reset();
    EXPECT_FALSE(m_sheets->isShowing());
    m_sheets->present(message(QStringLiteral("third")), noting(QStringLiteral("third")));
    QCoreApplication::processEvents();
    EXPECT_FALSE(m_sheets->isShowing());
    EXPECT_EQ(m_ended, QStringList());
}

TEST_F(WindowSheetsTest, theQueuesDeletionClosesItsBox)
{
    m_sheets->present(message(QStringLiteral("first")), noting(QStringLiteral("first")));
    const QPointer<QMessageBox> up(box());
    m_sheets.reset();
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&up] { return up.isNull(); }));
    EXPECT_EQ(m_ended, QStringList());
}

TEST_F(WindowSheetsTest, anEndHandlerMayCloseTheWindowForGood)
{
    bool secondEnded = false;
    auto *const sheets = new WindowSheets(m_window.get(), m_window.get());
    sheets->present(message(QStringLiteral("first")), [this](SheetAnswer) {
        noting(QStringLiteral("first"))(SheetAnswer::Default);
        m_window.reset();
    });
    sheets->present(message(QStringLiteral("second")), [&](SheetAnswer) { secondEnded = true; });
    ASSERT_TRUE(box());
    box()->done(QDialog::Accepted);
    EXPECT_EQ(m_ended, QStringList({QStringLiteral("first: default")}));
    EXPECT_FALSE(secondEnded);
}

TEST_F(WindowSheetsTest, otherDialogsWaitInTheSameQueue)
{
    QPointer<QDialog> dialog;
    int result = -1;
    m_sheets->present(message(QStringLiteral("first")), {});
    m_sheets->presentDialog(
        [&dialog](QWidget *window) {
            dialog = new QDialog(window);
            return dialog.data();
        },
        [&result](const QDialog &, int ended) { result = ended; });
    EXPECT_FALSE(dialog);
    press(QStringLiteral("OK"));
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->isVisible());
    dialog->accept();
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_FALSE(m_sheets->isShowing());
}

TEST_F(WindowSheetsTest, aMessageOfTroubleBearsAWarning)
{
    m_sheets->present(message(QStringLiteral("Trouble")), {});
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->icon(), QMessageBox::Warning);
}

TEST_F(WindowSheetsTest, anInformationBearsNoWarning)
{
    Sheet news = message(QStringLiteral("News"));
    news.isInformation = true;
    m_sheets->present(news, {});
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->icon(), QMessageBox::Information);
}
