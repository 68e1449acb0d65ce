#include "platform/Languages.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

namespace {

constexpr char overrideVariable[] = "CURVEGRAB_LANGUAGE";

bool readsAlike(const QLocale &one, const QLocale &other)
{
    return one.language() == other.language() && one.script() == other.script();
}

} // namespace

namespace languages {

QStringList available()
{
    const QString before = QStringLiteral("curvegrab_");
    const QString after = QStringLiteral(".qm");
    QStringList names =
        QDir(QStringLiteral(":/i18n")).entryList({before + u'*' + after}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name = name.mid(before.size(), name.size() - before.size() - after.size());
    return names;
}

QStringList wanted()
{
    return qEnvironmentVariable(overrideVariable).split(u':', Qt::SkipEmptyParts) +
           QLocale::system().uiLanguages();
}

QString choice(const QStringList &wanted, const QStringList &available)
{
    for (const QString &name : wanted) {
        const QLocale locale(name);
        const auto found =
            std::find_if(available.begin(), available.end(), [&locale](const QString &one) {
                return readsAlike(locale, QLocale(one));
            });
        if (found != available.end())
            return *found;
    }
    return QString::fromLatin1(english);
}

} // namespace languages
