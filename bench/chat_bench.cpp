// The chat's own work, without sockets or translation: one announcement tick (254 datagrams
// made and handed to the transport), a flood of announcements into the capped peer list, and
// messages of the largest size arriving into the conversation, which is cut when it outgrows
// its limit.
#include <benchmark/benchmark.h>

#include <string>

#include "chat/chat_window.h"

namespace {

using namespace vorlexa;

// A transport that counts what it is given and sends nothing.
class CountingTransport : public chat::ChatTransport {
  public:
    std::size_t bytes = 0;
    chat::SendStatus send(chat::ChatSocket, const std::string&, const std::string&,
                          const std::string& d) override {
        bytes += d.size();
        return chat::SendStatus::Sent;
    }
    std::vector<chat::InterfaceAddress> interfaceAddresses() const override { return {}; }
};

class NoMainWindow : public chat::ChatMainWindow {
  public:
    void setText3(const FontText&) override {}
    FontText text4() const override { return {}; }
    bool armenianInterface() const override { return false; }
    bool checked(std::string_view) const override { return false; }
    void setChecked(std::string_view, bool) override {}
    void minimise() override {}
};

class NoView : public chat::ChatView {
  public:
    void notify(const Notice&, app::Language) override {}
    void beep() override {}
    void stateChanged() override {}
};

struct Window {
    CountingTransport transport;
    NoMainWindow form1;
    NoView view;
    chat::ChatWindow window{form1, transport, view};
    Window() {
        window.fixedAddress = "127.0.0.1";
        window.now = [] { return std::string("2026-11-24 00:00:00"); };
        window.Form_Load();
    }
};

void BM_AnnouncementTick(benchmark::State& state) {
    Window w;
    for (auto _ : state) w.window.Timer1_Timer();
    benchmark::DoNotOptimize(w.transport.bytes);
    state.SetItemsProcessed(state.iterations() * (chat::kSweepLast - chat::kSweepFirst + 1));
}
BENCHMARK(BM_AnnouncementTick);

void BM_AnnouncementFloodIntoTheList(benchmark::State& state) {
    Window w;
    const std::string announcement = std::string(chat::kAnnounceMagic) + "127.0.0.2";
    for (auto _ : state) {
        for (int i = 0; i < 10000; ++i) w.window.socket2_DataArrival(announcement);
        w.window.Timer1_Timer();  // the own tick clears the list
    }
    state.SetItemsProcessed(state.iterations() * 10000);
}
BENCHMARK(BM_AnnouncementFloodIntoTheList);

void BM_LargestMessagesIntoTheConversation(benchmark::State& state) {
    Window w;
    w.window.Label3_Click();  // shown as they come: the conversation's own cost only
    const std::string message(chat::kMessageLimit, 'x');
    for (auto _ : state) w.window.socket1_DataArrival(message);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(message.size()));
}
BENCHMARK(BM_LargestMessagesIntoTheConversation);

}  // namespace

BENCHMARK_MAIN();
