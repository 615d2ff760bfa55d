#pragma once

#include <QWidget>

class QLabel;

// The program's main window.
class CMainWnd : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CMainWnd)

public:
    explicit CMainWnd(QWidget *parent = nullptr);

private:
    QLabel *labelTitle = nullptr;
    QLabel *labelVersion = nullptr;
};
