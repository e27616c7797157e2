// Fixed expressions of English source text. Each rule is entered with CurrentWord holding the
// trigger and ScanPos on the delimiter after it; the key it leaves in CurrentWord is looked up.
#include "rules/english_expressions.h"

#include <algorithm>

#include "engine/engine.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;

namespace {

// The text at ScanPos + 2: the first letter of the next word is left unchecked, so both cases match.
bool plus2Is(const Engine& e, std::string_view literal) { return e.sourceAt(e.ScanPos + 2, literal.size()) == literal; }

// The text at ScanPos + 1 over a fixed length, longer or shorter than the literal: a longer
// window matches only where the text ends early, a shorter one never matches a longer literal.
bool nextOver(const Engine& e, std::size_t length, std::string_view literal) {
    return e.sourceAt(e.ScanPos + 1, length) == literal;
}

void replaceBy(Engine& e, std::string_view key, std::int64_t skip) {
    e.CurrentWord = FontText(key);
    e.ScanPos += skip;
}

// Looks the key up and writes it now.
void emitKey(Engine& e, std::string_view key) {
    e.CurrentWord = FontText(key);
    e.teqst_dblclick();
}

void insertText(Engine& e, std::string_view text) {
    e.InsertText = FontText(text);
    mctn(e);
}

void cutOutput(Engine& e, std::size_t n) { e.OutputText.resize(e.OutputText.size() >= n ? e.OutputText.size() - n : 0); }

bool endingOrArticlePending(const Engine& e) { return !e.PendingEnding.empty() || !e.ArticleEnding.empty(); }

constexpr std::string_view kNounTag = "n    ";

}  // namespace

void bolor(Engine& e) {
    if (e.nextIs("over")) replaceBy(e, "everywhere", 5);
    if (plus2Is(e, "round")) {
        e.OutputText += "շուրջբոլոր"_ft;
        replaceBy(e, "", 7);
    }
    if (e.nextIs("along")) replaceBy(e, "permanently", 6);
    if (e.nextIs("means") && e.PendingEnding == "ով"_ft) {
        replaceBy(e, "for sure", 6);
        e.PendingEnding.clear();
    }
    if (e.atIs(" right") || e.atIs(" Right")) replaceBy(e, "ok", 6);
}

void ibrev(Engine& e) {
    if (e.nextIs("of ")) {
        replaceBy(e, "", 3);
        e.PendingEnding = "ով"_ft;
    }
    if (e.nextIs("well as")) {
        emitKey(e, "as*");
        e.OutputText += ' ';
        replaceBy(e, "how", 8);
    }
    if (e.nextIs("well")) replaceBy(e, "as well", 5);
    if (e.nextIs("soon as possible")) {
        e.ScanPos += 17;
        emitKey(e, "possible");
        e.OutputText += "ինս "_ft;
        emitKey(e, "early*");
    }
    if (e.nextIs("soon as")) {
        emitKey(e, "immediately");
        e.OutputText += ' ';
        emitKey(e, "when");
        e.ScanPos += 7;
    }
    if (e.nextIs("early as")) {
        emitKey(e, "already");
        e.OutputText += " իսկ"_ft;
        e.ScanPos += 9;
    }
    if (e.nextIs("long as")) replaceBy(e, "so much", 8);
    if (e.nextIs("far as")) {
        e.CurrentWord.clear();
        insertText(e, "որքանով որ"_ft);
        e.ScanPos += 7;
    }
    if (e.nextIs("many as")) {
        e.CurrentWord.clear();
        insertText(e, "ավելի քան"_ft);
        e.ScanPos += 7;
    }
}

void ispes(Engine& e) {
    if (e.nextIs("called")) {
        insertText(e, "այսպես կոչված"_ft);
        replaceBy(e, "", 7);
    }
    if (e.nextIs("far")) {
        insertText(e, "մինչ այժմ"_ft);
        replaceBy(e, "", 4);
    }
    if (e.nextIs("on ")) {
        e.CurrentWord.clear();
        insertText(e, "այդպես շարունակ"_ft);
        e.PendingEnding.clear();
        e.ScanPos += 3;
    }
    if (e.nextIs("long")) replaceBy(e, "bye", 5);
}

void since(Engine& e) {
    if (!e.nextIs("then")) return;
    e.ScanPos += 4;
    emitKey(e, "till");
    e.OutputText += " այժմ"_ft;
}

