#pragma once

#include "archiving/ArchiveTree.h"
#include "document/DocumentArchive.h"

#include <vector>

/// Which kind of value stands under which key of a document file.
namespace documentschema {

/// Adds a damage for every known key of `root` that has a value of a wrong kind. A missing key is
/// none, nor is a key that this version does not know.
void check(const ArchiveDictionary &root, std::vector<documentarchive::Damage> &damages);

} // namespace documentschema
