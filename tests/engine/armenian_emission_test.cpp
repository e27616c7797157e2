// The Armenian-to-English look-up: the English forms put on a gloss and where it goes in the
// output.
#include <gtest/gtest.h>

#include <functional>

#include "analysis/hy_en_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

using Prepare = std::function<void(Engine&)>;

struct Result {
    std::string output;
    FontText pendingEnding;
};

Result lookUp(const std::string& word, const std::string& before = "", const Prepare& prepare = {}) {
    HyEnFixture f;
    f.at(word, "", before);
    if (prepare) prepare(f.e());
    f.e().teqst_dblclick();
    return {f.output(), f.e().PendingEnding};
}

Prepare ending(std::string_view e) {
    return [e = FontText(e)](Engine& en) { en.PendingEnding = e; };
}
Prepare mark(std::string_view m) {
    return [m = FontText(m)](Engine& en) { en.VerbFormMark = m; };
}

TEST(ArmenianEmission, FoundWordWritesItsGlossAndItsClass) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("տուն"), "house");
    EXPECT_TRUE(f.e().TargetClasses.ends_with('n'));
    EXPECT_EQ(f.e().WordTag, "n    ");
    EXPECT_TRUE(f.e().CurrentWord.empty());
    EXPECT_EQ(lookUp("տուն", "", [](Engine& e) { e.CapitalFlag = 1; }).output, "House");
}

TEST(ArmenianEmission, AVerbalKeyIsReadThroughItsInfinitive) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("խաղում"), "playing");
    EXPECT_EQ(f.e().TargetClasses, "v");
}

TEST(ArmenianEmission, PluralEndingOnlyOnNouns) {
    EXPECT_EQ(lookUp("տուն", "", ending("s")).pendingEnding, "s");
    EXPECT_EQ(lookUp("լավ", "", ending("s")).pendingEnding, "");
    EXPECT_EQ(lookUp("խաղալ", "", ending("s")).pendingEnding, "");
    // "one" drops it and sets none; another number sets it for the next noun.
    EXPECT_EQ(lookUp("մեկ", "", ending("s")).pendingEnding, "");
    EXPECT_EQ(lookUp("հինգ").pendingEnding, "s");
    EXPECT_EQ(lookUp("մեկ").pendingEnding, "");
}

TEST(ArmenianEmission, PluralOrConditionalIsSettledByTheTag) {
    const Result noun = lookUp("տուն", "would ", ending("s1"));
    EXPECT_EQ(noun.output, "house");
    EXPECT_EQ(noun.pendingEnding, "s");
    HyEnFixture f;
    f.at("խաղալ", "", "would ");
    f.e().PendingEnding = "s1";
    f.e().InsertText = "you ";
    f.e().teqst_dblclick();
    EXPECT_EQ(f.output(), "would play");
    EXPECT_TRUE(f.e().PendingEnding.empty());
    EXPECT_TRUE(f.e().InsertText.empty());
}

TEST(ArmenianEmission, StemsWithAnEndingChangeTheirMeaning) {
    EXPECT_EQ(lookUp("հիվանդ", "", ending("ի")).output, "patient");
    EXPECT_EQ(lookUp("հիվանդ").output, "ill");
    const Result patients = lookUp("հիվանդ", "", ending("s"));
    EXPECT_EQ(patients.output, "patient");
    EXPECT_EQ(patients.pendingEnding, "");  // kept by the repair, dropped on the adjective
    EXPECT_EQ(lookUp("մութ", "", ending("ի")).output, "darkness");
    EXPECT_EQ(lookUp("մութ").output, "dark");
    const Result sword = lookUp("սուր", "", ending("ս"));
    EXPECT_EQ(sword.output, "sword");
    EXPECT_EQ(sword.pendingEnding, "");
    EXPECT_EQ(lookUp("պառավ").output, "old");
    const Result gammers = lookUp("պառավ", "", ending("s"));
    EXPECT_EQ(gammers.output, "gammer");
    EXPECT_EQ(gammers.pendingEnding, "");
}

