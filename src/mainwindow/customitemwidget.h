#pragma once

#include <QWidget>

class CProfileMenu;
class ChildTask;
class QCheckBox;
class QComboBox;
class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QxtLabel;
class Task;
class TaskList;

namespace Ui {

// The row's form, built in code.
class CustomItemWidget
{
public:
    QGridLayout *gridLayout;
    QCheckBox *checkBox;
    QFrame *pictureFrame;
    QGridLayout *pictureLayout;
    QLabel *pictureLabel1;
    QLabel *pictureLabel2;
    QLabel *pictureLabel3;
    QLabel *pictureLabel4;
    QPushButton *expandBtn;
    QWidget *profileWidget;
    QComboBox *comboAudio;
    QComboBox *comboSubtitle;
    QxtLabel *labelOutputName;
    QLineEdit *editOutputName;
    QLabel *timeLengthLabel;
    QLabel *videoSizeLabel;
    QLabel *fileSizeLabel;
    QLabel *taskStatusLabel;
    QPushButton *profileBtn;
    QPushButton *upBtn;
    QPushButton *downBtn;
    QPushButton *closeBtn;
    QWidget *progressWidget;
    QxtLabel *labelProgressName;
    QPushButton *progressCloseBtn;
    QProgressBar *progressBar;
    QPushButton *pauseBtn;
    QLabel *labelRemain;
    QLabel *labelRemainTime;

    void setupUi(QWidget *form);
    void retranslateUi(QWidget *form);
};

} // namespace Ui

// The widget of one row of the task tree. It keeps only the row's address
// and reads everything it shows from the task list on each refresh.
class CustomItemWidget : public QWidget, public Ui::CustomItemWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CustomItemWidget)

public:
    CustomItemWidget(QTreeWidget *tree, QTreeWidgetItem *item, TaskList *taskList, int taskId,
                     int kind, int childId);

    void setProfileMenu(CProfileMenu *menu) { popup = menu; }
    CProfileMenu *profileMenu() const { return popup; }

    void showProgress(bool on);
    void refresh();
    void refreshTexts();
    void refreshPicture();
    void refreshProgress();
    void refreshState();
    void syncCheck();
    void refreshExpand();
    void fillAudioCombo();
    void fillSubtitleCombo();
    void startRename();

signals:
    void itemChanged(QTreeWidgetItem *item, int column);
    void pauseTask(int taskId, bool pause);
    void stopTask(int taskId);
    void emptyList();
    void editAudioTrack();
    void editSubtitle();
    void playMedia();
    void stopAndContinuePlayMedia(int taskId, int childTaskId);
    // Moving and removing rows belong to the window's list operations: the
    // row only asks. step is -1 (up) or +1 (down).
    void moveRequested(int step);
    void removeRequested();

private slots:
    void on_comboAudio_currentIndexChanged(int index);
    void on_comboSubtitle_currentIndexChanged(int index);
    void on_upBtn_clicked();
    void on_downBtn_clicked();
    void on_closeBtn_clicked();
    void on_progressCloseBtn_clicked();
    void on_checkBox_stateChanged(int state);
    void on_expandBtn_clicked();
    void onNameLineEdit_editingFinished();
    void on_profileBtn_clicked();
    void on_pauseBtn_clicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    Task *task() const;
    // The input the row's combos and tool tip speak of.
    ChildTask *input() const;
    void applyKind();
    void coverPictureCells();
    void refreshProfileIcon();
    void selectTrack(QComboBox *combo, int index, bool audio);
    void makeCurrent();
    bool canStartRename() const;
    void requestRemoval();
    void endRename(bool keep);
    void connectToWindow();

    QTreeWidget *tree;
    QTreeWidgetItem *item;
    TaskList *taskList;
    int taskId;
    int kind;
    int childId;
    CProfileMenu *popup = nullptr;
    bool showingProgress = false;
};
