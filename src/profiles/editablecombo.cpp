#include "editablecombo.h"

#include "focusoutcombo.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

EditableComboManager::EditableComboManager(QObject *parent)
    : QtAbstractPropertyManager(parent)
{
}

EditableComboManager::~EditableComboManager()
{
    clear();
}

QString EditableComboManager::value(const QtProperty *property) const
{
    return data.value(property).value;
}

QStringList EditableComboManager::candidates(const QtProperty *property) const
{
    return data.value(property).candidates;
}

void EditableComboManager::setValue(QtProperty *property, const QString &value)
{
    const auto it = data.find(property);
    if (it == data.end() || it->value == value)
        return;
    it->value = value;
    emit propertyChanged(property);
    emit valueChanged(property, value);
}

void EditableComboManager::setCandidateValues(QtProperty *property, const QStringList &candidates)
{
    const auto it = data.find(property);
    if (it == data.end() || it->candidates == candidates)
        return;
    it->candidates = candidates;
    emit candidatesChanged(property, candidates);
}

QString EditableComboManager::valueText(const QtProperty *property) const
{
    return value(property);
}

void EditableComboManager::initializeProperty(QtProperty *property)
{
    data.insert(property, Data());
}

void EditableComboManager::uninitializeProperty(QtProperty *property)
{
    data.remove(property);
}

EditableCombo::EditableCombo(QWidget *parent)
    : QWidget(parent), combo(new FocusOutCombo(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(combo);
    combo->setEditable(true);
    // Typed text is never added to the list.
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(combo);
    // A pick from the list counts at once; typing only when the focus leaves.
    connect(combo, &QComboBox::textActivated, this, &EditableCombo::textChanged);
    connect(combo, &FocusOutCombo::focusOutTextChanged, this, &EditableCombo::textChanged);
    connect(combo, &FocusOutCombo::CancelInput, this, &EditableCombo::CancelInput);
}

void EditableCombo::setValue(const QString &text)
{
    value = text;
    combo->setEditText(text);
}

void EditableCombo::setCandidates(const QStringList &list)
{
    candidates = list;
    const QSignalBlocker blocker(combo);
    combo->clear();
    combo->addItems(list);
    combo->setEditText(value);
}

void EditableCombo::setPattern(const QString &pattern)
{
    combo->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), combo));
}

void EditableCombo::CancelInput()
{
    combo->setEditText(value);
}

EditableComboFactory::EditableComboFactory(QObject *parent)
    : QtAbstractEditorFactory<EditableComboManager>(parent)
{
}

EditableComboFactory::~EditableComboFactory()
{
    const QList<EditableCombo *> open = propertyOf.keys();
    propertyOf.clear();
    editorsOf.clear();
    editorOfObject.clear();
    qDeleteAll(open);
}

QString EditableComboFactory::patternFor(const QString &key)
{
    // Sizes take "x" as well as "*": "320x240" is how most people write one.
    static const QMap<QString, QString> table = {
        {QStringLiteral("s"), QStringLiteral("[1-9][0-9]{0,3}[*x][1-9][0-9]{0,3}")},
        {QStringLiteral("b"), QStringLiteral("[1-9][0-9]{0,5}")},
        {QStringLiteral("ab"), QStringLiteral("[1-9][0-9]{0,3}")},
        {QStringLiteral("ar"), QStringLiteral("[1-9][0-9]{0,5}")},
        {QStringLiteral("r"), QStringLiteral("[1-9][0-9]{0,1}([.][0-9]{0,2})?")},
        {QStringLiteral("aspect"),
         QStringLiteral("([1-9][0-9]?[:][1-9][0-9]?)|([1-9][0-9]{0,1}([.][0-9]{0,4})?)")},
        {QStringLiteral("vol"), QStringLiteral("[1-9][0-9]{0,2}[%]")},
    };
    return table.value(key);
}

void EditableComboFactory::setPattern(QtProperty *property, const QString &pattern)
{
    patterns.insert(property, pattern);
}

void EditableComboFactory::connectPropertyManager(EditableComboManager *manager)
{
    connect(manager, &EditableComboManager::valueChanged, this,
            &EditableComboFactory::slotPropertyChanged);
    connect(manager, &EditableComboManager::candidatesChanged, this,
            &EditableComboFactory::slotCandidatesChanged);
}

void EditableComboFactory::disconnectPropertyManager(EditableComboManager *manager)
{
    disconnect(manager, nullptr, this, nullptr);
}

QWidget *EditableComboFactory::createEditor(EditableComboManager *manager, QtProperty *property,
                                            QWidget *parent)
{
    auto *editor = new EditableCombo(parent);
    editor->setValue(manager->value(property));
    editor->setCandidates(manager->candidates(property));
    editor->setAccessibleName(property->propertyName());
    editor->comboBox()->setAccessibleName(property->propertyName());
    editorsOf[property].append(editor);
    propertyOf.insert(editor, property);
    editorOfObject.insert(editor, editor);
    if (!patterns.value(property).isEmpty())
        editor->setPattern(patterns.value(property));
    connect(editor, &EditableCombo::textChanged, this, &EditableComboFactory::slotSetValue);
    connect(editor, &QObject::destroyed, this, &EditableComboFactory::slotEditorDestroyed);
    return editor;
}

void EditableComboFactory::slotPropertyChanged(QtProperty *property, const QString &value)
{
    for (EditableCombo *editor : editorsOf.value(property))
        editor->setValue(value);
}

void EditableComboFactory::slotCandidatesChanged(QtProperty *property,
                                                 const QStringList &candidates)
{
    for (EditableCombo *editor : editorsOf.value(property))
        editor->setCandidates(candidates);
}

void EditableComboFactory::slotSetValue(const QString &value)
{
    QtProperty *property = propertyOf.value(editorOfObject.value(sender()));
    if (!property)
        return;
    if (auto *manager = qobject_cast<EditableComboManager *>(property->propertyManager()))
        manager->setValue(property, value);
}

void EditableComboFactory::slotEditorDestroyed(QObject *object)
{
    EditableCombo *editor = editorOfObject.take(object);
    QtProperty *property = propertyOf.take(editor);
    if (!property)
        return;
    QList<EditableCombo *> &list = editorsOf[property];
    list.removeAll(editor);
    if (list.isEmpty())
        editorsOf.remove(property);
}
