#include "customitemwidget.h"

#include "childtask.h"
#include "controls.h"
#include "cprofilecombo.h"
#include "profilegrouploader.h"
#include "qxskin.h"
#include "task.h"
#include "tasklist.h"
#include "tasktreeops.h"
#include "timetracker.h"
#include "utils.h"
#include "xmlloader.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMetaObject>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>

namespace {

// The item data of the last entry of a track combo, which opens the editor.
constexpr int EditEntry = -100;

QPushButton *itemButton(QWidget *parent, const char *name)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setProperty("type", QStringLiteral("item"));
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QLabel *itemLabel(QWidget *parent, const char *name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setProperty("type", QStringLiteral("item"));
    return label;
}

// The name without what follows its last point.
QString withoutExtension(const QString &name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? name : name.left(dot);
}

QString tipLine(const QString &label, const QString &value, bool last = false)
{
    return QStringLiteral("<b>%1</b>: %2%3")
        .arg(label, value, last ? QString() : QStringLiteral("<br />"));
}

bool busy(const Task *task)
{
    return task->state == Task::Running || task->state == Task::Paused
           || task->state == Task::Pending;
}

} // namespace

void Ui::CustomItemWidget::setupUi(QWidget *form)
{
    form->setObjectName(QStringLiteral("CustomItemWidget"));
    form->resize(635, 81);
    gridLayout = new QGridLayout(form);
    gridLayout->setObjectName(QStringLiteral("gridLayout"));

    checkBox = new QCheckBox(form);
    checkBox->setObjectName(QStringLiteral("checkBox"));
    checkBox->setProperty("type", QStringLiteral("checkbox"));
    gridLayout->addWidget(checkBox, 0, 0);

    pictureFrame = new QFrame(form);
    pictureFrame->setObjectName(QStringLiteral("pictureFrame"));
    pictureFrame->setProperty("type", QStringLiteral("normal"));
    pictureLayout = new QGridLayout(pictureFrame);
    pictureLayout->setContentsMargins(0, 0, 0, 0);
    pictureLayout->setSpacing(1);
    QLabel **pictures[] = {&pictureLabel1, &pictureLabel2, &pictureLabel3, &pictureLabel4};
    for (int i = 0; i < 4; ++i) {
        auto *label = new QLabel(pictureFrame);
        label->setObjectName(QStringLiteral("pictureLabel%1").arg(i + 1));
        label->setProperty("type", QStringLiteral("normal"));
        label->setScaledContents(true);
        label->setFixedSize(44, 32);
        pictureLayout->addWidget(label, i / 2, i % 2);
        *pictures[i] = label;
    }
    gridLayout->addWidget(pictureFrame, 0, 1);

    expandBtn = itemButton(form, "expandBtn");
    expandBtn->setFocusPolicy(Qt::TabFocus);
    gridLayout->addWidget(expandBtn, 0, 2);

    // Both faces share the last cell; one of them is hidden.
    profileWidget = new QWidget(form);
    profileWidget->setObjectName(QStringLiteral("profileWidget"));
    auto *profileLayout = new QGridLayout(profileWidget);
    profileLayout->setContentsMargins(0, 0, 0, 0);
    labelOutputName = new QxtLabel(profileWidget);
    labelOutputName->setObjectName(QStringLiteral("labelOutputName"));
    labelOutputName->setProperty("type", QStringLiteral("item"));
    labelOutputName->setFocusPolicy(Qt::NoFocus);
    editOutputName = new QLineEdit(profileWidget);
    editOutputName->setObjectName(QStringLiteral("editOutputName"));
    editOutputName->setProperty("type", QStringLiteral("lineEdit"));
    editOutputName->hide();
    upBtn = itemButton(profileWidget, "upBtn");
    downBtn = itemButton(profileWidget, "downBtn");
    closeBtn = itemButton(profileWidget, "closeBtn");
    auto *nameRow = new QHBoxLayout;
    nameRow->addWidget(labelOutputName, 1);
    nameRow->addWidget(editOutputName, 1);
    nameRow->addWidget(upBtn);
    nameRow->addWidget(downBtn);
    nameRow->addWidget(closeBtn);
    profileLayout->addLayout(nameRow, 0, 0, 1, 4);
    timeLengthLabel = itemLabel(profileWidget, "timeLengthLabel");
    videoSizeLabel = itemLabel(profileWidget, "videoSizeLabel");
    fileSizeLabel = itemLabel(profileWidget, "fileSizeLabel");
    taskStatusLabel = new QLabel(profileWidget);
    taskStatusLabel->setObjectName(QStringLiteral("taskStatusLabel"));
    profileLayout->addWidget(timeLengthLabel, 1, 0);
    profileLayout->addWidget(videoSizeLabel, 1, 1);
    profileLayout->addWidget(fileSizeLabel, 1, 2);
    profileLayout->addWidget(taskStatusLabel, 1, 3);
    comboAudio = new QComboBox(profileWidget);
    comboAudio->setObjectName(QStringLiteral("comboAudio"));
    comboSubtitle = new QComboBox(profileWidget);
    comboSubtitle->setObjectName(QStringLiteral("comboSubtitle"));
    for (QComboBox *combo : {comboAudio, comboSubtitle})
        combo->setProperty("type", QStringLiteral("combo"));
    profileLayout->addWidget(comboAudio, 2, 0, 1, 2);
    profileLayout->addWidget(comboSubtitle, 2, 2, 1, 2);
    profileBtn = new QPushButton(profileWidget);
    profileBtn->setObjectName(QStringLiteral("profileBtn"));
    profileBtn->setIconSize(QSize(54, 54));
    profileLayout->addWidget(profileBtn, 0, 4, 3, 1);
    gridLayout->addWidget(profileWidget, 0, 3);

    progressWidget = new QWidget(form);
    progressWidget->setObjectName(QStringLiteral("progressWidget"));
    auto *progressLayout = new QGridLayout(progressWidget);
    progressLayout->setContentsMargins(0, 0, 0, 0);
    labelProgressName = new QxtLabel(progressWidget);
    labelProgressName->setObjectName(QStringLiteral("labelProgressName"));
    labelProgressName->setProperty("type", QStringLiteral("item"));
    progressCloseBtn = itemButton(progressWidget, "progressCloseBtn");
    progressCloseBtn->setFocusPolicy(Qt::TabFocus);
    progressBar = new QProgressBar(progressWidget);
    progressBar->setObjectName(QStringLiteral("progressBar"));
    progressBar->setValue(0);
    pauseBtn = new QPushButton(progressWidget);
    pauseBtn->setObjectName(QStringLiteral("pauseBtn"));
    pauseBtn->setProperty("status", QStringLiteral("pause"));
    labelRemain = itemLabel(progressWidget, "labelRemain");
    labelRemainTime = itemLabel(progressWidget, "labelRemainTime");
    progressLayout->addWidget(labelProgressName, 0, 0, 1, 3);
    progressLayout->addWidget(progressCloseBtn, 0, 3);
    progressLayout->addWidget(progressBar, 1, 0, 1, 3);
    progressLayout->addWidget(pauseBtn, 1, 3);
    progressLayout->addWidget(labelRemain, 2, 0);
    progressLayout->addWidget(labelRemainTime, 2, 1);
    gridLayout->addWidget(progressWidget, 0, 3);
    gridLayout->setColumnStretch(3, 1);

    retranslateUi(form);
    QMetaObject::connectSlotsByName(form);
}

