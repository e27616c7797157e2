// The Open, Save and Font dialog, printing, Help, About and the Internet menu through the main
// window's menu items and the dialog's own controls, on the offscreen platform.
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <fstream>
#include <memory>

#include "app/fixture_lexicon.h"
#include "app/menu_commands.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "shell/dialog.h"
#include "shell/form1.h"
#include "shell/frm_about.h"
#include "shell/printing.h"
#include "shell/qt_text.h"
#include "shell/scripted_prompter.h"
#include "shell/shell_menus.h"

using namespace vorlexa;
using vorlexa::shell::Form1;

namespace {

// Starts nothing: the addresses and programs asked for are kept.
class RecordingDesktop : public app::Desktop {
public:
    QStringList urls;
    FontText clipboard;

    FontText clipboardText() const override { return clipboard; }
    void setClipboardText(const FontText& text) override { clipboard = text; }
    void clearClipboard() override { clipboard.clear(); }
    std::optional<std::int64_t> chooseColor(std::int64_t) override { return std::nullopt; }
    bool openUrl(const std::string& url) override {
        urls << QString::fromStdString(url);
        return true;
    }
    bool openFile(const std::filesystem::path&) override { return false; }
    std::optional<std::filesystem::path> findProgram(std::string_view) const override { return std::nullopt; }
    bool startProgram(const std::filesystem::path&, const std::vector<std::string>&) override { return false; }
    void endProgram() override {}
};

void writeFile(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

QByteArray bytesOf(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return f.readAll();
}

}  // namespace

class DialogTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::filesystem::path root_;
    test::ScriptedPrompter answers_;
    std::unique_ptr<Form1> window_;

    Form1& open() {
        window_ = std::make_unique<Form1>();
        window_->setPrompter(&answers_);
        if (window_->start(root_ / "data", {}) != app::StartResult::Started) qFatal("the window did not start");
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
    void trigger(const char* item) {
        QAction* a = child<QAction>(window_.get(), item);
        if (!a->isEnabled()) qFatal("menu item %s is disabled", item);
        a->trigger();
    }
    shell::Dialog& dialog() { return window_->shellMenus().dialog(); }
    QPlainTextEdit* box(const char* name) { return child<QPlainTextEdit>(window_.get(), name); }
    QString docs() const { return QString::fromStdString((root_ / "docs").string()); }
    void typePath(const QString& path) {
        auto* text5 = child<QLineEdit>(&dialog(), "Text5");
        text5->clear();
        QTest::keyClicks(text5, path);
    }
    void chooseInFileList(const QString& name) {
        dialog().logic().Dir1_Change(docs().toStdString());
        auto* list = child<QListWidget>(&dialog(), "File1");
        const auto items = list->findItems(name, Qt::MatchExactly);
        if (items.isEmpty()) qFatal("no file %s in the list", qPrintable(name));
        list->scrollToItem(items[0]);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items[0]).center());
    }
    void clickOk() { QTest::mouseClick(child<QPushButton>(&dialog(), "OKButton"), Qt::LeftButton); }

