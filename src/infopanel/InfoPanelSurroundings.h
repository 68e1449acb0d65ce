#pragma once

#include "infopanel/InfoFacts.h"

/// A document, as far as the info panel shows it.
class InfoPanelDocument
{
public:
    virtual ~InfoPanelDocument() = default;

    [[nodiscard]] virtual InfoFacts infoFacts() const = 0;
};

/// The settings, as far as the info panel changes them.
class InfoPanelPrefs
{
public:
    virtual ~InfoPanelPrefs() = default;

    /// Keeps on the disk, at once, whether the panel is shown.
    virtual void saveInfoPanelState(bool visible) = 0;
};
