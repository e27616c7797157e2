// The main window Form1 without its widgets: what a menu command, a click or a key does to the
// texts, the check marks, the captions and the panel. It is the engine's Host, and it owns the
// dictionaries and the engine from start to exit.
//
// A window (or a test) implements Form1View: it shows questions, holds the two big text boxes
// and redraws what this class changed. The texts it hands over are font text; the window
// converts to Unicode at its own edge.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/instance_lock.h"
#include "app/interface_text.h"
#include "engine/dictionary_store.h"
#include "engine/engine.h"
#include "engine/host.h"
#include "engine/var.h"
#include "spell/spell_pass.h"
#include "text/font_text.h"
#include "text_tools/find_replace.h"

namespace vorlexa::app {

// A selection of a text box in font positions: 0-based start and length.
struct TextSelection {
    int start = 0;
    int length = 0;
};

class Form1View {
public:
    virtual ~Form1View() = default;

    // A message box in the interface language; returns kAnswerYes, kAnswerNo, kAnswerCancel or
    // kAnswerOk.
    virtual int ask(const Question& question, Language language) = 0;
    virtual void notify(const Notice& notice, Language language) = 0;

    // Text3, the source box. Setting it is a change like a key stroke: it runs a translation.
    virtual FontText text3() const = 0;
    virtual void setText3(const FontText& text) = 0;
    // Text4, the result box.
    virtual FontText text4() const = 0;
    virtual void setText4(const FontText& text) = 0;
    virtual TextSelection text4Selection() const = 0;
    virtual void selectText4(TextSelection selection) = 0;

    // The progress bar has a new value; draw it now, since a run holds the event loop.
    virtual void progressChanged(int percent) = 0;
    // Anything else of the state changed: captions, checks, enabled items, the pictures, the
    // panel, the layout, the title, the direction box. Redraw from the state.
    virtual void stateChanged() = 0;
    virtual void minimise() = 0;
    virtual void setBusy(bool busy) = 0;
    // A run that went on unattended, minimised, has ended: bring the window back and ask the
    // desktop to draw the user's attention to it.
    virtual void restoreAfterUnattendedRun() {}
};

// A window without widgets: the boxes are strings, every question is answered No, nothing is
// drawn. For the command line's and the tests' own use of the main form.
class WindowlessView : public Form1View {
public:
    int ask(const Question&, Language) override { return kAnswerNo; }
    void notify(const Notice&, Language) override {}
    FontText text3() const override { return Text3; }
    void setText3(const FontText& t) override { Text3 = t; }
    FontText text4() const override { return Text4; }
    void setText4(const FontText& t) override { Text4 = t; }
    TextSelection text4Selection() const override { return {}; }
    void selectText4(TextSelection) override {}
    void progressChanged(int) override {}
    void stateChanged() override {}
    void minimise() override {}
    void setBusy(bool) override {}

    FontText Text3;
    FontText Text4;
};

// The state of one item of the window: a menu item, or a control with a caption.
struct ItemState {
    bool checked = false;
    bool enabled = true;
    std::string caption;  // UTF-8
};

// Font of the result box. The face names the design's fonts; the window maps a face it lacks
// to an installed one with Armenian letters.
inline constexpr std::string_view kDefaultFace = "Arial Armenian";
inline constexpr double kDefaultFontSize = 10;  // what efcheck and the default font set
struct Text4Font {
    std::string name = std::string(kDefaultFace);
    double size = kDefaultFontSize;
    std::int64_t color = 0;  // 0x00BBGGRR
    bool bold = false;
    bool italic = false;
};

// The small panel of the main window: an unknown word and its translation, a looked-up word,
// spelling suggestions.
struct WordPanel {
    bool visible = false;  // Text1, Text2, Text6 and Command2 shown; Text3 gives up room
    FontText Text1;        // the source word
    FontText Text2;        // its translation as typed
    FontText Text6;        // the tag, 5 characters
    std::vector<FontText> List1;
    bool listVisible = false;
    std::string Command2;  // the button's caption, which picks its action
    // Which boxes show while the panel does: Find shows Text1 alone, Replace and the spell
    // checker Text1 with Text2 or List1, the add-word panel Text1, Text2 and Text6.
    bool text1Visible = true;
    bool text2Visible = true;
    bool text6Visible = true;
    bool command2Enabled = true;
    std::string command2Tip;  // UTF-8
};

// What the exit question decided.
enum class ExitAnswer {
    End,          // close the window
    Cancel,       // go on running
    SaveThenEnd,  // offer "Save As"; the program ends once it is saved
};

enum class StartResult { Started, AlreadyRunning };

// Updates of the progress bar closer together than this are dropped: a bar redrawn at every
// character would cost a long run more than the run itself.
inline constexpr std::chrono::milliseconds kProgressInterval{40};

// A run of instant translation holds the interface thread for at most this long at a time and
// then lets the window take its events, well inside the 100 ms a key stroke may take.
inline constexpr std::chrono::milliseconds kInstantSlice{30};

// Runs of typed changes: how many began, how many a newer change dropped before their end,
// how many ended.
struct RunCounts {
    int started = 0;
    int dropped = 0;
    int finished = 0;
    std::chrono::nanoseconds longestSlice{0};  // the longest the interface thread was held
};

inline constexpr std::string_view kTempEnglishList = "tmpa.txt";
inline constexpr std::string_view kTempArmenianList = "tmpe.txt";

class MainForm : public Host, public spell::SpellPanel {
public:
    using Clock = std::chrono::steady_clock;