void Ui::CustomItemWidget::retranslateUi(QWidget *form)
{
    Q_UNUSED(form)
    checkBox->setAccessibleName(
        QCoreApplication::translate("CustomItemWidget", "Convert This Item"));
    comboAudio->setAccessibleName(QCoreApplication::translate("CustomItemWidget", "Audio Track"));
    comboSubtitle->setAccessibleName(QCoreApplication::translate("CustomItemWidget", "Subtitle"));
    labelOutputName->setAccessibleName(
        QCoreApplication::translate("CustomItemWidget", "Output Name"));
    editOutputName->setAccessibleName(labelOutputName->accessibleName());
    profileBtn->setAccessibleName(QCoreApplication::translate("CustomItemWidget", "Profile"));
    upBtn->setToolTip(QCoreApplication::translate("CustomItemWidget", "Move Up"));
    downBtn->setToolTip(QCoreApplication::translate("CustomItemWidget", "Move Down"));
    closeBtn->setToolTip(QCoreApplication::translate("CustomItemWidget", "Close"));
    progressCloseBtn->setToolTip(QCoreApplication::translate("CustomItemWidget", "Close"));
    for (QPushButton *button : {upBtn, downBtn, closeBtn})
        button->setAccessibleName(button->toolTip());
    progressCloseBtn->setAccessibleName(
        QCoreApplication::translate("CustomItemWidget", "Stop Converting"));
    expandBtn->setAccessibleName(QCoreApplication::translate("CustomItemWidget", "Expand"));
    pauseBtn->setAccessibleName(QCoreApplication::translate("CustomItemWidget", "Pause"));
    labelRemain->setText(QCoreApplication::translate("CustomItemWidget", "Remaining"));
    labelRemainTime->setText(QStringLiteral("00:00:01"));
}

