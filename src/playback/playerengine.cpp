#include "playerengine.h"

#include "soundoutput.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/imgutils.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <QFile>
#include <QFileInfo>
#include <QRect>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using Lock = std::unique_lock<std::mutex>;

// What the queues may hold: enough to ride out a slow read, bounded so that
// a large file costs no more memory than a small one.
constexpr int64_t maxPacketBytes = 8 * 1024 * 1024;
constexpr size_t minPackets = 25; // per stream, whatever their size
constexpr size_t maxFrames = 3;
constexpr double maxSoundSeconds = 0.5;
// Late by more than this, a picture is dropped where the next one is due too.
constexpr double dropLateness = 0.1;
constexpr auto idleWait = std::chrono::milliseconds(10);
// How far before a seek's target the subpictures are read.
constexpr double subpictureLead = 3.0;

double wallSeconds()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

QString avError(int code)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromUtf8(text);
}

struct CodecContextDeleter
{
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
};
using CodecPtr = std::unique_ptr<AVCodecContext, CodecContextDeleter>;

struct Packet
{
    AVPacket *packet = nullptr; // null: the end of the stream
    int serial = 0;
};

struct Picture
{
    AVFrame *frame = nullptr;
    double time = 0.0;
    double length = 0.0;
    int serial = 0;
};

struct SoundChunk
{
    std::vector<int16_t> samples; // interleaved stereo
    size_t used = 0;              // samples already gone out
    double time = 0.0;            // of samples[0]
    int serial = 0;
};

// A subpicture as the decoder gave it, in the picture's pixels: palette
// indices and the palette as Y, U, V and alpha.
struct Subpicture
{
    struct Piece
    {
        QRect area;
        std::vector<uint8_t> indices; // area.width() per line
        std::vector<std::array<int, 4>> colours;
    };
    double start = 0.0;
    double end = -1.0; // -1: until the next one
    std::vector<Piece> pieces;
};

// Lays `sub` over a 4:2:0 picture; chroma takes the alpha of each 2x2 block's
// first pixel.
void blend(AVFrame *frame, const Subpicture &sub)
{
    for (const Subpicture::Piece &piece : sub.pieces) {
        const QRect area = piece.area.intersected(QRect(0, 0, frame->width, frame->height));
        for (int y = area.top(); y <= area.bottom(); ++y) {
            const uint8_t *index
                = piece.indices.data() + size_t(y - piece.area.top()) * piece.area.width();
            uint8_t *luma = frame->data[0] + y * frame->linesize[0];
            uint8_t *cb = frame->data[1] + (y / 2) * frame->linesize[1];
            uint8_t *cr = frame->data[2] + (y / 2) * frame->linesize[2];
            for (int x = area.left(); x <= area.right(); ++x) {
                const uint8_t i = index[x - piece.area.left()];
                if (i >= piece.colours.size())
                    continue;
                const std::array<int, 4> &c = piece.colours[i];
                const int a = c[3];
                luma[x] = uint8_t((luma[x] * (255 - a) + c[0] * a) / 255);
                if (x % 2 == 0 && y % 2 == 0) {
                    cb[x / 2] = uint8_t((cb[x / 2] * (255 - a) + c[1] * a) / 255);
                    cr[x / 2] = uint8_t((cr[x / 2] * (255 - a) + c[2] * a) / 255);
                }
            }
        }
    }
}

// The bitmaps of one decoded subtitle; none for text.
Subpicture subpictureOf(const AVSubtitle &decoded, double time)
{
    Subpicture sub;
    sub.start = time + decoded.start_display_time / 1000.0;
    if (decoded.end_display_time > decoded.start_display_time
        && decoded.end_display_time != UINT32_MAX)
        sub.end = time + decoded.end_display_time / 1000.0;
    for (unsigned r = 0; r < decoded.num_rects; ++r) {
        const AVSubtitleRect *rect = decoded.rects[r];
        if (rect->type != SUBTITLE_BITMAP || rect->w <= 0 || rect->h <= 0 || !rect->data[0])
            continue;
        Subpicture::Piece piece;
        piece.area = QRect(rect->x, rect->y, rect->w, rect->h);
        piece.indices.resize(size_t(rect->w) * rect->h);
        for (int y = 0; y < rect->h; ++y)
            std::copy_n(rect->data[0] + y * rect->linesize[0], rect->w,
                        piece.indices.data() + size_t(y) * rect->w);
        const auto *palette = reinterpret_cast<const uint32_t *>(rect->data[1]);
        for (int i = 0; palette && i < rect->nb_colors; ++i) {
            const int a = int(palette[i] >> 24), r8 = int(palette[i] >> 16 & 0xff),
                      g = int(palette[i] >> 8 & 0xff), b = int(palette[i] & 0xff);
            // Studio range, as the pictures are.
            piece.colours.push_back({16 + (66 * r8 + 129 * g + 25 * b + 128) / 256,
                                     128 + (-38 * r8 - 74 * g + 112 * b + 128) / 256,
                                     128 + (112 * r8 - 94 * g - 18 * b + 128) / 256, a});
        }
        sub.pieces.push_back(std::move(piece));
    }
    return sub;
}

