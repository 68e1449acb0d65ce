#include "prefs/CurvegrabPrefs.h"

#include "platform/NamedColors.h"
#include "platform/UserDefaults.h"
#include "prefs/PreferenceKeys.h"

#include <QJsonArray>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

CurvegrabPrefs *gCurvegrabPrefs = nullptr;

namespace {

constexpr int seriesCount = 10;
constexpr int shapeCount = 4;

template <typename Number>
Number limited(Number value, Number minLimit, Number maxLimit)
{
    if (value < minLimit)
        value = minLimit;
    if (value > maxLimit)
        value = maxLimit;
    return value;
}

QJsonValue numberOf(float value)
{
    // Every float is a double, and the double reads back as that float.
    return static_cast<double>(value);
}

QJsonValue colorDictionary(const DeviceColor &color)
{
    return QJsonObject{
        {preferencekeys::red, numberOf(color.red)},
        {preferencekeys::green, numberOf(color.green)},
        {preferencekeys::blue, numberOf(color.blue)},
        {preferencekeys::alpha, numberOf(color.alpha)},
    };
}

/// Drops the fraction; beyond the range of an int the range's end counts.
int truncated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(limited(value, lowest, highest));
}

} // namespace

CurvegrabPrefs::CurvegrabPrefs(UserDefaults &userDefaults)
    : m_userDefaults(userDefaults)
{}

CurvegrabPrefs::~CurvegrabPrefs()
{
    if (gCurvegrabPrefs == this)
        gCurvegrabPrefs = nullptr;
}

void CurvegrabPrefs::awakeFromNib()
{
    gCurvegrabPrefs = this;
    setDefaults();
    loadPreferences();
}

std::unique_ptr<CurvegrabPrefs> CurvegrabPrefs::defaultPrefs(UserDefaults &userDefaults)
{
    auto prefs = std::make_unique<CurvegrabPrefs>(userDefaults);
    prefs->setDefaults();
    return prefs;
}

void CurvegrabPrefs::applicationDidFinishLaunching()
{
    if (!infoPanelState() || !m_infoPanel)
        return;
    m_infoPanel->setIsVisible(true);
    m_infoPanel->infoVisibleChanged();
}

DeviceColor CurvegrabPrefs::axisColor() const { return colorForKey(preferencekeys::axisColor); }

void CurvegrabPrefs::setAxisColor(const DeviceColor &color)
{
    setColor(color, preferencekeys::axisColor);
}

float CurvegrabPrefs::axisThick() const { return floatForKey(preferencekeys::axisThickness); }

void CurvegrabPrefs::setAxisThick(float thickness)
{
    setFloat(floatValue(thickness, 1.0F, 5.0F), preferencekeys::axisThickness);
}

float CurvegrabPrefs::axisAnchorSize() const { return floatForKey(preferencekeys::axisAnchorSize); }

void CurvegrabPrefs::setAxisAnchorSize(float size)
{
    setFloat(floatValue(size, 3.0F, 15.0F), preferencekeys::axisAnchorSize);
}

DeviceColor CurvegrabPrefs::guideColor() const { return colorForKey(preferencekeys::guideColor); }

void CurvegrabPrefs::setGuideColor(const DeviceColor &color)
{
    setColor(color, preferencekeys::guideColor);
}

float CurvegrabPrefs::guideThick() const { return floatForKey(preferencekeys::guideThickness); }

void CurvegrabPrefs::setGuideThick(float thickness)
{
    setFloat(floatValue(thickness, 1.0F, 5.0F), preferencekeys::guideThickness);
}

float CurvegrabPrefs::guideInterval() const { return floatForKey(preferencekeys::guideInterval); }

void CurvegrabPrefs::setGuideInterval(float interval)
{
    setFloat(floatValue(interval, 0.01F, 0.2F), preferencekeys::guideInterval);
}

float CurvegrabPrefs::pdfScale() const { return floatForKey(preferencekeys::pdfReadingScale); }

void CurvegrabPrefs::setPdfScale(float scale)
{
    setFloat(floatValue(scale, 1.0F, 8.0F), preferencekeys::pdfReadingScale);
}

bool CurvegrabPrefs::copyWithTitle() const { return boolForKey(preferencekeys::copyWithTitles); }

void CurvegrabPrefs::setCopyWithTitle(bool withTitle)
{
    setBool(withTitle, preferencekeys::copyWithTitles);
}

bool CurvegrabPrefs::saveWithTitle() const { return boolForKey(preferencekeys::saveWithTitles); }

void CurvegrabPrefs::setSaveWithTitle(bool withTitle)
{
    setBool(withTitle, preferencekeys::saveWithTitles);
}

