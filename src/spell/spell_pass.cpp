#include "spell/spell_pass.h"

#include "engine/scanner.h"
#include "text_tools/result_box_tools.h"

namespace vorlexa::spell {

using namespace literals;

void startPass(Engine& engine, bool suggest, const WriteText3& writeText3) {
    engine.host.setChecked(MenuItem::ITR, false);
    engine.host.setChecked(MenuItem::DSO, !suggest);
    engine.CurrentWord.clear();
    engine.ScanPos = 1;
    engine.OutputText.clear();
    engine.SpellMode = 1;
    writeText3(engine.host.resultText() + " ");
}

SpellResult suggestionsHere(const Engine& engine, const FontText& word) {
    ArmenianBuckets buckets(engine.store.armenian());
    SpellInput input;
    input.RawWord = word;
    input.Text2 = word;
    input.text = engine.SourceText;
    input.ScanPos = engine.ScanPos;
    return splch(input, buckets);
}

SpellResult correctUnknownWord(Engine& engine) {
    SpellResult result;
    // The dialect repair has rewritten the result box, and the pass would put its own text back
    // at the end: it starts over on the repaired text instead. Words answered No are not asked
    // about again, and the lone "ա" is usually gone.
    if (engine.RawWord == "ա"_ft) {
        FontText repaired = engine.host.resultText();
        if (!repaired.empty() && repaired.back() != ' ') repaired += ' ';
        if (!repaired.empty() && repaired != engine.SourceText) {
            engine.SourceText = std::move(repaired);
            engine.ScanPos =
                0;  // the scanner finishes this turn and goes on from the first character
            engine.AnswerCode = 0;
            engine.CurrentWord.clear();
            return result;
        }
    }
    if (engine.checked(MenuItem::DSO)) {
        result.Text1 = engine.RawWord;
        result.Text2 = engine.RawWord;
    } else {
        engine.host.setBusy(true);
        result = suggestionsHere(engine, engine.RawWord);
        engine.host.setBusy(false);
    }
    if (auto* panel = dynamic_cast<SpellPanel*>(&engine.host))
        panel->showSuggestions(result);
    else
        engine.host.openAddWordPanel(engine.RawWord);
    return result;
}

namespace {

void goOn(Engine& engine) {
    engine.CurrentWord.clear();
    engine.AnswerCode = 0;
    engine.ankap0_DblClick();
}

}  // namespace

void replaceInPass(Engine& engine, const FontText& Text1, const FontText& Text2) {
    if (engine.state != RunState::Waiting) return;
    if (Text1 == Text2 || Text1.empty()) {
        skipInPass(engine);
        return;
    }
    FontText& text = engine.SourceText;
    // The scanner stopped on the delimiter after the word; Text1 ends there, or one character
    // later when it holds the word with a character either side (the lone "ա").
    const auto delimiter = static_cast<std::size_t>(std::max<std::int64_t>(engine.ScanPos - 1, 0));
    std::size_t at = FontText::npos;
    for (const std::size_t end : {delimiter, delimiter + 1}) {
        if (end >= Text1.size() && text.compare(end - Text1.size(), Text1.size(), Text1) == 0) {
            at = end - Text1.size();
            break;
        }
    }
    std::size_t length = Text1.size();
    if (at == FontText::npos) {
        // Text1 was edited: the word the scanner read is what is replaced.
        length = std::min(engine.RawWord.size(), delimiter);
        at = delimiter - length;
    }
    text.replace(at, length, Text2);
    engine.host.setResultText(text);
    engine.ScanPos = static_cast<std::int64_t>(at) + 1;
    goOn(engine);
}

void skipInPass(Engine& engine) {
    if (engine.state != RunState::Waiting) return;
    ++engine.ScanPos;
    goOn(engine);
}

int CorrectorWorning(Engine& engine, const WriteText3& writeText3) {
    engine.AnswerCode = 0;
    const int answer = engine.host.ask(text_tools::spellCheckQuestion());
    engine.AnswerCode = 0;
    if (answer == kAnswerYes) SSO_Click(engine, writeText3);
    engine.AnswerCode = 0;
    return answer;
}

}  // namespace vorlexa::spell

namespace vorlexa {

// In a pass the scanner shows the word it is reading in the result box, which holds the text of
// the pass.
void Engine::textselection() {
    // A No stops the ending analysis of the word it was given for; at the first letter of the
    // next word it has done so, or every later inflected word of the pass would be questioned.
    if (CurrentWord.size() == 1 && AnswerCode == kAnswerNo) AnswerCode = 0;
    constexpr std::int64_t kFirstSelectedPos =
        4;  // the design selects from the fourth character on
    if (ScanPos < kFirstSelectedPos) return;
    // At the word end the delimiter has joined the word; it is not selected.
    const bool atEnd =
        !CurrentWord.empty() && isRawWordDelimiter(static_cast<unsigned char>(CurrentWord.back()));
    const auto length = static_cast<int>(CurrentWord.size()) - (atEnd ? 1 : 0);
    const auto last = static_cast<int>(ScanPos) - (atEnd ? 1 : 0);
    host.selectResultText(last - length + 1, length);
}

}  // namespace vorlexa
