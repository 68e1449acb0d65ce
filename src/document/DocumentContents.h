#pragma once

#include "archiving/ArchiveTree.h"
#include "axes/Anchors.h"
#include "capture/SeriesStore.h"
#include "geometry/FloatGeometry.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// What a document file says, for those who have no window: the picture is not decoded.
struct DocumentContents
{
    struct Axes
    {
        int type = 0; ///< 0 parallel, 1 quadrangle, 2 polar
        Anchors anchors;
        double minX = 0;
        double maxX = 0;
        double minY = 0;
        double maxY = 0;
        bool logX = false;
        bool logY = false;
        int thetaRange = 0;
        bool isCounterClockwise = false;
    };

    struct PictureFacts
    {
        FloatSize size;     ///< in points, not rotated
        float rotation = 0; ///< degrees, counter-clockwise
    };

    SeriesStore series;
    int currentSeries = 0;
    Axes axes;
    std::optional<PictureFacts> picture; ///< nothing without a picture

    /// What a root dictionary says; what is missing is 0, off or empty.
    [[nodiscard]] static DocumentContents fromRoot(const ArchiveDictionary &root);
};

/// A document file that was read without a window.
struct ReadDocumentFile
{
    std::optional<DocumentContents> contents; ///< nothing if there is no such file or no document
    /// Why the file could not be read, or not whole, in the user's words; empty if all is well.
    QString error;
};

/// Reads a document from the bytes of its file, with the axes that a window would show. A damaged
/// one gives what is left, and an error.
[[nodiscard]] ReadDocumentFile readDocument(const QByteArray &bytes);

/// The same from the file at `path`.
[[nodiscard]] ReadDocumentFile readDocumentFile(const QString &path);
