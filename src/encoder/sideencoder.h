#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
#include <sys/types.h>
#include <thread>
#include <vector>

// An ffmpeg beside the one that writes the file, which hands it one stream
// ready: the sound encoded, or the picture decoded and edited. One ffmpeg works
// through its stages one after the other on one thread, so that they take the
// sum of their times; side by side they take the longest of them.
//
// The stream reaches the writing ffmpeg as NUT through a pipe. Sound that it
// has not read yet waits here, in memory and beyond a few megabytes in a
// temporary file, so the sound never waits for the picture: when both read
// one DVD title through the same feeder, a waiting sound would stall the
// title and with it the picture. The picture goes straight to the writer,
// which sets the pace.
class SideEncoder
{
public:
    enum class Stream { Sound, Picture };

    SideEncoder() = default;
    ~SideEncoder();
    SideEncoder(const SideEncoder &) = delete;
    SideEncoder &operator=(const SideEncoder &) = delete;

    // Starts ffmpeg with `arguments`, which write NUT to standard output;
    // `childFds` become its descriptors 3, 4, ... False when it did not start.
    bool start(Stream stream, const QString &program, const QStringList &arguments,
               const std::vector<int> &childFds);
    // The end the writing ffmpeg reads the sound from; valid after start().
    int readEnd() const { return consumerRead; }
    // Once the writing ffmpeg runs: closes our copy of its end.
    void consumerStarted();
    // Waits for the stream, ending it first when `stop` is set (the writing
    // ffmpeg has failed). True when it came out whole, or when the writing
    // ffmpeg stopped reading sound because it needed no more.
    bool finish(bool stop);
    // Whether it failed while the writing ffmpeg still ran; the writing
    // ffmpeg and the other side were then stopped (see FFmpegRunner::abandon).
    bool failedFirst() const { return endedEarly; }
    // The last of what this ffmpeg wrote on its standard error.
    QByteArray errors() const { return errorText; }

    // The samples of priming `encoder` puts ahead of the sound with these
    // settings (`quality` below 0: none), as the libavcodec that ffmpeg
    // loads says; 0 when it can't tell.
    static int primingSamples(const QString &encoder, int sampleRate, int channels,
                              qint64 bitRate, double quality);

private:
    void relay();

    pid_t pid = -1;
    int streamOut = -1;    // the ffmpeg's standard output, our end; sound only
    int streamErrors = -1; // its standard error, our end
    int consumerRead = -1;
    int consumerWrite = -1;
    bool consumerClosed = false;
    std::atomic<bool> stopping{false};
    bool endedEarly = false;
    int status = 0; // the ffmpeg's, once the relay has ended
    QByteArray errorText;
    std::thread worker;
};
