#pragma once

#include <QComboBox>

// A combo box that reports its text when the focus leaves it, or that the
// input is to be taken back: on Escape, or when the focus leaves a text its
// validator doesn't accept.
class FocusOutCombo : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

signals:
    void focusOutTextChanged(QString text);
    void CancelInput();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
