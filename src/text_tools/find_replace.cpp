#include "text_tools/find_replace.h"

#include <algorithm>

#include "engine/dictionary_store.h"

namespace vorlexa::text_tools {

using namespace literals;

namespace {

FontText captionOf(bool armenian, std::string_view english, std::string_view armenianText) {
    return FontText(armenian ? armenianText : english);
}

FontText findCaption(bool armenian) {
    return captionOf(armenian, kFindCaption, "Որոնել"_ft);
}
FontText findNextCaption(bool armenian) {
    return captionOf(armenian, kFindNextCaption, "Որոնել հաջորդը"_ft);
}
FontText replaceCaption(bool armenian) {
    return armenian ? FontText("Փոխել"_ft) + "\n" + FontText("սրանով"_ft)
                    : FontText("Replace -\nWith - ");
}

// Lower case of both alphabets, for a search that ignores case.
FontText lowerCase(std::string_view text) {
    FontText out = foldArmenianCase(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}

Command2Action findNext(SmallBoxes& boxes, FindState& state, FindReplaceView& view) {
    const bool armenian = view.armenianInterface();
    state.SearchText = FontText(trimBlanks(boxes.Text1));
    if (state.SearchText.empty()) return Command2Action::Nothing;
    // Armenian capitals of the text are always folded, so an Armenian search word is typed in
    // small letters unless case is ignored.
    FontText work = foldArmenianCase(view.text4());
    FontText needle = state.SearchText;
    if (state.FindIgnoreCase) {
        work = lowerCase(work);
        needle = lowerCase(needle);
    }
    boxes.Command2Tip =
        armenian ? FontText("Որոնումն ընդհատելու համար երկու անգամ կտտացրեք փնտրվող տեքստի վրա:"_ft)
                 : FontText("Doublclick Search Textbox to abort the search.");
    for (;;) {
        const std::int64_t from =
            std::clamp<std::int64_t>(state.SearchPos, 0, static_cast<std::int64_t>(work.size()));
        const auto at = work.find(needle, static_cast<std::size_t>(from));
        if (at != FontText::npos) {
            state.SearchPos = static_cast<std::int64_t>(at) + 1;
            boxes.Command2 = findNextCaption(armenian);
            view.selectText4(static_cast<std::int64_t>(at),
                             static_cast<std::int64_t>(needle.size()));
            return Command2Action::Found;
        }
        Question q;
        q.text = {"No matches found! Restart the Search?",
                  FontText("Համընկնում չգտնվեց: Վերսկսե՞լ որոնումը:"_ft)};
        q.title = {FontText(kFindCaption), FontText("Որոնել"_ft)};
        q.buttons = Buttons::YesNo;
        q.subject = state.SearchText;
        const bool searchedWholeText = from == 0;
        // A text with no match at all would bring the same question back at every Yes: the
        // search then ends as with No.
        if (view.ask(q) == kAnswerYes && !searchedWholeText) {
            state.SearchPos = 0;
            continue;
        }
        boxes.Text1Visible = false;
        boxes.Command2Visible = false;
        state.SearchPos = 1;
        return Command2Action::Found;
    }
}

Command2Action replaceAll(SmallBoxes& boxes, FindState& state, FindReplaceView& view) {
    const bool armenian = view.armenianInterface();
    // The result box as the user sees it, edits included.
    const FontText text = view.text4();
    const FontText& find = boxes.Text1;
    FontText result;
    result.reserve(text.size());
    state.ReplacementCount = 0;
    bool replacing = true;
    for (std::size_t i = 0; i < text.size();) {
        if (replacing && text.compare(i, find.size(), find) == 0) {
            result += boxes.Text2;
            i += find.size();
            ++state.ReplacementCount;
            if (state.ReplacementCount == 1) {
                Question q;
                q.text = {
                    "1 Replacement done.\r\nShall we continue with the same replacement in the "
                    "rest of the text?",
                    FontText("Կատարվեց 1 փոփոխություն:"_ft) + "\r\n" +
                        FontText(
                            "Շարունակե՞նք անել այս փոփոխությունը տեքստի մնացած հատվածում: "_ft)};
                // In English the box has only OK, so English always goes on.
                q.buttons = armenian ? Buttons::YesNo : Buttons::Ok;
                q.subject = find;
                const int answer = view.ask(q);
                if (armenian && answer == kAnswerNo) replacing = false;
            }
            continue;
        }
        result += text[i++];
    }
    const std::string count = std::to_string(state.ReplacementCount);
    if (!state.inPass && state.ReplacementCount > 0)
        view.notify({{count + " Replacements done.",
                      FontText("Կատարվեց "_ft) + count + FontText(" փոփոխություն:"_ft)},
                     {}});
    view.setText4(result);
    boxes.Text1Visible = false;
    boxes.Text2Visible = false;
    boxes.List1Visible = false;
    boxes.Command2Visible = false;
    state.SearchPos = 0;
    if (state.ReplacementCount == 0)
        view.notify({{"No Replacements - done!", FontText("Փոփոխություն չկա:"_ft)}, {}});
    return Command2Action::Replaced;
}

}  // namespace

bool isFindCaption(std::string_view caption) {
    return caption == kFindCaption || caption == kFindNextCaption || caption == "Որոնել"_ft ||
           caption == "Որոնել հաջորդը"_ft;
}

bool isSaveCaption(std::string_view caption) {
    return caption == kSaveCaption || caption == "Հիշել"_ft;
}

bool mainlyLatin(std::string_view text4) {
    std::int64_t latin = 0;
    std::int64_t armenian = 0;
    for (const char ch : text4) {
        const auto c = static_cast<unsigned char>(ch);
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
            ++latin;
        else if (font::isArmenianLetter(c) || c == font::kLigature)
            ++armenian;
    }
    return latin > armenian;
}

void Fnd_Click(SmallBoxes& boxes, bool armenian) {
    boxes.Text1Visible = true;
    boxes.Command2Visible = true;
    boxes.Command2Enabled = true;
    boxes.Text2Visible = false;
    boxes.List1Visible = false;
    boxes.Command2 = findCaption(armenian);
}

void Replacce_click(SmallBoxes& boxes, const FontText& text4, const FontText& selected,
                    const FontText& RawWord, bool inPass, bool armenian) {
    boxes.Command2Tip.clear();
    if (!text4.empty()) {
        boxes.Text1Visible = true;
        boxes.Command2Visible = true;
        boxes.Text2Visible = false;
    }
    if (!selected.empty()) boxes.Text1 = FontText(trimBlanks(selected));
    boxes.Command2Enabled = true;
    if (boxes.List1.size() == 1) {
        boxes.List1Visible = false;
        boxes.Text2Visible = true;
        // In a pass Text2 keeps the replacement the generator rebuilt with the word's ending;
        // when there is none it would show the misspelling itself, so the suggestion goes in.
        if (!inPass || boxes.Text2.empty() || boxes.Text2 == RawWord)
            boxes.Text2 = boxes.List1.front();
    } else if (boxes.List1.empty()) {
        boxes.List1Visible = false;
        boxes.Text2Visible = true;
        if (boxes.Text2.empty()) boxes.Text2 = RawWord;
    } else {
        boxes.List1Visible = true;
        boxes.Command2Enabled = false;  // until a suggestion is chosen
    }
    boxes.Command2 = replaceCaption(armenian);
}

void List1_Click(SmallBoxes& boxes, std::size_t index) {
    if (index >= boxes.List1.size()) return;
    boxes.Text2 = boxes.List1[index];
    boxes.List1Visible = false;
    boxes.Text2Visible = true;
    boxes.Command2Enabled = true;
}

Command2Action Command2_Click(SmallBoxes& boxes, FindState& state, FindReplaceView& view) {
    if (boxes.Text1.empty()) return Command2Action::Nothing;
    if (isFindCaption(boxes.Command2)) return findNext(boxes, state, view);
    if (isSaveCaption(boxes.Command2)) return Command2Action::Save;
    return replaceAll(boxes, state, view);
}

void Text1_DblClick(SmallBoxes& boxes, FindState& state, FindReplaceView& view) {
    if (boxes.Command2 != kFindNextCaption && boxes.Command2 != "Որոնել հաջորդը"_ft) return;
    boxes.Text1Visible = false;
    boxes.Command2Visible = false;
    boxes.Text1.clear();
    state.SearchPos = 0;
    view.selectText4(0, 0);
}

}  // namespace vorlexa::text_tools
