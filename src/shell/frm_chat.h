// frmChat, the bilingual chat window: the peers found (List1), the peer's address (Text3), the
// input box (Text1), the conversation (Text2), the send button (Command1), the typing language
// switch (Label1), the status light (Label2), the translation switch (Label3) and the language
// picture (Picture1), with Timer1 announcing the window to the local network. What they do
// lives in chat::ChatWindow; this class maps the widgets and the sockets to it.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <memory>
#include <optional>
#include <string>

#include "chat/chat_window.h"
#include "shell/chat_transport_qt.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTimer;

namespace vorlexa::shell {

class Form1;
class Prompter;

class frmChat : public QWidget, public chat::ChatView {
    Q_OBJECT

  public:
    // Opens on `form1`: the search for the own address (or `fixedAddress`) and the first tick a
    // second later.
    frmChat(Form1& form1, std::optional<std::string> fixedAddress, QWidget* parent = nullptr);
    ~frmChat() override;

    chat::ChatWindow& logic() { return *logic_; }
    UdpChatTransport& transport() { return transport_; }
    // The window does not own the prompter; nullptr brings back the message boxes.
    void setPrompter(Prompter* prompter);

    // ---- ChatView -------------------------------------------------------------------------
    void notify(const Notice& notice, app::Language language) override;
    void beep() override;
    void stateChanged() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildControls();
    void takeTyping();  // the boxes the user types into, into the state
    bool handleKey(QKeyEvent* key);

    Form1& form1_;
    UdpChatTransport transport_;
    chat::MainFormChatBridge bridge_;
    std::unique_ptr<chat::ChatWindow> logic_;
    std::unique_ptr<Prompter> messageBoxes_;
    Prompter* prompter_ = nullptr;
    bool syncing_ = false;
    int shownListGeneration_ = -1;
    int shownConversationGeneration_ = -1;
    std::size_t shownConversation_ = 0;  // font characters of Text2 already in the box

    QListWidget* List1 = nullptr;
    QLineEdit* Text3 = nullptr;
    QPlainTextEdit* Text1 = nullptr;
    QPlainTextEdit* Text2 = nullptr;
    QPushButton* Command1 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Picture1 = nullptr;
    QTimer* Timer1 = nullptr;
};

// Wires the menu item Chat of `form1`: it opens the chat window, or brings it forward when it is
// open. `fixedAddress` replaces the search for the own address (--chat-address); `wordLookup`
// is the main window's look-up that a double click in Text1 or Text2 runs on the selection.
void installChat(Form1& form1, std::optional<std::string> fixedAddress, chat::WordLookup wordLookup = {});

}  // namespace vorlexa::shell
