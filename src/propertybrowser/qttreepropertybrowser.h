#pragma once

#include "qtpropertybrowser.h"

#include <QHash>
#include <QMap>
#include <QWidget>

#include <memory>
#include <vector>

class QTreeWidget;
class QTreeWidgetItem;
class QtTreePropertyBrowser;

// One appearance of a property in a browser: a property can stand at
// several places of the tree.
class QtBrowserItem
{
public:
    QtProperty *property() const { return prop; }
    QtBrowserItem *parent() const { return up; }
    QList<QtBrowserItem *> children() const { return below; }
    QtTreePropertyBrowser *browser() const { return owner; }

private:
    friend class QtTreePropertyBrowser;
    QtBrowserItem(QtTreePropertyBrowser *browser, QtProperty *property, QtBrowserItem *parent)
        : owner(browser), prop(property), up(parent)
    {
    }
    QtTreePropertyBrowser *owner;
    QtProperty *prop;
    QtBrowserItem *up;
    QList<QtBrowserItem *> below;
};

// The properties as a two-column tree, name and value. The current row gets
// its editor from the factory of its manager; moving on destroys it, so the
// managers hold the only lasting values.
class QtTreePropertyBrowser : public QWidget
{
    Q_OBJECT

public:
    enum ResizeMode { Interactive, Stretch, Fixed, ResizeToContents };

    explicit QtTreePropertyBrowser(QWidget *parent = nullptr);
    ~QtTreePropertyBrowser() override;

    template <class PropertyManager>
    void setFactoryForManager(PropertyManager *manager,
                              QtAbstractEditorFactory<PropertyManager> *factory)
    {
        factory->addPropertyManager(manager);
        factories[manager] = factory;
        watchManager(manager);
    }

    QtBrowserItem *addProperty(QtProperty *property);
    void removeProperty(QtProperty *property);
    void clear();
    QList<QtProperty *> properties() const { return topProperties; }
    QList<QtBrowserItem *> topLevelItems() const;
    QList<QtBrowserItem *> items(QtProperty *property) const;

    QtBrowserItem *currentItem() const { return current; }
    void setCurrentItem(QtBrowserItem *item);
    void editItem(QtBrowserItem *item);
    void setExpanded(QtBrowserItem *item, bool expanded);
    bool isExpanded(QtBrowserItem *item) const;

    void setPropertiesWithoutValueMarked(bool mark);
    void setRootIsDecorated(bool decorated);
    void setAlternatingRowColors(bool alternate);
    void setResizeMode(ResizeMode mode);
    void setSplitterPosition(int position);
    int splitterPosition() const;
    // The tree, for what the browser doesn't pass on.
    QTreeWidget *treeWidget() const { return tree; }

signals:
    void currentItemChanged(QtBrowserItem *item);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchManager(QtAbstractPropertyManager *manager);
    QtBrowserItem *insertItem(QtProperty *property, QtBrowserItem *parent, int position);
    void removeItem(QtBrowserItem *item);
    void updateRow(QtBrowserItem *item);
    void propertyInserted(QtProperty *property, QtProperty *parent, QtProperty *after);
    void propertyRemoved(QtProperty *property, QtProperty *parent);
    void propertyChanged(QtProperty *property);
    void rowChanged(QTreeWidgetItem *row);
    void closeEditor();
    void retranslate();

    QTreeWidget *tree;
    QList<QtProperty *> topProperties;
    QList<QtBrowserItem *> topItems;
    QHash<QtBrowserItem *, QTreeWidgetItem *> rows;
    QHash<QTreeWidgetItem *, QtBrowserItem *> itemOfRow;
    QMultiHash<QtProperty *, QtBrowserItem *> itemsOf;
    QHash<QtAbstractPropertyManager *, QtAbstractEditorFactoryBase *> factories;
    QSet<QtAbstractPropertyManager *> watched;
    QtBrowserItem *current = nullptr;
    QWidget *editor = nullptr;
    bool markGroups = false;
    int removing = 0;
};
