#pragma once

#include "platform/DeviceColor.h"
#include "prefs/PrefsInfoPanel.h"

#include <QAction>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1String>
#include <QPointer>
#include <QString>

#include <memory>

class UserDefaults;

/// The name under which the notification centre tells that the settings were changed.
inline constexpr QLatin1String
    curvegrabPrefsChangedNotification("Curvegrab Prefs Changed Notification");

/// A dictionary of settings. One series' style ("plot preferences") is one with the keys
/// "Plot Color", "Plot Size", "Plot Thickness" and "Plot Shape".
using PrefsDictionary = QJsonObject;

/// Every setting of the application.
///
/// The setters bring numbers into their range; what is loaded is taken as it is. A float is
/// stored as exactly the 32-bit float, a colour as a dictionary of its four components.
class CurvegrabPrefs
{
public:
    /// An empty store over `userDefaults`, which outlives it; neither defaults nor loads anything.
    explicit CurvegrabPrefs(UserDefaults &userDefaults);
    ~CurvegrabPrefs();
    CurvegrabPrefs(const CurvegrabPrefs &) = delete;
    CurvegrabPrefs &operator=(const CurvegrabPrefs &) = delete;

    /// Makes this store the application's (gCurvegrabPrefs), with the defaults overridden by
    /// what the user has stored.
    void awakeFromNib();

    /// A fresh store with the factory settings only; it is not the application's.
    [[nodiscard]] static std::unique_ptr<CurvegrabPrefs> defaultPrefs(UserDefaults &userDefaults);

    /// Where the settings are kept.
    [[nodiscard]] UserDefaults &userDefaults() const { return m_userDefaults; }

    /// Shows the info panel if it was visible when the program was last used.
    void applicationDidFinishLaunching();

    [[nodiscard]] QAction *showHideTableMenu() const { return m_showHideTableMenu; }
    [[nodiscard]] QAction *lockUnlockXMenu() const { return m_lockUnlockXMenu; }
    [[nodiscard]] QAction *lockUnlockYMenu() const { return m_lockUnlockYMenu; }

    /// The outlets, connected where the menus and the panel are made; borrowed.
    void setShowHideTableMenu(QAction *menu) { m_showHideTableMenu = menu; }
    void setLockUnlockXMenu(QAction *menu) { m_lockUnlockXMenu = menu; }
    void setLockUnlockYMenu(QAction *menu) { m_lockUnlockYMenu = menu; }
    void setInfoPanel(PrefsInfoPanel *infoPanel) { m_infoPanel = infoPanel; }

    /// Whether a setter has stored something since the last savePreferences.
    [[nodiscard]] bool dirty() const { return m_dirty; }

    [[nodiscard]] DeviceColor axisColor() const;
    void setAxisColor(const DeviceColor &color);
    /// Points, 1 … 5.
    [[nodiscard]] float axisThick() const;
    void setAxisThick(float thickness);
    /// The side of an anchor's square in points, 3 … 15.
    [[nodiscard]] float axisAnchorSize() const;
    void setAxisAnchorSize(float size);
    [[nodiscard]] DeviceColor guideColor() const;
    void setGuideColor(const DeviceColor &color);
    /// Points, 1 … 5.
    [[nodiscard]] float guideThick() const;
    void setGuideThick(float thickness);
    /// Seconds between two looks at the pointer, 0.01 … 0.2.
    [[nodiscard]] float guideInterval() const;
    void setGuideInterval(float interval);
    /// Pixels per point of a PDF page, 1 … 8.
    [[nodiscard]] float pdfScale() const;
    void setPdfScale(float scale);
    [[nodiscard]] bool copyWithTitle() const;
    void setCopyWithTitle(bool withTitle);
    [[nodiscard]] bool saveWithTitle() const;
    void setSaveWithTitle(bool withTitle);
    [[nodiscard]] bool infoPanelState() const;
    void setInfoPanelState(bool visible);
    /// Sets the state and writes it to the disk at once.
    void saveInfoPanelState(bool visible);

    /// The style of a series: the stored one, or beyond the stored ones the factory style of
    /// `series` modulo 10 (below 0 that of series 0). A change takes effect through setPlotPrefs.
    [[nodiscard]] PrefsDictionary plotPrefsForSeries(int series) const;
    /// `setPlotPrefs:forSeries:` replaces the style of a stored series; others are ignored.
    void setPlotPrefs(const PrefsDictionary &plotPrefs, int forSeries);
    /// The factory style of series 0 … 9; other numbers have no colour of their own.
    [[nodiscard]] static PrefsDictionary newPlotPrefsForSeries(int series);

