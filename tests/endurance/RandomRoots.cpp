#include "endurance/RandomRoots.h"

#include "document/SampleRoots.h"
#include "platform/GeometryText.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

using sampleroots::integer;
using sampleroots::Kind;
using Converters = std::vector<std::shared_ptr<const ZKConvCoordinate>>;

class Dice
{
public:
    Dice(std::mt19937 &dice, randomroots::Numbers numbers)
        : m_dice(dice)
        , m_numbers(numbers)
    {}

    [[nodiscard]] std::size_t below(std::size_t limit) { return m_dice() % limit; }
    [[nodiscard]] int number(int low, int high)
    {
        return low + static_cast<int>(below(static_cast<std::size_t>(high - low)));
    }
    [[nodiscard]] bool oneIn(std::size_t count) { return below(count) == 0; }
    [[nodiscard]] ArchiveValue truth() { return {oneIn(2)}; }

    template <class T, std::size_t count>
    [[nodiscard]] T oneOf(const std::array<T, count> &choice)
    {
        return choice.at(below(count));
    }

    [[nodiscard]] double anyNumber()
    {
        static constexpr std::array wild{0.0, -0.0, 1e300, -1e-300, 5e-324, 1e16};
        if (oneIn(4))
            return oneOf(wild);
        return std::ldexp(static_cast<double>(m_dice()) - 2147483648.5, number(-60, 30));
    }

    [[nodiscard]] double value()
    {
        static constexpr std::array values{0.0,  1.0,   -2.5,   0.1,       123456.0, 1e-5,
                                           1e20, 0.125, 100.25, -0.000125, 3.14159,  1000.0};
        return m_numbers == randomroots::Numbers::OfSixDigits ? oneOf(values) : anyNumber();
    }

private:
    std::mt19937 &m_dice;
    randomroots::Numbers m_numbers;
};

std::string pointText(Dice &dice)
{
    return geometrytext::stringFromPoint({static_cast<float>(dice.number(-20, 700)),
                                          static_cast<float>(dice.number(-10, 500)) / 4.0F});
}

/// Encoded once for all tests.
std::shared_ptr<const Archivable> picture(Dice &dice)
{
    static const std::array pictures{
        sampleroots::picture({40, 30}), sampleroots::picture({500, 400}),
        sampleroots::picture({1500, 300}), sampleroots::picture({60, 1400})};
    return dice.oneOf(pictures);
}

ArchiveDictionary view(Dice &dice)
{
    static constexpr std::array scales{0.125F, 0.5F, 0.70710678F, 1.0F, 1.3F, 2.0F, 5.0F};
    static constexpr std::array angles{0.0F, 90.0F, 180.0F, 270.0F};
    ArchiveDictionary data;
    data.set("Scrolled Position", {pointText(dice)});
    data.set("Image Scale", {dice.oneOf(scales)});
    data.set("Rotation Angle", {dice.oneOf(angles)});
    if (!dice.oneIn(4))
        data.set("Original Image", {picture(dice)});
    return data;
}

ArchiveDictionary table(Dice &dice)
{
    ArchiveArray widths;
    const std::size_t count = dice.oneIn(4) ? dice.below(14) : 10;
    for (std::size_t i = 0; i < count; ++i)
        widths.push_back(integer(dice.number(0, 400)));
    ArchiveDictionary data;
    data.set("Column Widths", {widths});
    return data;
}

ArchiveDictionary axes(Dice &dice)
{
    ArchiveDictionary data;
    for (const char *key :
         {"Anchor Position 1", "Anchor Position 2", "Anchor Position 3", "Anchor Position 4"})
        data.set(key, {pointText(dice)});
    data.set("Axis Type", integer(dice.number(0, 3)));
    for (const char *key : {"Min X Value", "Max X Value", "Min Y Value", "Max Y Value"})
        data.set(key, {dice.value()});
    data.set("Log X Axis", dice.truth());
    data.set("Log Y Axis", dice.truth());
    data.set("Theta Range", integer(dice.number(0, 2)));
    data.set("CCW Direction", dice.truth());
    return data;
}

ArchiveDictionary guide(Dice &dice, const Converters &converters)
{
    ArchiveDictionary data;
    data.set("Auto X Value Mode", integer(dice.number(0, 3)));
    data.set("Lock X Value", dice.truth());
    data.set("Lock Y Value", dice.truth());
    for (const char *key :
         {"Initial X Value", "Step X Value", "Current X Value", "Current Y Value"})
        data.set(key, {dice.value()});
    if (!dice.oneIn(4))
        data.set("Current Converter",
                 {std::shared_ptr<const Archivable>(converters.at(dice.below(converters.size())))});
    return data;
}

ArchiveArray points(Dice &dice)
{
    ArchiveArray list;
    const std::size_t count = dice.oneIn(3) ? 0 : dice.below(40);
    for (std::size_t i = 0; i < count; ++i)
        list.push_back({std::shared_ptr<const Archivable>(std::make_shared<ArchivedCopy<ZKVector>>(
            ZKVector::vectorWithX(dice.anyNumber(), dice.anyNumber())))});
    return list;
}

ArchiveDictionary series(Dice &dice, const Converters &converters)
{
    ArchiveArray lists;
    ArchiveArray used;
    ArchiveArray modes;
    for (int i = 0; i < 10; ++i) {
        lists.push_back({points(dice)});
        used.push_back(
            {dice.oneIn(3) ? std::shared_ptr<const Archivable>(std::make_shared<ZKConvCoordinate>())
                           : converters.at(dice.below(converters.size()))});
        modes.push_back(integer(dice.number(0, 3)));
    }
    ArchiveDictionary data;
    data.set("Current Series", integer(dice.number(0, 10)));
    data.set("Data Series", {lists});
    data.set("Converter Series", {used});
    data.set("Marker Series", {modes});
    data.set("Auto Sort", dice.truth());
    return data;
}

} // namespace

namespace randomroots {

ArchiveDictionary root(std::mt19937 &randomDice, Numbers numbers)
{
    Dice dice(randomDice, numbers);
    const Converters converters{sampleroots::converter(Kind::Parallel),
                                sampleroots::converter(Kind::Quadrangle),
                                sampleroots::converter(Kind::Polar)};
    const FloatRect frame{
        {static_cast<float>(dice.number(0, 1500)), static_cast<float>(dice.number(-300, 1200))},
        {static_cast<float>(dice.number(0, 1500)), static_cast<float>(dice.number(0, 1200))}};
    const FloatSize drawer{static_cast<float>(dice.number(0, 600)),
                           static_cast<float>(dice.number(0, 900))};
    ArchiveDictionary root;
    root.set(documentkeys::mainWindowFrame, {geometrytext::stringFromRect(frame)});
    root.set(documentkeys::dataTableSize, {geometrytext::stringFromSize(drawer)});
    root.set(documentkeys::dataTableViewState, integer(dice.number(0, 2)));
    root.set(documentkeys::actionTabSelection, integer(dice.number(0, 2)));
    root.set(documentkeys::graphImageViewData, {view(dice)});
    root.set(documentkeys::dataTableViewData, {table(dice)});
    root.set(documentkeys::currentAxesData, {axes(dice)});
    root.set(documentkeys::cursorGuideData, {guide(dice, converters)});
    root.set(documentkeys::dataSeriesData, {series(dice, converters)});
    return root;
}

} // namespace randomroots