bool CurvegrabPrefs::infoPanelState() const { return boolForKey(preferencekeys::infoPanelVisible); }

void CurvegrabPrefs::setInfoPanelState(bool visible)
{
    setBool(visible, preferencekeys::infoPanelVisible);
}

void CurvegrabPrefs::saveInfoPanelState(bool visible)
{
    setInfoPanelState(visible);
    savePreferences();
}

PrefsDictionary CurvegrabPrefs::plotPrefsForSeries(int series) const
{
    if (series < 0)
        return newPlotPrefsForSeries(0);
    const QJsonArray stored = m_prefsDic.value(preferencekeys::plotPreferences).toArray();
    if (series < stored.size())
        return stored.at(series).toObject();
    return newPlotPrefsForSeries(series % seriesCount);
}

void CurvegrabPrefs::setPlotPrefs(const PrefsDictionary &plotPrefs, int forSeries)
{
    if (forSeries < 0 || forSeries >= seriesCount)
        return;
    QJsonArray stored = m_prefsDic.value(preferencekeys::plotPreferences).toArray();
    if (forSeries < stored.size()) {
        stored.replace(forSeries, plotPrefs);
        m_prefsDic.insert(preferencekeys::plotPreferences, stored);
    }
    m_dirty = true;
}

PrefsDictionary CurvegrabPrefs::newPlotPrefsForSeries(int series)
{
    // Five colours but four shapes, so that two series with one colour differ in shape.
    constexpr std::array colors{namedcolors::orange, namedcolors::magenta, namedcolors::green,
                                namedcolors::brown, namedcolors::purple};
    PrefsDictionary plotPrefs{
        {preferencekeys::plotShape, series % shapeCount},
        {preferencekeys::plotSize, 8.0},
        {preferencekeys::plotThickness, 2.0},
    };
    if (series >= 0 && series < seriesCount) {
        const auto index = static_cast<std::size_t>(series) % colors.size();
        plotPrefs.insert(preferencekeys::plotColor, colorDictionary(colors.at(index)));
    }
    return plotPrefs;
}

DeviceColor CurvegrabPrefs::colorForPlotPref(const PrefsDictionary &plotPref)
{
    return colorForKey(preferencekeys::plotColor, plotPref);
}

float CurvegrabPrefs::sizeForPlotPref(const PrefsDictionary &plotPref)
{
    return floatForKey(preferencekeys::plotSize, plotPref);
}

float CurvegrabPrefs::thicknessForPlotPref(const PrefsDictionary &plotPref)
{
    return floatForKey(preferencekeys::plotThickness, plotPref);
}

int CurvegrabPrefs::shapeForPlotPref(const PrefsDictionary &plotPref)
{
    return intForKey(preferencekeys::plotShape, plotPref);
}

void CurvegrabPrefs::setColor(const DeviceColor &color, PrefsDictionary &forPlotPref)
{
    setColor(color, preferencekeys::plotColor, forPlotPref);
}

void CurvegrabPrefs::setSize(float size, PrefsDictionary &forPlotPref)
{
    setFloat(floatValue(size, 3.0F, 15.0F), preferencekeys::plotSize, forPlotPref);
}

void CurvegrabPrefs::setThickness(float thickness, PrefsDictionary &forPlotPref)
{
    setFloat(floatValue(thickness, 1.0F, 5.0F), preferencekeys::plotThickness, forPlotPref);
}

void CurvegrabPrefs::setShape(int shape, PrefsDictionary &forPlotPref)
{
    setInt(shape, preferencekeys::plotShape, forPlotPref);
}

bool CurvegrabPrefs::boolForKey(const QString &key) const { return boolForKey(key, m_prefsDic); }

int CurvegrabPrefs::intForKey(const QString &key) const { return intForKey(key, m_prefsDic); }

float CurvegrabPrefs::floatForKey(const QString &key) const { return floatForKey(key, m_prefsDic); }

double CurvegrabPrefs::doubleForKey(const QString &key) const
{
    return doubleForKey(key, m_prefsDic);
}

DeviceColor CurvegrabPrefs::colorForKey(const QString &key) const
{
    return colorForKey(key, m_prefsDic);
}

bool CurvegrabPrefs::boolForKey(const QString &key, const PrefsDictionary &fromDictionary)
{
    return doubleForKey(key, fromDictionary) != 0;
}

int CurvegrabPrefs::intForKey(const QString &key, const PrefsDictionary &fromDictionary)
{
    return truncated(doubleForKey(key, fromDictionary));
}

