#include "mediainfo.h"

#include "utils.h"

#include "dvddisc.h"
#include "mediainput.h"

#include <QDebug>
#include <QFile>
#include <QMutex>
#include <QTransform>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/display.h>
#include <libswscale/swscale.h>
}

#include <cctype>
#include <climits>
#include <cmath>

namespace {

QMutex &mediaMutex()
{
    static QMutex mutex;
    return mutex;
}

class MediaLocker
{
public:
    MediaLocker() { LockMedia(); }
    ~MediaLocker() { UnlockMedia(); }
    MediaLocker(const MediaLocker &) = delete;
    MediaLocker &operator=(const MediaLocker &) = delete;
};

struct CodecContextDeleter
{
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
};
struct FrameDeleter
{
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
};
struct PacketDeleter
{
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};
struct ScaleDeleter
{
    void operator()(SwsContext *context) const { sws_freeContext(context); }
};

constexpr int thumbnailWidth = 96;
constexpr int thumbnailHeight = 72;

// The decoder's name when the library has one; else whatever names the codec.
QString codecName(const AVCodecParameters &codec, bool *known)
{
    if (const AVCodec *decoder = avcodec_find_decoder(codec.codec_id)) {
        *known = true;
        return QString::fromLatin1(decoder->name);
    }
    *known = false;
    if (codec.codec_id == AV_CODEC_ID_MPEG2TS)
        return QStringLiteral("mpeg2ts");
    const AVCodecDescriptor *descriptor = avcodec_descriptor_get(codec.codec_id);
    if (descriptor && descriptor->name && *descriptor->name)
        return QString::fromLatin1(descriptor->name).left(31);
    const unsigned tag = codec.codec_tag;
    bool printable = true;
    for (int shift = 0; shift < 32; shift += 8)
        printable = printable && std::isprint(int((tag >> shift) & 0xff));
    if (printable)
        return QString::asprintf("%c%c%c%c / 0x%04X", char(tag & 0xff), char((tag >> 8) & 0xff),
                                 char((tag >> 16) & 0xff), char((tag >> 24) & 0xff), tag)
            .left(31);
    return QString::asprintf("0x%04x", tag).left(31);
}

// Degrees clockwise that a picture is turned for display (0, 90, 180 or
// 270), from the stream's display matrix: what ffmpeg's autorotate does.
int displayRotation(const AVStream &stream)
{
    const auto *matrix = reinterpret_cast<const int32_t *>(
        av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr));
    if (!matrix)
        return 0;
    const double counterClockwise = av_display_rotation_get(matrix);
    if (std::isnan(counterClockwise))
        return 0;
    const int quarters = int(std::lround(-counterClockwise / 90.0));
    return (quarters % 4 + 4) % 4 * 90;
}

QString language(const AVStream &stream)
{
    const AVDictionaryEntry *entry = av_dict_get(stream.metadata, "language", nullptr, 0);
    return entry ? QString::fromUtf8(entry->value) : QString();
}

} // namespace

void LockMedia()
{
    mediaMutex().lock();
}

void UnlockMedia()
{
    mediaMutex().unlock();
}

