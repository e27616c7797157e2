#pragma once

#include <CLI/CLI.hpp>

#include "cli/cli_common.h"

namespace vorlexa::cli {

// Adds "translit", "case" and "convert"; `result` receives the exit code of the one that ran.
void addTextCommands(CLI::App& app, int& result);

}  // namespace vorlexa::cli
