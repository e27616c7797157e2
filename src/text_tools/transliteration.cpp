#include "text_tools/transliteration.h"

namespace vorlexa::text_tools {

using namespace vorlexa::literals;

namespace {

// The lists, one row per step and numbered as they run. Rows that a later row could never see,
// and rows that undo an earlier one, are part of the behaviour and stay.

constexpr ReplacementStep kArmenianToLatin[] = {
    {"Ա"_ft, "A"_ft},     // 1
    {"ա"_ft, "a"_ft},     // 2
    {"Բ"_ft, "B"_ft},     // 3
    {"բ"_ft, "b"_ft},     // 4
    {"Գ"_ft, "G"_ft},     // 5
    {"գ"_ft, "g"_ft},     // 6
    {"Դ"_ft, "D"_ft},     // 7
    {"դ"_ft, "d"_ft},     // 8
    {"Ե"_ft, "E"_ft},     // 9
    {"ե"_ft, "e"_ft},     // 10
    {"Է"_ft, "E"_ft},     // 11
    {"է"_ft, "e"_ft},     // 12
    {"Զ"_ft, "Z"_ft},     // 13
    {"զ"_ft, "z"_ft},     // 14
    {"Ը"_ft, "@"_ft},     // 15
    {"ը"_ft, "@"_ft},     // 16
    {"Թ"_ft, "T"_ft},     // 17
    {"թ"_ft, "t"_ft},     // 18
    {"Տ"_ft, "T"_ft},     // 19
    {"տ"_ft, "t"_ft},     // 20
    {"Ժ"_ft, "Zh"_ft},    // 21
    {"ժ"_ft, "zh"_ft},    // 22
    {"Ի"_ft, "I"_ft},     // 23
    {"ի"_ft, "i"_ft},     // 24
    {"Լ"_ft, "L"_ft},     // 25
    {"լ"_ft, "l"_ft},     // 26
    {"Խ"_ft, "Kh"_ft},    // 27
    {"խ"_ft, "kh"_ft},    // 28
    {"Ծ"_ft, "Tc"_ft},    // 29
    {"ծ"_ft, "tc"_ft},    // 30
    {"Կ"_ft, "K"_ft},     // 31
    {"կ"_ft, "k"_ft},     // 32
    {"Հ"_ft, "H"_ft},     // 33
    {"հ"_ft, "h"_ft},     // 34
    {"Ձ"_ft, "Dz"_ft},    // 35
    {"ձ"_ft, "dz"_ft},    // 36
    {"Ղ"_ft, "Gh"_ft},    // 37
    {"ղ"_ft, "gh"_ft},    // 38
    {"Ճ"_ft, "Ch"_ft},    // 39
    {"ճ"_ft, "ch"_ft},    // 40
    {"Չ"_ft, "Ch"_ft},    // 41
    {"չ"_ft, "ch"_ft},    // 42
    {"Մ"_ft, "M"_ft},     // 43
    {"մ"_ft, "m"_ft},     // 44
    {"Յ"_ft, "Y"_ft},     // 45
    {"յ"_ft, "y"_ft},     // 46
    {"Ն"_ft, "N"_ft},     // 47
    {"ն"_ft, "n"_ft},     // 48
    {"Շ"_ft, "Sh"_ft},    // 49
    {"շ"_ft, "sh"_ft},    // 50
    {" ու"_ft, " u"_ft},  // 51
    {" ՈՒ"_ft, " U"_ft},  // 52
    {" Ու"_ft, " U"_ft},  // 53
    {" Ո"_ft, " Vo"_ft},  // 54
    {" ո"_ft, " vo"_ft},  // 55
    {"Ո"_ft, "O"_ft},     // 56
    {"ո"_ft, "o"_ft},     // 57
    {"Պ"_ft, "P"_ft},     // 58
    {"պ"_ft, "p"_ft},     // 59
    {"Փ"_ft, "P"_ft},     // 60
    {"փ"_ft, "p"_ft},     // 61
    {"Ջ"_ft, "J"_ft},     // 62
    {"ջ"_ft, "j"_ft},     // 63
    {"Ռ"_ft, "R"_ft},     // 64
    {"ռ"_ft, "r"_ft},     // 65
    {"Ր"_ft, "R"_ft},     // 66
    {"ր"_ft, "r"_ft},     // 67
    {"Ս"_ft, "S"_ft},     // 68
    {"ս"_ft, "s"_ft},     // 69
    {"Վ"_ft, "V"_ft},     // 70
    {"վ"_ft, "v"_ft},     // 71
    {"Ց"_ft, "Ts"_ft},    // 72
    {"ց"_ft, "ts"_ft},    // 73
    {"Ւ"_ft, "U"_ft},     // 74
    {"ւ"_ft, "u"_ft},     // 75
    {"Ք"_ft, "Q"_ft},     // 76
    {"ք"_ft, "q"_ft},     // 77
    {"և"_ft, "ev"_ft},    // 78
    {"Օ"_ft, "O"_ft},     // 79
    {"օ"_ft, "o"_ft},     // 80
    {"Ֆ"_ft, "F"_ft},     // 81
    {"ֆ"_ft, "f"_ft},     // 82
    {"ou"_ft, "u"_ft},    // 83
    {"Ou"_ft, "U"_ft},    // 84
    {"OU"_ft, "U"_ft},    // 85
    {":"_ft, "."_ft},     // 86
    {"."_ft, ":"_ft},     // 87
};

constexpr ReplacementStep kEnglishToArmenian[] = {
    {"All"_ft, "Օլ"_ft},  // 1
    {"all"_ft, "օլ"_ft},  // 2
    {"Ch"_ft, "Չ"_ft},    // 3
    {"CH"_ft, "Չ"_ft},    // 4
    {"ch"_ft, "չ"_ft},    // 5
    {"CA"_ft, "ՔԱ"_ft},   // 6
    {"Ca"_ft, "Քա"_ft},   // 7
    {"ca"_ft, "քա"_ft},   // 8
    {"CO"_ft, "ՔՈ"_ft},   // 9
    {"Co"_ft, "Քո"_ft},   // 10
    {"co"_ft, "քո"_ft},   // 11
    {"CU"_ft, "ՔՈւ"_ft},  // 12
    {"Cu"_ft, "Քու"_ft},  // 13
    {"cu"_ft, "քու"_ft},  // 14
    {"EA"_ft, "Ի"_ft},    // 15
    {"Ea"_ft, "Ի"_ft},    // 16
    {"ea"_ft, "ի"_ft},    // 17
    {"EE"_ft, "Ի"_ft},    // 18
    {"Ee"_ft, "Ի"_ft},    // 19
    {"ee"_ft, "ի"_ft},    // 20
    {"e "_ft, " "_ft},    // 21
    {"DZ"_ft, "Ձ"_ft},    // 22
    {"Dz"_ft, "Ձ"_ft},    // 23
    {"dz"_ft, "ձ"_ft},    // 24
    {"KH"_ft, "Խ"_ft},    // 25
    {"Kh"_ft, "Խ"_ft},    // 26
    {"kh"_ft, "խ"_ft},    // 27
    {"GH"_ft, "Ղ"_ft},    // 28
    {"Gh"_ft, "Ղ"_ft},    // 29
    {"gh"_ft, "ղ"_ft},    // 30
    {"GI"_ft, "ՋԻ"_ft},   // 31
    {"Gi"_ft, "Ջի"_ft},   // 32
    {"gi"_ft, "ջի"_ft},   // 33
    {"GE"_ft, "ՋԵ"_ft},   // 34
    {"Ge"_ft, "Ջե"_ft},   // 35
    {"ge"_ft, "ջե"_ft},   // 36
    {"PH"_ft, "Ֆ"_ft},    // 37
    {"Ph"_ft, "Ֆ"_ft},    // 38
    {"ph"_ft, "ֆ"_ft},    // 39
    {"SH"_ft, "Շ"_ft},    // 40
    {"Sh"_ft, "Շ"_ft},    // 41
    {"sh"_ft, "շ"_ft},    // 42
    {"TC"_ft, "Ծ"_ft},    // 43
    {"Tc"_ft, "Ծ"_ft},    // 44
    {"tc"_ft, "ծ"_ft},    // 45
    {"TS"_ft, "Ց"_ft},    // 46
    {"Ts"_ft, "Ց"_ft},    // 47
    {"ts"_ft, "ց"_ft},    // 48
    {"TH"_ft, "Դ"_ft},    // 49
    {"Th"_ft, "Դ"_ft},    // 50
    {"th"_ft, "դ"_ft},    // 51
    {"OU"_ft, "Ու"_ft},   // 52
    {"Ou"_ft, "Ու"_ft},   // 53
    {"ou"_ft, "ու"_ft},   // 54
    {"OO"_ft, "Ու"_ft},   // 55
    {"Oo"_ft, "Ու"_ft},   // 56
    {"oo"_ft, "ու"_ft},   // 57
    {"ZH"_ft, "Ժ"_ft},    // 58
    {"Zh"_ft, "Ժ"_ft},    // 59
    {"zh"_ft, "ժ"_ft},    // 60
    {"A"_ft, "Ա"_ft},     // 61
    {"a"_ft, "ա"_ft},     // 62
    {"B"_ft, "Բ"_ft},     // 63
    {"b"_ft, "բ"_ft},     // 64
    {"C"_ft, "Ս"_ft},     // 65
    {"c"_ft, "ս"_ft},     // 66
    {"D"_ft, "Դ"_ft},     // 67
    {"d"_ft, "դ"_ft},     // 68
    {"E"_ft, "Ե"_ft},     // 69
    {"e"_ft, "ե"_ft},     // 70
    {"F"_ft, "Ֆ"_ft},     // 71
    {"f"_ft, "ֆ"_ft},     // 72
    {"G"_ft, "Գ"_ft},     // 73
    {"g"_ft, "գ"_ft},     // 74
    {"H"_ft, "Հ"_ft},     // 75
    {"h"_ft, "հ"_ft},     // 76
    {"I"_ft, "Ի"_ft},     // 77
    {"i"_ft, "ի"_ft},     // 78
    {"J"_ft, "Ջ"_ft},     // 79
    {"j"_ft, "ջ"_ft},     // 80
    {"K"_ft, "Ք"_ft},     // 81
    {"k"_ft, "ք"_ft},     // 82
    {"L"_ft, "Լ"_ft},     // 83
    {"l"_ft, "լ"_ft},     // 84
    {"M"_ft, "Մ"_ft},     // 85
    {"m"_ft, "մ"_ft},     // 86
    {"N"_ft, "Ն"_ft},     // 87
    {"n"_ft, "ն"_ft},     // 88
    {"O"_ft, "Օ"_ft},     // 89
    {"o"_ft, "օ"_ft},     // 90
    {"P"_ft, "Փ"_ft},     // 91
    {"p"_ft, "փ"_ft},     // 92
    {"Q"_ft, "Ք"_ft},     // 93
    {"q"_ft, "ք"_ft},     // 94
    {"R"_ft, "Ր"_ft},     // 95
    {"r"_ft, "ր"_ft},     // 96
    {"S"_ft, "Ս"_ft},     // 97
    {"s"_ft, "ս"_ft},     // 98
    {"T"_ft, "Թ"_ft},     // 99
    {"t"_ft, "թ"_ft},     // 100
    {"U"_ft, "Ու"_ft},    // 101
    {"u"_ft, "ու"_ft},    // 102
    {"W"_ft, "Ու"_ft},    // 103
    {"w"_ft, "ու"_ft},    // 104
    {"V"_ft, "Վ"_ft},     // 105
    {"v"_ft, "վ"_ft},     // 106
    {"X"_ft, "Քս"_ft},    // 107
    {"x"_ft, "քս"_ft},    // 108
    {"Y"_ft, "ՅԻ"_ft},    // 109
    {"y"_ft, "յի"_ft},    // 110
    {"Z"_ft, "Զ"_ft},     // 111
    {"z"_ft, "զ"_ft},     // 112
    {"."_ft, ":"_ft},     // 113
    {":"_ft, "."_ft},     // 114
};

constexpr ReplacementStep kLatinArmenianToArmenian[] = {
    {"tyoun"_ft, "թյուն"_ft},  // 1
    {"tyan"_ft, "թյան"_ft},    // 2
    {"tyamb"_ft, "թյամբ"_ft},  // 3
    {"@"_ft, "ը"_ft},          // 4
    {" e "_ft, " է "_ft},      // 5
    {" e."_ft, " է:"_ft},      // 6
    {" e,"_ft, " է,"_ft},      // 7
    {" er "_ft, " էր "_ft},    // 8
    {" er."_ft, " էր:"_ft},    // 9
    {" er,"_ft, " էր,"_ft},    // 10
    {" el "_ft, " էլ "_ft},    // 11
    {" el,"_ft, " էլ "_ft},    // 12
    {" el."_ft, " էլ "_ft},    // 13
    {"Ch"_ft, "Չ"_ft},         // 14
    {"CH"_ft, "Չ"_ft},         // 15
    {"ch"_ft, "չ"_ft},         // 16
    {"Dz"_ft, "Ձ"_ft},         // 17
    {"dz"_ft, "ձ"_ft},         // 18
    {"Kh"_ft, "Խ"_ft},         // 19
    {"kh"_ft, "խ"_ft},         // 20
    {"Gh"_ft, "Ղ"_ft},         // 21
    {"gh"_ft, "ղ"_ft},         // 22
    {"Sh"_ft, "Շ"_ft},         // 23
    {"sh"_ft, "շ"_ft},         // 24
    {"Tc"_ft, "Ծ"_ft},         // 25
    {"tc"_ft, "ծ"_ft},         // 26
    {"Ts"_ft, "Ց"_ft},         // 27
    {"ts"_ft, "ց"_ft},         // 28
    {"Ou"_ft, "Ու"_ft},        // 29
    {"ou"_ft, "ու"_ft},        // 30
    {"Zh"_ft, "Ժ"_ft},         // 31
    {"zh"_ft, "ժ"_ft},         // 32
    {"ev"_ft, "և"_ft},         // 33
    {"ye"_ft, "ե"_ft},         // 34
    {"Ye"_ft, "Ե"_ft},         // 35
    {"YE"_ft, "Ե"_ft},         // 36
    {"A"_ft, "Ա"_ft},          // 37
    {"a"_ft, "ա"_ft},          // 38
    {"B"_ft, "Բ"_ft},          // 39
    {"b"_ft, "բ"_ft},          // 40
    {"C"_ft, "Ց"_ft},          // 41
    {"c"_ft, "ց"_ft},          // 42
    {"D"_ft, "Դ"_ft},          // 43
    {"d"_ft, "դ"_ft},          // 44
    {"E"_ft, "Ե"_ft},          // 45
    {"e"_ft, "ե"_ft},          // 46
    {"F"_ft, "Ֆ"_ft},          // 47
    {"f"_ft, "ֆ"_ft},          // 48
    {"G"_ft, "Գ"_ft},          // 49
    {"g"_ft, "գ"_ft},          // 50
    {"H"_ft, "Հ"_ft},          // 51
    {"h"_ft, "հ"_ft},          // 52
    {"I"_ft, "Ի"_ft},          // 53
    {"i"_ft, "ի"_ft},          // 54
    {"J"_ft, "Ջ"_ft},          // 55
    {"j"_ft, "ջ"_ft},          // 56
    {"K"_ft, "Կ"_ft},          // 57
    {"k"_ft, "կ"_ft},          // 58
    {"L"_ft, "Լ"_ft},          // 59
    {"l"_ft, "լ"_ft},          // 60
    {"M"_ft, "Մ"_ft},          // 61
    {"m"_ft, "մ"_ft},          // 62
    {"N"_ft, "Ն"_ft},          // 63
    {"n"_ft, "ն"_ft},          // 64
    {"O"_ft, "Ո"_ft},          // 65
    {"o"_ft, "ո"_ft},          // 66
    {"P"_ft, "Պ"_ft},          // 67
    {"p"_ft, "պ"_ft},          // 68
    {"Q"_ft, "Ք"_ft},          // 69
    {"q"_ft, "ք"_ft},          // 70
    {"R"_ft, "Ռ"_ft},          // 71
    {"r"_ft, "ր"_ft},          // 72
    {"S"_ft, "Ս"_ft},          // 73
    {"s"_ft, "ս"_ft},          // 74
    {"T"_ft, "Տ"_ft},          // 75
    {"t"_ft, "տ"_ft},          // 76
    {"U"_ft, "Ու"_ft},         // 77
    {"u"_ft, "ու"_ft},         // 78
    {"W"_ft, "Ու"_ft},         // 79
    {"w"_ft, "ու"_ft},         // 80
    {"V"_ft, "Վ"_ft},          // 81
    {"v"_ft, "վ"_ft},          // 82
    {"X"_ft, "Խ"_ft},          // 83
    {"x"_ft, "խ"_ft},          // 84
    {"Y"_ft, "Յ"_ft},          // 85
    {"y"_ft, "յ"_ft},          // 86
    {"Z"_ft, "Զ"_ft},          // 87
    {"z"_ft, "զ"_ft},          // 88
    {"."_ft, ":"_ft},          // 89
    {":"_ft, "."_ft},          // 90
    {"տյուն"_ft, "թյուն"_ft},  // 91
    {"տյան"_ft, "թյան"_ft},    // 92
    {"ետե"_ft, "եթե"_ft},      // 93
    {"Ետե"_ft, "Եթե"_ft},      // 94
};
}  // namespace

std::span<const ReplacementStep> replacementList(Transliteration which) {
    switch (which) {
        case Transliteration::ArmenianToLatin:
            return kArmenianToLatin;
        case Transliteration::EnglishToArmenian:
            return kEnglishToArmenian;
        case Transliteration::LatinArmenianToArmenian:
            return kLatinArmenianToArmenian;
    }
    return {};
}

// Builds the result in one pass, so that a selection of a megabyte costs each row one scan and
// not a copy of the tail per occurrence.
void replaceEvery(FontText& text, std::string_view find, std::string_view put) {
    if (find.empty()) return;
    std::size_t at = text.find(find);
    if (at == FontText::npos) return;
    FontText out;
    out.reserve(text.size() + (put.size() > find.size() ? text.size() / 4 : 0));
    std::size_t from = 0;
    while (at != FontText::npos) {
        out.append(text, from, at - from);
        out.append(put);
        from = at + find.size();
        at = text.find(find, from);
    }
    out.append(text, from, FontText::npos);
    text = std::move(out);
}

void runReplacementList(FontText& text, std::span<const ReplacementStep> steps) {
    for (const ReplacementStep& step : steps) replaceEvery(text, step.find, step.put);
}

FontText transliterate(std::string_view text, Transliteration which) {
    FontText out(text);
    runReplacementList(out, replacementList(which));
    return out;
}

}  // namespace vorlexa::text_tools
