#pragma once

#include "qxframe.h"

#include <QBitmap>
#include <QMouseEvent>
#include <QPainter>

// The event handling that every framed window shares, on top of its Qt base
// (QWidget or QDialog): frame painting, the shape, dragging.
template<class Base>
class QxFramed : public Base
{
public:
    explicit QxFramed(QWidget *parent, Qt::WindowFlags flags)
        : Base(parent, flags)
    {}

    // A picture that can't be loaded leaves the window plain and rectangular.
    void setFrame(const QString &path, int top, int right, int bottom, int left)
    {
        frame.setFrame(path, top, right, bottom, left);
        if (frame.isNull())
            this->clearMask();
        else
            this->setMask(frame.mask(this->size()));
        this->update();
    }
    const QxFrame &frameState() const { return frame; }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        frame.press(this, event);
        Base::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        frame.release();
        Base::mouseReleaseEvent(event);
    }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        frame.move(this, event);
        Base::mouseMoveEvent(event);
    }
    void paintEvent(QPaintEvent *event) override
    {
        if (!frame.isNull()) {
            QPainter painter(this);
            frame.paint(painter, this->size());
            paintOverFrame(painter);
        }
        Base::paintEvent(event);
    }
    void resizeEvent(QResizeEvent *event) override
    {
        if (!frame.isNull())
            this->setMask(frame.mask(this->size()));
        Base::resizeEvent(event);
    }

    // What a window draws between its frame and its children.
    virtual void paintOverFrame(QPainter &painter) { Q_UNUSED(painter); }

private:
    QxFrame frame;
};
