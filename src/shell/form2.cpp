#include "shell/form2.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include "shell/form1.h"
#include "shell/phonetic_input.h"
#include "shell/qt_text.h"

namespace vorlexa::shell {

using namespace vorlexa::literals;

namespace {

constexpr int kQueryMilliseconds = 2000;  // xdg-mime answers at once; a hung one is no answer
constexpr int kTagBoxWidth = 160;         // room for the tags of several meanings
constexpr int kPositionBoxWidth = 110;    // "e-a " and a record number

const QStringList kTextTypes{QStringLiteral("text/plain")};

// True unless the desktop is known to have no application for plain text.
bool defaultTextApplicationSet() {
    const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (query.isEmpty()) return true;  // another desktop: let the open itself tell
    QProcess p;
    p.start(query, {QStringLiteral("query"), QStringLiteral("default"), kTextTypes.front()});
    if (!p.waitForFinished(kQueryMilliseconds)) {
        p.kill();
        p.waitForFinished(kQueryMilliseconds);
        return false;
    }
    return !p.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace

bool openWithDefaultApplication(const QString& path) {
    return defaultTextApplicationSet() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

Form2::Form2(app::MainForm& main, Prompter& prompter, QWidget* parent)
    : QDialog(parent), corrector_(main.store(), *this), prompter_(prompter) {
    setObjectName(QStringLiteral("Form2"));
    corrector_.folder = main.dataFolder();
    buildControls();
    refresh();
}

void Form2::buildControls() {
    auto* grid = new QGridLayout(this);
    const auto label = [this](const char* name) {
        auto* l = new QLabel(this);
        l->setObjectName(QString::fromLatin1(name));
        return l;
    };
    const auto box = [this](const char* name) {
        auto* b = new QLineEdit(this);
        b->setObjectName(QString::fromLatin1(name));
        b->setFont(boxFont({}));
        b->installEventFilter(this);
        return b;
    };
    const auto button = [this](const char* name, void (WordCorrector::*command)()) {
        auto* b = new QPushButton(this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this,
                [this, command] { run([this, command] { (corrector_.*command)(); }); });
        return b;
    };
    Label1 = label("Label1");
    Label2 = label("Label2");
    Label3 = label("Label3");
    Label4 = label("Label4");
    Label5 = label("Label5");
    Text1 = box("Text1");
    Text2 = box("Text2");
    Text3 = box("Text3");
    Text4 = box("Text4");
    Text4->setFixedWidth(kPositionBoxWidth);
    Text3->setFixedWidth(kTagBoxWidth);
    Check1 = new QCheckBox(this);
    Check1->setObjectName(QStringLiteral("Check1"));
    connect(Check1, &QCheckBox::toggled, this, [this](bool on) {
        if (!syncing_) run([this, on] { corrector_.Check1_Click(on); });
    });
    Command1 = button("Command1", &WordCorrector::Command1_Click);
    Command2 = button("Command2", &WordCorrector::Command2_Click);
    Command3 = button("Command3", &WordCorrector::Command3_Click);
    Command4 = button("Command4", &WordCorrector::Command4_Click);
    Command5 = button("Command5", &WordCorrector::Command5_Click);
    Command6 = button("Command6", &WordCorrector::Command6_Click);
    Command7 = button("Command7", &WordCorrector::Command7_Click);

    grid->addWidget(Label1, 0, 0);
    grid->addWidget(Label2, 0, 1);
    grid->addWidget(Label3, 0, 2);
    grid->addWidget(Text1, 1, 0);
    grid->addWidget(Text2, 1, 1);
    grid->addWidget(Text3, 1, 2);
    auto* checkRow = new QHBoxLayout;
    checkRow->addWidget(Check1);
    checkRow->addWidget(Label5);
    checkRow->addStretch(1);
    checkRow->addWidget(Text4);
    checkRow->addWidget(Label4);
    grid->addLayout(checkRow, 2, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {Command5, Command3, Command2, Command4, Command1}) buttons->addWidget(b);
    grid->addLayout(buttons, 3, 0, 1, 3);
    auto* reports = new QHBoxLayout;
    reports->addWidget(Command6);
    reports->addWidget(Command7);
    grid->addLayout(reports, 4, 0, 1, 3);
}

void Form2::open(bool armenianInterface) {
    corrector_.Corr_Click(armenianInterface);
    refresh();
    show();
    raise();
    activateWindow();
}

void Form2::collect() {
    corrector_.Text1 = fontText(Text1->text());
    corrector_.Text2 = fontText(Text2->text());
    corrector_.Text3 = fontText(Text3->text());
    corrector_.Text4 = Text4->text().toStdString();
}

void Form2::refresh() {
    syncing_ = true;
    setWindowTitle(captionText(corrector_.caption("Form2")));
    for (QLabel* l : {Label1, Label2, Label3, Label5})
        l->setText(captionText(corrector_.caption(l->objectName().toStdString())));
    for (QPushButton* b : {Command1, Command2, Command3, Command4, Command5, Command6, Command7}) {
        const std::string name = b->objectName().toStdString();
        b->setText(captionText(corrector_.caption(name)));
        b->setEnabled(corrector_.enabled(name));
    }
    Command3->setToolTip(captionText(corrector_.command3ToolTip()));
    Check1->setChecked(corrector_.check1());
    Text3->setMaxLength(corrector_.text3MaxLength());
    Text1->setText(boxText(corrector_.Text1));
    Text2->setText(boxText(corrector_.Text2));
    Text3->setText(boxText(corrector_.Text3));
    Text4->setText(QString::fromStdString(corrector_.Text4));
    Label4->setText(QString::fromStdString(corrector_.Label4));
    syncing_ = false;
}

void Form2::run(const std::function<void()>& command) {
    collect();
    command();
    refresh();
}

int Form2::ask(const Question& question, bool armenian) {
    return prompter_.ask(this, messageText(question.title.in(armenian)),
                         messageText(question.text.in(armenian)), question.buttons);
}

void Form2::notify(const Notice& notice, bool armenian) {
    prompter_.notify(this, messageText(notice.title.in(armenian)),
                     messageText(notice.text.in(armenian)));
}

void Form2::showList(const std::filesystem::path& file, bool armenian) {
    const QString path = QString::fromStdString(file.string());
    if (openFile && openFile(path)) return;
    // No application to show it with: the user is told where the list is.
    const FontText where = fromUtf8(file.string());
    notify({{"The list is written to " + where,
             FontText("Ցանկը գրված է "_ft) + where + FontText(" ֆայլում:"_ft)},
            {"Dictionary Report", FontText("Հաշվետվություն"_ft)}},
           armenian);
}

bool Form2::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && (watched == Text1 || watched == Text2)) {
        run([this, watched] {
            watched == Text1 ? corrector_.Text1_DblClick() : corrector_.Text2_DblClick();
        });
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched == Text2) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            collect();
            if (corrector_.Text2_Enter()) refresh();
            return true;
        }
        return insertPhonetic(Text2, key, WordCorrector::Text2_KeyPress);
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace vorlexa::shell
