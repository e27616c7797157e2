// vorlexa: the desktop window of the translator.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <cstdio>

#include "app/word_lookup_panel.h"
#include "chat/chat_address.h"
#include "engine/data_folder.h"
#include "shell/form1.h"
#include "shell/frm_chat.h"
#include "shell/form3.h"

#ifndef VORLEXA_VERSION
#define VORLEXA_VERSION "0.0.0"
#endif

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vorlexa"));
    QApplication::setApplicationVersion(QStringLiteral(VORLEXA_VERSION));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vorlexa")));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("ZENKA - Vorlexa: English-Armenian translation"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dataDir(QStringLiteral("data-dir"),
                                     QStringLiteral("Working folder (default: $VORLEXA_DATA_DIR, else "
                                                    "$XDG_DATA_HOME/vorlexa)."),
                                     QStringLiteral("DIR"));
    parser.addOption(dataDir);
    const QCommandLineOption chatAddress(QStringLiteral("chat-address"),
                                         QStringLiteral("This machine's address for the chat (default: the "
                                                        "first private IPv4 address of an interface that is up)."),
                                         QStringLiteral("ADDRESS"));
    parser.addOption(chatAddress);
    parser.process(application);
    std::optional<std::string> ownAddress;
    if (parser.isSet(chatAddress)) {
        ownAddress = parser.value(chatAddress).toStdString();
        if (!vorlexa::chat::isDottedAddress(*ownAddress)) {
            std::fprintf(stderr, "vorlexa: --chat-address: \"%s\" is not a dotted IPv4 address\n", ownAddress->c_str());
            return 2;
        }
    }

    std::optional<std::filesystem::path> fromCommandLine;
    if (parser.isSet(dataDir)) fromCommandLine = parser.value(dataDir).toStdString();
    const std::filesystem::path folder = vorlexa::resolveDataFolder(fromCommandLine);

    vorlexa::shell::Form1 window;
    // A double click in the chat's boxes is the result box's look-up, on the selection there.
    vorlexa::shell::installChat(window, ownAddress, [&window](const vorlexa::FontText& selected) {
        return vorlexa::app::Text4_dblclick(window.logic(), selected).toolTip;
    });
    vorlexa::shell::installTextTools(window);
    if (window.start(folder, vorlexa::shippedDataFolder()) == vorlexa::app::StartResult::AlreadyRunning) return 1;
    window.show();
    return QApplication::exec();
}
