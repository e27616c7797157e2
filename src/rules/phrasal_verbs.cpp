// Phrasal verbs of English source text. Each rule is entered with CurrentWord holding the verb as
// scanned and ScanPos on the delimiter after it; what it leaves in CurrentWord is looked up.
#include "rules/phrasal_verbs.h"

#include <algorithm>
#include <cctype>

#include "engine/engine.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;

namespace {

// The word without its first n letters: the inflection a verb form adds to its stem.
FontText withoutFirst(std::string_view word, std::size_t n) {
    return word.size() > n ? FontText(word.substr(n)) : FontText();
}

void setTail(Engine& e, std::size_t n) { e.WordTail = withoutFirst(e.CurrentWord, n); }

// The swap itself: the key with the kept tail, and the move over the particle.
void swapTo(Engine& e, std::string_view key, std::int64_t skip) {
    e.CurrentWord = FontText(key) + e.WordTail;
    e.ScanPos += skip;
}

// The same without a tail, for the forms that have none.
void replaceBy(Engine& e, std::string_view key, std::int64_t skip) {
    e.CurrentWord = FontText(key);
    e.ScanPos += skip;
}

// The text at ScanPos + 2: the first letter of the next word is left unchecked, so both cases match.
bool plus2Is(const Engine& e, std::string_view literal) { return e.sourceAt(e.ScanPos + 2, literal.size()) == literal; }

bool endingOrArticlePending(const Engine& e) { return !e.PendingEnding.empty() || !e.ArticleEnding.empty(); }

void insertText(Engine& e, std::string_view text) {
    e.InsertText = FontText(text);
    mctn(e);
}

constexpr std::string_view kNounTag = "n    ";
constexpr std::string_view kVerbTag = "v    ";
constexpr std::string_view kBlankTag = "     ";

}  // namespace

void varem_marem(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("off")) swapTo(e, "disconnect", 3);
    if (e.nextIs("on ")) swapTo(e, "connect", 3);
    if (e.nextIs("out")) swapTo(e, "clear", 3);
    if (e.nextIs("adrift")) swapTo(e, "abandon", 6);
    if (e.nextIs("around")) swapTo(e, "improve", 6);
    if (e.nextIs("down")) swapTo(e, "reject", 4);
}

void rule(Engine& e) {
    // "rul" is the stem; a word no longer than "rule" would keep no tail.
    constexpr std::size_t kShortestWithTail = 5;
    e.WordTail = e.CurrentWord.size() >= kShortestWithTail ? withoutFirst(e.CurrentWord, 3) : FontText();
    if (e.atIs(" out ")) swapTo(e, "exclude", 3);
}

void singl(Engine& e) {
    setTail(e, 6);
    if (e.WordTail.starts_with('d')) e.WordTail = "ed";
    else if (e.WordTail.starts_with('n')) e.WordTail = "ing";
    if (e.nextIs("out")) swapTo(e, "distinguish", 4);
}

void spell(Engine& e) {
    setTail(e, 5);
    if (e.nextIs("out")) swapTo(e, "express", 4);
    e.WordTail.clear();
}

void spk_out(Engine& e) {
    e.SpeechVerbFlag = 1;
    e.PerfectFlag = 1;
    setTail(e, 5);
    if (e.nextIs("out")) swapTo(e, "express", 3);
}

void cry(Engine& e) {
    setTail(e, 3);
    if (e.nextIs("up ")) swapTo(e, "advertise", 3);
}

void krel(Engine& e) {
    // The dispatch marks a verb of work for the words that follow ("on the computer").
    e.WorkVerbFlag = 1;
    if (e.nextIs("out ")) replaceBy(e, "create", 4);
    else if (e.CurrentWord == "work" && endingOrArticlePending(e)) e.CurrentWord = "job";
}

void Ashkhatutyun(Engine& e) {
    e.WorkVerbFlag = 1;
    if (e.nextIs("out ")) {
        replaceBy(e, "creates", 4);
    } else if (e.CurrentWord == "works" && endingOrArticlePending(e)) {
        e.CurrentWord = "job";
        if (e.PendingEnding.empty()) e.PendingEnding = "ներ"_ft;
    }
    // The rule returns by Rescan: the word is written here, so that nothing comes back to it.
    e.teqst_dblclick();
    e.CurrentWord.clear();
}

