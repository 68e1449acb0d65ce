#pragma once

#include <QRectF>

class HelpViewer;
class NotificationCentre;
class QPainter;

/// How the markers of series look, as far as the preferences panel shows their shapes.
class PrefsMarkers
{
public:
    virtual ~PrefsMarkers() = default;

    /// Draws the marker of `shape` with the painter's pen.
    virtual void drawMarker(QPainter &painter, int shape, const QRectF &square) const = 0;
};

/// What the preferences panel needs of the application around it; all outlive the panel.
struct PrefsSurroundings
{
    const PrefsMarkers &markers;
    NotificationCentre &notifications;
    HelpViewer &help;
};
