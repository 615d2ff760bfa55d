// Times a batch of conversions through ConverterManager with one and with
// two encoders, against the same ffmpeg commands run one after the other
// from a shell; and the thumbnail grab for 100 files.

#include "convertermanager.h"
#include "mediaimagereader.h"
#include "profilelookup.h"
#include "settings.h"
#include "tasklist.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int batchSize = 8;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    return process.waitForFinished(600000) && process.exitStatus() == QProcess::NormalExit
           && process.exitCode() == 0;
}

bool makeInput(const QString &path, int seconds, const QString &size)
{
    return run(QStringLiteral("ffmpeg"),
               {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
                QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"),
                QStringLiteral("-i"),
                QStringLiteral("testsrc2=s=%1:r=25:d=%2").arg(size).arg(seconds),
                QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                QStringLiteral("sine=r=44100:d=%1").arg(seconds), QStringLiteral("-c:v"),
                QStringLiteral("mpeg4"), QStringLiteral("-q:v"), QStringLiteral("3"),
                QStringLiteral("-c:a"), QStringLiteral("mp2"), path});
}

class AviCatalogue : public ProfileLookup
{
public:
    QString profileFileName(const QString &, const QString &) const override { return {}; }
    QString profileExtName(const QString &, const QString &) const override
    {
        return QStringLiteral("avi");
    }
};

// Wall time in ms of the whole batch through the queue; -1 when a task failed.
// `queueMs` gets the time the queue itself spent starting encoders: the start
// call, and from each reported end to the next start.
qint64 runBatch(const QStringList &inputs, const QString &outputDir, int processes,
                double *queueMs = nullptr)
{
    AviCatalogue catalogue;
    TaskList list(&catalogue);
    for (const QString &input : inputs) {
        Task *task = list.byId(list.addFile(QStringLiteral("1,1"), input));
        if (!task)
            return -1;
        QMap<QString, QString> &values = task->output.settings;
        values[QStringLiteral("s")] = QStringLiteral("640*480");
        values[QStringLiteral("vcodec")] = QStringLiteral("mpeg4");
        values[QStringLiteral("b")] = QStringLiteral("1200");
        values[QStringLiteral("acodec")] = QStringLiteral("mp2");
        values[QStringLiteral("ab")] = QStringLiteral("128");
        values[QStringLiteral("ar")] = QStringLiteral("44100");
        values[QStringLiteral("ac")] = QStringLiteral("2");
    }
    setSettingString(QStringLiteral("OutputDir"), outputDir);
    ConverterManager manager(&list);
    QEventLoop loop;
    int ended = 0;
    bool failed = false;
    QElapsedTimer timer;
    qint64 endedAt = -1;
    qint64 queueNs = 0;
    QObject::connect(&manager, &ConverterManager::stateChanged, &loop,
                     [&](int, Task::EState state) {
                         if (state == Task::Running && endedAt >= 0) {
                             queueNs += timer.nsecsElapsed() - endedAt;
                             endedAt = -1;
                         }
                         if (state == Task::Succeed || state == Task::Failed)
                             endedAt = timer.nsecsElapsed();
                         if (state == Task::Failed)
                             failed = true;
                         if (state == Task::Succeed || state == Task::Failed) {
                             if (++ended == list.count())
                                 loop.quit();
                         }
                     });
    timer.start();
    manager.setMaxProcesses(processes);
    manager.startAll();
    queueNs += timer.nsecsElapsed();
    loop.exec();
    const qint64 ms = timer.elapsed();
    if (queueMs)
        *queueMs = double(queueNs) / 1e6;
    return failed ? -1 : ms;
}

// ms per thumbnail, one per file, as they come off the single pool thread.
std::vector<double> thumbnailTimes(const QStringList &files)
{
    TaskList list;
    QList<int> ids;
    for (const QString &file : files)
        ids.append(list.addFile(QStringLiteral("1,1"), file));
    auto *reader = Logical::MediaImageReader::instance();
    reader->setTaskList(&list);
    std::vector<double> times;
    QEventLoop loop;
    QElapsedTimer timer;
    qint64 last = 0;
    QObject::connect(reader, qOverload<int>(&Logical::MediaImageReader::imageChanged), &loop,
                     [&](int) {
                         const qint64 now = timer.nsecsElapsed();
                         times.push_back(double(now - last) / 1e6);
                         last = now;
                         if (int(times.size()) == ids.size())
                             loop.quit();
                     });
    timer.start();
    for (int id : ids)
        reader->requestImage(id, 1.0, false);
    // A grab that fails sends nothing; don't wait for it forever.
    QTimer::singleShot(120000, &loop, &QEventLoop::quit);
    loop.exec();
    reader->stop();
    return times;
}

} // namespace