CustomItemWidget::CustomItemWidget(QTreeWidget *tree, QTreeWidgetItem *item, TaskList *taskList,
                                   int taskId, int kind, int childId)
    : QWidget(tree)
    , tree(tree)
    , item(item)
    , taskList(taskList)
    , taskId(taskId)
    , kind(kind)
    , childId(childId)
{
    setupUi(this);
    comboAudio->view()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    comboSubtitle->view()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    labelOutputName->installEventFilter(this);
    editOutputName->installEventFilter(this);
    // F2 on the tree renames its current row, as a click on the name does.
    if (tree)
        tree->installEventFilter(this);
    setFocusPolicy(Qt::TabFocus);
    editOutputName->hide();
    progressWidget->hide();
    connect(editOutputName, &QLineEdit::editingFinished, this,
            &CustomItemWidget::onNameLineEdit_editingFinished);

    refresh();
    upBtn->hide();
    downBtn->hide();
    closeBtn->hide();

    applyKind();

    if (kind == RowNormal || kind == RowChild) {
        const ChildTask *source = input();
        if (source && !source->hasVideo)
            comboSubtitle->setEnabled(false);
    }

    QFont font = taskStatusLabel->font();
    font.setWeight(QFont::Weight(700));
    taskStatusLabel->setFont(font);

    connectToWindow();
}

void CustomItemWidget::connectToWindow()
{
    QWidget *window = tree ? tree->window() : nullptr;
    if (!window)
        return;
    static const char *const pairs[][2] = {
        {SIGNAL(itemChanged(QTreeWidgetItem *, int)),
         SLOT(on_treeTask_itemChanged(QTreeWidgetItem *, int))},
        {SIGNAL(pauseTask(int, bool)), SLOT(onPauseTask(int, bool))},
        {SIGNAL(stopTask(int)), SLOT(onStopTask(int))},
        {SIGNAL(emptyList()), SLOT(on_actionClear_All_triggered())},
        {SIGNAL(editAudioTrack()), SLOT(on_actionAudio_Track_triggered())},
        {SIGNAL(editSubtitle()), SLOT(on_actionSubtitle_triggered())},
        {SIGNAL(playMedia()), SLOT(on_actionPlay_Pause_triggered())},
        {SIGNAL(stopAndContinuePlayMedia(int, int)), SLOT(onStopAndContinuePlay(int, int))},
    };
    for (const auto &pair : pairs) {
        // The macros put a code digit before the signature.
        const QByteArray slot = QMetaObject::normalizedSignature(pair[1] + 1);
        if (window->metaObject()->indexOfSlot(slot.constData()) >= 0)
            connect(this, pair[0], window, pair[1]);
    }
}

Task *CustomItemWidget::task() const
{
    return taskList && taskId >= 0 ? taskList->byId(taskId) : nullptr;
}

ChildTask *CustomItemWidget::input() const
{
    const Task *owner = task();
    if (!owner)
        return nullptr;
    if (kind == RowNormal)
        return owner->item(0);
    if (kind == RowChild)
        return owner->itemById(childId);
    return nullptr;
}