CodecPtr openDecoder(AVStream *stream, AVDictionary **options = nullptr)
{
    const AVCodec *codec = avcodec_find_decoder(stream->codecpar->codec_id);
    if (!codec)
        return nullptr;
    CodecPtr context(avcodec_alloc_context3(codec));
    if (!context || avcodec_parameters_to_context(context.get(), stream->codecpar) < 0)
        return nullptr;
    context->pkt_timebase = stream->time_base;
    // Two decode threads at most: the engine's other threads need the rest.
    context->thread_count = 2;
    if (avcodec_open2(context.get(), codec, options) < 0)
        return nullptr;
    return context;
}

} // namespace

// One prepared source and, once started, its threads. Everything below the
// mutex is shared between them.
struct Session
{
    FormatContextPtr input;
    CodecPtr video;
    CodecPtr audio;
    CodecPtr subtitles;
    int videoIndex = -1;
    int audioIndex = -1;
    int subtitleIndex = -1;
    int textSubtitle = -1;
    double startTime = 0.0; // the source's first stamp, taken off every time
    double duration = 0.0;
    double frameLength = 0.04;
    int soundRate = 0; // what goes out, stereo 16-bit
    bool soundDevice = false;

    std::vector<std::thread> threads;

    // Held while a picture is handed out: a seek waits for it, so that no
    // picture from before the seek follows it.
    std::mutex showing;
    std::mutex mutex;
    std::condition_variable changed;
    bool abort = false;
    bool ended = false;
    int serial = 0;
    bool seekPending = false;
    double seekTarget = 0.0;
    double skipBefore = -1.0; // of `serial`: what decodes before it is dropped
    bool showNext = false;    // a paused seek shows its first picture
    std::deque<Packet> videoPackets;
    std::deque<Packet> audioPackets;
    int64_t packetBytes = 0;
    bool demuxDone = false;
    bool videoDone = false;
    bool audioDone = false;
    std::deque<Picture> pictures;
    std::deque<SoundChunk> sound;
    size_t soundSamples = 0;
    std::deque<Subpicture> subpictures; // of `serial`, in time order
    // A VobSub file's stream: all its packets, small, decoded as the
    // pictures reach them; `fileNext` the next one due.
    CodecPtr fileSubtitles;
    std::vector<std::pair<double, AVPacket *>> filePackets;
    size_t fileNext = 0;

    bool paused = false;
    bool clockSet = false;
    double clockTime = 0.0; // the clock at `clockWall`
    double clockWall = 0.0;
    double soundEnd = 0.0; // time of the end of the sound handed out
    double volume = 1.0;

    ~Session()
    {
        for (Packet &p : videoPackets)
            av_packet_free(&p.packet);
        for (Packet &p : audioPackets)
            av_packet_free(&p.packet);
        for (Picture &p : pictures)
            av_frame_free(&p.frame);
        for (auto &[time, packet] : filePackets)
            av_packet_free(&packet);
    }

    double clockLocked() const
    {
        if (!clockSet)
            return seekTarget;
        if (paused)
            return clockTime;
        double now = clockTime + (wallSeconds() - clockWall);
        if (soundDevice && audio)
            now = std::min(now, soundEnd); // starved: the device plays nothing
        return now;
    }

    void setClock(double time)
    {
        clockTime = time;
        clockWall = wallSeconds();
        clockSet = true;
    }

    // Drops everything queued and decoded: a seek, or a stream changed.
    void flushLocked()
    {
        ++serial;
        for (Packet &p : videoPackets)
            av_packet_free(&p.packet);
        for (Packet &p : audioPackets)
            av_packet_free(&p.packet);
        videoPackets.clear();
        audioPackets.clear();
        packetBytes = 0;
        for (Picture &p : pictures)
            av_frame_free(&p.frame);
        pictures.clear();
        sound.clear();
        soundSamples = 0;
        subpictures.clear();
        demuxDone = videoDone = audioDone = false;
        ended = false;
        clockSet = false;
        changed.notify_all();
    }

    bool queuesFull() const
    {
        const bool videoFull = videoIndex < 0 || videoPackets.size() >= minPackets;
        const bool audioFull = audioIndex < 0 || audioPackets.size() >= minPackets;
        return packetBytes >= maxPacketBytes || (videoFull && audioFull);
    }

    // The next packet of `queue` that belongs to the current serial; false
    // when the playback ends.
    bool takePacket(std::deque<Packet> &queue, Lock &lock, Packet &next)
    {
        while (!abort) {
            if (queue.empty()) {
                changed.wait(lock);
                continue;
            }
            next = queue.front();
            queue.pop_front();
            if (next.packet)
                packetBytes -= next.packet->size;
            if (next.serial == serial) {
                changed.notify_all();
                return true;
            }
            av_packet_free(&next.packet);
        }
        return false;
    }

