#pragma once

#include <QString>

#include <vector>

/// The documents that come with the program, for a first look at it.
namespace exampledocuments {

struct Example
{
    const char *file; ///< in the folder of the examples
    const char *text; ///< key of the menu text
};

/// In the order of the menu.
[[nodiscard]] const std::vector<Example> &all();

/// Where they are installed beside a program in `programFolder`.
[[nodiscard]] QString folderFor(const QString &programFolder);

} // namespace exampledocuments
