#include "encoderjob.h"
#include "ffmpegrunner.h"
#include "inputprobe.h"
#include "soundencoder.h"
#include "titlefeeder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace {

// Remembers what the output's name stood for before ffmpeg ran (every
// picture of a series), so that only what ffmpeg itself wrote is removed.
class OutputWatch
{
public:
    OutputWatch(const QString &path, bool series)
        : path(path)
    {
        if (series) {
            const QFileInfo info(path);
            folder = info.absolutePath();
            // "name%03d.png" stands for name000.png, name001.png, ...
            QStringList parts;
            for (const QString &part :
                 info.fileName().split(QRegularExpression(QStringLiteral("%0?\\d*d"))))
                parts << QRegularExpression::escape(part);
            seriesPattern = QRegularExpression(QLatin1Char('^') + parts.join(QStringLiteral("\\d+"))
                                               + QLatin1Char('$'));
        }
        for (const QString &file : files())
            before.insert(file, stat(file));
    }

    // The number of files removed.
    int removeWritten() const
    {
        int removed = 0;
        for (const QString &file : files()) {
            const Stamp after = stat(file);
            const auto was = before.constFind(file);
            if (!after.regular
                || (was != before.cend() && after.size == was->size && after.mtime == was->mtime))
                continue;
            removed += QFile::remove(file) ? 1 : 0;
        }
        return removed;
    }

private:
    struct Stamp
    {
        bool regular = false;
        qint64 size = 0;
        qint64 mtime = 0;
    };

    QStringList files() const
    {
        if (folder.isEmpty())
            return {path};
        QStringList found;
        const QStringList names = QDir(folder).entryList(QDir::Files | QDir::System);
        for (const QString &name : names) {
            if (seriesPattern.match(name).hasMatch())
                found << QDir(folder).filePath(name);
        }
        return found;
    }

