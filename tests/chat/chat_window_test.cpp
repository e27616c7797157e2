#include "chat/chat_window.h"

#include <gtest/gtest.h>

#include <random>

#include "chat/chat_fixture.h"
#include "chat/chat_text.h"

using namespace vorlexa;
using namespace vorlexa::chat;
using namespace vorlexa::literals;
using vorlexa::test::ChatPeer;
using vorlexa::test::MemoryNetwork;

namespace {

std::string u8(const FontText& font) {
    return toUtf8(font);
}
bool contains(const FontText& text, std::string_view utf8) {
    return toUtf8(text).find(utf8) != std::string::npos;
}

// Both windows announce, and each chooses the other from its list.
void connect(ChatPeer& a, ChatPeer& b, MemoryNetwork& network) {
    a.window.Timer1_Timer();
    b.window.Timer1_Timer();
    network.deliverAll();
    const auto indexOf = [](const ChatWindow& w, const std::string& address) {
        return static_cast<std::size_t>(std::find(w.List1.begin(), w.List1.end(), address) -
                                        w.List1.begin());
    };
    a.window.List1_DblClick(indexOf(a.window, b.window.LocalAddress));
    b.window.List1_DblClick(indexOf(b.window, a.window.LocalAddress));
    network.deliverAll();
}

}  // namespace

TEST(ChatWindow, OpeningMinimisesTheMainWindowAndSetsInstantTranslation) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    EXPECT_TRUE(peer.form1View.minimised);
    EXPECT_TRUE(peer.form1.checked("Chat"));
    EXPECT_TRUE(peer.form1.checked("ITR"));
    peer.window.Form_QueryUnload();
    EXPECT_FALSE(peer.form1.checked("Chat"));
    EXPECT_FALSE(peer.form1.checked("ITR"));
}

TEST(ChatWindow, LoadsWithEnglishCaptionsTranslationOnAndTheFirstTickInASecond) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    const ChatWindow& w = peer.window;
    EXPECT_EQ(w.Label1, "Change to Armenian");
    EXPECT_EQ(w.Caption, "Bilingual Chat");
    EXPECT_EQ(w.Label3, "With Translation");
    EXPECT_EQ(w.Command1, "Send");
    EXPECT_EQ(w.Picture1, ChatPicture::English);
    EXPECT_EQ(w.TranslationOn, 1);
    EXPECT_EQ(w.Timer1Interval, 1000);
    EXPECT_EQ(w.Label2BackColor, 0x0000FF);
    EXPECT_FALSE(w.armenianMode());
}

TEST(ChatWindow, LoadsWithArmenianCaptionsInAnArmenianInterface) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1", true);
    const ChatWindow& w = peer.window;
    EXPECT_EQ(w.Label1, "Փոխել անգլերենի");
    EXPECT_EQ(w.Caption, "Երկլեզվյա զրուցարան");
    EXPECT_EQ(w.Label3, "Թարգմանությամբ");
    EXPECT_EQ(w.Command1, "Ուղարկել");
    EXPECT_EQ(w.Picture1, ChatPicture::Armenian);
    EXPECT_TRUE(w.armenianMode());
}

TEST(ChatWindow, FirstTickAnnouncesToEveryAddressOfTheOwnSlash24AndSlowsTheTimer) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Timer1_Timer();
    const auto sent = network.sentOn(kAnnouncePort);
    ASSERT_EQ(sent.size(), 254u);
    for (int i = 1; i <= 254; ++i) {
        EXPECT_EQ(sent[i - 1].to, "127.0.0." + std::to_string(i));
        EXPECT_EQ(sent[i - 1].payload, "19633691127.0.0.1");
        EXPECT_EQ(sent[i - 1].from, "127.0.0.1");
    }
    EXPECT_EQ(peer.window.AnnounceDatagram, "19633691127.0.0.1");
    EXPECT_EQ(peer.window.Timer1Interval, 20000);
    EXPECT_TRUE(network.sentOn(kMessagePort).empty());
}

