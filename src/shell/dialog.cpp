#include "shell/dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPushButton>
#include <QStorageInfo>
#include <QTreeView>
#include <QVBoxLayout>

#include "shell/form1.h"
#include "shell/qt_desktop.h"
#include "shell/qt_text.h"

namespace vorlexa::shell {

namespace {

constexpr int kListWidth = 220;   // room for a long font name or file name
constexpr int kTreeHeight = 260;  // a dozen folders at a time

QString pathText(const std::filesystem::path& p) { return QString::fromStdString(p.string()); }

std::filesystem::path pathOf(const QString& s) { return std::filesystem::path(s.toStdString()); }

void setItems(QListWidget* list, const std::vector<std::string>& items) {
    bool same = list->count() == static_cast<int>(items.size());
    for (int i = 0; same && i < list->count(); ++i)
        same = list->item(i)->text() == QString::fromStdString(items[static_cast<std::size_t>(i)]);
    if (same) return;
    list->clear();
    for (const std::string& item : items) list->addItem(QString::fromStdString(item));
}

}  // namespace

Dialog::Dialog(app::MainForm& form, app::Form1View& view, app::Desktop& desktop, QWidget* parent)
    : QDialog(parent), logic_(form, view, desktop) {
    setObjectName(QStringLiteral("Dialog"));
    logic_.defaultFaceShown = kArmenianFace;
    logic_.changed = [this] { sync(); };
    buildControls();
    // Escape and the window's close button are a Cancel.
    connect(this, &QDialog::rejected, this, [this] {
        if (logic_.visible) logic_.CancelButton_Click();
    });
}

Dialog::~Dialog() { logic_.changed = nullptr; }

void Dialog::buildControls() {
    auto* layout = new QVBoxLayout(this);
    auto* columns = new QHBoxLayout;

    auto* files = new QVBoxLayout;
    Drive1 = new QComboBox(this);
    Drive1->setObjectName(QStringLiteral("Drive1"));
    Dir1 = new QTreeView(this);
    Dir1->setObjectName(QStringLiteral("Dir1"));
    folders_ = new QFileSystemModel(this);
    folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    folders_->setRootPath(QDir::rootPath());
    Dir1->setModel(folders_);
    for (int column = 1; column < folders_->columnCount(); ++column) Dir1->hideColumn(column);
    Dir1->setHeaderHidden(true);
    Dir1->setMinimumHeight(kTreeHeight);
    files->addWidget(Drive1);
    files->addWidget(Dir1);
    columns->addLayout(files, 1);

    File1 = new QListWidget(this);
    File1->setObjectName(QStringLiteral("File1"));
    File1->setMinimumWidth(kListWidth);
    columns->addWidget(File1, 1);

    List1 = new QListWidget(this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setMinimumWidth(kListWidth);
    columns->addWidget(List1, 1);

    auto* fontSide = new QVBoxLayout;
    Combo1 = new QComboBox(this);
    Combo1->setObjectName(QStringLiteral("Combo1"));
    Combo1->setEditable(true);
    for (const int size : app::kFontSizes) Combo1->addItem(QString::number(size));
    Combo2 = new QComboBox(this);
    Combo2->setObjectName(QStringLiteral("Combo2"));
    for (const std::string_view style : app::kFontStyles) Combo2->addItem(captionText(style));
    Command1 = new QPushButton(this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Frame1 = new QGroupBox(QStringLiteral("Font Color"), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    auto* frameLayout = new QVBoxLayout(Frame1);
    sample_ = new QLabel(QStringLiteral("Aa Աա Եև"), Frame1);
    sample_->setAlignment(Qt::AlignCenter);
    frameLayout->addWidget(sample_);
    fontSide->addWidget(Combo1);
    fontSide->addWidget(Combo2);
    fontSide->addWidget(Frame1, 1);
    fontSide->addWidget(Command1);
    columns->addLayout(fontSide);
    layout->addLayout(columns, 1);

    Text5 = new QLineEdit(this);
    Text5->setObjectName(QStringLiteral("Text5"));
    layout->addWidget(Text5);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    OKButton = new QPushButton(this);
    OKButton->setObjectName(QStringLiteral("OKButton"));
    OKButton->setDefault(true);
    CancelButton = new QPushButton(this);
    CancelButton->setObjectName(QStringLiteral("CancelButton"));
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    layout->addLayout(buttons);

    connect(Drive1, &QComboBox::activated, this, [this](int index) {
        logic_.Drive1_Change(pathOf(Drive1->itemData(index).toString()));
    });
    connect(Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
        if (syncing_ || !index.isValid()) return;
        logic_.Dir1_Change(pathOf(folders_->filePath(index)));
        // The proposed name is selected, ready to be typed over.
        const QString path = Text5->text();
        const int start = static_cast<int>(path.lastIndexOf(QLatin1Char('/'))) + 1;
        const int end = static_cast<int>(path.size() - app::kProposedExtension.size());
        Text5->setFocus();
        if (end > start) Text5->setSelection(start, end - start);
    });
    connect(File1, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        logic_.File1_Click(item->text().toStdString());
    });
    connect(File1, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        logic_.File1_Click(item->text().toStdString());
        logic_.OKButton_Click();
    });
    connect(Text5, &QLineEdit::textEdited, this, [this](const QString& text) { logic_.setText5(text.toStdString()); });
    connect(List1, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        logic_.List1_Click(item->text().toStdString());
    });
    connect(Combo1, &QComboBox::textActivated, this, [this](const QString& text) {
        if (!syncing_) logic_.Combo1_Click(text.toStdString());
    });
    connect(Combo2, &QComboBox::textActivated, this, [this](const QString& text) {
        if (!syncing_) logic_.Combo2_Click(text.toStdString());
    });
    connect(Command1, &QPushButton::clicked, this, [this] { logic_.Command1_Click(); });
    connect(OKButton, &QPushButton::clicked, this, [this] { logic_.OKButton_Click(); });
    connect(CancelButton, &QPushButton::clicked, this, [this] { logic_.CancelButton_Click(); });
}

