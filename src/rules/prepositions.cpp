// Prepositions and articles of English source text. Each procedure tests its fixed phrases top
// to bottom (the first match ends it) and otherwise leaves its ending for the next noun, clears
// the word and moves past the blank, so that the scanner rescans on the next word.
#include "rules/prepositions.h"

#include <string_view>

#include "engine/engine.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;

namespace {

bool plus2Is(const Engine& e, std::string_view literal) { return e.sourceAt(e.ScanPos + 2, literal.size()) == literal; }

// Cuts n characters off the end of the output (all of it when it is shorter).
void cutOutput(Engine& e, std::size_t n) { e.OutputText.resize(e.OutputText.size() > n ? e.OutputText.size() - n : 0); }

void setWord(Engine& e, std::string_view key) { e.CurrentWord = FontText(key); }
void setEnding(Engine& e, std::string_view ending) { e.PendingEnding = FontText(ending); }

void emitKey(Engine& e, std::string_view key) {
    e.CurrentWord = FontText(key);
    e.teqst_dblclick();
}

// The tag step shared by both articles: after a noun-like word the tag reads as a plain noun.
void nounLikeTag(Engine& e) {
    const std::string_view tag = trimBlanks(e.WordTag);
    if (!tag.empty() && (tag.front() == 'n' || tag.back() == 'n')) e.WordTag = "n    ";
}

bool atSentenceStart(const Engine& e) {
    return e.OutputText.empty() || e.outputEndsWith(": ") || e.outputEndsWith("\r\n");
}

}  // namespace

void AtProcedure(Engine& e) {
    if (e.nextIs("all")) {
        setWord(e, "entirely");
        e.ScanPos += 4;
    } else if (e.nextIs("last")) {
        setWord(e, "finally");
        e.ScanPos += 5;
    } else if (e.nextIs("once")) {
        setWord(e, "immediately");
        e.ScanPos += 5;
    } else if (e.nextIs("least")) {
        e.ScanPos += 6;
        emitKey(e, "minimum");
        e.OutputText += "ը"_ft;
    } else if (e.nextIs("present")) {
        setWord(e, "presently");
        e.ScanPos += 8;
    } else if (e.nextIs("the moment")) {
        // "this" is looked up now, and "moment" is read next with the ending on it.
        setWord(e, "this");
        setEnding(e, "ին"_ft);
        e.ScanPos += 4;
    } else {
        setEnding(e, "ին"_ft);
        e.CurrentWord.clear();
        e.ScanPos += 1;
    }
}

void FromProcedure(Engine& e) {
    if (e.nextIs("now on ")) {
        e.PendingEnding.clear();
        emitKey(e, "from now on");
        e.OutputText += ' ';
        e.ScanPos += 7;
    } else if (e.nextIs("now ")) {
        emitKey(e, "already");
        e.OutputText += ' ';
        e.ScanPos += 4;
    } else {
        setEnding(e, "ից"_ft);
        e.CurrentWord.clear();
        e.ScanPos += 1;
    }
}

void ByProcedure(Engine& e) {
    if (e.nextIs("now")) {
        // "by now" drops the preposition where it stands: no skip.
        e.PendingEnding.clear();
        e.CurrentWord.clear();
    } else if (e.nextIs("the way")) {
        setWord(e, "parenthetically");
        e.ScanPos += 8;
    } else if (e.nextIs("no means") && !e.PendingCopula.empty()) {
        e.PendingCopula = FontText("չ"_ft) + e.PendingCopula;
        emitKey(e, "none");
        e.OutputText += ' ';
        setWord(e, "case");
        setEnding(e, "ում"_ft);
        e.ScanPos += 9;
    } else if (e.nextIs("means")) {
        setEnding(e, "ով"_ft);
        setWord(e, "efforts");
        e.ScanPos += 6;
    } else {
        e.ClassChain = " ";
        setEnding(e, "ով"_ft);
        e.CurrentWord.clear();
        e.ScanPos += 1;
    }
}

