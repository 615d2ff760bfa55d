#include "cmainwnd.h"

#include "controls.h"
#include "cprofilecombo.h"
#include "csaveasdlg.h"
#include "customitemwidget.h"
#include "desktop.h"
#include "dvddisc.h"
#include "ffplayer.h"
#include "mediaimagereader.h"
#include "mediainfo.h"
#include "playerscreen.h"
#include "profilegrouploader.h"
#include "qxlanguage.h"
#include "qxskin.h"
#include "settings.h"
#include "settingswindow.h"
#include "tasklist.h"
#include "tasktreeops.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTime>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// The menus and their actions: the parent menu, the object name (a "menu"
// name is a submenu), the caption, the shortcut, and whether it stays hidden.
struct MenuEntry
{
    const char *parent;
    const char *name;
    const char *caption;
    const char *shortcut;
    bool hidden;
};

const MenuEntry menuEntries[] = {
    {"", "menu_File", QT_TRANSLATE_NOOP("mainWindow", "&File"), "", false},
    {"menu_File", "actionOpen_DVD", QT_TRANSLATE_NOOP("mainWindow", "Open DVD..."), "Ctrl+O", false},
    {"menu_File", "actionOpen_DVD_Folder", QT_TRANSLATE_NOOP("mainWindow", "Open DVD Folder..."), "Shift+O", false},
    {"menu_File", "actionOpen_IFO_Files", QT_TRANSLATE_NOOP("mainWindow", "Open IFO Files..."), "", false},
    {"menu_File", "actionOpen_Files", QT_TRANSLATE_NOOP("mainWindow", "Open Files..."), "", false},
    {"menu_File", "actionOpen_Folder", QT_TRANSLATE_NOOP("mainWindow", "Open Folder..."), "", false},
    {"menu_File", "actionLoad_Project", QT_TRANSLATE_NOOP("mainWindow", "Load Project..."), "Ctrl+L", true},
    {"menu_File", "actionSave_Project", QT_TRANSLATE_NOOP("mainWindow", "Save Project..."), "", true},
    {"menu_File", "actionSave_Project_As", QT_TRANSLATE_NOOP("mainWindow", "Save Project As..."), "", true},
    {"menu_File", "actionSearch_Profile", QT_TRANSLATE_NOOP("mainWindow", "Search Profile..."), "F3", false},
    {"menu_File", "actionProperties", QT_TRANSLATE_NOOP("mainWindow", "Properties..."), "", false},
    {"menu_File", "actionExit", QT_TRANSLATE_NOOP("mainWindow", "Exit"), "", false},
    {"", "menu_Edit", QT_TRANSLATE_NOOP("mainWindow", "&Edit"), "", false},
    {"menu_Edit", "actionRename", QT_TRANSLATE_NOOP("mainWindow", "Rename"), "F2", false},
    {"menu_Edit", "menuMove", QT_TRANSLATE_NOOP("mainWindow", "Move"), "", false},
    {"menuMove", "actionMove_Up", QT_TRANSLATE_NOOP("mainWindow", "Move Up"), "Ctrl+Up", false},
    {"menuMove", "actionMove_Down", QT_TRANSLATE_NOOP("mainWindow", "Move Down"), "Ctrl+Down", false},
    {"menuMove", "actionTop", QT_TRANSLATE_NOOP("mainWindow", "Top"), "Ctrl+Home", false},
    {"menuMove", "actionBottom", QT_TRANSLATE_NOOP("mainWindow", "Bottom"), "Ctrl+End", false},
    {"menu_Edit", "actionClone", QT_TRANSLATE_NOOP("mainWindow", "Clone"), "Ctrl+C", false},
    {"menu_Edit", "actionRemove_Selected_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Remove Selected Item(s)"), "Del", false},
    {"menu_Edit", "actionClear_All", QT_TRANSLATE_NOOP("mainWindow", "Clear All"), "Shift+Del", false},
    {"menu_Edit", "actionSelect_All", QT_TRANSLATE_NOOP("mainWindow", "Select All"), "Ctrl+A", false},
    {"menu_Edit", "actionSelect_None", QT_TRANSLATE_NOOP("mainWindow", "Select None"), "", false},
    {"menu_Edit", "actionInvert_Selection", QT_TRANSLATE_NOOP("mainWindow", "Invert Selection"), "", false},
    {"menu_Edit", "actionCheck_All", QT_TRANSLATE_NOOP("mainWindow", "Check All"), "", false},
    {"menu_Edit", "actionUncheck_All", QT_TRANSLATE_NOOP("mainWindow", "Uncheck All"), "", false},
    {"menu_Edit", "actionInvert_Check", QT_TRANSLATE_NOOP("mainWindow", "Invert Check"), "", false},
    {"menu_Edit", "actionMerge_Selected_into_One", QT_TRANSLATE_NOOP("mainWindow", "Merge Selected into One"), "Ctrl+M", false},
    {"menu_Edit", "actionSplit_by_Chapter", QT_TRANSLATE_NOOP("mainWindow", "Split by Chapter"), "", false},
    {"menu_Edit", "actionAdd_Output_Profile", QT_TRANSLATE_NOOP("mainWindow", "Add Output Profile..."), "", true},
    {"menu_Edit", "actionApply_Profile_to_All", QT_TRANSLATE_NOOP("mainWindow", "Apply Profile to All"), "", false},
    {"", "menu_Play", QT_TRANSLATE_NOOP("mainWindow", "&Play"), "", false},
    {"menu_Play", "actionPlay_Pause", QT_TRANSLATE_NOOP("mainWindow", "Play/Pause"), "Ctrl+P", false},
    {"menu_Play", "actionStop", QT_TRANSLATE_NOOP("mainWindow", "Stop"), "Ctrl+S", false},
    {"menu_Play", "actionPrevious", QT_TRANSLATE_NOOP("mainWindow", "Previous"), "Ctrl+B", false},
    {"menu_Play", "actionNext", QT_TRANSLATE_NOOP("mainWindow", "Next"), "Ctrl+F", false},
    {"menu_Play", "actionSnapshot", QT_TRANSLATE_NOOP("mainWindow", "Snapshot"), "F11", false},
    {"menu_Play", "actionOpen_Snapshot_Folder", QT_TRANSLATE_NOOP("mainWindow", "Open Snapshot Folder"), "", false},
    {"menu_Play", "actionChange_Snapshot_Folder", QT_TRANSLATE_NOOP("mainWindow", "Change Snapshot Folder"), "", false},
    {"menu_Play", "menuSnapshot_Format", QT_TRANSLATE_NOOP("mainWindow", "Snapshot Format"), "", false},
    {"menuSnapshot_Format", "actionPNG", QT_TRANSLATE_NOOP("mainWindow", "PNG"), "", false},
    {"menuSnapshot_Format", "actionBMP", QT_TRANSLATE_NOOP("mainWindow", "BMP"), "", false},
    {"menuSnapshot_Format", "actionJPG", QT_TRANSLATE_NOOP("mainWindow", "JPG"), "", false},
    {"menuSnapshot_Format", "actionGIF", QT_TRANSLATE_NOOP("mainWindow", "GIF"), "", true},
    {"menu_Play", "menuVolume", QT_TRANSLATE_NOOP("mainWindow", "Volume"), "", false},
    {"menuVolume", "actionUp", QT_TRANSLATE_NOOP("mainWindow", "Up"), "", false},
    {"menuVolume", "actionDown", QT_TRANSLATE_NOOP("mainWindow", "Down"), "", false},
    {"menuVolume", "actionMute", QT_TRANSLATE_NOOP("mainWindow", "Mute"), "", false},
    {"menu_Play", "actionFull_Screen", QT_TRANSLATE_NOOP("mainWindow", "Full Screen"), "Alt+Return", false},
    {"", "menu_Clip", QT_TRANSLATE_NOOP("mainWindow", "&Clip"), "", false},
    {"menu_Clip", "actionTrim", QT_TRANSLATE_NOOP("mainWindow", "Trim..."), "Ctrl+T", false},
    {"menu_Clip", "actionCrop", QT_TRANSLATE_NOOP("mainWindow", "Crop..."), "Ctrl+R", false},
    {"menu_Clip", "actionSmart_Crop", QT_TRANSLATE_NOOP("mainWindow", "Smart Crop"), "", true},
    {"menu_Clip", "actionWatermark", QT_TRANSLATE_NOOP("mainWindow", "Watermark..."), "Ctrl+W", false},
    {"menu_Clip", "actionEffect", QT_TRANSLATE_NOOP("mainWindow", "Effect..."), "Ctrl+E", false},
    {"menu_Clip", "actionClear_All_Effects", QT_TRANSLATE_NOOP("mainWindow", "Clear All Effects"), "", false},
    {"menu_Clip", "actionAudio_Track", QT_TRANSLATE_NOOP("mainWindow", "Audio Track..."), "", true},
    {"menu_Clip", "actionSubtitle", QT_TRANSLATE_NOOP("mainWindow", "Subtitle..."), "Ctrl+U", true},
    {"", "menu_Action", QT_TRANSLATE_NOOP("mainWindow", "&Action"), "", false},
    {"menu_Action", "actionConvert_Checked_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Convert Checked Item(s)"), "F5", false},
    {"menu_Action", "actionPause_Checked_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Pause Checked Item(s)"), "F6", false},
    {"menu_Action", "actionStop_Checked_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Stop Checked Item(s)"), "F7", false},
    {"menu_Action", "actionConvert_Selected_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Convert Selected Item(s)"), "Alt+F5", false},
    {"menu_Action", "actionPause_Selected_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Pause Selected Item(s)"), "Alt+F6", false},
    {"menu_Action", "actionStop_Selected_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Stop Selected Item(s)"), "Alt+F7", false},
    {"menu_Action", "actionConvert_All_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Convert All Item(s)"), "Ctrl+F5", false},
    {"menu_Action", "actionPause_All_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Pause All Item(s)"), "Ctrl+F6", false},
    {"menu_Action", "actionStop_All_Item_s", QT_TRANSLATE_NOOP("mainWindow", "Stop All Item(s)"), "Ctrl+F7", false},
    {"menu_Action", "actionOpen_Source_File_Location", QT_TRANSLATE_NOOP("mainWindow", "Open Source File Location"), "F8", false},
    {"menu_Action", "actionOpen_Output_File_Location", QT_TRANSLATE_NOOP("mainWindow", "Open Output File Location"), "F9", false},
    {"menu_Action", "menuPost_Task_Actions", QT_TRANSLATE_NOOP("mainWindow", "Post Task Actions"), "", false},
    {"menuPost_Task_Actions", "actionDo_Nothing", QT_TRANSLATE_NOOP("mainWindow", "Do Nothing"), "", false},
    {"menuPost_Task_Actions", "actionExit_Program", QT_TRANSLATE_NOOP("mainWindow", "Exit Program"), "", false},
    {"menuPost_Task_Actions", "actionShut_Down", QT_TRANSLATE_NOOP("mainWindow", "Shut Down"), "", false},
    {"menuPost_Task_Actions", "actionLogOff", QT_TRANSLATE_NOOP("mainWindow", "Log Off"), "", false},
    {"menuPost_Task_Actions", "actionHibernate", QT_TRANSLATE_NOOP("mainWindow", "Hibernate"), "", false},
    {"menuPost_Task_Actions", "actionStand_By", QT_TRANSLATE_NOOP("mainWindow", "Stand By"), "", false},
    {"menuPost_Task_Actions", "actionRestart", QT_TRANSLATE_NOOP("mainWindow", "Restart"), "", false},
    {"", "menu_Option", QT_TRANSLATE_NOOP("mainWindow", "&Option"), "", false},
    {"menu_Option", "actionPreferences", QT_TRANSLATE_NOOP("mainWindow", "Preferences..."), "", false},
    {"", "menu_Help", QT_TRANSLATE_NOOP("mainWindow", "&Help"), "", false},
    {"menu_Help", "actionHelp", QT_TRANSLATE_NOOP("mainWindow", "Help"), "F1", false},
    {"menu_Help", "actionAbout", QT_TRANSLATE_NOOP("mainWindow", "About"), "", false},
};

