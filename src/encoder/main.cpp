#include "encoderjob.h"
#include "ffmpegrunner.h"
#include "inputprobe.h"
#include "sideencoder.h"
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

    // A title reaches each ffmpeg that reads it through a pipe of its own,
    // as descriptor 3, 4, ...
    std::signal(SIGPIPE, SIG_IGN);
    std::vector<std::unique_ptr<TitleFeeder>> feeders(job->inputs.size()); // none for a file
    const OutputWatch watch(job->outputPath, job->isPictureSeries());
    QList<InputLayout> layouts;
    for (int i = 0; i < job->inputs.size(); ++i) {
        const EncoderInput &input = job->inputs[i];
        if (!input.isTitle()) {
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
        feeders[i] = std::move(feeder);
    }
    std::vector<bool> readEndTaken(feeders.size(), false);
    // What an ffmpeg whose descriptors from 3 on are `fds` opens for input
    // i; empty when no pipe could be made.
    auto sourceFor = [&](int i, std::vector<int> &fds) {
        if (!feeders[i])
            return job->inputs[i].path;
        const int fd = readEndTaken[i] ? feeders[i]->addReader() : feeders[i]->readEnd();
        readEndTaken[i] = true;
        if (fd < 0)
            return QString();
        fds.push_back(fd);
        return QStringLiteral("pipe:%1").arg(2 + fds.size());
    };

    // A single file is asked what it holds: whether its sound and picture
    // can go apart, and how long the output must be.
    QList<InputLayout> known = layouts;
    if (job->inputs.size() == 1 && !job->inputs[0].isTitle() && job->inputs[0].subtitle < 0)
        known[0] = probe(job->inputs[0].path);
    bool pictureApart = job->pictureApart(known);

    // The sound in an ffmpeg of its own where that is faster.
    SideEncoder sound;
    bool soundStarted = false;
    if (job->soundApart(known)) {
        std::vector<int> fds;
        const QString source = sourceFor(0, fds);
        soundStarted = !source.isEmpty()
                       && sound.start(SideEncoder::Stream::Sound, FFmpegRunner::ffmpegProgram(),
                                      job->soundArguments(source, known[0], pictureApart), fds);
        // Without it the writing ffmpeg must read the source for the sound.
        pictureApart &= soundStarted;
    }
    // And the picture, decoded and edited, where that is faster.
    SideEncoder picture;
    if (pictureApart) {
        known[0].colourOptions
            = InputProbe::colourOptions(job->inputs[0].path, job->inputs[0].pgc);
        std::vector<int> fds;
        const QString source = sourceFor(0, fds);
        pictureApart = !source.isEmpty()
                       && picture.start(SideEncoder::Stream::Picture,
                                        FFmpegRunner::ffmpegProgram(),
                                        job->pictureArguments(source, known[0]), fds);
        if (!pictureApart && soundStarted) {
            fail(QStringLiteral("the picture's ffmpeg could not be started"));
            return 1;
        }
    }

    FFmpegRunner::Options options;
    options.cpuPercent = job->cpuPercent;
    QString soundSource;
    const double soundLead = soundStarted ? job->soundLead(known[0]) : 0.0;
    QStringList arguments;
    if (pictureApart) {
        options.childFds.push_back(picture.readEnd());
        if (soundStarted) {
            options.childFds.push_back(sound.readEnd());
            soundSource = QStringLiteral("pipe:4");
        }
        arguments = job->writerArguments(QStringLiteral("pipe:3"), known[0], soundSource, soundLead);
    } else {
        QStringList sources;
        for (int i = 0; i < job->inputs.size(); ++i)
            sources << sourceFor(i, options.childFds);
        if (sources.contains(QString())) {
            fail(QStringLiteral("no pipe for the title could be made"));
            return 1;
        }
        if (soundStarted) {
            soundSource = QStringLiteral("pipe:%1").arg(3 + options.childFds.size());
            options.childFds.push_back(sound.readEnd());
        }
        arguments = job->ffmpegArguments(sources, layouts, soundSource, soundLead);
    }

    options.started = [&feeders, &sound, &picture] {
        for (auto &feeder : feeders) {
            if (feeder)
                feeder->start();
        }
        sound.consumerStarted();
        picture.consumerStarted();
    };
    auto result = FFmpegRunner::run(FFmpegRunner::ffmpegProgram(), arguments, options);
    // Stopped by us because a side failed: no crash of its own.
    if (FFmpegRunner::abandoned() && result.signal == SIGTERM) {
        result.signal = 0;
        result.exitCode = 1;
    }
    int exitCode = result.exitCode;
    const bool failed = result.signal != 0 || exitCode != 0;
    // What the ffmpegs beside the writing one say, once it has ended: their
    // failure fails the file, whose end looks whole to the writing ffmpeg.
    auto finishSide = [&](SideEncoder &side, bool started, const char *what, const char *failure) {
        if (!started)
            return;
        const bool whole = side.finish(failed);
        if (whole && !failed)
            return;
        const QString errors = QString::fromLocal8Bit(side.errors().trimmed());
        // Where the side failed first, its failure is the reason; where the
        // writing ffmpeg did, it is, and the side's lines tell the rest.
        if (!whole && (!failed || (side.failedFirst() && result.signal == 0))) {
            fail(QLatin1String(failure)
                 + (errors.isEmpty() ? QString() : QStringLiteral(": ") + errors));
            exitCode = qMax(exitCode, 1);
        } else if (!errors.isEmpty()) {
            say(QLatin1String(what) + QStringLiteral(": ") + errors);
        }
    };
    finishSide(picture, pictureApart, "picture", "the picture could not be decoded and edited");
    finishSide(sound, soundStarted, "sound", "the sound could not be encoded");
    for (auto &feeder : feeders) {
        if (!feeder)
            continue;
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
