#include "app/menu_commands.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "app/help_text.h"
#include "app/settings_file.h"
#include "engine/dictionary_store.h"

namespace vorlexa::app {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kArmenianMark = "null";
constexpr std::string_view kEnglishMark = "null0";
constexpr std::string_view kHelpJoin = "*~*";  // between the text already shown and the help
constexpr std::string_view kAppTitleEnglish = "ZENKA - Vorlexa";
constexpr std::string_view kAppTitleArmenian = "ԶԵՆԿԱ - Վորլեքսա";

// Reads the lines of `text`, each after CR LF, until the text read so far ends in `stop`;
// with `dropAt`, the text read so far is dropped whenever it ends in that mark first. The
// result has the stop mark's length cut from its end.
FontText readSection(std::string_view text, std::string_view stop, std::string_view dropAt) {
    FontText out;
    readLines(text, [&](std::string_view line) {
        out += "\r\n";
        out += line;
        if (std::string_view(out).ends_with(stop)) return false;
        if (!dropAt.empty() && std::string_view(out).ends_with(dropAt)) out.clear();
        return true;
    });
    out.resize(out.size() >= stop.size() ? out.size() - stop.size() : 0);
    return out;
}

std::string readAll(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

}  // namespace

FontText armenianHelp(std::string_view readTxt) { return readSection(readTxt, kArmenianMark, {}); }

FontText englishHelp(std::string_view readTxt) { return readSection(readTxt, kEnglishMark, kArmenianMark); }

AboutCaptions aboutCaptions(Language language, std::string_view version) {
    // The design's label joins the major version to a fixed ".5"; the build's own version is
    // shown instead, so that About tells which build is running.
    const std::string v(version);
    if (language == Language::Armenian) {
        return {"Ծրագրի մասին",
                "Տարբերակ " + v,
                "ԶԵՆԿԱ~1.2 (Վորլեքսա)\nԱնգլերեն-հայերեն-անգլերեն\nԱմբողջական տեքստի մեքենայական թարգմանիչ",
                "Ամբողջական տեքստերի կանոնային թարգմանիչ անգլերենից հայերեն և հայերենից անգլերեն՝ "
                "բառարանների խմբագրիչով, սխալների ուղղումով, տառադարձումով և երկլեզվյա զրուցարանով:",
                "Մեքենայական թարգմանությունը կարդացեք օգտագործելուց առաջ: Ծրագիրը տրամադրվում է "
                "առանց որևէ երաշխիքի:",
                "Շատ լավ"};
    }
    return {"About Product",
            "Version " + v,
            "ZENKA~1.2 (Vorlexa)\nEnglish-Armenian-English\nFull Text Machine Translator",
            "A rule-based translator of running text from English to Armenian and back, with a "
            "dictionary editor, a spell checker, transliteration and a bilingual chat.",
            "Read a machine translation before you use it. This program comes with no warranty.",
            "OK"};
}

MenuCommands::MenuCommands(MainForm& form, Form1View& view, Desktop& desktop, Dialog& dialog)
    : form_(form), view_(view), desktop_(desktop), dialog_(dialog) {}

void MenuCommands::notify(std::string_view english, std::string_view armenian) {
    Notice n;
    n.text = Wording{fromUtf8(english), fromUtf8(armenian)};
    n.title = Wording{fromUtf8(kAppTitleEnglish), fromUtf8(kAppTitleArmenian)};
    form_.notify(n);
}

// ---- File -------------------------------------------------------------------------------------

void MenuCommands::CWD_Click() {
    Engine* engine = form_.engine();
    if (!engine || engine->OutputText.empty()) return;
    desktop_.clearClipboard();
    const FontText text = engine->OutputText.size() > kResultBoxLimit ? engine->OutputText : view_.text4();
    desktop_.setClipboardText(text);
    if (text.size() < kClipboardOnlyLength) {
        // A text of this size goes to the word processor as a saved UTF-16 document.
        dialog_.openAfterSave = true;
        dialog_.Save_Click();
        return;
    }
    notify("Press Ctrl+V when empty 'Word' document is open.\r\nNote: For this case the text encoding is ASCII",
           "Սեղմել Ctrl+V երբ բացվի 'MsWord'-ի դատարկ փաստաթուղթը:\r\nՀիշեցում. այս դեպքում` տեքստի "
           "կոդավորումը կլինի ASCII");
    if (!startWordProcessor(desktop_, std::nullopt))
        notify("No word processor was found on this computer. The translation is on the clipboard.",
               "Այս համակարգչում տեքստային խմբագրիչ չի գտնվել: Թարգմանությունը պատճենված է:");
}

void MenuCommands::HTD_Click() {
    const std::vector<std::string> records = readSettingsRecords(form_.dataFolder());
    if (records.size() >= static_cast<std::size_t>(kRecordSibling) &&
        trimBlanks(records[kRecordSibling - 1]) == kSiblingOpen) {
        notify("'Pelorand' Dictionary is already active.", "«ՊԵԼՈՐԱՆԴ» բառարանն ակտիվ է:");
        return;
    }
    std::optional<fs::path> program = desktop_.findProgram(kSiblingCommand);
    if (!program && !programFolder.empty()) {
        std::error_code ignored;
        const fs::path beside = programFolder / kSiblingRelativePath;
        if (fs::exists(beside, ignored)) program = beside;
    }
    if (program && desktop_.startProgram(*program, {})) return;
    Question q;
    q.text = Wording{fromUtf8("'Pelorand' Dictionary isn't installed. Would you like to open the page where it can "
                              "be downloaded?"),
                     fromUtf8("«ՊԵԼՈՐԱՆԴ» բառարանը տեղադրված չէ: Կկամենայի՞ք բացել այն էջը, որտեղից կարելի է "
                              "ներբեռնել այն:")};
    q.title = Wording{fromUtf8(kAppTitleEnglish), fromUtf8(kAppTitleArmenian)};
    q.buttons = Buttons::YesNo;
    if (form_.ask(q) == kAnswerYes) openAddress(kSiblingDownloadPage);
}

// ---- Help -------------------------------------------------------------------------------------

void MenuCommands::hlpik() {
    if (Engine* engine = form_.engine()) engine->OutputText.clear();
    FontText text = view_.text4();
    if (text.empty()) return;
    Question q;
    q.text = Wording{fromUtf8("HELP TOPICS will follow the text in right window.\r\nWould you like to keep existing "
                              "text?"),
                     fromUtf8("Օգնության շարադրանքը կհետևի պատուհանի տեքստին.\r\nԿկամենայի՞ք պահպանել տեքստը:")};
    q.title = Wording{fromUtf8("ATTENTION"), fromUtf8("Ուշադրություն")};
    q.buttons = Buttons::YesNo;
    const int answer = form_.ask(q);
    text += "\r\n";
    if (answer == kAnswerNo) text.clear();
    view_.setText4(text);
}

void MenuCommands::appendHelp(FontText (*section)(std::string_view)) {
    hlpik();
    const FontText before = view_.text4();
    const FontText help = section(readAll(form_.dataFolder() / kHelpFileName));
    view_.setText4(before + std::string(kHelpJoin) + help);
    view_.selectText4({static_cast<int>(before.size()), 0});
}

void MenuCommands::Ha_Click() { appendHelp(&armenianHelp); }

void MenuCommands::He_Click() { appendHelp(&englishHelp); }

// ---- Internet ---------------------------------------------------------------------------------

void MenuCommands::openAddress(std::string_view url) {
    if (!desktop_.openUrl(std::string(url)))
        notify("The browser could not be started.", "Դիտարկիչը չհաջողվեց գործարկել:");
}

void MenuCommands::muse5_Click() {
    for (const std::string_view browser : kBrowsers) {
        const auto program = desktop_.findProgram(browser);
        if (program && desktop_.startProgram(*program, {})) return;
    }
    notify("The browser could not be started.", "Դիտարկիչը չհաջողվեց գործարկել:");
}

void MenuCommands::gih_Click() { openAddress(kProductPage); }

}  // namespace vorlexa::app
