// The command line over inputs at the edge: each run ends in time linear in its input and memory
// a small multiple of it, with a result or a clear error. The bounds are in the names; speed
// itself is measured by the benchmarks.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "support/run_cli.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

using vorlexa::test::runCli;
using vorlexa::test::shellQuote;

namespace {

constexpr std::size_t kMegabyte = 1'000'000;

class CliBounds : public ::testing::Test {
protected:
    // One copy of the shipped data for the suite: the runs write their unknown words beside it.
    static void SetUpTestSuite() {
        dir = new vorlexa::test::TempFolder;
        std::filesystem::copy(VORLEXA_BUILT_DATA_DIR, dir->path() / "data", std::filesystem::copy_options::recursive);
    }
    static void TearDownTestSuite() {
        delete dir;
        dir = nullptr;
    }
    static vorlexa::test::CliResult translate(const std::string& input, const std::filesystem::path& data = dir->path() / "data") {
        return runCli("--data-dir " + shellQuote(data.string()) + " translate", input, dir->path());
    }
    static inline vorlexa::test::TempFolder* dir = nullptr;
};

TEST_F(CliBounds, AnEmptyInputGivesAnEmptyResultAtOnce) {
    const auto r = translate("");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "");
}

TEST_F(CliBounds, FiveMegabytesOfOneWordRepeatedEndInLinearTime) {
    std::string text;
    while (text.size() < 5 * kMegabyte) text += "house ";
    const auto r = translate(text);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    std::size_t houses = 0;
    for (auto at = r.out.find("տուն"); at != std::string::npos; at = r.out.find("տուն", at + 1)) ++houses;
    EXPECT_EQ(houses, text.size() / 6);
}

TEST_F(CliBounds, AFiveMegabyteLineWithoutABlankEndsInLinearTimeAndComesBackWhole) {
    const std::string line(5 * kMegabyte, 'q');
    const auto r = translate(line);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, line);
}

TEST_F(CliBounds, OneMegabyteOfRandomBytesEndsInLinearTimeWithAResultOrAClearError) {
    std::mt19937 random(20);  // fixed seed: the same bytes on every run
    std::string bytes(kMegabyte, '\0');
    for (char& b : bytes) b = static_cast<char>(random() & 0xFF);
    const auto r = translate(bytes);
    ASSERT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("not UTF-8 text (bad byte at offset"), std::string::npos) << r.err;
}

TEST_F(CliBounds, NulBytesAmongWordsEndInLinearTimeAndAreKept) {
    const std::string text = std::string(1000, '\0') + " big " + std::string(1000, '\0');
    const auto r = translate(text);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out.substr(0, 1000), std::string(1000, '\0'));
    EXPECT_NE(r.out.find("մեծ"), std::string::npos);
}

TEST_F(CliBounds, EveryUnicodeCharacterOutsideTheFontEndsInLinearTimeAndComesBackWhole) {
    std::string text;
    for (char32_t u = 0x80; u <= 0x10FFFF; ++u) {
        if (u >= 0xD800 && u <= 0xDFFF) continue;
        if (vorlexa::font::codeOf(u) >= 0) continue;
        vorlexa::appendUtf8(text, u);
    }
    const auto r = translate(text);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_TRUE(r.out == text) << "the result differs from the input, " << r.out.size() << " bytes for " << text.size();
}

TEST_F(CliBounds, ADictionaryCutInTheMiddleOfARecordEndsInLinearTimeWithAResultOrAClearError) {
    for (const char* name : {"dictionarye-a", "dictionarya-e"}) {
        SCOPED_TRACE(name);
        vorlexa::test::TempFolder own;
        std::filesystem::copy(VORLEXA_BUILT_DATA_DIR, own.path(), std::filesystem::copy_options::recursive);
        const auto file = own.path() / name;
        const auto size = std::filesystem::file_size(file);
        std::filesystem::resize_file(file, size / 2 + 7);  // records are 45 bytes: not a record end
        const auto r = translate("The house is big. Տունը մեծ է:", own.path());
        if (r.exitCode == 0) {
            EXPECT_FALSE(r.out.empty());
        } else {
            EXPECT_EQ(r.exitCode, 1);
            EXPECT_NE(r.err.find("vorlexa-cli: "), std::string::npos) << r.err;
        }
    }
}

}  // namespace
