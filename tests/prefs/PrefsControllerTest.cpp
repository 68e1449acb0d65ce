#include "prefs/PrefsControllerFixture.h"

#include "platform/NamedColors.h"
#include "prefs/PreferenceKeys.h"
#include "support/ControlNames.h"

#include <QCheckBox>
#include <QRegularExpression>

#include <array>

namespace {

class PrefsPanel : public PrefsControllerFixture
{};

} // namespace

TEST_F(PrefsPanel, showsTheFactorySettingsAtFirst)
{
    m_controller.editPreferences();
    EXPECT_EQ(text("axisThickText"), "1.5");
    EXPECT_EQ(text("anchorSizeText"), "7.0");
    EXPECT_EQ(text("guideThickText"), "1.0");
    EXPECT_EQ(text("guideRefreshText"), "0.05");
    EXPECT_EQ(text("pdfReadingScaleText"), "400");
    EXPECT_TRUE(control<QCheckBox>("copyWithTitleCheck")->isChecked());
    EXPECT_TRUE(control<QCheckBox>("saveWithTitleCheck")->isChecked());
    EXPECT_EQ(well("axisColor")->color(), namedcolors::green);
    EXPECT_EQ(well("guideColor")->color(), namedcolors::red);
}

TEST_F(PrefsPanel, showsTheTenFactoryMarkersAtFirst)
{
    const std::array colors{namedcolors::orange, namedcolors::magenta, namedcolors::green,
                            namedcolors::brown, namedcolors::purple};
    m_controller.editPreferences();
    for (int series = 0; series < 10; ++series) {
        EXPECT_EQ(markerColor(series)->color(), colors.at(static_cast<std::size_t>(series) % 5))
            << series;
        EXPECT_EQ(markerStyle(series)->selectedSegment(), series % 4) << series;
        EXPECT_EQ(markerSize(series)->text().toStdString(), "8.0") << series;
    }
}

TEST_F(PrefsPanel, showsEveryStoredSetting)
{
    m_prefs.setAxisColor({0.1F, 0.2F, 0.3F, 0.4F});
    m_prefs.setAxisThick(2.5F);
    m_prefs.setAxisAnchorSize(9.5F);
    m_prefs.setGuideColor({0.5F, 0.6F, 0.7F, 0.8F});
    m_prefs.setGuideThick(3.5F);
    m_prefs.setGuideInterval(0.13F);
    m_prefs.setPdfScale(2.5F);
    m_prefs.setCopyWithTitle(false);
    m_controller.editPreferences();
    EXPECT_EQ(well("axisColor")->color(), (DeviceColor{0.1F, 0.2F, 0.3F, 0.4F}));
    EXPECT_EQ(text("axisThickText"), "2.5");
    EXPECT_EQ(text("anchorSizeText"), "9.5");
    EXPECT_EQ(well("guideColor")->color(), (DeviceColor{0.5F, 0.6F, 0.7F, 0.8F}));
    EXPECT_EQ(text("guideThickText"), "3.5");
    EXPECT_EQ(text("guideRefreshText"), "0.13");
    EXPECT_EQ(text("pdfReadingScaleText"), "250");
    EXPECT_FALSE(control<QCheckBox>("copyWithTitleCheck")->isChecked());
    EXPECT_TRUE(control<QCheckBox>("saveWithTitleCheck")->isChecked());
}

TEST_F(PrefsPanel, showsTheStoredMarkerOfEachSeries)
{
    const auto colorOf = [](int series) {
        return DeviceColor{0.1F * static_cast<float>(series), 0.25F, 0.5F, 0.75F};
    };
    for (int series = 0; series < 10; ++series) {
        PrefsDictionary style = m_prefs.plotPrefsForSeries(series);
        m_prefs.setColor(colorOf(series), style);
        m_prefs.setShape((series + 2) % 4, style);
        m_prefs.setSize(3.5F + static_cast<float>(series), style);
        m_prefs.setPlotPrefs(style, series);
    }
    m_controller.editPreferences();
    for (int series = 0; series < 10; ++series) {
        EXPECT_EQ(markerColor(series)->color(), colorOf(series)) << series;
        EXPECT_EQ(markerStyle(series)->selectedSegment(), (series + 2) % 4) << series;
        EXPECT_EQ(markerSize(series)->text().toStdString(), std::to_string(3 + series) + ".5");
    }
}

