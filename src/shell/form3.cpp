#include "shell/form3.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextCursor>
#include <QVBoxLayout>

#include "shell/form1.h"
#include "shell/qt_text.h"
#include "text/converters.h"
#include "text_tools/result_box_tools.h"

namespace vorlexa::shell {

namespace {

constexpr int kWidth = 520;  // room for a paragraph of pasted text
constexpr int kHeight = 300;

// The selection of Text4 through the main window's own view of it.
class Text4Selection : public text_tools::SelectionBox {
public:
    explicit Text4Selection(app::Form1View& view) : view_(view) {}

    FontText selectedText() const override {
        const app::TextSelection sel = view_.text4Selection();
        const FontText all = view_.text4();
        const auto start = std::min(static_cast<std::size_t>(std::max(sel.start, 0)), all.size());
        return all.substr(start, static_cast<std::size_t>(std::max(sel.length, 0)));
    }

    void replaceSelection(const FontText& text) override {
        const app::TextSelection sel = view_.text4Selection();
        FontText all = view_.text4();
        const auto start = std::min(static_cast<std::size_t>(std::max(sel.start, 0)), all.size());
        all.replace(start, static_cast<std::size_t>(std::max(sel.length, 0)), text);
        view_.setText4(all);
        view_.selectText4({static_cast<int>(start), static_cast<int>(text.size())});
    }

private:
    app::Form1View& view_;
};

// TextBox1 shows its text as the window's face shows it: font codes as the Armenian letters the
// one-byte font draws for them. What it gives to the clipboard is the text itself, so a copy
// after a paste is font text for a document in that font, and after Label1 it is Unicode.
class ConverterBox : public QPlainTextEdit {
public:
    ConverterBox(const text_tools::ConverterForm& logic, QWidget* parent)
        : QPlainTextEdit(parent), logic_(logic) {}

protected:
    QMimeData* createMimeDataFromSelection() const override {
        const QTextCursor cursor = textCursor();
        const std::u16string& text = logic_.TextBox1;
        const std::size_t from =
            std::min(static_cast<std::size_t>(cursor.selectionStart()), text.size());
        const std::size_t to =
            std::min(static_cast<std::size_t>(cursor.selectionEnd()), text.size());
        auto* data = new QMimeData;
        data->setText(QString::fromStdU16String(text.substr(from, to - from)));
        return data;
    }

private:
    const text_tools::ConverterForm& logic_;
};

}  // namespace

Form3::Form3(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("Form3"));
    setWindowTitle(captionText(text_tools::kConverterCaption));

    auto* layout = new QVBoxLayout(this);
    TextBox1 = new ConverterBox(logic_, this);
    TextBox1->setObjectName(QStringLiteral("TextBox1"));
    TextBox1->setFont(boxFont({}));
    layout->addWidget(TextBox1, 1);

