#include "shell/form1.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDir>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPalette>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QTextCursor>
#include <QVBoxLayout>

#include "app/add_word_panel.h"
#include "shell/phonetic_input.h"
#include "shell/qt_text.h"
#include "shell/shell_menus.h"

#include "shell/dictionary_tools_shell.h"

namespace vorlexa::shell {

namespace {

constexpr int kTagBoxWidth = 70;    // room for the five characters of a tag
constexpr int kListHeight = 80;     // a few suggestions at a time
constexpr int kPictureWidth = 34;   // the input-language pictures: two letters
constexpr int kPictureHeight = 22;
// With instant translation off a run may ask questions: typed changes wait for this pause in
// typing, so that the next key strokes go into the text and not into a question box.
constexpr std::chrono::milliseconds kTypingPause{400};

bool isDesignFace(const QString& name) {
    const QString n = name.trimmed().toLower();
    return n == QLatin1String("arial armenian") || n == QLatin1String("sylfaen");
}

QColor colorOf(std::int64_t bgr) {
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                  static_cast<int>((bgr >> 16) & 0xFF));
}

std::string nameOf(const QString& item) { return item.toStdString(); }

}  // namespace

QFont boxFont(const app::Text4Font& font) {
    QString face = captionText(font.name);
    if (face.isEmpty() || isDesignFace(face) || !QFontDatabase::families().contains(face, Qt::CaseInsensitive))
        face = QString::fromLatin1(kArmenianFace);
    QFont f(face);
    f.setPointSizeF(font.size > 0 ? font.size : app::kDefaultFontSize);
    f.setBold(font.bold);
    f.setItalic(font.italic);
    return f;
}

// ---- Message boxes ----------------------------------------------------------------------------

int MessageBoxPrompter::ask(QWidget* parent, const QString& title, const QString& text, Buttons buttons) {
    QMessageBox::StandardButtons which = QMessageBox::Ok;
    if (buttons == Buttons::YesNo) which = QMessageBox::Yes | QMessageBox::No;
    if (buttons == Buttons::YesNoCancel) which = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    QMessageBox box(buttons == Buttons::Ok ? QMessageBox::Information : QMessageBox::Question, title, text,
                    which, parent);
    switch (box.exec()) {
        case QMessageBox::Yes: return kAnswerYes;
        case QMessageBox::No: return kAnswerNo;
        case QMessageBox::Cancel: return kAnswerCancel;
        default: return buttons == Buttons::Ok ? kAnswerOk : kAnswerCancel;
    }
}

void MessageBoxPrompter::notify(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox::information(parent, title, text);
}

// ---- The window --------------------------------------------------------------------------------

Form1::Form1(QWidget* parent)
    : QMainWindow(parent), messageBoxes_(std::make_unique<MessageBoxPrompter>()) {
    setObjectName(QStringLiteral("Form1"));
    prompter_ = messageBoxes_.get();
    logic_ = std::make_unique<app::MainForm>(*this);

    const std::pair<const char*, std::function<void()>> builtIn[] = {
        {"TS", [this] { logic_->TS_Click(); }},       {"ITR", [this] { logic_->ITR_Click(); }},
        {"IMPV", [this] { logic_->IMPV_Click(); }},   {"SUT", [this] { logic_->SUT_Click(); }},
        {"EF", [this] { logic_->EF_Click(); }},       {"EdtTr", [this] { logic_->EdtTr_Click(); }},
        {"AMN", [this] { logic_->AMN_Click(); }},     {"Engo", [this] { logic_->Engo_Click(); }},
        {"TA", [this] { logic_->TA_Click(); }},       {"exit1", [this] { close(); }},
        {"SSO", [this] { logic_->SSO_Click(); }},     {"DSO", [this] { logic_->DSO_Click(); }},
        {"Fnd", [this] { logic_->Fnd_Click(); }},     {"Replacce", [this] { logic_->Replacce_click(); }},
    };
    for (const auto& [name, command] : builtIn) commands_[QString::fromLatin1(name)] = command;

    buildControls();
    buildMenus();
    installDictionaryTools(*this);
    stateChanged();
    shellMenus_ = std::make_unique<ShellMenus>(*this);
    saveForExit = [this] {
        shellMenus_->saveAtExit();
        return false;
    };
}

