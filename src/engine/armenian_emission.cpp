// The Armenian-to-English branch of the look-up: the word is found in dictionarya-e and its
// English gloss takes the forms the ending analysis asked for (a verb in "ed", "ing" or the third
// person, a plural, a comparative), then goes into the output where English wants it: an
// auxiliary goes back before the word group it follows in Armenian, and so does a postposition.
#include <algorithm>
#include <initializer_list>

#include "engine/engine.h"
#include "rules/rule_contract.h"
#include "rules/verb_forms.h"

namespace vorlexa {

using namespace literals;

namespace {

bool oneOf(std::string_view s, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), s) != words.end();
}

bool endsWithAny(std::string_view s, std::initializer_list<std::string_view> tails) {
    return std::any_of(tails.begin(), tails.end(), [&](std::string_view t) { return s.ends_with(t); });
}

bool isVowel(char c) { return c == 'a' || c == 'e' || c == 'i' || c == 'o' || c == 'u'; }

// The tens keep their "y" before an ending.
bool isTens(std::string_view gloss) {
    return oneOf(gloss, {"twenty", "thirty", "forty", "fifty", "sixty", "seventy", "eighty", "ninety"});
}

// A consonant and "y" at the end: "carry" takes "carries", "carried".
bool endsInConsonantY(std::string_view gloss) {
    return gloss.size() >= 2 && gloss.back() == 'y' && !isVowel(gloss[gloss.size() - 2]) && !isTens(gloss);
}

void cutTail(FontText& s, std::size_t n) { s.resize(n >= s.size() ? 0 : s.size() - n); }

// Puts text into the output `depth` characters before its end, in front of the word group
// written last; the blank that closed that group comes back with the next delimiter.
void placeBack(FontText& output, std::string_view text, std::int64_t depth) {
    if (depth <= 0) {
        output += text;
        return;
    }
    if (output.ends_with(' ')) output.pop_back();
    const auto length = static_cast<std::int64_t>(output.size());
    const auto at = static_cast<std::size_t>(std::max<std::int64_t>(0, length - depth));
    output.insert(at, FontText(text) + ' ');
}

// The English comparative of an adjective.
FontText comparative(const FontText& gloss) {
    if (gloss == "bad") return "worse";
    if (gloss == "good") return "better";
    if (gloss == "sad" || gloss == "big") return gloss + gloss.back() + "er";
    if (gloss.ends_with('e')) return gloss + "r";
    if (gloss.ends_with('y')) return gloss.substr(0, gloss.size() - 1) + "ier";
    return gloss + "er";
}

// Verbs whose past is the bare verb.
bool takesNoEd(std::string_view gloss) {
    return oneOf(gloss, {"put", "cut", "bet", "broadcust", "burst", "cost", "hit", "hurt", "let", "set", "shut",
                         "split", "spread", "been", "read", "come", "become"});
}

}  // namespace