TEST(ChatWindow, OwnAddressIsListedAfterTheFirstTickAndTheLightTurnsGreen) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Timer1_Timer();
    network.deliverAll();
    EXPECT_EQ(peer.window.List1, std::vector<FontText>{"127.0.0.1"});
    EXPECT_EQ(peer.window.Label2BackColor, 49152);
    EXPECT_EQ(peer.window.Label2ForeColor, 0x8000000B);
}

TEST(ChatWindow, EachTickClearsTheListBeforeItAnnounces) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Timer1_Timer();
    network.deliverAll();
    peer.window.socket2_DataArrival("19633691127.0.0.9");
    ASSERT_EQ(peer.window.List1.size(), 2u);
    const int generation = peer.window.listGeneration();
    peer.window.Timer1_Timer();
    EXPECT_TRUE(peer.window.List1.empty());
    EXPECT_GT(peer.window.listGeneration(), generation);
    network.deliverAll();
    EXPECT_EQ(peer.window.List1, std::vector<FontText>{"127.0.0.1"});
}

TEST(ChatWindow, WithoutAnOwnAddressNothingIsSweptAndTheWindowSaysSoOnce) {
    MemoryNetwork network;
    ChatPeer peer(network, "");
    peer.transport.table = {{"127.0.0.1", true, true}, {"198.51.100.4", true, false}};
    peer.window.DetLocIPHM();
    EXPECT_EQ(peer.window.LocalAddress, "");
    peer.window.Timer1_Timer();
    peer.window.Timer1_Timer();
    EXPECT_TRUE(network.sent.empty());
    const std::string line = u8(noAddressLine().english);
    const std::string log = u8(peer.window.Text2);
    EXPECT_EQ(log, line + "\r\n");
    EXPECT_EQ(peer.window.Timer1Interval, 20000);
}

TEST(ChatWindow, AFixedAddressReplacesTheSearch) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.2");
    EXPECT_EQ(peer.window.LocalAddress, "127.0.0.2");
}

TEST(ChatWindow, TwoPeersFindEachOtherAndEachMessageIsTranslatedOnArrival) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    connect(a, b, network);
    EXPECT_NE(std::find(a.window.List1.begin(), a.window.List1.end(), "127.0.0.2"),
              a.window.List1.end());
    EXPECT_NE(std::find(b.window.List1.begin(), b.window.List1.end(), "127.0.0.1"),
              b.window.List1.end());
    EXPECT_EQ(a.window.RemoteHost, "127.0.0.2");
    EXPECT_EQ(a.window.Text3, "127.0.0.2");
    EXPECT_EQ(a.window.Text3BackColor, 49152);

    a.send(fromUtf8("big house"));
    network.deliverAll();
    // The lexicon gives big = մեծ and house = տուն.
    EXPECT_TRUE(contains(b.window.Text2, "T - RESPONDENT SAID:\r\n")) << u8(b.window.Text2);
    EXPECT_TRUE(contains(b.window.Text2, "մեծ")) << u8(b.window.Text2);
    EXPECT_TRUE(contains(b.window.Text2, "տուն")) << u8(b.window.Text2);
    EXPECT_EQ(b.view.beeps, 1);
    EXPECT_EQ(b.window.ReceivedMessage, "big house");
    EXPECT_TRUE(b.form1View.Text3.empty());  // emptied after the run

    b.send(fromUtf8("մեծ տուն"));
    network.deliverAll();
    EXPECT_TRUE(contains(a.window.Text2, "big")) << u8(a.window.Text2);
    EXPECT_TRUE(contains(a.window.Text2, "house")) << u8(a.window.Text2);
    EXPECT_EQ(a.view.beeps, 1);
}