QString tr2(const char *text)
{
    return QCoreApplication::translate("mainWindow", text);
}

template<class Button>
Button *named(QWidget *parent, const char *name, const char *type = nullptr)
{
    auto *widget = new Button(parent);
    widget->setObjectName(QLatin1String(name));
    if (type)
        widget->setProperty("type", QLatin1String(type));
    return widget;
}

QString timeText(double seconds)
{
    return QTime(0, 0).addSecs(int(seconds)).toString(QStringLiteral("hh:mm:ss"));
}

// The disc folder a title's IFO lies in, without its VIDEO_TS.
QString discPathOf(const QString &ifo)
{
    QDir folder = QFileInfo(ifo).absoluteDir();
    if (folder.dirName().compare(QLatin1String("VIDEO_TS"), Qt::CaseInsensitive) == 0)
        folder.cdUp();
    return QDir::toNativeSeparators(folder.absolutePath());
}

// The combo and the panel act on the selected rows, or on what comes next
// when nothing is selected.
bool profileApplies(const QTreeWidget *tree)
{
    return tree->selectedItems().isEmpty()
           || TaskTreeOps::AnySelected(tree, [](const QTreeWidgetItem *row) {
                  return TaskTreeOps::instance().CanApplyProfile(row);
              });
}

void selectProfileKey(CProfileCombo *combo, const QString &key)
{
    combo->selectProfile(key.section(QLatin1Char(','), 0, 0), key.section(QLatin1Char(','), 1));
}

// Rename and Delete are for the user's own profiles.
void offerUserCommands(QAction *rename, QAction *remove, const QString &key)
{
    const bool own = ProfileGroupLoader::isUserProfileId(key.section(QLatin1Char(','), 1));
    rename->setEnabled(own);
    remove->setEnabled(own);
}

// The name for a profile saved or renamed, offering the shown one without
// its extension, numbered; empty when the user cancels.
QString askProfileName(QWidget *parent, const QComboBox *combo)
{
    CSaveAsDlg dialog(parent);
    dialog.setName(combo->currentText().section(QLatin1Char('('), 0, 0) + QStringLiteral("- 1"));
    return dialog.exec() == QDialog::Accepted ? dialog.name() : QString();
}

void tellProfilesUnsaved(QWidget *parent, const QString &error)
{
    QMessageBox::warning(parent, CMainWnd::WindowTitleText(),
                         CMainWnd::tr("Your profiles could not be saved.\n%1").arg(error));
}

// Discs mounted where desktops put removable media (/media/cdrom0,
// /media/USER/LABEL, /run/media/USER/LABEL): the folders that hold a
// VIDEO_TS, in either case. KESTROVE_MEDIA_ROOTS (colon-separated) replaces
// the roots looked in.
QStringList mountedDiscs()
{
    const QString roots = qEnvironmentVariable("KESTROVE_MEDIA_ROOTS", QStringLiteral("/media:/run/media"));
    const auto holdsDisc = [](const QString &folder) {
        return !QDir(folder).entryList({QStringLiteral("VIDEO_TS")}, QDir::Dirs).isEmpty();
    };
    const auto folders = [](const QString &parent) {
        QStringList paths;
        for (const QFileInfo &entry : QDir(parent).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
            paths << entry.filePath();
        return paths;
    };
    QStringList discs;
    for (const QString &root : roots.split(QLatin1Char(':'), Qt::SkipEmptyParts))
        for (const QString &mount : folders(root)) {
            if (holdsDisc(mount)) {
                discs << mount;
                continue;
            }
            for (const QString &inner : folders(mount))
                if (holdsDisc(inner))
                    discs << inner;
        }
    return discs;
}

} // namespace

