// What the command line says when it can't make sense of its arguments.
#pragma once

#include <CLI/CLI.hpp>

namespace vorlexa::cli {

// Names the unknown command or option (or says what else is wrong) and shows the usage of the
// command the user was in, all on standard error. Returns the exit code of a usage error.
int reportUsageError(CLI::App& app, const CLI::ParseError& error);

}  // namespace vorlexa::cli
