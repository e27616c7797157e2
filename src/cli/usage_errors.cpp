#include "cli/usage_errors.h"

#include <iostream>
#include <string>
#include <vector>

#include "cli/cli_common.h"

namespace vorlexa::cli {

int reportUsageError(CLI::App& app, const CLI::ParseError& error) {
    // The deepest command the user named: its usage is the one that helps.
    CLI::App* at = &app;
    for (std::vector<CLI::App*> named = at->get_subcommands(); !named.empty(); named = at->get_subcommands())
        at = named.front();
    // A word that fits no command or option is named, rather than the requirement it left
    // unmet ("a subcommand is required").
    const std::vector<std::string> extra = at->remaining();
    std::cerr << app.get_name() << ": ";
    if (!extra.empty()) {
        const std::string& first = extra.front();
        std::cerr << (first.starts_with("-") ? "unknown option '" : "unknown command '") << first << "'\n";
    } else {
        std::cerr << error.what() << '\n';
    }
    std::cerr << '\n' << at->help();
    return kExitUsage;
}

}  // namespace vorlexa::cli
