// Shows a framed window and a framed dialog on the current skin, for looking
// at the skin by eye and for screenshots. Not a test and not shipped.

#include "qxdialog.h"
#include "qxmainwidget.h"
#include "qxskin.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QPushButton *systemButton(const char *name, const QString &tip, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setProperty("type", QStringLiteral("sysbtn"));
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QHBoxLayout *titleRow(const QString &title, bool withMinMax, QWidget *window)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(8, 0, 2, 0);
    row->setSpacing(0);
    auto *label = new QLabel(title, window);
    label->setObjectName(QStringLiteral("titleLabel"));
    label->setFixedHeight(28);
    row->addWidget(label);
    row->addStretch();
    if (withMinMax) {
        row->addWidget(systemButton("minBtn", QStringLiteral("Minimize"), window));
        row->addWidget(systemButton("maxBtn", QStringLiteral("Maximize"), window));
    }
    QPushButton *close = systemButton("closeBtn", QStringLiteral("Close"), window);
    QObject::connect(close, &QPushButton::clicked, window, &QWidget::close);
    row->addWidget(close);
    return row;
}

QToolButton *toolButton(const char *name, const QString &text, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setProperty("type", QStringLiteral("toolBtn"));
    button->setText(text);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize(QSize(32, 32));
    return button;
}

void buildMainWindow(QxMainWidget &window)
{
    QxSkin *skin = QxSkin::instance();
    window.setFrame(skin->imagePath(QStringLiteral("mainwnd.png")), 132, 20, 20, 20);
    window.setWindowTitle(QStringLiteral("Tessarine Kestrove"));

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(6, 2, 6, 12);
    layout->setSpacing(0);
    layout->addLayout(titleRow(QStringLiteral("Tessarine Kestrove"), true, &window));

    auto *menuBar = new QMenuBar(&window);
    menuBar->addMenu(QStringLiteral("&File"));
    menuBar->addMenu(QStringLiteral("&Edit"));
    menuBar->addMenu(skin->createMenu(&window));
    menuBar->addMenu(QStringLiteral("&Help"));
    layout->addWidget(menuBar);

    auto *tools = new QHBoxLayout;
    tools->setContentsMargins(8, 2, 8, 4);
    tools->setSpacing(4);
    tools->addWidget(toolButton("btnAddFile", QStringLiteral("Open DVD"), &window));
    tools->addWidget(toolButton("btnTrim", QStringLiteral("Trim"), &window));
    tools->addWidget(toolButton("btnCrop", QStringLiteral("Crop"), &window));
    tools->addWidget(toolButton("btnEffect", QStringLiteral("Effect"), &window));
    tools->addWidget(toolButton("btnMerge", QStringLiteral("Merge"), &window));
    tools->addWidget(toolButton("btnPreference", QStringLiteral("Preference"), &window));
    tools->addStretch();
    layout->addLayout(tools);
    layout->addSpacing(14);

    auto *body = new QHBoxLayout;
    body->setContentsMargins(10, 0, 10, 0);
    auto *list = new QTreeWidget(&window);
    list->setHeaderHidden(true);
    for (const char *title : {"Title_1   01:32:10   720x576", "Title_2   00:04:51   720x576",
                              "holiday.mp4   00:12:03   1920x1080"})
        list->addTopLevelItem(new QTreeWidgetItem(QStringList{QString::fromLatin1(title)}));
    list->setCurrentItem(list->topLevelItem(1));
    body->addWidget(list, 3);

    auto *preview = new QVBoxLayout;
    auto *screen = new QLabel(&window);
    screen->setPixmap(QPixmap(skin->imagePath(QStringLiteral("playwnddefault.png"))));
    screen->setAlignment(Qt::AlignCenter);
    screen->setMinimumSize(280, 170);
    screen->setStyleSheet(QStringLiteral("background: #101113; border-radius: 4px;"));
    preview->addWidget(screen);
    auto *playRow = new QHBoxLayout;
    auto *play = new QPushButton(&window);
    play->setObjectName(QStringLiteral("playPauseBtn"));
    play->setProperty("type", QStringLiteral("play"));
    play->setProperty("status", QStringLiteral("play"));
    auto *stop = new QPushButton(&window);
    stop->setObjectName(QStringLiteral("btnStop"));
    stop->setProperty("type", QStringLiteral("play"));
    auto *time = new QLabel(QStringLiteral("00:04:12"), &window);
    time->setProperty("type", QStringLiteral("playtime"));
    auto *slider = new QSlider(Qt::Horizontal, &window);
    slider->setRange(0, 100);
    slider->setValue(35);
    playRow->addWidget(play);
    playRow->addWidget(stop);
    playRow->addWidget(slider, 1);
    playRow->addWidget(time);
    preview->addLayout(playRow);
    preview->addStretch();
    body->addLayout(preview, 2);
    layout->addLayout(body, 1);

    auto *bottom = new QHBoxLayout;
    bottom->setContentsMargins(10, 10, 10, 0);
    bottom->addWidget(new QLabel(QStringLiteral("Profile:"), &window));
    auto *profile = new QComboBox(&window);
    profile->addItem(QStringLiteral("MPEG-4 Video (*.mp4)"));
    profile->setProperty("type", QStringLiteral("combo"));
    bottom->addWidget(profile, 1);
    auto *progress = new QProgressBar(&window);
    progress->setValue(62);
    bottom->addWidget(progress, 1);
    auto *start = new QPushButton(QStringLiteral("Start"), &window);
    start->setObjectName(QStringLiteral("btnStart"));
    start->setProperty("status", QStringLiteral("start"));
    bottom->addWidget(start);
    layout->addLayout(bottom);
}

void buildDialog(QxDialog &dialog)
{
    dialog.setFrame(QxSkin::instance()->imagePath(QStringLiteral("subdlg.png")), 30, 30, 30, 30);
    dialog.setFixedSize(400, 150);
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(4, 0, 4, 14);
    layout->setSpacing(0);
    layout->addLayout(titleRow(QStringLiteral("Save As"), false, &dialog));
    layout->addSpacing(12);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(14, 0, 14, 0);
    row->addWidget(new QLabel(QStringLiteral("Save As:"), &dialog));
    auto *name = new QLineEdit(QStringLiteral("My iPhone profile"), &dialog);
    row->addWidget(name, 1);
    layout->addLayout(row);
    layout->addStretch();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->setContentsMargins(14, 0, 14, 0);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();

    // "--backdrop" puts a plain desktop behind, so that the window shapes show.
    QWidget backdrop(nullptr, Qt::FramelessWindowHint);
    if (args.contains(QStringLiteral("--backdrop"))) {
        backdrop.setStyleSheet(QStringLiteral("background: #6b7785;"));
        backdrop.setGeometry(0, 0, 1920, 1080);
        backdrop.show();
    }

    QxMainWidget window;
    buildMainWindow(window);
    window.setGeometry(60, 60, 900, 580);
    window.show();

    QxDialog dialog;
    buildDialog(dialog);
    dialog.move(1010, 120);
    dialog.show();

    // "--quit-after MS" for unattended screenshots.
    const int quitAt = args.indexOf(QStringLiteral("--quit-after"));
    if (quitAt > 0 && quitAt + 1 < args.size())
        QTimer::singleShot(args.at(quitAt + 1).toInt(), &app, &QCoreApplication::quit);
    return app.exec();
}
