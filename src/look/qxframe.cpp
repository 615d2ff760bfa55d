#include "qxframe.h"

#include <QBitmap>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <QWindow>

namespace {

QString twinPath(const QString &path)
{
    const QFileInfo info(path);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral("@2x.")
           + info.suffix();
}

// Window-system moves are refused on Wayland; there the compositor drags.
bool compositorDrags()
{
    return QGuiApplication::platformName() == QLatin1String("wayland");
}

} // namespace

bool QxFrame::setFrame(const QString &path, int top, int right, int bottom, int left)
{
    marginTop = top;
    marginRight = right;
    marginBottom = bottom;
    marginLeft = left;
    frame = QImage(path);
    frame2x = QImage();
    if (frame.isNull())
        return false;
    const QImage twin(twinPath(path));
    if (twin.size() == frame.size() * 2)
        frame2x = twin;
    return true;
}

void QxFrame::paint(QPainter &painter, const QSize &size) const
{
    paintPieces(painter, size, true, true);
}

void QxFrame::paintPieces(QPainter &painter, const QSize &size, bool corners, bool rest) const
{
    if (frame.isNull())
        return;
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const bool sharp = ratio > 1.0 && !frame2x.isNull();
    const QImage &source = sharp ? frame2x : frame;
    const int scale = sharp ? 2 : 1;

    const int W = size.width();
    const int H = size.height();
    const int w = frame.width();
    const int h = frame.height();
    const int l = marginLeft;
    const int r = marginRight;
    const int t = marginTop;
    const int b = marginBottom;

    // Target and source columns and rows: border, middle, border.
    const int tx[3] = {0, l, W - r};
    const int tw[3] = {l, W - l - r, r};
    const int sx[3] = {0, l, w - r};
    const int sw[3] = {l, w - l - r, r};
    const int ty[3] = {0, t, H - b};
    const int th[3] = {t, H - t - b, b};
    const int sy[3] = {0, t, h - b};
    const int sh[3] = {t, h - t - b, b};

    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            const bool corner = row != 1 && col != 1;
            if ((corner && !corners) || (!corner && !rest))
                continue;
            if (tw[col] <= 0 || th[row] <= 0 || sw[col] <= 0 || sh[row] <= 0)
                continue;
            const QRect target(tx[col], ty[row], tw[col], th[row]);
            const QRect from(sx[col] * scale, sy[row] * scale, sw[col] * scale, sh[row] * scale);
            painter.drawImage(target, source, from);
        }
    }
    painter.restore();
}

QBitmap QxFrame::mask(const QSize &size) const
{
    const QRgb outside = 0xFFFF00FF;
    QImage shape(size, QImage::Format_ARGB32);
    shape.fill(outside);
    {
        QPainter painter(&shape);
        paintPieces(painter, size, true, false);
        const int W = size.width();
        const int H = size.height();
        const QColor inside(Qt::white);
        painter.fillRect(QRect(marginLeft, 0, W - marginLeft - marginRight, H), inside);
        painter.fillRect(QRect(0, marginTop, W, H - marginTop - marginBottom), inside);
    }
    // The mask's colour table is black, white: the fill colour turns white,
    // which a bitmap counts as outside.
    return QBitmap::fromImage(shape.createMaskFromColor(outside, Qt::MaskInColor));
}

void QxFrame::press(QWidget *window, QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || window->isMaximized())
        return;
    if (compositorDrags() && window->windowHandle() && window->windowHandle()->startSystemMove())
        return;
    const QPoint offset = event->globalPosition().toPoint() - window->frameGeometry().topLeft();
    dragX = offset.x();
    dragY = offset.y();
}

void QxFrame::move(QWidget *window, QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || dragX < 0 || dragY < 0)
        return;
    window->move(event->globalPosition().toPoint() - QPoint(dragX, dragY));
}

void QxFrame::release()
{
    dragX = -1;
    dragY = -1;
}
