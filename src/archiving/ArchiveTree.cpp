#include "archiving/ArchiveTree.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace {

constexpr std::int32_t kSmallestInt = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kGreatestInt = std::numeric_limits<std::int32_t>::max();

template <class T>
constexpr bool isNumber = std::is_arithmetic_v<T>;

/// A fraction is cut off; beyond the range it stops at the range's end, and NaN is 0.
std::int32_t intFrom(double number)
{
    if (std::isnan(number))
        return 0;
    if (number <= static_cast<double>(kSmallestInt))
        return kSmallestInt;
    if (number >= static_cast<double>(kGreatestInt))
        return kGreatestInt;
    return static_cast<std::int32_t>(number);
}

std::int32_t intFrom(std::int64_t number)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(number, kSmallestInt, kGreatestInt));
}

std::int32_t intFrom(bool number) { return number ? 1 : 0; }

std::int32_t intFrom(float number) { return intFrom(static_cast<double>(number)); }

/// The number or boolean in `node` handed to `convert`; what it gives for 0 when there is none.
template <class Result, class Convert>
Result numberIn(const ArchiveValue *node, Convert convert)
{
    if (node == nullptr)
        return Result{};
    return std::visit(
        [&convert]([[maybe_unused]] const auto &value) -> Result {
            if constexpr (isNumber<std::decay_t<decltype(value)>>)
                return convert(value);
            else
                return Result{};
        },
        node->value);
}

} // namespace

ArchiveDictionary::ArchiveDictionary() = default;
ArchiveDictionary::ArchiveDictionary(const ArchiveDictionary &other) = default;
ArchiveDictionary::ArchiveDictionary(ArchiveDictionary &&other) noexcept = default;
ArchiveDictionary &ArchiveDictionary::operator=(const ArchiveDictionary &other) = default;
ArchiveDictionary &ArchiveDictionary::operator=(ArchiveDictionary &&other) noexcept = default;
ArchiveDictionary::~ArchiveDictionary() = default;

void ArchiveDictionary::set(std::string_view key, ArchiveValue value)
{
    for (auto &[name, old] : m_entries) {
        if (name == key) {
            old = std::move(value);
            return;
        }
    }
    m_entries.emplace_back(std::string(key), std::move(value));
}

const ArchiveValue *ArchiveDictionary::find(std::string_view key) const
{
    for (const auto &[name, value] : m_entries) {
        if (name == key)
            return &value;
    }
    return nullptr;
}

std::int32_t ArchiveDictionary::intForKey(std::string_view key) const
{
    return numberIn<std::int32_t>(find(key), [](auto number) { return intFrom(number); });
}

double ArchiveDictionary::doubleForKey(std::string_view key) const
{
    return numberIn<double>(find(key), [](auto number) { return static_cast<double>(number); });
}

float ArchiveDictionary::floatForKey(std::string_view key) const
{
    return numberIn<float>(find(key), [](auto number) { return static_cast<float>(number); });
}

bool ArchiveDictionary::boolForKey(std::string_view key) const
{
    return numberIn<bool>(find(key), [](auto number) { return number != decltype(number){}; });
}

std::string ArchiveDictionary::stringForKey(std::string_view key) const
{
    const ArchiveValue *node = find(key);
    const auto *text = node == nullptr ? nullptr : std::get_if<std::string>(&node->value);
    return text == nullptr ? std::string() : *text;
}

const ArchiveArray *ArchiveDictionary::arrayForKey(std::string_view key) const
{
    const ArchiveValue *node = find(key);
    return node == nullptr ? nullptr : std::get_if<ArchiveArray>(&node->value);
}

const ArchiveDictionary *ArchiveDictionary::dictionaryForKey(std::string_view key) const
{
    const ArchiveValue *node = find(key);
    return node == nullptr ? nullptr : std::get_if<ArchiveDictionary>(&node->value);
}

std::shared_ptr<const Archivable> ArchiveDictionary::objectForKey(std::string_view key) const
{
    const ArchiveValue *node = find(key);
    if (node == nullptr)
        return nullptr;
    const auto *object = std::get_if<std::shared_ptr<const Archivable>>(&node->value);
    return object == nullptr ? nullptr : *object;
}

const std::vector<std::pair<std::string, ArchiveValue>> &ArchiveDictionary::entries() const
{
    return m_entries;
}
