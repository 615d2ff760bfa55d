#include "runtimer.h"

RunTimer::~RunTimer() = default;

void RunTimer::fold()
{
    if (clock) {
        total += clock->elapsed();
        clock.reset();
    }
}

void RunTimer::start()
{
    fold();
    clock = std::make_unique<QElapsedTimer>();
    clock->start();
}

void RunTimer::pause()
{
    fold();
}

void RunTimer::reset()
{
    fold();
    total = 0;
}

qint64 RunTimer::elapsedMs() const
{
    return total + (clock ? clock->elapsed() : 0);
}
