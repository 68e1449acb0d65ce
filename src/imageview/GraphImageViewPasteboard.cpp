#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/PasteboardPicture.h"
#include "imageview/PictureMemory.h"
#include "imageview/PictureReader.h"
#include "platform/NamedColors.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"

#include <QMimeData>
#include <QPainter>

#include <utility>

namespace {

constexpr double veilOpacity = 0.2;

} // namespace

// Pasting

bool GraphImageView::acceptPasteboard(const QMimeData *pasteboard) const
{
    if (!m_outlets.document->isInAxisSettingMode())
        return false;
    return pasteboard != nullptr && pasteboardpicture::isOffered(*pasteboard);
}

bool GraphImageView::replaceImageWithPasteboard(const QMimeData *pasteboard)
{
    if (pasteboard == nullptr)
        return false;
    if (const std::optional<QString> file = pasteboardpicture::firstFile(*pasteboard))
        return openImageFile(QUrl::fromLocalFile(*file));
    giveUpOpening();
    const PictureReader reader(picturememory::available());
    if (const auto source = pasteboardpicture::imageSource(*pasteboard, reader))
        return openPicture(*source);
    const PictureReading taken = reader.read(qvariant_cast<QImage>(pasteboard->imageData()));
    if (taken.picture)
        return replaceImageWith(taken.picture);
    presentProblem(pictureproblem::explanation(taken));
    return false;
}

// Drag and drop

Qt::DropAction GraphImageView::draggingEntered(const QMimeData *pasteboard)
{
    m_becameDropTarget = acceptPasteboard(pasteboard);
    setNeedsDisplay();
    if (m_becameDropTarget)
        setHoveringDrag(HoveringDrag::Picture);
    else if (m_outlets.document->isInAxisSettingMode())
        setHoveringDrag(HoveringDrag::NoPicture);
    else
        setHoveringDrag(HoveringDrag::WhileDigitizing);
    return m_becameDropTarget ? Qt::CopyAction : Qt::IgnoreAction;
}

void GraphImageView::draggingExited() { endDragging(); }

bool GraphImageView::performDragOperation(const QMimeData *pasteboard)
{
    m_becameDropTarget = false;
    return acceptPasteboard(pasteboard) && replaceImageWithPasteboard(pasteboard);
}

void GraphImageView::concludeDragOperation() { endDragging(); }

void GraphImageView::endDragging()
{
    m_becameDropTarget = false;
    setNeedsDisplay();
    setHoveringDrag(HoveringDrag::None);
}

void GraphImageView::setHoveringDrag(HoveringDrag drag)
{
    if (std::exchange(m_hoveringDrag, drag) != drag)
        Q_EMIT hoveringDragChanged(drag);
}

void GraphImageView::drawDropVeil(QPainter &painter, const QRect &dirtyRect)
{
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(veilOpacity);
    painter.fillRect(dirtyRect, namedcolors::green.screenColor());
    painter.restore();
}
