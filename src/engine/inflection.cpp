// Steps G to S of the English-to-Armenian emission: the gloss taken from the record becomes the
// inflected Armenian word or word group, from the tag, the pending endings, the person and the
// end of OutputText. The steps run in this order, each seeing what the ones before did.
#include <algorithm>
#include <array>
#include <charconv>
#include <unordered_set>
#include <vector>

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

namespace {

bool oneOf(std::string_view s, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), s) != words.end();
}

bool endsWithAny(std::string_view s, std::initializer_list<std::string_view> tails) {
    return std::any_of(tails.begin(), tails.end(), [&](std::string_view t) { return s.ends_with(t); });
}

bool replaceTail(FontText& s, std::string_view tail, std::string_view with) {
    if (!s.ends_with(tail)) return false;
    s.replace(s.size() - tail.size(), tail.size(), with);
    return true;
}

FontText dropLast(std::string_view s, std::size_t n) {
    return FontText(s.substr(0, s.size() >= n ? s.size() - n : 0));
}

char tagAt(const FontText& tag, std::size_t position1) {
    return position1 <= tag.size() ? tag[position1 - 1] : ' ';
}

constexpr std::string_view kNounTag = "n    ";
constexpr std::string_view kVerbTag = "v    ";
constexpr std::string_view kIrregularVerbTag = "vi   ";

// Armenian vowels as the syllable count knows them; "ւ" belongs to the vowel "ու". A table by
// byte, as the count asks it once or twice for each letter of every gloss.
constexpr auto kCountedVowels = [] {
    std::array<bool, 256> in{};
    constexpr std::string_view kVowels = "աեէիոըօև"_ft;
    for (int c = 0; c < 256; ++c) {
        const auto small = static_cast<char>(font::toSmall(static_cast<unsigned char>(c)));
        for (const char vowel : kVowels)
            if (vowel == small) in[static_cast<std::size_t>(c)] = true;
    }
    return in;
}();
bool isCountedVowel(unsigned char c) { return kCountedVowels[c]; }
bool isCountedConsonant(unsigned char c) {
    return font::isArmenianLetter(c) && !isCountedVowel(c) && font::toSmall(c) != static_cast<unsigned char>("ւ"_ft[0]);
}

// Glosses of the steps that read them.
constexpr std::string_view kTensWords[] = {"քսան"_ft,   "երեսուն"_ft, "քառասուն"_ft,   "հիսուն"_ft,
                                           "վաթսուն"_ft, "յոթանասուն"_ft, "ութսուն"_ft, "իննսուն"_ft};
constexpr std::string_view kUnitWords[] = {"մեկ"_ft, "երկու"_ft, "երեք"_ft, "չորս"_ft, "հինգ"_ft,
                                           "վեց"_ft, "յոթ"_ft,   "ութ"_ft,  "ինը"_ft};
constexpr std::string_view kOrdinals[] = {"առաջին"_ft,   "երկրորդ"_ft, "երրորդ"_ft,
                                          "չորրորդ"_ft,  "հինգերորդ"_ft, "վեցերորդ"_ft,
                                          "յոթերորդ"_ft, "ութերորդ"_ft, "իններորդ"_ft};
constexpr std::string_view kMonths[] = {"հունվար"_ft, "փետրվար"_ft,   "մարտ"_ft,      "ապրիլ"_ft,
                                        "մայիս"_ft,   "հունիս"_ft,    "հուլիս"_ft,    "օգոստոս"_ft,
                                        "սեպտեմբեր"_ft, "հոկտեմբեր"_ft, "նոյեմբեր"_ft, "դեկտեմբեր"_ft};
constexpr std::string_view kWeekDays[] = {"երկուշաբթի"_ft, "երեքշաբթի"_ft, "չորեքշաբթի"_ft, "հինգշաբթի"_ft,
                                          "ուրբաթ"_ft,     "շաբաթ"_ft,     "կիրակի"_ft};
// Nouns that are plural in themselves: they stand for person 4 and take no plural ending.
constexpr std::string_view kPluralNouns[] = {"մարդիկ"_ft, "տղամարդիկ"_ft, "երեխաներ"_ft, "կանայք"_ft,
                                             "լրատվամիջոցներ"_ft};

template <std::size_t N>
bool inList(std::string_view s, const std::string_view (&list)[N]) {
    return std::find(std::begin(list), std::end(list), s) != std::end(list);
}

