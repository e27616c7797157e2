// The spell-check pass: the translator run in a second mode over the text of the result box.
//
// A word is wrong when the translator cannot place it. The engine asks "To be corrected?" about
// it; a Yes comes here, where the suggestions are made and handed to the window, and the pass
// waits until the window replaces the word (replaceInPass) or leaves it (skipInPass).
#pragma once

#include <functional>

#include "engine/engine.h"
#include "spell/suggestions.h"

namespace vorlexa::spell {

// A host that shows the word in question and its suggestions implements this beside Host; a
// host without it gets Host::openAddWordPanel with the word.
class SpellPanel {
  public:
    virtual ~SpellPanel() = default;
    virtual void showSuggestions(const SpellResult& result) = 0;
};

// Writes the source box Text3, which starts a run: the desktop's box, or the engine itself.
using WriteText3 = std::function<void(const FontText&)>;

// SSO_Click (suggest = true) and DSO_Click (false): start a pass over the text of Text4. SSO
// unchecks DSO and DSO checks it, so that DSO checked means no suggestions are made.
void startPass(Engine& engine, bool suggest, const WriteText3& writeText3);
inline void SSO_Click(Engine& engine, const WriteText3& writeText3) {
    startPass(engine, true, writeText3);
}
inline void DSO_Click(Engine& engine, const WriteText3& writeText3) {
    startPass(engine, false, writeText3);
}

// The Yes of the pass's question about RawWord: splch (unless DSO is checked) under the
// hourglass, then the result goes to the window. Returns what was shown.
SpellResult correctUnknownWord(Engine& engine);

// The suggestions splch makes for `word` where the scanner stands, for a host that answers the
// pass's question itself (the command line, the benchmark).
SpellResult suggestionsHere(const Engine& engine, const FontText& word);

// Command2 during a pass: the word in question (Text1) is replaced by Text2 in the text of the
// pass, and the pass goes on from the start of the replacement, so the new spelling is checked
// too. A replacement equal to the word leaves it as with skipInPass.
void replaceInPass(Engine& engine, const FontText& Text1, const FontText& Text2);
// The word is left as it stands and the pass goes on after it.
void skipInPass(Engine& engine);

// Called at the end of a transliteration: asks "Would you like to check spelling?" and on Yes
// starts a pass with suggestions. AnswerCode is cleared before and after. Returns the answer.
int CorrectorWorning(Engine& engine, const WriteText3& writeText3);

}  // namespace vorlexa::spell
