// The translation engine: one long-lived object that owns all run state as plain members.
//
// Every rule procedure reads and writes the same members, so the names below are the contract
// between the scanner, the look-up, the inflection and the word rules. Strings are font text.
// A flag is a Var holding empty or 1 (see var.h): compare with `== 1` or `.empty()`, set with
// `= 1`, clear with `.clear()`. PersonCode, QuoteCount, QuestionCount, DefiniteState and
// HaveForm hold a number first and may later hold text, so they are Vars too.
//
// Resets: resetWord() at the end of each emitted word, resetSentence() at a sentence end and
// at the end of a run, resetRun() when a run ends.
//
// A run is Text3_Change(text). It walks SourceText with ankap0_DblClick and finishes with
// TransEndProcedure, which puts the result into the host's result pane. A run that stops on an
// unknown word (state Waiting) is continued with resumeRun() or saveWordAndResume().
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "engine/dictionary_store.h"
#include "engine/host.h"
#include "engine/pair_repairs.h"
#include "engine/progress_guard.h"
#include "engine/var.h"
#include "engine/watched_file.h"
#include "text/font_text.h"

namespace vorlexa {

enum class RunState {
    Idle,     // no run, or the last one ended
    Running,  // the scanner walks the text
    Waiting,  // the scanner has left on an unknown word; the add-word panel stands open
    Suspended,  // the scanner has left between two words for the window's sake; ankap0_DblClick goes on
};

// How a trigger hands control back to the scanner.
enum class TriggerReturn {
    Finish,  // look up what is left in CurrentWord, attach the endings, handle the delimiter
    Rescan,  // back to the head of the loop, without look-up and without moving
};

// Counts kept for the coverage report; they change nothing in the translation.
// Why a run ended before the end of its text: the scanner's guards stopped it (see scanner.h).
struct RunStop {
    std::int64_t character = 0;  // 1-based character of the source text where the scanner stood
    FontText reason;             // the English wording of the notice the host was shown
};

struct RunStatistics {
    std::int64_t unknownOccurrences = 0;      // times an unknown word was left in the text
    std::int64_t termsWritten = 0;            // words written to the TermsFile
    std::int64_t longWordAnalyses = 0;        // times a word wider than a key went to the analysis
    bool collectUnknownWords = false;         // also count each unknown word by itself
    std::map<FontText, std::int64_t> unknownWords;
};

class Engine {
public:
    // The dictionaries must be open; dataFolder is the working folder that holds the TermsFile
    // and the pair lists.
    Engine(DictionaryStore& store, std::filesystem::path dataFolder, Host& host);
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    DictionaryStore& store;
    Host& host;
    const std::filesystem::path dataFolder;
    RunState state = RunState::Idle;
    RunStatistics stats;
    std::optional<RunStop> stopped;  // set when the last run was stopped by a guard
    ProgressGuard progressGuard;     // holds each run to the progress invariant

    // ---- Run ---------------------------------------------------------------------------
    // Any change of the source pane: sets the run up, guesses the direction and walks the text.
    void Text3_Change(const FontText& text);
    // The scanner loop; also continues a run that stopped on an unknown word.
    void ankap0_DblClick();
    // Asked between two words when set: true makes the scanner leave with the run Suspended,
    // so that a window can take its events and call ankap0_DblClick again to go on.
    std::function<bool()> yieldBetweenWords;
    // Held, the runs read each pair list once, at the first run that needs it, and keep it as it
    // stood then: a batch of runs over one input (the lines of a file) takes the lists as one run
    // over the whole text would. Released, the next run sees any change of a list's file, as
    // every run of the window does.
    void holdPairLists(bool held);
    // Continues a waiting run with the answer reset, ScanPos untouched.
    void resumeRun();
    // The save path of the add-word panel: stores the pair (and its reverse entry) in the
    // dictionaries of the current direction, then continues the run.
    InsertResult saveWordAndResume(std::string_view key, std::string_view gloss, std::string_view tag);
    bool checked(MenuItem item) const { return host.isChecked(item); }