void WithProcedure(Engine& e) {
    e.ClassChain = " ";
    if (e.nextIs("regards to")) {
        setWord(e, "regarding");
        e.ScanPos += 11;
    } else if (e.nextIs("no ")) {
        setWord(e, "without");
        e.ScanPos += 3;
    } else {
        setEnding(e, "ի հետ"_ft);
        e.CurrentWord.clear();
        e.ScanPos += 1;
    }
}

void OnProcedure(Engine& e) {
    if (e.nextIs("run")) {
        setWord(e, "elopement");
        setEnding(e, "ի մեջ"_ft);
        e.ScanPos += 4;
    } else if (plus2Is(e, "ehalf")) {
        setWord(e, "instead");
        e.ScanPos += 7;
    } else if (e.nextIs("spot")) {
        setWord(e, "place");
        setEnding(e, "ում"_ft);
        e.ClassChain.clear();
        e.ScanPos += 5;
    } else if (e.nextIs("the spot")) {
        setWord(e, "place");
        setEnding(e, "ում"_ft);
        e.ClassChain.clear();
        e.ScanPos += 9;
    } else if (e.nextIs("time")) {
        setWord(e, "time");
        setEnding(e, "ում"_ft);
        e.ClassChain.clear();
        e.ScanPos += 5;
    } else if (e.atIs("going")) {
        // Compared from the delimiter itself, so it matches only after a delimiter other than a blank.
        setWord(e, "instead");
        e.ScanPos += 6;
    } else {
        e.ClassChain.clear();
        setEnding(e, "ի վրա"_ft);
        e.CurrentWord.clear();
        e.ScanPos += 1;
    }
}

void InProcedure(Engine& e) {
    if (e.AdverbFlag == 1) {
        // The word is overwritten below; what lasts is the cleared flag.
        setWord(e, "inside");
        e.AdverbFlag.clear();
        e.ClassChain.clear();
    }
    if (e.atIs("-law")) {
        e.InsertText = FontText("խնամի"_ft);
        mctn(e);
        e.ScanPos += 4;
    }

    if (plus2Is(e, "harge")) {
        setWord(e, "responsible");
        e.ScanPos += 7;
        return;
    }
    if (e.nextIs("front of")) {
        setWord(e, "afront");  // "of" is read next
        e.ScanPos += 6;
        return;
    }
    if (e.nextIs("favor")) {
        setWord(e, "avail");
        e.OutputText += "հ"_ft;
        e.ScanPos += 6;
        return;
    }
    if (e.nextIs("love")) {
        e.CurrentWord.clear();
        e.OutputText += "սիրահարված "_ft;
        e.OutputText += e.PendingCopula;
        e.PendingCopula.clear();
        e.ScanPos += 5;
        return;
    }
    if (e.nextIs("the morning") || e.nextIs("the evening")) {
        e.CurrentWord = FontText(e.sourceAt(e.ScanPos + 5, 7));
        if (e.sourceAt(e.ScanPos + 12, 1) == "s") {
            setEnding(e, "ներ"_ft);
            e.ScanPos += 13;
        } else {
            setEnding(e, "յան"_ft);
            e.ScanPos += 12;
        }
        return;
    }

    e.ClassChain = " ";
    if (e.nextIs("advance")) {
        setWord(e, "previously");
        e.ScanPos += 8;
    } else if (plus2Is(e, "etail")) {
        setWord(e, "minutely");
        e.PendingEnding.clear();
        e.ScanPos += 7;
    } else if (e.nextIs("effect")) {
        setWord(e, "result");
        setEnding(e, "ում"_ft);
        e.ScanPos += 7;
    } else if (e.nextIs("time")) {
        setWord(e, "time");
        setEnding(e, "ին"_ft);
        e.ScanPos += 5;
    } else if (e.nextIs("case")) {
        setWord(e, "if");
        e.ScanPos += 5;
    } else if (e.nextIs("order to") || e.nextIs("order for")) {
        setWord(e, "in order to");  // "to" or "for" is read next
        e.ScanPos += 6;
    } else if (e.nextIs("fact")) {
        setWord(e, "actually");
        e.ScanPos += 5;
    } else if (e.nextIs("vain")) {
        e.OutputText += "իզուր"_ft;
        e.CurrentWord.clear();
        e.ScanPos += 5;
    } else if (plus2Is(e, "eneral")) {
        setWord(e, "in general");
        e.ScanPos += 8;
    } else if (e.nextIs("kind ")) {
        setWord(e, "charity");
        e.ScanPos += 5;
    } else if (plus2Is(e, "ddition")) {
        setWord(e, "as");  // looked up by itself; the next word is read as usual
    } else {
        setEnding(e, "ի մեջ"_ft);
        e.CurrentWord.clear();
        e.ScanPos += 1;
    }
}

