#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

class QtAbstractPropertyManager;

// One row of a property browser: a name, a value its manager knows how to
// show, and the rows below it. Made and owned by its manager.
class QtProperty
{
public:
    virtual ~QtProperty();

    QList<QtProperty *> subProperties() const { return children; }
    QtAbstractPropertyManager *propertyManager() const { return manager; }
    QString propertyName() const { return name; }
    QString toolTip() const { return tip; }
    QString whatsThis() const { return help; }
    bool isEnabled() const { return enabled; }
    bool isModified() const { return modified; }
    bool hasValue() const;
    QString valueText() const;

    void setPropertyName(const QString &text);
    void setToolTip(const QString &text);
    void setWhatsThis(const QString &text);
    void setEnabled(bool enable);
    void setModified(bool modify);

    void addSubProperty(QtProperty *property);
    void insertSubProperty(QtProperty *property, QtProperty *after);
    void removeSubProperty(QtProperty *property);

protected:
    explicit QtProperty(QtAbstractPropertyManager *manager);
    void propertyChanged();

private:
    friend class QtAbstractPropertyManager;
    QtAbstractPropertyManager *manager;
    QList<QtProperty *> children;
    QList<QtProperty *> parents;
    QString name;
    QString tip;
    QString help;
    bool enabled = true;
    bool modified = false;
};

// Makes properties of one kind, holds their values and tells what changed.
class QtAbstractPropertyManager : public QObject
{
    Q_OBJECT

public:
    explicit QtAbstractPropertyManager(QObject *parent = nullptr);
    ~QtAbstractPropertyManager() override;

    QSet<QtProperty *> properties() const { return owned; }
    void clear() const;
    QtProperty *addProperty(const QString &name = QString());

signals:
    void propertyInserted(QtProperty *property, QtProperty *parent, QtProperty *after);
    void propertyChanged(QtProperty *property);
    void propertyRemoved(QtProperty *property, QtProperty *parent);
    void propertyDestroyed(QtProperty *property);

protected:
    virtual bool hasValue(const QtProperty *property) const;
    virtual QString valueText(const QtProperty *property) const;
    virtual void initializeProperty(QtProperty *property) = 0;
    virtual void uninitializeProperty(QtProperty *property);
    virtual QtProperty *createProperty();

private:
    friend class QtProperty;
    void destroyed(QtProperty *property);
    QSet<QtProperty *> owned;
};

// Makes the editor widget of a property of the managers it serves.
class QtAbstractEditorFactoryBase : public QObject
{
    Q_OBJECT

public:
    virtual QWidget *createEditor(QtProperty *property, QWidget *parent) = 0;

protected:
    using QObject::QObject;
};

template <class PropertyManager>
class QtAbstractEditorFactory : public QtAbstractEditorFactoryBase
{
public:
    explicit QtAbstractEditorFactory(QObject *parent = nullptr)
        : QtAbstractEditorFactoryBase(parent)
    {
    }

    QWidget *createEditor(QtProperty *property, QWidget *parent) override
    {
        for (PropertyManager *manager : std::as_const(managers)) {
            if (manager == property->propertyManager())
                return createEditor(manager, property, parent);
        }
        return nullptr;
    }

    void addPropertyManager(PropertyManager *manager)
    {
        if (managers.contains(manager))
            return;
        managers.insert(manager);
        connectPropertyManager(manager);
        connect(manager, &QObject::destroyed, this,
                [this, manager] { managers.remove(manager); });
    }

    void removePropertyManager(PropertyManager *manager)
    {
        if (managers.remove(manager))
            disconnectPropertyManager(manager);
    }

    QSet<PropertyManager *> propertyManagers() const { return managers; }

protected:
    virtual void connectPropertyManager(PropertyManager *manager) = 0;
    virtual QWidget *createEditor(PropertyManager *manager, QtProperty *property,
                                  QWidget *parent) = 0;
    virtual void disconnectPropertyManager(PropertyManager *manager) = 0;

private:
    QSet<PropertyManager *> managers;
};
