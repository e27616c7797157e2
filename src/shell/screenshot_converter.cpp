// Draws the converter window after a paste of Unicode Armenian into a PNG file, for the README.
// Run under a virtual X server (tools/screenshot-converter.sh); questions are answered No.
#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTimer>

#include "engine/data_folder.h"
#include "shell/form1.h"
#include "shell/form3.h"

namespace {

class AnswerNo : public vorlexa::shell::Prompter {
public:
    int ask(QWidget*, const QString&, const QString&, vorlexa::Buttons) override {
        return vorlexa::kAnswerNo;
    }
    void notify(QWidget*, const QString&, const QString&) override {}
};

constexpr int kSettleMilliseconds = 700;  // the windows are mapped and drawn by then

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("Working folder."),
                                     QStringLiteral("DIR"));
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("PNG file to write."),
                                    QStringLiteral("FILE"));
    const QCommandLineOption text(QStringLiteral("text"),
                                  QStringLiteral("Unicode text pasted into the converter."),
                                  QStringLiteral("TEXT"));
    parser.addOptions({dataDir, output, text});
    parser.process(application);
    if (!parser.isSet(dataDir) || !parser.isSet(output)) parser.showHelp(2);

    AnswerNo no;
    vorlexa::shell::Form1 window;
    window.setPrompter(&no);
    vorlexa::shell::Form3* converter = vorlexa::shell::installTextTools(window);
    if (window.start(parser.value(dataDir).toStdString(), vorlexa::shippedDataFolder()) !=
        vorlexa::app::StartResult::Started)
        return 1;
    window.show();
    converter->uta_Click();
    converter->findChild<QPlainTextEdit*>(QStringLiteral("TextBox1"))
        ->insertPlainText(parser.value(text));

    int result = 1;
    QTimer::singleShot(kSettleMilliseconds, [&] {
        const QPixmap shot = converter->screen()->grabWindow(converter->winId());
        result = shot.save(parser.value(output), "PNG") ? 0 : 1;
        window.logic().finish();
        QApplication::exit(result);
    });
    QApplication::exec();
    return result;
}