void lk(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("at ")) e.ScanPos += 3;
    if (e.nextIs("after")) swapTo(e, "care", 5);
    if (plus2Is(e, "orward")) {
        insertText(e, "հույսով "_ft);
        swapTo(e, "wait", 7);
    }
    if (e.nextIs("for ")) swapTo(e, "search", 4);
    if (e.nextIs("like")) swapTo(e, "seem", 5);
    if (e.nextIs("out") && e.CurrentWord == "look") replaceBy(e, "careful", 3);
}

void hancnel(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("over")) swapTo(e, "handover", 5);
}

void fuck(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("off")) swapTo(e, "fuck off", 4);
}

void find(Engine& e) {
    e.WordTail = e.CurrentWord == "found" ? FontText("ed") : withoutFirst(e.CurrentWord, 4);
    if (e.nextIs("out ") || e.nextIs("out,") || e.nextIs("out.") || e.nextIs("out?") || e.nextIs("out!"))
        swapTo(e, "discover", 4);
}

void shut(Engine& e) {
    setTail(e, e.CurrentWord == "shutting" ? 5 : 4);
    if (e.nextIs("down")) {
        e.ScanPos += 5;
        e.CurrentWord = "disconnect" + e.WordTail;
    }
    if (e.nextIs("up ")) {
        e.CurrentWord.clear();
        e.OutputText += "լռեք"_ft;
        e.ScanPos += 3;
    }
}

void switch_(Engine& e) {
    setTail(e, e.CurrentWord == "switches" ? 7 : 6);
    if (e.nextIs("off")) swapTo(e, "disconnect", 4);
    if (e.nextIs("on ")) swapTo(e, "connect", 3);
}

void pass(Engine& e) {
    setTail(e, e.CurrentWord == "passes" ? 5 : 4);
    if (e.nextIs("by ")) {
        swapTo(e, "pass-", 3);
        e.teqst_dblclick();
        e.OutputText += " կողքով "_ft;
    }
    if (e.nextIs("away")) swapTo(e, "die*", 5);
}

void lit(Engine& e) {
    setTail(e, 5);
    if (e.nextIs("up ") && e.CurrentWord != "lit") swapTo(e, "burn", 3);
    if (e.nextIs("up ") && e.CurrentWord == "lit") replaceBy(e, "burnt", 3);
}

void wait(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("for")) {
        e.ScanPos += 3;
        if (e.PendingCopula.empty()) e.PendingEnding = "ին"_ft;
    }
}

void zartel(Engine& e) {
    if (!e.nextIs("up ")) return;
    e.ScanPos += 3;
    e.teqst_dblclick();
}

void pchel(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("up")) swapTo(e, "explode", 3);
}

void traqel(Engine& e) {
    if (e.nextIs("up")) replaceBy(e, "exploded", 3);
}

void havatal(Engine& e) {
    if (!e.nextIs("in ")) return;
    e.ScanPos += 3;
    e.teqst_dblclick();
    e.PendingEnding = "ին"_ft;
}

void spid(Engine& e) {
    setTail(e, 5);
    // Two, on purpose: ScanPos stops on the "p" and the delimiter comes as an empty word.
    if (e.nextIs("up ")) swapTo(e, "accelerate", 2);
    if (e.nextIs("down")) swapTo(e, "retard", 4);
}

void haytnvel(Engine& e) {
    setTail(e, 4);
    if (e.WordTail == "n") e.WordTail = "ed";
    if (e.nextIs("up ")) swapTo(e, "appear", 3);
}

void haxtaharel(Engine& e) {
    if (e.nextIs("down")) replaceBy(e, "overcome", 4);
}

void achrtel(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("up ")) swapTo(e, "increase", 3);
}

void consist_of(Engine& e) {
    if (!(e.nextIs("of ") || e.nextIs("Of "))) return;
    e.ScanPos += 3;
    e.teqst_dblclick();
    e.PendingEnding = "ից"_ft;
}