void Dialog::fillDrives() {
    QStringList roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isValid() && volume.isReady()) roots << volume.rootPath();
    roots << QDir::homePath();
    roots.removeDuplicates();
    Drive1->clear();
    for (const QString& root : roots) Drive1->addItem(root, root);
}

void Dialog::sync() {
    syncing_ = true;
    const app::Dialog& d = logic_;
    setWindowTitle(captionText(d.caption));
    OKButton->setText(captionText(d.OKButton));
    CancelButton->setText(captionText(d.CancelButton));
    Command1->setText(captionText(d.Command1));
    if (Text5->text() != captionText(d.Text5)) Text5->setText(captionText(d.Text5));

    for (QWidget* w : std::initializer_list<QWidget*>{Drive1, Dir1, File1}) w->setVisible(d.filesShown);
    for (QWidget* w : std::initializer_list<QWidget*>{List1, Combo2, Command1, Frame1}) w->setVisible(d.fontsShown);
    Combo1->setVisible(d.fontsShown && d.combo1Visible);

    if (d.filesShown) {
        if (Drive1->count() == 0) fillDrives();
        setItems(File1, d.File1);
        for (int i = 0; i < File1->count(); ++i)
            if (File1->item(i)->text() == captionText(d.File1Chosen)) File1->setCurrentRow(i);
        const QModelIndex folder = folders_->index(pathText(d.Dir1));
        if (folder.isValid() && Dir1->currentIndex() != folder) {
            Dir1->setCurrentIndex(folder);
            Dir1->scrollTo(folder);
        }
    }
    if (d.fontsShown) {
        setItems(List1, d.List1);
        Combo1->setCurrentText(captionText(d.Combo1));
        Combo2->setCurrentText(captionText(d.Combo2));
        sample_->setFont(boxFont(d.Frame1));
        QPalette palette = sample_->palette();
        palette.setColor(QPalette::WindowText, colorOfBgr(d.Frame1.color));
        sample_->setPalette(palette);
    }
    syncing_ = false;

    if (d.visible && !isVisible()) {
        show();
        raise();
        activateWindow();
    } else if (!d.visible && isVisible()) {
        hide();
    }
}

}  // namespace vorlexa::shell
