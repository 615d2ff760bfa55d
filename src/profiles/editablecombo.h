#pragma once

#include "qtpropertybrowser.h"

#include <QMap>
#include <QStringList>
#include <QWidget>

class FocusOutCombo;

// A property with a text value and a list to choose it from, for the keys
// whose value the user may also type (a size, a bit rate, a rate...).
class EditableComboManager : public QtAbstractPropertyManager
{
    Q_OBJECT

public:
    explicit EditableComboManager(QObject *parent = nullptr);
    ~EditableComboManager() override;

    QString value(const QtProperty *property) const;
    QStringList candidates(const QtProperty *property) const;

public slots:
    void setValue(QtProperty *property, const QString &value);
    void setCandidateValues(QtProperty *property, const QStringList &candidates);

signals:
    void valueChanged(QtProperty *property, QString value);
    void candidatesChanged(QtProperty *property, QStringList candidates);

protected:
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    struct Data
    {
        QString value;
        QStringList candidates;
    };
    QMap<const QtProperty *, Data> data;
};

// The editor: an editable combo whose typed text counts when the focus
// leaves it and the pattern takes it; otherwise the stored value comes back.
class EditableCombo : public QWidget
{
    Q_OBJECT

public:
    explicit EditableCombo(QWidget *parent = nullptr);

    void setValue(const QString &text);
    void setCandidates(const QStringList &list);
    void setPattern(const QString &pattern);
    FocusOutCombo *comboBox() const { return combo; }

signals:
    void textChanged(QString text);

public slots:
    void CancelInput();

private:
    FocusOutCombo *combo;
    QString value;
    QStringList candidates;
};

class EditableComboFactory : public QtAbstractEditorFactory<EditableComboManager>
{
    Q_OBJECT

public:
    explicit EditableComboFactory(QObject *parent = nullptr);
    ~EditableComboFactory() override;

    // What a typed value of this key must look like; empty: anything.
    static QString patternFor(const QString &key);
    void setPattern(QtProperty *property, const QString &pattern);

private slots:
    void slotPropertyChanged(QtProperty *property, const QString &value);
    void slotCandidatesChanged(QtProperty *property, const QStringList &candidates);
    void slotSetValue(const QString &value);
    void slotEditorDestroyed(QObject *object);

protected:
    void connectPropertyManager(EditableComboManager *manager) override;
    QWidget *createEditor(EditableComboManager *manager, QtProperty *property,
                          QWidget *parent) override;
    void disconnectPropertyManager(EditableComboManager *manager) override;

private:
    QMap<QtProperty *, QList<EditableCombo *>> editorsOf;
    QMap<EditableCombo *, QtProperty *> propertyOf;
    // The editor of a destroyed object, found without a cast.
    QMap<const QObject *, EditableCombo *> editorOfObject;
    QMap<QtProperty *, QString> patterns;
};
