#pragma once

#include <QString>

#include <memory>

struct AVFormatContext;

struct FormatContextDeleter
{
    void operator()(AVFormatContext *context) const;
};
using FormatContextPtr = std::unique_ptr<AVFormatContext, FormatContextDeleter>;

// Which DVD title to open, and which of its tracks to keep. pgc -1 opens a
// plain file; a track of -1 keeps all tracks of that kind.
struct TitleSelection
{
    int pgc = -1;
    int audioTrack = -1;
    int subtitle = -1;
};

// Opens a media file, or the title `selection.pgc` of the DVD whose IFO is
// at `path` through DvdTitleReader under the MPEG-PS demuxer. `format`
// forces a demuxer for a file. On failure null, and the negative result of
// the open in `*error` when given.
FormatContextPtr openMediaInput(const QString &path, const QString &format,
                                const TitleSelection &selection, int *error = nullptr);

// Discards the title's audio and subtitle streams that `selection` leaves
// out. Call it once the streams are known (after avformat_find_stream_info).
void selectTitleStreams(AVFormatContext *context, const TitleSelection &selection);

// Seconds that an MPEG program stream (a VOB, a recorder's .mpg) plays where
// its timestamps start again inside it (the cells of a disc, recordings
// joined end to end): the demuxer's figure, from the first timestamp to the
// last, is wrong there, by days where they run backwards. 0 where they run
// through, so that the demuxer's figure holds, or for any other input.
// Reads timestamps across the file; call after avformat_find_stream_info.
double restartedDuration(AVFormatContext *context);
// The same for the file at `path`; 0 where it can't be read.
double restartedDuration(const QString &path);
