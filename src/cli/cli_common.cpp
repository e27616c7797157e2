#include "cli/cli_common.h"

#include <iostream>

#include "engine/data_folder.h"
#include "text/font_text.h"

namespace vorlexa::cli {

void printError(std::string_view message) { std::cerr << "vorlexa-cli: " << message << '\n'; }

std::optional<std::filesystem::path> GlobalOptions::dataDirOption() const {
    if (dataDir.empty()) return std::nullopt;
    return std::filesystem::path(dataDir);
}

std::optional<std::filesystem::path> openDataFolder(const GlobalOptions& options) {
    const auto folder = resolveDataFolder(options.dataDirOption());
    std::string error;
    if (!hasDictionaries(folder) && !seedDataFolder(folder, shippedDataFolder(), error)) {
        printError(error);
        return std::nullopt;
    }
    return folder;
}

std::optional<std::string> argumentToFont(std::string_view utf8, std::string_view what) {
    Utf8Report report;
    std::string font = fromUtf8(utf8, &report);
    if (report.invalidSequences > 0) {
        printError(std::string(what) + " is not valid UTF-8");
        return std::nullopt;
    }
    return font;
}

}  // namespace vorlexa::cli