TEST(ArmenianEmission, TagTwoPutsTheArticleBefore) {
    EXPECT_EQ(lookUp("պետություն").output, "the state");
    EXPECT_EQ(lookUp("պետություն", "", [](Engine& e) { e.CapitalFlag = 1; }).output, "The state");
}

TEST(ArmenianEmission, Comparatives) {
    EXPECT_EQ(lookUp("լավ", "more ").output, "better");
    EXPECT_EQ(lookUp("վատ", "more ").output, "worse");
    EXPECT_EQ(lookUp("մեծ", "it is more ").output, "it is bigger");
    EXPECT_EQ(lookUp("ուրախ", "more ").output, "happier");
    EXPECT_EQ(lookUp("խոշոր", "more ").output, "larger");
    EXPECT_EQ(lookUp("մութ", "more ").output, "darker");
    EXPECT_EQ(lookUp("լավ", "any more ").output, "any more good");
    EXPECT_EQ(lookUp("լավ", "much more ").output, "much more good");
    EXPECT_EQ(lookUp("տուն", "more ").output, "more house");
}

TEST(ArmenianEmission, IrregularPlurals) {
    const Result men = lookUp("մարդ", "", ending("s"));
    EXPECT_EQ(men.output, "men");
    EXPECT_EQ(men.pendingEnding, "");
    EXPECT_EQ(lookUp("կին", "", ending("s")).output, "women");
    EXPECT_EQ(lookUp("երեխա", "", ending("s")).output, "children");
    EXPECT_EQ(lookUp("մարդ").output, "man");
    const Result knives = lookUp("դանակ", "", ending("s"));
    EXPECT_EQ(knives.output, "knive");  // the scanner adds the "s"
    EXPECT_EQ(knives.pendingEnding, "s");
    EXPECT_EQ(lookUp("դանակ").output, "knife");
}

TEST(ArmenianEmission, PluralsInEs) {
    const Result boxes = lookUp("արկղ", "", ending("s"));
    EXPECT_EQ(boxes.output, "boxes");
    EXPECT_EQ(boxes.pendingEnding, "");
    EXPECT_EQ(lookUp("լոլիկ", "", ending("s")).output, "tomatoes");
    const Result books = lookUp("գիրք", "", ending("s"));
    EXPECT_EQ(books.output, "book");
    EXPECT_EQ(books.pendingEnding, "s");
}

TEST(ArmenianEmission, CausativeVerbs) {
    const Prepare causative = [](Engine& e) { e.CausativeVerb = 1; };
    EXPECT_EQ(lookUp("վեր կենալ", "", causative).output, "make up");
    EXPECT_EQ(lookUp("վեր կենալ").output, "get up");
    EXPECT_EQ(lookUp("գլուխ", "", causative).output, "cock");
    EXPECT_EQ(lookUp("գլուխ").output, "head");
}

TEST(ArmenianEmission, GiveAfterANounMakesOneVerb) {
    EXPECT_EQ(lookUp("տալ", "he demonstration ").output, "he show");
    EXPECT_EQ(lookUp("տալ", "swallow ").output, "swallow");
    EXPECT_EQ(lookUp("տալ", "weak ").output, "allow");
    EXPECT_EQ(lookUp("տալ", "book ").output, "book give");
}

TEST(ArmenianEmission, VerbAfterAFormOfBeIsItsPerfect) {
    EXPECT_EQ(lookUp("խաղալ", "I am ").output, "I have played");
    EXPECT_EQ(lookUp("խաղալ", "you are ").output, "you have played");
    EXPECT_EQ(lookUp("խաղալ", "he is ").output, "he has played");
    EXPECT_EQ(lookUp("խաղալ", "they were ").output, "they had played");
    EXPECT_EQ(lookUp("խաղալ", "he is not ").output, "he has not played");
    EXPECT_EQ(lookUp("խաղալ", "it does not ").output, "it has not played");
    EXPECT_EQ(lookUp("խաղալ", "I am ", mark("ing")).output, "I am playing");
    EXPECT_EQ(lookUp("տուն", "I am ").output, "I am house");
}

