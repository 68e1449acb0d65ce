#include "document/ApplicationPanels.h"

#include "document/TestDocument.h"
#include "infopanel/InfoPanelController.h"
#include "prefs/MarkerShapeControl.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/PrefsController.h"

#include <gtest/gtest.h>

#include <QDialog>

namespace {

class SharedPanels : public testing::Test
{
protected:
    SharedPanels() { m_prefs.awakeFromNib(); }

    void pressInPreferences(const char *name)
    {
        QTest::mouseClick(m_panels->prefsController().prefsWindow().findChild<QAbstractButton *>(
                              QString::fromLatin1(name)),
                          Qt::LeftButton);
    }
    [[nodiscard]] bool infoPanelIsVisible() const
    {
        return m_panels->infoPanelController().isVisible();
    }
    [[nodiscard]] std::optional<QJsonValue> stored(const QString &key) const
    {
        return UserDefaults(m_path).objectForKey(key);
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("settings.json"));
    UserDefaults m_defaults{m_path};
    CurvegrabPrefs m_prefs{m_defaults};
    std::unique_ptr<ApplicationPanels> m_panels = std::make_unique<ApplicationPanels>(
        m_prefs, m_folder.filePath(QStringLiteral("infopanel.json")));
};

} // namespace

TEST_F(SharedPanels, theInfoPanelShowsAtLaunchUnlessItWasHidden)
{
    EXPECT_FALSE(infoPanelIsVisible());
    m_prefs.applicationDidFinishLaunching();
    EXPECT_TRUE(infoPanelIsVisible());
    EXPECT_EQ(m_panels->showHideInfo().text(), qtTrId("HideInfo"));
}

TEST_F(SharedPanels, aHiddenInfoPanelStaysHiddenAtLaunch)
{
    m_prefs.setInfoPanelState(false);
    m_prefs.applicationDidFinishLaunching();
    EXPECT_FALSE(infoPanelIsVisible());
    EXPECT_EQ(m_panels->showHideInfo().text(), qtTrId("ShowInfo"));
}

TEST_F(SharedPanels, hidingTheInfoPanelIsStoredAtOnce)
{
    m_prefs.applicationDidFinishLaunching();
    m_panels->showHideInfo().trigger();
    EXPECT_FALSE(infoPanelIsVisible());
    EXPECT_EQ(stored(preferencekeys::infoPanelVisible), QJsonValue(false));
    m_panels->showHideInfo().trigger();
    EXPECT_EQ(stored(preferencekeys::infoPanelVisible), QJsonValue(true));
}

TEST_F(SharedPanels, theInfoPanelsItemHasAShortcut)
{
    EXPECT_EQ(m_panels->showHideInfo().shortcut(), QKeySequence(QStringLiteral("Ctrl+I")));
    EXPECT_EQ(m_panels->showHideInfo().objectName(), QStringLiteral("showInfoPanel"));
}

TEST_F(SharedPanels, okStoresAndNotifies)
{
    QStringList posted;
    QObject::connect(&m_panels->notificationCentre(), &NotificationCentre::posted,
                     &m_panels->notificationCentre(),
                     [&posted](const QString &name) { posted << name; });
    m_panels->prefsController().editPreferences();
    pressInPreferences("okButton");
    EXPECT_EQ(posted, QStringList({curvegrabPrefsChangedNotification}));
    EXPECT_TRUE(stored(preferencekeys::axisThickness).has_value());
}

TEST_F(SharedPanels, thePreferencesShowTheShapesOfRealMarkers)
{
    const auto *row = m_panels->prefsController().prefsWindow().findChild<MarkerShapeControl *>(
        QStringLiteral("markerStyleSegment1"));
    const auto middleAndSide = [row](int shape) {
        const QImage icon = row->findChildren<QAbstractButton *>()
                                .at(shape)
                                ->icon()
                                .pixmap(16, QIcon::Normal, QIcon::On)
                                .toImage();
        return std::pair(icon.pixelColor(8, 8).alpha() > 128, icon.pixelColor(3, 8).alpha() > 128);
    };
    EXPECT_EQ(middleAndSide(0), std::pair(true, true));
    EXPECT_EQ(middleAndSide(1), std::pair(false, true));
    EXPECT_EQ(middleAndSide(2), std::pair(true, true));
    EXPECT_EQ(middleAndSide(3), std::pair(false, true));
}

TEST_F(SharedPanels, theHelpButtonOpensTheHelpThatThereIs)
{
    m_panels->prefsController().editPreferences();
    pressInPreferences("helpButton");
    RecordingHelp help;
    m_panels->setHelpViewer(&help);
    pressInPreferences("helpButton");
    EXPECT_EQ(help.opened, QStringList({QStringLiteral("Curvegrab X Help#CV_Help_Preferences")}));
}

TEST_F(SharedPanels, thePreferencesOutliveThePanels)
{
    m_panels.reset();
    m_prefs.applicationDidFinishLaunching();
    EXPECT_EQ(gInfoPanelController, nullptr);
}

TEST_F(SharedPanels, preferencesTakeTheKeyboardFromADocumentAndGiveItBack)
{
    const TestDocument test;
    test.document->window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&test.document->window()));
    EXPECT_TRUE(test.document->isKey());
    m_panels->prefsController().editPreferences();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_panels->prefsController().prefsWindow()));
    EXPECT_FALSE(test.document->isKey());
    EXPECT_FALSE(test.document->graphView().mouseCheckTimer().isActive());
    pressInPreferences("cancelButton");
    test.document->window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&test.document->window()));
    EXPECT_TRUE(test.document->isKey());
}
