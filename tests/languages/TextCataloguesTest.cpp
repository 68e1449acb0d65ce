#include "platform/TextCatalogues.h"

#include "languages/CatalogueFile.h"
#include "platform/Languages.h"
#include "platform/Texts.h"

#include <QCoreApplication>
#include <QMap>

#include <gtest/gtest.h>

namespace {

/// A button text of the toolkit.
QString cancelOfToolkit() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }

} // namespace

TEST(TextCatalogues, everyLanguageWithFilesIsThere)
{
    QStringList sorted = cataloguefiles::languages();
    sorted.sort();
    EXPECT_EQ(languages::available(), sorted);
    EXPECT_GE(sorted.size(), 6);
}

TEST(TextCatalogues, everyTextComesFromTheLanguage)
{
    for (const QString &language : cataloguefiles::languages()) {
        const TextCatalogues catalogues(language);
        EXPECT_EQ(catalogues.language(), language);
        for (const CatalogueEntry &entry : cataloguefiles::entries(language)) {
            const QString text = entry.hasPlurals ? entry.translations.value(0)
                                                  : texts::localized(entry.id.toUtf8().constData());
            EXPECT_EQ(text.toStdString(), entry.translations.value(0).toStdString())
                << qPrintable(language) << ": " << qPrintable(entry.id);
        }
    }
}

TEST(TextCatalogues, areInForceOnlyWhileTheyExist)
{
    const QString before = texts::localized("Cancel");
    {
        const TextCatalogues catalogues(QStringLiteral("de"));
        EXPECT_EQ(texts::localized("Cancel"), QStringLiteral("Abbrechen"));
    }
    EXPECT_EQ(texts::localized("Cancel"), before);
}

TEST(TextCatalogues, theToolkitSpeaksTheSameLanguage)
{
    const QString english = cancelOfToolkit();
    for (const QString &language : cataloguefiles::languages()) {
        const TextCatalogues catalogues(language);
        EXPECT_EQ(cancelOfToolkit() != english, language != u"en") << qPrintable(language);
    }
}

TEST(TextCatalogues, whatALanguageLacksIsEnglish)
{
    const TextCatalogues catalogues(QStringLiteral("no-language"));
    EXPECT_EQ(texts::localized("Cancel"), QStringLiteral("Cancel"));
}
