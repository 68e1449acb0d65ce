#pragma once

#include "archiving/SequentialCoder.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

struct ArchiveValue;

using ArchiveArray = std::vector<ArchiveValue>;

/// A dictionary of the archive tree. Keys keep the order in which they were set, which is
/// the order in which a document file has them.
class ArchiveDictionary
{
public:
    // Defined where ArchiveValue is complete: a dictionary holds values that may hold dictionaries.
    ArchiveDictionary();
    ArchiveDictionary(const ArchiveDictionary &other);
    ArchiveDictionary(ArchiveDictionary &&other) noexcept;
    ArchiveDictionary &operator=(const ArchiveDictionary &other);
    ArchiveDictionary &operator=(ArchiveDictionary &&other) noexcept;
    ~ArchiveDictionary();

    /// Puts `value` under `key`, at its old place if the key is there already.
    void set(std::string_view key, ArchiveValue value);

    /// The value under `key`, or null; valid until the dictionary changes.
    [[nodiscard]] const ArchiveValue *find(std::string_view key) const;

    /// The value under `key` as the wanted type, converted between numbers and booleans as number
    /// objects are; a missing key, or a value that is none, gives 0, 0.0, false or "".
    [[nodiscard]] std::int32_t intForKey(std::string_view key) const;
    [[nodiscard]] double doubleForKey(std::string_view key) const;
    [[nodiscard]] float floatForKey(std::string_view key) const;
    [[nodiscard]] bool boolForKey(std::string_view key) const;
    [[nodiscard]] std::string stringForKey(std::string_view key) const;

    /// The array, dictionary or archived object under `key`; null when there is none.
    [[nodiscard]] const ArchiveArray *arrayForKey(std::string_view key) const;
    [[nodiscard]] const ArchiveDictionary *dictionaryForKey(std::string_view key) const;
    [[nodiscard]] std::shared_ptr<const Archivable> objectForKey(std::string_view key) const;

    [[nodiscard]] const std::vector<std::pair<std::string, ArchiveValue>> &entries() const;

private:
    std::vector<std::pair<std::string, ArchiveValue>> m_entries;
};

/// A node of the archive tree: a property-list value or an object that archives itself. An object
/// held by several nodes is one object again after loading.
struct ArchiveValue
{
    std::variant<std::monostate, bool, std::int64_t, float, double, std::string, ArchiveArray,
                 ArchiveDictionary, std::shared_ptr<const Archivable>>
        value;
};
