#include "timetracker.h"

#include "tasklist.h"

#include <algorithm>

void TimeTracker::stateChanged(TaskList &taskList, int taskId, Task::EState state)
{
    Task *task = taskList.byId(taskId);
    if (!task)
        return;
    switch (state) {
    case Task::Idle:
        task->reset();
        break;
    case Task::Running:
        task->start();
        break;
    case Task::Paused:
    case Task::Succeed:
    case Task::Failed:
        task->pause();
        break;
    case Task::Waiting:
    case Task::Pending:
        break;
    }
}

qint64 TimeTracker::remainingMs(const Task &task)
{
    const double e = double(task.elapsedMs());
    const double T = double(qint64(task.convertDuration()));
    const double p = task.progress;
    if (p <= 1.0)
        return -1;
    return qint64(T / p * e - e);
}

bool TimeTracker::batchFigures(const TaskList &taskList, BatchFigures *figures)
{
    BatchFigures result;
    qint64 totalSeconds = 0;
    double doneSeconds = 0.0;
    for (int i = 0; i < taskList.count(); ++i) {
        const Task *task = taskList.at(i);
        if (task->state == Task::Idle)
            continue;
        result.elapsed += task->elapsedMs();
        // A failed task only ever needed what it did; a finished one did all.
        const double total = task->state == Task::Failed ? task->progress : task->convertDuration();
        totalSeconds = qint64(double(totalSeconds) + total);
        doneSeconds += task->state == Task::Succeed ? task->convertDuration() : task->progress;
        ++result.count;
        if (task->state == Task::Succeed || task->state == Task::Failed)
            ++result.finished;
    }
    if (totalSeconds > 0)
        result.percent = std::min(doneSeconds * 100.0 / double(totalSeconds), 100.0);
    const bool known = doneSeconds > 1.0;
    if (known) {
        result.remaining = qint64(double(result.elapsed) / doneSeconds * double(totalSeconds)
                                  - double(result.elapsed));
    }
    if (figures)
        *figures = result;
    return known;
}
