// hayqer, the ending analysis: a word the dictionary does not hold is taken apart by a fixed
// cascade of string tests, longest ending first. A test that fires rewrites CurrentWord into the
// form the dictionary should hold, records what the ending meant (a verb form, a plural, "my ",
// "from "...) and looks the word up again. A look-up that fails comes back here through the
// not-found path, so the endings peel off layer by layer.
//
// The cascade never returns early: after a look-up CurrentWord is empty, every later test sees an
// empty word, and the length guards of the stages keep it inert to the end.
#include <algorithm>
#include <initializer_list>
#include <span>

#include "analysis/selcase.h"
#include "engine/engine.h"
#include "rules/rule_contract.h"
#include "rules/verb_forms.h"

namespace vorlexa {

using namespace literals;

namespace {

bool oneOf(std::string_view s, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), s) != words.end();
}

bool endsWithAny(std::string_view s, std::initializer_list<std::string_view> tails) {
    return std::any_of(tails.begin(), tails.end(), [&](std::string_view t) { return s.ends_with(t); });
}

// The postpositions: a word made of one of them and an ending takes no possessive.
bool isPlaceWord(std::string_view stem) {
    return oneOf(stem, {"դիմաց"_ft, "ետև"_ft, "տակ"_ft, "վրայ"_ft, "մեջ"_ft, "միջ"_ft, "կողք"_ft, "մոտ"_ft});
}

// Where the cascade goes on after a row.
enum class Step { Stage5, Stage4, Stage3, Stage2, Stage1, PrefixA, PrefixB, Numbers, Selcase };

class EndingAnalysis {
public:
    explicit EndingAnalysis(Engine& engine) : e(engine), w(engine.CurrentWord) {}

    void run();

private:
    Step stage5();
    Step stage4();
    Step stage3();
    Step presentParticipleOrLocative();
    Step stage2();
    Step stage1();
    Step prefixA();
    Step prefixB();
    void numbers();

    // ---- The word --------------------------------------------------------------------------
    std::size_t letters() const { return w.size(); }
    bool endsWith(std::string_view tail) const { return std::string_view(w).ends_with(tail); }
    bool beginsWith(std::string_view head) const { return std::string_view(w).starts_with(head); }
    std::string_view last(std::size_t n) const {
        return n >= w.size() ? std::string_view(w) : std::string_view(w).substr(w.size() - n);
    }
    std::string_view lessLast(std::size_t n) const {
        return n >= w.size() ? std::string_view{} : std::string_view(w).substr(0, w.size() - n);
    }
    void dropLast(std::size_t n) { w.resize(n >= w.size() ? 0 : w.size() - n); }
    void replaceLast(std::size_t n, std::string_view with) {
        dropLast(n);
        w += with;
    }
    void dropFirst(std::size_t n) { w.erase(0, std::min(n, w.size())); }
    bool isSharpOrDarkStem() const { return w == "սր"_ft || w == "մթ"_ft; }

    // ---- The output ------------------------------------------------------------------------
    bool outputEnds(std::string_view tail) const { return e.outputEndsWith(tail); }
    void cutOutput(std::size_t n) { e.OutputText.resize(n >= e.OutputText.size() ? 0 : e.OutputText.size() - n); }
    void insert(std::string_view text) {
        e.InsertText = FontText(text);
        mctn(e);
    }

    // ---- Shared finishes ---------------------------------------------------------------------
    void lookUp() { e.teqst_dblclick(); }
    void yodRule();
    Step finish3();
    Step finish2();
    Step finish1();
    void negativeFutureAndConditional();
    void afterBeforeOrFrom();

    Engine& e;
    FontText& w;
};

// "վրայ" and its like lose the yod of the older spelling; true words in "այ"/"ոյ" keep it.
void EndingAnalysis::yodRule() {
    if ((endsWith("այ"_ft) || endsWith("ոյ"_ft)) &&
        !oneOf(last(3), {"բայ"_ft, "խոյ"_ft, "գոյ"_ft, "հայ"_ft, "նոյ"_ft, "ճայ"_ft, "վայ"_ft}))
        dropLast(1);
}

