#include "app/word_lookup_panel.h"

#include "dictionary_tools/dictionary_reports.h"

namespace vorlexa::app {

namespace {

DoubleClickResult Txt34_dblclick(MainForm& form, const FontText& selection) {
    const LookupResult r = vorlexa::Txt34_dblclick(
        form.store(), readStringsFile(form.dataFolder(), Direction::EnglishToArmenian),
        readStringsFile(form.dataFolder(), Direction::ArmenianToEnglish), selection,
        hayqer1Strip());
    DoubleClickResult shown;
    if (r.word.empty()) return shown;
    WordPanel& panel = form.panel();
    panel.visible = true;
    panel.Text1 = r.word;
    panel.List1 = r.synonyms;
    panel.listVisible = true;
    // The panel's button keeps its caption: only "Save" adds a word, and a look-up is no add.
    if (!r.found) panel.Text2 = panel.Text1;
    shown.toolTip = r.text;
    return shown;
}

// Txt35_dblclick: the alternatives of a gloss go to Text2 and the find and replace box opens.
DoubleClickResult Txt35_dblclick(MainForm& form, const FontText& selection) {
    WordPanel& panel = form.panel();
    panel.visible = true;
    panel.Text2 = selection;
    return {{}, true};
}

}  // namespace

DoubleClickResult Text3_DblClick(MainForm& form, const FontText& selection) {
    return Txt34_dblclick(form, selection);
}

DoubleClickResult Text4_dblclick(MainForm& form, const FontText& selection) {
    form.panel().Text2.clear();
    if (selection.find('/') != FontText::npos) return Txt35_dblclick(form, selection);
    DoubleClickResult shown = Txt34_dblclick(form, selection);
    if (form.checked("EdtTr")) {
        form.panel().visible = true;
        shown.runReplace = true;
    }
    return shown;
}

}  // namespace vorlexa::app