TEST_F(PrefsPanel, storesEachKindOfTitlesByItself)
{
    m_controller.editPreferences();
    press("saveWithTitleCheck");
    press("okButton");
    EXPECT_TRUE(m_prefs.copyWithTitle());
    EXPECT_FALSE(m_prefs.saveWithTitle());
}

TEST_F(PrefsPanel, isShownOnlyUntilItEnds)
{
    EXPECT_FALSE(m_controller.prefsWindow().isVisible());
    m_controller.editPreferences();
    EXPECT_TRUE(m_controller.prefsWindow().isVisible());
    EXPECT_EQ(m_controller.prefsWindow().windowModality(), Qt::ApplicationModal);
    press("okButton");
    EXPECT_FALSE(m_controller.prefsWindow().isVisible());
}

TEST_F(PrefsPanel, takesTheKeyboardFromTheOtherWindows)
{
    QWidget document;
    document.show();
    document.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&document));
    m_controller.editPreferences();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_controller.prefsWindow()));
    EXPECT_FALSE(document.isActiveWindow());
}

TEST_F(PrefsPanel, storesEveryControlAtOk)
{
    m_controller.editPreferences();
    well("axisColor")->setColor({0.1F, 0.2F, 0.3F, 0.4F});
    enter("axisThickText", "2.5");
    enter("anchorSizeText", "9");
    well("guideColor")->setColor({0.5F, 0.6F, 0.7F, 0.8F});
    enter("guideThickText", "3");
    enter("guideRefreshText", "0.1");
    enter("pdfReadingScaleText", "200");
    press("copyWithTitleCheck");
    press("saveWithTitleCheck");
    press("okButton");
    EXPECT_EQ(m_prefs.axisColor(), (DeviceColor{0.1F, 0.2F, 0.3F, 0.4F}));
    EXPECT_EQ(m_prefs.axisThick(), 2.5F);
    EXPECT_EQ(m_prefs.axisAnchorSize(), 9.0F);
    EXPECT_EQ(m_prefs.guideColor(), (DeviceColor{0.5F, 0.6F, 0.7F, 0.8F}));
    EXPECT_EQ(m_prefs.guideThick(), 3.0F);
    EXPECT_EQ(m_prefs.guideInterval(), 0.1F);
    EXPECT_EQ(m_prefs.pdfScale(), 2.0F);
    EXPECT_FALSE(m_prefs.copyWithTitle());
    EXPECT_FALSE(m_prefs.saveWithTitle());
}

TEST_F(PrefsPanel, storesTheMarkerOfEachSeriesAtOk)
{
    m_controller.editPreferences();
    for (int series = 0; series < 10; ++series) {
        markerColor(series)->setColor({0.1F * static_cast<float>(series), 0, 0, 1});
        pressSegment(series, (series + 1) % 4);
        type(*markerSize(series), QString::number(3 + series));
    }
    press("okButton");
    for (int series = 0; series < 10; ++series) {
        const PrefsDictionary style = m_prefs.plotPrefsForSeries(series);
        EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style).red, 0.1F * static_cast<float>(series));
        EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), (series + 1) % 4);
        EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), static_cast<float>(3 + series));
    }
}

TEST_F(PrefsPanel, keepsTheLineThicknessOfEachSeries)
{
    PrefsDictionary style = m_prefs.plotPrefsForSeries(4);
    m_prefs.setThickness(3.25F, style);
    m_prefs.setPlotPrefs(style, 4);
    m_controller.editPreferences();
    press("okButton");
    EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(m_prefs.plotPrefsForSeries(4)), 3.25F);
    EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(m_prefs.plotPrefsForSeries(5)), 2.0F);
}

TEST_F(PrefsPanel, bringsWhatIsTypedIntoItsLimits)
{
    m_controller.editPreferences();
    enter("axisThickText", "12");
    enter("anchorSizeText", "twelve");
    enter("guideThickText", "1e300");
    enter("guideRefreshText", "0.001");
    enter("pdfReadingScaleText", "50");
    type(*markerSize(0), QStringLiteral("-4"));
    press("okButton");
    m_controller.editPreferences();
    EXPECT_EQ(text("axisThickText"), "5.0");
    EXPECT_EQ(text("anchorSizeText"), "3.0");
    EXPECT_EQ(text("guideThickText"), "5.0");
    EXPECT_EQ(text("guideRefreshText"), "0.01");
    EXPECT_EQ(text("pdfReadingScaleText"), "100");
    EXPECT_EQ(markerSize(0)->text().toStdString(), "3.0");
}