    // ---- Scanner -------------------------------------------------------------------------
    void mecatarer();      // capitals: lower-case them into CurrentWord, set CapitalFlag
    void InternetWhile();  // copy an address into HttpPassThrough up to a blank or CR
    void textselection();  // spell-check: select the word in the result pane

    // ---- Look-up and emission --------------------------------------------------------------
    void teqst_dblclick();  // the look-up and emission of CurrentWord
    void skizbe();          // RangeStart := column of CurrentWord in dictionarye-a
    void skizba();          // RangeStart := column of CurrentWord in dictionarya-e
    void pokr();            // capitalise the first letter of WordGloss
    void pokr2();           // capitalise the first letter of RawWord, clear CapitalFlag
    void derocz();          // agree PendingCopula with the person
    void dasakan_tver();    // an ordinal after a tens word: one compound ordinal
    // Steps B to F of the English-to-Armenian path: question opening, record history, tag
    // rewriting, definite ending, class trail.
    void emitSteps_B_to_F();
    // Steps G to S: the Armenian inflection of the gloss.
    void inflect_G_to_S();
    // The Armenian-to-English branch of teqst_dblclick.
    void teqst_ArmenianToEnglish();

    // ---- Unknown words ------------------------------------------------------------------
    void notFoundPath();       // a word no record matched
    bool retryUnknownWord();   // stemming before the word counts as unknown; true if found
    void reportUnknownWord();  // the TermsFile, the questions, the word left in the text
    void ArTr();               // spell-check: the lone "ա" offers the dialect repair

    // ---- Procedures of the dispatch and the rules ---------------------------------------
    TriggerReturn triggerSelect();  // the trigger-word dispatch of the current direction
    void chkrch();                  // writes a held closing guillemet
    void qezanic();                 // PendingEnding "ից"/"ով" at a word end
    void qo_mej();                  // PendingEnding "ի", "ի մեջ", "ի վրա" ... at a word end
    void hayqer();                  // the ending analysis

    // ---- End of run ----------------------------------------------------------------------
    void TransEndProcedure();
    void poqr_uxxumner1();  // final repairs by the pair list uxxuma / uxxume
    void CTYD();            // dialect repairs of the result pane by the pair list uxxumy
    std::int64_t ReplacementCount = 0;  // pairs of uxxumy that CTYD applied

    // ---- Resets --------------------------------------------------------------------------
    void resetWord();      // W: CurrentWord, WordGloss, ToMark, VerbFormMark, CapitalFlag, GenitiveMark
    void resetSentence();  // S: the sentence flags, at a sentence end and at the end of a run
    void resetRun();       // R: RawWord, PhraseTail, SpellMode, AnswerCode, TermCount ...

    // ---- Helpers for rules ---------------------------------------------------------------
    // The n characters of SourceText at position pos (1-based); "" past the end.
    std::string_view sourceAt(std::int64_t pos, std::size_t n) const {
        return pos < 1 ? std::string_view{} : mid(SourceText, static_cast<std::size_t>(pos), n);
    }
    // sourceAt(pos, literal.size()) == literal, answered inline: the scanner and the rules ask it
    // for every word, and the first character rules out nearly every literal.
    bool sourceIs(std::int64_t pos, std::string_view literal) const {
        if (literal.empty()) return true;
        if (pos < 1 || static_cast<std::uint64_t>(pos - 1) + literal.size() > SourceText.size()) return false;
        const char* at = SourceText.data() + (pos - 1);
        return at[0] == literal[0] && std::string_view(at, literal.size()) == literal;
    }
    // The text at ScanPos + 1 compared with a literal over the literal's length. The scanner asks
    // dozens of these a character, so the first byte is tested before the call.
    bool nextIs(std::string_view literal) const { return mayStartAt(ScanPos + 1, literal) && sourceIs(ScanPos + 1, literal); }
    bool atIs(std::string_view literal) const { return mayStartAt(ScanPos, literal) && sourceIs(ScanPos, literal); }
    bool mayStartAt(std::int64_t pos, std::string_view literal) const {
        return literal.empty() ||
               (pos >= 1 && static_cast<std::uint64_t>(pos) <= SourceText.size() && SourceText[static_cast<std::size_t>(pos - 1)] == literal[0]);
    }
    bool outputEndsWith(std::string_view s) const { return std::string_view(OutputText).ends_with(s); }
    bool englishToArmenian() const { return Check1 == 0; }