void ForProcedure(Engine& e) {
    static constexpr std::string_view kPluralSpans[] = {"days",    "centuries", "minutes", "hours",  "years",
                                                        "moments", "seconds",   "months",  "weeks", "nights"};
    static constexpr std::string_view kOneSpan[] = {"a day",    "a century", "a minute", "an hour",
                                                    "a year",   "a moment",  "a second", "a month",
                                                    "a week",   "a night",   "a forthnight"};
    if (e.nextIs("a while")) {
        emitKey(e, "some");
        e.OutputText += ' ';
        emitKey(e, "time");
        setEnding(e, "ով"_ft);
        e.CurrentWord.clear();
        // The extra 1 jumps the delimiter after the phrase too; "ով" waits for the word after it.
        e.ScanPos += 8 + 1;
        return;
    }
    if (e.nextIs("free ")) {
        setWord(e, "free of charge");
        e.PendingEnding.clear();
        e.ScanPos += 5;
        return;
    }
    if (plus2Is(e, "nstance")) {
        setWord(e, "example");
        e.PendingEnding.clear();
        e.ScanPos += 9;
        return;
    }
    if (e.nextIs("ages")) {
        e.CurrentWord.clear();
        e.OutputText += "դարերով"_ft;
        e.ScanPos += 5;
        return;
    }
    for (std::string_view span : kPluralSpans) {
        if (e.nextIs(span)) {
            setWord(e, "by");  // the rescan runs ByProcedure
            return;
        }
    }
    for (std::string_view span : kOneSpan) {
        if (e.nextIs(span)) {
            e.OutputText += "մի "_ft;
            e.ScanPos += 2;
            if (e.atIs("n ")) e.ScanPos += 1;
            setWord(e, "by");
            return;
        }
    }
    setEnding(e, "ի համար"_ft);
    e.CurrentWord.clear();
    e.ScanPos += 1;
}

void OutOfProcedure(Engine& e) {
    if (e.nextIs("of order")) {
        setWord(e, "spoiled");
        e.ScanPos += 8;
    }
    if (e.nextIs("of ")) {
        e.CurrentWord.clear();
        setEnding(e, "ից դուրս"_ft);
        e.ScanPos += 3;
    }
}

void yetqe(Engine& e) {
    if (e.atIs(".") || e.atIs(";")) {
        setWord(e, "later");
    } else if (e.nextIs("all") || e.nextIs("a while")) {
        after(e);
    } else {
        e.CurrentWord.clear();
        e.ClassChain = " ";
        setEnding(e, "ից հետո"_ft);
        e.ScanPos += 1;
    }
}

void after(Engine& e) {
    if (e.nextIs("all")) {
        e.ScanPos += 4;
        emitKey(e, "amen");
        e.OutputText += "ա"_ft;
        emitKey(e, "end");
        setEnding(e, "ում"_ft);
    }
    if (e.nextIs("a while")) {
        e.ScanPos += 8;
        emitKey(e, "few");
        e.OutputText += " անց"_ft;
    }
}

