// frmChat without its widgets: two people on one local network talk, each in his own language,
// and what arrives is put through the main window's translator before it is shown. Peers find
// each other by an announcement to every address of the local /24 network every 20 seconds.
//
// The texts are font text, one byte per character, on the wire as in the boxes; captions are
// UTF-8. A window (or a test) implements ChatView and maps its widgets to this state.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/interface_text.h"
#include "chat/chat_transport.h"
#include "engine/host.h"
#include "text/font_text.h"

namespace vorlexa::app {
class MainForm;
class Form1View;
}  // namespace vorlexa::app

namespace vorlexa::chat {

inline constexpr std::string_view kAnnounceMagic = "19633691";  // starts every announcement
inline constexpr std::string_view kRouteOpener = " ";           // sent once on choosing a peer
// Keeps a message inside one datagram of the socket's buffer.
inline constexpr std::size_t kMessageLimit = 7950;
inline constexpr int kFirstTickInterval =
    1000;  // milliseconds from opening to the first announcement
inline constexpr int kAnnounceInterval = 20000;  // milliseconds between announcements
inline constexpr int kSweepFirst = 1;            // the host numbers of a /24 network
inline constexpr int kSweepLast = 254;
// A /24 network holds 254 peers; four times that leaves room for the doubles the list allows
// and for the own addresses, and keeps a flood of announcements from growing it without end.
inline constexpr std::size_t kPeerListLimit = 1024;
// Once the conversation outgrows this many characters its older half goes, so that a flood of
// messages can't grow the window without end.
inline constexpr std::size_t kConversationLimit = 2 * 1024 * 1024;

// Colours as the design writes them: 0x00BBGGRR, or a system colour with the high bit.
inline constexpr std::int64_t kGreen = 49152;
inline constexpr std::int64_t kRed = 0x0000FF;
inline constexpr std::int64_t kSystemButtonText = 0x8000000B;
inline constexpr std::int64_t kSystemWindow = 0x80000005;      // a text box's own background
inline constexpr std::int64_t kSystemWindowText = 0x80000008;  // a text box's own text

// Which of the main window's pictures Picture1 shows.
enum class ChatPicture { English, Armenian };

class ChatView {
  public:
    virtual ~ChatView() = default;
    virtual void notify(const Notice& notice, app::Language language) = 0;
    virtual void beep() = 0;
    // The state changed: redraw from it. The list and the conversation grow at their ends;
    // their generation numbers tell when they were cleared or cut instead.
    virtual void stateChanged() = 0;
};

// What the chat asks of the main window: its source box (setting it runs a translation), its
// result box, its language, its menu checks.
class ChatMainWindow {
  public:
    virtual ~ChatMainWindow() = default;
    virtual void setText3(const FontText& text) = 0;
    virtual FontText text4() const = 0;
    virtual bool armenianInterface() const = 0;
    virtual bool checked(std::string_view item) const = 0;
    virtual void setChecked(std::string_view item, bool on) = 0;
    virtual void minimise() = 0;
};

// The main window of the program as the chat sees it.
class MainFormChatBridge : public ChatMainWindow {
  public:
    MainFormChatBridge(app::MainForm& form, app::Form1View& view) : form_(form), view_(view) {}
    void setText3(const FontText& text) override;
    FontText text4() const override;
    bool armenianInterface() const override;
    bool checked(std::string_view item) const override;
    void setChecked(std::string_view item, bool on) override;
    void minimise() override;

  private:
    app::MainForm& form_;
    app::Form1View& view_;
};

// The menu item Chat (in Form1): the main window is minimised and instant translation is set, so
// that a message put into Text3 is translated at once. The window itself is shown by the caller.
void Chat_Click(ChatMainWindow& form1);

// The word look-up of the main window, run on the text selected in a chat box; it gives the tool
// tip to show (empty for none).
using WordLookup = std::function<FontText(const FontText& selected)>;

class ChatWindow {
  public:
    ChatWindow(ChatMainWindow& form1, ChatTransport& transport, ChatView& view);

    // ---- Window state --------------------------------------------------------------------
    FontText ReceivedMessage;
    FontText OutgoingMessage;
    FontText ReceivedAnnounce;
    FontText AnnounceDatagram;
    std::string LocalAddress;  // dotted; empty until found
    int TranslationOn = 0;

    // ---- Controls ------------------------------------------------------------------------
    std::vector<FontText> List1;  // the peers heard
    FontText Text1;               // the input box
    int Text1Caret = 0;
    FontText Text2;  // the conversation
    FontText Text3;  // the peer's address
    std::string Label1;
    std::string Label3;
    std::string Command1;
    std::string Caption;  // the window's title
    std::int64_t Label2BackColor = kRed;
    std::int64_t Label2ForeColor = kSystemButtonText;
    std::int64_t Text3BackColor = kSystemWindow;
    std::int64_t Text3ForeColor = kSystemWindowText;
    ChatPicture Picture1 = ChatPicture::English;
    int Timer1Interval = kFirstTickInterval;
    FontText Text1ToolTip;
    FontText Text2ToolTip;
    std::string RemoteHost;  // socket1's remote host; empty until a peer is chosen

    // Raised when List1 is cleared, and when the conversation loses its older half.
    int listGeneration() const { return listGeneration_; }
    int conversationGeneration() const { return conversationGeneration_; }

    // The mode of the window, told by Label1's caption.
    bool armenianMode() const;

    // An address that replaces the search (--chat-address); empty: search the interface table.
    std::optional<std::string> fixedAddress;
    // The date and time that start a line of the conversation.
    std::function<std::string()> now;
    // The look-up the main window offers; unset until the look-up panel is there.
    WordLookup wordLookup;

    // ---- Events --------------------------------------------------------------------------
    void Form_Load();
    // Hides nothing itself: unchecks ITR and Chat; the caller hides this window and restores
    // the main window.
    void Form_QueryUnload();
    void DetLocIPHM();
    void Timer1_Timer();
    void socket1_DataArrival(const std::string& datagram);
    void socket2_DataArrival(const std::string& datagram);
    void Label1_Click();
    void Label2_Click();  // DetLocIP
    void Label3_Click();
    void List1_DblClick(std::size_t index);
    void Text3_DblClick();
    void Command1_Click();
    // A key typed into Text1: the code to insert, or nullopt when the key is used up (Enter).
    std::optional<unsigned char> Text1_KeyPress(unsigned char key);
    // A double click on a box with the text selected in it.
    void Text1_DblClick(const FontText& selected);
    void Text2_DblClick(const FontText& selected);

  private:
    void SendingMessage();
    void appendConversation(const FontText& text);
    void appendStatusLine(const Wording& line);
    void addListLine(const FontText& line);
    void sent(SendStatus status, ChatSocket socket);
    const FontText& inMode(const Wording& wording) const { return wording.in(armenianMode()); }

    ChatMainWindow& form1_;
    ChatTransport& transport_;
    ChatView& view_;
    int listGeneration_ = 0;
    int conversationGeneration_ = 0;
    bool portReported_[2] = {false, false};
    bool noAddressReported_ = false;
};

}  // namespace vorlexa::chat
