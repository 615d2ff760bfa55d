#pragma once

#include "sourceimport.h"
#include "task.h"

#include <QMap>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>

class ConverterManager;
class QTimer;
class TaskList;

// "kestrove-cli convert INPUT... --profile KEY ...": imports the inputs as
// the window does, applies the profile and the options, and runs the batch
// through the conversion queue.
class ConvertCommand : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConvertCommand)

public:
    explicit ConvertCommand(QObject *parent = nullptr);
    ~ConvertCommand() override;

    int run(const QStringList &args);

private:
    // What the options ask of every task, checked before anything is imported.
    struct Request
    {
        QStringList inputs;
        QString profileKey;
        QMap<QString, QString> values; // the profile's, with --set over them
        QSet<QString> userKeys;        // those that --set gave
        QList<int> titles;             // empty: all
        int firstChapter = 0;          // 0: the whole input
        int lastChapter = 0;
        int audio = 0; // 0: the profile's choice
        int subtitle = 0;
        int jobs = 1;
        QString outputDir;
        bool merge = false;
        bool json = false;
    };
    // A task that never reached the queue, or one that did.
    struct Entry
    {
        QString source;
        QString title;
        int taskId = -1;
        QString error;
    };

    int parseRequest(const QStringList &args, Request &request);
    void buildTasks(const Request &request, const QList<ImportedSource> &sources);
    QString editTask(const Request &request, int taskId);
    void onStateChanged(int taskId, Task::EState state);
    void onInterrupted();
    void drawProgress();
    void clearProgress();
    int report(bool json);

    std::unique_ptr<TaskList> list;
    // After the list: it goes first and stops encoders that still run.
    std::unique_ptr<ConverterManager> manager;
    QTimer *ticker = nullptr;
    QList<Entry> entries;
    bool terminal = false;
    bool interrupted = false;
    int drawnLines = 0;
};