    explicit MainForm(Form1View& view);
    ~MainForm() override;
    MainForm(const MainForm&) = delete;
    MainForm& operator=(const MainForm&) = delete;

    // ---- Start and exit ----------------------------------------------------------------
    // Refuses a second copy, seeds the data folder from `shipped` when it has no dictionaries,
    // opens them, applies the settings record by record and builds the derived files.
    StartResult Form_Load(const std::filesystem::path& dataFolder, const std::filesystem::path& shipped);
    // Writes the settings, deletes the derived and temporary files, and asks about the result
    // when there is one.
    ExitAnswer exit1_Click();
    // The last step of a real exit: the lock of the data folder goes.
    void finish();

    // ---- Commands ----------------------------------------------------------------------
    void AMN_Click();
    void Engo_Click();
    void TA_Click();
    void EF_Click();
    void efcheck();
    void ITR_Click();
    void SUT_Click();
    void EdtTr_Click();
    void IMPV_Click();
    void TS_Click();
    // A click into the panel's boxes: the input language follows the direction of the text.
    void Text1_Click();
    void Text2_Click();

    // ---- The run and the add-word panel -------------------------------------------------
    // Text3 changed (typed, pasted, or set by a command): a run. A run still waiting on the
    // panel, or cut into slices, is ended first.
    void Text3_Change(const FontText& text);
    // A typed change under instant translation: the run walks the text in slices of
    // kInstantSlice and leaves between them; true while it has more to do.
    bool startInstantRun(const FontText& text);
    // The next slice of that run; true while it has more to do.
    bool continueInstantRun();
    bool instantRunPending() const { return engine_ && engine_->state == RunState::Suspended; }
    const RunCounts& runCounts() const { return runCounts_; }
    // Opens the panel for an unknown word: the word in Text1, the button "Save"/"Հիշել".
    void Replacet_Click(const FontText& word);
    // The panel's button. With the caption "Save" or "Հիշել" and a word in Text1 it stores the
    // word and goes on with the run.
    void Command2_Click();
    // Adds Text1 = Text2 (tag Text6) to both dictionaries and resumes the paused run.
    void Text2_DblClick();
    // Escape or the Skip button: the word is left untranslated, as a No to the question would
    // leave it, and the paused run goes on.
    void skipWord();

    // ---- Spell checker, Find and Replace (spell_commands.cpp) ----------------------------
    void SSO_Click();
    void DSO_Click();
    // Asks "Would you like to check spelling?" and on Yes starts a pass with suggestions over
    // the result box. The transliteration calls it when it has finished.
    void CorrectorWorning();
    void Fnd_Click();
    // The panel for a replacement in Text4, or for the suggestions of the spell checker.
    void Replacce_click();
    void List1_Click(int index);
    void Text1_DblClick();
    // Text4 changed: a mainly Latin text is searched without regard to case.
    void Text4_Change();
    const text_tools::FindState& findState() const { return find_; }
    void showSuggestions(const spell::SpellResult& result) override;

    // ---- Phonetic typing -----------------------------------------------------------------
    // The code a key press in one of the main window's boxes becomes.
    unsigned char typedKey(unsigned char key) const;