void CustomItemWidget::coverPictureCells()
{
    pictureLayout->removeWidget(pictureLabel1);
    pictureLayout->addWidget(pictureLabel1, 0, 0, 2, 2);
    pictureLabel1->setFixedSize(pictureLabel2->width() * 2 + pictureLayout->spacing(),
                                pictureLabel3->height() * 2 + pictureLayout->spacing());
    for (QLabel *label : {pictureLabel2, pictureLabel3, pictureLabel4})
        label->hide();
}

void CustomItemWidget::applyKind()
{
    switch (kind) {
    case RowNormal:
        coverPictureCells();
        expandBtn->hide();
        if (item && item->parent()) {
            QMargins margins = gridLayout->contentsMargins();
            margins.setLeft(margins.left() + 16);
            gridLayout->setContentsMargins(margins);
        }
        break;
    case RowMerge:
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 pictureFrame, pictureLabel1, pictureLabel2, pictureLabel3, pictureLabel4}) {
            widget->setProperty("type", QStringLiteral("merge"));
            TaskTreeOps::Repolish(widget);
        }
        for (QComboBox *combo : {comboAudio, comboSubtitle}) {
            combo->setEnabled(false);
            combo->hide();
        }
        break;
    case RowChild:
        pictureFrame->setProperty("type", QStringLiteral("child"));
        TaskTreeOps::Repolish(pictureFrame);
        coverPictureCells();
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 profileBtn, checkBox, expandBtn, editOutputName, fileSizeLabel, taskStatusLabel,
                 labelProgressName, progressCloseBtn, progressBar, pauseBtn, labelRemain,
                 labelRemainTime})
            widget->hide();
        break;
    case RowDisc:
        coverPictureCells();
        for (QWidget *widget :
             std::initializer_list<QWidget *>{comboAudio, comboSubtitle, checkBox, profileBtn})
            widget->hide();
        break;
    default:
        break;
    }
}

void CustomItemWidget::refresh()
{
    refreshExpand();
    refreshPicture();
    refreshTexts();
    refreshProfileIcon();
    if (kind == RowNormal || kind == RowMerge)
        syncCheck();
    refreshState();
    refreshProgress();
    update();
}

void CustomItemWidget::refreshTexts()
{
    Task *owner = task();
    QString name;
    if (kind == RowChild) {
        if (const ChildTask *child = input())
            name = child->title;
    } else if (kind == RowDisc) {
        name = item ? item->data(0, RoleDiscPath).toString() : QString();
    } else if (owner) {
        name = owner->output.fileName;
    }
    labelOutputName->setText(name);
    setAccessibleName(name);
    if (kind != RowDisc)
        labelProgressName->setText(name);
    if (kind == RowDisc || !owner)
        return;

    const ChildTask *source = input();
    timeLengthLabel->setText(kind == RowChild ? (source ? source->trimmedText() : QString())
                                              : owner->trimmedDurationText());
    const QSize size = owner->outputSize();
    videoSizeLabel->setText(Utils::sizeLabel(size.width(), size.height()));
    fileSizeLabel->setText(Utils::byteText(quint64(qMax<qint64>(0, owner->estimatedSize()))));

    QString tip;
    if (source) {
        const QFileInfo file(source->sourcePath);
        tip += tipLine(tr("Name"), file.fileName());
        if (source->pgcIndex >= 0)
            tip += tipLine(tr("Program"), QString::number(source->pgcIndex));
        tip += tipLine(tr("Size"), QStringLiteral("%1x%2").arg(source->width).arg(source->height));
        tip += tipLine(tr("Duration"), Utils::durationText(source->duration));
        if (source->hasVideo)
            tip += tipLine(tr("BitRate"), tr("%1 kbps").arg(source->videoBitRate / 1024));
        tip += tipLine(tr("Location"), QDir::toNativeSeparators(file.absolutePath()), true);
    }
    setToolTip(tip);

    fillAudioCombo();
    fillSubtitleCombo();
}

void CustomItemWidget::fillAudioCombo()
{
    ChildTask *source = input();
    if (!source)
        return;
    const QSignalBlocker blocker(comboAudio);
    comboAudio->clear();
    if (source->hasVideo)
        comboAudio->addItem(tr("None"));
    int current = 0;
    for (const auto &entry : source->edit.audioTracks) {
        comboAudio->addItem(entry->external ? QStringLiteral("* ") + entry->text() : entry->text());
        if (entry->selected)
            current = comboAudio->count() - 1;
    }
    comboAudio->setCurrentIndex(current);
    comboAudio->addItem(tr("Edit Audio"), EditEntry);
}