    double stampSeconds(int64_t stamp, AVRational base) const
    {
        return stamp == AV_NOPTS_VALUE ? -1.0 : double(stamp) * av_q2d(base) - startTime;
    }

    // Decodes one subpicture packet of `time` onto the end of the queue.
    void addSubpicture(AVCodecContext *decoder, AVPacket *packet, double time)
    {
        AVSubtitle decoded{};
        int got = 0;
        if (avcodec_decode_subtitle2(decoder, &decoded, &got, packet) < 0 || !got)
            return;
        Subpicture sub = subpictureOf(decoded, std::max(time, 0.0));
        avsubtitle_free(&decoded);
        if (!subpictures.empty() && subpictures.back().end < 0.0)
            subpictures.back().end = sub.start;
        subpictures.push_back(std::move(sub));
    }

    // The `track`-th stream of the VobSub pair whose index is `path`.
    bool loadSubpictureFile(const QString &path, int track);

    void demux();
    void decodeVideo();
    void decodeAudio();
    void present(const std::function<void()> &onEnd, const PlayerEngine::FrameCallback &show);
    void playWithoutDevice(const PlayerEngine::SoundTap &tap);
    qint64 feedDevice(char *data, qint64 maxSize, qint64 queued, const PlayerEngine::SoundTap &tap);
};

