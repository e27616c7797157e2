// The converter window and the text commands of the main window's menu, on the offscreen
// platform: a paste into TextBox1, Label1, Label3, CheckBox1, the Unicode notice of a run, and
// the transliteration and case commands on the selection of Text4.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <fstream>
#include <memory>

#include "app/fixture_lexicon.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "shell/form1.h"
#include "shell/form3.h"
#include "shell/qt_text.h"

using namespace vorlexa;
using vorlexa::shell::Form1;
using vorlexa::shell::Form3;

namespace {

class RecordingPrompter : public shell::Prompter {
public:
    QStringList asked;
    QStringList notices;
    int answer = kAnswerNo;

    int ask(QWidget*, const QString& title, const QString& text, Buttons) override {
        asked << title + QStringLiteral(" | ") + text;
        return answer;
    }
    void notify(QWidget*, const QString&, const QString& text) override { notices << text; }
};

void writeFile(const std::filesystem::path& path, const char* text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

}  // namespace

class Form3Test : public QObject {
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::filesystem::path data_;
    RecordingPrompter prompter_;
    std::unique_ptr<Form1> window_;
    Form3* form3_ = nullptr;

    Form1& open(shell::TextToolsHooks hooks = {}) {
        window_ = std::make_unique<Form1>();
        window_->setPrompter(&prompter_);
        window_->saveForExit = [] { return true; };
        form3_ = shell::installTextTools(*window_, std::move(hooks));
        if (window_->start(data_, {}) != app::StartResult::Started)
            qFatal("the window did not start");
        window_->show();
        if (!QTest::qWaitForWindowExposed(window_.get())) qWarning("window not exposed");
        return *window_;
    }
    template <class T>
    T* child(QObject* parent, const char* name) {
        T* w = parent->findChild<T*>(QString::fromLatin1(name));
        if (!w) qFatal("no control %s", name);
        return w;
    }
    QPlainTextEdit* textBox1() { return child<QPlainTextEdit>(form3_, "TextBox1"); }
    QPlainTextEdit* text3() { return child<QPlainTextEdit>(window_.get(), "Text3"); }
    QPlainTextEdit* text4() { return child<QPlainTextEdit>(window_.get(), "Text4"); }
    // What a copy of the whole of TextBox1 puts on the clipboard.
    QString copyAll() {
        textBox1()->selectAll();
        textBox1()->copy();
        return QGuiApplication::clipboard()->text();
    }
    void trigger(const char* item) {
        QAction* a = child<QAction>(window_.get(), item);
        QVERIFY2(a->isEnabled(), item);
        a->trigger();
    }
    // Puts `all` into Text4 and selects the part from `from`, `length` characters long.
    void selectInText4(const QString& all, int from, int length) {
        text4()->setPlainText(all);
        QTextCursor c = text4()->textCursor();
        c.setPosition(from);
        c.setPosition(from + length, QTextCursor::KeepAnchor);
        text4()->setTextCursor(c);
    }

private slots:
    void init() {
        QVERIFY(dir_.isValid());
        const std::filesystem::path root =
            dir_.path().toStdString() + "/" + QTest::currentTestFunction();
        std::filesystem::remove_all(root);
        writeFile(root / "src/lexicon/en-hy.tsv", test::kFixtureEnglish);
        writeFile(root / "src/lexicon/hy-en.tsv", test::kFixtureArmenian);
        writeFile(root / "src/help/read.txt", test::kFixtureHelp);
        data_ = root / "data";
        QVERIFY(buildDataFolder(root / "src", data_).ok());
        prompter_ = RecordingPrompter{};
    }
    void cleanup() {
        if (window_) window_->logic().finish();
        form3_ = nullptr;
        window_.reset();
    }

    void textCommandsAreEnabledOnceInstalled() {
        open();
        for (const char* item : {"uta", "cvtae", "ET", "LLAT", "AUC", "ALC", "EUC", "ELC"})
            QVERIFY2(child<QAction>(window_.get(), item)->isEnabled(), item);
    }