// The glosses step H has a rule for, besides the lists above. Any other gloss passes the step as
// it is, and most glosses are others: one look-up spares them the step's many comparisons. A
// rule added to the step adds its gloss here.
constexpr std::string_view kGlossesOfStepH[] = {
    "մարդ"_ft,  "քույր"_ft, "տեր"_ft,   "կին"_ft,     "կանայք"_ft, "ամուսին"_ft, "աղջիկ"_ft,
    "հայր"_ft,  "մայր"_ft,  "եղբայր"_ft, "վաղը"_ft,   "տարի"_ft,   "օր"_ft,      "գիշեր"_ft,
    "կեսօր"_ft, "երեկ"_ft,  "այսօր"_ft, "առավոտ"_ft, "ցերեկ"_ft,  "ամիս"_ft,    "ժամանակ"_ft,
    "կանչել"_ft, "զով"_ft,  "գոլորշի"_ft, "մաս"_ft,   "հոդված"_ft, "համբույր"_ft, "զրույց"_ft};

bool hasFormOfItsOwn(std::string_view gloss) {
    static const std::unordered_set<std::string_view> glosses = [] {
        std::unordered_set<std::string_view> all(std::begin(kGlossesOfStepH), std::end(kGlossesOfStepH));
        all.insert(std::begin(kOrdinals), std::end(kOrdinals));
        all.insert(std::begin(kUnitWords), std::end(kUnitWords));
        all.insert(std::begin(kMonths), std::end(kMonths));
        all.insert(std::begin(kWeekDays), std::end(kWeekDays));
        all.insert(std::begin(kPluralNouns), std::end(kPluralNouns));
        return all;
    }();
    // The lengths and first letters of those glosses: most others are told apart without a hash.
    constexpr std::size_t kLengthsTold = 32;  // longer glosses share the last entry
    static const auto starts = [] {
        std::vector<std::array<bool, 256>> table(kLengthsTold);
        for (const std::string_view g : glosses)
            table[std::min(g.size(), kLengthsTold - 1)][static_cast<unsigned char>(g[0])] = true;
        return table;
    }();
    if (gloss.empty() || !starts[std::min(gloss.size(), kLengthsTold - 1)][static_cast<unsigned char>(gloss[0])])
        return false;
    return glosses.contains(gloss);
}

// The text ends in this word standing alone, whatever the case of its letters (a word that began
// the sentence was capitalised).
bool endsWithWordOf(std::string_view text, std::string_view word) {
    if (text.size() < word.size() || foldArmenianCase(text.substr(text.size() - word.size())) != word) return false;
    return text.size() == word.size() || text[text.size() - word.size() - 1] == ' ';
}

bool afterTensWord(std::string_view output) {
    if (!output.ends_with(' ')) return false;
    const std::string_view before = output.substr(0, output.size() - 1);
    return std::any_of(std::begin(kTensWords), std::end(kTensWords),
                       [&](std::string_view tens) { return endsWithWordOf(before, tens); });
}

}  // namespace

// Ordinals after a tens word make one compound ordinal: "քսան" + "առաջին" is "քսանմեկերորդ".
// The first four ordinals have their own stems; compounds are built on the cardinal.
void Engine::dasakan_tver() {
    if (!afterTensWord(OutputText)) return;
    OutputText.pop_back();
    if (WordGloss == "առաջին"_ft) WordGloss = "մեկերորդ"_ft;
    else if (WordGloss == "երկրորդ"_ft) WordGloss = "երկուերորդ"_ft;
    else if (WordGloss == "երրորդ"_ft) WordGloss = "երեքերորդ"_ft;
    else if (WordGloss == "չորրորդ"_ft) WordGloss = "չորսերորդ"_ft;
}

