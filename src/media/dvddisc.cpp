#include "dvddisc.h"

#include "ifoparse.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

// Neighbouring PGCs that play the same cells with the same streams are one
// title listed twice; the playing time is not compared.
bool samePgc(const IfoPgc &a, const IfoPgc &b)
{
    if (a.audio.size() != b.audio.size())
        return false;
    for (size_t i = 0; i < a.audio.size(); ++i) {
        if (a.audio[i].audio_name != b.audio[i].audio_name
            || a.audio[i].audio_format != b.audio[i].audio_format
            || a.audio[i].audio_id != b.audio[i].audio_id)
            return false;
    }
    if (a.subtitles.size() != b.subtitles.size())
        return false;
    for (size_t i = 0; i < a.subtitles.size(); ++i) {
        if (a.subtitles[i].sub_name != b.subtitles[i].sub_name
            || a.subtitles[i].id != b.subtitles[i].id)
            return false;
    }
    if (a.cells.size() != b.cells.size())
        return false;
    for (size_t i = 0; i < a.cells.size(); ++i) {
        const IfoCell &x = a.cells[i];
        const IfoCell &y = b.cells[i];
        if (x.start_lba != y.start_lba || x.end_lba != y.end_lba || x.vob_id != y.vob_id
            || x.cell_id != y.cell_id || x.angle != y.angle || x.chapter != y.chapter)
            return false;
    }
    return true;
}

// Chapters are runs of cells with one chapter number. A run of 1.0 s or
// less makes no chapter; its time still counts for the title.
void walkChapters(const IfoPgc &pgc, DvdTitle *title)
{
    double start = 0.0;
    double position = 0.0;
    int current = 0;
    const auto step = [&](int chapter, double time) {
        if (chapter != current) {
            if (position - start > 1.0) {
                auto entry = std::make_unique<DvdChapter>();
                entry->title = title;
                entry->start = start;
                entry->end = position;
                title->chapters.push_back(std::move(entry));
            }
            start = position;
            current = chapter;
        }
        position += time;
    };
    for (const IfoCell &cell : pgc.cells)
        step(cell.chapter, cell.playback_time);
    step(-1, 0.0); // closes the last chapter

    title->range = std::make_unique<DvdChapter>();
    title->range->title = title;
    title->range->end = position;
}

// "Subtitle en Normal" shows as "en Normal".
QString subtitleLabel(const std::string &name)
{
    const QStringList words = QString::fromLatin1(name.c_str()).split(QLatin1Char(' '));
    return words.value(1) + QLatin1Char(' ') + words.value(2);
}

} // namespace

std::unique_ptr<DvdDisc> BuildDvdDisc(const QString &path, const IfoRecord &record,
                                      const MediaAttributes &attributes)
{
    static const int sizes[4][3]
        = {{720, 480, 576}, {704, 480, 576}, {352, 480, 576}, {352, 240, 288}};
    auto disc = std::make_unique<DvdDisc>();
    disc->path = path;
    disc->aspect = attributes.aspect ? 16.0 / 9.0 : 4.0 / 3.0;
    if (attributes.pictureSize >= 0 && attributes.pictureSize < 4) {
        disc->width = sizes[attributes.pictureSize][0];
        disc->height = sizes[attributes.pictureSize][attributes.videoStandard ? 2 : 1];
    }
    disc->videoStandard = attributes.videoStandard;
    disc->mpegVersion = attributes.mpegVersion;
    disc->audioFormat = quint8(attributes.audioFormat);
    disc->audioRate = attributes.audioRate;
    disc->audioChannels = attributes.audioChannels;

    int dropped = 0;
    for (size_t i = 0; i < record.pgcs.size(); ++i) {
        const IfoPgc &pgc = record.pgcs[i];
        if (i > 0 && samePgc(record.pgcs[i - 1], pgc)) {
            ++dropped;
            continue;
        }
        auto title = std::make_unique<DvdTitle>();
        title->disc = disc.get();
        title->pgcIndex = int(i);
        for (const IfoAudioTrack &track : pgc.audio)
            title->audioNames.append(QString::fromLatin1(track.audio_name.c_str()));
        for (const IfoSubtitleTrack &track : pgc.subtitles)
            title->subtitleNames.append(subtitleLabel(track.sub_name));
        walkChapters(pgc, title.get());
        if (title->range->end > 1.0)
            disc->titles.push_back(std::move(title));
    }
    if (dropped > 0)
        qDebug().noquote() << QStringLiteral("drop %1 duplicate pgc.").arg(dropped);
    return disc;
}

std::unique_ptr<DvdDisc> LoadDvdDisc(const QString &path, bool useAspi, QString *error)
{
    Q_UNUSED(useAspi)
    IfoRecord record;
    std::string why;
    if (ifoParse(QFile::encodeName(path).toStdString(), &record, &why) < 0) {
        if (error)
            *error = QString::fromStdString(why);
        return nullptr;
    }
    MediaAttributes attributes;
    ParseMediaArrib(&record.area, &attributes);
    std::unique_ptr<DvdDisc> disc = BuildDvdDisc(path, record, attributes);
    ifoFree(&record);
    return disc;
}

QStringList DvdIfoFiles(const QString &folder)
{
    QString videoTs = folder;
    if (videoTs.mid(videoTs.lastIndexOf(QLatin1Char('/')) + 1) != QLatin1String("VIDEO_TS")) {
        if (!videoTs.endsWith(QLatin1Char('/')))
            videoTs += QLatin1Char('/');
        videoTs += QStringLiteral("VIDEO_TS");
    }
    QStringList files;
    for (int n = 1;; ++n) {
        const QString file
            = QStringLiteral("%1/VTS_%2_0.IFO").arg(videoTs).arg(n, 2, 10, QLatin1Char('0'));
        if (!QFileInfo::exists(file))
            break;
        files.append(file);
    }
    return files;
}

bool IsDvdSource(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() || info.suffix().compare(QLatin1String("ifo"), Qt::CaseInsensitive) == 0;
}

QString AudioFormatLabel(int index)
{
    const char *name = ifoAudioFormatName(index);
    return name ? QString::fromLatin1(name) : QStringLiteral("Error");
}

QString VideoFormatLabel(int index)
{
    switch (index) {
    case 0:
        return QStringLiteral("MPEG-1");
    case 1:
        return QStringLiteral("MPEG-2");
    default:
        return QStringLiteral("Error");
    }
}