TEST(ChatWindow, WhatIsSentGoesAsTypedInFontCodes) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    connect(a, b, network);
    network.sent.clear();
    a.send(fromUtf8("  մեծ տուն "));
    const auto sent = network.sentOn(kMessagePort);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].payload, "մեծ տուն"_ft);  // trimmed, one byte a letter
    EXPECT_EQ(sent[0].payload.size(), 8u);
    EXPECT_EQ(sent[0].to, "127.0.0.2");
}

TEST(ChatWindow, APeerThatHasChosenNobodyReceivesNoMessages) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    a.window.Timer1_Timer();
    b.window.Timer1_Timer();
    network.deliverAll();
    a.window.Text3 = "127.0.0.2";
    a.window.Text3_DblClick();
    a.send("big");
    network.deliverAll();
    EXPECT_TRUE(b.window.Text2.empty());
    EXPECT_EQ(b.view.beeps, 0);
}

TEST(ChatWindow, ReceivedMessageIsShownAsItCameWithoutTranslation) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Label3_Click();
    EXPECT_EQ(peer.window.TranslationOn, 0);
    peer.window.socket1_DataArrival("big house");
    EXPECT_EQ(peer.window.Text2, "T - RESPONDENT SAID:\r\nbig house\r\n");
}

TEST(ChatWindow, ReceivedLogLineFollowsTheModeOfTheOwnWindow) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Label1_Click();
    peer.window.Label3_Click();
    peer.window.socket1_DataArrival("big");
    EXPECT_EQ(u8(peer.window.Text2), "T - ՄՅՈՒՍ ԿՈՂՄՆ ԱՍԱՑ.\r\nbig\r\n");
}

TEST(ChatWindow, OwnMessageIsLoggedWithTheTimeAndTheInputBoxEmptied) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Text1Caret = 5;
    peer.form1View.Text3 = "left";
    peer.send(" hello ");
    EXPECT_EQ(peer.window.Text2, "T - YOU SAID:\r\n hello \r\n");
    EXPECT_EQ(peer.window.OutgoingMessage, "hello");
    EXPECT_TRUE(peer.window.Text1.empty());
    EXPECT_EQ(peer.window.Text1Caret, 0);
    EXPECT_TRUE(peer.form1View.Text3.empty());
    peer.window.Label1_Click();
    peer.send("again");
    EXPECT_TRUE(contains(peer.window.Text2, "T - ԴՈՒՔ ԱՍԱՑԻՔ.\r\nagain\r\n"));
}

TEST(ChatWindow, WithoutAPeerAMessageIsLoggedButNothingIsSent) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.send("hello");
    EXPECT_TRUE(network.sent.empty());
    EXPECT_EQ(peer.window.Text2, "T - YOU SAID:\r\nhello\r\n");
}

TEST(ChatWindow, AMessageOf7950CharactersIsSent) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    connect(a, b, network);
    network.sent.clear();
    a.send(std::string(7950, 'a'));
    ASSERT_EQ(network.sentOn(kMessagePort).size(), 1u);
    EXPECT_EQ(network.sentOn(kMessagePort)[0].payload.size(), 7950u);
    EXPECT_TRUE(a.view.notices.empty());
}

TEST(ChatWindow, AMessageOf7951CharactersIsRefusedEvenWhenTrimmingWouldBringItUnder) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    connect(a, b, network);
    network.sent.clear();
    const std::string text = std::string(7949, 'a') + "  ";
    a.send(text);
    EXPECT_TRUE(network.sent.empty());
    ASSERT_EQ(a.view.notices.size(), 1u);
    EXPECT_EQ(a.view.notices[0].first.text.english, "Sorry, your text exceeds permitted volum!!!");
    EXPECT_EQ(a.view.notices[0].first.title.english, "Attention");
    EXPECT_EQ(a.window.Text1, text);  // nothing cut, nothing lost
    EXPECT_TRUE(a.window.Text2.empty());
}

