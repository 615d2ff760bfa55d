#include "mediainput.h"

#include "dvdtitlereader.h"

#include <QFile>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/mem.h>
}

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

namespace {

constexpr int ioBufferSize = 32 * 1024;

int readTitle(void *opaque, uint8_t *buffer, int size)
{
    const qint64 n
        = static_cast<DvdTitleReader *>(opaque)->read(reinterpret_cast<char *>(buffer), size);
    if (n == 0)
        return AVERROR_EOF;
    return n < 0 ? AVERROR(EIO) : int(n);
}

int64_t seekTitle(void *opaque, int64_t offset, int whence)
{
    auto *reader = static_cast<DvdTitleReader *>(opaque);
    if (whence & AVSEEK_SIZE)
        return reader->size();
    switch (whence & ~AVSEEK_FORCE) {
    case SEEK_SET:
        break;
    case SEEK_CUR:
        offset += reader->pos();
        break;
    case SEEK_END:
        offset += reader->size();
        break;
    default:
        return AVERROR(EINVAL);
    }
    return reader->seek(offset) ? offset : AVERROR(EINVAL);
}

struct IoContextDeleter
{
    void operator()(AVIOContext *io) const
    {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
};
using IoContextPtr = std::unique_ptr<AVIOContext, IoContextDeleter>;

// Bytes below which a walk reads packet by packet: cells shorter than that
// could hide between two stamps.
constexpr int64_t fineBytes = 256 * 1024;

// One timestamp of the stream that a walk follows, and where it lies.
struct Stamp
{
    int64_t pos = 0;
    double time = 0.0;   // seconds
    double length = 0.0; // how long its packet plays
};

// Reads the timestamps of one stream at chosen places of a file, and packet
// by packet between two of them where they jump.
class StampWalk
{
public:
    StampWalk(AVFormatContext *context, int stream)
        : context(context)
        , stream(stream)
        , packet(av_packet_alloc())
    {}
    ~StampWalk() { av_packet_free(&packet); }
    StampWalk(const StampWalk &) = delete;
    StampWalk &operator=(const StampWalk &) = delete;

    int breaks = 0;              // jumps found between neighbouring packets
    double secondsPerByte = 0.0; // what the file plays per byte, as a rule

    // The first stamp at byte `pos` or behind it.
    std::optional<Stamp> at(int64_t pos)
    {
        if (!packet || av_seek_frame(context, -1, pos, AVSEEK_FLAG_BYTE) < 0)
            return std::nullopt;
        lastPos = pos;
        return next();
    }

    // Seconds played from `a` to `b`: their difference where it fits the
    // bytes between them, else made up of the parts between.
    double span(const Stamp &a, const Stamp &b)
    {
        // Bit rates vary: only a step far beyond the rule is looked into.
        constexpr double looseness = 4.0;
        const double step = b.time - a.time;
        if (step >= 0.0 && step <= looseness * secondsPerByte * double(b.pos - a.pos) + 0.1)
            return step;
        if (b.pos - a.pos > fineBytes) {
            const std::optional<Stamp> middle = at(a.pos + (b.pos - a.pos) / 2);
            if (middle && middle->pos > a.pos && middle->pos < b.pos)
                return span(a, *middle) + span(*middle, b);
        }
        return packetSpan(a, &b);
    }

    // Seconds played from `a` to `b`, or to the file's end without `b`,
    // packet by packet: a jump between neighbours counts as the time of the
    // packet before it. To the file's end, the last packet's time counts too.
    double packetSpan(const Stamp &a, const Stamp *b)
    {
        // Between neighbouring packets; the times of the packets parsed out
        // of one may stray a frame or two behind the next one's.
        constexpr double longestStep = 1.0;
        constexpr double strayStep = -0.5;
        at(a.pos); // `a` again
        Stamp previous = a;
        double seconds = 0.0;
        while (std::optional<Stamp> current = next()) {
            // `b` as the stamps beside it know it, so that the sums join.
            const bool atEnd = b && current->pos >= b->pos;
            if (atEnd)
                current = *b;
            const double step = current->time - previous.time;
            if (step >= strayStep && step <= longestStep) {
                seconds += step;
            } else {
                seconds += previous.length;
                ++breaks;
            }
            previous = *current;
            if (atEnd)
                return seconds;
        }
        return seconds + previous.length;
    }

private:
    std::optional<Stamp> next()
    {
        while (av_read_frame(context, packet) >= 0) {
            const int64_t time = packet->dts != AV_NOPTS_VALUE ? packet->dts : packet->pts;
            // Frames parsed out of one packet after its first have no place
            // of their own.
            if (packet->pos >= 0)
                lastPos = packet->pos;
            std::optional<Stamp> stamp;
            if (packet->stream_index == stream && time != AV_NOPTS_VALUE) {
                const double base = av_q2d(context->streams[stream]->time_base);
                stamp = Stamp{lastPos, double(time) * base, double(packet->duration) * base};
            }
            av_packet_unref(packet);
            if (stamp)
                return stamp;
        }
        return std::nullopt;
    }

