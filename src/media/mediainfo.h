#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

class DvdTitle;

struct MediaChapter
{
    double start = 0.0;
    double end = 0.0;
    QString name;
};

struct AudioStreamInfo
{
    int index = 0; // stream number in the container
    QString language;
    int sampleRate = 0;
    int channels = 0;
    int bitRate = 0;
    QString codec;
};

struct SubtitleStreamInfo
{
    int index = 0;
    QString language;
    QString name;
};

// What a source holds: from a probe of a file, or from a scanned DVD title.
class MediaInfo
{
public:
    double duration = 0.0;
    bool hasVideo = false;
    bool allCodecsKnown = true;
    double displayAspect = 0.0; // 0.0: the picture size decides
    QList<MediaChapter> chapters;
    int width = 0;
    int height = 0;
    double frameRate = 0.0;
    QString videoCodec;
    int videoBitRate = 0;
    std::vector<AudioStreamInfo> audioStreams;
    std::vector<SubtitleStreamInfo> subtitleStreams;
    QString forcedFormat; // demuxer that a retry had to force, else empty

    // 0 on success, -1 when the file can't be opened, has no readable
    // stream information or no positive duration.
    int Load(const QString &path);
    // 0, or -1 when the title's range is not positive.
    int LoadTitle(const DvdTitle &title);
    // The streams of a DVD title as the demuxer sees them through the title
    // reader; `index` of a stream is its MPEG-PS stream id. 0 or -1.
    int ProbeTitle(const QString &ifoPath, int pgc);

    double DisplayAspect() const;
    QString AspectText() const;
    QString audioCodec(int n) const;

private:
    int probe(const QString &path, const QString &format, int pgc);
};

// A 96x72 still from about `seconds` into the file, or into DVD title `pgc`
// (-1 for a file). Null on failure.
QImage GetPictureFromVideo(const QString &path, int pgc, double seconds);

// The languages of a VobSub index; any other subtitle file counts as one
// stream without a language.
QStringList GetSubtitleLanguages(const QString &path);

// One lock over the FFmpeg libraries inside the process: probes, stills and
// playback take turns. Not recursive.
void LockMedia();
void UnlockMedia();
