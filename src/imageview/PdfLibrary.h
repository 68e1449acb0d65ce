#pragma once

#include "imageview/PdfPages.h"
#include "imageview/PictureReader.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

/// A PDF file whose pages can be painted. It belongs to the thread in which it was opened.
class PdfPainter
{
public:
    PdfPainter() = default;
    virtual ~PdfPainter() = default;
    PdfPainter(const PdfPainter &) = delete;
    PdfPainter &operator=(const PdfPainter &) = delete;

    /// Why nothing can be painted.
    [[nodiscard]] virtual std::optional<PictureProblem> problem() const = 0;
    [[nodiscard]] virtual int pageCount() const = 0;
    /// The page with an index from 0, turned for reading; its paper may be transparent. Null if it
    /// cannot be painted.
    [[nodiscard]] virtual QImage painted(int index, QSize size) = 0;
};

/// What knows PDF files. It is a module of its own, so that the libraries for them, which are
/// large, are not loaded before somebody opens such a file.
class PdfLibrary
{
public:
    PdfLibrary() = default;
    virtual ~PdfLibrary() = default;
    PdfLibrary(const PdfLibrary &) = delete;
    PdfLibrary &operator=(const PdfLibrary &) = delete;

    /// The module; null where it is missing. May be called, as what it gives, in any thread.
    [[nodiscard]] static PdfLibrary *find();

    /// What the file says about its pages; `password` may be empty.
    [[nodiscard]] virtual PdfPages readPages(const QString &path,
                                             const QString &password) const = 0;
    [[nodiscard]] virtual std::unique_ptr<PdfPainter> open(const QString &path,
                                                           const QString &password) const = 0;
};

#define CURVEGRAB_PDF_LIBRARY "x.curvegrab.PdfLibrary/1"
Q_DECLARE_INTERFACE(PdfLibrary, CURVEGRAB_PDF_LIBRARY)
