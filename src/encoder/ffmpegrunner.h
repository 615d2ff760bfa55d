#pragma once

#include <QStringList>

#include <functional>
#include <sys/types.h>
#include <vector>

// Runs stock ffmpeg as a child whose standard error we pass on unchanged, so
// its status lines reach whoever watches us as they are.
class FFmpegRunner
{
public:
    // ffmpeg from $KESTROVE_FFMPEG when set, else from the PATH.
    static QString ffmpegProgram();

    struct Options
    {
        std::vector<int> childFds;     // become descriptors 3, 4, ... of the child
        int cpuPercent = 0;            // share of the whole machine, 1 to 99; else no limit
        std::function<void()> started; // called in the parent once the child runs
    };

    struct Result
    {
        int exitCode = 127;       // 127: could not be started, with a line on stderr saying why
        int signal = 0;           // non-zero: the child was killed by this signal
        bool writeFailed = false; // the output could not be written out, whatever the exit code
    };

    // Starts the program with `childFds` as its descriptors 3, 4, ..., its
    // standard output on `outputFd` (-1: ours) and its standard error on
    // `errorFd`. The child dies with us. -1, with a line on our standard
    // error, when it could not be started.
    static pid_t spawn(const QString &program, const QStringList &arguments,
                       const std::vector<int> &childFds, int outputFd, int errorFd);

    // Other children that our signals reach with run()'s, up to four.
    static void addCompanion(pid_t pid);
    static void removeCompanion(pid_t pid);

    // From now on SIGINT, SIGTERM and SIGHUP are passed on to the children,
    // also to those started after the signal came; call before any child.
    static void catchStopSignals();
    // The signal that asked us to stop, 0 while none did.
    static int stopRequest();
    // Ends the job: the child and those beside it are told to stop, now or
    // as soon as they start. Safe from any thread.
    static void abandon();
    static bool abandoned();

    // Runs the program with the arguments and waits for it.
    static Result run(const QString &program, const QStringList &arguments, const Options &options);
};
