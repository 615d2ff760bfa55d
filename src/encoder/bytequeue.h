#pragma once

#include <QByteArray>

#include <cstdio>
#include <limits>

// Bytes in order of arrival, kept for a reader slower than their writer: in
// memory, and beyond `memoryLimit` in an unnamed temporary file until the
// reader has caught up again.
class ByteQueue
{
public:
    explicit ByteQueue(qint64 memoryLimit = std::numeric_limits<qint64>::max())
        : memoryLimit(memoryLimit)
    {}
    ~ByteQueue();
    ByteQueue(const ByteQueue &) = delete;
    ByteQueue &operator=(const ByteQueue &) = delete;

    qint64 size() const { return memory.size() - offset + (writeAt - readAt); }
    bool empty() const { return size() == 0; }
    void append(const char *data, qint64 size);
    // The next bytes to send, left in the queue; empty when there are none.
    QByteArray next();
    // Drops that many of them, once sent.
    void consume(qint64 size);
    void clear();

private:
    qint64 memoryLimit;
    QByteArray memory;
    qint64 offset = 0; // of the first byte not yet sent
    std::FILE *spill = nullptr;
    qint64 readAt = 0;
    qint64 writeAt = 0;
};
