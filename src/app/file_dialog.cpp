#include "app/file_dialog.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

#include "app/help_text.h"
#include "app/settings_file.h"
#include "engine/dictionary_store.h"
#include "text/converters.h"

namespace vorlexa::app {

namespace {

namespace fs = std::filesystem;

constexpr DialogCaption kOpenCaption{"Open", "Բացել"};
constexpr DialogCaption kSaveCaption{"Save", "Պահպանել"};
constexpr DialogCaption kSaveAsCaption{"Save As", "Պահել իբրև"};
constexpr DialogCaption kAddWindowCaption{"Add to File", "Ավելացնել ֆայլին"};
constexpr DialogCaption kAddCaption{"Add", "Ավելացնել"};
constexpr DialogCaption kFontsCaption{"Fonts", "Տառատեսակներ"};
constexpr DialogCaption kFontColorCaption{"Font Color", "Տառերի գույնը"};
constexpr DialogCaption kDefaultFontCaption{"Use Default Font", "Ընդունված տառատեսակ"};
constexpr DialogCaption kApplyCaption{"Apply Changes", "Կիրառել փոփոխությունները"};
constexpr DialogCaption kCancelCaption{"Cancel", "Թողնել"};
constexpr std::string_view kHideCaption = "OK";
constexpr DialogCaption kNoWordProcessor{"No word processor was found on this computer.",
                                         "Այս համակարգչում տեքստային խմբագրիչ չի գտնվել:"};

constexpr std::string_view kAppTitleEnglish = "ZENKA - Vorlexa";
constexpr std::string_view kAppTitleArmenian = "ԶԵՆԿԱ - Վորլեքսա";

// The byte-order mark of the UTF-16 body: its first two units.
constexpr std::size_t kMarkUnits = 2;
// The line break the design's reading puts before every line; cut from the front of the text.
constexpr std::size_t kLeadingBreak = 2;

bool is(std::string_view caption, const DialogCaption& c) { return caption == c.english || caption == c.armenian; }

std::string lower(std::string_view s) {
    std::string out(s);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return out;
}

std::string readBytes(const fs::path& path, bool& ok) {
    std::ifstream in(path, std::ios::binary);
    ok = static_cast<bool>(in);
    if (!ok) return {};
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// UTF-16 bytes after the mark, in the given order, to UTF-8.
std::string utf16ToUtf8(std::string_view bytes, bool littleEndian) {
    std::string out;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto b0 = static_cast<unsigned char>(bytes[i]);
        const auto b1 = static_cast<unsigned char>(bytes[i + 1]);
        char32_t unit = littleEndian ? (b0 | (b1 << 8)) : ((b0 << 8) | b1);
        if (unit >= 0xD800 && unit <= 0xDBFF && i + 3 < bytes.size()) {
            const auto c0 = static_cast<unsigned char>(bytes[i + 2]);
            const auto c1 = static_cast<unsigned char>(bytes[i + 3]);
            const char32_t low = littleEndian ? (c0 | (c1 << 8)) : ((c0 << 8) | c1);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
                i += 2;
            }
        }
        appendUtf8(out, unit);
    }
    return out;
}

// Valid UTF-8 that holds at least one character beyond ASCII: a file written by today's
// editors. Font text almost never passes, since its letters don't follow UTF-8's lead bytes.
bool looksLikeUtf8(std::string_view bytes) {
    bool beyondAscii = false;
    std::size_t i = 0;
    while (i < bytes.size()) {
        if (static_cast<unsigned char>(bytes[i]) < 0x80) {
            ++i;
            continue;
        }
        bool valid = true;
        font::decodeUtf8At(bytes, i, valid);
        if (!valid) return false;
        beyondAscii = true;
    }
    return beyondAscii;
}

// The design's line-by-line reading: each line after CR LF. A line ends at CR LF, CR or LF;
// a break at the very end starts no further line.
FontText joinLines(std::string_view text) {
    FontText out;
    readLines(text, [&out](std::string_view line) {
        out += "\r\n";
        out += line;
        return true;
    });
    return out;
}

}  // namespace

// ---- Free helpers -------------------------------------------------------------------------------

bool isProtectedPath(std::string_view path) {
    const std::string p = lower(path);
    return std::any_of(kProtectedNames.begin(), kProtectedNames.end(),
                       [&](std::string_view name) { return p.find(lower(name)) != std::string::npos; });
}

