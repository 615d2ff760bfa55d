#include "encoderlimits.h"

#include <QFileInfo>
#include <QStringList>

#include <climits>
#include <cstdlib>

namespace EncoderLimits {

namespace {

struct AudioRow
{
    const char *encoder;
    QList<int> rates; // empty: any
    int channels;     // 0: no limit
};

const QList<AudioRow> &audioRows()
{
    static const QList<AudioRow> rows = {
        {"mp2", {44100, 48000, 32000, 22050, 24000, 16000}, 2},
        {"ac3", {48000, 44100, 32000}, 6},
        {"libmp3lame", {44100, 48000, 32000, 22050, 24000, 16000, 11025, 12000, 8000}, 2},
        {"wmav1", {}, 2},
        {"wmav2", {}, 2},
        {"aac",
         {96000, 88200, 64000, 48000, 44100, 32000, 24000, 22050, 16000, 12000, 11025, 8000, 7350},
         8},
        {"libvorbis", {}, 0},
        {"adpcm_ms", {}, 2},
        {"adpcm_ima_wav", {}, 2},
        {"pcm_s16le", {}, 0},
        {"flac", {}, 0},
        {"alac", {}, 8},
    };
    return rows;
}

struct VideoRow
{
    const char *encoder;
    QList<QPair<int, int>> rates;
};

const QList<VideoRow> &videoRows()
{
    // MPEG-2 reaches many more rates through its extension fields.
    static const QList<VideoRow> rows = {
        {"mpeg1video",
         {{24000, 1001},
          {24, 1},
          {25, 1},
          {30000, 1001},
          {30, 1},
          {50, 1},
          {60000, 1001},
          {60, 1}}},
    };
    return rows;
}

struct ContainerRow
{
    const char *name; // format and extension alike
    const char *audio;
    const char *video;
};

const ContainerRow containers[] = {
    {"rm", "ac3", "rv10"},          {"ra", "ac3", ""},
    {"dv", "pcm_s16le", "dvvideo"}, {"flv", "libmp3lame", "flv"},
    {"swf", "libmp3lame", "flv"},
};

const ContainerRow *containerOf(const QString &outputPath, const QString &format)
{
    const QString name = containerName(outputPath, format);
    for (const ContainerRow &row : containers) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

} // namespace

QString containerName(const QString &outputPath, const QString &format)
{
    return format.isEmpty() ? QFileInfo(outputPath).suffix().toLower() : format;
}

QList<int> sampleRates(const QString &encoder)
{
    for (const AudioRow &row : audioRows()) {
        if (encoder == QLatin1String(row.encoder))
            return row.rates;
    }
    return {};
}

int maxChannels(const QString &encoder)
{
    for (const AudioRow &row : audioRows()) {
        if (encoder == QLatin1String(row.encoder))
            return row.channels;
    }
    return 0;
}

QList<int> audioBitRates(const QString &encoder, int sampleRate)
{
    // MPEG audio layer II has one table for the full rates and one for the
    // half rates; the encoder refuses anything else.
    if (encoder == QLatin1String("mp2")) {
        if (sampleRate >= 32000)
            return {32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384};
        return {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
    }
    return {};
}

QList<QPair<int, int>> frameRates(const QString &encoder)
{
    for (const VideoRow &row : videoRows()) {
        if (encoder == QLatin1String(row.encoder))
            return row.rates;
    }
    return {};
}

QStringList pictureFormats(const QString &encoder, const QString &profile, int lines)
{
    // H.264's baseline, main and high profiles have 8-bit 4:2:0 only; libx264
    // refuses to open for anything else, and NVENC writes no 10-bit H.264.
    if ((encoder == QLatin1String("libx264")
         && QStringList(
                {QStringLiteral("baseline"), QStringLiteral("main"), QStringLiteral("high")})
                .contains(profile))
        || encoder == QLatin1String("h264_nvenc"))
        return {QStringLiteral("yuv420p"), QStringLiteral("yuvj420p"), QStringLiteral("nv12")};
    // The encoder keeps a 4:2:2 source, which DVD and device players don't take.
    if (encoder == QLatin1String("mpeg2video"))
        return {QStringLiteral("yuv420p"), QStringLiteral("yuv422p")};
    // DV25 is 4:2:0 at 576 lines and 4:1:1 at 480; DV50 4:2:2 at both.
    if (encoder == QLatin1String("dvvideo") && lines == 576)
        return {QStringLiteral("yuv420p"), QStringLiteral("yuv411p"), QStringLiteral("yuv422p")};
    if (encoder == QLatin1String("dvvideo") && lines == 480)
        return {QStringLiteral("yuv411p"), QStringLiteral("yuv422p")};
    return {};
}

QString defaultAudioEncoder(const QString &outputPath, const QString &format)
{
    const ContainerRow *row = containerOf(outputPath, format);
    return row ? QLatin1String(row->audio) : QString();
}

QString defaultVideoEncoder(const QString &outputPath, const QString &format)
{
    const ContainerRow *row = containerOf(outputPath, format);
    return row ? QLatin1String(row->video) : QString();
}

QStringList audioEncoders()
{
    QStringList names;
    for (const AudioRow &row : audioRows())
        names << QLatin1String(row.encoder);
    return names;
}

QStringList videoEncoders()
{
    QStringList names;
    for (const VideoRow &row : videoRows())
        names << QLatin1String(row.encoder);
    return names;
}

QStringList containerNames()
{
    QStringList names;
    for (const ContainerRow &row : containers)
        names << QLatin1String(row.name);
    return names;
}

QString h264Level(const QString &wanted, int width, int height, double frameRate)
{
    // Largest frame and macroblocks a second of each level.
    struct Level
    {
        int tenfold;
        long long frame;
        long long rate;
    };
    static const Level levels[]
        = {{10, 99, 1485},        {11, 396, 3000},       {12, 396, 6000},
           {13, 396, 11880},      {20, 396, 11880},      {21, 792, 19800},
           {22, 1620, 20250},     {30, 1620, 40500},     {31, 3600, 108000},
           {32, 5120, 216000},    {40, 8192, 245760},    {41, 8192, 245760},
           {42, 8704, 522240},    {50, 22080, 589824},   {51, 36864, 983040},
           {52, 36864, 2073600}};
    const long long blocks = (width + 15) / 16 * ((height + 15) / 16);
    const long long perSecond = (long long)(blocks * frameRate + 0.5);
    const int asked = qRound(wanted.toDouble() * 10);
    auto holds = [&](const Level &level) {
        return blocks <= level.frame && perSecond <= level.rate;
    };
    for (const Level &level : levels) {
        if (level.tenfold == asked && holds(level))
            return wanted;
    }
    for (const Level &level : levels) {
        if (level.tenfold >= asked && holds(level))
            return QStringLiteral("%1.%2").arg(level.tenfold / 10).arg(level.tenfold % 10);
    }
    return wanted;
}

int nearest(const QList<int> &allowed, int wanted)
{
    int best = wanted;
    long long bestDistance = LLONG_MAX;
    for (const int value : allowed) {
        const long long distance = std::llabs(static_cast<long long>(value) - wanted);
        if (distance < bestDistance || (distance == bestDistance && value > best)) {
            best = value;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace EncoderLimits