Step EndingAnalysis::finish3() {
    dropLast(3);
    yodRule();
    lookUp();
    return Step::Stage2;
}

// "սր" and "մթ" are not looked up bare: the stem classes turn them into "սուր" and "մութ".
Step EndingAnalysis::finish2() {
    dropLast(2);
    yodRule();
    if (!isSharpOrDarkStem()) lookUp();
    return Step::Stage1;
}

Step EndingAnalysis::finish1() {
    e.StemEndFlag = FontText(last(1));
    dropLast(1);
    yodRule();
    if (!isSharpOrDarkStem()) lookUp();
    return Step::PrefixA;
}

// An English negative before a verb form in "ա" or "ի" is its future or conditional.
void EndingAnalysis::negativeFutureAndConditional() {
    if (endsWithAny(e.OutputText, {"are not ", " is not ", " am not ", "ill not "})) {
        cutOutput(8);
        e.OutputText += " will not ";
    }
    if (endsWithAny(e.OutputText, {" was not ", "were not ", "ould not "})) {
        cutOutput(9);
        e.OutputText += " would not ";
    }
}

// A postposition after an ablative: "տանից հետո" is "after the house"; it is read with the word.
void EndingAnalysis::afterBeforeOrFrom() {
    if (e.nextIs("հետո"_ft)) {
        e.InsertText = "after ";
        e.ScanPos += 4;
    } else if (e.nextIs("առաջ"_ft)) {
        e.InsertText = "before ";
        e.ScanPos += 4;
    } else {
        e.InsertText = "from ";
    }
}

void EndingAnalysis::run() {
    // 1. In a spell-check pass the user has already decided on this word.
    if (e.SpellMode == 1 && e.AnswerCode != 0) return;

    // 2. The particle of the future written twice.
    if (beginsWith("կկ"_ft)) e.FutureParticle = 1;

    // 3. Stems that mean something else when inflected keep their ending for the look-up; the
    // rows are tried in order and the word goes on as it is.
    static constexpr std::string_view kTwelve[] = {"ի"_ft,  "ը"_ft,  "ն"_ft,  "դ"_ft,  "ս"_ft,   "իս"_ft,
                                                   "իդ"_ft, "ին"_ft, "ից"_ft, "ով"_ft, "ներ"_ft, "ում"_ft};
    static constexpr std::string_view kSharpDark[] = {"ի"_ft, "իս"_ft, "իդ"_ft, "ին"_ft,
                                                      "ից"_ft, "եր"_ft, "ով"_ft, "ան"_ft};
    static constexpr std::string_view kFour[] = {"ը"_ft, "ն"_ft, "դ"_ft, "ս"_ft};
    const auto keepEnding = [this](std::string_view stem, std::span<const std::string_view> kept) {
        if (!beginsWith(stem)) return false;
        const std::string_view after = std::string_view(w).substr(stem.size());
        e.PendingEnding = std::find(kept.begin(), kept.end(), after) != kept.end() ? FontText(after) : FontText();
        return true;
    };
    (void)(keepEnding("հիվանդ"_ft, kTwelve) || keepEnding("պառավ"_ft, kTwelve) || keepEnding("սր"_ft, kSharpDark) ||
        keepEnding("մթ"_ft, kSharpDark) || keepEnding("սուր"_ft, kFour) || keepEnding("մութ"_ft, kFour));

    // 4. The superlative prefix.
    if (beginsWith("ամենա"_ft)) {
        insert("the most ");
        dropFirst(5);
        lookUp();
    }

    Step step = stage5();
    if (step == Step::Stage4) step = stage4();
    if (step == Step::Stage3) step = stage3();
    if (step == Step::Stage2) step = stage2();
    if (step == Step::Stage1) step = stage1();
    if (step == Step::PrefixA) step = prefixA();
    if (step == Step::PrefixB) step = prefixB();
    if (step == Step::Numbers) numbers();
    // 12. The last resort: the word may be a reduced stem.
    selcase(e);
}

