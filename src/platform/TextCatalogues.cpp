#include "platform/TextCatalogues.h"

#include "platform/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

TextCatalogues::TextCatalogues(const QString &language)
    : m_language(language)
{
    const QString ours = QStringLiteral(":/i18n");
    install(QStringLiteral("curvegrab_en"), ours);
    if (language == QLatin1String(languages::english))
        return;
    install(QStringLiteral("qtbase_") + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("curvegrab_") + language, ours);
}

TextCatalogues::~TextCatalogues() = default;

void TextCatalogues::install(const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(name, folder) && QCoreApplication::installTranslator(translator.get()))
        m_translators.push_back(std::move(translator));
}
