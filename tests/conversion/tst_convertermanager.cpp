#include "convertermanager.h"
#include "ffmpegtools.h"
#include "fixturediscs.h"
#include "processtools.h"
#include "sanitizerreports.h"
#include "settings.h"
#include "timetracker.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include "homemain.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString profile = u"1,68"_s;

// Each task's state by a letter, in list order.
QString states(const TaskList &list)
{
    QString letters;
    for (int i = 0; i < list.count(); ++i)
        letters += QLatin1Char("IWRPpSF"[list.at(i)->state]);
    return letters;
}

// Neither waiting, running nor paused.
bool allAtRest(const TaskList &list)
{
    return states(list).remove(u'I').remove(u'S').remove(u'F').isEmpty();
}

// Watches a batch: the order tasks started in, and the most encoders that
// ran at once, as the manager counts them and as /proc shows them.
class BatchWatch : public QObject
{
public:
    BatchWatch(ConverterManager &manager, TaskList &list)
    {
        connect(&manager, &ConverterManager::stateChanged, this,
                [this, &list, &manager](int id, Task::EState state) {
                    TimeTracker::stateChanged(list, id, state);
                    if (state == Task::Running && !started.contains(id))
                        started.append(id);
                    mostRunning = qMax(mostRunning, manager.runningCount());
                    sample();
                });
        connect(&sampler, &QTimer::timeout, this, &BatchWatch::sample);
        sampler.start(10);
    }

    void sample()
    {
        const QList<qint64> encoders = childrenNamed(QCoreApplication::applicationPid(),
                                                     QByteArrayLiteral("kestrove-encoder"));
        mostProcesses = qMax(mostProcesses, int(encoders.size()));
    }

    QTimer sampler;
    QList<int> started;
    int mostRunning = 0;
    int mostProcesses = 0;
};

// The stopwatches' clock in the figures' tests, moved on by hand.
qint64 simulatedMs = 0;

// Runs a task for `ms` as the time tracker sees it, and stops it again.
qint64 runFor(TaskList &list, Task &task, int ms)
{
    TimeTracker::stateChanged(list, task.id, Task::Running);
    simulatedMs += ms;
    TimeTracker::stateChanged(list, task.id, Task::Paused);
    return task.elapsedMs();
}

// Known, finished, counted, percent done, remaining and elapsed ms.
QString figuresText(const TaskList &list)
{
    TimeTracker::BatchFigures f;
    const bool known = TimeTracker::batchFigures(list, &f);
    return joined(known, f.finished, f.count, f.percent, f.remaining, f.elapsed);
}

} // namespace

class TestConverterManager : public QObject
{
    Q_OBJECT

private:
    FixtureDiscs discs;
    FixedCatalogue catalogue{{{profile, u"avi.xml avi"_s}}};
    QTemporaryDir work;
    QString outputDir;
    QString pacedFfmpeg;

    // A task of FixtureDiscs::add(), with a small, cheap output.
    int add(TaskList &list, const QString &what, bool video = true)
    {
        const int id = discs.add(list, profile, what);
        Task *task = list.byId(id);
        for (const QString &pair :
             u"s=160*120 vcodec=mpeg4 b=200 r=25 acodec=mp2 ab=64 ar=44100 ac=2"_s.split(u' ')) {
            if (task && (video || pair.startsWith(u'a')))
                task->output.settings.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
        }
        return id;
    }

    // A task of `seconds` to convert, in `state`, with `progress` done.
    Task *addTask(TaskList &list, double seconds, Task::EState state, double progress)
    {
        Task *task = list.byId(add(list, u"clip.mp4"_s)); // the fixtures are there
        task->items.front()->edit.trimStart = 1.0;
        task->items.front()->edit.convertEnd = task->items.front()->edit.trimEnd = 1.0 + seconds;
        task->setState(state);
        task->progress = progress;
        return task;
    }

private slots:
    void init() { failOnChildSanitizerReports(); }
    void cleanup()
    {
        qunsetenv("KESTROVE_FFMPEG");
        RunTimer::setClock(nullptr);
    }

    void initTestCase()
    {
        discs.load();
        outputDir = work.filePath(u"out"_s);
        setSettingString(u"OutputDir"_s, outputDir);
        pacedFfmpeg = writePacedFfmpeg(work.path());
        QVERIFY(!pacedFfmpeg.isEmpty());
    }