    void menuOpensTheConverterWithItsCaptionAndControls() {
        open();
        trigger("uta");
        QVERIFY(form3_->isVisible());
        QCOMPARE(form3_->objectName(), QStringLiteral("Form3"));
        QCOMPARE(form3_->windowTitle(), QStringLiteral("UNICODE ANSI CONVERTER"));
        child<QLabel>(form3_, "Label1");
        child<QLabel>(form3_, "Label3");
        child<QCheckBox>(form3_, "CheckBox1");
        QCOMPARE(form3_->logic().position, 2800);
    }

    void pasteOfUnicodeArmenianConvertsAndTranslates() {
        open();
        trigger("uta");
        textBox1()->setFocus();
        textBox1()->insertPlainText(u("տուն"));
        // The box holds the font codes of the letters and shows them as the one-byte font draws
        // them; a copy gives the codes, as a document in that font wants them.
        QCOMPARE(textBox1()->toPlainText(), u("տուն"));
        QCOMPARE(QString::fromStdString(form3_->logic().TextBox1Font),
                 QStringLiteral("Arial Armenian"));
        QCOMPARE(child<QLabel>(form3_, "FaceLabel")->text(), QStringLiteral("Arial Armenian"));
        const QChar codes[] = {QChar(0xEF), QChar(0xE1), QChar(0xF5), QChar(0xDD)};  // տ ո ւ ն
        QCOMPARE(copyAll(), QString(codes, 4));
        QCOMPARE(text3()->toPlainText(), u("տուն"));
        QVERIFY2(text4()->toPlainText().contains(QStringLiteral("house")),
                 qPrintable(text4()->toPlainText()));
        QVERIFY(window_->logic().checked("SUT"));
    }

    void pasteOfOldFontTextIsShownInArmenianAndTranslated() {
        open();
        trigger("uta");
        const QChar codes[] = {QChar(0xD9), QChar(0xBB),
                               QChar(0xCD)};  // մ ե ծ in the one-byte font
        textBox1()->insertPlainText(QString(codes, 3));
        QCOMPARE(textBox1()->toPlainText(), u("մեծ"));
        QCOMPARE(text3()->toPlainText(), u("մեծ"));
        QVERIFY2(text4()->toPlainText().contains(QStringLiteral("big")),
                 qPrintable(text4()->toPlainText()));
    }

    void longRunGoingOnUnattendedHidesTheConverter() {
        open();
        trigger("uta");
        window_->logic().hideConverter();
        QVERIFY(!form3_->isVisible());
    }

    void checkBox1KeepsThePasteFromTheTranslator() {
        open();
        trigger("uta");
        child<QCheckBox>(form3_, "CheckBox1")->setChecked(true);
        textBox1()->insertPlainText(u("տուն"));
        QCOMPARE(copyAll().size(), 4);
        QCOMPARE(copyAll().at(0), QChar(0xEF));
        QVERIFY(text3()->toPlainText().isEmpty());
    }

    void label1TurnsTheBoxBackIntoUnicode() {
        open();
        trigger("uta");
        child<QCheckBox>(form3_, "CheckBox1")->setChecked(true);
        textBox1()->insertPlainText(u("Բարև"));
        QTest::mouseClick(child<QLabel>(form3_, "Label1"), Qt::LeftButton);
        QCOMPARE(textBox1()->toPlainText(), u("Բարև"));
        QCOMPARE(copyAll(), u("Բարև"));
        QCOMPARE(QString::fromStdString(form3_->logic().TextBox1Font), QStringLiteral("sylfaen"));
        QCOMPARE(form3_->logic().ConverterGuard, 0);
    }

    void label3ClosesAndClearsCheckBox1() {
        open();
        trigger("uta");
        auto* check = child<QCheckBox>(form3_, "CheckBox1");
        check->setChecked(true);
        QTest::mouseClick(child<QLabel>(form3_, "Label3"), Qt::LeftButton);
        QVERIFY(!form3_->isVisible());
        QVERIFY(!check->isChecked());
    }

