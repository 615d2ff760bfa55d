#pragma once

#include "task.h"

#include <QList>
#include <QMap>
#include <QObject>

class CAVConverter;
class TaskList;

// Decides which tasks run: starts, suspends and stops the encoders, keeps
// at most maxProcesses of them going, in list order, and is the only writer
// of a task's state during a conversion.
class ConverterManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConverterManager)

public:
    // The list must outlive the manager.
    explicit ConverterManager(TaskList *taskList, QObject *parent = nullptr);
    ~ConverterManager() override;

    void startAll();
    void stopAll();
    void pauseAll();
    void startTask(int taskId);
    void pauseTask(int taskId);
    void stopTask(int taskId);
    void setMaxProcesses(int count);

    int maxProcessCount() const { return maxProcesses; }
    bool isBatchActive() const { return batchActive; }
    int runningCount() const { return int(running.size()); }
    // The encoder's process id for a task, 0 when it has none.
    qint64 processId(int taskId) const;

signals:
    void progressChanged(int nTaskId, double progress);
    void stateChanged(int nTaskId, Task::EState state);

public slots:
    void on_progressUpdated(int nTaskId, double progress);
    void on_convertFinished(int nTaskId, bool bSuccess);

private:
    void schedule();
    void launch(Task &task);
    void release(int taskId);
    void changeState(Task &task, Task::EState state);
    static QString logFolder();

    TaskList *tasks;
    int maxProcesses = 1;
    QMap<int, CAVConverter *> running;
    QList<CAVConverter *> idle;
    bool batchActive = false;
};
