// The output helpers shared by the rules, and the rules of auxiliaries and negation.
#include "rules/rule_contract.h"

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

// InsertText goes at the end of the output, capitalised when the word began with a capital. With
// Accurate Translation it goes in front of the word before instead, unless the last word of
// Armenian source was a noun.
void mctn(Engine& e) {
    if (e.CapitalFlag == 1) {
        pokrmc(e);
        e.OutputText += e.InsertText;
        e.CapitalFlag.clear();
    } else if (!e.TargetClasses.ends_with('n') && e.checked(MenuItem::IMPV)) {
        const std::int64_t saved = e.ScanPos;
        const auto outputLength = static_cast<std::int64_t>(e.OutputText.size());
        const std::int64_t start = outputLength - static_cast<std::int64_t>(e.InsertText.size()) - 1;
        std::int64_t cursor = start > 0 ? start : e.ScanPos;
        const auto charAt = [&](std::int64_t p) { return mid(e.OutputText, static_cast<std::size_t>(p), 1); };
        while (cursor > 0 && charAt(cursor) != " " && charAt(cursor) != "." &&
               mid(e.OutputText, static_cast<std::size_t>(cursor), 2) != "\r\n") {
            --cursor;
        }
        const auto cut = static_cast<std::size_t>(std::min(cursor, outputLength));
        e.OutputText.insert(cut, e.InsertText);
        e.ScanPos = saved;
    } else {
        e.OutputText += e.InsertText;
    }
    e.InsertText.clear();
}

// In English output the first letter goes to upper case; an Armenian small letter to its capital.
void pokrmc(Engine& e) {
    FontText& text = e.InsertText;
    if (text.size() <= 1) return;
    if (e.Check1 == 1 && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 32);
    const auto first = static_cast<unsigned char>(text[0]);
    if (font::isSmall(first)) text[0] = static_cast<char>(first - 1);
}

}  // namespace vorlexa

