#include "text_tools/result_box_tools.h"

#include "text_tools/case_change.h"

namespace vorlexa::text_tools {

using namespace vorlexa::literals;

Question spellCheckQuestion() {
    Question q;
    q.text = {"Would you like to check spelling?",
              FontText("Կկամենայի՞ք կատարել սխալների ուղղում:"_ft)};
    q.title = {"Attention", FontText("Ուշադրություն"_ft)};
    q.buttons = Buttons::YesNo;
    return q;
}

ResultBoxTools::ResultBoxTools(Host& host, SelectionBox& box, FontText& outputText)
    : host_(host), box_(box), OutputText(outputText) {}

// The frame the three transliterations share: instant translation off, the hourglass, the
// selection through the list, the arrow, and the bar at its end.
void ResultBoxTools::transliterate(Transliteration which) {
    host_.setChecked(MenuItem::ITR, false);
    host_.setBusy(true);
    OutputText = box_.selectedText();
    host_.setProgress(0);
    runReplacementList(OutputText, replacementList(which));
    // An empty selection stays empty: nothing is put back, so the caret doesn't move.
    if (!OutputText.empty()) box_.replaceSelection(OutputText);
    host_.setBusy(false);
    host_.setProgress(100);
}

void ResultBoxTools::cvtae_Click() {
    transliterate(Transliteration::ArmenianToLatin);
}

void ResultBoxTools::ET_Click() {
    transliterate(Transliteration::EnglishToArmenian);
}

void ResultBoxTools::LLAT_Click() {
    transliterate(Transliteration::LatinArmenianToArmenian);
    if (CorrectorWorning)
        CorrectorWorning();
    else
        host_.ask(spellCheckQuestion());
}

void ResultBoxTools::changeCase(int mode) {
    host_.setChecked(MenuItem::ITR, false);
    CaseMode = mode;
    WorkText = text_tools::changeCase(box_.selectedText(), CaseMode);
    if (!WorkText.empty()) box_.replaceSelection(WorkText);
}

void ResultBoxTools::AUC_Click() {
    changeCase(kArmenianUpper);
}

void ResultBoxTools::ALC_Click() {
    changeCase(kArmenianLower);
}

void ResultBoxTools::EUC_Click() {
    changeCase(kEnglishUpper);
}

void ResultBoxTools::ELC_Click() {
    changeCase(kEnglishLower);
}

}  // namespace vorlexa::text_tools
