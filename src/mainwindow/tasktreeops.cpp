#include "tasktreeops.h"

#include "childtask.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "settingswindow.h"
#include "task.h"
#include "tasklist.h"
#include "utils.h"

#include <QFile>
#include <QFileInfo>
#include <QTreeWidget>
#include <QWidget>

#include <algorithm>

namespace {

bool busy(const Task *task)
{
    return task->state == Task::Running || task->state == Task::Paused
           || task->state == Task::Pending;
}

bool queued(const Task *task)
{
    return busy(task) || task->state == Task::Waiting;
}

// The selected rows in tree order.
QList<QTreeWidgetItem *> selectedRows(const QTreeWidget *tree)
{
    QList<QTreeWidgetItem *> rows;
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(tree)); *it; ++it)
        if ((*it)->isSelected())
            rows << *it;
    return rows;
}

// The neighbour of `item` `step` rows away under the same parent.
QTreeWidgetItem *sibling(QTreeWidgetItem *item, int step)
{
    QTreeWidgetItem *parent = item->parent();
    const QTreeWidget *tree = item->treeWidget();
    const int at = parent ? parent->indexOfChild(item) + step
                          : tree->indexOfTopLevelItem(item) + step;
    const int count = parent ? parent->childCount() : tree->topLevelItemCount();
    if (at < 0 || at >= count)
        return nullptr;
    return parent ? parent->child(at) : tree->topLevelItem(at);
}

bool canMove(const QTreeWidget *tree, int step)
{
    for (QTreeWidgetItem *row : selectedRows(tree)) {
        const QTreeWidgetItem *next = sibling(row, step);
        if (next && !next->isSelected())
            return true;
    }
    return false;
}

} // namespace

TaskTreeOps::TaskTreeOps()
{
    reloadSettings();
}

TaskTreeOps &TaskTreeOps::instance()
{
    static TaskTreeOps ops;
    return ops;
}

void TaskTreeOps::reloadSettings()
{
    imageType = Setting::imageType();
    postTaskAction = Setting::action();
}

int TaskTreeOps::taskIdOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, RoleTaskId).toInt() : -1;
}

int TaskTreeOps::childIdOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, RoleChildId).toInt() : -1;
}

RowKind TaskTreeOps::kindOf(const QTreeWidgetItem *item)
{
    return item ? RowKind(item->data(0, RoleKind).toInt()) : RowNormal;
}

Task *TaskTreeOps::taskOf(const QTreeWidgetItem *item) const
{
    const int id = taskIdOf(item);
    return tasks && id >= 0 ? tasks->byId(id) : nullptr;
}

ChildTask *TaskTreeOps::inputOf(const QTreeWidgetItem *item) const
{
    const Task *task = taskOf(item);
    if (!task)
        return nullptr;
    switch (kindOf(item)) {
    case RowNormal:
        return task->item(0);
    case RowChild:
        return task->itemById(childIdOf(item));
    default:
        return nullptr;
    }
}

bool TaskTreeOps::CanRename(const QTreeWidgetItem *item) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) != RowChild && !busy(task);
}

bool TaskTreeOps::CanClone(const QTreeWidgetItem *item) const
{
    return item && kindOf(item) != RowChild && kindOf(item) != RowDisc;
}

bool TaskTreeOps::CanSplit(const QTreeWidgetItem *item) const
{
    const ChildTask *input = kindOf(item) == RowNormal ? inputOf(item) : nullptr;
    return input && !input->chapters.isEmpty();
}

bool TaskTreeOps::CanRemove(const QTreeWidgetItem *item) const
{
    if (!item)
        return false;
    if (kindOf(item) == RowDisc) {
        for (int i = 0; i < item->childCount(); ++i)
            if (!CanRemove(item->child(i)))
                return false;
        return true;
    }
    const Task *task = taskOf(item);
    return task && !busy(task);
}

bool TaskTreeOps::CanTrim(const QTreeWidgetItem *item) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) == RowNormal
           && (task->state == Task::Idle || task->state == Task::Succeed
               || task->state == Task::Failed);
}

bool TaskTreeOps::CanEdit(const QTreeWidgetItem *item) const
{
    const Task *task = taskOf(item);
    if (!task || queued(task))
        return false;
    switch (kindOf(item)) {
    case RowNormal:
        return task->hasVideoInput();
    case RowChild: {
        const ChildTask *input = inputOf(item);
        return input && input->hasVideo;
    }
    case RowMerge:
        return true;
    default:
        return false;
    }
}

bool TaskTreeOps::CanRotate(const QTreeWidgetItem *item) const
{
    return CanEdit(item) && kindOf(item) != RowMerge && kindOf(item) != RowDisc;
}

bool TaskTreeOps::CanConvert(const QTreeWidgetItem *item, bool onlyChecked) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) != RowChild && (!onlyChecked || task->checked)
           && task->state != Task::Waiting && task->state != Task::Running
           && task->state != Task::Pending;
}

