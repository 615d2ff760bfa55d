// Rows leaving the list and moving in it, from the Edit menu or a row's own
// buttons; the tree and the task list change together.

#include "cmainwnd.h"

#include "customitemwidget.h"
#include "tasklist.h"
#include "tasktreeops.h"

#include <QAction>
#include <QTreeWidget>

void CMainWnd::RemoveRow(QTreeWidgetItem *item)
{
    const int taskId = TaskTreeOps::taskIdOf(item);
    QTreeWidgetItem *parent = item->parent();
    switch (TaskTreeOps::kindOf(item)) {
    case RowDisc:
        for (int i = 0; i < item->childCount(); ++i)
            taskList->remove(TaskTreeOps::taskIdOf(item->child(i)));
        delete item;
        break;
    case RowChild: {
        const int position = parent->indexOfChild(item);
        delete item;
        if (parent->childCount() > 0) {
            if (Task *merged = taskList->byId(taskId))
                merged->removeItem(position);
            if (CustomItemWidget *row = rowFace(parent))
                row->refresh();
        } else {
            delete parent;
            taskList->remove(taskId);
        }
        break;
    }
    default:
        delete item;
        // A disc's last title takes its disc row along.
        if (parent && parent->childCount() == 0)
            delete parent;
        taskList->remove(taskId);
    }
}

void CMainWnd::on_actionRemove_Selected_Item_s_triggered()
{
    if (!TaskTreeOps::AllSelected(treeTask, [](const QTreeWidgetItem *row) {
            return TaskTreeOps::instance().CanRemove(row);
        }))
        return;
    if (playing)
        stopPreview();
    // Ids, not items: a row may go with its parent before its turn. A disc
    // row has no task: it goes first, by its item.
    QList<QPair<int, int>> rows;
    QList<QTreeWidgetItem *> discs;
    for (QTreeWidgetItem *item : treeTask->selectedItems()) {
        const RowKind kind = TaskTreeOps::kindOf(item);
        if (kind == RowDisc)
            discs << item;
        else
            rows << qMakePair(TaskTreeOps::taskIdOf(item), kind == RowChild ? TaskTreeOps::childIdOf(item) : -1);
    }
    for (QTreeWidgetItem *disc : std::as_const(discs))
        RemoveRow(disc);
    for (const auto &[taskId, childId] : std::as_const(rows))
        if (QTreeWidgetItem *item = itemOf(taskId, childId))
            RemoveRow(item);
    afterRemoval();
}

void CMainWnd::afterRemoval()
{
    if (treeTask->topLevelItemCount() == 0) {
        ResetToEmpty();
        return;
    }
    treeTask->setCurrentItem(treeTask->topLevelItem(0));
    makeVisibleRowFaces();
    UpdateStartButton();
}

void CMainWnd::removeRowOf(QTreeWidgetItem *item)
{
    // The row's own close button; its widget goes later, with the item.
    if (!TaskTreeOps::instance().CanRemove(item))
        return;
    if (playing)
        stopPreview();
    RemoveRow(item);
    afterRemoval();
}

void CMainWnd::MoveRow(QTreeWidgetItem *item, int step)
{
    QTreeWidgetItem *parent = item->parent();
    const int position = parent ? parent->indexOfChild(item) : treeTask->indexOfTopLevelItem(item);
    const int count = parent ? parent->childCount() : treeTask->topLevelItemCount();
    if (position + step < 0 || position + step >= count)
        return;
    const bool selected = item->isSelected();
    const bool current = treeTask->currentItem() == item;
    const bool expanded = item->isExpanded();
    const int taskId = TaskTreeOps::taskIdOf(item);
    if (parent) {
        parent->takeChild(position);
        parent->insertChild(position + step, item);
        if (TaskTreeOps::kindOf(parent) == RowDisc)
            step < 0 ? taskList->moveTaskUp(taskId) : taskList->moveTaskDown(taskId);
        else if (Task *merged = taskList->byId(taskId))
            step < 0 ? merged->moveItemUp(position) : merged->moveItemDown(position);
        if (CustomItemWidget *row = rowFace(parent))
            row->refresh();
    } else {
        treeTask->takeTopLevelItem(position);
        treeTask->insertTopLevelItem(position + step, item);
        // Only disc groups change places in the queue's order.
        step < 0 ? taskList->moveRangeUp(position) : taskList->moveRangeDown(position);
    }
    // Taking the item out destroyed its row widgets; they come back in view.
    item->setExpanded(expanded);
    if (current)
        treeTask->setCurrentItem(item);
    item->setSelected(selected);
    makeVisibleRowFaces();
}

void CMainWnd::moveSelected(int step)
{
    QList<QTreeWidgetItem *> rows = treeTask->selectedItems();
    if (rows.isEmpty())
        return;
    // Nearest the edge first, so that the rows keep their order.
    std::sort(rows.begin(), rows.end(), [this, step](QTreeWidgetItem *a, QTreeWidgetItem *b) {
        const QModelIndex x = treeTask->indexFromItem(a), y = treeTask->indexFromItem(b);
        return step < 0 ? x.row() < y.row() : x.row() > y.row();
    });
    for (QTreeWidgetItem *item : std::as_const(rows))
        MoveRow(item, step);
    treeTask->scrollToItem(rows.first());
}

void CMainWnd::on_actionMove_Up_triggered()
{
    if (TaskTreeOps::CanMoveUp(treeTask))
        moveSelected(-1);
}

void CMainWnd::on_actionMove_Down_triggered()
{
    if (TaskTreeOps::CanMoveDown(treeTask))
        moveSelected(1);
}

void CMainWnd::on_actionTop_triggered()
{
    treeTask->setUpdatesEnabled(false);
    while (TaskTreeOps::CanMoveUp(treeTask))
        moveSelected(-1);
    treeTask->setUpdatesEnabled(true);
}

void CMainWnd::on_actionBottom_triggered()
{
    treeTask->setUpdatesEnabled(false);
    while (TaskTreeOps::CanMoveDown(treeTask))
        moveSelected(1);
    treeTask->setUpdatesEnabled(true);
}