// Stage 5: words of more than 6 letters, on their last 5.
Step EndingAnalysis::stage5() {
    if (letters() <= 6) return Step::Stage4;
    const auto end = last(5);
    if (oneOf(end, {"ացինք"_ft, "եցինք"_ft})) {
        replaceLast(4, "լ"_ft);
        e.VerbFormMark = "ed";
        lookUp();
    } else if (oneOf(end, {"ացանք"_ft, "եցանք"_ft})) {
        replaceLast(4, "նալ"_ft);
        e.VerbFormMark = "ed";
        lookUp();
    } else if (oneOf(end, {"ալուն"_ft, "ելուն"_ft})) {
        e.VerbFormMark = "ing";
        return finish3();
    } else if (oneOf(end, {"ալուց"_ft, "ելուց"_ft})) {
        e.VerbFormMark = "ing";
        if (e.nextIs("հետո"_ft)) {
            e.InsertText = "after ";
            e.ScanPos += 4;
        } else if (e.nextIs("առաջ"_ft)) {
            e.InsertText = "before ";
            e.ScanPos += 4;
        }
        mctn(e);
        return finish3();
    } else if (oneOf(end, {"եցրու"_ft, "ացրու"_ft, "եցրեք"_ft, "ացրեք"_ft})) {
        e.VerbFormMark.clear();
        insert("make to ");
        replaceLast(4, "լ"_ft);
        lookUp();
    }
    return Step::Stage4;
}

// Stage 4: words of more than 5 letters, on their last 4.
Step EndingAnalysis::stage4() {
    if (letters() <= 5) return Step::Stage3;
    const auto end = last(4);
    if (end == "ական"_ft) {
        dropLast(4);
        yodRule();
        lookUp();
    } else if (end == "ամյա"_ft) {
        dropLast(4);
        lookUp();
        e.OutputText += " years old";
    } else if (oneOf(end, {"ացիր"_ft, "ացին"_ft, "ացիք"_ft, "եցիր"_ft, "եցին"_ft, "եցիք"_ft})) {
        e.VerbFormMark = "ed";
        if (end != "ացին"_ft && end != "եցին"_ft) {
            // The "you " stays in InsertText when the output has no "you" yet: it goes out only
            // if a later rule calls mctn with it unchanged.
            e.InsertText = "you ";
            if (outputEnds(std::string_view("you ").substr(1))) {
                e.InsertText.clear();
                mctn(e);
            }
        }
        dropLast(3);
        ce(e);
        w += "լ"_ft;
        lookUp();
    } else if (end == "եցեք"_ft) {
        e.VerbFormMark.clear();
        w.erase(w.size() - 4, 2);  // the "եց" before the final "եք"; stage 2 reads the "եք"
        return Step::Stage3;
    } else if (oneOf(end, {"ելիս"_ft, "ալիս"_ft})) {
        const FontText held = w;
        w = "քանի դեռ"_ft;
        lookUp();
        e.OutputText += ' ';
        w = held.substr(0, held.size() - 3) + FontText("լ"_ft);
        e.VerbFormMark = "ing";
        lookUp();
    } else if (oneOf(end, {"ելու"_ft, "ալու"_ft})) {
        insert("to ");
        if (e.nextIs("համար"_ft)) {
            e.ScanPos += 5;
            return finish2();
        }
        return Step::Stage3;
    } else if (oneOf(end, {"ացել"_ft, "եցել"_ft})) {
        e.VerbFormMark = "ed";
        replaceLast(3, "լ"_ft);
        lookUp();
    } else if (oneOf(end, {"ելով"_ft, "ալով"_ft})) {
        e.VerbFormMark = "ing";
        return finish2();
    } else if (end == "թյան"_ft) {
        replaceLast(2, "ուն"_ft);
        lookUp();
    } else if (end == "մամբ"_ft) {
        insert("by ");
        replaceLast(4, "ալ"_ft);
        e.VerbFormMark = "ing";
        lookUp();
    } else if (end == "ցրել"_ft) {
        e.VerbFormMark = "ed";
        return finish3();
    } else if (end == "յամբ"_ft) {
        insert("with ");
        replaceLast(3, "ուն"_ft);
        lookUp();
    } else if (end == "less") {
        if (e.englishToArmenian()) {
            insert("ան"_ft);
            e.LessPrefix = 1;
        }
        dropLast(4);
        yodRule();
        lookUp();
    }
    return Step::Stage3;
}

