#include "timetracker.h"

#include "tasklist.h"

#include <algorithm>
#include <vector>

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
    // The caller may tell the state before it stores it.
    int running = 0;
    bool allIdle = true;
    for (int i = 0; i < taskList.count(); ++i) {
        const Task *each = taskList.at(i);
        const Task::EState now = each == task ? state : each->state;
        running += now == Task::Running ? 1 : 0;
        allIdle = allIdle && now == Task::Idle;
    }
    if (allIdle)
        taskList.batchTimer.reset();
    else
        taskList.batchTimer.setRunning(running);
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
    double totalSeconds = 0.0;
    double doneSeconds = 0.0;
    // Seconds left of the tasks that hold an encoder, then of those that
    // wait for one, in the order they will start.
    std::vector<double> encoders, queued;
    for (int i = 0; i < taskList.count(); ++i) {
        const Task *task = taskList.at(i);
        if (task->state == Task::Idle)
            continue;
        // A failed task only ever needed what it did; a finished one did all;
        // a waiting one's length is fixed at its start, its trim tells it till then.
        const double total = task->state == Task::Failed    ? task->progress
                             : task->state == Task::Waiting ? task->trimmedDuration()
                                                            : task->convertDuration();
        totalSeconds += total;
        doneSeconds += task->state == Task::Succeed   ? task->convertDuration()
                       : task->state == Task::Waiting ? 0.0
                                                      : task->progress;
        ++result.count;
        if (task->state == Task::Succeed || task->state == Task::Failed)
            ++result.finished;
        // Any progress of a waiting task is from an earlier run.
        if (task->state == Task::Waiting)
            queued.push_back(double(qint64(task->trimmedDuration())));
        const double left = std::max(double(qint64(task->convertDuration())) - task->progress, 0.0);
        if (task->state == Task::Running || task->state == Task::Paused)
            encoders.push_back(left);
        else if (task->state == Task::Pending)
            queued.push_back(left);
    }
    if (totalSeconds > 0.0)
        result.percent = std::min(doneSeconds * 100.0 / totalSeconds, 100.0);
    result.elapsed = taskList.batchTimer.wallMs();
    const qint64 encoderMs = taskList.batchTimer.encoderMs();
    const bool known = doneSeconds > 1.0 && encoderMs > 0;
    if (known) {
        // Each waiting task goes to the encoder that is free first; the batch
        // ends with the last encoder.
        if (encoders.empty())
            encoders.push_back(0.0);
        for (double left : queued)
            *std::min_element(encoders.begin(), encoders.end()) += left;
        const double last = *std::max_element(encoders.begin(), encoders.end());
        result.remaining = qint64(last * double(encoderMs) / doneSeconds);
    }
    if (figures)
        *figures = result;
    return known;
}
