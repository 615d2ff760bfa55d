#include "dvdtitlereader.h"

#include "ifoparse.h"

#include <QFile>

#include <dvdread/dvd_reader.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

struct DvdFileDeleter
{
    void operator()(dvd_file_t *file) const { DVDCloseFile(file); }
};

constexpr qint64 blockSize = DVD_VIDEO_LB_LEN;
constexpr int blocksPerRead = 64;
// A run of unreadable blocks longer than this (4 MiB) is no scratch: the
// title can't be read on.
constexpr qint64 longestGap = 2048;

struct Span
{
    quint32 firstSector;
    quint32 sectors;
    qint64 offset; // bytes before this cell in the title
};

} // namespace

struct DvdTitleReader::Private
{
    DvdReaderPtr dvd;
    std::unique_ptr<dvd_file_t, DvdFileDeleter> file;
    qint64 fileBlocks = 0; // of all the title set's VOBs
    std::vector<Span> spans;
    std::vector<int> audioIds;
    std::vector<int> subtitleIds;
    qint64 size = 0;
    qint64 position = 0;
    // The blocks last read, from buffer start `bufferOffset` in title bytes.
    std::vector<unsigned char> buffer;
    qint64 bufferOffset = 0;
    qint64 bufferBytes = 0;
    // Below this sector a read failed twice: read one block at a time.
    qint64 singleBlocksUntil = 0;
    qint64 skipped = 0;
    qint64 gap = 0; // unreadable blocks in a row just before `position`
    qint64 gapStart = 0;
    QString error;

    bool fill();
    bool skip(const Span &span, qint64 block, qint64 count);
};

// Reads the blocks from `position` on, at most blocksPerRead and not past
// the end of its cell, or leaves out those that can't be read. False when
// the title can't be read on.
bool DvdTitleReader::Private::fill()
{
    const auto span = std::upper_bound(spans.begin(), spans.end(), position,
                                       [](qint64 pos, const Span &s) { return pos < s.offset; })
                      - 1;
    const qint64 block = (position - span->offset) / blockSize;
    const qint64 sector = span->firstSector + block;
    if (sector >= fileBlocks)
        return skip(*span, block, span->sectors - block);
    const qint64 left = std::min<qint64>(span->sectors - block, fileBlocks - sector);
    buffer.resize(size_t(blocksPerRead * blockSize));
    ssize_t got = -1;
    if (sector >= singleBlocksUntil) {
        const int count = int(std::min<qint64>(blocksPerRead, left));
        // Once more before giving up on the whole read.
        for (int attempt = 0; attempt < 2 && got <= 0; ++attempt)
            got = DVDReadBlocks(file.get(), int(sector), size_t(count), buffer.data());
        if (got <= 0)
            singleBlocksUntil = sector + count;
    }
    if (got <= 0)
        got = DVDReadBlocks(file.get(), int(sector), 1, buffer.data());
    if (got <= 0)
        return skip(*span, block, 1);
    gap = 0;
    bufferOffset = span->offset + block * blockSize;
    bufferBytes = got * blockSize;
    return true;
}

bool DvdTitleReader::Private::skip(const Span &span, qint64 block, qint64 count)
{
    if (gap == 0)
        gapStart = span.firstSector + block;
    gap += count;
    skipped += count;
    bufferBytes = 0;
    position = span.offset + (block + count) * blockSize;
    if (gap > longestGap)
        error
            = QStringLiteral("%1 blocks in a row unreadable from sector %2").arg(gap).arg(gapStart);
    else if (position >= size)
        error = QStringLiteral("unreadable from sector %1 to the end of the title").arg(gapStart);
    return error.isEmpty();
}

DvdTitleReader::DvdTitleReader()
    : d(std::make_unique<Private>())
{}

DvdTitleReader::~DvdTitleReader() = default;

bool DvdTitleReader::open(const QString &ifoPath, int pgcIndex)
{
    close();
    const std::string path = QFile::encodeName(ifoPath).toStdString();
    IfoRecord record;
    std::string why;
    if (ifoParse(path, &record, &why) < 0) {
        d->error = QString::fromStdString(why);
        return false;
    }
    if (pgcIndex < 0 || pgcIndex >= int(record.pgcs.size())) {
        d->error = QStringLiteral("no PGC %1").arg(pgcIndex);
        return false;
    }
    const IfoPgc &pgc = record.pgcs[size_t(pgcIndex)];
    d->dvd = openDvdReader(path);
    if (d->dvd)
        d->file.reset(DVDOpenFile(d->dvd.get(), pgc.titleSet, DVD_READ_TITLE_VOBS));
    if (!d->file) {
        close();
        d->error = QStringLiteral("cannot open the title's VOB files");
        return false;
    }
    d->fileBlocks = DVDFileSize(d->file.get());
    bool inFiles = false;
    for (const IfoCell &cell : pgc.cells) {
        if (cell.end_lba < cell.start_lba)
            continue;
        // A cell beyond the end of the VOB files is read as unreadable.
        inFiles |= qint64(cell.start_lba) < d->fileBlocks;
        const quint32 sectors = cell.end_lba - cell.start_lba + 1;
        d->spans.push_back({cell.start_lba, sectors, d->size});
        d->size += sectors * blockSize;
    }
    for (const IfoAudioTrack &track : pgc.audio)
        d->audioIds.push_back(track.audio_id);
    for (const IfoSubtitleTrack &track : pgc.subtitles)
        d->subtitleIds.push_back(track.id);
    ifoFree(&record);
    if (!inFiles) {
        const bool cells = d->size > 0;
        close();
        d->error = cells ? QStringLiteral("the title lies beyond the end of its VOB files")
                         : QStringLiteral("the title has no cells");
        return false;
    }
    return true;
}

void DvdTitleReader::close()
{
    d = std::make_unique<Private>();
}

bool DvdTitleReader::isOpen() const
{
    return d->file != nullptr;
}

qint64 DvdTitleReader::read(char *data, qint64 maxSize)
{
    if (!isOpen() || maxSize < 0 || !d->error.isEmpty())
        return -1;
    qint64 done = 0;
    while (done < maxSize && d->position < d->size) {
        if (d->position < d->bufferOffset || d->position >= d->bufferOffset + d->bufferBytes) {
            if (!d->fill())
                return done > 0 ? done : -1;
            continue;
        }
        const qint64 at = d->position - d->bufferOffset;
        const qint64 n = std::min(maxSize - done, d->bufferBytes - at);
        std::memcpy(data + done, d->buffer.data() + at, size_t(n));
        done += n;
        d->position += n;
    }
    return done;
}

bool DvdTitleReader::seek(qint64 position)
{
    if (!isOpen() || position < 0 || position > d->size)
        return false;
    d->position = position;
    d->gap = 0;
    d->error.clear();
    return true;
}

qint64 DvdTitleReader::pos() const
{
    return d->position;
}

qint64 DvdTitleReader::size() const
{
    return d->size;
}

qint64 DvdTitleReader::skippedBlocks() const
{
    return d->skipped;
}

QString DvdTitleReader::errorString() const
{
    return d->error;
}

int DvdTitleReader::audioStreamId(int track) const
{
    return track >= 0 && track < int(d->audioIds.size()) ? d->audioIds[size_t(track)] : -1;
}

int DvdTitleReader::subtitleStreamId(int track) const
{
    return track >= 0 && track < int(d->subtitleIds.size()) ? d->subtitleIds[size_t(track)] : -1;
}
