#pragma once

#include "task.h"

#include <QCoreApplication>

#include <memory>
#include <utility>
#include <vector>

class DvdTitle;
class ProfileLookup;

// All tasks of the run, in display order, with the runs of titles that came
// from one disc.
class TaskList
{
    Q_DECLARE_TR_FUNCTIONS(TaskList)

public:
    struct DiscRange
    {
        int start = 0; // positions in tasks, half-open
        int end = 0;
        bool operator==(const DiscRange &other) const
        {
            return start == other.start && end == other.end;
        }
    };

    // The catalogue answers output extensions and profile files; it must
    // outlive the list. Without one both are empty.
    explicit TaskList(const ProfileLookup *catalogue = nullptr);
    TaskList(const TaskList &) = delete;
    TaskList &operator=(const TaskList &) = delete;
    ~TaskList();

    // Each gives the new task id, or -1 when the input can't be used.
    int addFile(const QString &profileKey, const QString &path);
    int addTitle(const QString &profileKey, const DvdTitle &title, int titleNumber, int discId);
    int addMerge(const QString &profileKey);
    // A copy of the source's first input appended to the merge task; the new
    // child id, or -1.
    int addToMerge(int sourceTaskId, int mergeTaskId);
    int clone(int taskId);
    void remove(int taskId);
    void clear();

    int count() const { return int(tasks.size()); }
    // No task waits, runs or is paused; true for an empty list.
    bool allAtRest() const;
    Task *at(int position) const;
    Task *byId(int taskId) const;
    int positionOf(int taskId) const;
    Task *firstInState(Task::EState state) const;
    int moveTaskUp(int taskId);
    int moveTaskDown(int taskId);

    // Top-level rows: one per disc range, one per task outside all ranges.
    int rangeAtRow(int row) const;
    int positionAtRow(int row) const;
    void moveRangeUp(int row);
    void moveRangeDown(int row) { moveRangeUp(row + 1); }
    const std::vector<DiscRange> &ranges() const { return discRanges; }

    // "Apply to All": every other input of every task takes the ticked parts
    // of the edited input's values.
    void applyToAll(const ChildTask &edited, bool crop, bool image, bool watermark);

    void updateCommonRoot();
    QString commonRootPath() const { return commonRoot; }
    QString nextMergeName();

    // The tasks' runs as one batch, timed by TimeTracker.
    BatchTimer batchTimer;

private:
    int append(std::unique_ptr<Task> task);
    void setProfile(Task &task, const QString &profileKey) const;
    QString extensionOf(const QString &profileKey) const;

    const ProfileLookup *catalogue;
    int nextTaskId = 0;
    int mergeCount = 0;
    int lastDiscId = 0;
    std::vector<std::unique_ptr<Task>> tasks;
    std::vector<DiscRange> discRanges;
    QString commonRoot;
};
