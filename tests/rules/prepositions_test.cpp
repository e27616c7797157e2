// The preposition and article procedures, each row of their tables, run on the word as the
// scanner hands it over; and qezanic and qo_mej, which the scanner calls before the dispatch.
#include <gtest/gtest.h>

#include <string>

#include "rules/contract_fixture.h"
#include "rules/prepositions.h"

namespace vorlexa::contract_test {
namespace {

using namespace literals;

using Procedure = void (*)(Engine&);

struct Row {
    std::string text;       // the trigger first
    std::string word;       // CurrentWord after
    std::int64_t moved;     // ScanPos moved by
    std::string ending;     // PendingEnding after
    std::string output;     // OutputText after (it starts empty)
};

void expectRows(Procedure procedure, const std::string& trigger, std::initializer_list<Row> rows) {
    for (const Row& r : rows) {
        RuleFixture f(kRuleLexicon + "this\tայս\tx\n");
        Engine& e = f.at(r.text, trigger);
        const std::int64_t start = e.ScanPos;
        procedure(e);
        EXPECT_EQ(f.word(), r.word) << r.text;
        EXPECT_EQ(e.ScanPos - start, r.moved) << r.text;
        EXPECT_EQ(f.ending(), r.ending) << r.text;
        EXPECT_EQ(f.output(), r.output) << r.text;
    }
}

TEST(AtProcedure, EachRow) {
    expectRows(AtProcedure, "at",
               {
                   {"at all", "entirely", 4, "", ""},
                   {"at last", "finally", 5, "", ""},
                   {"at once", "immediately", 5, "", ""},
                   {"at least two", "", 6, "", "նվազագույնը"},
                   {"at present", "presently", 8, "", ""},
                   {"at the moment", "this", 4, "ին", ""},
                   {"at home", "", 1, "ին", ""},
               });
}

TEST(FromProcedure, EachRow) {
    expectRows(FromProcedure, "from",
               {
                   {"from now on we", "", 7, "", "այսուհետ "},
                   {"from now it", "", 4, "", "արդեն "},
                   {"from the city", "", 1, "ից", ""},
               });
}

TEST(FromProcedure, NowOnDropsAPendingEnding) {
    RuleFixture f;
    Engine& e = f.at("from now on we", "from");
    e.PendingEnding = ft("ի");
    FromProcedure(e);
    EXPECT_EQ(f.ending(), "");
}

TEST(ByProcedure, EachRow) {
    expectRows(ByProcedure, "by",
               {
                   {"by now", "", 0, "", ""},
                   {"by the way", "parenthetically", 8, "", ""},
                   {"by no means", "", 1, "ով", ""},  // no copula: the plain row
                   {"by means of", "efforts", 6, "ով", ""},
                   {"by car", "", 1, "ով", ""},
               });
}

TEST(ByProcedure, NoMeansWithACopula) {
    RuleFixture f(kRuleLexicon + "case\tդեպք\tx\n");
    Engine& e = f.at("by no means", "by", 0, "Դա ");
    e.PendingCopula = ft("է");
    ByProcedure(e);
    // The copula, negated, is joined to the word the rule writes.
    EXPECT_TRUE(e.PendingCopula.empty());
    EXPECT_EQ(f.output(), "Դա ոչ մի չէ ");
    EXPECT_EQ(f.word(), "case");
    EXPECT_EQ(f.ending(), "ում");
    EXPECT_EQ(e.ScanPos, 12);
}

TEST(ByProcedure, TheLastRowBreaksTheNounChain) {
    RuleFixture f;
    Engine& e = f.at("by car", "by");
    e.ClassChain = "n";
    ByProcedure(e);
    EXPECT_EQ(e.ClassChain, " ");
}

TEST(WithProcedure, EachRow) {
    expectRows(WithProcedure, "with",
               {
                   {"with regards to it", "regarding", 11, "", ""},
                   {"with no money", "without", 3, "", ""},
                   {"with my friend", "", 1, "ի հետ", ""},
               });
    RuleFixture f;
    Engine& e = f.at("with regards to it", "with");
    e.ClassChain = "n";
    WithProcedure(e);
    EXPECT_EQ(e.ClassChain, " ");
}

TEST(OnProcedure, EachRow) {
    expectRows(OnProcedure, "on",
               {
                   {"on run", "elopement", 4, "ի մեջ", ""},
                   {"on behalf of", "instead", 7, "", ""},
                   {"on Behalf of", "instead", 7, "", ""},
                   {"on spot", "place", 5, "ում", ""},
                   {"on the spot", "place", 9, "ում", ""},
                   {"on time", "time", 5, "ում", ""},
                   {"on the table", "", 1, "ի վրա", ""},
               });
}

TEST(OnProcedure, GoingIsComparedFromTheDelimiter) {
    RuleFixture f;
    Engine& blank = f.at("on going", "on");
    OnProcedure(blank);
    EXPECT_EQ(f.word(), "");  // after a blank it never matches
    EXPECT_EQ(f.ending(), "ի վրա");
    RuleFixture g;
    Engine& e = g.at("ongoing now", "on", 3);
    OnProcedure(e);
    EXPECT_EQ(g.word(), "instead");
    EXPECT_EQ(e.ScanPos, 9);
}

TEST(InProcedure, EachRow) {
    expectRows(InProcedure, "in",
               {
                   {"in charge of", "responsible", 7, "", ""},
                   {"in Charge of", "responsible", 7, "", ""},
                   {"in front of", "afront", 6, "", ""},
                   {"in favor of", "avail", 6, "", "հ"},
                   {"in the morning", "morning", 12, "յան", ""},
                   {"in the evenings", "evening", 13, "ներ", ""},
                   {"in advance", "previously", 8, "", ""},
                   {"in detail", "minutely", 7, "", ""},
                   {"in effect", "result", 7, "ում", ""},
                   {"in time", "time", 5, "ին", ""},
                   {"in case of", "if", 5, "", ""},
                   {"in order to", "in order to", 6, "", ""},
                   {"in order for", "in order to", 6, "", ""},
                   {"in fact", "actually", 5, "", ""},
                   {"in vain", "", 5, "", "իզուր"},
                   {"in general", "in general", 8, "", ""},
                   {"in kind words", "charity", 5, "", ""},
                   {"in addition", "as", 0, "", ""},
                   {"in the house", "", 1, "ի մեջ", ""},
               });
}

TEST(InProcedure, LoveWritesTheCopulaAtOnce) {
    RuleFixture f;
    Engine& e = f.at("in love", "in", 0, "Նա ");
    e.PendingCopula = ft("է");
    InProcedure(e);
    EXPECT_EQ(f.output(), "Նա սիրահարված է");
    EXPECT_TRUE(e.PendingCopula.empty());
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(e.ScanPos, 8);
}

TEST(InProcedure, TheNounChainBreaksOnlyAfterTheFirstRows) {
    RuleFixture f;
    Engine& e = f.at("in front of", "in");
    e.ClassChain = "n";
    InProcedure(e);
    EXPECT_EQ(e.ClassChain, "n");
    Engine& later = f.at("in fact", "in");
    later.ClassChain = "n";
    InProcedure(later);
    EXPECT_EQ(later.ClassChain, " ");
}

TEST(InProcedure, AdverbFlagIsClearedAndOverwritten) {
    RuleFixture f;
    Engine& e = f.at("in the house", "in");
    e.AdverbFlag = 1;
    e.ClassChain = "n";
    InProcedure(e);
    EXPECT_TRUE(e.AdverbFlag.empty());
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(f.ending(), "ի մեջ");
}

TEST(InProcedure, InLaw) {
    RuleFixture f;
    Engine& e = f.at("in-law is", "in", 3, "մայր");
    InProcedure(e);
    EXPECT_EQ(f.output(), "մայրխնամի");
    EXPECT_EQ(e.ScanPos, 8);  // "-law" skipped, then the last row from the blank
    EXPECT_EQ(f.ending(), "ի մեջ");
}

TEST(ForProcedure, EachRow) {
    expectRows(ForProcedure, "for",
               {
                   {"for a while the", "", 9, "ով", "որոշ ժամանակ"},
                   {"for free now", "free of charge", 5, "", ""},
                   {"for instance", "example", 9, "", ""},
                   {"for Instance", "example", 9, "", ""},
                   {"for ages", "", 5, "", "դարերով"},
                   {"for days", "by", 0, "", ""},
                   {"for centuries", "by", 0, "", ""},
                   {"for nights", "by", 0, "", ""},
                   {"for a day", "by", 2, "", "մի "},
                   {"for an hour", "by", 3, "", "մի "},
                   {"for a forthnight", "by", 2, "", "մի "},
                   {"for you", "", 1, "ի համար", ""},
               });
}

TEST(OutOfProcedure, EachRow) {
    expectRows(OutOfProcedure, "out",
               {
                   {"out of order", "spoiled", 8, "", ""},
                   {"out of the house", "", 3, "ից դուրս", ""},
                   {"out there", "out", 0, "", ""},
               });
}

TEST(Yetqe, EachRow) {
    expectRows(yetqe, "after",
               {
                   {"after.", "later", 0, "", ""},
                   {"after;", "later", 0, "", ""},
                   {"after all", "", 4, "ում", "ամենավերջ"},
                   {"after a while", "", 8, "", "մի քանի անց"},
                   {"after the war", "", 1, "ից հետո", ""},
               });
}

TEST(After, BothPhrases) {
    RuleFixture f;
    Engine& e = f.at("after all", "after");
    after(e);
    EXPECT_EQ(f.output(), "ամենավերջ");
    EXPECT_EQ(f.ending(), "ում");
    Engine& other = f.at("after it", "after");
    other.PendingEnding.clear();
    after(other);
    EXPECT_EQ(other.ScanPos, 6);
    EXPECT_EQ(f.output(), "");
}

TEST(Zqez, EachRow) {
    expectRows(zqez, "to",
               {
                   {"to you.", "", 4, "", "քեզ"},
                   {"to your house", "", 1, "", ""},
                   {"to it is", "", 4, "", "դրան"},
                   {"to be or", "", 3, "", ""},
                   {"to be late", "", 1, "", ""},
                   {"to him now", "", 4, "", "նրան"},
                   {"to her now", "", 4, "", "նրան"},
                   {"to sign.", "", 5, "", "կնքել"},
                   {"to that.", "", 5, "", "դրան"},
                   {"to the house", "to", 4, "ին", ""},
                   {"to date.", "", 5, "", "մինչ օրս"},
                   {"to death.", "mortally", 6, "", ""},
                   {"to focus.", "concentrate", 6, "", ""},
                   {"to orient.", "streamline", 7, "", ""},
                   {"to go", "", 1, "", ""},
               });
}

TEST(Zqez, PronounsAfterTheArticleEnding) {
    const std::pair<std::string, std::string> pronouns[] = {{"to us now", "մեզ"}, {"to me now", "ինձ"}};
    for (const auto& [text, written] : pronouns) {
        RuleFixture f;
        Engine& e = f.at(text, "to");
        e.PendingEnding = ft("ը");
        zqez(e);
        EXPECT_EQ(f.output(), written) << text;
        EXPECT_EQ(e.ScanPos, 6) << text;
        EXPECT_TRUE(e.ToMark.empty()) << text;
        EXPECT_EQ(f.ending(), "");
    }
    RuleFixture f;
    Engine& e = f.at("to them now", "to");
    e.PendingEnding = ft("ը");
    zqez(e);
    EXPECT_EQ(f.output(), "դրանց");
    EXPECT_EQ(e.ScanPos, 3 + 5 + 1);
    EXPECT_EQ(e.ToMark, "to");
    RuleFixture g;
    Engine& plain = g.at("to us now", "to");
    zqez(plain);  // no ending "ը": "us" is read as usual
    EXPECT_EQ(g.output(), "");
    EXPECT_EQ(plain.ScanPos, 4);
}

TEST(Zqez, TheInfinitiveMark) {
    RuleFixture f;
    Engine& e = f.at("to go", "to");
    zqez(e);
    EXPECT_EQ(e.ToMark, "to");
    Engine& focus = f.at("to focus.", "to");
    focus.ToMark.clear();
    zqez(focus);
    EXPECT_EQ(focus.ToMark, "to");
    Engine& it = f.at("to it is", "to");
    it.PendingEnding = ft("ի");
    zqez(it);
    EXPECT_EQ(f.ending(), "");
    EXPECT_EQ(it.ToMark, "to");  // cleared by "it ", set again by the last step
}

TEST(AAnProcedure, OneIsTheIndefinite) {
    RuleFixture f;
    Engine& e = f.at("a house", "a");
    e.ArticleEnding = ft("ը");
    e.ThirdPersonFlag = 1;
    AAnProcedure(e);
    EXPECT_EQ(f.word(), "one-");
    EXPECT_EQ(e.ScanPos, 2);
    EXPECT_EQ(e.IndefiniteFlag, 1);
    EXPECT_TRUE(e.ArticleEnding.empty());
    EXPECT_TRUE(e.ThirdPersonFlag.empty());
    EXPECT_EQ(e.ReorderCounter, 1);
    EXPECT_EQ(e.PersonCode, 5);
}

TEST(AAnProcedure, AfterACopulaNothing) {
    RuleFixture f;
    Engine& e = f.at("a house", "a");
    e.PendingCopula = ft("է");
    AAnProcedure(e);
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(e.ScanPos, 3);
}

TEST(AAnProcedure, BitNumberLot) {
    RuleFixture f;
    for (const char* text : {"a bit more", "a bit.", "a bit,", "a bit:"}) {
        Engine& e = f.at(text, "a");
        AAnProcedure(e);
        EXPECT_EQ(f.word(), "few") << text;
        EXPECT_EQ(e.ScanPos, 6) << text;
    }
    Engine& n = f.at("a number of people", "a");
    n.IndefiniteFlag.clear();
    AAnProcedure(n);
    EXPECT_EQ(f.word(), "several");
    EXPECT_EQ(n.IndefiniteFlag, 1);
    EXPECT_EQ(n.ScanPos, 12);
    Engine& lot = f.at("a lot of", "a");
    lot.HaveForm = 1;
    lot.PersonCode = 1;
    AAnProcedure(lot);
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(lot.ScanPos, 2);
    EXPECT_EQ(lot.PersonCode, 1);  // a have-form keeps the person
}

TEST(AAnProcedure, PluralEndingAndNounTag) {
    RuleFixture f;
    Engine& e = f.at("an apple", "an");
    e.PendingEnding = ft("ներ");
    e.WordTag = "vn   ";
    AAnProcedure(e);
    EXPECT_EQ(f.ending(), "");
    EXPECT_EQ(e.WordTag, "n    ");
    Engine& verb = f.at("an apple", "an");
    verb.WordTag = "v    ";
    verb.PendingEnding = ft("ի");
    AAnProcedure(verb);
    EXPECT_EQ(verb.WordTag, "v    ");
    EXPECT_EQ(f.ending(), "ի");
}

TEST(DefArtProcedure, TheArticleEndingForTheNextNoun) {
    RuleFixture f;
    Engine& e = f.at("the house", "the");
    e.SentenceClasses = "n";
    e.WordTag = "n    ";
    DefArtProcedure(e);
    EXPECT_EQ(toUtf8(e.ArticleEnding), "ը");
    EXPECT_EQ(e.ClassChain, " ");
    EXPECT_EQ(e.SentenceClasses, "nv");
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(e.ScanPos, 5);
    EXPECT_EQ(e.WordTag, "n    ");
}

TEST(QwestionWorsProcedure, ManyAndMuch) {
    RuleFixture f;
    Engine& e = f.at("how many books", "how", 0, "x ");
    QwestionWorsProcedure(e);
    EXPECT_EQ(f.word(), "how much");
    EXPECT_EQ(e.ScanPos, 8);
    EXPECT_EQ(f.output(), "x ");
}

TEST(QwestionWorsProcedure, AtASentenceStartTheSignIsWritten) {
    RuleFixture f;
    Engine& e = f.at("what is", "what");
    QwestionWorsProcedure(e);
    EXPECT_EQ(f.output(), "ինչ՞");
    EXPECT_EQ(e.QuestionMarkPosition, 4);
    EXPECT_EQ(f.word(), "");
    Engine& after = f.at("who is", "who", 0, "Այո: ");
    QwestionWorsProcedure(after);
    EXPECT_EQ(f.output(), "Այո: ով՞");
    EXPECT_EQ(after.QuestionMarkPosition, 8);
}

TEST(QwestionWorsProcedure, ForFromAbout) {
    RuleFixture f;
    Engine& e = f.at("what for ", "what");
    QwestionWorsProcedure(e);
    EXPECT_EQ(f.output(), "ինչի՞ համար");
    EXPECT_EQ(e.ScanPos, 9);
    Engine& whom = f.at("whom for ", "whom");
    QwestionWorsProcedure(whom);
    EXPECT_EQ(f.output(), "ու՞մ համար");
    Engine& why = f.at("why for ", "why");
    QwestionWorsProcedure(why);
    EXPECT_EQ(f.output(), "ինչի՞ համար");  // "ու՞" loses two, then one more
    Engine& from = f.at("what from ", "what");
    from.PendingEnding = ft("ի");
    QwestionWorsProcedure(from);
    EXPECT_EQ(f.output(), "ինչի՞ց");
    EXPECT_EQ(from.ScanPos, 10);
    EXPECT_EQ(f.ending(), "");
    EXPECT_EQ(from.ClassChain, " ");
    Engine& about = f.at("what about ", "what");
    QwestionWorsProcedure(about);
    EXPECT_EQ(f.output(), "ինչի՞ մասին");
    EXPECT_EQ(about.ScanPos, 11);
    Engine& whomAbout = f.at("whom about ", "whom");
    QwestionWorsProcedure(whomAbout);
    EXPECT_EQ(f.output(), "ու՞մ մասին");
}

TEST(Oof, NotAfterANounOnlyClearsTheClasses) {
    RuleFixture f;
    Engine& e = f.at("of x", "of", 0, "Ես տեսա");
    e.SentenceClasses = "pv";
    oof(e);
    EXPECT_EQ(f.output(), "Ես տեսա");
    EXPECT_TRUE(e.SentenceClasses.empty());
    EXPECT_TRUE(e.HeldConjunction.empty());
}

TEST(Oof, TheNounGroupIsHeldWithItsAdjectives) {
    RuleFixture f;
    Engine& e = f.at("of x", "of", 0, "Ես տեսա մեծ տունը");
    e.SentenceClasses = "pvan";
    oof(e);
    EXPECT_EQ(toUtf8(e.HeldConjunction), " մեծ տունը");
    EXPECT_EQ(f.output(), "Ես տեսա");
    EXPECT_EQ(e.CapitalFlag, 1);
    EXPECT_TRUE(e.SentenceClasses.empty());
}

TEST(Oof, AColonEndsTheWalkWithABlank) {
    RuleFixture f;
    Engine& e = f.at("of x", "of", 0, "Այո:տունը");
    e.SentenceClasses = "n";
    oof(e);
    EXPECT_EQ(toUtf8(e.HeldConjunction), " տունը");
    // The blank goes at the end, and the cut by the held length takes it and the colon.
    EXPECT_EQ(f.output(), "Այո");
}

TEST(Qezanic, PronounsAfterFromAndBy) {
    const std::pair<std::string, std::string> cases[] = {
        {"you", "ձեզանից"}, {"it", "ձեզանից"}, {"me", "ինձանից"}, {"us", "մեզանից"},
        {"them", "նրանցից"}, {"him", "նրանից"}};
    for (const auto& [word, written] : cases) {
        RuleFixture f;
        Engine& e = f.at(word + " ", word);
        e.PendingEnding = ft("ից");
        e.qezanic();
        EXPECT_EQ(f.output(), written) << word;
        EXPECT_EQ(f.ending(), "") << word;
        EXPECT_EQ(f.word(), "") << word;
    }
    RuleFixture f;
    Engine& other = f.at("house ", "house");
    other.PendingEnding = ft("ով");
    other.qezanic();
    EXPECT_EQ(f.word(), "house");
    EXPECT_EQ(f.ending(), "ով");
}

TEST(QoMej, PossessivesBeforeAPostposition) {
    const std::pair<std::string, std::string> cases[] = {
        {"you", "ձեր հետ"}, {"me", "իմ հետ"}, {"us", "մեր հետ"}, {"him", "նրա հետ"},
        {"them", "նրանց հետ"}, {"it", "դրա հետ"}};
    for (const auto& [word, written] : cases) {
        RuleFixture f;
        Engine& e = f.at(word + " ", word);
        e.PendingEnding = ft("ի հետ");
        e.ArticleEnding = ft("ը");
        e.qo_mej();
        EXPECT_EQ(f.output(), written) << word;
        EXPECT_EQ(f.ending(), "") << word;
        EXPECT_TRUE(e.ArticleEnding.empty()) << word;
    }
}

TEST(QoMej, TheGenitiveEndingStaysPending) {
    RuleFixture f;
    Engine& e = f.at("you ", "you");
    e.PendingEnding = ft("ի");
    e.qo_mej();
    EXPECT_EQ(f.output(), "ձեր");
    EXPECT_EQ(f.ending(), "ի");
    Engine& noun = f.at("house ", "house");
    noun.qo_mej();
    EXPECT_EQ(f.word(), "house");
    EXPECT_EQ(f.output(), "");
}

}  // namespace
}  // namespace vorlexa::contract_test
