// The spell checker, Find and Replace of the main window: the menu items SSO, DSO, Fnd and
// Replacce, and the small boxes Text1, Text2, List1 and Command2 they share with the add-word
// panel. The work is done in the core (src/spell, src/text_tools); this maps it to the panel.
#include <algorithm>

#include "app/main_form.h"

namespace vorlexa::app {

namespace {

// Find and Replace over the window's result box and message boxes.
class BoxView : public text_tools::FindReplaceView {
  public:
    BoxView(Form1View& view, bool armenian) : view_(view), armenian_(armenian) {}
    bool armenianInterface() const override { return armenian_; }
    FontText text4() const override { return view_.text4(); }
    void setText4(const FontText& text) override { view_.setText4(text); }
    FontText text4SelectedText() const override {
        const TextSelection sel = view_.text4Selection();
        const FontText all = view_.text4();
        const auto start =
            static_cast<std::size_t>(std::clamp(sel.start, 0, static_cast<int>(all.size())));
        return all.substr(start, static_cast<std::size_t>(std::max(sel.length, 0)));
    }
    void selectText4(std::int64_t start, std::int64_t length) override {
        view_.selectText4({static_cast<int>(start), static_cast<int>(length)});
    }
    int ask(const Question& q) override {
        return view_.ask(q, armenian_ ? Language::Armenian : Language::English);
    }
    void notify(const Notice& n) override {
        view_.notify(n, armenian_ ? Language::Armenian : Language::English);
    }

  private:
    Form1View& view_;
    bool armenian_;
};

}  // namespace

text_tools::SmallBoxes MainForm::smallBoxes() const {
    text_tools::SmallBoxes b;
    b.Text1 = panel_.Text1;
    b.Text2 = panel_.Text2;
    b.List1 = panel_.List1;
    b.Text1Visible = panel_.visible && panel_.text1Visible;
    b.Text2Visible = panel_.visible && panel_.text2Visible && !panel_.listVisible;
    b.List1Visible = panel_.visible && panel_.listVisible;
    b.Command2Visible = panel_.visible;
    b.Command2Enabled = panel_.command2Enabled;
    b.Command2 = fromUtf8(panel_.Command2);
    b.Command2Tip = fromUtf8(panel_.command2Tip);
    return b;
}

void MainForm::applySmallBoxes(const text_tools::SmallBoxes& b) {
    panel_.Text1 = b.Text1;
    panel_.Text2 = b.Text2;
    panel_.List1 = b.List1;
    panel_.visible = b.Text1Visible || b.Text2Visible || b.List1Visible || b.Command2Visible;
    panel_.text1Visible = b.Text1Visible;
    panel_.text2Visible = b.Text2Visible;
    panel_.text6Visible = false;
    panel_.listVisible = b.List1Visible;
    panel_.command2Enabled = b.Command2Enabled;
    panel_.Command2 = toUtf8(b.Command2);
    panel_.command2Tip = toUtf8(b.Command2Tip);
}

void MainForm::SSO_Click() {
    if (!engine_) return;
    closePanel();
    spell::SSO_Click(*engine_, [this](const FontText& text) { view_.setText3(text); });
    view_.stateChanged();
}

void MainForm::DSO_Click() {
    if (!engine_) return;
    closePanel();
    spell::DSO_Click(*engine_, [this](const FontText& text) { view_.setText3(text); });
    view_.stateChanged();
}

void MainForm::CorrectorWorning() {
    if (!engine_) return;
    spell::CorrectorWorning(*engine_, [this](const FontText& text) {
        closePanel();
        view_.setText3(text);
    });
    view_.stateChanged();
}

void MainForm::Fnd_Click() {
    text_tools::SmallBoxes b = smallBoxes();
    text_tools::Fnd_Click(b, language() == Language::Armenian);
    applySmallBoxes(b);
    Text4_Change();
    view_.stateChanged();
}

void MainForm::Replacce_click() {
    setChecked("ITR", false);
    text_tools::SmallBoxes b = smallBoxes();
    const BoxView box(view_, language() == Language::Armenian);
    const bool inPass = engine_ && engine_->SpellMode.isSet();
    text_tools::Replacce_click(b, view_.text4(), box.text4SelectedText(),
                               engine_ ? engine_->RawWord : FontText{}, inPass,
                               language() == Language::Armenian);
    applySmallBoxes(b);
    view_.stateChanged();
}

void MainForm::showSuggestions(const spell::SpellResult& result) {
    text_tools::SmallBoxes b = smallBoxes();
    b.List1 = result.List1;
    b.Text1 = result.Text1;
    b.Text2 = result.Text2;
    // The word in question stands selected in Text4; the lone "ա" comes with a character either
    // side, which the selection would cut off again.
    text_tools::Replacce_click(b, view_.text4(), result.Text1,
                               engine_ ? engine_->RawWord : FontText{}, true,
                               language() == Language::Armenian);
    applySmallBoxes(b);
    view_.stateChanged();
}

void MainForm::List1_Click(int index) {
    if (index < 0) return;
    text_tools::SmallBoxes b = smallBoxes();
    text_tools::List1_Click(b, static_cast<std::size_t>(index));
    applySmallBoxes(b);
    view_.stateChanged();
}

void MainForm::Text1_DblClick() {
    text_tools::SmallBoxes b = smallBoxes();
    BoxView box(view_, language() == Language::Armenian);
    text_tools::Text1_DblClick(b, find_, box);
    applySmallBoxes(b);
    view_.stateChanged();
}

void MainForm::Text4_Change() {
    find_.FindIgnoreCase = text_tools::mainlyLatin(view_.text4());
}

void MainForm::smallBoxesCommand2() {
    text_tools::SmallBoxes b = smallBoxes();
    if (engine_ && engine_->SpellMode.isSet() && engine_->state == RunState::Waiting &&
        !text_tools::isFindCaption(b.Command2)) {
        // In a pass the word is replaced in the text of the pass, which then goes on.
        if (!b.Command2Enabled) return;
        closePanel();
        view_.stateChanged();
        spell::replaceInPass(*engine_, b.Text1, b.Text2);
        view_.stateChanged();
        return;
    }
    BoxView box(view_, language() == Language::Armenian);
    find_.inPass = engine_ && engine_->SpellMode.isSet();
    const text_tools::Command2Action action = text_tools::Command2_Click(b, find_, box);
    applySmallBoxes(b);
    if (action == text_tools::Command2Action::Replaced && engine_)
        engine_->OutputText = view_.text4();
    if (action == text_tools::Command2Action::Save) Text2_DblClick();
    view_.stateChanged();
}

}  // namespace vorlexa::app
