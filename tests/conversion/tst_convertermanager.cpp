#include "convertermanager.h"
#include "dvddisc.h"
#include "mediafixtures.h"
#include "sanitizerreports.h"
#include "processtools.h"
#include "profilelookup.h"
#include "settings.h"
#include "tasklist.h"
#include "timetracker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "testhome.h"
#include <QTimer>

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
    QMap<QString, QString> &values = task.output.settings;
    values.clear();
    if (video) {
        values[QStringLiteral("s")] = QStringLiteral("160*120");
        values[QStringLiteral("vcodec")] = QStringLiteral("mpeg4");
        values[QStringLiteral("b")] = QStringLiteral("200");
        values[QStringLiteral("r")] = QStringLiteral("25");
    }
    values[QStringLiteral("acodec")] = QStringLiteral("mp2");
    values[QStringLiteral("ab")] = QStringLiteral("64");
    values[QStringLiteral("ar")] = QStringLiteral("44100");
    values[QStringLiteral("ac")] = QStringLiteral("2");
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
                    changes.append({id, state});
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

    Task::EState lastState(int id) const
    {
        for (auto it = changes.crbegin(); it != changes.crend(); ++it) {
            if (it->first == id)
                return it->second;
        }
        return Task::Idle;
    }

    ConverterManager &manager;
    QTimer sampler;
    QList<QPair<int, Task::EState>> changes;
    QList<int> started;
    int mostRunning = 0;
    int mostProcesses = 0;
};

bool allAtRest(const TaskList &list)
{
    for (int i = 0; i < list.count(); ++i) {
        const Task::EState state = list.at(i)->state;
        if (state == Task::Waiting || state == Task::Running || state == Task::Paused
            || state == Task::Pending)
            return false;
    }
    return true;
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

private slots:
    void init() { failOnChildSanitizerReports(); }
    void initTestCase();
    void batchRunsInListOrderWithinTheLimit();
    void pauseStandsOneEncoderAndStopEndsAll();
    void limitChangesDuringBatch();
    void remainingTimeFallsAndHoldsAtHalfWay();
    void onlyWholeOutputsRemain_data();
    void onlyWholeOutputsRemain();
};

void TestConverterManager::initTestCase()
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
    script.write("#!/bin/bash\n"
                 "args=()\n"
                 "for a in \"$@\"; do\n"
                 "    [ \"$a\" = -i ] && args+=(-re)\n"
                 "    args+=(\"$a\")\n"
                 "done\n"
                 "exec ffmpeg \"${args[@]}\"\n");
    script.close();
    QVERIFY(script.setPermissions(script.permissions() | QFile::ExeOwner));
}

void TestConverterManager::batchRunsInListOrderWithinTheLimit()
{
    setSettingInt(QStringLiteral("OutputLog"), 1);
    // A source that goes away after it was added.
    const QString gone = work.filePath(QStringLiteral("gone.mp4"));
    QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), gone));

    TaskList list(&catalogue);
    QList<int> ids;
    ids << addTitle(list, *mainDisc, 1) << addFile(list, "clip.mp4") << list.addFile(profile, gone)
        << addTitle(list, *ntscDisc, 0) << addFile(list, "tone.flac", false)
        << addFile(list, "movie.mkv") << addTitle(list, *mainDisc, 0);
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
            QCOMPARE(watch.lastState(id), Task::Failed);
            // The reserved name stays, empty: nothing is deleted behind the user.
            QCOMPARE(output.size(), 0);
        } else {
            QVERIFY2(task.state == Task::Succeed, qPrintable(task.output.filePath));
            QCOMPARE(watch.lastState(id), Task::Succeed);
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
    QVERIFY(
        QDir(outputDir).entryList({QStringLiteral("videoconverter?*.log")}, QDir::Files).isEmpty());
    setSettingInt(QStringLiteral("OutputLog"), 0);

    // A second start leaves the finished, unchecked tasks alone.
    manager.startAll();
    QCOMPARE(manager.runningCount(), 0);
    QCOMPARE(watch.started, ids);
}

