#include "platform/Texts.h"

#include <QCoreApplication>

#include <string>

namespace texts {

QString localized(const char *key) { return qtTrId(key); }

QString localizedFormat(const char *key, int value)
{
    const QString format = localized(key);
    QString text;
    bool valueIsUsed = false;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QChar next = i + 1 < format.size() ? format.at(i + 1) : QChar();
        const bool isPercent = format.at(i) == u'%' && next == u'%';
        const bool isValue = format.at(i) == u'%' && next == u'd' && !valueIsUsed;
        if (isPercent) {
            text += u'%';
        } else if (isValue) {
            text += QString::fromStdString(std::to_string(value));
            valueIsUsed = true;
        } else {
            text += format.at(i);
        }
        if (isPercent || isValue)
            ++i;
    }
    return text;
}

} // namespace texts