    // ---- Master table --------------------------------------------------------------------
    FontText SourceText;      // text under translation, double blanks folded, one trailing blank
    std::int64_t ScanPos = 1; // 1-based position in SourceText
    FontText CurrentWord;     // the word being built, lower case
    FontText RawWord;         // the word for messages and for unknown words
    FontText OutputText;      // the translation so far
    FontText WordGloss;       // gloss of the word being emitted
    FontText WordTag = FontText(kTagWidth, ' ');  // tag of the last record, 5 characters
    vorlexa::DictRecord DictRecord;  // the last record read
    std::int64_t RecIndex = 0;
    std::int64_t RangeStart = 0;
    FontText PendingEnding;   // ending or postposition for the next noun; in A->E "s", "s1"
    FontText ArticleEnding;   // "ը" or "ն" to follow the next noun
    Var DefiniteState = 0;    // 1 next noun takes "ը"; 0 none; -1 a quantity word stood before
    FontText ClassChain;      // class letters of the last word or two
    FontText SentenceClasses; // one class letter per word of the sentence
    FontText TargetClasses;   // the same in A->E
    FontText VerbFormMark;    // "ում", "ած", "ող", "ելիս", "ալիս", "ելով"; A->E "ing", "ed" ...
    Var PersonCode;           // 1 I, 2 you, 3 we, 4 they, 5 he/she/it; later the ending itself
    Flag ThirdPersonFlag;
    FontText PendingCopula;   // auxiliary held back to the end of the clause
    FontText NegationMark;    // "չ" for the next verb
    Flag ModalFlag;
    FontText ToMark;          // "to"
    Flag PerfectFlag;
    Var HaveForm;             // 1 have, 2 had, 3 has
    std::int64_t HaveFormPos = 0;  // ScanPos at the delimiter after the "have" that set HaveForm
    Flag ImperativeFlag;
    Flag ContractionFlag;
    Flag CapitalFlag;
    FontText InsertText;      // text for mctn
    FontText WordTail;        // what follows a trigger stem: "s", "ed", "ing" ...
    FontText PhraseTail;      // rest of a gloss after its first word
    FontText QuestionMarkHold;  // "?" taken from the sign "՞"
    Var QuoteCount;           // double quotes of the text; "ե" when they stand for that letter
    Var QuestionCount;        // question marks of the text; "»" while a closing mark is held
    Flag SpellMode;
    int AnswerCode = 0;       // last dialog answer; 6 at a word end stops the scanner
    std::int64_t TermCount = 1;  // next free record of the TermsFile
    std::chrono::steady_clock::time_point TimeOfStart{};
    std::int64_t EnglishCount = 1;
    std::int64_t ArmenianCount = 1;
    int Check1 = 0;           // direction: 0 English to Armenian, 1 Armenian to English
    int& DirectionFlag = Check1;

    // Further members, cleared at a sentence end.
    Flag PendingPlural;       // a transitive verb was glossed: the next noun takes "ին"
    Flag LinkFlag;            // "ու"/"և" glossed
    Flag QuestionAsked;       // "Արդյո՞ք " was written
    FontText NounEndingSeen;  // "1"/"0" per word: the last words ended in "ն"
    FontText HeldConjunction;
    Flag ClauseStartFlag;
    Flag AfterHaveBeen;
    Flag AbleFlag;
    Flag ExcludeFinalS;
    Flag ParticipleGuess;
    Flag GoodFlag;
    Flag DoFlag;
    Flag AdverbFlag;
    Flag SecondLook;
    Flag WhileFlag;
    Flag CanFlag;
    Flag CouldFlag;
    Flag ClockFlag;
    std::int64_t AncavCount = 0;     // "անցավ" met in the sentence that begins at AncavSentence
    std::int64_t AncavSentence = 0;
    Flag WorkVerbFlag;
    Flag SpeechVerbFlag;      // a verb of speech stood before: "on the phone" is "by phone"
    Flag ConditionalFlag;     // "would" or "should" seen
    FontText NoApostropheMark;  // "n't": the "have" forms take no person ending
    Flag GenitiveMark;        // a possessive "'s" made the word a genitive
    Flag CopulaUsedMark;      // the held copula was joined to a word
    std::int64_t QuestionMarkPosition = 0;  // where the moved question word's sign stands; 0 none
    std::int64_t ReorderCounter = 0;  // set to 1 by an indefinite article
    FontText LastSeenWord;
    FontText LastStemmed;
    FontText StemEndFlag;     // the last letter a one-letter strip removed
    FontText HttpPassThrough; // an address or archive name copied as it stands

