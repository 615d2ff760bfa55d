#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

// Reads the cells of one PGC of a DVD, in order and on angle 1, as one
// MPEG program stream. The probe and the still grabber put it under
// libavformat; the encoder front can pipe it into ffmpeg.
class DvdTitleReader
{
public:
    DvdTitleReader();
    ~DvdTitleReader();
    DvdTitleReader(const DvdTitleReader &) = delete;
    DvdTitleReader &operator=(const DvdTitleReader &) = delete;

    // `ifoPath` and `pgcIndex` as a scan reported them.
    bool open(const QString &ifoPath, int pgcIndex);
    void close();
    bool isOpen() const;

    // Up to `maxSize` bytes; 0 at the end, -1 on a read error.
    qint64 read(char *data, qint64 maxSize);
    bool seek(qint64 position);
    qint64 pos() const;
    qint64 size() const;

    // The MPEG-PS stream id of the title's audio track or subtitle track n,
    // counted from 0 as the scan lists them; -1 when there is none.
    int audioStreamId(int track) const;
    int subtitleStreamId(int track) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
