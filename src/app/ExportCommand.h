#pragma once

#include "app/CommandLine.h"
#include "app/Console.h"

/// Writes the captured data of documents, without a window.
namespace exportcommand {

/// Runs `--export`: all files one after the other; plain texts have an empty line in between.
/// Either all of it is written or nothing. `titlesByDefault` is what the preferences say about
/// titles. Gives the exit code.
[[nodiscard]] int run(const CommandLine &commandLine, bool titlesByDefault, const Console &console);

} // namespace exportcommand