TEST_F(PrefsPanel, dropsTheFractionOfThePdfScaleBeforeItDivides)
{
    m_controller.editPreferences();
    enter("pdfReadingScaleText", "250.9");
    press("okButton");
    EXPECT_EQ(m_prefs.pdfScale(), 2.5F);
}

// 1.05 as a float is a little less than 1.05, and its percentage is computed as a float.
TEST_F(PrefsPanel, truncatesThePercentageThatItShows)
{
    m_controller.editPreferences();
    enter("pdfReadingScaleText", "105");
    press("okButton");
    EXPECT_EQ(m_prefs.pdfScale(), 1.05F);
    m_controller.editPreferences();
    EXPECT_EQ(text("pdfReadingScaleText"), "104");
    press("okButton");
    EXPECT_EQ(m_prefs.pdfScale(), 1.04F);
}

// As a double the product would be a little less than 115.
TEST_F(PrefsPanel, computesThePercentageAsAFloat)
{
    m_prefs.setPdfScale(1.15F);
    m_controller.editPreferences();
    EXPECT_EQ(text("pdfReadingScaleText"), "115");
}

TEST_F(PrefsPanel, okRewritesUntouchedValuesFromTheirRoundedText)
{
    m_prefs.setAxisThick(1.25F);
    m_prefs.setGuideInterval(0.125F);
    m_prefs.setAxisAnchorSize(7.77F);
    m_controller.editPreferences();
    EXPECT_EQ(text("axisThickText"), "1.2");
    EXPECT_EQ(text("guideRefreshText"), "0.12");
    press("okButton");
    EXPECT_EQ(m_prefs.axisThick(), 1.2F);
    EXPECT_EQ(m_prefs.guideInterval(), 0.12F);
    EXPECT_EQ(m_prefs.axisAnchorSize(), 7.8F);
}

TEST_F(PrefsPanel, showsStoredValuesBeyondTheLimitsAsTheyAre)
{
    m_prefs.setFloat(1e30F, preferencekeys::pdfReadingScale);
    m_prefs.setFloat(-2.0F, preferencekeys::axisThickness);
    m_controller.editPreferences();
    EXPECT_EQ(text("pdfReadingScaleText"), "2147483647");
    EXPECT_EQ(text("axisThickText"), "-2.0");
    press("okButton");
    EXPECT_EQ(m_prefs.pdfScale(), 8.0F);
    EXPECT_EQ(m_prefs.axisThick(), 1.0F);
}

TEST_F(PrefsPanel, readsOneCommaAsThePoint)
{
    m_controller.editPreferences();
    enter("axisThickText", "2,5");
    press("okButton");
    EXPECT_EQ(m_prefs.axisThick(), 2.5F);
}

TEST_F(PrefsPanel, cancelLeavesTheSettings)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    press("cancelButton");
    EXPECT_EQ(m_prefs.axisThick(), 1.5F);
    EXPECT_TRUE(m_notified.isEmpty());
    EXPECT_FALSE(m_controller.prefsWindow().isVisible());
}

TEST_F(PrefsPanel, showsTheSettingsAfreshAfterACancel)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    press("cancelButton");
    EXPECT_EQ(text("axisThickText"), "4");
    m_controller.editPreferences();
    EXPECT_EQ(text("axisThickText"), "1.5");
}

TEST_F(PrefsPanel, closingTheWindowIsCancel)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    m_controller.prefsWindow().close();
    EXPECT_EQ(m_prefs.axisThick(), 1.5F);
    EXPECT_TRUE(m_notified.isEmpty());
}

TEST_F(PrefsPanel, escapeIsCancel)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    QTest::keyClick(control<TextField>("axisThickText"), Qt::Key_Escape);
    EXPECT_FALSE(m_controller.prefsWindow().isVisible());
    EXPECT_EQ(m_prefs.axisThick(), 1.5F);
}

TEST_F(PrefsPanel, returnInAFieldIsOk)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    QTest::keyClick(control<TextField>("axisThickText"), Qt::Key_Return);
    EXPECT_FALSE(m_controller.prefsWindow().isVisible());
    EXPECT_EQ(m_prefs.axisThick(), 4.0F);
}

