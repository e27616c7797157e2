// Steps B to F of the English-to-Armenian emission: what the look-up does with a record before
// the gloss is inflected. Each step sees what the one before it did.
#include <algorithm>

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

namespace {

bool oneOf(std::string_view s, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), s) != words.end();
}

// The history of "ն"-endings keeps the last two words only.
constexpr std::size_t kNounEndingHistory = 2;

constexpr std::string_view kNounTag = "n    ";
constexpr std::string_view kAdjectiveTag = "a    ";

char tagAt(const FontText& tag, std::size_t position1) {
    return position1 <= tag.size() ? tag[position1 - 1] : ' ';
}

}  // namespace

void Engine::emitSteps_B_to_F() {
    // B. Question opening: a sentence that begins with a copula or "պիտի" asks a question.
    WordGloss = FontText(trimBlanks(DictRecord.gloss()));
    const bool sentenceStart = OutputText.empty() || outputEndsWith(": ") || outputEndsWith("\r\n");
    if (sentenceStart && oneOf(WordGloss, {"եմ"_ft, "է"_ft, "էր"_ft, "էին"_ft, "են"_ft, "պիտի"_ft}) &&
        ImperativeFlag.empty() && !outputEndsWith("Մի "_ft) && Check1 == 0) {
        OutputText += "Արդյո՞ք "_ft;
        QuestionAsked = 1;
    }

    // C. Record history.
    NounEndingSeen += WordGloss.ends_with("ն"_ft) ? '1' : '0';
    if (NounEndingSeen.size() > kNounEndingHistory)
        NounEndingSeen.erase(0, NounEndingSeen.size() - kNounEndingHistory);
    for (const std::string_view ending : {"ին"_ft, "ից"_ft, "ով"_ft}) {
        if (WordGloss.ends_with(ending)) {
            GlossEnding = FontText(ending);
            if (ending == "ին"_ft) WordPartFlag = 1;
            break;
        }
    }
    WordTag = DictRecord.tag();
    if (tagAt(WordTag, 1) == 'n') {
        PersonCode = 4;
        // After a genitive in "-ան" the noun describes the next word.
        if (outputEndsWith("ան"_ft)) WordTag = FontText(kAdjectiveTag);
    }

    // D. Tag rewriting.
    if (tagAt(WordTag, 1) == 'v' && tagAt(WordTag, 4) == 't') PendingPlural = 1;
    if (tagAt(WordTag, 1) == 'v' && tagAt(WordTag, 5) == 'n' && AfterHaveBeen == 1) WordTag = FontText(kNounTag);
    AfterHaveBeen.clear();
    if (tagAt(WordTag, 1) == 'n' && PendingEnding == "ու"_ft) WordGloss += "ել"_ft;
    if (tagAt(WordTag, 1) == 'v' && tagAt(WordTag, 5) == 'n' &&
        (!PendingEnding.empty() || !ArticleEnding.empty() || DefiniteState == -1) &&
        (VerbFormMark.empty() || PendingCopula.empty()) && !(PersonCode == 4)) {
        WordTag = FontText(kNounTag);
        // The infinitive declined: "ի մեջ" after "-ել" becomes "ու մեջ".
        if (PendingEnding.starts_with("ի"_ft) && WordGloss.ends_with("ել"_ft))
            PendingEnding.replace(0, "ի"_ft.size(), "ու"_ft);
    }
    if (VerbFormMark == "ած"_ft) {
        if (WordGloss.ends_with(" տալ"_ft))
            WordGloss.replace(WordGloss.size() - " տալ"_ft.size(), " տալ"_ft.size(), " տվել"_ft);
        else if (WordGloss.ends_with(" գալ"_ft))
            WordGloss.replace(WordGloss.size() - " գալ"_ft.size(), " գալ"_ft.size(), " եկել"_ft);
    }

    // E. Definite ending: a plain noun is definite unless a quantity word stood before it; a
    // comma at the end of a line addresses someone.
    const bool commaAtLineEnd = sourceAt(ScanPos, 2) == ",\r";
    const bool plainEnding = PendingEnding.empty() || PendingEnding == "ներ"_ft;
    if (tagAt(WordTag, 1) == 'n' && plainEnding && ArticleEnding.empty() && !commaAtLineEnd) {
        if (IndefiniteFlag.empty()) {
            DefiniteState = 1;
            if (LinkFlag == 1) ThirdPersonFlag = 1;
        } else {
            IndefiniteFlag.clear();
        }
    } else if (commaAtLineEnd) {
        ImperativeFlag = 1;
        PersonCode = 2;
    }
    if (DefiniteState == 1 && plainEnding && tagAt(WordTag, 1) == 'n') {
        ArticleEnding = "ը"_ft;
        DefiniteState = 0;
    }
    if (!ArticleEnding.empty() && VerbFormMark.empty() && PendingEnding != "ներ"_ft) PersonCode = 5;

    // F. Class trail.
    const char classLetter = tagAt(WordTag, 1);
    ClassChain += classLetter;
    SentenceClasses += classLetter;
    const auto replaceLast = [](FontText& classes, std::string_view with) {
        if (!classes.empty()) classes.pop_back();
        classes += with;
    };
    if (WordGloss.starts_with("ավելի "_ft) || WordGloss.starts_with("Ավելի "_ft)) {
        replaceLast(ClassChain, "aa");
        replaceLast(SentenceClasses, "aa");
    }
    if (!VerbFormMark.empty() || GenitiveMark == 1) {
        replaceLast(ClassChain, "v");
        replaceLast(SentenceClasses, "v");
    }
    if (!ClassChain.empty() && ClassChain.front() != ClassChain.back()) ClassChain = ClassChain.substr(ClassChain.size() - 1);
    if (!InsertText.empty()) ClassChain.clear();
    if (PhraseActive == 1) WordGloss.clear();
}

}  // namespace vorlexa
