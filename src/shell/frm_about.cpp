#include "shell/frm_about.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/form1.h"
#include "shell/qt_text.h"

namespace vorlexa::shell {

namespace {
constexpr int kIconSize = 64;  // the program's icon beside its name
}  // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    auto* icon = new QLabel(this);
    icon->setPixmap(QIcon::fromTheme(QStringLiteral("vorlexa")).pixmap(kIconSize, kIconSize));
    top->addWidget(icon);
    auto* names = new QVBoxLayout;
    lblTitle = new QLabel(this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont big = lblTitle->font();
    big.setBold(true);
    lblTitle->setFont(big);
    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    names->addWidget(lblTitle);
    names->addWidget(lblVersion);
    top->addLayout(names, 1);
    layout->addLayout(top);
    lblDescription = new QLabel(this);
    lblDescription->setObjectName(QStringLiteral("lblDescription"));
    lblDescription->setWordWrap(true);
    lblDisclaimer = new QLabel(this);
    lblDisclaimer->setObjectName(QStringLiteral("lblDisclaimer"));
    lblDisclaimer->setWordWrap(true);
    layout->addWidget(lblDescription);
    layout->addWidget(lblDisclaimer);
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    layout->addWidget(cmdOK, 0, Qt::AlignRight);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmAbout::setCaptions(const app::AboutCaptions& captions, bool armenian) {
    setWindowTitle(captionText(captions.caption));
    lblTitle->setText(captionText(captions.lblTitle));
    lblVersion->setText(captionText(captions.lblVersion));
    lblDescription->setText(captionText(captions.lblDescription));
    lblDisclaimer->setText(captionText(captions.lblDisclaimer));
    cmdOK->setText(captionText(captions.cmdOK));
    const QFont face = armenian ? QFont(QString::fromLatin1(kArmenianFace)) : QFont();
    for (QWidget* w : std::initializer_list<QWidget*>{lblVersion, lblDescription, lblDisclaimer, cmdOK}) w->setFont(face);
}

}  // namespace vorlexa::shell
