#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>

#include <functional>

// The fixture folder, made (or found up to date) by the fixture script; an
// empty text when the script failed, e.g. for want of ffmpeg or dvdauthor.
inline QString mediaFixtures()
{
    const QString dir = QStringLiteral(KESTROVE_MEDIA_FIXTURES);
    QProcess script;
    script.setProcessChannelMode(QProcess::ForwardedChannels);
    script.start(QStringLiteral(KESTROVE_MEDIA_FIXTURE_SCRIPT), {dir});
    if (!script.waitForFinished(120000) || script.exitStatus() != QProcess::NormalExit
        || script.exitCode() != 0)
        return {};
    return dir;
}

inline QString fixture(const QString &dir, const char *name)
{
    return QDir(dir).filePath(QString::fromUtf8(name));
}

// A copy of a fixture disc's VIDEO_TS folder below `dir`, to be damaged; its
// path, or an empty text when the copy failed.
inline QString copyDisc(const QString &videoTs, const QString &dir)
{
    const QString copy = QDir(dir).filePath(QStringLiteral("VIDEO_TS"));
    if (!QDir().mkpath(copy))
        return {};
    for (const QFileInfo &file : QDir(videoTs).entryInfoList(QDir::Files)) {
        if (!QFile::copy(file.filePath(), QDir(copy).filePath(file.fileName())))
            return {};
    }
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

// Where the cell playback table of PGC `pgc` (from 0) of a title set IFO lies.
inline int cellTableOfPgc(const QByteArray &ifo, int pgc)
{
    const int pgcit = int(ifoField(ifo, 0xcc, 4)) * 2048;
    const int start = pgcit + int(ifoField(ifo, pgcit + 12 + 8 * pgc, 4));
    return start + int(ifoField(ifo, start + 232, 2));
}
