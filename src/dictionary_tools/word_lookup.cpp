#include "dictionary_tools/word_lookup.h"

#include "rules/verb_forms.h"
#include "spell/hayqer1.h"

namespace vorlexa {

namespace {

// The first code an Armenian letter has; below it, and not the ligature, a word is English.
constexpr unsigned char kFirstArmenianCode = font::kFirstCapital;

struct Translations {
    std::vector<FontText> glosses;
    FontText shown;  // the word as the tool tip names it
};

// Walks the column of the word down to its end record.
Translations findTranslations(const DictionaryStore& store, Direction direction,
                              const FontText& word) {
    Translations t;
    t.shown = word;
    const RecordFile& file = store.source(direction);
    const int stride = strideOf(direction);
    const FontText withE = word + "e";
    DictRecord r;
    for (std::int64_t rec = columnOf(direction, word); rec <= file.recordCountExact();
         rec += stride) {
        r.raw = file.read(rec);
        if (r.isNull()) break;
        if (r.key() == word) {
            t.glosses.emplace_back(r.gloss());
        } else if (direction == Direction::EnglishToArmenian && r.key() == withE) {
            t.glosses.emplace_back(r.gloss());
            t.shown = withE;
            break;
        }
    }
    return t;
}

LookupResult lookUp(const DictionaryStore& store, Direction direction, std::string_view flat,
                    FontText word, int tries, const StripEnding& strip) {
    LookupResult result;
    result.word = word;
    Translations t;
    for (int attempt = 1; attempt <= tries; ++attempt) {
        t = findTranslations(store, direction, word);
        if (!t.glosses.empty() || attempt == tries || !strip || !strip(word)) break;
    }
    if (t.glosses.empty()) {
        result.text = FontText(kNoResults);
        return result;
    }
    result.found = true;
    FontText list;
    for (std::size_t i = 0; i < t.glosses.size(); ++i) list += (i ? ", " : "") + t.glosses[i];
    result.text =
        "Translation for '" + t.shown + "' is '" + list + "'.\n Available Synonims & homonyms: ";
    const std::string_view last = t.glosses.back();
    for (std::size_t at = 0; at + kRecordLength <= flat.size(); at += kRecordLength) {
        const std::string_view raw = flat.substr(at, kRecordLength);
        if (trimBlanks(mid(raw, kKeyWidth + 1, kGlossWidth)) != last) continue;
        const FontText key(trimBlanks(mid(raw, 1, kKeyWidth)));
        result.synonyms.push_back(key);
        result.text += "'" + key + "', ";
    }
    result.text.resize(result.text.size() - 2);
    return result;
}

}  // namespace

bool isSelectionLetter(unsigned char c) {
    return !(c < 'A' || (c >= '[' && c <= '`') || (c >= '{' && c <= 166) ||
             (c >= 170 && c <= 177) || c > 253);
}

FontText cleanSelection(std::string_view selection) {
    FontText s(selection);
    // Each sign dropped from the start leaves a blank at the end; a selection of signs alone
    // ends as blanks, and the blank at the start then ends it.
    std::size_t dropped = 0;
    for (std::size_t i = 0; i < s.size();) {
        if (isSelectionLetter(static_cast<unsigned char>(s[i]))) {
            ++i;
            continue;
        }
        if (i == 0 && dropped < selection.size()) {
            s.erase(0, 1);
            s += ' ';
            ++dropped;
            continue;
        }
        s.resize(i);
        break;
    }
    return s;
}

StripEnding hayqer1Strip() {
    return [](FontText& word) {
        spell::Hayqer1Result stripped = spell::hayqer1(word);
        if (stripped.word == word) return false;
        word = std::move(stripped.word);
        return true;
    };
}

LookupResult synonimse(const DictionaryStore& store, std::string_view englishFlat, FontText word) {
    const StripEnding anqerStrip = [](FontText& w) {
        FontText tail;
        return anqer(w, tail);
    };
    return lookUp(store, Direction::EnglishToArmenian, englishFlat, std::move(word),
                  kEnglishLookupTries, anqerStrip);
}

LookupResult synonimsa(const DictionaryStore& store, std::string_view armenianFlat, FontText word,
                       const StripEnding& strip) {
    return lookUp(store, Direction::ArmenianToEnglish, armenianFlat, std::move(word),
                  kArmenianLookupTries, strip);
}

LookupResult Txt34_dblclick(const DictionaryStore& store, std::string_view englishFlat,
                            std::string_view armenianFlat, std::string_view selection,
                            const StripEnding& strip) {
    FontText word = cleanSelection(selection);
    if (word.empty()) return {};
    const auto last = static_cast<unsigned char>(word.back());
    if (last < kFirstArmenianCode && last != font::kLigature) {
        word = FontText(trimBlanks(word));
        for (char& c : word)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        if (word.empty()) return {};
        return synonimse(store, englishFlat, std::move(word));
    }
    return synonimsa(store, armenianFlat, foldArmenianCase(word), strip);
}

}  // namespace vorlexa
