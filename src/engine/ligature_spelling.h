// Texts typed without the ligature key write "և" as "եվ". The scanner reads such a word back in
// the reformed spelling before it is looked up.
#pragma once

#include "text/font_text.h"

namespace vorlexa {

// Rewrites "եվ" as "և" where the reformed spelling writes the ligature: the conjunction "եվ", "եվս",
// and "եվ" inside a word ("Երեվան", "բարեվ"). "եվ" stays at the start of a word ("Եվրոպա",
// "եվրո") and where a compound's first part ends in "ե" and its second begins with "վ"
// ("հոգեվարք", "տարեվերջ", "գերեվարել"). Font text, small letters.
void readLigatureSpelling(FontText& word);

}  // namespace vorlexa