void back_up(Engine& e) {
    setTail(e, 4);
    if (e.atIs(" from ") && e.CurrentWord == "back" && !e.PendingCopula.empty()) {
        e.CurrentWord = "return";
        e.VerbFormMark = "ել"_ft;
    }
    if (e.atIs(" up ")) swapTo(e, "support", 3);
}

void deal(Engine& e) {
    setTail(e, 4);
    if (!e.nextIs("with")) return;
    // "with" stays in the text: it is read next and gives the ending of its noun.
    e.CurrentWord = "job";
    e.teqst_dblclick();
    e.OutputText += ' ';
    e.CurrentWord = "have" + e.WordTail;
}

void kaynel(Engine& e) {
    setTail(e, 4);
    if (e.WordTail.starts_with('p')) e.WordTail.erase(0, 1);  // "stopped": "ped" gives "ed"
    if (e.nextIs("by ")) {
        swapTo(e, "stand", 3);
        e.PendingEnding = "ի մոտ"_ft;
    }
}

void geranel(Engine& e) {
    setTail(e, 3);
    if (e.WordTail.starts_with('g')) e.WordTail.erase(0, 1);  // "logged": "ged" gives "ed"
    if (e.atIs(" in") || e.nextIs("into")) {
        swapTo(e, "register", 0);
        e.PendingEnding = "ի մեջ"_ft;
    }
    if (e.nextIs("out")) {
        swapTo(e, "come out", 0);
        e.PendingEnding = "ից"_ft;
    }
}

void mutqaelqagrvel(Engine& e) {
    setTail(e, 4);
    if (e.atIs(" in ")) swapTo(e, "enter", 3);
    if (e.atIs(" out")) swapTo(e, "come", 0);
}

void lcnellracnel(Engine& e) {
    setTail(e, 4);
    if (e.nextIs("out ")) swapTo(e, "accomplish", 3);
    if (e.nextIs("in ")) swapTo(e, "accomplish", 3);
}

void Figurant(Engine& e) {
    setTail(e, 6);
    if (e.nextIs("out ")) swapTo(e, "count", 4);
}

void Figurant2(Engine& e) {
    setTail(e, 5);
    if (e.nextIs("out ")) swapTo(e, "count", 4);
}

void caxinprcan(Engine& e) {
    if (e.atIs(" out")) replaceBy(e, "petered", 4);
}

void xekavarats(Engine& e) {
    e.CurrentWord = "generaled";
    if (e.nextIs("by ")) e.PerfectFlag = 1;
}

void come(Engine& e) {
    const std::string_view word = e.CurrentWord;
    const bool shortStem = (word.starts_with("run") && !word.starts_with("runn")) || word.starts_with("comi");
    setTail(e, shortStem ? 3 : 4);
    const bool came = word == "came";
    // "came" has irregular forms of its own; the other words take the tail.
    const auto swapForm = [&](std::string_view key, std::string_view past, std::int64_t skip) {
        if (came) replaceBy(e, past, skip);
        else swapTo(e, key, skip);
    };
    if (e.nextIs("true")) swapForm("fulfil", "fulfilled", 4);
    if (e.nextIs("back")) swapForm("return", "returned", 5);
    if (e.nextIs("across")) {
        swapForm("meet", "met", 6);
        e.PendingEnding = e.CurrentWord == "meeting" ? FontText() : FontText("ի"_ft);
    }
    if (e.atIs(" up ")) swapForm("appear", "appeared", 2);
}

void areqinc(Engine& e) {
    const std::string_view word = e.CurrentWord;
    if (word == "made") e.WordTail = "ed";
    else if (word == "making" || word == "makes") setTail(e, 3);
    else e.WordTail.clear();
    if (e.nextIs("sense")) {
        e.CurrentWord = "have" + e.WordTail;
        e.teqst_dblclick();
        e.CurrentWord = "meaning";
        e.OutputText += ' ';
        e.ScanPos += 5;
    }
    if (e.nextIs("money")) {
        e.CurrentWord = "make" + e.WordTail;
        e.teqst_dblclick();
    }
    if (e.nextIs("sure")) swapTo(e, "persuade*", 4);
    if (e.nextIs("nothing")) {
        e.CurrentWord = "head";
        e.teqst_dblclick();
        e.OutputText += " չ"_ft;
        swapTo(e, "subtract", 7);
    }
    if (e.atIs("-up")) replaceBy(e, "makeup", 3);
}

