// The window's side of a conversion: the Start button and the Action menu's
// commands go to the queue; its signals come back as rows, totals and title.

#include "cmainwnd.h"

#include "controls.h"
#include "customitemwidget.h"
#include "mediaimagereader.h"
#include "settings.h"
#include "tasklist.h"
#include "tasktreeops.h"
#include "timetracker.h"
#include "utils.h"

#include <QDateTime>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {

// Shared by all tasks: a running task's picture is taken again at most
// once in this many seconds.
qint64 lastThumbnailTime = 0;
constexpr qint64 thumbnailInterval = 10;

} // namespace

void CMainWnd::on_btnStart_clicked()
{
    if (playing)
        stopPreview();
    if (btnStart->property("status").toString() == QLatin1String("stop")) {
        converter->stopAll();
        return;
    }
    converter->setMaxProcesses(Setting::processCount());
    converter->startAll();
}

bool CMainWnd::anyRow(bool (TaskTreeOps::*test)(const QTreeWidgetItem *, bool) const, bool onlyChecked) const
{
    return TaskTreeOps::AnyRow(treeTask, [test, onlyChecked](const QTreeWidgetItem *row) {
        return (TaskTreeOps::instance().*test)(row, onlyChecked);
    });
}

bool CMainWnd::anySelected(bool (TaskTreeOps::*test)(const QTreeWidgetItem *, bool) const) const
{
    return TaskTreeOps::AnySelected(treeTask, [test](const QTreeWidgetItem *row) {
        return (TaskTreeOps::instance().*test)(row, false);
    });
}

void CMainWnd::on_actionConvert_Checked_Item_s_triggered()
{
    if (anyRow(&TaskTreeOps::CanConvert, true))
        converter->startAll();
}

void CMainWnd::on_actionPause_Checked_Item_s_triggered()
{
    if (anyRow(&TaskTreeOps::CanPause, true))
        converter->pauseAll();
}

void CMainWnd::on_actionStop_Checked_Item_s_triggered()
{
    if (anyRow(&TaskTreeOps::CanStop, true))
        converter->stopAll();
}

void CMainWnd::on_actionPause_All_Item_s_triggered()
{
    if (anyRow(&TaskTreeOps::CanPause, false))
        converter->pauseAll();
}

void CMainWnd::on_actionStop_All_Item_s_triggered()
{
    if (anyRow(&TaskTreeOps::CanStop, false))
        converter->stopAll();
}

void CMainWnd::startRow(QTreeWidgetItem *item)
{
    Task *task = TaskTreeOps::instance().taskOf(item);
    if (!task || TaskTreeOps::kindOf(item) == RowDisc)
        return;
    task->setChecked(true, -1);
    if (CustomItemWidget *row = rowFace(item))
        row->syncCheck();
    // At once, whatever the limit of parallel encoders says.
    converter->startTask(task->id);
}

void CMainWnd::on_actionConvert_Selected_Item_s_triggered()
{
    if (!anySelected(&TaskTreeOps::CanConvert))
        return;
    for (QTreeWidgetItem *item : treeTask->selectedItems())
        startRow(item);
}

void CMainWnd::on_actionConvert_All_Item_s_triggered()
{
    if (!anyRow(&TaskTreeOps::CanConvert, false))
        return;
    for (QTreeWidgetItemIterator it(treeTask); *it; ++it)
        startRow(*it);
}

void CMainWnd::on_actionPause_Selected_Item_s_triggered()
{
    if (!anySelected(&TaskTreeOps::CanPause))
        return;
    for (QTreeWidgetItem *item : treeTask->selectedItems())
        if (TaskTreeOps::instance().CanPause(item, false))
            converter->pauseTask(TaskTreeOps::taskIdOf(item));
}

void CMainWnd::on_actionStop_Selected_Item_s_triggered()
{
    if (!anySelected(&TaskTreeOps::CanStop))
        return;
    for (QTreeWidgetItem *item : treeTask->selectedItems())
        if (TaskTreeOps::instance().CanStop(item, false))
            converter->stopTask(TaskTreeOps::taskIdOf(item));
}

void CMainWnd::onPauseTask(int taskId, bool pause)
{
    // The queue resumes a paused task by starting it.
    if (pause)
        converter->pauseTask(taskId);
    else
        converter->startTask(taskId);
}

