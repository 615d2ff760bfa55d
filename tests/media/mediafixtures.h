#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QString>

#include <functional>

// The fixture folder, made (or found up to date) by the fixture script; an
// empty text when the script failed, e.g. for want of ffmpeg or dvdauthor.
inline QString mediaFixtures()
{
    const QString dir = QStringLiteral(KESTROVE_MEDIA_FIXTURES);
    const int exitCode = QProcess::execute(QStringLiteral(KESTROVE_MEDIA_FIXTURE_SCRIPT), {dir});
    return exitCode == 0 ? dir : QString();
}

// For initTestCase(): puts the fixture folder in `dir`, or fails.
#define REQUIRE_MEDIA_FIXTURES(dir)                                                                \
    QVERIFY2(!(dir = mediaFixtures()).isEmpty(),                                                   \
             "the fixture script failed (ffmpeg, dvdauthor, spumux?)")

inline QString fixture(const QString &dir, const char *name)
{
    return QDir(dir).filePath(QString::fromUtf8(name));
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes `data` to `path`, making its folder; the path, or an empty text.
inline QString writeFile(const QString &path, const QByteArray &data)
{
    QFile file(path);
    const bool written = QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
                         && file.write(data) == data.size();
    return written ? path : QString();
}

// The same noise on every run; `size` a multiple of 4.
inline QByteArray randomBytes(int size, quint32 seed = 1234)
{
    QByteArray data(size, Qt::Uninitialized);
    QRandomGenerator(seed).fillRange(reinterpret_cast<quint32 *>(data.data()), size / 4);
    return data;
}

// A copy of a fixture disc's VIDEO_TS folder below `dir`, to be damaged; its
// path, or an empty text when the copy failed.
inline QString copyDisc(const QString &videoTs, const QString &dir)
{
    const QString copy = QDir(dir).filePath(QStringLiteral("VIDEO_TS"));
    if (!QDir().mkpath(copy))
        return {};
    for (const QFileInfo &file : QDir(videoTs).entryInfoList(QDir::Files))
        if (!QFile::copy(file.filePath(), QDir(copy).filePath(file.fileName())))
            return {};
    return copy;
}

// Rewrites a file of such a copy through `change`.
inline bool changeFile(const QString &path, const std::function<void(QByteArray &)> &change)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    QByteArray bytes = file.readAll();
    change(bytes);
    return file.seek(0) && file.resize(0) && file.write(bytes) == bytes.size();
}

// A field of an IFO, big-endian as on the disc.
inline quint32 ifoField(const QByteArray &ifo, int at, int size)
{
    quint32 value = 0;
    for (int i = 0; i < size; ++i)
        value = value << 8 | quint8(ifo[at + i]);
    return value;
}

inline void setIfoField(QByteArray &ifo, int at, int size, quint32 value)
{
    for (int i = size - 1; i >= 0; --i, value >>= 8)
        ifo[at + i] = char(value & 0xff);
}

#if __has_include("dvddisc.h")
#include "dvddisc.h"

#include <QTest>

// A disc, with the note of the PGCs dropped as duplicates that the scan
// should give: the main fixture repeats its first PGC twice.
inline std::unique_ptr<DvdDisc> loadDisc(const QString &path, int dropped = 2,
                                         QString *error = nullptr)
{
    if (dropped > 0)
        QTest::ignoreMessage(QtDebugMsg,
                             qPrintable(QStringLiteral("drop %1 duplicate pgc.").arg(dropped)));
    return LoadDvdDisc(path, false, error);
}
#endif
