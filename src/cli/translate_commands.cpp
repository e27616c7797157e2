// vorlexa-cli translate and coverage: the translator over files or standard input.
#include "cli/translate_commands.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <string_view>

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

// Reads a stream whole; a file's length, when known, is taken as room at once, so that a long
// text is not copied while it grows.
std::string readWhole(std::istream& in, std::uintmax_t expected) {
    constexpr std::size_t kBlock = 1 << 20;  // bytes read at a time
    std::string bytes;
    if (expected > 0) bytes.reserve(static_cast<std::size_t>(expected));
    std::size_t got = 0;
    while (in) {
        if (bytes.size() < got + kBlock) bytes.resize(std::max(got + kBlock, bytes.capacity()));
        in.read(bytes.data() + got, static_cast<std::streamsize>(bytes.size() - got));
        got += static_cast<std::size_t>(in.gcount());
    }
    bytes.resize(got);
    return bytes;
}

std::optional<std::vector<Input>> readInputs(const std::vector<std::string>& files) {
    std::vector<Input> inputs;
    if (files.empty()) {
        inputs.push_back({"standard input", readWhole(std::cin, 0)});
        return inputs;
    }
    for (const auto& f : files) {
        std::ifstream in(f, std::ios::binary);
        if (!in) {
            printError(f + ": cannot read the file");
            return std::nullopt;
        }
        std::error_code unknown;
        const std::uintmax_t size = std::filesystem::file_size(f, unknown);
        inputs.push_back({f, readWhole(in, unknown ? 0 : size)});
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

// Writes the engine's text as UTF-8 with the line ends of the system, a block at a time, so that
// a long result is not held again whole in another form.
void writeOutput(std::ostream& out, std::string_view font) {
    constexpr std::size_t kBlock = 1 << 16;  // font characters converted at a time
    FontText block;
    for (std::size_t from = 0, to = 0; from < font.size(); from = to) {
        to = std::min(font.size(), from + kBlock);
        // A block never ends inside the escape of a character the font does not hold.
        for (std::size_t at = to > from + font::kEscapeDigits ? to - font::kEscapeDigits : from; at < to; ++at)
            if (static_cast<unsigned char>(font[at]) == font::kEscape && at > from && to < font.size()) to = at;
        block.clear();
        for (std::size_t i = from; i < to; ++i)
            if (!(font[i] == '\r' && i + 1 < font.size() && font[i + 1] == '\n')) block += font[i];
        out << toUtf8(block);
    }
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
        // With no one to answer a question or watch a progress bar, the tool runs as the instant
        // mode does: it leaves unknown words in the text as a No to every question would.
        if (!terminal_) host_->setChecked(MenuItem::ITR, true);
        engine_ = std::make_unique<Engine>(store_, folder, *host_);
        // One command is one batch: its runs (a file's lines, the files in turn) take the pair
        // lists as they stand when it begins.
        engine_->holdPairLists(true);
    }

    Engine& engine() { return *engine_; }
    bool anyStopped = false;  // a run was stopped before the end of its text

    // One run over the text; the blank the run start added behind the text is taken off again.
    // The result stands until the next run.
    std::string_view translate(const FontText& text) {
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
        std::string_view result = host_->result;
        if ((text.empty() || text.back() != ' ') && !result.empty() && result.back() == ' ') result.remove_suffix(1);
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
    auto inputs = readInputs(args.files);
    if (!inputs) return kExitFailure;
    Session session(*folder, args);
    for (auto& input : *inputs) {
        const auto text = engineText(input);
        if (!text) return kExitFailure;
        std::string().swap(input.utf8);  // the engine's text is all the run needs
        if (!args.lines) {
            writeOutput(std::cout, session.translate(*text));
            continue;
        }
        std::size_t from = 0;
        while (from < text->size()) {
            auto end = text->find('\n', from);
            const bool last = end == FontText::npos;
            FontText line = text->substr(from, last ? FontText::npos : end - from);
            if (!line.empty() && line.back() == '\r') line.pop_back();
            writeOutput(std::cout, session.translate(line));
            std::cout << '\n';
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
