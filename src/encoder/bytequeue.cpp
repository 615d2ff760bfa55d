#include "bytequeue.h"

#include <cerrno>
#include <unistd.h>

ByteQueue::~ByteQueue()
{
    if (spill)
        std::fclose(spill);
}

void ByteQueue::append(const char *data, qint64 size)
{
    if (writeAt == readAt && memory.size() - offset < memoryLimit) {
        memory.append(data, int(size));
        return;
    }
    if (!spill)
        spill = std::tmpfile();
    while (spill && size > 0) {
        const ssize_t n = ::pwrite(fileno(spill), data, size_t(size), writeAt);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        writeAt += n;
        data += n;
        size -= n;
    }
    // No room for a file: keep the rest in memory after all.
    if (size > 0)
        memory.append(data, int(size));
}

QByteArray ByteQueue::next()
{
    if (offset == memory.size() && readAt < writeAt) {
        memory.resize(int(qMin<qint64>(writeAt - readAt, 1 << 20)));
        const ssize_t n = ::pread(fileno(spill), memory.data(), size_t(memory.size()), readAt);
        memory.resize(int(qMax<ssize_t>(n, 0)));
        offset = 0;
        readAt += memory.size();
        if (readAt == writeAt) {
            readAt = writeAt = 0;
            [[maybe_unused]] const int truncated = ::ftruncate(fileno(spill), 0);
        }
    }
    return QByteArray::fromRawData(memory.constData() + offset, int(memory.size() - offset));
}

void ByteQueue::consume(qint64 size)
{
    offset += size;
    if (offset == memory.size()) {
        memory.clear();
        offset = 0;
    } else if (offset > (8 << 20)) {
        // Let go of what has been sent before it piles up.
        memory.remove(0, int(offset));
        offset = 0;
    }
}

void ByteQueue::clear()
{
    memory.clear();
    offset = 0;
    readAt = writeAt = 0;
}
