#include "mediafixtures.h"
#include "tasklist.h"
#include "timetracker.h"

#include <QTest>

namespace {

const QString profile = QStringLiteral("1,68");

// Runs a task's stopwatch for a moment and freezes it, so the figures can be
// worked out from what it shows.
qint64 runFor(Task &task, int ms)
{
    task.start();
    QTest::qSleep(ms);
    task.pause();
    return task.elapsedMs();
}

} // namespace

class TestTimeTracker : public QObject
{
    Q_OBJECT

private:
    QString clip;

    // A task of `seconds` to convert, in `state`, with `progress` done.
    Task *addTask(TaskList &list, double seconds, Task::EState state, double progress)
    {
        Task *task = list.byId(list.addFile(profile, clip));
        if (!task)
            return nullptr;
        task->items.front()->edit.trimStart = 1.0;
        task->items.front()->edit.convertEnd = 1.0 + seconds;
        task->setState(state);
        task->progress = progress;
        return task;
    }

private slots:
    void initTestCase()
    {
        const QString fixtures = mediaFixtures();
        QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
        clip = fixture(fixtures, "clip.mp4");
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
        TaskList list;
        Task *idle = addTask(list, 100, Task::Idle, 0);
        Task *done = addTask(list, 10, Task::Succeed, 9.0);  // counts its whole length
        Task *failed = addTask(list, 30, Task::Failed, 4.0); // counts only what it did
        Task *running = addTask(list, 20.5, Task::Running, 5.0);
        Task *waiting = addTask(list, 6, Task::Waiting, 0);
        QVERIFY(idle && done && failed && running && waiting);
        runFor(*idle, 30);
        const qint64 elapsed = runFor(*done, 30) + runFor(*failed, 20) + runFor(*running, 25);

        TimeTracker::BatchFigures figures;
        QVERIFY(TimeTracker::batchFigures(list, &figures));
        QCOMPARE(figures.count, 4);
        QCOMPARE(figures.finished, 2);
        QCOMPARE(figures.elapsed, elapsed);
        // Total: 10 + 4 + 20 (cut after adding) + 6 = 40; done: 10 + 4 + 5 = 19.
        QCOMPARE(figures.percent, 19 * 100.0 / 40);
        QCOMPARE(figures.remaining, qint64(double(elapsed) / 19 * 40 - double(elapsed)));

        // Only failures: the bar is full and nothing is left.
        done->setState(Task::Failed);
        done->progress = 10;
        running->setState(Task::Failed);
        waiting->setState(Task::Idle);
        QVERIFY(TimeTracker::batchFigures(list, &figures));
        QCOMPARE(figures.percent, 100.0);
        QCOMPARE(figures.remaining, 0);
    }

    void batchFiguresWithoutProgress()
    {
        TaskList list;
        TimeTracker::BatchFigures figures;
        // No task out of Idle: zero everywhere, no remaining time.
        QVERIFY(addTask(list, 10, Task::Idle, 0));
        QVERIFY(!TimeTracker::batchFigures(list, &figures));
        QCOMPARE(figures.count, 0);
        QCOMPARE(figures.percent, 0.0);
        // A second done is still too early to say.
        Task *running = addTask(list, 10, Task::Running, 1.0);
        runFor(*running, 10);
        QVERIFY(!TimeTracker::batchFigures(list, &figures));
        QCOMPARE(figures.count, 1);
        QCOMPARE(figures.percent, 10.0);
        QCOMPARE(figures.remaining, 0);
    }
};

QTEST_GUILESS_MAIN(TestTimeTracker)
#include "tst_timetracker.moc"