    AVFormatContext *context;
    int stream;
    AVPacket *packet;
    int64_t lastPos = 0;
};

FormatContextPtr openTitle(const QString &path, int pgc, int *error)
{
    auto reader = std::make_unique<DvdTitleReader>();
    if (!reader->open(path, pgc)) {
        *error = AVERROR(EIO);
        return nullptr;
    }
    auto *buffer = static_cast<unsigned char *>(av_malloc(ioBufferSize));
    if (!buffer) {
        *error = AVERROR(ENOMEM);
        return nullptr;
    }
    IoContextPtr io(
        avio_alloc_context(buffer, ioBufferSize, 0, reader.get(), &readTitle, nullptr, &seekTitle));
    if (!io) {
        av_free(buffer);
        *error = AVERROR(ENOMEM);
        return nullptr;
    }
    AVFormatContext *context = avformat_alloc_context();
    if (!context) {
        *error = AVERROR(ENOMEM);
        return nullptr;
    }
    context->pb = io.get();
    context->flags |= AVFMT_FLAG_CUSTOM_IO;
    context->opaque = reader.get();
    // On failure avformat_open_input frees the context, not our I/O.
    *error = avformat_open_input(&context, nullptr, av_find_input_format("mpeg"), nullptr);
    if (*error < 0)
        return nullptr;
    io.release();
    reader.release();
    return FormatContextPtr(context);
}

} // namespace

void FormatContextDeleter::operator()(AVFormatContext *context) const
{
    if (!(context->flags & AVFMT_FLAG_CUSTOM_IO)) {
        avformat_close_input(&context);
        return;
    }
    IoContextPtr io(context->pb);
    std::unique_ptr<DvdTitleReader> reader(static_cast<DvdTitleReader *>(context->opaque));
    avformat_close_input(&context);
}

FormatContextPtr openMediaInput(const QString &path, const QString &format,
                                const TitleSelection &selection, int *error)
{
    int result = 0;
    FormatContextPtr context;
    if (selection.pgc >= 0) {
        context = openTitle(path, selection.pgc, &result);
    } else {
        const AVInputFormat *demuxer = nullptr;
        if (!format.isEmpty()) {
            demuxer = av_find_input_format(format.toUtf8().constData());
            if (!demuxer)
                result = AVERROR_DEMUXER_NOT_FOUND;
        }
        AVFormatContext *opened = nullptr;
        if (result >= 0)
            result = avformat_open_input(&opened, QFile::encodeName(path).constData(), demuxer,
                                         nullptr);
        if (result >= 0)
            context.reset(opened);
    }
    if (error)
        *error = result;
    return context;
}

void selectTitleStreams(AVFormatContext *context, const TitleSelection &selection)
{
    if (!(context->flags & AVFMT_FLAG_CUSTOM_IO) || !context->opaque)
        return;
    const auto *reader = static_cast<const DvdTitleReader *>(context->opaque);
    const int audioId = reader->audioStreamId(selection.audioTrack);
    const int subtitleId = reader->subtitleStreamId(selection.subtitle);
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        AVStream *stream = context->streams[i];
        // MPEG audio has the ids 0x1c0 and up in the demuxer, 0xc0 on the disc.
        const int id = stream->id & 0xff;
        const AVMediaType type = stream->codecpar->codec_type;
        if (type == AVMEDIA_TYPE_AUDIO && selection.audioTrack >= 0 && id != audioId)
            stream->discard = AVDISCARD_ALL;
        if (type == AVMEDIA_TYPE_SUBTITLE && selection.subtitle >= 0 && id != subtitleId)
            stream->discard = AVDISCARD_ALL;
    }
}

double restartedDuration(AVFormatContext *context)
{
    if (!context->iformat || std::strcmp(context->iformat->name, "mpeg") != 0 || !context->pb)
        return 0.0;
    const int64_t size = avio_size(context->pb);
    // Every packet of the sound carries its timestamp, in order; the
    // picture's come in decoding order, and not on every packet.
    int stream = av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (stream < 0)
        stream = av_find_best_stream(context, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (size <= 0 || stream < 0)
        return 0.0;
    std::vector<AVDiscard> discards;
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        discards.push_back(context->streams[i]->discard);
        context->streams[i]->discard = int(i) == stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }

    // Stamps at even steps through the file; a small file is read whole.
    StampWalk walk(context, stream);
    const int count = int(std::clamp<int64_t>(size / fineBytes, 1, 512));
    std::vector<Stamp> stamps;
    for (int i = 0; i < count; ++i) {
        const std::optional<Stamp> stamp = walk.at(size * i / count);
        if (stamp && (stamps.empty() || stamp->pos > stamps.back().pos))
            stamps.push_back(*stamp);
    }
    double seconds = 0.0;
    if (!stamps.empty()) {
        std::vector<double> rates;
        for (size_t i = 1; i < stamps.size(); ++i) {
            const double step = stamps[i].time - stamps[i - 1].time;
            if (step > 0.0)
                rates.push_back(step / double(stamps[i].pos - stamps[i - 1].pos));
        }
        if (!rates.empty()) {
            std::nth_element(rates.begin(), rates.begin() + rates.size() / 2, rates.end());
            walk.secondsPerByte = rates[rates.size() / 2];
        }
        for (size_t i = 1; i < stamps.size(); ++i)
            seconds += walk.span(stamps[i - 1], stamps[i]);
        seconds += walk.packetSpan(stamps.back(), nullptr);
    }
    for (unsigned i = 0; i < context->nb_streams; ++i)
        context->streams[i]->discard = discards[i];
    return walk.breaks > 0 ? seconds : 0.0;
}

double restartedDuration(const QString &path)
{
    const FormatContextPtr context = openMediaInput(path, QString(), TitleSelection());
    if (!context || avformat_find_stream_info(context.get(), nullptr) < 0)
        return 0.0;
    return restartedDuration(context.get());
}
