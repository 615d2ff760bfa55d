#include "mediaimagereader.h"

#include "mediainfo.h"
#include "tasklist.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRunnable>
#include <QThreadPool>

namespace Logical {

namespace {

constexpr int thumbnailWidth = 96;
constexpr int thumbnailHeight = 72;
// Smaller files are tried as pictures before any demuxer sees them.
constexpr qint64 pictureSizeLimit = 5242880;

} // namespace

// One frame grab on the pool thread. Knows its task only by id, so a task
// removed meanwhile is simply not found when the picture arrives.
class MediaImageReaderTask : public QObject, public QRunnable
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MediaImageReaderTask)

public:
    MediaImageReaderTask(const QString &path, int pgc, double seconds, int taskId, int mergeTaskId,
                         const std::atomic<bool> *stopFlag)
        : path(path)
        , pgc(pgc)
        , seconds(seconds)
        , taskId(taskId)
        , mergeTaskId(mergeTaskId)
        , stopFlag(stopFlag)
    {}

    void run() override
    {
        if (*stopFlag)
            return;
        const QImage image = GetPictureFromVideo(path, pgc, seconds);
        if (*stopFlag || image.isNull())
            return;
        emit sendImage(taskId, mergeTaskId, image);
    }

signals:
    void sendImage(int taskId, int mergeTaskId, const QImage &image);

private:
    QString path;
    int pgc;
    double seconds;
    int taskId;
    int mergeTaskId;
    const std::atomic<bool> *stopFlag;
};

MediaImageReader::MediaImageReader(QObject *parent)
    : QObject(parent)
{
    // The media lock lets only one grab run anyway; more threads would only
    // wait. Not Qt's shared pool: a grab waiting for the lock that the preview
    // holds would starve the painter's own work there.
    pool.setMaxThreadCount(1);
}

MediaImageReader *MediaImageReader::instance()
{
    static MediaImageReader *reader = new MediaImageReader(QCoreApplication::instance());
    return reader;
}

void MediaImageReader::startJob(const QString &path, int pgc, double seconds, int taskId,
                                int mergeTaskId)
{
    auto *job = new MediaImageReaderTask(path, pgc, seconds, taskId, mergeTaskId, &stopping);
    connect(job, &MediaImageReaderTask::sendImage, this, &MediaImageReader::receiveImage,
            Qt::QueuedConnection);
    pool.start(job);
}

void MediaImageReader::requestImage(int taskId, double seconds, bool showPlaceholder)
{
    Task *task = stopping || !taskList ? nullptr : taskList->byId(taskId);
    if (!task || task->items.empty())
        return;
    if (!task->name.isEmpty()) {
        for (int i = 0; i < task->itemCount(); ++i)
            requestChildImage(taskId, task->item(i)->id, seconds, showPlaceholder);
        return;
    }
    if (!task->hasVideoInput()) {
        if (showPlaceholder) {
            task->setThumbnail(0, audioImage);
            emit imageChanged(taskId);
        }
        return;
    }
    const ChildTask &first = *task->items.front();
    if (QFileInfo(first.sourcePath).size() < pictureSizeLimit) {
        QImage picture;
        if (picture.load(first.sourcePath)) {
            task->setThumbnail(0, picture.scaled(thumbnailWidth, thumbnailHeight,
                                                 Qt::IgnoreAspectRatio, Qt::FastTransformation));
            emit imageChanged(taskId);
            return;
        }
    }
    if (showPlaceholder) {
        task->setThumbnail(0, videoImage);
        emit imageChanged(taskId);
    }
    if (!stopping)
        startJob(first.sourcePath, first.pgcIndex, seconds, taskId, -1);
}

void MediaImageReader::requestChildImage(int taskId, int childId, double seconds,
                                         bool showPlaceholder)
{
    Task *task = stopping || !taskList ? nullptr : taskList->byId(taskId);
    ChildTask *child = task ? task->itemById(childId) : nullptr;
    if (!child)
        return;
    if (child->hasVideo) {
        if (showPlaceholder) {
            task->setThumbnail(childId, videoImage);
            emit imageChanged(taskId, childId);
        }
        if (!stopping)
            startJob(child->sourcePath, child->pgcIndex, seconds, taskId, childId);
    } else if (showPlaceholder) {
        task->setThumbnail(childId, audioImage);
        emit imageChanged(taskId, childId);
    }
}

void MediaImageReader::requestImageAt(int taskId, double position, bool onlyChecked)
{
    Task *task = taskList ? taskList->byId(taskId) : nullptr;
    if (!task || task->items.empty())
        return;
    if (task->name.isEmpty()) {
        requestImage(taskId, position + task->items.front()->edit.trimStart, false);
        return;
    }
    qint64 sum = 0;
    for (const auto &child : task->items) {
        if (onlyChecked && !child->checked)
            continue;
        const double length = child->edit.trimEnd - child->edit.trimStart;
        sum = qint64(length + double(sum));
        if (double(sum) >= position) {
            requestChildImage(taskId, child->id,
                              length + (position - double(sum)) + child->edit.trimStart, false);
            return;
        }
    }
}

void MediaImageReader::stop()
{
    stopping = true;
    pool.waitForDone();
}

void MediaImageReader::receiveImage(int taskId, int mergeTaskId, const QImage &image)
{
    Task *task = stopping || !taskList ? nullptr : taskList->byId(taskId);
    if (!task)
        return;
    if (task->name.isEmpty()) {
        task->setThumbnail(0, image);
        emit imageChanged(taskId);
    } else if (task->itemById(mergeTaskId)) {
        task->setThumbnail(mergeTaskId, image);
        emit imageChanged(taskId, mergeTaskId);
    }
}

} // namespace Logical

#include "mediaimagereader.moc"
