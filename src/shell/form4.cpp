#include "shell/form4.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/phonetic_keys.h"
#include "shell/form1.h"
#include "shell/phonetic_input.h"
#include "shell/qt_text.h"

namespace vorlexa::shell {

namespace {
constexpr std::string_view kAddCaption[2] = {"Add", "Ավելացնել"};
constexpr int kBoxWidth = 360;  // an expression of a few words at a glance
}  // namespace

Form4::Form4(app::MainForm& main, Prompter& prompter, QWidget* parent)
    : QDialog(parent), main_(main), prompter_(prompter), editor_(main.dataFolder()) {
    setObjectName(QStringLiteral("Form4"));
    auto* column = new QVBoxLayout(this);
    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text2 = new QLineEdit(this);
    Text2->setObjectName(QStringLiteral("Text2"));
    for (QLineEdit* box : {Text1, Text2}) {
        box->setFont(boxFont({}));
        box->setMinimumWidth(kBoxWidth);
        box->installEventFilter(this);
        column->addWidget(box);
    }
    Command1 = new QPushButton(this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(Command1);
    column->addLayout(row);
    connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
}

void Form4::open(const FontText& selectedInText4) {
    const bool armenian = main_.language() == app::Language::Armenian;
    setWindowTitle(captionText(main_.caption("ETE")));
    Command1->setText(captionText(kAddCaption[armenian ? 1 : 0]));
    editor_.Form_Load(selectedInText4);
    editor_.Text2.clear();
    refresh();
    show();
    raise();
    activateWindow();
}

void Form4::refresh() {
    Text1->setText(boxText(editor_.Text1));
    Text2->setText(boxText(editor_.Text2));
}

void Form4::Command1_Click() {
    editor_.Text1 = fontText(Text1->text());
    editor_.Text2 = fontText(Text2->text());
    const ExpressionResult r = editor_.Command1_Click();
    refresh();
    if (!r.error.empty()) prompter_.notify(this, windowTitle(), QString::fromStdString(r.error));
}

bool Form4::eventFilter(QObject* watched, QEvent* event) {
    // Phonetic typing, as in the main window's boxes, while the input language is Armenian.
    if (event->type() != QEvent::KeyPress || !main_.checked("TA"))
        return QDialog::eventFilter(watched, event);
    return insertPhonetic(watched, static_cast<QKeyEvent*>(event), [](unsigned char c) {
        return app::kanci(c, app::KeyTable::Expressions);
    });
}

}  // namespace vorlexa::shell
