// Words no record matched: the TermsFile of the run, the questions, and the word left in the
// text as it stands.
#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

namespace {

constexpr std::size_t kHideWindowTextLength = 4000;  // longer texts run on unattended, minimised

Question firstUnknownQuestion() {
    Question q;
    q.kind = QuestionKind::UnknownWords;
    q.text.english =
        "TRANSLATION CONTAINS UNKNOWN WORDS!\n\rWOULD YOU LIKE TO ADD THEM TO DICTIONARIES?\n\r\n\r"
        "('YES' - Program will stop by all unknown words,\n\r 'NO' - will leave them not translated.)";
    q.text.armenian = FontText("Թարգմանությունը պարունակում է անհայտ բառեր`"_ft) + "\n\r" +
                      FontText("Կկամենայի՞ք ավելացնել դրանք բառարաններին:"_ft);
    q.title.english = "Dictionary editing note";
    q.title.armenian = q.title.english;  // the box has no Armenian title of its own
    return q;
}

Question perWordQuestion(const FontText& word, bool spellMode) {
    Question q;
    q.subject = word;
    if (spellMode) {
        q.kind = QuestionKind::CorrectUnknownWord;
        q.text.english = "Word '" + word + "' - not recognised!\r\nTo be corrected?";
        q.text.armenian = FontText("«"_ft) + word + FontText("» բառը չի ճանաչվել:"_ft) + "\r\n" +
                          FontText("Ուղղե՞լ"_ft);
        q.title.english = "Spellchecker";
        q.title.armenian = FontText("Սխալների ուղղում"_ft);
    } else {
        q.kind = QuestionKind::AddUnknownWord;
        q.text.english = "No Word '" + word + "' In Dictionary.\r\nShall We Add it Now?";
        q.text.armenian = FontText("«"_ft) + word + FontText("» բառը բառարանում չկա:"_ft) + "\r\n" +
                          FontText("Ավելացնե՞լ"_ft);
        q.title.english = "Attention !!!";
        q.title.armenian = FontText("Ուշադրություն"_ft);
    }
    return q;
}

}  // namespace

void Engine::notFoundPath() {
    LastSeenWord = CurrentWord;
    if (LastSeenWord != LastStemmed && retryUnknownWord()) return;
    reportUnknownWord();
}

void Engine::reportUnknownWord() {
    ++stats.unknownOccurrences;
    if (stats.collectUnknownWords) ++stats.unknownWords[RawWord];

    // A word already reported in this run is written as it stands, with no question.
    if (termsIndex_.contains(RawWord)) {
        OutputText += RawWord;
        OutputText += PendingEnding;
        OutputText += ArticleEnding;
        CurrentWord.clear();
        QuestionMarkHold.clear();
        return;
    }

    ++UnknownCount;
    bool askEachWord = false;
    if (SpellMode == 1) {
        askEachWord = true;
    } else if (checked(MenuItem::ITR) || FirstUnknownAnswer == kAnswerNo) {
        askEachWord = false;
    } else if (AskedOnceMark.empty()) {
        AskedOnceMark = 1;
        if (checked(MenuItem::EF) || checked(MenuItem::SUT)) {
            refuseUnknownWordQuestions();
        } else {
            host.setResultText(OutputText);
            AnswerCode = host.ask(firstUnknownQuestion());
            if (AnswerCode == kAnswerYes) {
                FirstUnknownAnswer = kAnswerYes;
                askEachWord = true;
            } else {
                refuseUnknownWordQuestions();
            }
        }
    } else {
        askEachWord = FirstUnknownAnswer == kAnswerYes;
    }

    if (askEachWord) {
        AnswerCode = host.ask(perWordQuestion(RawWord, SpellMode == 1));
        if (AnswerCode == kAnswerYes) {
            // The add-word panel opens and the scanner leaves at this word's end; the run goes
            // on when the panel is saved.
            if (SpellMode == 1 && CapitalFlag == 1) pokr2();
            host.openAddWordPanel(RawWord);
            return;
        }
    }

    // No: the word joins the TermsFile and stays in the text untranslated.
    CapitalFlag.clear();
    PendingEnding.clear();
    ArticleEnding.clear();
    VerbFormMark.clear();
    if (TermsFile.isOpen()) TermsFile.write(TermCount, RawWord);
    termsIndex_.insert(FontText(trimBlanks(mid(RawWord, 1, kTermRecordLength))));
    ++TermCount;
    ++stats.termsWritten;
    OutputText += RawWord;
    OutputText += PendingEnding;
    OutputText += ArticleEnding;
    CurrentWord.clear();
    QuestionMarkHold.clear();
}

// The user does not want to be asked: a long text goes on unattended.
void Engine::refuseUnknownWordQuestions() {
    FirstUnknownAnswer = kAnswerNo;
    if (SourceText.size() > kHideWindowTextLength) {
        host.minimiseWindow();
        host.hideConverter();
    }
}

}  // namespace vorlexa
