#pragma once

#include <QProcess>

// A QProcess whose child can be stopped and continued. The child leads a
// process group of its own, so the signals reach every process it started.
class QxProcess : public QProcess
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QxProcess)

public:
    explicit QxProcess(QObject *parent = nullptr);
    ~QxProcess() override;

    // Stops (true) or continues (false) the child and its descendants.
    // False only when no signal could be delivered.
    bool setSuspended(bool suspend);
    bool isSuspended() const { return suspended; }

    // Kills the child's whole process group at once, stopped or not.
    void killGroup();
    // Asks the whole group to end, and continues it if it stood.
    bool terminateGroup();

private:
    bool signalGroup(int signalNumber);

    bool suspended = false;
    bool terminating = false;
};
