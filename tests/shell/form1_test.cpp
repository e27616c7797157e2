// The main window with its widgets, on the offscreen platform: typing, the titles, the two
// interface languages, the settings across a restart, the second copy, the add-word panel and
// phonetic typing, each driven through the controls the design names.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QWindow>
#include <QTest>
#include <deque>
#include <functional>
#include <fstream>
#include <memory>

#include "app/fixture_lexicon.h"
#include "app/interface_text.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "shell/form1.h"
#include "shell/qt_text.h"
#include "shell/scripted_prompter.h"

using namespace vorlexa;
using vorlexa::shell::Form1;

namespace {

using vorlexa::test::ScriptedPrompter;

void writeFile(const std::filesystem::path& path, const char* text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

QString u(const char* utf8) { return QString::fromUtf8(utf8); }

}  // namespace

class Form1Test : public QObject {
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
        const app::StartResult started = window_->start(data_, {});
        if (started != app::StartResult::Started) qFatal("the window did not start");
        window_->show();
        if (!QTest::qWaitForWindowExposed(window_.get())) qWarning("window not exposed");
        window_->activateWindow();
        return *window_;
    }
    void closeWindow() {
        if (!window_) return;
        window_->close();
        window_.reset();
    }
    template <class T>
    T* child(const char* name) {
        T* w = window_->findChild<T*>(QString::fromLatin1(name));
        if (!w) qFatal("no control %s", name);
        return w;
    }
    QAction* action(const char* name) { return child<QAction>(name); }
    QString text4() { return child<QPlainTextEdit>("Text4")->toPlainText(); }

private slots:
    void init() {
        QVERIFY(dir_.isValid());
        const std::filesystem::path root = dir_.path().toStdString() + "/" + QTest::currentTestFunction();
        std::filesystem::remove_all(root);
        writeFile(root / "src/lexicon/en-hy.tsv", test::kFixtureEnglish);
        writeFile(root / "src/lexicon/hy-en.tsv", test::kFixtureArmenian);
        writeFile(root / "src/help/read.txt", test::kFixtureHelp);
        data_ = root / "data";
        QVERIFY(buildDataFolder(root / "src", data_).ok());
        prompter_ = ScriptedPrompter{};
    }
    void cleanup() { closeWindow(); }

    void controlsCarryTheNamesOfTheDesign() {
        open();
        QCOMPARE(window_->objectName(), QStringLiteral("Form1"));
        child<QPlainTextEdit>("Text3");
        child<QPlainTextEdit>("Text4");
        child<QCheckBox>("Check1");
        child<QProgressBar>("ProgressBar1");
        child<QLabel>("Picture1");
        child<QLabel>("Picture2");
        child<QLineEdit>("Text1");
        child<QLineEdit>("Text2");
        child<QLineEdit>("Text6");
        child<QPushButton>("Command2");
        for (const app::MenuEntry& e : app::menuTree()) {
            const QString name = shell::captionText(e.name);
            if (e.submenu) {
                QVERIFY2(window_->findChild<QMenu*>(name), qPrintable(name));
                continue;
            }
            QAction* a = window_->findChild<QAction*>(name);
            QVERIFY2(a, qPrintable(name));
            QCOMPARE(a->shortcut(), QKeySequence(shell::captionText(e.shortcut)));
            QCOMPARE(a->text(), shell::captionText(app::resourceCaption(e.name)));
        }
        QCOMPARE(window_->windowTitle(), QStringLiteral("ZENKA - Vorlexa"));
        QCOMPARE(action("uta")->text(), QStringLiteral("Unicod to ANSCII Converter"));
    }