float CurvegrabPrefs::floatForKey(const QString &key, const PrefsDictionary &fromDictionary)
{
    return static_cast<float>(doubleForKey(key, fromDictionary));
}

double CurvegrabPrefs::doubleForKey(const QString &key, const PrefsDictionary &fromDictionary)
{
    // A number object is read as whatever kind is asked for, a boolean as 1 or 0.
    const QJsonValue value = fromDictionary.value(key);
    if (value.isBool())
        return value.toBool() ? 1 : 0;
    return value.toDouble();
}

DeviceColor CurvegrabPrefs::colorForKey(const QString &key, const PrefsDictionary &fromDictionary)
{
    const QJsonValue value = fromDictionary.value(key);
    if (!value.isObject())
        return namedcolors::white;
    const QJsonObject components = value.toObject();
    return {floatForKey(preferencekeys::red, components),
            floatForKey(preferencekeys::green, components),
            floatForKey(preferencekeys::blue, components),
            floatForKey(preferencekeys::alpha, components)};
}

void CurvegrabPrefs::setBool(bool value, const QString &forKey)
{
    setBool(value, forKey, m_prefsDic);
}

void CurvegrabPrefs::setInt(int value, const QString &forKey) { setInt(value, forKey, m_prefsDic); }

void CurvegrabPrefs::setFloat(float value, const QString &forKey)
{
    setFloat(value, forKey, m_prefsDic);
}

void CurvegrabPrefs::setDouble(double value, const QString &forKey)
{
    setDouble(value, forKey, m_prefsDic);
}

void CurvegrabPrefs::setColor(const DeviceColor &color, const QString &forKey)
{
    setColor(color, forKey, m_prefsDic);
}

void CurvegrabPrefs::setBool(bool value, const QString &forKey, PrefsDictionary &toDictionary)
{
    store(value, forKey, toDictionary);
}

void CurvegrabPrefs::setInt(int value, const QString &forKey, PrefsDictionary &toDictionary)
{
    store(value, forKey, toDictionary);
}

void CurvegrabPrefs::setFloat(float value, const QString &forKey, PrefsDictionary &toDictionary)
{
    store(numberOf(value), forKey, toDictionary);
}

void CurvegrabPrefs::setDouble(double value, const QString &forKey, PrefsDictionary &toDictionary)
{
    store(value, forKey, toDictionary);
}

void CurvegrabPrefs::setColor(const DeviceColor &color, const QString &forKey,
                              PrefsDictionary &toDictionary)
{
    store(colorDictionary(color), forKey, toDictionary);
}

void CurvegrabPrefs::store(const QJsonValue &value, const QString &key, PrefsDictionary &dictionary)
{
    dictionary.insert(key, value);
    m_dirty = true;
}

int CurvegrabPrefs::intValue(int value, int minLimit, int maxLimit)
{
    return limited(value, minLimit, maxLimit);
}

float CurvegrabPrefs::floatValue(float value, float minLimit, float maxLimit)
{
    return limited(value, minLimit, maxLimit);
}

double CurvegrabPrefs::doubleValue(double value, double minLimit, double maxLimit)
{
    return limited(value, minLimit, maxLimit);
}

void CurvegrabPrefs::setDefaults()
{
    setAxisColor(namedcolors::green);
    setAxisThick(1.5F);
    setAxisAnchorSize(7.0F);
    setGuideColor(namedcolors::red);
    setGuideThick(1.0F);
    setGuideInterval(0.05F);
    setPdfScale(4.0F);
    setCopyWithTitle(true);
    setSaveWithTitle(true);
    setInfoPanelState(true);
    QJsonArray plotPreferences;
    for (int series = 0; series < seriesCount; ++series)
        plotPreferences.append(newPlotPrefsForSeries(series));
    store(plotPreferences, preferencekeys::plotPreferences, m_prefsDic);
}

void CurvegrabPrefs::loadPreferences()
{
    for (const QString key : preferencekeys::loaded) {
        if (const auto stored = m_userDefaults.objectForKey(key))
            m_prefsDic.insert(key, preferencekeys::loadedForm(key, *stored));
    }
}

void CurvegrabPrefs::savePreferences()
{
    if (!m_dirty)
        return;
    // A key without a value is not in the dictionary, so there is none to take off the disk.
    for (auto entry = m_prefsDic.constBegin(); entry != m_prefsDic.constEnd(); ++entry)
        m_userDefaults.setObject(entry.value(), entry.key());
    // A disk that refuses is no reason to stop the user: the values stay in force until the
    // program ends and go with the next writing.
    static_cast<void>(m_userDefaults.synchronize());
    m_dirty = false;
}
