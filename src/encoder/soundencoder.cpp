#include "soundencoder.h"

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

SoundEncoder::~SoundEncoder()
{
    if (pid > 0)
        finish(true);
    closeFd(consumerRead);
}

bool SoundEncoder::start(const QString &program, const QStringList &arguments,
                         const std::vector<int> &childFds)
{
    int output[2], errors[2], consumer[2];
    if (::pipe2(output, O_CLOEXEC) != 0)
        return false;
    if (::pipe2(errors, O_CLOEXEC) != 0 || ::pipe2(consumer, O_CLOEXEC) != 0) {
        ::close(output[0]);
        ::close(output[1]);
        return false;
    }
    pid = FFmpegRunner::spawn(program, arguments, childFds, output[1], errors[1]);
    ::close(output[1]);
    ::close(errors[1]);
    soundOut = output[0];
    soundErrors = errors[0];
    consumerRead = consumer[0];
    consumerWrite = consumer[1];
    if (pid < 0) {
        closeFd(soundOut);
        closeFd(soundErrors);
        closeFd(consumerWrite);
        return false;
    }
    FFmpegRunner::setCompanion(pid);
    worker = std::thread([this] { relay(); });
    return true;
}

void SoundEncoder::consumerStarted()
{
    closeFd(consumerRead);
}

bool SoundEncoder::finish(bool stop)
{
    if (pid <= 0)
        return false;
    if (stop)
        ::kill(pid, SIGTERM);
    if (worker.joinable())
        worker.join();
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    FFmpegRunner::setCompanion(-1);
    pid = -1;
    return consumerClosed || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

void SoundEncoder::relay()
{
    setNonBlocking(soundOut);
    setNonBlocking(soundErrors);
    setNonBlocking(consumerWrite);
    ByteQueue queue(8 << 20);
    char buffer[64 * 1024];
    while (soundOut >= 0 || soundErrors >= 0 || (consumerWrite >= 0 && !queue.empty())) {
        pollfd fds[3];
        nfds_t count = 0;
        int outAt = -1, errorsAt = -1, consumerAt = -1;
        if (soundOut >= 0) {
            outAt = int(count);
            fds[count++] = {soundOut, POLLIN, 0};
        }
        if (soundErrors >= 0) {
            errorsAt = int(count);
            fds[count++] = {soundErrors, POLLIN, 0};
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
            const ssize_t got = ::read(soundOut, buffer, sizeof buffer);
            if (got > 0)
                queue.append(buffer, got);
            else if (got == 0 || (errno != EINTR && errno != EAGAIN))
                closeFd(soundOut);
        }
        if (errorsAt >= 0 && fds[errorsAt].revents) {
            const ssize_t got = ::read(soundErrors, buffer, sizeof buffer);
            if (got > 0)
                errorText = (errorText + QByteArray(buffer, int(got))).right(4096);
            else if (got == 0 || (errno != EINTR && errno != EAGAIN))
                closeFd(soundErrors);
        }
        if (consumerAt >= 0 && fds[consumerAt].revents) {
            const QByteArray next = queue.next();
            const ssize_t sent = ::write(consumerWrite, next.constData(), size_t(next.size()));
            if (sent > 0) {
                queue.consume(sent);
            } else if (sent < 0 && errno != EINTR && errno != EAGAIN) {
                // The writing ffmpeg has all it wants, or has ended: the
                // sound ffmpeg need not go on.
                consumerClosed = true;
                closeFd(consumerWrite);
                closeFd(soundOut);
                queue.clear();
            }
        }
    }
    closeFd(soundOut);
    closeFd(soundErrors);
    closeFd(consumerWrite);
}

int SoundEncoder::primingSamples(const QString &encoder, int sampleRate, int channels,
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
    ::av_log_set_level(level);
    ::avcodec_free_context(&context);
    return padding;
}