    void stopwatchFollowsStates()
    {
        RunTimer::setClock([] { return simulatedMs; });
        TaskList list;
        Task *task = addTask(list, 10, Task::Idle, 0);
        // A state by its letter, then the ms that pass. Waiting and Pending
        // leave the clock as it is; a run after a pause goes on counting.
        QStringList clock;
        for (const QString &step : u"R30 P0 p20 R20 W0 S20 I0"_s.split(u' ')) {
            TimeTracker::stateChanged(list, 0, Task::EState(u"IWRPpSF"_s.indexOf(step[0])));
            simulatedMs += step.mid(1).toInt();
            clock << joined(task->elapsedMs(), task->isRunning());
        }
        TimeTracker::stateChanged(list, 999, Task::Running); // an unknown id is ignored
        QCOMPARE(clock.join(u' '), u"30|true 30|false 30|false 50|true 50|true 50|false 0|false"_s);
    }

    void batchFigures()
    {
        RunTimer::setClock([] { return simulatedMs; });
        // No task out of Idle: nothing; and a second done is too early to say.
        TaskList early;
        addTask(early, 10, Task::Idle, 0);
        QCOMPARE(figuresText(early), u"false|0|0|0|0|0"_s);
        Task *started = addTask(early, 10, Task::Running, 1.0);
        QCOMPARE(figuresText(early), u"false|0|1|10|0|%1"_s.arg(runFor(early, *started, 10)));

        TaskList list;
        Task *idle = addTask(list, 100, Task::Idle, 0);
        addTask(list, 10, Task::Succeed, 9.0); // counts its whole length
        addTask(list, 30, Task::Failed, 4.0);  // counts only what it did
        Task *running = addTask(list, 20.5, Task::Running, 5.0);
        addTask(list, 6, Task::Waiting, 0);
        const qint64 ran = runFor(list, *running, 25);
        // One task: a quarter of its whole seconds done leaves three times as
        // long; a second done or less is too early to say.
        QCOMPARE(joined(TimeTracker::remainingMs(*running), TimeTracker::remainingMs(*started),
                        TimeTracker::remainingMs(*idle)),
                 joined(3 * ran, -1, -1));
        // Total: 10 + 4 + 20.5 + 6 (its trim, as it waits) = 40.5; done: 10 + 4 + 5 = 19.
        QCOMPARE(figuresText(list),
                 joined(true, 2, 4, 19.0 * 100.0 / 40.5, qint64(25.0 / 19 * 21), 25));
    }

    void batchFiguresAgainstTheTruth_data()
    {
        // Encoders at once; the tasks' lengths in s, each encoded at 1.5 times
        // its pace; what befalls the first task, at s of the wall clock.
        QTest::addColumn<int>("encoders");
        QTest::addColumn<QString>("lengths");
        QTest::addColumn<QString>("event"); // "pause AT FOR" or "fail AT"
        QTest::newRow("1 encoder, 2 tasks") << 1 << u"60 60"_s << QString();
        QTest::newRow("2 encoders, 2 tasks") << 2 << u"60 60"_s << QString();
        QTest::newRow("2 encoders, 3 tasks") << 2 << u"60 60 60"_s << QString();
        QTest::newRow("2 encoders, 4 unequal tasks") << 2 << u"30 90 30 30"_s << QString();
        QTest::newRow("paused, the other runs on") << 2 << u"60 60"_s << u"pause 5 15"_s;
        QTest::newRow("paused, holding the only encoder") << 1 << u"60 60"_s << u"pause 5 20"_s;
        QTest::newRow("failed, the next takes its encoder") << 2 << u"60 60 60"_s << u"fail 10"_s;
    }