    void labelsAnswerTheKeyboardToo() {
        open();
        trigger("uta");
        auto* label3 = child<QLabel>(form3_, "Label3");
        QTest::keyClick(label3, Qt::Key_Space);
        QVERIFY(!form3_->isVisible());
    }

    void runOnUnicodePastedAsQuestionMarksOpensTheConverterForThePaste() {
        open();
        text3()->setPlainText(QStringLiteral("?????? ????"));
        QCOMPARE(prompter_.notices.size(), 1);
        QCOMPARE(
            prompter_.notices[0],
            QStringLiteral("Armenian text is UNICODE.\nClick 'Ctrl+V' after 'OK' to continue."));
        QVERIFY(form3_->isVisible());
        QCOMPARE(form3_->logic().position, 0);
        QCOMPARE(form3_->focusWidget(), textBox1());
        QVERIFY(text4()->toPlainText().startsWith(u("ՈՒՇԱԴՐՈՒԹՅՈՒՆ!!!!")));
        QVERIFY(text4()->toPlainText().contains(QStringLiteral("ATTENTION!!!!")));
        // The paste lands in the box and is translated.
        textBox1()->insertPlainText(u("մեծ"));
        QCOMPARE(text3()->toPlainText(), u("մեծ"));
        QVERIFY2(text4()->toPlainText().contains(QStringLiteral("big")),
                 qPrintable(text4()->toPlainText()));
    }

    void transliterationChangesOnlyTheSelectionOfText4() {
        open();
        selectInText4(u("Բարև Երևան"), 5, 5);
        trigger("cvtae");
        QCOMPARE(text4()->toPlainText(), u("Բարև Erevan"));
        QCOMPARE(text4()->textCursor().selectedText(), QStringLiteral("Erevan"));
        QVERIFY(!window_->logic().checked("ITR"));
    }

    void englishTextInArmenianLetters() {
        open();
        selectInText4(QStringLiteral("the cat"), 0, 7);
        trigger("ET");
        QCOMPARE(text4()->toPlainText(), u("դ քաթ"));
    }

    void latinLetteredArmenianAsksAboutSpellingAfterwards() {
        open();
        selectInText4(QStringLiteral("barev, barev"), 0, 5);
        trigger("LLAT");
        QCOMPARE(text4()->toPlainText(), u("բարև, barev"));
        QCOMPARE(prompter_.asked.size(), 1);
        QVERIFY(prompter_.asked[0].contains(QStringLiteral("Would you like to check spelling?")));
    }

    void latinLetteredArmenianCallsTheWiredSpellCheck() {
        int calls = 0;
        open({[&calls] { ++calls; }});
        selectInText4(QStringLiteral("barev"), 0, 5);
        trigger("LLAT");
        QCOMPARE(calls, 1);
        QVERIFY(prompter_.asked.isEmpty());
    }

    void caseCommandsChangeOnlyTheSelection() {
        open();
        selectInText4(u("Երևան abc Երևան"), 0, 9);
        trigger("AUC");
        QCOMPARE(text4()->toPlainText(), u("ԵՐԵՎԱՆ abc Երևան"));
        trigger("EUC");
        QCOMPARE(text4()->toPlainText(), u("ԵՐԵՎԱՆ ABC Երևան"));
        trigger("ALC");
        trigger("ELC");
        QCOMPARE(text4()->toPlainText(), u("երեվան abc Երևան"));
    }

    void emptySelectionLeavesText4AsItIs() {
        open();
        selectInText4(u("Բարև"), 2, 0);
        trigger("cvtae");
        trigger("AUC");
        QCOMPARE(text4()->toPlainText(), u("Բարև"));
        QVERIFY(!QApplication::overrideCursor());
    }
};

QTEST_MAIN(Form3Test)
#include "form3_test.moc"
