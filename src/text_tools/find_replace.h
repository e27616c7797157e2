// Find and Replace in the result box Text4, through the small boxes of the main window: Text1
// (what to find), Text2 (the replacement), List1 (spelling suggestions) and the button Command2,
// whose caption picks the action. The same boxes show the spell checker's word and suggestions.
//
// No widgets here: the boxes are plain state, the window and its questions come through
// FindReplaceView, and the desktop maps both to its controls.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/host.h"
#include "text/font_text.h"

namespace vorlexa::text_tools {

// The captions of Command2 that pick its action.
inline constexpr std::string_view kFindCaption = "Find";
inline constexpr std::string_view kFindNextCaption = "Find next";
inline constexpr std::string_view kSaveCaption = "Save";

struct SmallBoxes {
    FontText Text1;  // what to find, or the word in question
    FontText Text2;  // the replacement
    std::vector<FontText> List1;
    bool Text1Visible = false;
    bool Text2Visible = false;
    bool List1Visible = false;
    bool Command2Visible = false;
    bool Command2Enabled = true;
    FontText Command2;     // the caption, in the language of the interface
    FontText Command2Tip;  // the tool tip, in the language of the interface
};

// The search state kept between clicks.
struct FindState {
    std::int64_t SearchPos = 0;   // the position reached, 1-based; 0 before the first match
    bool FindIgnoreCase = false;  // set by Text4_Change: true for a mainly Latin text
    std::int64_t ReplacementCount = 0;
    FontText SearchText;  // Text1, trimmed
    bool inPass = false;  // a spell-check pass: the replacement is not counted aloud
};

// What Find and Replace need of the window.
class FindReplaceView {
  public:
    virtual ~FindReplaceView() = default;
    virtual bool armenianInterface() const = 0;
    virtual FontText text4() const = 0;
    virtual void setText4(const FontText& text) = 0;
    virtual FontText text4SelectedText() const = 0;
    // Selects part of Text4: 0-based start and length; a length of 0 puts the caret there.
    virtual void selectText4(std::int64_t start, std::int64_t length) = 0;
    virtual int ask(const Question& question) = 0;
    virtual void notify(const Notice& notice) = 0;
};

// What Command2_Click did.
enum class Command2Action {
    Nothing,   // Text1 was empty
    Found,     // a match is selected, or the search ended
    Replaced,  // the replacement ran over the text
    Save,      // caption "Save": the add-word panel stores its pair (Text2_DblClick)
};

// Text4_Change: a text with more Latin than Armenian letters is searched without regard to case.
bool mainlyLatin(std::string_view text4);

// Fnd_Click: the boxes for a search.
void Fnd_Click(SmallBoxes& boxes, bool armenian);

// Replacce_click: the boxes for a replacement, or for the suggestions of the spell checker.
// `selected` is the selection of Text4; `RawWord` the word in question; `inPass` is true during a
// spell-check pass.
void Replacce_click(SmallBoxes& boxes, const FontText& text4, const FontText& selected,
                    const FontText& RawWord, bool inPass, bool armenian);

// A click on a suggestion: it goes into Text2, the list gives way to Text2, and Command2 can be
// pressed.
void List1_Click(SmallBoxes& boxes, std::size_t index);

// Command2 by its caption: find the next match, replace over the whole text, or save.
Command2Action Command2_Click(SmallBoxes& boxes, FindState& state, FindReplaceView& view);

// A double-click on Text1 while the caption says "Find next" ends the search.
void Text1_DblClick(SmallBoxes& boxes, FindState& state, FindReplaceView& view);

bool isFindCaption(std::string_view caption);
bool isSaveCaption(std::string_view caption);

}  // namespace vorlexa::text_tools
