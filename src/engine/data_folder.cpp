#include "engine/data_folder.h"

#include <cstdlib>
#include <system_error>
#include <vector>

#include "engine/dictionary_store.h"

#ifndef VORLEXA_INSTALL_DATA_DIR
#define VORLEXA_INSTALL_DATA_DIR ""
#endif

namespace vorlexa {

namespace fs = std::filesystem;

fs::path resolveDataFolder(const std::optional<fs::path>& fromCommandLine) {
    if (fromCommandLine && !fromCommandLine->empty()) return *fromCommandLine;
    if (const char* env = std::getenv(kDataDirVariable); env && *env) return fs::path(env);
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg && fs::path(xdg).is_absolute())
        return fs::path(xdg) / "vorlexa";
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : ".") / ".local" / "share" / "vorlexa";
}

bool hasDictionaries(const fs::path& folder) {
    std::error_code ec;
    return fs::exists(folder / kEnglishDictName, ec) && fs::exists(folder / kArmenianDictName, ec);
}

fs::path shippedDataFolder() {
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    std::vector<fs::path> candidates;
    if (!ec) {
        const fs::path dir = exe.parent_path();
        // The build tree and an installation share the layout bin/ and share/vorlexa/data/.
        candidates.push_back(dir.parent_path() / "share" / "vorlexa" / "data");
    }
    if (*VORLEXA_INSTALL_DATA_DIR) candidates.push_back(VORLEXA_INSTALL_DATA_DIR);
    for (const auto& c : candidates)
        if (hasDictionaries(c)) return c;
    return {};
}

bool seedDataFolder(const fs::path& folder, const fs::path& shipped, std::string& error) {
    if (hasDictionaries(folder)) return true;
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (ec) {
        error = "cannot create the data folder " + folder.string() + ": " + ec.message();
        return false;
    }
    if (shipped.empty()) {
        error = "no shipped data found to seed " + folder.string();
        return false;
    }
    for (const auto& entry : fs::directory_iterator(shipped, ec)) {
        if (!entry.is_regular_file()) continue;
        const fs::path to = folder / entry.path().filename();
        if (fs::exists(to)) continue;  // the user's own files are never overwritten
        fs::copy_file(entry.path(), to, ec);
        if (ec) {
            error = "cannot copy " + entry.path().string() + ": " + ec.message();
            return false;
        }
    }
    return true;
}

}  // namespace vorlexa
