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
    std::vector<Span> spans;
    std::vector<int> audioIds;
    std::vector<int> subtitleIds;
    qint64 size = 0;
    qint64 position = 0;
    // The blocks last read, from buffer start `bufferOffset` in title bytes.
    std::vector<unsigned char> buffer;
    qint64 bufferOffset = 0;
    qint64 bufferBytes = 0;

    bool fill();
};

// Reads the blocks from `position` to the end of its cell, at most
// blocksPerRead of them.
bool DvdTitleReader::Private::fill()
{
    const auto span = std::upper_bound(spans.begin(), spans.end(), position,
                                       [](qint64 pos, const Span &s) { return pos < s.offset; })
                      - 1;
    const qint64 block = (position - span->offset) / blockSize;
    const int count = int(std::min<qint64>(blocksPerRead, span->sectors - block));
    buffer.resize(size_t(blocksPerRead * blockSize));
    const ssize_t got
        = DVDReadBlocks(file.get(), int(span->firstSector + block), size_t(count), buffer.data());
    if (got <= 0) {
        bufferBytes = 0;
        return false;
    }
    bufferOffset = span->offset + block * blockSize;
    bufferBytes = got * blockSize;
    return true;
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
    if (ifoParse(path, &record) < 0)
        return false;
    if (pgcIndex < 0 || pgcIndex >= int(record.pgcs.size()))
        return false;
    const IfoPgc &pgc = record.pgcs[size_t(pgcIndex)];
    d->dvd = openDvdReader(path);
    if (!d->dvd)
        return false;
    d->file.reset(DVDOpenFile(d->dvd.get(), pgc.titleSet, DVD_READ_TITLE_VOBS));
    if (!d->file) {
        close();
        return false;
    }
    const ssize_t fileBlocks = DVDFileSize(d->file.get());
    for (const IfoCell &cell : pgc.cells) {
        // A cell that lies outside the VOBs would only give read errors.
        if (cell.end_lba < cell.start_lba || qint64(cell.end_lba) >= fileBlocks)
            continue;
        const quint32 sectors = cell.end_lba - cell.start_lba + 1;
        d->spans.push_back({cell.start_lba, sectors, d->size});
        d->size += sectors * blockSize;
    }
    for (const IfoAudioTrack &track : pgc.audio)
        d->audioIds.push_back(track.audio_id);
    for (const IfoSubtitleTrack &track : pgc.subtitles)
        d->subtitleIds.push_back(track.id);
    ifoFree(&record);
    if (d->spans.empty()) {
        close();
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
    if (!isOpen() || maxSize < 0)
        return -1;
    qint64 done = 0;
    while (done < maxSize && d->position < d->size) {
        if (d->position < d->bufferOffset || d->position >= d->bufferOffset + d->bufferBytes) {
            if (!d->fill())
                return done > 0 ? done : -1;
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

int DvdTitleReader::audioStreamId(int track) const
{
    return track >= 0 && track < int(d->audioIds.size()) ? d->audioIds[size_t(track)] : -1;
}

int DvdTitleReader::subtitleStreamId(int track) const
{
    return track >= 0 && track < int(d->subtitleIds.size()) ? d->subtitleIds[size_t(track)] : -1;
}
