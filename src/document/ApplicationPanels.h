#pragma once

#include "infopanel/InfoPanelSurroundings.h"
#include "platform/HelpViewer.h"
#include "platform/NotificationCentre.h"
#include "prefs/PrefsInfoPanel.h"
#include "prefs/PrefsSurroundings.h"

#include <QAction>

#include <memory>

class CurvegrabPrefs;
class InfoPanelController;
class PrefsController;

/// The panels that the application has once for all documents, and what they need of each other:
/// the preferences panel, the info panel and the help.
class ApplicationPanels final : private PrefsInfoPanel,
                                private PrefsMarkers,
                                private InfoPanelPrefs,
                                public HelpViewer
{
public:
    /// `prefs` outlives the panels; its info panel is theirs. Where the info panel stands is
    /// remembered in the file at `infoPanelPath`.
    ApplicationPanels(CurvegrabPrefs &prefs, const QString &infoPanelPath);
    ~ApplicationPanels() override;

    /// The menu item that shows and hides the info panel.
    [[nodiscard]] QAction &showHideInfo() { return m_showHideInfo; }
    [[nodiscard]] NotificationCentre &notificationCentre() { return m_notificationCentre; }
    [[nodiscard]] InfoPanelController &infoPanelController() const
    {
        return *m_infoPanelController;
    }
    /// Made when it is first wanted.
    [[nodiscard]] PrefsController &prefsController();

    /// Where help is shown; it outlives the panels. Without one, help is silent.
    void setHelpViewer(HelpViewer *helpViewer) { m_helpViewer = helpViewer; }
    void openHelpAnchor(const QString &anchor, const QString &inBook) override;

private:
    void setIsVisible(bool visible) override;
    void infoVisibleChanged() override;
    void drawMarker(QPainter &painter, int shape, const QRectF &square) const override;
    void saveInfoPanelState(bool visible) override;

    CurvegrabPrefs &m_prefs;
    HelpViewer *m_helpViewer = nullptr;
    QAction m_showHideInfo;
    NotificationCentre m_notificationCentre;
    std::unique_ptr<InfoPanelController> m_infoPanelController;
    std::unique_ptr<PrefsController> m_prefsController;
};
