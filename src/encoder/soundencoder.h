#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>
#include <thread>
#include <vector>

// Encodes the sound of a job in an ffmpeg of its own, beside the ffmpeg that
// encodes the picture and writes the file. One ffmpeg encodes its streams one
// after the other on one thread, so that sound and picture take the sum of
// their times; two take the longer of them.
//
// The sound reaches the writing ffmpeg as NUT through a pipe. What it has not
// read yet waits here, in memory and beyond a few megabytes in a temporary
// file, so the sound never waits for the picture: when both read one DVD
// title through the same feeder, a waiting sound would stall the title and
// with it the picture.
class SoundEncoder
{
public:
    SoundEncoder() = default;
    ~SoundEncoder();
    SoundEncoder(const SoundEncoder &) = delete;
    SoundEncoder &operator=(const SoundEncoder &) = delete;

    // Starts ffmpeg with `arguments`, which write NUT to standard output;
    // `childFds` become its descriptors 3, 4, ... False when it did not start.
    bool start(const QString &program, const QStringList &arguments,
               const std::vector<int> &childFds);
    // The end the writing ffmpeg reads the sound from; valid after start().
    int readEnd() const { return consumerRead; }
    // Once the writing ffmpeg runs: closes our copy of its end.
    void consumerStarted();
    // Waits for the sound, ending it first when `stop` is set (the writing
    // ffmpeg has failed). True when the sound came out whole, or when the
    // writing ffmpeg stopped reading because it needed no more.
    bool finish(bool stop);
    // The last of what the sound's ffmpeg wrote on its standard error.
    QByteArray errors() const { return errorText; }

    // The samples of priming `encoder` puts ahead of the sound with these
    // settings (`quality` below 0: none), as the libavcodec that ffmpeg
    // loads says; 0 when it can't tell.
    static int primingSamples(const QString &encoder, int sampleRate, int channels,
                              qint64 bitRate, double quality);

private:
    void relay();

    pid_t pid = -1;
    int soundOut = -1;    // the sound ffmpeg's standard output, our end
    int soundErrors = -1; // its standard error, our end
    int consumerRead = -1;
    int consumerWrite = -1;
    bool consumerClosed = false;
    QByteArray errorText;
    std::thread worker;
};
