#include "convertermanager.h"
#include "dvddisc.h"
#include "ffmpegtools.h"
#include "mediafixtures.h"
#include "processtools.h"
#include "profilelookup.h"
#include "sanitizerreports.h"
#include "settings.h"
#include "tasklist.h"
#include "timetracker.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "homemain.h"

namespace {

const QString profile = QStringLiteral("1,68");

class OneFormatCatalogue : public ProfileLookup
{
public:
    explicit OneFormatCatalogue(const char *extension)
        : extension(QString::fromLatin1(extension))
    {}
    QString profileFileName(const QString &, const QString &) const override
    {
        return extension + QStringLiteral(".xml");
    }
    QString profileExtName(const QString &, const QString &) const override { return extension; }

private:
    QString extension;
};

// The profile values the command line reads, as a small, cheap output.
void setCheapOutput(Task &task, bool video)
{
    task.output.settings.clear();
    const QString pairs = QStringLiteral("s=160*120 vcodec=mpeg4 b=200 r=25 acodec=mp2 ab=64 "
                                         "ar=44100 ac=2");
    for (const QString &pair : pairs.split(QLatin1Char(' '))) {
        if (video || pair.startsWith(QLatin1Char('a')))
            task.output.settings.insert(pair.section(QLatin1Char('='), 0, 0),
                                        pair.section(QLatin1Char('='), 1));
    }
}

// Watches a batch: the state changes in order, and the most encoders that
// ran at once, as the manager counts them and as /proc shows them.
class BatchWatch : public QObject
{
public:
    BatchWatch(ConverterManager &manager, TaskList &list)
        : manager(manager)
    {
        connect(&manager, &ConverterManager::stateChanged, this,
                [this, &list](int id, Task::EState state) {
                    TimeTracker::stateChanged(list, id, state);
                    last[id] = state;
                    if (state == Task::Running && !started.contains(id))
                        started.append(id);
                    mostRunning = qMax(mostRunning, this->manager.runningCount());
                    sample();
                });
        connect(&sampler, &QTimer::timeout, this, &BatchWatch::sample);
        sampler.start(10);
    }

    void sample()
    {
        const qint64 self = QCoreApplication::applicationPid();
        mostProcesses = qMax(
            mostProcesses, int(childrenNamed(self, QByteArrayLiteral("kestrove-encoder")).size()));
    }

    ConverterManager &manager;
    QTimer sampler;
    QHash<int, Task::EState> last; // each task's last state as signalled
    QList<int> started;
    int mostRunning = 0;
    int mostProcesses = 0;
};

bool allAtRest(const TaskList &list)
{
    for (int i = 0; i < list.count(); ++i) {
        if (list.at(i)->state != Task::Idle && list.at(i)->state < Task::Succeed)
            return false; // waiting, running, paused or pending
    }
    return true;
}

// Runs a task's stopwatch for a moment and freezes it, so the figures can be
// worked out from what it shows.
qint64 runFor(Task &task, int ms)
{
    task.start();
    QTest::qSleep(ms);
    task.pause();
    return task.elapsedMs();
}

// The batch's figures in one line: known, finished/counted, percent done,
// remaining and elapsed time.
QString figuresText(const TaskList &list)
{
    TimeTracker::BatchFigures figures;
    const bool known = TimeTracker::batchFigures(list, &figures);
    return QStringLiteral("%1 %2/%3 %4% %5 ms after %6")
        .arg(QLatin1String(known ? "yes" : "no"))
        .arg(figures.finished)
        .arg(figures.count)
        .arg(figures.percent)
        .arg(figures.remaining)
        .arg(figures.elapsed);
}

} // namespace

class TestConverterManager : public QObject
{
    Q_OBJECT

private:
    QString fixtures;
    std::unique_ptr<DvdDisc> mainDisc; // red 4.8 s, blue 2.4 s, red 4.8 s
    std::unique_ptr<DvdDisc> ntscDisc; // one title of 3 s
    OneFormatCatalogue catalogue{"avi"};
    QTemporaryDir work;
    QString outputDir;
    QString pacedFfmpeg;