void iron(Engine& e) {
    setTail(e, 4);
    if (e.CurrentWord == "iron") {
        // The bare word is the verb after a modal or as an order; otherwise the noun.
        if (e.ModalFlag == 1 || e.ImperativeFlag == 1) {
            e.CurrentWord = "to iron";
            e.ModalFlag.clear();
            e.ImperativeFlag.clear();
        }
        return;
    }
    swapTo(e, "to iron", 0);
    if (e.nextIs("out")) swapTo(e, "make smooth", 3);
}

void pahel(Engine& e) {
    // The next word as far as the blank: a form in "ing" makes "keep" mean to go on doing.
    const auto text = static_cast<std::int64_t>(e.SourceText.size());
    std::int64_t end = e.ScanPos + 1;
    while (end <= text && e.SourceText[static_cast<std::size_t>(end - 1)] != ' ') ++end;
    const std::string_view next = e.sourceAt(e.ScanPos + 1, static_cast<std::size_t>(end - e.ScanPos - 1));
    if (!next.ends_with("ing")) return;
    if (e.CurrentWord == "kept") {
        e.CurrentWord = "continued";
        return;
    }
    setTail(e, 4);
    swapTo(e, "continue", 0);
}

void sharunakel1(Engine& e) {
    setTail(e, 2);
    if (e.nextIs("on ")) {
        swapTo(e, "continue", 3);
        if (e.WordTail == "ing") e.SecondLook = 1;
    }
    if (e.nextIs("through")) swapTo(e, "examine", 7);
    if (e.nextIs("to ") && e.WordTail == "ing") swapTo(e, "prepare*", 0);
    if (e.atIs("-to")) replaceBy(e, "erudite", 3);
}

void sharunakel2(Engine& e) {
    if (e.nextIs("on ")) {
        replaceBy(e, "continues", 3);
        e.SecondLook = 1;
        e.PendingEnding.clear();
    }
    if (e.nextIs("through")) replaceBy(e, "examines", 7);
}

void sharunakel3(Engine& e) {
    if (e.nextIs("on ")) replaceBy(e, "continued", 3);
    if (e.nextIs("through")) replaceBy(e, "examined", 7);
}

void meknel1(Engine& e) {
    e.AdverbFlag = 1;
    const bool leaving = e.CurrentWord == "leaving";
    setTail(e, leaving ? 4 : 5);
    if (e.CurrentWord == "leave" && e.PendingEnding == "ի վրա"_ft) {
        swapTo(e, "vacation", 0);
        e.PendingEnding.clear();
    }
    if (e.nextIs("for ")) swapTo(e, "depart", leaving ? 0 : 4);
}

void meknel2(Engine& e) {
    if (e.PendingCopula.empty() && e.nextIs("for ")) {
        replaceBy(e, "departed", 4);
        return;
    }
    if (!e.PendingEnding.empty()) {
        e.CurrentWord.clear();
        insertText(e, "ձախ "_ft);
        e.WordTag = FontText(kBlankTag);
        return;
    }
    if (e.PendingCopula.empty()) {
        e.CurrentWord = "leave";
        e.VerbFormMark = "ած"_ft;
    }
}

void mrsel(Engine& e) {
    e.WordTail = e.CurrentWord == "caught" ? FontText("ed") : withoutFirst(e.CurrentWord, 5);
    if (e.nextIs("cold")) swapTo(e, "catch cold", 5);
    if (e.nextIs("chill")) swapTo(e, "catch cold", 6);
    if (e.nextIs("up with")) replaceBy(e, "reach", 7);
}

