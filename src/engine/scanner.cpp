// The token scanner: ankap0_DblClick walks SourceText one character a turn, builds CurrentWord,
// and at each delimiter hands the word to the trigger dispatch and the look-up, attaches the
// pending endings and copies the delimiter to the output. There is no token list: rules move
// ScanPos over the words they use.
#include <algorithm>
#include <array>

#include "engine/engine.h"
#include "engine/ligature_spelling.h"
#include "engine/scanner.h"

namespace vorlexa {

using namespace literals;

namespace {

constexpr unsigned char kLatinOpenGuillemet = 0xAB;  // "«" as typed in the Latin code page
constexpr unsigned char kCR = '\r';
constexpr unsigned char kLF = '\n';
constexpr int kNoChar = -1;  // a position outside the text
// No word of either language comes near this many characters (an escaped character counts seven);
// a longer run without a delimiter is a line of signs or a text in a script the font lacks.
constexpr std::size_t kLongestWord = 256;

constexpr std::string_view kDelimiterList = std::string_view(
    " -\r\n[,.:;\xA7\xA6}?!1234856790\x91/@$#%~=]^*\\{+|()\t<>'\x85\x92\x93\x94`\x96\xAA_");
constexpr std::string_view kCopiedList = std::string_view(
    "{[><\r\n\x91- \t,;\x85\\/+|1234567890@($#%~=^*\x92\x93\x94\"')}]\xA7\xA6");

struct CharTable {
    std::array<bool, 256> in{};
    constexpr explicit CharTable(std::string_view chars, char extra = 0) {
        for (char c : chars) in[static_cast<unsigned char>(c)] = true;
        if (extra) in[static_cast<unsigned char>(extra)] = true;
    }
};

constexpr CharTable kDelimiters(kDelimiterList);
constexpr CharTable kRawDelimiters(kDelimiterList, '"');
constexpr CharTable kCopied(kCopiedList);
// The first bytes of the scanner's literal tests. The tests are dozens a character: a character
// that starts none of them skips them all.
constexpr CharTable kApostrophes(std::string_view("'\x92"));
constexpr CharTable kAbbreviationStarts(std::string_view("Uupa"));
constexpr CharTable kAbbreviationSeconds(std::string_view("S."));
constexpr CharTable kPossessiveLetters(std::string_view("sS"));

// Characters after which the endings of a number stay pending.
constexpr bool keepsEndingsPending(int c) {
    return isAsciiDigit(c) || c == '.' || c == '%' || c == '\'' || c == '(' || c == ')' || c == '-' ||
           c == '"' || c == font::kEnDash;
}

bool endsWithAny(std::string_view s, std::initializer_list<std::string_view> tails) {
    return std::any_of(tails.begin(), tails.end(), [&](std::string_view t) { return s.ends_with(t); });
}

bool oneOf(std::string_view s, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), s) != words.end();
}

constexpr bool isAsciiLetter(int c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// "'d" is "had" before a past participle ("I'd gone", "she'd been", "we'd better"); any other word
// ("I'd like", "they'd go") takes "would".
bool isContractedHad(std::string_view next) {
    return next.ends_with("ed") ||
           oneOf(next, {"been", "better", "had", "got", "gone", "done", "seen", "known", "taken", "given",
                        "written", "made", "found", "left", "lost", "heard", "thought", "told", "said", "come",
                        "become", "forgotten", "eaten", "spoken", "broken", "chosen", "begun", "run", "never",
                        "already", "just", "ever"});
}

void replaceAll(std::string& s, std::string_view from, std::string_view to) {
    std::size_t pos = 0;
    while ((pos = s.find(from, pos)) != std::string::npos) {
        s.replace(pos, from.size(), to);
        pos += to.size();
    }
}

void replaceTail(std::string& s, std::string_view tail, std::string_view with) {
    if (s.ends_with(tail)) s.replace(s.size() - tail.size(), tail.size(), with);
}

}  // namespace

bool isWordDelimiter(unsigned char c) { return kDelimiters.in[c]; }
bool isRawWordDelimiter(unsigned char c) { return kRawDelimiters.in[c]; }
bool isCopiedDelimiter(unsigned char c) { return kCopied.in[c]; }

