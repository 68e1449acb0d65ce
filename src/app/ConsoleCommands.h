#pragma once

#include "app/CommandLine.h"
#include "app/Console.h"

/// What the program does without a window.
namespace consolecommands {

/// Whether `commandLine` is served without a window.
[[nodiscard]] bool serve(const CommandLine &commandLine);

/// Serves it; gives the exit code. `titlesByDefault` is what the preferences say about titles.
[[nodiscard]] int run(const CommandLine &commandLine, bool titlesByDefault, const Console &console);

} // namespace consolecommands