void khnami(Engine& e) {
    if (!e.nextIs("in law")) return;
    const FontText kept = e.CurrentWord;
    emitKey(e, "spouse");
    e.OutputText += "ի "_ft;
    e.PersonCode = 5;
    e.ScanPos += 7;
    emitKey(e, kept);
}

void harspesa(Engine& e) {
    if (e.nextIs("in law")) replaceBy(e, e.CurrentWord + " in law", 6);
}

void human(Engine& e) {
    if (e.nextIs("being")) {
        e.teqst_dblclick();
        e.ScanPos += 5;
        e.OutputText += ' ';
        e.CurrentWord = "creature";
    }
    if (e.nextIs("rights")) {
        if (!e.PendingEnding.empty()) e.ArticleEnding.clear();
        e.teqst_dblclick();
        e.OutputText += " իրավունքներ"_ft;
        e.OutputText += e.PendingEnding;
        e.OutputText += e.ArticleEnding;
        e.ClassChain = "n";
        e.PendingEnding.clear();
        e.ArticleEnding.clear();
        e.ScanPos += 7;
    }
}

void middle(Engine& e) {
    if (e.nextIs("ages") || e.nextIs("Ages")) {
        emitKey(e, "average");
        e.OutputText += ' ';
        replaceBy(e, "centuries", 5);
    }
    if (e.nextIs("east") || e.nextIs("East")) {
        emitKey(e, "average");
        e.OutputText += ' ';
    }
}

void MerzavorArevelq(Engine& e) {
    if (e.nextIs("east") || e.nextIs("East")) e.CurrentWord = "cognate";
    else e.PendingEnding = "ին"_ft;
}

void term(Engine& e) {
    if (!(e.outputEndsWith("երկար-"_ft) || e.outputEndsWith("կարճ-"_ft))) return;
    e.CurrentWord.clear();
    cutOutput(e, 1);
    e.OutputText += "աժամկետ"_ft;
    e.ClassChain.clear();
}

void woreve(Engine& e) {
    // The dispatch marks what follows "each" as indefinite.
    e.IndefiniteFlag = 1;
    if (!e.nextIs("other")) return;
    replaceBy(e, "each other", 5);
    e.teqst_dblclick();
}

void kaptal(Engine& e) {
    if (plus2Is(e, "etter")) replaceBy(e, "capital letter", 6);
}

void vrjkt(Engine& e) {
    if (e.nextIs("stop")) replaceBy(e, "fullstop", 4);
}

void posht(Engine& e) {
    if (plus2Is(e, "ffice")) replaceBy(e, "mail", 7);
}

void barcrakrt(Engine& e) {
    if (plus2Is(e, "ducation")) e.CurrentWord = "topmost";
}

void aylapes(Engine& e) {
    if (e.nextIs("else")) replaceBy(e, "otherwise", 5);
}

void artaqin(Engine& e) {
    if (plus2Is(e, "inist") || plus2Is(e, "ffairs")) e.CurrentWord = e.CurrentWord == "interior" ? "internal" : "external";
}

void de_facto(Engine& e) {
    if (plus2Is(e, "acto")) replaceBy(e, "actually", 5);
    if (e.nextIs("jure")) {
        e.CurrentWord.clear();
        insertText(e, "դե"_ft);
    }
}

void vaxtin(Engine& e) {
    if (e.nextIs("time")) e.CurrentWord = "correct";
}

void c_v(Engine& e) {
    if (plus2Is(e, "itae") || plus2Is(e, "ITAE")) replaceBy(e, "biography", 5);
}

void zhame(Engine& e) {
    if (!e.nextIs("clock")) return;
    cutOutput(e, 1);
    e.OutputText += "ին "_ft;
    e.CurrentWord = "hour";
    e.ArticleEnding = "ը"_ft;
    e.PendingEnding.clear();
    e.ScanPos += 6;
}

void tesakme(Engine& e) {
    if (e.nextIs("of ")) {
        replaceBy(e, "one-", 3);
        e.teqst_dblclick();
        e.OutputText += ' ';
        e.CurrentWord = "sort";
    }
    if (plus2Is(e, "egards")) {
        emitKey(e, "best");
        e.OutputText += ' ';
        e.PendingEnding = "ով"_ft;
        replaceBy(e, "intents", 7);
    }
}

void sofiknoc(Engine& e) {
    if (!e.nextIs("post")) return;
    e.teqst_dblclick();
    cutOutput(e, 3);
    e.OutputText += "ան "_ft;
    e.ClassChain.clear();
    replaceBy(e, "item*", 5);
}

