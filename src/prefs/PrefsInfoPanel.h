#pragma once

/// The info panel, as far as the settings open it at launch.
class PrefsInfoPanel
{
public:
    virtual ~PrefsInfoPanel() = default;

    virtual void setIsVisible(bool visible) = 0;

    /// Tells the panel's controller that it was shown or closed.
    virtual void infoVisibleChanged() = 0;
};