TEST(ArmenianEmission, AVerbOfSeveralWordsTakesItsFormOnTheFirst) {
    EXPECT_EQ(lookUp("վերցնել", "", mark("ing")).output, "picking up");
    EXPECT_EQ(lookUp("վերցնել", "", mark("ed")).output, "picked up");
}

TEST(ArmenianEmission, SenseMarkIsCut) {
    EXPECT_EQ(lookUp("մաքուր").output, "clean");
}

TEST(ArmenianEmission, EnglishEndings) {
    EXPECT_EQ(lookUp("սիրել", "", mark("ing")).output, "loving");
    EXPECT_EQ(lookUp("տեսնել", "", mark("ing")).output, "seeing");
    EXPECT_EQ(lookUp("սիրել", "", mark("ed")).output, "loved");
    EXPECT_EQ(lookUp("խաղալ", "", mark("ed")).output, "played");
    EXPECT_EQ(lookUp("կրել", "", mark("ed")).output, "carried");
    EXPECT_EQ(lookUp("կրել", "", mark("s")).output, "carries");
    EXPECT_EQ(lookUp("խաղալ", "", mark("s")).output, "plays");
    EXPECT_EQ(lookUp("քսան", "", mark("s")).output, "twentys");
    EXPECT_EQ(lookUp("ժամանել", "", mark("ed")).output, "come");
    EXPECT_EQ(lookUp("դնել", "", mark("ed")).output, "put");
    EXPECT_EQ(lookUp("խաղալ", "", mark("ող")).output, "play");
}

TEST(ArmenianEmission, PossessiveGoesOnTheGloss) {
    const Result r = lookUp("տուն", "", ending("'s"));
    EXPECT_EQ(r.output, "house's");
    EXPECT_EQ(r.pendingEnding, "");
}

TEST(ArmenianEmission, AuxiliaryGoesBeforeTheWordGroupItFollows) {
    HyEnFixture f;
    f.lookUp("տանն");
    EXPECT_EQ(f.output(), "the house");
    f.e().OutputText += ' ';
    f.e().CurrentWord = "է"_ft;
    f.e().teqst_dblclick();
    EXPECT_EQ(f.output(), "is the house");
    EXPECT_EQ(f.e().ProgressiveNext, 1);

    EXPECT_EQ(lookUp("է").output, "is");  // nothing written before it
}

TEST(ArmenianEmission, PostpositionGoesBeforeTheWordBefore) {
    HyEnFixture f;
    f.lookUp("տան", "", "I was ");
    f.e().OutputText += ' ';
    f.e().CurrentWord = "մեջ"_ft;
    f.e().teqst_dblclick();
    EXPECT_EQ(f.output(), "I was in house");
}

TEST(ArmenianEmission, TagsMarkWhatComesNext) {
    HyEnFixture f;
    f.lookUp("բերել");
    EXPECT_EQ(f.e().TransitiveNext, 1);
    HyEnFixture g;
    g.lookUp("իմ");
    EXPECT_EQ(g.e().PrepositionNext, 1);
    HyEnFixture h;
    h.lookUp("եմ");
    EXPECT_EQ(h.e().ProgressiveNext, 1);
}

TEST(ArmenianEmission, ArticleKeptAsideIsNotWritten) {
    HyEnFixture f;
    f.at("տուն");
    f.e().ArticleEnding = "ն"_ft;
    f.e().teqst_dblclick();
    EXPECT_EQ(f.output(), "house");
    EXPECT_TRUE(f.e().ArticleEnding.empty());
}

TEST(ArmenianEmission, NullIsNoArmenianWord) {
    EXPECT_EQ(lookUp("null").output, "null");
}

}  // namespace
}  // namespace vorlexa::test
