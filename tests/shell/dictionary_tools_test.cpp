// The Word Corrector and Edit Expressions windows and the look-up of a double-clicked word, on
// the offscreen platform, driven through the controls the design names.
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <deque>
#include <fstream>
#include <memory>

#include "app/word_lookup_panel.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "shell/dictionary_tools_shell.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/form4.h"
#include "shell/qt_text.h"
#include "shell/scripted_prompter.h"

using namespace vorlexa;
using vorlexa::shell::Form1;
using vorlexa::test::ScriptedPrompter;

namespace {

void writeFile(const std::filesystem::path& path, const char* text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

QString u(const char* utf8) { return QString::fromUtf8(utf8); }

const char* const kEnglish =
    "house\tտուն\tn\n"
    "home\tտուն\tn\n"
    "big\tմեծ\ta\n"
    "large\tմեծ\ta\n";
const char* const kArmenian =
    "տուն\thouse\tn\n"
    "մեծ\tbig\ta\n";

}  // namespace

class DictionaryToolsTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir dir_;
    std::filesystem::path data_;
    ScriptedPrompter prompter_;
    std::unique_ptr<Form1> window_;

    Form1& open() {
        window_ = std::make_unique<Form1>();
        window_->setPrompter(&prompter_);
        window_->saveForExit = [] { return true; };
        if (window_->start(data_, {}) != app::StartResult::Started) qFatal("the window did not start");
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
    shell::DictionaryToolsShell* tools() {
        return child<shell::DictionaryToolsShell>(window_.get(), "DictionaryTools");
    }
    shell::Form2* openCorrector() {
        child<QAction>(window_.get(), "Corr")->trigger();
        shell::Form2* f = tools()->corrector();
        if (!f) qFatal("Corr opened no window");
        return f;
    }
    // Double-clicks the word that begins at a character of a big box.
    void doubleClickAt(const char* boxName, int position) {
        auto* box = child<QPlainTextEdit>(window_.get(), boxName);
        QTextCursor c = box->textCursor();
        c.setPosition(position);
        const QPoint at = box->cursorRect(c).center() + QPoint(2, 0);
        QTest::mouseDClick(box->viewport(), Qt::LeftButton, {}, at);
        QTest::qWait(20);
    }

  private slots:
    void init() {
        QVERIFY(dir_.isValid());
        const std::filesystem::path root =
            dir_.path().toStdString() + "/" + QTest::currentTestFunction();
        std::filesystem::remove_all(root);
        writeFile(root / "src/lexicon/en-hy.tsv", kEnglish);
        writeFile(root / "src/lexicon/hy-en.tsv", kArmenian);
        data_ = root / "data";
        QVERIFY(buildDataFolder(root / "src", data_).ok());
        prompter_ = ScriptedPrompter{};
    }
    void cleanup() {
        if (window_) window_->close();
        window_.reset();
    }

    void correctorOpensFromItsMenuItemWithEveryControl() {
        open();
        QVERIFY(child<QAction>(window_.get(), "Corr")->isEnabled());
        shell::Form2* f = openCorrector();
        QCOMPARE(f->objectName(), QStringLiteral("Form2"));
        QVERIFY(f->isVisible());
        for (const char* name : {"Text1", "Text2", "Text3", "Text4"}) child<QLineEdit>(f, name);
        for (const char* name : {"Label1", "Label2", "Label3", "Label4", "Label5"})
            child<QLabel>(f, name);
        child<QCheckBox>(f, "Check1");
        for (const char* name :
             {"Command1", "Command2", "Command3", "Command4", "Command5", "Command6", "Command7"})
            child<QPushButton>(f, name);
        QCOMPARE(child<QPushButton>(f, "Command3")->text(), QStringLiteral("Search"));
        QCOMPARE(child<QPushButton>(f, "Command3")->toolTip(),
                 QStringLiteral("Hot key - 'ENTER'."));
    }

    void armenianInterfaceGivesTheArmenianCaptions() {
        Form1& w = open();
        w.logic().SkipInterfaceQuestion = 1;
        w.logic().AMN_Click();
        shell::Form2* f = openCorrector();
        QCOMPARE(f->windowTitle(), u("Բառարան"));
        QCOMPARE(child<QLabel>(f, "Label1")->text(), u("անգլերեն"));
        QCOMPARE(child<QPushButton>(f, "Command1")->text(), u("Ջնջել"));
        QCOMPARE(child<QPushButton>(f, "Command6")->text(), u("Բառապաշար"));
    }

    void correctorOpenedAgainIsFreshInTheInterfaceLanguageOfThatMoment() {
        Form1& w = open();
        w.logic().SkipInterfaceQuestion = 1;
        w.logic().AMN_Click();
        shell::Form2* f = openCorrector();
        child<QLineEdit>(f, "Text1")->setText(QStringLiteral("house"));
        f->close();
        w.logic().Engo_Click();
        f = openCorrector();
        QCOMPARE(f->windowTitle(), QStringLiteral("Dictionary"));
        QCOMPARE(child<QPushButton>(f, "Command4")->text(), QStringLiteral("Chng"));
        QVERIFY(child<QLineEdit>(f, "Text1")->text().isEmpty());
    }

    void searchChangeAndTheNextTranslation() {
        open();
        shell::Form2* f = openCorrector();
        child<QLineEdit>(f, "Text1")->setText(QStringLiteral("big"));
        QTest::mouseClick(child<QPushButton>(f, "Command3"), Qt::LeftButton);
        QCOMPARE(child<QLineEdit>(f, "Text2")->text(), u("մեծ"));
        QCOMPARE(child<QLineEdit>(f, "Text3")->text(), QStringLiteral("a"));
        QVERIFY(child<QLineEdit>(f, "Text4")->text().startsWith(QStringLiteral("e-a ")));
        child<QLineEdit>(f, "Text2")->setText(u("խոշոր"));
        prompter_.answers = {kAnswerYes};
        QTest::mouseClick(child<QPushButton>(f, "Command4"), Qt::LeftButton);
        QCOMPARE(prompter_.asked.size(), 1);
        QVERIFY(prompter_.asked[0].contains(QStringLiteral("'English to Armenian'")));
        child<QPlainTextEdit>(window_.get(), "Text3")->setPlainText(QStringLiteral("big"));
        QCOMPARE(child<QPlainTextEdit>(window_.get(), "Text4")->toPlainText().trimmed(),
                 u("խոշոր"));
    }

    void armenianBoxTypesPhoneticallyAndEnterSearches() {
        open();
        shell::Form2* f = openCorrector();
        auto* text2 = child<QLineEdit>(f, "Text2");
        text2->setFocus();
        QTest::keyClicks(text2, QStringLiteral("me]"));
        QCOMPARE(text2->text(), u("մեծ"));
        QTest::keyClick(text2, Qt::Key_Return);
        QCOMPARE(child<QLineEdit>(f, "Text1")->text(), QStringLiteral("big"));
        QVERIFY(child<QLineEdit>(f, "Text4")->text().startsWith(QStringLiteral("a-e ")));
    }

    void allMeaningsDisablesTheStepAndEditButtons() {
        open();
        shell::Form2* f = openCorrector();
        child<QCheckBox>(f, "Check1")->setChecked(true);
        for (const char* name : {"Command1", "Command2", "Command4", "Command5"})
            QVERIFY2(!child<QPushButton>(f, name)->isEnabled(), name);
        QCOMPARE(child<QPushButton>(f, "Command3")->text(),
                 QStringLiteral("Search for all Meanings"));
        QCOMPARE(child<QLineEdit>(f, "Text3")->maxLength(), 25);
    }

    void reportIsHandedToTheDesktopOrItsPathShown() {
        open();
        shell::Form2* f = openCorrector();
        QStringList opened;
        f->openFile = [&opened](const QString& path) {
            opened << path;
            return true;
        };
        child<QLineEdit>(f, "Text1")->setText(QStringLiteral("ho"));
        QTest::mouseClick(child<QPushButton>(f, "Command7"), Qt::LeftButton);
        const QString list = QString::fromStdString((data_ / "tmpe.txt").string());
        QCOMPARE(opened, QStringList{list});
        QVERIFY(prompter_.notices.isEmpty());
        f->openFile = [](const QString&) { return false; };
        QTest::mouseClick(child<QPushButton>(f, "Command7"), Qt::LeftButton);
        QCOMPARE(prompter_.notices.size(), 1);
        QVERIFY(prompter_.notices[0].contains(list));
    }

    void doubleClickInTheSourceShowsTranslationAndSynonyms() {
        Form1& w = open();
        child<QPlainTextEdit>(window_.get(), "Text3")->setPlainText(QStringLiteral("big house"));
        doubleClickAt("Text3", 5);
        const QString tip = child<QPlainTextEdit>(window_.get(), "Text3")->toolTip();
        QVERIFY2(tip.startsWith(u("Translation for 'house' is 'տուն'.")), qPrintable(tip));
        QVERIFY(tip.endsWith(QStringLiteral("'house', 'home'")));
        QVERIFY(w.logic().panel().visible);
        auto* list = child<QListWidget>(window_.get(), "List1");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->text(), QStringLiteral("home"));
        QCOMPARE(child<QLineEdit>(window_.get(), "Text1")->text(), QStringLiteral("house"));
    }

