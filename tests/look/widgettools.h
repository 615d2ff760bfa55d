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

inline QColor colourAt(const QImage &image, int x, int y)
{
    return QColor(image.pixel(x, y)).toRgb();
}

// A press at `from`, a move to `to` and a release there, as a hand drags.
inline void drag(QWidget *widget, QPoint from, QPoint to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}
