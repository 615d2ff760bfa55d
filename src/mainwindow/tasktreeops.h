#pragma once

#include <QString>

#include <functional>

class ChildTask;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;
class SettingsWindow;
class Task;
class TaskList;

// What a row of the task tree stands for.
enum RowKind { RowNormal = 0, RowMerge = 1, RowChild = 2, RowDisc = 3 };

// Item data of a row, in column 0.
enum RowRole { RoleTaskId = 32, RoleChildId = 33, RoleKind = 34, RoleDiscPath = 35 };

// The operations on rows that the window's commands rest on, and the
// snapshot and post-task choices of this run.
class TaskTreeOps
{
public:
    using Predicate = std::function<bool(const QTreeWidgetItem *)>;

    static TaskTreeOps &instance();

    QString imageType;       // of snapshots: "PNG", "BMP", "JPG" or "GIF"
    int postTaskAction = 0;  // 0 nothing, 1 shut down, 2 log off, 3 hibernate, 4 stand by, 5 exit, 6 restart
    void reloadSettings();

    // The list the rows' tasks live in; the window's.
    void setTaskList(TaskList *list) { tasks = list; }
    TaskList *taskList() const { return tasks; }

    static int taskIdOf(const QTreeWidgetItem *item);
    static int childIdOf(const QTreeWidgetItem *item);
    static RowKind kindOf(const QTreeWidgetItem *item);
    Task *taskOf(const QTreeWidgetItem *item) const;
    // The row's input: the first of a plain row, the child of a child row;
    // none for other rows.
    ChildTask *inputOf(const QTreeWidgetItem *item) const;

    bool CanRename(const QTreeWidgetItem *item) const;
    bool CanClone(const QTreeWidgetItem *item) const;
    bool CanSplit(const QTreeWidgetItem *item) const;
    bool CanRemove(const QTreeWidgetItem *item) const;
    bool CanTrim(const QTreeWidgetItem *item) const;
    bool CanEdit(const QTreeWidgetItem *item) const;
    bool CanRotate(const QTreeWidgetItem *item) const;
    bool CanConvert(const QTreeWidgetItem *item, bool onlyChecked) const;
    bool CanPause(const QTreeWidgetItem *item, bool onlyChecked) const;
    bool CanStop(const QTreeWidgetItem *item, bool onlyChecked) const;
    bool CanSetOption(const QTreeWidgetItem *item) const { return CanRename(item); }
    bool CanSetDecoder(const QTreeWidgetItem *item) const;
    bool CanApplyProfile(const QTreeWidgetItem *item) const;
    bool HasEdits(const QTreeWidgetItem *item) const;
    bool HasTrackMenu(const QTreeWidgetItem *item) const;
    bool HasFile(const QTreeWidgetItem *item, bool source) const;

    static bool OneSelected(const QTreeWidget *tree, const Predicate &p);
    static bool AllSelected(const QTreeWidget *tree, const Predicate &p);
    static bool AnySelected(const QTreeWidget *tree, const Predicate &p);
    static bool AnyRow(const QTreeWidget *tree, const Predicate &p);
    static bool CanMoveUp(const QTreeWidget *tree);
    static bool CanMoveDown(const QTreeWidget *tree);
    static bool CanMerge(const QTreeWidget *tree);

    // A new output name for `task`, cleaned of what a file name can't hold.
    // A typed name keeps the extension there was; with `wholeFileName` the
    // text's extension goes and the one of the task's profile comes. False,
    // and nothing changed, where nothing is left.
    bool SetTaskBaseName(Task *task, const QString &text, bool wholeFileName) const;
    // Gives the row's task the profile `key` (document `fileName`) with the
    // panel's values; a finished task is made ready to run again. False for
    // a row that can't take a profile now.
    bool ApplyProfile(TaskList *list, QTreeWidgetItem *item, const QString &key,
                      const QString &fileName, const SettingsWindow *panel) const;

    // Makes the style sheet apply again after a dynamic property changed.
    static void Repolish(QWidget *widget);

private:
    TaskTreeOps();
    TaskList *tasks = nullptr;
};
