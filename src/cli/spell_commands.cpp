// vorlexa-cli spell: the words the spell-check pass questions, with their suggestions.
//
// The pass runs unattended: each "To be corrected?" is noted with the suggestions the window
// would offer and answered No, so that the word stays as it is and the pass goes on; the dialect
// repair is declined. A word is reported once per pass, as the pass asks once.
#include "cli/spell_commands.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <sstream>

#include "cli/terminal_host.h"
#include "engine/engine.h"
#include "engine/scanner.h"
#include "spell/spell_pass.h"
#include "text/font_text.h"

#ifndef VORLEXA_VERSION
#define VORLEXA_VERSION "0.0.0"
#endif

namespace vorlexa::cli {

namespace {

// Exit codes of "spell", as grep has them: the misspellings are the answer, not a failure.
constexpr int kSpellAllPlaced = 0;
constexpr int kSpellSomeNotPlaced = 1;
constexpr int kSpellError = 2;

// No word of either language is longer. The translator reads a longer run of letters in pieces
// of a key's width and analyses it at every letter, which takes time with the square of its
// length: such a run is reported whole, as it stands, and kept out of the pass.
constexpr std::size_t kLongestWord = 64;

// The version line editors read before they talk to an external spelling program.
const std::string kIspellBanner =
    std::string("@(#) International Ispell Version 3.1.20 (but really vorlexa-cli ") +
    VORLEXA_VERSION + ")";

struct SpellArgs {
    std::vector<std::string> files;
    bool pipe = false;
    bool noSuggestions = false;
};

// A word the pass questioned.
struct Questioned {
    FontText word;          // as it stands in the text
    std::size_t start = 0;  // 0-based, in the text of the pass
    std::vector<FontText> suggestions;
};

class PassHost : public CliHost {
  public:
    Engine* engine = nullptr;
    bool suggest = true;
    std::vector<Questioned> questioned;

    int ask(const Question& q) override {
        if (q.kind != QuestionKind::CorrectUnknownWord || !engine) return kAnswerNo;
        Engine& e = *engine;
        // The scanner stands on the delimiter after the word, or inside a word wider than a key.
        const auto end = static_cast<std::size_t>(std::max<std::int64_t>(e.ScanPos - 1, 0));
        const std::size_t length = std::min(e.RawWord.size(), end);
        Questioned w;
        w.start = end - length;
        w.word = e.SourceText.substr(w.start, length);
        if (suggest) w.suggestions = spell::suggestionsHere(e, w.word).List1;
        questioned.push_back(std::move(w));
        return kAnswerNo;
    }
    // The completion message of the pass is for the window.
    void notify(const Notice&) override {}
};

// Characters as a user counts them: an escaped character is one.
std::size_t characterCount(std::string_view font) {
    std::size_t n = 0;
    for (std::size_t i = 0; i < font.size(); ++i, ++n)
        if (static_cast<unsigned char>(font[i]) == font::kEscape) i += font::kEscapeDigits;
    return n;
}

// Runs of letters between delimiters, as the scanner reads words: [start, end) in bytes.
template <typename Visit>
void forEachRun(std::string_view text, Visit visit) {
    std::size_t i = 0;
    while (i < text.size()) {
        if (isRawWordDelimiter(static_cast<unsigned char>(text[i]))) {
            ++i;
            continue;
        }
        const std::size_t start = i;
        while (i < text.size() && !isRawWordDelimiter(static_cast<unsigned char>(text[i])))
            i += static_cast<unsigned char>(text[i]) == font::kEscape ? 1 + font::kEscapeDigits : 1;
        visit(start, std::min(i, text.size()));
    }
}

class SpellSession {
  public:
    SpellSession(const std::filesystem::path& folder, bool suggest) {
        store_.open(folder);
        engine_ = std::make_unique<Engine>(store_, folder, host_);
        host_.engine = engine_.get();
        host_.suggest = suggest;
    }

