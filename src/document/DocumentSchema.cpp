#include "document/DocumentSchema.h"

#include "archiving/ArchivedCopy.h"
#include "conversion/ZKConvCoordinate.h"
#include "document/DocumentKeys.h"
#include "geometry/ZKVector.h"
#include "imageview/ArchivedPicture.h"

#include <algorithm>
#include <array>
#include <span>

using documentarchive::Damage;
using documentarchive::Fault;

namespace {

using IsKind = bool (*)(const ArchiveValue &);

bool isText(const ArchiveValue &value) { return std::holds_alternative<std::string>(value.value); }

/// Numbers and booleans stand for each other.
bool isNumber(const ArchiveValue &value)
{
    return std::holds_alternative<bool>(value.value) ||
           std::holds_alternative<std::int64_t>(value.value) ||
           std::holds_alternative<float>(value.value) ||
           std::holds_alternative<double>(value.value);
}

bool isDictionary(const ArchiveValue &value)
{
    return std::holds_alternative<ArchiveDictionary>(value.value);
}

template <class Wanted>
bool isObject(const ArchiveValue &value)
{
    const auto *object = std::get_if<std::shared_ptr<const Archivable>>(&value.value);
    return object != nullptr && dynamic_cast<const Wanted *>(object->get()) != nullptr;
}

template <IsKind isEntry>
bool isArrayOf(const ArchiveValue &value)
{
    const auto *array = std::get_if<ArchiveArray>(&value.value);
    return array != nullptr && std::all_of(array->begin(), array->end(), isEntry);
}

constexpr IsKind isConverter = isObject<ZKConvCoordinate>;
constexpr IsKind isPicture = isObject<ArchivedPicture>;
constexpr IsKind isPointList = isArrayOf<isObject<ArchivedCopy<ZKVector>>>;

struct Entry
{
    const char *key;
    IsKind isKind;
};

constexpr std::array rootEntries{
    Entry{documentkeys::mainWindowFrame, isText},
    Entry{documentkeys::dataTableSize, isText},
    Entry{documentkeys::dataTableViewState, isNumber},
    Entry{documentkeys::actionTabSelection, isNumber},
    Entry{documentkeys::graphImageViewData, isDictionary},
    Entry{documentkeys::dataTableViewData, isDictionary},
    Entry{documentkeys::currentAxesData, isDictionary},
    Entry{documentkeys::cursorGuideData, isDictionary},
    Entry{documentkeys::dataSeriesData, isDictionary},
};

constexpr std::array viewEntries{
    Entry{"Scrolled Position", isText},
    Entry{"Image Scale", isNumber},
    Entry{"Rotation Angle", isNumber},
    Entry{documentkeys::originalImage, isPicture},
};

constexpr std::array tableEntries{Entry{"Column Widths", isArrayOf<isNumber>}};

constexpr std::array axesEntries{
    Entry{"Anchor Position 1", isText}, Entry{"Anchor Position 2", isText},
    Entry{"Anchor Position 3", isText}, Entry{"Anchor Position 4", isText},
    Entry{"Axis Type", isNumber},       Entry{"Min X Value", isNumber},
    Entry{"Max X Value", isNumber},     Entry{"Min Y Value", isNumber},
    Entry{"Max Y Value", isNumber},     Entry{"Log X Axis", isNumber},
    Entry{"Log Y Axis", isNumber},      Entry{"Theta Range", isNumber},
    Entry{"CCW Direction", isNumber},
};

constexpr std::array guideEntries{
    Entry{"Auto X Value Mode", isNumber}, Entry{"Lock X Value", isNumber},
    Entry{"Lock Y Value", isNumber},      Entry{"Initial X Value", isNumber},
    Entry{"Step X Value", isNumber},      Entry{"Current X Value", isNumber},
    Entry{"Current Y Value", isNumber},   Entry{"Current Converter", isConverter},
};

constexpr std::array seriesEntries{
    Entry{"Current Series", isNumber},
    Entry{"Data Series", isArrayOf<isPointList>},
    Entry{"Converter Series", isArrayOf<isConverter>},
    Entry{"Marker Series", isArrayOf<isNumber>},
    Entry{"Auto Sort", isNumber},
};

void checkEntries(const ArchiveDictionary &dictionary, std::span<const Entry> entries,
                  const std::string &part, std::vector<Damage> &damages)
{
    for (const Entry &entry : entries) {
        const ArchiveValue *value = dictionary.find(entry.key);
        if (value != nullptr && !entry.isKind(*value))
            damages.push_back({Fault::WrongKind, part.empty() ? entry.key : part, 0});
    }
}

} // namespace

namespace documentschema {

void check(const ArchiveDictionary &root, std::vector<Damage> &damages)
{
    checkEntries(root, rootEntries, {}, damages);
    const auto checkPart = [&](const char *part, std::span<const Entry> entries) {
        if (const ArchiveDictionary *dictionary = root.dictionaryForKey(part))
            checkEntries(*dictionary, entries, part, damages);
    };
    checkPart(documentkeys::graphImageViewData, viewEntries);
    checkPart(documentkeys::dataTableViewData, tableEntries);
    checkPart(documentkeys::currentAxesData, axesEntries);
    checkPart(documentkeys::cursorGuideData, guideEntries);
    checkPart(documentkeys::dataSeriesData, seriesEntries);
}

} // namespace documentschema
