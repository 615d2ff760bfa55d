#include "titlefeeder.h"

#include "bytequeue.h"
#include "dvdtitlereader.h"

#include <QByteArray>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

QString specifier(int id)
{
    if (id < 0)
        return QString();
    // MPEG audio streams carry their start code's high byte in the demuxer.
    if (id >= 0xc0 && id < 0xe0)
        id |= 0x100;
    return QStringLiteral("i:0x%1").arg(id, 0, 16);
}

} // namespace

TitleFeeder::TitleFeeder()
    : reader(std::make_unique<DvdTitleReader>())
{}

TitleFeeder::~TitleFeeder()
{
    finish();
    for (const Pipe &pipe : pipes) {
        if (pipe.read >= 0)
            ::close(pipe.read);
        if (pipe.write >= 0)
            ::close(pipe.write);
    }
}

bool TitleFeeder::open(const QString &ifoPath, int pgcIndex, QString *error)
{
    titlePgc = pgcIndex;
    if (!reader->open(ifoPath, pgcIndex)) {
        *error = QStringLiteral("cannot read title %1 of the DVD behind \"%2\": %3")
                     .arg(pgcIndex)
                     .arg(ifoPath, reader->errorString());
        return false;
    }
    if (addReader() < 0) {
        *error = QStringLiteral("cannot make a pipe for the title");
        return false;
    }
    return true;
}

int TitleFeeder::addReader()
{
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0)
        return -1;
    pipes.push_back({fds[0], fds[1]});
    return fds[0];
}

QString TitleFeeder::audioSpecifier(int track) const
{
    return specifier(reader->audioStreamId(track));
}

QString TitleFeeder::subtitleSpecifier(int track) const
{
    return specifier(reader->subtitleStreamId(track));
}

void TitleFeeder::start()
{
    for (Pipe &pipe : pipes) {
        ::close(pipe.read);
        pipe.read = -1;
    }
    worker = std::thread([this] { copy(); });
}

void TitleFeeder::finish()
{
    if (worker.joinable())
        worker.join();
}

qint64 TitleFeeder::skippedBlocks() const
{
    return reader->skippedBlocks();
}

void TitleFeeder::copy()
{
    // Each reader takes the bytes at its own pace. One that lags keeps what
    // it has not read yet here, up to a limit, so that the others go on:
    // the picture's ffmpeg may wait for the sound, whose ffmpeg reads the
    // same title.
    constexpr qint64 lagLimit = 64 << 20;
    std::vector<ByteQueue> lags(pipes.size());
    for (Pipe &pipe : pipes)
        ::fcntl(pipe.write, F_SETFL, ::fcntl(pipe.write, F_GETFL) | O_NONBLOCK);
    QByteArray buffer(64 * 2048, Qt::Uninitialized);
    // Whether some reader has nothing left to read, and whether one lags too far.
    auto state = [&](bool *hungry, bool *full) {
        *hungry = *full = false;
        bool open = false;
        for (size_t k = 0; k < pipes.size(); ++k) {
            if (pipes[k].write < 0)
                continue;
            open = true;
            *hungry |= lags[k].size() == 0;
            *full |= lags[k].size() >= lagLimit;
        }
        return open;
    };
    bool more = true, hungry, full;
    while (state(&hungry, &full)) {
        if (more && hungry && !full) {
            const qint64 got = reader->read(buffer.data(), buffer.size());
            if (got < 0)
                failure = QStringLiteral("title %1 could not be read whole: %2")
                              .arg(titlePgc)
                              .arg(reader->errorString());
            if (got <= 0) {
                more = false;
            } else {
                for (size_t k = 0; k < pipes.size(); ++k) {
                    if (pipes[k].write >= 0)
                        lags[k].append(buffer.constData(), got);
                }
            }
        }
        // Send each reader what it takes now.
        std::vector<pollfd> waiting;
        for (size_t k = 0; k < pipes.size(); ++k) {
            Pipe &pipe = pipes[k];
            ByteQueue &lag = lags[k];
            while (pipe.write >= 0 && !lag.empty()) {
                const QByteArray next = lag.next();
                const ssize_t written = ::write(pipe.write, next.constData(), size_t(next.size()));
                if (written > 0) {
                    lag.consume(written);
                } else if (written < 0 && errno == EAGAIN) {
                    waiting.push_back({pipe.write, POLLOUT, 0});
                    break;
                } else if (!(written < 0 && errno == EINTR)) {
                    // This ffmpeg stopped reading: it has ended or has all it wants.
                    ::close(pipe.write);
                    pipe.write = -1;
                    lag.clear();
                }
            }
        }
        if (!state(&hungry, &full) || (!more && waiting.empty()))
            break;
        // Wait for a reader only when reading on is no use.
        if (!waiting.empty() && (!more || !hungry || full))
            ::poll(waiting.data(), waiting.size(), -1);
    }
    // Only an ffmpeg that read on to where the title failed missed the rest;
    // one that stopped reading before had all it wanted.
    bool reachedFailure = false;
    for (Pipe &pipe : pipes) {
        reachedFailure |= pipe.write >= 0;
        if (pipe.write >= 0)
            ::close(pipe.write);
        pipe.write = -1;
    }
    if (!reachedFailure)
        failure.clear();
}
