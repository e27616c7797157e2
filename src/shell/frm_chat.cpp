#include "shell/frm_chat.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextCursor>
#include <QTimer>
#include <QVBoxLayout>

#include "chat/chat_text.h"
#include "shell/form1.h"
#include "shell/qt_text.h"

namespace vorlexa::shell {

namespace {

constexpr int kListWidth = 130;  // room for a dotted address
constexpr int kPictureSize = 32;
constexpr int kEnterKey = 13;
constexpr std::int64_t kSystemColourBit = 0x80000000;

// A colour as the design writes it: 0x00BBGGRR, or a system colour, which is the palette's own.
QString colourName(std::int64_t colour, QPalette::ColorRole systemRole) {
    if (colour & kSystemColourBit) return QApplication::palette().color(systemRole).name();
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                  static_cast<int>((colour >> 16) & 0xFF))
        .name();
}

QString colours(std::int64_t back, std::int64_t fore, QPalette::ColorRole backRole,
                QPalette::ColorRole foreRole) {
    return QStringLiteral("background-color: %1; color: %2;")
        .arg(colourName(back, backRole), colourName(fore, foreRole));
}

void setIfChanged(QPlainTextEdit* box, const FontText& text) {
    if (fontText(box->toPlainText()) == text) return;
    box->setPlainText(boxText(text));
    box->moveCursor(QTextCursor::End);
}

}  // namespace

frmChat::frmChat(Form1& form1, std::optional<std::string> fixedAddress, QWidget* parent)
    : QWidget(parent, Qt::Window), form1_(form1), transport_(this), bridge_(form1.logic(), form1) {
    setObjectName(QStringLiteral("frmChat"));
    buildControls();
    logic_ = std::make_unique<chat::ChatWindow>(bridge_, transport_, *this);
    logic_->fixedAddress = std::move(fixedAddress);
    logic_->now = [] {
        return QLocale::system()
            .toString(QDateTime::currentDateTime(), QLocale::ShortFormat)
            .toStdString();
    };
    transport_.onMessage = [this](const std::string& d) { logic_->socket1_DataArrival(d); };
    transport_.onAnnouncement = [this](const std::string& d) { logic_->socket2_DataArrival(d); };

    logic_->Form_Load();
    chat::Chat_Click(bridge_);
    Timer1->setInterval(logic_->Timer1Interval);
    Timer1->start();
    stateChanged();
}

frmChat::~frmChat() = default;

