#include "capture/CursorGuide.h"
#include "document/DocumentArchive.h"
#include "document/DocumentController.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "document/SampleRoots.h"
#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"
#include "ui_MyDocument.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

// The keys of the commands that all documents share act on the one in use, when they make sense
// there.
namespace {

constexpr Qt::KeyboardModifiers controlAndShift = Qt::ControlModifier | Qt::ShiftModifier;

class SharedShortcuts : public testing::Test
{
protected:
    SharedShortcuts()
        : m_defaults(m_folder.filePath(QStringLiteral("settings.json")))
        , m_prefs(m_defaults)
        , m_controller(m_prefs, m_folder.path())
    {
        m_prefs.awakeFromNib();
    }

    /// Opens a document at that page, with that automatic X mode and series; its window is in use.
    MyDocument &open(int page, int autoXMode, int series = 0)
    {
        ArchiveDictionary root = sampleroots::root(sampleroots::Kind::Parallel);
        root.set(documentkeys::actionTabSelection, sampleroots::integer(page));
        set(root, documentkeys::cursorGuideData, "Auto X Value Mode", autoXMode);
        set(root, documentkeys::dataSeriesData, "Current Series", series);
        QFile file(m_folder.filePath(QStringLiteral("chart.crvgrab")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(documentarchive::archivedData(root));
        file.close();
        m_controller.openFiles({file.fileName()});
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return m_controller.documents().size() == 1 &&
                   m_controller.documents().front()->hasImage();
        }));
        MyDocument &document = *m_controller.documents().front();
        document.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&document.window()));
        document.window().ui().pictureScrollArea->setFocus();
        return document;
    }

    static void press(const MyDocument &document, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(&document.window(), key, modifiers);
    }

private:
    static void set(ArchiveDictionary &root, const char *part, const char *key, int number)
    {
        ArchiveDictionary data = *root.dictionaryForKey(part);
        data.set(key, sampleroots::integer(number));
        root.set(part, {data});
    }

    QTemporaryDir m_folder;
    UserDefaults m_defaults;
    CurvegrabPrefs m_prefs;
    DocumentController m_controller;
};

} // namespace

TEST_F(SharedShortcuts, lockAndOpenOnTheDigitizingPage)
{
    const MyDocument &document = open(1, 0);
    for (const bool locked : {true, false}) {
        press(document, Qt::Key_X, controlAndShift);
        EXPECT_EQ(document.cursorGuide().lockX(), locked);
        press(document, Qt::Key_Y, controlAndShift);
        EXPECT_EQ(document.cursorGuide().lockY(), locked);
    }
}

TEST_F(SharedShortcuts, lockNothingOnTheAxisPage)
{
    const MyDocument &document = open(0, 0);
    press(document, Qt::Key_X, controlAndShift);
    press(document, Qt::Key_Y, controlAndShift);
    EXPECT_FALSE(document.cursorGuide().lockX());
    EXPECT_FALSE(document.cursorGuide().lockY());
}

TEST_F(SharedShortcuts, leaveAnXThatAModeLocks)
{
    const MyDocument &document = open(1, 1);
    ASSERT_TRUE(document.cursorGuide().lockX());
    press(document, Qt::Key_X, controlAndShift);
    EXPECT_TRUE(document.cursorGuide().lockX());
}

TEST_F(SharedShortcuts, lockTheEqualXOfTheFirstSeriesOnly)
{
    const MyDocument &document = open(1, 2);
    ASSERT_FALSE(document.cursorGuide().lockX());
    press(document, Qt::Key_X, controlAndShift);
    EXPECT_TRUE(document.cursorGuide().lockX());
}

TEST_F(SharedShortcuts, leaveTheEqualXOfALaterSeries)
{
    const MyDocument &document = open(1, 2, 3);
    ASSERT_TRUE(document.cursorGuide().lockX());
    press(document, Qt::Key_X, controlAndShift);
    EXPECT_TRUE(document.cursorGuide().lockX());
}

TEST_F(SharedShortcuts, showAndHideTheTable)
{
    const MyDocument &document = open(1, 0);
    const int before = document.drawerOpenButtonState();
    press(document, Qt::Key_T, Qt::ControlModifier);
    EXPECT_NE(document.drawerOpenButtonState(), before);
    press(document, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(document.drawerOpenButtonState(), before);
}