void woroshum(Engine& e) {
    if (!plus2Is(e, "aking")) return;
    insertText(e, "որոշումի կայացում"_ft);
    e.OutputText += e.PendingEnding;
    e.OutputText += e.ArticleEnding;
    e.PendingEnding.clear();
    e.ArticleEnding.clear();
    e.CurrentWord.clear();
    e.ClassChain = "n";
    e.ScanPos += 7;
}

void woroshzhamanakov(Engine& e) {
    if (!e.nextIs("being")) return;
    replaceBy(e, "now", 5);
    if (e.PendingEnding == "ի համար"_ft) e.PendingEnding.clear();
}

void vabshe(Engine& e) {
    if (!plus2Is(e, "hough")) return;
    replaceBy(e, "though", 7);
    e.teqst_dblclick();
    e.OutputText += " դրան"_ft;
}

void anhrazhesht(Engine& e) {
    if (!e.nextIs("matter")) return;
    e.ScanPos += 7;
    emitKey(e, "important");
    e.OutputText += " չէ"_ft;
}

void motik(Engine& e) {
    if (e.nextIs("to ") || e.nextIs("by")) replaceBy(e, "near", 2);
}

void ap(Engine& e) {
    if (e.nextIs("coming")) replaceBy(e, "approching", 6);
    if (e.nextIs("to date")) replaceBy(e, "fresh", 7);
    if (e.nextIs("to ")) replaceBy(e, "until", 3);
}

void hete(Engine& e) {
    // Five characters against the four of "with": true only where the text ends after it.
    constexpr std::size_t kWithWindow = 5;
    if (nextOver(e, kWithWindow, "with")) e.ScanPos += 4;
}

void gdot(Engine& e) {
    // Six characters are compared: of the week's days only "Monday" and "Friday" fit.
    constexpr std::size_t kWeekdayWindow = 6;
    e.GoodFlag = 1;
    if (e.nextIs("Night") || e.nextIs("Day") || e.nextIs("night") || e.nextIs("day") || plus2Is(e, "vening") ||
        plus2Is(e, "orning") || plus2Is(e, "fternoon"))
        e.CurrentWord = "kind*";
    if (plus2Is(e, "ooking")) replaceBy(e, "handsome", 7);
    if (e.nextIs("bye") || e.nextIs("Bye")) e.CurrentWord.clear();
    for (const std::string_view day : {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}) {
        if (nextOver(e, kWeekdayWindow, day)) {
            e.CurrentWord = "senior";
            break;
        }
    }
}

void rad(Engine& e) {
    if (e.nextIs("then") || e.nextIs("than")) replaceBy(e, "than", 5);
}

void dialoguebox(Engine& e) {
    if (!e.nextIs("box")) return;
    e.teqst_dblclick();
    replaceBy(e, "window", 4);
}

void ss(Engine& e) {
    // ScanPos must leave room for a word and its delimiter before the "s".
    constexpr std::int64_t kFirstPosition = 4;
    if (e.ScanPos < kFirstPosition || e.sourceAt(e.ScanPos - 2, 1) == " " || e.atIs("'")) return;
    if (e.outputEndsWith("ը"_ft)) {
        cutOutput(e, 1);
        e.OutputText += "ները"_ft;
    } else {
        e.OutputText += "ներ"_ft;
    }
    e.CurrentWord.clear();
}

void yevst(Engine& e) {
    const std::string_view c = e.sourceAt(e.ScanPos, 1);
    if (c == "." || c == "!" || c == "?" || c == "," || c == ":" || c == ";") e.CurrentWord = "as well";
}

void yarab(Engine& e) {
    if (!(e.OutputText.empty() || e.outputEndsWith(": ") || e.outputEndsWith("\r\n"))) return;
    e.CurrentWord.clear();
    if (e.nextIs("a nice")) replaceBy(e, "lovely", 1);
    if (e.nextIs("a look")) e.ScanPos += 1;
}

void anchaps(Engine& e) {
    if (e.nextIs("much")) e.ScanPos += 4;
    if (e.nextIs("many")) e.CurrentWord.clear();
}

void inchani(Engine& e) {
    if (!e.nextIs("more")) return;
    replaceBy(e, "any more", 5);
    e.IndefiniteFlag = 1;
    e.DefiniteState = -1;
}

void hpart(Engine& e) {
    if (!e.nextIs("of ")) return;
    e.teqst_dblclick();
    e.PendingEnding = "ով"_ft;
    e.ScanPos += 3;
}

