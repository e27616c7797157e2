// Whole runs of prepositional phrases over a small lexicon. Each expectation is worked out by
// hand from the rules: the preposition writes nothing and leaves its ending pending, the article
// leaves "ը" pending (dropped again when an ending is pending), and the noun carries what is left.
// Every result ends in the blank the run adds after the text.
#include <gtest/gtest.h>

#include <string>

#include "rules/contract_fixture.h"

namespace vorlexa::contract_test {
namespace {

const std::string kGoldenLexicon =
    "house\tտուն\tn\n"
    "city\tքաղաք\tn\n"
    "friend\tընկեր\tn\n"
    "war\tպատերազմ\tn\n"
    "moment\tպահ\tn\n"
    "addition\tհավելում\tn\n"
    "end\tվերջ\tn\n"
    "day\tօր\tn\n"
    "days\tօրեր\tn\n"
    "hour\tժամ\tn\n"
    "my\tիմ\tp\n"
    "this\tայս\ta\n"
    "amen\tամեն\ta\n"
    "now\tհիմա\tx\n"
    "as\tորպես\tx\n"
    "finally\tվերջապես\tx\n"
    "free of charge\tանվճար\tx\n"
    "certainly\tիհարկե\tx\n"
    "your\tձեր\tx\n"
    "me\tինձ\tx\n"
    "one-\tմի\tx\n";

struct Golden {
    const char* name;
    const char* english;
    const char* armenian;
};

void PrintTo(const Golden& g, std::ostream* os) { *os << g.english; }

class GoldenPrepositions : public ::testing::TestWithParam<Golden> {};

TEST_P(GoldenPrepositions, Translates) {
    RuleFixture f(kGoldenLexicon);
    EXPECT_EQ(f.translate(GetParam().english), GetParam().armenian);
}

const Golden kGolden[] = {
    {"InTheHouse", "in the house", "տունի մեջ "},
    {"InTheHouseSentence", "In the house.", "Տունի մեջ: "},
    {"FromTheCity", "from the city", "քաղաքից "},
    {"WithMyFriend", "with my friend", "իմ ընկերի հետ "},
    {"ForDays", "for days", "օրերով "},
    {"AtTheMoment", "at the moment", "այս պահին "},
    {"ByNow", "by now", " հիմա "},
    {"InAddition", "in addition", "որպես հավելումը "},
    {"ToYou", "to you", "քեզ "},
    {"ToTheHouse", "to the house", "տունին "},
    {"OutOfTheHouse", "out of the house", " տունից դուրս "},
    {"AfterTheWar", "after the war", "պատերազմից հետո "},
    {"AfterAll", "after all", "ամենավերջում "},
    {"AtLast", "at last", "վերջապես "},
    {"ForADay", "for a day", "մի օրով "},
    {"ForAnHour", "for an hour", "մի ժամով "},
    {"ForFree", "for free", "անվճար "},
    {"WithYou", "with you", "ձեր հետ "},
    {"FromYou", "from you", "ձեզանից "},
    {"FromMe", "from me", "ինձանից "},
    {"OfCourse", "of course", "իհարկե "},
    {"TheHouse", "the house", "տունը "},
    {"AHouse", "a house", "մի տուն "},
};

INSTANTIATE_TEST_SUITE_P(Phrases, GoldenPrepositions, ::testing::ValuesIn(kGolden),
                         [](const ::testing::TestParamInfo<Golden>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace vorlexa::contract_test
