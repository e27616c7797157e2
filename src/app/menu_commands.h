// The small commands of the File, Internet and Help menus: copy to the word processor, the
// sibling dictionary program, the two help texts, the About window's captions, and the two
// addresses of the Internet menu. Programs and addresses start through the Desktop, so that a
// failure is a message and never a crash.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "app/desktop.h"
#include "app/file_dialog.h"
#include "app/main_form.h"
#include "text/font_text.h"

namespace vorlexa::app {

// From this length on the translation goes to the word processor by the clipboard alone: a
// save through the UTF-16 writer would take too long.
inline constexpr std::size_t kClipboardOnlyLength = 128000;

// The project's pages. example.org stands until the project has an address of its own.
inline constexpr std::string_view kProductPage = "https://vorlexa.example.org/";
inline constexpr std::string_view kSiblingDownloadPage = "https://vorlexa.example.org/pelorand/";
// The sibling dictionary program: by its command name, else in a folder beside this program's
// own, as the design keeps it ("..\Pelorand\" from the program's folder).
inline constexpr std::string_view kSiblingCommand = "pelorand";
inline constexpr std::string_view kSiblingRelativePath = "../Pelorand/pelorand";

// The browsers tried, in order, for "My Homepage": each opens at the user's own home page
// when started without an address.
inline constexpr std::array<std::string_view, 5> kBrowsers{"x-www-browser", "sensible-browser", "firefox-esr",
                                                          "firefox", "chromium"};

// The sections of the help text (font text): the Armenian help up to the line that ends in
// "null", less the mark; the English help after it up to "null0", less the mark. Each line
// comes after CR LF.
FontText armenianHelp(std::string_view readTxt);
FontText englishHelp(std::string_view readTxt);

// The captions of the About window (UTF-8).
struct AboutCaptions {
    std::string caption;
    std::string lblVersion;
    std::string lblTitle;
    std::string lblDescription;
    std::string lblDisclaimer;
    std::string cmdOK;
};
AboutCaptions aboutCaptions(Language language, std::string_view version);

class MenuCommands {
public:
    MenuCommands(MainForm& form, Form1View& view, Desktop& desktop, Dialog& dialog);

    void CWD_Click();
    void hlpik();
    void Ha_Click();
    void He_Click();
    void HTD_Click();
    void muse5_Click();
    void gih_Click();

    // Where this program lies; the sibling program is looked for beside it.
    std::filesystem::path programFolder;

private:
    void appendHelp(FontText (*section)(std::string_view));
    void notify(std::string_view english, std::string_view armenian);
    void openAddress(std::string_view url);

    MainForm& form_;
    Form1View& view_;
    Desktop& desktop_;
    Dialog& dialog_;
};

}  // namespace vorlexa::app
