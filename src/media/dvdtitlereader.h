#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

// Reads the cells of one PGC of a DVD, in order and on angle 1, as one
// MPEG program stream. The probe and the still grabber put it under
// libavformat; the encoder front can pipe it into ffmpeg.
//
// A damaged disc loses what it must and no more: a failed read is tried
// again, then block by block, and blocks that still can't be read are left
// out of the stream (its packs are block-aligned, so the demuxer finds the
// next one), as are blocks of cells beyond the end of the VOB files. A title
// that can't be read on fails: a long run of such blocks, or one that runs
// to the end of the title.
class DvdTitleReader
{
public:
    DvdTitleReader();
    ~DvdTitleReader();
    DvdTitleReader(const DvdTitleReader &) = delete;
    DvdTitleReader &operator=(const DvdTitleReader &) = delete;

    // `ifoPath` and `pgcIndex` as a scan reported them. False with
    // errorString() set when the title can't be read.
    bool open(const QString &ifoPath, int pgcIndex);
    void close();
    bool isOpen() const;

    // Up to `maxSize` bytes; 0 at the end, -1 when the title can't be read
    // on (see errorString()). Skipped blocks move pos() on without bytes.
    qint64 read(char *data, qint64 maxSize);
    // Clears a read error: the read goes on from `position`.
    bool seek(qint64 position);
    qint64 pos() const;
    qint64 size() const;

    // Blocks left out so far as unreadable.
    qint64 skippedBlocks() const;
    // Why the title could not be opened or read on; empty when it could.
    QString errorString() const;

    // The MPEG-PS stream id of the title's audio track or subtitle track n,
    // counted from 0 as the scan lists them; -1 when there is none.
    int audioStreamId(int track) const;
    int subtitleStreamId(int track) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