std::int64_t countWords(std::string_view text) {
    std::int64_t words = 0;
    bool inWord = false;
    for (char ch : text) {
        const bool delimiter = isRawWordDelimiter(static_cast<unsigned char>(ch));
        if (!delimiter && !inWord) ++words;
        inWord = !delimiter;
    }
    return words;
}

void Engine::ankap0_DblClick() {
    state = RunState::Running;
    while (ScanPos <= static_cast<std::int64_t>(SourceText.size())) {
        const std::int64_t before = ScanPos;
        const bool goOn = scanTurn();
        progressStep();
        if (!guardTurn(before)) return;
        if (!goOn) {
            ensureTermsFile();
            state = RunState::Waiting;
            return;
        }
        if (yieldBetweenWords && CurrentWord.empty()) {
            // The window has the control between words: the run's terms stand in their file.
            if (unknownWordMet_) ensureTermsFile();
            if (yieldBetweenWords()) {
                ensureTermsFile();
                state = RunState::Suspended;
                return;
            }
        }
    }
    TransEndProcedure();
    state = RunState::Idle;
}

// Holds the run to the progress invariant (progress_guard.h). A stopped run shows what it
// translated so far and a notice naming the character where the scanner stood.
bool Engine::guardTurn(std::int64_t scanPosBefore) {
    const GuardVerdict verdict = progressGuard.afterTurn(scanPosBefore, ScanPos, OutputText.size(), SourceText.size());
    if (verdict == GuardVerdict::Go) return true;
    const std::string at = std::to_string(characterNumber(SourceText, ScanPos));
    const Wording text =
        verdict == GuardVerdict::Stalled
            ? Wording{"Translation stopped at character " + at + ": the run made no progress for " +
                          std::to_string(progressGuard.limits.turnsWithoutProgress) + " turns.",
                      FontText("Թարգմանությունը դադարեցվեց "_ft) + at +
                          FontText("-րդ նշանի մոտ՝ "_ft) + std::to_string(progressGuard.limits.turnsWithoutProgress) +
                          FontText(" քայլ առանց առաջընթացի:"_ft)}
            : Wording{"Translation stopped at character " + at + ": the result grew to more than " +
                          std::to_string(progressGuard.limits.outputPerSourceChar) + " times the length of the text.",
                      FontText("Թարգմանությունը դադարեցվեց "_ft) + at +
                          FontText("-րդ նշանի մոտ՝ արդյունքը տեքստից ավելի քան "_ft) +
                          std::to_string(progressGuard.limits.outputPerSourceChar) +
                          FontText(" անգամ երկար է:"_ft)};
    stopped = RunStop{characterNumber(SourceText, ScanPos), text.english};
    TransEndProcedure();
    state = RunState::Idle;
    host.notify(Notice{text, {"ZENKA - Vorlexa", FontText("ԶԵՆԿԱ - Վորլեքսա"_ft)}});
    return false;
}

void Engine::progressStep() {
    if (checked(MenuItem::ITR) || SourceText.empty()) return;
    const double share = static_cast<double>(ScanPos) / static_cast<double>(SourceText.size()) * 100.0;
    const int percent = std::clamp(static_cast<int>(share), 0, 100);
    // The bar shows the same value for many characters; the host hears only the changes.
    if (percent != lastProgress_) {
        lastProgress_ = percent;
        host.setProgress(percent);
    }
}

void Engine::mecatarer() {
    const auto len = static_cast<std::int64_t>(SourceText.size());
    while (ScanPos >= 1 && ScanPos <= len) {
        const auto c = static_cast<unsigned char>(SourceText[static_cast<std::size_t>(ScanPos - 1)]);
        if (Check1 == 1) {
            if (c < font::kFirstCapital || c % 2 != 0) return;  // capitals: even codes from 178 up
            CapitalFlag = 1;
            CurrentWord += static_cast<char>(c + 1);
        } else {
            if (c < 'A' || c > 'Z') return;
            CapitalFlag = 1;
            CurrentWord += static_cast<char>(c + 32);
        }
        ++ScanPos;
    }
}

