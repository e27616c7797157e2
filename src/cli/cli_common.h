// Shared pieces of the command-line tool: the data folder, text at the UTF-8 edge, exit codes.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vorlexa::cli {

inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;

struct GlobalOptions {
    std::string dataDir;  // --data-dir; empty: the environment or the XDG default

    std::optional<std::filesystem::path> dataDirOption() const;
};

// The working folder, seeded from the shipped data when it has no dictionaries yet. On failure
// prints the reason to standard error and returns nothing.
std::optional<std::filesystem::path> openDataFolder(const GlobalOptions& options);

// An argument from the command line (UTF-8) as font text; reports bytes that are not UTF-8.
std::optional<std::string> argumentToFont(std::string_view utf8, std::string_view what);

void printError(std::string_view message);

}  // namespace vorlexa::cli
