#include "app/add_word_panel.h"

#include "text/font_text.h"

namespace vorlexa::app {

using namespace vorlexa::literals;

namespace {

std::string_view pick(Language language, std::string_view english, std::string_view armenian) {
    return language == Language::Armenian ? armenian : english;
}

}  // namespace

std::string_view panelWordHint(Language language) { return pick(language, "word", "բառը"); }

std::string_view panelTranslationHint(Language language) {
    return pick(language, "its translation, then Save", "թարգմանությունը, ապա «Հիշել»");
}

std::string_view panelTagHint(Language language) { return pick(language, "tag", "պիտակ"); }

std::string_view skipCaption(Language language) { return pick(language, "Skip (Esc)", "Բաց թողնել (Esc)"); }

Notice emptyTranslationNotice() {
    Notice n;
    n.text.english = "The translation is empty: type the translation of the word and press Save, or press Skip "
                     "(Esc) to leave the word untranslated.";
    n.text.armenian = FontText("Թարգմանությունը դատարկ է: Գրեք բառի թարգմանությունը և սեղմեք «Հիշել», կամ "
                               "սեղմեք «Բաց թողնել» (Esc), որ բառը չթարգմանված մնա:"_ft);
    n.title.english = "Attention !!!";
    n.title.armenian = FontText("Ուշադրություն"_ft);
    return n;
}

}  // namespace vorlexa::app