// Stage 3: words of more than 4 letters, on their last 3.
Step EndingAnalysis::stage3() {
    if (letters() <= 4) return Step::Stage2;
    const auto end = last(3);
    if (end == "est" && e.englishToArmenian()) {
        insert("ամենա"_ft);
        return finish3();
    }
    if (oneOf(end, {"եին"_ft, "եիր"_ft})) {
        replaceLast(2, "լ"_ft);
        if (e.FutureParticle == 1) {
            insert("would ");
            e.EnglishAuxBack = 6;
            e.FutureParticle = 0;
            return Step::Stage2;
        }
        if (outputEnds("will ") || outputEnds("shall ")) {
            cutOutput(4);
            e.OutputText += "ould ";
        } else {
            insert("to ");
        }
        lookUp();
    } else if (end == "ման"_ft) {
        replaceLast(3, "ալ"_ft);
        if (e.nextIs("համար "_ft)) {
            insert("for ");
            e.ScanPos += 6;
        }
        e.VerbFormMark = "ing";
        lookUp();
    } else if (end == "ինք"_ft) {
        dropLast(3);
        ye(e);
        if (endsWith("ցր"_ft)) {
            w += "ալ"_ft;
            e.VerbFormMark = "ed";
        } else {
            w += "լ"_ft;
            insert("should ");
        }
        lookUp();
    } else if (oneOf(end, {"ացի"_ft, "եցի"_ft})) {
        e.SingularPast = 1;
        dropLast(1);
        lookUp();
    } else if (end == "ing" && e.englishToArmenian()) {
        dropLast(3);
        if (!e.PendingCopula.empty()) {
            e.VerbFormMark = "ում"_ft;
        } else if (!e.SecondLook.empty()) {
            e.ToMark = "to";
            e.VerbFormMark = "ած"_ft;
        } else {
            e.VerbFormMark = "ող"_ft;
        }
        lookUp();
        e.SecondLook.clear();
    } else if (end == "ում"_ft) {
        return presentParticipleOrLocative();
    } else if (end == "ներ"_ft) {
        e.PendingEnding = "s";
        return finish3();
    } else if (oneOf(end, {"անք"_ft, "ենք"_ft})) {
        e.InsertText = "shall ";
        if (outputEnds("will ")) cutOutput(5);
        mctn(e);
        replaceLast(2, "լ"_ft);
        lookUp();
    } else if (end == "ies") {
        e.PendingEnding = FontText("ներ"_ft) + e.PendingEnding;
        replaceLast(3, "y");
        lookUp();
    }
    return Step::Stage2;
}

