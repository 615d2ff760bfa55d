#include "qxdialog.h"

#include "utils.h"

#include <QFileInfo>

QxDialog::QxDialog(QWidget *parent)
    : QxFramed<QDialog>(parent, Qt::FramelessWindowHint)
{}

void QxDialog::setFrame(const QString &path, int top, int right, int bottom, int left)
{
    QxFramed<QDialog>::setFrame(path, top, right, bottom, left);
    const QString tiled
        = replaceBaseName(path, QFileInfo(path).completeBaseName() + QStringLiteral("_tiled"));
    if (QFileInfo::exists(tiled))
        setTile(tiled, top, 0, 0, 0);
}

void QxDialog::setTile(const QString &path, int top, int right, int bottom, int left)
{
    tile = QPixmap(path);
    tileTop = top;
    tileRight = right;
    tileBottom = bottom;
    tileLeft = left;
    update();
}

void QxDialog::paintOverFrame(QPainter &painter)
{
    if (tile.isNull())
        return;
    const QRect area = rect().adjusted(tileLeft, tileTop, -tileRight, -tileBottom);
    painter.drawTiledPixmap(area, tile, QPoint(0, 0));
}
