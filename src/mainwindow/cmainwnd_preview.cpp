// The preview pane of the main window: the current row's input plays between
// its trim marks with its edits, and the controls under it follow the player.

#include "cmainwnd.h"

#include "controls.h"
#include "customitemwidget.h"
#include "ffplayer.h"
#include "mediainfo.h"
#include "playerscreen.h"
#include "settings.h"
#include "settingswindow.h"
#include "tasklist.h"
#include "tasktreeops.h"
#include "utils.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>

namespace {

int milliseconds(double seconds)
{
    return int(seconds * 1000.0);
}

// The ratio a zoom mode forces; 0 keeps the source's, -1 fills the frame.
bool zoomOf(const QString &mode, double &zoom)
{
    if (mode == QLatin1String("Keep Original"))
        zoom = 0.0;
    else if (mode == QLatin1String("Full Screen"))
        zoom = -1.0;
    else if (mode == QLatin1String("4:3"))
        zoom = 1.333;
    else if (mode == QLatin1String("16:9"))
        zoom = 1.777;
    else
        return false;
    return true;
}

// The shape of the output: the size setting's, or the input's own with "Auto".
double outputAspectOf(const ChildTask &input)
{
    const QSize size = input.owner->outputSize();
    return size.height() > 0 ? double(size.width()) / size.height() : 0.0;
}

} // namespace

void CMainWnd::setUpPreview()
{
    playTimer = new QTimer(this);
    playTimer->setInterval(200);
    connect(playTimer, &QTimer::timeout, this, &CMainWnd::timeOut);
    connect(player, &FFPlayer::playStateChanged, this, &CMainWnd::playStateChanged);
    connect(sliderPlayProgress, &QSlider::valueChanged, this, &CMainWnd::sliderProgressValueChanged);
    connect(sliderPlayProgress, &CSlider::sliderHandlePressed, this,
            &CMainWnd::sliderProgressHandlePressed);
    connect(actionPlayOriginal, &QAction::triggered, this, &CMainWnd::playModeOrignal);
    connect(actionPlayOutput, &QAction::triggered, this, &CMainWnd::playModeOutput);
    action(QStringLiteral("actionMute"))->setCheckable(true);

    // The snapshot format follows the setting; a choice is kept.
    const QString type = Setting::imageType().toUpper();
    for (const char *name : {"actionPNG", "actionBMP", "actionJPG", "actionGIF"}) {
        QAction *a = action(QLatin1String(name));
        const QString format = QLatin1String(name + 6);
        a->setChecked(format == type);
        connect(a, &QAction::triggered, this,
                [format] { setSettingString(QStringLiteral("ImageType"), format); });
    }

    QMenu *play = menus.value(QStringLiteral("menu_Play"));
    connect(play, &QMenu::aboutToShow, this, [this] {
        const QTreeWidgetItem *current = treeTask->currentItem();
        action(QStringLiteral("actionPlay_Pause"))->setEnabled(playPauseBtn->isEnabled());
        action(QStringLiteral("actionStop"))->setEnabled(btnStop->isEnabled());
        action(QStringLiteral("actionPrevious"))->setEnabled(current && treeTask->itemAbove(current));
        action(QStringLiteral("actionNext"))->setEnabled(current && treeTask->itemBelow(current));
        action(QStringLiteral("actionSnapshot"))->setEnabled(snapshotBtn->isEnabled());
        action(QStringLiteral("actionFull_Screen"))->setEnabled(extPlaywndBtn->isEnabled());
    });
    QMenu *volume = menus.value(QStringLiteral("menuVolume"));
    connect(volume, &QMenu::aboutToShow, this, [this] {
        action(QStringLiteral("actionUp"))->setEnabled(sliderVolume->value() < sliderVolume->maximum());
        action(QStringLiteral("actionDown"))->setEnabled(sliderVolume->value() > sliderVolume->minimum());
    });

    // The picture's own menu: tracks of the row, volume, play commands.
    popupPlay = new QMenu(this);
    popupPlay->setObjectName(QStringLiteral("menu_popupPlay"));
    QMenu *audio = popupPlay->addMenu(tr("Audio Tracks"));
    QMenu *subtitle = popupPlay->addMenu(tr("Subtitle"));
    connect(audio, &QMenu::aboutToShow, this, [this, audio] { fillTrackMenu(audio, true); });
    connect(subtitle, &QMenu::aboutToShow, this, [this, subtitle] { fillTrackMenu(subtitle, false); });
    popupPlay->addMenu(volume);
    popupPlay->addSeparator();
    popupPlay->addAction(action(QStringLiteral("actionPlay_Pause")));
    popupPlay->addAction(action(QStringLiteral("actionStop")));
    popupPlay->addSeparator();
    popupPlay->addAction(action(QStringLiteral("actionPrevious")));
    popupPlay->addAction(action(QStringLiteral("actionNext")));
    connect(popupPlay, &QMenu::aboutToShow, this, &CMainWnd::updatePopupPlay);

    // Until the full-screen player comes, its button and command stay out of sight.
    extPlaywndBtn->hide();
    action(QStringLiteral("actionFull_Screen"))->setVisible(false);
}