void CustomItemWidget::fillSubtitleCombo()
{
    ChildTask *source = input();
    if (!source)
        return;
    const QSignalBlocker blocker(comboSubtitle);
    comboSubtitle->clear();
    comboSubtitle->addItem(tr("None"));
    int current = 0;
    for (const auto &entry : source->edit.subtitles) {
        comboSubtitle->addItem(entry->external ? QStringLiteral("* ") + entry->text()
                                               : entry->text());
        if (entry->selected)
            current = comboSubtitle->count() - 1;
    }
    comboSubtitle->setCurrentIndex(current);
    comboSubtitle->addItem(tr("Edit Subtitle"), EditEntry);
}

void CustomItemWidget::selectTrack(QComboBox *combo, int index, bool audio)
{
    ChildTask *source = input();
    if (!source)
        return;
    EditParameters &edit = source->edit;
    if (combo->itemData(index).toInt() == EditEntry) {
        // The editor decides; until then the combo shows the old choice.
        if (audio)
            fillAudioCombo();
        else
            fillSubtitleCombo();
        makeCurrent();
        if (audio)
            emit editAudioTrack();
        else
            emit editSubtitle();
        return;
    }
    if (audio) {
        edit.clearAudioSelection();
        edit.selectAudio(source->hasVideo ? index - 1 : index);
    } else {
        edit.clearSubtitleSelection();
        edit.selectSubtitle(index - 1);
    }
    makeCurrent();
    emit stopAndContinuePlayMedia(taskId, childId);
}

void CustomItemWidget::on_comboAudio_currentIndexChanged(int index)
{
    selectTrack(comboAudio, index, true);
}

void CustomItemWidget::on_comboSubtitle_currentIndexChanged(int index)
{
    selectTrack(comboSubtitle, index, false);
}

void CustomItemWidget::makeCurrent()
{
    if (tree && item)
        tree->setCurrentItem(item);
}

void CustomItemWidget::refreshPicture()
{
    if (kind == RowDisc) {
        pictureLabel1->setPixmap(QxSkin::instance()->pixmap(QStringLiteral("dvd.png")));
        return;
    }
    Task *owner = task();
    if (!owner)
        return;
    if (kind == RowNormal) {
        pictureLabel1->setPixmap(QPixmap::fromImage(owner->thumbnail(0)));
    } else if (kind == RowChild) {
        pictureLabel1->setPixmap(QPixmap::fromImage(owner->thumbnail(childId)));
    } else if (kind == RowMerge) {
        QLabel *labels[] = {pictureLabel1, pictureLabel2, pictureLabel3, pictureLabel4};
        for (int i = 0; i < 4 && i < owner->itemCount(); ++i)
            labels[i]->setPixmap(QPixmap::fromImage(owner->thumbnail(owner->item(i)->id)));
    }
}

void CustomItemWidget::refreshProfileIcon()
{
    const Task *owner = task();
    if (!owner || (kind != RowNormal && kind != RowMerge))
        return;
    const QStringList key = owner->output.profileKey.split(QLatin1Char(','));
    if (key.size() < 2)
        return;
    const QDomNode profile = ProfileGroupLoader::instance()->profile(key[0], key[1]);
    if (profile.isNull())
        return;
    const QString small
        = ProfileGroupLoader::iconPath(childValue(profile, QStringLiteral("IconName")));
    const QString big = QString(small).replace(QStringLiteral("/small/"), QStringLiteral("/big/"));
    profileBtn->setIcon(QIcon(QFile::exists(big) ? big : small));
    const QString name = childValue(profile, QStringLiteral("Name"));
    const QString desc = childValue(profile, QStringLiteral("Desc"));
    // A user's own profile is named as the user wrote it.
    profileBtn->setToolTip(QStringLiteral("%1\n%2").arg(
        ProfileGroupLoader::isUserProfileId(key[1])
            ? name
            : QCoreApplication::translate("Profile", name.toUtf8().constData()),
        QCoreApplication::translate("Profile", desc.toUtf8().constData())));
}