bool TaskTreeOps::CanPause(const QTreeWidgetItem *item, bool onlyChecked) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) != RowChild && (!onlyChecked || task->checked)
           && (task->state == Task::Running || task->state == Task::Pending);
}

bool TaskTreeOps::CanStop(const QTreeWidgetItem *item, bool onlyChecked) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) != RowChild && (!onlyChecked || task->checked) && queued(task);
}

bool TaskTreeOps::CanSetDecoder(const QTreeWidgetItem *item) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) != RowMerge && kindOf(item) != RowDisc && !busy(task);
}

bool TaskTreeOps::CanApplyProfile(const QTreeWidgetItem *item) const
{
    const Task *task = taskOf(item);
    return task && kindOf(item) != RowChild && !queued(task);
}

bool TaskTreeOps::HasEdits(const QTreeWidgetItem *item) const
{
    if (!CanEdit(item))
        return false;
    if (kindOf(item) != RowMerge) {
        const ChildTask *input = inputOf(item);
        return input && input->edit.isEdited();
    }
    const Task *task = taskOf(item);
    for (const auto &child : task->items)
        if (child->edit.isEdited())
            return true;
    return false;
}

bool TaskTreeOps::HasTrackMenu(const QTreeWidgetItem *item) const
{
    return item && kindOf(item) != RowMerge && kindOf(item) != RowDisc;
}

bool TaskTreeOps::HasFile(const QTreeWidgetItem *item, bool source) const
{
    QString path;
    if (source) {
        if (const ChildTask *input = inputOf(item))
            path = input->sourcePath;
    } else if (kindOf(item) != RowChild) {
        if (const Task *task = taskOf(item))
            path = task->output.filePath;
    }
    return !path.isEmpty() && QFile::exists(path);
}

bool TaskTreeOps::OneSelected(const QTreeWidget *tree, const Predicate &p)
{
    const QList<QTreeWidgetItem *> rows = selectedRows(tree);
    return rows.size() == 1 && p(rows.first());
}

bool TaskTreeOps::AllSelected(const QTreeWidget *tree, const Predicate &p)
{
    const QList<QTreeWidgetItem *> rows = selectedRows(tree);
    return !rows.isEmpty() && std::all_of(rows.begin(), rows.end(), p);
}

bool TaskTreeOps::AnySelected(const QTreeWidget *tree, const Predicate &p)
{
    const QList<QTreeWidgetItem *> rows = selectedRows(tree);
    return std::any_of(rows.begin(), rows.end(), p);
}

bool TaskTreeOps::AnyRow(const QTreeWidget *tree, const Predicate &p)
{
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(tree)); *it; ++it)
        if (p(*it))
            return true;
    return false;
}

bool TaskTreeOps::CanMoveUp(const QTreeWidget *tree)
{
    return canMove(tree, -1);
}

bool TaskTreeOps::CanMoveDown(const QTreeWidget *tree)
{
    return canMove(tree, 1);
}

bool TaskTreeOps::CanMerge(const QTreeWidget *tree)
{
    const QList<QTreeWidgetItem *> rows = selectedRows(tree);
    const auto files = std::count_if(rows.begin(), rows.end(), [](const QTreeWidgetItem *row) {
        return kindOf(row) != RowDisc;
    });
    return rows.size() >= 2 && files >= 2;
}

bool TaskTreeOps::SetTaskBaseName(Task *task, const QString &text, bool wholeFileName) const
{
    if (!task)
        return false;
    const QString base
        = sanitizeFileName(wholeFileName ? QFileInfo(text).completeBaseName() : text).trimmed();
    if (base.isEmpty())
        return false;
    if (wholeFileName) {
        task->setOutputBaseName(base, *ProfileGroupLoader::instance());
        return true;
    }
    // A typed name never touches the extension.
    const QFileInfo old(task->output.fileName);
    task->setOutputBaseName(base, old.completeBaseName() == old.fileName() ? QString() : old.suffix());
    return true;
}

bool TaskTreeOps::ApplyProfile(TaskList *list, QTreeWidgetItem *item, const QString &key,
                               const QString &fileName, const SettingsWindow *panel) const
{
    if (!list || !CanApplyProfile(item))
        return false;
    Task *task = list->byId(taskIdOf(item));
    if (!task)
        return false;
    panel->values(task->output.settings);
    task->output.profileKey = key;
    task->output.profileFile = fileName;
    SetTaskBaseName(task, task->output.fileName, true);
    // A new profile makes a finished task worth running again.
    if (task->state == Task::Succeed || task->state == Task::Failed) {
        task->setChecked(true, -1);
        task->setState(Task::Idle);
    }
    return true;
}

void TaskTreeOps::Repolish(QWidget *widget)
{
    const QString sheet = widget->styleSheet();
    widget->setStyleSheet(sheet.endsWith(QLatin1String("  ")) ? sheet.trimmed()
                                                              : sheet + QLatin1Char(' '));
}
