#include "qxmainwidget.h"

#include <QKeyEvent>

QxMainWidget::QxMainWidget(QWidget *parent)
    : QxWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint)
{}

void QxMainWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QxWidget::keyPressEvent(event);
}
