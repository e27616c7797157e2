// Feeds the chat's datagram handlers: the input cut into datagrams, each one's first byte
// picking the port it arrives on (messages or announcements), over a transport that sends
// nothing anywhere.
#include "chat/chat_window.h"
#include "fuzz/fuzz_support.h"

using namespace vorlexa;
using namespace vorlexa::chat;

namespace {

// The main window as the chat sees it: what is handed over to translate comes back unchanged.
class EchoMainWindow : public ChatMainWindow {
public:
    void setText3(const FontText& text) override { text_ = text; }
    FontText text4() const override { return text_; }
    bool armenianInterface() const override { return false; }
    bool checked(std::string_view item) const override { return item == "Chat" || item == "SUT"; }
    void setChecked(std::string_view, bool) override {}
    void minimise() override {}

private:
    FontText text_;
};

class NoNetwork : public ChatTransport {
public:
    SendStatus send(ChatSocket, const std::string&, const std::string&, const std::string&) override {
        return SendStatus::Sent;
    }
    std::vector<InterfaceAddress> interfaceAddresses() const override { return {}; }
};

class QuietChatView : public ChatView {
public:
    void notify(const Notice&, app::Language) override {}
    void beep() override {}
    void stateChanged() override {}
};

constexpr std::size_t kDatagramsPerInput = 8;  // enough to reach a peer chosen by an earlier one

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    EchoMainWindow form1;
    NoNetwork network;
    QuietChatView view;
    ChatWindow chat(form1, network, view);
    chat.fixedAddress = "127.0.0.1";
    chat.Form_Load();
    for (std::string_view part : fuzz::splitInput(fuzz::asText(data, size), kDatagramsPerInput)) {
        if (part.empty()) continue;
        const std::string datagram(part.substr(1));
        if (part.front() & 1) chat.socket2_DataArrival(datagram);
        else chat.socket1_DataArrival(datagram);
        if (chat.RemoteHost.empty() && (part.front() & 2)) chat.List1_DblClick(0);
    }
    chat.Form_QueryUnload();
    return 0;
}
