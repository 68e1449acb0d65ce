#include "app/InfoCommand.h"

#include "app/DocumentInput.h"
#include "app/FactsAsJson.h"
#include "axes/AnchorMeasures.h"
#include "axes/AnchorPlacement.h"
#include "infopanel/InfoTexts.h"
#include "platform/Texts.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// A caption and what stands beside it.
using Row = std::pair<QString, QString>;

struct Section
{
    QString title;
    std::vector<Row> rows;
};

bool isDashed(const QString &caption) { return caption.startsWith(u'-'); }

Section pictureSection(const InfoFacts &facts)
{
    return {texts::localized("infopanel.image.title"),
            {{texts::localized("infopanel.image.size"), infotexts::imageInfo(&facts)}}};
}

/// Without captions of their own the rows below the kind say nothing.
Section axesSection(const InfoFacts &facts)
{
    const infotexts::AxisTexts axes = infotexts::axisTexts(&facts);
    Section section{texts::localized("infopanel.axes.title"),
                    {{texts::localized("infopanel.axes.kind"), axes.info[0]}}};
    if (!axes.labels)
        return section;
    for (std::size_t i = 0; i < axes.labels->size(); ++i)
        if (!isDashed(axes.labels->at(i)))
            section.rows.emplace_back(axes.labels->at(i), axes.info.at(i + 1));
    return section;
}

Section dataSection(const InfoFacts &facts)
{
    const auto info = infotexts::dataInfo(&facts);
    return {texts::localized("infopanel.data.title"),
            {{texts::localized("infopanel.data.series"), info[0]},
             {texts::localized("infopanel.data.row"), info[1]},
             {texts::localized("infopanel.data.numSeries"), info[2]},
             {texts::localized("infopanel.data.numRows"), info[3]}}};
}

QString asText(const QString &file, const InfoFacts &facts)
{
    const std::vector<Section> sections{pictureSection(facts), axesSection(facts),
                                        dataSection(facts)};
    qsizetype width = 0;
    for (const Section &section : sections)
        for (const Row &row : section.rows)
            width = std::max(width, row.first.size());
    QString text = Console::displayName(file) + u'\n';
    for (const Section &section : sections) {
        text += section.title + u'\n';
        for (const Row &row : section.rows)
            text += QStringLiteral("  ") + row.first.leftJustified(width + 1) + row.second + u'\n';
    }
    return text;
}

/// `number` if it is the index of one of `count` choices; a choice that is not there leaves the
/// first one chosen.
int indexOf(int number, int count) { return number >= 0 && number < count ? number : 0; }

} // namespace

namespace infocommand {

InfoFacts factsOf(const DocumentContents &contents)
{
    constexpr int axisTypes = 3;
    InfoFacts facts;
    if (contents.picture)
        facts.imageSize =
            anchorplacement::displayedSize({contents.picture->size, contents.picture->rotation});
    const Anchors &anchors = contents.axes.anchors;
    const double bottomLength = anchormeasures::bottomLength(anchors);
    facts.axes = {indexOf(contents.axes.type, axisTypes),
                  {anchors.anchor1, anchors.anchor2, anchors.anchor3, anchors.anchor4},
                  bottomLength,
                  anchormeasures::leftLength(anchors),
                  bottomLength,
                  anchormeasures::inclination(anchors)};
    const int series = indexOf(contents.currentSeries, SeriesStore::seriesCount);
    const IndexSet valid = contents.series.validSeriesBetween(0, SeriesStore::seriesCount - 1);
    facts.data = {series, contents.series.pointCount(series), static_cast<int>(valid.size()),
                  contents.series.maxRows()};
    return facts;
}

int run(const CommandLine &commandLine, const Console &console)
{
    int result = exitcode::success;
    QByteArray output;
    for (const QString &file : commandLine.files) {
        const std::optional<DocumentContents> contents = documentinput::read(file, console);
        if (!contents) {
            result = exitcode::failure;
            continue;
        }
        const InfoFacts facts = factsOf(*contents);
        if (commandLine.asJson)
            output += factsasjson::line(file, facts);
        else
            output += (output.isEmpty() ? QString() : QStringLiteral("\n")).toUtf8() +
                      asText(file, facts).toUtf8();
    }
    return console.print(output) ? result : exitcode::failure;
}

} // namespace infocommand
