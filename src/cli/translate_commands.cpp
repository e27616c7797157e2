// vorlexa-cli translate and coverage: the translator over files or standard input.
#include "cli/translate_commands.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <sstream>

#include "cli/terminal_host.h"
#include "engine/engine.h"
#include "engine/scanner.h"
#include "text/font_text.h"

namespace vorlexa::cli {

namespace {

struct TranslateArgs {
    std::vector<std::string> files;
    bool ask = false;
    bool listUnknown = false;
    bool lines = false;
    int top = 0;
};

struct Input {
    std::string name;
    std::string utf8;
};

std::optional<std::vector<Input>> readInputs(const std::vector<std::string>& files) {
    std::vector<Input> inputs;
    if (files.empty()) {
        std::ostringstream all;
        all << std::cin.rdbuf();
        inputs.push_back({"standard input", all.str()});
        return inputs;
    }
    for (const auto& f : files) {
        std::ifstream in(f, std::ios::binary);
        if (!in) {
            printError(f + ": cannot read the file");
            return std::nullopt;
        }
        std::ostringstream all;
        all << in.rdbuf();
        inputs.push_back({f, all.str()});
    }
    return inputs;
}

// UTF-8 to the engine's text: font text whose lines end in CR LF, as in the source pane.
std::optional<FontText> engineText(const Input& input) {
    Utf8Report report;
    const FontText font = fromUtf8(input.utf8, &report);
    if (report.invalidSequences > 0) {
        printError(input.name + ": not UTF-8 text (bad byte at offset " + std::to_string(report.firstInvalidOffset) +
                   ")");
        return std::nullopt;
    }
    FontText text;
    text.reserve(font.size() + font.size() / 16);
    for (std::size_t i = 0; i < font.size(); ++i) {
        if (font[i] == '\n' && (i == 0 || font[i - 1] != '\r')) text += '\r';
        text += font[i];
    }
    return text;
}

// The engine's text back to UTF-8 with the line ends of the system.
std::string outputText(const FontText& font) {
    std::string utf8 = toUtf8(font);
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i)
        if (!(utf8[i] == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n')) out += utf8[i];
    return out;
}

class Session {
public:
    Session(const std::filesystem::path& folder, const TranslateArgs& args) : args_(args) {
        store_.open(folder);
        if (args.ask) {
            ttyIn_ = std::make_unique<std::ifstream>("/dev/tty");
            ttyOut_ = std::make_unique<std::ofstream>("/dev/tty");
            if (*ttyIn_ && *ttyOut_) terminal_ = std::make_unique<TerminalHost>(*ttyIn_, *ttyOut_);
            else printError("--ask: no terminal to ask on; unknown words are left untranslated");
        }
        host_ = terminal_ ? static_cast<CliHost*>(terminal_.get()) : &quietHost_;
        engine_ = std::make_unique<Engine>(store_, folder, *host_);
    }

    Engine& engine() { return *engine_; }
    bool anyStopped = false;  // a run was stopped before the end of its text

    // One run over the text; the blank the run start added behind the text is taken off again.
    FontText translate(const FontText& text) {
        if (args_.listUnknown) host_->setChecked(MenuItem::SUT, true);
        engine_->Text3_Change(text);
        while (engine_->state == RunState::Waiting) {
            std::optional<PendingWord> word = terminal_ ? terminal_->takePendingWord() : std::nullopt;
            if (word) {
                const InsertResult r = engine_->saveWordAndResume(word->key, word->gloss, word->tag);
                if (!r.error.empty()) printError(r.error);
            } else {
                engine_->resumeRun();
            }
        }
        // A run the scanner's guard stopped has told its reason; the tool then ends in failure.
        if (engine_->stopped) anyStopped = true;
        FontText result = host_->resultText();
        if ((text.empty() || text.back() != ' ') && !result.empty() && result.back() == ' ') result.pop_back();
        return result;
    }

private:
    const TranslateArgs& args_;
    DictionaryStore store_;
    CliHost quietHost_;
    std::unique_ptr<std::ifstream> ttyIn_;
    std::unique_ptr<std::ofstream> ttyOut_;
    std::unique_ptr<TerminalHost> terminal_;
    CliHost* host_ = nullptr;
    std::unique_ptr<Engine> engine_;
};

int translate(const GlobalOptions& options, const TranslateArgs& args) {
    const auto folder = openDataFolder(options);
    if (!folder) return kExitFailure;
    const auto inputs = readInputs(args.files);
    if (!inputs) return kExitFailure;
    Session session(*folder, args);
    for (const auto& input : *inputs) {
        const auto text = engineText(input);
        if (!text) return kExitFailure;
        if (!args.lines) {
            std::cout << outputText(session.translate(*text));
            continue;
        }
        std::size_t from = 0;
        while (from < text->size()) {
            auto end = text->find('\n', from);
            const bool last = end == FontText::npos;
            FontText line = text->substr(from, last ? FontText::npos : end - from);
            if (!line.empty() && line.back() == '\r') line.pop_back();
            std::cout << outputText(session.translate(line)) << '\n';
            if (last) break;
            from = end + 1;
        }
    }
    std::cout.flush();
    return std::cout && !session.anyStopped ? kExitOk : kExitFailure;
}

int coverage(const GlobalOptions& options, const TranslateArgs& args) {
    const auto folder = openDataFolder(options);
    if (!folder) return kExitFailure;
    const auto inputs = readInputs(args.files);
    if (!inputs) return kExitFailure;
    TranslateArgs quiet = args;
    quiet.ask = false;
    quiet.listUnknown = false;
    Session session(*folder, quiet);
    session.engine().stats.collectUnknownWords = true;
    std::int64_t words = 0;
    for (const auto& input : *inputs) {
        const auto text = engineText(input);
        if (!text) return kExitFailure;
        words += countWords(*text);
        session.translate(*text);
    }
    const RunStatistics& stats = session.engine().stats;
    const double placed =
        words == 0 ? 100.0
                   : std::clamp(100.0 * static_cast<double>(words - stats.unknownOccurrences) / static_cast<double>(words),
                                0.0, 100.0);
    std::cout << "words: " << words << '\n'
              << "untranslated: " << stats.termsWritten << " words, " << stats.unknownOccurrences << " occurrences\n"
              << "placed: " << std::fixed << std::setprecision(1) << placed << "%\n";
    if (args.top > 0) {
        std::vector<std::pair<FontText, std::int64_t>> ranked(stats.unknownWords.begin(), stats.unknownWords.end());
        std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
        if (ranked.size() > static_cast<std::size_t>(args.top)) ranked.resize(static_cast<std::size_t>(args.top));
        std::cout << "most frequent untranslated words:\n";
        for (const auto& [word, count] : ranked) std::cout << count << '\t' << toUtf8(word) << '\n';
    }
    std::cout.flush();
    return std::cout ? kExitOk : kExitFailure;
}

}  // namespace

void addTranslateCommands(CLI::App& app, const GlobalOptions& options, int& result) {
    auto args = std::make_shared<TranslateArgs>();

    CLI::App* tr = app.add_subcommand("translate", "Translate UTF-8 text from the files or standard input");
    tr->add_option("FILE", args->files, "text files (default: standard input)");
    tr->add_flag("--ask", args->ask, "put the questions about unknown words on the terminal");
    tr->add_flag("--list-unknown", args->listUnknown, "list the untranslated terms at the end");
    tr->add_flag("--lines", args->lines, "translate each line as a run of its own");
    tr->callback([args, &options, &result] { result = translate(options, *args); });

    CLI::App* cov = app.add_subcommand("coverage", "Count the words the dictionaries leave untranslated");
    cov->add_option("FILE", args->files, "text files (default: standard input)");
    cov->add_option("--top", args->top, "list the N most frequent untranslated words")->check(CLI::NonNegativeNumber);
    cov->callback([args, &options, &result] { result = coverage(options, *args); });
}

}  // namespace vorlexa::cli
