#include "fuzz/fuzz_support.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/dictionary_store.h"

namespace vorlexa::fuzz {

namespace fs = std::filesystem;

namespace {

void removeScratch() {
    std::error_code ignored;
    fs::remove_all(scratchFolder(), ignored);
}

}  // namespace

const fs::path& scratchFolder() {
    static const fs::path folder = [] {
        std::random_device rd;
        fs::path p = fs::temp_directory_path() / ("vorlexa-fuzz-" + std::to_string(rd()) + std::to_string(rd()));
        fs::create_directories(p);
        std::atexit(removeScratch);
        return p;
    }();
    return folder;
}

const fs::path& shippedDataCopy() {
    static const fs::path folder = [] {
        const fs::path p = scratchFolder() / "shipped";
        fs::copy(VORLEXA_FUZZ_DATA_DIR, p, fs::copy_options::recursive);
        return p;
    }();
    return folder;
}

DictionaryStore& shippedStore() {
    static DictionaryStore store;
    static const bool opened = store.open(shippedDataCopy());
    if (!opened) finding("the shipped dictionaries do not open");
    return store;
}

const fs::path& smallDataFolder() {
    static const fs::path folder = [] {
        const fs::path source = scratchFolder() / "small-source";
        writeFile(source / "lexicon" / "en-hy.tsv", "house\tտուն\tn\nbig\tմեծ\ta\nis\tէ\to\nhave\tունենալ\tv\n");
        writeFile(source / "lexicon" / "hy-en.tsv", "տուն\thouse\tn\nմեծ\tbig\ta\n");
        const fs::path p = scratchFolder() / "small";
        if (!buildDataFolder(source, p).ok()) finding("the small lexicon does not compile");
        return p;
    }();
    return folder;
}

void writeFile(const fs::path& file, std::string_view bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::vector<std::string_view> splitInput(std::string_view input, std::size_t parts) {
    std::vector<std::string_view> out;
    while (out.size() + 1 < parts) {
        const auto at = input.find(kPartSeparator);
        if (at == std::string_view::npos) break;
        out.push_back(input.substr(0, at));
        input.remove_prefix(at + 1);
    }
    out.push_back(input);
    out.resize(parts);
    return out;
}

void finding(std::string_view what) {
    std::fprintf(stderr, "fuzz finding: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

}  // namespace vorlexa::fuzz