void Engine::InternetWhile() {
    const auto len = static_cast<std::int64_t>(SourceText.size());
    while (ScanPos >= 1 && ScanPos <= len) {
        const char c = SourceText[static_cast<std::size_t>(ScanPos - 1)];
        if (c == ' ' || c == '\r') return;
        HttpPassThrough += c;
        ++ScanPos;
    }
}

// Gathering a word one character a turn copies it and hands it to the ending analysis every
// turn, which costs time with the square of its length. A run longer than any word goes to the
// output as it stands, as typed, up to the next delimiter, where the scanner goes on.
void Engine::passLongRun() {
    const auto len = static_cast<std::int64_t>(SourceText.size());
    const auto n = static_cast<std::int64_t>(CurrentWord.size());
    // CurrentWord holds the capitals folded: the source has them as typed.
    const std::string_view typed = sourceAt(ScanPos - n + 1, CurrentWord.size());
    const bool sameRun = typed.size() == CurrentWord.size() &&
                         std::equal(typed.begin(), typed.end(), CurrentWord.begin(), [](char t, char w) {
                             const auto u = static_cast<unsigned char>(t);
                             const auto folded = u >= 'A' && u <= 'Z' ? u + 32 : font::toSmall(u);
                             return t == w || static_cast<char>(folded) == w;
                         });
    OutputText += sameRun ? typed : std::string_view(CurrentWord);
    CurrentWord.clear();
    ++ScanPos;
    const std::int64_t from = ScanPos;
    while (ScanPos <= len && !isRawWordDelimiter(static_cast<unsigned char>(SourceText[static_cast<std::size_t>(ScanPos - 1)])))
        ++ScanPos;
    OutputText += sourceAt(from, static_cast<std::size_t>(ScanPos - from));
}

void Engine::chkrch() {
    // Trimmed in place: a copy of the whole result at every closing mark grows with the square
    // of a long text.
    const std::size_t last = OutputText.find_last_not_of(' ');
    OutputText.resize(last == FontText::npos ? 0 : last + 1);
    OutputText.erase(0, std::min(OutputText.find_first_not_of(' '), OutputText.size()));
    OutputText += static_cast<char>(font::kCloseGuillemet);
    OutputText += ' ';
    QuestionCount.clear();
}