void CustomItemWidget::on_profileBtn_clicked()
{
    makeCurrent();
    const Task *owner = task();
    if (!popup || !owner)
        return;
    const QStringList key = owner->output.profileKey.split(QLatin1Char(','));
    if (key.size() >= 2)
        popup->showCurrent(key[0], key[1]);
    QRect place(profileBtn->mapToGlobal(profileBtn->rect().bottomLeft()),
                QSize(popup->width(), 500));
    const QRect screen = profileBtn->screen()->geometry();
    if (place.right() > screen.right())
        place.moveRight(screen.right());
    if (place.bottom() > screen.height())
        place.setBottom(screen.height());
    popup->setGeometry(place);
    popup->show();
}

bool CustomItemWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == tree) {
        // F2 on the tree renames its current row, as a click on the name does.
        if (event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent *>(event)->key() == Qt::Key_F2 && tree->currentItem() == item
            && canStartRename()) {
            startRename();
            return true;
        }
        return false;
    }
    if (watched == labelOutputName && event->type() == QEvent::MouseButtonPress) {
        if (kind != RowDisc && kind != RowChild)
            startRename();
        return true;
    }
    if (watched == editOutputName && editOutputName->isVisible()) {
        if (event->type() == QEvent::FocusOut) {
            onNameLineEdit_editingFinished();
        } else if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Escape)
                editOutputName->setText(withoutExtension(labelOutputName->text()));
            if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
                onNameLineEdit_editingFinished();
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CustomItemWidget::keyPressEvent(QKeyEvent *event)
{
    const bool renameKey
        = event->key() == Qt::Key_F2
          || (hasFocus() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter));
    if (renameKey && canStartRename()) {
        startRename();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool CustomItemWidget::canStartRename() const
{
    return (kind == RowNormal || kind == RowMerge) && editOutputName->isHidden();
}

void CustomItemWidget::startRename()
{
    const QString name = labelOutputName->text();
    labelOutputName->hide();
    editOutputName->setText(withoutExtension(name));
    editOutputName->setAttribute(Qt::WA_InputMethodEnabled, true);
    editOutputName->setMinimumSize(labelOutputName->size());
    editOutputName->show();
    editOutputName->selectAll();
    editOutputName->setFocus();
}

void CustomItemWidget::onNameLineEdit_editingFinished()
{
    // Return, focus out and the line's own signal all end the edit: once.
    if (editOutputName->isHidden())
        return;
    const QString text = editOutputName->text();
    editOutputName->hide();
    labelOutputName->show();
    if (TaskTreeOps::instance().SetTaskBaseName(task(), text, false))
        refresh();
}

void CustomItemWidget::refreshState()
{
    const Task *owner = task();
    if (!owner || (kind != RowNormal && kind != RowMerge))
        return;
    QString text;
    switch (owner->state) {
    case Task::Waiting:
        text = tr("Waiting...");
        break;
    case Task::Paused:
        text = tr("Paused");
        break;
    case Task::Pending:
        text = tr("Pending...");
        break;
    case Task::Succeed:
        text = tr("Succeed");
        break;
    case Task::Failed:
        text = tr("Failed");
        break;
    default:
        break;
    }
    taskStatusLabel->setText(text);
}

void CustomItemWidget::showProgress(bool on)
{
    if (on == showingProgress)
        return;
    showingProgress = on;
    if (on) {
        profileWidget->hide();
        progressBar->setValue(0);
        progressWidget->show();
    } else {
        progressWidget->hide();
        profileWidget->show();
    }
}

void CustomItemWidget::refreshProgress()
{
    const Task *owner = task();
    if (!owner)
        return;
    const double total = owner->convertDuration();
    progressBar->setValue(total > 0 ? int(owner->progress / total * 100) : 0);
    const qint64 remaining = TimeTracker::remainingMs(*owner);
    labelRemainTime->setText(remaining < 0 ? QString()
                                           : Utils::durationText(double(remaining / 1000)));
}

void CustomItemWidget::syncCheck()
{
    const Task *owner = task();
    if (!owner || (kind != RowNormal && kind != RowMerge))
        return;
    const QSignalBlocker blocker(checkBox);
    checkBox->setCheckState(owner->checked ? Qt::Checked : Qt::Unchecked);
}

void CustomItemWidget::on_checkBox_stateChanged(int state)
{
    if (Task *owner = task())
        owner->checked = state == Qt::Checked;
    emit itemChanged(item, 0);
}

void CustomItemWidget::on_expandBtn_clicked()
{
    if (item)
        item->setExpanded(!item->isExpanded());
    refreshExpand();
}

void CustomItemWidget::refreshExpand()
{
    if (!item || (kind != RowMerge && kind != RowDisc))
        return;
    expandBtn->setProperty("status", item->isExpanded() ? 1 : 0);
    expandBtn->setAccessibleName(item->isExpanded() ? tr("Collapse") : tr("Expand"));
    TaskTreeOps::Repolish(expandBtn);
}

void CustomItemWidget::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    const Task *owner = task();
    if (kind == RowChild && owner && busy(owner))
        return;
    for (QPushButton *button : {upBtn, downBtn, closeBtn})
        button->show();
    if (!item || !tree)
        return;
    QTreeWidgetItem *parent = item->parent();
    const int at = parent ? parent->indexOfChild(item) : tree->indexOfTopLevelItem(item);
    const int count = parent ? parent->childCount() : tree->topLevelItemCount();
    upBtn->setEnabled(at > 0);
    downBtn->setEnabled(at >= 0 && at + 1 < count);
    closeBtn->setEnabled(TaskTreeOps::instance().CanRemove(item));
}

