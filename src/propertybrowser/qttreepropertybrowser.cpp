#include "qttreepropertybrowser.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

QtTreePropertyBrowser::QtTreePropertyBrowser(QWidget *parent)
    : QWidget(parent), tree(new QTreeWidget(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tree);
    setFocusProxy(tree);
    tree->setColumnCount(2);
    tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree->header()->setSectionsMovable(false);
    tree->header()->setStretchLastSection(true);
    tree->installEventFilter(this);
    tree->viewport()->installEventFilter(this);
    connect(tree, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem *row) { rowChanged(row); });
    retranslate();
}

QtTreePropertyBrowser::~QtTreePropertyBrowser()
{
    // Whoever listens may be half gone already.
    blockSignals(true);
    const QSignalBlocker blocker(tree);
    clear();
}

void QtTreePropertyBrowser::watchManager(QtAbstractPropertyManager *manager)
{
    if (watched.contains(manager))
        return;
    watched.insert(manager);
    connect(manager, &QtAbstractPropertyManager::propertyInserted, this,
            &QtTreePropertyBrowser::propertyInserted);
    connect(manager, &QtAbstractPropertyManager::propertyRemoved, this,
            &QtTreePropertyBrowser::propertyRemoved);
    connect(manager, &QtAbstractPropertyManager::propertyChanged, this,
            &QtTreePropertyBrowser::propertyChanged);
    connect(manager, &QtAbstractPropertyManager::propertyDestroyed, this,
            [this](QtProperty *property) { removeProperty(property); });
    connect(manager, &QObject::destroyed, this, [this, manager] {
        watched.remove(manager);
        factories.remove(manager);
    });
}

QtBrowserItem *QtTreePropertyBrowser::addProperty(QtProperty *property)
{
    if (!property || topProperties.contains(property))
        return nullptr;
    watchManager(property->propertyManager());
    topProperties.append(property);
    return insertItem(property, nullptr, int(topItems.size()));
}

void QtTreePropertyBrowser::removeProperty(QtProperty *property)
{
    // Every place it stands, at the top or below another.
    const QList<QtBrowserItem *> places = itemsOf.values(property);
    for (QtBrowserItem *item : places) {
        if (rows.contains(item))
            removeItem(item);
    }
    topProperties.removeAll(property);
}

void QtTreePropertyBrowser::clear()
{
    const QList<QtBrowserItem *> top = topItems;
    for (QtBrowserItem *item : top)
        removeItem(item);
    topProperties.clear();
}

QList<QtBrowserItem *> QtTreePropertyBrowser::topLevelItems() const
{
    return topItems;
}

QList<QtBrowserItem *> QtTreePropertyBrowser::items(QtProperty *property) const
{
    return itemsOf.values(property);
}

QtBrowserItem *QtTreePropertyBrowser::insertItem(QtProperty *property, QtBrowserItem *parent,
                                                 int position)
{
    auto *item = new QtBrowserItem(this, property, parent);
    auto *row = new QTreeWidgetItem;
    if (parent) {
        parent->below.insert(position, item);
        rows.value(parent)->insertChild(position, row);
    } else {
        topItems.insert(position, item);
        tree->insertTopLevelItem(position, row);
    }
    rows.insert(item, row);
    itemOfRow.insert(row, item);
    itemsOf.insert(property, item);
    updateRow(item);
    const QList<QtProperty *> children = property->subProperties();
    for (int i = 0; i < children.size(); ++i)
        insertItem(children[i], item, i);
    row->setExpanded(true);
    return item;
}

void QtTreePropertyBrowser::removeItem(QtBrowserItem *item)
{
    ++removing;
    const QList<QtBrowserItem *> children = item->below;
    for (QtBrowserItem *child : children)
        removeItem(child);
    if (item == current) {
        closeEditor();
        current = nullptr;
    }
    QTreeWidgetItem *row = rows.take(item);
    itemOfRow.remove(row);
    itemsOf.remove(item->prop, item);
    if (item->up)
        item->up->below.removeAll(item);
    else
        topItems.removeAll(item);
    delete row;
    delete item;
    --removing;
}

void QtTreePropertyBrowser::updateRow(QtBrowserItem *item)
{
    QTreeWidgetItem *row = rows.value(item);
    QtProperty *property = item->prop;
    const bool value = property->hasValue();
    row->setText(0, property->propertyName());
    row->setText(1, value ? property->valueText() : QString());
    row->setData(0, Qt::AccessibleTextRole, property->propertyName());
    row->setData(1, Qt::AccessibleTextRole, value ? property->valueText() : QString());
    for (int column : {0, 1}) {
        QFont font = row->font(column);
        // A value changed from its default shows in bold.
        font.setBold(property->isModified() || (!value && markGroups));
        row->setFont(column, font);
        row->setToolTip(column, property->toolTip());
        row->setWhatsThis(column, property->whatsThis());
    }
    row->setDisabled(!property->isEnabled());
    row->setFirstColumnSpanned(!value && markGroups);
    if (!value && markGroups) {
        QColor band = tree->palette().color(QPalette::Text);
        band.setAlpha(28);
        row->setBackground(0, band);
    }
    if (item == current && editor && !property->isEnabled())
        closeEditor();
}

