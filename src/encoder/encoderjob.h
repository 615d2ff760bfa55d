#pragma once

#include "optiontable.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// One input of the encoder's argument list.
struct EncoderInput
{
    QStringList options; // translated options that stand in front of -i
    QString path;
    int pgc = -1;        // 0 or more: a title of the DVD behind the IFO path
    int audioTrack = -1; // of that title, by position; -1 none
    int subtitle = -1;   // of that title or file, by position, burnt in; -1 none
    int audioStream = 0; // of a file, position among its audio streams
    QString videoChain;  // the program's own -vf text
    // A title arrives through a pipe, where ffmpeg can't seek: its -ss and -t
    // are carried out on the decoded frames instead.
    QString titleStart;
    QString titleLength;
    bool isTitle() const { return pgc >= 0; }
};

// What an input holds, as far as the output graph needs to know.
struct InputLayout
{
    bool hasVideo = true;
    bool hasAudio = true;
    int audioStreams = -1;      // how many, -1 when unknown
    double duration = 0;        // seconds, 0 when unknown
    QString frameRate;          // as ffmpeg writes it, "25" or "30000/1001"; empty when unknown
    QString audioSpecifier;     // stream specifier inside the input; empty: by position
    QString subtitleSpecifier;  // likewise, for a title's burnt-in subpicture
    QStringList subtitleCodecs; // of a file's subtitle streams, in order
    QList<int> audioRates;      // sampling rate of a file's sound streams, in order
    double startTime = 0;       // seconds of the file's first timestamp
    QStringList colourOptions;  // the picture's colour tags as decoder options; known ones only
};

// The encoder's argument list, parsed, and the stock ffmpeg list made of it.
struct EncoderJob
{
    bool overwrite = false;
    int cpuPercent = 0; // 0: no limit
    QList<EncoderInput> inputs;
    OutputOptions output;
    QString outputPath;
    QStringList notes;

    // Empty with `error` set when the list can't be an encoder job.
    static std::optional<EncoderJob> parse(const QStringList &arguments, QString *error);

    // `sources[i]` is what ffmpeg opens for input i (a path, or "pipe:N" for
    // a title); `layouts[i]` what it holds.
    // With `soundSource` set, the sound comes from there encoded, as NUT,
    // its first packet `soundLead` seconds ahead of time zero.
    QStringList ffmpegArguments(const QStringList &sources, const QList<InputLayout> &layouts,
                                const QString &soundSource = QString(),
                                double soundLead = 0) const;

    // Whether an ffmpeg of its own can encode the sound (see SideEncoder):
    // one input with picture and sound, and no share of the processor to hold.
    bool soundApart(const QList<InputLayout> &layouts) const;
    // That ffmpeg's list: the sound of the input, read from `source` and
    // encoded, as NUT on standard output; cut to the title's part when `cut`.
    QStringList soundArguments(const QString &source, const InputLayout &layout,
                               bool cut = false) const;

    // Whether the picture is decoded and edited in an ffmpeg of its own and
    // reaches the writing one raw, so that the encoder has a core of its
    // own: one input long enough to gain, with its sound apart or none, and
    // no share of the processor to hold.
    bool pictureApart(const QList<InputLayout> &layouts) const;
    // That ffmpeg's list: the picture of the input, read from `source`, cut
    // and edited, as raw frames in NUT on standard output.
    QStringList pictureArguments(const QString &source, const InputLayout &layout) const;
    // The writing ffmpeg's list when the picture comes ready from
    // `pictureSource`, and the sound, if any, from `soundSource`.
    QStringList writerArguments(const QString &pictureSource, const InputLayout &layout,
                                const QString &soundSource, double soundLead) const;
    // Seconds of priming the sound's encoder puts ahead of the sound. NUT
    // can't carry a start before zero, so the writing ffmpeg is told.
    double soundLead(const InputLayout &layout) const;

    // Seconds the output should last when the inputs are whole: what the
    // inputs last from their start points, cut to their lengths. 0 where
    // that is not known, or the output is not one timed file.
    double expectedLength(const QList<InputLayout> &layouts) const;

    bool wantsVideo() const;
    bool wantsAudio() const;
    // A numbered picture series ("name%03d.png") carries no sound.
    bool isPictureSeries() const;

private:
    // The picture of the only input: the inputs its graph reads besides it
    // (numbered from `nextInput`), and the graph with its -map.
    struct Picture
    {
        QStringList inputs;
        QStringList graph;
    };
    Picture singlePicture(const QString &source, const InputLayout &layout, int nextInput) const;
    // The arguments for each arrangement of the inputs, between the head and the tail.
    QStringList singleInput(const QString &source, const InputLayout &layout,
                            const QString &soundSource, double soundLead) const;
    QStringList joinedInputs(const QStringList &sources, const QList<InputLayout> &layouts) const;
    // Input i's share of the join's graph: [v<i>] and [a<i>], at the join's rate.
    QStringList joinedPart(int i, const InputLayout &layout, const QString &rate) const;
    // The output's options and name; the sound copied when it comes ready.
    QStringList outputTail(bool soundReady) const;
    // A title's part, as output options: it arrives through a pipe, where
    // ffmpeg can't seek.
    QStringList titleCut() const;
    static QStringList soundInput(const QString &source, double lead);
    // The head of a side ffmpeg's list, which writes no status lines.
    static QStringList quietHead();

    // What the chosen encoders and container can't take, changed to the
    // nearest they can, each change a line of `notes`.
    void fitToEncoders();
    // Stock encoders that take only some picture sizes.
    void fitCodecToSize();
    // MPEG-1 and MPEG-2 pictures go into the program stream their players
    // read: a DVD's, a Video CD's, or MPEG-2's own for any other.
    void fitContainer();
    // The picture format the encoder takes with its profile, whatever the source's.
    void fitPictureFormat();
    // Frames flagged interlaced are deinterlaced for a progressive output.
    void deinterlaceForProgressiveOutput();
    // Filters on the source frame, ahead of trim, crop and scale: deinterlacing
    // and a file's text subtitle, burnt in.
    QString sourceFilters(int i, const InputLayout &layout) const;
    // The picture subtitle stream to lay over the source frame; empty when none.
    QString subpictureStream(int i, const InputLayout &layout) const;
    QString outputOption(const char *name) const;
    // The container and the encoders that will write the output.
    QString container() const;
    QString pictureEncoder() const;
    QString soundEncoder() const;
    QStringList inputArguments(int i, const QString &source) const;
    QString audioSpecifier(int i, const InputLayout &layout) const;
    static bool isSoundOption(const QString &option);
    // Sound laid on the input's time line from zero, gaps filled with silence.
    static QString soundTimeline();
    void setOutputOption(const char *name, const QString &value);
};