void CMainWnd::updatePopupPlay()
{
    menus.value(QStringLiteral("menu_Play"))->aboutToShow();
    menus.value(QStringLiteral("menuVolume"))->aboutToShow();
    const QTreeWidgetItem *current = treeTask->currentItem();
    const ChildTask *input = TaskTreeOps::instance().inputOf(current);
    const QList<QAction *> entries = popupPlay->actions();
    for (QAction *a : entries) {
        if (a->menu() && a->menu() != menus.value(QStringLiteral("menuVolume")))
            a->setEnabled(input != nullptr);
    }
}

void CMainWnd::fillTrackMenu(QMenu *menu, bool audio)
{
    menu->clear();
    ChildTask *input = TaskTreeOps::instance().inputOf(treeTask->currentItem());
    if (!input)
        return;
    const Task::EState state = input->owner->state;
    const bool changeable = state == Task::Idle || state == Task::Succeed || state == Task::Failed;
    const int taskId = input->owner->id;
    const int childId = input->id;
    // As the row's combo does: one choice or none, then the preview restarts with it.
    auto choose = [this, input, audio, taskId, childId](int index) {
        if (audio) {
            input->edit.clearAudioSelection();
            input->edit.selectAudio(index);
        } else {
            input->edit.clearSubtitleSelection();
            input->edit.selectSubtitle(index);
        }
        if (CustomItemWidget *row = rowFace(treeTask->currentItem()))
            audio ? row->fillAudioCombo() : row->fillSubtitleCombo();
        onStopAndContinuePlay(taskId, childId);
    };
    auto *group = new QActionGroup(menu);
    QAction *none = menu->addAction(tr("None"));
    none->setCheckable(true);
    none->setEnabled(!audio || input->hasVideo);
    connect(none, &QAction::triggered, this, [choose] { choose(-1); });
    QList<QAction *> entries{none};
    bool any = false;
    const int count = audio ? int(input->edit.audioTracks.size()) : int(input->edit.subtitles.size());
    for (int i = 0; i < count; ++i) {
        const bool external = audio ? input->edit.audioTracks[size_t(i)]->external
                                    : input->edit.subtitles[size_t(i)]->external;
        const bool selected = audio ? input->edit.audioTracks[size_t(i)]->selected
                                    : input->edit.subtitles[size_t(i)]->selected;
        const QString text = audio ? input->edit.audioTracks[size_t(i)]->text()
                                   : input->edit.subtitles[size_t(i)]->text();
        QAction *a = menu->addAction(external ? QStringLiteral("* ") + text : text);
        a->setCheckable(true);
        a->setChecked(selected);
        connect(a, &QAction::triggered, this, [choose, i] { choose(i); });
        entries << a;
        any = any || selected;
    }
    for (QAction *a : entries) {
        group->addAction(a);
        if (a->isChecked() || !changeable)
            a->setEnabled(false);
    }
    none->setChecked(!any);
    if (!any)
        none->setEnabled(false);
}

