#pragma once

#include "imageview/PdfPage.h"
#include "imageview/PictureReader.h"

#include <QImage>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class PdfPainter;

/// A PDF document whose pages are painted as pictures. Pages are numbered from 1. It belongs to
/// the thread in which it was made, and waits for whatever is painted in another one.
class ZKPdfDocument
{
public:
    /// `zkPdfDocumentWithFile:` always gives a document: one without pages, and with a problem,
    /// for a file that cannot be opened.
    [[nodiscard]] static std::unique_ptr<ZKPdfDocument>
    zkPdfDocumentWithFile(const QString &path, const QString &password = {});

    ZKPdfDocument(const ZKPdfDocument &) = delete;
    ZKPdfDocument &operator=(const ZKPdfDocument &) = delete;
    ~ZKPdfDocument();

    /// Why the file gives no pages.
    [[nodiscard]] std::optional<PictureProblem> problem() const { return m_problem; }

    [[nodiscard]] int numberOfPages() const { return static_cast<int>(m_pages.size()); }

    /// `getImageOfPage:` at the page's own size.
    [[nodiscard]] std::optional<Picture> getImageOfPage(int page) const;
    /// `getImageOfPage:withScale:` on opaque white; nothing if there is no such page, or no memory
    /// for it.
    [[nodiscard]] std::optional<Picture> getImageOfPage(int page, float withScale) const;

    /// As getImageOfPage(), with the reason where there is none. Pages that need more than
    /// `memoryLimit` bytes are refused before they are painted.
    [[nodiscard]] PictureReading readPage(int page, float scale, std::uint64_t memoryLimit) const;

    /// The page as a preview: at its own size, `pixelsPerPoint` times as fine, but never larger
    /// than screens are. Null if it cannot be painted.
    [[nodiscard]] QImage previewOfPage(int page, double pixelsPerPoint) const;

private:
    ZKPdfDocument();

    [[nodiscard]] const PdfPage *pageWithNumber(int page) const;
    /// The page's pixels, whose paper may be transparent.
    [[nodiscard]] QImage painted(int page, const PdfPlacement &placement) const;

    std::unique_ptr<PdfPainter> m_pdfDocumentRef;
    std::vector<PdfPage> m_pages;
    std::optional<PictureProblem> m_problem;
};