TEST(ChatWindow, AMessageOfBlanksOnlyIsNoMessageToSend) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.send("    ");
    ASSERT_EQ(peer.view.notices.size(), 1u);
    EXPECT_EQ(peer.view.notices[0].first.text.english, "No message to send!!!");
    EXPECT_EQ(peer.view.notices[0].second, app::Language::English);
    EXPECT_TRUE(peer.window.Text2.empty());
    peer.window.Label1_Click();
    peer.send("");
    ASSERT_EQ(peer.view.notices.size(), 2u);
    EXPECT_EQ(u8(peer.view.notices[1].first.text.armenian), "Հաղորդագրություն չկա:");
    EXPECT_EQ(u8(peer.view.notices[1].first.title.armenian), "Ուշադրություն");
    EXPECT_EQ(peer.view.notices[1].second, app::Language::Armenian);
}

TEST(ChatWindow, ADatagramOfOneBlankLeavesTheLogUntouchedAndDoesNotBeep) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.socket1_DataArrival(" ");
    peer.window.socket1_DataArrival("");
    EXPECT_TRUE(peer.window.Text2.empty());
    EXPECT_EQ(peer.view.beeps, 0);
}

TEST(ChatWindow, ADoubleQuoteArrivesAsAnApostropheAndTheBoxShowsItBeforeTheMessageGoes) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    connect(a, b, network);
    FontText boxWhenSent;
    a.transport.onSend = [&] { boxWhenSent = a.window.Text1; };
    b.window.Label3_Click();  // shown as it came
    a.send("say \"hi\"");
    EXPECT_EQ(boxWhenSent, "say 'hi'");
    network.deliverAll();
    EXPECT_EQ(b.window.Text2, "T - RESPONDENT SAID:\r\nsay 'hi'\r\n");
}

TEST(ChatWindow, AnAnnouncementWithAnEmptyAddressAddsAnEmptyLine) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.socket2_DataArrival("19633691");
    EXPECT_EQ(peer.window.List1, std::vector<FontText>{""});
    EXPECT_EQ(peer.window.Label2BackColor, 49152);
}

TEST(ChatWindow, AnnouncementsAreBelievedAsTheyComeAndOtherDatagramsDropped) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.socket2_DataArrival("1963369");
    peer.window.socket2_DataArrival("372127.0.0.1");
    EXPECT_TRUE(peer.window.List1.empty());
    EXPECT_EQ(peer.window.Label2BackColor, 0x0000FF);
    peer.window.socket2_DataArrival("19633691not an address");
    peer.window.socket2_DataArrival("19633691not an address");
    EXPECT_EQ(peer.window.List1, (std::vector<FontText>{"not an address", "not an address"}));
    EXPECT_EQ(peer.window.ReceivedAnnounce, "19633691not an address");
}

TEST(ChatWindow, ThePeerListStopsGrowingAtItsLimit) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    for (std::size_t i = 0; i < kPeerListLimit + 500; ++i)
        peer.window.socket2_DataArrival("19633691127.0.0.3");
    EXPECT_EQ(peer.window.List1.size(), kPeerListLimit);
    peer.window.Label2_Click();
    EXPECT_EQ(peer.window.List1.size(), kPeerListLimit);
}

TEST(ChatWindow, TheLightListsTheOwnAddressesSortedUnderTheirHeading) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.transport.table = {
        {"127.0.0.9", true, false}, {"127.0.0.1", true, true}, {"127.0.0.2", false, false}};
    peer.window.Label2_Click();
    EXPECT_EQ(peer.window.List1, (std::vector<FontText>{"All Local IPs-Below:", "127.0.0.1",
                                                        "127.0.0.2", "127.0.0.9"}));
    peer.window.Label1_Click();
    peer.window.Label2_Click();
    EXPECT_EQ(u8(peer.window.List1[4]), "Տեղական IP-ներ.");
}

