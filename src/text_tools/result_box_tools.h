// The transliteration and case commands of the main window's menu (cvtae, ET, LLAT and the four
// of Case Change). Each works on the selection of the result box Text4 alone: it takes the
// selected text, rewrites it, and puts the result back in its place, still selected. With an
// empty selection nothing changes.
#pragma once

#include <functional>

#include "engine/host.h"
#include "text/font_text.h"
#include "text_tools/transliteration.h"

namespace vorlexa::text_tools {

// The selection of Text4 as the commands see it.
class SelectionBox {
public:
    virtual ~SelectionBox() = default;
    virtual FontText selectedText() const = 0;
    // Puts `text` in place of the selection and selects it.
    virtual void replaceSelection(const FontText& text) = 0;
};

// "Would you like to check spelling?": put after LLAT_Click, before the spell-check pass.
Question spellCheckQuestion();

class ResultBoxTools {
public:
    // `outputText` is the engine's OutputText, which keeps the last converted selection.
    ResultBoxTools(Host& host, SelectionBox& box, FontText& outputText);

    void cvtae_Click();
    void ET_Click();
    void LLAT_Click();

    void AUC_Click();
    void ALC_Click();
    void EUC_Click();
    void ELC_Click();

    int CaseMode = 0;
    FontText WorkText;

    // Called at the end of LLAT_Click: asks whether to check the spelling and starts the
    // spell-check pass on Yes. Empty: only the question is put, and its answer is returned to
    // nobody, since there is no pass to start.
    std::function<void()> CorrectorWorning;

private:
    void transliterate(Transliteration which);
    void changeCase(int mode);

    Host& host_;
    SelectionBox& box_;
    FontText& OutputText;
};

}  // namespace vorlexa::text_tools
