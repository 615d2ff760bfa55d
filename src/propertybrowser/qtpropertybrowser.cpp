#include "qtpropertybrowser.h"

QtProperty::QtProperty(QtAbstractPropertyManager *owner)
    : manager(owner)
{
}

QtProperty::~QtProperty()
{
    for (QtProperty *parent : std::as_const(parents))
        parent->children.removeAll(this);
    for (QtProperty *child : std::as_const(children))
        child->parents.removeAll(this);
    manager->destroyed(this);
}

bool QtProperty::hasValue() const
{
    return manager->hasValue(this);
}

QString QtProperty::valueText() const
{
    return manager->valueText(this);
}

void QtProperty::propertyChanged()
{
    emit manager->propertyChanged(this);
}

void QtProperty::setPropertyName(const QString &text)
{
    if (name != text) {
        name = text;
        propertyChanged();
    }
}

void QtProperty::setToolTip(const QString &text)
{
    if (tip != text) {
        tip = text;
        propertyChanged();
    }
}

void QtProperty::setWhatsThis(const QString &text)
{
    if (help != text) {
        help = text;
        propertyChanged();
    }
}

void QtProperty::setEnabled(bool enable)
{
    if (enabled != enable) {
        enabled = enable;
        propertyChanged();
    }
}

void QtProperty::setModified(bool modify)
{
    if (modified != modify) {
        modified = modify;
        propertyChanged();
    }
}

void QtProperty::addSubProperty(QtProperty *property)
{
    insertSubProperty(property, children.isEmpty() ? nullptr : children.last());
}

void QtProperty::insertSubProperty(QtProperty *property, QtProperty *after)
{
    if (!property || property == this || children.contains(property))
        return;
    // No loops: a row can't hold one of the rows above it.
    QList<QtProperty *> above = parents;
    while (!above.isEmpty()) {
        QtProperty *p = above.takeFirst();
        if (p == property)
            return;
        above += p->parents;
    }
    const int at = after ? int(children.indexOf(after)) + 1 : 0;
    children.insert(at, property);
    property->parents.append(this);
    emit manager->propertyInserted(property, this, at > 0 ? children.at(at - 1) : nullptr);
}

void QtProperty::removeSubProperty(QtProperty *property)
{
    if (children.removeAll(property) == 0)
        return;
    property->parents.removeAll(this);
    emit manager->propertyRemoved(property, this);
}

QtAbstractPropertyManager::QtAbstractPropertyManager(QObject *parent)
    : QObject(parent)
{
}

QtAbstractPropertyManager::~QtAbstractPropertyManager()
{
    clear();
}

void QtAbstractPropertyManager::clear() const
{
    while (!owned.isEmpty())
        delete *owned.cbegin();
}

QtProperty *QtAbstractPropertyManager::addProperty(const QString &name)
{
    QtProperty *property = createProperty();
    if (property) {
        property->setPropertyName(name);
        owned.insert(property);
        initializeProperty(property);
    }
    return property;
}

void QtAbstractPropertyManager::destroyed(QtProperty *property)
{
    if (!owned.remove(property))
        return;
    emit propertyDestroyed(property);
    uninitializeProperty(property);
}

bool QtAbstractPropertyManager::hasValue(const QtProperty *) const
{
    return true;
}

QString QtAbstractPropertyManager::valueText(const QtProperty *) const
{
    return QString();
}

void QtAbstractPropertyManager::uninitializeProperty(QtProperty *)
{
}

QtProperty *QtAbstractPropertyManager::createProperty()
{
    return new QtProperty(this);
}