TEST(ChatWindow, DoubleClickOnTheHeadingLineMakesItTheRemoteHostAndTheOpenerFailsSilently) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Label2_Click();
    peer.window.List1_DblClick(0);
    EXPECT_EQ(peer.window.Text3, "All Local IPs-Below:");
    EXPECT_EQ(peer.window.RemoteHost, "All Local IPs-Below:");
    EXPECT_EQ(peer.window.Text3BackColor, 49152);
    EXPECT_TRUE(network.sent.empty());
    EXPECT_TRUE(peer.window.Text2.empty());
    EXPECT_TRUE(peer.view.notices.empty());
    peer.send("hello");  // goes nowhere, and is logged
    EXPECT_TRUE(network.sent.empty());
    EXPECT_EQ(peer.window.Text2, "T - YOU SAID:\r\nhello\r\n");
}

TEST(ChatWindow, DoubleClickOnTheAddressBoxOpensTheRouteToTheTrimmedAddress) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Text3 = "  127.0.0.5 ";
    peer.window.Text3_DblClick();
    const auto sent = network.sentOn(kMessagePort);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].to, "127.0.0.5");
    EXPECT_EQ(sent[0].payload, " ");
    EXPECT_EQ(peer.window.Text3BackColor, 0x80000005);  // typed by hand: the box keeps its colour
}

TEST(ChatWindow, LanguageSwitchCarriesTheTranslationCaptionAcrossAndLeavesTheFlag) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    ChatWindow& w = peer.window;
    w.Label3_Click();
    EXPECT_EQ(w.Label3, "Without Translation");
    w.Label1_Click();
    EXPECT_EQ(w.Label1, "Փոխել անգլերենի");
    EXPECT_EQ(w.Command1, "Ուղարկել");
    EXPECT_EQ(w.Picture1, ChatPicture::Armenian);
    EXPECT_EQ(w.Label3, "Առանց թարգմանելու");
    EXPECT_EQ(w.TranslationOn, 0);
    w.Label3_Click();
    EXPECT_EQ(w.Label3, "Թարգմանությամբ");
    EXPECT_EQ(w.TranslationOn, 1);
    w.Label1_Click();
    EXPECT_EQ(w.Label1, "Change to Armenian");
    EXPECT_EQ(w.Command1, "Send");
    EXPECT_EQ(w.Picture1, ChatPicture::English);
    EXPECT_EQ(w.Label3, "With Translation");
}

TEST(ChatWindow, TranslationSwitchDoesNothingForACaptionOfTheOtherMode) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Label3 = "Թարգմանությամբ";  // English mode with an Armenian caption
    peer.window.Label3_Click();
    EXPECT_EQ(peer.window.Label3, "Թարգմանությամբ");
    EXPECT_EQ(peer.window.TranslationOn, 1);
}

TEST(ChatWindow, EnterSendsANonEmptyBoxAndDoesNothingInAnEmptyOne) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    EXPECT_EQ(peer.window.Text1_KeyPress(13), std::nullopt);
    EXPECT_TRUE(peer.view.notices.empty());
    EXPECT_TRUE(peer.window.Text2.empty());
    peer.window.Text1 = "hi";
    EXPECT_EQ(peer.window.Text1_KeyPress(13), std::nullopt);
    EXPECT_EQ(peer.window.Text2, "T - YOU SAID:\r\nhi\r\n");
}

TEST(ChatWindow, ArmenianModeTypesPhoneticallyAndEnglishModeDoesNot) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    EXPECT_EQ(peer.window.Text1_KeyPress('a'), 'a');
    peer.window.Label1_Click();
    EXPECT_EQ(peer.window.Text1_KeyPress('a'), static_cast<unsigned char>("ա"_ft[0]));
    EXPECT_EQ(peer.window.Text1_KeyPress('T'), static_cast<unsigned char>("Տ"_ft[0]));
    EXPECT_EQ(peer.window.Text1_KeyPress(' '), ' ');  // 32: below the table
    EXPECT_EQ(peer.window.Text1_KeyPress('~'), '~');  // 126: above it
}