bool Session::loadSubpictureFile(const QString &path, int track)
{
    int result = 0;
    FormatContextPtr file = openMediaInput(path, QString(), TitleSelection(), &result);
    if (!file || avformat_find_stream_info(file.get(), nullptr) < 0)
        return false;
    int index = -1;
    for (unsigned i = 0, seen = 0; i < file->nb_streams && index < 0; ++i)
        if (file->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE && int(seen++) == track)
            index = int(i);
    if (index < 0 || !(fileSubtitles = openDecoder(file->streams[index])))
        return false;
    // Timed from the source's start, as the encoder times it.
    const AVRational base = file->streams[index]->time_base;
    AVPacket *packet = av_packet_alloc();
    while (av_read_frame(file.get(), packet) >= 0) {
        if (packet->stream_index == index && packet->pts != AV_NOPTS_VALUE)
            filePackets.emplace_back(double(packet->pts) * av_q2d(base), av_packet_clone(packet));
        av_packet_unref(packet);
    }
    av_packet_free(&packet);
    std::stable_sort(filePackets.begin(), filePackets.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    return true;
}

void Session::demux()
{
    AVPacket *packet = av_packet_alloc();
    Lock lock(mutex);
    while (!abort) {
        if (seekPending) {
            seekPending = false;
            const double target = seekTarget;
            // A subpicture shown at the target may have begun a while before.
            const double from = std::max(target - (subtitleIndex >= 0 ? subpictureLead : 0.0), 0.0);
            const int64_t stamp = int64_t((from + startTime) * AV_TIME_BASE);
            lock.unlock();
            // The key frame at or before the target; what lies between is
            // decoded and dropped.
            avformat_seek_file(input.get(), -1, INT64_MIN, stamp, stamp, 0);
            lock.lock();
            skipBefore = target;
            // From the last file subpicture begun by the target.
            fileNext = size_t(std::upper_bound(filePackets.begin(), filePackets.end(), target,
                                               [](double t, const auto &p) { return t < p.first; })
                              - filePackets.begin());
            fileNext -= fileNext > 0 ? 1 : 0;
            if (fileSubtitles)
                avcodec_flush_buffers(fileSubtitles.get());
            continue;
        }
        if (demuxDone || queuesFull()) {
            changed.wait_for(lock, idleWait);
            continue;
        }
        const int serialNow = serial;
        lock.unlock();
        const int result = av_read_frame(input.get(), packet);
        lock.lock();
        if (serial != serialNow || seekPending) {
            av_packet_unref(packet);
            continue;
        }
        if (result < 0) {
            // The end, or a read that can't go on: drain the decoders.
            demuxDone = true;
            if (videoIndex >= 0)
                videoPackets.push_back({nullptr, serial});
            if (audioIndex >= 0)
                audioPackets.push_back({nullptr, serial});
            changed.notify_all();
            continue;
        }
        if (packet->stream_index == subtitleIndex && subtitleIndex >= 0) {
            // Small and rare: decoded here, shown with the pictures.
            addSubpicture(subtitles.get(), packet,
                          stampSeconds(packet->pts, input->streams[subtitleIndex]->time_base));
            av_packet_unref(packet);
            continue;
        }
        std::deque<Packet> *queue = packet->stream_index == videoIndex ? &videoPackets
                                    : packet->stream_index == audioIndex ? &audioPackets
                                                                         : nullptr;
        if (!queue) {
            av_packet_unref(packet);
            continue;
        }
        packetBytes += packet->size;
        queue->push_back({av_packet_clone(packet), serial});
        av_packet_unref(packet);
        changed.notify_all();
    }
    av_packet_free(&packet);
}

void Session::decodeVideo()
{
    AVFrame *decoded = av_frame_alloc();
    SwsContext *scaler = nullptr;
    int decoderSerial = -1;
    Lock lock(mutex);
    Packet next;
    while (takePacket(videoPackets, lock, next)) {
        const double skip = skipBefore;
        lock.unlock();
        if (decoderSerial != next.serial) {
            avcodec_flush_buffers(video.get());
            decoderSerial = next.serial;
        }
        avcodec_send_packet(video.get(), next.packet);
        av_packet_free(&next.packet);
        bool drained = false;
        while (true) {
            const int result = avcodec_receive_frame(video.get(), decoded);
            if (result == AVERROR_EOF)
                drained = true;
            if (result < 0)
                break;
            const AVStream *stream = input->streams[videoIndex];
            const double time = stampSeconds(decoded->best_effort_timestamp, stream->time_base);
            if (time >= 0.0 && time < skip - frameLength / 2) {
                av_frame_unref(decoded);
                continue;
            }
            // The engine hands out 4:2:0 pictures only.
            AVFrame *picture = av_frame_alloc();
            if (decoded->format == AV_PIX_FMT_YUV420P) {
                av_frame_move_ref(picture, decoded);
            } else {
                picture->format = AV_PIX_FMT_YUV420P;
                picture->width = decoded->width;
                picture->height = decoded->height;
                scaler = sws_getCachedContext(scaler, decoded->width, decoded->height,
                                              AVPixelFormat(decoded->format), decoded->width,
                                              decoded->height, AV_PIX_FMT_YUV420P, SWS_BICUBIC,
                                              nullptr, nullptr, nullptr);
                if (!scaler || av_frame_get_buffer(picture, 0) < 0) {
                    av_frame_free(&picture);
                    av_frame_unref(decoded);
                    continue;
                }
                sws_scale(scaler, decoded->data, decoded->linesize, 0, decoded->height,
                          picture->data, picture->linesize);
                picture->best_effort_timestamp = decoded->best_effort_timestamp;
                av_frame_unref(decoded);
            }
            lock.lock();
            while (!abort && serial == decoderSerial && pictures.size() >= maxFrames)
                changed.wait(lock);
            if (serial == decoderSerial && !abort) {
                pictures.push_back({picture, time < 0.0 ? clockLocked() : time, frameLength,
                                    decoderSerial});
                changed.notify_all();
            } else {
                av_frame_free(&picture);
            }
            lock.unlock();
        }
        lock.lock();
        if (drained && serial == decoderSerial) {
            videoDone = true;
            changed.notify_all();
        }
    }
    lock.unlock();
    sws_freeContext(scaler);
    av_frame_free(&decoded);
}

void Session::decodeAudio()
{
    AVFrame *decoded = av_frame_alloc();
    SwrContext *resampler = nullptr;
    AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
    int decoderSerial = -1;
    double nextTime = -1.0; // where stamps are missing, the sound runs on
    Lock lock(mutex);
    Packet next;
    while (takePacket(audioPackets, lock, next)) {
        const double skip = skipBefore;
        lock.unlock();
        if (decoderSerial != next.serial) {
            avcodec_flush_buffers(audio.get());
            decoderSerial = next.serial;
            nextTime = -1.0;
        }
        avcodec_send_packet(audio.get(), next.packet);
        av_packet_free(&next.packet);
        bool drained = false;
        while (true) {
            const int result = avcodec_receive_frame(audio.get(), decoded);
            if (result == AVERROR_EOF)
                drained = true;
            if (result < 0)
                break;
            if (!resampler
                && (swr_alloc_set_opts2(&resampler, &stereo, AV_SAMPLE_FMT_S16, soundRate,
                                        &decoded->ch_layout, AVSampleFormat(decoded->format),
                                        decoded->sample_rate, 0, nullptr)
                        < 0
                    || swr_init(resampler) < 0)) {
                swr_free(&resampler);
                av_frame_unref(decoded);
                continue;
            }
            const AVStream *stream = input->streams[audioIndex];
            double time = stampSeconds(decoded->best_effort_timestamp, stream->time_base);
            if (time < 0.0)
                time = std::max(nextTime, 0.0);
            SoundChunk chunk;
            const int room = swr_get_out_samples(resampler, decoded->nb_samples);
            chunk.samples.resize(size_t(std::max(room, 0)) * 2);
            auto *out = reinterpret_cast<uint8_t *>(chunk.samples.data());
            const int made = swr_convert(resampler, &out, room,
                                         const_cast<const uint8_t **>(decoded->extended_data),
                                         decoded->nb_samples);
            av_frame_unref(decoded);
            if (made <= 0)
                continue;
            chunk.samples.resize(size_t(made) * 2);
            chunk.time = time;
            nextTime = time + double(made) / soundRate;
            if (nextTime <= skip)
                continue;
            if (time < skip) { // the seek's target lies inside this chunk
                chunk.used = size_t((skip - time) * soundRate) * 2;
                chunk.time = skip;
            }
            chunk.serial = decoderSerial;
            lock.lock();
            while (!abort && serial == decoderSerial
                   && double(soundSamples) / 2 >= maxSoundSeconds * soundRate)
                changed.wait(lock);
            if (serial == decoderSerial && !abort) {
                soundSamples += chunk.samples.size() - chunk.used;
                sound.push_back(std::move(chunk));
                changed.notify_all();
            }
            lock.unlock();
        }
        lock.lock();
        if (drained && serial == decoderSerial) {
            audioDone = true;
            changed.notify_all();
        }
    }
    lock.unlock();
    swr_free(&resampler);
    av_frame_free(&decoded);
}

// Hands each picture out when the clock reaches it, and ends the playback
// when everything has been played.
void Session::present(const std::function<void()> &onEnd, const PlayerEngine::FrameCallback &show)
{
    Lock lock(mutex);
    while (!abort) {
        const bool videoOver = videoIndex < 0 || (videoDone && pictures.empty());
        const bool soundOver = audioIndex < 0 || (audioDone && sound.empty());
        if (demuxDone && videoOver && soundOver && !ended) {
            ended = true;
            lock.unlock();
            onEnd();
            lock.lock();
            continue;
        }
        if (pictures.empty() || (paused && !showNext) || ended) {
            changed.wait_for(lock, idleWait);
            continue;
        }
        Picture &picture = pictures.front();
        const bool step = paused && showNext;
        if (!clockSet && !(soundDevice && audio)) {
            // The wall clock starts with the first picture after a start or seek.
            setClock(picture.time);
        }
        if (!step) {
            if (!clockSet) { // the device's clock has not started yet
                changed.wait_for(lock, idleWait);
                continue;
            }
            const double due = picture.time - clockLocked();
            if (due > 0.002) {
                changed.wait_for(lock, std::chrono::duration<double>(std::min(due, 0.01)));
                continue;
            }
            if (-due > dropLateness && pictures.size() > 1
                && pictures[1].time <= clockLocked()) {
                av_frame_free(&picture.frame);
                pictures.pop_front();
                changed.notify_all();
                continue;
            }
        }
        AVFrame *frame = picture.frame;
        const int serialShown = picture.serial;
        for (; fileNext < filePackets.size() && filePackets[fileNext].first <= picture.time;
             ++fileNext)
            addSubpicture(fileSubtitles.get(), filePackets[fileNext].second,
                          filePackets[fileNext].first);
        // Subpictures that have ended go; the one of this moment is laid on.
        while (!subpictures.empty() && subpictures.front().end >= 0.0
               && subpictures.front().end <= picture.time)
            subpictures.pop_front();
        if (!subpictures.empty() && subpictures.front().start <= picture.time
            && av_frame_make_writable(frame) >= 0)
            blend(frame, subpictures.front());
        pictures.pop_front();
        showNext = false;
        changed.notify_all();
        lock.unlock();
        {
            std::lock_guard<std::mutex> shown(showing);
            bool current = false;
            {
                std::lock_guard<std::mutex> guard(mutex);
                current = serialShown == serial && !abort;
            }
            if (current && show) {
                PlayerPicture out;
                std::copy(frame->data, frame->data + 4, out.data);
                std::copy(frame->linesize, frame->linesize + 4, out.linesize);
                out.width = frame->width;
                out.height = frame->height;
                show(out);
            }
        }
        av_frame_free(&frame);
        lock.lock();
    }
}

// Without a device the sound is taken at the wall clock's pace, so that it
// ends when it would have played, and the tap still hears it.
void Session::playWithoutDevice(const PlayerEngine::SoundTap &tap)
{
    Lock lock(mutex);
    while (!abort) {
        if (sound.empty() || (paused && clockSet)) {
            changed.wait_for(lock, idleWait);
            continue;
        }
        SoundChunk &chunk = sound.front();
        if (!clockSet) {
            if (videoIndex >= 0) { // the pictures start the clock
                changed.wait_for(lock, idleWait);
                continue;
            }
            setClock(chunk.time);
        }
        const double due = chunk.time - clockLocked();
        if (due > 0.005) {
            changed.wait_for(lock, std::chrono::duration<double>(std::min(due, 0.02)));
            continue;
        }
        SoundChunk taken = std::move(chunk);
        sound.pop_front();
        soundSamples -= taken.samples.size() - taken.used;
        changed.notify_all();
        lock.unlock();
        if (tap)
            tap(taken.samples.data() + taken.used, int(taken.samples.size() - taken.used) / 2, 2,
                soundRate, taken.time);
        lock.lock();
    }
}

qint64 Session::feedDevice(char *data, qint64 maxSize, qint64 queued,
                           const PlayerEngine::SoundTap &tap)
{
    auto *out = reinterpret_cast<int16_t *>(data);
    const size_t room = size_t(maxSize) / 2;
    size_t filled = 0;
    double firstTime = -1.0;
    Lock lock(mutex);
    while (filled < room && !sound.empty()) {
        SoundChunk &chunk = sound.front();
        if (chunk.serial != serial) {
            soundSamples -= chunk.samples.size() - chunk.used;
            sound.pop_front();
            continue;
        }
        if (filled == 0)
            firstTime = chunk.time;
        const size_t n = std::min(room - filled, chunk.samples.size() - chunk.used);
        std::copy_n(chunk.samples.data() + chunk.used, n, out + filled);
        chunk.used += n;
        chunk.time += double(n) / 2 / soundRate;
        filled += n;
        soundSamples -= n;
        soundEnd = chunk.time;
        if (chunk.used == chunk.samples.size())
            sound.pop_front();
    }
    if (filled > 0) {
        // What the device holds is played before what it gets now.
        setClock(soundEnd - double(queued / 4 + filled / 2) / soundRate);
    }
    changed.notify_all();
    const double volume = this->volume;
    lock.unlock();
    if (filled > 0 && tap)
        tap(out, int(filled / 2), 2, soundRate, firstTime);
    if (volume < 1.0)
        for (size_t i = 0; i < filled; ++i)
            out[i] = int16_t(out[i] * volume);
    // Silence keeps the device pulling while the decoder catches up.
    std::fill(out + filled, out + room, int16_t(0));
    return qint64(room) * 2;
}

struct PlayerEngine::Private
{
    StateCallback stateCallback;
    FrameCallback frameCallback;
    SoundTap soundTap;
    SoundOutput output;

    mutable std::mutex mutex; // guards what follows against the engine's threads
    std::unique_ptr<Session> session;
    std::atomic<int> state{Stopped};
    QString path;
    QString format;
    TitleSelection title;
    int audioTrack = 0;
    int subtitle = noTrack;
    QString subpictureFile;
    int subpictureTrack = 0;
    double startAt = 0.0;
    double volume = 1.0;
    QString error;

    void report(int newState)
    {
        state = newState;
        if (stateCallback)
            stateCallback(newState);
    }

    std::unique_ptr<Session> prepare();
    void endSession();
    void start(std::unique_ptr<Session> session);
};

std::unique_ptr<Session> PlayerEngine::Private::prepare()
{
    if (title.pgc < 0 && !QFileInfo::exists(path)) {
        error = QStringLiteral("Source file %1 not found").arg(path);
        return nullptr;
    }
    auto s = std::make_unique<Session>();
    int result = 0;
    s->input = openMediaInput(path, format, title, &result);
    if (!s->input) {
        error = QStringLiteral("Can't open %1: %2").arg(path, avError(result));
        return nullptr;
    }
    if ((result = avformat_find_stream_info(s->input.get(), nullptr)) < 0) {
        error = QStringLiteral("Can't read %1: %2").arg(path, avError(result));
        return nullptr;
    }
    selectTitleStreams(s->input.get(), title);
    AVFormatContext *input = s->input.get();
    int audioSeen = 0;
    int subtitlesSeen = 0;
    // A disc title offers only the chosen track; a file's n-th sound stream.
    const int wantedAudio = title.pgc >= 0 ? 0 : audioTrack;
    const int wantedSubtitle = title.pgc >= 0 ? (title.subtitle >= 0 ? 0 : -1)
                               : subtitle == noTrack ? -1
                                                     : subtitle;
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        AVStream *stream = input->streams[i];
        if (stream->discard == AVDISCARD_ALL)
            continue;
        const AVMediaType type = stream->codecpar->codec_type;
        if (type == AVMEDIA_TYPE_VIDEO && s->videoIndex < 0
            && !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC)) {
            s->videoIndex = int(i);
        } else if (type == AVMEDIA_TYPE_AUDIO) {
            if (audioSeen++ == wantedAudio && s->audioIndex < 0)
                s->audioIndex = int(i);
        } else if (type == AVMEDIA_TYPE_SUBTITLE) {
            // Pictures only: text streams go through the edited picture.
            const AVCodecDescriptor *kind = avcodec_descriptor_get(stream->codecpar->codec_id);
            if (subtitlesSeen++ != wantedSubtitle)
                continue;
            if (kind && (kind->props & AV_CODEC_PROP_BITMAP_SUB))
                s->subtitleIndex = int(i);
            else
                s->textSubtitle = wantedSubtitle;
        }
    }
    if (s->subtitleIndex >= 0) {
        // A disc's colours are in its IFO.
        AVDictionary *options = nullptr;
        if (title.pgc >= 0)
            av_dict_set(&options, "ifo_palette", QFile::encodeName(path).constData(), 0);
        s->subtitles = openDecoder(input->streams[s->subtitleIndex], &options);
        av_dict_free(&options);
        if (!s->subtitles)
            s->subtitleIndex = -1;
    }
    if (s->videoIndex >= 0 && !(s->video = openDecoder(input->streams[s->videoIndex])))
        s->videoIndex = -1;
    if (s->videoIndex >= 0 && !subpictureFile.isEmpty()
        && !s->loadSubpictureFile(subpictureFile, subpictureTrack)) {
        error = QStringLiteral("Can't read the subtitles of %1").arg(subpictureFile);
        return nullptr;
    }
    if (s->audioIndex >= 0 && !(s->audio = openDecoder(input->streams[s->audioIndex])))
        s->audioIndex = -1;
    if (s->videoIndex < 0 && s->audioIndex < 0) {
        error = QStringLiteral("%1 holds no picture or sound that can be played").arg(path);
        return nullptr;
    }
    for (unsigned i = 0; i < input->nb_streams; ++i)
        if (int(i) != s->videoIndex && int(i) != s->audioIndex && int(i) != s->subtitleIndex)
            input->streams[i]->discard = AVDISCARD_ALL;
    if (input->start_time != AV_NOPTS_VALUE)
        s->startTime = double(input->start_time) / AV_TIME_BASE;
    if (input->duration != AV_NOPTS_VALUE)
        s->duration = double(input->duration) / AV_TIME_BASE;
    if (title.pgc >= 0 || format.isEmpty()) {
        const double restarted = restartedDuration(input);
        if (restarted > 0.0)
            s->duration = restarted;
        // The walk read across the stream: back to its start.
        if (!std::strcmp(input->iformat->name, "mpeg"))
            av_seek_frame(input, -1, 0, AVSEEK_FLAG_BYTE);
    }
    if (s->videoIndex >= 0) {
        const AVRational rate = av_guess_frame_rate(input, input->streams[s->videoIndex], nullptr);
        if (rate.num > 0 && rate.den > 0)
            s->frameLength = av_q2d(av_inv_q(rate));
    }
    if (s->audio)
        s->soundRate = s->audio->sample_rate > 0 ? s->audio->sample_rate : 48000;
    error.clear();
    return s;
}

