// The run: set-up from the source pane, the direction guess, and the resets of the engine state.
#include "engine/engine.h"

#include <array>
#include <cstdint>
#include <functional>
#include <system_error>

namespace vorlexa {

using namespace literals;

namespace {

constexpr double kUnicodeQuestionShare = 60.0;  // percent of "?": Unicode pasted into a byte box
constexpr double kQuoteLetterShare = 4.0;       // percent of '"': the quote writes the letter "ե"
// A translation is seldom twice as long as its source; pages of the room it leaves unused are never
// touched, so they cost no memory.
constexpr std::size_t kResultRoomPerSourceByte = 2;

// Replaces each double blank by one blank in a single left-to-right pass, so that three blanks
// become two.
// The text between double blanks is copied whole.
// `out` keeps its room from the run before.
void foldDoubleBlanks(std::string_view text, FontText& out) {
    const std::less<const char*> before;
    if (!before(text.data(), out.data()) && before(text.data(), out.data() + out.capacity())) {
        foldDoubleBlanks(FontText(text), out);  // a text inside `out` itself is read from a copy
        return;
    }
    out.clear();
    out.reserve(text.size() + 1);
    std::size_t from = 0;
    for (std::size_t pair = text.find("  "); pair != std::string_view::npos; pair = text.find("  ", from)) {
        out.append(text.substr(from, pair + 1 - from));
        from = pair + 2;
    }
    out.append(text.substr(from));
}

constexpr bool isLatinLetter(unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// What the direction guess counts of each byte, looked up in a table: the count reads every byte.
enum CountedKind : std::uint8_t { kUncounted, kQuestionMark, kQuote, kEnglishSign, kArmenianLetter, kCountedKinds };
constexpr auto kCountedKind = [] {
    std::array<std::uint8_t, 256> kind{};
    for (int b = 0; b < 256; ++b) {
        const auto c = static_cast<unsigned char>(b);
        if (c == '?') kind[c] = kQuestionMark;
        else if (c == '"') kind[c] = kQuote;
        else if (isLatinLetter(c) || c == '!' || c == '&') kind[c] = kEnglishSign;
        else if (font::isArmenianLetter(c)) kind[c] = kArmenianLetter;
    }
    return kind;
}();

}  // namespace

Engine::Engine(DictionaryStore& dictionaries, std::filesystem::path folder, Host& windowHost)
    : store(dictionaries), host(windowHost), dataFolder(std::move(folder)) {}

void Engine::openTermsFile() {
    TermsFile = RecordFile();
    TermsFile.open(dataFolder / kTermsFileName, kTermRecordLength);
    termsFileMayStand_ = true;
    // The terms met before the file stood go to their records first.
    if (TermsFile.isOpen())
        for (const auto& [record, word] : heldTerms_) TermsFile.write(record, word);
    heldTerms_.clear();
}

void Engine::ensureTermsFile() {
    if (!termsFilePending_) return;
    termsFilePending_ = false;
    openTermsFile();
}

void Engine::Text3_Change(const FontText& text) {
    if (checked(MenuItem::EdtTr)) host.setChecked(MenuItem::EdtTr, false);
    QuoteCount = 0;
    QuestionCount = 0;
    termsFilePending_ = true;
    unknownWordMet_ = false;
    heldTerms_.clear();

    // The scanner needs a delimiter after the last word.
    foldDoubleBlanks(text, SourceText);
    if (SourceText.empty() || SourceText.back() != ' ') SourceText += ' ';

    EnglishCount = 1;
    ArmenianCount = 1;
    TimeOfStart = std::chrono::steady_clock::now();
    OutputText.clear();
    // Room for the result at once: growing a long result step by step holds two copies at each step.
    OutputText.reserve(SourceText.size() * kResultRoomPerSourceByte);
    // A spell-check pass shows the text it checks, so that the word in question can be selected.
    host.setResultText(SpellMode == 1 ? SourceText : FontText{});

    std::array<std::int64_t, kCountedKinds> counts{};
    for (const char ch : SourceText) ++counts[kCountedKind[static_cast<unsigned char>(ch)]];
    const std::int64_t questions = counts[kQuestionMark];
    const std::int64_t quotes = counts[kQuote];
    EnglishCount += counts[kEnglishSign];
    ArmenianCount += counts[kArmenianLetter];
    QuestionCount = static_cast<int>(questions);
    QuoteCount = static_cast<int>(quotes);
    const double length = static_cast<double>(SourceText.size());

    if (static_cast<double>(questions) / length * 100.0 >= kUnicodeQuestionShare) {
        ensureTermsFile();
        host.notify(Notice{{FontText("Armenian text is UNICODE.\r\nClick 'Ctrl+V' after 'OK' to continue."),
                            FontText("Հայերեն տեքստը UNICODE է:"_ft) + "\r\n" +
                                FontText("Շարունակության համար 'OK'-ից հետո սեղմեք 'Ctrl+V':"_ft)},
                           {}});
        host.openConverter();
        host.setBusy(true);
        host.setResultText(FontText("ՈՒՇԱԴՐՈՒԹՅՈՒՆ!!!! ԹԱՐԳՄԱՆՈՒԹՅՈՒՆԸ ՍՏԱՆԱԼՈՒ ՀԱՄԱՐ ՍԵՂՄԵ'Ք 'Ctrl+V':"_ft) +
                           "\r\nATTENTION!!!!  CLICK 'Ctrl +V' TO RECIEVE THE TRANSLATION.");
        return;
    }

    if (EnglishCount > ArmenianCount) {
        Check1 = 0;
        static const Wording kSpellTitle{"ENGLISH SPELLCHECKER", FontText("Սխալների ուղղում` անգլերենով"_ft)};
        static const Wording kRunTitle{"Translating from English to Armenian",
                                       FontText("Թարգմանում է անգլերենից հայերեն:"_ft)};
        host.setTitle(SpellMode == 1 ? kSpellTitle : kRunTitle);
    } else {
        Check1 = 1;
        if (static_cast<double>(quotes) / length * 100.0 >= kQuoteLetterShare) QuoteCount = "ե"_ft;
        static const Wording kSpellTitle{"ARMENIAN SPELLCHECKER", FontText("Սխալների ուղղում` հայերենով"_ft)};
        static const Wording kRunTitle{"Translating from Armenian to English",
                                       FontText("Թարգմանում է հայերենից անգլերեն:"_ft)};
        host.setTitle(SpellMode == 1 ? kSpellTitle : kRunTitle);
    }

    if (!checked(MenuItem::ITR)) host.showProgress(true);
    lastProgress_ = -1;
    ScanPos = 1;
    HaveFormPos = 0;
    stopped.reset();
    progressGuard.start();
    ankap0_DblClick();
    EnglishCount = 1;
    ArmenianCount = 1;
}

void Engine::resumeRun() {
    if (state != RunState::Waiting) return;
    AnswerCode = kAnswerNo;
    ankap0_DblClick();
}

InsertResult Engine::saveWordAndResume(std::string_view key, std::string_view gloss, std::string_view tag) {
    const InsertResult result = insertWordPair(
        store, Check1 == 0 ? Direction::EnglishToArmenian : Direction::ArmenianToEnglish, key, gloss, tag);
    resumeRun();
    return result;
}

void Engine::resetWord() {
    CurrentWord.clear();
    WordGloss.clear();
    ToMark.clear();
    VerbFormMark.clear();
    CapitalFlag.clear();
    GenitiveMark.clear();
}

void Engine::resetSentence() {
    ClauseStartFlag.clear();
    PendingCopula.clear();
    ModalFlag.clear();
    NegationMark.clear();
    AdverbFlag.clear();
    ClassChain.clear();
    PendingEnding.clear();
    ArticleEnding.clear();
    PerfectFlag.clear();
    ThirdPersonFlag.clear();
    LinkFlag.clear();
    PersonCode.clear();
    DoFlag.clear();
    ImperativeFlag.clear();
    ContractionFlag.clear();
    HaveForm.clear();
    ToMark.clear();
    SecondLook.clear();
    SentenceClasses.clear();
    DefiniteState = 0;
    HeldConjunction.clear();
    InsertText.clear();
    CopulaUsedMark.clear();
    LastSeenWord.clear();
    WhileFlag.clear();
    EnglishAuxBack = 0;
    IndefiniteFlag.clear();
    AfterHaveBeen.clear();
    CanFlag.clear();
    PendingPlural.clear();
    QuestionAsked.clear();
    NounEndingSeen.clear();
    ExcludeFinalS.clear();
    AbleFlag.clear();
    ParticipleGuess.clear();
    QuestionMarkHold.clear();
    QuestionMarkPosition = 0;
    GenitiveMark.clear();
    // Flags the word rules declare for themselves last one sentence: a "would" must not make the
    // "will" of the sentences after it conditional.
    ConditionalFlag.clear();
    SpeechVerbFlag.clear();

    FutureParticle.clear();
    CaseEndingSeen.clear();
    SingularPast.clear();
    SecondPersonEnding.clear();
    ThirdPersonEnding.clear();
    LessPrefix.clear();
    PassiveStemSeen.clear();
    CausativeVerb.clear();
    ProgressiveNext.clear();
    TransitiveNext.clear();
    PrepositionNext.clear();
}

void Engine::resetRun() {
    SpellMode.clear();
    AskedOnceMark.clear();
    FirstUnknownAnswer = 0;
    UnknownCount = 0;
    AnswerCode = 0;
    PhraseTail.clear();
    RawWord.clear();
    TermCount = 1;
    termsIndex_.clear();
}

}  // namespace vorlexa
