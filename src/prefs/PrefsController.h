#pragma once

#include "prefs/PrefsSurroundings.h"

#include <QObject>

#include <array>
#include <memory>

class ColorWell;
class CurvegrabPrefs;
class MarkerShapeControl;
class QDialog;
class TextField;

namespace Ui {
class PrefsWindow;
}

/// Runs the preferences window: its controls are a copy of the settings until the user presses OK.
class PrefsController : public QObject
{
    Q_OBJECT

public:
    static constexpr int seriesCount = 10;

    /// `preferences` outlives the controller.
    PrefsController(CurvegrabPrefs &preferences, const PrefsSurroundings &surroundings,
                    QObject *parent = nullptr);
    ~PrefsController() override;

    /// Gathers the controls of the ten series in their order.
    void awakeFromNib();

    [[nodiscard]] QDialog &prefsWindow() const { return *m_prefsWindow; }

    /// Shows the settings in the window, which keeps all other windows waiting until it is closed;
    /// while it is open, brings it to the front.
    void editPreferences();

    /// Shows the settings of `prefs` in the controls.
    void setupWithPrefs(const CurvegrabPrefs &prefs);
    /// Stores what the controls show in `prefs`, every value as its text tells it.
    void changePrefs(CurvegrabPrefs &prefs) const;

public Q_SLOTS:
    void okButtonPressed();
    void cancelButtonPressed();
    /// Shows the factory settings; nothing is stored until OK.
    void factoryButtonPressed();
    void helpButtonPressed();
    /// The rows show all series at once: there is nothing to change to.
    void seriesPopupChanged();

private:
    void modalRunEnded(int code);

    CurvegrabPrefs &m_preferences;
    PrefsSurroundings m_surroundings;
    const std::unique_ptr<QDialog> m_prefsWindow;
    const std::unique_ptr<Ui::PrefsWindow> m_ui;
    std::array<ColorWell *, seriesCount> m_markerColors{}; // owned by the window, as the others
    std::array<MarkerShapeControl *, seriesCount> m_markerStyles{};
    std::array<TextField *, seriesCount> m_markerSizes{};
};
