#include "app/interface_text.h"

#include <array>

namespace vorlexa::app {

namespace {

constexpr std::array kCaptions{
    CaptionRow{"Form1", "ZENKA - Vorlexa", "ԶԵՆԿԱ - Վորլեքսա"},
    CaptionRow{"File", "File", "Ֆայլ"},
    CaptionRow{"EdtTr", "Edit Translation", "Խմբագրել թարգմանությունը"},
    CaptionRow{"Edit", "Edit", "Խմբագրել"},
    CaptionRow{"Ilg", "View", "Տեսք"},
    CaptionRow{"Help1", "Help", "Օգնություն"},
    CaptionRow{"Save", "Save As", "Պահել իբրև"},
    CaptionRow{"Open1", "Open", "Բացել"},
    CaptionRow{"CWD", "Copy to MS Word document", "Պատճենել MS Word փաստաթղթին"},
    CaptionRow{"aas", "Add to File", "Ավելացնել ֆայլին"},
    CaptionRow{"HTD", "'Pelorand' Dictionary", "«ՊԵԼՈՐԱՆԴ» բառարան"},
    CaptionRow{"prnt", "Print Translation", "Տպել թարգմանությունը"},
    CaptionRow{"exit1", "Exit", "Ելք"},
    CaptionRow{"Chat", "Chat", "Երկլեզվյա զրուցարան"},
    CaptionRow{"Corr", "Corrector", "Բառարան"},
    CaptionRow{"TS", "Translate Selection", "Թարգմանել ընտրված հատվածը"},
    CaptionRow{"Replacce", "Replace", "Փոխել"},
    CaptionRow{"Fnd", "Find", "Որոնել"},
    CaptionRow{"splc", "Spellchecker", "Սխալների ուղղում"},
    CaptionRow{"SSO", "Suggest Spelling Options", "Տարբերակներ առաջարկելով"},
    CaptionRow{"DSO", "Don't Suggest Spelling Options", "Առանց տարբերակներ առաջարկելու"},
    CaptionRow{"SUT", "List non-Translated Terms", "Թվել չթարգմանված տերմինները"},
    CaptionRow{"uta", "Unicode to ANSI Converter", "Յունիկոդ-ԱՆՍԻ փոխարկիչ"},
    CaptionRow{"cvtae", "Translit (Arm-Lat)", "Տառադարձում (Հայ-Լատ)"},
    CaptionRow{"cvtea", "Translit (Lat-Arm)", "Տառադարձում (Լատ-Հայ)"},
    CaptionRow{"ET", "Original English Text", "Անգլերեն բնօրինակ"},
    CaptionRow{"LLAT", "Latin Lettered Armenian Text", "Լատինատառ հայերեն տեքստ"},
    CaptionRow{"IMPV", "Accurate Translation", "Առավել սահուն թարգմանություն"},
    CaptionRow{"CC", "Case Change", "Մեծատառ<>Փոքրատառ"},
    CaptionRow{"Amcc", "Armenian", "Հայերեն"},
    CaptionRow{"Ecc", "English", "Անգլերեն"},
    CaptionRow{"AUC", "Uppercase", "Մեծատառերով"},
    CaptionRow{"ALC", "Lowercase", "Փոքրատառերով"},
    CaptionRow{"EUC", "Uppercase", "Մեծատառերով"},
    CaptionRow{"ELC", "Lowercase", "Փոքրատառերով"},
    CaptionRow{"fnt", "Font", "Տառատեսակ"},
    CaptionRow{"ITR", "Set Instant Translation", "Ակնթարթային թարգմանություն"},
    CaptionRow{"AMN", "Armenian Interface", "Հայերեն միջերես"},
    CaptionRow{"Engo", "English Interface", "Անգլերեն միջերես"},
    CaptionRow{"TA", "Type with Armenian Phonetic fonts", "Գրել հայերեն ֆոնետիկ տառաշարով"},
    CaptionRow{"Picture1", "'Ctrl+z' changes input language.", "'Ctrl+z' փոխում է մուտքագրման լեզուն:"},
    CaptionRow{"Ha", "Armenian Help", "Օգնություն հայերենով"},
    CaptionRow{"He", "English Help", "Օգնություն անգլերենով"},
    CaptionRow{"intnt", "Internet", "Համացանց"},
    CaptionRow{"muse5", "My Homepage", "Միանալ hամացանցին"},
    CaptionRow{"gih", "Go to ZENKA Page", "Գնալ «ԶԵՆԿԱ» կայք"},
    CaptionRow{"abo", "About", "Ծրագրի մասին"},
    CaptionRow{"Dialog.OKButton", "", "Շատ լավ"},
    CaptionRow{"Dialog.Command1", "", "Ընդունված տառատեսակը"},
    CaptionRow{"Dialog.CancelButton", "Cancel", "Թողնել"},
    CaptionRow{"EF", "Editing Mode", "Խմբագրման ձևաչափ"},
    CaptionRow{"ETE", "Edit Translated Expressions", "Խմբագրել արտահայտություններ"},
};

// Captions of the window's resource that differ from Engo_Click's.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kResourceDifferences{{
    {"uta", "Unicod to ANSCII Converter"},
    {"SUT", "List Non-Translated Terms"},
    {"ET", "English Text"},
    {"cvtae", "Translit (ARM-LAT)"},
}};

