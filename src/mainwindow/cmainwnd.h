#pragma once

#include "convertermanager.h"
#include "desktopnotifier.h"
#include "qxmainwidget.h"
#include "task.h"
#include "taskbarprogress.h"

#include <QMap>
#include <QSet>

#include <memory>

class CPlayPauseButton;
class CProfileCombo;
class CSlider;
class CustomItemWidget;
class FadePushButton;
class FadeToolButton;
class FFPlayer;
class GettingStartLabel;
class PlayerScreen;
class QAction;
class QActionGroup;
class QFrame;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QProgressBar;
class QProgressDialog;
class QTimer;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QxMacSystemButton;
class SettingsWindow;
class TaskList;
class TaskTreeOps;
class VolumSlider;
class WndTitleLabel;

namespace Ui {

// The window's form: its widgets by the names the skin's style sheet selects on.
class mainWindow
{
public:
    QxMacSystemButton *closeBtnMac, *minBtnMac, *maxBtnMac;
    QLabel *iconLabel;
    WndTitleLabel *titleLabel;
    QPushButton *minBtn, *maxBtn, *closeBtn;
    QMenuBar *menuBar;
    FadeToolButton *btnAddFile, *btnTrim, *btnCrop, *btnEffect, *btnMerge, *btnPreference;
    QSplitter *splitter;
    QFrame *playBackFrame, *playFrame, *listFrame;
    PlayerScreen *playWnd;
    QLabel *timeLabel;
    CSlider *sliderPlayProgress;
    CPlayPauseButton *playPauseBtn, *btnStop;
    QPushButton *muteBtn, *extPlaywndBtn;
    VolumSlider *sliderVolume;
    QToolButton *snapshotBtn;
    QStackedWidget *mulitWnd;
    GettingStartLabel *startLabel;
    QTreeWidget *treeTask;
    QLabel *profileLabel, *labelDestination, *labelProgress;
    CProfileCombo *comboProfile;
    QPushButton *advSettingsBtn, *btnSelectOutputDir, *btnOpenOutputDir;
    QToolButton *btnSaveProfile;
    FadePushButton *btnStart;
    QLineEdit *editOutputDir;
    QProgressBar *totalProgressBar;
    // The menus and their actions, by object name.
    QMap<QString, QMenu *> menus;
    QMap<QString, QAction *> actions;

    void setupUi(QWidget *window);
    void retranslateUi(QWidget *window);
    QAction *action(const QString &name) const { return actions.value(name); }
};

} // namespace Ui

// The one main window: the preview on the left, the start page or the task
// tree on the right, the profile and destination rows and the total
// progress below. Every command's slot tests its own precondition again,
// since a shortcut reaches it whatever the menus showed.
class CMainWnd : public QxMainWidget, public Ui::mainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CMainWnd)

public:
    explicit CMainWnd(QWidget *parent = nullptr);
    ~CMainWnd() override;

    static QString WindowTitleText();
    QString GettingStartedText() const;
    void ResetToEmpty();
    void DockSettingsPanel();

    TaskList *tasks() const { return taskList.get(); }
    ConverterManager *converterManager() const { return converter.get(); }
    SettingsWindow *settingsPanel() const { return settingsWindow; }
    // A row for each task of the list that has none yet, in list order:
    // titles of one disc under their disc's row.
    void addTaskRows();
    QTreeWidgetItem *itemOf(int taskId, int childId = -1) const;

signals:
    void hasSysButtonHovered(bool hovered);
    // Every task is at rest: the chosen post-task action is due.
    void postTaskStep(int action);

