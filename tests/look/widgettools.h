#pragma once

#include <QHeaderView>
#include <QImage>
#include <QTest>
#include <QTreeWidget>
#include <QWidget>

// Shows a window and waits until the window system has it on screen.
inline bool showExposed(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowExposed(window);
}

// Clicks the value of a property tree's row; the editor that opens there.
inline QWidget *editValue(QTreeWidget *tree, QTreeWidgetItem *row)
{
    QTest::mouseClick(
        tree->viewport(), Qt::LeftButton, {},
        QPoint(tree->header()->sectionPosition(1) + 20, tree->visualItemRect(row).center().y()));
    return tree->itemWidget(row, 1);
}