void CMainWnd::on_playWnd_customContextMenuRequested(const QPoint &point)
{
    popupPlay->popup(playWnd->mapToGlobal(point));
}

void CMainWnd::ShowInPreview(Task *task, int index)
{
    const ChildTask *input = task ? task->item(std::max(index, 0)) : nullptr;
    if (!input)
        return;
    const EditParameters &edit = input->edit;
    playRangeStart = edit.trimStart;
    playRangeEnd = edit.trimEnd;
    sliderPlayProgress->setRange(0, milliseconds(input->duration));
    sliderPlayProgress->setTrimStart(milliseconds(edit.trimStart));
    sliderPlayProgress->setTrimEnd(milliseconds(edit.trimEnd));
    sliderPlayProgress->setHandleValue(milliseconds(edit.trimStart));
    sliderPlayProgress->update();
    if (!input->hasVideo)
        return;
    playWnd->setCrop(edit.cropTop, edit.cropRight, edit.cropBottom, edit.cropLeft);
    const QSize size = task->outputSize();
    playWnd->setOutputSize(size.width(), size.height());
    applyZoom(*input, -1.0);
    playWnd->setPictureAdjust(edit.brightness, edit.contrast, edit.saturation);
    playWnd->setEffects(edit.enabledEffects());
    playWnd->setRotation(edit.rotation);
    if (!edit.watermarks.empty()) {
        const WatermarkEntry &mark = edit.watermark();
        playWnd->setWatermarkVisible(!mark.text.isEmpty() || !mark.picturePath.isEmpty());
        playWnd->setWatermarkImage(mark.image);
        playWnd->setWatermarkRect(mark.left, mark.top, mark.right, mark.bottom);
        playWnd->setWatermarkTransparency(mark.transparency);
    } else {
        playWnd->setWatermarkVisible(false);
    }
    actionPlayOriginal->setChecked(false);
    actionPlayOutput->setChecked(true);
}

void CMainWnd::RefreshPreviewEffects()
{
    const ChildTask *input = TaskTreeOps::instance().inputOf(treeTask->currentItem());
    if (!input)
        return;
    playWnd->setEffects(input->edit.enabledEffects());
    playWnd->setRotation(input->edit.rotation);
}

void CMainWnd::showTimeOf(double seconds)
{
    const Task *task = TaskTreeOps::instance().taskOf(treeTask->currentItem());
    timeLabel->setText(Utils::durationText(seconds) + QStringLiteral(" / ") + (task ? task->totalDurationText(false) : QString()));
}

void CMainWnd::applyTrackChoice(const ChildTask &input)
{
    int audio = -1;
    for (size_t i = 0; i < input.edit.audioTracks.size(); ++i) {
        const AudioTrackEntry &entry = *input.edit.audioTracks[i];
        if (entry.selected) {
            // Added sound files don't play in the preview.
            audio = entry.external ? -1 : int(i);
            break;
        }
    }
    player->setAudioTrack(audio);
    for (const auto &entry : input.edit.subtitles) {
        if (!entry->selected)
            continue;
        const QString file = entry->external ? entry->path : QString();
        if (entry->customStyle)
            playWnd->setSubtitleStyle(entry->track, file, entry->font, entry->color,
                                      entry->transparency, entry->position);
        else
            playWnd->setSubtitle(entry->track, file);
        return;
    }
    playWnd->setSubtitle(-1, QString());
}

void CMainWnd::on_actionPlay_Pause_triggered()
{
    if (playPauseBtn->isEnabled())
        on_playPauseBtn_clicked();
}

void CMainWnd::on_actionStop_triggered()
{
    if (btnStop->isEnabled())
        on_btnStop_clicked();
}