void Ui::mainWindow::setupUi(QWidget *window)
{
    window->setObjectName(QStringLiteral("mainWindow"));
    window->resize(841, 542);
    auto *outer = new QVBoxLayout(window);
    outer->setContentsMargins(12, 6, 12, 6);
    outer->setSpacing(4);

    auto *titleLayout = new QHBoxLayout;
    titleLayout->setObjectName(QStringLiteral("titleLayout"));
    closeBtnMac = named<QxMacSystemButton>(window, "closeBtnMac");
    minBtnMac = named<QxMacSystemButton>(window, "minBtnMac");
    maxBtnMac = named<QxMacSystemButton>(window, "maxBtnMac");
    iconLabel = named<QLabel>(window, "iconLabel");
    iconLabel->setFixedSize(16, 16);
    iconLabel->setScaledContents(true);
    titleLabel = named<WndTitleLabel>(window, "titleLabel");
    minBtn = named<QPushButton>(window, "minBtn", "sysbtn");
    maxBtn = named<QPushButton>(window, "maxBtn", "sysbtn");
    closeBtn = named<QPushButton>(window, "closeBtn", "sysbtn");
    maxBtn->setProperty("maxstat", false);
    for (QWidget *w : {static_cast<QWidget *>(closeBtnMac), static_cast<QWidget *>(minBtnMac),
                       static_cast<QWidget *>(maxBtnMac), static_cast<QWidget *>(iconLabel),
                       static_cast<QWidget *>(titleLabel)})
        titleLayout->addWidget(w);
    titleLayout->addStretch();
    for (QPushButton *b : {minBtn, maxBtn, closeBtn}) {
        b->setFocusPolicy(Qt::NoFocus);
        titleLayout->addWidget(b);
    }
    outer->addLayout(titleLayout);

    auto *menuLayout = new QHBoxLayout;
    menuLayout->setObjectName(QStringLiteral("menuLayout"));
    menuBar = named<QMenuBar>(window, "menuBar");
    for (const MenuEntry &entry : menuEntries) {
        const QString name = QLatin1String(entry.name);
        if (name.startsWith(QLatin1String("menu"))) {
            QMenu *menu = !*entry.parent ? menuBar->addMenu(QString())
                                         : menus.value(QLatin1String(entry.parent))->addMenu(QString());
            menu->setObjectName(name);
            menus.insert(name, menu);
            continue;
        }
        QMenu *menu = menus.value(QLatin1String(entry.parent));
        QAction *action = menu->addAction(QString());
        action->setObjectName(name);
        action->setShortcut(QKeySequence(QLatin1String(entry.shortcut)));
        action->setVisible(!entry.hidden);
        actions.insert(name, action);
    }
    menuLayout->addWidget(menuBar);
    outer->addLayout(menuLayout);

    auto *toolsLayout = new QHBoxLayout;
    toolsLayout->setObjectName(QStringLiteral("toolsLayout"));
    btnAddFile = named<FadeToolButton>(window, "btnAddFile", "toolBtn");
    btnTrim = named<FadeToolButton>(window, "btnTrim", "toolBtn");
    btnCrop = named<FadeToolButton>(window, "btnCrop", "toolBtn");
    btnEffect = named<FadeToolButton>(window, "btnEffect", "toolBtn");
    btnMerge = named<FadeToolButton>(window, "btnMerge", "toolBtn");
    btnPreference = named<FadeToolButton>(window, "btnPreference", "toolBtn");
    for (FadeToolButton *b : {btnAddFile, btnTrim, btnCrop, btnEffect, btnMerge, btnPreference}) {
        b->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        toolsLayout->addWidget(b);
    }
    btnAddFile->setPopupMode(QToolButton::MenuButtonPopup);
    toolsLayout->addStretch();
    outer->addLayout(toolsLayout);

    splitter = named<QSplitter>(window, "splitter");
    splitter->setOrientation(Qt::Horizontal);
    splitter->setHandleWidth(2);
    splitter->setChildrenCollapsible(false);
    playBackFrame = named<QFrame>(splitter, "playBackFrame");
    auto *playLayout = new QVBoxLayout(playBackFrame);
    playLayout->setContentsMargins(0, 0, 0, 0);
    playWnd = named<PlayerScreen>(playBackFrame, "playWnd");
    playWnd->setContextMenuPolicy(Qt::CustomContextMenu);
    playWnd->setMinimumSize(320, 240);
    playLayout->addWidget(playWnd, 1);
    playFrame = named<QFrame>(playBackFrame, "playFrame");
    auto *controls = new QGridLayout(playFrame);
    controls->setContentsMargins(4, 2, 4, 2);
    timeLabel = named<QLabel>(playFrame, "timeLabel", "playtime");
    sliderPlayProgress = named<CSlider>(playFrame, "sliderPlayProgress", "trimSlider");
    sliderPlayProgress->setOrientation(Qt::Horizontal);
    sliderPlayProgress->setFocusPolicy(Qt::NoFocus);
    playPauseBtn = named<CPlayPauseButton>(playFrame, "playPauseBtn", "play");
    btnStop = named<CPlayPauseButton>(playFrame, "btnStop", "play");
    muteBtn = named<QPushButton>(playFrame, "muteBtn");
    muteBtn->setCheckable(true);
    sliderVolume = named<VolumSlider>(playFrame, "sliderVolume", "volume");
    sliderVolume->setValue(99);
    snapshotBtn = named<QToolButton>(playFrame, "snapshotBtn");
    snapshotBtn->setPopupMode(QToolButton::MenuButtonPopup);
    extPlaywndBtn = named<QPushButton>(playFrame, "extPlaywndBtn");
    controls->addWidget(sliderPlayProgress, 0, 0, 1, 8);
    int column = 0;
    for (QWidget *w : std::initializer_list<QWidget *>{playPauseBtn, btnStop, timeLabel})
        controls->addWidget(w, 1, column++);
    controls->setColumnStretch(column++, 1);
    for (QWidget *w : std::initializer_list<QWidget *>{muteBtn, sliderVolume, snapshotBtn, extPlaywndBtn})
        controls->addWidget(w, 1, column++);
    playLayout->addWidget(playFrame);

    listFrame = named<QFrame>(splitter, "listFrame");
    auto *listLayout = new QVBoxLayout(listFrame);
    listLayout->setContentsMargins(0, 0, 0, 0);
    mulitWnd = named<QStackedWidget>(listFrame, "mulitWnd");
    auto *page = named<QWidget>(mulitWnd, "page");
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    startLabel = named<GettingStartLabel>(page, "startLabel");
    startLabel->setAlignment(Qt::AlignCenter);
    startLabel->setWordWrap(true);
    startLabel->setTextInteractionFlags(Qt::TextBrowserInteraction);
    pageLayout->addWidget(startLabel);
    auto *page2 = named<QWidget>(mulitWnd, "page_2");
    auto *page2Layout = new QVBoxLayout(page2);
    page2Layout->setContentsMargins(0, 0, 0, 0);
    treeTask = named<QTreeWidget>(page2, "treeTask");
    treeTask->setColumnCount(1);
    treeTask->setHeaderHidden(true);
    treeTask->setRootIsDecorated(false);
    treeTask->setIndentation(0);
    // A disc's row is lower than its titles'.
    treeTask->setUniformRowHeights(false);
    treeTask->setSelectionMode(QAbstractItemView::ExtendedSelection);
    treeTask->setAllColumnsShowFocus(true);
    treeTask->setAlternatingRowColors(false);
    treeTask->setContextMenuPolicy(Qt::CustomContextMenu);
    page2Layout->addWidget(treeTask);
    mulitWnd->addWidget(page);
    mulitWnd->addWidget(page2);
    listLayout->addWidget(mulitWnd);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    // The settings panel joins this row where it can't be a window of its own.
    auto *middle = new QHBoxLayout;
    middle->setObjectName(QStringLiteral("middleLayout"));
    middle->addWidget(splitter, 1);
    outer->addLayout(middle, 1);

    auto *grid = new QGridLayout;
    grid->setObjectName(QStringLiteral("gridLayout_3"));
    profileLabel = named<QLabel>(window, "profileLabel");
    comboProfile = named<CProfileCombo>(window, "comboProfile", "combo");
    profileLabel->setBuddy(comboProfile);
    advSettingsBtn = named<QPushButton>(window, "advSettingsBtn", "edit");
    btnSaveProfile = named<QToolButton>(window, "btnSaveProfile");
    btnSaveProfile->setPopupMode(QToolButton::MenuButtonPopup);
    btnStart = named<FadePushButton>(window, "btnStart");
    btnStart->setProperty("status", QStringLiteral("start"));
    labelDestination = named<QLabel>(window, "labelDestination");
    editOutputDir = named<QLineEdit>(window, "editOutputDir", "lineEdit");
    editOutputDir->setReadOnly(true);
    labelDestination->setBuddy(editOutputDir);
    btnSelectOutputDir = named<QPushButton>(window, "btnSelectOutputDir", "edit");
    btnOpenOutputDir = named<QPushButton>(window, "btnOpenOutputDir", "edit");
    grid->addWidget(profileLabel, 0, 0);
    grid->addWidget(comboProfile, 0, 1);
    grid->addWidget(advSettingsBtn, 0, 2);
    grid->addWidget(btnSaveProfile, 0, 3);
    grid->addWidget(btnStart, 0, 4, 2, 1);
    grid->addWidget(labelDestination, 1, 0);
    grid->addWidget(editOutputDir, 1, 1);
    grid->addWidget(btnSelectOutputDir, 1, 2);
    grid->addWidget(btnOpenOutputDir, 1, 3);
    grid->setColumnStretch(1, 1);
    outer->addLayout(grid);

    auto *statusLayout = new QHBoxLayout;
    statusLayout->setObjectName(QStringLiteral("statusLayout"));
    labelProgress = named<QLabel>(window, "labelProgress");
    totalProgressBar = named<QProgressBar>(window, "totalProgressBar");
    totalProgressBar->setValue(0);
    statusLayout->addWidget(labelProgress);
    statusLayout->addWidget(totalProgressBar, 1);
    outer->addLayout(statusLayout);

    retranslateUi(window);
    QMetaObject::connectSlotsByName(window);
}