// One turn at ScanPos. Returns false when the scanner must leave without finishing the run.
bool Engine::scanTurn() {
    const auto charAt = [this](std::int64_t p) -> int {
        if (p < 1 || p > static_cast<std::int64_t>(SourceText.size())) return kNoChar;
        return static_cast<unsigned char>(SourceText[static_cast<std::size_t>(p - 1)]);
    };
    const auto c = [&] { return charAt(ScanPos); };
    const auto in = [&](const CharTable& table, std::int64_t p) {
        const int b = charAt(p);
        return b != kNoChar && table.in[static_cast<unsigned char>(b)];
    };
    const auto apostropheHere = [&] { return in(kApostrophes, ScanPos); };
    const bool englishSource = Check1 == 0;

    // Armenian text: a question mark is skipped.
    if (!englishSource && c() == '?') ++ScanPos;

    // An e-mail address or an archive name goes through untranslated.
    if (c() == '@' || (charAt(ScanPos + 1) == '.' && (nextIs(".zip") || nextIs(".rar")))) {
        HttpPassThrough = std::move(CurrentWord);
        CurrentWord.clear();
        InternetWhile();
        OutputText += HttpPassThrough;
        HttpPassThrough.clear();
    }

    // Digits count as a word of class "1"; "3-story" is a building of three floors.
    if (isAsciiDigit(c())) ClassChain += '1';
    if (c() == '-' && nextIs("story")) {
        teqst_dblclick();
        OutputText += " հարկանի"_ft;
        ScanPos += 6;
    }

    // Abbreviations written at once.
    const auto abbreviation = [this](std::string_view text, bool withEnding, int length) {
        OutputText += text;
        if (withEnding) OutputText += PendingEnding;
        OutputText += ' ';
        CurrentWord.clear();
        PendingEnding.clear();
        ClassChain = "n";
        ScanPos += length;
    };
    if (in(kAbbreviationStarts, ScanPos) && in(kAbbreviationSeconds, ScanPos + 1)) {
        if (atIs("US ")) {
            abbreviation("ՄՆ"_ft, true, 3);
        } else if (atIs("U.S.") || atIs("u.s.")) {
            abbreviation("Մ.Ն."_ft, true, 4);
        } else if (atIs("U.N.") || atIs("u.n.")) {
            abbreviation("ՄԱԿ"_ft, true, 4);
        } else if (atIs("p.m.")) {
            abbreviation("կեսօրից հետո"_ft, false, 4);
        } else if (atIs("a.m.")) {
            abbreviation("կեսօրից առաջ"_ft, false, 4);
        }
    }

    mecatarer();

    // Signs of Armenian text: dropped, or written as their plain forms.
    if (c() == font::kQuestionSign) {
        QuestionMarkHold = "?";
        ++ScanPos;
        return true;
    }
    if (c() == font::kEmphasisSign) {
        ++ScanPos;
        return true;
    }
    if (c() == font::kEmDash) {
        OutputText += '-';
        CurrentWord.clear();
        ++ScanPos;
        return true;
    }
    if (c() == kLatinOpenGuillemet) {
        OutputText += static_cast<char>(font::kOpenGuillemet);
        CurrentWord.clear();
        ++ScanPos;
        return true;
    }

    if (c() != kNoChar) CurrentWord += static_cast<char>(c());
    if (CurrentWord.size() > kLongestWord) passLongRun();
    RawWord = CurrentWord;
    if (SpellMode == 1) textselection();
    if (!RawWord.empty() && isRawWordDelimiter(static_cast<unsigned char>(RawWord.back()))) RawWord.pop_back();

    // The look-up of the word before a contraction can send the scanner back to read that word
    // again (after "have", a word that is no verb). The contraction is then read again with it:
    // expanding it now would set "have" once more before the same word, and the run would loop.
    const auto lookUpWordBefore = [this] {
        const std::int64_t resume = ScanPos;
        teqst_dblclick();
        if (ScanPos >= resume) return true;
        CurrentWord.clear();
        return false;
    };

    // "'ll": the word before is looked up, and "shall" follows.
    if (apostropheHere() && (atIs("'ll") || atIs("\x92ll"))) {
        if (!CurrentWord.empty()) CurrentWord.pop_back();
        ScanPos += 3;
        if (!lookUpWordBefore()) return true;
        OutputText += ' ';
        CurrentWord = "shall";
    }

    // "'m" and "'re" stand for "am" and "are": the word before is looked up, and the copula
    // follows as a word of its own ("I'm right" as "I am right").
    if (englishSource && apostropheHere() && (atIs("'m ") || atIs("\x92m ") || atIs("'re ") || atIs("\x92re "))) {
        const bool am = atIs("'m ") || atIs("\x92m ");
        if (!CurrentWord.empty()) CurrentWord.pop_back();
        ScanPos += am ? 2 : 3;
        if (!lookUpWordBefore()) return true;
        OutputText += ' ';
        CurrentWord = am ? "am" : "are";
    }

    // "'ve" stands for "have" and "'d" for "had" or "would", told by the word after it, the
    // same way: the word before is looked up and the full form follows.
    if (englishSource && apostropheHere() && (atIs("'ve ") || atIs("\x92ve ") || atIs("'d ") || atIs("\x92" "d "))) {
        const bool have = atIs("'ve ") || atIs("\x92ve ");
        if (!CurrentWord.empty()) CurrentWord.pop_back();
        ScanPos += have ? 3 : 2;
        std::string after;
        for (std::int64_t p = ScanPos + 1; isAsciiLetter(charAt(p)); ++p) after += static_cast<char>(charAt(p));
        if (!lookUpWordBefore()) return true;
        OutputText += ' ';
        CurrentWord = have ? "have" : (isContractedHad(after) ? "had" : "would");
    }

    // The dictionary's key is 20 characters wide: a longer word goes to the ending analysis.
    if (CurrentWord.size() > static_cast<std::size_t>(kKeyWidth)) {
        ++stats.longWordAnalyses;
        hayqer();
    }

    // "n't": the word stands for its affirmative and the negation goes before the verb.
    bool intoDispatch = false;
    if (apostropheHere() && (atIs("'t ") || atIs("\x92t "))) {
        if (!CurrentWord.empty()) CurrentWord.pop_back();
        ContractionFlag = 1;
        const FontText stem = CurrentWord;
        if (oneOf(stem, {"isn", "arn", "hadn", "haven", "hasn", "wasn", "weren", "mustn", "wouldn", "shouldn"})) {
            CurrentWord.pop_back();
            OutputText += "չ"_ft;
            ScanPos += 2;
        } else if (stem == "won" || stem == "shan") {
            CurrentWord = "shall";
            OutputText += "չ"_ft;
            ScanPos += 2;
        } else if (stem == "couldn" || stem == "can") {
            // Into the modal rule, which takes its negative branch and skips to the blank.
            CurrentWord = stem == "can" ? "can" : "could";
            ScanPos -= 2;
            intoDispatch = true;
        } else if (oneOf(stem, {"didn", "don", "doesn", "aren"})) {
            const bool shortSkip = stem == "aren" || stem == "doesn";
            if (nextIs("t mind")) {
                CurrentWord = "against";
                teqst_dblclick();
                OutputText += ' ';
                ScanPos += shortSkip ? 4 : 5;
            } else if (nextIs("t matter")) {
                CurrentWord = "important";
                teqst_dblclick();
                ScanPos += 8;
                OutputText += stem == "didn" ? " չէր "_ft : " չէ "_ft;
            } else if (stem == "didn") {
                CurrentWord = "did";
                ScanPos -= 1;
                intoDispatch = true;
            } else {
                CurrentWord = "do";
                ScanPos -= 2;
                intoDispatch = true;
            }
        }
    }

    bool wordEnd = intoDispatch;
    if (!intoDispatch) {
        // "'s": the possessive, or "it's" with its copula held to the clause end.
        const bool possessiveHere =
            apostropheHere() || (in(kPossessiveLetters, ScanPos) && in(kApostrophes, ScanPos + 1));
        if (englishSource && ScanPos > 2 && possessiveHere &&
            (atIs("'s ") || atIs("'S ") || atIs("\x92s ") || atIs("\x92S ") || atIs("'s.") || atIs("'S.") ||
             atIs("\x92s.") || atIs("\x92S.") || atIs("'s,") || atIs("'S,") || atIs("\x92s,") || atIs("\x92S,") ||
             atIs("'s;") || atIs("'S;") || atIs("\x92s;") || atIs("\x92S;") || atIs("\x92s") || atIs("s'") ||
             atIs("s\x92") || atIs("S'") || atIs("S\x92"))) {
            const auto before = sourceAt(ScanPos - 2, 2);
            if (before == "it" || before == "It" || CurrentWord.starts_with("that") ||
                CurrentWord.starts_with("That")) {
                PendingCopula = "է"_ft;
                ScanPos += 2;
                CurrentWord = "it";
                PendingEnding.clear();
                teqst_dblclick();
            } else if (PendingEnding.empty()) {
                if (!CurrentWord.empty()) CurrentWord.pop_back();
                if (CurrentWord.ends_with("ie")) CurrentWord += 's';
                PendingEnding = "ի"_ft;
                GenitiveMark = 1;
                ScanPos += 2;
                return true;  // the next turn ends the word on the delimiter after the "'s"
            } else {
                if (!CurrentWord.empty()) CurrentWord.pop_back();
                ScanPos += 2;
            }
        }

        // A double quote stands for the letter "ե" in texts that write it so.
        if (c() == '"' && QuoteCount == "ե"_ft) {
            if (!CurrentWord.empty()) CurrentWord.back() = "ե"_ft[0];
        } else if (c() == '"' || (c() != kNoChar && isWordDelimiter(static_cast<unsigned char>(c())))) {
            wordEnd = true;
        }
    }

    if (!wordEnd) {
        ++ScanPos;
        return true;
    }

    // Word end.
    if (QuestionCount == "»"_ft) chkrch();
    if (!CurrentWord.empty()) {
        if (isRawWordDelimiter(static_cast<unsigned char>(CurrentWord.back()))) CurrentWord.pop_back();
        replaceAll(CurrentWord, "եւ"_ft, "և"_ft);
        if (!englishSource) readLigatureSpelling(CurrentWord);
    }
    if (PendingEnding == "ից"_ft || PendingEnding == "ով"_ft) {
        qezanic();
    } else if (oneOf(PendingEnding, {"ի"_ft, "ի մեջ"_ft, "ի վրա"_ft, "ի տակ"_ft, "ի միջև"_ft, "ի հետ"_ft,
                                     "ի համար"_ft, "ի մասին"_ft, "ի շուրջ"_ft})) {
        qo_mej();
    }

    if (triggerSelect() == TriggerReturn::Rescan) return true;

    // Finish: look up what the rule left, and put the pending endings on a noun.
    if (!PendingEnding.empty() && PendingEnding != "ի "_ft && !ArticleEnding.empty()) ArticleEnding.clear();
    teqst_dblclick();
    // The user chose to add the word: the scanner leaves before the endings and the delimiter,
    // which the resumed run handles once the word has its record.
    if (AnswerCode == kAnswerYes) return false;
    wordEndTail(c());

    // The delimiter itself.
    const int d = c();
    if (d != kNoChar && isCopiedDelimiter(static_cast<unsigned char>(d))) {
        // In Armenian text a number is a word group of its own, like a word that was looked up:
        // an auxiliary or a postposition after it goes before it ("ժամը 11 է" "hour is 11").
        // The sign after it ("5-ն", "10%") belongs to the group.
        const bool sameNumber = !OutputText.empty() && isAsciiDigit(OutputText.back());
        if (Check1 == 1 && (isAsciiDigit(d) || (sameNumber && (d == '-' || d == '%')))) {
            CopyDepth = sameNumber ? CopyDepth + 1 : 1;
            VerbBackOffset = CopyDepth + EnglishAuxBack;
            EnglishAuxBack = 0;
        }
        OutputText += static_cast<char>(d);
    } else if (d == '_' && (sourceAt(ScanPos - 1, 1) == "_" || sourceAt(ScanPos + 1, 1) == "_")) {
        // One underscore joining two words is dropped; a line of them is a blank to fill in,
        // text the reader needs.
        OutputText += '_';
    } else if (d == ':') {
        if (!QuestionMarkHold.empty()) {
            OutputText += QuestionMarkHold;
            QuestionMarkHold.clear();
        } else {
            OutputText += PendingCopula;
            OutputText += '.';
            PendingCopula.clear();
            VerbFormMark.clear();
            ParticipleGuess.clear();
            AbleFlag.clear();
            GoodFlag.clear();
        }
    } else if (d == '.' || d == '?' || d == '!') {
        sentenceEnd(static_cast<unsigned char>(d));
    }

    if (!englishSource && endsWithAny(OutputText, {".", "!", "?"})) {
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
        PendingEnding.clear();
    }

    if (AnswerCode == kAnswerYes) return false;
    CurrentWord.clear();
    ++ScanPos;
    return true;
}