void CMainWnd::on_playPauseBtn_clicked()
{
    if (playPauseBtn->status() != 0) {
        playPauseBtn->setStatus(0);
        playPauseBtn->setToolTip(tr("Play"));
        player->playPause();
        snapshotBtn->setEnabled(false);
        return;
    }
    const ChildTask *input = TaskTreeOps::instance().inputOf(treeTask->currentItem());
    if (!input)
        return;
    playPauseBtn->setStatus(1);
    playPauseBtn->setToolTip(tr("Pause"));
    if (!playing) {
        if (!QFile::exists(input->sourcePath)) {
            playPauseBtn->setStatus(0);
            playPauseBtn->setToolTip(tr("Play"));
            QMessageBox::warning(this, WindowTitleText(),
                                 tr("Source file %1 not found!")
                                     .arg(QDir::toNativeSeparators(input->sourcePath)),
                                 QMessageBox::Ok);
            return;
        }
        applyTrackChoice(*input);
        player->open(input->sourcePath, input->inputFormat, input->pgcIndex);
        btnStop->setEnabled(true);
        playing = true;
        // Probing and thumbnails wait while a source is open.
        if (!mediaLocked) {
            LockMedia();
            mediaLocked = true;
        }
    }
    player->seek(sliderPlayProgress->value() * 0.001);
    player->playPause();
    if (input->hasVideo)
        snapshotBtn->setEnabled(true);
}

void CMainWnd::on_btnStop_clicked()
{
    if (!playing)
        return;
    playPauseBtn->setStatus(0);
    playPauseBtn->setToolTip(tr("Play"));
    playTimer->stop();
    player->stop();
    snapshotBtn->setEnabled(false);
    // The stop counts once the player says so; a player that never does
    // doesn't hold the window for ever.
    QElapsedTimer waited;
    waited.start();
    while (playing && waited.elapsed() < 5000) {
        QThread::msleep(10);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    if (playing)
        playStateChanged(0);
}

void CMainWnd::playStateChanged(int state)
{
    if (state == 1) {
        playTimer->start();
        playing = true;
        return;
    }
    if (state != 0)
        return;
    playTimer->stop();
    playPauseBtn->setStatus(0);
    playPauseBtn->setToolTip(tr("Play"));
    sliderPlayProgress->setHandleValue(milliseconds(playRangeStart));
    player->seek(playRangeStart);
    if (TaskTreeOps::instance().inputOf(treeTask->currentItem()))
        showTimeOf(0);
    playing = false;
    btnStop->setEnabled(false);
    snapshotBtn->setEnabled(false);
    playWnd->setShowVideo(false);
    if (mediaLocked) {
        mediaLocked = false;
        UnlockMedia();
    }
}

void CMainWnd::timeOut()
{
    const double position = player->currentTime();
    timerUpdating = true;
    if (seekPending || sliderHeld) {
        seekPending = false;
    } else {
        showTimeOf(position);
        sliderPlayProgress->setHandleValue(milliseconds(position));
    }
    if (position >= playRangeEnd && playing)
        on_btnStop_clicked();
    timerUpdating = false;
}

void CMainWnd::sliderProgressValueChanged(int value)
{
    if (timerUpdating || sliderHeld)
        return;
    player->seek(value * 0.001);
    seekPending = true;
}

void CMainWnd::playNeighbour(bool below)
{
    QTreeWidgetItem *current = treeTask->currentItem();
    QTreeWidgetItem *next = !current ? nullptr : below ? treeTask->itemBelow(current) : treeTask->itemAbove(current);
    if (!next)
        return;
    if (playing)
        stopPreview();
    treeTask->setCurrentItem(next, 0, QItemSelectionModel::ClearAndSelect);
    if (playPauseBtn->isEnabled())
        on_playPauseBtn_clicked();
}

void CMainWnd::onStopAndContinuePlay(int taskId, int childTaskId)
{
    const Task *task = taskList->byId(taskId);
    if (!task)
        return;
    const ChildTask *input = task->name.isEmpty() ? task->item(0) : task->itemById(childTaskId);
    if (!input)
        return;
    if (playing && player->fileName() == input->sourcePath) {
        const int at = sliderPlayProgress->value();
        stopPreview();
        sliderPlayProgress->setHandleValue(at);
    }
    on_playPauseBtn_clicked();
}

void CMainWnd::on_sliderVolume_valueChanged(int value)
{
    // Sound comes back even while the mute button stays down.
    player->setVolume(value * 0.01);
}

void CMainWnd::on_muteBtn_clicked(bool checked)
{
    muteBtn->setChecked(checked);
    action(QStringLiteral("actionMute"))->setChecked(checked);
    TaskTreeOps::Repolish(muteBtn);
    player->setVolume(checked ? 0.0 : sliderVolume->value() * 0.01);
}

void CMainWnd::stepVolume(int sign)
{
    sliderVolume->setValue(sliderVolume->value() + sign * sliderVolume->pageStep());
}

void CMainWnd::on_actionUp_triggered()
{
    stepVolume(1);
}

void CMainWnd::on_actionDown_triggered()
{
    stepVolume(-1);
}

QString CMainWnd::snapshotFolder() const
{
    const QString folder = QDir::fromNativeSeparators(Setting::snapshotDir());
    QDir().mkdir(folder);
    return folder;
}

void CMainWnd::on_snapshotBtn_clicked()
{
    if (!playing)
        return;
    const QImage image = player->originalImage();
    const QTreeWidgetItem *current = treeTask->currentItem();
    const QString type = Setting::imageType();
    const QString path = snapshotFolder() + QLatin1Char('/') + (current ? current->text(0) : QString())
                         + QLatin1Char('_')
                         + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss"))
                         + QLatin1Char('.') + type;
    if (image.isNull() || !image.save(path, type.toUtf8().constData()))
        QMessageBox::information(this, WindowTitleText(), tr("Can not save the image."));
}

void CMainWnd::openSnapshotFolder()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(snapshotFolder()));
}

