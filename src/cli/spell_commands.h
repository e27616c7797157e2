#pragma once

#include <CLI/CLI.hpp>

#include "cli/cli_common.h"

namespace vorlexa::cli {

// Adds "spell": the spell-check pass over UTF-8 text, as a report or (-a) as the pipe protocol
// that editors speak with an external spelling program. `result` receives the exit code.
void addSpellCommands(CLI::App& app, const GlobalOptions& options, int& result);

}  // namespace vorlexa::cli