// "ում": a present participle or the locative of a noun; the words around it decide.
Step EndingAnalysis::presentParticipleOrLocative() {
    dropLast(3);
    const auto next2 = e.sourceAt(e.ScanPos + 1, 2);
    if (endsWithAny(e.OutputText, {"Doesn't", "doesn't", "am not ", "Am not ", "aren't ", "Aren't ", "wasn't ",
                                   "Was'nt ", "is not ", "Is not ", "Did not ", "did not ", "are not ", "Are not ",
                                   "Was not ", "was not ", "Weren't ", "weren't ", " am ", "are ", " is ", "was ",
                                   "ere ", "Am ", "Is "})) {
        w += "ալ"_ft;
        e.VerbFormMark = "ing";
        lookUp();
    } else if (endsWithAny(e.OutputText, {"Does not ", "does not ", "Were not ", "were not "})) {
        w += "ալ"_ft;
        cutOutput(5);
        e.OutputText += "n't ";
        e.VerbFormMark = "ing";
        lookUp();
    } else if (oneOf(next2, {"եմ"_ft, "ես"_ft, "են"_ft, "եք"_ft, "էի"_ft, "էր"_ft})) {
        w += "ալ"_ft;
        e.VerbFormMark = "ing";
        lookUp();
    } else if (next2.size() == 2 && next2[0] == '"' && oneOf(next2.substr(1), {"մ"_ft, "ս"_ft, "ն"_ft, "ք"_ft})) {
        // The quote writes the letter "ե" in such texts: "գրում "մ" is "գրում եմ".
        if (e.DialectLetterCount == "ե"_ft) w += "ալ"_ft;
        e.VerbFormMark = "ing";
        lookUp();
    } else if (e.nextIs("է"_ft)) {
        // "գրում է" is one word: the verb in the third person, and the "է" is read with it.
        w += "ալ"_ft;
        e.ThirdPersonEnding = 1;
        e.ScanPos += 2;
        e.VerbFormMark = "ing";
        lookUp();
    } else if (oneOf(e.sourceAt(e.ScanPos + 1, 4), {"էին "_ft, "էիր "_ft, "էինք"_ft, "էիք "_ft})) {
        w += "ալ"_ft;
        lookUp();
    } else if (e.ProgressiveNext == 1) {
        if (beginsWith("կ"_ft) || beginsWith("չ"_ft)) {
            e.OutputText += "in ";
            lookUp();
        } else {
            w += "ալ"_ft;
            ye(e);
            if (e.VerbFormMark.empty()) {
                insert("in ");
                e.CaseEndingSeen = 1;
            }
        }
        return Step::Stage2;
    } else {
        ye(e);
        insert("in ");
        lookUp();
    }
    return Step::Stage2;
}

