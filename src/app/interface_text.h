// The main window's words in both interface languages: the caption of every control and menu
// item, the menu tree with its shortcuts, and the questions the shell itself asks.
//
// Captions are display text and stay UTF-8; questions go to the host as font text like the
// engine's own, so that every message box takes one road.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "engine/host.h"

namespace vorlexa::app {

enum class Language { English, Armenian };

// One row of the caption table, in the order in which AMN_Click and Engo_Click set them. An
// empty English column means Engo_Click leaves that caption as it is.
struct CaptionRow {
    std::string_view control;
    std::string_view english;
    std::string_view armenian;
};

std::span<const CaptionRow> captionTable();
const CaptionRow* findCaption(std::string_view control);

// The caption a control shows before the first switch of language. It is the English column,
// except for a few items whose captions in the window's own resource were never brought in
// line; they stand until the first switch, on purpose.
std::string_view resourceCaption(std::string_view control);

// The caption of a control in a language; nullopt where the switch leaves the caption alone.
std::optional<std::string_view> captionIn(std::string_view control, Language language);

// One entry of the main window's menu tree. `parent` is empty for the menu bar's own menus.
struct MenuEntry {
    std::string_view name;
    std::string_view parent;
    std::string_view shortcut;  // in the notation of a key sequence: "Ctrl+O", "F3"
    bool submenu = false;       // a menu of its own, not a command
    bool startsDisabled = false;
    bool checkable = false;     // shows a check mark
};

std::span<const MenuEntry> menuTree();
const MenuEntry* findMenuEntry(std::string_view name);

// The accelerator of EF, which the design leaves to us: free among the others, not a clipboard
// key, and not one that a text box takes for itself.
inline constexpr std::string_view kEditingModeShortcut = "Ctrl+G";

// ---- The shell's own questions and notices ---------------------------------------------------
Notice alreadyRunningNotice();
Question armenianInterfaceQuestion();  // Yes/No: are the Armenian captions readable?
Question saveAtExitQuestion();         // Yes/No/Cancel at exit when a translation stands

// The tool tip of Picture1.
std::string_view pictureToolTip(Language language);

}  // namespace vorlexa::app
