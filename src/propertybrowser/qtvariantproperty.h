#pragma once

#include "qtpropertybrowser.h"

#include <QMap>
#include <QVariant>

class QComboBox;
class QLineEdit;

class QtVariantPropertyManager;

class QtVariantProperty : public QtProperty
{
public:
    QVariant value() const;
    void setValue(const QVariant &value);
    QVariant attributeValue(const QString &attribute) const;
    void setAttribute(const QString &attribute, const QVariant &value);
    int propertyType() const;

private:
    friend class QtVariantPropertyManager;
    explicit QtVariantProperty(QtVariantPropertyManager *manager);
    QtVariantPropertyManager *variantManager;
};

// Properties of a few kinds, by type: text (QMetaType::QString), a choice
// among names (enumTypeId(), names in the attribute "enumNames", the value
// their index) and groups that only hold other rows (groupTypeId()).
class QtVariantPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT

public:
    explicit QtVariantPropertyManager(QObject *parent = nullptr);
    ~QtVariantPropertyManager() override;

    static int enumTypeId();
    static int groupTypeId();

    QtVariantProperty *addProperty(int propertyType, const QString &name = QString());
    int propertyType(const QtProperty *property) const;
    QVariant value(const QtProperty *property) const;
    QVariant attributeValue(const QtProperty *property, const QString &attribute) const;

public slots:
    void setValue(QtProperty *property, const QVariant &value);
    void setAttribute(QtProperty *property, const QString &attribute, const QVariant &value);

signals:
    void valueChanged(QtProperty *property, const QVariant &value);
    void attributeChanged(QtProperty *property, const QString &attribute, const QVariant &value);

protected:
    bool hasValue(const QtProperty *property) const override;
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;
    QtProperty *createProperty() override;

private:
    struct Data
    {
        int type = 0;
        QVariant value;
        QStringList names;
    };
    QMap<const QtProperty *, Data> data;
    int typeToCreate = 0;
};

// Editors for the variant manager's properties: a line for text, a drop-down
// for a choice.
class QtVariantEditorFactory : public QtAbstractEditorFactory<QtVariantPropertyManager>
{
    Q_OBJECT

public:
    explicit QtVariantEditorFactory(QObject *parent = nullptr);
    ~QtVariantEditorFactory() override;

protected:
    void connectPropertyManager(QtVariantPropertyManager *manager) override;
    QWidget *createEditor(QtVariantPropertyManager *manager, QtProperty *property,
                          QWidget *parent) override;
    void disconnectPropertyManager(QtVariantPropertyManager *manager) override;

private:
    void valueChanged(QtProperty *property, const QVariant &value);
    void attributeChanged(QtProperty *property);
    void fillCombo(QComboBox *combo, QtVariantPropertyManager *manager, QtProperty *property);
    QMultiMap<QtProperty *, QWidget *> editors;
};