// The endings pending after a word: on a noun or a number they are written behind it.
void Engine::wordEndTail(int c) {
    if (!ArticleEnding.empty() && (outputEndsWith("ը"_ft) || outputEndsWith(":"))) ArticleEnding.clear();
    const char tag1 = WordTag.empty() ? ' ' : WordTag[0];
    const bool takesEndings = !keepsEndingsPending(c) && (tag1 == 'n' || tag1 == '1');

    if (takesEndings && (PendingEnding.empty() || PendingEnding.ends_with("եր"_ft))) {
        OutputText += PendingEnding;
        OutputText += ArticleEnding;
        ArticleEnding.clear();
        PendingEnding.clear();
    }

    const bool afterNumber = !OutputText.empty() && (isAsciiDigit(OutputText.back()) || OutputText.back() == '.' ||
                                                     OutputText.back() == '%' || OutputText.back() == '\'' ||
                                                     OutputText.back() == kCR || OutputText.back() == kLF);
    if (afterNumber) {
        if (PendingEnding == "ի մեջ"_ft) PendingEnding = "ին"_ft;  // a number takes "ին"
        return;
    }
    if (!takesEndings) return;

    if (Check1 == 1) {
        if (tag1 == 'n' && PendingEnding == "s") {
            static constexpr std::string_view kVowels = "aeiou";
            const std::size_t n = OutputText.size();
            if (n >= 2 && OutputText[n - 1] == 'y' && kVowels.find(OutputText[n - 2]) == std::string_view::npos &&
                OutputText[n - 2] != ' ') {
                OutputText.pop_back();
                OutputText += "ies";
            } else if (endsWithAny(OutputText, {"s", "z", "c", "x"})) {
                OutputText += "es";
            } else {
                OutputText += 's';
            }
            PendingEnding.clear();
        }
        return;
    }

    // Joining vowel, the object ending of a transitive verb, and the final fixes.
    if ((PendingEnding.starts_with("ի"_ft) || PendingEnding.starts_with("ո"_ft) ||
         PendingEnding.starts_with("ա"_ft)) &&
        (outputEndsWith("ա"_ft) || outputEndsWith("ո"_ft))) {
        OutputText += "յ"_ft;
    }
    // The object ending goes on the word just written, never on the empty word between two signs
    // ("music, really": the comma is followed by a blank, and nothing more is written there).
    const auto last = OutputText.empty() ? 0 : static_cast<unsigned char>(OutputText.back());
    const bool afterWord = font::isArmenianLetter(last) || last == font::kLigature;
    if (PendingPlural == 1 && ArticleEnding.empty() && afterWord) {
        PendingEnding = "ին"_ft;
        if (outputEndsWith("ը"_ft)) OutputText.pop_back();
    }
    if (outputEndsWith(":") && PendingEnding == "ին"_ft) {
        OutputText.pop_back();
        OutputText += PendingEnding;
        OutputText += ':';
    } else {
        OutputText += PendingEnding;
    }
    PendingEnding.clear();
    replaceTail(OutputText, "թյունին"_ft, "թյանը"_ft);
    replaceTail(OutputText, "ըին:"_ft, "ին:"_ft);
}