// Stage 2: words of more than 3 letters, on their last 2.
Step EndingAnalysis::stage2() {
    if (letters() <= 3) return Step::Stage1;
    const auto end = last(2);
    const bool futureOrNegative = beginsWith("կկ"_ft) || beginsWith("չչ"_ft) ||
                                  ((beginsWith("կ"_ft) || beginsWith("չ"_ft)) && e.VerbFormMark != "ing");

    if (oneOf(end, {"ար"_ft, "եր"_ft})) {
        if (e.CaseEndingSeen == 1) {
            e.PendingEnding = "s";
            e.CaseEndingSeen.clear();
            return finish2();
        }
        // A plural or a conditional: the look-up settles it by the tag of what it finds.
        e.InsertText = "would ";
        e.PendingEnding = "s1";
        replaceLast(1, "լ"_ft);
        mctn(e);
        lookUp();
    } else if (end == "եի"_ft) {
        e.InsertText = "should ";
        if (w == "ափսեի"_ft) return finish1();
        replaceLast(1, "լ"_ft);
        mctn(e);
        lookUp();
    } else if (end == "ող"_ft && !e.englishToArmenian()) {
        e.VerbFormMark = "ող"_ft;
        replaceLast(2, "ալ"_ft);
        e.EnglishAuxBack = 3;
        lookUp();
    } else if (oneOf(end, {"իք"_ft, "իր"_ft})) {
        insert("you ");
        e.EnglishAuxBack = 4;
        if (mid(w, w.size() - 3, 2) == "այ"_ft) {
            replaceLast(3, "լ"_ft);
        } else {
            dropLast(2);
            w += endsWith("ե"_ft) ? "լ"_ft : "ել"_ft;
        }
        lookUp();
    } else if (end == "ալ"_ft) {
        if (futureOrNegative) return Step::PrefixB;
        dropLast(1);
        ve(e);
        if (!w.empty()) replaceLast(1, "ել"_ft);
        lookUp();
    } else if (end == "ել"_ft) {
        if (futureOrNegative) return Step::PrefixB;
        dropLast(1);
        ve(e);
        if (!w.empty()) {
            dropLast(1);
            lookUp();
        }
    } else if (oneOf(end, {"աց"_ft, "եց"_ft, "ավ"_ft})) {
        e.SingularPast = 1;
        replaceLast(1, "լ"_ft);
        e.VerbFormMark = "ed";
        lookUp();
    } else if (end == "ed") {
        // "gi" is left out of the list on purpose.
        if (oneOf(mid(w, w.size() - 3, 2), {"bi", "ci", "di", "fi", "ji", "hi", "ki", "li", "mi", "ni", "pi", "qi",
                                            "ri", "si", "ti", "vi", "wi", "xi", "zi"}))
            replaceLast(3, "yed");
        e.VerbFormMark = "ած"_ft;
        return finish2();
    } else if (oneOf(end, {"ամ"_ft, "եմ"_ft})) {
        if (e.FutureParticle == 1) {
            insert("shall ");
            e.EnglishAuxBack = 6;
            e.FutureParticle = 0;
        } else {
            if (e.ModalFlag.empty()) {
                e.InsertText = "me to ";
                if (outputEnds("I ")) {
                    cutOutput(2);
                    e.InsertText = "Me to ";
                }
            }
            e.ModalFlag.clear();
            mctn(e);
            e.EnglishAuxBack = 6;
        }
        replaceLast(1, "լ"_ft);
        lookUp();
    } else if (oneOf(end, {"աս"_ft, "ես"_ft, "աք"_ft, "եք"_ft})) {
        e.SecondPersonEnding = 1;
        if (e.FutureParticle == 1) {
            insert("will ");
            e.EnglishAuxBack = 5;
            e.FutureParticle = 0;
        } else {
            if (!outputEnds("will ")) {
                e.InsertText = "you ";
                if (outputEnds("ou will ") || outputEnds("you ")) e.InsertText.clear();
            }
            mctn(e);
            e.EnglishAuxBack = 4;
        }
        replaceLast(1, "լ"_ft);
        lookUp();
    } else if (end == "են"_ft) {
        if (e.FutureParticle == 1) {
            insert("will ");
            e.EnglishAuxBack = 5;
            e.FutureParticle = 0;
        } else {
            if (!outputEnds("will ")) {
                e.InsertText = "them to ";
                if (outputEnds("hey will ")) e.InsertText.clear();
            }
            mctn(e);
            e.EnglishAuxBack = 8;
        }
        replaceLast(1, "լ"_ft);
        lookUp();
    } else if (end == "ած"_ft) {
        replaceLast(2, "ալ"_ft);
        e.VerbFormMark = "ed";
        e.ParticipleGuess = 1;
        e.EnglishAuxBack = 5;
        lookUp();
    } else if (end == "իս"_ft) {
        e.CaseEndingSeen = 1;
        if (isPlaceWord(lessLast(2))) return finish2();
        insert("my ");
        e.EnglishAuxBack = 6;
        return finish2();
    } else if (end == "իդ"_ft) {
        if (isPlaceWord(lessLast(2))) return finish2();
        insert("your ");
        e.EnglishAuxBack = 8;
        return finish2();
    } else if (end == "ին"_ft) {
        e.CaseEndingSeen = 1;
        if (e.TransitiveNext == 1) {
            insert("to ");
            e.EnglishAuxBack = 3;
            e.TransitiveNext.clear();
        }
        if (endsWith("ցրին"_ft)) {
            replaceLast(2, "ալ"_ft);
            e.VerbFormMark = "ed";
            lookUp();
        } else if (w == "հայելին"_ft) {
            return finish1();
        } else {
            return finish2();
        }
    } else if (end == "ով"_ft) {
        e.CaseEndingSeen = 1;
        const auto stem = lessLast(2);
        if (isPlaceWord(stem)) return finish2();
        insert(oneOf(stem, {"փոստ"_ft, "ձեռք"_ft, "չեք"_ft, "ավտոմեքենայ"_ft, "օդանավ"_ft, "ինքնաթիռ"_ft, "նավ"_ft,
                            "նավակ"_ft, "ավտոբուս"_ft, "բեռնատար"_ft, "ճանապարհ"_ft, "երկաթգիծ"_ft, "մետրո"_ft})
                   ? "by "
                   : "with ");
        e.EnglishAuxBack = 3;
        return finish2();
    } else if (end == "ից"_ft) {
        e.CaseEndingSeen = 1;
        if (isPlaceWord(lessLast(2))) return finish2();
        afterBeforeOrFrom();
        e.EnglishAuxBack = 5;
        mctn(e);
        return finish2();
    } else if (end == "ւց"_ft) {
        e.CaseEndingSeen = 1;
        replaceLast(3, "ի"_ft);
        afterBeforeOrFrom();
        e.EnglishAuxBack = 5;
        mctn(e);
        lookUp();
    } else if (end == "ւն"_ft) {
        e.CaseEndingSeen = 1;
        if (oneOf(w, {"բաքուն"_ft, "ճիճուն"_ft, "լեզուն"_ft, "կատուն"_ft, "թթուն"_ft, "ձուն"_ft, "լուն"_ft, "կկուն"_ft,
                      "մեղուն"_ft, "առուն"_ft})) {
            dropLast(1);
            e.ArticleEnding = "ն"_ft;
            lookUp();
        } else {
            replaceLast(3, "ի"_ft);
            insert("to ");
            e.EnglishAuxBack = 3;
            lookUp();
        }
    } else if (end == "ու"_ft) {
        dropLast(2);
        lookUp();
    } else if (end == "նն"_ft) {
        e.CaseEndingSeen = 1;
        if (e.PrepositionNext == 1) return finish1();
        insert("the ");
        e.EnglishAuxBack = 4;
        return finish1();
    }
    return Step::Stage1;
}

