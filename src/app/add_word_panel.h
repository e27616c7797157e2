// Wordings of the add-word panel that the window adds to the design's own: the hints inside
// its boxes, the button that skips the word, and why an empty translation is refused.
#pragma once

#include <string_view>

#include "app/interface_text.h"
#include "engine/host.h"

namespace vorlexa::app {

// UTF-8 texts shown greyed inside an empty box, in the interface language.
std::string_view panelWordHint(Language language);         // Text1
std::string_view panelTranslationHint(Language language);  // Text2
std::string_view panelTagHint(Language language);          // Text6
// The button beside Command2 that leaves the word untranslated, as a No to the question would.
std::string_view skipCaption(Language language);
// Save was pressed with no translation typed.
Notice emptyTranslationNotice();

}  // namespace vorlexa::app
