#include "encoderjob.h"
#include "ffmpegrunner.h"
#include "inputprobe.h"
#include "titlefeeder.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace {

// Remembers the output file as it was before ffmpeg ran, so that only what
// ffmpeg itself wrote is ever removed.
class OutputWatch
{
public:
    explicit OutputWatch(const QString &path)
        : path(path)
        , before(stat(path))
    {}

    bool removeIfWritten() const
    {
        const Stamp after = stat(path);
        if (!after.regular
            || (before.exists && after.size == before.size && after.mtime == before.mtime))
            return false;
        return QFile::remove(path);
    }

private:
    struct Stamp
    {
        bool exists = false;
        bool regular = false;
        qint64 size = 0;
        qint64 mtime = 0;
    };

    static Stamp stat(const QString &path)
    {
        Stamp stamp;
        struct stat info;
        if (::stat(QFile::encodeName(path).constData(), &info) != 0)
            return stamp;
        stamp.exists = true;
        stamp.regular = S_ISREG(info.st_mode);
        stamp.size = info.st_size;
        stamp.mtime = qint64(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec;
        return stamp;
    }

    QString path;
    Stamp before;
};

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

    // A title reaches ffmpeg through a pipe of its own, as descriptor 3, 4, ...
    std::signal(SIGPIPE, SIG_IGN);
    std::vector<std::unique_ptr<TitleFeeder>> feeders;
    const OutputWatch watch(job->outputPath);
    FFmpegRunner::Options options;
    options.cpuPercent = job->cpuPercent;
    QStringList sources;
    QList<InputLayout> layouts;
    for (const EncoderInput &input : job->inputs) {
        if (!input.isTitle()) {
            sources << input.path;
            // Only a join of several inputs needs to know what each one holds.
            layouts << (job->inputs.size() > 1 ? InputProbe::layout(input.path) : InputLayout());
            continue;
        }
        auto feeder = std::make_unique<TitleFeeder>();
        QString error;
        if (!feeder->open(input.path, input.pgc, &error)) {
            say(error);
            return 1;
        }
        InputLayout layout;
        layout.audioSpecifier = feeder->audioSpecifier(input.audioTrack);
        layout.hasAudio = !layout.audioSpecifier.isEmpty();
        if (input.audioTrack >= 0 && !layout.hasAudio) {
            say(QStringLiteral("title %1 has no audio track %2")
                    .arg(input.pgc)
                    .arg(input.audioTrack));
            return 1;
        }
        layout.subtitleSpecifier = feeder->subtitleSpecifier(input.subtitle);
        if (input.subtitle >= 0 && layout.subtitleSpecifier.isEmpty()) {
            say(QStringLiteral("title %1 has no subtitle track %2")
                    .arg(input.pgc)
                    .arg(input.subtitle));
            return 1;
        }
        InputProbe::addTitleLayout(layout, input.path, input.pgc);
        layouts << layout;
        sources << QStringLiteral("pipe:%1").arg(3 + options.childFds.size());
        options.childFds.push_back(feeder->readEnd());
        feeders.push_back(std::move(feeder));
    }
    options.started = [&feeders] {
        for (auto &feeder : feeders)
            feeder->start();
    };
    const auto result = FFmpegRunner::run(FFmpegRunner::ffmpegProgram(),
                                          job->ffmpegArguments(sources, layouts), options);
    for (auto &feeder : feeders)
        feeder->finish();
    int exitCode = result.exitCode;
    if (result.writeFailed && exitCode == 0) {
        say(QStringLiteral("the output could not be written completely: \"%1\"")
                .arg(job->outputPath));
        exitCode = 1;
    }
    if (result.signal != 0 || exitCode != 0) {
        // A half-written file must not pass for a finished one.
        if (watch.removeIfWritten())
            say(QStringLiteral("removed the unfinished output \"%1\"").arg(job->outputPath));
    }
    if (result.signal != 0) {
        // Die the way ffmpeg died, so a crash reads as a crash.
        std::signal(result.signal, SIG_DFL);
        std::raise(result.signal);
    }
    return exitCode;
}
