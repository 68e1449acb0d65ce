#pragma once

#include "archiving/ArchiveTree.h"

#include <random>

/// Root dictionaries of documents with anything in them, by chance. The same state of the dice
/// gives the same root.
namespace randomroots {

enum class Numbers {
    OfSixDigits, ///< such as the fields show
    Any,         ///< with all digits of a double, huge, tiny, the wrong way round
};

[[nodiscard]] ArchiveDictionary root(std::mt19937 &dice, Numbers numbers);

} // namespace randomroots
