#include "document/DocumentStatus.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "document/StatusLine.h"
#include "imageview/AccessiblePicture.h"
#include "imageview/GraphImageView.h"
#include "imageview/MouseDownMode.h"
#include "platform/NumberText.h"
#include "platform/Texts.h"

namespace {

constexpr int polarConverter = 2;
constexpr int shownDigits = 5;
constexpr int percentDigits = 3;

QString number(float value)
{
    return QString::fromStdString(numbertext::general(static_cast<double>(value), shownDigits));
}

} // namespace

DocumentStatus::DocumentStatus(MyDocument &document)
    : QObject(&document.window())
    , m_document(document)
{
    connect(&document.graphView(), &GraphImageView::hoverChanged, this,
            &DocumentStatus::hoverChanged);
    connect(&document.graphView(), &GraphImageView::mouseDownModeChanged, this,
            [this] { showHint(); });
    connect(&document.graphView(), &GraphImageView::hoveringDragChanged, this,
            [this] { showHint(); });
    connect(&document.graphView(), &GraphImageView::keyboardChanged, this, [this] { showHint(); });
    connect(&document.graphView(), &GraphImageView::keyboardPointerMoved, this,
            &DocumentStatus::speakPointer);
}

void DocumentStatus::refresh()
{
    showHint();
    showPositions();
    showSeries();
    showScale();
    describePicture();
    m_document.window().showEmptyHint(!m_document.hasImage());
}

void DocumentStatus::hoverChanged(std::optional<FloatPoint> inPicture)
{
    m_hover = inPicture;
    showHint();
    showPositions();
}

QString DocumentStatus::hintOfDrag() const
{
    switch (m_document.graphView().hoveringDrag()) {
    case GraphImageView::HoveringDrag::Picture:
        return texts::localized(m_document.hasImage() ? "document.status.dropReplaces"
                                                      : "document.status.dropOpens");
    case GraphImageView::HoveringDrag::NoPicture:
        return texts::localized("document.status.dropNoPicture");
    case GraphImageView::HoveringDrag::WhileDigitizing:
        return texts::localized("document.status.dropWhileDigitizing");
    case GraphImageView::HoveringDrag::None:
        break;
    }
    return {};
}

// What a drag of HandMode and above will do: the mode under the pointer, and elsewhere that of the
// chosen tool.
QString DocumentStatus::hintOfMode() const
{
    switch (m_hover ? m_document.graphView().mouseDownMode() : m_document.mouseTool()) {
    case HandMode:
        return texts::localized("document.status.hand");
    case ZoomInMode:
        return texts::localized("document.status.zoomIn");
    case ZoomOutMode:
        return texts::localized("document.status.zoomOut");
    case TrimMode:
        return texts::localized(m_document.graphView().isUsedByKeyboard()
                                    ? "document.status.keysTrim"
                                    : "document.status.trim");
    case MeasureMode:
        return texts::localized("document.status.measure");
    default:
        return {};
    }
}

QString DocumentStatus::hint() const
{
    if (QString drag = hintOfDrag(); !drag.isEmpty())
        return drag;
    if (!m_document.hasImage())
        return texts::localized("document.status.open");
    const GraphImageView &view = m_document.graphView();
    if (QString mode = hintOfMode(); !mode.isEmpty())
        return mode;
    if (view.isUsedByKeyboard() && (view.keyboardPointer() || !m_hover))
        return hintOfKeys();
    if (m_document.isInAxisSettingMode()) {
        const float scale = view.imageScale();
        const QString part =
            m_hover ? m_document.currentAxes().hintAtPoint({m_hover->x * scale, m_hover->y * scale})
                    : QString();
        return part.isEmpty() ? texts::localized("document.status.dragAxes") : part;
    }
    if (!m_document.cursorGuide().converter())
        return texts::localized("document.status.noConverter");
    if (!m_hover)
        return texts::localized("document.status.digitize");
    return texts::localized("document.status.addPoint")
        .arg(m_document.dataSeries().currentSeries() + 1);
}

// What the keys do on the picture.
QString DocumentStatus::hintOfKeys() const
{
    const int part = m_document.graphView().keyboardPart();
    if (part != 0)
        return texts::localized("document.status.keysMovePart")
            .arg(m_document.currentAxes().nameOfPart(part));
    if (m_document.isInAxisSettingMode())
        return texts::localized("document.status.keysAxes");
    if (!m_document.cursorGuide().converter())
        return texts::localized("document.status.noConverter");
    return texts::localized("document.status.keysDigitize")
        .arg(m_document.dataSeries().currentSeries() + 1);
}

void DocumentStatus::showHint() { m_document.window().status().setHint(hint()); }

QString DocumentStatus::picturePosition() const
{
    return m_hover ? texts::localized("document.status.picture")
                         .arg(number(m_hover->x), number(m_hover->y))
                   : QString();
}

QString DocumentStatus::graphPosition() const
{
    const auto converter = m_document.cursorGuide().converter();
    if (!m_hover || !converter || m_document.isInAxisSettingMode())
        return {};
    const FloatPoint data = m_document.cursorGuide().dataPointAt(*m_hover, 1.0F);
    const bool polar = converter->converterType() == polarConverter;
    return texts::localized(polar ? "document.status.graphPolar" : "document.status.graph")
        .arg(number(data.x), number(data.y));
}

void DocumentStatus::showPositions()
{
    StatusLine &status = m_document.window().status();
    status.setPicturePosition(picturePosition());
    status.setGraphPosition(graphPosition());
}

// What a screen reader says of the picture.
void DocumentStatus::describePicture()
{
    GraphImageView &view = m_document.graphView();
    const FloatSize size = m_document.imageSize();
    const char *page = m_document.isInAxisSettingMode() ? "document.picture.onAxisPage"
                                                        : "document.picture.onDigitizingPage";
    const QString text = m_document.hasImage()
                             ? texts::localized(page).arg(number(size.width), number(size.height))
                             : texts::localized("document.status.open");
    if (view.accessibleDescription() != text)
        view.setAccessibleDescription(text);
}

// The graph values of the pointer, and what the keys have chosen: said while the keys move it, for
// the mouse would not let a screen reader finish.
void DocumentStatus::speakPointer()
{
    GraphImageView &view = m_document.graphView();
    const int part = view.keyboardPart();
    const QString graph = graphPosition();
    QString value = graph.isEmpty() ? picturePosition() : graph;
    if (part != 0)
        value = m_document.currentAxes().nameOfPart(part) + QStringLiteral(": ") + value;
    accessiblepicture::setValue(view, value);
}

void DocumentStatus::showSeries()
{
    const DataSeries &series = m_document.dataSeries();
    m_document.window().status().setSeries(m_document.hasImage()
                                               ? texts::localized("document.status.series")
                                                     .arg(series.currentSeries() + 1)
                                                     .arg(series.currentIndex() + 1)
                                               : QString());
}

void DocumentStatus::showScale()
{
    const double percent = static_cast<double>(m_document.graphView().imageScale()) * 100.0;
    m_document.window().showScale(
        m_document.hasImage()
            ? texts::localized("document.zoom.percent")
                  .arg(QString::fromStdString(numbertext::general(percent, percentDigits)))
            : QString());
}
