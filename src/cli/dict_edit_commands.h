// The dictionary maintenance of the Word Corrector for scripts: search, change, delete, reports,
// synonyms, statistics, and the expression lists.
#pragma once

#include <CLI/CLI.hpp>

#include "cli/cli_common.h"

namespace vorlexa::cli {

// Adds search, change, delete, report, synonyms and stats under "dict".
void addDictEditCommands(CLI::App& dict, const GlobalOptions& options, int& result);
// Adds "expressions" and its subcommand "add".
void addExpressionCommands(CLI::App& app, const GlobalOptions& options, int& result);

}  // namespace vorlexa::cli