void frmChat::buildControls() {
    auto* layout = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    List1 = new QListWidget(this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setFixedWidth(kListWidth);
    Label2 = new QLabel(captionText(chat::caption::kStatusLight), this);
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->setToolTip(captionText(chat::caption::kStatusToolTip));
    Label2->setAlignment(Qt::AlignCenter);
    Text3 = new QLineEdit(this);
    Text3->setObjectName(QStringLiteral("Text3"));
    Text3->setFixedWidth(kListWidth);
    left->addWidget(Label2);
    left->addWidget(List1, 1);
    left->addWidget(Text3);

    auto* right = new QVBoxLayout;
    auto* switches = new QHBoxLayout;
    Picture1 = new QLabel(this);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->setFixedSize(kPictureSize, kPictureSize);
    Picture1->setAlignment(Qt::AlignCenter);
    Picture1->setFrameShape(QFrame::Box);
    Label1 = new QLabel(this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label3 = new QLabel(this);
    Label3->setObjectName(QStringLiteral("Label3"));
    for (QLabel* label : {Label1, Label3}) {
        label->setCursor(Qt::PointingHandCursor);
        label->setFrameShape(QFrame::StyledPanel);
    }
    Label2->setCursor(Qt::PointingHandCursor);
    switches->addWidget(Picture1);
    switches->addWidget(Label1);
    switches->addStretch(1);
    switches->addWidget(Label3);
    Text2 = new QPlainTextEdit(this);
    Text2->setObjectName(QStringLiteral("Text2"));
    Text2->setReadOnly(true);
    Text1 = new QPlainTextEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setMaximumHeight(Text1->fontMetrics().lineSpacing() * 5);
    Command1 = new QPushButton(this);
    Command1->setObjectName(QStringLiteral("Command1"));
    auto* input = new QHBoxLayout;
    input->addWidget(Text1, 1);
    input->addWidget(Command1);
    right->addLayout(switches);
    right->addWidget(Text2, 1);
    right->addLayout(input);
    layout->addLayout(left);
    layout->addLayout(right, 1);

    for (QWidget* w : {static_cast<QWidget*>(Label1), static_cast<QWidget*>(Label2),
                       static_cast<QWidget*>(Label3), static_cast<QWidget*>(Text3),
                       static_cast<QWidget*>(Text1), Text1->viewport(), Text2->viewport()})
        w->installEventFilter(this);
    form1_.installEventFilter(this);

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    connect(Timer1, &QTimer::timeout, this, [this] {
        logic_->Timer1_Timer();
        Timer1->setInterval(logic_->Timer1Interval);
    });
    connect(Command1, &QPushButton::clicked, this, [this] {
        takeTyping();
        logic_->Command1_Click();
    });
    connect(List1, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        takeTyping();
        logic_->List1_DblClick(static_cast<std::size_t>(List1->row(item)));
    });
}

void frmChat::setPrompter(Prompter* prompter) {
    prompter_ = prompter;
}

void frmChat::takeTyping() {
    logic_->Text1 = fontText(Text1->toPlainText());
    logic_->Text3 = fontText(Text3->text());
}

void frmChat::notify(const Notice& notice, app::Language language) {
    const bool armenian = language == app::Language::Armenian;
    Prompter* p = prompter_;
    if (!p) {
        if (!messageBoxes_) messageBoxes_ = std::make_unique<MessageBoxPrompter>();
        p = messageBoxes_.get();
    }
    p->notify(this, messageText(notice.title.in(armenian)), messageText(notice.text.in(armenian)));
}

void frmChat::beep() {
    QApplication::beep();
}

void frmChat::stateChanged() {
    if (syncing_) return;
    syncing_ = true;
    const chat::ChatWindow& s = *logic_;
    setWindowTitle(captionText(s.Caption));
    Label1->setText(captionText(s.Label1));
    Label3->setText(captionText(s.Label3));
    Command1->setText(captionText(s.Command1));
    Picture1->setText(s.Picture1 == chat::ChatPicture::Armenian ? QStringLiteral("Աա")
                                                                : QStringLiteral("Aa"));
    // A new style sheet polishes the control again: set it only when the colours change.
    const QString light =
        colours(s.Label2BackColor, s.Label2ForeColor, QPalette::Window, QPalette::WindowText);
    if (Label2->styleSheet() != light) Label2->setStyleSheet(light);
    const QString address =
        colours(s.Text3BackColor, s.Text3ForeColor, QPalette::Base, QPalette::Text);
    if (Text3->styleSheet() != address) Text3->setStyleSheet(address);
    if (fontText(Text3->text()) != s.Text3) Text3->setText(boxText(s.Text3));
    setIfChanged(Text1, s.Text1);
    Text1->setToolTip(boxText(s.Text1ToolTip));
    Text2->setToolTip(boxText(s.Text2ToolTip));

    // The list and the conversation only grow at their ends, except when cleared or cut.
    if (shownListGeneration_ != s.listGeneration()) {
        List1->clear();
        shownListGeneration_ = s.listGeneration();
    }
    for (std::size_t i = static_cast<std::size_t>(List1->count()); i < s.List1.size(); ++i)
        List1->addItem(boxText(s.List1[i]));
    bool grown = false;
    if (shownConversationGeneration_ != s.conversationGeneration() ||
        s.Text2.size() < shownConversation_) {
        Text2->setPlainText(boxText(s.Text2));
        shownConversationGeneration_ = s.conversationGeneration();
        grown = true;
    } else if (s.Text2.size() > shownConversation_) {
        QTextCursor end(Text2->document());
        end.movePosition(QTextCursor::End);
        end.insertText(boxText(std::string_view(s.Text2).substr(shownConversation_)));
        grown = true;
    }
    shownConversation_ = s.Text2.size();
    if (grown) {
        Text2->moveCursor(QTextCursor::End);
        Text2->verticalScrollBar()->setValue(Text2->verticalScrollBar()->maximum());
    }
    syncing_ = false;
}

void frmChat::closeEvent(QCloseEvent* event) {
    Timer1->stop();
    logic_->Form_QueryUnload();
    form1_.showNormal();
    form1_.stateChanged();
    event->accept();
}

bool frmChat::handleKey(QKeyEvent* key) {
    if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
        !(key->modifiers() & Qt::ShiftModifier)) {
        takeTyping();
        logic_->Text1_KeyPress(kEnterKey);
        return true;
    }
    // Shift+Enter breaks the line: the message may hold line breaks, and Enter sends.
    const QString typed = key->text();
    if (typed.size() != 1 ||
        (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return false;
    const char16_t c = typed.at(0).unicode();
    if (c < 0x20 || c >= 0x80) return false;
    const std::optional<unsigned char> mapped =
        logic_->Text1_KeyPress(static_cast<unsigned char>(c));
    if (!mapped || *mapped == c) return false;
    Text1->insertPlainText(QString(QChar(static_cast<char16_t>(font::unicodeOf(*mapped)))));
    return true;
}

bool frmChat::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (watched == Text1) return handleKey(static_cast<QKeyEvent*>(event));
            break;
        case QEvent::MouseButtonRelease:
            if (watched == Label1) logic_->Label1_Click();
            if (watched == Label2) logic_->Label2_Click();
            if (watched == Label3) logic_->Label3_Click();
            break;
        case QEvent::MouseButtonDblClick:
            if (watched == Text3) {
                takeTyping();
                logic_->Text3_DblClick();
                return true;
            }
            // The box selects the word first; the look-up reads the selection after.
            if (watched == Text1->viewport() || watched == Text2->viewport()) {
                const bool first = watched == Text1->viewport();
                QTimer::singleShot(0, this, [this, first] {
                    QPlainTextEdit* box = first ? Text1 : Text2;
                    QPlainTextEdit* other = first ? Text2 : Text1;
                    QTextCursor cursor = other->textCursor();
                    cursor.clearSelection();
                    other->setTextCursor(cursor);
                    const FontText selected = fontText(box->textCursor().selectedText());
                    if (first)
                        logic_->Text1_DblClick(selected);
                    else
                        logic_->Text2_DblClick(selected);
                });
            }
            break;
        case QEvent::Close:
            // The main window closing ends the program: the chat goes with it.
            if (watched == &form1_)
                QTimer::singleShot(0, this, [this] {
                    if (!form1_.isVisible()) close();
                });
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void installChat(Form1& form1, std::optional<std::string> fixedAddress,
                 chat::WordLookup wordLookup) {
    auto open = std::make_shared<QPointer<frmChat>>();
    form1.registerCommand(QStringLiteral("Chat"), [&form1, fixedAddress, wordLookup, open] {
        if (*open) {
            (*open)->showNormal();
            (*open)->raise();
            (*open)->activateWindow();
            return;
        }
        auto* chat = new frmChat(form1, fixedAddress);
        chat->logic().wordLookup = wordLookup;
        chat->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(&form1, &QObject::destroyed, chat, [chat] { delete chat; });
        *open = chat;
        chat->show();
    });
}

}  // namespace vorlexa::shell
