#include "qtvariantproperty.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

// Escape puts the stored text back and leaves the editor.
class TextEditor : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
    QString stored;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Escape) {
            setText(stored);
            if (parentWidget())
                parentWidget()->setFocus();
            event->accept();
            return;
        }
        QLineEdit::keyPressEvent(event);
    }
};

} // namespace

QtVariantProperty::QtVariantProperty(QtVariantPropertyManager *manager)
    : QtProperty(manager), variantManager(manager)
{
}

QVariant QtVariantProperty::value() const
{
    return variantManager->value(this);
}

void QtVariantProperty::setValue(const QVariant &value)
{
    variantManager->setValue(this, value);
}

QVariant QtVariantProperty::attributeValue(const QString &attribute) const
{
    return variantManager->attributeValue(this, attribute);
}

void QtVariantProperty::setAttribute(const QString &attribute, const QVariant &value)
{
    variantManager->setAttribute(this, attribute, value);
}

int QtVariantProperty::propertyType() const
{
    return variantManager->propertyType(this);
}

QtVariantPropertyManager::QtVariantPropertyManager(QObject *parent)
    : QtAbstractPropertyManager(parent)
{
}

QtVariantPropertyManager::~QtVariantPropertyManager()
{
    clear();
}

int QtVariantPropertyManager::enumTypeId()
{
    return QMetaType::User + 1;
}

int QtVariantPropertyManager::groupTypeId()
{
    return QMetaType::User + 2;
}

QtVariantProperty *QtVariantPropertyManager::addProperty(int propertyType, const QString &name)
{
    if (propertyType != QMetaType::QString && propertyType != enumTypeId()
        && propertyType != groupTypeId())
        return nullptr;
    typeToCreate = propertyType;
    return static_cast<QtVariantProperty *>(QtAbstractPropertyManager::addProperty(name));
}

QtProperty *QtVariantPropertyManager::createProperty()
{
    return new QtVariantProperty(this);
}

void QtVariantPropertyManager::initializeProperty(QtProperty *property)
{
    Data entry;
    entry.type = typeToCreate;
    entry.value = typeToCreate == QMetaType::QString ? QVariant(QString())
                  : typeToCreate == enumTypeId()    ? QVariant(-1)
                                                    : QVariant();
    data.insert(property, entry);
}

void QtVariantPropertyManager::uninitializeProperty(QtProperty *property)
{
    data.remove(property);
}

int QtVariantPropertyManager::propertyType(const QtProperty *property) const
{
    return data.value(property).type;
}

QVariant QtVariantPropertyManager::value(const QtProperty *property) const
{
    return data.value(property).value;
}

QVariant QtVariantPropertyManager::attributeValue(const QtProperty *property,
                                                  const QString &attribute) const
{
    if (attribute == QLatin1String("enumNames") && data.value(property).type == enumTypeId())
        return data.value(property).names;
    return QVariant();
}

bool QtVariantPropertyManager::hasValue(const QtProperty *property) const
{
    return data.value(property).type != groupTypeId();
}

QString QtVariantPropertyManager::valueText(const QtProperty *property) const
{
    const Data entry = data.value(property);
    if (entry.type == enumTypeId())
        return entry.names.value(entry.value.toInt());
    return entry.value.toString();
}

void QtVariantPropertyManager::setValue(QtProperty *property, const QVariant &value)
{
    const auto it = data.find(property);
    if (it == data.end() || it->type == groupTypeId())
        return;
    QVariant fitted;
    if (it->type == enumTypeId()) {
        // An index that names nothing is ignored.
        const int index = value.toInt();
        if (index < 0 || index >= it->names.size())
            return;
        fitted = index;
    } else {
        fitted = value.toString();
    }
    if (fitted == it->value)
        return;
    it->value = fitted;
    emit propertyChanged(property);
    emit valueChanged(property, fitted);
}

