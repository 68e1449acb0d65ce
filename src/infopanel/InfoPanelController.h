#pragma once

#include "infopanel/InfoPanelSurroundings.h"
#include "infopanel/InfoTexts.h"

#include <QObject>
#include <QPointer>

#include <array>
#include <memory>

class QAction;
class QLabel;
class QWidget;

namespace Ui {
class InfoPanel;
}

/// Fills the panel with facts about a document: it shows whichever document it was last handed, and
/// keeps nothing of it.
class InfoPanelController : public QObject
{
    Q_OBJECT

public:
    /// `prefs` outlives the controller; `showHideMenu` is the item that shows and hides the panel.
    InfoPanelController(InfoPanelPrefs &prefs, QAction &showHideMenu, QObject *parent = nullptr);
    ~InfoPanelController() override;

    /// Makes this controller the application's (gInfoPanelController).
    void awakeFromNib();

    /// The panel floats above the documents and never takes the keyboard from them.
    [[nodiscard]] QWidget &infoPanel() const { return *m_infoPanel; }
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
    void keepWidth();
    void showImageInfo(const InfoFacts *facts);
    void showAxisInfo(const InfoFacts *facts);
    void showDataInfo(const InfoFacts *facts);

    InfoPanelPrefs &m_prefs;
    QPointer<QAction> m_showHideMenu;
    const std::unique_ptr<QWidget> m_infoPanel;
    const std::unique_ptr<Ui::InfoPanel> m_ui;
    std::array<QLabel *, infotexts::axisRows> m_axisInfo{}; // owned by the panel, as the others
    std::array<QLabel *, infotexts::axisRows> m_axisLabel{};
    std::array<QLabel *, infotexts::dataRows> m_dataInfo{};
    bool m_userClosedThePanel = false;
    bool m_isPlaced = false;
};

/// The application's info panel; null before awakeFromNib and after the controller is gone.
extern InfoPanelController *gInfoPanelController;
