#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// One text of a catalogue file as the file has it.
struct CatalogueEntry
{
    QString file; ///< "prefs.ts"
    QString id;
    QString source;           ///< the English text that was translated
    QStringList translations; ///< one, or one for each plural form
    bool hasPlurals = false;
    bool isUnfinished = false;
};

/// The catalogue files of one language, resources/i18n/<code>/*.ts.
namespace cataloguefiles {

/// The codes of all languages, English first.
[[nodiscard]] QStringList languages();

/// What is wrong with the files themselves is reported to the running test.
[[nodiscard]] std::vector<CatalogueEntry> entries(const QString &language);

} // namespace cataloguefiles
