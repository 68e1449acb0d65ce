#include "document/DocumentContents.h"

#include "capture/SeriesArchive.h"
#include "document/DocumentFile.h"
#include "document/DocumentKeys.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/PictureMemory.h"
#include "platform/GeometryText.h"
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

DocumentContents::Guide guideFrom(const ArchiveDictionary &data)
{
    DocumentContents::Guide guide;
    guide.autoXMode = data.intForKey("Auto X Value Mode");
    guide.lockX = data.boolForKey("Lock X Value");
    guide.lockY = data.boolForKey("Lock Y Value");
    guide.initialX = data.doubleForKey("Initial X Value");
    guide.stepX = data.doubleForKey("Step X Value");
    guide.currentX = data.doubleForKey("Current X Value");
    guide.currentY = data.doubleForKey("Current Y Value");
    guide.converter =
        std::dynamic_pointer_cast<const ZKConvCoordinate>(data.objectForKey("Current Converter"));
    return guide;
}

std::optional<DocumentContents::PictureFacts> pictureFrom(const ArchiveDictionary &data)
{
    const auto picture =
        std::dynamic_pointer_cast<const ArchivedPicture>(data.objectForKey("Original Image"));
    const std::optional<FloatSize> size = picture == nullptr ? std::nullopt : picture->size();
    if (!size)
        return std::nullopt;
    return DocumentContents::PictureFacts{*size, data.floatForKey("Image Scale"),
                                          data.floatForKey("Rotation Angle")};
}

} // namespace

DocumentContents DocumentContents::fromRoot(const ArchiveDictionary &root)
{
    DocumentContents contents;
    if (const ArchiveDictionary *data = root.dictionaryForKey(documentkeys::graphImageViewData))
        contents.picture = pictureFrom(*data);
    if (const ArchiveDictionary *data = root.dictionaryForKey(documentkeys::currentAxesData))
        contents.axes = axesFrom(*data);
    if (const ArchiveDictionary *data = root.dictionaryForKey(documentkeys::cursorGuideData))
        contents.guide = guideFrom(*data);
    if (const ArchiveDictionary *data = root.dictionaryForKey(documentkeys::dataSeriesData)) {
        contents.series = seriesarchive::storeFromData(*data);
        contents.currentSeries = data->intForKey("Current Series");
    }
    return contents;
}

ReadDocumentFile readDocument(const QByteArray &bytes)
{
    const documentarchive::Reading reading = documentarchive::unarchived(bytes);
    ReadDocumentFile result{{}, documentarchive::description(reading.damages), reading.damages};
    if (reading.isWhole() || !reading.root.entries().empty())
        result.contents = DocumentContents::fromRoot(reading.root);
    return result;
}

ReadDocumentFile readDocumentFile(const QString &path)
{
    const documentfile::Content content = documentfile::contentOf(path, picturememory::available());
    if (!content.error.isEmpty())
        return {{}, content.error, {}};
    return readDocument(content.bytes);
}