// Stage 1: words of more than 2 letters, on their last letter.
Step EndingAnalysis::stage1() {
    if (letters() <= 2) return Step::PrefixA;
    const auto end = last(1);
    if (end == "ա"_ft) {
        if (e.ScanPos > 3) negativeFutureAndConditional();
        w += "լ"_ft;
        lookUp();
    } else if (end == "s") {
        // Only the "s" comes off: "catches" leaves "catche", which no record matches; the plurals in
        // "-es" of nouns and the third person in "-es" of verbs stand in the dictionary as keys.
        if (e.englishToArmenian()) {
            if (e.HaveForm.empty()) {
                e.PendingEnding = FontText("ներ"_ft) + e.PendingEnding;
                e.PersonCode = 4;
                // After a number the noun stays singular.
                if (e.ClassChain.ends_with('1')) e.PendingEnding.erase(0, 3);
            }
            return finish1();
        }
    } else if (oneOf(end, {"ը"_ft, "ն"_ft, "յ"_ft})) {
        e.CaseEndingSeen = 1;
        e.PrepositionNext.clear();
        if (oneOf(w, {"ձկն"_ft, "մկն"_ft, "լուսն"_ft, "գետն"_ft, "ծն"_ft, "թթվածն"_ft, "վրձն"_ft, "բաժն"_ft, "մարմն"_ft,
                      "էջմիածն"_ft, "միածն"_ft, "ամուսն"_ft, "սակագն"_ft}))
            return Step::Numbers;
        return finish1();
    } else if (end == "դ"_ft) {
        e.CaseEndingSeen = 1;
        if (endsWith("երորդ"_ft) ||
            oneOf(w, {"սննդ"_ft, "գնդ"_ft, "ծննդ"_ft, "վերածննդ"_ft, "բրդ"_ft, "քրդ"_ft, "ժողովրդ"_ft, "հողագնդ"_ft,
                      "երկրագնդ"_ft, "խորհրդ"_ft, "կիսագնդ"_ft}))
            return Step::Numbers;
        if (oneOf(lessLast(1), {"դիմաց"_ft, "ետև"_ft, "տակ"_ft, "վրայ"_ft, "մեջ"_ft, "հետ"_ft, "միջ"_ft, "կողք"_ft,
                                "մոտ"_ft}))
            return finish1();
        insert("your ");
        e.EnglishAuxBack = 5;
        return finish1();
    } else if (end == "ս"_ft) {
        e.CaseEndingSeen = 1;
        if (w == "ամս"_ft || w == "դրս"_ft) {
            selcase(e);
            return Step::PrefixA;
        }
        // This list has "վրա", not "վրայ", and no "միջ".
        if (oneOf(lessLast(1),
                  {"դիմաց"_ft, "ետև"_ft, "տակ"_ft, "վրա"_ft, "մեջ"_ft, "հետ"_ft, "կողք"_ft, "մոտ"_ft})) {
            insert("me ");
            return finish1();
        }
        insert("my ");
        e.EnglishAuxBack = 3;
        return finish1();
    } else if (end == "ի"_ft) {
        e.CaseEndingSeen = 1;
        if (e.ScanPos > 3 && endsWithAny(e.OutputText, {"are not ", " is not ", " am not ", "ill not ", " was not ",
                                                        "were not ", "ould not "})) {
            negativeFutureAndConditional();
            replaceLast(1, "ել"_ft);
            if (!isSharpOrDarkStem()) lookUp();
            return Step::PrefixA;
        }
        if (endsWith("յանի"_ft)) e.PendingEnding = "'s";
        return finish1();
    }
    return Step::PrefixA;
}