void tesaket(Engine& e) {
    if (e.nextIs("of view")) replaceBy(e, "viewpoint", 7);
}

void wasteloss(Engine& e) {
    if (e.nextIs("of ")) replaceBy(e, "dissipation", 3);
}

void icecream(Engine& e) {
    if (!plus2Is(e, "ream")) return;
    e.CurrentWord.clear();
    insertText(e, "պաղպաղակ"_ft);
    e.ScanPos += 5;
}

void wparty(Engine& e) {
    if (plus2Is(e, "arty")) replaceBy(e, "wedding party", 6);
}

void gfloor(Engine& e) {
    if (!plus2Is(e, "loor")) return;
    emitKey(e, "first");
    e.OutputText += ' ';
    replaceBy(e, "tax", 6);
}

void finearts(Engine& e) {
    if (e.nextIs("arts") || e.nextIs("Arts")) replaceBy(e, "fine art", 4);
}

void mayreni(Engine& e) {
    if (!e.nextIs("language")) return;
    if (e.PendingEnding == "ի մեջ"_ft) e.PendingEnding = "ով"_ft;
    e.CurrentWord.clear();
    e.ClassChain += 'n';
    insertText(e, "մայրենի"_ft);
    e.ScanPos += 8;
}

void dziauzh(Engine& e) {
    if (!plus2Is(e, "ower")) return;
    insertText(e, "ձիաուժ "_ft);
    replaceBy(e, "", 4);
}

void ansharzhguyk2(Engine& e) {
    if (!plus2Is(e, "state")) return;
    emitKey(e, "immobile");
    e.OutputText += " գույք"_ft;
    e.ClassChain = "n";
    e.ScanPos += 6;
}

void zartucich(Engine& e) {
    if (!e.nextIs("clock")) return;
    e.CurrentWord.clear();
    e.OutputText += " զարթուցիչ"_ft;
    e.WordTag = FontText(kNounTag);
    e.ScanPos += 5;
}

void dzmeruk(Engine& e) {
    if (e.nextIs("melon")) replaceBy(e, "water melon", 5);
}

void nahang(Engine& e) {
    if (!e.nextIs("year")) return;
    e.CurrentWord = "retreat";
    e.SentenceClasses.clear();
}

void himnamijoc(Engine& e) {
    if (e.nextIs("asset")) e.CurrentWord = "basic";
}

void hacadul(Engine& e) {
    // Five characters against the six of "strike": the expression is never taken.
    constexpr std::size_t kStrikeWindow = 5;
    if (nextOver(e, kStrikeWindow, "strike")) replaceBy(e, "hunger strike", 5);
}

void elkayan(Engine& e) {
    if (e.nextIs("plant")) {
        e.ScanPos += 5;
        e.ClassChain += 'n';
        e.CurrentWord = "power plant";
    }
    if (e.nextIs("supply")) {
        e.ClassChain += 'n';
        e.CurrentWord = "electricity";
    }
    if (e.nextIs("cut")) {
        e.ScanPos += 3;
        emitKey(e, "electricity");
        cutOutput(e, 4);
        e.OutputText += "ան  "_ft;
        e.ClassChain += 'n';
        e.CurrentWord = "interruption";
    }
}

void zapchast(Engine& e) {
    if (e.nextIs("part")) {
        e.CurrentWord.clear();
        insertText(e, "պահեստամաս"_ft);
        e.ScanPos += 4;
    }
    if (e.nextIs("time")) e.CurrentWord = "free";
}

void gisherel(Engine& e) {
    if (plus2Is(e, "vernight")) replaceBy(e, "stay overnight", 9);
}

void veravera(Engine& e) {
    // "been" stands nine characters back: ScanPos must reach that far.
    constexpr std::int64_t kBeenReach = 9;
    if (!e.PendingCopula.empty()) {
        e.CurrentWord = "expire";
        e.VerbFormMark = "ած"_ft;
    }
    if (e.ScanPos >= kBeenReach && (e.sourceAt(e.ScanPos - 7, 2) == "be" || e.sourceAt(e.ScanPos - 9, 4) == "been")) {
        e.CurrentWord = "expire";
        e.VerbFormMark = "ած"_ft;
    }
    if (e.nextIs("and over")) {
        emitKey(e, "again");
        e.OutputText += " ու "_ft;
        replaceBy(e, "again", 8);
    }
}