void TestConverterManager::pauseStandsOneEncoderAndStopEndsAll()
{
    qputenv("KESTROVE_FFMPEG", QFile::encodeName(pacedFfmpeg));
    TaskList list(&catalogue);
    const int first = addTitle(list, *mainDisc, 0);
    const int second = addTitle(list, *mainDisc, 2);
    const int third = addFile(list, "movie.mkv");
    ConverterManager manager(&list);
    BatchWatch watch(manager, list);
    QSignalSpy progress(&manager, &ConverterManager::progressChanged);
    manager.setMaxProcesses(2);
    manager.startAll();
    QCOMPARE(list.byId(third)->state, Task::Waiting);
    const auto reports = [&progress](int id) {
        int n = 0;
        for (const auto &call : progress)
            n += call.at(0).toInt() == id ? 1 : 0;
        return n;
    };
    QTRY_VERIFY_WITH_TIMEOUT(reports(first) > 0 && reports(second) > 0, 20000);

    manager.pauseTask(first);
    QCOMPARE(list.byId(first)->state, Task::Paused);
    const QList<qint64> tree = processTree(manager.processId(first));
    QVERIFY2(tree.size() >= 2, "the front runs ffmpeg as its child");
    for (qint64 pid : tree)
        QTRY_COMPARE_WITH_TIMEOUT(processState(pid), 'T', 20000);
    QTest::qWait(300);
    const int pausedReports = reports(first);
    const int otherReports = reports(second);
    QTest::qWait(1500);
    QCOMPARE(reports(first), pausedReports);
    QVERIFY(reports(second) > otherReports);
    // The paused encoder keeps its slot: the third task still waits.
    QCOMPARE(list.byId(third)->state, Task::Waiting);
    QCOMPARE(manager.runningCount(), 2);

    const QList<qint64> all = tree + processTree(manager.processId(second));
    manager.stopAll();
    QCOMPARE(list.byId(third)->state, Task::Idle);
    QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 10000);
    for (qint64 pid : all)
        QTRY_VERIFY_WITH_TIMEOUT(processState(pid) == '?' || processState(pid) == 'Z', 5000);
    QCOMPARE(list.byId(first)->state, Task::Failed);
    QCOMPARE(list.byId(second)->state, Task::Failed);
    QVERIFY(!list.byId(first)->isChecked());
    QVERIFY(list.byId(third)->isChecked());
    QCOMPARE(manager.runningCount(), 0);
    for (const auto &change : watch.changes)
        QVERIFY(change.second != Task::Running || change.first != third);

    // A task's own start runs it beyond the limit.
    manager.setMaxProcesses(0);
    manager.startTask(third);
    QCOMPARE(list.byId(third)->state, Task::Running);
    manager.stopTask(third);
    QTRY_COMPARE_WITH_TIMEOUT(list.byId(third)->state, Task::Failed, 10000);
    qunsetenv("KESTROVE_FFMPEG");
}

void TestConverterManager::limitChangesDuringBatch()
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
        QList<Task::EState> result;
        for (int i = 0; i < list.count(); ++i)
            result.append(list.at(i)->state);
        return result;
    };
    using S = QList<Task::EState>;
    manager.setMaxProcesses(1);
    manager.startAll();
    QCOMPARE(states(), S({Task::Running, Task::Waiting, Task::Waiting, Task::Waiting}));

    // A paused task keeps its slot; a higher limit resumes it before it
    // starts anything new.
    manager.pauseTask(first);
    manager.setMaxProcesses(2);
    QCOMPARE(states(), S({Task::Running, Task::Waiting, Task::Waiting, Task::Waiting}));
    manager.pauseTask(first);
    manager.setMaxProcesses(4);
    QCOMPARE(states(), S({Task::Running, Task::Running, Task::Running, Task::Waiting}));
    QCOMPARE(watch.started, QList<int>({first, second, third}));

    // A lower limit stands the first running encoders, and they stay so.
    manager.setMaxProcesses(2);
    QCOMPARE(states(), S({Task::Paused, Task::Paused, Task::Running, Task::Waiting}));
    QCOMPARE(manager.runningCount(), 3);
    for (qint64 pid : processTree(manager.processId(second)))
        QTRY_COMPARE_WITH_TIMEOUT(processState(pid), 'T', 20000);
    manager.pauseAll();
    QCOMPARE(states(), S({Task::Paused, Task::Paused, Task::Paused, Task::Waiting}));
    for (qint64 pid : processTree(manager.processId(third)))
        QTRY_COMPARE_WITH_TIMEOUT(processState(pid), 'T', 20000);

    manager.stopAll();
    QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 10000);
    QCOMPARE(states(), S({Task::Failed, Task::Failed, Task::Failed, Task::Idle}));
    QCOMPARE(watch.started.size(), 3);
    QVERIFY(!manager.isBatchActive());

    // Closing the program ends the encoders with the manager.
    QList<qint64> tree;
    {
        ConverterManager closing(&list);
        closing.startTask(fourth);
        QTRY_VERIFY_WITH_TIMEOUT((tree = processTree(closing.processId(fourth))).size() >= 2,
                                 10000);
    }
    for (qint64 pid : tree)
        QTRY_VERIFY_WITH_TIMEOUT(processState(pid) == '?' || processState(pid) == 'Z', 5000);
    qunsetenv("KESTROVE_FFMPEG");
}