void Ui::mainWindow::retranslateUi(QWidget *window)
{
    window->setWindowTitle(QCoreApplication::translate("mainWindow", "Tessarine Kestrove"));
    minBtn->setToolTip(QCoreApplication::translate("mainWindow", "Minimize"));
    maxBtn->setToolTip(QCoreApplication::translate("mainWindow", "Maximize"));
    closeBtn->setToolTip(QCoreApplication::translate("mainWindow", "Close"));
    btnAddFile->setText(QCoreApplication::translate("mainWindow", "&Open DVD"));
    btnTrim->setText(QCoreApplication::translate("mainWindow", "&Trim"));
    btnCrop->setText(QCoreApplication::translate("mainWindow", "&Crop"));
    btnEffect->setText(QCoreApplication::translate("mainWindow", "&Effect"));
    btnMerge->setText(QCoreApplication::translate("mainWindow", "&Merge"));
    btnPreference->setText(QCoreApplication::translate("mainWindow", "&Preference"));
    playPauseBtn->setToolTip(QCoreApplication::translate("mainWindow", "Play"));
    btnStop->setToolTip(QCoreApplication::translate("mainWindow", "Stop"));
    muteBtn->setToolTip(QCoreApplication::translate("mainWindow", "Mute"));
    snapshotBtn->setToolTip(QCoreApplication::translate("mainWindow", "Snapshot"));
    extPlaywndBtn->setToolTip(QCoreApplication::translate("mainWindow", "Full Screen"));
    profileLabel->setText(QCoreApplication::translate("mainWindow", "&Profile:"));
    advSettingsBtn->setText(QCoreApplication::translate("mainWindow", "Setting..."));
    btnSaveProfile->setText(QCoreApplication::translate("mainWindow", "Save As..."));
    btnStart->setText(QCoreApplication::translate("mainWindow", "Start"));
    btnStart->setToolTip(QCoreApplication::translate("mainWindow", "Convert Checked Item(s)"));
    labelDestination->setText(QCoreApplication::translate("mainWindow", "&Destination:"));
    btnSelectOutputDir->setText(QCoreApplication::translate("mainWindow", "Browse..."));
    btnOpenOutputDir->setText(QCoreApplication::translate("mainWindow", "Open Folder"));
    for (const MenuEntry &entry : menuEntries) {
        const QString name = QLatin1String(entry.name);
        if (QMenu *menu = menus.value(name))
            menu->setTitle(tr2(entry.caption));
        else if (QAction *action = actions.value(name))
            action->setText(tr2(entry.caption));
    }
    // What a screen reader says: a button's text or tool tip, without the mnemonic.
    for (QAbstractButton *b : window->findChildren<QAbstractButton *>()) {
        QString text = b->text().isEmpty() ? b->toolTip() : b->text();
        b->setAccessibleName(text.remove(QLatin1Char('&')));
    }
    sliderPlayProgress->setAccessibleName(QCoreApplication::translate("mainWindow", "Position"));
    sliderVolume->setAccessibleName(QCoreApplication::translate("mainWindow", "Volume"));
    treeTask->setAccessibleName(QCoreApplication::translate("mainWindow", "Tasks"));
    comboProfile->setAccessibleName(QCoreApplication::translate("mainWindow", "Profile"));
    editOutputDir->setAccessibleName(QCoreApplication::translate("mainWindow", "Destination"));
    totalProgressBar->setAccessibleName(QCoreApplication::translate("mainWindow", "Total progress"));
}

CMainWnd::CMainWnd(QWidget *parent)
    : QxMainWidget(parent)
    , taskList(std::make_unique<TaskList>(ProfileGroupLoader::instance()))
    , converter(std::make_unique<ConverterManager>(taskList.get()))
{
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::Window);
    setupUi(this);
    setAcceptDrops(true);
    // The skin menu applies the current skin as it is made.
    QMenu *option = menus.value(QStringLiteral("menu_Option"));
    option->addMenu(QxSkin::instance()->createMenu(this));
    option->addMenu(QxLanguage::instance()->createMenu(this));

    skinPath = QxSkin::instance()->skinFolder();
    if (!skinPath.endsWith(QLatin1Char('/')))
        skinPath += QLatin1Char('/');
    setFrame(skinPath + QStringLiteral("mainwnd.png"), 132, 20, 20, 20);

    mulitWnd->setCurrentIndex(0);
    auto *grip = new QStatusBar(this);
    grip->setObjectName(QStringLiteral("statusBar"));
    grip->setSizeGripEnabled(true);
    grip->setFixedWidth(20);
    findChild<QHBoxLayout *>(QStringLiteral("statusLayout"))
        ->addWidget(grip, 0, Qt::AlignRight | Qt::AlignBottom);
    playPauseBtn->setStatus(0);
    connect(QxSkin::instance(), &QxSkin::skinChanged, this, &CMainWnd::onSkinChanged);
    totalProgressBar->hide();
    labelProgress->hide();
    for (QxMacSystemButton *b : {closeBtnMac, minBtnMac, maxBtnMac})
        b->hide();
    connect(minBtn, &QPushButton::clicked, this, &QWidget::showMinimized);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);

    // Exclusive choices.
    auto group = [this](std::initializer_list<const char *> names) {
        auto *g = new QActionGroup(this);
        for (const char *name : names) {
            QAction *a = action(QLatin1String(name));
            a->setCheckable(true);
            g->addAction(a);
        }
        return g;
    };
    group({"actionPNG", "actionBMP", "actionJPG", "actionGIF"});
    group({"actionDo_Nothing", "actionExit_Program", "actionShut_Down", "actionLogOff",
           "actionHibernate", "actionStand_By"});
    action(QStringLiteral("actionRestart"))->setCheckable(true);

    snapshotMenu = new QMenu(this);
    snapshotMenu->addAction(action(QStringLiteral("actionSnapshot")));
    snapshotMenu->addAction(action(QStringLiteral("actionOpen_Snapshot_Folder")));
    snapshotMenu->addAction(action(QStringLiteral("actionChange_Snapshot_Folder")));
    playModeMenu = new QMenu(this);
    actionPlayOriginal = playModeMenu->addAction(tr("Display Original Frame"));
    actionPlayOutput = playModeMenu->addAction(tr("Display Output Frame"));
    for (QAction *a : {actionPlayOriginal, actionPlayOutput})
        a->setCheckable(true);
    actionPlayOutput->setChecked(true);
    saveProfileMenu = new QMenu(this);
    actionSaveProfile = saveProfileMenu->addAction(QString());
    actionRenameProfile = saveProfileMenu->addAction(QString());
    actionDeleteProfile = saveProfileMenu->addAction(QString());

    for (QWidget *w : std::initializer_list<QWidget *>{playPauseBtn, btnStop, extPlaywndBtn, snapshotBtn,
                                                       btnStart, btnTrim, btnCrop, btnEffect, btnMerge})
        w->setEnabled(false);
    for (const char *name : {"actionProperties", "actionRemove_Selected_Item_s", "actionClear_All",
                             "actionRename", "actionMerge_Selected_into_One"})
        action(QLatin1String(name))->setEnabled(false);

    treeTask->viewport()->installEventFilter(this);
    connect(treeTask->verticalScrollBar(), &QScrollBar::valueChanged, this, &CMainWnd::makeVisibleRowFaces);
    connect(converter.get(), &ConverterManager::progressChanged, this,
            &CMainWnd::OnConvertProgressChanged);
    connect(converter.get(), &ConverterManager::stateChanged, this, &CMainWnd::OnTaskStateChanged);
    connect(&notifier, &DesktopNotifier::activated, this, [this] {
        if (isMinimized())
            showNormal();
        raise();
        activateWindow();
    });
    connect(titleLabel, &WndTitleLabel::titleClicked, this, &CMainWnd::on_maxBtn_clicked);
    editOutputDir->setText(QDir::toNativeSeparators(Setting::outputDir()));

    addMenu = new QMenu(this);
    for (const char *name : {"actionOpen_DVD", "actionOpen_DVD_Folder", "actionOpen_IFO_Files"})
        addMenu->addAction(action(QLatin1String(name)));
    btnAddFile->setMenu(addMenu);
    snapshotBtn->setMenu(snapshotMenu);
    btnSaveProfile->setMenu(saveProfileMenu);
    connect(btnAddFile, &QToolButton::clicked, action(QStringLiteral("actionOpen_DVD")),
            &QAction::trigger);
    connect(action(QStringLiteral("actionOpen_Files")), &QAction::triggered, this, &CMainWnd::addFile);
    connect(action(QStringLiteral("actionOpen_Folder")), &QAction::triggered, this, &CMainWnd::addFolder);

    settingsWindow = new SettingsWindow(this);
    if (panelIsChild()) {
        settingsWindow->setWindowFlags(Qt::Widget);
        findChild<QHBoxLayout *>(QStringLiteral("middleLayout"))->addWidget(settingsWindow);
    }
    settingsWindow->hide();
    connect(settingsWindow, &SettingsWindow::valueChanged, this, &CMainWnd::OnSettingsValueChanged);
    connect(settingsWindow, &SettingsWindow::applyToAll, this, &CMainWnd::OnSettingsApplyToAll);
    connect(btnSaveProfile, &QToolButton::clicked, this, &CMainWnd::OnSaveProfile);
    connect(actionSaveProfile, &QAction::triggered, this, &CMainWnd::OnSaveProfile);
    connect(actionRenameProfile, &QAction::triggered, this, &CMainWnd::renameProfile);
    connect(actionDeleteProfile, &QAction::triggered, this, &CMainWnd::deleteProfile);

    const QString catalogueDefault = ProfileGroupLoader::instance()->defaultProfile();
    QString key = Setting::profileIndex(catalogueDefault);
    if (ProfileGroupLoader::instance()->profileByKey(key).isNull())
        key = catalogueDefault;
    const QStringList parts = key.split(QLatin1Char(','));
    comboProfile->selectProfile(parts.value(0), parts.value(1));
    settingsWindow->setProfile(ProfileGroupLoader::instance()->fileNameOf(key), nullptr);
    offerUserCommands(actionRenameProfile, actionDeleteProfile, key);
    ready = true;

    player = FFPlayer::instance();
    setUpPreview();
    titleLabel->setText(WindowTitleText());
    setWindowTitle(WindowTitleText());

    TaskTreeOps::instance().setTaskList(taskList.get());
    Logical::MediaImageReader *reader = Logical::MediaImageReader::instance();
    reader->setTaskList(taskList.get());
    reader->setVideoImage(QImage(skinPath + QStringLiteral("video.png")));
    reader->setAudioImage(QImage(skinPath + QStringLiteral("audio.png")));
    connect(reader, qOverload<int>(&Logical::MediaImageReader::imageChanged), this,
            qOverload<int>(&CMainWnd::receiveMediaImage));
    connect(reader, qOverload<int, int>(&Logical::MediaImageReader::imageChanged), this,
            qOverload<int, int>(&CMainWnd::receiveMediaImage));

    timeLabel->setText(timeText(0) + QStringLiteral(" / ") + timeText(0));
    onSkinChanged(0);
    actionSaveProfile->setText(tr("&Save As..."));
    actionRenameProfile->setText(tr("&Rename..."));
    actionDeleteProfile->setText(tr("&Delete"));
}

