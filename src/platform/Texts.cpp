#include "platform/Texts.h"

#include "platform/NumberText.h"

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

QString localizedFormat(const char *key, std::initializer_list<double> values)
{
    constexpr int markLength = 4;
    const QString format = localized(key);
    const double *value = values.begin();
    QString text;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QStringView rest = QStringView(format).mid(i);
        if (rest.startsWith(u"%%")) {
            text += u'%';
            ++i;
        } else if (rest.size() >= markLength && rest.startsWith(u"%.") && rest.at(2).isDigit() &&
                   rest.at(3) == u'f' && value != values.end()) {
            text += QString::fromStdString(numbertext::fixed(*value++, rest.at(2).digitValue()));
            i += markLength - 1;
        } else {
            text += format.at(i);
        }
    }
    return text;
}

} // namespace texts
