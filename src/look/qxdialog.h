#pragma once

#include "qxframed.h"

#include <QDialog>
#include <QPixmap>

// A frameless dialog with a painted frame, an optional background pattern,
// the picture's shape and dragging by its free surface.
class QxDialog : public QxFramed<QDialog>
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QxDialog)

public:
    explicit QxDialog(QWidget *parent = nullptr);

    // Also takes the pattern "<base>_tiled.<suffix>" beside the picture when
    // it exists; otherwise an earlier pattern stays.
    void setFrame(const QString &path, int top, int right, int bottom, int left);
    void setTile(const QString &path, int top, int right, int bottom, int left);
    bool hasTile() const { return !tile.isNull(); }

protected:
    void paintOverFrame(QPainter &painter) override;

private:
    QPixmap tile;
    int tileTop = 0;
    int tileRight = 0;
    int tileBottom = 0;
    int tileLeft = 0;
};
