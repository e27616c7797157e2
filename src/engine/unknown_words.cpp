// Words no record matched: the TermsFile of the run, the questions, and the word left in the
// text as it stands.
#include <optional>

#include "engine/engine.h"
#include "spell/spell_pass.h"

namespace vorlexa {

using namespace literals;

namespace {

constexpr std::size_t kHideWindowTextLength = 4000;  // longer texts run on unattended, minimised
constexpr int kMaxAnalysisDepth = 64;  // each layer peels an ending; a deeper chain would be a loop
// The analysis of a word writes, cuts and inserts only among the last words of the output.
constexpr std::size_t kOutputTouched = 256;

Question firstUnknownQuestion() {
    Question q;
    q.kind = QuestionKind::UnknownWords;
    q.text.english =
        "TRANSLATION CONTAINS UNKNOWN WORDS!\n\rWOULD YOU LIKE TO ADD THEM TO DICTIONARIES?\n\r\n\r"
        "('YES' - Program will stop by all unknown words,\n\r 'NO' - will leave them not translated.)";
    q.text.armenian = FontText("Թարգմանությունը պարունակում է անհայտ բառեր`"_ft) + "\n\r" +
                      FontText("Կկամենայի՞ք ավելացնել դրանք բառարաններին:"_ft);
    q.title.english = "Dictionary editing note";
    q.title.armenian = q.title.english;  // the box has no Armenian title of its own
    return q;
}

Question perWordQuestion(const FontText& word, bool spellMode) {
    Question q;
    q.subject = word;
    if (spellMode) {
        q.kind = QuestionKind::CorrectUnknownWord;
        q.text.english = "Word '" + word + "' - not recognised!\r\nTo be corrected?";
        q.text.armenian = FontText("«"_ft) + word + FontText("» բառը չի ճանաչվել:"_ft) + "\r\n" +
                          FontText("Ուղղե՞լ"_ft);
        q.title.english = "Spellchecker";
        q.title.armenian = FontText("Սխալների ուղղում"_ft);
    } else {
        q.kind = QuestionKind::AddUnknownWord;
        q.text.english = "No Word '" + word + "' In Dictionary.\r\nShall We Add it Now?";
        q.text.armenian = FontText("«"_ft) + word + FontText("» բառը բառարանում չկա:"_ft) + "\r\n" +
                          FontText("Ավելացնե՞լ"_ft);
        q.title.english = "Attention !!!";
        q.title.armenian = FontText("Ուշադրություն"_ft);
    }
    return q;
}

// One letter as the look-up sees it: Latin and Armenian capitals fold to their small letters.
unsigned char foldedLetter(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + ('a' - 'A'));
    return font::toSmall(c);
}

// The scanner folds capitals as it builds a word; the source text still holds the word as it was
// typed. Returns the typed spelling of the word that ends just before ScanPos (or at it, when the
// word is reported before the scanner passed its last letter, or before the "'s" it passed over),
// or the word itself when the text there holds other letters (a rule replaced the word).
FontText typedSpelling(std::string_view source, std::int64_t scanPos, const FontText& word) {
    const auto length = static_cast<std::int64_t>(word.size());
    if (length == 0) return word;
    constexpr std::int64_t kPossessiveLength = 2;  // "'s", which the scanner steps over
    for (const std::int64_t last : {scanPos - 1, scanPos, scanPos - 1 - kPossessiveLength}) {
        const std::int64_t first = last - length + 1;
        if (first < 1 || last > static_cast<std::int64_t>(source.size())) continue;
        const std::string_view typed = source.substr(static_cast<std::size_t>(first - 1), word.size());
        bool same = true;
        for (std::size_t i = 0; i < word.size() && same; ++i)
            same = foldedLetter(static_cast<unsigned char>(typed[i])) == foldedLetter(static_cast<unsigned char>(word[i]));
        if (same) return FontText(typed);
    }
    return word;
}

// In Armenian text the postpositions and auxiliaries that follow go before the word group just
// written; an unknown word is such a group as much as a translated one.
void noteWordGroupWritten(Engine& e, std::size_t length) {
    if (e.Check1 != 1) return;
    e.CopyDepth = static_cast<std::int64_t>(length);
    e.VerbBackOffset = e.CopyDepth + e.EnglishAuxBack;
    e.EnglishAuxBack = 0;
}

}  // namespace

