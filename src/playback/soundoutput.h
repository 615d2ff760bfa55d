#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>

// A sound device kept full by a timer: stereo 16-bit on a thread of its own,
// as Qt's sink wants an event loop. The feed runs on that thread.
class SoundOutput
{
public:
    // Fills up to `maxSize` bytes; `queued` is what the device holds and has
    // not played yet. Returns the bytes filled.
    using Feed = std::function<qint64(char *data, qint64 maxSize, qint64 queued)>;

    SoundOutput();
    ~SoundOutput();
    SoundOutput(const SoundOutput &) = delete;
    SoundOutput &operator=(const SoundOutput &) = delete;

    // Opens the default device at `rate` Hz, or at its own rate where it
    // can't take that one (see rate()). False where there is no device.
    bool start(int rate, Feed feed);
    void stop();
    void suspend();
    void resume();
    void setVolume(double level);
    int rate() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
