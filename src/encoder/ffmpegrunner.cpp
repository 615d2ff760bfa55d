#include "ffmpegrunner.h"

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

volatile sig_atomic_t childPid = -1;
// The ffmpegs beside it, for sound and picture; 0 for a free place.
volatile sig_atomic_t companionPids[4] = {};
volatile sig_atomic_t stopSignal = 0;
std::atomic<bool> abandonedJob{false};

// The child and, as the writing ffmpeg may be waiting for them, those beside
// it. Safe in a signal handler.
void signalAll(int signalNumber)
{
    if (childPid > 0)
        ::kill(pid_t(childPid), signalNumber);
    for (const auto &pid : companionPids) {
        if (pid > 0)
            ::kill(pid_t(pid), signalNumber);
    }
}

void forwardSignal(int signalNumber)
{
    stopSignal = signalNumber;
    signalAll(signalNumber);
}

// A request that came before the child was there reaches it now.
void forwardMissed(pid_t pid)
{
    if (stopSignal != 0 && pid > 0)
        ::kill(pid, int(stopSignal));
    else if (abandonedJob && pid > 0)
        ::kill(pid, SIGTERM);
}

void reportStartFailure(const char *program, int error)
{
    std::fprintf(stderr, "kestrove-encoder: cannot start %s: %s\n", program, std::strerror(error));
    std::fflush(stderr);
}

// CPU seconds the process has used, all its threads together.
double cpuSeconds(pid_t pid)
{
    char path[64];
    std::snprintf(path, sizeof path, "/proc/%d/stat", static_cast<int>(pid));
    QFile stat(QString::fromLatin1(path));
    if (!stat.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = stat.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    // Fields 14 and 15 of the file: user and system time, here 11 and 12.
    if (fields.size() < 13)
        return -1;
    static const double ticks = static_cast<double>(::sysconf(_SC_CLK_TCK));
    return (fields[11].toDouble() + fields[12].toDouble()) / ticks;
}

double now()
{
    timespec ts;
    ::clock_gettime(CLOCK_MONOTONIC, &ts);
    return ts.tv_sec + ts.tv_nsec / 1e9;
}

void sleepSeconds(double seconds)
{
    timespec ts;
    ts.tv_sec = static_cast<time_t>(seconds);
    ts.tv_nsec = static_cast<long>((seconds - ts.tv_sec) * 1e9);
    while (::nanosleep(&ts, &ts) != 0 && errno == EINTR) {
    }
}

// Passes the child's standard error on unchanged, and notices the write
// errors that ffmpeg reports without failing.
class ErrorWatch
{
public:
    explicit ErrorWatch(int fd)
        : fd(fd)
    {}

    // Relays what there is; false at the end of the stream.
    bool relay()
    {
        char buffer[4096];
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got < 0)
            return errno == EINTR || errno == EAGAIN;
        if (got == 0)
            return false;
        for (ssize_t done = 0; done < got;) {
            const ssize_t n = ::write(STDERR_FILENO, buffer + done, size_t(got - done));
            if (n <= 0 && errno != EINTR)
                break;
            done += qMax<ssize_t>(n, 0);
        }
        // Keep a tail so that a message split between reads is still seen.
        tail.append(buffer, int(got));
        static const char *const patterns[] = {"No space left on device", "Error writing trailer",
                                               "Error closing file", "Disk quota exceeded"};
        for (const char *pattern : patterns)
            writeFailed |= tail.contains(pattern);
        tail = tail.right(64);
        return true;
    }

    bool writeFailed = false;

private:
    int fd;
    QByteArray tail;
};

// Waits for the child while relaying its errors. With a share below 100%,
// holds it to that share of the machine by stopping it whenever it has used
// more processor time than the share allows.
int waitForChild(pid_t pid, int cpuPercent, ErrorWatch &errors, int errorFd)
{
    const bool limited = cpuPercent > 0 && cpuPercent < 100;
    const double share = cpuPercent / 100.0 * static_cast<double>(::sysconf(_SC_NPROCESSORS_ONLN));
    const double slice = 0.05;
    double budget = 0;
    double lastCpu = cpuSeconds(pid);
    double lastTime = now();
    bool open = true;
    int status = 0;
    for (;;) {
        if (open) {
            pollfd poll = {errorFd, POLLIN, 0};
            const int ready = ::poll(&poll, 1, limited ? int(slice * 1000) : -1);
            if (ready > 0)
                open = errors.relay();
        } else if (!limited) {
            while (::waitpid(pid, &status, 0) < 0) {
                if (errno != EINTR)
                    return 127 << 8;
            }
            return status;
        } else {
            sleepSeconds(slice);
        }
        const pid_t done = ::waitpid(pid, &status, WNOHANG);
        if (done == pid) {
            while (open)
                open = errors.relay();
            return status;
        }
        if (done < 0 && errno != EINTR)
            return 127 << 8;
        if (!limited)
            continue;
        const double cpu = cpuSeconds(pid);
        const double time = now();
        if (cpu < 0 || time - lastTime < slice)
            continue;
        budget += share * (time - lastTime) - (cpu - lastCpu);
        budget = qMin(budget, share * 0.2); // no saving up for a burst
        lastCpu = cpu;
        lastTime = time;
        if (budget < 0) {
            const double pause = qMin(-budget / share, 1.0);
            ::kill(pid, SIGSTOP);
            sleepSeconds(pause);
            ::kill(pid, SIGCONT);
            lastTime = now();
            budget += share * pause;
        }
    }
}

} // namespace

