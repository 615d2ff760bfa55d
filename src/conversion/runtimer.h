#pragma once

#include <QtGlobal>

// A stopwatch that folds each run into a running total.
class RunTimer
{
public:
    using Clock = qint64 (*)(); // ms on a monotonic clock

    RunTimer() = default;
    RunTimer(const RunTimer &) = delete;
    RunTimer &operator=(const RunTimer &) = delete;
    virtual ~RunTimer();

    void start();
    void pause();
    void reset();
    qint64 elapsedMs() const;
    bool isRunning() const { return running; }

    // The clock of every stopwatch; tests put a simulated one in, nullptr
    // puts the real one back.
    static void setClock(Clock clock);
    static qint64 now();

protected:
    bool running = false;
    qint64 since = 0; // now() at the start of this run
    qint64 total = 0; // ms of earlier runs

private:
    void fold();
};

// A batch's time, which a resume does not clear: wall-clock ms while any
// encoder runs, and encoder ms, each running encoder's time added up.
class BatchTimer
{
public:
    // Counts the time since the last change at the count then running.
    void setRunning(int count);
    void reset();
    qint64 wallMs() const;
    qint64 encoderMs() const;

private:
    qint64 wall = 0;
    qint64 encoder = 0;
    qint64 since = 0;
    int running = 0;
};
