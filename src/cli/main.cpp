// vorlexa-cli: the translator and its dictionaries from the command line.
#include <CLI/CLI.hpp>
#include <iostream>

#include "cli/cli_common.h"
#include "cli/dict_commands.h"
#include "cli/spell_commands.h"
#include "cli/text_commands.h"
#include "cli/translate_commands.h"
#include "cli/usage_errors.h"

#ifndef VORLEXA_VERSION
#define VORLEXA_VERSION "0.0.0"
#endif

int main(int argc, char** argv) {
    using namespace vorlexa::cli;
    CLI::App app{"ZENKA - Vorlexa: English-Armenian translation from the command line"};
    app.name("vorlexa-cli");
    app.set_version_flag("--version", std::string("vorlexa-cli ") + VORLEXA_VERSION);
    app.require_subcommand(1);

    GlobalOptions options;
    app.add_option("--data-dir", options.dataDir,
                   "working folder (default: $VORLEXA_DATA_DIR, else $XDG_DATA_HOME/vorlexa)");

    int result = kExitOk;
    addDictCommands(app, options, result);
    addTranslateCommands(app, options, result);
    addTextCommands(app, result);
    addSpellCommands(app, options, result);

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        return reportUsageError(app, e);
    }
    return result;
}