void CMainWnd::changeSnapshotFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select a Folder"), snapshotFolder());
    if (!folder.isEmpty())
        setSettingString(QStringLiteral("SnapshotDir"), QDir::toNativeSeparators(folder));
}

void CMainWnd::applyZoom(const ChildTask &input, double fullScreen)
{
    double zoom = 0.0;
    if (zoomOf(input.edit.zoomMode, zoom))
        playWnd->setZoom(zoom == -1.0 ? fullScreen : zoom);
}

void CMainWnd::playModeOrignal()
{
    showPlayMode(false);
}

void CMainWnd::playModeOutput()
{
    showPlayMode(true);
}

void CMainWnd::showPlayMode(bool output)
{
    actionPlayOriginal->setChecked(!output);
    actionPlayOutput->setChecked(output);
    const ChildTask *input = TaskTreeOps::instance().inputOf(treeTask->currentItem());
    if (!input)
        return;
    // The source's whole picture in the output's frame, or the output as it will be.
    const double aspect = outputAspectOf(*input);
    const EditParameters &edit = input->edit;
    playWnd->setFrameAspect(aspect);
    if (output) {
        playWnd->setCrop(edit.cropTop, edit.cropRight, edit.cropBottom, edit.cropLeft);
        applyZoom(*input, aspect);
    } else {
        playWnd->setCrop(0, 0, 0, 0);
        playWnd->setZoom(aspect);
    }
}

void CMainWnd::handOverPlayer()
{
    if (playing)
        stopPreview();
    disconnect(player, &FFPlayer::playStateChanged, this, &CMainWnd::playStateChanged);
    playWnd->disConnect();
}

void CMainWnd::takeBackPlayer()
{
    connect(player, &FFPlayer::playStateChanged, this, &CMainWnd::playStateChanged,
            Qt::UniqueConnection);
    playWnd->reConnect();
}