int main(int argc, char *argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_HOME");
    QGuiApplication app(argc, argv);
    QTemporaryDir work;
    const QDir dir(work.path());

    std::printf("making %d inputs of 20 s, 640x480...\n", batchSize);
    const QString source = dir.filePath(QStringLiteral("source.mkv"));
    if (!makeInput(source, 20, QStringLiteral("640x480"))) {
        std::fprintf(stderr, "ffmpeg could not make the inputs\n");
        return 1;
    }
    QStringList inputs;
    for (int i = 0; i < batchSize; ++i) {
        inputs << dir.filePath(QStringLiteral("in%1.mkv").arg(i));
        QFile::copy(source, inputs.last());
    }

    // The commands the encoder front gives ffmpeg, caught once by a wrapper.
    const QString commands = dir.filePath(QStringLiteral("commands.sh"));
    const QString wrapper = dir.filePath(QStringLiteral("catch-ffmpeg"));
    QFile script(wrapper);
    if (!script.open(QIODevice::WriteOnly))
        return 1;
    script.write(QStringLiteral("#!/bin/bash\nprintf '%q ' ffmpeg \"$@\" >> '%1'\necho >> '%1'\n"
                                "exec ffmpeg \"$@\"\n")
                     .arg(commands)
                     .toUtf8());
    script.close();
    script.setPermissions(script.permissions() | QFile::ExeOwner);

    for (int threads : {1, 2}) {
        setSettingInt(QStringLiteral("ThreadCount"), threads);
        QFile::remove(commands);
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(wrapper));
        if (runBatch(inputs, dir.filePath(QStringLiteral("caught%1").arg(threads)), 1) < 0) {
            std::fprintf(stderr, "the batch failed\n");
            return 1;
        }
        qunsetenv("KESTROVE_FFMPEG");

        // The best of three runs each: the machine is shared.
        qint64 shell = -1, one = -1, two = -1;
        double queueMs = 0.0;
        const auto best = [](qint64 &slot, qint64 value) {
            slot = slot < 0 || (value >= 0 && value < slot) ? value : slot;
        };
        for (int round = 0; round < 3; ++round) {
            QElapsedTimer shellTimer;
            shellTimer.start();
            if (!run(QStringLiteral("bash"),
                     {QStringLiteral("-c"),
                      QStringLiteral("exec < /dev/null 2> /dev/null; . '%1'").arg(commands)})) {
                std::fprintf(stderr, "the shell run failed\n");
                return 1;
            }
            best(shell, shellTimer.elapsed());
            const QString tag = QStringLiteral("%1-%2").arg(threads).arg(round);
            best(one, runBatch(inputs, dir.filePath(QStringLiteral("one") + tag), 1, &queueMs));
            best(two, runBatch(inputs, dir.filePath(QStringLiteral("two") + tag), 2));
        }
        std::printf("ThreadCount %d: shell %lld ms; queue, 1 encoder %lld ms (%+.1f%%); "
                    "2 encoders %lld ms (%+.1f%% against 1)\n",
                    threads, static_cast<long long>(shell), static_cast<long long>(one),
                    100.0 * double(one - shell) / double(shell), static_cast<long long>(two),
                    100.0 * double(two - one) / double(one));
        std::printf("  the queue's own time in the last 1-encoder batch: %.2f ms (%.3f%%)\n",
                    queueMs, 100.0 * queueMs / double(one));
        std::fflush(stdout);
    }

    std::printf("thumbnails: making the inputs...\n");
    const QString thumbSource = dir.filePath(QStringLiteral("thumb.mkv"));
    if (!makeInput(thumbSource, 5, QStringLiteral("1280x720")))
        return 1;
    QStringList files;
    for (int i = 0; i < 100; ++i) {
        files << dir.filePath(QStringLiteral("thumb%1.mkv").arg(i));
        QFile::copy(thumbSource, files.last());
    }
    const std::vector<double> times = thumbnailTimes(files);
    double total = 0;
    for (double time : times)
        total += time;
    std::printf("thumbnails for %d files of 1280x720: median %.1f ms, mean %.1f ms, max %.1f ms\n",
                int(times.size()), median(times), total / double(times.size()),
                *std::max_element(times.begin(), times.end()));
    return 0;
}
