#include "analysis/selcase.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "engine/engine.h"

namespace vorlexa {

namespace analysis_data {
extern const std::string_view kStemClassesText;
}

using namespace literals;

namespace {

StemClass classNamed(std::string_view name) {
    if (name == "final-i") return StemClass::FinalI;
    if (name == "inner-i-1") return StemClass::InnerI1;
    if (name == "inner-u-2") return StemClass::InnerU2;
    if (name == "inner-u-1") return StemClass::InnerU1;
    if (name == "inner-i-2") return StemClass::InnerI2;
    if (name == "inner-u-3") return StemClass::InnerU3;
    // The list is compiled into the program: a bad class name is a build mistake, caught by the
    // first test that reads the list.
    throw std::logic_error("stem_classes.tsv: unknown class " + std::string(name));
}

std::vector<StemRow> parseRows(std::string_view text) {
    std::vector<StemRow> rows;
    while (!text.empty()) {
        const auto end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty() || line.front() == '#') continue;
        const auto tab = line.find('\t');
        if (tab == std::string_view::npos) throw std::logic_error("stem_classes.tsv: a row without a tab");
        rows.push_back({fromUtf8(line.substr(0, tab)), classNamed(line.substr(tab + 1))});
    }
    return rows;
}

struct StemIndex {
    std::vector<StemRow> rows;
    std::unordered_map<std::string_view, StemClass> first;
    std::size_t longest = 0;  // a longer word is no stem of the list, and is not hashed whole

    StemIndex() : rows(parseRows(analysis_data::kStemClassesText)) {
        for (const auto& row : rows) {
            first.try_emplace(row.stem, row.stemClass);
            longest = std::max(longest, row.stem.size());
        }
    }
};

const StemIndex& stemIndex() {
    static const StemIndex index;
    return index;
}

// Inserts `vowel` before the last `fromEnd` letters of the stem.
FontText insertBefore(std::string_view stem, std::size_t fromEnd, std::string_view vowel) {
    const std::size_t at = stem.size() > fromEnd ? stem.size() - fromEnd : 0;
    FontText out(stem.substr(0, at));
    out += vowel;
    out += stem.substr(at);
    return out;
}

}  // namespace

const std::vector<StemRow>& stemClassRows() { return stemIndex().rows; }

std::optional<StemClass> stemClassOf(std::string_view stem) {
    if (stem.size() > stemIndex().longest) return std::nullopt;
    const auto& first = stemIndex().first;
    const auto it = first.find(stem);
    if (it == first.end()) return std::nullopt;
    return it->second;
}

FontText rebuildStem(std::string_view stem, StemClass stemClass) {
    switch (stemClass) {
    case StemClass::FinalI: return insertBefore(stem, 0, "ի"_ft);
    case StemClass::InnerI1: return insertBefore(stem, 1, "ի"_ft);
    case StemClass::InnerU2: return insertBefore(stem, 2, "ու"_ft);
    case StemClass::InnerU1: return insertBefore(stem, 1, "ու"_ft);
    case StemClass::InnerI2: return insertBefore(stem, 2, "ի"_ft);
    case StemClass::InnerU3: return insertBefore(stem, 3, "ու"_ft);
    }
    return FontText(stem);
}

void selcase(Engine& e) {
    if (e.CurrentWord.empty()) return;
    if (const auto stemClass = stemClassOf(e.CurrentWord)) e.CurrentWord = rebuildStem(e.CurrentWord, *stemClass);
}

}  // namespace vorlexa