void PlayerEngine::Private::endSession()
{
    std::unique_ptr<Session> ending;
    {
        std::lock_guard<std::mutex> guard(mutex);
        ending = std::move(session);
    }
    if (!ending)
        return;
    {
        std::lock_guard<std::mutex> guard(ending->mutex);
        ending->abort = true;
        ending->changed.notify_all();
    }
    if (ending->soundDevice)
        output.stop();
    for (std::thread &thread : ending->threads)
        if (thread.joinable())
            thread.join();
}

void PlayerEngine::Private::start(std::unique_ptr<Session> s)
{
    Session *raw = s.get();
    raw->volume = volume;
    if (raw->audio) {
        raw->soundDevice
            = output.start(raw->soundRate, [raw, this](char *data, qint64 size, qint64 queued) {
                  return raw->feedDevice(data, size, queued, soundTap);
              });
        if (raw->soundDevice)
            raw->soundRate = output.rate();
    }
    if (startAt > 0.0) {
        raw->seekPending = true;
        raw->seekTarget = startAt;
        raw->skipBefore = startAt;
    }
    startAt = 0.0;
    {
        std::lock_guard<std::mutex> guard(mutex);
        session = std::move(s);
    }
    raw->threads.emplace_back([raw] { raw->demux(); });
    if (raw->video)
        raw->threads.emplace_back([raw] { raw->decodeVideo(); });
    if (raw->audio) {
        raw->threads.emplace_back([raw] { raw->decodeAudio(); });
        if (!raw->soundDevice)
            raw->threads.emplace_back([raw, this] { raw->playWithoutDevice(soundTap); });
    }
    raw->threads.emplace_back([raw, this] {
        raw->present([this] { report(Stopped); }, frameCallback);
    });
}

