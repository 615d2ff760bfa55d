#pragma once

#include "qxframed.h"

#include <QWidget>

// A frameless top-level window that paints its frame from a skin picture,
// takes the picture's shape and is dragged by any free part of its surface.
class QxWidget : public QxFramed<QWidget>
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QxWidget)

public:
    explicit QxWidget(QWidget *parent = nullptr,
                      Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint);
};