void mekn(Engine& e) {
    if (plus2Is(e, "nother")) {
        e.CurrentWord.clear();
        insertText(e, "մեկը մյուսին"_ft);
        e.ScanPos += 8;
    }
    if (e.nextIs("by one")) {
        e.teqst_dblclick();
        e.OutputText += " առ"_ft;
        e.ClauseStartFlag = 1;
        e.ScanPos += 3;
    }
}

void trir(Engine& e) {
    if (e.atIs(" up")) replaceBy(e, "appearance", 3);
    if (e.nextIs("down")) replaceBy(e, "fly", 4);
}

void xach(Engine& e) {
    const FontText tail = e.CurrentWord.size() > 5 ? e.CurrentWord.substr(5) : FontText();
    e.CurrentWord = "intersect" + tail;
}

void yerkar(Engine& e) {
    if (e.nextIs("ago")) e.CurrentWord = "much";
    if (e.nextIs("live")) {
        insertText(e, "կեցցե"_ft);
        replaceBy(e, "", 4);
    }
    if (e.nextIs("run")) {
        emitKey(e, "lasting");
        e.OutputText += ' ';
        replaceBy(e, "time", 3);
    }
}

void sepakanmijoc(Engine& e) {
    if (!(e.nextIs("own") && e.PendingEnding == "ի վրա"_ft)) return;
    e.PendingEnding.clear();
    replaceBy(e, "independently", 3);
}

void LastName(Engine& e) {
    if (e.nextIs("name") || e.nextIs("Name")) replaceBy(e, "surname", 4);
}

void NerumnHaycel(Engine& e) {
    if (!e.nextIs("for")) return;
    e.CurrentWord = "forgive";
    if (!e.PendingCopula.empty()) {
        e.PendingCopula.clear();
        e.teqst_dblclick();
        e.OutputText += " հայցում"_ft;
    }
}

void SovorLinel(Engine& e) {
    if (!e.PendingEnding.ends_with("ի մեջ"_ft)) return;
    e.CurrentWord = "occupied";
    e.PendingEnding.clear();
}

void Preimas(Engine& e) {
    if (e.nextIs("emptive")) replaceBy(e, "prior", 7);
}

void TelAviv(Engine& e) {
    if (e.nextIs("Aviv")) replaceBy(e, "tel-aviv", 4);
}

void GetAp(Engine& e) {
    if (e.nextIs("bank")) replaceBy(e, "riverside", 5);
}

void ShnorhakalQeznic(Engine& e) {
    if (e.nextIs("you")) e.ScanPos += 3;
}

void HangamaNqner(Engine& e) {
    if (endingOrArticlePending(e)) e.CurrentWord = "circumstance";
}

void Yndhakarakn(Engine& e) {
    if (!e.nextIs("versa")) return;
    e.CurrentWord.clear();
    e.OutputText += "ընդհակառակն "_ft;
    e.ScanPos += 5;
}

void Sexm(Engine& e) {
    if (e.nextIs("lipped")) replaceBy(e, "silent", 6);
    if (e.nextIs("fisted")) replaceBy(e, "greedy", 6);
}

void KoshtUkopit(Engine& e) {
    if (plus2Is(e, "isk") || plus2Is(e, "isc") || e.nextIs("line")) e.CurrentWord = "clump";
    if (plus2Is(e, "urrency")) e.CurrentWord = "stable";
}

void Hamashkharhayin(Engine& e) {
    if (e.nextIs("war") || e.nextIs("War") || plus2Is(e, "ecord")) e.CurrentWord = "worldwide";
}

void dyu(Engine& e) {
    if (e.nextIs("course")) {
        replaceBy(e, "amid", 6);
        e.PendingEnding.clear();
    }
    if (e.nextIs("to ")) {
        e.PendingEnding += "ի"_ft;
        if (!e.PendingCopula.empty()) e.CurrentWord = "forced";
    }
}

void herakhosel(Engine& e) {
    if (e.SpeechVerbFlag.empty() && e.WorkVerbFlag.empty()) return;
    // "on the phone" after a verb of speech, "on the computer" after a verb of work: by it.
    if (e.PendingEnding == "ի վրա"_ft) e.PendingEnding = "ով"_ft;
    e.SpeechVerbFlag.clear();
    e.WorkVerbFlag.clear();
}

void lezu(Engine& e) {
    if (e.PendingEnding == "ի մեջ"_ft) e.PendingEnding.clear();
}

}  // namespace vorlexa
