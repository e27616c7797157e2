// An engine over a small Armenian-English lexicon written for the tests of the Armenian-to-English
// direction: the ending analysis, the look-up, the Armenian select and its expressions.
#pragma once

#include <string>

#include "engine/engine_fixture.h"

namespace vorlexa::test {

// Regular English verbs, so that the verb forms show the ending rules and not a verb table.
inline const std::string kHyEnLexicon =
    "գրել\twrite\tv\n"
    "խաղալ\tplay\tv\n"
    "սիրել\tlove\tv\n"
    "նայել\tlook\tv\n"
    "օգնել\thelp\tv\n"
    "պարել\tdance\tv\n"
    "մոտենալ\tapproach\tv\n"
    "լվանալ\twash\tv\n"
    "մտածել\tthink\tv\n"
    "տեսնել\tsee\tv\n"
    "սպասել\twait\tv\n"
    "կրել\tcarry\tv\n"
    "բերել\tbring\tvi_t\n"
    "ունենալ\thave\tv\n"
    "վեր կենալ\tget up\tv\n"
    "քանի դեռ\twhile\tx\n"
    "տուն\thouse\tn\n"
    "տան\thouse\tn\n"
    "տղա\tboy\tn\n"
    "մարդ\tman\tn\n"
    "կին\twoman\tn\n"
    "երեխա\tchild\tn\n"
    "դանակ\tknife\tn\n"
    "արկղ\tbox\tn\n"
    "լոլիկ\ttomato\tn\n"
    "քաղաք\tcity\tn\n"
    "գիրք\tbook\tn\n"
    "ամիս\tmonth\tn\n"
    "նավ\tship\tn\n"
    "ձեռք\thand\tn\n"
    "գլուխ\thead\tn\n"
    "մեջ\tin\tcto\n"
    "վրա\ton\tcto\n"
    "լավ\tgood\ta\n"
    "վատ\tbad\ta\n"
    "ուրախ\thappy\ta\n"
    "մեծ\tbig\ta\n"
    "սուր\tsharp\ta\n"
    "մութ\tdark\ta\n"
    "հիվանդ\till\ta\n"
    "պառավ\tgammer\tn\n"
    "ավելի\tmore\tx\n"
    "քսան\ttwenty\t1\n"
    "երեսուն\tthirty\t1\n"
    "հինգ\tfive\t1\n"
    "մեկ\tone\t1\n"
    "երկու\ttwo\t1\n"
    "եմ\tam\to\n"
    "է\tis\to\n"
    "են\tare\to\n"
    "եք\tare\to\n"
    "ենք\tare\to\n"
    "էր\twas\to\n"
    "ես\tI\tx\n"
    "դու\tyou\tx\n"
    "նա\the\tx\n"
    "մենք\twe\tx\n"
    "նրանք\tthey\tx\n"
    "այս\tthis\td\n"
    "իմ\tmy\tp\n"
    "ազատություն\tfreedom\tn\n"
    "ափսե\tplate\tn\n"
    "հայելի\tmirror\tn\n"
    "կատու\tcat\tn\n"
    "լուսին\tmoon\tn\n"
    "գունդ\tball\tn\n"
    "արամյան\taramyan\tn\n"
    "խաղ\tgame\tn\n"
    "տալ\tgive\tv\n"
    "խոշոր\tlarge\ta\n"
    "մաքուր\tclean*\ta\n"
    "վերցնել\tpick up\tv\n"
    "խաղում\tplay\tn___v\n"
    "պետություն\tstate\t2\n"
    "ժամանել\tcome\tv\n"
    "դնել\tput\tv\n"
    "եկավ\tcame\tx\n"
    "բարի\tkind\ta\n"
    "առավոտ\tmorning\tn\n"
    "օր\tday\tn\n"
    "բրիտանիա\tbritain\tn\n"
    "որդի\tson\tn\n"
    "բոզ\tbitch\tn\n"
    "շտապել\thurry\tv\n"
    "վեր\tup\tx\n"
    "շուտով\tsoon\tx\n"
    "իրական\treal\ta\n"
    "մեկ այլ\tanother\tx\n"
    "ինձ\tme\tx\n"
    "մեզ\tus\tx\n"
    "դուք\tyou\tx\n"
    "տակ\tunder\tcto\n"
    "խոսք\tspeech\tn\n"
    "մաս\tpart\tn\n"
    "ասելով\tsaying\tx\n"
    "համառոտ\tbrief\ta\n"
    "թիվ\tnumber\tn\n";

inline const std::string kEnHyForAnalysis =
    "house\tտուն\tn\n"
    "stop\tկանգնել\tv\n"
    "city\tքաղաք\tn\n"
    "happy\tուրախ\ta\n"
    "great\tմեծ\ta\n"
    "home\tտուն\tn\n"
    "cry\tլացել\tv\n";

class HyEnFixture : public EngineFixture {
public:
    explicit HyEnFixture(const std::string& armenianEnglish = kHyEnLexicon,
                         const std::string& englishArmenian = kEnHyForAnalysis)
        : EngineFixture(englishArmenian, armenianEnglish) {
        engine->Check1 = 1;
    }

    Engine& e() { return *engine; }

    // Sets the run up as the scanner leaves it at the end of `word`: the source is the word, a
    // blank and `after`; ScanPos stands on the blank; the output so far is `before`.
    void at(const std::string& word, const std::string& after = "", const std::string& before = "") {
        Engine& en = *engine;
        en.SourceText = fromUtf8(word + " " + after + " ");
        en.ScanPos = static_cast<std::int64_t>(fromUtf8(word).size()) + 1;
        en.CurrentWord = fromUtf8(word);
        en.RawWord = en.CurrentWord;
        en.OutputText = fromUtf8(before);
    }

    // The look-up of the word, with the not-found path and the ending analysis behind it; returns
    // the output in UTF-8.
    std::string lookUp(const std::string& word, const std::string& after = "", const std::string& before = "") {
        at(word, after, before);
        engine->teqst_dblclick();
        return output();
    }

    // One pass of the ending analysis alone; returns what it left in CurrentWord.
    std::string analyse(const std::string& word, const std::string& after = "", const std::string& before = "") {
        at(word, after, before);
        engine->hayqer();
        return toUtf8(engine->CurrentWord);
    }
};

}  // namespace vorlexa::test
