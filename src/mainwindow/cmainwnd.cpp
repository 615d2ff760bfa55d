#include "cmainwnd.h"

#include "version.h"

#include <QLabel>
#include <QVBoxLayout>

CMainWnd::CMainWnd(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("CMainWnd"));
    setWindowTitle(tr("Tessarine Kestrove"));
    resize(960, 600);

    labelTitle = new QLabel(tr("Tessarine Kestrove"), this);
    labelTitle->setObjectName(QStringLiteral("labelTitle"));
    labelTitle->setAlignment(Qt::AlignCenter);
    QFont titleFont = labelTitle->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 2.0);
    titleFont.setBold(true);
    labelTitle->setFont(titleFont);

    labelVersion = new QLabel(tr("Version: %1").arg(productVersion()), this);
    labelVersion->setObjectName(QStringLiteral("labelVersion"));
    labelVersion->setAlignment(Qt::AlignCenter);

    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(labelTitle);
    layout->addWidget(labelVersion);
    layout->addStretch();
}