// Prefix step a: the privative "ան" is the English "-less".
Step EndingAnalysis::prefixA() {
    if (!e.englishToArmenian() && beginsWith("ան"_ft) && !beginsWith("անձ"_ft)) {
        dropFirst(2);
        lookUp();
        e.OutputText += "less";
    }
    return Step::PrefixB;
}

// Prefix steps b and c: the particle "կ" of the future and the negation "չ".
Step EndingAnalysis::prefixB() {
    if (beginsWith("կ"_ft)) {
        if (endsWith("ալ"_ft) || endsWith("ել"_ft)) {
            e.FutureParticle = 1;
            dropFirst(1);
            lookUp();
        }
        if ((outputEnds("hall ") || outputEnds("will ")) && !w.empty()) {
            w = w.substr(1) + FontText("ալ"_ft);
            e.FutureParticle = 1;
            lookUp();
        }
    } else if (beginsWith("չ"_ft) && (endsWith("ալ"_ft) || endsWith("ել"_ft))) {
        e.FutureParticle = 1;
        insert("not ");
        dropFirst(1);
        lookUp();
    }
    return Step::Numbers;
}

// Tens written together with their units are two words.
void EndingAnalysis::numbers() {
    static constexpr std::string_view kTens[] = {"քսան"_ft,   "հիսուն"_ft, "երեսուն"_ft,    "վաթսուն"_ft,
                                                 "ութսուն"_ft, "իննսուն"_ft, "յոթանասուն"_ft, "քառասուն"_ft};
    for (const std::string_view tens : kTens) {
        if (!beginsWith(tens)) continue;
        const FontText units = w.substr(tens.size());
        w = FontText(tens);
        lookUp();
        e.OutputText += ' ';
        w = units;
        lookUp();
    }
}

}  // namespace

void Engine::hayqer() { EndingAnalysis(*this).run(); }

}  // namespace vorlexa