int MediaInfo::probe(const QString &path, const QString &format, int pgc)
{
    MediaLocker lock;
    audioStreams.clear();
    subtitleStreams.clear();
    chapters.clear();
    hasVideo = false;
    allCodecsKnown = true;
    width = 0;
    height = 0;
    displayAspect = 0.0;

    // A pipe or a device would block the probe, or never end.
    if (pgc < 0 && !Utils::unreadableReason(path).isEmpty())
        return -1;
    TitleSelection selection;
    selection.pgc = pgc;
    int result = 0;
    const FormatContextPtr context = openMediaInput(path, format, selection, &result);
    if (!context)
        return result < 0 ? result : -1;
    result = avformat_find_stream_info(context.get(), nullptr);
    if (result < 0)
        return result;
    // A program stream whose timestamps start again is walked through.
    const double restarted = pgc < 0 ? restartedDuration(context.get()) : 0.0;
    duration = restarted > 0.0 ? restarted : context->duration * 1e-06;
    if ((restarted <= 0.0 && context->duration == AV_NOPTS_VALUE) || duration <= 0.0)
        return -1;

    for (unsigned i = 0; i < context->nb_chapters; ++i) {
        const AVChapter &chapter = *context->chapters[i];
        const double base = double(chapter.time_base.num) / double(chapter.time_base.den);
        MediaChapter entry;
        entry.start = chapter.start * base;
        entry.end = chapter.end * base;
        const AVDictionaryEntry *title
            = av_dict_get(chapter.metadata, "title", nullptr, AV_DICT_MATCH_CASE);
        entry.name
            = title ? QString::fromUtf8(title->value) : QStringLiteral("Chapter_%1").arg(i + 1);
        chapters.append(entry);
    }

    for (unsigned i = 0; i < context->nb_streams; ++i) {
        const AVStream &stream = *context->streams[i];
        const AVCodecParameters &codec = *stream.codecpar;
        // A disc title's tracks are known by their MPEG-PS ids.
        const int index = pgc >= 0 ? stream.id & 0xff : int(i);
        bool known = true;
        if (codec.codec_type == AVMEDIA_TYPE_VIDEO && !hasVideo) {
            hasVideo = true;
            // The picture as shown: turned, and with the shape of its pixels.
            const bool turned = displayRotation(stream) % 180 != 0;
            width = turned ? codec.height : codec.width;
            height = turned ? codec.width : codec.height;
            const AVRational pixel
                = av_guess_sample_aspect_ratio(context.get(), context->streams[i], nullptr);
            if (pixel.num > 0 && pixel.den > 0 && pixel.num != pixel.den && codec.height > 0) {
                const double aspect
                    = double(codec.width) * pixel.num / (double(codec.height) * pixel.den);
                displayAspect = turned ? 1.0 / aspect : aspect;
            }
            frameRate = stream.r_frame_rate.den
                            ? double(stream.r_frame_rate.num) / double(stream.r_frame_rate.den)
                            : 0.0;
            videoBitRate = int(codec.bit_rate);
            videoCodec = codecName(codec, &known);
        } else if (codec.codec_type == AVMEDIA_TYPE_AUDIO) {
            AudioStreamInfo audio;
            audio.index = index;
            audio.language = language(stream);
            audio.sampleRate = codec.sample_rate;
            audio.channels = codec.ch_layout.nb_channels;
            audio.bitRate = int(codec.bit_rate);
            audio.codec = codecName(codec, &known);
            audioStreams.push_back(audio);
        } else if (codec.codec_type == AVMEDIA_TYPE_SUBTITLE) {
            SubtitleStreamInfo subtitle;
            subtitle.index = index;
            subtitle.language = language(stream);
            subtitleStreams.push_back(subtitle);
        }
        if (!known)
            allCodecsKnown = false;
    }
    return 0;
}

int MediaInfo::Load(const QString &path)
{
    forcedFormat.clear();
    if (probe(path, QString(), -1) < 0)
        return -1;
    // Streams without a decoder may open with a forced demuxer; the names of
    // the first pass stay, since they say more than the retry's.
    for (const char *format : {"qt", "ds"}) {
        if (allCodecsKnown)
            break;
        const QString audio = audioCodec(0);
        const QString video = videoCodec;
        if (probe(path, QString::fromLatin1(format), -1) < 0) {
            probe(path, QString(), -1);
            continue;
        }
        forcedFormat = QString::fromLatin1(format);
        if (!audioStreams.empty())
            audioStreams[0].codec = audio;
        videoCodec = video;
    }
    return 0;
}

int MediaInfo::ProbeTitle(const QString &ifoPath, int pgc)
{
    forcedFormat.clear();
    if (pgc < 0)
        return -1;
    return probe(ifoPath, QString(), pgc) < 0 ? -1 : 0;
}

int MediaInfo::LoadTitle(const DvdTitle &title)
{
    hasVideo = true;
    if (!title.range || !title.disc)
        return -1;
    duration = title.range->end - title.range->start;
    if (duration <= 0.0)
        return -1;
    chapters.clear();
    if (title.chapters.size() >= 2) {
        for (size_t i = 0; i < title.chapters.size(); ++i) {
            MediaChapter chapter;
            chapter.start = title.chapters[i]->start;
            chapter.end = title.chapters[i]->end;
            chapter.name = QStringLiteral("Chapter_%1").arg(i + 1);
            chapters.append(chapter);
        }
    }
    const DvdDisc &disc = *title.disc;
    width = disc.width;
    height = disc.height;
    frameRate = disc.videoStandard ? 25.0 : 30.0;
    displayAspect = disc.aspect;
    videoBitRate = 0;
    videoCodec = VideoFormatLabel(disc.mpegVersion);
    audioStreams.clear();
    for (const QString &name : title.audioNames) {
        AudioStreamInfo audio;
        audio.language = name;
        audio.sampleRate = disc.audioRate == 0 ? 48000 : 0;
        audio.channels = disc.audioChannels;
        audio.codec = AudioFormatLabel(disc.audioFormat);
        audioStreams.push_back(audio);
    }
    subtitleStreams.clear();
    for (const QString &name : title.subtitleNames) {
        SubtitleStreamInfo subtitle;
        subtitle.language = name;
        subtitleStreams.push_back(subtitle);
    }
    return 0;
}

double MediaInfo::DisplayAspect() const
{
    if (displayAspect != 0.0 || height == 0)
        return displayAspect;
    return double(width) / double(height);
}

QString MediaInfo::AspectText() const
{
    return QString::number(DisplayAspect(), 'g', 6).left(5);
}

QString MediaInfo::audioCodec(int n) const
{
    return n >= 0 && n < int(audioStreams.size()) ? audioStreams[size_t(n)].codec : QString();
}

