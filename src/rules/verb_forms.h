// English verb forms of the Armenian-to-English direction: the gloss turned into the form the
// ending analysis asked for, and the Armenian stem steps the analysis calls before a look-up.
#pragma once

#include "text/font_text.h"

namespace vorlexa {

class Engine;

void irregular(Engine& e);  // VerbFormMark "ed": the past or the participle of an irregular gloss
void nershar(Engine& e);    // the third person singular of the gloss
void rd(Engine& e);         // "th" after an ordinal written in digits: "st" after 1, "nd" after 2
void ve(Engine& e);         // a stem cut before "վե"/"վա": the passive
void ce(Engine& e);         // a stem in "ց": the causative
void ye(Engine& e);         // a stem in "յ" loses it

// Strips one English ending from a word as typed ("less", "ing", "ies"/"ied", "ed"/"es", "s")
// and keeps what it cut in tail; the synonym search retries with the shorter word. Returns false
// when the word has none of those endings (word and tail are then left as they were).
bool anqer(FontText& word, FontText& tail);

}  // namespace vorlexa
