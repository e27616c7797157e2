#pragma once

#include <CLI/CLI.hpp>

#include "cli/cli_common.h"

namespace vorlexa::cli {

// Adds "translate" and "coverage"; `result` receives the exit code of the one that ran.
void addTranslateCommands(CLI::App& app, const GlobalOptions& options, int& result);

}  // namespace vorlexa::cli