    void doubleClickOnAnAlternativeIsNoLookup() {
        Form1& w = open();
        auto* text4 = child<QPlainTextEdit>(window_.get(), "Text4");
        text4->setPlainText(u("երկրորդ/վայրկյան"));
        QTextCursor c = text4->textCursor();
        c.select(QTextCursor::Document);
        text4->setTextCursor(c);
        QCOMPARE(app::Text4_dblclick(w.logic(), shell::fontText(text4->textCursor().selectedText()))
                     .runReplace,
                 true);
        w.stateChanged();
        QCOMPARE(child<QLineEdit>(window_.get(), "Text2")->text(), u("երկրորդ/վայրկյան"));
        QVERIFY(text4->toolTip().isEmpty());
    }

    void expressionAddedInForm4IsAppliedByTheNextRun() {
        Form1& w = open();
        child<QPlainTextEdit>(window_.get(), "Text3")->setPlainText(QStringLiteral("big house"));
        auto* text4 = child<QPlainTextEdit>(window_.get(), "Text4");
        QCOMPARE(text4->toPlainText().trimmed(), u("մեծ տունը"));
        w.selectText4({0, 3});
        tools()->ETE_Click();
        shell::Form4* f = tools()->expressions();
        QVERIFY(f && f->isVisible());
        QCOMPARE(child<QLineEdit>(f, "Text1")->text(), u("մեծ"));
        child<QLineEdit>(f, "Text2")->setText(u("խոշոր"));
        QTest::mouseClick(child<QPushButton>(f, "Command1"), Qt::LeftButton);
        QVERIFY(child<QLineEdit>(f, "Text1")->text().isEmpty());
        child<QPlainTextEdit>(window_.get(), "Text3")->setPlainText(QStringLiteral("big house "));
        QCOMPARE(text4->toPlainText().trimmed(), u("խոշոր տունը"));
    }
};

QTEST_MAIN(DictionaryToolsTest)
#include "dictionary_tools_test.moc"
