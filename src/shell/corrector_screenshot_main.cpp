// Draws the Word Corrector with a word found into a PNG file, for the README. Run under a virtual
// X server (tools/screenshot-corrector.sh).
#include <QApplication>
#include <QCommandLineParser>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "engine/data_folder.h"
#include "shell/dictionary_tools_shell.h"
#include "shell/form1.h"

namespace {

class AnswerNo : public vorlexa::shell::Prompter {
public:
    int ask(QWidget*, const QString&, const QString&, vorlexa::Buttons) override { return vorlexa::kAnswerNo; }
    void notify(QWidget*, const QString&, const QString&) override {}
};

constexpr int kSettleMilliseconds = 700;  // the window is mapped and drawn by then

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("Working folder."), QStringLiteral("DIR"));
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("PNG file to write."), QStringLiteral("FILE"));
    const QCommandLineOption word(QStringLiteral("word"), QStringLiteral("English word searched."), QStringLiteral("WORD"));
    parser.addOptions({dataDir, output, word});
    parser.process(application);
    if (!parser.isSet(dataDir) || !parser.isSet(output)) parser.showHelp(2);

    AnswerNo no;
    vorlexa::shell::Form1 window;
    window.setPrompter(&no);
    if (window.start(parser.value(dataDir).toStdString(), vorlexa::shippedDataFolder()) !=
        vorlexa::app::StartResult::Started)
        return 1;
    window.show();
    auto* tools = window.findChild<vorlexa::shell::DictionaryToolsShell*>(QStringLiteral("DictionaryTools"));
    tools->Corr_Click();
    vorlexa::shell::Form2* corrector = tools->corrector();
    corrector->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(parser.value(word));
    corrector->findChild<QPushButton*>(QStringLiteral("Command3"))->click();

    int result = 1;
    QTimer::singleShot(kSettleMilliseconds, [&] {
        const QPixmap shot = corrector->screen()->grabWindow(corrector->winId());
        result = shot.save(parser.value(output), "PNG") ? 0 : 1;
        window.logic().finish();
        QApplication::exit(result);
    });
    QApplication::exec();
    return result;
}
