#include "prefs/PrefsController.h"

#include "platform/HelpViewer.h"
#include "platform/NotificationCentre.h"
#include "platform/NumberText.h"
#include "prefs/CurvegrabPrefs.h"
#include "ui_PrefsWindow.h"

#include <QDialog>

#include <limits>
#include <string>

namespace {

constexpr int endedWithOk = 1;
constexpr int endedWithCancel = 0;
constexpr int sizeDecimals = 1;
constexpr int intervalDecimals = 2;

void show(TextField &field, float value, int decimals)
{
    field.setStringValue(
        QString::fromStdString(numbertext::fixed(static_cast<double>(value), decimals)));
}

/// What is too large for a float is the largest one.
float floatValue(const TextField &field)
{
    constexpr float largest = std::numeric_limits<float>::max();
    const double value = field.doubleValue();
    return static_cast<float>(
        CurvegrabPrefs::doubleValue(value, static_cast<double>(-largest), double{largest}));
}

/// The scale in percent without its fraction. The product is a float, as the scale itself: that
/// decides which percentage a scale such as 1.05 shows.
int percentOf(float scale)
{
    const float percent = scale * 100.0F;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(
        CurvegrabPrefs::doubleValue(static_cast<double>(percent), lowest, highest));
}

} // namespace

PrefsController::PrefsController(CurvegrabPrefs &preferences, const PrefsSurroundings &surroundings,
                                 QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_surroundings(surroundings)
    , m_prefsWindow(std::make_unique<QDialog>())
    , m_ui(std::make_unique<Ui::PrefsWindow>())
{
    m_ui->setupUi(m_prefsWindow.get());
    m_prefsWindow->setWindowModality(Qt::ApplicationModal);
    connect(m_prefsWindow.get(), &QDialog::finished, this, &PrefsController::modalRunEnded);
    connect(m_ui->okButton, &QPushButton::clicked, this, &PrefsController::okButtonPressed);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &PrefsController::cancelButtonPressed);
    connect(m_ui->factoryButton, &QPushButton::clicked, this,
            &PrefsController::factoryButtonPressed);
    connect(m_ui->helpButton, &QPushButton::clicked, this, &PrefsController::helpButtonPressed);
}

PrefsController::~PrefsController() = default;

void PrefsController::awakeFromNib()
{
    const Ui::PrefsWindow &ui = *m_ui;
    m_markerColors = {ui.markerColor1, ui.markerColor2, ui.markerColor3, ui.markerColor4,
                      ui.markerColor5, ui.markerColor6, ui.markerColor7, ui.markerColor8,
                      ui.markerColor9, ui.markerColor10};
    m_markerStyles = {ui.markerStyleSegment1, ui.markerStyleSegment2, ui.markerStyleSegment3,
                      ui.markerStyleSegment4, ui.markerStyleSegment5, ui.markerStyleSegment6,
                      ui.markerStyleSegment7, ui.markerStyleSegment8, ui.markerStyleSegment9,
                      ui.markerStyleSegment10};
    m_markerSizes = {ui.markerSizeTex1, ui.markerSizeTex2, ui.markerSizeTex3, ui.markerSizeTex4,
                     ui.markerSizeTex5, ui.markerSizeTex6, ui.markerSizeTex7, ui.markerSizeTex8,
                     ui.markerSizeTex9, ui.markerSizeTex10};
    for (MarkerShapeControl *style : m_markerStyles)
        style->setMarkers(m_surroundings.markers);
}

void PrefsController::editPreferences()
{
    if (!m_prefsWindow->isVisible()) {
        setupWithPrefs(m_preferences);
        m_ui->axisColor->setFocus();
        m_prefsWindow->show();
    }
    m_prefsWindow->raise();
    m_prefsWindow->activateWindow();
}

void PrefsController::setupWithPrefs(const CurvegrabPrefs &prefs)
{
    m_ui->axisColor->setColor(prefs.axisColor());
    show(*m_ui->axisThickText, prefs.axisThick(), sizeDecimals);
    show(*m_ui->anchorSizeText, prefs.axisAnchorSize(), sizeDecimals);
    m_ui->guideColor->setColor(prefs.guideColor());
    show(*m_ui->guideThickText, prefs.guideThick(), sizeDecimals);
    show(*m_ui->guideRefreshText, prefs.guideInterval(), intervalDecimals);
    m_ui->pdfReadingScaleText->setStringValue(
        QString::fromStdString(std::to_string(percentOf(prefs.pdfScale()))));
    m_ui->copyWithTitleCheck->setChecked(prefs.copyWithTitle());
    m_ui->saveWithTitleCheck->setChecked(prefs.saveWithTitle());
    for (std::size_t i = 0; i < m_markerColors.size(); ++i) {
        const PrefsDictionary plotPrefs = prefs.plotPrefsForSeries(static_cast<int>(i));
        m_markerColors.at(i)->setColor(CurvegrabPrefs::colorForPlotPref(plotPrefs));
        m_markerStyles.at(i)->setSelectedSegment(CurvegrabPrefs::shapeForPlotPref(plotPrefs));
        show(*m_markerSizes.at(i), CurvegrabPrefs::sizeForPlotPref(plotPrefs), sizeDecimals);
    }
}

void PrefsController::changePrefs(CurvegrabPrefs &prefs) const
{
    prefs.setAxisColor(m_ui->axisColor->color());
    prefs.setAxisThick(floatValue(*m_ui->axisThickText));
    prefs.setAxisAnchorSize(floatValue(*m_ui->anchorSizeText));
    prefs.setGuideColor(m_ui->guideColor->color());
    prefs.setGuideThick(floatValue(*m_ui->guideThickText));
    prefs.setGuideInterval(floatValue(*m_ui->guideRefreshText));
    prefs.setPdfScale(static_cast<float>(m_ui->pdfReadingScaleText->integerValue() / 100.0));
    prefs.setCopyWithTitle(m_ui->copyWithTitleCheck->isChecked());
    prefs.setSaveWithTitle(m_ui->saveWithTitleCheck->isChecked());
    for (std::size_t i = 0; i < m_markerColors.size(); ++i) {
        const int series = static_cast<int>(i);
        PrefsDictionary plotPrefs = prefs.plotPrefsForSeries(series);
        prefs.setColor(m_markerColors.at(i)->color(), plotPrefs);
        prefs.setShape(m_markerStyles.at(i)->selectedSegment(), plotPrefs);
        prefs.setSize(floatValue(*m_markerSizes.at(i)), plotPrefs);
        prefs.setPlotPrefs(plotPrefs, series);
    }
}

void PrefsController::okButtonPressed() { m_prefsWindow->done(endedWithOk); }

void PrefsController::cancelButtonPressed() { m_prefsWindow->done(endedWithCancel); }

void PrefsController::factoryButtonPressed()
{
    setupWithPrefs(*CurvegrabPrefs::defaultPrefs(m_preferences.userDefaults()));
}

void PrefsController::helpButtonPressed()
{
    m_surroundings.help.openHelpAnchor(QString::fromLatin1(helpbook::preferences),
                                       QString::fromLatin1(helpbook::bookName));
}

void PrefsController::seriesPopupChanged() {}

// The notification follows every OK, whether there was anything to save or not.
void PrefsController::modalRunEnded(int code)
{
    if (code != endedWithOk)
        return;
    changePrefs(m_preferences);
    m_preferences.savePreferences();
    m_surroundings.notifications.post(curvegrabPrefsChangedNotification, this);
}