std::string chosenPathFrom(std::string_view text5) {
    std::string p(text5);
    // The design halves a doubled back-slash; here the separator is the slash, and a doubled
    // one is made single in the same way.
    for (std::size_t at = p.find("//"); at != std::string::npos; at = p.find("//", at)) p.erase(at, 1);
    // Each blank becomes "_", deliberately: a path with blanks then isn't found.
    std::replace(p.begin(), p.end(), ' ', '_');
    return p;
}

std::string proposedFileName(const FontText& text) {
    std::string name(trimBlanks(std::string_view(text).substr(0, kProposedNameLength)));
    for (char& c : name)
        if (kNameForbidden.find(c) != std::string_view::npos) c = '-';
    return toUtf8(name);
}

std::string proposedPath(const fs::path& folder, const FontText& text) {
    std::string path = folder.string();
    // At the root the separator is already there.
    if (path.empty() || path.back() != '/') path += '/';
    return path + proposedFileName(text) + std::string(kProposedExtension);
}

std::vector<std::string> listFiles(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        std::error_code ignored;
        if (!it->is_regular_file(ignored)) continue;
        const std::string name = it->path().filename().string();
        const std::string l = lower(name);
        if (std::any_of(kFilePatternParts.begin(), kFilePatternParts.end(),
                        [&](std::string_view part) { return l.find(part) != std::string::npos; }))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<FontText> readTextFile(const fs::path& path) {
    bool ok = false;
    const std::string bytes = readBytes(path, ok);
    if (!ok) return std::nullopt;
    const std::string_view b(bytes);
    // The design reads every file as font text. The files this program saves are UTF-16 and
    // today's editors write UTF-8, so both are decoded, that a saved text reopens as it was.
    if (b.starts_with("\xFF\xFE")) return joinLines(fromUtf8(utf16ToUtf8(b.substr(2), true)));
    if (b.starts_with("\xFE\xFF")) return joinLines(fromUtf8(utf16ToUtf8(b.substr(2), false)));
    if (b.starts_with("\xEF\xBB\xBF")) return joinLines(fromUtf8(b.substr(3)));
    if (looksLikeUtf8(b)) return joinLines(fromUtf8(b));
    return joinLines(b);
}

// ---- The window ---------------------------------------------------------------------------------

Dialog::Dialog(MainForm& form, Form1View& view, Desktop& desktop) : form_(form), view_(view), desktop_(desktop) {}

void Dialog::redraw() {
    if (changed) changed();
}

void Dialog::notify(std::string_view english, std::string_view armenian) {
    Notice n;
    n.text = Wording{fromUtf8(english), fromUtf8(armenian)};
    n.title = Wording{fromUtf8(kAppTitleEnglish), fromUtf8(kAppTitleArmenian)};
    form_.notify(n);
}

void Dialog::show(const DialogCaption& window, const DialogCaption& ok) {
    caption = std::string(window.in(language()));
    OKButton = std::string(ok.in(language()));
    if (language() == Language::Armenian) CancelButton = std::string(kCancelCaption.armenian);
    else CancelButton = form_.caption("Dialog.CancelButton");
    if (Dir1.empty()) {
        const char* home = std::getenv("HOME");
        Dir1 = home && *home ? fs::path(home) : fs::current_path();
    }
    File1 = listFiles(Dir1);
    visible = true;
    redraw();
}

void Dialog::hide() {
    visible = false;
    redraw();
}

FontText Dialog::translation() const {
    // The translation goes by the clipboard: the engine's whole text when the box can't hold it.
    const Engine* engine = form_.engine();
    return engine && engine->OutputText.size() >= kResultBoxLimit ? engine->OutputText : view_.text4();
}

void Dialog::Open1_Click() {
    filesShown = true;
    fontsShown = false;
    show(kOpenCaption, kOpenCaption);
}

void Dialog::Save_Click() {
    desktop_.setClipboardText(translation());
    filesShown = true;
    fontsShown = false;
    Text5.clear();
    if (form_.ExitSaveRequested.isSet()) {
        form_.ExitSaveRequested.clear();
        show(kSaveCaption, kSaveAsCaption);
    } else {
        show(kSaveCaption, kSaveCaption);
    }
}

void Dialog::aas_Click() {
    desktop_.clearClipboard();
    desktop_.setClipboardText(translation());
    form_.setChecked("aas", true);
    Open1_Click();
    show(kAddWindowCaption, kAddCaption);
}

void Dialog::fnt_Click(std::vector<std::string> families) {
    filesShown = false;
    fontsShown = true;
    combo1Visible = true;
    List1 = std::move(families);
    const Text4Font& font = form_.text4Font();
    Combo1 = std::to_string(static_cast<int>(std::lround(font.size)));
    // The design's face is shown by the name of the face that stands in for it.
    Text5 = font.name == kDefaultFace ? defaultFaceShown : font.name;
    Frame1 = font;
    const std::vector<std::string> records = readSettingsRecords(form_.dataFolder());
    Combo2 = records.size() >= static_cast<std::size_t>(kRecordFontStyle)
                 ? std::string(trimBlanks(records[kRecordFontStyle - 1]))
                 : std::string();
    // The design sets the default-font caption again only in an Armenian interface; after one
    // use the English button would stay "Apply Changes" for good, so both languages reset it.
    Command1 = std::string(kDefaultFontCaption.in(language()));
    show(kFontsCaption, kFontColorCaption);
}

// ---- OKButton -----------------------------------------------------------------------------------

void Dialog::OKButton_Click() {
    if (is(OKButton, kFontColorCaption)) {
        Text4Font font = form_.text4Font();
        if (const auto color = desktop_.chooseColor(font.color)) {
            font.color = *color;
            Frame1.color = *color;
            form_.setText4Font(font);
        }
        combo1Visible = false;
        hide();
        return;
    }
    if (OKButton == kHideCaption) {
        hide();
        return;
    }
    if (is(OKButton, kSaveCaption)) return okSave(false);
    if (is(OKButton, kSaveAsCaption)) return okSave(true);
    if (is(OKButton, kOpenCaption) || is(OKButton, kAddCaption)) okOpen();
}

void Dialog::okSave(bool endAfter) {
    if (Text5.empty()) return;
    std::error_code error;
    if (fs::exists(fs::path(Text5), error)) {
        // The design writes over a file without a word; a user of today expects to be asked.
        Question q;
        q.text = Wording{fromUtf8("The file already exists. Would you like to replace it?"),
                         fromUtf8("Ֆայլն արդեն կա: Կկամենայի՞ք փոխարինել այն:")};
        q.title = Wording{fromUtf8(kAppTitleEnglish), fromUtf8(kAppTitleArmenian)};
        q.buttons = Buttons::YesNo;
        if (form_.ask(q) != kAnswerYes) return;
    }
    SavePath = Text5;
    std::ofstream file9(fs::path(SavePath), std::ios::binary | std::ios::trunc);
    File1 = listFiles(Dir1);
    DialogText = desktop_.clipboardText();
    // Each save writes its own body; left over from the last one it would be written again.
    Utf16Body.clear();
    Utf16Export options;
    options.encPath = form_.dataFolder() / "enc";
    options.sleep = [](std::chrono::milliseconds) {};  // `enc` is read back by this process alone
    const bool written = file9 && ResultANSCIToUnicode(DialogText, file9, Utf16Body, options) && file9.good();
    file9.close();
    if (!written) {
        // The design ignores the error and, after Save As, ends with the text lost. The window
        // stays open instead, so that another name can be given.
        notify("The file could not be saved.", "Ֆայլը չհաջողվեց պահպանել:");
        return;
    }
    hide();
    if (openAfterSave && !ChosenPath.ends_with(kProposedExtension)) {
        if (!startWordProcessor(desktop_, fs::path(SavePath)))
            notify(kNoWordProcessor.english, kNoWordProcessor.armenian);
    } else {
        OpenWordDoc();
    }
    openAfterSave = false;
    if (endAfter) desktop_.endProgram();
}

void Dialog::okOpen() {
    if (Text5.empty() || File1Chosen.empty()) {
        notify("No file chosen!", "Ընտրված ֆայլ չկա:");
        return;
    }
    ChosenPath = chosenPathFrom(Text5);
    if (isProtectedPath(ChosenPath)) {
        notify("Sorry, you are not authorised to open this file.", "Ներողություն, այս ֆայլը չեք կարող բացել:");
        return;
    }
    if (form_.checked("aas")) {
        DialogText = FontText(trimBlanks(desktop_.clipboardText()));
        Utf16Body.clear();
        std::ostringstream unused;
        Utf16Export options;
        options.aas = true;
        options.encPath = form_.dataFolder() / "enc";
        options.sleep = [](std::chrono::milliseconds) {};  // `enc` is read back by this process alone
        ResultANSCIToUnicode(DialogText, unused, Utf16Body, options);
        {
            std::ofstream out(fs::path(ChosenPath), std::ios::binary | std::ios::app);
            if (out && Utf16Body.size() >= kMarkUnits) out << std::string_view(Utf16Body).substr(kMarkUnits);
        }
        Utf16Body.clear();
        form_.setChecked("aas", false);
        OpenWordDoc();
    } else if (const auto text = readTextFile(ChosenPath)) {
        DialogText = *text;
        const FontText shown = DialogText.size() > kLeadingBreak ? DialogText.substr(kLeadingBreak) : FontText();
        view_.setText4(shown);
        if (!form_.checked("EF")) {
            Question q;
            q.text = Wording{fromUtf8("Translate text?"), fromUtf8("Թարգմանե՞լ տեքստը:")};
            q.title = Wording{fromUtf8(kAppTitleEnglish), fromUtf8(kAppTitleArmenian)};
            q.buttons = Buttons::YesNo;
            if (form_.ask(q) == kAnswerYes) {
                hide();
                view_.setText3(shown);
            }
        }
    } else {
        // The file isn't there (a path with blanks among others): the design's reading fails
        // silently and leaves the result box empty.
        view_.setText4(FontText());
    }
    ChosenPath.clear();
    DialogText.clear();
    hide();
    view_.stateChanged();
}

void Dialog::OpenWordDoc() {
    if (!ChosenPath.ends_with(kProposedExtension)) return;
    std::optional<fs::path> file;
    if (!SavePath.empty()) file = fs::path(SavePath);
    if (!startWordProcessor(desktop_, file))
        notify(kNoWordProcessor.english, kNoWordProcessor.armenian);
}

// ---- The other controls -------------------------------------------------------------------------

void Dialog::CancelButton_Click() {
    openAfterSave = false;
    // The design leaves aas checked, so that the next Open would append instead; it goes here.
    form_.setChecked("aas", false);
    hide();
}

void Dialog::markApplyChanges() {
    Command1 = std::string(kApplyCaption.in(language()));
    redraw();
}

void Dialog::Command1_Click() {
    Text4Font font = form_.text4Font();
    if (is(Command1, kDefaultFontCaption)) {
        font.name = std::string(kDefaultFace);
        font.size = kDefaultFontSize;
        font.bold = false;
        font.italic = false;
        Text5 = defaultFaceShown;
        Combo2 = std::string(kFontStyles[0]);
        Combo1 = std::to_string(static_cast<int>(kDefaultFontSize));
    } else {
        char* end = nullptr;
        const double size = std::strtod(Combo1.c_str(), &end);
        // A size that isn't a positive number leaves the size as it was, as the ignored error did.
        if (end != Combo1.c_str() && size > 0) font.size = size;
        if (!Text5.empty()) font.name = Text5;
        if (Combo2 == "Bold") font.bold = true, font.italic = false;
        if (Combo2 == "Italic") font.bold = false, font.italic = true;
        if (Combo2 == "BoldItalic") font.bold = true, font.italic = true;
    }
    Frame1 = font;
    form_.setText4Font(font);
    writeSettingsRecord(form_.dataFolder(), kRecordFontStyle, Combo2);
    markApplyChanges();
}

void Dialog::Dir1_Change(const fs::path& folder) {
    Dir1 = folder;
    File1 = listFiles(folder);
    File1Chosen.clear();
    const FontText& text = form_.direction() == 1 ? view_.text4() : view_.text3();
    Text5 = proposedPath(folder, text);
    redraw();
}

void Dialog::Drive1_Change(const fs::path& drive) {
    std::error_code error;
    if (fs::is_directory(drive, error)) Dir1_Change(drive);
}

void Dialog::File1_Click(const std::string& name) {
    File1Chosen = name;
    ChosenPath = (Dir1 / name).string();
    Text5 = ChosenPath;
    redraw();
}

void Dialog::List1_Click(const std::string& family) {
    Text5 = family;
    markApplyChanges();
}

void Dialog::Combo1_Click(const std::string& size) {
    Combo1 = size;
    markApplyChanges();
}

void Dialog::Combo2_Click(const std::string& style) {
    Combo2 = style;
    markApplyChanges();
}

// ---- Word processors ----------------------------------------------------------------------------

const std::vector<WordProcessor>& wordProcessors() {
    static const std::vector<WordProcessor> list{
        {"lowriter", {}},
        {"libreoffice", {"--writer"}},
        {"abiword", {}},
        {"calligrawords", {}},
    };
    return list;
}

bool startWordProcessor(Desktop& desktop, const std::optional<fs::path>& file) {
    if (file && desktop.openFile(*file)) return true;
    for (const WordProcessor& candidate : wordProcessors()) {
        const auto program = desktop.findProgram(candidate.command);
        if (!program) continue;
        std::vector<std::string> arguments = file ? std::vector<std::string>{file->string()} : candidate.newDocument;
        if (desktop.startProgram(*program, arguments)) return true;
    }
    return false;
}

}  // namespace vorlexa::app