void TestConverterManager::remainingTimeFallsAndHoldsAtHalfWay()
{
    // A 12 s input of its own, made here like the fixtures.
    const QString longInput = work.filePath(QStringLiteral("long.mkv"));
    QProcess make;
    make.start(QStringLiteral("ffmpeg"),
               {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
                QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                QStringLiteral("testsrc2=s=160x120:r=25:d=12"), QStringLiteral("-f"),
                QStringLiteral("lavfi"), QStringLiteral("-i"), QStringLiteral("sine=r=44100:d=12"),
                QStringLiteral("-c:v"), QStringLiteral("mpeg4"), QStringLiteral("-c:a"),
                QStringLiteral("mp2"), longInput});
    QVERIFY(make.waitForFinished(60000) && make.exitCode() == 0);

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
        qint64 at;
        double done;      // seconds of content converted, as the test counts it
        qint64 remaining; // the batch figure
        qint64 taskRemaining;
    };
    QList<Sample> samples;
    qint64 lastEnd = -1;
    qint64 lastStart = -1;
    QElapsedTimer clock;
    connect(&manager, &ConverterManager::progressChanged, this, [&](int id, double seconds) {
        list.byId(id)->progress = seconds;
        double done = 0.0;
        for (int i = 0; i < list.count(); ++i) {
            const Task *task = list.at(i);
            done += task->state == Task::Succeed ? task->trimmedDuration() : task->progress;
        }
        TimeTracker::BatchFigures figures;
        if (id == last && TimeTracker::batchFigures(list, &figures))
            samples.append({clock.elapsed(), done, figures.remaining,
                            TimeTracker::remainingMs(*list.byId(id))});
    });
    connect(&manager, &ConverterManager::stateChanged, this, [&](int id, Task::EState state) {
        if (id == last && state == Task::Succeed)
            lastEnd = clock.elapsed();
        if (id == last && state == Task::Running)
            lastStart = clock.elapsed();
    });
    // The batch figure adds up the stopwatches of all tasks, so it is a
    // wall-clock time for one encoder at a time.
    manager.setMaxProcesses(1);
    clock.start();
    manager.startAll();
    QTRY_VERIFY_WITH_TIMEOUT(allAtRest(list), 90000);
    qunsetenv("KESTROVE_FFMPEG");
    for (int i = 0; i < list.count(); ++i)
        QCOMPARE(list.at(i)->state, Task::Succeed);
    QVERIFY(lastEnd > 0);
    QVERIFY2(samples.size() >= 8, qPrintable(QString::number(samples.size())));

    QString trace;
    for (const Sample &sample : samples)
        trace += QStringLiteral(" %1:%2/%3")
                     .arg(sample.at)
                     .arg(sample.remaining)
                     .arg(lastEnd - sample.at);
    for (int i = 1; i < samples.size(); ++i)
        QVERIFY2(samples[i].remaining < samples[i - 1].remaining, qPrintable(trace));

    const auto firstPast = [&samples](double done) {
        for (const Sample &sample : samples) {
            if (sample.done >= done)
                return sample;
        }
        return samples.last();
    };
    // The figures against what the test itself measured up to that moment:
    // the rest at the pace so far. The time the batch really took on is only
    // shown, since a busy machine changes the pace after the moment.
    const Sample half = firstPast(content / 2);
    const qint64 paced = qint64((content - half.done) * double(half.at) / half.done);
    const QString figures
        = QStringLiteral("batch at half way: estimate %1 ms, at the pace so far %2 ms, took %3 ms;")
              .arg(half.remaining)
              .arg(paced)
              .arg(lastEnd - half.at);
    qInfo().noquote() << figures << trace;
    QVERIFY2(qAbs(half.remaining - paced) <= paced * 3 / 10, qPrintable(figures));

    // The task's own figure, half way through the long input.
    const Sample taskHalf = firstPast(content - 6.0);
    const double taskDone = taskHalf.done - (content - 12.0);
    const qint64 taskPaced = qint64((12.0 - taskDone) * double(taskHalf.at - lastStart) / taskDone);
    QVERIFY2(qAbs(taskHalf.taskRemaining - taskPaced) <= taskPaced * 3 / 10,
             qPrintable(QStringLiteral("task: estimate %1 ms, at the pace so far %2 ms")
                            .arg(taskHalf.taskRemaining)
                            .arg(taskPaced)));
}

void TestConverterManager::onlyWholeOutputsRemain_data()
{
    QTest::addColumn<QString>("name");  // the source's name: a copy of clip.mp4
    // "stop" after the first progress; "vanish": the source, "block": the
    // output folder made impossible before the start
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("reason"); // what the failure says; empty: it succeeds
    QTest::newRow("stopped while writing an MP4") << "clip.mp4" << "stop" << "stopped";
    QTest::newRow("source gone before the start") << "gone.mp4" << "vanish" << "No such file";
    QTest::newRow("output folder is a file")
        << "clip.mp4" << "block" << "cannot create the output file";
    QTest::newRow("a name with a number pattern") << "clip%03d.mp4" << "" << "";
}

void TestConverterManager::onlyWholeOutputsRemain()
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
    const QStringList left = QDir(outputDir).entryList(QDir::Files).filter(QStringLiteral(".mp4"));
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

int main(int argc, char *argv[])
{
    TestHome home;
    // Watermark and subtitle settings read the application font.
    QGuiApplication app(argc, argv);
    TestConverterManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_convertermanager.moc"
