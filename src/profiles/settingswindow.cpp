#include "settingswindow.h"

#include "captiontable.h"
#include "editablecombo.h"
#include "profile.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"
#include "qxskin.h"
#include "ui_settingdialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTreeWidget>

namespace {

const CaptionRow *captionRow(const QString &key)
{
    for (const CaptionRow &row : captionTable()) {
        if (key == QLatin1String(row.key))
            return &row;
    }
    return nullptr;
}

QString caption(const QString &key)
{
    const CaptionRow *row = captionRow(key);
    return row ? QCoreApplication::translate("SettingsWindow", row->caption) : key;
}

QString description(const QString &key)
{
    const CaptionRow *row = captionRow(key);
    return row && row->description ? QCoreApplication::translate("SettingsWindow", row->description)
                                   : QString();
}

// The number behind the "*" of a size, or the text as a number; 0 if none.
// Sound rates have decimals ("6.7" kbit/s).
double numberOf(const QString &value, bool height)
{
    return (height ? value.section(QLatin1Char('*'), 1) : value).toDouble();
}

} // namespace

SettingsWindow::SettingsWindow(QWidget *parent)
    : QxDialog(parent)
    , ui(std::make_unique<Ui::SettingDialog>())
{
    // Made before the form, so that it connects their signals by name.
    propertyTable = new QtTreePropertyBrowser(this);
    propertyTable->setObjectName(QStringLiteral("propertyTable"));
    variantFactory = new QtVariantEditorFactory(this);
    variantManager = new QtVariantPropertyManager(this);
    variantManager->setObjectName(QStringLiteral("variantManager"));
    comboManager = new EditableComboManager(this);
    comboManager->setObjectName(QStringLiteral("comboManager"));
    comboFactory = new EditableComboFactory(this);
    ui->setupUi(this);
    propertyTable->setAccessibleName(tr("Parameters"));
    ui->splitter->insertWidget(0, propertyTable);
    setFrame(QxSkin::instance()->imagePath(QStringLiteral("subdlg.png")), 30, 30, 30, 30);

    propertyTable->setFactoryForManager(variantManager, variantFactory);
    propertyTable->setFactoryForManager(comboManager, comboFactory);
    propertyTable->setAlternatingRowColors(false);
    propertyTable->setPropertiesWithoutValueMarked(true);
    propertyTable->setRootIsDecorated(true);
    resize(260, 600);
    ui->splitter->setSizes({300, 100});
    propertyTable->setResizeMode(QtTreePropertyBrowser::Interactive);
    propertyTable->setSplitterPosition(110);

    auto *status = new QStatusBar(this);
    status->setFixedHeight(20);
    ui->statusLayout->addWidget(status);

    // The window lives docked in the main window, which hides it.
    ui->closeBtnMac->hide();
    if (parent && parent->metaObject()->indexOfSlot("on_advSettingsBtn_clicked()") >= 0)
        connect(ui->closeBtn, SIGNAL(clicked()), parent, SLOT(on_advSettingsBtn_clicked()));
    else
        connect(ui->closeBtn, &QPushButton::clicked, this, &QWidget::hide);

    connect(QxSkin::instance(), &QxSkin::skinChanged, this, &SettingsWindow::onSkinChanged);
    connect(this, &SettingsWindow::valueChanged, this, &SettingsWindow::OnSettingsValueChanged);
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::setProfile(const QString &fileName, const QMap<QString, QString> *values)
{
    file = fileName;
    buildTree(values);
    setEditable(editable);
    buildSimpleTab();
}

void SettingsWindow::buildTree(const QMap<QString, QString> *values)
{
    ready = false;
    propertyTable->clear();
    variantManager->clear();
    comboManager->clear();
    propertyToKey.clear();
    keyToProperty.clear();
    propertyKinds.clear();
    defaultValues.clear();
    readOnly.clear();

    const Profile document(QStringLiteral(":/profile/") + file);
    for (const QDomElement &section : document.sections()) {
        const QString name = section.attribute(QStringLiteral("value"));
        QtProperty *group = variantManager->addProperty(QtVariantPropertyManager::groupTypeId(),
                                                        caption(name));
        group->setWhatsThis(description(name));
        for (QDomElement element = section.firstChildElement(); !element.isNull();
             element = element.nextSiblingElement()) {
            const QString key = Profile::key(element);
            const Profile::ParameterKind kind = Profile::kind(element);
            const QString fallback = Profile::defaultValue(element);
            const QString current = values ? values->value(key) : QString();
            const QString text = current.isEmpty() ? fallback : current;
            QtProperty *property = nullptr;
            if (kind == Profile::OpenList) {
                property = comboManager->addProperty(caption(key));
                comboManager->setCandidateValues(property, Profile::candidates(element));
                comboManager->setValue(property, text);
                comboFactory->setPattern(property, EditableComboFactory::patternFor(key));
                propertyKinds.insert(property, OpenList);
            } else if (kind == Profile::FreeText) {
                property = variantManager->addProperty(QMetaType::QString, caption(key));
                variantManager->setValue(property, text);
                propertyKinds.insert(property, FreeText);
            } else {
                const QStringList names = kind == Profile::Flag
                                              ? QStringList{QStringLiteral("True"),
                                                            QStringLiteral("False")}
                                              : Profile::candidates(element);
                property = variantManager->addProperty(QtVariantPropertyManager::enumTypeId(),
                                                       caption(key));
                variantManager->setAttribute(property, QStringLiteral("enumNames"), names);
                // Not found: -1, which leaves the first candidate standing.
                variantManager->setValue(property, names.indexOf(text));
                propertyKinds.insert(property, List);
            }
            property->setWhatsThis(description(key));
            const bool marked = kind != Profile::Flag && isReadOnly(element);
            readOnly.insert(property, marked);
            property->setEnabled(!marked);
            property->setModified(!current.isEmpty() && current != fallback);
            group->addSubProperty(property);
            keyToProperty.insert(key, property);
            propertyToKey.insert(property, key);
            defaultValues.insert(property, fallback);
        }
        QtBrowserItem *item = propertyTable->addProperty(group);
        if (name == QLatin1String("Expert") || name == QLatin1String("Summary"))
            propertyTable->setExpanded(item, false);
    }

    // Captions are read whole in every language; the user may narrow them.
    QTreeWidget *view = propertyTable->treeWidget();
    view->resizeColumnToContents(0);
    propertyTable->setSplitterPosition(
        qBound(110, view->columnWidth(0), qMax(110, view->viewport()->width() * 2 / 3)));

    // An audio document offers only the sound's quality.
    const bool video = keyToProperty.contains(QStringLiteral("s"));
    for (QWidget *widget : {static_cast<QWidget *>(ui->labelVideoSize),
                            static_cast<QWidget *>(ui->comboVideoSize),
                            static_cast<QWidget *>(ui->labelVideoQuality),
                            static_cast<QWidget *>(ui->comboVideoQuality)})
        widget->setVisible(video);
    ready = true;
}

void SettingsWindow::buildSimpleTab()
{
    const Profile document(QStringLiteral(":/profile/") + file);
    {
        const QSignalBlocker blocker(ui->comboAudioQuality);
        ui->comboAudioQuality->clear();
    }
    for (const QDomNode &parameter : document.simpleParameters()) {
        const QString key = parameter.toElement().tagName();
        QComboBox *combo = key == QLatin1String("s")    ? ui->comboVideoSize
                           : key == QLatin1String("b")  ? ui->comboVideoQuality
                           : key == QLatin1String("ab") ? ui->comboAudioQuality
                                                        : nullptr;
        if (!combo)
            continue;
        const QSignalBlocker blocker(combo);
        combo->clear();
        const QStringList labels = Profile::simpleLabels(parameter);
        const QStringList data = Profile::simpleValues(parameter);
        for (int i = 0; i < labels.size(); ++i)
            combo->addItem(labels[i], data.value(i));
        selectNearest(combo, Profile::defaultValue(parameter));
    }
}

void SettingsWindow::selectNearest(QComboBox *combo, const QString &value)
{
    const QSignalBlocker blocker(combo);
    const int n = combo->count();
    if (n <= 1) {
        combo->setCurrentIndex(0);
        return;
    }
    // Two sizes may share a height: the one asked for wins.
    const int exact = combo->findData(value);
    if (exact >= 0) {
        combo->setCurrentIndex(exact);
        return;
    }
    const bool size = value.contains(QLatin1Char('*'));
    const double target = numberOf(value, size);
    for (int i = 0; i < n - 1; ++i) {
        const QString data = combo->itemData(i).toString();
        if (size && data.contains(QLatin1Char('*')) && target <= numberOf(data, true)) {
            combo->setCurrentIndex(i);
            return;
        }
        // The steps fall from the first to the last.
        if (!size && target >= data.toDouble()) {
            combo->setCurrentIndex(i);
            return;
        }
    }
    combo->setCurrentIndex(n - 1);
}

void SettingsWindow::values(QMap<QString, QString> &out) const
{
    out.clear();
    for (auto it = keyToProperty.cbegin(); it != keyToProperty.cend(); ++it)
        out.insert(it.key(), it.value()->valueText());
}

QMap<QString, QString> SettingsWindow::values() const
{
    QMap<QString, QString> out;
    values(out);
    return out;
}

void SettingsWindow::setPropertyText(QtProperty *property, const QString &text)
{
    switch (propertyKinds.value(property)) {
    case FreeText:
        variantManager->setValue(property, text);
        break;
    case OpenList:
        comboManager->setValue(property, text);
        break;
    default:
        variantManager->setValue(property, variantManager->attributeValue(
                                               property, QStringLiteral("enumNames"))
                                               .toStringList()
                                               .indexOf(text));
        break;
    }
}

void SettingsWindow::setValues(const QMap<QString, QString> &values)
{
    for (auto it = keyToProperty.cbegin(); it != keyToProperty.cend(); ++it) {
        // An empty value stands for the document's default.
        QString text = values.value(it.key());
        if (text.isEmpty())
            text = defaultValues.value(it.value());
        if (text != it.value()->valueText())
            setPropertyText(it.value(), text);
    }
}

void SettingsWindow::setEditable(bool flag)
{
    editable = flag;
    // A parameter the document marks read-only stays so.
    for (QtProperty *property : std::as_const(keyToProperty))
        property->setEnabled(flag && !readOnly.value(property));
    ui->btnApplyToAll->setEnabled(flag);
}

void SettingsWindow::passOn(QtProperty *property, const QString &text)
{
    if (!ready || !propertyToKey.contains(property))
        return;
    property->setModified(text != defaultValues.value(property));
    emit valueChanged(propertyToKey.value(property), text);
}

void SettingsWindow::on_variantManager_valueChanged(QtProperty *property, const QVariant &)
{
    passOn(property, property->valueText());
}

void SettingsWindow::on_comboManager_valueChanged(QtProperty *property, const QString &value)
{
    passOn(property, value);
}

void SettingsWindow::on_btnApplyToAll_clicked()
{
    emit applyToAll();
}

void SettingsWindow::on_propertyTable_currentItemChanged(QtBrowserItem *item)
{
    if (item)
        ui->editDescription->setText(item->property()->whatsThis());
}

void SettingsWindow::onSkinChanged(int)
{
    setFrame(QxSkin::instance()->imagePath(QStringLiteral("subdlg.png")), 30, 30, 30, 30);
}

void SettingsWindow::simpleChosen(QComboBox *combo, const QString &key, int index)
{
    QtProperty *property = keyToProperty.value(key);
    const QString value = combo->itemData(index).toString();
    if (property && value != property->valueText())
        setPropertyText(property, value);
}

void SettingsWindow::on_comboVideoSize_currentIndexChanged(int index)
{
    simpleChosen(ui->comboVideoSize, QStringLiteral("s"), index);
}

void SettingsWindow::on_comboVideoQuality_currentIndexChanged(int index)
{
    simpleChosen(ui->comboVideoQuality, QStringLiteral("b"), index);
}

void SettingsWindow::on_comboAudioQuality_currentIndexChanged(int index)
{
    simpleChosen(ui->comboAudioQuality, QStringLiteral("ab"), index);
}

void SettingsWindow::OnSettingsValueChanged(const QString &key, const QString &value)
{
    if (key == QLatin1String("s")) {
        const QSignalBlocker blocker(ui->comboVideoSize);
        ui->comboVideoSize->setCurrentIndex(
            ui->comboVideoSize->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive));
    } else if (key == QLatin1String("b")) {
        selectNearest(ui->comboVideoQuality, value);
    } else if (key == QLatin1String("ab")) {
        selectNearest(ui->comboAudioQuality, value);
    }
}

void SettingsWindow::changeEvent(QEvent *event)
{
    QxDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui->retranslateUi(this);
    propertyTable->setAccessibleName(tr("Parameters"));
    if (!file.isEmpty()) {
        // Captions change, values stay.
        const QMap<QString, QString> kept = values();
        buildTree(&kept);
        setEditable(editable);
    }
}
