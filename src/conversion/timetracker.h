#pragma once

#include "task.h"

class TaskList;

// Remaining-time arithmetic over the tasks' stopwatches and progress. Holds
// no data of its own: the window tells it each state change.
class TimeTracker
{
public:
    struct BatchFigures
    {
        qint64 elapsed = 0;   // ms, summed over the tasks' stopwatches
        qint64 remaining = 0; // ms; 0 when there is no figure yet
        double percent = 0.0;
        int count = 0;
        int finished = 0;
    };

    // Starts, pauses or clears the task's stopwatch for its new state.
    static void stateChanged(TaskList &taskList, int taskId, Task::EState state);
    // Ms left for one task, or -1 while it has done a second or less.
    static qint64 remainingMs(const Task &task);
    // Figures over every task out of Idle. False when there is no remaining
    // time yet (a second or less done); the other figures are set anyway.
    static bool batchFigures(const TaskList &taskList, BatchFigures *figures);
};
