// Whole English sentences through the scanner, the dispatch and the look-up, over the fixture
// lexicon of the English rules. Each expectation is worked out from the rules: the key a rule
// leaves, the glosses of the fixture, the article "ը" (or "ն" after a vowel) that "the" puts on
// the noun after it, and the delimiters the scanner copies.
#include <gtest/gtest.h>

#include "english_rule_fixture.h"

namespace vorlexa::test {
namespace {

struct Golden {
    const char* english;
    const char* armenian;
};

const Golden kSentences[] = {
    // varem_marem stops on the last letter of "off"; "the" writes nothing and marks the noun.
    {"turn off the light", "անջատել լույսը "},
    // lk: "for " gives "search" + "ed"; "բանալի" ends in a vowel and takes "ն".
    {"he looked for the key", "նա փնտրեց բանալին "},
    {"take part", "մասնակցել "},
    {"take place", "տեղի ունենալ "},
    // ibrev: the skip comes first, then "possible", "ինս " and "early*".
    {"as soon as possible", "հնարավորինս շուտ "},
    {"so called", "այսպես կոչված "},
    {"give up", "հրաժարվել "},
    {"he gave up", "նա հրաժարվեց "},
    // GotProcedure: an object follows, so "obtained"; by Rescan the key is dispatched again.
    {"got the key", "ձեռք բերեց բանալին "},
    // GetGetsGettingProcedure: "get " takes the next word and the pair is one key.
    {"get up", "վեր կենալ "},
    {"they switched off the light", "նրանք անջատեց լույսը "},
    {"all over", "ամենուր "},
    // spid skips two: ScanPos stops on the "p", and the blank after it comes as an empty word.
    {"speed up now", "արագացնել հիմա "},
    // dnel takes " in" out of the text, so "in" is never read as a word.
    {"put the book in the box", "տեղադրել գիրքը տուփը "},
};

TEST(EnglishRulesGolden, Sentences) {
    for (const Golden& g : kSentences) {
        EnRun run;
        EXPECT_EQ(run.translate(g.english), g.armenian) << g.english;
    }
}

TEST(EnglishRulesGolden, GotACabIsObtained) {
    // "got a cab" gives "obtained", not "set" (the object test comes after the cab test); what
    // "a cab" becomes is the article's business.
    EnRun run;
    const std::string result = run.translate("got a cab");
    EXPECT_TRUE(result.starts_with("ձեռք բերեց ")) << result;
}

}  // namespace
}  // namespace vorlexa::test