void FFmpegRunner::addCompanion(pid_t pid)
{
    for (auto &place : companionPids) {
        if (place == 0) {
            place = pid;
            break;
        }
    }
    forwardMissed(pid);
}

void FFmpegRunner::removeCompanion(pid_t pid)
{
    for (auto &place : companionPids) {
        if (place == pid)
            place = 0;
    }
}

void FFmpegRunner::catchStopSignals()
{
    struct sigaction action = {};
    action.sa_handler = forwardSignal;
    sigemptyset(&action.sa_mask);
    for (int sig : {SIGINT, SIGTERM, SIGHUP})
        ::sigaction(sig, &action, nullptr);
}

void FFmpegRunner::abandon()
{
    abandonedJob = true;
    signalAll(SIGTERM);
}

bool FFmpegRunner::abandoned()
{
    return abandonedJob;
}

int FFmpegRunner::stopRequest()
{
    return int(stopSignal);
}

QString FFmpegRunner::ffmpegProgram()
{
    const QByteArray fromEnv = qgetenv("KESTROVE_FFMPEG");
    if (!fromEnv.isEmpty())
        return QString::fromLocal8Bit(fromEnv);
    const QString found = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
    return found.isEmpty() ? QStringLiteral("ffmpeg") : found;
}

pid_t FFmpegRunner::spawn(const QString &program, const QStringList &arguments,
                          const std::vector<int> &childFds, int outputFd, int errorFd)
{
    std::vector<QByteArray> storage;
    storage.reserve(arguments.size() + 1);
    storage.push_back(QFile::encodeName(program));
    for (const QString &argument : arguments)
        storage.push_back(argument.toLocal8Bit());
    std::vector<char *> argv;
    for (QByteArray &item : storage)
        argv.push_back(item.data());
    argv.push_back(nullptr);
    // Everything the child needs is made here: after a fork in a process
    // with threads, only async-signal-safe calls are allowed.
    std::vector<int> high(childFds.size(), -1);
    const int stopSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

    // A pipe that closes on exec tells the parent whether exec worked.
    int execPipe[2];
    if (::pipe2(execPipe, O_CLOEXEC) != 0) {
        reportStartFailure(argv[0], errno);
        return -1;
    }
    const pid_t parentPid = ::getpid();
    const pid_t pid = ::fork();
    if (pid < 0) {
        reportStartFailure(argv[0], errno);
        ::close(execPipe[0]);
        ::close(execPipe[1]);
        return -1;
    }
    if (pid == 0) {
        ::close(execPipe[0]);
        // Dies with us, so a killed front leaves no encoder behind.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parentPid)
            ::_exit(127);
        // Our handlers forward to children this one does not have.
        for (int sig : stopSignals)
            ::signal(sig, SIG_DFL);
        if (outputFd >= 0)
            ::dup2(outputFd, STDOUT_FILENO);
        ::dup2(errorFd, STDERR_FILENO);
        // Move the descriptors out of the way first, then into place.
        for (size_t k = 0; k < high.size(); ++k)
            high[k] = ::fcntl(childFds[k], F_DUPFD_CLOEXEC, 64);
        for (size_t k = 0; k < high.size(); ++k)
            ::dup2(high[k], static_cast<int>(3 + k));
        ::execvp(argv[0], argv.data());
        const int error = errno;
        [[maybe_unused]] ssize_t n = ::write(execPipe[1], &error, sizeof error);
        ::_exit(127);
    }
    ::close(execPipe[1]);
    int execError = 0;
    ssize_t got;
    do {
        got = ::read(execPipe[0], &execError, sizeof execError);
    } while (got < 0 && errno == EINTR);
    ::close(execPipe[0]);
    if (got == static_cast<ssize_t>(sizeof execError)) {
        int status;
        ::waitpid(pid, &status, 0);
        reportStartFailure(argv[0], execError);
        return -1;
    }
    return pid;
}

FFmpegRunner::Result FFmpegRunner::run(const QString &program, const QStringList &arguments,
                                       const Options &options)
{
    int errorPipe[2];
    if (::pipe2(errorPipe, O_CLOEXEC) != 0) {
        reportStartFailure(QFile::encodeName(program).constData(), errno);
        return {};
    }
    childPid = spawn(program, arguments, options.childFds, -1, errorPipe[1]);
    ::close(errorPipe[1]);
    if (childPid < 0) {
        ::close(errorPipe[0]);
        return {};
    }
    forwardMissed(childPid);
    if (options.started)
        options.started();

    ErrorWatch errors(errorPipe[0]);
    const int status = waitForChild(pid_t(childPid), options.cpuPercent, errors, errorPipe[0]);
    ::close(errorPipe[0]);
    childPid = -1;
    Result result;
    result.writeFailed = errors.writeFailed;
    if (WIFSIGNALED(status))
        result.signal = WTERMSIG(status);
    else if (WIFEXITED(status))
        result.exitCode = WEXITSTATUS(status);
    return result;
}
