#include "document/DocumentExchange.h"

#include "axes/AnchorPlacement.h"
#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/DocumentKeys.h"
#include "document/MyDocument.h"

namespace {

ExchangeAxes axesOf(const DocumentContents::Axes &axes)
{
    // The codes of the theta range: 0 to 360, -180 to 180 degrees, then the same in radians.
    constexpr int firstRangeInRadians = 2;
    ExchangeAxes result;
    result.type = axes.type;
    result.anchors = {axes.anchors.anchor1, axes.anchors.anchor2, axes.anchors.anchor3,
                      axes.anchors.anchor4};
    result.x = {axes.minX, axes.maxX, axes.logX};
    result.y = {axes.minY, axes.maxY, axes.logY};
    result.isCounterClockwise = axes.isCounterClockwise;
    result.isInDegrees = axes.thetaRange < firstRangeInRadians;
    result.isSigned = axes.thetaRange == 1 || axes.thetaRange == firstRangeInRadians + 1;
    return result;
}

} // namespace

namespace documentexchange {

ExchangeFacts factsOf(const DocumentContents &contents, const IndexSet &series, const QString &name)
{
    ExchangeFacts facts;
    facts.document = name.toStdString();
    if (contents.picture) {
        facts.picture =
            anchorplacement::displayedSize({contents.picture->size, contents.picture->rotation});
        facts.axes = axesOf(contents.axes);
    }
    for (const int i : series)
        facts.series.push_back({i + 1, contents.series.points(i), contents.series.converterOf(i)});
    return facts;
}

ExchangeFacts factsOf(const MyDocument &document, const IndexSet &series)
{
    ArchiveDictionary root;
    root.set(documentkeys::currentAxesData, {document.currentAxes().dataForSave()});
    root.set(documentkeys::dataSeriesData, {document.dataSeries().dataForSave()});
    DocumentContents contents = DocumentContents::fromRoot(root);
    if (document.hasImage())
        contents.picture = DocumentContents::PictureFacts{document.imageSize()};
    return factsOf(contents, series, document.displayName());
}

} // namespace documentexchange
