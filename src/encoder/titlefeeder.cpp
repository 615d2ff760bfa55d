#include "titlefeeder.h"

#include "dvdtitlereader.h"

#include <cerrno>
#include <fcntl.h>
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
    if (pipeFds[0] >= 0)
        ::close(pipeFds[0]);
}

bool TitleFeeder::open(const QString &ifoPath, int pgcIndex, QString *error)
{
    if (!reader->open(ifoPath, pgcIndex)) {
        *error = QStringLiteral("cannot read title %1 of the DVD behind \"%2\"")
                     .arg(pgcIndex)
                     .arg(ifoPath);
        return false;
    }
    if (::pipe2(pipeFds, O_CLOEXEC) != 0) {
        *error = QStringLiteral("cannot make a pipe for the title");
        return false;
    }
    return true;
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
    ::close(pipeFds[0]);
    pipeFds[0] = -1;
    worker = std::thread([this] { copy(); });
}

void TitleFeeder::finish()
{
    if (worker.joinable())
        worker.join();
}

void TitleFeeder::copy()
{
    char buffer[64 * 2048];
    for (;;) {
        const qint64 got = reader->read(buffer, sizeof buffer);
        if (got <= 0)
            break;
        const char *at = buffer;
        qint64 left = got;
        while (left > 0) {
            const ssize_t written = ::write(pipeFds[1], at, static_cast<size_t>(left));
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0) {
                // ffmpeg stopped reading: it has ended or has all it wants.
                ::close(pipeFds[1]);
                pipeFds[1] = -1;
                return;
            }
            at += written;
            left -= written;
        }
    }
    ::close(pipeFds[1]);
    pipeFds[1] = -1;
}