public slots:
    void quit() { close(); }
    void on_actionExit_triggered() { close(); }
    void on_actionClear_All_triggered() { ResetToEmpty(); }
    void on_treeTask_itemChanged(QTreeWidgetItem *item, int column);
    // Conversion control.
    void on_btnStart_clicked();
    void on_actionConvert_Checked_Item_s_triggered();
    void on_actionPause_Checked_Item_s_triggered();
    void on_actionStop_Checked_Item_s_triggered();
    void on_actionConvert_Selected_Item_s_triggered();
    void on_actionPause_Selected_Item_s_triggered();
    void on_actionStop_Selected_Item_s_triggered();
    void on_actionConvert_All_Item_s_triggered();
    void on_actionPause_All_Item_s_triggered();
    void on_actionStop_All_Item_s_triggered();
    void onPauseTask(int taskId, bool pause);
    void on_actionRemove_Selected_Item_s_triggered();
    void on_actionMove_Up_triggered();
    void on_actionMove_Down_triggered();
    void on_actionTop_triggered();
    void on_actionBottom_triggered();
    void onStopTask(int taskId);
    void on_actionAudio_Track_triggered() {}
    void on_actionSubtitle_triggered() {}
    void onStopAndContinuePlay(int taskId, int childTaskId);

    // The preview of the current row's input.
    void on_playPauseBtn_clicked();
    void on_btnStop_clicked();
    void on_actionPlay_Pause_triggered();
    void on_actionStop_triggered();
    void on_actionPrevious_triggered() { playNeighbour(false); }
    void on_actionNext_triggered() { playNeighbour(true); }
    void on_sliderVolume_valueChanged(int value);
    void on_muteBtn_clicked(bool checked);
    void on_actionMute_triggered(bool checked) { on_muteBtn_clicked(checked); }
    void on_actionUp_triggered();
    void on_actionDown_triggered();
    void on_snapshotBtn_clicked();
    void on_actionSnapshot_triggered() { on_snapshotBtn_clicked(); }
    void on_actionOpen_Snapshot_Folder_triggered() { openSnapshotFolder(); }
    void on_actionChange_Snapshot_Folder_triggered() { changeSnapshotFolder(); }
    void openSnapshotFolder();
    void changeSnapshotFolder();
    void playModeOrignal();
    void playModeOutput();
    void on_playWnd_customContextMenuRequested(const QPoint &point);