void QtVariantPropertyManager::setAttribute(QtProperty *property, const QString &attribute,
                                            const QVariant &value)
{
    const auto it = data.find(property);
    if (it == data.end() || it->type != enumTypeId() || attribute != QLatin1String("enumNames"))
        return;
    const QStringList names = value.toStringList();
    if (names == it->names)
        return;
    it->names = names;
    emit attributeChanged(property, attribute, names);
    // A choice outside the new names falls to the first.
    const int index = it->value.toInt();
    if (index < 0 || index >= names.size()) {
        it->value = names.isEmpty() ? -1 : 0;
        emit valueChanged(property, it->value);
    }
    emit propertyChanged(property);
}

QtVariantEditorFactory::QtVariantEditorFactory(QObject *parent)
    : QtAbstractEditorFactory<QtVariantPropertyManager>(parent)
{
}

QtVariantEditorFactory::~QtVariantEditorFactory()
{
    const QList<QWidget *> open = editors.values();
    editors.clear();
    qDeleteAll(open);
}

void QtVariantEditorFactory::connectPropertyManager(QtVariantPropertyManager *manager)
{
    connect(manager, &QtVariantPropertyManager::valueChanged, this,
            &QtVariantEditorFactory::valueChanged);
    connect(manager, &QtVariantPropertyManager::attributeChanged, this,
            [this](QtProperty *property) { attributeChanged(property); });
}

void QtVariantEditorFactory::disconnectPropertyManager(QtVariantPropertyManager *manager)
{
    disconnect(manager, nullptr, this, nullptr);
}

void QtVariantEditorFactory::fillCombo(QComboBox *combo, QtVariantPropertyManager *manager,
                                       QtProperty *property)
{
    const QSignalBlocker blocker(combo);
    combo->clear();
    combo->addItems(manager->attributeValue(property, QStringLiteral("enumNames")).toStringList());
    combo->setCurrentIndex(manager->value(property).toInt());
}

QWidget *QtVariantEditorFactory::createEditor(QtVariantPropertyManager *manager,
                                              QtProperty *property, QWidget *parent)
{
    QWidget *editor = nullptr;
    const int type = manager->propertyType(property);
    if (type == QMetaType::QString) {
        auto *line = new TextEditor(parent);
        line->stored = manager->value(property).toString();
        line->setText(line->stored);
        connect(line, &QLineEdit::editingFinished, this, [manager, property, line] {
            manager->setValue(property, line->text());
        });
        editor = line;
    } else if (type == QtVariantPropertyManager::enumTypeId()) {
        auto *combo = new QComboBox(parent);
        fillCombo(combo, manager, property);
        connect(combo, qOverload<int>(&QComboBox::activated), this,
                [manager, property](int index) { manager->setValue(property, index); });
        editor = combo;
    }
    if (!editor)
        return nullptr;
    editor->setAccessibleName(property->propertyName());
    editors.insert(property, editor);
    connect(editor, &QObject::destroyed, this, [this, property, editor] {
        editors.remove(property, editor);
    });
    return editor;
}

void QtVariantEditorFactory::valueChanged(QtProperty *property, const QVariant &value)
{
    for (QWidget *editor : editors.values(property)) {
        if (auto *line = dynamic_cast<TextEditor *>(editor)) {
            line->stored = value.toString();
            if (line->text() != line->stored)
                line->setText(line->stored);
        } else if (auto *combo = qobject_cast<QComboBox *>(editor)) {
            const QSignalBlocker blocker(combo);
            combo->setCurrentIndex(value.toInt());
        }
    }
}

void QtVariantEditorFactory::attributeChanged(QtProperty *property)
{
    auto *manager = qobject_cast<QtVariantPropertyManager *>(property->propertyManager());
    for (QWidget *editor : editors.values(property)) {
        if (auto *combo = qobject_cast<QComboBox *>(editor))
            fillCombo(combo, manager, property);
    }
}