Form1::~Form1() {
    if (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
}

void Form1::buildControls() {
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);

    auto* top = new QHBoxLayout;
    Check1 = new QCheckBox(central);
    Check1->setObjectName(QStringLiteral("Check1"));
    Picture1 = new QLabel(QStringLiteral("Aa"), central);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture2 = new QLabel(QStringLiteral("Աա"), central);
    Picture2->setObjectName(QStringLiteral("Picture2"));
    for (QLabel* picture : {Picture1, Picture2}) {
        picture->setFixedSize(kPictureWidth, kPictureHeight);
        picture->setAlignment(Qt::AlignCenter);
        picture->setFrameShape(QFrame::Box);
        picture->setFont(boxFont({}));
        picture->installEventFilter(this);
    }
    ProgressBar1 = new QProgressBar(central);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setRange(0, 100);
    // The bar keeps its room while hidden, so that it can be drawn at once when a run shows it.
    QSizePolicy keep = ProgressBar1->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    ProgressBar1->setSizePolicy(keep);
    top->addWidget(Check1);
    top->addWidget(Picture1);
    top->addWidget(Picture2);
    top->addWidget(ProgressBar1, 1);
    layout->addLayout(top);

    Text3 = new QPlainTextEdit(central);
    Text3->setObjectName(QStringLiteral("Text3"));
    Text3->setFont(boxFont({}));
    layout->addWidget(Text3, 1);

    panel_ = new QWidget(central);
    panel_->setObjectName(QStringLiteral("WordPanel"));
    auto* row = new QHBoxLayout(panel_);
    row->setContentsMargins(0, 0, 0, 0);
    Text1 = new QLineEdit(panel_);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text2 = new QLineEdit(panel_);
    Text2->setObjectName(QStringLiteral("Text2"));
    Text6 = new QLineEdit(panel_);
    Text6->setObjectName(QStringLiteral("Text6"));
    Text6->setMaxLength(kTagWidth);
    Text6->setFixedWidth(kTagBoxWidth);
    Command2 = new QPushButton(panel_);
    Command2->setObjectName(QStringLiteral("Command2"));
    // The panel of the design can only be left by saving a word; Skip (and Escape) leaves the
    // word untranslated instead, as a No to the question would.
    SkipWord = new QPushButton(panel_);
    SkipWord->setObjectName(QStringLiteral("SkipWord"));
    List1 = new QListWidget(panel_);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setFixedHeight(kListHeight);
    for (QLineEdit* box : {Text1, Text2, Text6}) box->setFont(boxFont({}));
    List1->setFont(boxFont({}));
    row->addWidget(Text1, 2);
    row->addWidget(Text2, 2);
    row->addWidget(Text6);
    row->addWidget(Command2);
    row->addWidget(SkipWord);
    row->addWidget(List1, 2);
    layout->addWidget(panel_);

    Text4 = new QPlainTextEdit(central);
    Text4->setObjectName(QStringLiteral("Text4"));
    layout->addWidget(Text4, 1);
    setCentralWidget(central);

    for (QWidget* box : std::initializer_list<QWidget*>{Text1, Text2, Text3, Text4, Text6}) box->installEventFilter(this);
    // Mouse presses on a text area reach its viewport, not the box itself.
    Text4->viewport()->installEventFilter(this);

    // Any change of the source box is a run, typed or set by a command.
    typingPause_ = new QTimer(this);
    typingPause_->setSingleShot(true);
    typingPause_->setInterval(kTypingPause);
    connect(typingPause_, &QTimer::timeout, this, [this] { logic_->Text3_Change(text3()); });
    nextSlice_ = new QTimer(this);
    nextSlice_->setSingleShot(true);
    nextSlice_->setInterval(0);
    connect(nextSlice_, &QTimer::timeout, this, [this] {
        if (logic_->continueInstantRun()) nextSlice_->start();
    });
    connect(Text3, &QPlainTextEdit::textChanged, this, [this] { text3Changed(); });
    skipKey_ = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(skipKey_, &QShortcut::activated, this, [this] { skipWord(); });
    connect(SkipWord, &QPushButton::clicked, this, [this] { skipWord(); });
    for (QLineEdit* box : {Text1, Text2, Text6})
        connect(box, &QLineEdit::textChanged, this, [this] { panelEdited(); });
    connect(Command2, &QPushButton::clicked, this, [this] {
        panelEdited();
        logic_->Command2_Click();
    });
    // The spelling suggestions, and the letters of the result that pick how it is searched.
    connect(List1, &QListWidget::itemClicked, this, [this] { logic_->List1_Click(List1->currentRow()); });
    connect(Text4, &QPlainTextEdit::textChanged, this, [this] { logic_->Text4_Change(); });
    connect(Check1, &QCheckBox::toggled, this, [this](bool on) {
        if (!syncing_ && logic_->engine()) logic_->engine()->Check1 = on ? 1 : 0;
    });
    resize(800, 600);
}

