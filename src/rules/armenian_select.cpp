// The trigger select of Armenian source text: the words that call a rule procedure, then the
// rules written in the select itself. The two lists are one: a word on both is decided by its
// first row ("և" reaches the look-up, never the row that turns it into "ու").
#include "rules/selects.h"

#include "rules/procedure_registry.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;
using namespace row;

namespace {

constexpr TriggerReturn F = TriggerReturn::Finish;
constexpr TriggerReturn R = TriggerReturn::Rescan;

TriggerRow proc(std::initializer_list<std::string_view> words, std::string_view procedure) {
    return procedureRow(words, procedure, F);
}

RowTest couldFlagSet() {
    return [](Engine& e) { return e.CouldFlag == 1; };
}

// A negative copula: "karox" looks for "կարող" and "կարելի" after it.
TriggerReturn negativeCopula(Engine& e) {
    callProcedure(e, "karox");
    if (e.CanFlag == 1) {
        e.CurrentWord = FontText("չի կրնա"_ft);
        e.CanFlag.clear();
    }
    return F;
}

// "ես" after "...ում" is "you are" (the plural "եք"); after "...ել" it makes the verb before a
// participle in "ed".
TriggerReturn youAre(Engine& e) {
    if (e.ScanPos < 6) return F;
    const auto before = e.sourceAt(e.ScanPos - 5, 3);
    if (before == "ւմ "_ft) e.CurrentWord = FontText("եք"_ft);
    if (before == "ել "_ft) {
        if (e.outputEndsWith("  ")) e.OutputText.pop_back();
        else e.OutputText.resize(e.OutputText.size() >= 2 ? e.OutputText.size() - 2 : 0);
        e.OutputText += "ed";
        e.CurrentWord.clear();
    }
    return F;
}

void passThrough(Engine& e) {
    e.HttpPassThrough = std::move(e.CurrentWord);
    e.CurrentWord.clear();
    e.InternetWhile();
    e.OutputText += e.HttpPassThrough;
    e.HttpPassThrough.clear();
}

std::vector<TriggerRow> procedureRows() {
    return {
        proc({"ամեն"_ft}, "ameninch"),
        proc({"անցավ"_ft}, "ancav"),
        proc({"անշարժ"_ft}, "ansharzhguyq"),
        proc({"ապա"_ft}, "apatewoch"),
        proc({"արդեն"_ft}, "ardenisk"),
        proc({"բարև"_ft, "բարեվ"_ft}, "barevdzez"),
        proc({"բարի"_ft}, "barigood"),
        proc({"առավոտ"_ft, "օր"_ft, "երեկո"_ft, "գիշեր"_ft, "ճանապարհ"_ft, "իրիկուն"_ft}, "bariluyss"),
        proc({"բոզի"_ft}, "bozi_txa"),
        proc({"դժվար"_ft, "հազիվ"_ft}, "hazivte"),
        proc({"երբեք"_ft}, "erbeq"),
        proc({"ըստ"_ft}, "esteutyan"),
        proc({"թե"_ft}, "teche"),
        proc({"ժամացույցի"_ft}, "zhamslak"),
        proc({"իբր"_ft, "իբրև"_ft, "ասես"_ft}, "ibrevte"),
        proc({"լույս"_ft}, "luys"),
        proc({"կոշտ"_ft}, "dsk"),
        proc({"համարի"_ft, "համարիս"_ft, "համարիդ"_ft, "համարում"_ft, "համարով"_ft, "համարից"_ft, "համարին"_ft,
              "համարը"_ft, "համարների"_ft, "համարներիս"_ft, "համարներիդ"_ft, "համարներում"_ft, "համարներով"_ft,
              "համարներից"_ft, "համարներին"_ft, "համարները"_ft},
             "hamarist"),
        proc({"հոգ"_ft}, "hogtanel"),
        proc({"հորդ"_ft}, "hordancrev"),
        proc({"հարկ"_ft}, "harkkar"),
        proc({"ճիշտն"_ft}, "chishtnasac"),
        proc({"մեկ"_ft}, "odin"),
        proc({"մեն"_ft}, "menmenak"),
        proc({"մերձավոր"_ft}, "MiddlEast"),
        proc({"մեզի"_ft, "մեզիս"_ft, "մեզիդ"_ft, "մեզում"_ft, "մեզով"_ft, "մեզից"_ft, "մեզին"_ft, "մեզը"_ft}, "shers"),
        proc({"մի"_ft}, "mekangam"),
        proc({"մաս"_ft, "մասի"_ft, "մասից"_ft, "մասում"_ft, "մասով"_ft, "մասին"_ft, "մասը"_ft, "մասեր"_ft, "մասերի"_ft,
              "մասերից"_ft, "մասերում"_ft, "մասերով"_ft, "մասերին"_ft, "մասերը"_ft},
             "xmas"),
        proc({"մեծ"_ft}, "mecgood"),
        proc({"նշանակում"_ft}, "nshnk"),
        proc({"շատ"_ft}, "verimuch"),
        proc({"շաբաթ"_ft}, "shabat"),
        proc({"շուտ"_ft}, "shutara"),
        proc({"ոչ"_ft}, "woch"),
        proc({"որդու"_ft, "որդով"_ft}, "wordiw"),
        proc({"պետք"_ft}, "petqe"),
        proc({"վաղ"_ft}, "vaxteush"),
        proc({"տակս"_ft, "տակդ"_ft, "տակերս"_ft, "տակերդ"_ft, "տակիս"_ft, "տակիդ"_ft, "տակերիս"_ft, "տակերիդ"_ft,
              "տակիցս"_ft, "տակիցդ"_ft, "տակերիցս"_ft, "տակերիցդ"_ft, "տակովս"_ft, "տակովդ"_ft, "տակերովս"_ft,
              "տակերովդ"_ft, "տակումս"_ft, "տակերումս"_ft, "տակումդ"_ft, "տակերումդ"_ft, "տակինս"_ft, "տակինդ"_ft,
              "վրաս"_ft, "վրադ"_ft, "վրաներս"_ft, "վրաներդ"_ft, "վրայիս"_ft, "վրայիդ"_ft, "վրաներիդ"_ft, "վրայովս"_ft,
              "վրայովդ"_ft, "վրաներովս"_ft, "վրաներովդ"_ft},
             "tak"),
        proc({"ցավում"_ft}, "cavumem"),
        proc({"փոքր"_ft, "դյուզն"_ft}, "dyuzninch"),
        proc({"և"_ft}, "teqst_dblclick"),
        proc({"օրս"_ft}, "ors"),
    };
}

// The rules written in the select.
std::vector<TriggerRow> selectRows() {
    return {
        selectRow({"http", "www", "https"}, {}, passThrough, 0, R),
        selectRow({"այդ"_ft, "այս"_ft}, either(next("թվում"_ft), next("Թվում"_ft)), word("ներառնող"_ft), 6, F),
        selectRow({"ավելի"_ft, "առավել"_ft}, next("շատ"_ft), emit(), 4, F),
        selectRow({"գալու"_ft}, {}, word("եկելու"_ft), 0, F),
        ruleRow({"ես"_ft}, youAre),
        selectRow({"ելանք"_ft, "ելաք"_ft, "ելան"_ft, "ելա"_ft, "ելար"_ft, "ելավ"_ft}, {},
                  does({word("եկավ"_ft), emit(), append(" out")}), 0, F),
        selectRow({"եմ"_ft, "ես"_ft, "է"_ft, "ենք"_ft, "եք"_ft, "են"_ft}, couldFlagSet(),
                  does({[](Engine& e) { e.CouldFlag.clear(); }, word("")}), 0, F),
        selectRow({"էի"_ft, "էիր"_ft, "էր"_ft, "էինք"_ft, "էիք"_ft, "էին"_ft}, couldFlagSet(),
                  [](Engine& e) {
                      e.CurrentWord = FontText("կարողղ"_ft);
                      e.CouldFlag.clear();
                      e.OutputText.resize(e.OutputText.size() >= 4 ? e.OutputText.size() - 4 : 0);
                  },
                  0, F),
        // The article and the case ending written apart from their word ("ԱԳՆ-ն", "2018-ի") say nothing
        // of their own in English.
        selectRow({"ը"_ft, "ի"_ft, "ն"_ft}, {}, word(""), 0, R),
        selectRow({"ընդունակ"_ft}, {}, [](Engine& e) { e.AbleFlag = 1; }, 0, F),
        selectRow({"թ"_ft}, at("."), does({word("թ."_ft), emit()}), 1, F),
        selectRow({"թել"_ft}, either(next("Ավիվ"_ft), next("ավիվ"_ft)), word("թել-ավիվ"_ft), 0, F),
        selectRow({"ինչպես"_ft}, next("նաև"_ft), word(""), 0, F),
        selectRow({"շարս"_ft, "թիվս"_ft, "չարս"_ft}, {},
                  does({[](Engine& e) { e.CurrentWord.pop_back(); }, insert("in "), ending("")}), 0, F),
        selectRow({"ինչ"_ft}, next("որ "_ft), word("որոշ"_ft), 2, F),
        selectRow({"լալու"_ft}, {}, word("լացելու"_ft), 0, F),
        selectRow({"ծնվեցի"_ft, "ծնվեցիր"_ft, "ծնվեց"_ft, "ծնվեցինք"_ft, "ծնվեցիք"_ft, "ծնվեցին"_ft}, {},
                  does({tail(3), wordWithTail("ծնվել"_ft), [](Engine& e) { e.WordTail.clear(); }}), 0, F),
        selectRow({"կարծես"_ft}, next("թե "_ft), {}, 3, F),
        selectRow({"հենց"_ft}, next("հիմա"_ft), word("աջ"_ft), 0, F),
        selectRow({"մորը"_ft, "հորը"_ft, "եղբորը"_ft}, {},
                  [](Engine& e) {
                      e.CurrentWord.resize(e.CurrentWord.size() - 3);
                      e.CurrentWord += "այրին"_ft;
                  },
                  0, F),
        ruleRow({"չէի"_ft, "չէիր"_ft, "չէր"_ft, "չէինք"_ft, "չէիք"_ft, "չէին"_ft}, negativeCopula),
        ruleRow({"չեմ"_ft, "չես"_ft, "չէ"_ft, "չի"_ft, "չենք"_ft, "չեք"_ft, "չեն"_ft}, negativeCopula),
        selectRow({"չուգուն"_ft}, {}, word("թուջ"_ft), 0, F),
        // Both are compared over 8 characters, so "շրջանի" matches only where the text ends.
        selectRow({"վերջին"_ft},
                  [](Engine& e) {
                      const auto next8 = e.sourceAt(e.ScanPos + 1, 8);
                      return next8 == "շրջանում"_ft || next8 == "շրջանի"_ft;
                  },
                  word("վերջերս"_ft), 8, F),
        selectRow({"տալու"_ft}, {}, word("տվելու"_ft), 0, F),
        selectRow({"ում"_ft, "ից"_ft, "ին"_ft, "թ"_ft}, [](Engine& e) { return e.outputEndsWith("-"); },
                  [](Engine& e) {
                      e.OutputText.pop_back();
                      e.CurrentWord.clear();
                  },
                  0, F),
        selectRow({"ցամաք"_ft}, next("հաց"_ft), word("չոր"_ft), 0, F),
        selectRow({"քանիս"_ft, "քանիսով"_ft}, {}, word("որքան"_ft), 0, F),
        selectRow({"քաջ"_ft}, next("հայտնի"_ft), word("ավելի լավ"_ft), 0, F),
        selectRow({"քավ"_ft}, next("լիցի"_ft), does({word(""), insert("for God's sake")}), 4, F),
        selectRow({"քրոջն"_ft, "քրոջը"_ft}, either(next("որ "_ft), next("որ,"_ft)), word("իբրև"_ft), 3, F,
                  word("քույրին"_ft)),
        selectRow({"և"_ft}, {}, does({word("ու"_ft), emit()}), 0, F),
    };
}

}  // namespace

const TriggerTable& armenianTriggerTable() {
    static const TriggerTable table = [] {
        std::vector<TriggerRow> rows = procedureRows();
        for (auto& row : selectRows()) rows.push_back(std::move(row));
        return TriggerTable(std::move(rows));
    }();
    return table;
}

std::optional<TriggerReturn> armenianSelect(Engine& e) { return armenianTriggerTable().dispatch(e); }

}  // namespace vorlexa
