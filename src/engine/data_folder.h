// The working folder: the dictionaries, the pair lists, the settings and the run's temporary
// files live there. Chosen by --data-dir, else VORLEXA_DATA_DIR, else the per-user data folder.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace vorlexa {

inline constexpr const char* kDataDirVariable = "VORLEXA_DATA_DIR";

// The folder to work in, from the command line, the environment or the XDG default.
std::filesystem::path resolveDataFolder(const std::optional<std::filesystem::path>& fromCommandLine);

// The ready data folder the program ships with: beside the build's binaries, or the installed
// share folder. Empty when none is found.
std::filesystem::path shippedDataFolder();

// True when the folder holds the dictionaries.
bool hasDictionaries(const std::filesystem::path& folder);

// Creates the folder and copies the shipped data into it when it has no dictionaries yet.
// Returns false with a reason when that is needed and impossible.
bool seedDataFolder(const std::filesystem::path& folder, const std::filesystem::path& shipped,
                    std::string& error);

}  // namespace vorlexa
