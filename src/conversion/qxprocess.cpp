#include "qxprocess.h"

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

QxProcess::QxProcess(QObject *parent)
    : QProcess(parent)
{
    setChildProcessModifier([] {
        ::setpgid(0, 0);
        // An encoder must not outlive the program that watches it.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    connect(this, &QProcess::stateChanged, this, [this](QProcess::ProcessState newState) {
        if (newState == QProcess::NotRunning)
            suspended = terminating = false;
    });
}

QxProcess::~QxProcess()
{
    // QProcess's own destructor would end the child and report it to
    // receivers that are already half destroyed, this object among them.
    blockSignals(true);
    if (state() != NotRunning) {
        // Asked to end, the encoder removes what it wrote.
        if (!terminateGroup() || !waitForFinished(3000))
            killGroup();
        waitForFinished(5000);
    }
}

bool QxProcess::signalGroup(int signalNumber)
{
    const qint64 pid = processId();
    if (pid <= 0)
        return false;
    if (::kill(-static_cast<pid_t>(pid), signalNumber) == 0)
        return true;
    // The group may not exist yet if the child has not run its modifier.
    return ::kill(static_cast<pid_t>(pid), signalNumber) == 0;
}

bool QxProcess::setSuspended(bool suspend)
{
    const bool ok = signalGroup(suspend ? SIGSTOP : SIGCONT);
    if (ok)
        suspended = suspend;
    return ok;
}

bool QxProcess::terminateGroup()
{
    if (terminating)
        return true;
    // To the leader alone: it passes the request on to its own children once,
    // and ffmpeg takes a few requests for a hard exit without its trailer.
    const qint64 pid = processId();
    if (pid <= 0 || ::kill(static_cast<pid_t>(pid), SIGTERM) != 0)
        return false;
    terminating = true;
    signalGroup(SIGCONT);
    suspended = false;
    return true;
}

void QxProcess::killGroup()
{
    signalGroup(SIGKILL);
    kill();
}
