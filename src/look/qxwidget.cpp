#include "qxwidget.h"

QxWidget::QxWidget(QWidget *parent, Qt::WindowFlags flags)
    : QxFramed<QWidget>(parent, flags)
{}
