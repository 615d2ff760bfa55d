#pragma once

#include <QElapsedTimer>

#include <memory>

// A stopwatch that folds each run into a running total.
class RunTimer
{
public:
    RunTimer() = default;
    RunTimer(const RunTimer &) = delete;
    RunTimer &operator=(const RunTimer &) = delete;
    virtual ~RunTimer();

    void start();
    void pause();
    void reset();
    qint64 elapsedMs() const;
    bool isRunning() const { return clock != nullptr; }

protected:
    std::unique_ptr<QElapsedTimer> clock; // present while running
    qint64 total = 0;                     // ms of earlier runs

private:
    void fold();
};
