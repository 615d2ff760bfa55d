#include "soundencoder.h"

#include "ffmpegrunner.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

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

// Bytes in order of arrival: in memory up to a limit, then in an unnamed
// temporary file until the file has been read out again.
class Queue
{
public:
    ~Queue()
    {
        if (spill)
            std::fclose(spill);
    }

    bool empty() const { return offset == memory.size() && readAt == writeAt; }

    void append(const char *data, qint64 size)
    {
        if (writeAt == readAt && memory.size() - offset < memoryLimit) {
            memory.append(data, int(size));
            return;
        }
        if (!spill)
            spill = std::tmpfile();
        if (!spill) { // no room for a file: keep it in memory after all
            memory.append(data, int(size));
            return;
        }
        while (size > 0) {
            const ssize_t n = ::pwrite(fileno(spill), data, size_t(size), writeAt);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0) {
                memory.append(data, int(size));
                return;
            }
            writeAt += n;
            data += n;
            size -= n;
        }
    }

    // The next bytes to send; empty when there are none.
    QByteArray next()
    {
        if (offset == memory.size() && readAt < writeAt) {
            memory.resize(int(qMin<qint64>(writeAt - readAt, 1 << 20)));
            const ssize_t n = ::pread(fileno(spill), memory.data(), size_t(memory.size()), readAt);
            memory.resize(int(qMax<ssize_t>(n, 0)));
            offset = 0;
            readAt += memory.size();
            if (readAt == writeAt) {
                readAt = writeAt = 0;
                [[maybe_unused]] int r = ::ftruncate(fileno(spill), 0);
            }
        }
        return QByteArray::fromRawData(memory.constData() + offset, int(memory.size() - offset));
    }

    void consume(qint64 size)
    {
        offset += int(size);
        if (offset == memory.size()) {
            memory.clear();
            offset = 0;
        }
    }

    void clear()
    {
        memory.clear();
        offset = 0;
        readAt = writeAt = 0;
    }

private:
    static constexpr int memoryLimit = 8 << 20;
    QByteArray memory;
    int offset = 0;
    std::FILE *spill = nullptr;
    qint64 readAt = 0;
    qint64 writeAt = 0;
};

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
    Queue queue;
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
