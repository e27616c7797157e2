// Golden sentences: English in, Armenian out, over the fixture lexicon of golden/en-hy.tsv. Each
// expectation was worked out by hand from the rules of the scanner, the look-up, the inflection
// and the end of a run; the table says which step each sentence shows.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "emission_fixture.h"

namespace vorlexa::test {
namespace {

struct GoldenCase {
    int line = 0;
    std::string english;
    std::string armenian;
    std::string note;
};

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::vector<std::string> splitTabs(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t from = 0;
    while (true) {
        const auto tab = line.find('\t', from);
        fields.push_back(line.substr(from, tab == std::string::npos ? std::string::npos : tab - from));
        if (tab == std::string::npos) return fields;
        from = tab + 1;
    }
}

// Lines "English<TAB>Armenian[<TAB>note]"; "#" starts a comment. "\r\n" in a sentence stands for
// a line break.
std::vector<GoldenCase> readGoldenTable(const std::filesystem::path& path) {
    std::vector<GoldenCase> cases;
    std::istringstream in(readFile(path));
    std::string line;
    int number = 0;
    const auto unescape = [](std::string s) {
        for (std::size_t pos = 0; (pos = s.find("\\r\\n", pos)) != std::string::npos; pos += 2) s.replace(pos, 4, "\r\n");
        return s;
    };
    while (std::getline(in, line)) {
        ++number;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == '#') continue;
        const auto fields = splitTabs(line);
        if (fields.size() < 2) {
            ADD_FAILURE() << path << ":" << number << ": expected English<TAB>Armenian";
            continue;
        }
        cases.push_back({number, unescape(fields[0]), unescape(fields[1]), fields.size() > 2 ? fields[2] : ""});
    }
    return cases;
}

const std::filesystem::path kGoldenDir = kEmissionGoldenDir;
constexpr std::size_t kMinimumGoldenSentences = 150;  // the size the set is held to

// The run appends one blank as the last delimiter of a text that has none, and copies it.
std::string withoutAppendedBlank(const std::string& english, std::string armenian) {
    if ((english.empty() || english.back() != ' ') && !armenian.empty() && armenian.back() == ' ')
        armenian.pop_back();
    return armenian;
}

TEST(GoldenEnglishArmenian, EverySentenceOfTheTable) {
    const auto cases = readGoldenTable(kGoldenDir / "golden_en_hy.tsv");
    EXPECT_GE(cases.size(), kMinimumGoldenSentences);
    EmissionFixture fx;
    int failures = 0;
    for (const auto& c : cases) {
        fx.fresh();
        const std::string got = withoutAppendedBlank(c.english, fx.translate(c.english));
        if (got != c.armenian) {
            ++failures;
            ADD_FAILURE() << "golden_en_hy.tsv:" << c.line << " \"" << c.english << "\"\n  expected: \""
                          << c.armenian << "\"\n       got: \"" << got << "\"" << (c.note.empty() ? "" : "\n  (") << c.note
                          << (c.note.empty() ? "" : ")");
        }
    }
    EXPECT_EQ(failures, 0) << "of " << cases.size() << " sentences";
}

}  // namespace
}  // namespace vorlexa::test
