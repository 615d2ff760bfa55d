#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct IfoRecord;
struct MediaAttributes;
class DvdDisc;
class DvdTitle;

class DvdChapter
{
public:
    DvdTitle *title = nullptr;
    double start = 0.0; // seconds from the beginning of the title
    double end = 0.0;
    QString name;
};

class DvdTitle
{
public:
    DvdDisc *disc = nullptr;
    std::unique_ptr<DvdChapter> range; // the whole title
    int pgcIndex = 0;                  // position in the parsed PGC list, dropped ones counted
    std::vector<std::unique_ptr<DvdChapter>> chapters;
    QStringList audioNames;
    QStringList subtitleNames;
};

// One IFO file's titles, with the picture and sound attributes of the disc.
class DvdDisc
{
public:
    QString path;
    std::vector<std::unique_ptr<DvdTitle>> titles;
    int width = 0;
    int height = 0;
    double aspect = 4.0 / 3.0;
    quint8 videoStandard = 0; // 0 NTSC, else PAL
    quint8 mpegVersion = 0;
    quint8 audioFormat = 0;
    quint8 audioRate = 0; // 0 is 48000 Hz, anything else unknown
    qint8 audioChannels = 0;
};

// Scans one IFO file. Null when it can't be parsed, with `error` saying why;
// a disc without usable titles comes back with an empty title list.
// `useAspi` changes nothing.
std::unique_ptr<DvdDisc> LoadDvdDisc(const QString &path, bool useAspi, QString *error = nullptr);

// The scan of an already parsed record: duplicate neighbours and titles of
// 1.0 s or less dropped, chapters and labels made.
std::unique_ptr<DvdDisc> BuildDvdDisc(const QString &path, const IfoRecord &record,
                                      const MediaAttributes &attributes);

// The IFO files of a disc folder: the folder is completed to its VIDEO_TS
// (a drive root or the folder above it, case-sensitive), then VTS_01_0.IFO,
// VTS_02_0.IFO and so on are taken while they exist. Empty when there is none.
QStringList DvdIfoFiles(const QString &folder);
// Whether a path names a disc rather than a media file: a folder or an IFO file.
bool IsDvdSource(const QString &path);

QString AudioFormatLabel(int index);
QString VideoFormatLabel(int index);