namespace {

// The second intra (or untyped) picture behind the seek point, turned
// upright by `rotation` degrees clockwise; after 100 decoded packets any
// picture will do, after 200 the grab gives up.
QImage grabPicture(AVFormatContext *context, int streamIndex, AVCodecContext *decoder, int rotation)
{
    const std::unique_ptr<AVFrame, FrameDeleter> frame(av_frame_alloc());
    const std::unique_ptr<AVPacket, PacketDeleter> packet(av_packet_alloc());
    if (!frame || !packet)
        return {};
    int decoded = 0;
    bool skippedFirst = false;
    while (true) {
        if (av_read_frame(context, packet.get()) < 0) {
            av_log(nullptr, AV_LOG_ERROR, "(%d): av_read_frame x\n", __LINE__);
            return {};
        }
        const bool ours = packet->stream_index == streamIndex;
        const int sent = ours ? avcodec_send_packet(decoder, packet.get()) : 0;
        av_packet_unref(packet.get());
        if (!ours)
            continue;
        if (sent < 0) {
            av_log(nullptr, AV_LOG_ERROR, "(%d): avcodec_decode_video2 x\n", __LINE__);
            continue;
        }
        if (++decoded > 200)
            return {};
        while (avcodec_receive_frame(decoder, frame.get()) == 0) {
            const bool acceptable = frame->pict_type == AV_PICTURE_TYPE_I
                                    || frame->pict_type == AV_PICTURE_TYPE_NONE || decoded > 100;
            if (!acceptable)
                continue;
            if (!skippedFirst) {
                skippedFirst = true;
                continue;
            }
            // A quarter turn makes the stored picture's sides swap.
            const bool turned = rotation % 180 != 0;
            const int width = turned ? thumbnailHeight : thumbnailWidth;
            const int height = turned ? thumbnailWidth : thumbnailHeight;
            const std::unique_ptr<SwsContext, ScaleDeleter> scale(sws_getCachedContext(
                nullptr, frame->width, frame->height, AVPixelFormat(frame->format), width, height,
                AV_PIX_FMT_RGB24, SWS_BICUBIC, nullptr, nullptr, nullptr));
            if (!scale)
                return {};
            QImage image(width, height, QImage::Format_RGB888);
            uint8_t *planes[4] = {image.bits(), nullptr, nullptr, nullptr};
            const int strides[4] = {int(image.bytesPerLine()), 0, 0, 0};
            sws_scale(scale.get(), frame->data, frame->linesize, 0, frame->height, planes, strides);
            return rotation ? image.transformed(QTransform().rotate(rotation)) : image;
        }
    }
}

} // namespace

QImage GetPictureFromVideo(const QString &path, int pgc, double seconds)
{
    MediaLocker lock;
    const auto fail = [&path](int line) {
        qDebug().noquote()
            << QStringLiteral("MediaInfo(%1): GetPictureFromVideo(%2) x").arg(line).arg(path);
        return QImage();
    };

    TitleSelection selection;
    selection.pgc = pgc;
    const FormatContextPtr context = openMediaInput(path, QString(), selection);
    if (!context) {
        av_log(nullptr, AV_LOG_ERROR, "(%d): av_open_input_file x\n", __LINE__);
        return fail(__LINE__);
    }
    if (avformat_find_stream_info(context.get(), nullptr) < 0) {
        av_log(nullptr, AV_LOG_ERROR, "(%d): av_find_stream_info x\n", __LINE__);
        return fail(__LINE__);
    }
    int streamIndex = -1;
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        if (streamIndex < 0 && context->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_VIDEO)
            streamIndex = int(i);
        else
            context->streams[i]->discard = AVDISCARD_ALL;
    }
    if (streamIndex < 0)
        return fail(__LINE__);
    const AVCodecParameters *parameters = context->streams[streamIndex]->codecpar;
    const AVCodec *codec = avcodec_find_decoder(parameters->codec_id);
    if (!codec)
        return fail(__LINE__);
    const std::unique_ptr<AVCodecContext, CodecContextDeleter> decoder(
        avcodec_alloc_context3(codec));
    if (!decoder || avcodec_parameters_to_context(decoder.get(), parameters) < 0)
        return fail(__LINE__);
    decoder->thread_count = 1;
    if (avcodec_open2(decoder.get(), codec, nullptr) < 0) {
        av_log(nullptr, AV_LOG_ERROR, "(%d): avcodec_open2 x\n", __LINE__);
        return fail(__LINE__);
    }
    avformat_seek_file(context.get(), -1, INT64_MIN, int64_t(seconds * 1000000.0), INT64_MAX, 0);
    const QImage image = grabPicture(context.get(), streamIndex, decoder.get(),
                                     displayRotation(*context->streams[streamIndex]));
    return image.isNull() ? fail(__LINE__) : image;
}

QStringList GetSubtitleLanguages(const QString &path)
{
    if (path.right(3).toLower() != QLatin1String("idx"))
        return {QString()};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList languages;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("id:"))
            languages.append(QString::fromLatin1(line.mid(4, 2)));
    }
    return languages;
}
