#include "cli/terminal_host.h"

#include <iostream>

#include "dictionary_tools/lexicon_compiler.h"
#include "text/font_text.h"

namespace vorlexa::cli {

namespace {

constexpr std::string_view kDefaultTag = "n";  // a word added from the terminal is a noun unless told

std::string trimmed(std::string s) {
    while (!s.empty() && (s.back() == ' ' || s.back() == '\r' || s.back() == '\t')) s.pop_back();
    std::size_t from = 0;
    while (from < s.size() && (s[from] == ' ' || s[from] == '\t')) ++from;
    return s.substr(from);
}

}  // namespace

std::string terminalText(const FontText& text) {
    std::string utf8 = toUtf8(text);
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const char c = utf8[i];
        if (c == '\r') {
            // CR LF and LF CR are one line break; a CR alone is one too.
            if (i + 1 < utf8.size() && utf8[i + 1] == '\n') ++i;
            out += '\n';
        } else if (c == '\n') {
            if (i + 1 < utf8.size() && utf8[i + 1] == '\r') ++i;
            out += '\n';
        } else {
            out += c;
        }
    }
    return out;
}

void CliHost::notify(const Notice& notice) {
    NullHost::notify(notice);
    const bool armenian = isChecked(MenuItem::AMN);
    std::cerr << "vorlexa-cli: " << terminalText(notice.text.in(armenian)) << '\n';
}

std::optional<std::string> TerminalHost::readLine() {
    if (closed_) return std::nullopt;
    std::string line;
    if (!std::getline(in_, line)) {
        closed_ = true;
        return std::nullopt;
    }
    return trimmed(line);
}

int TerminalHost::ask(const Question& question) {
    questions.push_back(question);
    if (closed_) return kAnswerNo;
    const bool armenian = isChecked(MenuItem::AMN);
    out_ << "\n[" << terminalText(question.title.in(armenian)) << "]\n"
         << terminalText(question.text.in(armenian)) << "\n[y/N] " << std::flush;
    const auto line = readLine();
    const bool yes = line && (*line == "y" || *line == "Y" || *line == "yes" || *line == "Yes");
    if (!yes) return kAnswerNo;
    if (question.kind == QuestionKind::AddUnknownWord && !askForGloss(question.subject)) return kAnswerNo;
    return kAnswerYes;
}

// Asks for the gloss and tag of a word to add; false when the user gives none or a bad one.
bool TerminalHost::askForGloss(const FontText& word) {
    out_ << "Translation of '" << terminalText(word) << "' (empty: leave the word as it stands): " << std::flush;
    const auto gloss = readLine();
    if (!gloss || gloss->empty()) return false;
    out_ << "Tag [" << kDefaultTag << "]: " << std::flush;
    auto tagLine = readLine();
    std::string tag = tagLine && !tagLine->empty() ? *tagLine : std::string(kDefaultTag);
    for (char& c : tag)
        if (c == kTagBlank) c = ' ';

    const FontText glossFont = fromUtf8(*gloss);
    const Direction direction = hasArmenianLetter(word) ? Direction::ArmenianToEnglish : Direction::EnglishToArmenian;
    FontText stored = glossFont;
    if (direction == Direction::EnglishToArmenian) {
        stored = foldArmenianCase(glossFont);
    } else {
        for (char& c : stored)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    }
    const auto reasons = checkRecordFields(direction, word, stored.substr(0, kGlossWidth), tag);
    if (!reasons.empty()) {
        for (const auto& r : reasons) out_ << "Not added: " << r << '\n';
        out_ << std::flush;
        return false;
    }
    prepared_ = PendingWord{word, glossFont, FontText(tag)};
    return true;
}

void TerminalHost::openAddWordPanel(const FontText& word) {
    NullHost::openAddWordPanel(word);
    if (prepared_ && prepared_->key == word) pending_ = std::move(prepared_);
    prepared_.reset();
}

std::optional<PendingWord> TerminalHost::takePendingWord() {
    auto w = std::move(pending_);
    pending_.reset();
    return w;
}

}  // namespace vorlexa::cli
