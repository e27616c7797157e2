#include "dictionary_tools/lexicon_compiler.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "text/font_text.h"

using namespace vorlexa;
using namespace vorlexa::literals;

namespace {

std::string allMessages(const CompileReport& report) {
    std::string s;
    for (const auto& d : report.diagnostics) s += d.str() + "\n";
    return s;
}

struct Source {
    test::TempFolder dir;
    void lexicon(const std::string& enhy, const std::string& hyen) {
        dir.write("src/lexicon/en-hy.tsv", enhy);
        dir.write("src/lexicon/hy-en.tsv", hyen);
    }
    CompileReport build() { return buildDataFolder(dir / "src", dir / "out"); }
};

}  // namespace

TEST(LexiconCompiler, BuildsBothDictionariesInFileOrder) {
    Source s;
    s.lexicon("# comment\nhouse\tտուն\tn\nhome\tտուն\tn\nbig\tմեծ\ta\n", "տուն\thouse\tn\n");
    const auto report = s.build();
    ASSERT_TRUE(report.ok()) << allMessages(report);
    EXPECT_EQ(report.englishRecords, 3);
    EXPECT_EQ(report.armenianRecords, 1);
    DictionaryStore store;
    ASSERT_TRUE(store.open(s.dir / "out"));
    EXPECT_EQ(store.findEnglish("house"), skizbeColumn("house"));
    EXPECT_EQ(store.findEnglish("home"), skizbeColumn("home") + kEnglishStride);
    EXPECT_TRUE(store.findArmenian("տուն"_ft));
    // No automatic reverse entries: "մեծ" is not in the Armenian file.
    EXPECT_FALSE(store.findArmenian("մեծ"_ft));
    EXPECT_TRUE(checkDataFolder(s.dir / "out").ok());
}

TEST(LexiconCompiler, UnderscoreStandsForABlankInsideTheTag) {
    Source s;
    s.lexicon("write\tգրել\tv__tn\nbook\tգիրք\tn_02\n", "գրել\twrite\tv\n");
    ASSERT_TRUE(s.build().ok());
    DictionaryStore store;
    store.open(s.dir / "out");
    DictRecord r;
    r.raw = store.english().read(*store.findEnglish("write"));
    EXPECT_EQ(r.tag(), "v  tn");
    r.raw = store.english().read(*store.findEnglish("book"));
    EXPECT_EQ(r.tag(), "n 02 ");
}

TEST(LexiconCompiler, BadLinesStopTheBuildWithFileAndLine) {
    struct Case {
        std::string line;
        std::string reason;
    };
    const Case cases[] = {
        {"House\tտուն\tn", "upper-case"},
        {"house\tտուն", "field"},
        {"house\tտուն\tq", "no part of speech"},
        {"house\tտուն\tn_2", "two digits"},
        {"house\tտուն\tn__t", "only on a verb"},
        {"house\tտուն\tnx", "position 2"},
        {"house\tՏուն\tn", "capital letter"},
        {"house\tтун\tn", "not allowed"},
        {"abcdefghijklmnopqrstu\tտուն\tn", "key longer"},
        {"house\tտուն\tn_09", "outside the gloss"},
        {"house\tտուն\t", "missing tag"},
        {"null\tտուն\tn", "reserved"},
    };
    for (const auto& c : cases) {
        Source s;
        s.lexicon("# first line\n" + c.line + "\n", "");
        const auto report = s.build();
        EXPECT_FALSE(report.ok()) << c.line;
        const std::string msg = allMessages(report);
        EXPECT_NE(msg.find("en-hy.tsv:2: "), std::string::npos) << msg;
        EXPECT_NE(msg.find(c.reason), std::string::npos) << c.line << " -> " << msg;
    }
}

TEST(LexiconCompiler, ArmenianSideAcceptsOnlyArmenianLettersAndAllowedSigns) {
    Source s;
    s.lexicon("", "house\thouse\tn\n");
    EXPECT_FALSE(s.build().ok());
    Source t;
    t.lexicon("", "տուն-ը\thouse\tn\nմեծ տուն\tmansion\tn\n");
    EXPECT_TRUE(t.build().ok()) << allMessages(t.build());
}

