#include "csaveasdlg.h"

#include "qxskin.h"
#include "ui_saveasdlg.h"

#include <QDialogButtonBox>
#include <QPushButton>

CSaveAsDlg::CSaveAsDlg(QWidget *parent)
    : QxDialog(parent)
    , ui(std::make_unique<Ui::saveAsDlg>())
{
    ui->setupUi(this);
    setFrame(QxSkin::instance()->imagePath(QStringLiteral("subdlg.png")), 30, 30, 30, 30);
    setFixedSize(400, 130);
    ui->okCancelBtnBox->setContentsMargins(14, 0, 14, 0);
    connect(ui->closeBtn, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->closeBtnMac, &QPushButton::clicked, this, &QDialog::reject);
    // The title bar keeps its close button on the right here.
    ui->closeBtnMac->hide();
}

CSaveAsDlg::~CSaveAsDlg() = default;

void CSaveAsDlg::setName(const QString &name)
{
    text = name;
    ui->nameLineEidt->setText(name);
    ui->nameLineEidt->selectAll();
}

void CSaveAsDlg::on_okCancelBtnBox_clicked(QAbstractButton *button)
{
    if (ui->okCancelBtnBox->standardButton(button) == QDialogButtonBox::Ok) {
        text = ui->nameLineEidt->text();
        accept();
    } else {
        reject();
    }
}
