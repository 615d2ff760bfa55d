#include "encoderjob.h"
#include "ffmpegrunner.h"
#include "inputprobe.h"
#include "soundencoder.h"
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

    // The sound in an ffmpeg of its own where that is faster; a single file
    // is asked what it holds only then.
    SoundEncoder sound;
    QString soundSource;
    QList<InputLayout> known = layouts;
    if (job->soundApart(known) && !job->inputs[0].isTitle())
        known[0] = InputProbe::layout(job->inputs[0].path);
    if (job->soundApart(known)) {
        std::vector<int> soundFds;
        QString soundInput = job->inputs[0].path;
        if (job->inputs[0].isTitle()) {
            soundFds.push_back(feeders[0]->addReader());
            soundInput = QStringLiteral("pipe:3");
        }
        if (soundFds.empty() || soundFds[0] >= 0) {
            if (sound.start(FFmpegRunner::ffmpegProgram(),
                            job->soundArguments(soundInput, known[0]), soundFds)) {
                soundSource = QStringLiteral("pipe:%1").arg(3 + options.childFds.size());
                options.childFds.push_back(sound.readEnd());
            }
        }
    }

    options.started = [&feeders, &sound] {
        for (auto &feeder : feeders)
            feeder->start();
        sound.consumerStarted();
    };
    const auto result
        = FFmpegRunner::run(FFmpegRunner::ffmpegProgram(),
                            job->ffmpegArguments(sources, layouts, soundSource), options);
    int exitCode = result.exitCode;
    if (!soundSource.isEmpty()) {
        const bool failed = result.signal != 0 || exitCode != 0;
        // Cut short when the file failed; cut short and whole look alike to
        // the writing ffmpeg, so a sound that failed fails the file.
        if (!sound.finish(failed) || failed) {
            const QByteArray errors = sound.errors().trimmed();
            if (!errors.isEmpty())
                say(QStringLiteral("sound: ") + QString::fromLocal8Bit(errors));
            if (!failed) {
                say(QStringLiteral("the sound could not be encoded"));
                exitCode = 1;
            }
        }
    }
    for (auto &feeder : feeders) {
        feeder->finish();
        if (feeder->skippedBlocks() > 0)
            say(QStringLiteral("skipped %1 unreadable blocks of title %2")
                    .arg(feeder->skippedBlocks())
                    .arg(feeder->pgc()));
        if (!feeder->error().isEmpty()) {
            say(feeder->error());
            exitCode = 1;
        }
    }
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
