#include "ffmpegrunner.h"

#include <QByteArray>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

pid_t childPid = -1;

void forwardSignal(int signalNumber)
{
    if (childPid > 0)
        ::kill(childPid, signalNumber);
}

} // namespace

QString FFmpegRunner::ffmpegProgram()
{
    const QByteArray fromEnv = qgetenv("KESTROVE_FFMPEG");
    if (!fromEnv.isEmpty())
        return QString::fromLocal8Bit(fromEnv);
    const QString found = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
    return found.isEmpty() ? QStringLiteral("ffmpeg") : found;
}

FFmpegRunner::Result FFmpegRunner::run(const QString &program, const QStringList &arguments)
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

    // A pipe that closes on exec tells the parent whether exec worked.
    int execPipe[2];
    if (::pipe2(execPipe, O_CLOEXEC) != 0) {
        std::fprintf(stderr, "kestrove-encoder: cannot start %s: %s\n", argv[0],
                     std::strerror(errno));
        return {};
    }
    const pid_t parentPid = ::getpid();
    childPid = ::fork();
    if (childPid < 0) {
        std::fprintf(stderr, "kestrove-encoder: cannot start %s: %s\n", argv[0],
                     std::strerror(errno));
        return {};
    }
    if (childPid == 0) {
        ::close(execPipe[0]);
        // Dies with us, so a killed front leaves no encoder behind.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parentPid)
            ::_exit(127);
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

    struct sigaction action = {};
    action.sa_handler = forwardSignal;
    sigemptyset(&action.sa_mask);
    for (int sig : {SIGINT, SIGTERM, SIGHUP})
        ::sigaction(sig, &action, nullptr);

    int status = 0;
    while (::waitpid(childPid, &status, 0) < 0) {
        if (errno != EINTR) {
            status = 127 << 8;
            break;
        }
    }
    childPid = -1;
    if (got == static_cast<ssize_t>(sizeof execError)) {
        std::fprintf(stderr, "kestrove-encoder: cannot start %s: %s\n", argv[0],
                     std::strerror(execError));
        return {};
    }
    Result result;
    if (WIFSIGNALED(status))
        result.signal = WTERMSIG(status);
    else if (WIFEXITED(status))
        result.exitCode = WEXITSTATUS(status);
    return result;
}