void CustomItemWidget::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    for (QPushButton *button : {upBtn, downBtn, closeBtn})
        button->hide();
}

void CustomItemWidget::on_upBtn_clicked()
{
    emit moveRequested(-1);
}

void CustomItemWidget::on_downBtn_clicked()
{
    emit moveRequested(1);
}

void CustomItemWidget::requestRemoval()
{
    // The window may delete this row while it removes the item.
    const QPointer<CustomItemWidget> self(this);
    const QPointer<QTreeWidget> owner(tree);
    emit removeRequested();
    if (!owner || owner->topLevelItemCount() > 0)
        return;
    if (self)
        emit emptyList();
    else if (QWidget *window = owner->window();
             window->metaObject()->indexOfSlot("on_actionClear_All_triggered()") >= 0)
        QMetaObject::invokeMethod(window, "on_actionClear_All_triggered");
}

void CustomItemWidget::on_closeBtn_clicked()
{
    if (TaskTreeOps::instance().CanRemove(item))
        requestRemoval();
}

void CustomItemWidget::on_progressCloseBtn_clicked()
{
    const auto answer = QMessageBox::question(
        this, tr("Tessarine Kestrove"),
        tr("Are you sure you want to stop converting?\nSome of the unfinished files cannot be "
           "played properly."),
        QMessageBox::Ok | QMessageBox::Cancel);
    if (answer != QMessageBox::Ok)
        return;
    const QPointer<CustomItemWidget> self(this);
    emit stopTask(taskId);
    if (!self)
        return;
    if (TaskTreeOps::instance().CanRemove(item))
        requestRemoval();
}

void CustomItemWidget::on_pauseBtn_clicked()
{
    const Task *owner = task();
    if (!owner)
        return;
    const bool pause = owner->state != Task::Paused;
    emit pauseTask(taskId, pause);
    pauseBtn->setProperty("status", pause ? QStringLiteral("continue") : QStringLiteral("pause"));
    pauseBtn->setAccessibleName(pause ? tr("Continue") : tr("Pause"));
    TaskTreeOps::Repolish(pauseBtn);
}

void CustomItemWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QWidget *under = childAt(event->position().toPoint());
    if (under != labelProgressName && kind != RowMerge && kind != RowDisc) {
        makeCurrent();
        emit playMedia();
    }
    QWidget::mouseDoubleClickEvent(event);
}

void CustomItemWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        pauseBtn->setAccessibleName(
            pauseBtn->property("status").toString() == QLatin1String("continue") ? tr("Continue")
                                                                                 : tr("Pause"));
        TaskTreeOps::Repolish(pauseBtn);
        refresh();
    }
    QWidget::changeEvent(event);
}
