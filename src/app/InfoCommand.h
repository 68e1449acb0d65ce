#pragma once

#include "app/CommandLine.h"
#include "app/Console.h"
#include "document/DocumentContents.h"
#include "infopanel/InfoFacts.h"

/// Prints the facts about documents that the info panel shows, without a window.
namespace infocommand {

/// What the info panel would know of the document when it has just been opened.
[[nodiscard]] InfoFacts factsOf(const DocumentContents &contents);

/// Runs `--info`: a block of lines per file, or one JSON object per line. A file that cannot be
/// read is left out. Gives the exit code.
[[nodiscard]] int run(const CommandLine &commandLine, const Console &console);

} // namespace infocommand
