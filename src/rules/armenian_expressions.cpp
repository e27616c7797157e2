// Fixed expressions of Armenian source text. Substitutes are keys of dictionarya-e, literal text
// is English. "next" compares the text at ScanPos + 1, "at" the text at ScanPos (it begins with
// the delimiter), "plus2" the text at ScanPos + 2 (the first letter of the next word unchecked).
#include "rules/armenian_expressions.h"

#include <algorithm>
#include <initializer_list>

#include "engine/engine.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;

namespace {

bool next(Engine& e, std::string_view literal) { return e.nextIs(literal); }
bool at(Engine& e, std::string_view literal) { return e.atIs(literal); }
bool plus2(Engine& e, std::string_view literal) { return e.sourceAt(e.ScanPos + 2, literal.size()) == literal; }

void word(Engine& e, std::string_view key) { e.CurrentWord = FontText(key); }
void emit(Engine& e) { e.teqst_dblclick(); }
void emitWord(Engine& e, std::string_view key) {
    word(e, key);
    emit(e);
}
void insert(Engine& e, std::string_view text) {
    e.InsertText = FontText(text);
    mctn(e);
}
void cutOutput(Engine& e, std::size_t n) {
    e.OutputText.resize(n >= e.OutputText.size() ? 0 : e.OutputText.size() - n);
}

// The 5th character from the end of the output: the first letter of the gloss of "բարի" when
// that gloss and its blank stand last.
char fifthFromEnd(const Engine& e) {
    const auto n = e.OutputText.size();
    return n >= 5 ? e.OutputText[n - 5] : '\0';
}

// "Բարի" was written as "Kind " or "kind ": the greeting replaces it.
void greeting(Engine& e, bool morningWord) {
    if (e.OutputText.size() <= 4) return;
    if (e.GoodFlag == 1 && fifthFromEnd(e) == 'K') {
        cutOutput(e, 5);
        e.OutputText += "Good ";
        e.GoodFlag.clear();
        if (morningWord) word(e, "առավոտ"_ft);
    }
    if (fifthFromEnd(e) == 'k') {
        cutOutput(e, 5);
        e.OutputText += "good ";
        e.GoodFlag.clear();
        if (morningWord) word(e, "առավոտ"_ft);
    }
}

// Where the sentence of ScanPos begins in the source: after the last full stop, question or
// exclamation mark before it.
std::int64_t sentenceStart(const Engine& e) {
    const auto end = static_cast<std::size_t>(std::clamp<std::int64_t>(e.ScanPos - 1, 0, static_cast<std::int64_t>(e.SourceText.size())));
    const auto stop = std::string_view(e.SourceText).substr(0, end).find_last_of(":.?!");
    return stop == std::string_view::npos ? 0 : static_cast<std::int64_t>(stop) + 1;
}

}  // namespace

void teqst_dblclick(Engine& e) { e.teqst_dblclick(); }

void mekangam(Engine& e) {
    if (next(e, "քանի անգամ"_ft)) {
        word(e, "");
        insert(e, "for several times");
        e.ScanPos += 10;
    }
    if (next(e, "քանի"_ft)) {
        word(e, "մի քանի"_ft);
        e.ScanPos += 5;
    }
    if (next(e, "անգամ"_ft)) {
        word(e, "մեկ անգամ"_ft);
        e.ScanPos += 6;
    }
    if (next(e, "շարք"_ft)) {
        word(e, "թիվ"_ft);
        e.ScanPos += 5;
        insert(e, "a ");
        emit(e);
        e.OutputText += " of";
    }
    if (next(e, "քիչ"_ft) || next(e, "փոքր"_ft)) {
        insert(e, "a ");
        word(e, "փոքրիկ"_ft);
        e.ScanPos += 4;
    }
    if (plus2(e, "ոսքով"_ft)) {
        word(e, "համառոտ"_ft);
        e.ScanPos += 6;
        emit(e);
        e.OutputText += "er";
    }
}

void ameninch(Engine& e) {
    if (next(e, "ինչ"_ft) || next(e, "բան"_ft)) {
        word(e, "");
        insert(e, "everything");
        // "everything" is the word group a postposition or an auxiliary after it goes before
        // ("ամեն ինչի համար" is "for everything"), as a looked-up word would be.
        const std::string_view written = "everything";
        e.CopyDepth = static_cast<std::int64_t>(written.size());
        e.VerbBackOffset = e.CopyDepth + e.EnglishAuxBack;
        e.EnglishAuxBack = 0;
        e.ScanPos += 3;
    }
}