    // Verb-analysis flags of the ending analysis.
    Flag FutureParticle;
    Flag CaseEndingSeen;
    Flag SingularPast;
    Flag SecondPersonEnding;
    Flag ThirdPersonEnding;
    Flag LessPrefix;
    Flag PassiveStemSeen;
    Flag CausativeVerb;
    Flag ProgressiveNext;
    Flag TransitiveNext;
    Flag PrepositionNext;
    // The ending analysis knows QuestionCount as UnicodeCount and QuoteCount as DialectLetterCount.
    Var& UnicodeCount = QuestionCount;
    Var& DialectLetterCount = QuoteCount;

    // Members of the look-up alone.
    std::int64_t GlossCursor = 0;
    std::int64_t SyllableCount = 0;
    Flag PhraseActive;
    std::int64_t VerbBackOffset = 0;
    std::int64_t EnglishAuxBack = 0;
    std::int64_t CopyDepth = 0;
    FontText GlossEnding;
    Flag WordPartFlag;
    Flag IndefiniteFlag;

    // Unknown words of the run.
    RecordFile TermsFile;         // zhamanakavor, 20-character records
    Flag AskedOnceMark;           // the first unknown-word question has been dealt with
    int FirstUnknownAnswer = 0;   // its answer: 6 stop at each unknown word, 7 leave them
    std::int64_t UnknownCount = 0;

private:
    void openTermsFile();
    // The TermsFile is made when a run first needs it: when the run hands control out before its
    // end (a question about an unknown word, a pause between words after one, a wait for a panel,
    // a suspension) and for the list of untranslated terms. Until then its terms are held here,
    // so a run that goes through unattended makes and deletes no file.
    void ensureTermsFile();
    bool termsFilePending_ = false;  // a run has begun and its TermsFile is not open yet
    bool unknownWordMet_ = false;    // the run has reported an unknown word
    std::vector<std::pair<std::int64_t, FontText>> heldTerms_;  // record number, word
    // The data folder is one program's: the TermsFile stands only when this engine made it, or
    // when a program before it left it behind, so the end of a run deletes it only then.
    bool termsFileMayStand_ = true;
    void refuseUnknownWordQuestions();
    int askUser(const Question& question);  // a question of the run, its terms on disk first
    bool scanTurn();  // one turn of the scanner; false when the scanner must leave
    void wordEndTail(int c);
    void sentenceEnd(unsigned char c);
    void progressStep();
    bool matchEnglishRecord(std::string_view key) const;
    void emitWordT();
    void placeNounAfterNoun();  // step S of the inflection

    // A pair list of the run's end, read once and again only when its file changes on disk (the
    // expression editor rewrites it between runs).
    struct PairList {
        bool loaded = false;
        FileStamp stamp;
        WatchedFile file;  // the file read, held open to tell a change
        PairRepairs repairs;  // find, replace; empty finds left out
        std::uint64_t heldIn = 0;  // the holding of the lists that has read it, 0 for none
    };
    const PairList* pairList(std::string_view name);
    std::map<std::string, PairList, std::less<>> pairLists_;
    bool pairListsHeld_ = false;
    std::uint64_t pairListHolding_ = 0;  // counts the holdings begun

    int lastProgress_ = -1;
    bool guardTurn(std::int64_t scanPosBefore);  // false when the guard has stopped the run
    void passLongRun();  // a run of characters too long for a word goes through as it stands
    int notFoundDepth_ = 0;  // not-found paths under way for the word being looked up
    std::unordered_set<FontText> termsIndex_;  // the TermsFile's words of this run, for the search
};

}  // namespace vorlexa