    // ---- State -------------------------------------------------------------------------
    bool checked(std::string_view item) const;
    void setChecked(std::string_view item, bool on);
    // Enabled by the design's own rules (Save after the first run, ETE with EF...); the window
    // further disables commands whose work has not been built in.
    bool enabled(std::string_view item) const;
    void setEnabled(std::string_view item, bool on);
    const std::string& caption(std::string_view control) const;
    Language language() const { return checked("AMN") ? Language::Armenian : Language::English; }

    const std::string& windowTitle() const { return title_; }
    bool picture1Visible() const { return picture1Visible_; }
    bool picture2Visible() const { return picture2Visible_; }
    // EF checked: Text3 and the progress bar are hidden and Text4 takes the whole work area.
    bool editingLayout() const { return editingLayout_; }
    bool progressVisible() const { return progressVisible_; }
    int progressValue() const { return progress_; }
    int direction() const { return engine_ ? engine_->Check1 : 0; }  // Check1
    const Text4Font& text4Font() const { return font_; }
    void setText4Font(const Text4Font& font);
    WordPanel& panel() { return panel_; }
    const WordPanel& panel() const { return panel_; }
    Var SkipInterfaceQuestion;
    Flag ExitSaveRequested;

    Engine* engine() { return engine_.get(); }
    DictionaryStore& store() { return store_; }
    const std::filesystem::path& dataFolder() const { return dataFolder_; }
    // The settings record 8 (font style) as read at start.
    const std::string& fontStyleRecord() const { return fontStyle_; }

    // The clock the progress bar is throttled by; tests set their own.
    std::function<Clock::time_point()> now = [] { return Clock::now(); };

    // The converter window Form3, where the desktop has one: opened by a run that finds Unicode
    // Armenian pasted into the source box, hidden when a long run goes on unattended.
    std::function<void()> onOpenConverter;
    std::function<void()> onHideConverter;

    // ---- Host ----------------------------------------------------------------------------
    int ask(const Question& question) override;
    void notify(const Notice& notice) override;
    void setTitle(const Wording& title) override;
    void setProgress(int percent) override;
    void showProgress(bool shown) override;
    bool progressShown() const override { return progressVisible_; }
    void setBusy(bool busy) override;
    void setResultText(const FontText& text) override;
    FontText resultText() const override;
    void selectResultText(int start, int length) override;
    bool isChecked(MenuItem item) const override;
    void setChecked(MenuItem item, bool checked) override;
    void openAddWordPanel(const FontText& word) override;
    void minimiseWindow() override;
    void openConverter() override;
    void hideConverter() override;
    void setSaveEnabled(bool enabled) override;
    void clearWordList() override;

private:
    ItemState& item(std::string_view name);
    const ItemState* findItem(std::string_view name) const;
    void applyCaptions(Language language);
    void applySettingsRecord(int record, std::string_view value);
    void closePanel();
    void endUnfinishedRun();
    void runEnded();
    bool instantSliceEnded();
    text_tools::SmallBoxes smallBoxes() const;
    void applySmallBoxes(const text_tools::SmallBoxes& boxes);
    void smallBoxesCommand2();  // Command2 for Find, Replace and the spell checker

    Form1View& view_;
    std::map<std::string, ItemState, std::less<>> items_;
    std::string title_;
    bool picture1Visible_ = true;
    bool picture2Visible_ = false;
    bool editingLayout_ = false;
    bool progressVisible_ = false;
    int progress_ = 0;
    std::optional<Clock::time_point> lastProgressDraw_;
    Text4Font font_;
    std::string fontStyle_;
    WordPanel panel_;
    bool minimisedForRun_ = false;  // the window was minimised for an unattended run
    FontText skippedWord_;          // the next question about adding this word is answered No
    RunCounts runCounts_;
    Clock::time_point sliceStart_;
    text_tools::FindState find_;

    std::filesystem::path dataFolder_;
    InstanceLock lock_;
    DictionaryStore store_;
    std::unique_ptr<Engine> engine_;
};

// The translation typed into the panel as it is stored: lower case for an English gloss;
// Armenian capitals folded and "եւ" written as the ligature for an Armenian one.
FontText normalisePanelGloss(const FontText& gloss, Direction direction);

}  // namespace vorlexa::app
