// What the engine needs from whatever shows it: questions, notices, the title, the progress bar,
// the result pane and the menu checks. The desktop windows implement it with message boxes and
// widgets; the command-line tool and the tests use NullHost, which answers No to everything.
//
// The engine speaks font text. Every wording comes in both interface languages; the host shows
// the Armenian one when the menu item AMN is checked, the English one otherwise, and converts
// to Unicode at its own edge.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "text/font_text.h"

namespace vorlexa {

// Answers of a question box, as the engine compares them.
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerCancel = 2;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

// A text in both interface languages.
struct Wording {
    FontText english;
    FontText armenian;

    const FontText& in(bool armenianInterface) const { return armenianInterface ? armenian : english; }
};

// Which question is asked, so that a host can answer it in its own way (the terminal asks for
// the gloss of a word to add, the tests script their answers).
enum class QuestionKind {
    Generic,
    UnknownWords,        // first unknown word of a run: stop at each one to add it?
    AddUnknownWord,      // this word is not in the dictionary: add it now?
    CorrectUnknownWord,  // spell-check: this word is not recognised: correct it?
    DialectRepair,       // the text holds dialect spellings: repair them?
};

enum class Buttons { Ok, YesNo, YesNoCancel };

struct Question {
    QuestionKind kind = QuestionKind::Generic;
    Wording text;
    Wording title;
    Buttons buttons = Buttons::YesNo;
    FontText subject;  // the word asked about, when there is one
};

struct Notice {
    Wording text;
    Wording title;
};

// Menu items whose check marks the engine reads or sets.
enum class MenuItem {
    ITR,    // instant translation: no progress bar, no timing title, no unknown-word dialog
    SUT,    // list the unknown terms at the end of the run
    EF,     // suppress the unknown-word dialog
    IMPV,   // accurate translation
    AMN,    // Armenian interface
    EdtTr,  // editing of the translation
    Chat,   // the chat window is in use
    DSO,    // spell-check suggestions off
};
inline constexpr int kMenuItemCount = 8;

class Host {
public:
    virtual ~Host() = default;

    // A question box; returns kAnswerYes, kAnswerNo, kAnswerCancel or kAnswerOk.
    virtual int ask(const Question& question) = 0;
    virtual void notify(const Notice& notice) = 0;

    virtual void setTitle(const Wording& title) = 0;
    virtual void setProgress(int percent) = 0;  // ProgressBar1, 0..100
    virtual void showProgress(bool shown) = 0;
    virtual bool progressShown() const = 0;
    virtual void setBusy(bool busy) = 0;  // the hourglass pointer

    // The result pane Text4.
    virtual void setResultText(const FontText& text) = 0;
    virtual FontText resultText() const = 0;
    // Selects part of Text4 (1-based start), as the spell-check pass follows the scanner.
    virtual void selectResultText(int start, int length) = 0;

    virtual bool isChecked(MenuItem item) const = 0;
    virtual void setChecked(MenuItem item, bool checked) = 0;

    // The add-word panel (Text1, Text2) opened on an unknown word; the run waits until the
    // host calls Engine::saveWordAndResume or Engine::resumeRun.
    virtual void openAddWordPanel(const FontText& word) = 0;
    virtual void minimiseWindow() = 0;
    virtual void openConverter() = 0;  // Form3
    virtual void hideConverter() = 0;
    virtual void setSaveEnabled(bool enabled) = 0;  // the Save and aas commands
    virtual void clearWordList() = 0;               // List1
};

// A host with no window: every question is answered No, and what the engine shows is kept so
// that a caller can read it afterwards.
class NullHost : public Host {
public:
    int ask(const Question& question) override {
        questions.push_back(question);
        return kAnswerNo;
    }
    void notify(const Notice& notice) override { notices.push_back(notice); }

    void setTitle(const Wording& t) override { title = t; }
    void setProgress(int percent) override { progress = percent; }
    void showProgress(bool shown) override { progressVisible = shown; }
    bool progressShown() const override { return progressVisible; }
    void setBusy(bool b) override { busy = b; }

    void setResultText(const FontText& text) override { result = text; }
    FontText resultText() const override { return result; }
    void selectResultText(int start, int length) override {
        selectionStart = start;
        selectionLength = length;
    }

    bool isChecked(MenuItem item) const override { return checks[static_cast<int>(item)]; }
    void setChecked(MenuItem item, bool checked) override { checks[static_cast<int>(item)] = checked; }

    void openAddWordPanel(const FontText& word) override { addWordPanelWord = word; }
    void minimiseWindow() override { minimised = true; }
    void openConverter() override { converterOpen = true; }
    void hideConverter() override { converterOpen = false; }
    void setSaveEnabled(bool enabled) override { saveEnabled = enabled; }
    void clearWordList() override {}

    std::vector<Question> questions;
    std::vector<Notice> notices;
    Wording title;
    int progress = 0;
    bool progressVisible = false;
    bool busy = false;
    FontText result;
    int selectionStart = 0;
    int selectionLength = 0;
    std::array<bool, kMenuItemCount> checks{};
    FontText addWordPanelWord;
    bool minimised = false;
    bool converterOpen = false;
    bool saveEnabled = true;
};

}  // namespace vorlexa
