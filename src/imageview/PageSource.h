#pragma once

#include "imageview/PictureReader.h"

#include <QImage>
#include <QString>

#include <functional>

/// The document that the page panel chooses from. Pages are numbered from 1. Asking never waits:
/// the handlers are called later, and never after the end of the document.
class PageSource
{
public:
    virtual ~PageSource() = default;

    /// What the user knows the document by.
    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual int numberOfPages() const = 0;

    /// Paints a page at its own size, with `pixelsPerPoint`. Only the newest one asked for counts;
    /// the handlers of others may never be called. A null image: the page cannot be painted.
    virtual void preview(int page, double pixelsPerPoint,
                         std::function<void(const QImage &)> painted) = 0;

    /// `getImageOfPage:withScale:` paints a page as a picture.
    virtual void getImageOfPage(int page, float withScale,
                                std::function<void(const PictureReading &)> read) = 0;
};
