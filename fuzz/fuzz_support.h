// What the fuzz targets share: a scratch folder removed at exit, the shipped data, a small data
// folder, and the input split into parts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vorlexa {
class DictionaryStore;
}

namespace vorlexa::fuzz {

// A fresh folder under the system's temporary folder, removed when the process ends.
const std::filesystem::path& scratchFolder();

// A copy of the shipped data folder of the build (the runs write their unknown words in it).
const std::filesystem::path& shippedDataCopy();

// The shipped dictionaries, opened once on shippedDataCopy().
DictionaryStore& shippedStore();

// A data folder compiled from a lexicon of a few words: quick to open and to rebuild from.
const std::filesystem::path& smallDataFolder();

// Writes bytes to a file, replacing it.
void writeFile(const std::filesystem::path& file, std::string_view bytes);

// The input cut at each kPartSeparator into at most `parts` parts (the last takes the rest).
inline constexpr char kPartSeparator = '\x1E';  // the ASCII record separator
std::vector<std::string_view> splitInput(std::string_view input, std::size_t parts);

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Stops the process with a message, so that the fuzzer keeps the input that led here.
[[noreturn]] void finding(std::string_view what);

}  // namespace vorlexa::fuzz