void dyuzninch(Engine& e) {
    if (next(e, "ինչ"_ft) || next(e, "իսկ"_ft)) {
        insert(e, "a ");
        word(e, "փոքրիկ"_ft);
        e.ScanPos += 3;
    }
}

void ancav(Engine& e) {
    const std::int64_t start = sentenceStart(e);
    if (start != e.AncavSentence) {
        e.AncavSentence = start;
        e.AncavCount = 0;
    }
    if (++e.AncavCount == 2) {
        word(e, "առանցցավի"_ft);
        e.AncavCount = 0;
    }
}

void ansharzhguyq(Engine& e) {
    if (plus2(e, "ույք"_ft)) {
        emitWord(e, "իրական"_ft);
        e.OutputText += " estate ";
        e.ScanPos += 5;
    }
}

void apatewoch(Engine& e) {
    if (next(e, "թե ոչ"_ft)) {
        word(e, "այլապես"_ft);
        e.ScanPos += 5;
    }
}

void teche(Engine& e) {
    if (next(e, "չէ "_ft) || next(e, "չէ,"_ft)) {
        word(e, "այլապես"_ft);
        e.ScanPos += 3;
    }
}

void ardenisk(Engine& e) {
    if (next(e, "իսկ"_ft)) e.ScanPos += 4;
}

void barevdzez(Engine& e) {
    if (next(e, "ձեզ"_ft) || next(e, "Ձեզ"_ft)) {
        word(e, "բարև"_ft);
        e.ScanPos += 3;
    }
}

void barigood(Engine& e) {
    e.GoodFlag = 1;
    if (plus2(e, "ալուստ"_ft)) {
        word(e, "բարի գալուստ"_ft);
        e.ScanPos += 7;
    }
}

// The gloss of "բարի" and its blank are taken to stand last.
void bariluyss(Engine& e) {
    if (e.GoodFlag == 1) {
        cutOutput(e, 5);
        e.OutputText += "Good ";
    }
}

void luys(Engine& e) { greeting(e, true); }

void mecgood(Engine& e) {
    if (next(e, "Բրիտանիա"_ft)) {
        word(e, "");
        e.OutputText += "Great";
    }
    greeting(e, false);
}

void bozi_txa(Engine& e) {
    if (!next(e, "տղա"_ft)) return;
    emitWord(e, "որդի"_ft);
    const auto length = static_cast<std::int64_t>(e.SourceText.size());
    do {
        ++e.ScanPos;
    } while (e.ScanPos <= length && e.sourceAt(e.ScanPos, 1) != " ");
    e.OutputText += " of a ";
    word(e, "բոզ"_ft);
    e.WordTag = FontText(kTagWidth, ' ');
}

void hazivte(Engine& e) {
    if (at(e, " թե"_ft) || next(e, "հազ"_ft)) {
        word(e, "դժվարությամբ"_ft);
        e.ScanPos += 3;
    }
}

void esteutyan(Engine& e) {
    if (plus2(e, "ության"_ft)) {
        word(e, "փաստորեն"_ft);
        e.ScanPos += 7;
    }
    if (next(e, "իս"_ft)) {
        e.OutputText += " to ";
        word(e, "ինձ"_ft);
        e.ScanPos += 3;
    }
}

void zhamslak(Engine& e) {
    if (plus2(e, "լաքներ"_ft)) {
        e.PendingEnding = "s";
        e.ScanPos += 7;
    }
    const bool hand = plus2(e, "լաք"_ft);
    word(e, "ժամսլաք"_ft);
    if (hand) e.ScanPos += 4;
}

void ibrevte(Engine& e) {
    if (at(e, " թե "_ft)) {
        insert(e, "as if");
        word(e, "");
        e.ScanPos += 3;
    }
}

void dsk(Engine& e) {
    if (plus2(e, "կավառակ"_ft)) word(e, "դժվար"_ft);
}

void hogtanel(Engine& e) {
    if (next(e, "տան"_ft) || next(e, "տար"_ft)) {
        word(e, "խնամել"_ft);
        e.ScanPos += 3;
    }
}

// After the first test the others read the output, not the source, where the words they look
// for hardly ever stand.
void hordancrev(Engine& e) {
    if (plus2(e, "նձրև"_ft)) word(e, "հորդառատ"_ft);
    const auto output = [&e](std::int64_t pos, std::size_t n) {
        return pos < 1 ? std::string_view{} : mid(e.OutputText, static_cast<std::size_t>(pos), n);
    };
    if (output(e.ScanPos + 2, 4) == "արափ"_ft) word(e, "հորդառատ"_ft);
    if (output(e.ScanPos + 1, 3) == "գետ"_ft || output(e.ScanPos + 1, 4) == "առու"_ft ||
        output(e.ScanPos + 1, 6) == "տեղում"_ft)
        word(e, "հորդառատ"_ft);
}

