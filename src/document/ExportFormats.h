#pragma once

#include "capture/SeriesExport.h"

class ExportChoices;
class MyDocument;

/// The formats in which a document's data are saved.
class ExportFormats final : public SeriesFormats
{
public:
    /// Both outlive it.
    ExportFormats(const MyDocument &document, ExportChoices &choices)
        : m_document(document)
        , m_choices(choices)
    {}

    [[nodiscard]] std::vector<FileKind> offered() const override;
    [[nodiscard]] std::size_t lastChosen() const override;
    [[nodiscard]] QString lastFolder() const override;
    void remember(std::size_t kind, const QString &folder) override;
    [[nodiscard]] Maker maker(const IndexSet &series, bool withTitle) const override;
    [[nodiscard]] QString reasonOfNothing() const override;

private:
    const MyDocument &m_document;
    ExportChoices &m_choices;
};