// ".", "?" or "!": a decimal point, a run of points, or the end of a sentence.
void Engine::sentenceEnd(unsigned char c) {
    const auto next = sourceAt(ScanPos + 1, 1);
    if (!next.empty() && isAsciiDigit(next[0])) {
        OutputText += static_cast<char>(c);
        return;
    }
    if (next == "." && (!PendingEnding.empty() || !ArticleEnding.empty())) {
        OutputText += PendingEnding;
        OutputText += ArticleEnding;
        OutputText += '.';
        PendingEnding.clear();
        ArticleEnding.clear();
        ++ScanPos;
        return;
    }
    if (c == '.' && QuestionMarkPosition > 0) {
        if (QuestionMarkPosition <= static_cast<std::int64_t>(OutputText.size()))
            OutputText.erase(static_cast<std::size_t>(QuestionMarkPosition - 1), 1);
        QuestionMarkPosition = 0;
    }
    if ((PendingEnding.starts_with("ի"_ft) || PendingEnding.starts_with("ո"_ft)) &&
        (outputEndsWith("ա"_ft) || outputEndsWith("ո"_ft))) {
        OutputText += "յ"_ft;
    }
    if (!WordTag.empty() && WordTag[0] == 'p' && PendingEnding.ends_with("եր"_ft)) PendingEnding.clear();
    if (Check1 == 0) {
        OutputText += PendingEnding;
        OutputText += ArticleEnding;
        if (!PendingCopula.empty()) {
            OutputText += ' ';
            OutputText += PendingCopula;
        }
        OutputText += ':';
    } else {
        OutputText += static_cast<char>(c);
    }
    resetSentence();
    VerbFormMark.clear();
    ParticipleGuess.clear();
    AbleFlag.clear();
    GoodFlag.clear();
}

}  // namespace vorlexa
