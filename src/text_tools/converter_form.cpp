#include "text_tools/converter_form.h"

#include "text/converters.h"

namespace vorlexa::text_tools {

FontText fontTextOfConverted(std::u16string_view converted) {
    FontText out;
    out.reserve(converted.size());
    std::string unconverted;
    for (std::size_t i = 0; i < converted.size(); ++i) {
        const char16_t unit = converted[i];
        if (unit <= 0xFF) {
            out += static_cast<char>(unit);
            continue;
        }
        char32_t cp = unit;
        const bool pair = unit >= 0xD800 && unit <= 0xDBFF && i + 1 < converted.size() &&
                          converted[i + 1] >= 0xDC00 && converted[i + 1] <= 0xDFFF;
        if (pair) {
            cp = 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) +
                 (converted[i + 1] - 0xDC00);
            ++i;
        } else if (unit >= 0xD800 && unit <= 0xDFFF) {
            cp = font::kReplacementChar;  // half a pair stands for nothing
        }
        unconverted.clear();
        appendUtf8(unconverted, cp);
        out += fromUtf8(unconverted);
    }
    return out;
}

void ConverterForm::busy(bool on) const {
    if (setBusy) setBusy(on);
}

void ConverterForm::uta_Click() {
    visible = true;
    position = kMenuPosition;
}

void ConverterForm::openForPaste() {
    visible = true;
    position = kPastePosition;
    focusOnTextBox1 = true;
}

void ConverterForm::textbox1_change() {
    if (ConverterGuard == 1) {
        ConverterGuard = 0;
        return;
    }
    TextBox1Font = std::string(kFontTextFace);
    busy(true);
    ConverterText = TextBox1;
    UnicodeAnsciConverter(ConverterText);
    // Writing the text back is a change of its own in the window, which finds nothing left to
    // convert; it is not raised again here, so that one paste is one translation run.
    TextBox1 = ConverterText;
    busy(false);
    if (!CheckBox1 && translate) translate(fontTextOfConverted(ConverterText));
}

void ConverterForm::Label1_Click() {
    ConverterGuard = 1;
    TextBox1Font = std::string(kUnicodeFace);
    busy(true);
    ConverterText = TextBox1;
    AnsciUnicodeConverter(ConverterText);
    TextBox1 = ConverterText;
    busy(false);
    // The write-back raises the change, which the guard ends. It is raised even when the text
    // stayed the same, so that the guard never outlives the click and swallows the next paste.
    textbox1_change();
}

void ConverterForm::Label3_Click() {
    CheckBox1 = false;
    visible = false;
    focusOnTextBox1 = false;
}

}  // namespace vorlexa::text_tools
