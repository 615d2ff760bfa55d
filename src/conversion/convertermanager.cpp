#include "convertermanager.h"

#include "cavconverter.h"
#include "commandbuilder.h"
#include "settings.h"
#include "tasklist.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

ConverterManager::ConverterManager(TaskList *taskList, QObject *parent)
    : QObject(parent)
    , tasks(taskList)
{}

ConverterManager::~ConverterManager()
{
    // Closing the program kills every encoder; their results no longer matter.
    const QList<CAVConverter *> converters = running.values() + idle;
    for (CAVConverter *converter : converters) {
        disconnect(converter, nullptr, this, nullptr);
        converter->stop();
    }
}

qint64 ConverterManager::processId(int taskId) const
{
    const CAVConverter *converter = running.value(taskId);
    return converter ? converter->processId() : 0;
}

QString ConverterManager::logFolder()
{
    return Setting::outputDir();
}

void ConverterManager::changeState(Task &task, Task::EState state)
{
    task.setState(state);
    emit stateChanged(task.id, state);
}

void ConverterManager::startAll()
{
    tasks->updateCommonRoot();
    batchActive = true;
    for (int i = 0; i < tasks->count(); ++i) {
        Task *task = tasks->at(i);
        if (task->isChecked()
            && (task->state == Task::Idle || task->state == Task::Succeed
                || task->state == Task::Failed))
            changeState(*task, Task::Waiting);
    }
    schedule();
}

void ConverterManager::stopAll()
{
    for (int i = 0; i < tasks->count(); ++i) {
        Task *task = tasks->at(i);
        if (task->isChecked() && task->state == Task::Waiting)
            changeState(*task, Task::Idle);
    }
    // The tasks end as Failed when their processes report the kill.
    const QList<CAVConverter *> converters = running.values();
    for (CAVConverter *converter : converters)
        converter->stop();
}

void ConverterManager::pauseAll()
{
    for (auto it = running.cbegin(); it != running.cend(); ++it) {
        if (it.value()->state() != CAVConverter::Running)
            continue;
        it.value()->setPaused(true);
        if (Task *task = tasks->byId(it.key()))
            changeState(*task, Task::Paused);
    }
}

void ConverterManager::startTask(int taskId)
{
    tasks->updateCommonRoot();
    Task *task = tasks->byId(taskId);
    if (!task)
        return;
    CAVConverter *converter = running.value(taskId);
    if (!converter) {
        launch(*task);
    } else if (converter->state() == CAVConverter::Suspended) {
        converter->setPaused(false);
        changeState(*task, Task::Running);
    }
}

void ConverterManager::pauseTask(int taskId)
{
    CAVConverter *converter = running.value(taskId);
    Task *task = tasks->byId(taskId);
    if (!converter || !task)
        return;
    if (converter->state() == CAVConverter::Running)
        converter->setPaused(true);
    if (converter->state() == CAVConverter::Running
        || converter->state() == CAVConverter::Suspended)
        changeState(*task, Task::Paused);
}

void ConverterManager::stopTask(int taskId)
{
    if (CAVConverter *converter = running.value(taskId))
        converter->stop();
}

void ConverterManager::setMaxProcesses(int count)
{
    if (!batchActive) {
        maxProcesses = count;
        return;
    }
    if (count == maxProcesses)
        return;
    const int drop = maxProcesses - count;
    maxProcesses = count;
    if (drop < 0) {
        schedule();
        return;
    }
    // Fewer slots: the first running encoders stand until a later pass.
    int suspended = 0;
    for (auto it = running.cbegin(); it != running.cend() && suspended < drop; ++it) {
        if (it.value()->state() != CAVConverter::Running)
            continue;
        it.value()->setPaused(true);
        ++suspended;
        if (Task *task = tasks->byId(it.key()))
            changeState(*task, Task::Paused);
    }
}

