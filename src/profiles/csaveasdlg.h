#pragma once

#include "qxdialog.h"

#include <QString>

#include <memory>

class QAbstractButton;

namespace Ui {
class saveAsDlg;
}

// Asks for the name under which a profile is saved or renamed.
class CSaveAsDlg : public QxDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CSaveAsDlg)

public:
    explicit CSaveAsDlg(QWidget *parent = nullptr);
    ~CSaveAsDlg() override;

    // Shown in the line edit; also the answer until Ok takes the edited text.
    void setName(const QString &name);
    QString name() const { return text; }

private slots:
    void on_okCancelBtnBox_clicked(QAbstractButton *button);

private:
    std::unique_ptr<Ui::saveAsDlg> ui;
    QString text;
};