void Form1::buildMenus() {
    for (const app::MenuEntry& entry : app::menuTree()) {
        const QString name = captionText(entry.name);
        const QString caption = captionText(logic_->caption(entry.name));
        QMenu* parentMenu = entry.parent.empty() ? nullptr : menus_.at(captionText(entry.parent));
        if (entry.submenu) {
            QMenu* menu = parentMenu ? parentMenu->addMenu(caption) : menuBar()->addMenu(caption);
            menu->setObjectName(name);
            menus_[name] = menu;
            continue;
        }
        QAction* action = parentMenu->addAction(caption);
        action->setObjectName(name);
        action->setCheckable(entry.checkable);
        if (!entry.shortcut.empty()) action->setShortcut(QKeySequence(captionText(entry.shortcut)));
        connect(action, &QAction::triggered, this, [this, name] { runCommand(name); });
        actions_[name] = action;
    }
}

app::StartResult Form1::start(const std::filesystem::path& dataFolder, const std::filesystem::path& shipped) {
    const app::StartResult result = logic_->Form_Load(dataFolder, shipped);
    stateChanged();
    return result;
}

void Form1::setPrompter(Prompter* prompter) { prompter_ = prompter ? prompter : messageBoxes_.get(); }

void Form1::registerCommand(const QString& item, std::function<void()> command) {
    commands_[item] = std::move(command);
    stateChanged();
}

bool Form1::hasCommand(const QString& item) const { return commands_.count(item) > 0; }

void Form1::text3Changed() {
    const bool typed = typing_;
    if (!typed) {
        // A paste or a change made by code runs at once.
        typingPause_->stop();
        nextSlice_->stop();
        logic_->Text3_Change(text3());
        return;
    }
    if (logic_->checked("ITR")) {
        // Every key stroke is a run; a long one goes in slices and the next key stroke drops it.
        typingPause_->stop();
        if (logic_->startInstantRun(text3())) nextSlice_->start();
        return;
    }
    typingPause_->start();
}

void Form1::skipWord() {
    if (!logic_->panel().visible) return;
    logic_->skipWord();
    stateChanged();
}

void Form1::runCommand(const QString& item) {
    typing_ = false;
    const auto it = commands_.find(item);
    if (it != commands_.end()) it->second();
    stateChanged();
}

void Form1::panelEdited() {
    if (syncing_) return;
    app::WordPanel& p = logic_->panel();
    p.Text1 = fontText(Text1->text());
    p.Text2 = fontText(Text2->text());
    p.Text6 = fontText(Text6->text());
}

// ---- Form1View ----------------------------------------------------------------------------------

int Form1::ask(const Question& question, app::Language language) {
    const bool armenian = language == app::Language::Armenian;
    return prompter_->ask(this, messageText(question.title.in(armenian)), messageText(question.text.in(armenian)),
                          question.buttons);
}

void Form1::notify(const Notice& notice, app::Language language) {
    const bool armenian = language == app::Language::Armenian;
    prompter_->notify(this, messageText(notice.title.in(armenian)), messageText(notice.text.in(armenian)));
}

FontText Form1::text3() const { return fontText(Text3->toPlainText()); }