void harkkar(Engine& e) {
    for (const std::string_view verb : {"կա"_ft, "չկա"_ft, "կար"_ft, "չկար"_ft, "կլինի"_ft, "չի լինի"_ft, "կլիներ"_ft,
                                        "չէր լինի"_ft, "լինի"_ft}) {
        if (next(e, verb)) {
            word(e, "կարիք"_ft);
            return;
        }
    }
}

void chishtnasac(Engine& e) {
    if (next(e, "ասած"_ft)) {
        emitWord(e, "ասելով"_ft);
        e.OutputText += " the ";
        word(e, "ճշմարտությունը"_ft);
        e.ScanPos += 4;
    }
}

void odin(Engine& e) {
    mekayl(e);
    if (next(e, "առ մեկ"_ft)) {
        emit(e);
        e.OutputText += " by ";
        e.ScanPos += 3;
    }
}

void mekayl(Engine& e) {
    if (at(e, " այլ "_ft)) {
        emitWord(e, "մեկ այլ"_ft);
        e.ScanPos += 4;
    }
}

// "մեն մենակ", all alone: the word is "all" whatever follows.
void menmenak(Engine& e) { word(e, "բոլոր"_ft); }

void MiddlEast(Engine& e) {
    if (plus2(e, "րևելք"_ft) || plus2(e, "րեւելք"_ft)) word(e, "մեջտեղ"_ft);
}

void shers(Engine& e) { e.CurrentWord = FontText("շեռ"_ft) + e.CurrentWord.substr(std::min<std::size_t>(3, e.CurrentWord.size())); }

void hamarist(Engine& e) {
    e.CurrentWord = FontText("թիվ"_ft) + e.CurrentWord.substr(std::min<std::size_t>(5, e.CurrentWord.size()));
}

// "խոսքի մաս": the gloss of "խոսքի" stands last, and the part comes before it in English.
void xmas(Engine& e) {
    if (!e.outputEndsWith("peech ")) return;
    cutOutput(e, 7);
    emit(e);
    e.OutputText += " of ";
    word(e, "խոսք"_ft);
}

void verimuch(Engine& e) {
    if (next(e, "լավ"_ft)) word(e, "անչափ"_ft);
}

void shabat(Engine& e) {
    if (next(e, "օր"_ft)) {
        word(e, "շաբաթ օր"_ft);
        e.ScanPos += 2;
    }
}

void shutara(Engine& e) {
    const auto hurryUp = [&e](std::int64_t skip) {
        e.ScanPos += skip;
        emitWord(e, "շտապել"_ft);
        e.OutputText += ' ';
        emitWord(e, "վեր"_ft);
    };
    if (next(e, "արեք"_ft)) hurryUp(5);
    if (next(e, "արա"_ft)) hurryUp(4);
}

void wordiw(Engine& e) {
    if (e.CurrentWord.ends_with("ու"_ft)) {
        word(e, "որդիի"_ft);
    } else {
        insert(e, "with ");
        word(e, "որդի"_ft);
    }
}

void petqe(Engine& e) {
    if (at(e, " է "_ft) || at(e, " է,"_ft)) {
        word(e, "պետք է"_ft);
        e.ScanPos += 2;
    }
    if (at(e, " էր"_ft)) e.ScanPos += 2;
}

void vaxteush(Engine& e) {
    if (next(e, "թե ուշ"_ft)) {
        emitWord(e, "շուտով"_ft);
        e.OutputText += "er or later";
        e.ScanPos += 6;
    }
}

void ors(Engine& e) {
    if (e.outputEndsWith("until ")) word(e, "հիմա"_ft);
}

// "տակս" is "under me": the postposition first, then the person of its possessive ending.
void tak(Engine& e) {
    const FontText held = e.CurrentWord;
    emitWord(e, std::string_view(held).substr(0, 3));
    e.OutputText += ' ';
    const bool plural = held.find("եր"_ft) != FontText::npos;
    if (held.ends_with("ս"_ft)) word(e, plural ? "մեզ"_ft : "ինձ"_ft);
    else if (held.ends_with("դ"_ft)) word(e, "դուք"_ft);
}

}  // namespace vorlexa