TEST(ChatWindow, ALongerDatagramThanAMessageIsDropped) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Label3_Click();
    peer.window.socket1_DataArrival(std::string(kMessageLimit + 1, 'x'));
    EXPECT_TRUE(peer.window.Text2.empty());
    EXPECT_EQ(peer.view.beeps, 0);
    peer.window.socket1_DataArrival(std::string(kMessageLimit, 'x'));
    EXPECT_EQ(peer.view.beeps, 1);
}

TEST(ChatWindow, TheConversationLosesItsOlderHalfAtALineStartWhenItOutgrowsItsLimit) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Label3_Click();
    const std::string message(kMessageLimit, 'x');
    int arrivals = 0;
    while (peer.window.conversationGeneration() == 0) {
        peer.window.socket1_DataArrival(message);
        ++arrivals;
    }
    const std::size_t entry = std::string("T - RESPONDENT SAID:\r\n").size() + kMessageLimit + 2;
    EXPECT_EQ(static_cast<std::size_t>(arrivals), kConversationLimit / entry + 1);
    EXPECT_LE(peer.window.Text2.size(), kConversationLimit / 2);
    EXPECT_EQ(peer.window.Text2.rfind("T - RESPONDENT SAID:\r\n", 0), 0u);
    EXPECT_EQ(peer.window.Text2.size() % entry, 0u);
}

TEST(ChatWindow, APortHeldByAnotherProgramIsReportedOnceAndTheSweepStops) {
    MemoryNetwork network;
    ChatPeer first(network, "127.0.0.1");
    ChatPeer second(network, "127.0.0.1");
    first.window.Timer1_Timer();
    const std::size_t sentBefore = network.sent.size();
    second.window.Timer1_Timer();
    second.window.Timer1_Timer();
    EXPECT_EQ(network.sent.size(), sentBefore);
    EXPECT_EQ(u8(second.window.Text2), u8(portInUseLine(15002).english) + "\r\n");
    EXPECT_TRUE(contains(second.window.Text2, "Port 15002 is in use by another program"));
}

TEST(ChatWindow, ADoubleClickOnABoxShowsTheLookUpOfItsSelectionAsTheToolTip) {
    MemoryNetwork network;
    ChatPeer peer(network, "127.0.0.1");
    peer.window.Text1_DblClick("house");  // no look-up yet: nothing happens
    EXPECT_TRUE(peer.window.Text1ToolTip.empty());
    peer.window.wordLookup = [](const FontText& word) {
        return word + " = " + FontText("տուն"_ft);
    };
    peer.window.Text1_DblClick("house");
    EXPECT_EQ(u8(peer.window.Text1ToolTip), "house = տուն");
    peer.window.Text2_DblClick("house");
    EXPECT_EQ(u8(peer.window.Text2ToolTip), "house = տուն");
}

TEST(ChatWindow, DatagramsOfAnyContentLeaveTheWindowWorking) {
    MemoryNetwork network;
    ChatPeer a(network, "127.0.0.1");
    ChatPeer b(network, "127.0.0.2");
    connect(a, b, network);
    std::mt19937 random(16);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> length(0, 300);
    for (int i = 0; i < 300; ++i) {
        std::string d(static_cast<std::size_t>(length(random)), '\0');
        for (char& c : d) c = static_cast<char>(byte(random));
        if (i % 2) d.insert(0, "19633691");
        b.window.socket1_DataArrival(d);
        b.window.socket2_DataArrival(d);
    }
    b.window.Text2.clear();
    a.send("big house");
    network.deliverAll();
    EXPECT_TRUE(contains(b.window.Text2, "RESPONDENT SAID:")) << u8(b.window.Text2);
    EXPECT_TRUE(contains(b.window.Text2, "տուն")) << u8(b.window.Text2);
}
