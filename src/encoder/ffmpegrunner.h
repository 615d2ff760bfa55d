#pragma once

#include <QStringList>

#include <vector>

// Runs stock ffmpeg as a child that shares our standard output and error, so
// its status lines reach whoever watches us unchanged.
class FFmpegRunner
{
public:
    // ffmpeg from $KESTROVE_FFMPEG when set, else from the PATH.
    static QString ffmpegProgram();

    struct Options
    {
        std::vector<int> childFds; // become descriptors 3, 4, ... of the child
        int cpuPercent = 0;        // share of the whole machine, 1 to 99; else no limit
    };

    struct Result
    {
        int exitCode = 127; // 127: could not be started, with a line on stderr saying why
        int signal = 0;     // non-zero: the child was killed by this signal
    };

    // Runs the program with the arguments and waits for it.
    static Result run(const QString &program, const QStringList &arguments, const Options &options);
};