// "to": pronouns in the dative are written at once; "to" before a verb marks the infinitive.
// The rows without "stop" let the later ones and the last step run as well.
void zqez(Engine& e) {
    const auto clearThree = [&e] {
        e.PendingEnding.clear();
        e.CurrentWord.clear();
        e.ToMark.clear();
    };
    if (e.nextIs("you") && !e.nextIs("your")) {
        e.InsertText = FontText("քեզ"_ft);
        mctn(e);
        e.ScanPos += 3;
    }
    if (e.nextIs("it ")) {
        clearThree();
        e.OutputText += "դրան"_ft;
        e.ScanPos += 3;
    }
    if (e.nextIs("us ") && e.PendingEnding == "ը"_ft) {
        clearThree();
        e.OutputText += "մեզ"_ft;
        e.ScanPos += 3;
        return;
    }
    if (e.nextIs("me ") && e.PendingEnding == "ը"_ft) {
        clearThree();
        e.OutputText += "ինձ"_ft;
        e.ScanPos += 3;
        return;
    }
    // A four-letter literal compared over three characters: never equal.
    if (e.sourceAt(e.ScanPos + 1, 3) == "you ") {
        clearThree();
        e.OutputText += "ձեզ"_ft;
        e.ScanPos += 4;
        return;
    }
    if (e.nextIs("be ") && e.sourceAt(e.ScanPos + 4, 4) != "late") {
        e.CurrentWord.clear();
        e.ScanPos += 3;
        return;
    }
    if (e.nextIs("him ") || e.nextIs("her ")) {
        clearThree();
        e.OutputText += "նրան"_ft;
        e.ScanPos += 3;
    }
    if (e.nextIs("sign")) {
        e.InsertText = FontText("կնքել"_ft);
        e.ScanPos += 4;
        mctn(e);
    }
    if (e.nextIs("that")) {
        clearThree();
        e.OutputText += "դրան"_ft;
        e.ScanPos += 4;
    }
    if (e.nextIs("them") && e.PendingEnding == "ը"_ft) {
        clearThree();
        e.OutputText += "դրանց"_ft;
        e.ScanPos += 5;
    }
    if (e.nextIs("the ")) {
        // "to" stays the word, so the rescan reads it again before the noun.
        e.PendingEnding += "ին"_ft;
        e.ScanPos += 4;
        return;
    }
    if (e.nextIs("date")) {
        e.CurrentWord.clear();
        e.OutputText += "մինչ օրս"_ft;
        e.ScanPos += 5;
        return;
    }
    if (e.nextIs("death")) {
        setWord(e, "mortally");
        e.ScanPos += 6;
        return;
    }
    if (e.nextIs("focus")) {
        setWord(e, "concentrate");
        e.ToMark = "to";
        e.ScanPos += 6;
        return;
    }
    if (e.nextIs("orient")) {
        setWord(e, "streamline");
        e.ToMark = "to";
        e.ScanPos += 7;
        return;
    }
    e.ToMark = "to";
    e.CurrentWord.clear();
    e.ScanPos += 1;
}

void AAnProcedure(Engine& e) {
    if (e.PendingEnding == "ներ"_ft) e.PendingEnding.clear();
    nounLikeTag(e);
    if (e.nextIs("bit ") || e.nextIs("bit.") || e.nextIs("bit,") || e.nextIs("bit:")) {
        setWord(e, "few");
        e.ScanPos += 4;
        return;
    }
    if (e.nextIs("number of")) {
        setWord(e, "several");
        e.IndefiniteFlag = 1;
        e.ScanPos += 10;
        return;
    }
    e.ThirdPersonFlag.clear();
    e.ReorderCounter = 1;
    if (e.HaveForm.empty()) e.PersonCode = 5;
    if (e.nextIs("lot ")) {
        e.CurrentWord.clear();  // no skip: "lot" is read next
        return;
    }
    e.IndefiniteFlag = 1;
    e.ArticleEnding.clear();
    if (!e.PendingCopula.empty()) {
        // After a copula the article stands for nothing: on to the next word.
        e.CurrentWord.clear();
        e.ScanPos += 1;
    } else {
        // "one-" (the indefinite "մի") is read again from the delimiter and looked up. The design
        // skips the delimiter here as well; the rescan would then put the next word's letters
        // onto "one-" ("one-book"), and neither the article nor the noun would be found.
        setWord(e, "one-");
    }
}

void DefArtProcedure(Engine& e) {
    e.ArticleEnding = FontText("ը"_ft);
    e.ClassChain = " ";
    e.SentenceClasses += 'v';
    e.CurrentWord.clear();
    e.ScanPos += 1;
    nounLikeTag(e);
}

