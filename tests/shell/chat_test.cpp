// The chat window with real sockets on loopback: two sessions bound to 127.0.0.1 and 127.0.0.2
// on the chat's own ports find each other and talk, each translating what arrives; malformed
// datagrams and a flood leave a window working. Every datagram goes to a 127.0.0.0/8 address.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <QTimer>
#include <QUdpSocket>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>

#include "app/fixture_lexicon.h"
#include "chat/chat_text.h"
#include "chat/chat_window.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "shell/form1.h"
#include "shell/frm_chat.h"
#include "shell/qt_text.h"

using namespace vorlexa;
using vorlexa::shell::Form1;
using vorlexa::shell::frmChat;

namespace {

// Long enough for the first tick (one second) and the loopback round trips on a busy machine.
constexpr int kWaitMs = 10000;
// The window that ticks first announces before the other has bound its port, and is heard at its
// next tick.
constexpr int kNextTickWaitMs = chat::kAnnounceInterval + kWaitMs;

class SilentPrompter : public shell::Prompter {
  public:
    QStringList notices;
    int ask(QWidget*, const QString&, const QString&, Buttons) override { return kAnswerNo; }
    void notify(QWidget*, const QString&, const QString& text) override { notices << text; }
};

void writeFile(const std::filesystem::path& path, const char* text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

// One person at one machine: the main window with the tests' lexicon and the chat opened on it
// from the menu, bound to a fixed loopback address.
struct Session {
    SilentPrompter prompter;
    std::unique_ptr<Form1> form1;
    frmChat* chat = nullptr;

    Session(const std::filesystem::path& root, const std::string& address,
            chat::WordLookup lookUp = {}) {
        writeFile(root / "src/lexicon/en-hy.tsv", test::kFixtureEnglish);
        writeFile(root / "src/lexicon/hy-en.tsv", test::kFixtureArmenian);
        writeFile(root / "src/help/read.txt", test::kFixtureHelp);
        if (!buildDataFolder(root / "src", root / "data").ok()) qFatal("fixture data not built");
        form1 = std::make_unique<Form1>();
        form1->setPrompter(&prompter);
        if (form1->start(root / "data", {}) != app::StartResult::Started)
            qFatal("the window did not start");
        shell::installChat(*form1, address, std::move(lookUp));
        form1->show();
        form1->findChild<QAction*>(QStringLiteral("Chat"))->trigger();
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* c = qobject_cast<frmChat*>(w); c && c->logic().LocalAddress == address)
                chat = c;
        if (!chat) qFatal("the chat window did not open");
        chat->setPrompter(&prompter);
    }
    ~Session() {
        if (chat) chat->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        form1->close();
    }

    template <class T>
    T* child(const char* name) {
        T* w = chat->findChild<T*>(QString::fromLatin1(name));
        if (!w) qFatal("no control %s", name);
        return w;
    }
    QString conversation() { return child<QPlainTextEdit>("Text2")->toPlainText(); }
    QStringList peers() {
        QStringList lines;
        auto* list = child<QListWidget>("List1");
        for (int i = 0; i < list->count(); ++i) lines << list->item(i)->text();
        return lines;
    }
    void choose(const QString& address) {
        auto* list = child<QListWidget>("List1");
        const auto found = list->findItems(address, Qt::MatchExactly);
        if (found.isEmpty()) qFatal("peer not listed");
        emit list->itemDoubleClicked(found.first());
    }
    void type(const QString& keys) {
        auto* box = child<QPlainTextEdit>("Text1");
        box->setFocus();
        QTest::keyClicks(box, keys);
    }
    void pressEnter() { QTest::keyClick(child<QPlainTextEdit>("Text1"), Qt::Key_Return); }
    QString portProblem() {
        const QString text = conversation();
        return text.contains(QStringLiteral(" is in use by another program")) ? text : QString();
    }
};

// A port the chat needs, held by another program, makes every test here meaningless: say so.
QString portsFree(const QString& address) {
    for (quint16 port : {chat::kMessagePort, chat::kAnnouncePort}) {
        QUdpSocket probe;
        if (!probe.bind(QHostAddress(address), port, QAbstractSocket::DontShareAddress))
            return QStringLiteral(
                       "UDP port %1 on %2 is in use by another program (%3); the chat tests need "
                       "it free")
                .arg(port)
                .arg(address, probe.errorString());
    }
    return {};
}

}  // namespace

class ChatTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir dir_;

    std::filesystem::path root(const char* name) {
        return std::filesystem::path(dir_.path().toStdString()) / QTest::currentTestFunction() /
               name;
    }

  private slots:
    void init() {
        for (const char* address : {"127.0.0.1", "127.0.0.2"}) {
            const QString problem = portsFree(QString::fromLatin1(address));
            QVERIFY2(problem.isEmpty(), qPrintable(problem));
        }
    }

    void controlsCarryTheNamesOfTheDesign() {
        Session s(root("a"), "127.0.0.1");
        QCOMPARE(s.chat->objectName(), QStringLiteral("frmChat"));
        s.child<QListWidget>("List1");
        s.child<QLineEdit>("Text3");
        s.child<QPlainTextEdit>("Text1");
        s.child<QPlainTextEdit>("Text2");
        s.child<QPushButton>("Command1");
        s.child<QLabel>("Picture1");
        s.child<QTimer>("Timer1");
        QCOMPARE(s.child<QLabel>("Label1")->text(), QStringLiteral("Change to Armenian"));
        QCOMPARE(s.child<QLabel>("Label2")->text(), QStringLiteral(" IP -"));
        QCOMPARE(s.child<QLabel>("Label2")->toolTip(),
                 QStringLiteral("Click to add all Lockal IP-s to the list"));
        QCOMPARE(s.child<QLabel>("Label3")->text(), QStringLiteral("With Translation"));
        QCOMPARE(s.child<QPushButton>("Command1")->text(), QStringLiteral("Send"));
        QCOMPARE(s.chat->windowTitle(), QStringLiteral("Bilingual Chat"));
        QVERIFY(s.child<QLabel>("Label2")->styleSheet().contains(QStringLiteral("#ff0000")));
        QVERIFY(s.form1->findChild<QAction*>(QStringLiteral("Chat"))->isChecked());
        QVERIFY(s.form1->findChild<QAction*>(QStringLiteral("ITR"))->isChecked());
        QCOMPARE(s.child<QTimer>("Timer1")->interval(), 1000);
    }

    void closingTheChatUnchecksItsItemsAndRestoresTheMainWindow() {
        Session s(root("a"), "127.0.0.1");
        s.chat->close();
        s.chat = nullptr;
        QVERIFY(!s.form1->findChild<QAction*>(QStringLiteral("Chat"))->isChecked());
        QVERIFY(!s.form1->findChild<QAction*>(QStringLiteral("ITR"))->isChecked());
        QVERIFY(!s.form1->isMinimized());
    }

    void closingTheMainWindowClosesTheChat() {
        Session s(root("a"), "127.0.0.1");
        const QPointer<frmChat> chat = s.chat;
        s.chat = nullptr;
        s.form1->close();
        QTRY_VERIFY(chat.isNull());
    }

    void theLightListsTheAddressesOfThisMachine() {
        Session s(root("a"), "127.0.0.1");
        QTest::mouseClick(s.child<QLabel>("Label2"), Qt::LeftButton);
        const QStringList lines = s.peers();
        QVERIFY(!lines.isEmpty());
        QCOMPARE(lines.first(), QStringLiteral("All Local IPs-Below:"));
        QVERIFY(lines.contains(QStringLiteral("127.0.0.1")));  // the loopback interface
    }

    void enterSendsShiftEnterBreaksTheLineAndAnEmptyBoxSendsNothing() {
        Session s(root("a"), "127.0.0.1");
        s.pressEnter();
        QVERIFY(s.conversation().isEmpty());
        QVERIFY(s.prompter.notices.isEmpty());
        s.type(QStringLiteral("one"));
        QTest::keyClick(s.child<QPlainTextEdit>("Text1"), Qt::Key_Return, Qt::ShiftModifier);
        s.type(QStringLiteral("two"));
        s.pressEnter();
        QVERIFY2(s.conversation().endsWith(QStringLiteral(" - YOU SAID:\none\ntwo\n")),
                 qPrintable(s.conversation()));
    }

    void aDoubleClickInTheInputBoxLooksUpTheWordUnderIt() {
        QStringList asked;
        Session s(root("a"), "127.0.0.1", [&asked](const FontText& word) {
            asked << shell::boxText(word);
            return FontText("looked up");
        });
        s.chat->show();
        QVERIFY(QTest::qWaitForWindowExposed(s.chat));
        s.type(QStringLiteral("big house"));
        auto* box = s.child<QPlainTextEdit>("Text1");
        QTextCursor at(box->document());
        at.setPosition(6);
        QTest::mouseDClick(box->viewport(), Qt::LeftButton, {}, box->cursorRect(at).center());
        QTRY_COMPARE(asked, QStringList{QStringLiteral("house")});
        QCOMPARE(box->toolTip(), QStringLiteral("looked up"));
    }

    void twoSessionsOnLoopbackFindEachOtherAndTalkTranslated() {
        Session a(root("a"), "127.0.0.1");
        Session b(root("b"), "127.0.0.2");
        // The first tick, a second after opening, announces over 127.0.0.1 to 127.0.0.254.
        QTRY_VERIFY_WITH_TIMEOUT(
            a.peers().contains(QStringLiteral("127.0.0.2")) || !a.portProblem().isEmpty(), kWaitMs);
        QVERIFY2(a.portProblem().isEmpty(), qPrintable(a.portProblem()));
        QTRY_VERIFY_WITH_TIMEOUT(b.peers().contains(QStringLiteral("127.0.0.1")), kNextTickWaitMs);
        // A tick clears the own list: a hears b again at b's next tick.
        QTRY_VERIFY_WITH_TIMEOUT(a.peers().contains(QStringLiteral("127.0.0.2")), kWaitMs);
        QVERIFY(a.peers().contains(QStringLiteral("127.0.0.1")));  // the own address too
        QVERIFY(a.child<QLabel>("Label2")->styleSheet().contains(QStringLiteral("#00c000")));
        QCOMPARE(a.child<QTimer>("Timer1")->interval(), 20000);

        a.choose(QStringLiteral("127.0.0.2"));
        b.choose(QStringLiteral("127.0.0.1"));
        QCOMPARE(a.child<QLineEdit>("Text3")->text(), QStringLiteral("127.0.0.2"));

        // English from a, translated into Armenian on arrival at b.
        a.type(QStringLiteral("big house"));
        a.pressEnter();
        QVERIFY(a.conversation().contains(QStringLiteral(" - YOU SAID:\nbig house\n")));
        QVERIFY(a.child<QPlainTextEdit>("Text1")->toPlainText().isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(b.conversation().contains(QStringLiteral(" - RESPONDENT SAID:")),
                                 kWaitMs);
        QVERIFY2(b.conversation().contains(u("մեծ")) && b.conversation().contains(u("տուն")),
                 qPrintable(b.conversation()));

        // Armenian from b, typed phonetically in Armenian mode, translated into English at a.
        QTest::mouseClick(b.child<QLabel>("Label1"), Qt::LeftButton);
        QCOMPARE(b.child<QLabel>("Label1")->text(), u("Փոխել անգլերենի"));
        b.type(QStringLiteral("me] twun"));
        QCOMPARE(b.child<QPlainTextEdit>("Text1")->toPlainText(), u("մեծ տուն"));
        b.pressEnter();
        QVERIFY(b.conversation().contains(u(" - ԴՈՒՔ ԱՍԱՑԻՔ.\nմեծ տուն\n")));
        QTRY_VERIFY_WITH_TIMEOUT(a.conversation().contains(QStringLiteral(" - RESPONDENT SAID:")),
                                 kWaitMs);
        QVERIFY2(a.conversation().contains(QStringLiteral("big")) &&
                     a.conversation().contains(QStringLiteral("house")),
                 qPrintable(a.conversation()));
        QVERIFY(a.prompter.notices.isEmpty());
    }

    void aPortHeldByAnotherProgramIsToldInTheWindowAndTheProgramGoesOn() {
        const QString problem = portsFree(QStringLiteral("127.0.0.3"));
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QUdpSocket holder;
        QVERIFY(holder.bind(QHostAddress(QStringLiteral("127.0.0.3")), chat::kAnnouncePort,
                            QAbstractSocket::DontShareAddress));
        Session s(root("a"), "127.0.0.3");
        QTRY_VERIFY_WITH_TIMEOUT(!s.portProblem().isEmpty(), kWaitMs);
        QVERIFY(
            s.conversation().contains(QStringLiteral("Port 15002 is in use by another program")));
        // The main window still translates.
        auto* text3 = s.form1->findChild<QPlainTextEdit*>(QStringLiteral("Text3"));
        text3->setPlainText(QStringLiteral("big"));
        QVERIFY(s.form1->findChild<QPlainTextEdit*>(QStringLiteral("Text4"))
                    ->toPlainText()
                    .contains(u("մեծ")));
    }

    void malformedDatagramsAndAFloodLeaveTheWindowWorking() {
        Session s(root("a"), "127.0.0.1");
        QTRY_VERIFY_WITH_TIMEOUT(s.peers().contains(QStringLiteral("127.0.0.1")), kWaitMs);
        // Opening the route to itself binds socket1, so that messages can arrive.
        s.child<QLineEdit>("Text3")->setText(QStringLiteral("127.0.0.1"));
        QTest::mouseDClick(s.child<QLineEdit>("Text3"), Qt::LeftButton);
        QVERIFY(s.chat->transport().isBound(chat::ChatSocket::socket1));

        QUdpSocket sender;
        QVERIFY(sender.bind(QHostAddress(QStringLiteral("127.0.0.4")), 0));
        const QHostAddress target(QStringLiteral("127.0.0.1"));
        std::mt19937 random(15001);
        const auto bytes = [&random](int n, const QByteArray& head = {}) {
            QByteArray d = head;
            std::uniform_int_distribution<int> byte(0, 255);
            while (d.size() < n) d.append(static_cast<char>(byte(random)));
            return d;
        };
        const auto drain = [] { QTest::qWait(300); };
        const QString before = s.conversation();
        const QStringList listBefore = s.peers();

        // Datagrams that are no message: nothing, one blank, longer than a message can be.
        for (const QByteArray& d : {QByteArray(), QByteArray(" "), bytes(7951), bytes(65507)})
            QCOMPARE(sender.writeDatagram(d, target, chat::kMessagePort), qint64(d.size()));
        // Datagrams that are no announcement.
        for (const QByteArray& d :
             {QByteArray(), QByteArray("1963369"), bytes(65507, "1963369x"), bytes(3000)})
            QCOMPARE(sender.writeDatagram(d, target, chat::kAnnouncePort), qint64(d.size()));
        drain();
        QCOMPARE(s.conversation(), before);
        QCOMPARE(s.peers(), listBefore);

        // Announcements with an empty, a malformed and a huge address are listed as they came.
        for (const QByteArray& d :
             {QByteArray("19633691"), QByteArray("19633691999.1.x"), bytes(65507, "19633691")})
            sender.writeDatagram(d, target, chat::kAnnouncePort);
        drain();
        QCOMPARE(s.peers().size(), listBefore.size() + 3);
        QCOMPARE(s.peers().at(listBefore.size()), QString());

        // A flood of 10,000 on both ports: what the socket's buffer keeps is handled, the rest
        // is lost, and the list stops at its limit.
        std::uniform_int_distribution<int> size(0, 200);
        for (int i = 0; i < 10000; ++i) {
            sender.writeDatagram(bytes(size(random), i % 2 ? QByteArray("19633691") : QByteArray()),
                                 target, chat::kAnnouncePort);
            sender.writeDatagram(bytes(size(random)), target, chat::kMessagePort);
            if (i % 500 == 0) QCoreApplication::processEvents();
        }
        drain();
        qInfo("after the flood: %lld lines listed, %zu characters of conversation",
              static_cast<long long>(s.peers().size()), s.chat->logic().Text2.size());
        QVERIFY(s.peers().size() > listBefore.size() + 3);  // the flood was heard
        QVERIFY(s.peers().size() <= static_cast<int>(chat::kPeerListLimit));
        QVERIFY(s.chat->logic().Text2.size() <= chat::kConversationLimit);

        // The window still talks: a message to itself arrives, translated.
        s.child<QPlainTextEdit>("Text2")->clear();
        s.chat->logic().Text2.clear();
        s.chat->stateChanged();
        s.type(QStringLiteral("big house"));
        s.pressEnter();
        QTRY_VERIFY_WITH_TIMEOUT(s.conversation().contains(QStringLiteral(" - RESPONDENT SAID:")),
                                 kWaitMs);
        QVERIFY2(s.conversation().contains(u("տուն")), qPrintable(s.conversation()));
    }
};

QTEST_MAIN(ChatTest)
#include "chat_test.moc"