void sxoc(Engine& e) {
    const bool anyEmpty = e.ModalFlag.empty() || e.ImperativeFlag.empty() || e.ToMark.empty();
    if (endingOrArticlePending(e) || (e.IndefiniteFlag == 1 && anyEmpty)) {
        // The tool.
        e.WordTag = FontText(kNounTag);
        e.ClassChain = "n";
        e.CurrentWord.clear();
        insertText(e, "սղոց"_ft);
        return;
    }
    if (e.ImperativeFlag == 1 || e.ModalFlag == 1 || !e.ToMark.empty()) {
        // The verb to saw, with the person's ending in place of "ել".
        e.CurrentWord.clear();
        FontText verb("սղոցել"_ft);
        verb.resize(verb.size() - 2);
        if (e.PersonCode == 1) verb += "եմ"_ft;
        else if (e.PersonCode == 2) verb += "եք"_ft;
        else if (e.PersonCode == 3) verb += "ենք"_ft;
        else if (e.PersonCode == 4) verb += "են"_ft;
        else verb += "ի"_ft;
        insertText(e, verb);
        e.WordTag = FontText(kVerbTag);
        e.ModalFlag.clear();
    }
}

void sxocel(Engine& e) {
    setTail(e, 3);
    if (e.WordTail == "s" && (endingOrArticlePending(e) || e.IndefiniteFlag == 1)) {
        e.CurrentWord.clear();
        insertText(e, "սղոցներ"_ft);
        return;
    }
    swapTo(e, "nag", 0);
}

void dnel(Engine& e) {
    // How far ahead the particle is looked for.
    constexpr std::size_t kParticleWindow = 30;
    setTail(e, e.CurrentWord == "putting" ? 4 : 3);
    if (!e.HaveForm.empty()) e.CurrentWord = "puted";

    FontText window(e.sourceAt(e.ScanPos, kParticleWindow));
    std::transform(window.begin(), window.end(), window.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });

    // The particles "in" and "out" are taken out of the text itself, every copy of the window
    // losing them, so that they are not read again as words of their own.
    const auto removeParticle = [&](std::string_view particle) {
        FontText shorter;
        for (std::size_t pos = 0; pos < window.size();) {
            if (window.compare(pos, particle.size(), particle) == 0) {
                pos += particle.size();
            } else {
                shorter += window[pos++];
            }
        }
        // Left to right, each copy replaced where it is found and the search going on behind it.
        // The shorter copy never outruns the reading, so the text is rewritten in place.
        if (window.empty()) return;
        FontText& text = e.SourceText;
        std::size_t written = 0;
        std::size_t read = 0;
        for (std::size_t pos = text.find(window); pos != FontText::npos; pos = text.find(window, read)) {
            std::char_traits<char>::move(text.data() + written, text.data() + read, pos - read);
            written += pos - read;
            std::char_traits<char>::copy(text.data() + written, shorter.data(), shorter.size());
            written += shorter.size();
            read = pos + window.size();
        }
        text.erase(written, read - written);  // the rest of the text closes up behind the last copy
    };

    if (window.find(" on ") != FontText::npos) {
        e.CurrentWord = "wear" + e.WordTail;
    } else if (window.find(" in ") != FontText::npos) {
        e.CurrentWord = "locate" + e.WordTail;
        removeParticle(" in");
    } else if (window.find(" out") != FontText::npos) {
        e.CurrentWord = "extinguish" + e.WordTail;
        removeParticle(" out");
    }
}

void NkarelUshadr(Engine& e) {
    // How far ahead the word "attention" is looked for.
    constexpr std::int64_t kAttentionWindow = 20;
    const std::string_view word = e.CurrentWord;
    setTail(e, 4);

    // Read the words ahead one by one; the reading cursor is the look-up's GlossCursor and stays
    // where the reading stopped.
    const std::string_view ahead = e.sourceAt(e.ScanPos, static_cast<std::size_t>(kAttentionWindow));
    FontText token;
    std::size_t i = 0;
    for (; i < ahead.size(); ++i) {
        const char c = ahead[i];
        if (c == ' ' || c == ';' || c == ',' || c == ':') {
            if (token == "attention") break;
            token.clear();
        } else {
            token += c;
        }
    }
    const bool attention = token == "attention";
    e.GlossCursor = e.ScanPos + static_cast<std::int64_t>(i);

    if (attention) {
        if (word == "drawn" || word == "drew") e.CurrentWord = "invited";
        else e.CurrentWord = "invite" + e.WordTail;
    } else if (plus2Is(e, "ttention")) {
        if (e.WordTail == "n") replaceBy(e, "turned", 9);
        else e.CurrentWord = "turn" + e.WordTail;
        e.teqst_dblclick();
    }
}

}  // namespace vorlexa
