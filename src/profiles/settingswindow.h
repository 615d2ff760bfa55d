#pragma once

#include "qxdialog.h"

#include <QMap>
#include <QString>

#include <memory>

class EditableComboFactory;
class EditableComboManager;
class QComboBox;
class QtBrowserItem;
class QtProperty;
class QtTreePropertyBrowser;
class QtVariantEditorFactory;
class QtVariantPropertyManager;

namespace Ui {
class SettingDialog;
}

// The parameters of one profile document over a task's values: a Simple
// tab of three quality choices and an Advanced tree of every parameter. It
// holds no task: it reports each change by valueChanged, and values() is
// what a task gets when the profile is applied to it.
class SettingsWindow : public QxDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsWindow)

public:
    explicit SettingsWindow(QWidget *parent = nullptr);
    ~SettingsWindow() override;

    // Shows the catalogue document `file` over `values` (null: its defaults).
    void setProfile(const QString &file, const QMap<QString, QString> *values);
    void values(QMap<QString, QString> &values) const;
    QMap<QString, QString> values() const;
    // Shows a task's values in the tree that stands.
    void setValues(const QMap<QString, QString> &values);
    void setEditable(bool flag);
    QString profileFile() const { return file; }
    bool isEditable() const { return editable; }

    // The item of a quality combo that suits `value`: by height for a size,
    // else the first step the value reaches.
    static void selectNearest(QComboBox *combo, const QString &value);

signals:
    void applyToAll();
    void valueChanged(QString key, QString value);

private slots:
    void on_variantManager_valueChanged(QtProperty *property, const QVariant &value);
    void on_comboManager_valueChanged(QtProperty *property, const QString &value);
    void on_btnApplyToAll_clicked();
    void on_propertyTable_currentItemChanged(QtBrowserItem *item);
    void onSkinChanged(int index);
    void on_comboVideoSize_currentIndexChanged(int index);
    void on_comboVideoQuality_currentIndexChanged(int index);
    void on_comboAudioQuality_currentIndexChanged(int index);
    void OnSettingsValueChanged(const QString &key, const QString &value);

protected:
    void changeEvent(QEvent *event) override;

private:
    enum Kind { FreeText = 0, List = 1, OpenList = 2 };

    void buildTree(const QMap<QString, QString> *values);
    void buildSimpleTab();
    void setPropertyText(QtProperty *property, const QString &text);
    void simpleChosen(QComboBox *combo, const QString &key, int index);
    void passOn(QtProperty *property, const QString &text);

    std::unique_ptr<Ui::SettingDialog> ui;
    QtTreePropertyBrowser *propertyTable = nullptr;
    QString file;
    QtVariantEditorFactory *variantFactory = nullptr;
    QtVariantPropertyManager *variantManager = nullptr;
    EditableComboManager *comboManager = nullptr;
    EditableComboFactory *comboFactory = nullptr;
    QMap<QString, QtProperty *> keyToProperty;
    QMap<QtProperty *, QString> propertyToKey;
    QMap<QtProperty *, QString> defaultValues;
    QMap<QtProperty *, int> propertyKinds;
    QMap<QtProperty *, bool> readOnly;
    bool ready = false;
    bool editable = true;
};
