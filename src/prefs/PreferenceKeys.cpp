#include "prefs/PreferenceKeys.h"

#include <QJsonArray>
#include <QJsonObject>

namespace preferencekeys {

QJsonValue loadedForm(const QString &key, const QJsonValue &stored)
{
    if (key.startsWith(QLatin1String("MutDic:")))
        return stored.toObject();
    if (key.startsWith(QLatin1String("MutArray:")))
        return stored.toArray();
    return stored;
}

} // namespace preferencekeys
