#pragma once

#include "task.h"

class TaskList;

// Remaining-time arithmetic over the tasks' stopwatches and progress. Holds
// no data of its own: the window tells it each state change, and it keeps
// the list's batch timer.
class TimeTracker
{
public:
    struct BatchFigures
    {
        qint64 elapsed = 0;   // ms of wall-clock time while any task ran
        qint64 remaining = 0; // ms; 0 when there is no figure yet
        double percent = 0.0;
        int count = 0;
        int finished = 0;
    };

    // Starts, pauses or clears the task's stopwatch for its new state, and
    // moves the batch timer on.
    static void stateChanged(TaskList &taskList, int taskId, Task::EState state);
    // Ms left for one task, or -1 while it has done a second or less.
    static qint64 remainingMs(const Task &task);
    // Figures over every task out of Idle. False when there is no remaining
    // time yet (a second or less done, or no run timed); the other figures
    // are set anyway.
    // The remaining time plays the rest out on as many encoders as hold a
    // task now, at the pace an encoder has kept so far.
    static bool batchFigures(const TaskList &taskList, BatchFigures *figures);
};