    // One pass over the text (font text); the words it questioned, in the order of the text.
    std::vector<Questioned> pass(const FontText& text) {
        // Runs too long to be words are blanked out of the pass, which keeps every position.
        FontText passText = text;
        std::vector<Questioned> tooLong;
        forEachRun(text, [&](std::size_t start, std::size_t end) {
            if (characterCount(std::string_view(text).substr(start, end - start)) <= kLongestWord)
                return;
            tooLong.push_back({text.substr(start, end - start), start, {}});
            std::fill(passText.begin() + static_cast<std::ptrdiff_t>(start),
                      passText.begin() + static_cast<std::ptrdiff_t>(end), ' ');
        });
        std::vector<Questioned> found = run(passText);
        // The pass folds double blanks: its positions are mapped back to the text's.
        const std::vector<std::size_t> map = foldedToOriginal(passText);
        for (Questioned& w : found) w.start = map[std::min(w.start, map.size() - 1)];
        found.insert(found.end(), tooLong.begin(), tooLong.end());
        std::stable_sort(found.begin(), found.end(), [](const Questioned& a, const Questioned& b) {
            return a.start < b.start;
        });
        return found;
    }

  private:
    // Where each character of the pass's text came from: the run folds each double blank into one.
    static std::vector<std::size_t> foldedToOriginal(const FontText& text) {
        std::vector<std::size_t> map;
        map.reserve(text.size() + 1);
        for (std::size_t i = 0; i < text.size(); ++i) {
            map.push_back(i);
            if (text[i] == ' ' && i + 1 < text.size() && text[i + 1] == ' ') ++i;
        }
        map.push_back(text.size());
        return map;
    }

    std::vector<Questioned> run(const FontText& text) {
        host_.questioned.clear();
        host_.setResultText(text);
        engine_->CurrentWord.clear();
        engine_->OutputText.clear();
        engine_->SpellMode = 1;
        engine_->Text3_Change(text);
        return host_.questioned;
    }

    DictionaryStore store_;
    PassHost host_;
    std::unique_ptr<Engine> engine_;
};

// A run too long to be a word is shown by its beginning and its length.
std::string shownWord(const FontText& word) {
    const std::size_t n = characterCount(word);
    if (n <= kLongestWord) return toUtf8(word);
    std::size_t bytes = 0;
    for (std::size_t c = 0; c < kLongestWord && bytes < word.size(); ++c)
        bytes +=
            static_cast<unsigned char>(word[bytes]) == font::kEscape ? 1 + font::kEscapeDigits : 1;
    return toUtf8(word.substr(0, bytes)) + "... (" + std::to_string(n) + " letters)";
}

std::string joined(const std::vector<FontText>& items) {
    std::string out;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0) out += ", ";
        out += toUtf8(items[i]);
    }
    return out;
}

std::optional<std::string> readAll(const std::string& file) {
    if (file == "-") {
        std::ostringstream all;
        all << std::cin.rdbuf();
        return all.str();
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
}

// The report: NAME:LINE:COLUMN: WORD: suggestions.
int report(const GlobalOptions& options, const SpellArgs& args) {
    const auto folder = openDataFolder(options);
    if (!folder) return kSpellError;
    SpellSession session(*folder, !args.noSuggestions);
    const std::vector<std::string> files =
        args.files.empty() ? std::vector<std::string>{"-"} : args.files;
    bool anyQuestioned = false;
    for (const std::string& name : files) {
        const auto utf8 = readAll(name);
        if (!utf8) {
            printError(name + ": cannot read the file");
            return kSpellError;
        }
        Utf8Report bad;
        const FontText text = fromUtf8(*utf8, &bad);
        if (bad.invalidSequences > 0) {
            printError(name + ": not UTF-8 text (bad byte at offset " +
                       std::to_string(bad.firstInvalidOffset) + ")");
            return kSpellError;
        }
        // Line ends of the source pane are CR LF; a lone LF becomes one, which moves no column.
        FontText paneText;
        std::vector<std::size_t> toInput;  // position in paneText -> position in text
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) {
                paneText += '\r';
                toInput.push_back(i);
            }
            paneText += text[i];
            toInput.push_back(i);
        }
        toInput.push_back(text.size());
        std::vector<std::size_t> lineStarts = {0};
        for (std::size_t i = 0; i < text.size(); ++i)
            if (text[i] == '\n') lineStarts.push_back(i + 1);

        const std::string shown = name == "-" ? "standard input" : name;
        // The words come in the order of the text: the column is counted on from the last one.
        std::size_t counted = 0;
        std::size_t column = 1;
        for (const Questioned& w : session.pass(paneText)) {
            anyQuestioned = true;
            const std::size_t at = toInput[std::min(w.start, toInput.size() - 1)];
            const auto line =
                std::upper_bound(lineStarts.begin(), lineStarts.end(), at) - lineStarts.begin();
            const std::size_t lineStart = lineStarts[static_cast<std::size_t>(line - 1)];
            if (counted < lineStart) {
                counted = lineStart;
                column = 1;
            }
            column += characterCount(std::string_view(text).substr(counted, at - counted));
            counted = at;
            std::cout << shown << ':' << line << ':' << column << ": " << shownWord(w.word) << ": "
                      << (w.suggestions.empty() ? std::string("(no suggestions)")
                                                : joined(w.suggestions))
                      << '\n';
        }
    }
    std::cout.flush();
    if (!std::cout) return kSpellError;
    return anyQuestioned ? kSpellSomeNotPlaced : kSpellAllPlaced;
}

