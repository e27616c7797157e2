// Chat windows without widgets or sockets: each over its own main window (with the tests' small
// lexicon) and an in-memory network that delivers a datagram to the socket bound to its address
// and port, when the test lets the queued events run. Only loopback addresses are used.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/app_fixture.h"
#include "app/main_form.h"
#include "chat/chat_window.h"
#include "support/temp_folder.h"

namespace vorlexa::test {

// Form1 as a window would be: setting Text3 runs a translation into Text4.
class ChatForm1View : public app::Form1View {
  public:
    app::MainForm* form = nullptr;
    FontText Text3;
    FontText Text4;
    app::TextSelection selection;
    bool minimised = false;

    int ask(const Question&, app::Language) override { return kAnswerNo; }
    void notify(const Notice&, app::Language) override {}
    FontText text3() const override { return Text3; }
    void setText3(const FontText& t) override {
        Text3 = t;
        if (form) form->Text3_Change(t);
    }
    FontText text4() const override { return Text4; }
    void setText4(const FontText& t) override { Text4 = t; }
    app::TextSelection text4Selection() const override { return selection; }
    void selectText4(app::TextSelection s) override { selection = s; }
    void progressChanged(int) override {}
    void stateChanged() override {}
    void minimise() override { minimised = true; }
    void setBusy(bool) override {}
};

class RecordingChatView : public chat::ChatView {
  public:
    std::vector<std::pair<Notice, app::Language>> notices;
    int beeps = 0;
    int redraws = 0;
    void notify(const Notice& notice, app::Language language) override {
        notices.emplace_back(notice, language);
    }
    void beep() override { ++beeps; }
    void stateChanged() override { ++redraws; }
};

struct Datagram {
    std::string from;  // the sender's bound address
    std::string to;
    std::uint16_t port = 0;
    std::string payload;
};

class MemoryTransport;

class MemoryNetwork {
  public:
    std::map<std::pair<std::string, std::uint16_t>, chat::ChatWindow*> bound;
    std::deque<Datagram> queue;
    std::vector<Datagram> sent;

    // Runs the queued arrivals, and those they cause, as the event loop would.
    void deliverAll() {
        while (!queue.empty()) {
            const Datagram d = queue.front();
            queue.pop_front();
            auto it = bound.find({d.to, d.port});
            if (it == bound.end()) continue;  // nobody listens there: lost
            if (d.port == chat::kMessagePort)
                it->second->socket1_DataArrival(d.payload);
            else
                it->second->socket2_DataArrival(d.payload);
        }
    }
    std::vector<Datagram> sentOn(std::uint16_t port) const {
        std::vector<Datagram> r;
        for (const Datagram& d : sent)
            if (d.port == port) r.push_back(d);
        return r;
    }
};

class MemoryTransport : public chat::ChatTransport {
  public:
    MemoryNetwork& network;
    chat::ChatWindow* window = nullptr;
    std::vector<chat::InterfaceAddress> table{{"127.0.0.1", true, true}};
    std::function<void()> onSend;  // looks at the window as a datagram goes
    std::string boundAt[2];
    bool isBound[2] = {false, false};

    explicit MemoryTransport(MemoryNetwork& n) : network(n) {}

    chat::SendStatus send(chat::ChatSocket socket, const std::string& localAddress,
                          const std::string& remoteHost, const std::string& datagram) override {
        const int index = socket == chat::ChatSocket::socket1 ? 0 : 1;
        const std::uint16_t port = chat::portOf(socket);
        if (!isBound[index]) {
            const std::string at = localAddress.empty() ? "0.0.0.0" : localAddress;
            if (network.bound.count({at, port})) return chat::SendStatus::PortInUse;
            network.bound[{at, port}] = window;
            boundAt[index] = at;
            isBound[index] = true;
        }
        if (!chat::isDottedAddress(remoteHost)) return chat::SendStatus::BadAddress;
        // The tests talk over loopback only.
        EXPECT_EQ(remoteHost.rfind("127.", 0), 0u) << remoteHost;
        if (onSend) onSend();
        const Datagram d{boundAt[index], remoteHost, port, datagram};
        network.sent.push_back(d);
        network.queue.push_back(d);
        return chat::SendStatus::Sent;
    }
    std::vector<chat::InterfaceAddress> interfaceAddresses() const override { return table; }
};

// One person at one machine: a main window with the tests' lexicon and a chat window on it.
struct ChatPeer {
    TempFolder dir;
    std::filesystem::path data = buildFixtureData(dir);
    ChatForm1View form1View;
    app::MainForm form1{form1View};
    chat::MainFormChatBridge bridge{form1, form1View};
    MemoryTransport transport;
    RecordingChatView view;
    chat::ChatWindow window{bridge, transport, view};

    ChatPeer(MemoryNetwork& network, const std::string& address, bool armenianInterface = false)
        : transport(network) {
        form1View.form = &form1;
        EXPECT_EQ(form1.Form_Load(data, {}), app::StartResult::Started);
        if (armenianInterface) form1.setChecked("AMN", true);
        transport.window = &window;
        window.now = [] { return std::string("T"); };
        if (!address.empty()) window.fixedAddress = address;
        chat::Chat_Click(bridge);
        window.Form_Load();
    }
    ~ChatPeer() { form1.finish(); }

    void send(const FontText& text) {
        window.Text1 = text;
        window.Command1_Click();
    }
};

}  // namespace vorlexa::test