private slots:
    void init() {
        QVERIFY(dir_.isValid());
        root_ = dir_.path().toStdString() + "/" + QTest::currentTestFunction();
        std::filesystem::remove_all(root_);
        writeFile(root_ / "src/lexicon/en-hy.tsv", test::kFixtureEnglish);
        writeFile(root_ / "src/lexicon/hy-en.tsv", test::kFixtureArmenian);
        writeFile(root_ / "src/help/read.txt", test::kFixtureHelp);
        std::filesystem::create_directories(root_ / "docs");
        QVERIFY(buildDataFolder(root_ / "src", root_ / "data").ok());
        answers_ = test::ScriptedPrompter{};
    }
    void cleanup() {
        if (!window_) return;
        window_->saveForExit = [] { return true; };
        window_->close();
        window_.reset();
    }

    void saveThenOpenThroughTheControlsGivesTheSameText() {
        open();
        box("Text3")->setPlainText(QStringLiteral("big house"));
        const QString result = box("Text4")->toPlainText();
        QVERIFY(!result.isEmpty());
        trigger("Save");
        QVERIFY(dialog().isVisible());
        QCOMPARE(dialog().windowTitle(), QStringLiteral("Save"));
        child<QLineEdit>(&dialog(), "Text5");
        child<QWidget>(&dialog(), "Drive1");
        child<QWidget>(&dialog(), "Dir1");
        QVERIFY(child<QListWidget>(&dialog(), "File1")->isVisible());
        QVERIFY(!child<QListWidget>(&dialog(), "List1")->isVisible());
        const QString file = docs() + QStringLiteral("/result.txt");
        typePath(file);
        clickOk();
        QVERIFY(!dialog().isVisible());
        QVERIFY(bytesOf(file).startsWith(QByteArray("\xFF\xFE", 2)));
        QCOMPARE(bytesOf(file).size(), 2 + 2 * result.size());

        box("Text4")->clear();
        trigger("Open1");
        QCOMPARE(child<QPushButton>(&dialog(), "OKButton")->text(), QStringLiteral("Open"));
        chooseInFileList(QStringLiteral("result.txt"));
        QCOMPARE(child<QLineEdit>(&dialog(), "Text5")->text(), file);
        clickOk();
        QCOMPARE(box("Text4")->toPlainText(), result);
        QCOMPARE(answers_.asked.size(), 1);
        QCOMPARE(answers_.asked[0], QStringLiteral("ZENKA - Vorlexa | Translate text?"));
        QVERIFY(!dialog().isVisible());
    }

    void openingTheSettingsFileIsRefused() {
        open();
        writeFile(root_ / "docs" / "settings.txt", "x");
        box("Text4")->setPlainText(QStringLiteral("kept"));
        trigger("Open1");
        chooseInFileList(QStringLiteral("settings.txt"));
        clickOk();
        QCOMPARE(answers_.notices.value(0), QStringLiteral("Sorry, you are not authorised to open this file."));
        QCOMPARE(box("Text4")->toPlainText(), QStringLiteral("kept"));
        QVERIFY(dialog().isVisible());
        QTest::mouseClick(child<QPushButton>(&dialog(), "CancelButton"), Qt::LeftButton);
        QVERIFY(!dialog().isVisible());
        QCOMPARE(box("Text4")->toPlainText(), QStringLiteral("kept"));
        dialog().logic().aas_Click();  // the menu item waits for a first translation
        QTest::keyClick(&dialog(), Qt::Key_Escape);  // Escape is a Cancel too
        QVERIFY(!dialog().isVisible());
        QVERIFY(!window_->logic().checked("aas"));
        QCOMPARE(box("Text4")->toPlainText(), QStringLiteral("kept"));
    }

    void yesAtExitOffersSaveAsAndSavingEndsTheProgram() {
        open();
        box("Text3")->setPlainText(QStringLiteral("big house"));
        answers_.answers = {kAnswerYes};
        window_->close();
        QVERIFY(window_->isVisible());  // waits for the file name
        QVERIFY(dialog().isVisible());
        QCOMPARE(child<QPushButton>(&dialog(), "OKButton")->text(), QStringLiteral("Save As"));
        const QString file = docs() + QStringLiteral("/at-exit.txt");
        typePath(file);
        clickOk();
        QVERIFY(QFile::exists(file));
        QVERIFY(!window_->isVisible());
    }

    void fontDialogChangesTheResultBox() {
        open();
        trigger("fnt");
        QCOMPARE(dialog().windowTitle(), QStringLiteral("Fonts"));
        auto* list = child<QListWidget>(&dialog(), "List1");
        QVERIFY(list->isVisible());
        QVERIFY(list->count() > 0);
        QVERIFY(!child<QListWidget>(&dialog(), "File1")->isVisible());
        auto* command1 = child<QPushButton>(&dialog(), "Command1");
        QCOMPARE(command1->text(), QStringLiteral("Use Default Font"));

        child<QComboBox>(&dialog(), "Combo1")->textActivated(QStringLiteral("18"));
        QCOMPARE(command1->text(), QStringLiteral("Apply Changes"));
        QTest::mouseClick(command1, Qt::LeftButton);
        QCOMPARE(QFontInfo(box("Text4")->font()).pointSize(), 18);

        trigger("fnt");
        QCOMPARE(command1->text(), QStringLiteral("Use Default Font"));
        QTest::mouseClick(command1, Qt::LeftButton);
        QCOMPARE(QFontInfo(box("Text4")->font()).pointSize(), 10);
        QCOMPARE(box("Text4")->font().family(), QString::fromLatin1(shell::kArmenianFace));
        QCOMPARE(child<QLineEdit>(&dialog(), "Text5")->text(), QString::fromLatin1(shell::kArmenianFace));
    }

    void printingToPdfCarriesTheResult() {
        const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
        if (pdftotext.isEmpty()) QFAIL("pdftotext is missing (Debian package poppler-utils)");
        open();
        box("Text3")->setPlainText(QStringLiteral("The house is big."));
        const QString result = box("Text4")->toPlainText();
        // Armenian letters, which the PDF must carry as text.
        QVERIFY(result.contains(QRegularExpression(QStringLiteral("[\\x{0531}-\\x{0587}]"))));
        const QString pdf = QString::fromStdString((root_ / "result.pdf").string());
        window_->shellMenus().printer = [&](const QString& text, const QFont& font) {
            QPrinter printer(QPrinter::HighResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(pdf);
            shell::printText(printer, text, font);
        };
        trigger("prnt");
        QProcess extract;
        extract.start(pdftotext, {QStringLiteral("-enc"), QStringLiteral("UTF-8"), pdf, QStringLiteral("-")});
        QVERIFY(extract.waitForFinished(30000));
        const QString printed = QString::fromUtf8(extract.readAllStandardOutput()).simplified();
        // The text, then the page number the layout puts at the foot of each page.
        QCOMPARE(printed, result.simplified() + QStringLiteral(" 1"));
    }

    void helpTextsFollowTheResult() {
        open();
        trigger("Ha");
        QCOMPARE(box("Text4")->toPlainText(), QStringLiteral("*~*\nՕգնություն\n"));
        answers_.answers = {kAnswerYes};
        trigger("He");
        QCOMPARE(box("Text4")->toPlainText(), QStringLiteral("*~*\nՕգնություն\n\n*~*\nHelp text\n"));
        QVERIFY(answers_.asked.value(0).startsWith(QStringLiteral("ATTENTION | HELP TOPICS will follow the text in right window.")));
    }

    void aboutShowsTheVersionInTheInterfaceLanguage() {
        open();
        trigger("abo");
        shell::frmAbout& about = window_->shellMenus().about();
        QVERIFY(about.isVisible());
        QCOMPARE(about.windowTitle(), QStringLiteral("About Product"));
        QVERIFY(child<QLabel>(&about, "lblVersion")->text().startsWith(QStringLiteral("Version ")));
        about.hide();
        window_->logic().SkipInterfaceQuestion = 1;
        trigger("AMN");
        trigger("abo");
        QCOMPARE(about.windowTitle(), QStringLiteral("Ծրագրի մասին"));
        QVERIFY(child<QLabel>(&about, "lblVersion")->text().startsWith(QStringLiteral("Տարբերակ ")));
        about.hide();
    }

    void internetMenuOpensTheAddressesThroughTheDesktop() {
        open();
        RecordingDesktop desktop;
        window_->shellMenus().setDesktop(&desktop);
        trigger("gih");
        QCOMPARE(desktop.urls, QStringList{QString::fromLatin1(app::kProductPage.data(), app::kProductPage.size())});
        trigger("muse5");  // no browser on the fake desktop: a message, no crash
        QCOMPARE(answers_.notices.value(0), QStringLiteral("The browser could not be started."));
        window_->shellMenus().setDesktop(nullptr);
    }
};

QTEST_MAIN(DialogTest)
#include "dialog_test.moc"