// The not-found path drives the ending analysis: hayqer rewrites the word and looks it up, and a
// look-up that fails comes back here with the shorter word. LastStemmed stops a word that the
// analysis cannot change any more.
void Engine::notFoundPath() {
    // The user is adding or correcting a word: nothing more of it is analysed or asked about.
    if (AnswerCode == kAnswerYes) {
        CurrentWord.clear();
        return;
    }
    const bool outermost = notFoundDepth_ == 0;
    // What the analysis of this word may change, kept so that a pause can take it back.
    struct Before {
        FontText word, pendingEnding, articleEnding, verbFormMark, insertText, outputTail, lastStemmed;
        std::int64_t scanPos, englishAuxBack;
        std::size_t keptOutput;
        Flag futureParticle, caseEndingSeen, singularPast, secondPerson, thirdPerson, participleGuess;
    };
    std::optional<Before> before;
    if (outermost) {
        const std::size_t kept = OutputText.size() > kOutputTouched ? OutputText.size() - kOutputTouched : 0;
        before = Before{CurrentWord,
                        PendingEnding,
                        ArticleEnding,
                        VerbFormMark,
                        InsertText,
                        OutputText.substr(kept),
                        LastStemmed,
                        ScanPos,
                        EnglishAuxBack,
                        kept,
                        FutureParticle,
                        CaseEndingSeen,
                        SingularPast,
                        SecondPersonEnding,
                        ThirdPersonEnding,
                        ParticipleGuess};
    }

    ++notFoundDepth_;
    LastSeenWord = CurrentWord;
    const bool placed = notFoundDepth_ <= kMaxAnalysisDepth && LastSeenWord != LastStemmed && retryUnknownWord();
    if (!placed && AnswerCode != kAnswerYes) reportUnknownWord();
    --notFoundDepth_;

    // The run pauses on this word: it is translated afresh when the run resumes, so what the
    // analysis wrote or set for it is taken back.
    if (before && AnswerCode == kAnswerYes && SpellMode != 1) {
        CurrentWord = before->word;
        PendingEnding = before->pendingEnding;
        ArticleEnding = before->articleEnding;
        VerbFormMark = before->verbFormMark;
        InsertText = before->insertText;
        LastStemmed = before->lastStemmed;
        ScanPos = before->scanPos;
        EnglishAuxBack = before->englishAuxBack;
        OutputText.resize(before->keptOutput);
        OutputText += before->outputTail;
        FutureParticle = before->futureParticle;
        CaseEndingSeen = before->caseEndingSeen;
        SingularPast = before->singularPast;
        SecondPersonEnding = before->secondPerson;
        ThirdPersonEnding = before->thirdPerson;
        ParticipleGuess = before->participleGuess;
    }
}

bool Engine::retryUnknownWord() {
    // A stem that doubled its last letter before a participle ending: "stopp" of "stopping".
    const bool participle = VerbFormMark == "ած"_ft || VerbFormMark == "ող"_ft || VerbFormMark == "ում"_ft;
    if (CurrentWord.size() > 2 && (participle || !SecondLook.empty()) &&
        CurrentWord[CurrentWord.size() - 1] == CurrentWord[CurrentWord.size() - 2]) {
        CurrentWord.pop_back();
        SecondLook.clear();
    }
    if (CurrentWord.ends_with("ե"_ft)) {
        CurrentWord.pop_back();
        UnicodeCount = "»"_ft;
        teqst_dblclick();
    }
    hayqer();
    LastStemmed = CurrentWord;
    if (CurrentWord == LastSeenWord) {
        // The analysis changed nothing; a stem whose "ի" was cut may be a verb in "իալ".
        if (StemEndFlag != "ի"_ft) return false;
        CurrentWord += "ալ"_ft;
        StemEndFlag.clear();
        teqst_dblclick();
        return true;
    }
    teqst_dblclick();
    return true;
}

