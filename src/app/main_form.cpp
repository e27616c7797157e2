#include "app/main_form.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <system_error>

#include "app/add_word_panel.h"
#include "app/help_text.h"
#include "app/phonetic_keys.h"
#include "app/settings_file.h"
#include "engine/data_folder.h"

namespace vorlexa::app {

using namespace vorlexa::literals;

namespace {

// The engine's menu items by the names the window gives them.
std::string_view nameOf(MenuItem item) {
    switch (item) {
        case MenuItem::ITR: return "ITR";
        case MenuItem::SUT: return "SUT";
        case MenuItem::EF: return "EF";
        case MenuItem::IMPV: return "IMPV";
        case MenuItem::AMN: return "AMN";
        case MenuItem::EdtTr: return "EdtTr";
        case MenuItem::Chat: return "Chat";
        case MenuItem::DSO: return "DSO";
    }
    return "";
}

constexpr std::string_view kSaveCaptionEnglish = "Save";
constexpr std::string_view kSaveCaptionArmenian = "Հիշել";

const std::string kNoCaption;

}  // namespace

FontText normalisePanelGloss(const FontText& gloss, Direction direction) {
    FontText g = gloss;
    if (direction == Direction::ArmenianToEnglish) {
        std::transform(g.begin(), g.end(), g.begin(), [](char c) {
            return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
        });
        return g;
    }
    g = foldArmenianCase(g);
    const std::string_view yev = "եւ"_ft;
    const char ligature = static_cast<char>(font::kLigature);
    for (std::size_t at = g.find(yev); at != FontText::npos; at = g.find(yev, at + 1))
        g.replace(at, yev.size(), 1, ligature);
    return g;
}

MainForm::MainForm(Form1View& view) : view_(view) {
    for (const MenuEntry& entry : menuTree()) {
        ItemState& s = items_[std::string(entry.name)];
        s.enabled = !entry.startsDisabled;
        s.caption = std::string(resourceCaption(entry.name));
    }
    for (const CaptionRow& row : captionTable()) {
        ItemState& s = items_[std::string(row.control)];
        s.caption = std::string(resourceCaption(row.control));
    }
    title_ = caption("Form1");
}

MainForm::~MainForm() = default;

// ---- State ------------------------------------------------------------------------------

ItemState& MainForm::item(std::string_view name) {
    auto it = items_.find(name);
    if (it == items_.end()) it = items_.emplace(std::string(name), ItemState{}).first;
    return it->second;
}

const ItemState* MainForm::findItem(std::string_view name) const {
    const auto it = items_.find(name);
    return it == items_.end() ? nullptr : &it->second;
}

bool MainForm::checked(std::string_view name) const {
    const ItemState* s = findItem(name);
    return s && s->checked;
}

void MainForm::setChecked(std::string_view name, bool on) { item(name).checked = on; }

bool MainForm::enabled(std::string_view name) const {
    const ItemState* s = findItem(name);
    return !s || s->enabled;
}

void MainForm::setEnabled(std::string_view name, bool on) { item(name).enabled = on; }

const std::string& MainForm::caption(std::string_view control) const {
    const ItemState* s = findItem(control);
    return s ? s->caption : kNoCaption;
}

void MainForm::setText4Font(const Text4Font& font) {
    font_ = font;
    view_.stateChanged();
}

// ---- Start and exit ------------------------------------------------------------------------

StartResult MainForm::Form_Load(const std::filesystem::path& dataFolder, const std::filesystem::path& shipped) {
    dataFolder_ = dataFolder;
    if (!lock_.acquire(dataFolder)) {
        notify(alreadyRunningNotice());
        return StartResult::AlreadyRunning;
    }
    std::string seedError;
    // A folder that can't be seeded still opens: its dictionaries are made empty, and every
    // word is then unknown.
    seedDataFolder(dataFolder, shipped, seedError);

    store_.open(dataFolder);
    engine_ = std::make_unique<Engine>(store_, dataFolder, *this);

    const std::vector<std::string> records = readSettingsRecords(dataFolder);
    for (std::size_t i = 0; i < records.size(); ++i)
        applySettingsRecord(static_cast<int>(i + 1), records[i]);

    store_.CreateDicStrings();
    view_.stateChanged();
    return StartResult::Started;
}

void MainForm::applySettingsRecord(int record, std::string_view value) {
    const std::string_view text = trimBlanks(value);
    switch (record) {
        case kRecordLanguage:
            if (text == kArmenianValue) {
                setChecked("AMN", true);
                SkipInterfaceQuestion = 1;
                AMN_Click();
            }
            break;
        case kRecordTypeArmenian:
            if (text == kTypeArmenianValue) {
                picture2Visible_ = true;
                picture1Visible_ = false;
                setChecked("TA", true);
            } else {
                picture1Visible_ = true;
                picture2Visible_ = false;
            }
            break;
        case kRecordEditingMode:
            if (text == kEditingModeValue) {
                setChecked("EF", true);
                efcheck();
            }
            break;
        case kRecordFontSize: {
            // A size that isn't a positive number is no size: the font stays as it is.
            const double size = std::round(recordNumber(text));
            if (size > 0) font_.size = size;
            break;
        }
        case kRecordFontColor: {
            // A colour is a 32-bit number; one beyond that range is no colour: the colour stays.
            const double color = recordNumber(text);
            if (color >= static_cast<double>(std::numeric_limits<std::int32_t>::min()) &&
                color <= static_cast<double>(std::numeric_limits<std::uint32_t>::max()))
                font_.color = static_cast<std::int64_t>(color);
            break;
        }
        case kRecordFontName:
            if (!text.empty()) font_.name = std::string(text);
            break;
        case kRecordInstant:
            if (text == kInstantValue) setChecked("ITR", true);
            break;
        case kRecordFontStyle:
            fontStyle_ = std::string(text);
            font_.bold = text == "Bold" || text == "BoldItalic";
            font_.italic = text == "Italic" || text == "BoldItalic";
            break;
        case kRecordSibling:
            setEnabled("HTD", text.find(kSiblingMark) != std::string_view::npos);
            break;
        default:
            break;
    }
}

ExitAnswer MainForm::exit1_Click() {
    SettingsToWrite values;
    values.armenianInterface = checked("AMN");
    values.typeArmenian = checked("TA");
    values.editingMode = checked("EF");
    values.instant = checked("ITR");
    values.fontSize = font_.size;
    values.fontColor = font_.color;
    values.fontName = font_.name;
    setsetings(dataFolder_, values);

    store_.deleteDerivedFiles();
    std::error_code ignored;
    std::filesystem::remove(dataFolder_ / kTempEnglishList, ignored);
    std::filesystem::remove(dataFolder_ / kTempArmenianList, ignored);

    const bool haveOutput = engine_ && !engine_->OutputText.empty();
    if (view_.text4().empty() && !haveOutput) return ExitAnswer::End;
    const int answer = ask(saveAtExitQuestion());
    if (engine_) engine_->AnswerCode = answer;
    if (answer == kAnswerYes) {
        ExitSaveRequested = 1;
        return ExitAnswer::SaveThenEnd;
    }
    if (answer == kAnswerCancel) return ExitAnswer::Cancel;
    return ExitAnswer::End;
}

void MainForm::finish() { lock_.release(); }

// ---- Commands ----------------------------------------------------------------------------

void MainForm::applyCaptions(Language language) {
    for (const CaptionRow& row : captionTable()) {
        const auto text = captionIn(row.control, language);
        if (text) item(row.control).caption = std::string(*text);
    }
    title_ = caption("Form1");
}

void MainForm::AMN_Click() {
    setChecked("AMN", true);
    applyCaptions(Language::Armenian);
    view_.stateChanged();
    // The question comes at every switch, as the design has it: the answer is kept where the
    // skip mark was, and a Yes (6) is no skip mark. Only the settings at start set the mark.
    if (!SkipInterfaceQuestion.isSet()) {
        const int answer = ask(armenianInterfaceQuestion());
        SkipInterfaceQuestion = answer;
        if (answer == kAnswerYes) return;
        // The captions can't be read: the note on the Armenian font from the help text takes
        // the result box, in place of the translation (the source box still holds the text).
        if (const auto note = fontNoteFromHelp(dataFolder_ / kHelpFileName)) view_.setText4(*note);
        if (engine_) engine_->OutputText.clear();
    }
    SkipInterfaceQuestion.clear();
}

void MainForm::Engo_Click() {
    setChecked("AMN", false);
    applyCaptions(Language::English);
    view_.stateChanged();
}

void MainForm::TA_Click() {
    const bool on = !checked("TA");
    setChecked("TA", on);
    picture1Visible_ = !on;
    picture2Visible_ = on;
    view_.stateChanged();
}

void MainForm::EF_Click() {
    setChecked("EF", !checked("EF"));
    efcheck();
}

void MainForm::efcheck() {
    if (checked("EF")) {
        editingLayout_ = true;
        setEnabled("ETE", true);
    } else {
        editingLayout_ = false;
        setEnabled("ETE", false);
        font_.name = std::string(kDefaultFace);
        font_.size = kDefaultFontSize;
        font_.bold = false;
    }
    view_.stateChanged();
}

void MainForm::ITR_Click() {
    setChecked("ITR", !checked("ITR"));
    view_.stateChanged();
}

void MainForm::SUT_Click() {
    setChecked("SUT", !checked("SUT"));
    view_.stateChanged();
}

void MainForm::EdtTr_Click() {
    setChecked("EdtTr", !checked("EdtTr"));
    view_.stateChanged();
}

void MainForm::IMPV_Click() {
    setChecked("IMPV", true);
    view_.stateChanged();
    view_.setText3(" " + view_.text3());
}

void MainForm::TS_Click() {
    const TextSelection sel = view_.text4Selection();
    if (sel.length <= 1 || !engine_) return;
    setChecked("SUT", false);
    const FontText whole = view_.text4();
    const auto start = static_cast<std::size_t>(std::clamp(sel.start, 0, static_cast<int>(whole.size())));
    const FontText before = whole.substr(0, start);
    const FontText selected = whole.substr(start, static_cast<std::size_t>(sel.length));
    const FontText after = whole.substr(std::min(whole.size(), start + selected.size()));
    view_.setText3(selected);
    const FontText translated = engine_->OutputText;
    view_.setText4(before + translated + after);
    view_.selectText4({static_cast<int>(before.size()), static_cast<int>(translated.size())});
    engine_->OutputText = view_.text4();
    view_.stateChanged();
}

void MainForm::Text1_Click() {
    if ((picture2Visible_ && direction() == 0) || (picture1Visible_ && direction() == 1)) TA_Click();
}

void MainForm::Text2_Click() {
    if (engine_ && engine_->SpellMode.isSet()) return;
    Text1_Click();
}

unsigned char MainForm::typedKey(unsigned char key) const {
    return checked("TA") ? kanci(key, KeyTable::Main) : key;
}

// ---- The run and the add-word panel -----------------------------------------------------------

void MainForm::Text3_Change(const FontText& text) {
    if (!engine_) return;
    endUnfinishedRun();
    engine_->Text3_Change(text);
    runEnded();
    view_.stateChanged();
}

// A run that waits on the panel, or waits for its next slice, is given up when the text it
// translates has changed: its word and sentence state must not leak into the new run.
void MainForm::endUnfinishedRun() {
    Engine& e = *engine_;
    if (e.state != RunState::Waiting && e.state != RunState::Suspended) return;
    if (e.state == RunState::Suspended) ++runCounts_.dropped;
    e.yieldBetweenWords = nullptr;
    if (e.state == RunState::Waiting) closePanel();
    skippedWord_.clear();
    e.resetWord();
    e.resetSentence();
    e.resetRun();
    e.state = RunState::Idle;
}

void MainForm::runEnded() {
    if (!engine_ || engine_->state != RunState::Idle) return;
    // The design minimises the window for a long unattended run; at its end the window comes
    // back, since a desktop without a task bar would otherwise seem to have lost it.
    if (minimisedForRun_) {
        minimisedForRun_ = false;
        view_.restoreAfterUnattendedRun();
    }
}

bool MainForm::startInstantRun(const FontText& text) {
    if (!engine_) return false;
    endUnfinishedRun();
    ++runCounts_.started;
    sliceStart_ = now();
    engine_->yieldBetweenWords = [this] { return now() - sliceStart_ >= kInstantSlice; };
    engine_->Text3_Change(text);
    return instantSliceEnded();
}

bool MainForm::continueInstantRun() {
    if (!instantRunPending()) return false;
    sliceStart_ = now();
    engine_->ankap0_DblClick();
    return instantSliceEnded();
}

bool MainForm::instantSliceEnded() {
    runCounts_.longestSlice = std::max(runCounts_.longestSlice,
                                       std::chrono::duration_cast<std::chrono::nanoseconds>(now() - sliceStart_));
    if (engine_->state == RunState::Suspended) return true;
    engine_->yieldBetweenWords = nullptr;
    ++runCounts_.finished;
    runEnded();
    view_.stateChanged();
    return false;
}

void MainForm::Replacet_Click(const FontText& word) {
    panel_.visible = true;
    panel_.Text1 = word;
    panel_.Text2.clear();
    panel_.Text6.clear();
    panel_.listVisible = false;
    panel_.text1Visible = panel_.text2Visible = panel_.text6Visible = panel_.command2Enabled = true;
    panel_.Command2 = std::string(language() == Language::Armenian ? kSaveCaptionArmenian : kSaveCaptionEnglish);
    view_.stateChanged();
}

void MainForm::Command2_Click() {
    if (panel_.Text1.empty()) return;
    if (panel_.Command2 != kSaveCaptionEnglish && panel_.Command2 != kSaveCaptionArmenian) {
        smallBoxesCommand2();
        return;
    }
    // The design's save simply does nothing without a translation; the user is told why.
    const Direction direction =
        engine_ && engine_->Check1 == 1 ? Direction::ArmenianToEnglish : Direction::EnglishToArmenian;
    if (panel_.visible && trimBlanks(normalisePanelGloss(panel_.Text2, direction)).empty()) {
        notify(emptyTranslationNotice());
        return;
    }
    Text2_DblClick();
}

void MainForm::closePanel() {
    panel_ = WordPanel{};
}

void MainForm::Text2_DblClick() {
    if (!panel_.visible || !engine_) return;
    if (panel_.Command2 != kSaveCaptionEnglish && panel_.Command2 != kSaveCaptionArmenian) return;
    Engine& e = *engine_;
    const Direction direction = e.Check1 == 0 ? Direction::EnglishToArmenian : Direction::ArmenianToEnglish;
    e.CurrentWord = panel_.Text1;
    panel_.Text2 = normalisePanelGloss(panel_.Text2, direction);
    if (panel_.Text2.empty()) return;

    const FontText key = panel_.Text1.substr(0, kKeyWidth);
    const FontText gloss = panel_.Text2.substr(0, kGlossWidth);
    insertWordPair(store_, direction, key, gloss, panel_.Text6.substr(0, kTagWidth));

    // The translation is not written into the output here. The resumed run reads the paused
    // word again (ScanPos untouched, CurrentWord the word of Text1), finds the record just
    // stored and writes its gloss with the endings and the delimiter still pending; that is
    // also how a phrase or an alternative, which gets no reverse entry, reaches the output.
    // Writing Text2 here too gave the word twice.

    closePanel();
    view_.stateChanged();
    e.AnswerCode = kAnswerNo;
    e.resumeRun();
    runEnded();
    view_.stateChanged();
}

void MainForm::skipWord() {
    if (!panel_.visible || !engine_ || engine_->state != RunState::Waiting) return;
    if (panel_.Command2 != kSaveCaptionEnglish && panel_.Command2 != kSaveCaptionArmenian) return;
    Engine& e = *engine_;
    // The resumed run reads the word again as it was typed and meets the question about it
    // once more; that question is answered No here, so that the word takes the No path: it
    // joins the terms of the run and stays in the text untranslated.
    skippedWord_ = e.RawWord;
    e.CurrentWord = e.RawWord;
    if (e.UnknownCount > 0) --e.UnknownCount;  // counted again when it is read again
    closePanel();
    view_.stateChanged();
    e.resumeRun();
    skippedWord_.clear();
    runEnded();
    view_.stateChanged();
}

// ---- Host ---------------------------------------------------------------------------------

int MainForm::ask(const Question& question) {
    if (question.kind == QuestionKind::AddUnknownWord && !skippedWord_.empty() && question.subject == skippedWord_) {
        skippedWord_.clear();
        return kAnswerNo;
    }
    return view_.ask(question, language());
}

void MainForm::notify(const Notice& notice) { view_.notify(notice, language()); }

void MainForm::setTitle(const Wording& title) {
    title_ = toUtf8(title.in(language() == Language::Armenian));
    view_.stateChanged();
}

void MainForm::setProgress(int percent) {
    percent = std::clamp(percent, 0, 100);
    if (percent == progress_) return;
    progress_ = percent;
    const Clock::time_point t = now();
    // The first and last steps are always drawn; those between only now and then.
    if (percent == 0 || percent == 100 || !lastProgressDraw_ || t - *lastProgressDraw_ >= kProgressInterval) {
        lastProgressDraw_ = t;
        view_.progressChanged(percent);
    }
}

void MainForm::showProgress(bool shown) {
    if (shown == progressVisible_) return;
    progressVisible_ = shown;
    view_.stateChanged();
}

void MainForm::setBusy(bool busy) { view_.setBusy(busy); }

void MainForm::setResultText(const FontText& text) { view_.setText4(text); }

FontText MainForm::resultText() const { return view_.text4(); }

void MainForm::selectResultText(int start, int length) { view_.selectText4({start - 1, length}); }

bool MainForm::isChecked(MenuItem which) const { return checked(nameOf(which)); }

void MainForm::setChecked(MenuItem which, bool on) {
    if (checked(nameOf(which)) == on) return;
    setChecked(nameOf(which), on);
    view_.stateChanged();
}

void MainForm::openAddWordPanel(const FontText& word) {
    // Outside a spell-check pass the panel offers the word as it is looked up (lower case, and
    // stripped by the ending analysis), so that the stored key is one the look-up can find.
    if (engine_ && !engine_->SpellMode.isSet() && !engine_->CurrentWord.empty()) {
        Replacet_Click(engine_->CurrentWord);
        return;
    }
    Replacet_Click(word);
}

void MainForm::minimiseWindow() {
    minimisedForRun_ = true;
    view_.minimise();
}

void MainForm::openConverter() {
    if (onOpenConverter) onOpenConverter();
}

void MainForm::hideConverter() {
    if (onHideConverter) onHideConverter();
}

void MainForm::setSaveEnabled(bool on) {
    setEnabled("Save", on);
    setEnabled("aas", on);
    // Nothing else enables printing, which starts disabled: it waits for a result like saving.
    setEnabled("prnt", on);
    view_.stateChanged();
}

void MainForm::clearWordList() { panel_.List1.clear(); }

}  // namespace vorlexa::app
