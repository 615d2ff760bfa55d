#pragma once

#include "mediainput.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

// One decoded picture as the engine hands it out: YUV 4:2:0 planar, valid
// only during the call that gets it.
struct PlayerPicture
{
    uint8_t *data[4] = {};
    int linesize[4] = {};
    int width = 0;
    int height = 0;
};

// Plays one media file or DVD title: a demux thread, a decode thread per
// stream with bounded queues between them, and a thread that hands each
// picture out at its time. The clock is the sound device's played position,
// or a wall clock where there is no device or no sound. Callbacks run on the
// engine's threads; they may read the clock, and must not call the other
// operations, which are called from one thread.
//
// States: 0 stopped, 1 playing, 2 paused. Every stop, the end of the source
// and a failed open report 0, so that no caller waits for ever.
class PlayerEngine
{
public:
    enum State { Stopped = 0, Playing = 1, Paused = 2 };
    // As a track or stream: none of the source's.
    static constexpr int noTrack = 1000;

    using StateCallback = std::function<void(int state)>;
    // Returns 0; the picture is good during the call only.
    using FrameCallback = std::function<int(const PlayerPicture &picture)>;
    // Sound as it goes out (or would, without a device): interleaved 16-bit,
    // with the time of its first sample.
    using SoundTap
        = std::function<void(const int16_t *samples, int frames, int channels, int rate, double time)>;

    PlayerEngine();
    ~PlayerEngine();
    PlayerEngine(const PlayerEngine &) = delete;
    PlayerEngine &operator=(const PlayerEngine &) = delete;

    // Set before the first open.
    void setStateCallback(StateCallback callback);
    void setFrameCallback(FrameCallback callback);
    void setSoundTap(SoundTap tap);

    // Prepares the source without starting it; a playing one stops first.
    // `title.pgc` >= 0 opens that title of the DVD whose IFO is `path`.
    // False, with errorString() and a report of state 0, when it can't.
    bool open(const QString &path, const TitleSelection &title, const QString &format = {});
    // Starts the prepared source, or the last one again after a stop.
    void play();
    // Toggles between playing and paused.
    void pause();
    // Jumps to `seconds` from the source's start; before play or after a
    // stop the next play starts there.
    void seek(double seconds);
    void stop();
    void setVolume(double level);
    double volume() const;
    // The position that plays now, in seconds from the source's start.
    double clock() const;
    // The n-th sound stream of the source, counted from 0; noTrack for none.
    void selectAudio(int track);
    // The n-th subtitle stream of a file, laid on the pictures where it is
    // made of pictures (a disc's, VobSub); noTrack for none. From the next
    // open; a title takes its subpicture from the open's selection.
    void selectSubtitle(int stream);
    // The n-th stream of a VobSub pair (its .idx) laid on the pictures,
    // timed from the source's start; empty for none. From the next open.
    void selectSubpictureFile(const QString &index, int track);

    // The selected subtitle stream, counted among the source's subtitle
    // streams, where it is text, which the engine leaves to the edited
    // picture; -1 otherwise.
    int textSubtitle() const;
    // Seconds of the source's own time line before its position 0.
    double startTime() const;

    int state() const;
    // Seconds the source lasts; 0 when not known or nothing is open.
    double duration() const;
    QString errorString() const;
    // Whether sound goes to a device, whose played position is the clock.
    bool hasSoundDevice() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