void Form1::setText3(const FontText& text) {
    typing_ = false;
    Text3->setPlainText(boxText(text));
}

FontText Form1::text4() const { return fontText(Text4->toPlainText()); }

void Form1::setText4(const FontText& text) { Text4->setPlainText(boxText(text)); }

app::TextSelection Form1::text4Selection() const {
    const QTextCursor cursor = Text4->textCursor();
    const QString all = Text4->toPlainText();
    const int start = fontPosition(all, cursor.selectionStart());
    const int end = fontPosition(all, cursor.selectionEnd());
    return {start, end - start};
}

void Form1::selectText4(app::TextSelection selection) {
    const FontText all = text4();
    QTextCursor cursor = Text4->textCursor();
    const int length = Text4->document()->characterCount() - 1;
    cursor.setPosition(std::min(boxPosition(all, selection.start), length));
    cursor.setPosition(std::min(boxPosition(all, selection.start + selection.length), length), QTextCursor::KeepAnchor);
    Text4->setTextCursor(cursor);
}

void Form1::progressChanged(int percent) {
    ProgressBar1->setValue(percent);
    // A run holds the event loop; the bar is drawn here and now.
    if (ProgressBar1->isVisible()) ProgressBar1->repaint();
}

void Form1::stateChanged() {
    if (!logic_ || !Text3) return;
    syncing_ = true;
    const app::MainForm& f = *logic_;
    setWindowTitle(captionText(f.windowTitle()));

    for (const auto& [name, action] : actions_) {
        const std::string n = nameOf(name);
        action->setText(captionText(f.caption(n)));
        if (action->isCheckable()) action->setChecked(f.checked(n));
        action->setEnabled(f.enabled(n) && hasCommand(name));
    }
    // A submenu is open to use when one of its items is; the menus of the bar always are.
    for (auto it = menus_.rbegin(); it != menus_.rend(); ++it) {
        QMenu* menu = it->second;
        menu->setTitle(captionText(f.caption(nameOf(it->first))));
        const app::MenuEntry* entry = app::findMenuEntry(nameOf(it->first));
        if (entry && entry->parent.empty()) continue;
        bool any = false;
        for (QAction* a : menu->actions()) any = any || a->isEnabled();
        menu->menuAction()->setEnabled(any);
    }

    Picture1->setVisible(f.picture1Visible());
    Picture2->setVisible(f.picture2Visible());
    Picture1->setToolTip(captionText(f.caption("Picture1")));
    Check1->setChecked(f.direction() == 1);

    const bool editing = f.editingLayout();
    Text3->setVisible(!editing);
    ProgressBar1->setVisible(!editing && f.progressVisible());
    ProgressBar1->setValue(f.progressValue());

    const QFont font = boxFont(f.text4Font());
    if (Text4->font() != font) Text4->setFont(font);
    QPalette palette = Text4->palette();
    palette.setColor(QPalette::Text, colorOf(f.text4Font().color));
    Text4->setPalette(palette);

    const app::WordPanel& p = f.panel();
    panel_->setVisible(p.visible);
    const auto put = [](QLineEdit* box, const FontText& text) {
        const QString shown = boxText(text);
        if (box->text() != shown) box->setText(shown);
    };
    put(Text1, p.Text1);
    put(Text2, p.Text2);
    put(Text6, p.Text6);
    Command2->setText(captionText(p.Command2));
    Command2->setVisible(p.visible);
    const app::Language language = f.language();
    const bool addingWord = p.visible && logic_->engine() && logic_->engine()->state == RunState::Waiting &&
                            !logic_->engine()->SpellMode.isSet();
    // The hints speak of adding a word; the panel's other uses leave the boxes without them.
    Text1->setPlaceholderText(addingWord ? captionText(app::panelWordHint(language)) : QString());
    Text2->setPlaceholderText(addingWord ? captionText(app::panelTranslationHint(language)) : QString());
    Text6->setPlaceholderText(addingWord ? captionText(app::panelTagHint(language)) : QString());
    SkipWord->setText(captionText(app::skipCaption(language)));
    SkipWord->setVisible(addingWord);
    skipKey_->setEnabled(addingWord);
    // The list is refilled only when its items changed, so that a chosen item stays chosen.
    bool sameList = List1->count() == static_cast<int>(p.List1.size());
    for (int i = 0; sameList && i < List1->count(); ++i)
        sameList = List1->item(i)->text() == boxText(p.List1[static_cast<std::size_t>(i)]);
    if (!sameList) {
        List1->clear();
        for (const FontText& item : p.List1) List1->addItem(boxText(item));
    }
    List1->setVisible(p.listVisible);
    Text1->setVisible(p.text1Visible);
    Text2->setVisible(p.text2Visible);
    Text6->setVisible(p.text6Visible);
    Command2->setEnabled(p.command2Enabled);
    Command2->setToolTip(captionText(p.command2Tip));
    syncing_ = false;
}