void QwestionWorsProcedure(Engine& e) {
    if (e.nextIs("many") || e.nextIs("much")) {
        setWord(e, "how much");
        e.ScanPos += 4;
    }
    if (atSentenceStart(e)) {
        e.teqst_dblclick();
        e.OutputText += static_cast<char>(font::kQuestionSign);
        // The sign goes again if the sentence ends in "." (not a question after all).
        e.QuestionMarkPosition = static_cast<std::int64_t>(e.OutputText.size());
    }
    if (e.nextIs("for ")) {
        e.CurrentWord.clear();
        if (e.outputEndsWith("ւմ՞"_ft)) {
            cutOutput(e, 2);
            e.OutputText += "՞մ համար"_ft;
        } else {
            if (e.outputEndsWith("ու՞"_ft)) cutOutput(e, 2);
            cutOutput(e, 1);
            e.OutputText += "ի՞ համար"_ft;
        }
        e.ScanPos += 4;
        e.PendingEnding.clear();
    }
    if (e.nextIs("from ")) {
        e.ClassChain = " ";
        e.CurrentWord.clear();
        cutOutput(e, 1);
        e.OutputText += "ի՞ց"_ft;
        e.ScanPos += 5;
        e.PendingEnding.clear();
    }
    if (e.nextIs("about ")) {
        e.ClassChain = " ";
        if (e.outputEndsWith("ւմ՞"_ft)) {
            cutOutput(e, 2);
            e.OutputText += "՞մ մասին"_ft;
        } else {
            cutOutput(e, 1);
            e.OutputText += "ի՞ մասին"_ft;
        }
        e.CurrentWord.clear();
        e.ScanPos += 6;
        e.PendingEnding.clear();
    }
}

void oof(Engine& e) {
    if (!e.SentenceClasses.ends_with('n')) {
        e.SentenceClasses.clear();
        return;
    }
    const std::size_t oldLength = e.OutputText.size();
    e.SentenceClasses.pop_back();
    std::size_t cursor = oldLength;  // 1-based position of the character looked at
    while (cursor > 0) {
        const char c = e.OutputText[cursor - 1];
        if (c == ' ') {
            const char last = e.SentenceClasses.empty() ? '\0' : e.SentenceClasses.back();
            if (last == 'n') {
                e.SentenceClasses.pop_back();
                break;
            }
            if (last != 'a' && last != 'c') break;
            e.SentenceClasses.pop_back();
        } else if (c == ':') {
            e.OutputText += ' ';
            break;
        }
        e.HeldConjunction.insert(e.HeldConjunction.begin(), c);
        --cursor;
    }
    e.HeldConjunction.insert(e.HeldConjunction.begin(), ' ');
    e.CapitalFlag = 1;
    e.pokr();
    const std::size_t keep = oldLength > e.HeldConjunction.size() ? oldLength - e.HeldConjunction.size() : 0;
    e.OutputText.resize(keep);
    e.SentenceClasses.clear();
}

// A pronoun after "from" or "by" takes its own ablative or instrumental form.
void Engine::qezanic() {
    const FontText word = CurrentWord;
    if (word == "you" || word == "it") {
        CurrentWord.clear();
        InsertText = FontText("ձեզան"_ft);
        mctn(*this);
        OutputText += PendingEnding;
    } else if (word == "me" || word == "us") {
        teqst_dblclick();
        OutputText += "ան"_ft;
        OutputText += PendingEnding;
    } else if (word == "them" || word == "him") {
        teqst_dblclick();
        OutputText += PendingEnding;
    } else {
        return;
    }
    PendingEnding.clear();
}

// A pronoun before a postposition is written in its possessive form, with the postposition.
void Engine::qo_mej() {
    const FontText word = CurrentWord;
    if (word == "you") {
        CurrentWord = "your";
    } else if (word == "me") {
        CurrentWord = "my";
    } else if (word == "us") {
        CurrentWord = "our";
    } else if (word == "him") {
        CurrentWord = "his";
    } else if (word == "it") {
        CurrentWord.clear();
        InsertText = FontText("դրա"_ft);
        mctn(*this);
    } else if (word != "them") {
        return;
    }
    teqst_dblclick();
    ArticleEnding.clear();
    if (PendingEnding.size() > 1) {
        OutputText += PendingEnding.substr(1);
        PendingEnding.clear();
    }
}

}  // namespace vorlexa