constexpr std::array kMenus{
    MenuEntry{"File", "", "", true},
    MenuEntry{"Open1", "File", "Ctrl+O"},
    MenuEntry{"Save", "File", "Ctrl+S", false, true},
    MenuEntry{"CWD", "File", "Ctrl+W"},
    MenuEntry{"aas", "File", "Ctrl+B", false, true, true},
    MenuEntry{"HTD", "File", "F3"},
    MenuEntry{"prnt", "File", "Ctrl+P", false, true},
    MenuEntry{"exit1", "File", "Ctrl+E"},

    MenuEntry{"Edit", "", "", true},
    MenuEntry{"Corr", "Edit", "Ctrl+D"},
    MenuEntry{"TS", "Edit", "Ctrl+T"},
    MenuEntry{"Fnd", "Edit", "Ctrl+F"},
    MenuEntry{"Replacce", "Edit", "Ctrl+R"},
    MenuEntry{"EdtTr", "Edit", "Ctrl+Y", false, false, true},
    MenuEntry{"splc", "Edit", "", true},
    MenuEntry{"SSO", "splc", ""},
    MenuEntry{"DSO", "splc", "", false, false, true},
    MenuEntry{"SUT", "Edit", "", false, false, true},
    MenuEntry{"uta", "Edit", "Ctrl+U"},
    MenuEntry{"cvtea", "Edit", "", true},
    MenuEntry{"ET", "cvtea", ""},
    MenuEntry{"LLAT", "cvtea", ""},
    MenuEntry{"cvtae", "Edit", ""},
    MenuEntry{"IMPV", "Edit", "", false, false, true},
    MenuEntry{"CC", "Edit", "", true},
    MenuEntry{"Amcc", "CC", "", true},
    MenuEntry{"AUC", "Amcc", ""},
    MenuEntry{"ALC", "Amcc", ""},
    MenuEntry{"Ecc", "CC", "", true},
    MenuEntry{"EUC", "Ecc", ""},
    MenuEntry{"ELC", "Ecc", ""},

    MenuEntry{"Ilg", "", "", true},
    MenuEntry{"AMN", "Ilg", "", false, false, true},
    MenuEntry{"Engo", "Ilg", ""},
    MenuEntry{"EF", "Ilg", kEditingModeShortcut, false, false, true},
    MenuEntry{"ETE", "Ilg", "F4", false, true},
    MenuEntry{"TA", "Ilg", "Ctrl+Z", false, false, true},
    MenuEntry{"ITR", "Ilg", "", false, false, true},
    MenuEntry{"fnt", "Ilg", ""},

    MenuEntry{"intnt", "", "", true},
    MenuEntry{"Chat", "intnt", "Ctrl+Q", false, false, true},
    MenuEntry{"muse5", "intnt", "Ctrl+I"},
    MenuEntry{"gih", "intnt", "Ctrl+K"},

    MenuEntry{"Help1", "", "", true},
    MenuEntry{"Ha", "Help1", "F1"},
    MenuEntry{"He", "Help1", "F2"},
    MenuEntry{"abo", "Help1", ""},
};

Wording both(std::string_view english, std::string_view armenian) {
    return Wording{fromUtf8(english), fromUtf8(armenian)};
}

}  // namespace

std::span<const CaptionRow> captionTable() { return kCaptions; }

const CaptionRow* findCaption(std::string_view control) {
    for (const auto& row : kCaptions)
        if (row.control == control) return &row;
    return nullptr;
}

std::string_view resourceCaption(std::string_view control) {
    for (const auto& [name, caption] : kResourceDifferences)
        if (name == control) return caption;
    const CaptionRow* row = findCaption(control);
    return row ? row->english : std::string_view{};
}

std::optional<std::string_view> captionIn(std::string_view control, Language language) {
    const CaptionRow* row = findCaption(control);
    if (!row) return std::nullopt;
    const std::string_view text = language == Language::Armenian ? row->armenian : row->english;
    if (text.empty()) return std::nullopt;
    return text;
}

std::span<const MenuEntry> menuTree() { return kMenus; }

const MenuEntry* findMenuEntry(std::string_view name) {
    for (const auto& entry : kMenus)
        if (entry.name == name) return &entry;
    return nullptr;
}

Notice alreadyRunningNotice() {
    const std::string_view text = "The application is already running!";
    return Notice{both(text, text), both("ZENKA - Vorlexa", "ԶԵՆԿԱ - Վորլեքսա")};
}

Question armenianInterfaceQuestion() {
    // One wording for both languages: the question is whether the Armenian one can be read.
    const std::string_view text = "Հայերեն միջերեսը տեսանելի՞ է:\r\nDo you see Armenian Interface?";
    Question q;
    q.text = both(text, text);
    q.title = both("Ուշադրություն", "Ուշադրություն");
    q.buttons = Buttons::YesNo;
    return q;
}

Question saveAtExitQuestion() {
    Question q;
    q.text = both("You have a fresh edited text on right window! Would you like to save it?",
                  "Աջ պատուհանին թարմ խմբագրված տեքստ կա: Կկամենայի՞ք պահպանել այն:");
    q.title = both("ZENKA - Vorlexa", "ԶԵՆԿԱ - Վորլեքսա");
    q.buttons = Buttons::YesNoCancel;
    return q;
}

std::string_view pictureToolTip(Language language) {
    return *captionIn("Picture1", language);
}

}  // namespace vorlexa::app