void Form1::minimise() { showMinimized(); }

void Form1::restoreAfterUnattendedRun() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    ++attentionRequests_;
    QApplication::alert(this);
}

void Form1::setBusy(bool busy) {
    if (busy && !QApplication::overrideCursor()) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!busy && QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
}

// ---- Events ------------------------------------------------------------------------------------

void Form1::closeEvent(QCloseEvent* event) {
    if (closing_ || !logic_->engine()) {
        event->accept();
        return;
    }
    switch (logic_->exit1_Click()) {
        case app::ExitAnswer::End:
            closing_ = true;
            logic_->finish();
            event->accept();
            return;
        case app::ExitAnswer::Cancel:
            event->ignore();
            return;
        case app::ExitAnswer::SaveThenEnd:
            if (saveForExit && saveForExit()) {
                closing_ = true;
                logic_->finish();
                event->accept();
            } else {
                event->ignore();
            }
            return;
    }
}

bool Form1::eventFilter(QObject* watched, QEvent* event) {
    const bool box = watched == Text1 || watched == Text2 || watched == Text3 || watched == Text4 || watched == Text6;
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // The menu's keys win over a text box's own (Ctrl+Z switches the input language,
            // it does not undo), as long as their item can be used.
            if (box) {
                const auto* key = static_cast<QKeyEvent*>(event);
                const QKeySequence pressed(key->keyCombination());
                for (const auto& [name, action] : actions_) {
                    if (action->isEnabled() && !action->shortcut().isEmpty() && action->shortcut() == pressed) {
                        event->ignore();
                        return true;
                    }
                }
            }
            break;
        case QEvent::KeyPress:
            if (watched == Text3) {
                const auto* key = static_cast<QKeyEvent*>(event);
                typing_ = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
            }
            if (box && watched != Text6) return handleKey(watched, static_cast<QKeyEvent*>(event));
            break;
        case QEvent::KeyRelease:
            if (watched == Text3) typing_ = false;
            break;
        case QEvent::MouseButtonPress:
            typing_ = false;
            if (watched == Picture1 || watched == Picture2) {
                logic_->TA_Click();
                return true;
            }
            if (watched == Text1) logic_->Text1_Click();
            if (watched == Text2) logic_->Text2_Click();
            // In editing mode a right-button press on the result opens Replace for its selection.
            if (watched == Text4->viewport() && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton &&
                logic_->checked("EF")) {
                logic_->Replacce_click();
                return true;
            }
            break;
        case QEvent::ContextMenu:
            // The right button belongs to Replace in editing mode: no context menu then.
            if ((watched == Text4 || watched == Text4->viewport()) && logic_->checked("EF")) return true;
            break;
        case QEvent::MouseButtonDblClick:
            if (watched == Text1) logic_->Text1_DblClick();
            if (watched == Text2) {
                panelEdited();
                logic_->Text2_DblClick();
            }
            break;
        default:
            break;
    }
    return QMainWindow::eventFilter(watched, event);
}

bool Form1::handleKey(QObject* box, QKeyEvent* key) {
    return insertPhonetic(box, key, [this](unsigned char c) { return logic_->typedKey(c); });
}

void Form1::endProgram() {
    closing_ = true;
    logic_->finish();
    close();
}

}  // namespace vorlexa::shell
