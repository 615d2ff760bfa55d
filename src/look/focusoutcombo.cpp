#include "focusoutcombo.h"

#include <QKeyEvent>
#include <QValidator>

void FocusOutCombo::focusOutEvent(QFocusEvent *event)
{
    QComboBox::focusOutEvent(event);
    // Its own popup takes the focus for a moment: the input isn't over.
    if (event->reason() == Qt::PopupFocusReason)
        return;
    QString text = currentText();
    int position = 0;
    if (validator() && validator()->validate(text, position) != QValidator::Acceptable)
        emit CancelInput();
    else
        emit focusOutTextChanged(currentText());
}

void FocusOutCombo::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit CancelInput();
    QComboBox::keyPressEvent(event);
}