void CMainWnd::onStopTask(int taskId)
{
    converter->stopTask(taskId);
}

void CMainWnd::OnConvertProgressChanged(int taskId, double seconds)
{
    Task *task = taskList->byId(taskId);
    if (!task)
        return;
    task->progress = seconds;
    CustomItemWidget *row = rowFace(itemOf(taskId));
    if (row)
        row->refreshProgress();
    UpdateTotalProgress();
    // The running task's picture follows the encoder, seldom, and only for a
    // window that has been painted since.
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    if (now - lastThumbnailTime < thumbnailInterval)
        return;
    lastThumbnailTime = now;
    if (!painted)
        return;
    painted = false;
    if (!playing)
        Logical::MediaImageReader::instance()->requestImageAt(taskId, seconds, false);
}

void CMainWnd::OnTaskStateChanged(int taskId, Task::EState state)
{
    TimeTracker::stateChanged(*taskList, taskId, state);
    if (state == Task::Running)
        batchTasks.insert(taskId);
    if (CustomItemWidget *row = rowFace(itemOf(taskId))) {
        row->refreshState();
        const bool busy = state == Task::Running || state == Task::Paused || state == Task::Pending;
        row->showProgress(busy);
        if (!busy)
            row->syncCheck();
    }
    totalProgressBar->show();
    UpdateStartButton();
    if (taskList->allAtRest())
        batchEnded();
    else
        UpdateTotalProgress();
}

void CMainWnd::UpdateStartButton()
{
    QString status = QStringLiteral("start");
    QString tip = tr("Convert Checked Item(s)");
    bool enabled = false;
    if (anyRow(&TaskTreeOps::CanStop, true)) {
        status = QStringLiteral("stop");
        tip = tr("Stop Checked Item(s)");
        enabled = true;
    } else {
        enabled = anyRow(&TaskTreeOps::CanConvert, true);
    }
    btnStart->setProperty("status", status);
    btnStart->setEnabled(enabled);
    btnStart->setToolTip(tip);
    btnStart->setText(status == QLatin1String("stop") ? tr("Stop") : tr("Start"));
    TaskTreeOps::Repolish(btnStart);
}

void CMainWnd::batchEnded()
{
    UpdateTotalProgress();
    setWindowTitle(WindowTitleText());
    titleLabel->setText(WindowTitleText());
    // Told on the desktop when the user looks elsewhere.
    int succeeded = 0;
    int failed = 0;
    for (int id : std::as_const(batchTasks)) {
        if (const Task *task = taskList->byId(id)) {
            succeeded += task->state == Task::Succeed;
            failed += task->state == Task::Failed;
        }
    }
    batchTasks.clear();
    if (!isActiveWindow() && succeeded + failed > 0) {
        notifier.notify(tr("Conversion finished"), tr("Succeeded: %1, failed: %2").arg(succeeded).arg(failed),
                        tr("Show"));
    }
    // The dialog that counts down to the chosen action hangs here.
    emit postTaskStep(TaskTreeOps::instance().postTaskAction);
}

void CMainWnd::UpdateTotalProgress()
{
    TimeTracker::BatchFigures figures;
    TimeTracker::batchFigures(*taskList, &figures);
    // Truncated, past the rounding of the division: half done reads 50.
    const int percent = int(figures.percent + 1e-6);
    const bool active = !taskList->allAtRest();
    totalProgressBar->setValue(percent);
    totalProgressBar->setFormat(tr("Elapsed Time: %1 Remaining Time: %2 Progress: ")
                                    .arg(Utils::durationText(double(figures.elapsed / 1000)),
                                         Utils::durationText(double(std::max<qint64>(figures.remaining, 0) / 1000)))
                                + QStringLiteral("%p%"));
    // A dock shows progress only while something converts.
    taskbar.setProgressState(active ? TaskbarProgress::Normal : TaskbarProgress::NoProgress);
    if (active)
        taskbar.setProgressValue(percent, 100);
    int done = figures.finished + 1;
    if (done > figures.count)
        done = figures.finished;
    if (totalProgressBar->isVisible()) {
        const QString title = QStringLiteral("%1% - %2/%3 - %4")
                                  .arg(percent)
                                  .arg(done)
                                  .arg(figures.count)
                                  .arg(WindowTitleText());
        setWindowTitle(title);
        titleLabel->setText(title);
    }
}
