#include "chat/chat_window.h"

#include <algorithm>
#include <ctime>

#include "app/main_form.h"
#include "app/phonetic_keys.h"
#include "chat/chat_text.h"
#include "engine/dictionary_store.h"

namespace vorlexa::chat {

namespace {

constexpr std::string_view kLineBreak = "\r\n";
constexpr unsigned char kEnterKey = 13;
// The keys that phonetic typing rewrites: the printable ASCII range up to "}".
constexpr unsigned char kFirstPhoneticKey = 33;
constexpr unsigned char kLastPhoneticKey = 125;

std::string localTime() {
    const std::time_t t = std::time(nullptr);
    std::tm parts{};
    localtime_r(&t, &parts);
    char text[32];
    const std::size_t n = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
    return std::string(text, n);
}

}  // namespace

// ---- The main window ---------------------------------------------------------------------

void MainFormChatBridge::setText3(const FontText& text) {
    view_.setText3(text);
}

FontText MainFormChatBridge::text4() const {
    return view_.text4();
}

bool MainFormChatBridge::armenianInterface() const {
    return form_.checked("AMN");
}

bool MainFormChatBridge::checked(std::string_view item) const {
    return form_.checked(item);
}

void MainFormChatBridge::setChecked(std::string_view item, bool on) {
    form_.setChecked(item, on);
    view_.stateChanged();
}

void MainFormChatBridge::minimise() {
    view_.minimise();
}

void Chat_Click(ChatMainWindow& form1) {
    form1.minimise();
    form1.setChecked("Chat", true);
    form1.setChecked("ITR", true);
}

// ---- The window ----------------------------------------------------------------------------

ChatWindow::ChatWindow(ChatMainWindow& form1, ChatTransport& transport, ChatView& view)
    : now(localTime), form1_(form1), transport_(transport), view_(view) {}

bool ChatWindow::armenianMode() const {
    return Label1 == caption::kToEnglish;
}

void ChatWindow::Form_Load() {
    const bool armenian = form1_.armenianInterface();
    Label1 = std::string(armenian ? caption::kToEnglish : caption::kToArmenian);
    Caption = std::string(armenian ? caption::kTitleArmenian : caption::kTitleEnglish);
    Label3 = std::string(armenian ? caption::kWithArmenian : caption::kWithEnglish);
    Command1 = std::string(armenian ? caption::kSendArmenian : caption::kSendEnglish);
    Picture1 = armenian ? ChatPicture::Armenian : ChatPicture::English;
    TranslationOn = 1;
    DetLocIPHM();
    Timer1Interval = kFirstTickInterval;
    view_.stateChanged();
}

void ChatWindow::Form_QueryUnload() {
    if (form1_.checked("ITR")) form1_.setChecked("ITR", false);
    form1_.setChecked("Chat", false);
}

void ChatWindow::DetLocIPHM() {
    LocalAddress = fixedAddress ? *fixedAddress : chooseOwnAddress(transport_.interfaceAddresses());
}

void ChatWindow::Timer1_Timer() {
    const std::optional<std::string> prefix = sweepPrefix(LocalAddress);
    List1.clear();
    ++listGeneration_;
    if (!prefix) {
        // Without an address of its own the window has no network to announce to: it sends
        // nothing, and says so once.
        if (!noAddressReported_) appendStatusLine(noAddressLine());
        noAddressReported_ = true;
    } else {
        for (int i = kSweepFirst; i <= kSweepLast; ++i) {
            AnnounceDatagram = std::string(kAnnounceMagic) + LocalAddress;
            const SendStatus status = transport_.send(
                ChatSocket::socket2, LocalAddress, *prefix + std::to_string(i), AnnounceDatagram);
            sent(status, ChatSocket::socket2);
            if (status == SendStatus::PortInUse) break;  // every other send would fail the same way
        }
    }
    Timer1Interval = kAnnounceInterval;
    view_.stateChanged();
}

void ChatWindow::socket2_DataArrival(const std::string& datagram) {
    ReceivedAnnounce = datagram;
    if (ReceivedAnnounce.compare(0, kAnnounceMagic.size(), kAnnounceMagic) != 0) return;
    addListLine(ReceivedAnnounce.substr(kAnnounceMagic.size()));
    Label2BackColor = kGreen;
    Label2ForeColor = kSystemButtonText;
    view_.stateChanged();
}

void ChatWindow::socket1_DataArrival(const std::string& datagram) {
    ReceivedMessage = datagram;
    if (ReceivedMessage.empty() || ReceivedMessage == kRouteOpener) return;
    // No sender of this chat sends a longer message; translating one would hold the window for
    // nothing.
    if (ReceivedMessage.size() > kMessageLimit) return;
    const FontText heading = fromUtf8(now()) + inMode(respondentSaid());
    FontText shown;
    if (TranslationOn == 1) {
        form1_.setText3(ReceivedMessage);
        shown = form1_.text4();
    } else {
        shown = ReceivedMessage;
    }
    appendConversation(heading + FontText(kLineBreak) + shown + FontText(kLineBreak));
    form1_.setText3({});
    view_.beep();
    view_.stateChanged();
}

void ChatWindow::Command1_Click() {
    SendingMessage();
}

void ChatWindow::SendingMessage() {
    std::replace(Text1.begin(), Text1.end(), '"', '\'');
    view_.stateChanged();  // the box shows the replacement before the message goes
    OutgoingMessage = FontText(trimBlanks(Text1));
    const app::Language language =
        armenianMode() ? app::Language::Armenian : app::Language::English;
    if (OutgoingMessage.empty()) {
        view_.notify(noMessageNotice(), language);
        return;
    }
    if (Text1.size() > kMessageLimit) {
        view_.notify(tooLongNotice(), language);
        return;
    }
    // A window that has chosen no peer has nowhere to send; the message is still logged.
    if (!RemoteHost.empty())
        sent(transport_.send(ChatSocket::socket1, LocalAddress, RemoteHost, OutgoingMessage),
             ChatSocket::socket1);
    appendConversation(fromUtf8(now()) + inMode(youSaid()) + FontText(kLineBreak) + Text1 +
                       FontText(kLineBreak));
    Text1.clear();
    Text1Caret = 0;
    form1_.setText3({});
    view_.stateChanged();
}

void ChatWindow::Label1_Click() {
    if (armenianMode()) {
        Label1 = std::string(caption::kToArmenian);
        Command1 = std::string(caption::kSendEnglish);
        Picture1 = ChatPicture::English;
        Label3 = std::string(Label3 == caption::kWithoutArmenian ? caption::kWithoutEnglish
                                                                 : caption::kWithEnglish);
    } else {
        Label1 = std::string(caption::kToEnglish);
        Command1 = std::string(caption::kSendArmenian);
        Picture1 = ChatPicture::Armenian;
        Label3 = std::string(Label3 == caption::kWithoutEnglish ? caption::kWithoutArmenian
                                                                : caption::kWithArmenian);
    }
    view_.stateChanged();
}

void ChatWindow::Label3_Click() {
    const bool armenian = armenianMode();
    const std::string_view with = armenian ? caption::kWithArmenian : caption::kWithEnglish;
    const std::string_view without =
        armenian ? caption::kWithoutArmenian : caption::kWithoutEnglish;
    if (Label3 == without) {
        Label3 = std::string(with);
        TranslationOn = 1;
    } else if (Label3 == with) {
        Label3 = std::string(without);
        TranslationOn = 0;
    }
    view_.stateChanged();
}

void ChatWindow::Label2_Click() {
    std::vector<InterfaceAddress> rows = transport_.interfaceAddresses();
    // The table comes sorted by address, as the platform's call is asked to.
    std::stable_sort(
        rows.begin(), rows.end(), [](const InterfaceAddress& a, const InterfaceAddress& b) {
            return parseDotted(a.address).value_or(0) < parseDotted(b.address).value_or(0);
        });
    addListLine(ownAddressesHeading().in(Label1 != caption::kToArmenian));
    for (const InterfaceAddress& row : rows) addListLine(row.address);
    view_.stateChanged();
}

void ChatWindow::List1_DblClick(std::size_t index) {
    if (index >= List1.size()) return;
    Text3 = List1[index];
    Text3_DblClick();
    Text3BackColor = kGreen;
    Text3ForeColor = kSystemButtonText;
    view_.stateChanged();
}

void ChatWindow::Text3_DblClick() {
    RemoteHost = std::string(trimBlanks(Text3));
    sent(transport_.send(ChatSocket::socket1, LocalAddress, RemoteHost, std::string(kRouteOpener)),
         ChatSocket::socket1);
    view_.stateChanged();
}

std::optional<unsigned char> ChatWindow::Text1_KeyPress(unsigned char key) {
    if (key == kEnterKey) {
        if (!Text1.empty()) Command1_Click();
        return std::nullopt;
    }
    if (armenianMode() && key >= kFirstPhoneticKey && key <= kLastPhoneticKey)
        return app::kanci(key, app::KeyTable::Main);
    return key;
}

void ChatWindow::Text1_DblClick(const FontText& selected) {
    if (wordLookup) Text1ToolTip = wordLookup(selected);
    view_.stateChanged();
}

void ChatWindow::Text2_DblClick(const FontText& selected) {
    if (wordLookup) Text2ToolTip = wordLookup(selected);
    view_.stateChanged();
}

// ---- Helpers -------------------------------------------------------------------------------

void ChatWindow::appendConversation(const FontText& text) {
    Text2 += text;
    if (Text2.size() <= kConversationLimit) return;
    const std::size_t keepFrom = Text2.size() - kConversationLimit / 2;
    const std::size_t lineStart = Text2.find(kLineBreak, keepFrom);
    Text2.erase(0, lineStart == FontText::npos ? keepFrom : lineStart + kLineBreak.size());
    ++conversationGeneration_;
}

void ChatWindow::appendStatusLine(const Wording& line) {
    appendConversation(inMode(line) + FontText(kLineBreak));
}

void ChatWindow::addListLine(const FontText& line) {
    if (List1.size() < kPeerListLimit) List1.push_back(line);
}

void ChatWindow::sent(SendStatus status, ChatSocket socket) {
    // Errors of the network are ignored, except a port held by another program: the user can
    // do something about that one.
    if (status != SendStatus::PortInUse) return;
    const int index = socket == ChatSocket::socket1 ? 0 : 1;
    if (portReported_[index]) return;
    portReported_[index] = true;
    appendStatusLine(portInUseLine(portOf(socket)));
}

}  // namespace vorlexa::chat
