#pragma once

#include <QImage>
#include <QPoint>

class QBitmap;
class QMouseEvent;
class QPainter;
class QRect;
class QSize;
class QString;
class QWidget;

// The painted frame and the drag state that every framed window shares.
// The picture is cut in nine pieces by its margins: corners stay 1:1,
// edges and centre stretch.
class QxFrame
{
public:
    // Loads the picture and a "@2x" twin beside it, if any; false when the
    // picture can't be loaded (the frame is then null).
    bool setFrame(const QString &path, int top, int right, int bottom, int left);
    bool isNull() const { return frame.isNull(); }

    void paint(QPainter &painter, const QSize &size) const;
    // The window shape: transparent pixels of the corners lie outside.
    QBitmap mask(const QSize &size) const;

    // Dragging by the free surface of `window`.
    void press(QWidget *window, QMouseEvent *event);
    void move(QWidget *window, QMouseEvent *event);
    void release();

    int dragX = -1;
    int dragY = -1;
    QImage frame;
    int marginTop = 0;
    int marginRight = 0;
    int marginBottom = 0;
    int marginLeft = 0;

private:
    void paintPieces(QPainter &painter, const QSize &size, bool corners, bool rest) const;

    // Sharper twin for screens with a device pixel ratio above 1.
    QImage frame2x;
};
