#include "ffmpegrunner.h"

#include <QCoreApplication>

#include <csignal>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    // Standard input is ours (a title is fed through it), never ffmpeg's keyboard.
    arguments.prepend(QStringLiteral("-nostdin"));
    const auto result = FFmpegRunner::run(FFmpegRunner::ffmpegProgram(), arguments);
    if (result.signal != 0) {
        // Die the way ffmpeg died, so a crash reads as a crash.
        std::signal(result.signal, SIG_DFL);
        std::raise(result.signal);
    }
    return result.exitCode;
}