CMainWnd::~CMainWnd()
{
    // The player outlives the window: it must not keep the media locked.
    disconnect(player, nullptr, this, nullptr);
    player->stop();
    if (mediaLocked)
        UnlockMedia();
    // Unless a newer window took them over.
    if (TaskTreeOps::instance().taskList() == taskList.get()) {
        Logical::MediaImageReader::instance()->setTaskList(nullptr);
        TaskTreeOps::instance().setTaskList(nullptr);
    }
}

QString CMainWnd::WindowTitleText()
{
    return tr("Tessarine Kestrove");
}

QString CMainWnd::GettingStartedText() const
{
    QxSkin *skin = QxSkin::instance();
    QString text = skin->configValue(QStringLiteral("GETTINGSTARTED"));
    if (text.isEmpty())
        text = QStringLiteral(
            "<html><style>a {color: blue;}</style><table border=\"0\" align=\"center\"><tr><th "
            "style=\"font-size:16px\">%1</th></tr><tr /><tr><td "
            "style=\"font-size:12px\">%2</td></tr><tr><td style=\"font-size:12px\">%3</td></tr><tr><td "
            "style=\"font-size:12px\">%4</td></tr><tr /><tr><td "
            "style=\"font-size:12px\">%5</td></tr><tr /><tr /></table>");
    const QString link = skin->configValue(QStringLiteral("GETTINGSTARTED_LINK_COLOR"), QStringLiteral("blue"));
    if (!link.isEmpty())
        text.replace(QStringLiteral("blue"), link);
    const QString marks[] = {
        QStringLiteral("<a href=\"#\"><img align=\"middle\" src=\"%1gs_import.png\" />").arg(skinPath),
        QStringLiteral("</a>"),
        QStringLiteral("<img align=\"middle\" src=\"%1gs_trim.png\" />").arg(skinPath),
        QStringLiteral("<img align=\"middle\" src=\"%1gs_crop.png\" />").arg(skinPath),
        QStringLiteral("<img align=\"middle\" src=\"%1gs_start.png\" />").arg(skinPath)};
    return text.arg(tr("Getting Started"),
                    tr("1. Click \"%1 Open DVD %2\" to Open DVD.").arg(marks[0], marks[1]),
                    tr("2. Click \"%1 Trim\" or \"%2 Crop\" to edit video file.").arg(marks[2], marks[3]),
                    tr("3. Select output format from the \"Profile\" list."),
                    tr("4. Click \"%1\" to convert.").arg(marks[4]));
}

void CMainWnd::onSkinChanged(int)
{
    skinPath = QxSkin::instance()->skinFolder();
    if (!skinPath.endsWith(QLatin1Char('/')))
        skinPath += QLatin1Char('/');
    startLabel->setLogo(skinPath + QStringLiteral("logo.png"));
    startLabel->setBorderImage(skinPath + QStringLiteral("gettingstart.png"), 2, 2, 2, 2);
    setFrame(skinPath + QStringLiteral("mainwnd.png"), 131, 15, 15, 15);
    startLabel->setText(GettingStartedText());
}

void CMainWnd::on_startLabel_linkActivated(const QString &)
{
    on_actionOpen_DVD_triggered();
}

QString CMainWnd::currentProfileKey() const
{
    return comboProfile->currentData().value<ProfileRecord>().key;
}

void CMainWnd::on_comboProfile_currentIndexChanged(int index)
{
    if (index < 0 || !ready)
        return;
    const ProfileRecord profile = comboProfile->itemData(index).value<ProfileRecord>();
    if (profile.key != Setting::profileIndex(ProfileGroupLoader::instance()->defaultProfile()))
        setSettingString(QStringLiteral("ProfileIndex"), profile.key);
    offerUserCommands(actionRenameProfile, actionDeleteProfile, profile.key);
    // The same document keeps the panel's values: those of the current row.
    if (settingsWindow->profileFile() != profile.fileName)
        settingsWindow->setProfile(profile.fileName, nullptr);
    QList<QTreeWidgetItem *> rows = treeTask->selectedItems();
    if (QTreeWidgetItem *current = treeTask->currentItem())
        rows.prepend(current);
    const TaskTreeOps &ops = TaskTreeOps::instance();
    for (QTreeWidgetItem *item : std::as_const(rows))
        if (ops.ApplyProfile(taskList.get(), item, profile.key, profile.fileName, settingsWindow))
            if (CustomItemWidget *row = rowFace(item))
                row->refresh();
    UpdateStartButton();
}

void CMainWnd::OnSettingsValueChanged(const QString &key, const QString &value)
{
    QTreeWidgetItem *current = treeTask->currentItem();
    // A queued or running task keeps the values its command line reads.
    if (!TaskTreeOps::instance().CanApplyProfile(current))
        return;
    TaskTreeOps::instance().taskOf(current)->output.settings[key] = value;
    if (key == QLatin1String("s"))
        if (CustomItemWidget *row = rowFace(current))
            row->refreshTexts();
}

void CMainWnd::OnSettingsApplyToAll()
{
    if (QMessageBox::question(this, WindowTitleText(),
                              tr("Are you sure to apply current profile settings to all items?"),
                              QMessageBox::Ok | QMessageBox::Cancel)
        != QMessageBox::Ok)
        return;
    const ProfileRecord profile = comboProfile->currentData().value<ProfileRecord>();
    if (profile.key.isEmpty())
        return;
    // Every row that takes a profile, a disc's titles too.
    const TaskTreeOps &ops = TaskTreeOps::instance();
    for (QTreeWidgetItemIterator it(treeTask); *it; ++it) {
        QTreeWidgetItem *item = *it;
        if (item != treeTask->currentItem()
            && ops.ApplyProfile(taskList.get(), item, profile.key, profile.fileName, settingsWindow))
            if (CustomItemWidget *row = rowFace(item))
                row->refresh();
    }
    UpdateStartButton();
}

void CMainWnd::on_actionSearch_Profile_triggered()
{
    if (comboProfile->isEnabled())
        comboProfile->showSearch();
}

void CMainWnd::OnSaveProfile()
{
    const ProfileRecord profile = comboProfile->currentData().value<ProfileRecord>();
    if (profile.key.isEmpty())
        return;
    const QString name = askProfileName(this, comboProfile);
    if (name.isEmpty())
        return;
    ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    const QString key = catalogue->saveUserProfile(profile.key, settingsWindow->values(), name);
    if (key.isEmpty()) {
        tellProfilesUnsaved(this, catalogue->errorString());
        return;
    }
    // The combo knows the new profile already; choosing it gives it to the rows.
    selectProfileKey(comboProfile, key);
}

void CMainWnd::renameProfile()
{
    const QString key = comboProfile->currentData().value<ProfileRecord>().key;
    const QString id = key.section(QLatin1Char(','), 1);
    if (!ProfileGroupLoader::isUserProfileId(id))
        return;
    const QString typed = askProfileName(this, comboProfile);
    if (typed.isEmpty())
        return;
    // The combo shows the new name as the catalogue announces it.
    ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    const QString name
        = cleanProfileName(typed, QCoreApplication::translate("ProfileGroupLoader", "Untitled"));
    if (!catalogue->renameUserProfile(key.section(QLatin1Char(','), 0, 0), id, name))
        tellProfilesUnsaved(this, catalogue->errorString());
}

