#include "imageview/ZKPdfDocument.h"

#include "imageview/PdfLibrary.h"
#include "imageview/PictureFile.h"
#include "imageview/PictureMemory.h"

#include <QFile>
#include <QPainter>

#include <algorithm>
#include <new>
#include <utility>

namespace {

/// Where the beginning and the end of a document are marked, in bytes from the file's ends.
constexpr qint64 markRange = 1024;

/// Previews are shown on screens; larger pages are made to fit this.
constexpr double longestSideOfPreview = 1999.5; // rounded up

/// The problem that the file's ends tell, before anything is understood.
std::optional<PictureProblem> problemOfEnds(const QString &path, bool &endsProperly)
{
    if (const auto problem = pictureproblem::ofPath(path))
        return problem;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return PictureProblem::Unreadable;
    if (!file.read(markRange).contains("%PDF-"))
        return PictureProblem::NotAPdf;
    endsProperly = file.seek(std::max<qint64>(0, file.size() - markRange)) &&
                   file.read(markRange).contains("%%EOF");
    return {};
}

QImage onWhite(const QImage &content, QSize paper, QPoint origin)
{
    QImage image(paper, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawImage(origin, content);
    return image;
}

} // namespace

ZKPdfDocument::ZKPdfDocument() = default;

ZKPdfDocument::~ZKPdfDocument() = default;

std::unique_ptr<ZKPdfDocument> ZKPdfDocument::zkPdfDocumentWithFile(const QString &path,
                                                                    const QString &password)
{
    std::unique_ptr<ZKPdfDocument> document(new ZKPdfDocument);
    bool endsProperly = false;
    document->m_problem = problemOfEnds(path, endsProperly);
    if (document->m_problem)
        return document;
    const PdfLibrary *const library = PdfLibrary::find();
    if (library == nullptr) {
        document->m_problem = PictureProblem::PdfModuleMissing;
        return document;
    }
    PdfPages read = library->readPages(path, password);
    // What is missing at the end of a cut file might be a curve: it is not passed off as whole.
    if (!read.problem && read.isDamaged && !endsProperly)
        read.problem = PictureProblem::Damaged;
    document->m_problem = read.problem;
    if (document->m_problem)
        return document;
    auto renderer = library->open(path, password);
    document->m_problem = renderer->problem();
    if (document->m_problem)
        return document;
    const auto count = static_cast<std::size_t>(std::max(0, renderer->pageCount()));
    read.pages.resize(std::min(read.pages.size(), count));
    if (read.pages.empty()) {
        document->m_problem = PictureProblem::NoPages;
        return document;
    }
    document->m_pages = std::move(read.pages);
    document->m_pdfDocumentRef = std::move(renderer);
    return document;
}

std::optional<Picture> ZKPdfDocument::getImageOfPage(int page) const
{
    return getImageOfPage(page, 1);
}

std::optional<Picture> ZKPdfDocument::getImageOfPage(int page, float withScale) const
{
    return readPage(page, withScale, picturememory::available()).picture;
}

PictureReading ZKPdfDocument::readPage(int page, float scale, std::uint64_t memoryLimit) const
{
    const PdfPage *described = pageWithNumber(page);
    if (described == nullptr)
        return {{}, m_problem.value_or(PictureProblem::Damaged), {}};
    const PdfPlacement placement = pdfplacement::placementOf(*described, scale);
    PictureReading reading{{}, {}, placement.imagePixels};
    if (reading.pixelSize.isEmpty())
        reading.problem = PictureProblem::Damaged;
    else if (!picturememory::fitsPage(reading.pixelSize, memoryLimit))
        reading.problem = PictureProblem::PageTooLarge;
    if (reading.problem)
        return reading;
    try {
        QImage pixels = painted(page, placement);
        if (pixels.isNull())
            reading.problem = PictureProblem::Damaged;
        else
            reading.picture = Picture::fromPixels(std::move(pixels), placement.imageSize);
    } catch (const std::bad_alloc &) {
        reading.problem = PictureProblem::PageTooLarge;
    }
    if (!reading.picture && !reading.problem)
        reading.problem = PictureProblem::PageTooLarge;
    return reading;
}

QImage ZKPdfDocument::previewOfPage(int page, double pixelsPerPoint) const
{
    const PdfPage *described = pageWithNumber(page);
    if (described == nullptr || described->width <= 0 || described->height <= 0)
        return {};
    const double longer = std::max(described->width, described->height);
    const double scale = pixelsPerPoint * std::min(1.0, longestSideOfPreview / longer);
    const PdfPlacement placement = pdfplacement::placementOf(*described, static_cast<float>(scale));
    if (placement.imagePixels.isEmpty())
        return {};
    QImage preview = painted(page, placement);
    if (preview.hasAlphaChannel())
        preview = onWhite(preview, placement.imagePixels, {});
    preview.setDevicePixelRatio(pixelsPerPoint);
    return preview;
}

const PdfPage *ZKPdfDocument::pageWithNumber(int page) const
{
    if (page < 1 || page > numberOfPages())
        return nullptr;
    return &m_pages[static_cast<std::size_t>(page - 1)];
}

// The renderer turns the page for reading by itself, and leaves its paper transparent.
QImage ZKPdfDocument::painted(int page, const PdfPlacement &placement) const
{
    QImage content = m_pdfDocumentRef->painted(page - 1, placement.pagePixels);
    if (content.isNull() ||
        (placement.pagePixels == placement.imagePixels && placement.pageOrigin.isNull()))
        return content;
    return onWhite(content, placement.imagePixels, placement.pageOrigin);
}