PlayerEngine::PlayerEngine()
    : d(std::make_unique<Private>())
{}

PlayerEngine::~PlayerEngine()
{
    d->endSession();
}

void PlayerEngine::setStateCallback(StateCallback callback)
{
    d->stateCallback = std::move(callback);
}

void PlayerEngine::setFrameCallback(FrameCallback callback)
{
    d->frameCallback = std::move(callback);
}

void PlayerEngine::setSoundTap(SoundTap tap)
{
    d->soundTap = std::move(tap);
}

bool PlayerEngine::open(const QString &path, const TitleSelection &title, const QString &format)
{
    d->endSession();
    d->path = path;
    d->format = format;
    d->title = title;
    d->startAt = 0.0;
    d->state = Stopped;
    std::unique_ptr<Session> prepared = d->prepare();
    if (!prepared) {
        d->report(Stopped);
        return false;
    }
    std::lock_guard<std::mutex> guard(d->mutex);
    d->session = std::move(prepared);
    return true;
}

void PlayerEngine::play()
{
    if (d->state != Stopped)
        return;
    std::unique_ptr<Session> s;
    {
        std::lock_guard<std::mutex> guard(d->mutex);
        if (d->session && d->session->threads.empty())
            s = std::move(d->session);
    }
    if (!s) {
        const double startAt = d->startAt;
        d->endSession(); // one that ran to its end
        d->startAt = startAt;
        if (d->path.isEmpty() || !(s = d->prepare())) {
            d->report(Stopped);
            return;
        }
    }
    d->start(std::move(s));
    d->report(Playing);
}

