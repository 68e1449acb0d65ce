#pragma once

#include "platform/StateFile.h"
#include "plot/PlotPicture.h"

#include <QString>

class QWidget;

/// How plots were saved last; kept from session to session, apart from the preferences.
class PlotChoices
{
public:
    /// Kept in the file at `path`.
    explicit PlotChoices(const QString &path);

    /// SVG before anything was saved.
    [[nodiscard]] plotpicture::Format format() const;
    /// Empty before anything was saved, or if the folder is gone.
    [[nodiscard]] QString folder() const;
    void remember(plotpicture::Format format, const QString &folder);

    /// Gives `window`, which is not shown yet, the place and size that the last one was left with.
    void placeWindow(QWidget &window) const;
    void rememberPlaceOf(const QWidget &window);

private:
    StateFile m_state;
};
