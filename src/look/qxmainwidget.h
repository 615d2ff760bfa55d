#pragma once

#include "qxwidget.h"

// The base of the main window: a framed window that Escape leaves alone.
class QxMainWidget : public QxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QxMainWidget)

public:
    explicit QxMainWidget(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