void Engine::inflect_G_to_S() {
    FontText& gloss = WordGloss;
    FontText& ending = PendingEnding;
    const auto tag1 = [this] { return tagAt(WordTag, 1); };
    const auto isVerb = [&] { return tag1() == 'v'; };
    const auto isNoun = [&] { return tag1() == 'n'; };
    // An ending of case or postposition, not the plural.
    const bool caseEnding = !ending.empty() && ending != "ներ"_ft && ending != "եր"_ft;

    // G. Stem table: the verb readings of some nouns, while a verb form is wanted.
    if (!VerbFormMark.empty() || !ToMark.empty() || ModalFlag == 1) {
        if (gloss == "ռազմավար"_ft && VerbFormMark == "ող"_ft) {
            gloss = "թալան"_ft;
            VerbFormMark.clear();
        } else if (gloss == "ժայռ"_ft) {
            gloss = "ցնց"_ft;
        } else if (gloss == "պատիվ"_ft) {
            gloss = "պատվ"_ft;
        } else if (gloss == "բռնակ"_ft) {
            gloss = "բռն"_ft;
        } else if (gloss == "ձեռք"_ft) {
            gloss = "հանձն"_ft;
        } else if (gloss == "հաշվետվություն"_ft) {
            gloss = "զեկուց"_ft;
        } else if (gloss == "կանոն"_ft) {
            gloss = "կառավար"_ft;
        } else if (gloss == "պետություն/վիճակ"_ft) {
            gloss = "հայտարար"_ft;
        } else if (gloss == "վերջ"_ft) {
            gloss = "ավարտ"_ft;
        }
        // "թողնել" is its own verb reading.
        if (gloss == "տալ"_ft) {
            // "տալիս" is the whole participle: the mark is spent on it.
            if (ModalFlag == 1) {
                gloss = "տա"_ft;
                if (PersonCode == 1) gloss += "մ"_ft;
                else if (PersonCode == 2) gloss += "ք"_ft;
                else if (PersonCode == 3) gloss += "նք"_ft;
                else if (PersonCode == 4) gloss += "ն"_ft;
            } else {
                gloss = "տալիս"_ft;
                VerbFormMark.clear();
            }
        }
        if (gloss == "ամբողջական"_ft || gloss == "գետին"_ft) {
            gloss = "լրացնել"_ft;
            WordTag = FontText(kVerbTag);
        }
        if (gloss == "կողպեք"_ft) gloss = "կողպել"_ft;
        if (ToMark == "to" && gloss == "եկել"_ft) gloss = "գալու"_ft;
        if (gloss.ends_with("ու"_ft) && !ending.empty() && ending != "ներ"_ft && isNoun())
            replaceTail(gloss, "ու"_ft, "վ"_ft);
    }

    // H. Irregular nouns and the words with forms of their own.
    bool pluralPerson = false;  // a week day or a plural noun: person 4, which P keeps
    if (hasFormOfItsOwn(gloss)) {
        if (gloss == "մարդ"_ft) {
            if (!ending.empty() && ending != "ով"_ft) gloss = "մարդու"_ft;
        } else if (gloss == "քույր"_ft || gloss == "տեր"_ft || gloss == "կին"_ft || gloss == "կանայք"_ft) {
            const bool pluralExcluded = (gloss == "քույր"_ft || gloss == "տեր"_ft) && ending == "ներ"_ft;
            if (!ending.empty() && !pluralExcluded) {
                if (gloss == "քույր"_ft) gloss = "քրոջ"_ft;
                else if (gloss == "տեր"_ft) gloss = "տիրոջ"_ft;
                else if (gloss == "կին"_ft) gloss = "կնոջ"_ft;
                else gloss = "կանանց"_ft;
                if (ending.starts_with("ի"_ft) && ending != "ից"_ft) ending.erase(0, "ի"_ft.size());
            }
        } else if (gloss == "ամուսին"_ft) {
            if (caseEnding) gloss = "ամուսնու"_ft;
        } else if (gloss == "աղջիկ"_ft) {
            if (caseEnding) gloss = (ending == "ով"_ft || ending == "ից"_ft) ? "աղջկան"_ft : "աղջկա"_ft;
        } else if (gloss == "հայր"_ft || gloss == "մայր"_ft || gloss == "եղբայր"_ft) {
            if (caseEnding) gloss = dropLast(gloss, "այր"_ft.size()) + FontText("որ"_ft);
        } else if (gloss == "վաղը"_ft || gloss == "տարի"_ft) {
            if (ending == "ից"_ft || ending == "ով"_ft) {
                gloss = dropLast(gloss, 1) + FontText("վան"_ft);
            } else if (ending == "ի"_ft) {
                gloss = dropLast(gloss, 1) + FontText("վա"_ft);
                ending.clear();
            }
        } else if (oneOf(gloss, {"օր"_ft, "գիշեր"_ft, "կեսօր"_ft, "երեկ"_ft, "այսօր"_ft, "առավոտ"_ft, "ցերեկ"_ft})) {
            if (ending == "ի"_ft) {
                gloss += "վա"_ft;
                ending.clear();
            }
        } else if (gloss == "ամիս"_ft) {
            if (ending == "ի"_ft) {
                gloss = "ամսվա"_ft;
                ending.clear();
            }
        } else if (gloss == "ժամանակ"_ft) {
            if (ending == "ի համար"_ft) ending.clear();
        } else if (gloss == "կանչել"_ft) {
            if (!ending.empty()) {
                gloss = "կանչ"_ft;
                WordTag = FontText(kNounTag);
            }
        } else if (gloss == "զով"_ft) {
            if (nextIs("down")) {
                gloss = "հովանալ"_ft;
                WordTag = FontText(kVerbTag);
            }
        } else if (gloss == "գոլորշի"_ft) {
            if (nextIs("up ") || nextIs("up,") || nextIs("up!")) {
                gloss = "զայրանալ"_ft;
                WordTag = FontText(kVerbTag);
            }
        } else if (gloss == "մաս"_ft) {
            // The skip lands on the last letter of the phrase; that letter then ends as an empty word.
            // The design gives the skip of "of speeches" only; "of speech" is skipped by its own
            // length in the same way, so that the phrase is not read again as words.
            if (nextIs("of speeches")) {
                gloss = "խոսքի մասեր"_ft;
                ScanPos += std::string_view("of speeches").size();
            } else if (nextIs("of speech")) {
                gloss = "խոսքի մաս"_ft;
                ScanPos += std::string_view("of speech").size();
            }
        } else if (inList(gloss, kOrdinals)) {
            dasakan_tver();
        } else if (inList(gloss, kUnitWords)) {
            if (afterTensWord(OutputText)) OutputText.pop_back();
        } else if (gloss == "հոդված"_ft) {
            // The grammar article: "definite article", "indefinite article".
            const std::string_view output = OutputText;
            if (output.ends_with(' ') && (endsWithWordOf(output.substr(0, output.size() - 1), "որոշյալ"_ft) ||
                                          endsWithWordOf(output.substr(0, output.size() - 1), "անորոշ"_ft)))
                gloss = "հոդ"_ft;
        } else if (inList(gloss, kMonths)) {
            if (oneOf(ending, {"ի մեջ"_ft, "ի վրա"_ft, "ով"_ft})) ending = "ին"_ft;
        } else if (inList(gloss, kWeekDays) || inList(gloss, kPluralNouns)) {
            PersonCode = 4;
            pluralPerson = true;
            if (ending == "ներ"_ft) ending.clear();
        } else if (gloss == "համբույր"_ft || gloss == "զրույց"_ft) {
            if (!VerbFormMark.empty() && gloss.size() >= 2) gloss.erase(gloss.size() - 2, 1);
        }
    }

    // I. Small fixes.
    if (gloss == "ու"_ft || gloss == "և"_ft) LinkFlag = 1;
    if (gloss == "որ"_ft) {
        if (!ending.empty()) gloss = "այդ"_ft;
        else DefiniteState = 0;
    }
    if (!NegationMark.empty() && isVerb() && !ending.starts_with("ներ"_ft)) {
        gloss = NegationMark + gloss;
        NegationMark.clear();
    }
    if (gloss == "չեկել"_ft) gloss = "չգալ"_ft;

    // J. Plural choice by syllables: vowels, and consonants standing before a consonant.
    int syllables = 0;
    for (std::size_t i = 0; i < gloss.size(); ++i) {
        const auto c = static_cast<unsigned char>(gloss[i]);
        if (c == ' ' || c == '(' || c == '/') {
            syllables = 0;
        } else if (isCountedVowel(c)) {
            ++syllables;
        } else if (isCountedConsonant(c) && i + 1 < gloss.size() &&
                   isCountedConsonant(static_cast<unsigned char>(gloss[i + 1]))) {
            ++syllables;
        }
    }
    SyllableCount = syllables;
    constexpr int kSyllablesForNer = 2;  // one-syllable words take "եր", longer ones "ներ"
    if (syllables < kSyllablesForNer && ending.starts_with("ներ"_ft)) ending.erase(0, 1);

    // K. Vowel fall: the tag names the letter that drops before an ending.
    if (std::isdigit(static_cast<unsigned char>(tagAt(WordTag, 3))) && (!ending.empty() || !VerbFormMark.empty()) &&
        PhraseActive != 1 && Check1 == 0) {
        int n = 0;
        if (tagAt(WordTag, 4) == 't') {
            n = tagAt(WordTag, 3) - '0';
        } else {
            const std::string digits{tagAt(WordTag, 3), tagAt(WordTag, 4)};
            std::from_chars(digits.data(), digits.data() + digits.size(), n);
        }
        if (n >= 1 && static_cast<std::size_t>(n) <= gloss.size()) {
            const auto at = static_cast<std::size_t>(n - 1);
            gloss.erase(at, 1);
            if (at < gloss.size() && gloss[at] == "ւ"_ft[0]) gloss.erase(at, 1);
        }
    }

    // L. After "have", "has", "had" a non-verb is read as the verb "to have"; the scanner goes
    // back so that the word itself is read again. It goes back to the last blank or CR, but never
    // before the delimiter that ended the "have": with no blank between ("have-it", "had--not")
    // the last blank stands before the "have", and reading it again would loop for ever.
    if ((HaveForm == 1 || HaveForm == 2 || HaveForm == 3) && !isVerb() && VerbFormMark != "ած"_ft) {
        std::int64_t p = ScanPos - 1;
        while (p >= 1 && SourceText[static_cast<std::size_t>(p - 1)] != ' ' &&
               SourceText[static_cast<std::size_t>(p - 1)] != '\r')
            --p;
        const std::int64_t haveEnd = HaveFormPos < ScanPos ? HaveFormPos : 0;
        ScanPos = std::max<std::int64_t>({p, haveEnd, 0});
        ending.clear();
        ClassChain.clear();
        PerfectFlag = 1;
        WordTag = FontText(kIrregularVerbTag);
        if (!ToMark.empty() || ModalFlag == 1) {
            gloss = "ունենալ"_ft;
        } else {
            if (HaveForm == 3) gloss = NegationMark.empty() ? "ունենալ"_ft : "չունենալ"_ft;
            else gloss = NegationMark.empty() ? "ունեց"_ft : "չունեց"_ft;
            if (NoApostropheMark.empty()) {
                if (gloss.ends_with("ունեց"_ft)) {
                    if (PersonCode == 1) gloss += "ա"_ft;
                    else if (PersonCode == 2) gloss += "աք"_ft;
                    else if (PersonCode == 3) gloss += "անք"_ft;
                    else if (PersonCode == 4) gloss += "ան"_ft;
                    else gloss += "ավ"_ft;
                } else {
                    const std::string_view present = PersonCode == 1   ? "եմ"_ft
                                                     : PersonCode == 2 ? "եք"_ft
                                                     : PersonCode == 3 ? "ենք"_ft
                                                     : PersonCode == 4 ? "են"_ft
                                                                       : std::string_view{};
                    if (!present.empty()) gloss = dropLast(gloss, "ենալ"_ft.size()) + FontText(present);
                }
            }
        }
        HaveForm.clear();
        if (ModalFlag == 1) VerbFormMark.clear();
        NoApostropheMark.clear();
    }

    // M. A possessive makes the next noun definite; an adjective or number with a plural is a noun.
    if (tag1() == 'p') {
        AfterHaveBeen = 1;
        ArticleEnding = "ը"_ft;
    } else if ((tag1() == 'a' || tag1() == '1') && (ending == "ներ"_ft || ending == "եր"_ft)) {
        WordTag = FontText(kNounTag);
    }

    // N. Past of irregular verbs: the record holds the third person; the person comes from the
    // sentence.
    if (WordTag.starts_with("vi") && endsWithAny(gloss, {"ած"_ft, "եց"_ft, "աց"_ft}) && PendingCopula.empty()) {
        VerbFormMark = "ած"_ft;
        if (gloss.ends_with("եց"_ft) || gloss.ends_with("աց"_ft)) {
            replaceTail(gloss, "ց"_ft, "լ"_ft);
        } else {
            gloss = dropLast(gloss, 1);
            if (PersonCode == 1) {
            } else if (PersonCode == 2) {
                gloss += "ք"_ft;
            } else if (PersonCode == 3) {
                gloss += "նք"_ft;
            } else if (PersonCode == 4 || ThirdPersonFlag == 1) {
                gloss += "ն"_ft;
            } else {
                gloss += "վ"_ft;
            }
        }
    }

    // O. Participles.
    if (VerbFormMark == "ած"_ft || VerbFormMark == "ող"_ft) {
        ClassChain.clear();
        if (!isVerb()) {
            WordTag = FontText(kVerbTag);
            gloss = NegationMark + gloss + FontText("ել"_ft);
            NegationMark.clear();
        }
    }
    if ((VerbFormMark == "ող"_ft || VerbFormMark == "ում"_ft) && isVerb() && PhraseActive != 1) {
        if (WhileFlag == 1 && VerbFormMark == "ող"_ft) {
            if (gloss == "եկել"_ft) gloss = "գալ"_ft;
            if (gloss.ends_with("ել"_ft) || gloss.ends_with("ալ"_ft)) gloss += "իս"_ft;
            // "while" was written as a word of its own; the participle takes its place, and its
            // capital when it began the sentence. The design capitalises the participle every time;
            // inside a sentence that would put a capital in the middle of the text, so it is done
            // only where the cut text began with one.
            struct Cut {
                std::string_view tail;
                std::size_t length;
            };
            for (const Cut cut : {Cut{"նի դեռ "_ft, 9}, Cut{"ացքում "_ft, 10}, Cut{" միջով "_ft, 6}}) {
                if (!outputEndsWith(cut.tail) || OutputText.size() < cut.length) continue;
                const auto first = static_cast<unsigned char>(OutputText[OutputText.size() - cut.length]);
                OutputText.resize(OutputText.size() - cut.length);
                if (font::isCapital(first)) {
                    CapitalFlag = 1;
                    pokr();
                }
                break;
            }
        } else {
            if (WhileFlag.empty() && PendingCopula.empty() && (ending == "ի հետ"_ft || ending == "ով"_ft)) {
                VerbFormMark = "ելով"_ft;
                ending.clear();
            }
            gloss = dropLast(gloss, 2) + VerbFormMark;
            if (gloss == "եկելով"_ft) gloss = "գալով"_ft;
        }
        // The mark is spent on the gloss.
        VerbFormMark.clear();
    }

    // P. Person of this word, and the modal glosses.
    if (oneOf(gloss, {"ես"_ft, "իմ"_ft})) {
        PersonCode = 1;
    } else if (oneOf(gloss, {"դուք"_ft, "ձեր"_ft})) {
        PersonCode = 2;
    } else if (oneOf(gloss, {"մենք"_ft, "մեր"_ft})) {
        PersonCode = 3;
    } else if (oneOf(gloss, {"նրանք"_ft, "նրանց"_ft, "իրենց"_ft})) {
        PersonCode = 4;
    } else if (oneOf(gloss, {"նա"_ft, "դա"_ft, "իր"_ft, "նրա"_ft, "դրա"_ft, "ով"_ft})) {
        PersonCode = 5;
    } else if (oneOf(gloss, {"պիտի"_ft, "պետք է"_ft, "will"})) {
        ModalFlag = 1;
    } else if (isNoun()) {
        PersonCode = (pluralPerson || inList(gloss, kPluralNouns) || ending.ends_with("եր"_ft)) ? 4 : 5;
    }
    if (ImperativeFlag == 1 && oneOf(gloss, {"ես"_ft, "մենք"_ft, "նրանք"_ft})) ImperativeFlag.clear();

    // Q. Copula: the held auxiliary joins the next word; an auxiliary is held to the clause end.
    // After "n't" and after a question word (ContractionFlag) neither happens: the auxiliary is
    // written where it stands ("Where is the house?" as "Որտե՞ղ է տունը"). The joining comes
    // first, so an auxiliary after a held one takes it along before it is held in turn.
    if (ContractionFlag != 1) {
        if (!PendingCopula.empty()) {
            if (VerbFormMark == "ած"_ft && (gloss.ends_with("ել"_ft) || gloss.ends_with("ալ"_ft)))
                gloss = dropLast(gloss, 2);
            derocz();
            PerfectFlag = 1;
            if (tag1() != 'p') {
                if (isVerb() && PendingCopula.starts_with("չ"_ft))
                    gloss = PendingCopula + " " + gloss + VerbFormMark;
                else
                    gloss = gloss + VerbFormMark + ending + " " + PendingCopula;
                PendingCopula.clear();
                ArticleEnding.clear();
                VerbFormMark.clear();
                ending.clear();
                CopulaUsedMark = 1;
            }
        }
        if (tag1() == 'o') {
            CurrentWord.clear();
            PendingCopula = gloss;
            gloss.clear();
        }
    }

    // R. Verb forms: present with the person, simple past, subjunctive, imperative.
    if ((gloss.ends_with("ել"_ft) || gloss.ends_with("ալ"_ft)) && gloss.size() >= 4 && isVerb() && ToMark != "to" &&
        !outputEndsWith("կարող "_ft)) {
        const FontText stem = dropLast(gloss, 2);
        const bool sentenceStart = OutputText.empty() || outputEndsWith(": ") || outputEndsWith("\r\n");
        if (ending.starts_with("ներ"_ft)) {
            gloss = NegationMark == "չ"_ft ? FontText("չի "_ft) + stem + FontText("ում"_ft) : stem + FontText("ում է"_ft);
            ending.erase(0, "ներ"_ft.size());
        } else if (VerbFormMark == "ած"_ft) {
            if (nextIs("by ")) PerfectFlag = 1;
            if (PerfectFlag == 1) {
                gloss = stem + FontText("ած"_ft);
            } else {
                // "-ացել" and "-անալ" lose two letters and conjugate as "-ալ" verbs.
                FontText past = gloss;
                replaceTail(past, "ացել"_ft, "ալ"_ft) || replaceTail(past, "անալ"_ft, "ալ"_ft);
                past = dropLast(past, 1);
                if (PersonCode == 1) past += "ցի"_ft;
                else if (PersonCode == 2) past += "ցիք"_ft;
                else if (PersonCode == 3) past += "ցինք"_ft;
                else if (PersonCode == 4) past += "ցին"_ft;
                else past += "ց"_ft;
                gloss = past;
            }
        } else if (DoFlag == 1) {
            gloss = stem + FontText("ում է"_ft);
            if (gloss.starts_with("եկում է"_ft)) gloss = "գալիս է"_ft;
        } else {
            const std::string_view personEnding = PersonCode == 1       ? "եմ"_ft
                                                  : PersonCode == 2     ? "եք"_ft
                                                  : PersonCode == 3     ? "ենք"_ft
                                                  : PersonCode == 4     ? "են"_ft
                                                  : ThirdPersonFlag == 1 ? "է"_ft
                                                                        : std::string_view{};
            if (ModalFlag == 1) {
                // Subjunctive after a modal; "պիտի" before the verb becomes the future prefix "կ",
                // and with "would" the conditional.
                FontText base = dropLast(gloss, 1);
                if (base == "եկի"_ft || base == "եկե"_ft) base = "գա"_ft;
                FontText prefix;
                if (outputEndsWith("պիտի "_ft)) {
                    OutputText.resize(OutputText.size() - "պիտի "_ft.size());
                    prefix = "կ"_ft;
                }
                FontText suffix;
                if (ConditionalFlag == 1) {
                    suffix = PersonCode == 1   ? "ի"_ft
                             : PersonCode == 2 ? "իք"_ft
                             : PersonCode == 3 ? "ինք"_ft
                             : PersonCode == 4 ? "ին"_ft
                                               : "ր"_ft;
                    if (base.ends_with("ա"_ft) && suffix.starts_with("ի"_ft)) base += "յ"_ft;
                } else {
                    suffix = PersonCode == 1   ? "մ"_ft
                             : PersonCode == 2 ? "ք"_ft
                             : PersonCode == 3 ? "նք"_ft
                             : PersonCode == 4 ? "ն"_ft
                                               : ""_ft;
                    if (suffix.empty()) replaceTail(base, "ե"_ft, "ի"_ft);
                }
                gloss = prefix + base + suffix;
            } else {
                const bool afterDont = OutputText == FontText("Մի "_ft) || outputEndsWith(": Մի "_ft) ||
                                       outputEndsWith("\r\nՄի "_ft);
                if (afterDont || ImperativeFlag == 1) PersonCode = 2;
                if (PersonCode == 2 || PersonCode.empty()) {
                    if (gloss == "անել"_ft && sentenceStart && ImperativeFlag.empty()) {
                        gloss = "Արդյո՞ք"_ft;
                    } else if (gloss == "ափսոսալ"_ft) {
                        gloss = "ցավում եմ"_ft;
                    } else if (!replaceTail(gloss, "ցնել"_ft, "ցրեք"_ft) && !replaceTail(gloss, "անալ"_ft, "ացեք"_ft)) {
                        gloss = stem + FontText("եք"_ft);
                        if (gloss == "մնեք"_ft) gloss = "մնացեք"_ft;
                        else if (gloss == "կենեք"_ft) gloss = "կեցեք"_ft;
                        else if (gloss == "ուտեք"_ft) gloss = "կերեք"_ft;
                    }
                } else {
                    gloss = stem + FontText("ում "_ft) + FontText(personEnding);
                    if (gloss.starts_with("եկում"_ft)) gloss.replace(0, "եկում"_ft.size(), "գալիս"_ft);
                }
            }
        }
    }

    // S. A noun after a noun: the first becomes its genitive, and whatever stood behind it (an
    // auxiliary, a postposition, a case ending, the article) moves behind the new noun.
    if (isNoun() && ClassChain == "nn") placeNounAfterNoun();
}