private slots:
    void on_maxBtn_clicked();
    void on_advSettingsBtn_clicked();
    void on_btnSelectOutputDir_clicked();
    void on_btnOpenOutputDir_clicked();
    void on_treeTask_itemSelectionChanged();
    void on_treeTask_currentItemChanged(QTreeWidgetItem *current, QTreeWidgetItem *previous);
    void on_treeTask_itemExpanded(QTreeWidgetItem *item);
    void on_treeTask_itemCollapsed(QTreeWidgetItem *item);
    void on_startLabel_linkActivated(const QString &link);
    void on_actionOpen_DVD_triggered();
    void on_actionOpen_DVD_Folder_triggered() { on_actionOpen_DVD_triggered(); }
    void on_actionOpen_IFO_Files_triggered();
    void addFile();
    void addFolder();
    void showAddMenu();
    // Each row's own profile: the combo and the panel show the current row's
    // and give theirs to the current and the selected rows.
    void on_comboProfile_currentIndexChanged(int index);
    void OnSettingsValueChanged(const QString &key, const QString &value);
    void OnSettingsApplyToAll();
    void on_actionApply_Profile_to_All_triggered() { OnSettingsApplyToAll(); }
    void on_actionSearch_Profile_triggered();
    void OnSaveProfile();
    void renameProfile();
    void deleteProfile();
    void OnConvertProgressChanged(int taskId, double progress);
    void OnTaskStateChanged(int taskId, Task::EState state);
    void receiveMediaImage(int taskId);
    void receiveMediaImage(int taskId, int childId);
    void onSkinChanged(int index);
    void UpdateTotalProgress();
    void playStateChanged(int state);
    void timeOut();
    void sliderProgressValueChanged(int value);
    void sliderProgressHandlePressed(bool pressed) { sliderHeld = pressed; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void UpdateStartButton();
    // A row and its task leave; a disc row takes its titles, a merge's last
    // input the merge.
    void RemoveRow(QTreeWidgetItem *item);
    void removeRowOf(QTreeWidgetItem *item);
    void afterRemoval();
    // One place up (-1) or down (1) among its siblings.
    void MoveRow(QTreeWidgetItem *item, int step);
    void moveSelected(int step);
    void batchEnded();
    void startRow(QTreeWidgetItem *item);
    bool anyRow(bool (TaskTreeOps::*test)(const QTreeWidgetItem *, bool) const, bool onlyChecked) const;
    bool anySelected(bool (TaskTreeOps::*test)(const QTreeWidgetItem *, bool) const) const;
    void stopPreview() { on_btnStop_clicked(); }
    void setUpPreview();
    void ShowInPreview(Task *task, int index);
    void RefreshPreviewEffects();
    void applyZoom(const ChildTask &input, double fullScreen);
    void showPlayMode(bool output);
    void applyTrackChoice(const ChildTask &input);
    void showTimeOf(double seconds);
    void playNeighbour(bool below);
    void stepVolume(int sign);
    void fillTrackMenu(QMenu *menu, bool audio);
    void updatePopupPlay();
    QString snapshotFolder() const;
    // The edit dialog and the full-screen player take the player over
    // while they are open.
    void handOverPlayer();
    void takeBackPlayer();
    void elideButton(QPushButton *button);
    // The panel is a window of its own, docked at the right edge, where the
    // platform lets a program place windows; a child panel where it doesn't.
    bool panelIsChild() const;
    void addRow(QTreeWidgetItem *item, int taskId, int kind, int childId);
    // Importing: a disc row and its titles, or one row per media file.
    QString currentProfileKey() const;
    QTreeWidgetItem *AddDiscRow(const QString &path);
    void LoadDiscFiles(QTreeWidgetItem *row, const QStringList &files);
    void LoadDiscFile(const QString &path, QTreeWidgetItem *row, int &titleNumber, int discId);
    int AddMediaFile(const QString &path);
    void AddMediaBatch(const QStringList &paths);
    static void CollectFolder(const QString &folder, QStringList &paths);
    void ReportLoadFailures(const QStringList &paths);
    void addImportedRow(QTreeWidgetItem *item, int taskId);
    void startOfList();
    void setUpLoading(QProgressDialog &progress, int count);
    int nextDiscId = 1;
    CustomItemWidget *makeRowFace(QTreeWidgetItem *item);
    // The row's widget, where it has one yet.
    CustomItemWidget *rowFace(QTreeWidgetItem *item) const;
    void makeVisibleRowFaces();
    QMap<int, int> rowHeights; // by row kind

    TaskbarProgress taskbar;
    DesktopNotifier notifier;
    QSet<int> batchTasks; // the tasks that ran since the last batch ended
    bool painted = false;
    bool ready = false;
    FFPlayer *player = nullptr;
    bool playing = false;
    bool mediaLocked = false;
    QTimer *playTimer = nullptr;
    bool timerUpdating = false;
    bool seekPending = false;
    bool sliderHeld = false;
    double playRangeStart = 0.0;
    double playRangeEnd = 0.0;
    QMenu *popupPlay = nullptr;
    QMenu *addMenu = nullptr;
    QMenu *saveProfileMenu = nullptr;
    QMenu *snapshotMenu = nullptr;
    QMenu *playModeMenu = nullptr;
    QAction *actionSaveProfile = nullptr;
    QAction *actionRenameProfile = nullptr;
    QAction *actionDeleteProfile = nullptr;
    QAction *actionPlayOriginal = nullptr;
    QAction *actionPlayOutput = nullptr;
    QString skinPath;
    SettingsWindow *settingsWindow = nullptr;
    std::unique_ptr<TaskList> taskList;
    std::unique_ptr<ConverterManager> converter;
};
