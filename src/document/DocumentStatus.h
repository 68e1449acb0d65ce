#pragma once

#include "geometry/FloatGeometry.h"

#include <QObject>

#include <optional>

class MyDocument;

/// Keeps what the window says about its document's state up to date: the status line, the
/// magnification, the words in an empty picture area.
class DocumentStatus : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the document's window.
    explicit DocumentStatus(MyDocument &document);

    void refresh();

private:
    void hoverChanged(std::optional<FloatPoint> inPicture);
    void showHint();
    void showPositions();
    void showSeries();
    void showScale();
    void describePicture();
    void speakPointer();
    [[nodiscard]] QString picturePosition() const;
    [[nodiscard]] QString graphPosition() const;
    [[nodiscard]] QString hint() const;
    [[nodiscard]] QString hintOfDrag() const;
    [[nodiscard]] QString hintOfMode() const;
    [[nodiscard]] QString hintOfKeys() const;

    MyDocument &m_document;
    std::optional<FloatPoint> m_hover; ///< the pointer in picture coordinates
};
