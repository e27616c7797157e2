// Hosts of the command-line tool. CliHost answers every question No and prints notices to
// standard error; TerminalHost puts the questions on a terminal and, when the user wants an
// unknown word added, asks for its gloss and tag there.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "engine/host.h"

namespace vorlexa::cli {

class CliHost : public NullHost {
public:
    void notify(const Notice& notice) override;
};

// A word the user has given a gloss for; the run stores it and goes on.
struct PendingWord {
    FontText key;
    FontText gloss;
    FontText tag;
};

class TerminalHost : public CliHost {
public:
    TerminalHost(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

    int ask(const Question& question) override;
    void openAddWordPanel(const FontText& word) override;

    // The word to store before the run goes on, taken once.
    std::optional<PendingWord> takePendingWord();

private:
    std::optional<std::string> readLine();
    bool askForGloss(const FontText& word);

    std::istream& in_;
    std::ostream& out_;
    bool closed_ = false;  // the terminal gave no more input: every further answer is No
    std::optional<PendingWord> prepared_;
    std::optional<PendingWord> pending_;
};

// The text of a wording for a terminal: UTF-8, with the line breaks of the message boxes.
std::string terminalText(const FontText& text);

}  // namespace vorlexa::cli