    int addFile(TaskList &list, const char *name, bool video = true)
    {
        const int id = list.addFile(profile, fixture(fixtures, name));
        if (id >= 0)
            setCheapOutput(*list.byId(id), video);
        return id;
    }
    int addTitle(TaskList &list, const DvdDisc &disc, int index)
    {
        const int id = list.addTitle(profile, *disc.titles[size_t(index)], index + 1, 1);
        if (id >= 0)
            setCheapOutput(*list.byId(id), true);
        return id;
    }

    // A task of `seconds` to convert, in `state`, with `progress` done.
    Task *addTask(TaskList &list, double seconds, Task::EState state, double progress)
    {
        Task *task = list.byId(list.addFile(profile, fixture(fixtures, "clip.mp4")));
        if (!task)
            return nullptr;
        task->items.front()->edit.trimStart = 1.0;
        task->items.front()->edit.convertEnd = 1.0 + seconds;
        task->setState(state);
        task->progress = progress;
        return task;
    }

private slots:
    void init() { failOnChildSanitizerReports(); }

    void initTestCase()
    {
        fixtures = mediaFixtures();
        QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
        mainDisc = LoadDvdDisc(fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"), false);
        ntscDisc = LoadDvdDisc(fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), false);
        QVERIFY(mainDisc && mainDisc->titles.size() == 3);
        QVERIFY(ntscDisc && ntscDisc->titles.size() == 1);
        outputDir = work.filePath(QStringLiteral("out"));
        setSettingString(QStringLiteral("OutputDir"), outputDir);

        // ffmpeg that reads every input at its own speed (-re), so that a
        // conversion takes as long as its input plays. The encoder front runs it
        // in place of the stock one; nothing else about the command changes. This
        // gives the remaining-time figures a truth that doesn't depend on how
        // busy the machine is.
        pacedFfmpeg = work.filePath(QStringLiteral("paced-ffmpeg"));
        QFile script(pacedFfmpeg);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/bash\nargs=()\nfor a in \"$@\"; do [ \"$a\" = -i ] && args+=(-re); "
                     "args+=(\"$a\"); done\nexec ffmpeg \"${args[@]}\"\n");
        script.close();
        QVERIFY(script.setPermissions(script.permissions() | QFile::ExeOwner));
    }

    void stopwatchFollowsStates()
    {
        TaskList list;
        Task *task = addTask(list, 10, Task::Idle, 0);
        QVERIFY(task);
        TimeTracker::stateChanged(list, task->id, Task::Running);
        QTest::qSleep(30);
        TimeTracker::stateChanged(list, task->id, Task::Paused);
        const qint64 first = task->elapsedMs();
        QVERIFY(first >= 30);
        // Waiting and Pending leave the clock as it is.
        TimeTracker::stateChanged(list, task->id, Task::Pending);
        QTest::qSleep(20);
        QCOMPARE(task->elapsedMs(), first);
        TimeTracker::stateChanged(list, task->id, Task::Running);
        QTest::qSleep(20);
        TimeTracker::stateChanged(list, task->id, Task::Waiting);
        QVERIFY(task->isRunning());
        TimeTracker::stateChanged(list, task->id, Task::Succeed);
        QVERIFY(!task->isRunning());
        QVERIFY(task->elapsedMs() >= first + 20);
        TimeTracker::stateChanged(list, task->id, Task::Idle);
        QCOMPARE(task->elapsedMs(), 0);
        // An unknown id is ignored.
        TimeTracker::stateChanged(list, 999, Task::Running);
    }

    void remainingOfOneTask_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<double>("progress");
        QTest::addColumn<double>("factor"); // remaining = factor * elapsed, -1 for none
        QTest::newRow("a quarter done") << 40.0 << 10.0 << 3.0;
        QTest::newRow("half done") << 40.0 << 20.0 << 1.0;
        QTest::newRow("length is cut to whole seconds") << 40.9 << 10.0 << 3.0;
        QTest::newRow("one second is too early") << 40.0 << 1.0 << -1.0;
        QTest::newRow("nothing yet") << 40.0 << 0.0 << -1.0;
    }

    void remainingOfOneTask()
    {
        QFETCH(double, seconds);
        QFETCH(double, progress);
        QFETCH(double, factor);
        TaskList list;
        Task *task = addTask(list, seconds, Task::Running, progress);
        QVERIFY(task);
        const qint64 elapsed = runFor(*task, 40);
        const qint64 expected = factor < 0 ? -1 : qint64(factor * double(elapsed));
        QVERIFY(qAbs(TimeTracker::remainingMs(*task) - expected) <= 1);
    }

    void batchFigures()
    {
        // No task out of Idle: zero everywhere, no remaining time; and a
        // second done is still too early to say.
        TaskList early;
        QVERIFY(addTask(early, 10, Task::Idle, 0));
        QCOMPARE(figuresText(early), QStringLiteral("no 0/0 0% 0 ms after 0"));
        Task *started = addTask(early, 10, Task::Running, 1.0);
        QVERIFY(started);
        QCOMPARE(figuresText(early),
                 QStringLiteral("no 0/1 10% 0 ms after %1").arg(runFor(*started, 10)));

        TaskList list;
        Task *idle = addTask(list, 100, Task::Idle, 0);
        Task *done = addTask(list, 10, Task::Succeed, 9.0);  // counts its whole length
        Task *failed = addTask(list, 30, Task::Failed, 4.0); // counts only what it did
        Task *running = addTask(list, 20.5, Task::Running, 5.0);
        Task *waiting = addTask(list, 6, Task::Waiting, 0);
        QVERIFY(idle && done && failed && running && waiting);
        runFor(*idle, 30);
        const qint64 elapsed = runFor(*done, 30) + runFor(*failed, 20) + runFor(*running, 25);
        // Total: 10 + 4 + 20 (cut after adding) + 6 = 40; done: 10 + 4 + 5 = 19.
        QCOMPARE(figuresText(list), QStringLiteral("yes 2/4 47.5% %1 ms after %2")
                                        .arg(qint64(double(elapsed) / 19 * 40 - double(elapsed)))
                                        .arg(elapsed));

        // Only failures: the bar is full and nothing is left.
        done->setState(Task::Failed);
        done->progress = 10;
        running->setState(Task::Failed);
        waiting->setState(Task::Idle);
        QCOMPARE(figuresText(list), QStringLiteral("yes 3/3 100% 0 ms after %1").arg(elapsed));
    }

    void batchRunsInListOrderWithinTheLimit()
    {
        setSettingInt(QStringLiteral("OutputLog"), 1);
        // A source that goes away after it was added.
        const QString gone = work.filePath(QStringLiteral("gone.mp4"));
        QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), gone));

        TaskList list(&catalogue);
        QList<int> ids;
        ids << addTitle(list, *mainDisc, 1) << addFile(list, "clip.mp4")
            << list.addFile(profile, gone) << addTitle(list, *ntscDisc, 0)
            << addFile(list, "tone.flac", false) << addFile(list, "movie.mkv")
            << addTitle(list, *mainDisc, 0);
        QVERIFY(!ids.contains(-1));
        setCheapOutput(*list.byId(ids[2]), true);
        QVERIFY(QFile::remove(gone));
        // An unchecked task stays out of the batch.
        const int left = addFile(list, "clip.mp4");
        list.byId(left)->setChecked(false);

        ConverterManager manager(&list);
        BatchWatch watch(manager, list);
        manager.setMaxProcesses(2);
        manager.startAll();
        QVERIFY(manager.isBatchActive());
        QCOMPARE(manager.runningCount(), 2);
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 120000);
        QTest::qWait(50);

        QCOMPARE(watch.started, ids);
        QCOMPARE(watch.mostRunning, 2);
        QVERIFY2(watch.mostProcesses <= 2, qPrintable(QString::number(watch.mostProcesses)));
        QVERIFY(watch.mostProcesses >= 1);
        QVERIFY(!manager.isBatchActive());
        QCOMPARE(manager.runningCount(), 0);
        QCOMPARE(list.byId(left)->state, Task::Idle);

        for (int id : ids) {
            const Task &task = *list.byId(id);
            const QFileInfo output(task.output.filePath);
            QVERIFY(!task.isChecked());
            QCOMPARE(QFileInfo(output.path()).absoluteFilePath(),
                     QFileInfo(outputDir).absoluteFilePath());
            if (id == ids[2]) {
                QCOMPARE(task.state, Task::Failed);
                QCOMPARE(watch.last.value(id), Task::Failed);
                // The reserved name stays, empty: nothing is deleted behind the user.
                QCOMPARE(output.size(), 0);
            } else {
                QVERIFY2(task.state == Task::Succeed, qPrintable(task.output.filePath));
                QCOMPARE(watch.last.value(id), Task::Succeed);
                QVERIFY(output.size() > 1000);
            }
        }

        // Each run's log went into the collection, and no per-task log is left.
        QFile collection(outputDir + QStringLiteral("/videoconverter.log"));
        QVERIFY(collection.open(QIODevice::ReadOnly));
        const QByteArray log = collection.readAll();
        QCOMPARE(log.count("======================================================="), ids.size());
        for (int id : ids)
            QVERIFY(log.contains(QFile::encodeName(list.byId(id)->output.filePath) + "\n\n"));
        QVERIFY(QDir(outputDir)
                    .entryList({QStringLiteral("videoconverter?*.log")}, QDir::Files)
                    .isEmpty());
        setSettingInt(QStringLiteral("OutputLog"), 0);

        // A second start leaves the finished, unchecked tasks alone.
        manager.startAll();
        QCOMPARE(manager.runningCount(), 0);
        QCOMPARE(watch.started, ids);
    }

    void pauseLimitAndStop()
    {
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
        TaskList list(&catalogue);
        const int first = addTitle(list, *mainDisc, 0);
        const int second = addTitle(list, *mainDisc, 2);
        const int third = addFile(list, "movie.mkv");
        const int fourth = addFile(list, "clip.mp4");
        ConverterManager manager(&list);
        BatchWatch watch(manager, list);
        const auto states = [&list] {
            QString letters;
            for (int i = 0; i < list.count(); ++i)
                letters += QLatin1Char("IWRPpSF"[list.at(i)->state]);
            return letters;
        };
        const auto standing = [&manager](int id) {
            for (qint64 pid : processTree(manager.processId(id)))
                QTRY_COMPARE_WITH_TIMEOUT(processState(pid), 'T', 20000);
        };
        QSignalSpy progress(&manager, &ConverterManager::progressChanged);
        manager.setMaxProcesses(1);
        manager.startAll();
        QCOMPARE(states(), QStringLiteral("RWWW"));
        QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 20000);
        QVERIFY2(processTree(manager.processId(first)).size() >= 2, "the front runs ffmpeg");
        // A paused task keeps its slot; a higher limit resumes it before it
        // starts anything new.
        manager.pauseTask(first);
        QCOMPARE(states(), QStringLiteral("PWWW"));
        standing(first);
        manager.setMaxProcesses(2);
        QCOMPARE(states(), QStringLiteral("RWWW"));
        manager.pauseTask(first);
        manager.setMaxProcesses(4);
        QCOMPARE(states(), QStringLiteral("RRRW"));
        QCOMPARE(watch.started, QList<int>({first, second, third}));

        // A lower limit stands the first running encoders, and they stay so.
        manager.setMaxProcesses(2);
        QCOMPARE(states(), QStringLiteral("PPRW"));
        QCOMPARE(manager.runningCount(), 3);
        standing(second);
        manager.pauseAll();
        QCOMPARE(states(), QStringLiteral("PPPW"));
        standing(third);

        QList<qint64> all;
        for (int id : {first, second, third})
            all += processTree(manager.processId(id));
        manager.stopAll();
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 10000);
        for (qint64 pid : all)
            QTRY_VERIFY_WITH_TIMEOUT(processState(pid) == '?' || processState(pid) == 'Z', 5000);
        QCOMPARE(states(), QStringLiteral("FFFI"));
        QVERIFY(!list.byId(first)->isChecked() && list.byId(fourth)->isChecked());
        QCOMPARE(watch.started.size(), 3);
        QVERIFY(!manager.isBatchActive());
        QCOMPARE(manager.runningCount(), 0);

        // A task's own start runs it beyond the limit; closing the program ends
        // the encoders with the manager.
        QList<qint64> tree;
        {
            ConverterManager closing(&list);
            closing.setMaxProcesses(0);
            closing.startTask(fourth);
            QCOMPARE(list.byId(fourth)->state, Task::Running);
            QTRY_VERIFY_WITH_TIMEOUT((tree = processTree(closing.processId(fourth))).size() >= 2,
                                     10000);
        }
        for (qint64 pid : tree)
            QTRY_VERIFY_WITH_TIMEOUT(processState(pid) == '?' || processState(pid) == 'Z', 5000);
        qunsetenv("KESTROVE_FFMPEG");
    }

    void remainingTimeFollowsThePace()
    {
        // A 12 s input of its own, made here like the fixtures.
        const QString longInput = work.filePath(QStringLiteral("long.mkv"));
        QCOMPARE(
            runTool(QStringLiteral("ffmpeg"),
                    QStringLiteral("-nostdin -v error -f lavfi -i testsrc2=s=160x120:r=25:d=12 -f "
                                   "lavfi -i sine=r=44100:d=12 -c:v mpeg4 -c:a mp2")
                            .split(QLatin1Char(' '))
                        << longInput),
            0);

        qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
        TaskList list(&catalogue);
        addTitle(list, *mainDisc, 0);
        addFile(list, "movie.mkv");
        addFile(list, "clip.mp4");
        // A task's length enters the figures when its command line is built, at
        // its start; so the batch figure covers the whole batch only once the
        // last task runs. The long input goes last, so that half way lies there.
        const int last = list.byId(list.addFile(profile, longInput))->id;
        setCheapOutput(*list.byId(last), true);
        double content = 0.0;
        for (int i = 0; i < list.count(); ++i)
            content += list.at(i)->trimmedDuration();

        ConverterManager manager(&list);
        BatchWatch watch(manager, list);
        struct Sample
        {
            double done;      // seconds of content converted, as the test counts it
            qint64 busy;      // ms that an encoder ran, by the test's own clock
            qint64 taskBusy;  // the same for the last task
            qint64 remaining; // the batch figure
            qint64 taskRemaining;
        };
        QList<Sample> samples;
        QElapsedTimer clock;
        qint64 busy = 0;
        qint64 runStart = -1;
        bool lastDone = false;
        connect(&manager, &ConverterManager::stateChanged, this, [&](int id, Task::EState state) {
            if (state == Task::Running)
                runStart = clock.elapsed();
            if (state == Task::Succeed)
                busy += clock.elapsed() - runStart;
            lastDone = lastDone || (id == last && state == Task::Succeed);
        });
        connect(&manager, &ConverterManager::progressChanged, this, [&](int id, double seconds) {
            list.byId(id)->progress = seconds;
            double done = 0.0;
            for (int i = 0; i < list.count(); ++i) {
                const Task *task = list.at(i);
                done += task->state == Task::Succeed ? task->trimmedDuration() : task->progress;
            }
            TimeTracker::BatchFigures figures;
            const qint64 now = clock.elapsed();
            if (id == last && TimeTracker::batchFigures(list, &figures))
                samples.append({done, busy + now - runStart, now - runStart, figures.remaining,
                                TimeTracker::remainingMs(*list.byId(id))});
        });
        // The batch figure adds up the stopwatches of all tasks, so it is a
        // wall-clock time for one encoder at a time.
        manager.setMaxProcesses(1);
        clock.start();
        manager.startAll();
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 180000);
        qunsetenv("KESTROVE_FFMPEG");
        for (int i = 0; i < list.count(); ++i)
            QCOMPARE(list.at(i)->state, Task::Succeed);
        QVERIFY(lastDone);
        QVERIFY2(samples.size() >= 8, qPrintable(QString::number(samples.size())));

        // Each figure against the rest at the pace so far, as the test measured
        // it: a busy machine slows the pace, and the figures must follow it.
        for (const Sample &sample : samples) {
            const qint64 paced
                = qint64((content - sample.done) * double(sample.busy) / sample.done);
            const double taskDone = sample.done - (content - 12.0);
            const qint64 taskPaced = qint64((12.0 - taskDone) * double(sample.taskBusy) / taskDone);
            const QString figures
                = QStringLiteral("%1 s done: batch %2 ms, paced %3; task %4, paced %5")
                      .arg(sample.done)
                      .arg(sample.remaining)
                      .arg(paced)
                      .arg(sample.taskRemaining)
                      .arg(taskPaced);
            // The batch counts each task's length in whole seconds: a tenth of
            // the whole batch's time at this pace leaves room for that.
            QVERIFY2(qAbs(sample.remaining - paced) <= (paced + sample.busy) / 10 + 300,
                     qPrintable(figures));
            if (taskDone >= 3.0)
                QVERIFY2(qAbs(sample.taskRemaining - taskPaced) <= taskPaced * 3 / 10 + 300,
                         qPrintable(figures));
        }
        QVERIFY(samples.last().remaining < samples.first().remaining / 2);
    }

    void onlyWholeOutputsRemain_data()
    {
        QTest::addColumn<QString>("name"); // the source's name: a copy of clip.mp4
        // "stop" after the first progress; "vanish": the source, "block": the
        // output folder made impossible before the start
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("reason"); // what the failure says; empty: it succeeds
        QTest::newRow("stopped while writing an MP4") << "clip.mp4"
                                                      << "stop"
                                                      << "stopped";
        QTest::newRow("source gone before the start") << "gone.mp4"
                                                      << "vanish"
                                                      << "No such file";
        QTest::newRow("output folder is a file") << "clip.mp4"
                                                 << "block"
                                                 << "cannot create the output file";
        QTest::newRow("a name with a number pattern") << "clip%03d.mp4"
                                                      << ""
                                                      << "";
    }

    void onlyWholeOutputsRemain()
    {
        QFETCH(QString, name);
        QFETCH(QString, event);
        QFETCH(QString, reason);
        QTemporaryDir sources;
        const QString source = sources.filePath(name);
        QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), source));
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
        OneFormatCatalogue mp4("mp4");
        TaskList list(&mp4);
        const int id = list.addFile(profile, source);
        QVERIFY(id >= 0);
        setCheapOutput(*list.byId(id), true);
        QDir(outputDir).removeRecursively();
        ConverterManager manager(&list);
        QSignalSpy progress(&manager, &ConverterManager::progressChanged);
        if (event == QLatin1String("vanish"))
            QVERIFY(QFile::remove(source));
        QFile blocker(outputDir);
        if (event == QLatin1String("block"))
            QVERIFY(blocker.open(QIODevice::WriteOnly));
        manager.startTask(id);
        if (event == QLatin1String("stop")) {
            QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 20000);
            manager.stopTask(id);
        }
        const Task &task = *list.byId(id);
        QTRY_VERIFY_WITH_TIMEOUT(task.state == Task::Succeed || task.state == Task::Failed, 20000);
        qunsetenv("KESTROVE_FFMPEG");
        if (event == QLatin1String("block"))
            QVERIFY(blocker.remove());
        const QStringList left
            = QDir(outputDir).entryList(QDir::Files).filter(QStringLiteral(".mp4"));
        if (reason.isEmpty()) {
            QCOMPARE(task.state, Task::Succeed);
            QCOMPARE(left, QStringList{QFileInfo(task.output.filePath).fileName()});
            QVERIFY(task.output.filePath.endsWith(QStringLiteral("clip%03d.mp4")));
        } else {
            QCOMPARE(task.state, Task::Failed);
            QVERIFY2(task.failure.contains(reason), qPrintable(task.failure));
            QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char(' '))));
        }
    }
};

KESTROVE_HOME_MAIN(TestConverterManager)

#include "tst_convertermanager.moc"