void Engine::reportUnknownWord() {
    unknownWordMet_ = true;
    // An unknown word stands in the text, and in the questions, with the case it was typed in:
    // a name keeps its capital.
    RawWord = typedSpelling(SourceText, ScanPos, RawWord);
    // The word stands whole, with the "ե" the analysis cut from it: no closing mark is owed.
    if (UnicodeCount == "»"_ft) UnicodeCount.clear();
    ++stats.unknownOccurrences;
    if (stats.collectUnknownWords) ++stats.unknownWords[RawWord];

    // A word already reported in this run is written as it stands, with no question.
    if (termsIndex_.contains(RawWord)) {
        OutputText += RawWord;
        OutputText += PendingEnding;
        OutputText += ArticleEnding;
        noteWordGroupWritten(*this, RawWord.size() + PendingEnding.size() + ArticleEnding.size());
        // The endings are written on the word: the tail of the word end must not write them again
        // ("zorbիցից") or carry them to the next word.
        PendingEnding.clear();
        ArticleEnding.clear();
        CurrentWord.clear();
        QuestionMarkHold.clear();
        return;
    }

    ++UnknownCount;
    bool askEachWord = false;
    if (SpellMode == 1) {
        askEachWord = true;
    } else if (checked(MenuItem::ITR) || FirstUnknownAnswer == kAnswerNo) {
        askEachWord = false;
    } else if (AskedOnceMark.empty()) {
        AskedOnceMark = 1;
        if (checked(MenuItem::EF) || checked(MenuItem::SUT)) {
            refuseUnknownWordQuestions();
        } else {
            host.setResultText(OutputText);
            AnswerCode = askUser(firstUnknownQuestion());
            if (AnswerCode == kAnswerYes) {
                FirstUnknownAnswer = kAnswerYes;
                askEachWord = true;
            } else {
                refuseUnknownWordQuestions();
            }
        }
    } else {
        askEachWord = FirstUnknownAnswer == kAnswerYes;
    }

    if (askEachWord) {
        AnswerCode = askUser(perWordQuestion(RawWord, SpellMode == 1));
        if (AnswerCode == kAnswerYes) {
            // The add-word panel opens and the scanner leaves at this word's end; the run goes
            // on when the panel is saved.
            if (SpellMode == 1 && CapitalFlag == 1) pokr2();
            if (SpellMode == 1 && RawWord == "ա"_ft) ArTr();
            if (SpellMode == 1) {
                // Whatever the dialect answer was, the pass waits for this word's correction.
                AnswerCode = kAnswerYes;
                spell::correctUnknownWord(*this);
                return;
            }
            host.openAddWordPanel(RawWord);
            return;
        }
    }

    // No: the word joins the TermsFile and stays in the text untranslated.
    CapitalFlag.clear();
    PendingEnding.clear();
    ArticleEnding.clear();
    VerbFormMark.clear();
    if (TermsFile.isOpen()) {
        TermsFile.write(TermCount, RawWord);
    } else if (termsFilePending_) {
        heldTerms_.emplace_back(TermCount, RawWord);
    }
    termsIndex_.insert(FontText(trimBlanks(mid(RawWord, 1, kTermRecordLength))));
    ++TermCount;
    ++stats.termsWritten;
    OutputText += RawWord;
    OutputText += PendingEnding;
    OutputText += ArticleEnding;
    noteWordGroupWritten(*this, RawWord.size() + PendingEnding.size() + ArticleEnding.size());
    CurrentWord.clear();
    QuestionMarkHold.clear();
}

// "ա" alone is the Yerevan dialect's "է": the whole result can be repaired by the dialect pairs.
void Engine::ArTr() {
    Question q;
    q.kind = QuestionKind::DialectRepair;
    q.text.english = "Your text contains elements of Yerevan dialect. Shall we correct them?";
    q.text.armenian = FontText("Տեքստը պարունակում է արարատյան բարբառի տարրեր: Սրբագրե՞լ:"_ft);
    q.title = {"Warning", "Warning"};
    q.buttons = Buttons::YesNo;
    q.subject = RawWord;
    AnswerCode = askUser(q);
    if (AnswerCode == kAnswerYes) CTYD();
}

// A question hands control to the user: the run's terms stand in their file first.
int Engine::askUser(const Question& question) {
    ensureTermsFile();
    return host.ask(question);
}

// The user does not want to be asked: a long text goes on unattended.
void Engine::refuseUnknownWordQuestions() {
    FirstUnknownAnswer = kAnswerNo;
    if (SourceText.size() > kHideWindowTextLength) {
        host.minimiseWindow();
        host.hideConverter();
    }
}

}  // namespace vorlexa
