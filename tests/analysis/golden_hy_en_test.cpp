// Golden sentences: Armenian in, English out, over the fixture lexicon of golden/hy-en.tsv. Each
// expectation was worked out by hand from the rules; the third column says what it shows.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "engine/engine_fixture.h"

namespace vorlexa::test {
namespace {

struct GoldenCase {
    int line = 0;
    std::string armenian;
    std::string english;
    std::string note;
};

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::vector<GoldenCase> readGoldenTable(const std::filesystem::path& path) {
    std::vector<GoldenCase> cases;
    std::istringstream in(readFile(path));
    std::string line;
    int number = 0;
    while (std::getline(in, line)) {
        ++number;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> fields;
        std::size_t from = 0;
        while (true) {
            const auto tab = line.find('\t', from);
            fields.push_back(line.substr(from, tab == std::string::npos ? std::string::npos : tab - from));
            if (tab == std::string::npos) break;
            from = tab + 1;
        }
        if (fields.size() < 2) {
            ADD_FAILURE() << path << ":" << number << ": expected Armenian<TAB>English";
            continue;
        }
        cases.push_back({number, fields[0], fields[1], fields.size() > 2 ? fields[2] : ""});
    }
    return cases;
}

const std::filesystem::path kGoldenDir = VORLEXA_ANALYSIS_GOLDEN_DIR;
constexpr std::size_t kMinimumGoldenSentences = 50;  // the size the set is held to

// The run appends one blank after a text that does not end in one, and copies it.
std::string withoutAppendedBlank(std::string english) {
    if (!english.empty() && english.back() == ' ') english.pop_back();
    return english;
}

TEST(GoldenArmenianEnglish, EverySentenceOfTheTable) {
    const auto cases = readGoldenTable(kGoldenDir / "golden_hy_en.tsv");
    EXPECT_GE(cases.size(), kMinimumGoldenSentences);
    EngineFixture fx("", readFile(kGoldenDir / "hy-en.tsv"));
    for (const auto& c : cases) {
        // A fresh engine for each sentence: nothing of the one before carries over.
        ScriptedHost host;
        Engine engine(fx.store, fx.data(), host);
        engine.Text3_Change(fromUtf8(c.armenian));
        EXPECT_EQ(withoutAppendedBlank(toUtf8(host.result)), c.english)
            << "golden_hy_en.tsv:" << c.line << ": " << c.armenian << " (" << c.note << ")";
    }
}

}  // namespace
}  // namespace vorlexa::test