    static Stamp stat(const QString &path)
    {
        Stamp stamp;
        struct stat info;
        if (::stat(QFile::encodeName(path).constData(), &info) != 0)
            return stamp;
        stamp.regular = S_ISREG(info.st_mode);
        stamp.size = info.st_size;
        stamp.mtime = qint64(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec;
        return stamp;
    }

    QString path;
    QString folder; // set for a series
    QRegularExpression seriesPattern;
    QHash<QString, Stamp> before;
};

void say(const QString &line)
{
    std::fprintf(stderr, "kestrove-encoder: %s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
}

// Why the job fails: the line that the program shows the user.
void fail(const QString &line)
{
    say(QStringLiteral("error: ") + line);
}

// An input we must not open: a FIFO or a device would block or never end.
// A name that is no file (a lavfi graph, a URL) is ffmpeg's to judge.
QString unusableInput(const EncoderInput &input)
{
    const QByteArray path = QFile::encodeName(input.path);
    const auto unreadable = [&input] {
        return QStringLiteral("cannot read \"%1\": %2")
            .arg(input.path, QString::fromLocal8Bit(std::strerror(errno)));
    };
    struct stat info;
    if (::stat(path.constData(), &info) != 0)
        return errno == EACCES ? unreadable() : QString();
    // A title may come from the drive's device itself.
    if (!input.isTitle() && !S_ISREG(info.st_mode))
        return QStringLiteral("\"%1\" is not a regular file").arg(input.path);
    if (::access(path.constData(), R_OK) != 0)
        return unreadable();
    return QString();
}

InputLayout probe(const QString &path)
{
    QString error;
    const InputLayout layout = InputProbe::layout(path, &error);
    if (!error.isEmpty())
        say(error);
    return layout;
}

// Why an output that ffmpeg called finished is not whole: clearly shorter
// than its inputs (a file cut short, a damaged title); empty when it is whole
// or its length can't be told.
QString shortOutput(const EncoderJob &job, const QList<InputLayout> &inputs)
{
    const double expected = job.expectedLength(inputs);
    if (expected <= 0)
        return QString();
    const double length = probe(job.outputPath).duration;
    if (length <= 0 || length >= expected - qMax(1.0, expected * 0.05))
        return QString();
    return QStringLiteral("the output lasts %1 s, but the source should give %2 s: the source is "
                          "damaged or cut short")
        .arg(length, 0, 'f', 1)
        .arg(expected, 0, 'f', 1);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QString error;
    const auto job = EncoderJob::parse(QCoreApplication::arguments().mid(1), &error);
    if (!job) {
        fail(error);
        say(QStringLiteral(
            "usage: kestrove-encoder [-y] [-cpu_percent N] "
            "{[-si] [-ss S] [-t T] [-subtitle B] [-pgc P -audio_track A] -i INPUT [-vf CHAIN]}... "
            "[OUTPUT OPTIONS] OUTPUT"));
        return 1;
    }
    // Before any child: a stop must reach every one of them.
    FFmpegRunner::catchStopSignals();
    for (const QString &note : job->notes)
        say(note);
    for (const EncoderInput &input : job->inputs) {
        const QString unusable = unusableInput(input);
        if (!unusable.isEmpty()) {
            fail(unusable);
            return 1;
        }
    }

    // A title reaches ffmpeg through a pipe of its own, as descriptor 3, 4, ...
    std::signal(SIGPIPE, SIG_IGN);
    std::vector<std::unique_ptr<TitleFeeder>> feeders;
    const OutputWatch watch(job->outputPath, job->isPictureSeries());
    FFmpegRunner::Options options;
    options.cpuPercent = job->cpuPercent;
    QStringList sources;
    QList<InputLayout> layouts;
    for (const EncoderInput &input : job->inputs) {
        if (!input.isTitle()) {
            sources << input.path;
            // Only a join of several inputs, or a subtitle to burn in, needs
            // to know what each file holds.
            const bool probed = job->inputs.size() > 1 || input.subtitle >= 0;
            layouts << (probed ? probe(input.path) : InputLayout());
            if (input.subtitle >= layouts.last().subtitleCodecs.size()) {
                fail(QStringLiteral("\"%1\" has no subtitle track %2")
                         .arg(input.path)
                         .arg(input.subtitle));
                return 1;
            }
            continue;
        }
        auto feeder = std::make_unique<TitleFeeder>();
        QString error;
        if (!feeder->open(input.path, input.pgc, &error)) {
            fail(error);
            return 1;
        }
        InputLayout layout;
        layout.audioSpecifier = feeder->audioSpecifier(input.audioTrack);
        layout.hasAudio = !layout.audioSpecifier.isEmpty();
        if (input.audioTrack >= 0 && !layout.hasAudio) {
            fail(QStringLiteral("title %1 has no audio track %2")
                    .arg(input.pgc)
                    .arg(input.audioTrack));
            return 1;
        }
        layout.subtitleSpecifier = feeder->subtitleSpecifier(input.subtitle);
        if (input.subtitle >= 0 && layout.subtitleSpecifier.isEmpty()) {
            fail(QStringLiteral("title %1 has no subtitle track %2")
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
    double soundLead = 0;
    // A single file is asked what it holds: whether its sound can go apart,
    // and how long the output must be.
    QList<InputLayout> known = layouts;
    if (job->inputs.size() == 1 && !job->inputs[0].isTitle() && job->inputs[0].subtitle < 0)
        known[0] = probe(job->inputs[0].path);
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
                soundLead = job->soundLead(known[0]);
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
                            job->ffmpegArguments(sources, layouts, soundSource, soundLead), options);
    int exitCode = result.exitCode;
    if (!soundSource.isEmpty()) {
        const bool failed = result.signal != 0 || exitCode != 0;
        // Cut short when the file failed; cut short and whole look alike to
        // the writing ffmpeg, so a sound that failed fails the file.
        if (!sound.finish(failed) || failed) {
            const QString errors = QString::fromLocal8Bit(sound.errors().trimmed());
            if (failed && !errors.isEmpty()) {
                say(QStringLiteral("sound: ") + errors);
            } else if (!failed) {
                fail(QStringLiteral("the sound could not be encoded")
                     + (errors.isEmpty() ? QString() : QStringLiteral(": ") + errors));
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
            fail(feeder->error());
            exitCode = qMax(exitCode, 1);
        }
    }
    if (result.writeFailed) {
        fail(QStringLiteral("the output could not be written completely (is the disk full?): "
                            "\"%1\"")
                 .arg(job->outputPath));
        exitCode = qMax(exitCode, 1);
    }
    if (FFmpegRunner::stopRequest() != 0 && result.signal == 0) {
        fail(QStringLiteral("stopped on request"));
        exitCode = qMax(exitCode, 1);
    }
    // What ffmpeg called finished is judged by its length too, also where a
    // title failed, so that both lengths are told.
    if (result.signal == 0 && result.exitCode == 0 && FFmpegRunner::stopRequest() == 0) {
        const QString shortfall = shortOutput(*job, known);
        if (!shortfall.isEmpty()) {
            fail(shortfall);
            exitCode = 1;
        }
    }
    if (result.signal != 0 || exitCode != 0) {
        // A half-written file must not pass for a finished one.
        const int removed = watch.removeWritten();
        if (removed == 1)
            say(QStringLiteral("removed the unfinished output \"%1\"").arg(job->outputPath));
        else if (removed > 1)
            say(QStringLiteral("removed %1 pictures of the unfinished series \"%2\"")
                    .arg(removed)
                    .arg(job->outputPath));
    }
    if (result.signal != 0) {
        // Die the way ffmpeg died, so a crash reads as a crash.
        std::signal(result.signal, SIG_DFL);
        std::raise(result.signal);
    }
    return exitCode;
}