void CMainWnd::deleteProfile()
{
    const QString key = comboProfile->currentData().value<ProfileRecord>().key;
    const QString id = key.section(QLatin1Char(','), 1);
    ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    if (!ProfileGroupLoader::isUserProfileId(id) || !catalogue->hasProfile(key))
        return;
    QString from = catalogue->removeUserProfile(key.section(QLatin1Char(','), 0, 0), id);
    if (!catalogue->errorString().isEmpty())
        tellProfilesUnsaved(this, catalogue->errorString());
    if (!catalogue->hasProfile(from))
        from = catalogue->defaultProfile();
    // The rows that had it move to the profile it was made from.
    selectProfileKey(comboProfile, from);
}

void CMainWnd::on_actionOpen_DVD_triggered()
{
    const QString dir = Setting::dvdDir();
    const QStringList discs = mountedDiscs();
    const bool firstTime = settingString(QStringLiteral("DVDDir")).isEmpty();
    QFileDialog dialog(this, tr("Please select a DVD drive or a DVD folder."),
                       firstTime && discs.size() == 1 ? discs.first() : dir);
    dialog.setFileMode(QFileDialog::Directory);
    // A native dialog would leave the discs out of its side bar.
    dialog.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    QList<QUrl> places = dialog.sidebarUrls();
    for (const QString &disc : discs)
        places << QUrl::fromLocalFile(disc);
    dialog.setSidebarUrls(places);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString folder = dialog.selectedFiles().value(0);
    if (folder.isEmpty())
        return;
    if (folder != dir)
        setSettingString(QStringLiteral("DVDDir"), folder);
    // A mount may show the folder in lower case.
    if (folder.section(QLatin1Char('/'), -1).compare(QLatin1String("VIDEO_TS"), Qt::CaseInsensitive) != 0) {
        const QDir disc(folder);
        const QStringList inside = disc.entryList({QStringLiteral("VIDEO_TS")}, QDir::Dirs);
        folder = disc.filePath(inside.value(0, QStringLiteral("VIDEO_TS")));
    }
    QStringList files;
    const QDir videoTs(folder);
    const QStringList present = videoTs.entryList(QDir::Files);
    for (int n = 1;; ++n) {
        const QString name = QStringLiteral("VTS_%1_0.IFO").arg(n, 2, 10, QLatin1Char('0'));
        const auto found = std::find_if(present.begin(), present.end(), [&](const QString &file) {
            return file.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (found == present.end())
            break;
        files << videoTs.filePath(*found);
    }
    LoadDiscFiles(AddDiscRow(folder), files);
}

void CMainWnd::on_actionOpen_IFO_Files_triggered()
{
    const QString dir = Setting::ifoFileDir();
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open IFO Files"), dir,
                                                            tr("IFO Files (*.ifo *.IFO)"));
    if (files.isEmpty())
        return;
    const QString folder = QFileInfo(files.first()).path();
    if (folder != dir)
        setSettingString(QStringLiteral("IFOFileDir"), folder);
    LoadDiscFiles(AddDiscRow(folder), files);
}

QTreeWidgetItem *CMainWnd::AddDiscRow(const QString &path)
{
    auto *row = new QTreeWidgetItem(treeTask);
    row->setData(0, RoleDiscPath, QDir::toNativeSeparators(path));
    addRow(row, -1, RowDisc, -1);
    makeVisibleRowFaces();
    if (mulitWnd->currentIndex() != 1)
        mulitWnd->setCurrentIndex(1);
    return row;
}

void CMainWnd::setUpLoading(QProgressDialog &progress, int count)
{
    progress.setWindowTitle(tr("Loading..."));
    progress.setRange(0, count);
    progress.setFixedSize(400, 120);
}

void CMainWnd::LoadDiscFiles(QTreeWidgetItem *row, const QStringList &files)
{
    QProgressDialog progress(this);
    setUpLoading(progress, int(files.size()));
    progress.show();
    int titleNumber = 1;
    const int discId = nextDiscId++;
    for (int i = 0; i < files.size(); ++i) {
        progress.setLabelText(QDir::toNativeSeparators(QFileInfo(files[i]).fileName()));
        LoadDiscFile(files[i], row, titleNumber, discId);
        progress.setValue(i + 1);
        QCoreApplication::processEvents();
    }
    if (row->childCount() > 0)
        row->setExpanded(true);
}

void CMainWnd::LoadDiscFile(const QString &path, QTreeWidgetItem *row, int &titleNumber, int discId)
{
    const std::unique_ptr<DvdDisc> disc = LoadDvdDisc(path, Setting::useAspi() != 0);
    if (!disc) {
        QMessageBox::information(this, WindowTitleText(),
                                 tr("The IFO File is invalid.\n%1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    const QString key = currentProfileKey();
    for (const auto &title : disc->titles) {
        const int id = taskList->addTitle(key, *title, titleNumber, discId);
        if (id < 0)
            continue;
        ++titleNumber;
        addImportedRow(new QTreeWidgetItem(row), id);
    }
    makeVisibleRowFaces();
    startOfList();
}

int CMainWnd::AddMediaFile(const QString &path)
{
    const int id = taskList->addFile(currentProfileKey(), path);
    if (id < 0)
        return id;
    addImportedRow(new QTreeWidgetItem(treeTask), id);
    makeVisibleRowFaces();
    startOfList();
    return id;
}

void CMainWnd::addImportedRow(QTreeWidgetItem *item, int taskId)
{
    // The task takes the values the panel shows now, and its picture comes later.
    settingsWindow->values(taskList->byId(taskId)->output.settings);
    addRow(item, taskId, RowNormal, -1);
    Logical::MediaImageReader::instance()->requestImage(taskId, 1.0, true);
}

void CMainWnd::startOfList()
{
    if (mulitWnd->currentIndex() != 1) {
        mulitWnd->setCurrentIndex(1);
        treeTask->setCurrentIndex(treeTask->indexAt(QPoint(0, 0)));
        treeTask->setColumnWidth(0, 160);
        for (QWidget *w : std::initializer_list<QWidget *>{playPauseBtn, btnStart, extPlaywndBtn})
            w->setEnabled(true);
        action(QStringLiteral("actionProperties"))->setEnabled(true);
    }
    action(QStringLiteral("actionClear_All"))->setEnabled(true);
    QTreeWidgetItem *first = treeTask->topLevelItem(0);
    if (treeTask->topLevelItemCount() >= 2 || (first && first->childCount() >= 2))
        action(QStringLiteral("actionMove_Down"))->setEnabled(true);
    on_treeTask_itemChanged(nullptr, 0);
}

void CMainWnd::AddMediaBatch(const QStringList &paths)
{
    // The preview holds the media lock that probing takes.
    if (playing)
        stopPreview();
    QProgressDialog progress(this);
    setUpLoading(progress, int(paths.size()));
    QCoreApplication::processEvents();
    QStringList failed;
    for (int i = 0; i < paths.size(); ++i) {
        if (progress.wasCanceled() || paths[i].isEmpty())
            break;
        progress.setLabelText(QDir::toNativeSeparators(QFileInfo(paths[i]).fileName()));
        if (AddMediaFile(paths[i].trimmed()) < 0)
            failed << QDir::toNativeSeparators(paths[i]);
        progress.setValue(i + 1);
        QCoreApplication::processEvents();
    }
    progress.hide();
    ReportLoadFailures(failed);
    treeTask->setFocus(Qt::OtherFocusReason);
    if (!treeTask->currentItem() && treeTask->topLevelItemCount() > 0)
        treeTask->setCurrentItem(treeTask->topLevelItem(0));
}

void CMainWnd::CollectFolder(const QString &folder, QStringList &paths)
{
    const QDir dir(folder);
    for (const QFileInfo &entry : dir.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                                   QDir::Name)) {
        if (entry.isDir())
            CollectFolder(entry.filePath(), paths);
        else
            paths << entry.filePath();
    }
}

void CMainWnd::ReportLoadFailures(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    QMessageBox box(QMessageBox::Information, WindowTitleText(),
                    tr("Following files can not be loaded(They are not valid media files or their formats "
                       "are not supported):"),
                    QMessageBox::Ok, this);
    if (paths.size() <= 10) {
        box.setInformativeText(paths.join(QLatin1Char('\n')));
    } else {
        box.setInformativeText(paths.mid(0, 10).join(QLatin1Char('\n')) + QStringLiteral("\n..."));
        box.setDetailedText(paths.join(QLatin1Char('\n')));
    }
    box.exec();
}

void CMainWnd::addFile()
{
    const QString dir = QDir::fromNativeSeparators(Setting::inputDir());
    const QString media = QStringLiteral(
        "*.avi *.asf *.wmv *.mp4 *.m4v *.mov *.qt *.mpg *.mpeg *.mjpeg *.mjpg *.ts *.mts *.m2ts *.dat *.3gp "
        "*.3g2 *.mkv *.rm *.rmvb *.flv *.f4v *.swf *.vob *.mod *.tod *.dv *.ogm *.ogg *.webm *.wtv *.dvr-ms "
        "*.bik");
    const QString sound = QStringLiteral(
        "*.mp3 *.wav *.wma *.m4a *.mka *.ra *.ram *.ape *.aud *.aiff *.aif *.aifc *.caf *.flac");
    // "*" on Linux: names without a dot are files too.
    const QString filter = QStringLiteral("%2 (%5 %6);;%3 (%5);;%4 (%6);;%1 (*)")
                               .arg(tr("All files"), tr("All Supported Formats"), tr("Supported Video"),
                                    tr("Supported Audio"), media, sound);
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Load"), dir, filter);
    if (files.isEmpty())
        return;
    if (QFileInfo(files.first()).path() != dir)
        setSettingString(QStringLiteral("InputDir"), QDir::toNativeSeparators(QFileInfo(files.first()).path()));
    AddMediaBatch(files);
}

void CMainWnd::addFolder()
{
    const QString dir = QDir::fromNativeSeparators(Setting::inputDir());
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Select a Folder"), dir, QFileDialog::ShowDirsOnly);
    if (folder.isEmpty())
        return;
    if (folder != dir)
        setSettingString(QStringLiteral("InputDir"), QDir::toNativeSeparators(folder));
    QStringList paths;
    CollectFolder(folder, paths);
    AddMediaBatch(paths);
}

void CMainWnd::showAddMenu()
{
    addMenu->popup(btnAddFile->mapToGlobal(btnAddFile->rect().bottomLeft() + QPoint(0, 1)));
}

bool CMainWnd::panelIsChild() const
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"))
           || QGuiApplication::platformName() == QLatin1String("offscreen");
}

void CMainWnd::addRow(QTreeWidgetItem *item, int taskId, int kind, int childId)
{
    item->setData(0, RoleTaskId, taskId);
    item->setData(0, RoleChildId, childId);
    item->setData(0, RoleKind, kind);
    if (kind == RowMerge)
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled);
    // The first row of a kind is measured; the others take its height and
    // get their faces as they come into view, so a long list builds at once.
    if (!rowHeights.contains(kind))
        makeRowFace(item);
    item->setSizeHint(0, QSize(0, rowHeights.value(kind)));
}

CustomItemWidget *CMainWnd::rowFace(QTreeWidgetItem *item) const
{
    return item ? qobject_cast<CustomItemWidget *>(treeTask->itemWidget(item, 0)) : nullptr;
}

CustomItemWidget *CMainWnd::makeRowFace(QTreeWidgetItem *item)
{
    const int kind = TaskTreeOps::kindOf(item);
    auto *row = new CustomItemWidget(treeTask, item, taskList.get(), TaskTreeOps::taskIdOf(item), kind,
                                     TaskTreeOps::childIdOf(item));
    row->setProfileMenu(comboProfile->profileMenu());
    connect(row, &CustomItemWidget::itemChanged, this, &CMainWnd::on_treeTask_itemChanged);
    connect(row, &CustomItemWidget::pauseTask, this, &CMainWnd::onPauseTask);
    connect(row, &CustomItemWidget::stopTask, this, &CMainWnd::onStopTask);
    connect(row, &CustomItemWidget::stopAndContinuePlayMedia, this, &CMainWnd::onStopAndContinuePlay);
    connect(row, &CustomItemWidget::removeRequested, this, [this, item] { removeRowOf(item); });
    connect(row, &CustomItemWidget::moveRequested, this, [this, item](int step) { MoveRow(item, step); });
    connect(row, &CustomItemWidget::playMedia, this, [this] {
        if (!playing)
            on_playPauseBtn_clicked();
    });
    if (!rowHeights.contains(kind)) {
        // Measured in the skin's look, which gives the rows' controls their size;
        // a little room below keeps the combos' frames whole.
        row->ensurePolished();
        for (QWidget *w : row->findChildren<QWidget *>())
            w->ensurePolished();
        if (row->layout())
            row->layout()->activate();
        rowHeights.insert(kind, row->sizeHint().height() + 8);
        // The list never gets narrower than a whole row.
        const int width = row->minimumSizeHint().width() + treeTask->verticalScrollBar()->sizeHint().width()
                          + 2 * treeTask->frameWidth() + 8;
        treeTask->setMinimumWidth(qMax(treeTask->minimumWidth(), width));
    }
    treeTask->setItemWidget(item, 0, row);
    return row;
}

void CMainWnd::makeVisibleRowFaces()
{
    const int bottom = treeTask->viewport()->rect().bottom();
    for (QTreeWidgetItem *item = treeTask->itemAt(0, 0); item; item = treeTask->itemBelow(item)) {
        if (treeTask->visualItemRect(item).top() > bottom)
            break;
        if (!treeTask->itemWidget(item, 0))
            makeRowFace(item);
    }
}

bool CMainWnd::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == treeTask->viewport() && (event->type() == QEvent::Resize || event->type() == QEvent::Show))
        QTimer::singleShot(0, this, &CMainWnd::makeVisibleRowFaces);
    return QxMainWidget::eventFilter(watched, event);
}

