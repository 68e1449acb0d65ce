#pragma once

#include "infopanel/InfoPanelSurroundings.h"

class MyDocument;

/// The facts about an open document that the info panel shows.
class DocumentFacts final : public InfoPanelDocument
{
public:
    /// `document` outlives the facts.
    explicit DocumentFacts(const MyDocument &document)
        : m_document(document)
    {}

    [[nodiscard]] InfoFacts infoFacts() const override;

private:
    const MyDocument &m_document;
};