TEST(LexiconCompiler, LongGlossIsCutWithAWarning) {
    Source s;
    s.lexicon("protection\tշրջակա միջավայրի պահպանություն\tn\n", "");
    const auto report = s.build();
    EXPECT_TRUE(report.ok());
    ASSERT_EQ(report.diagnostics.size(), 1u);
    EXPECT_TRUE(report.diagnostics[0].warning);
    EXPECT_NE(report.diagnostics[0].str().find("en-hy.tsv:1: warning:"), std::string::npos);
}

TEST(LexiconCompiler, DuplicateKeyNeedsTheSecondSenseList) {
    Source s;
    s.lexicon("bank\tբանկ\tn\nbank\tափ\tn\n", "");
    EXPECT_FALSE(s.build().ok());
    s.dir.write("src/lexicon/second-senses.txt", "en-hy\tbank\n");
    EXPECT_TRUE(s.build().ok());
}

TEST(LexiconCompiler, InvalidUtf8IsReportedNotCrashed) {
    Source s;
    s.lexicon("house\t\xff\xfe\tn\n", "");
    const auto report = s.build();
    EXPECT_FALSE(report.ok());
    EXPECT_NE(allMessages(report).find("not UTF-8"), std::string::npos);
}

TEST(PairLists, RecordsHoldTheTextsInTheirMarksAndEndWithAnEmptyPair) {
    Source s;
    s.lexicon("", "");
    s.dir.write("src/pairs/uxxuma.tsv", "\" մեջ ը\"\t\"ում \"\n");
    s.dir.write("src/pairs/uxxumy.tsv", "\"հըմի\"\t\"հիմա\"\n");
    ASSERT_TRUE(s.build().ok());
    const std::string a = s.dir.read("out/uxxuma");
    ASSERT_EQ(a.size(), 200u);
    EXPECT_EQ(trimBlanks(a.substr(0, 50)), "\" մեջ ը\""_ft);
    EXPECT_EQ(trimBlanks(a.substr(50, 50)), "\"ում \""_ft);
    EXPECT_EQ(trimBlanks(a.substr(100, 50)), "\"\"");
    const std::string y = s.dir.read("out/uxxumy");
    ASSERT_EQ(y.size(), 80u);
    EXPECT_EQ(trimBlanks(y.substr(20, 20)), "\"հիմա\""_ft);
}

TEST(PairLists, TooLongOrUnquotedPairsAreErrors) {
    Source s;
    s.lexicon("", "");
    s.dir.write("src/pairs/uxxumy.tsv", "\"աաաաաաաաաաաաաաաաաաա\"\t\"ա\"\nhello\tworld\n");
    const auto report = s.build();
    const std::string msg = allMessages(report);
    EXPECT_NE(msg.find("uxxumy.tsv:1: a text longer than 18"), std::string::npos) << msg;
    EXPECT_NE(msg.find("uxxumy.tsv:2: expected"), std::string::npos) << msg;
}

TEST(HelpText, ReadTxtIsConvertedToFontText) {
    Source s;
    s.lexicon("", "");
    s.dir.write("src/help/read.txt", "Օգնություն\nHelp\n");
    ASSERT_TRUE(s.build().ok());
    EXPECT_EQ(s.dir.read("out/read.txt"), "Օգնություն\nHelp\n"_ft);
}

TEST(DataFolderCheck, FindsBrokenFiles) {
    test::TempFolder dir;
    dir.write("dictionarye-a", std::string(50, ' '));
    const auto report = checkDataFolder(dir.path());
    const std::string msg = allMessages(report);
    EXPECT_NE(msg.find("not a whole number"), std::string::npos) << msg;
    EXPECT_NE(msg.find("dictionarya-e: missing"), std::string::npos) << msg;
    EXPECT_NE(msg.find("has no end record"), std::string::npos) << msg;
}

TEST(DataFolderCheck, FindsARecordInTheWrongColumn) {
    test::TempFolder dir;
    RecordFile e;
    e.open(dir / "dictionarye-a", kRecordLength);
    createEmptyDictionary(e, kEnglishStride);
    e.write(1, DictRecord::make("house", "տուն"_ft, "n").raw);
    e.write(1 + kEnglishStride, DictRecord::null().raw);
    RecordFile a;
    a.open(dir / "dictionarya-e", kRecordLength);
    createEmptyDictionary(a, kArmenianStride);
    const std::string msg = allMessages(checkDataFolder(dir.path()));
    EXPECT_NE(msg.find("dictionarye-a:1: key \"house\" stands in column 1"), std::string::npos) << msg;
}