QTreeWidgetItem *CMainWnd::itemOf(int taskId, int childId) const
{
    for (QTreeWidgetItemIterator it(treeTask); *it; ++it)
        if (TaskTreeOps::taskIdOf(*it) == taskId && TaskTreeOps::childIdOf(*it) == childId)
            return *it;
    return nullptr;
}

void CMainWnd::addTaskRows()
{
    const bool first = treeTask->topLevelItemCount() == 0;
    QSet<int> shown;
    for (QTreeWidgetItemIterator it(treeTask); *it; ++it)
        shown.insert(TaskTreeOps::taskIdOf(*it));
    for (int position = 0; position < taskList->count(); ++position) {
        Task *task = taskList->at(position);
        if (shown.contains(task->id))
            continue;
        // A new task takes the values the panel shows for its profile.
        if (task->output.settings.isEmpty())
            settingsWindow->values(task->output.settings);
        const auto &ranges = taskList->ranges();
        const auto range = std::find_if(ranges.begin(), ranges.end(), [&](const auto &r) {
            return position >= r.start && position < r.end;
        });
        if (range != ranges.end()) {
            // Under the row of its disc, made by the first title that comes.
            QTreeWidgetItem *disc = nullptr;
            for (int p = range->start; p < range->end && !disc; ++p)
                if (QTreeWidgetItem *sibling = itemOf(taskList->at(p)->id))
                    disc = sibling->parent();
            if (!disc) {
                disc = new QTreeWidgetItem(treeTask);
                disc->setData(0, RoleDiscPath, discPathOf(task->item(0)->sourcePath));
                addRow(disc, -1, RowDisc, -1);
                disc->setExpanded(true);
            }
            addRow(new QTreeWidgetItem(disc), task->id, RowNormal, -1);
            continue;
        }
        auto *item = new QTreeWidgetItem(treeTask);
        if (task->name.isEmpty()) {
            addRow(item, task->id, RowNormal, -1);
            continue;
        }
        addRow(item, task->id, RowMerge, -1);
        for (const auto &child : task->items)
            addRow(new QTreeWidgetItem(item), task->id, RowChild, child->id);
    }
    makeVisibleRowFaces();
    if (treeTask->topLevelItemCount() > 0) {
        if (first)
            treeTask->setColumnWidth(0, 160);
        mulitWnd->setCurrentIndex(1);
        action(QStringLiteral("actionClear_All"))->setEnabled(true);
    }
    on_treeTask_itemChanged(nullptr, 0);
}

void CMainWnd::ResetToEmpty()
{
    if (playing)
        stopPreview();
    mulitWnd->setCurrentIndex(0);
    treeTask->clear();
    taskList->clear();
    for (QWidget *w : std::initializer_list<QWidget *>{btnTrim, btnCrop, btnEffect, playPauseBtn, btnStop,
                                                       extPlaywndBtn, snapshotBtn, btnStart})
        w->setEnabled(false);
    for (const char *name : {"actionClear_All", "actionRename", "actionProperties",
                             "actionRemove_Selected_Item_s"})
        action(QLatin1String(name))->setEnabled(false);
    sliderPlayProgress->setRange(0, 99);
    sliderPlayProgress->setValue(0);
    sliderPlayProgress->setTrimStart(0);
    sliderPlayProgress->setTrimEnd(99);
}

void CMainWnd::on_treeTask_itemSelectionChanged()
{
    const QList<QTreeWidgetItem *> selected = treeTask->selectedItems();
    action(QStringLiteral("actionRemove_Selected_Item_s"))->setEnabled(!selected.isEmpty());
    const bool profile = profileApplies(treeTask);
    comboProfile->setEnabled(profile);
    settingsWindow->setEnabled(profile);
    settingsWindow->setEditable(selected.size() < 2
                                && TaskTreeOps::kindOf(treeTask->currentItem()) != RowChild);
    const bool merge = TaskTreeOps::CanMerge(treeTask);
    btnMerge->setEnabled(merge);
    action(QStringLiteral("actionMerge_Selected_into_One"))->setEnabled(merge);
}