void Engine::teqst_ArmenianToEnglish() {
    // Match: the key is compared first, and only a matching record is tested for "null", so the
    // walk runs down the whole column.
    // The column's index gives the first record of the key; it is the end record exactly when
    // it is the column's first "null".
    skizba();
    const RecordFile& file = store.armenian();
    const std::int64_t first = file.firstKeyInColumn(kArmenianStride, static_cast<int>(RangeStart), CurrentWord);
    const bool found = first != 0 && first != file.firstNullInColumn(kArmenianStride, static_cast<int>(RangeStart));
    if (first != 0) {
        DictRecord.raw.assign(file.view(first));
        if (found) RecIndex = first;
    } else if (RangeStart <= file.recordCount()) {
        // The walk read down to the column's last record.
        DictRecord.raw.assign(file.view(RangeStart + (file.recordCount() - RangeStart) / kArmenianStride * kArmenianStride));
    }
    if (!found) {
        notFoundPath();
        return;
    }
    WordGloss = FontText(DictRecord.gloss());
    WordTag = DictRecord.tag();
    const char tag1 = WordTag[0];

    // A key that is a verbal form is read again through its infinitive, as an "ing" form. The
    // verbs in "-վել" are glossed with a participle ("held"), so their forms in "-վում" keep a
    // gloss of their own ("being held").
    if (WordTag[4] == 'v' && CurrentWord.ends_with("ում"_ft) && !CurrentWord.ends_with("վում"_ft)) {
        CurrentWord = CurrentWord.substr(0, CurrentWord.size() - 3) + FontText("ալ"_ft);
        VerbFormMark = "ing";
        // As in the ending analysis, "գրում է" is one word: the third person, the "է" read with it;
        // "էի" and "էր" keep the "ing" form.
        const auto next2 = sourceAt(ScanPos + 1, 2);
        if (next2 != "էի"_ft && next2 != "էր"_ft && nextIs("է"_ft)) {
            ThirdPersonEnding = 1;
            ScanPos += 2;
        }
        teqst_dblclick();
        return;
    }

    TargetClasses += tag1;
    // What this word tells the ending analysis of the words after it.
    if (tag1 == 'o') ProgressiveNext = 1;
    if (tag1 == 'v' && WordTag[3] == 't') TransitiveNext = 1;
    if (tag1 == 'p') PrepositionNext = 1;
    // The article kept aside by the analysis has no English form of its own.
    ArticleEnding.clear();

    // "եր"/"ար" was a plural or a conditional: a verb keeps the "would ", anything else was a plural.
    if (PendingEnding == "s1") {
        if (tag1 != 'v') {
            PendingEnding = "s";
            cutTail(OutputText, 6);
        } else {
            PendingEnding.clear();
            InsertText.clear();
        }
    }

    // Stems that mean something else when inflected.
    if (!PendingEnding.empty() && (WordGloss == "ill" || WordGloss == "dark" || WordGloss == "sharp")) {
        WordGloss = WordGloss == "ill" ? "patient" : WordGloss == "dark" ? "darkness" : "sword";
        if (PendingEnding != "s") PendingEnding.clear();
    }
    if (WordGloss == "gammer") {
        if (PendingEnding.empty()) WordGloss = "old";
        else PendingEnding.clear();
    }

    if (PendingEnding == "s" && ((tag1 == '1' && WordGloss == "one") || tag1 != 'n' || tag1 == '2'))
        PendingEnding.clear();

    if (tag1 == '2') {
        InsertText = "the ";
        mctn(*this);
    }

    if (tag1 == 'a' && outputEndsWith("more ") &&
        !endsWithAny(OutputText, {"any more ", "some more ", "once more ", "much more "})) {
        cutTail(OutputText, 5);
        WordGloss = comparative(WordGloss);
    }

    // Glosses with forms of their own.
    if (PendingEnding == "s") {
        if (WordGloss == "man" || WordGloss == "woman" || WordGloss == "child") {
            WordGloss = WordGloss == "child" ? "children" : WordGloss.substr(0, WordGloss.size() - 2) + "en";
            PendingEnding.clear();
        } else if (oneOf(WordGloss, {"life", "knife", "wife"})) {
            WordGloss.replace(WordGloss.size() - 2, 1, "v");
        }
    }
    if (WordGloss == "head" && CausativeVerb == 1) WordGloss = "cock";
    if (CausativeVerb == 1 && WordGloss.starts_with("get ")) {
        WordGloss = "make " + WordGloss.substr(4);
        CausativeVerb.clear();
    }
    if (WordGloss == "give") {
        if (outputEndsWith("demonstration ")) {
            cutTail(OutputText, 14);
            WordGloss = "show";
        } else if (outputEndsWith("swallow ")) {
            cutTail(OutputText, 8);
            WordGloss = "swallow";
        } else if (outputEndsWith("weak ")) {
            cutTail(OutputText, 5);
            WordGloss = "allow";
        }
    }

    // A verb after a form of "be" is its perfect: "am" becomes "have", "was" "had".
    if (tag1 == 'v' && VerbFormMark.empty()) {
        static constexpr std::pair<std::string_view, std::string_view> kPerfect[] = {
            {" am not ", " have not "}, {" are not ", " have not "},   {" was not ", " had not "},
            {" were not ", " had not "}, {" is not ", " has not "},    {" does not ", " has not "},
            {" am ", " have "},          {" are ", " have "},          {"you I ", "you have "},
            {" was ", " had "},          {" were ", " had "},          {" is ", " has "}};
        for (const auto& [be, have] : kPerfect) {
            if (!outputEndsWith(be)) continue;
            cutTail(OutputText, be.size());
            OutputText += have;
            VerbFormMark = "ed";
            break;
        }
    }

    if (WordGloss.ends_with('-') || WordGloss.ends_with('*')) WordGloss.pop_back();

    // A verb of several words takes its form on the first word.
    PhraseTail.clear();
    if (tag1 == 'v') {
        const auto blank = WordGloss.find(' ');
        if (blank != FontText::npos &&
            !oneOf(std::string_view(WordGloss).substr(0, blank), {"in", "of", "from", "by", "the", "to", "off"})) {
            PhraseTail = WordGloss.substr(blank);
            WordGloss.resize(blank);
        }
    }

    if (WordGloss == "th") rd(*this);

    // The English ending.
    if (VerbFormMark == "ed") {
        irregular(*this);
        if (VerbFormMark == "ed") {
            if (takesNoEd(WordGloss)) {
                // the bare verb
            } else if (WordGloss.ends_with('e')) {
                WordGloss += 'd';
            } else if (endsInConsonantY(WordGloss)) {
                WordGloss.back() = 'i';
                WordGloss += "ed";
            } else {
                WordGloss += "ed";
            }
        }
    } else if (VerbFormMark == "ing") {
        if (ThirdPersonEnding == 1) {
            nershar(*this);
        } else {
            if (WordGloss.size() > 2 && WordGloss.ends_with('e') && !WordGloss.ends_with("ee")) WordGloss.pop_back();
            WordGloss += "ing";
        }
    } else if (VerbFormMark == "s") {
        if (endsInConsonantY(WordGloss)) {
            WordGloss.back() = 'i';
            WordGloss += "es";
        } else {
            WordGloss += 's';
        }
    }
    WordGloss += PhraseTail;
    PhraseTail.clear();

    // Plurals that English spells with "es"; the others are put on by the scanner at the word end.
    if (tag1 == 'n' && PendingEnding == "s" &&
        (endsWithAny(WordGloss, {"s", "x", "sh", "ch"}) || WordGloss == "potato" || WordGloss == "tomato")) {
        WordGloss += "es";
        PendingEnding.clear();
    }
    if (PendingEnding == "'s") {
        WordGloss += "'s";
        PendingEnding.clear();
    }

    if (CapitalFlag == 1) pokr();

    if (tag1 == 'o') {
        placeBack(OutputText, WordGloss, VerbBackOffset);
    } else if (WordTag.starts_with("cto")) {
        placeBack(OutputText, WordGloss, CopyDepth);
        // The postposition now leads the word group, so an auxiliary that follows goes before it
        // too ("Ես սեղանի վրա եմ" gives "I am on table", not "I on am table").
        if (CopyDepth > 0) VerbBackOffset += static_cast<std::int64_t>(WordGloss.size()) + 1;
    } else {
        OutputText += WordGloss;
    }
    if (!WordTag.starts_with("cto")) {
        // The word just written, with the plural ending still to come.
        CopyDepth = static_cast<std::int64_t>(WordGloss.size() + (PendingEnding == "s" ? 1 : 0));
        if (tag1 != 'o') {
            // The word group: the word and what the analysis put before it.
            VerbBackOffset = CopyDepth + EnglishAuxBack;
            EnglishAuxBack = 0;
        }
    }

    // A number other than "one" makes the next noun a plural.
    if (tag1 == '1' && WordGloss != "one") PendingEnding = "s";
    resetWord();
}

}  // namespace vorlexa
