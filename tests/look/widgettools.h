#pragma once

#include <QImage>
#include <QTest>
#include <QWidget>

// Shows a window and waits until the window system has it on screen.
inline bool showExposed(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowExposed(window);
}