void ConverterManager::schedule()
{
    int free = maxProcesses - int(running.size());
    // The walk sees the encoders as they were at its start; the ones it
    // launches itself are not walked again.
    const QList<int> walk = running.keys();
    int next = 0;
    while (free > 0) {
        if (next < walk.size()) {
            const int taskId = walk.at(next++);
            CAVConverter *converter = running.value(taskId);
            if (converter && converter->state() == CAVConverter::Suspended) {
                converter->setPaused(false);
                if (Task *task = tasks->byId(taskId))
                    changeState(*task, Task::Running);
                --free;
                continue;
            }
        }
        Task *waiting = tasks->firstInState(Task::Waiting);
        if (!waiting)
            break;
        launch(*waiting);
        --free;
    }
    for (int i = 0; i < tasks->count(); ++i) {
        Task *task = tasks->at(i);
        if (task->state == Task::Paused)
            changeState(*task, Task::Pending);
    }
}

void ConverterManager::launch(Task &task)
{
    CAVConverter *converter = nullptr;
    if (!idle.isEmpty()) {
        converter = idle.takeLast();
    } else {
        converter = new CAVConverter(this);
        connect(converter, &CAVConverter::progressUpdated, this,
                &ConverterManager::on_progressUpdated);
        // Queued: the converter finishes its own bookkeeping before it can
        // be taken from the pool again.
        connect(converter, &CAVConverter::convertFinished, this,
                &ConverterManager::on_convertFinished, Qt::QueuedConnection);
    }

    if (Setting::outputLog() != 0) {
        const QString folder = logFolder();
        QDir().mkpath(folder);
        converter->setLogFile(folder + QStringLiteral("/videoconverter%1.log").arg(task.id));
    } else {
        converter->setLogFile(QString());
    }
    running.insert(task.id, converter);

    task.failure.clear();
    QString error;
    const bool prepared = CommandBuilder::prepare(task, tasks->commonRootPath(), &error);
    converter->setCommand(prepared ? CommandBuilder::build(task) : QStringList(), task.id);
    changeState(task, Task::Running);
    if (!prepared) {
        task.failure = error;
        // Through the queue, as any other end, after the launch has returned.
        QMetaObject::invokeMethod(
            this, [this, id = task.id] { on_convertFinished(id, false); }, Qt::QueuedConnection);
        return;
    }
    converter->start();
}

void ConverterManager::release(int taskId)
{
    CAVConverter *converter = running.take(taskId);
    if (!converter)
        return;
    const QString log = converter->logFile();
    if (!log.isEmpty()) {
        QFile part(log);
        if (part.open(QIODevice::ReadOnly)) {
            QFile collection(logFolder() + QStringLiteral("/videoconverter.log"));
            if (collection.open(QIODevice::WriteOnly | QIODevice::Append))
                collection.write(part.readAll());
            part.close();
            part.remove();
        }
    }
    idle.append(converter);
}

void ConverterManager::on_progressUpdated(int nTaskId, double progress)
{
    emit progressChanged(nTaskId, progress);
}

void ConverterManager::on_convertFinished(int nTaskId, bool bSuccess)
{
    if (Task *task = tasks->byId(nTaskId)) {
        task->removeWatermarkFiles();
        task->setChecked(false);
        const CAVConverter *converter = running.value(nTaskId);
        if (!bSuccess && task->failure.isEmpty() && converter)
            task->failure = converter->failureReason();
        // A picture series is judged by its first picture; any other name
        // is taken as it stands, "%03d" and all.
        QString output = task->output.filePath;
        if (task->isPictureSeries())
            output.replace(QStringLiteral("%03d"), QStringLiteral("001"));
        const QFileInfo file(output);
        const bool good = bSuccess && file.isFile() && file.size() > 0;
        if (bSuccess && !good)
            task->failure = QStringLiteral("the encoder left no output in \"%1\"").arg(output);
        // The name was reserved with an empty file; a run that wrote nothing
        // leaves nothing behind.
        if (!good && !task->isPictureSeries() && file.isFile() && file.size() == 0)
            QFile::remove(output);
        changeState(*task, good ? Task::Succeed : Task::Failed);
    }
    release(nTaskId);
    if (batchActive)
        schedule();
    if (!tasks->firstInState(Task::Waiting))
        batchActive = false;
}