namespace vorlexa {

using namespace literals;

namespace {

std::string_view nextChars(const Engine& e, std::size_t n) { return e.sourceAt(e.ScanPos + 1, n); }

// Cuts n characters off the end of the output (all of it when it is shorter).
void cutOutput(Engine& e, std::size_t n) { e.OutputText.resize(e.OutputText.size() > n ? e.OutputText.size() - n : 0); }

}  // namespace

// "be late" is one key; otherwise "be" stands for the auxiliary of a participle.
void ToBeOrNotToBe(Engine& e) {
    if (e.nextIs("late") || e.nextIs("back")) {
        e.CurrentWord = "be late";
        e.ScanPos += 4;
    } else {
        e.PerfectFlag = 1;
    }
}

// Forms of "be". Each test sees what the ones before it did.
void EmEEnEin(Engine& e) {
    if (e.nextIs("late")) {
        e.teqst_dblclick();
        e.CurrentWord = "be late";
        e.ScanPos += 4;
        e.VerbFormMark = FontText("ում"_ft);
    }
    if (e.sourceAt(e.ScanPos + 2, 4) == "bout") {
        e.teqst_dblclick();
        e.CurrentWord = "nearly";
        e.ScanPos += 5;
    }
    if (e.nextIs("to be ")) {
        e.CurrentWord = "must";
        e.teqst_dblclick();
        e.OutputText += ' ';
        e.CurrentWord = "be";
        e.PerfectFlag = 1;
        return;
    }
    if (e.nextIs("to ")) e.PendingEnding = FontText("ու"_ft);
}

// "cannot": "unable" with the person's copula, and the verb after it in the infinitive.
void cnto(Engine& e) {
    if (e.nextIs("be")) e.ScanPos += 3;
    e.OutputText += ' ';
    e.CurrentWord = "unable";
    e.teqst_dblclick();
    if (e.PersonCode == 1) e.PersonCode = "եմ "_ft;
    else if (e.PersonCode == 2) e.PersonCode = "եք "_ft;
    else if (e.PersonCode == 5) e.PersonCode = "է "_ft;
    else if (e.PersonCode == 3) e.PersonCode = "ենք "_ft;
    else if (e.PersonCode == 4) e.PersonCode = "են "_ft;
    e.OutputText += ' ';
    e.OutputText += e.PersonCode.text();
    e.ToMark = "to";
}

void kkamenal(Engine& e) {
    if (e.nextIs("like") || e.nextIs("love")) {
        e.CurrentWord = "wish";
        e.ScanPos += 5;
    }
}

// "would" and "should", after the loop has written "will": "would have" drops the "have", and
// "would not" puts "չ" before the verb.
void kkamenalPlyus(Engine& e) {
    kkamenal(e);
    if (e.nextIs("have")) e.ScanPos += 5;
    if (e.nextIs("not ")) {
        e.OutputText += "չ"_ft;
        e.ScanPos += 4;
    }
}

void erbeq(Engine& e) {
    if (e.PersonCode.empty()) {
        e.PersonCode = 2;
        e.ModalFlag = 1;
    }
    e.NegationMark = FontText("չ"_ft);
    if (e.nextIs("mind") || e.nextIs("Mind")) {
        e.ScanPos += 5;
        e.CurrentWord = "thing";
        if (e.DefiniteState.empty()) e.DefiniteState = 1;
        e.teqst_dblclick();
        e.OutputText += "ի տեղ մի դրեք"_ft;
        e.NegationMark.clear();
    }
    if (e.Check1 == 1 && nextChars(e, 1) == "չ"_ft) {
        const auto after = e.sourceAt(e.ScanPos + 2, 2);
        e.teqst_dblclick();
        e.OutputText += ' ';
        e.ScanPos += 1;
        if (after == "ի "_ft || after == "է "_ft) e.PendingEnding = "s";
    }
}

void woch(Engine& e) {
    const auto next3 = nextChars(e, 3);
    if (next3 == "թե "_ft || next3 == "էլ "_ft) {
        e.ScanPos += 3;
    } else if (next3 == "ոք "_ft || next3 == "ոք,"_ft || next3 == "ոք."_ft || next3 == "ոք:"_ft ||
               next3 == "ոք`"_ft) {
        e.CurrentWord = FontText("ոչ ոք"_ft);
        e.ScanPos += 3;
    } else if (next3 == "մի "_ft) {
        e.teqst_dblclick();
        e.OutputText += " a ";
        e.ScanPos += 3;
    } else if (e.Check1 == 0) {
        if (e.nextIs("less") || e.nextIs("more")) {
            e.NegationMark.clear();
        } else {
            e.ScanPos += 4;
            e.CurrentWord.clear();
            e.NegationMark = FontText("չ"_ft);
        }
    }
}

// After a negative copula: "կարելի" is "allowed"; a form of "կարող" makes it "cannot", which the
// select writes once this returns.
void karox(Engine& e) {
    if (e.nextIs("կարելի"_ft)) {
        e.teqst_dblclick();
        e.OutputText += ' ';
        e.CurrentWord = FontText("թույլատրած"_ft);
        e.ScanPos += 6;
    }
    if (e.nextIs("կարողանալու"_ft)) {
        e.ScanPos += 12;
        e.CanFlag = 1;
    } else if (e.nextIs("կարողանում"_ft)) {
        e.ScanPos += 11;
        e.CanFlag = 1;
    } else if (e.nextIs("կարողացել"_ft)) {
        e.ScanPos += 10;
        e.CanFlag = 1;
    } else if (e.nextIs("կարող"_ft)) {
        e.ScanPos += 6;
        e.CanFlag = 1;
    }
}

// "I am sorry", "we are sorry" and their Armenian forms are written whole.
void cavumem(Engine& e) {
    const auto sorry = [&e](std::string_view text, std::int64_t skip) {
        e.CurrentWord.clear();
        e.InsertText = FontText(text);
        mctn(e);
        e.ScanPos += skip;
    };
    if (e.Check1 == 1) {
        if (e.atIs(" եմ"_ft)) sorry("am sorry", 3);
        else if (e.atIs(" ենք"_ft)) sorry("are sorry", 3);
        return;
    }
    if (e.nextIs("am sorry") || e.nextIs("m sorry")) sorry("ցավում եմ"_ft, 8);
    else if (e.nextIs("are sorry") || e.nextIs("m sorry")) sorry("ցավում ենք"_ft, 9);
}

// "there is", "there are" and their negatives. Each test sees what the ones before it did.
void hon(Engine& e) {
    if (e.nextIs("is no ") || e.nextIs("isn't")) {
        e.CurrentWord = "there isn't";
        e.ScanPos += 6;
    }
    if (e.nextIs("are no ")) {
        e.CurrentWord = "are not";
        e.ScanPos += 7;
    }
    if (e.nextIs("arn't")) {
        e.CurrentWord = "are not";
        e.ScanPos += 5;
    }
    if (e.nextIs("wasn't") || e.nextIs("was no ")) {
        e.CurrentWord = "wasn't";
        e.ScanPos += 7;
    }
    // The second literal is compared over six characters, so it never matches.
    if (e.nextIs("weren't") || nextChars(e, 6) == "were no ") {
        e.CurrentWord = "there were not";
        e.ScanPos += 8;
    }
    if (e.nextIs("are")) {
        e.CurrentWord = "exist";
        e.teqst_dblclick();
        e.ScanPos += 3;
        cutOutput(e, 2);
    }
    if (e.nextIs("is ")) {
        e.CurrentWord = "exists";
        e.ScanPos += 3;
    }
    if (e.nextIs("was")) {
        e.CurrentWord = "existed";
        e.teqst_dblclick();
        e.ScanPos += 4;
        cutOutput(e, 2);
        e.OutputText += "ր"_ft;
    }
    if (e.nextIs("were")) {
        e.CurrentWord = "exist";
        e.teqst_dblclick();
        e.ScanPos += 4;
        cutOutput(e, 3);
        e.OutputText += "ին"_ft;
    }
}

void nshnk(Engine& e) {
    if (e.nextIs("է "_ft)) {
        e.CurrentWord = FontText("նշանակել"_ft);
        e.ScanPos += 2;
        e.PendingEnding = "s";
    }
    if (e.outputEndsWith("is not ") || !e.PendingCopula.empty()) {
        e.CurrentWord = FontText("նշանակել"_ft);
        e.VerbFormMark = "ing";
    }
}

}  // namespace vorlexa