void PlayerEngine::pause()
{
    bool pausing = false;
    bool device = false;
    {
        std::lock_guard<std::mutex> guard(d->mutex);
        Session *s = d->session.get();
        if (!s || d->state == Stopped)
            return;
        std::lock_guard<std::mutex> sessionGuard(s->mutex);
        pausing = !s->paused;
        if (pausing)
            s->clockTime = s->clockLocked();
        else
            s->clockWall = wallSeconds();
        s->paused = pausing;
        device = s->soundDevice;
        s->changed.notify_all();
    }
    // Not under the session's lock: the device's feed takes it.
    if (device)
        pausing ? d->output.suspend() : d->output.resume();
    d->report(pausing ? Paused : Playing);
}

void PlayerEngine::seek(double seconds)
{
    seconds = std::max(seconds, 0.0);
    Session *s = nullptr;
    {
        std::lock_guard<std::mutex> guard(d->mutex);
        s = d->session.get();
        if (!s || s->threads.empty() || d->state == Stopped) {
            d->startAt = seconds;
            return;
        }
    }
    // Not under the engine's lock: a picture being handed out may ask for
    // the clock, which takes it. Only this thread ends the session.
    std::lock_guard<std::mutex> shown(s->showing);
    std::lock_guard<std::mutex> sessionGuard(s->mutex);
    s->flushLocked();
    s->seekPending = true;
    s->seekTarget = seconds;
    s->skipBefore = seconds;
    s->showNext = s->paused;
}

