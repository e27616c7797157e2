// Draws the main window with a text and its translation into a PNG file, for the README. Run
// under a virtual X server (tools/screenshot.sh); the questions of the run are answered No.
#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTimer>

#include "engine/data_folder.h"
#include "shell/form1.h"
#include "shell/qt_text.h"

namespace {

class AnswerNo : public vorlexa::shell::Prompter {
public:
    int ask(QWidget*, const QString&, const QString&, vorlexa::Buttons) override { return vorlexa::kAnswerNo; }
    void notify(QWidget*, const QString&, const QString&) override {}
};

constexpr int kSettleMilliseconds = 700;  // the window is mapped and drawn by then
constexpr int kWidth = 900;
constexpr int kHeight = 560;

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("Working folder."), QStringLiteral("DIR"));
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("PNG file to write."), QStringLiteral("FILE"));
    const QCommandLineOption text(QStringLiteral("text"), QStringLiteral("Text typed into the source box."),
                                  QStringLiteral("TEXT"));
    parser.addOptions({dataDir, output, text});
    parser.process(application);
    if (!parser.isSet(dataDir) || !parser.isSet(output)) {
        parser.showHelp(2);
    }

    AnswerNo no;
    vorlexa::shell::Form1 window;
    window.setPrompter(&no);
    if (window.start(parser.value(dataDir).toStdString(), vorlexa::shippedDataFolder()) !=
        vorlexa::app::StartResult::Started)
        return 1;
    window.resize(kWidth, kHeight);
    window.show();
    window.findChild<QPlainTextEdit*>(QStringLiteral("Text3"))->setPlainText(parser.value(text));

    int result = 1;
    QTimer::singleShot(kSettleMilliseconds, [&] {
        const QPixmap shot = window.screen()->grabWindow(window.winId());
        result = shot.save(parser.value(output), "PNG") ? 0 : 1;
        window.logic().finish();
        QApplication::exit(result);
    });
    QApplication::exec();
    return result;
}