void Engine::placeNounAfterNoun() {
    FontText& ending = PendingEnding;
    // Cuts letters standing before the final blank of OutputText, keeping the blank.
    const auto cutWordBeforeBlank = [this](std::size_t wordLength) {
        OutputText.erase(OutputText.size() - 1 - wordLength, wordLength);
    };
    // Cuts a whole last word with the blank after it; the blank before it stays.
    const auto cutLastWord = [this](std::size_t wordLength) { OutputText.resize(OutputText.size() - wordLength - 1); };

    if (outputEndsWith(" է "_ft)) {
        PendingCopula = "է"_ft;
        cutLastWord("է"_ft.size());
        return;
    }
    for (const std::string_view caseEnding : {"ով"_ft, "ից"_ft, "ին"_ft}) {
        if (!outputEndsWith(FontText(caseEnding) + " ")) continue;
        if (GlossEnding == caseEnding) {
            GlossEnding.clear();
        } else {
            ending = FontText(caseEnding);
            ArticleEnding.clear();
            cutWordBeforeBlank(caseEnding.size());
        }
        ClassChain = "n";
        return;
    }
    static constexpr std::string_view kNoGenitiveTails[] = {"-", "\"", "(", "_", "[", "{", "/"};
    static constexpr std::string_view kNoGenitiveEnds[] = {"* ", ". ", ", ", " (", "; ", "? ", "! ",
                                                          "\" ", "\n ", "' ", "\r\n", "ւ "_ft};
    for (const auto tail : kNoGenitiveTails)
        if (outputEndsWith(tail)) {
            ClassChain = "n";
            return;
        }
    for (const auto tail : kNoGenitiveEnds)
        if (outputEndsWith(tail)) {
            ClassChain = "n";
            return;
        }
    static constexpr std::string_view kAuxiliaries[] = {
        " էիք "_ft,  " էին "_ft,  " չէի "_ft,  " չեմ "_ft,  " չեք "_ft,  " չեն "_ft,   " չէր "_ft,   " էր "_ft,  " են "_ft,
        " եմ "_ft,   " եք "_ft,   " էի "_ft,   " չէ "_ft,   " էինք "_ft, " չէին "_ft,  " չէիք "_ft,  " չենք "_ft, " չէինք "_ft};
    for (const auto aux : kAuxiliaries) {
        if (!outputEndsWith(aux)) continue;
        const std::string_view word = aux.substr(1, aux.size() - 2);
        PendingCopula = FontText(word);
        cutLastWord(word.size());
        return;
    }
    static constexpr std::string_view kPostpositions[] = {" մեջ "_ft, " վրա "_ft,  " տակ "_ft,   " հետ "_ft,
                                                          "միջև "_ft, " համար "_ft, " շուրջ "_ft, " մասին "_ft,
                                                          "հետո "_ft, "առաջ "_ft,   " ընթացքում "_ft};
    // The design also gives "ի" to a word in "թյան ", "վա " or "ու " before the postposition, behind
    // length guards of 9, 11 and 14 characters. Those are genitives already ("ազատության",
    // "օրվա", "մարդու"); one more "ի" would make forms the language does not have ("ազատությանի"),
    // so the genitive is left as it stands.
    for (const auto postposition : kPostpositions) {
        if (!outputEndsWith(postposition)) continue;
        const std::string_view word = trimBlanks(postposition);
        ending = FontText("ի "_ft) + FontText(word);
        ArticleEnding.clear();
        cutLastWord(word.size());
        return;
    }
    for (const std::string_view tail : {"թյունով "_ft, "թյունից "_ft, "թյունին "_ft}) {
        if (!outputEndsWith(tail)) continue;
        ending = FontText(tail.substr(tail.size() - 3, 2));
        ArticleEnding.clear();
        OutputText.resize(OutputText.size() - tail.size());
        OutputText += "թյան "_ft;
        return;
    }
    const bool afterPluralAuxiliary = outputEndsWith(" են "_ft) || outputEndsWith(" էին "_ft) ||
                                      outputEndsWith(" չեն "_ft) || outputEndsWith(" չէին "_ft);
    // A final "ն" is the article only when the word before did not end in "ն" itself. The design
    // moves every final "ն", which cuts the last letter of a noun such as "սեղան" or "պատուհան".
    const bool previousEndedInN =
        NounEndingSeen.size() >= 2 && NounEndingSeen[NounEndingSeen.size() - 2] == '1';
    if (!afterPluralAuxiliary && (outputEndsWith("ը "_ft) || (outputEndsWith("ն "_ft) && !previousEndedInN))) {
        ArticleEnding = FontText(std::string_view(OutputText).substr(OutputText.size() - 2, 1));
        cutWordBeforeBlank(1);
        return;
    }
    if (outputEndsWith(" ")) OutputText.pop_back();
    if (outputEndsWith("թյան"_ft)) OutputText += ' ';
    else if (outputEndsWith("ա"_ft) || outputEndsWith("ո"_ft)) OutputText += "յի "_ft;
    else OutputText += "ի "_ft;
    ClassChain = "n";
}

}  // namespace vorlexa
