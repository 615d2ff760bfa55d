#include "runtimer.h"

#include <chrono>

namespace {

qint64 steadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

RunTimer::Clock clockNow = steadyMs;

} // namespace

RunTimer::~RunTimer() = default;

void RunTimer::setClock(Clock clock)
{
    clockNow = clock ? clock : steadyMs;
}

qint64 RunTimer::now()
{
    return clockNow();
}

void RunTimer::fold()
{
    if (running) {
        total += now() - since;
        running = false;
    }
}

void RunTimer::start()
{
    fold();
    since = now();
    running = true;
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
    return total + (running ? now() - since : 0);
}

void BatchTimer::setRunning(int count)
{
    const qint64 time = RunTimer::now();
    if (running > 0) {
        wall += time - since;
        encoder += running * (time - since);
    }
    since = time;
    running = count;
}

void BatchTimer::reset()
{
    *this = BatchTimer();
}

qint64 BatchTimer::wallMs() const
{
    return wall + (running > 0 ? RunTimer::now() - since : 0);
}

qint64 BatchTimer::encoderMs() const
{
    return encoder + running * (RunTimer::now() - since);
}
