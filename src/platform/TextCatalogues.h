#pragma once

#include <QString>

#include <memory>
#include <vector>

class QTranslator;

/// The catalogues that the user's texts come from, in force while this exists: those of one
/// language, the toolkit's own texts in it, and English below for what a catalogue lacks.
class TextCatalogues
{
public:
    /// `language` is one of languages::available(). The application object is there already.
    explicit TextCatalogues(const QString &language);
    ~TextCatalogues();
    TextCatalogues(const TextCatalogues &) = delete;
    TextCatalogues &operator=(const TextCatalogues &) = delete;

    [[nodiscard]] const QString &language() const { return m_language; }

private:
    void install(const QString &name, const QString &folder);

    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators; ///< the last one is asked first
};
