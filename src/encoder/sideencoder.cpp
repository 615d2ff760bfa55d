#include "sideencoder.h"

#include "bytequeue.h"
#include "ffmpegrunner.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace {

void closeFd(int &fd)
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

void setNonBlocking(int fd)
{
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK);
}

} // namespace

SideEncoder::~SideEncoder()
{
    if (pid > 0)
        finish(true);
    closeFd(consumerRead);
}

bool SideEncoder::start(Stream stream, const QString &program, const QStringList &arguments,
                        const std::vector<int> &childFds)
{
    int output[2], errors[2];
    if (::pipe2(output, O_CLOEXEC) != 0)
        return false;
    if (::pipe2(errors, O_CLOEXEC) != 0) {
        ::close(output[0]);
        ::close(output[1]);
        return false;
    }
    if (stream == Stream::Picture) {
        // Raw frames are large: a pipe of a few frames lets both sides run
        // without waiting for each other at every one.
        ::fcntl(output[1], F_SETPIPE_SZ, 1 << 20);
        consumerRead = output[0];
    } else {
        int consumer[2];
        if (::pipe2(consumer, O_CLOEXEC) != 0) {
            for (int fd : {output[0], output[1], errors[0], errors[1]})
                ::close(fd);
            return false;
        }
        streamOut = output[0];
        consumerRead = consumer[0];
        consumerWrite = consumer[1];
    }
    pid = FFmpegRunner::spawn(program, arguments, childFds, output[1], errors[1]);
    ::close(output[1]);
    ::close(errors[1]);
    streamErrors = errors[0];
    if (pid < 0) {
        closeFd(streamOut);
        closeFd(streamErrors);
        closeFd(consumerWrite);
        return false;
    }
    FFmpegRunner::addCompanion(pid);
    worker = std::thread([this] { relay(); });
    return true;
}

void SideEncoder::consumerStarted()
{
    closeFd(consumerRead);
}

bool SideEncoder::finish(bool stop)
{
    if (pid <= 0)
        return false;
    if (stop) {
        stopping = true;
        ::kill(pid, SIGTERM);
    }
    if (worker.joinable())
        worker.join();
    pid = -1;
    return consumerClosed || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

void SideEncoder::relay()
{
    setNonBlocking(streamOut);
    setNonBlocking(streamErrors);
    setNonBlocking(consumerWrite);
    ByteQueue queue(8 << 20);
    char buffer[64 * 1024];
    while (streamOut >= 0 || streamErrors >= 0 || (consumerWrite >= 0 && !queue.empty())) {
        pollfd fds[3];
        nfds_t count = 0;
        int outAt = -1, errorsAt = -1, consumerAt = -1;
        if (streamOut >= 0) {
            outAt = int(count);
            fds[count++] = {streamOut, POLLIN, 0};
        }
        if (streamErrors >= 0) {
            errorsAt = int(count);
            fds[count++] = {streamErrors, POLLIN, 0};
        }
        if (consumerWrite >= 0 && !queue.empty()) {
            consumerAt = int(count);
            fds[count++] = {consumerWrite, POLLOUT, 0};
        }
        if (::poll(fds, count, -1) < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        if (outAt >= 0 && fds[outAt].revents) {
            const ssize_t got = ::read(streamOut, buffer, sizeof buffer);
            if (got > 0)
                queue.append(buffer, got);
            else if (got == 0 || (errno != EINTR && errno != EAGAIN))
                closeFd(streamOut);
        }
        if (errorsAt >= 0 && fds[errorsAt].revents) {
            const ssize_t got = ::read(streamErrors, buffer, sizeof buffer);
            if (got > 0)
                errorText = (errorText + QByteArray(buffer, int(got))).right(4096);
            else if (got == 0 || (errno != EINTR && errno != EAGAIN))
                closeFd(streamErrors);
        }
        if (consumerAt >= 0 && fds[consumerAt].revents) {
            const QByteArray next = queue.next();
            const ssize_t sent = ::write(consumerWrite, next.constData(), size_t(next.size()));
            if (sent > 0) {
                queue.consume(sent);
            } else if (sent < 0 && errno != EINTR && errno != EAGAIN) {
                // The writing ffmpeg has all it wants, or has ended: the
                // sound's ffmpeg need not go on.
                consumerClosed = true;
                closeFd(consumerWrite);
                closeFd(streamOut);
                queue.clear();
            }
        }
    }
    closeFd(streamOut);
    closeFd(streamErrors);
    closeFd(consumerWrite);
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    FFmpegRunner::removeCompanion(pid);
    // A side that fails on its own leaves the writing ffmpeg with a stream
    // that looks ended: stop the job now rather than when the rest is done.
    const bool failed = !WIFEXITED(status) || WEXITSTATUS(status) != 0;
    if (failed && !stopping && !consumerClosed) {
        endedEarly = true;
        FFmpegRunner::abandon();
    }
}

int SideEncoder::primingSamples(const QString &encoder, int sampleRate, int channels,
                                 qint64 bitRate, double quality)
{
    const AVCodec *codec = ::avcodec_find_encoder_by_name(encoder.toUtf8().constData());
    AVCodecContext *context = codec ? ::avcodec_alloc_context3(codec) : nullptr;
    if (!context)
        return 0;
    context->sample_rate = sampleRate;
    ::av_channel_layout_default(&context->ch_layout, channels);
    context->sample_fmt = codec->sample_fmts ? codec->sample_fmts[0] : AV_SAMPLE_FMT_FLTP;
    context->time_base = AVRational{1, sampleRate};
    context->bit_rate = bitRate;
    if (quality >= 0) {
        context->flags |= AV_CODEC_FLAG_QSCALE;
        context->global_quality = int(quality * FF_QP2LAMBDA);
    }
    const int level = ::av_log_get_level();
    ::av_log_set_level(AV_LOG_QUIET);
    const int padding = ::avcodec_open2(context, codec, nullptr) == 0 ? context->initial_padding : 0;
    // Closing speaks too (the AAC encoder's "Qavg: nan").
    ::avcodec_free_context(&context);
    ::av_log_set_level(level);
    return padding;
}