// Words of a line as the scanner sees them: runs of characters between delimiters.
struct Token {
    FontText word;
    std::size_t offset;  // in characters from the start of the line as received
};

std::vector<Token> tokens(const FontText& text, std::size_t lead) {
    std::vector<Token> out;
    std::size_t counted = 0;  // bytes of the line counted so far
    std::size_t chars = lead;
    forEachRun(text, [&](std::size_t start, std::size_t end) {
        chars += characterCount(std::string_view(text).substr(counted, start - counted));
        counted = start;
        out.push_back({text.substr(start, end - start), chars});
    });
    return out;
}

// The pipe protocol of an editor's external spelling program.
int pipeMode(const GlobalOptions& options, const SpellArgs& args) {
    const auto folder = openDataFolder(options);
    if (!folder) return kSpellError;
    SpellSession session(*folder, !args.noSuggestions);
    std::cout << kIspellBanner << '\n' << std::flush;
    bool terse = false;
    std::set<FontText> accepted;  // words the editor told us to take for right in this session
    std::string line;
    while (std::getline(std::cin, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        std::size_t lead = 0;
        if (!line.empty()) {
            switch (line[0]) {
                case '!':
                    terse = true;
                    continue;
                case '%':
                    terse = false;
                    continue;
                case '*':
                case '@':
                case '&':
                    accepted.insert(foldArmenianCase(fromUtf8(line.substr(1))));
                    continue;
                case '#':
                case '~':
                case '+':
                case '-':
                    continue;  // dictionary saving and text modes: nothing to do
                case '^':
                    lead = 1;
                    break;
                default:
                    break;
            }
        }
        const FontText text = fromUtf8(std::string_view(line).substr(lead));
        const std::vector<Questioned> wrong =
            text.empty() ? std::vector<Questioned>{} : session.pass(text);
        for (const Token& t : tokens(text, lead)) {
            const auto hit = std::find_if(wrong.begin(), wrong.end(), [&](const Questioned& w) {
                return foldArmenianCase(w.word) == foldArmenianCase(t.word);
            });
            if (hit == wrong.end() || accepted.contains(foldArmenianCase(t.word))) {
                if (!terse) std::cout << "*\n";
            } else if (hit->suggestions.empty()) {
                std::cout << "# " << toUtf8(t.word) << ' ' << t.offset << '\n';
            } else {
                std::cout << "& " << toUtf8(t.word) << ' ' << hit->suggestions.size() << ' '
                          << t.offset << ": " << joined(hit->suggestions) << '\n';
            }
        }
        std::cout << '\n' << std::flush;
    }
    return std::cout ? kSpellAllPlaced : kSpellError;
}

}  // namespace

void addSpellCommands(CLI::App& app, const GlobalOptions& options, int& result) {
    auto args = std::make_shared<SpellArgs>();
    CLI::App* sp = app.add_subcommand("spell",
                                      "Report the words the spell checker questions, with "
                                      "suggestions (exit 1 when there are any)");
    sp->add_option("FILE", args->files, "UTF-8 text files (default: standard input)");
    sp->add_flag("-a", args->pipe,
                 "speak the pipe protocol of an editor's external spelling program");
    sp->add_flag("--no-suggestions", args->noSuggestions,
                 "question the words without making suggestions");
    // An editor starts its spelling program with options of its own (-m, -B, -d LANG, -vv...):
    // they are taken and ignored, but for the version query.
    sp->allow_extras();
    sp->callback([sp, args, &options, &result] {
        for (const std::string& extra : sp->remaining())
            if (extra == "-v" || extra == "-vv") {
                std::cout << kIspellBanner << '\n';
                result = kSpellAllPlaced;
                return;
            }
        result = args->pipe ? pipeMode(options, *args) : report(options, *args);
    });
}

}  // namespace vorlexa::cli