void CMainWnd::on_treeTask_currentItemChanged(QTreeWidgetItem *current, QTreeWidgetItem *)
{
    QAction *rename = action(QStringLiteral("actionRename"));
    QAction *properties = action(QStringLiteral("actionProperties"));
    if (!current) {
        rename->setEnabled(false);
        properties->setEnabled(false);
        return;
    }
    if (playing)
        stopPreview();
    rename->setEnabled(true);
    const RowKind kind = TaskTreeOps::kindOf(current);
    const bool plays = kind == RowNormal || kind == RowChild;
    btnTrim->setEnabled(plays);
    properties->setEnabled(plays);
    playPauseBtn->setEnabled(plays);
    extPlaywndBtn->setEnabled(plays);
    // The combo and the panel follow the row without applying anything; a
    // title of a merge or a disc has no profile of its own.
    const bool ownProfile = kind == RowNormal || kind == RowMerge;
    const Task *task = ownProfile ? TaskTreeOps::instance().taskOf(current) : nullptr;
    if (task && settingsWindow->profileFile() != task->output.profileFile) {
        const QString key = task->output.profileKey;
        {
            const QSignalBlocker blocker(comboProfile);
            selectProfileKey(comboProfile, key);
        }
        const QMap<QString, QString> values = task->output.settings;
        settingsWindow->setProfile(task->output.profileFile, &values);
        offerUserCommands(actionRenameProfile, actionDeleteProfile, key);
    } else if (task) {
        settingsWindow->setValues(QMap<QString, QString>(task->output.settings));
    }
    const bool profile = profileApplies(treeTask);
    comboProfile->setEnabled(profile);
    settingsWindow->setEnabled(profile);
    const ChildTask *input = TaskTreeOps::instance().inputOf(current);
    btnCrop->setEnabled(input && input->hasVideo);
    btnEffect->setEnabled(input && input->hasVideo);
    if (input) {
        ShowInPreview(input->owner, input->owner->indexOfItem(input));
        showTimeOf(0);
    }
}

void CMainWnd::on_treeTask_itemChanged(QTreeWidgetItem *, int column)
{
    if (column != 0)
        return;
    btnStart->setEnabled(anyRow(&TaskTreeOps::CanConvert, true));
}

void CMainWnd::on_treeTask_itemExpanded(QTreeWidgetItem *item)
{
    if (CustomItemWidget *row = rowFace(item))
        row->refreshExpand();
    QTimer::singleShot(0, this, &CMainWnd::makeVisibleRowFaces);
}

void CMainWnd::on_treeTask_itemCollapsed(QTreeWidgetItem *item)
{
    on_treeTask_itemExpanded(item);
}

void CMainWnd::receiveMediaImage(int taskId)
{
    for (QTreeWidgetItemIterator it(treeTask); *it; ++it)
        if (TaskTreeOps::taskIdOf(*it) == taskId) {
            if (CustomItemWidget *row = rowFace(*it))
                row->refreshPicture();
            return;
        }
}

void CMainWnd::receiveMediaImage(int taskId, int childId)
{
    for (int child : {childId, -1})
        if (CustomItemWidget *row = rowFace(itemOf(taskId, child)))
            row->refreshPicture();
}

void CMainWnd::closeEvent(QCloseEvent *event)
{
    if (anyRow(&TaskTreeOps::CanStop, true)
        && QMessageBox::question(this, WindowTitleText(),
                                 tr("Are you sure you want to stop converting?"),
                                 QMessageBox::Ok | QMessageBox::Cancel)
               != QMessageBox::Ok) {
        event->ignore();
        return;
    }
    if (playing)
        stopPreview();
    Logical::MediaImageReader::instance()->stop();
    converter->stopAll();
    syncSettings();
    taskbar.setProgressState(TaskbarProgress::NoProgress);
    event->accept();
}

void CMainWnd::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        setWindowTitle(WindowTitleText());
        titleLabel->setText(WindowTitleText());
        actionSaveProfile->setText(tr("&Save As..."));
        actionRenameProfile->setText(tr("&Rename..."));
        actionDeleteProfile->setText(tr("&Delete"));
        actionPlayOriginal->setText(tr("Display Original Frame"));
        actionPlayOutput->setText(tr("Display Output Frame"));
        startLabel->setText(GettingStartedText());
        if (taskList->count() > 0)
            UpdateStartButton();
        UpdateTotalProgress();
        QGuiApplication::setLayoutDirection(tr("LTR") == QLatin1String("RTL") ? Qt::RightToLeft
                                                                             : Qt::LeftToRight);
        for (QWidget *w : std::initializer_list<QWidget *>{btnStart, sliderVolume, snapshotBtn,
                                                           playPauseBtn, comboProfile})
            TaskTreeOps::Repolish(w);
        elideButton(btnSelectOutputDir);
        elideButton(btnOpenOutputDir);
    }
    QxMainWidget::changeEvent(event);
}

void CMainWnd::paintEvent(QPaintEvent *event)
{
    painted = true;
    QxMainWidget::paintEvent(event);
}

void CMainWnd::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(QStringLiteral("text/uri-list")))
        event->acceptProposedAction();
}

void CMainWnd::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty())
        return;
    QStringList paths;
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (QFileInfo(path).isDir())
            CollectFolder(path, paths);
        else
            paths << path;
    }
    event->acceptProposedAction();
    AddMediaBatch(paths);
}

void CMainWnd::on_maxBtn_clicked()
{
    const bool maximize = !isMaximized();
    if (maximize) {
        showMaximized();
        if (QScreen *s = screen())
            setGeometry(s->availableGeometry());
    } else {
        showNormal();
    }
    maxBtn->setToolTip(maximize ? tr("Restore Down") : tr("Maximize"));
    for (QPushButton *b : {maxBtn, static_cast<QPushButton *>(maxBtnMac)}) {
        b->setProperty("maxstat", maximize);
        TaskTreeOps::Repolish(b);
    }
}

void CMainWnd::on_advSettingsBtn_clicked()
{
    const bool show = !settingsWindow->isVisible();
    if (!panelIsChild() && isMaximized()) {
        const int width = settingsWindow->frameGeometry().width() + (show ? 0 : 2);
        resize(show ? frameGeometry().width() - width : frameGeometry().width() + width, height());
    }
    if (show) {
        DockSettingsPanel();
        settingsWindow->show();
    } else {
        settingsWindow->hide();
    }
}

void CMainWnd::DockSettingsPanel()
{
    if (panelIsChild() || !settingsWindow)
        return;
    int left = frameGeometry().right() + 2;
    if (QScreen *s = screen()) {
        const int end = s->availableGeometry().right();
        left = qMin(left, end - settingsWindow->frameGeometry().width() + 1);
    }
    settingsWindow->move(left, frameGeometry().top());
}

void CMainWnd::resizeEvent(QResizeEvent *event)
{
    QxMainWidget::resizeEvent(event);
    if (settingsWindow && !panelIsChild()) {
        settingsWindow->resize(settingsWindow->width(), height());
        DockSettingsPanel();
    }
    elideButton(btnSelectOutputDir);
    elideButton(btnOpenOutputDir);
}

void CMainWnd::mouseMoveEvent(QMouseEvent *event)
{
    QxMainWidget::mouseMoveEvent(event);
    DockSettingsPanel();
}

void CMainWnd::elideButton(QPushButton *button)
{
    const QString full = button->toolTip().isEmpty() ? button->text() : button->toolTip();
    const int room = button->width() - 12;
    if (button->fontMetrics().horizontalAdvance(full) > room) {
        button->setToolTip(full);
        button->setText(button->fontMetrics().elidedText(full, Qt::ElideRight, room, Qt::TextShowMnemonic));
    } else {
        button->setToolTip(QString());
        button->setText(full);
    }
}

void CMainWnd::on_btnSelectOutputDir_clicked()
{
    const QString start = editOutputDir->text();
    QDir().mkpath(start);
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Please Select Output Folder"), start);
    if (!chosen.isEmpty())
        editOutputDir->setText(QDir::toNativeSeparators(chosen));
    setSettingString(QStringLiteral("OutputDir"), QDir::fromNativeSeparators(editOutputDir->text()));
}

void CMainWnd::on_btnOpenOutputDir_clicked()
{
    const TaskTreeOps &ops = TaskTreeOps::instance();
    QStringList files;
    for (QTreeWidgetItem *item : treeTask->selectedItems())
        if (ops.HasFile(item, false))
            files << ops.taskOf(item)->output.filePath;
    if (!files.isEmpty()) {
        Utils::openFolderAndSelect(files, 10);
        return;
    }
    const QString folder = QDir::fromNativeSeparators(editOutputDir->text());
    QDir().mkpath(folder);
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}