TEST_F(PrefsPanel, factorySettingsShowAtOnceAndAreStoredOnlyByOk)
{
    m_prefs.setAxisThick(4.0F);
    m_prefs.setAxisColor(namedcolors::white);
    m_prefs.savePreferences();
    m_controller.editPreferences();
    press("factoryButton");
    EXPECT_EQ(text("axisThickText"), "1.5");
    EXPECT_EQ(well("axisColor")->color(), namedcolors::green);
    EXPECT_TRUE(m_controller.prefsWindow().isVisible());
    press("cancelButton");
    EXPECT_EQ(m_prefs.axisThick(), 4.0F);
    EXPECT_EQ(m_prefs.axisColor(), namedcolors::white);
    EXPECT_FALSE(m_prefs.dirty());

    m_controller.editPreferences();
    press("factoryButton");
    press("okButton");
    EXPECT_EQ(m_prefs.axisThick(), 1.5F);
    EXPECT_EQ(m_prefs.axisColor(), namedcolors::green);
}

TEST_F(PrefsPanel, factorySettingsAreNotThePreferencesOfTheApplication)
{
    m_prefs.awakeFromNib();
    m_controller.editPreferences();
    press("factoryButton");
    EXPECT_EQ(gCurvegrabPrefs, &m_prefs);
}

TEST_F(PrefsPanel, okSavesToTheDiskAndNotifiesAfterwards)
{
    m_controller.editPreferences();
    enter("axisThickText", "3.5");
    press("okButton");
    EXPECT_EQ(m_notified, QStringList({QStringLiteral("Curvegrab Prefs Changed Notification")}));
    EXPECT_EQ(m_notifiedObject, &m_controller);
    EXPECT_FALSE(m_dirtyWhenNotified);
    const UserDefaults onDisk(path());
    EXPECT_EQ(onDisk.objectForKey(preferencekeys::axisThickness).value().toDouble(), 3.5);
}

TEST_F(PrefsPanel, everyOkNotifiesEvenWithoutEdits)
{
    for (int i = 0; i < 2; ++i) {
        m_controller.editPreferences();
        press("okButton");
    }
    EXPECT_EQ(m_notified.size(), 2);
}

TEST_F(PrefsPanel, editingAgainWhileItIsOpenKeepsTheEdits)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    m_controller.editPreferences();
    EXPECT_EQ(text("axisThickText"), "4");
}

TEST_F(PrefsPanel, helpOpensThePlaceOfThePreferences)
{
    m_controller.editPreferences();
    press("helpButton");
    EXPECT_EQ(m_help.opened, QStringList({QStringLiteral("Curvegrab X Help#CV_Help_Preferences")}));
    EXPECT_TRUE(m_controller.prefsWindow().isVisible());
}

TEST_F(PrefsPanel, thereIsNoSeriesToChangeTo)
{
    m_controller.editPreferences();
    enter("axisThickText", "4");
    m_controller.seriesPopupChanged();
    EXPECT_EQ(text("axisThickText"), "4");
}

TEST_F(PrefsPanel, tabGoesThroughTheControlsInTheirOrder)
{
    m_controller.editPreferences();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_controller.prefsWindow()));
    QStringList visited;
    for (int i = 0; i < 9; ++i) {
        visited << m_controller.prefsWindow().focusWidget()->objectName();
        QTest::keyClick(m_controller.prefsWindow().focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(u' ').toStdString(),
              "axisColor axisThickText anchorSizeText guideColor guideThickText guideRefreshText "
              "pdfReadingScaleText copyWithTitleCheck saveWithTitleCheck");
    EXPECT_EQ(m_controller.prefsWindow().focusWidget()->objectName().toStdString(), "markerColor1");
}

TEST_F(PrefsPanel, everyControlSaysWhatItIs)
{
    for (const QWidget *widget : m_controller.prefsWindow().findChildren<QWidget *>()) {
        const bool field = qobject_cast<const TextField *>(widget) != nullptr ||
                           qobject_cast<const ColorWell *>(widget) != nullptr;
        if (field) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
            EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
        }
    }
}

TEST_F(PrefsPanel, noBareKeyShows)
{
    QStringList texts{m_controller.prefsWindow().windowTitle()};
    for (const QWidget *widget : m_controller.prefsWindow().findChildren<QWidget *>()) {
        texts << widget->toolTip() << widget->accessibleName() << widget->accessibleDescription()
              << widget->property("text").toString() << widget->property("title").toString();
    }
    EXPECT_TRUE(texts.filter(QRegularExpression(QStringLiteral("prefs\\."))).isEmpty());
}

TEST_F(PrefsPanel, everyControlHasAName)
{
    m_controller.editPreferences();
    EXPECT_EQ(controlnames::unnamed(*control<QCheckBox>("copyWithTitleCheck")->window())
                  .join(u'\n')
                  .toStdString(),
              "");
}
