#pragma once

#include "infopanel/InfoPanelSurroundings.h"
#include "infopanel/InfoTexts.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class InfoPanelWindow;
class QAction;

/// Fills the panel with facts about a document: it shows whichever document it was last handed, and
/// keeps nothing of it but the texts. The panel is made when it is first needed, because a program
/// that starts without it starts sooner.
class InfoPanelController : public QObject
{
    Q_OBJECT

public:
    /// `prefs` outlives the controller; `showHideMenu` is the item that shows and hides the panel.
    /// Where the panel stands is remembered in the file at `statePath`.
    InfoPanelController(InfoPanelPrefs &prefs, QAction &showHideMenu, QString statePath,
                        QObject *parent = nullptr);
    ~InfoPanelController() override;

    /// Makes this controller the application's (gInfoPanelController).
    void awakeFromNib();

    [[nodiscard]] InfoPanelWindow &infoPanel();
    [[nodiscard]] bool isVisible() const;
    /// The panel is being closed by its close box.
    [[nodiscard]] bool userClosedThePanel() const { return m_userClosedThePanel; }

    void setIsVisible(bool visible);
    /// The panel was shown or hidden: names the menu item after what it will do now.
    void infoVisibleChanged();

    /// Null is no document.
    void updateAllInfoWith(const InfoPanelDocument *document);
    void updateImageInfoWith(const InfoPanelDocument *document);
    void updateAxisInfoWith(const InfoPanelDocument *document);
    void updateDataInfoWith(const InfoPanelDocument *document);

    /// The user closes the panel by its close box.
    bool windowShouldClose();
    void windowWillClose();

public Q_SLOTS:
    /// Shows the hidden panel, hides the shown one.
    void showInfoPanel();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void placeAtFirst();
    void keepOnScreen();
    void rememberPlace();
    void setImageInfo(const InfoFacts *facts);
    void setAxisInfo(const InfoFacts *facts);
    void setDataInfo(const InfoFacts *facts);

    InfoPanelPrefs &m_prefs;
    QPointer<QAction> m_showHideMenu;
    QString m_statePath;
    std::unique_ptr<InfoPanelWindow> m_infoPanel; // null until it is needed
    QString m_imageInfo;
    infotexts::AxisTexts m_axisInfo;
    infotexts::DataTexts m_dataInfo;
    bool m_userClosedThePanel = false;
    bool m_isPlaced = false;
};

/// The application's info panel; null before awakeFromNib and after the controller is gone.
extern InfoPanelController *gInfoPanelController;