    // A batch on a simulated clock, run as the queue runs it.
    void batchFiguresAgainstTheTruth()
    {
        RunTimer::setClock([] { return simulatedMs; });
        QFETCH(int, encoders);
        QFETCH(QString, lengths);
        QFETCH(QString, event);
        const QStringList befalls = (event + u" 0 0"_s).split(u' ');
        const qint64 at = befalls[1].toInt() * 1000, until = at + befalls[2].toInt() * 1000;
        TaskList list;
        const auto change = [&list](int position, Task::EState state) {
            Task *task = list.at(position);
            EditParameters &edit = task->items.front()->edit;
            edit.convertEnd = state == Task::Running ? edit.trimEnd : edit.convertEnd;
            task->setState(state);
            TimeTracker::stateChanged(list, task->id, state);
        };
        QList<qint64> ran; // ms each task encoded
        for (const QString &length : lengths.split(u' ')) {
            // The length counts from the start on, as the command builder fixes it.
            addTask(list, length.toDouble(), Task::Idle, 0)->items.front()->edit.convertEnd = 0;
            change(int(ran.size()), Task::Waiting);
            ran << 0;
        }
        QList<std::tuple<qint64, qint64, TimeTracker::BatchFigures>> seen; // wall, busy ms
        qint64 wall = 0, busy = 0; // of the wall clock's ms, those with an encoder running
        while (!allAtRest(list)) {
            if (befalls[0] == u"pause"_s && (wall == at || wall == until))
                change(0, wall == at ? Task::Paused : Task::Running);
            // A free encoder takes the next waiting task at once; a paused one
            // keeps its encoder.
            for (int i = 0; i < list.count(); ++i) {
                if (list.at(i)->state == Task::Waiting
                    && states(list).count(QRegularExpression(u"[RP]"_s)) < encoders)
                    change(i, Task::Running);
            }
            seen << std::tuple(wall, busy, TimeTracker::BatchFigures());
            TimeTracker::batchFigures(list, &std::get<2>(seen.last()));
            wall += 250;
            simulatedMs += 250;
            busy += states(list).contains(u'R') ? 250 : 0;
            for (int i = 0; i < list.count(); ++i) {
                Task *task = list.at(i);
                if (task->state != Task::Running)
                    continue;
                task->progress = double((ran[i] += 250) * 3 / 2000);
                if (task->progress >= task->convertDuration())
                    change(i, Task::Succeed);
                else if (i == 0 && befalls[0] == u"fail"_s && wall == at)
                    change(i, Task::Failed);
            }
        }
        // From half way to three quarters: the time left within a fifth of the
        // truth, and elapsed the wall clock's time while anything ran.
        for (const auto &[now, busyThen, figures] : std::as_const(seen)) {
            if (2 * now >= wall && 4 * now <= 3 * wall) {
                QVERIFY2(qAbs(figures.remaining - (wall - now)) <= (wall - now) / 5,
                         qPrintable(joined(now, figures.remaining, wall - now)));
                QCOMPARE(figures.elapsed, busyThen);
            }
        }
        TimeTracker::BatchFigures end;
        TimeTracker::batchFigures(list, &end);
        QCOMPARE(joined(end.remaining, end.percent, end.finished, end.elapsed),
                 joined(0, 100, list.count(), busy));
    }

    void batchRunsInListOrderWithinTheLimit()
    {
        setSettingInt(u"OutputLog"_s, 1);
        // A source that goes away after it was added.
        const QString gone = work.filePath(u"gone.mp4"_s);
        QVERIFY(QFile::copy(discs.file("clip.mp4"), gone));
        TaskList list(&catalogue);
        QList<int> ids;
        for (const QString &what :
             {u"m1"_s, u"clip.mp4"_s, gone, u"n"_s, u"tone.flac"_s, u"movie.mkv"_s, u"m0"_s})
            ids << add(list, what, what != u"tone.flac"_s);
        QVERIFY(!ids.contains(-1) && QFile::remove(gone));
        // An unchecked task stays out of the batch.
        list.byId(add(list, u"clip.mp4"_s))->setChecked(false);

        ConverterManager manager(&list);
        BatchWatch watch(manager, list);
        QString signalled(list.count(), u'I');
        connect(&manager, &ConverterManager::stateChanged, this, [&](int id, Task::EState state) {
            signalled[list.positionOf(id)] = QLatin1Char("IWRPpSF"[state]);
        });
        manager.setMaxProcesses(2);
        manager.startAll();
        QCOMPARE(joined(manager.isBatchActive(), manager.runningCount()), u"true|2"_s);
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 120000);
        QTest::qWait(50);
        QCOMPARE(watch.started, ids);
        QCOMPARE(watch.mostRunning, 2);
        QVERIFY2(watch.mostProcesses >= 1 && watch.mostProcesses <= 2,
                 qPrintable(QString::number(watch.mostProcesses)));
        QVERIFY(!manager.isBatchActive() && manager.runningCount() == 0);

        // Outputs whole (+) in the output folder, their tasks unticked; the gone
        // source leaves nothing (0).
        QString outputs;
        for (int id : ids) {
            const QFileInfo output(list.byId(id)->output.filePath);
            QCOMPARE(output.absolutePath(), QFileInfo(outputDir).absoluteFilePath());
            QVERIFY(!list.byId(id)->isChecked());
            outputs += output.size() == 0 ? u'0' : output.size() > 1000 ? u'+' : u'-';
        }
        QCOMPARE(joined(states(list), signalled, outputs), u"SSFSSSSI|SSFSSSSI|++0++++"_s);

