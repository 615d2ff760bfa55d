#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <atomic>

class TaskList;

namespace Logical {

// The small pictures of the task rows: a placeholder (or the picture file
// itself) at once, a frame from the video later. Frames are grabbed on the
// global thread pool, one at a time under the media lock, and reach the
// tasks on the GUI thread.
class MediaImageReader : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MediaImageReader)

public:
    static MediaImageReader *instance();

    void setTaskList(TaskList *list) { taskList = list; }
    // Until the queued grabs have ended; their pictures arrive as events.
    void waitForDone() { pool.waitForDone(); }
    void setVideoImage(const QImage &image) { videoImage = image; }
    void setAudioImage(const QImage &image) { audioImage = image; }

    void requestImage(int taskId, double seconds, bool showPlaceholder);
    void requestChildImage(int taskId, int childId, double seconds, bool showPlaceholder);
    // `position` on the task's trimmed timeline.
    void requestImageAt(int taskId, double position, bool onlyChecked);
    // Refuses further work and waits until the running grab has ended.
    void stop();
    bool isStopping() const { return stopping; }

signals:
    void imageChanged(int taskId);
    void imageChanged(int taskId, int mergeTaskId);

public slots:
    void receiveImage(int taskId, int mergeTaskId, const QImage &image);

private:
    explicit MediaImageReader(QObject *parent = nullptr);
    void startJob(const QString &path, int pgc, double seconds, int taskId, int mergeTaskId);

    std::atomic<bool> stopping{false};
    QThreadPool pool;
    TaskList *taskList = nullptr;
    QImage videoImage;
    QImage audioImage;
};

} // namespace Logical