void QtTreePropertyBrowser::propertyInserted(QtProperty *property, QtProperty *parent,
                                             QtProperty *after)
{
    const QList<QtBrowserItem *> places = itemsOf.values(parent);
    for (QtBrowserItem *place : places) {
        int position = 0;
        for (int i = 0; i < place->below.size(); ++i) {
            if (place->below[i]->prop == after)
                position = i + 1;
        }
        insertItem(property, place, position);
    }
}

void QtTreePropertyBrowser::propertyRemoved(QtProperty *property, QtProperty *parent)
{
    const QList<QtBrowserItem *> places = itemsOf.values(parent);
    for (QtBrowserItem *place : places) {
        const QList<QtBrowserItem *> children = place->below;
        for (QtBrowserItem *child : children) {
            if (child->prop == property)
                removeItem(child);
        }
    }
}

void QtTreePropertyBrowser::propertyChanged(QtProperty *property)
{
    const QList<QtBrowserItem *> places = itemsOf.values(property);
    for (QtBrowserItem *item : places)
        updateRow(item);
}

void QtTreePropertyBrowser::closeEditor()
{
    if (!editor)
        return;
    QPointer<QWidget> closing = editor;
    editor = nullptr;
    if (current && rows.contains(current))
        tree->removeItemWidget(rows.value(current), 1);
    // Gone now, not when the loop comes round: a value typed into it was
    // taken when it lost the focus.
    delete closing.data();
}

void QtTreePropertyBrowser::rowChanged(QTreeWidgetItem *row)
{
    closeEditor();
    current = itemOfRow.value(row);
    emit currentItemChanged(current);
    // While rows go, the row that becomes current waits for a real choice.
    if (!current || removing > 0)
        return;
    QtProperty *property = current->prop;
    QtAbstractEditorFactoryBase *factory = factories.value(property->propertyManager());
    if (!factory || !property->isEnabled() || !property->hasValue())
        return;
    editor = factory->createEditor(property, tree->viewport());
    if (!editor)
        return;
    editor->setAutoFillBackground(true);
    editor->installEventFilter(this);
    for (QObject *child : editor->findChildren<QWidget *>())
        child->installEventFilter(this);
    tree->setItemWidget(row, 1, editor);
}

void QtTreePropertyBrowser::setCurrentItem(QtBrowserItem *item)
{
    tree->setCurrentItem(item ? rows.value(item) : nullptr);
}

void QtTreePropertyBrowser::editItem(QtBrowserItem *item)
{
    setCurrentItem(item);
    if (editor)
        editor->setFocus(Qt::OtherFocusReason);
}

void QtTreePropertyBrowser::setExpanded(QtBrowserItem *item, bool expanded)
{
    if (QTreeWidgetItem *row = rows.value(item))
        row->setExpanded(expanded);
}

bool QtTreePropertyBrowser::isExpanded(QtBrowserItem *item) const
{
    const QTreeWidgetItem *row = rows.value(item);
    return row && row->isExpanded();
}

void QtTreePropertyBrowser::setPropertiesWithoutValueMarked(bool mark)
{
    markGroups = mark;
    for (QtBrowserItem *item : rows.keys())
        updateRow(item);
}

void QtTreePropertyBrowser::setRootIsDecorated(bool decorated)
{
    tree->setRootIsDecorated(decorated);
}

void QtTreePropertyBrowser::setAlternatingRowColors(bool alternate)
{
    tree->setAlternatingRowColors(alternate);
}

void QtTreePropertyBrowser::setResizeMode(ResizeMode mode)
{
    const QHeaderView::ResizeMode modes[] = {QHeaderView::Interactive, QHeaderView::Stretch,
                                             QHeaderView::Fixed, QHeaderView::ResizeToContents};
    tree->header()->setSectionResizeMode(0, modes[mode]);
}

void QtTreePropertyBrowser::setSplitterPosition(int position)
{
    tree->header()->resizeSection(0, position);
}

int QtTreePropertyBrowser::splitterPosition() const
{
    return tree->header()->sectionSize(0);
}

void QtTreePropertyBrowser::retranslate()
{
    tree->setHeaderLabels({tr("Property"), tr("Value")});
    tree->setAccessibleName(tr("Properties"));
}

void QtTreePropertyBrowser::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

bool QtTreePropertyBrowser::eventFilter(QObject *watchedObject, QEvent *event)
{
    if (watchedObject == tree->viewport() && event->type() == QEvent::MouseButtonPress) {
        // A click on a value opens its editor for typing at once.
        const QPoint at = static_cast<QMouseEvent *>(event)->position().toPoint();
        if (tree->columnAt(at.x()) == 1) {
            QTreeWidgetItem *row = tree->itemAt(at);
            QTimer::singleShot(0, this, [this, row] {
                if (editor && current && rows.value(current) == row)
                    editor->setFocus(Qt::MouseFocusReason);
            });
        }
    } else if (watchedObject == tree && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (editor && (key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter
                       || key == Qt::Key_Space)) {
            editor->setFocus(Qt::OtherFocusReason);
            if (auto *combo = qobject_cast<QComboBox *>(editor); combo && !combo->isEditable())
                combo->showPopup();
            return true;
        }
    } else if (event->type() == QEvent::KeyPress
               && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        // Escape in an editor takes back what was typed and gives the rows the keys again.
        QTimer::singleShot(0, tree, [this] { tree->setFocus(Qt::OtherFocusReason); });
    }
    return QWidget::eventFilter(watchedObject, event);
}