        // Each run's log went into the collection, and no per-task log is left.
        const QByteArray log = readFile(outputDir + u"/videoconverter.log"_s);
        QCOMPARE(log.count("======================================================="), ids.size());
        for (int id : ids)
            QVERIFY(log.contains(QFile::encodeName(list.byId(id)->output.filePath) + "\n\n"));
        QVERIFY(QDir(outputDir).entryList({u"videoconverter?*.log"_s}, QDir::Files).isEmpty());
        setSettingInt(u"OutputLog"_s, 0);

        // A second start leaves the finished, unchecked tasks alone.
        manager.startAll();
        QCOMPARE(manager.runningCount(), 0);
        QCOMPARE(watch.started, ids);
    }

    void pauseLimitAndStop()
    {
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
        TaskList list(&catalogue);
        for (const QString &what : {u"m0"_s, u"m2"_s, u"movie.mkv"_s, u"clip.mp4"_s})
            QVERIFY(add(list, what) >= 0); // ids 0 to 3
        ConverterManager manager(&list);
        BatchWatch watch(manager, list);
        const auto standing = [&manager](int id) {
            for (qint64 pid : processTree(manager.processId(id)))
                QTRY_COMPARE_WITH_TIMEOUT(processState(pid), 'T', 20000);
        };
        QSignalSpy progress(&manager, &ConverterManager::progressChanged);
        manager.setMaxProcesses(1);
        manager.startAll();
        QCOMPARE(states(list), u"RWWW"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 20000);
        QVERIFY2(processTree(manager.processId(0)).size() >= 2, "the front runs ffmpeg");
        // A paused task keeps its slot; a higher limit resumes it before it
        // starts anything new.
        manager.pauseTask(0);
        QCOMPARE(states(list), u"PWWW"_s);
        standing(0);
        manager.setMaxProcesses(2);
        QCOMPARE(states(list), u"RWWW"_s);
        manager.pauseTask(0);
        manager.setMaxProcesses(4);
        QCOMPARE(states(list), u"RRRW"_s);
        QCOMPARE(watch.started, QList<int>({0, 1, 2}));

        // A lower limit stands the first running encoders, and they stay so.
        manager.setMaxProcesses(2);
        QCOMPARE(joined(states(list), manager.runningCount()), u"PPRW|3"_s);
        standing(1);
        manager.pauseAll();
        QCOMPARE(states(list), u"PPPW"_s);
        standing(2);

        QList<qint64> all;
        for (int id : {0, 1, 2})
            all += processTree(manager.processId(id));
        manager.stopAll();
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 10000);
        for (qint64 pid : all)
            QTRY_VERIFY_WITH_TIMEOUT(QByteArrayLiteral("?Z").contains(processState(pid)), 5000);
        QCOMPARE(joined(states(list), list.byId(0)->isChecked(), list.byId(3)->isChecked(),
                        watch.started.size(), manager.isBatchActive(), manager.runningCount()),
                 u"FFFI|false|true|3|false|0"_s);

        // A task's own start runs it beyond the limit; closing the program ends
        // the encoders with the manager.
        auto closing = std::make_unique<ConverterManager>(&list);
        closing->setMaxProcesses(0);
        closing->startTask(3);
        QCOMPARE(list.byId(3)->state, Task::Running);
        QTRY_VERIFY_WITH_TIMEOUT((all = processTree(closing->processId(3))).size() >= 2, 10000);
        closing.reset();
        for (qint64 pid : all)
            QTRY_VERIFY_WITH_TIMEOUT(QByteArrayLiteral("?Z").contains(processState(pid)), 5000);
    }

    void remainingTimeFollowsThePace()
    {
        // A 12 s input of its own, made here like the fixtures.
        const QString longInput = work.filePath(u"long.mkv"_s);
        QCOMPARE(runTool(u"ffmpeg"_s,
                         u"-nostdin -v error -f lavfi -i testsrc2=s=160x120:r=25:d=12 -f lavfi "
                         "-i sine=r=44100:d=12 -c:v mpeg4 -c:a mp2"_s.split(u' ')
                             << longInput),
                 0);
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
        TaskList list(&catalogue);
        // The long input goes last, so that half way lies in it.
        double content = 0.0; // seconds in all
        for (const QString &what : {u"m0"_s, u"movie.mkv"_s, u"clip.mp4"_s, longInput})
            content += list.byId(add(list, what))->trimmedDuration();
        const int last = 3;

        ConverterManager manager(&list);
        BatchWatch watch(manager, list);
        QElapsedTimer clock;
        qint64 busy = 0, runStart = -1; // ms an encoder ran, by the test's own clock
        QStringList failures;
        QList<qint64> remaining; // the batch figure at each progress of the last task
        connect(&manager, &ConverterManager::stateChanged, this, [&](int, Task::EState state) {
            if (state == Task::Running)
                runStart = clock.elapsed();
            if (state == Task::Succeed)
                busy += clock.elapsed() - runStart;
        });
        connect(&manager, &ConverterManager::progressChanged, this, [&](int id, double seconds) {
            list.byId(id)->progress = seconds;
            TimeTracker::BatchFigures figures;
            if (id != last || !TimeTracker::batchFigures(list, &figures))
                return;
            // Each figure against the rest at the pace so far, as the test
            // measures it: a busy machine slows the pace, and the figures
            // must follow it.
            const qint64 taskBusy = clock.elapsed() - runStart, allBusy = busy + taskBusy;
            const double taskDone = seconds, done = content - 12.0 + taskDone;
            const qint64 paced = qint64((content - done) * double(allBusy) / done);
            const qint64 taskPaced = qint64((12.0 - taskDone) * double(taskBusy) / taskDone);
            const qint64 taskRemaining = TimeTracker::remainingMs(*list.byId(id));
            // The batch counts each task's length in whole seconds: a tenth of
            // the whole batch's time at this pace leaves room for that.
            if (qAbs(figures.remaining - paced) > (paced + allBusy) / 10 + 300
                || qAbs(figures.elapsed - clock.elapsed()) > 300
                || (taskDone >= 3.0 && qAbs(taskRemaining - taskPaced) > taskPaced * 3 / 10 + 300))
                failures << u"s done, batch ms, paced, elapsed; task, paced: "_s
                                + joined(done, figures.remaining, paced, figures.elapsed,
                                         taskRemaining, taskPaced);
            remaining << figures.remaining;
        });
        // One encoder at a time, as the pace above reckons.
        manager.setMaxProcesses(1);
        clock.start();
        manager.startAll();
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 180000);
        QCOMPARE(states(list), u"SSSS"_s);
        QVERIFY2(remaining.size() >= 8, qPrintable(QString::number(remaining.size())));
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u'\n')));
        QVERIFY(remaining.last() < remaining.first() / 2);
    }

    void onlyWholeOutputsRemain_data()
    {
        // The source's name (a copy of clip.mp4), what happens ("stop" after
        // the first progress; before the start "vanish": the source goes,
        // "block": the output folder is a file) and what the failure says.
        QTest::addColumn<QString>("row");
        QTest::newRow("stopped while writing an MP4") << u"clip.mp4 stop stopped"_s;
        QTest::newRow("source gone before the start") << u"gone.mp4 vanish No such file"_s;
        QTest::newRow("output folder is a file")
            << u"clip.mp4 block cannot create the output file"_s;
        QTest::newRow("a name with a number pattern, whole") << u"clip%03d.mp4"_s;
    }

    void onlyWholeOutputsRemain()
    {
        QFETCH(QString, row);
        const QString event = row.section(u' ', 1, 1), reason = row.section(u' ', 2);
        QTemporaryDir sources;
        const QString source = sources.filePath(row.section(u' ', 0, 0));
        QVERIFY(QFile::copy(discs.file("clip.mp4"), source));
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
        FixedCatalogue mp4({{profile, u"mp4.xml mp4"_s}});
        TaskList list(&mp4);
        const int id = add(list, source);
        QVERIFY(id >= 0);
        QFile::remove(outputDir);
        QDir(outputDir).removeRecursively();
        ConverterManager manager(&list);
        QSignalSpy progress(&manager, &ConverterManager::progressChanged);
        if (event == u"vanish"_s)
            QVERIFY(QFile::remove(source));
        if (event == u"block"_s)
            QVERIFY(!writeFile(outputDir, "").isEmpty());
        manager.startTask(id);
        if (event == u"stop"_s) {
            QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 20000);
            manager.stopTask(id);
        }
        const Task &task = *list.byId(id);
        QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 20000);
        // A failure says why and leaves nothing; a whole output keeps its name.
        const bool whole = reason.isEmpty();
        QCOMPARE(task.state, whole ? Task::Succeed : Task::Failed);
        QVERIFY2(task.failure.contains(reason), qPrintable(task.failure));
        QCOMPARE(QDir(outputDir).entryList(QDir::Files).filter(u".mp4"_s).join(u' '),
                 whole ? QFileInfo(task.output.filePath).fileName() : QString());
        QVERIFY(!whole || task.output.filePath.endsWith(u"/clip%03d.mp4"_s));
    }
};

KESTROVE_HOME_MAIN(TestConverterManager)

#include "tst_convertermanager.moc"
