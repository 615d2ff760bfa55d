#include "mediainput.h"

#include "dvdtitlereader.h"

#include <QFile>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/mem.h>
}

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
