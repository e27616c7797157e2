// The trigger select of English source text: the words that call a rule procedure, the rules
// written in the select itself, and its longer rules (modals, "do", "have", "of", "on").
#include "rules/selects.h"

#include "engine/scanner.h"
#include "rules/procedure_registry.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;
using namespace row;

namespace {

constexpr TriggerReturn F = TriggerReturn::Finish;
constexpr TriggerReturn R = TriggerReturn::Rescan;

TriggerRow proc(std::initializer_list<std::string_view> words, std::string_view procedure, TriggerReturn ret,
                RowEffect before = {}) {
    return procedureRow(words, procedure, ret, std::move(before));
}

// "at", "from" and "for" break a chain of nouns before their procedure runs.
void breakNounChain(Engine& e) { e.ClassChain = " "; }

RowTest endingOrArticleSet() {
    return [](Engine& e) { return !e.PendingEnding.empty() || !e.ArticleEnding.empty(); };
}
RowTest endingIs(std::string_view text) {
    return [text](Engine& e) { return e.PendingEnding == text; };
}
RowEffect setFlag(Flag Engine::*member) {
    return [member](Engine& e) { e.*member = 1; };
}

void passThrough(Engine& e) {
    e.HttpPassThrough = std::move(e.CurrentWord);
    e.CurrentWord.clear();
    e.InternetWhile();
    e.OutputText += e.HttpPassThrough;
    e.HttpPassThrough.clear();
}

// A city name written at once, with the pending ending on it.
RowEffect placeName(std::string_view name) {
    return [name](Engine& e) {
        e.CurrentWord.clear();
        e.OutputText += name;
        e.OutputText += e.PendingEnding;
        e.PendingEnding.clear();
        e.ClassChain = "n";
    };
}

// A sentence start: the output is empty or ends with the given line break or ": ".
bool atSentenceStart(const Engine& e, std::string_view lineBreak) {
    return e.OutputText.empty() || e.outputEndsWith(": ") || e.outputEndsWith(lineBreak);
}

// The rules written in the select itself: word, test, effect, skip, return.
std::vector<TriggerRow> selectRows() {
    return {
        selectRow({"http", "www", "https"}, {}, passThrough, 0, R),
        // A title's full stop belongs to the title and does not end the sentence: "Mr. Brown".
        selectRow({"mr", "mrs", "ms", "dr", "prof"}, at("."), does({}), 1, F),
        selectRow({"about"}, {}, does({classChain(" "), ending("ի շուրջ"_ft), word("")}), 1, R),
        selectRow({"above"}, next("all"), word("moreover"), 4, F),
        selectRow({"absent"}, next("minded"), word("forgetful"), 7, F),
        selectRow({"aired", "airing"}, {}, does({tail(3), wordWithTail("broadcast")}), 0, F),
        selectRow({"airborne"}, plus2("roops"), word("commando"), 0, F),
        selectRow({"amounted", "amounting"}, {}, does({tail(6), wordWithTail("constitute")}), 0, F),
        selectRow({"between", "among"}, {}, does({ending("ի միջև"_ft), word(""), classChain("")}), 1, R),
        selectRow({"because"}, next("of "), word("due"), 0, F, [](Engine& e) { e.DefiniteState = 0; }),
        selectRow({"beef"}, at(" up "), word("strengthen"), 3, F),
        selectRow({"blood"}, at("-soaked"), does({word(""), insert("արնաթաթախ"_ft)}), 7, F),
        selectRow({"board"}, either(at(" of "), at(" OF ")), word("advise"), 0, F),
        selectRow({"brand"}, next("new"), word("absolute"), 0, F),
        selectRow({"bring", "bringing", "brings"}, next("together"), does({tail(5), wordWithTail("consolidate")}), 9,
                  F),
        selectRow({"brought"}, next("together"), word("consolidated"), 9, F),
        selectRow({"buenos"}, next("Aires"), placeName("Բուենոս Այրես"_ft), 6, R),
        selectRow({"cease"}, next("fire"), word("ceasefire"), 4, F),
        selectRow({"cast"}, next("iron"), word("cast-iron"), 4, F),
        selectRow({"carried", "worked"}, next("out "), word("created"), 4, F),
        selectRow({"carrying", "working"}, next("out "), word("creating"), 4, F, setFlag(&Engine::WorkVerbFlag)),
        selectRow({"control"}, endingOrArticleSet(), word("supervision"), 0, F),
        selectRow({"clock"}, {}, setFlag(&Engine::ClockFlag), 0, F),
        selectRow({"cold"}, either(next("war"), next("War")), does({insert("սառը"_ft), word(""), classChain("nn")}),
                  0, F),
        selectRow({"dwell", "dwelling", "dwelled", "dwells"}, next("on "),
                  does({tail(5), wordWithTail("meditate"), ending("ի մասին"_ft)}), 3, F),
        selectRow({"drafted", "drafting"}, {}, does({tail(5), wordWithTail("constitut")}), 0, F),
        selectRow({"drill"}, next("bit"), word("wimble"), 3, F),
        selectRow({"during"}, {}, does({ending("ի ընթացքում"_ft), word("")}), 1, R),
        selectRow({"into"}, {}, does({ending("ի մեջ"_ft), word("")}), 1, R),
        selectRow({"dump"}, endingOrArticleSet(), word("dust-heap"), 0, F),
        selectRow({"e"}, next("mail"), does({word(""), append("էլ"_ft)}), 0, F),
        selectRow({"excuse"}, either(next("me"), next("us")), word("forgive"), 0, F),
        selectRow({"end", "ended", "ending", "ends"}, next("up in "),
                  does({tail(3), wordWithTail("expire"), ending("ով"_ft)}), 6, F),
        selectRow({"follow"}, both(at("-"), next("up ")),
                  does({word("consecutive"), emit(), append(" "), word("checking")}), 3, R),
        selectRow({"far"}, next("away"), emit(), 5, F),
        selectRow({"first"}, next("of all"), does({emit(), append(" "), ending("ին"_ft), word("queue")}), 6, F),
        selectRow({"flesh"}, next("mob "), does({word(""), insert("Ֆլեշ Մոբ"_ft)}), 4, F),
        selectRow({"finger"}, next("nail"), word("fingernail"), 4, F),
        selectRow({"fire"}, plus2("epartment"), word("firefighter"), 0, F),
        selectRow({"front"}, endingIs("ի մեջ"_ft), ending(""), 0, F),
        selectRow({"free"}, plus2("f charge"), does({word("free of charge"), ending("")}), 10, F, classChain(" ")),
        selectRow({"fond"}, next("of "), word("love"), 3, F),
        selectRow({"force"}, [](Engine& e) { return e.ArticleEnding.empty() && e.PendingEnding.empty(); },
                  word("necessitate"), 0, F),
        selectRow({"focused", "focusing"}, {}, does({tail(5), wordWithTail("concentrate")}), 0, F),
        selectRow({"grew", "grown"}, next("up "), word("increased"), 3, F),
        selectRow({"great"}, next("plenty"), word("riches"), 7, F),
        selectRow({"good"}, {}, does({setFlag(&Engine::GoodFlag), call("gdot")}), 0, F),
        selectRow({"hand", "hands"}, [](Engine& e) { return e.ClockFlag == 1; },
                  [](Engine& e) {
                      e.WordTail = e.CurrentWord.substr(e.CurrentWord.size() - 1);
                      e.CurrentWord = "pointer" + e.WordTail;
                      e.ClockFlag.clear();
                      e.WordTail.clear();
                  },
                  0, F),
        selectRow({"heart"}, next("attack"), word("infarction"), 6, F),
        selectRow({"here"}, next("you are"), word("here-"), 8, F),
        selectRow({"honour"}, either(endingIs("ի վրա"_ft), endingIs("ի մեջ"_ft)), ending("ին"_ft), 0, F),
        selectRow({"kidding"}, {}, word("hocus"), 0, F),
        selectRowSkipFirst({"know"}, at("-how"),
                           does({word("enterpreneurship"), emit(), append(" "), word("skill")}), 4, F),
        selectRow({"lasts", "lasting", "lasted"}, {}, does({tail(4), wordWithTail("continue")}), 0, F),
        selectRow({"law"}, next("enforcement"), word("law-enforcement"), 11, F),
        selectRow({"los"}, next("Angeles"), placeName("Լոս Անջելես"_ft), 8, R),
        selectRow({"longed", "longing", "longs"}, {}, does({tail(4), wordWithTail("dream")}), 0, F),
        selectRow({"lot"}, next("of "), {}, 3, F),
        selectRow({"let", "allow", "lead", "allowd", "led"},
                  [](Engine& e) { return e.CurrentWord == "let" && e.sourceAt(e.ScanPos - 2, 2) == "'s"; },
                  does({word("come"), emit(), [](Engine& e) { e.PersonCode = 3; }}), 0, F,
                  setFlag(&Engine::AdverbFlag)),
        selectRow({"marry", "married", "merries"}, {}, ending("ի հետ"_ft), 0, F),
        selectRow({"made"}, next("of "),
                  [](Engine& e) {
                      e.CurrentWord.clear();
                      e.PendingEnding = FontText("ից "_ft) + e.PendingCopula;
                  },
                  3, F),
        selectRow({"military"}, next("base"), word("military base"), 5, F),
        selectRow({"match"}, [](Engine& e) {
                      return !e.PendingEnding.empty() || !e.ArticleEnding.empty() || e.outputEndsWith("մի "_ft);
                  },
                  word("meeting"), 0, F),
        selectRow({"more"}, plus2("r less"), word("more or less"), 7, F),
        selectRow({"move", "moved", "moves"}, next("away"), [](Engine& e) { e.CurrentWord = "re" + e.CurrentWord; },
                  5, F),
        selectRow({"new"}, next("York"), placeName("Նյու-Յորք"_ft), 5, R),
        selectRow({"number"}, next("plate"), does({word(""), insert("համարանիշ"_ft)}), 5, F),
        selectRow({"need", "needed", "needing", "needs"},
                  [](Engine& e) { return e.ArticleEnding.empty() && e.PendingEnding.empty() && e.AfterHaveBeen.empty(); },
                  does({tail(4), word("need"), emit(), append(" "), wordWithTail("have"), emit()}), 0, F),
        selectRow({"next"}, either(next("to "), next("to.")),
                  does({word("aside"), setFlag(&Engine::ContractionFlag), emit(), append("ն"_ft), ending("ի"_ft)}), 3,
                  R),
        selectRow({"nobody", "nothing", "nowere"}, {}, [](Engine& e) { e.NegationMark = FontText("չ"_ft); }, 0, F),
        selectRow({"not"}, [](Engine& e) { return !e.PendingCopula.empty(); },
                  [](Engine& e) {
                      e.CurrentWord.clear();
                      e.derocz();
                      e.PendingCopula = FontText("չ"_ft) + e.PendingCopula;
                  },
                  0, F),
        selectRow({"once"}, next("more"), append("ևս "_ft), 4, F),
        selectRow({"open"}, [](Engine& e) { return e.ToMark == "to"; }, word("unpack"), 0, F),
        // No skip, on purpose: "of" and "wolves" are read next and translated as well.
        selectRow({"pack"}, next("of wolves"), does({word(""), insert("ոհմակ"_ft)}), 0, F),
        selectRow({"part", "parted", "parting"}, next("with"), does({word("apart"), emit(), append("վել"_ft)}), 0, F),
        selectRow({"particular"}, {},
                  [](Engine& e) {
                      e.teqst_dblclick();
                      if (e.PendingEnding == "ի մեջ"_ft) {
                          e.OutputText += "ապես"_ft;
                          e.PendingEnding.clear();
                      }
                  },
                  0, F),
        selectRow({"pan"}, at("-"), word("co"), 0, F),
        selectRow({"pay", "pays", "paying"}, plus2("ttention"), does({tail(3), wordWithTail("turn")}), 0, F),
        selectRow({"paid"}, plus2("ttention"), word("turned"), 0, F),
        selectRow({"per"}, next("cent"), word("percent"), 5, F),
        selectRow({"petting", "petted"}, {}, does({tail(4), wordWithTail("caress")}), 0, F),
        selectRow({"please"}, {}, setFlag(&Engine::ImperativeFlag), 0, F),
        selectRow({"prompt"},
                  [](Engine& e) { return e.VerbFormMark.empty() && e.ModalFlag.empty() && e.NegationMark.empty(); },
                  word("swift"), 0, F),
        selectRow({"pope"}, [](Engine& e) { return e.sourceAt(e.ScanPos - 4, 4) == "Pope"; }, word("Pope"), 0, F),
        selectRow({"public"}, endingOrArticleSet(), word("community"), 0, F),
        selectRow({"quotation"}, next("mark"), word("quotation-mark"), 4, F),
        selectRow({"re", "ve", "d", "m"}, {},
                  [](Engine& e) {
                      e.OutputText += ' ';
                      if (e.ScanPos > static_cast<std::int64_t>(e.CurrentWord.size()) + 1) callProcedure(e, "llkel");
                  },
                  0, F),
        selectRow({"remote"}, next("control"), word("remote control"), 7, F),
        selectRow({"rigged"}, next("election"), word("falsified"), 0, F),
        selectRow({"right"}, next("now"), word("just"), 0, F),
        selectRow({"rose"}, at(" up "), word("rised"), 3, F),
        selectRow({"scored"}, {},
                  does({[](Engine& e) { e.WordTail = "ed"; }, insert("գոլ "_ft), wordWithTail("hit")}), 0, F),
        selectRow({"set"}, [](Engine& e) {
                      return e.outputEndsWith(" մի "_ft) || e.outputEndsWith("Մի "_ft) || !e.ArticleEnding.empty();
                  },
                  word("group"), 0, R),
        selectRow({"secretary"}, plus2("eneral"), insert("գլխավոր "_ft), 8, F),
        selectRow({"secret"}, plus2("ervice"), word("confidential"), 0, F),
        selectRow({"second", "seconds", "minute", "minutes", "hours", "hour", "day", "days", "week", "weeks", "month",
                   "months", "year", "years"},
                  endingIs("ի մեջ"_ft), ending("ից"_ft), 0, F),
        selectRow({"sentencing", "sentenced"}, {},
                  [](Engine& e) {
                      e.WordTail = e.CurrentWord.substr(0, e.CurrentWord.size() > 7 ? e.CurrentWord.size() - 7 : 0);
                      e.CurrentWord = "condemnation";
                  },
                  0, F),
        selectRow({"side"}, next("by side"), does({word(""), insert("կողք կողքի"_ft)}), 8, F),
        selectRow({"site", "sites"}, {}, does({tail(4), wordWithTail("place")}), 0, F),
        selectRow({"sit", "sat", "sits", "sitting"}, next("down"), {}, 4, F),
        selectRow({"slow"}, next("down"), word("retard"), 4, F),
        selectRow({"some", "much", "many", "every", "several"}, {},
                  [](Engine& e) {
                      e.DefiniteState = -1;
                      e.IndefiniteFlag = 1;
                  },
                  0, F),
        selectRow({"sponge"}, next("cake"), word("biscuit"), 4, F),
        selectRow({"stand", "standing", "stands", "stood"}, at(" by "), word("aside"), 3, F),
        selectRow({"station"}, endingIs("ին"_ft), ending("ի մեջ"_ft), 0, F),
        selectRow({"sooner"}, next("or later"), does({word("early"), emit(), append(" թե ուշ"_ft)}), 8, F),
        selectRow({"st"}, at("."), does({word(""), insert("սբ "_ft)}), 1, F),
        ruleRow({"step"},
                [](Engine& e) {
                    if (e.atIs(" up ")) {
                        e.CurrentWord = "add";
                        e.ScanPos += 3;
                    }
                    if (e.nextIs("down")) {
                        e.CurrentWord = "lessen";
                        e.ScanPos += 5;
                    }
                    return F;
                }),
        selectRow({"status"}, next("quo"), does({insert("ստատուս քվո"_ft), word("")}), 3, F),
        selectRow({"swiming"}, next("pool"), word("swiming pool"), 4, F),
        selectRow({"tens"}, next("of "), does({word(""), append("տասնյակ"_ft)}), 0, F),
        selectRow({"then"}, [](Engine& e) { return !e.PendingEnding.empty(); },
                  does({word("that"), emit(), append(" "), word("time")}), 0, F),
        selectRow({"ticketing", "ticketed"}, {}, does({tail(3), word("amerce")}), 0, F),
        selectRow({"think", "reson", "resons", "thinks", "thinking", "resoning", "resoned"}, next("out"),
                  does({tail(5), wordWithTail("discuss")}), 3, F),
        selectRow({"thanks"}, next("to the"), word("due"), 0, F),
        selectRow({"thought"}, next("out"), word("discussed"), 3, F),
        selectRow({"this"}, next("way"), word("so"), 3, F),
        selectRow({"traffic"}, next("light"), word("streetlight"), 5, F),
        selectRow({"train"}, endingOrArticleSet(), does({word(""), insert("գնացք"_ft)}), 0, F),
        selectRow({"trigger"}, [](Engine& e) { return !e.PendingCopula.empty() || e.ModalFlag != 1; },
                  word("begin"), 0, F),
        selectRow({"triggered", "triggering", "triggers"}, {}, does({tail(7), wordWithTail("begin")}), 0, F),
        selectRow({"used"}, next("to "), word("used*"), 0, F),
        selectRow({"united"}, next("States"),
                  [](Engine& e) {
                      e.CurrentWord.clear();
                      e.OutputText += "Միացյալ Նահանգներ"_ft;
                      e.OutputText += e.PendingEnding;
                      e.OutputText += e.ArticleEnding;
                      e.PendingEnding.clear();
                      e.ArticleEnding.clear();
                      e.ClassChain = "n";
                  },
                  7, R),
        selectRow({"under"}, {}, does({classChain(" "), ending("ի տակ"_ft), word("")}), 1, R),
        selectRow({"viewing", "viewed"}, {}, does({tail(4), wordWithTail("watch")}), 0, F),
        selectRow({"well"}, next("being"), word("welfare"), 5, F),
        selectRow({"way"}, endingIs("ի վրա"_ft), does({word("road"), ending("ին"_ft)}), 0, F),
        selectRow({"without"}, {}, [](Engine& e) { e.PendingEnding += "ի"_ft; }, 0, F),
        selectRow({"while", "through"}, {}, setFlag(&Engine::WhileFlag), 0, F),
        selectRow({"would", "should"}, {},
                  does({word("will"), emit(), append(" "), setFlag(&Engine::ConditionalFlag), call("kkamenalPlyus")}),
                  0, F),
        selectRow({"yields", "yielded", "yielding"}, {}, does({tail(5), wordWithTail("cede")}), 0, F),
    };
}

// ---- The longer rules of the select ------------------------------------------------------------

// "not " after the word. A contraction reaches these rules with ScanPos moved back before its
// rest ("can't", "don't" before "n't", "didn't" before "'t"), and that rest is the negation, with
// the same length as "not ", so the skip lands on the delimiter after it.
bool nextIsNot(const Engine& e, std::string_view contractedRest) {
    if (e.nextIs("not ")) return true;
    if (e.ContractionFlag != 1) return false;
    if (e.nextIs(contractedRest)) return true;
    FontText typographic(contractedRest);
    typographic[typographic.find('\'')] = static_cast<char>(font::kRightSingleQuote);
    return e.nextIs(typographic);
}

// A modal followed by "not" writes the negation and steps over it; otherwise its own gloss.
void negationOrModalGloss(Engine& e) {
    if (nextIsNot(e, "n't ")) {
        e.OutputText += "չ"_ft;
        e.ScanPos += 4;
    } else {
        e.teqst_dblclick();
        e.OutputText += ' ';
    }
}

// The person form after "can" and "may". PersonCode 5 ends the rule early.
TriggerReturn canMay(Engine& e) {
    if (!e.PendingEnding.empty() && e.CurrentWord == "may") {
        // The month: "in May" is "մայիսին".
        e.CurrentWord.clear();
        if (e.PendingEnding.ends_with("ի մեջ"_ft))
            e.PendingEnding.replace(e.PendingEnding.size() - "ի մեջ"_ft.size(), "ի մեջ"_ft.size(), "ին"_ft);
        e.InsertText = FontText("մայիս"_ft) + e.PendingEnding;
        mctn(e);
        return F;
    }
    if (e.nextIs("be ")) {
        e.CurrentWord = "possible";
        e.ScanPos += 3;
    } else {
        negationOrModalGloss(e);
    }
    if (e.PersonCode == 1) {
        e.OutputText += "եմ "_ft;
    } else if (e.PersonCode == 2) {
        e.OutputText += "եք "_ft;
    } else if (e.PersonCode == 3) {
        e.OutputText += "ենք "_ft;
    } else if (e.PersonCode == 4) {
        e.OutputText += "են "_ft;
    } else if (e.ThirdPersonFlag.empty() && e.outputEndsWith("չ"_ft)) {
        e.OutputText += "ի "_ft;
    } else if (e.PersonCode == 5) {
        e.OutputText += "է "_ft;
        e.ToMark = "to";
        return F;
    } else {
        e.OutputText += "են "_ft;
    }
    e.ToMark = "to";
    if (e.nextIs("have to")) e.ScanPos += 7;
    return F;
}

TriggerReturn couldMight(Engine& e) {
    negationOrModalGloss(e);
    if (e.PersonCode == 1) {
        e.OutputText += "էի "_ft;
    } else if (e.PersonCode == 2) {
        e.OutputText += "էիք "_ft;
    } else if (e.PersonCode == 3) {
        e.OutputText += "էինք "_ft;
    } else if (e.PersonCode == 4) {
        e.OutputText += "էին "_ft;
    } else if (e.ThirdPersonFlag == 1) {
        e.OutputText += "էին "_ft;
    } else if (!e.PersonCode.empty()) {
        e.OutputText += "էր "_ft;
    }
    e.ToMark = "to";
    if (e.nextIs("have to")) e.ScanPos += 7;
    return F;
}

TriggerReturn shallWillMust(Engine& e) {
    if (e.nextIs("not ")) {
        e.OutputText += "չ"_ft;
        e.ScanPos += 4;
        e.ToMark = "to";
    }
    if (e.nextIs("have to")) e.ScanPos += 7;
    return F;
}

TriggerReturn did(Engine& e) {
    if (e.ContractionFlag == 1) e.CurrentWord.clear();
    if (nextIsNot(e, "'t ")) {
        e.CurrentWord.clear();
        e.ScanPos += 3;
        e.NoApostropheMark = "n't";
        e.VerbFormMark = FontText("ում"_ft);
        if (e.PersonCode == 1) e.OutputText += "չէի"_ft;
        else if (e.PersonCode == 2) e.OutputText += "չէիք"_ft;
        else if (e.PersonCode == 3) e.OutputText += "չէինք"_ft;
        else if (e.PersonCode == 4) e.OutputText += "չէին"_ft;
        else if (e.PersonCode == 5) e.OutputText += "չէր"_ft;
    } else if (atSentenceStart(e, "\n\r")) {
        e.CurrentWord = "do";
    }
    return F;
}

TriggerReturn doRule(Engine& e) {
    if (e.ContractionFlag == 1 || e.nextIs("love")) e.CurrentWord.clear();
    if (!nextIsNot(e, "n't ")) return F;
    e.CurrentWord.clear();
    e.ScanPos += 4;
    e.VerbFormMark = FontText("ում"_ft);
    if (e.PersonCode == 1) {
        e.OutputText += "չեմ"_ft;
    } else if (e.PersonCode == 2) {
        e.OutputText += "չեք"_ft;
    } else if (e.PersonCode == 3) {
        e.OutputText += "չենք"_ft;
    } else if (atSentenceStart(e, "\r\n") || e.ImperativeFlag == 1) {
        e.CurrentWord = "one-";  // the prohibitive "Մի"
    } else {
        e.OutputText += "չեն"_ft;
    }
    e.PersonCode.clear();
    return R;
}

TriggerReturn doesRule(Engine& e) {
    if (e.ContractionFlag == 1) {
        e.CurrentWord.clear();
        e.ThirdPersonFlag.clear();
    }
    if (nextIsNot(e, "n't ")) {
        e.CurrentWord.clear();
        e.ScanPos += 4;
        e.OutputText += "չի"_ft;
        e.PersonCode.clear();
        e.VerbFormMark = FontText("ում"_ft);
        return R;
    }
    e.CurrentWord = "do";
    e.DoFlag = 1;
    return F;
}

TriggerReturn have(Engine& e) {
    callProcedure(e, "yarab");
    if (e.nextIs("had")) {
        e.CurrentWord = "ate";
        e.ScanPos += 3;
        e.teqst_dblclick();
    }
    if (e.CurrentWord == "has") {
        e.ThirdPersonFlag.clear();
        e.PersonCode = 5;
    }
    if (e.nextIs("been")) {
        e.CurrentWord = "been";
        e.ScanPos += 5;
        e.PerfectFlag = 1;
        return R;
    }
    const auto nextChar = e.sourceAt(e.ScanPos + 1, 1);
    if (!nextChar.empty() && isAsciiDigit(static_cast<unsigned char>(nextChar[0]))) return F;
    const auto next3 = e.sourceAt(e.ScanPos + 1, 3);
    if (next3 == "not") {
        if (e.sourceAt(e.ScanPos + 4, 1) != " ") return F;
        callProcedure(e, "woch");
        return R;
    }
    if (next3 == "no ") {
        e.ScanPos += 3;
        if (e.CurrentWord == "has") {
            e.PendingCopula = FontText("է"_ft);
            e.CurrentWord = "haves";
        } else {
            e.CurrentWord = "have";
        }
        e.ThirdPersonFlag.clear();
        e.OutputText += "չ"_ft;
        return R;
    }
    if (next3 == "to ") {
        if (e.CurrentWord == "having") {
            e.CurrentWord = "necessity";
            e.PendingEnding = FontText("ի"_ft);
            return R;
        }
        e.CurrentWord = "must";
        e.ScanPos += 3;
        return R;
    }
    if (next3 == "got") {
        e.CurrentWord = "had";
        e.ScanPos += 4;
        return R;
    }
    if (e.CurrentWord == "had") e.HaveForm = 2;
    else if (e.CurrentWord == "has") e.HaveForm = 3;
    else if (e.CurrentWord == "have") e.HaveForm = 1;
    e.HaveFormPos = e.ScanPos;
    e.CurrentWord.clear();
    return F;
}

// "of": a few fixed phrases; otherwise the genitive ending "ի" for the next noun. Tests that match
// without returning let the later ones run.
TriggerReturn of(Engine& e) {
    if (e.nextIs("it ")) {
        e.ClassChain = " ";
        e.ScanPos += 3;
        e.CurrentWord = "its";
        return R;
    }
    if (e.nextIs("them")) e.PendingEnding.clear();
    if (e.nextIs("which")) {
        e.CurrentWord = "from which";
        e.ScanPos += 5;
        e.teqst_dblclick();
    }
    if (e.nextIs("course")) {
        e.ClassChain = " ";
        e.ScanPos += 7;
        e.CurrentWord = "certainly";
        return R;
    }
    if (e.checked(MenuItem::IMPV)) callProcedure(e, "oof");
    if (!e.PendingCopula.empty() && !e.SentenceClasses.ends_with('n')) {
        e.CurrentWord = "introducing";
        return R;
    }
    e.ClassChain = " ";
    e.PendingEnding = FontText("ի"_ft);
    e.ScanPos += 1;
    e.CurrentWord.clear();
    return R;
}

TriggerReturn onUpon(Engine& e) {
    if (e.nextIs("duty")) {
        e.CurrentWord = "queue";
        e.ClassChain = "nn";
        e.teqst_dblclick();
        e.OutputText += "ա"_ft;
        e.CurrentWord = "moment";
        e.ScanPos += 4;
        return F;
    }
    if (!callProcedure(e, "OnProcedure")) return F;
    return R;
}

std::vector<TriggerRow> longerRules() {
    return {
        ruleRow({"can", "may"}, canMay),
        ruleRow({"could", "might"}, couldMight),
        ruleRow({"shall", "will", "must"}, shallWillMust),
        ruleRow({"did"}, did),
        ruleRow({"do"}, doRule),
        ruleRow({"does"}, doesRule),
        ruleRow({"have", "had", "has", "having"}, have),
        ruleRow({"of"}, of),
        ruleRow({"on", "upon"}, onUpon),
    };
}

// Entries that a row before them already holds: kept out of effect, as the select has them.
std::vector<TriggerRow> deadRows() {
    return {
        // "hand" and "hands" reach the ClockFlag row; hancnel serves "handed" and "handing" alone.
        proc({"hand", "hands"}, "hancnel", F),
        // "come", "comes" and "came" reach `come`, so they never set AdverbFlag.
        selectRow({"come", "comes", "came"}, [](Engine&) { return false; }, {}, 0, F, setFlag(&Engine::AdverbFlag)),
    };
}

// The words that call a rule procedure, in the order of the select.
std::vector<TriggerRow> procedureRows() {
    return {
        proc({"a", "an"}, "AAnProcedure", R),
        proc({"after"}, "yetqe", R),
        proc({"as"}, "ibrev", F),
        proc({"at"}, "AtProcedure", R, breakNounChain),
        proc({"alarm"}, "zartucich", F),
        proc({"all"}, "bolor", F),
        proc({"along"}, "hete", F),
        proc({"am", "is", "are", "was", "were"}, "EmEEnEin", F),
        proc({"any"}, "inchani", F),
        proc({"back", "backed", "backing", "backs"}, "back_up", F),
        proc({"be", "been", "being"}, "ToBeOrNotToBe", F),
        proc({"believe", "believing", "believes", "believed'"}, "havatal", F),
        proc({"blew", "blown"}, "traqel", F),
        proc({"blow", "blows", "blowing"}, "pchel", F),
        proc({"by"}, "ByProcedure", R),
        proc({"capital"}, "kaptal", F),
        proc({"carry", "work"}, "krel", F),
        proc({"catch", "catching", "catches", "caught"}, "mrsel", F),
        proc({"carries", "works"}, "Ashkhatutyun", R),
        proc({"close"}, "motik", F),
        proc({"cry", "cried", "cries", "crying"}, "cry", F),
        proc({"come", "coming", "comes", "came", "run", "running", "runs"}, "come", F),
        proc({"cannot"}, "cnto", F),
        proc({"curriculum"}, "c_v", F),
        proc({"crossing", "crossed"}, "xach", F),
        proc({"consist", "consists", "consisting", "consisted"}, "consist_of", F),
        proc({"de"}, "de_facto", F),
        proc({"daughter", "son"}, "harspesa", F),
        proc({"deal", "deals", "dealing", "dealed"}, "deal", F),
        proc({"decision"}, "woroshum", F),
        proc({"dies"}, "DiesProcedure", F),
        proc({"dialogue", "message", "dialog"}, "dialoguebox", F),
        proc({"draw", "draws", "drawing", "drew", "drawn"}, "NkarelUshadr", F),
        proc({"due"}, "dyu", F),
        proc({"each", "each-"}, "woreve", F),
        proc({"english", "armenian", "russian", "german", "french", "spanish", "turkish", "arabish", "jewish", "swidish", "portuguese"}, "lezu", F),
        proc({"even"}, "vabshe", F),
        proc({"fuck", "fucks", "fucked", "fucking"}, "fuck", F),
        proc({"fill", "filled", "filling"}, "lcnellracnel", F),
        proc({"figure", "figures"}, "Figurant", F),
        proc({"find", "found", "finds", "finding"}, "find", F),
        proc({"figured", "figuring"}, "Figurant2", F),
        proc({"fine"}, "finearts", F),
        proc({"for"}, "ForProcedure", R, breakNounChain),
        proc({"from"}, "FromProcedure", R, breakNounChain),
        proc({"fight"}, "haxtaharel", F),
        proc({"fixed"}, "himnamijoc", F),
        proc({"full"}, "vrjkt", F),
        proc({"get", "gets", "getting"}, "GetGetsGettingProcedure", R),
        proc({"got"}, "GotProcedure", R),
        proc({"give", "gives", "giving"}, "GiveNerka", F),
        proc({"given", "gave"}, "GiveAncyal", F),
        proc({"ground"}, "gfloor", F),
        proc({"grow", "grows", "growing"}, "achrtel", F),
        proc({"go", "going"}, "sharunakel1", F),
        proc({"goes"}, "sharunakel2", F),
        proc({"good"}, "gdot", F),
        proc({"hard"}, "KoshtUkopit", F),
        proc({"handed", "handing"}, "hancnel", F),
        proc({"higher"}, "barcrakrt", F),
        proc({"headed"}, "xekavarats", F),
        proc({"health"}, "sofiknoc", F),
        proc({"high"}, "vaxtin", F),
        proc({"horse"}, "dziauzh", F),
        proc({"human"}, "human", F),
        proc({"hunger"}, "hacadul", F),
        proc({"i", "we"}, "cavumem", F),
        proc({"ice"}, "icecream", F),
        proc({"in"}, "InProcedure", R),
        proc({"interior", "foreign"}, "artaqin", F),
        proc({"iron", "irons", "ironed", "ironing"}, "iron", F),
        proc({"issue"}, "HangamaNqner", F),
        proc({"keep", "keeps", "kept"}, "pahel", F),
        proc({"kind", "sort"}, "tesakme", F),
        proc({"last"}, "LastName", F),
        proc({"leave", "leaves", "leaving"}, "meknel1", F),
        proc({"left"}, "meknel2", F),
        proc({"leap"}, "nahang", F),
        proc({"light", "lit", "lighting", "lights"}, "lit", F),
        proc({"lives"}, "LivesProcedure", F),
        proc({"long"}, "yerkar", F),
        proc({"log", "logs", "logged", "logging"}, "geranel", F),
        proc({"look", "looks", "looking", "looked"}, "lk", F),
        proc({"make", "makes", "making", "made"}, "areqinc", F),
        proc({"middle"}, "middle", F),
        proc({"mother", "father", "brother", "sister"}, "khnami", F),
        proc({"my", "your", "his", "her", "our", "their"}, "sepakanmijoc", F),
        proc({"native"}, "mayreni", F),
        proc({"never"}, "erbeq", F),
        proc({"near"}, "MerzavorArevelq", F),
        proc({"no"}, "anhrazhesht", F),
        proc({"o"}, "zhame", F),
        proc({"one"}, "mekn", F),
        proc({"or"}, "aylapes", F),
        proc({"other"}, "MyusKoxmic", F),
        proc({"out"}, "OutOfProcedure", F),
        proc({"over"}, "veravera", F),
        proc({"offers"}, "OfferProcedure", F),
        proc({"pass", "passed", "passing", "passes"}, "pass", F),
        proc({"phone", "computer"}, "herakhosel", F),
        proc({"proud"}, "hpart", F),
        proc({"point"}, "tesaket", F),
        proc({"pop"}, "trir", F),
        proc({"post"}, "posht", F),
        proc({"power", "electric"}, "elkayan", F),
        proc({"pre"}, "Preimas", F),
        proc({"put", "putting", "puts"}, "dnel", F),
        proc({"rather"}, "rad", F),
        proc({"real"}, "ansharzhguyk2", F),
        proc({"river"}, "GetAp", F),
        proc({"rules", "ruled", "ruling"}, "rule", F),
        proc({"s"}, "ss", F),
        proc({"saw"}, "sxoc", F),
        proc({"sawed", "sawing", "saws"}, "sxocel", F),
        proc({"show", "shows", "showing", "shown", "showed"}, "haytnvel", F),
        proc({"shut", "shuts", "shutting"}, "shut", F),
        proc({"sign", "signed", "signing"}, "mutqaelqagrvel", F),
        proc({"since"}, "since", F),
        proc({"single", "singled", "singles", "singling"}, "singl", F),
        proc({"sorry"}, "NerumnHaycel", F),
        proc({"speak", "speaks", "speaking", "spoke"}, "spk_out", F),
        proc({"speed", "speeded", "speeds", "speeding"}, "spid", F),
        proc({"spell", "spelling", "spelled", "spells"}, "spell", F),
        proc({"spare"}, "zapchast", F),
        proc({"stay"}, "gisherel", F),
        proc({"stop", "stopped", "stopping", "stops"}, "kaynel", F),
        proc({"sold"}, "caxinprcan", F),
        proc({"so"}, "ispes", F),
        proc({"switch", "switches", "switched", "switching"}, "switch", F),
        proc({"to"}, "zqez", R),
        proc({"the"}, "DefArtProcedure", R),
        proc({"thank"}, "ShnorhakalQeznic", F),
        proc({"taking"}, "TakingProcedure", F),
        proc({"take"}, "TakeProcedure", F),
        proc({"takes"}, "TaksProcedure", F),
        proc({"taken", "took"}, "TookTakenProcedure", F),
        proc({"tel"}, "TelAviv", F),
        proc({"term", "terming"}, "term", F),
        proc({"tight"}, "Sexm", F),
        proc({"time"}, "woroshzhamanakov", F),
        proc({"there"}, "hon", F),
        proc({"too"}, "yevst", F),
        proc({"turn", "turning", "turns", "turned"}, "varem_marem", F),
        proc({"up"}, "ap", F),
        proc({"use"}, "SovorLinel", F),
        proc({"very"}, "anchaps", F),
        proc({"vice"}, "Yndhakarakn", F),
        proc({"wake", "woke", "woken", "wakes", "waking"}, "zartel", F),
        proc({"water"}, "dzmeruk", F),
        proc({"waste"}, "wasteloss", F),
        proc({"wait", "waits", "waiting", "waited"}, "wait", F),
        proc({"wedding"}, "wparty", F),
        proc({"went", "gone"}, "sharunakel3", F),
        proc({"with"}, "WithProcedure", R),
        proc({"world"}, "Hamashkharhayin", F),
        proc({"what", "whom", "where", "when", "how", "which", "who", "whose", "why"}, "QwestionWorsProcedure", F,
             [](Engine& e) { e.ContractionFlag = 1; }),
    };
}

std::vector<TriggerRow> buildTable() {
    // The rules written in the select come first: "good" sets GoodFlag before it calls `gdot`, and
    // "made" is the rule of "made of" rather than `areqinc`.
    std::vector<TriggerRow> rows;
    for (auto* part : {selectRows, longerRules, procedureRows, deadRows}) {
        for (auto& r : part()) rows.push_back(std::move(r));
    }
    return rows;
}

}  // namespace

const TriggerTable& englishTriggerTable() {
    static const TriggerTable table{buildTable()};
    return table;
}

std::optional<TriggerReturn> englishSelect(Engine& e) { return englishTriggerTable().dispatch(e); }

}  // namespace vorlexa