    auto* row = new QHBoxLayout;
    Label1 = new QLabel(tr("Convert to Unicode"), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setToolTip(tr("Turns the one-byte Armenian font text of the box back into Unicode"));
    Label3 = new QLabel(tr("Close"), this);
    Label3->setObjectName(QStringLiteral("Label3"));
    CheckBox1 = new QCheckBox(tr("Convert only, don't translate"), this);
    FaceLabel = new QLabel(this);
    FaceLabel->setObjectName(QStringLiteral("FaceLabel"));
    FaceLabel->setToolTip(
        tr("What a copy of the box gives: Arial Armenian, one byte per letter for documents "
           "in that font; sylfaen, Unicode"));
    CheckBox1->setObjectName(QStringLiteral("CheckBox1"));
    for (QLabel* label : {Label1, Label3}) {
        // Clickable labels: they look like links and take the keyboard focus too.
        label->setCursor(Qt::PointingHandCursor);
        label->setFocusPolicy(Qt::StrongFocus);
        QFont underlined = label->font();
        underlined.setUnderline(true);
        label->setFont(underlined);
        label->installEventFilter(this);
    }
    row->addWidget(Label1);
    row->addStretch(1);
    row->addWidget(CheckBox1);
    row->addStretch(1);
    row->addWidget(FaceLabel);
    row->addStretch(1);
    row->addWidget(Label3);
    layout->addLayout(row);

    connect(TextBox1, &QPlainTextEdit::textChanged, this, [this] { textChanged(); });
    connect(CheckBox1, &QCheckBox::toggled, this, [this](bool on) {
        if (!syncing_) logic_.CheckBox1 = on;
    });
    resize(kWidth, kHeight);
}

void Form3::textChanged() {
    if (syncing_) return;
    // The text as shown is the text edited; the conversion that follows gives the letters back
    // their font codes.
    logic_.TextBox1 = TextBox1->toPlainText().toStdU16String();
    logic_.textbox1_change();
    sync();
}

void Form3::sync() {
    syncing_ = true;
    const QString text = shownText();
    if (TextBox1->toPlainText() != text) {
        // The converters keep the length of the text, so the caret stays where the user left it.
        const int caret = TextBox1->textCursor().position();
        TextBox1->setPlainText(text);
        QTextCursor cursor = TextBox1->textCursor();
        cursor.setPosition(std::min(caret, static_cast<int>(text.size())));
        TextBox1->setTextCursor(cursor);
    }
    const QFont face = boxFont({logic_.TextBox1Font});
    if (TextBox1->font() != face) TextBox1->setFont(face);
    FaceLabel->setText(captionText(logic_.TextBox1Font));
    CheckBox1->setChecked(logic_.CheckBox1);
    syncing_ = false;
    if (!logic_.visible && isVisible()) hide();
}

QString Form3::shownText() const {
    std::u16string shown = logic_.TextBox1;
    if (logic_.TextBox1Font == text_tools::kFontTextFace) AnsciUnicodeConverter(shown);
    return QString::fromStdU16String(shown);
}

void Form3::place() {
    const QScreen* screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect();
    const QWidget* owner = parentWidget();
    const int left = owner ? owner->x() + (owner->width() - width()) / 2 : x();
    move(std::max(left, area.left()), area.top() + logic_.position / kTwipsPerPixel);
}

void Form3::uta_Click() {
    logic_.uta_Click();
    sync();
    place();
    show();
    raise();
}

void Form3::openForPaste() {
    logic_.openForPaste();
    sync();
    place();
    show();
    raise();
    activateWindow();
    TextBox1->setFocus(Qt::OtherFocusReason);
}

bool Form3::eventFilter(QObject* watched, QEvent* event) {
    bool clicked = event->type() == QEvent::MouseButtonRelease;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        clicked = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    }
    if (clicked && watched == Label1) {
        logic_.Label1_Click();
        sync();
        return true;
    }
    if (clicked && watched == Label3) {
        closeByUser();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void Form3::closeByUser() {
    logic_.Label3_Click();
    sync();
    // A run that found Unicode leaves the hourglass for the paste; a window closed without one
    // gives the arrow back, so that the pointer isn't left busy.
    if (logic_.setBusy) logic_.setBusy(false);
}

// The window's own close button does what Label3 does.
void Form3::closeEvent(QCloseEvent* event) {
    closeByUser();
    event->accept();
}

Form3* installTextTools(Form1& window, TextToolsHooks hooks) {
    auto* form3 = new Form3(&window);
    text_tools::ConverterForm& converter = form3->logic();
    converter.setBusy = [&window](bool busy) { window.setBusy(busy); };
    converter.translate = [&window](const FontText& text) {
        window.logic().setChecked("SUT", true);
        window.setText3(text);
    };
    window.logic().onOpenConverter = [form3] { form3->openForPaste(); };
    window.logic().onHideConverter = [form3] {
        form3->logic().visible = false;
        form3->sync();
    };
    window.registerCommand(QStringLiteral("uta"), [form3] { form3->uta_Click(); });

    using Command = void (text_tools::ResultBoxTools::*)();
    const auto wire = [&window, hooks](const char* item, Command command) {
        window.registerCommand(QString::fromLatin1(item), [&window, hooks, command] {
            Engine* engine = window.logic().engine();
            if (!engine) return;
            Text4Selection box(window);
            text_tools::ResultBoxTools tools(window.logic(), box, engine->OutputText);
            // The spell checker's own question and pass, unless the caller hands another.
            tools.CorrectorWorning = hooks.CorrectorWorning ? hooks.CorrectorWorning
                                                            : [&window] { window.logic().CorrectorWorning(); };
            (tools.*command)();
        });
    };
    wire("cvtae", &text_tools::ResultBoxTools::cvtae_Click);
    wire("ET", &text_tools::ResultBoxTools::ET_Click);
    wire("LLAT", &text_tools::ResultBoxTools::LLAT_Click);
    wire("AUC", &text_tools::ResultBoxTools::AUC_Click);
    wire("ALC", &text_tools::ResultBoxTools::ALC_Click);
    wire("EUC", &text_tools::ResultBoxTools::EUC_Click);
    wire("ELC", &text_tools::ResultBoxTools::ELC_Click);
    return form3;
}

}  // namespace vorlexa::shell
