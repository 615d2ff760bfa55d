#include "encoderjob.h"
#include "ffmpegrunner.h"
#include "inputprobe.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

namespace {

void say(const QString &line)
{
    std::fprintf(stderr, "kestrove-encoder: %s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QString error;
    const auto job = EncoderJob::parse(QCoreApplication::arguments().mid(1), &error);
    if (!job) {
        say(error);
        say(QStringLiteral(
            "usage: kestrove-encoder [-y] [-cpu_percent N] "
            "{[-si] [-ss S] [-t T] [-pgc P -audio_track A -subtitle B] -i INPUT [-vf CHAIN]}... "
            "[OUTPUT OPTIONS] OUTPUT"));
        return 1;
    }
    for (const QString &note : job->notes)
        say(note);

    QStringList sources;
    QList<InputLayout> layouts;
    for (const EncoderInput &input : job->inputs) {
        if (input.isTitle()) {
            say(QStringLiteral("cannot read DVD titles (-pgc) in this build: %1").arg(input.path));
            return 1;
        }
        sources << input.path;
        // Only a join of several inputs needs to know what each one holds.
        layouts << (job->inputs.size() > 1 ? InputProbe::layout(input.path) : InputLayout());
    }

    FFmpegRunner::Options options;
    options.cpuPercent = job->cpuPercent;
    const auto result = FFmpegRunner::run(FFmpegRunner::ffmpegProgram(),
                                          job->ffmpegArguments(sources, layouts), options);
    if (result.signal != 0) {
        // Die the way ffmpeg died, so a crash reads as a crash.
        std::signal(result.signal, SIG_DFL);
        std::raise(result.signal);
    }
    return result.exitCode;
}
