// Dialog, the one window of Open, Save, Save As, Add to File and Fonts, without its widgets.
// What its OKButton does is decided by the button's own caption, which the command that
// opened the window set. Every save writes UTF-16 with a byte-order mark, never font text.
//
// Paths are this system's paths, held as UTF-8. The drive list (Drive1) is the mounted file
// systems, the folder list (Dir1) the folder tree and the file list (File1) the files of the
// folder whose names hold "txt" or "doc".
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/desktop.h"
#include "app/main_form.h"
#include "text/font_text.h"

namespace vorlexa::app {

// The file list's fixed pattern: names holding either part, in any case.
inline constexpr std::array<std::string_view, 2> kFilePatternParts{"txt", "doc"};
inline constexpr std::string_view kFilePattern = "*txt*;*doc*";

// The sizes of Combo1 and the styles of Combo2, as the font window offers them.
inline constexpr std::array<int, 14> kFontSizes{10, 11, 12, 13, 14, 15, 16, 18, 20, 22, 24, 26, 28, 32};
inline constexpr std::array<std::string_view, 4> kFontStyles{"Regular", "Bold", "Italic", "BoldItalic"};

// The system's own data files: no path holding one of these names, in any case, is opened.
inline constexpr std::array<std::string_view, 8> kProtectedNames{
    "dictionarya-e", "dictionarye-a", "settings", "uxxume", "uxxumy", "uxxuma", "Stringea", "Stringae"};

// Characters of the proposed file name that a file name can't hold on some system; each
// becomes "-".
inline constexpr std::string_view kNameForbidden = "\\:/*?|><\"";
inline constexpr std::size_t kProposedNameLength = 5;  // the first five characters of the text
inline constexpr std::string_view kProposedExtension = ".doc";

// The result box holds no more than this; a longer translation is taken from the engine.
inline constexpr std::size_t kResultBoxLimit = 64000;

// A caption of the window in both languages (UTF-8).
struct DialogCaption {
    std::string_view english;
    std::string_view armenian;
    std::string_view in(Language language) const { return language == Language::Armenian ? armenian : english; }
};

// True when `path` names one of the system's data files.
bool isProtectedPath(std::string_view path);

// ChosenPath from the text of Text5: a doubled separator becomes one, each blank "_".
std::string chosenPathFrom(std::string_view text5);

// The file name proposed for a text: its first five characters, trimmed, with the characters a
// name can't hold replaced by "-". UTF-8.
std::string proposedFileName(const FontText& text);

// Text5 after a change of folder: the folder, a separator (none at the root), the name, ".doc".
std::string proposedPath(const std::filesystem::path& folder, const FontText& text);

// The names of the files of a folder that the file list shows, sorted. Nothing when the
// folder can't be read.
std::vector<std::string> listFiles(const std::filesystem::path& folder);

// The text of a file as font text: lines joined by CR LF, led by one CR LF as the design's
// reading leaves it. A file with a UTF-16 byte-order mark (as every save writes) or a file of
// valid UTF-8 with letters beyond ASCII is decoded; any other is taken as font text.
std::optional<FontText> readTextFile(const std::filesystem::path& path);

class Dialog {
public:
    Dialog(MainForm& form, Form1View& view, Desktop& desktop);

    // ---- The commands of the main window that open it --------------------------------------
    void Open1_Click();
    // Takes the translation to the clipboard and opens the window to save it. After a Yes to
    // the exit question the button reads "Save As", and saving ends the program.
    void Save_Click();
    void aas_Click();
    // `families` are the screen's font families, for List1.
    void fnt_Click(std::vector<std::string> families);
    // Starts the word processor on SavePath when the file just appended to is a ".doc".
    void OpenWordDoc();

    // ---- The controls ----------------------------------------------------------------------
    void OKButton_Click();
    void CancelButton_Click();
    void Command1_Click();
    void Dir1_Change(const std::filesystem::path& folder);
    void Drive1_Change(const std::filesystem::path& drive);
    void File1_Click(const std::string& name);
    void List1_Click(const std::string& family);
    void Combo1_Click(const std::string& size);
    void Combo2_Click(const std::string& style);
    void setText5(const std::string& text) { Text5 = text; }

    // ---- State the window shows ------------------------------------------------------------
    bool visible = false;
    bool filesShown = false;  // Drive1, Dir1, File1
    bool fontsShown = false;  // List1, Frame1, Command1, Combo1, Combo2
    bool combo1Visible = true;
    std::string caption;
    std::string OKButton = "OK";
    std::string CancelButton = "Cancel";
    std::string Command1 = "Use Default Font";
    std::string Text5;  // the path, or the font name
    std::filesystem::path Dir1;
    std::vector<std::string> File1;
    std::string File1Chosen;
    std::vector<std::string> List1;
    std::string Combo1;
    std::string Combo2 = std::string(kFontStyles[0]);
    Text4Font Frame1;  // the sample: the font and colour being chosen

    std::string ChosenPath;
    std::string SavePath;
    FontText DialogText;
    std::string Utf16Body;

    // Set by "Copy to MS Word document": the word processor opens the saved file, whatever its
    // name, since the user asked for a document.
    bool openAfterSave = false;

    // The face Text5 shows for the default font (the one the window really uses for it).
    std::string defaultFaceShown = std::string(kDefaultFace);
    // Called whenever the state above changed, so that the window redraws.
    std::function<void()> changed;

private:
    Language language() const { return form_.language(); }
    FontText translation() const;
    void show(const DialogCaption& window, const DialogCaption& ok);
    void hide();
    void notify(std::string_view english, std::string_view armenian);
    void okSave(bool endAfter);
    void okOpen();
    void markApplyChanges();
    void redraw();

    MainForm& form_;
    Form1View& view_;
    Desktop& desktop_;
};

}  // namespace vorlexa::app
