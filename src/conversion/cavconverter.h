#pragma once

#include "qxprocess.h"

#include <QObject>
#include <QStringList>

class QTimer;

// Runs one encoder process for one task: reports output time in whole
// seconds, keeps an optional log, pauses, stops and reports the end.
class CAVConverter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CAVConverter)

public:
    enum RunState { Running = 0, Suspended = 1, NoChild = 2 };

    explicit CAVConverter(QObject *parent = nullptr);

    void setLogFile(const QString &path);
    void setCommand(const QStringList &arguments, int taskId);
    void start();
    void setPaused(bool paused);
    // Asks the encoder to end, so that it removes what it wrote; a child
    // still there after the grace period is killed with its whole group.
    void stop();
    static constexpr int stopGraceMs = 3000;

    int id() const { return taskId; }
    int state() const { return runState; }
    QString logFile() const { return logPath; }
    qint64 processId() const { return process.processId(); }

    // The encoder front beside the application's executable.
    static QString defaultProgram();
    QString program() const { return programPath; }
    void setProgram(const QString &path) { programPath = path; }

    // Whole seconds of the first "time=" status field in a chunk of encoder
    // output, or -1 when the chunk has none.
    static double parseTime(const QByteArray &chunk);

    // Why the last run failed, as the encoder said it: its own error lines,
    // else the last lines of ffmpeg's that are not status lines. Empty after
    // a success.
    QString failureReason() const { return reason; }
    static QString reasonFromOutput(const QByteArray &tail);

signals:
    void convertFinished(int nTaskId, bool bSuccess);
    void progressUpdated(int nTaskId, double progress);

public slots:
    void onStdoutReady();
    void onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus);

private:
    void onProcessError(QProcess::ProcessError error);
    void appendLog(const QByteArray &bytes) const;
    void keepTail(const QByteArray &chunk);

    QStringList arguments;
    int taskId = -1;
    QString logPath;
    QxProcess process;
    double lastSeconds = 0.0;
    int runState = NoChild;
    QString programPath;
    QByteArray tail;        // the last of the output, for the reason of a failure
    QByteArray pendingLine; // a line not yet ended, for sanitizer reports
    QString reason;
    QTimer *killTimer;
};
