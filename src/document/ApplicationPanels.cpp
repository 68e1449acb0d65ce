#include "document/ApplicationPanels.h"

#include "capture/MarkerDrawing.h"
#include "infopanel/InfoPanelController.h"
#include "prefs/CurvegrabPrefs.h"
#include "prefs/PrefsController.h"

#include <QKeySequence>

ApplicationPanels::ApplicationPanels(CurvegrabPrefs &prefs, const QString &infoPanelPath)
    : m_prefs(prefs)
    , m_infoPanelController(std::make_unique<InfoPanelController>(
          static_cast<InfoPanelPrefs &>(*this), m_showHideInfo, infoPanelPath))
{
    m_showHideInfo.setObjectName(QStringLiteral("showInfoPanel"));
    m_showHideInfo.setProperty("tag", 0);
    m_showHideInfo.setShortcut(QKeySequence(QStringLiteral("Ctrl+I")));
    m_infoPanelController->awakeFromNib();
    m_prefs.setInfoPanel(this);
}

ApplicationPanels::~ApplicationPanels() { m_prefs.setInfoPanel(nullptr); }

PrefsController &ApplicationPanels::prefsController()
{
    if (!m_prefsController) {
        m_prefsController = std::make_unique<PrefsController>(
            m_prefs, PrefsSurroundings{*this, m_notificationCentre, *this});
        m_prefsController->awakeFromNib();
    }
    return *m_prefsController;
}

void ApplicationPanels::openHelpAnchor(const QString &anchor, const QString &inBook)
{
    if (m_helpViewer != nullptr)
        m_helpViewer->openHelpAnchor(anchor, inBook);
}

void ApplicationPanels::setIsVisible(bool visible) { m_infoPanelController->setIsVisible(visible); }

void ApplicationPanels::infoVisibleChanged() { m_infoPanelController->infoVisibleChanged(); }

void ApplicationPanels::drawMarker(QPainter &painter, int shape, const QRectF &square) const
{
    markerdrawing::drawMarker(painter, shape, square);
}

void ApplicationPanels::saveInfoPanelState(bool visible) { m_prefs.saveInfoPanelState(visible); }