    [[nodiscard]] static DeviceColor colorForPlotPref(const PrefsDictionary &plotPref);
    [[nodiscard]] static float sizeForPlotPref(const PrefsDictionary &plotPref);
    [[nodiscard]] static float thicknessForPlotPref(const PrefsDictionary &plotPref);
    [[nodiscard]] static int shapeForPlotPref(const PrefsDictionary &plotPref);
    /// `setColor:forPlotPref:`; these four mark the store dirty, whoever owns `forPlotPref`.
    void setColor(const DeviceColor &color, PrefsDictionary &forPlotPref);
    /// `setSize:forPlotPref:` keeps the marker's size within 3 … 15 points.
    void setSize(float size, PrefsDictionary &forPlotPref);
    /// `setThickness:forPlotPref:` keeps the marker's line within 1 … 5 points.
    void setThickness(float thickness, PrefsDictionary &forPlotPref);
    /// `setShape:forPlotPref:` takes any number.
    void setShape(int shape, PrefsDictionary &forPlotPref);

    /// Missing keys, and values that are no such thing, read as false, 0 or white.
    [[nodiscard]] bool boolForKey(const QString &key) const;
    [[nodiscard]] int intForKey(const QString &key) const;
    [[nodiscard]] float floatForKey(const QString &key) const;
    [[nodiscard]] double doubleForKey(const QString &key) const;
    [[nodiscard]] DeviceColor colorForKey(const QString &key) const;

    /// `boolForKey:fromDictionary:`
    [[nodiscard]] static bool boolForKey(const QString &key, const PrefsDictionary &fromDictionary);
    /// `intForKey:fromDictionary:` drops a fraction.
    [[nodiscard]] static int intForKey(const QString &key, const PrefsDictionary &fromDictionary);
    /// `floatForKey:fromDictionary:`
    [[nodiscard]] static float floatForKey(const QString &key,
                                           const PrefsDictionary &fromDictionary);
    /// `doubleForKey:fromDictionary:`
    [[nodiscard]] static double doubleForKey(const QString &key,
                                             const PrefsDictionary &fromDictionary);
    /// `colorForKey:fromDictionary:` reads a missing component, alpha too, as 0.
    [[nodiscard]] static DeviceColor colorForKey(const QString &key,
                                                 const PrefsDictionary &fromDictionary);

    /// `setBool:forKey:`, `setInt:forKey:`, `setFloat:forKey:`, `setDouble:forKey:`,
    /// `setColor:forKey:` store in the settings themselves.
    void setBool(bool value, const QString &forKey);
    void setInt(int value, const QString &forKey);
    void setFloat(float value, const QString &forKey);
    void setDouble(double value, const QString &forKey);
    void setColor(const DeviceColor &color, const QString &forKey);

    /// `setBool:forKey:toDictionary:`, `setInt:forKey:toDictionary:`,
    /// `setFloat:forKey:toDictionary:`, `setDouble:forKey:toDictionary:`,
    /// `setColor:forKey:toDictionary:` store in `toDictionary` and mark the settings dirty.
    void setBool(bool value, const QString &forKey, PrefsDictionary &toDictionary);
    void setInt(int value, const QString &forKey, PrefsDictionary &toDictionary);
    void setFloat(float value, const QString &forKey, PrefsDictionary &toDictionary);
    void setDouble(double value, const QString &forKey, PrefsDictionary &toDictionary);
    void setColor(const DeviceColor &color, const QString &forKey, PrefsDictionary &toDictionary);

    /// `intValue:minLimit:maxLimit:` and its kin raise `value` to `minLimit`, then lower the
    /// result to `maxLimit`; with limits the wrong way round that is `maxLimit`, and what is no
    /// number stays so.
    [[nodiscard]] static int intValue(int value, int minLimit, int maxLimit);
    [[nodiscard]] static float floatValue(float value, float minLimit, float maxLimit);
    [[nodiscard]] static double doubleValue(double value, double minLimit, double maxLimit);

    /// Sets every factory setting.
    void setDefaults();
    /// Takes over what the user has stored, key by key and unchecked.
    void loadPreferences();
    /// Writes everything to the disk at once, if anything was set since the last time.
    void savePreferences();

private:
    void store(const QJsonValue &value, const QString &key, PrefsDictionary &dictionary);

    UserDefaults &m_userDefaults;
    PrefsInfoPanel *m_infoPanel = nullptr;
    QPointer<QAction> m_showHideTableMenu;
    QPointer<QAction> m_lockUnlockXMenu;
    QPointer<QAction> m_lockUnlockYMenu;
    PrefsDictionary m_prefsDic;
    bool m_dirty = false;
};

/// The application's settings; null before awakeFromNib and after the store is gone.
extern CurvegrabPrefs *gCurvegrabPrefs;
