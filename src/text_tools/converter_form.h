// The converter window Form3, "UNICODE ANSI CONVERTER", without its widgets. A paste of Unicode
// Armenian into TextBox1 is turned into font text and, unless CheckBox1 is set, handed on to the
// translator; the label Label1 turns the box back into Unicode, and Label3 closes the window.
//
// TextBox1 holds UTF-16 units. After a conversion to font text each Armenian letter is a unit
// holding its font code (178..253, 168), so the text copied out of the box is what a document
// in the one-byte Armenian font expects.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "text/font_text.h"

namespace vorlexa::text_tools {

inline constexpr std::string_view kConverterCaption = "UNICODE ANSI CONVERTER";
// The faces of TextBox1: the one-byte Armenian font after a conversion to font text, a Unicode
// face after a conversion to Unicode.
inline constexpr std::string_view kFontTextFace = "Arial Armenian";
inline constexpr std::string_view kUnicodeFace = "sylfaen";

// The window's position value, in twips from the top of the screen.
inline constexpr int kMenuPosition = 2800;  // opened from the menu: below the main window's boxes
inline constexpr int kPastePosition = 0;    // opened by a run that found Unicode: at the top

class ConverterForm {
public:
    // ---- The window's state, which the widgets show ---------------------------------------
    std::u16string TextBox1;
    std::string TextBox1Font = std::string(kUnicodeFace);
    bool CheckBox1 = false;  // set: a conversion does not go on to the translator
    bool visible = false;
    int position = kMenuPosition;
    bool focusOnTextBox1 = false;  // the focus was put into TextBox1, so that a paste lands there

    int ConverterGuard = 0;
    std::u16string ConverterText;

    // ---- What the window reaches outside itself ----------------------------------------------
    std::function<void(bool busy)> setBusy;  // the hourglass pointer
    // SUT checked and Text3 set to the converted text, which starts a translation run.
    std::function<void(const FontText& text)> translate;

    // ---- Events ------------------------------------------------------------------------------
    // The menu command uta: shows the window at its menu position.
    void uta_Click();
    // A run found Unicode Armenian pasted into the source box: the window opens at the top with
    // the focus in TextBox1.
    void openForPaste();
    // TextBox1 changed (typed or pasted; the window sets TextBox1 before calling).
    void textbox1_change();
    void Label1_Click();
    void Label3_Click();

private:
    void busy(bool on) const;
};

// The converted text of TextBox1 as the translator's font text: a unit up to 255 is that code,
// and a unit above (a character the converter left, such as Cyrillic) travels as itself.
FontText fontTextOfConverted(std::u16string_view converted);

}  // namespace vorlexa::text_tools
