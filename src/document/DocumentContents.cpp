#include "document/DocumentContents.h"

#include "capture/SeriesArchive.h"
#include "document/DocumentArchive.h"
#include "document/DocumentFile.h"
#include "document/DocumentKeys.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/PictureMemory.h"
#include "platform/GeometryText.h"
#include "platform/NumberText.h"
#include "platform/Texts.h"

namespace {

DocumentContents::Axes axesFrom(const ArchiveDictionary &data)
{
    const auto point = [&data](const char *key) {
        return geometrytext::pointFromString(data.stringForKey(key));
    };
    DocumentContents::Axes axes;
    axes.type = data.intForKey("Axis Type");
    axes.anchors.anchor1 = point("Anchor Position 1");
    axes.anchors.anchor2 = point("Anchor Position 2");
    axes.anchors.anchor3 = point("Anchor Position 3");
    axes.anchors.anchor4 = point("Anchor Position 4");
    axes.minX = data.doubleForKey("Min X Value");
    axes.maxX = data.doubleForKey("Max X Value");
    axes.minY = data.doubleForKey("Min Y Value");
    axes.maxY = data.doubleForKey("Max Y Value");
    axes.logX = data.boolForKey("Log X Axis");
    axes.logY = data.boolForKey("Log Y Axis");
    axes.thetaRange = data.intForKey("Theta Range");
    axes.isCounterClockwise = data.boolForKey("CCW Direction");
    return axes;
}

std::optional<DocumentContents::PictureFacts> pictureFrom(const ArchiveDictionary &root)
{
    const auto picture = documentarchive::pictureIn(root);
    const std::optional<FloatSize> size = picture == nullptr ? std::nullopt : picture->size();
    if (!size)
        return std::nullopt;
    const auto *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    return DocumentContents::PictureFacts{*size, view->floatForKey("Rotation Angle")};
}

/// The index of one of `count` choices; a choice that is not there leaves the first one chosen.
int choiceOf(int number, int count) { return number >= 0 && number < count ? number : 0; }

/// As a window shows the axes when it has opened the document.
void showAxes(DocumentContents::Axes &axes)
{
    constexpr int axisTypes = 3;
    constexpr int thetaRanges = 4;
    axes.type = choiceOf(axes.type, axisTypes);
    axes.thetaRange = choiceOf(axes.thetaRange, thetaRanges);
    for (double *value : {&axes.minX, &axes.maxX, &axes.minY, &axes.maxY})
        *value = numbertext::asShown(*value);
}

} // namespace

DocumentContents DocumentContents::fromRoot(const ArchiveDictionary &root)
{
    DocumentContents contents;
    contents.picture = pictureFrom(root);
    if (const ArchiveDictionary *data = root.dictionaryForKey(documentkeys::currentAxesData))
        contents.axes = axesFrom(*data);
    if (const ArchiveDictionary *data = root.dictionaryForKey(documentkeys::dataSeriesData)) {
        contents.series = seriesarchive::storeFromData(*data);
        contents.currentSeries = data->intForKey("Current Series");
    }
    return contents;
}

ReadDocumentFile readDocument(const QByteArray &bytes)
{
    const documentarchive::Reading reading =
        documentarchive::unarchived(bytes, documentarchive::Pixels::LeftOut);
    ReadDocumentFile result{{}, documentarchive::description(reading.damages)};
    if (reading.isWhole() || !reading.root.entries().empty())
        result.contents = DocumentContents::fromRoot(reading.root);
    if (result.contents)
        showAxes(result.contents->axes);
    return result;
}

ReadDocumentFile readDocumentFile(const QString &path)
{
    const documentfile::Content content = documentfile::contentOf(path, picturememory::available());
    if (!content.error.isEmpty())
        return {{}, content.error};
    return readDocument(content.bytes);
}
