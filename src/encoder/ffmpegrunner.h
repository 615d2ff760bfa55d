#pragma once

#include <QStringList>

// Runs stock ffmpeg as a child that shares our standard output and error, so
// its status lines reach whoever watches us unchanged.
class FFmpegRunner
{
public:
    // ffmpeg from $KESTROVE_FFMPEG when set, else from the PATH.
    static QString ffmpegProgram();

    struct Result
    {
        int exitCode = 127; // 127: could not be started, with a line on stderr saying why
        int signal = 0;     // non-zero: the child was killed by this signal
    };

    // Runs the program with the arguments and waits for it.
    static Result run(const QString &program, const QStringList &arguments);
};
