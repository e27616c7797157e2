// The endings of hayqer1 as ordered data: longest first, and within one length in the order the
// suggestion generator has always tried them.
#include "spell/hayqer1.h"

#include <array>

namespace vorlexa::spell {

using namespace literals;

namespace {

// One ending: the word loses its last `cut` letters and gets `put` in their place; `tail` is the
// WordTail to put back later. "ման" is the one ending handled apart.
struct EndingRow {
    std::string_view ending;
    std::size_t cut;
    std::string_view put;
    std::string_view tail;
};

// Misspellings with "ռ" for "ր" are listed on purpose: a misspelt ending is recognised before
// the letter passes run. The rows of "թյամբ" and "թյան" cut one letter less than they match, so
// that the word keeps the first letter of the ending doubled before "թյուն"; the doubled-letter
// pass of the generator takes it out again.
constexpr std::array kEndings = {
    // Six letters.
    EndingRow{"ներում"_ft, 6, "", "ներում"_ft},
    EndingRow{"նեռում"_ft, 6, "", "նեռում"_ft},
    // Five letters.
    EndingRow{"թյամբ"_ft, 4, "թյուն"_ft, "թյամբ"_ft},
    EndingRow{"թյանն"_ft, 4, "թյուն"_ft, "թյանն"_ft},
    EndingRow{"թյանը"_ft, 4, "թյուն"_ft, "թյանը"_ft},
    EndingRow{"տյամբ"_ft, 4, "թյուն"_ft, "տյամբ"_ft},
    EndingRow{"տյանն"_ft, 4, "թյուն"_ft, "տյանն"_ft},
    EndingRow{"տյանը"_ft, 4, "թյուն"_ft, "տյանը"_ft},
    EndingRow{"ումով"_ft, 2, "", "ով"_ft},
    EndingRow{"ումից"_ft, 2, "", "ից"_ft},
    EndingRow{"ումին"_ft, 2, "", "ին"_ft},
    EndingRow{"ներից"_ft, 5, "", "ներից"_ft},
    EndingRow{"ներով"_ft, 5, "", "ներով"_ft},
    EndingRow{"երում"_ft, 5, "", "երում"_ft},
    EndingRow{"նեռից"_ft, 5, "", "նեռից"_ft},
    EndingRow{"նեռով"_ft, 5, "", "նեռով"_ft},
    EndingRow{"եռում"_ft, 5, "", "եռում"_ft},
    EndingRow{"նեռիծ"_ft, 5, "", "նեռիծ"_ft},
    // Four letters.
    EndingRow{"թյան"_ft, 4, "թյուն"_ft, "թյան"_ft},
    EndingRow{"տյան"_ft, 4, "թյուն"_ft, "թյան"_ft},
    // This group alone loses its ending for good.
    EndingRow{"ները"_ft, 4, "", ""},
    EndingRow{"ներն"_ft, 4, "", ""},
    EndingRow{"ների"_ft, 4, "", ""},
    EndingRow{"երից"_ft, 4, "", ""},
    EndingRow{"երին"_ft, 4, "", ""},
    EndingRow{"երով"_ft, 4, "", ""},
    EndingRow{"նեռը"_ft, 4, "", ""},
    EndingRow{"նեռն"_ft, 4, "", ""},
    EndingRow{"նեռի"_ft, 4, "", ""},
    EndingRow{"եռից"_ft, 4, "", ""},
    EndingRow{"եռին"_ft, 4, "", ""},
    EndingRow{"եռով"_ft, 4, "", ""},
    EndingRow{"ումի"_ft, 4, "", ""},
    EndingRow{"վում"_ft, 4, "", ""},
    EndingRow{"ելու"_ft, 2, "", "ու"_ft},
    EndingRow{"ալու"_ft, 2, "", "ու"_ft},
    // Three letters.
    EndingRow{"երն"_ft, 3, "", "երն"_ft},
    EndingRow{"ներ"_ft, 3, "", "ներ"_ft},
    EndingRow{"երը"_ft, 3, "", "երը"_ft},
    EndingRow{"երի"_ft, 3, "", "երի"_ft},
    EndingRow{"վել"_ft, 3, "", "վել"_ft},
    EndingRow{"ված"_ft, 3, "", "ված"_ft},
    EndingRow{"նեռ"_ft, 3, "", "նեռ"_ft},
    EndingRow{"եռի"_ft, 3, "", "եռի"_ft},
    EndingRow{"վաց"_ft, 3, "", "վաց"_ft},
    EndingRow{"ում"_ft, 3, "", "ում"_ft},
    EndingRow{"ուց"_ft, 3, "", "ուց"_ft},
    EndingRow{"ման"_ft, 3, "", "ման"_ft},  // handled apart, see hayqer1
    // Two letters.
    EndingRow{"նն"_ft, 1, "", "ն"_ft},
    EndingRow{"այ"_ft, 1, "", "յ"_ft},
    EndingRow{"ոյ"_ft, 1, "", "յ"_ft},
    EndingRow{"ին"_ft, 2, "", "ին"_ft},
    EndingRow{"ից"_ft, 2, "", "ից"_ft},
    EndingRow{"ով"_ft, 2, "", "ով"_ft},
    EndingRow{"եր"_ft, 2, "", "եր"_ft},
    // One letter; a stripped "ե" is put back as the article "ը".
    EndingRow{"ը"_ft, 1, "", "ը"_ft},
    EndingRow{"ե"_ft, 1, "", "ը"_ft},
    EndingRow{"ի"_ft, 1, "", "ի"_ft},
    EndingRow{"ն"_ft, 1, "", "ն"_ft},
};

}  // namespace

Hayqer1Result hayqer1(std::string_view rawWord) {
    Hayqer1Result result;
    result.word = FontText(rawWord);
    for (const EndingRow& row : kEndings) {
        if (!rawWord.ends_with(row.ending)) continue;
        const FontText stem(rawWord.substr(0, rawWord.size() - row.cut));
        result.WordTail = FontText(row.tail);
        if (row.ending == "ման"_ft) {
            // The noun of action in "ման" is tried as the verb it comes from: the present
            // participle first, then the infinitive, which the generator goes on with.
            const FontText present = stem + FontText("ում"_ft);
            result.word = present.substr(0, present.size() - 3) + FontText("ել"_ft);
            result.List1Items = {present, result.word};
            return result;
        }
        result.word = stem + FontText(row.put);
        return result;
    }
    return result;
}

}  // namespace vorlexa::spell