    void itemsWhoseWorkIsNotBuiltAreShownDisabled() {
        Form1& w = open();
        for (const char* name : {"uta", "cvtae", "Chat"})
            QVERIFY2(!action(name)->isEnabled(), name);
        for (const char* name : {"TS", "ITR", "IMPV", "SUT", "EF", "EdtTr", "AMN", "Engo", "TA", "exit1", "Open1", "CWD",
                                 "HTD", "fnt", "muse5", "gih", "Ha", "He", "abo", "SSO", "DSO", "Fnd", "Replacce"})
            QVERIFY2(action(name)->isEnabled(), name);
        QVERIFY(child<QMenu>("splc")->menuAction()->isEnabled());
        // Save waits for its dialog and for the first run.
        QVERIFY(!action("Save")->isEnabled());
        QVERIFY(!action("prnt")->isEnabled());
        w.registerCommand(QStringLiteral("Save"), [] {});
        QVERIFY(!action("Save")->isEnabled());
        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("big house"));
        QVERIFY(action("Save")->isEnabled());
        QVERIFY(action("prnt")->isEnabled());
    }

    void typingIntoTheSourceBoxFillsTheResult() {
        open();
        action("ITR")->trigger();
        QVERIFY(action("ITR")->isChecked());
        auto* text3 = child<QPlainTextEdit>("Text3");
        text3->setFocus();
        QTest::keyClicks(text3, QStringLiteral("big house"));
        QCOMPARE(text3->toPlainText(), QStringLiteral("big house"));
        QTRY_VERIFY2(text4().contains(u("մեծ")) && text4().contains(u("տուն")), qPrintable(text4()));
        QVERIFY(prompter_.asked.isEmpty());
        QVERIFY(!child<QCheckBox>("Check1")->isChecked());
        // Under instant translation the title keeps the direction.
        QCOMPARE(window_->windowTitle(), QStringLiteral("Translating from English to Armenian"));
        QVERIFY(!child<QProgressBar>("ProgressBar1")->isVisible());

        // A text set by a command is one change, and so one run.
        QSignalSpy changes(text3, &QPlainTextEdit::textChanged);
        text3->setPlainText(QStringLiteral("red book"));
        QCOMPARE(changes.count(), 1);
        QVERIFY2(text4().contains(u("կարմիր")), qPrintable(text4()));
    }

    void theProgressBarMovesDuringARunAndGoesAtItsEnd() {
        open();
        QString text;
        for (int i = 0; i < 500; ++i) text += QStringLiteral("big red house ");
        text += QStringLiteral("zorbl");
        bool shown = false;
        int value = -1;
        prompter_.whenAsked = [&] {
            shown = child<QProgressBar>("ProgressBar1")->isVisible();
            value = child<QProgressBar>("ProgressBar1")->value();
        };
        child<QPlainTextEdit>("Text3")->setPlainText(text);
        prompter_.whenAsked = nullptr;
        QCOMPARE(prompter_.asked.size(), 1);  // the first unknown word, near the end of the text
        QVERIFY(shown);
        QVERIFY2(value >= 90 && value <= 100, qPrintable(QString::number(value)));
        QVERIFY(!child<QProgressBar>("ProgressBar1")->isVisible());

        // Under instant translation the bar stays hidden.
        action("ITR")->trigger();
        prompter_.asked.clear();
        child<QPlainTextEdit>("Text3")->setPlainText(text + QStringLiteral(" "));
        QVERIFY(prompter_.asked.isEmpty());
        QVERIFY(!child<QProgressBar>("ProgressBar1")->isVisible());
    }

    void theTitleShowsTheDirectionAndThenTheTiming() {
        open();
        auto* text3 = child<QPlainTextEdit>("Text3");
        text3->setPlainText(u("մեծ տուն"));
        QVERIFY(child<QCheckBox>("Check1")->isChecked());
        QVERIFY2(text4().contains(QStringLiteral("big")) && text4().contains(QStringLiteral("house")), qPrintable(text4()));
        QVERIFY2(window_->windowTitle().startsWith(QStringLiteral("Translated in ")), qPrintable(window_->windowTitle()));
        QVERIFY(window_->windowTitle().endsWith(QStringLiteral(" seconds.")));
        QVERIFY(!child<QProgressBar>("ProgressBar1")->isVisible());

        prompter_.answers = {kAnswerYes};
        action("AMN")->trigger();
        text3->setPlainText(QStringLiteral("big house"));
        QVERIFY(!child<QCheckBox>("Check1")->isChecked());
        QVERIFY2(window_->windowTitle().startsWith(u("Թարգմանությունը տևեց ")), qPrintable(window_->windowTitle()));
    }

    void armenianAndEnglishInterfacesChangeEveryCaption() {
        open();
        prompter_.answers = {kAnswerYes};
        action("AMN")->trigger();
        QCOMPARE(prompter_.asked.size(), 1);
        QVERIFY(prompter_.asked[0].contains(u("Հայերեն միջերեսը տեսանելի՞ է:")));
        QVERIFY(action("AMN")->isChecked());
        for (const app::MenuEntry& e : app::menuTree()) {
            const QString expected = shell::captionText(*app::captionIn(e.name, app::Language::Armenian));
            if (e.submenu)
                QCOMPARE(child<QMenu>(e.name.data())->title(), expected);
            else
                QCOMPARE(action(e.name.data())->text(), expected);
        }
        QCOMPARE(window_->windowTitle(), u("ԶԵՆԿԱ - Վորլեքսա"));
        QCOMPARE(child<QLabel>("Picture1")->toolTip(), u("'Ctrl+z' փոխում է մուտքագրման լեզուն:"));

        action("Engo")->trigger();
        QVERIFY(!action("AMN")->isChecked());
        for (const app::MenuEntry& e : app::menuTree()) {
            const QString expected = shell::captionText(*app::captionIn(e.name, app::Language::English));
            if (e.submenu)
                QCOMPARE(child<QMenu>(e.name.data())->title(), expected);
            else
                QCOMPARE(action(e.name.data())->text(), expected);
        }
        QCOMPARE(action("uta")->text(), QStringLiteral("Unicode to ANSI Converter"));
        QCOMPARE(window_->windowTitle(), QStringLiteral("ZENKA - Vorlexa"));
    }

    void noToTheInterfaceQuestionShowsTheFontNote() {
        open();
        prompter_.answers = {kAnswerNo};
        action("AMN")->trigger();
        QCOMPARE(text4(), QStringLiteral("\nInstall a font with Armenian letters.\n"));
    }

    void settingsSurviveARestart() {
        open();
        prompter_.answers = {kAnswerYes};
        action("AMN")->trigger();
        auto* text3 = child<QPlainTextEdit>("Text3");
        text3->setFocus();
        QTest::keyClick(text3, Qt::Key_Z, Qt::ControlModifier);  // TA, from inside a text box
        QVERIFY(action("TA")->isChecked());
        action("ITR")->trigger();
        closeWindow();  // nothing translated: no question, the settings are written

        prompter_ = ScriptedPrompter{};
        open();
        QVERIFY(prompter_.asked.isEmpty());
        QVERIFY(action("AMN")->isChecked());
        QVERIFY(action("TA")->isChecked());
        QVERIFY(action("ITR")->isChecked());
        QVERIFY(!action("EF")->isChecked());
        QVERIFY(child<QLabel>("Picture2")->isVisible());
        QVERIFY(!child<QLabel>("Picture1")->isVisible());
        QCOMPARE(action("TS")->text(), u("Թարգմանել ընտրված հատվածը"));
    }

    void aSecondInstanceIsRefused() {
        open();
        ScriptedPrompter second;
        Form1 other;
        other.setPrompter(&second);
        QCOMPARE(other.start(data_, {}), app::StartResult::AlreadyRunning);
        QCOMPARE(second.notices, QStringList{QStringLiteral("The application is already running!")});
    }

    void exitAsksAboutTheResultAndCancelKeepsTheWindow() {
        open();
        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("big house"));
        prompter_.answers = {kAnswerCancel};
        QVERIFY(!window_->close());
        QVERIFY(window_->isVisible());
        QVERIFY(prompter_.asked.last().contains(QStringLiteral("Would you like to save it?")));
        QVERIFY(!QFile::exists(QString::fromStdString((data_ / "Stringea").string())));
        prompter_.answers = {kAnswerNo};
        QVERIFY(window_->close());
    }

    void theAddWordPanelAddsAWordAndThePausedRunFinishes() {
        open();
        prompter_.answers = {kAnswerYes, kAnswerYes};  // stop at unknown words; add this one
        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("big zorbl house"));
        QCOMPARE(prompter_.asked.size(), 2);
        QVERIFY(prompter_.asked[1].contains(QStringLiteral("No Word 'zorbl' In Dictionary.")));
        auto* text1 = child<QLineEdit>("Text1");
        auto* text2 = child<QLineEdit>("Text2");
        QVERIFY(text1->isVisible());
        QCOMPARE(text1->text(), QStringLiteral("zorbl"));
        QCOMPARE(child<QPushButton>("Command2")->text(), QStringLiteral("Save"));
        QVERIFY(!text4().contains(u("տուն")));

        // A click into the box keeps Latin typing, the language of the English source; the
        // translation is typed phonetically after Ctrl+Z.
        QTest::mouseClick(text2, Qt::LeftButton);
        QVERIFY(!action("TA")->isChecked());
        QTest::keyClick(text2, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(action("TA")->isChecked());
        QTest::keyClicks(text2, QStringLiteral("zarmik"));
        QCOMPARE(text2->text(), u("զառմիկ"));
        QTest::keyClicks(child<QLineEdit>("Text6"), QStringLiteral("n"));
        QTest::mouseClick(child<QPushButton>("Command2"), Qt::LeftButton);

        QVERIFY(!text1->isVisible());
        QVERIFY2(text4().count(u("զառմիկ")) == 1, qPrintable(text4()));
        QVERIFY2(text4().contains(u("տուն")), qPrintable(text4()));
        QCOMPARE(window_->logic().engine()->state, RunState::Idle);
        QVERIFY(window_->logic().store().findEnglish("zorbl"));
        QVERIFY(window_->logic().store().findArmenian(shell::fontText(u("զառմիկ"))));
    }

    void typedTextRunsWhenTypingPausesAndNoKeyIsLost() {
        open();
        QVERIFY(!action("ITR")->isChecked());
        auto* text3 = child<QPlainTextEdit>("Text3");
        text3->setFocus();
        QString textAtQuestion;
        prompter_.whenAsked = [&] { textAtQuestion = text3->toPlainText(); };
        QTest::keyClicks(text3, QStringLiteral("big zorbl house"));
        // No run has started while the keys came: nothing is asked, nothing translated yet.
        QVERIFY(prompter_.asked.isEmpty());
        QVERIFY(text4().isEmpty());
        // Typing has paused: one run over the whole text, which asks about the unknown word.
        QTRY_COMPARE(prompter_.asked.size(), 1);
        QCOMPARE(textAtQuestion, QStringLiteral("big zorbl house"));
        QCOMPARE(text3->toPlainText(), QStringLiteral("big zorbl house"));
        QTRY_VERIFY2(text4().contains(u("մեծ")) && text4().contains(u("տուն")) && text4().contains(u("zorbl")),
                     qPrintable(text4()));
        QVERIFY(!child<QLineEdit>("Text1")->isVisible());
        prompter_.whenAsked = nullptr;
    }

    void theAddWordPanelHintsRefusesAnEmptyTranslationAndEscapeSkips() {
        open();
        prompter_.answers = {kAnswerYes, kAnswerYes};
        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("big zorbl house"));
        auto* text1 = child<QLineEdit>("Text1");
        auto* text2 = child<QLineEdit>("Text2");
        auto* skip = child<QPushButton>("SkipWord");
        QVERIFY(text1->isVisible());
        QVERIFY(skip->isVisible());
        for (const char* box : {"Text1", "Text2", "Text6"}) QVERIFY(!child<QLineEdit>(box)->placeholderText().isEmpty());

        QTest::mouseClick(child<QPushButton>("Command2"), Qt::LeftButton);
        QCOMPARE(prompter_.notices.size(), 1);
        QVERIFY2(prompter_.notices[0].contains(QStringLiteral("translation is empty")), qPrintable(prompter_.notices[0]));
        QVERIFY(text1->isVisible());

        text2->setFocus();
        QTest::keyClick(text2, Qt::Key_Escape);
        QVERIFY(!text1->isVisible());
        QVERIFY(!skip->isVisible());
        QCOMPARE(window_->logic().engine()->state, RunState::Idle);
        QVERIFY2(text4().contains(u("zorbl")) && text4().contains(u("տուն")), qPrintable(text4()));
        QCOMPARE(prompter_.asked.size(), 2);
        QVERIFY(!window_->logic().store().findEnglish("zorbl"));
    }

    void theSkipButtonSkipsTheWordToo() {
        open();
        prompter_.answers = {kAnswerYes, kAnswerYes};
        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("zorbl house"));
        QTest::mouseClick(child<QPushButton>("SkipWord"), Qt::LeftButton);
        QVERIFY(!child<QLineEdit>("Text1")->isVisible());
        QVERIFY2(text4().contains(u("տուն")), qPrintable(text4()));
    }

    void aTextPastedWhileThePanelWaitsIsTranslated() {
        open();
        prompter_.answers = {kAnswerYes, kAnswerYes};
        auto* text3 = child<QPlainTextEdit>("Text3");
        text3->setPlainText(QStringLiteral("big zorbl house"));
        QVERIFY(child<QLineEdit>("Text1")->isVisible());

        QApplication::clipboard()->setText(QStringLiteral("red book"));
        text3->setFocus();
        text3->selectAll();
        QTest::keyClick(text3, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(text3->toPlainText(), QStringLiteral("red book"));
        QVERIFY(!child<QLineEdit>("Text1")->isVisible());
        QCOMPARE(window_->logic().engine()->state, RunState::Idle);
        QVERIFY2(text4().contains(u("կարմիր")) && text4().contains(u("գիրք")), qPrintable(text4()));
        QVERIFY(!child<QProgressBar>("ProgressBar1")->isVisible());
    }

    void theWindowComesBackAfterAnUnattendedRun() {
        open();
        prompter_.answers = {kAnswerNo};  // leave the unknown words: a long text runs unattended
        QSignalSpy states(window_->windowHandle(), &QWindow::windowStateChanged);
        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("zorbl ") +
                                                     QStringLiteral("The big house is red.\n").repeated(200));
        QCOMPARE(window_->attentionRequests(), 1);
        QTRY_VERIFY(!window_->isMinimized());
        bool wasMinimised = false;
        for (const QList<QVariant>& change : states)
            wasMinimised = wasMinimised || change.at(0).value<Qt::WindowState>() == Qt::WindowMinimized;
        QVERIFY(wasMinimised);
        QVERIFY2(text4().contains(u("տուն")), qPrintable(text4()));

        child<QPlainTextEdit>("Text3")->setPlainText(QStringLiteral("zorbl big"));
        QCOMPARE(window_->attentionRequests(), 1);
    }

    void aKeyStrokeOnALongTextUnderInstantTranslationDropsTheSupersededRun() {
        open();
        action("ITR")->trigger();
        auto* text3 = child<QPlainTextEdit>("Text3");
        const QString text = QStringLiteral("The big house is red.\n").repeated(3000);
        text3->setPlainText(text + QStringLiteral("big"));  // a change by code: one whole run
        const QString expected = text4();
        text3->setPlainText(text);

        // The window's clock moves one millisecond each time it is read: a slice is a fixed
        // amount of work, and the time it holds the interface is counted, not measured.
        auto ticks = std::make_shared<std::int64_t>(0);
        window_->logic().now = [ticks] {
            return app::MainForm::Clock::time_point(std::chrono::milliseconds(++*ticks));
        };
        text3->setFocus();
        text3->moveCursor(QTextCursor::End);
        QTest::keyClicks(text3, QStringLiteral("big"));
        // Each key stroke started a run and came back after one slice; the two older runs were
        // dropped by the next key stroke.
        const app::RunCounts& counts = window_->logic().runCounts();
        QCOMPARE(counts.started, 3);
        QCOMPARE(counts.dropped, 2);
        QVERIFY(window_->logic().instantRunPending());
        QVERIFY(counts.longestSlice < std::chrono::milliseconds(100));

        QTRY_VERIFY_WITH_TIMEOUT(!window_->logic().instantRunPending(), 60000);
        QCOMPARE(counts.finished, 1);
        QCOMPARE(counts.dropped, 2);
        QVERIFY(counts.longestSlice < std::chrono::milliseconds(100));
        QCOMPARE(text4(), expected);
    }

    void theSpellCheckPassQuestionsAWordSelectsItAndReplacesItWithTheChosenSuggestion() {
        open();
        auto* text4Box = child<QPlainTextEdit>("Text4");
        text4Box->setPlainText(u("մեծ քիրք"));
        int selectedWhenAsked = -1;
        prompter_.whenAsked = [&] { selectedWhenAsked = text4Box->textCursor().selectionStart(); };
        prompter_.answers = {kAnswerYes};
        action("SSO")->trigger();
        prompter_.whenAsked = nullptr;
        QCOMPARE(prompter_.asked.size(), 1);
        QVERIFY(prompter_.asked[0].contains(u("Word 'քիրք' - not recognised!")));
        QCOMPARE(selectedWhenAsked, 4);  // the word in question stands selected in the result
        auto* text1 = child<QLineEdit>("Text1");
        auto* text2 = child<QLineEdit>("Text2");
        QVERIFY(text1->isVisible());
        QCOMPARE(text1->text(), u("քիրք"));
        QVERIFY(text2->isVisible());
        QCOMPARE(text2->text(), u("գիրք"));
        QVERIFY(!child<QLineEdit>("Text6")->isVisible());
        QCOMPARE(child<QPushButton>("Command2")->text(), QStringLiteral("Replace -\nWith - "));
        QTest::mouseClick(child<QPushButton>("Command2"), Qt::LeftButton);
        QCOMPARE(prompter_.notices.size(), 1);
        QCOMPARE(prompter_.notices[0], QStringLiteral("Spell-Check is completed."));
        QVERIFY2(text4().startsWith(u("մեծ գիրք")), qPrintable(text4()));
        QVERIFY(!text1->isVisible());
    }

    void aRightButtonPressOnTheResultInEditingModeOpensReplaceForTheSelection() {
        open();
        auto* text4Box = child<QPlainTextEdit>("Text4");
        text4Box->setPlainText(QStringLiteral("a cat and a cat"));
        QTextCursor cursor = text4Box->textCursor();
        cursor.setPosition(2);
        cursor.setPosition(5, QTextCursor::KeepAnchor);
        text4Box->setTextCursor(cursor);
        // Outside editing mode the right button is the box's own.
        QTest::mousePress(text4Box->viewport(), Qt::RightButton, {}, QPoint(2, 2));
        QVERIFY(!child<QLineEdit>("Text1")->isVisible());

        action("EF")->trigger();
        text4Box->setTextCursor(cursor);
        QTest::mousePress(text4Box->viewport(), Qt::RightButton, {}, QPoint(2, 2));
        auto* text1 = child<QLineEdit>("Text1");
        QVERIFY(text1->isVisible());
        QCOMPARE(text1->text(), QStringLiteral("cat"));
        QCOMPARE(child<QPushButton>("Command2")->text(), QStringLiteral("Replace -\nWith - "));
    }

    void findSelectsEachMatchAndADoubleClickEndsTheSearch() {
        open();
        child<QPlainTextEdit>("Text4")->setPlainText(QStringLiteral("a big house and a house"));
        action("Fnd")->trigger();
        auto* text1 = child<QLineEdit>("Text1");
        QVERIFY(text1->isVisible());
        QVERIFY(!child<QLineEdit>("Text2")->isVisible());
        QTest::keyClicks(text1, QStringLiteral("house"));
        QTest::mouseClick(child<QPushButton>("Command2"), Qt::LeftButton);
        QCOMPARE(child<QPlainTextEdit>("Text4")->textCursor().selectedText(), QStringLiteral("house"));
        QCOMPARE(child<QPlainTextEdit>("Text4")->textCursor().selectionStart(), 6);
        QCOMPARE(child<QPushButton>("Command2")->text(), QStringLiteral("Find next"));
        QVERIFY(!child<QPushButton>("Command2")->toolTip().isEmpty());
        QTest::mouseClick(child<QPushButton>("Command2"), Qt::LeftButton);
        QCOMPARE(child<QPlainTextEdit>("Text4")->textCursor().selectionStart(), 18);
        QTest::mouseDClick(text1, Qt::LeftButton);
        QVERIFY(!text1->isVisible());
    }

    void phoneticTypingMapsKeysByTheTable() {
        open();
        action("ITR")->trigger();
        auto* text3 = child<QPlainTextEdit>("Text3");
        text3->setFocus();
        QTest::keyClicks(text3, QStringLiteral("ab"));
        QCOMPARE(text3->toPlainText(), QStringLiteral("ab"));
        QTest::mouseClick(child<QLabel>("Picture1"), Qt::LeftButton);  // the picture switches too
        QVERIFY(action("TA")->isChecked());
        QVERIFY(child<QLabel>("Picture2")->isVisible());
        QTest::keyClicks(text3, QStringLiteral(" Barev 0)7?6&{|}"));
        QCOMPARE(text3->toPlainText(), u("ab Բառեվ ճՃև՞6&ԽՇԾ"));
        QTest::keyClick(text3, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!action("TA")->isChecked());
        QVERIFY(child<QLabel>("Picture1")->isVisible());
        QTest::keyClicks(text3, QStringLiteral("x"));
        QCOMPARE(text3->toPlainText(), u("ab Բառեվ ճՃև՞6&ԽՇԾx"));
    }

    void translateSelectionRewritesThePartOfTheResult() {
        open();
        auto* text4box = child<QPlainTextEdit>("Text4");
        text4box->setPlainText(QStringLiteral("AAA big BBB"));
        QTextCursor c = text4box->textCursor();
        c.setPosition(4);
        c.setPosition(7, QTextCursor::KeepAnchor);
        text4box->setTextCursor(c);
        action("TS")->trigger();
        QCOMPARE(child<QPlainTextEdit>("Text3")->toPlainText(), QStringLiteral("big"));
        const QString out = text4();
        QVERIFY2(out.startsWith(QStringLiteral("AAA ")) && out.endsWith(QStringLiteral(" BBB")), qPrintable(out));
        QVERIFY2(out.contains(u("մեծ")), qPrintable(out));
        QCOMPARE(text4box->textCursor().selectionStart(), 4);
        QCOMPARE(text4box->textCursor().selectedText(), out.mid(4, out.size() - 8));
    }

    void editingModeGivesTheWholeAreaToTheResult() {
        open();
        QVERIFY(child<QPlainTextEdit>("Text3")->isVisible());
        action("EF")->trigger();
        QVERIFY(action("EF")->isChecked());
        QVERIFY(!child<QPlainTextEdit>("Text3")->isVisible());
        QVERIFY(child<QPlainTextEdit>("Text4")->isVisible());
        action("EF")->trigger();
        QVERIFY(child<QPlainTextEdit>("Text3")->isVisible());
        QCOMPARE(child<QPlainTextEdit>("Text4")->font().family(), QStringLiteral("DejaVu Sans"));
    }

    void theResultBoxShowsArmenianInAFaceThatHasIt() {
        open();
        const QFont f = child<QPlainTextEdit>("Text4")->font();
        QCOMPARE(f.family(), QStringLiteral("DejaVu Sans"));
        QVERIFY(QFontMetrics(f).inFont(QChar(0x0540)));  // Հ
        QVERIFY(QFontMetrics(f).inFont(QChar(0x0587)));  // և
    }
};

QTEST_MAIN(Form1Test)
#include "form1_test.moc"