void PlayerEngine::stop()
{
    d->endSession();
    d->startAt = 0.0;
    d->report(Stopped);
}

void PlayerEngine::setVolume(double level)
{
    d->volume = std::clamp(level, 0.0, 1.0);
    d->output.setVolume(d->volume);
    std::lock_guard<std::mutex> guard(d->mutex);
    if (Session *s = d->session.get()) {
        std::lock_guard<std::mutex> sessionGuard(s->mutex);
        s->volume = d->volume;
    }
}

double PlayerEngine::volume() const
{
    return d->volume;
}

double PlayerEngine::clock() const
{
    std::lock_guard<std::mutex> guard(d->mutex);
    Session *s = d->session.get();
    if (!s || s->threads.empty())
        return d->startAt;
    std::lock_guard<std::mutex> sessionGuard(s->mutex);
    return s->clockLocked();
}

void PlayerEngine::selectAudio(int track)
{
    track = track == noTrack ? -1 : track;
    if (track == d->audioTrack)
        return;
    d->audioTrack = track;
    if (d->state == Stopped || d->title.pgc >= 0)
        return; // a title's track is chosen when it opens
    // Playing on: the source again from where it is, with the other track.
    const bool paused = d->state == Paused;
    const double position = clock();
    d->endSession();
    d->startAt = position;
    std::unique_ptr<Session> s = d->prepare();
    if (!s) {
        d->report(Stopped);
        return;
    }
    if (paused) {
        s->paused = true;
        s->showNext = true;
    }
    const bool device = s->audio != nullptr;
    d->start(std::move(s));
    if (paused && device)
        d->output.suspend();
}

void PlayerEngine::selectSubtitle(int stream)
{
    d->subtitle = stream < 0 ? noTrack : stream;
}

int PlayerEngine::state() const
{
    return d->state;
}

void PlayerEngine::selectSubpictureFile(const QString &index, int track)
{
    d->subpictureFile = index;
    d->subpictureTrack = std::max(track, 0);
}

int PlayerEngine::textSubtitle() const
{
    std::lock_guard<std::mutex> guard(d->mutex);
    return d->session ? d->session->textSubtitle : -1;
}

double PlayerEngine::startTime() const
{
    std::lock_guard<std::mutex> guard(d->mutex);
    return d->session ? d->session->startTime : 0.0;
}

double PlayerEngine::duration() const
{
    std::lock_guard<std::mutex> guard(d->mutex);
    return d->session ? d->session->duration : 0.0;
}

QString PlayerEngine::errorString() const
{
    return d->error;
}

bool PlayerEngine::hasSoundDevice() const
{
    std::lock_guard<std::mutex> guard(d->mutex);
    return d->session && d->session->soundDevice;
}
