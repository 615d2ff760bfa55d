#include "ifoparse.h"

#include "ifocheck.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <dvdread/dvd_reader.h>
#include <dvdread/ifo_read.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <map>

namespace {

struct IfoHandleDeleter
{
    void operator()(ifo_handle_t *ifo) const { ifoClose(ifo); }
};
using IfoHandlePtr = std::unique_ptr<ifo_handle_t, IfoHandleDeleter>;

// libdvdread talks on stderr unless given a logger; keep only its errors.
void logDvdRead(void *, dvd_logger_level_t level, const char *format, va_list args)
{
    if (level != DVD_LOGGER_LEVEL_ERROR)
        return;
    char text[512];
    std::vsnprintf(text, sizeof text, format, args);
    // Said of every folder that is not a mounted disc: no news.
    if (std::strstr(text, "Couldn't find device name"))
        return;
    qDebug("libdvdread: %s", text);
}

const dvd_logger_cb dvdLogger = {&logDvdRead};

int bcd(uint8_t value)
{
    return (value >> 4) * 10 + (value & 0x0f);
}

// A DVD time is BCD hours, minutes, seconds and frames; the frame counter
// runs at 25 or 30 frames per nominal second, and NTSC plays 30 of them in
// 1.001 seconds.
double seconds(const dvd_time_t &time)
{
    const int whole = bcd(time.hour) * 3600 + bcd(time.minute) * 60 + bcd(time.second);
    const int frames = bcd(time.frame_u & 0x3f);
    if ((time.frame_u >> 6) == 1)
        return whole + frames / 25.0;
    return (whole * 30 + frames) * 1001.0 / 30000.0;
}

std::string languageCode(unsigned type, uint16_t code)
{
    const char first = char(code >> 8);
    const char second = char(code & 0xff);
    const auto letter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    };
    if (type != 1 || !letter(first) || !letter(second))
        return "Unknown";
    return std::string{first, second};
}

std::string subtitleKind(uint8_t codeExtension)
{
    switch (codeExtension) {
    case 2:
        return "Large";
    case 3:
        return "Children";
    case 5:
        return "Captions";
    case 6:
        return "Large-captions";
    case 7:
        return "Children-captions";
    case 9:
        return "Forced";
    case 13:
        return "Director";
    case 14:
        return "Large-director";
    case 15:
        return "Children-director";
    default:
        return "Normal";
    }
}

int audioStreamBase(unsigned format)
{
    switch (format) {
    case 0:
        return 0x80;
    case 4:
        return 0xa0;
    case 6:
        return 0x88;
    default:
        return 0xc0;
    }
}

// The program (chapter) that holds the 1-based cell number.
int programOfCell(const pgc_t &pgc, int cell)
{
    int program = 0;
    for (int p = 0; pgc.program_map && p < pgc.nr_of_programs; ++p) {
        if (pgc.program_map[p] <= cell)
            program = p + 1;
    }
    return program;
}

IfoPgc copyPgc(const ifo_handle_t &ifo, const pgc_t &pgc, int titleSet, int number)
{
    IfoPgc entry;
    entry.name = "VTS " + std::to_string(titleSet) + " PGC " + std::to_string(number);
    entry.titleSet = titleSet;

    if (pgc.cell_playback && pgc.cell_position) {
        for (int c = 0; c < pgc.nr_of_cells; ++c) {
            const cell_playback_t &play = pgc.cell_playback[c];
            const bool angleBlock = play.block_type == BLOCK_TYPE_ANGLE_BLOCK;
            // Angle 1 only: the other cells of a block show the same time.
            if (angleBlock && play.block_mode != BLOCK_MODE_FIRST_CELL)
                continue;
            IfoCell cell;
            cell.start_lba = play.first_sector;
            cell.end_lba = play.last_sector;
            cell.vob_id = pgc.cell_position[c].vob_id_nr;
            cell.cell_id = pgc.cell_position[c].cell_nr;
            cell.angle = angleBlock ? 1 : 0;
            cell.chapter = programOfCell(pgc, c + 1);
            cell.playback_time = seconds(play.playback_time);
            entry.cells.push_back(cell);
        }
    }

    const vtsi_mat_t &mat = *ifo.vtsi_mat;
    const int audioCount = std::min<int>(mat.nr_of_vts_audio_streams, 8);
    for (int i = 0; i < audioCount; ++i) {
        if (!(pgc.audio_control[i] & 0x8000))
            continue;
        const audio_attr_t &attr = mat.vts_audio_attr[i];
        IfoAudioTrack track;
        const char *format = ifoAudioFormatName(attr.audio_format);
        track.audio_name = languageCode(attr.lang_type, attr.lang_code) + ' '
                           + (format ? format : "Undefined") + ' '
                           + std::to_string(attr.channels + 1) + "ch";
        track.audio_format = attr.audio_format;
        track.audio_id = audioStreamBase(attr.audio_format) + ((pgc.audio_control[i] >> 8) & 7);
        entry.audio.push_back(track);
    }

    const int subtitleCount = std::min<int>(mat.nr_of_vts_subp_streams, 32);
    for (int i = 0; i < subtitleCount; ++i) {
        if (!(pgc.subp_control[i] & 0x80000000u))
            continue;
        const subp_attr_t &attr = mat.vts_subp_attr[i];
        IfoSubtitleTrack track;
        track.sub_name = "Subtitle " + languageCode(attr.type, attr.lang_code) + ' '
                         + subtitleKind(attr.code_extension);
        track.id = 0x20 + ((pgc.subp_control[i] >> 24) & 0x1f);
        entry.subtitles.push_back(track);
    }
    return entry;
}

IfoArea copyArea(const ifo_handle_t &ifo)
{
    const vtsi_mat_t &mat = *ifo.vtsi_mat;
    IfoArea area;
    area.mpegVersion = mat.vts_video_attr.mpeg_version;
    area.videoFormat = mat.vts_video_attr.video_format;
    area.displayAspect = mat.vts_video_attr.display_aspect_ratio;
    area.pictureSize = mat.vts_video_attr.picture_size;
    area.hasAudio = mat.nr_of_vts_audio_streams > 0;
    if (area.hasAudio) {
        area.audioFormat = mat.vts_audio_attr[0].audio_format;
        area.sampleFrequency = mat.vts_audio_attr[0].sample_frequency;
        area.channels = mat.vts_audio_attr[0].channels;
    }
    return area;
}

bool usableTitleSet(const ifo_handle_t *ifo)
{
    return ifo && ifo->vtsi_mat && ifo->vts_pgcit;
}

// 0 for the whole disc, else the title set that a "VTS_nn_0.IFO" names.
int titleSetOfPath(const std::string &path)
{
    static const QRegularExpression pattern(QStringLiteral("^VTS_(\\d\\d)_0\\.(IFO|BUP)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match
        = pattern.match(QFileInfo(QFile::decodeName(path.c_str())).fileName());
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

// The whole of one IFO or BUP file; empty when there is none.
QByteArray readInfoFile(dvd_reader_t *dvd, int titleSet, dvd_read_domain_t domain)
{
    // Far above any real IFO; keeps a damaged image from asking for gigabytes.
    constexpr ssize_t maxBlocks = 32768;
    dvd_file_t *file = DVDOpenFile(dvd, titleSet, domain);
    if (!file)
        return {};
    QByteArray bytes;
    const ssize_t blocks = DVDFileSize(file);
    if (blocks > 0 && blocks <= maxBlocks) {
        bytes.resize(int(blocks * DVD_VIDEO_LB_LEN));
        if (DVDReadBytes(file, bytes.data(), size_t(bytes.size())) != bytes.size())
            bytes.clear();
    }
    DVDCloseFile(file);
    return bytes;
}

QString titleSetName(int titleSet)
{
    return titleSet == 0 ? QStringLiteral("VIDEO_TS")
                         : QStringLiteral("VTS_%1_0").arg(titleSet, 2, 10, QLatin1Char('0'));
}

// libdvdread reads the IFO before it looks at the backup, and a damaged IFO
// can crash it. So it only ever gets copies that passed ifoDamage(), in a
// folder of their own: the IFO where it holds together, else the backup.
class SoundCopies
{
public:
    // False with `why` set when neither copy of the title set holds together.
    bool add(dvd_reader_t *disc, int titleSet, std::string *why)
    {
        if (!folder.isValid()) {
            *why = "no room for a temporary copy of the IFO";
            return false;
        }
        const bool manager = titleSet == 0;
        const QByteArray ifo = readInfoFile(disc, titleSet, DVD_READ_INFO_FILE);
        const std::string damage = ifo.isEmpty() ? "missing or empty" : ifoDamage(ifo, manager);
        QByteArray sound = ifo;
        if (!damage.empty()) {
            const QByteArray backup = readInfoFile(disc, titleSet, DVD_READ_INFO_BACKUP_FILE);
            if (backup.isEmpty() || !ifoDamage(backup, manager).empty()) {
                *why = damage + (backup.isEmpty() ? ", and no backup" : ", and no sound backup");
                return false;
            }
            qDebug("%s.IFO: %s; reading its backup", qPrintable(titleSetName(titleSet)),
                   damage.c_str());
            sound = backup;
        }
        QFile file(folder.filePath(titleSetName(titleSet) + QStringLiteral(".IFO")));
        if (!file.open(QIODevice::WriteOnly) || file.write(sound) != sound.size()) {
            *why = "no room for a temporary copy of the IFO";
            return false;
        }
        return true;
    }

    DvdReaderPtr open() const
    {
        return DvdReaderPtr(
            DVDOpen2(nullptr, &dvdLogger, QFile::encodeName(folder.path()).constData()));
    }

private:
    QTemporaryDir folder{QDir::tempPath() + QStringLiteral("/kestrove-ifo-XXXXXX")};
};

int parseTitleSet(dvd_reader_t *disc, int titleSet, IfoRecord *record, std::string *why)
{
    SoundCopies copies;
    if (!copies.add(disc, titleSet, why))
        return -1;
    const DvdReaderPtr dvd = copies.open();
    const IfoHandlePtr ifo(dvd ? ifoOpen(dvd.get(), titleSet) : nullptr);
    if (!usableTitleSet(ifo.get())) {
        *why = "not readable as a title set";
        return -1;
    }
    record->area = copyArea(*ifo);
    const pgcit_t &pgcit = *ifo->vts_pgcit;
    for (int i = 0; i < pgcit.nr_of_pgci_srp; ++i) {
        if (pgcit.pgci_srp[i].pgc)
            record->pgcs.push_back(copyPgc(*ifo, *pgcit.pgci_srp[i].pgc, titleSet, i + 1));
    }
    return 0;
}

// The entry PGC of each title in the disc's title table.
int parseDisc(dvd_reader_t *disc, IfoRecord *record, std::string *why)
{
    SoundCopies copies;
    if (!copies.add(disc, 0, why))
        return -1;
    const DvdReaderPtr dvd = copies.open();
    const IfoHandlePtr vmg(dvd ? ifoOpen(dvd.get(), 0) : nullptr);
    if (!vmg || !vmg->tt_srpt) {
        *why = "not readable as a disc's IFO";
        return -1;
    }
    std::map<int, IfoHandlePtr> titleSets;
    bool haveArea = false;
    const tt_srpt_t &titles = *vmg->tt_srpt;
    for (int t = 0; t < titles.nr_of_srpts; ++t) {
        const int vts = titles.title[t].title_set_nr;
        const int ttn = titles.title[t].vts_ttn;
        auto found = titleSets.find(vts);
        if (found == titleSets.end()) {
            std::string damage;
            IfoHandlePtr ifo;
            if (copies.add(disc, vts, &damage))
                ifo.reset(ifoOpen(dvd.get(), vts));
            else
                qDebug("VTS %d: %s", vts, damage.c_str());
            found = titleSets.emplace(vts, std::move(ifo)).first;
        }
        const ifo_handle_t *ifo = found->second.get();
        // A broken title set costs its own titles, not the disc.
        if (!usableTitleSet(ifo) || !ifo->vts_ptt_srpt || ttn < 1
            || ttn > ifo->vts_ptt_srpt->nr_of_srpts)
            continue;
        const ttu_t &ttu = ifo->vts_ptt_srpt->title[ttn - 1];
        if (ttu.nr_of_ptts < 1)
            continue;
        const int pgcn = ttu.ptt[0].pgcn;
        if (pgcn < 1 || pgcn > ifo->vts_pgcit->nr_of_pgci_srp
            || !ifo->vts_pgcit->pgci_srp[pgcn - 1].pgc)
            continue;
        if (!haveArea) {
            record->area = copyArea(*ifo);
            haveArea = true;
        }
        record->pgcs.push_back(copyPgc(*ifo, *ifo->vts_pgcit->pgci_srp[pgcn - 1].pgc, vts, pgcn));
    }
    return 0;
}

} // namespace

const char *ifoAudioFormatName(int index)
{
    static const char *const names[]
        = {"AC3", "Undefined", "MPEG-1", "MPEG-2", "LPCM", "Undefined", "DTS", "Undefined"};
    return index >= 0 && index < 8 ? names[index] : nullptr;
}

void DvdReaderDeleter::operator()(dvd_reader_s *reader) const
{
    DVDClose(reader);
}

DvdReaderPtr openDvdReader(const std::string &path)
{
    const QFileInfo info(QFile::decodeName(path.c_str()));
    if (!info.exists())
        return {};
    std::string root = path;
    const QString suffix = info.suffix().toUpper();
    if (info.isFile() && (suffix == QLatin1String("IFO") || suffix == QLatin1String("BUP")))
        root = QFile::encodeName(info.absolutePath()).toStdString();
    return DvdReaderPtr(DVDOpen2(nullptr, &dvdLogger, root.c_str()));
}

int ifoParse(const std::string &path, IfoRecord *record, std::string *why)
{
    std::string ignored;
    if (!why)
        why = &ignored;
    why->clear();
    if (!record)
        return -1;
    *record = IfoRecord();
    const DvdReaderPtr dvd = openDvdReader(path);
    if (!dvd) {
        *why = "no DVD there";
        return -1;
    }
    const int titleSet = titleSetOfPath(path);
    const int result = titleSet > 0 ? parseTitleSet(dvd.get(), titleSet, record, why)
                                    : parseDisc(dvd.get(), record, why);
    if (result < 0) {
        *record = IfoRecord();
        return -1;
    }
    return int(record->pgcs.size());
}

int ParseMediaArrib(const IfoArea *area, MediaAttributes *attributes)
{
    if (!area || !attributes)
        return -1;
    attributes->mpegVersion = area->mpegVersion;
    attributes->videoStandard = area->videoFormat;
    attributes->aspect = area->displayAspect;
    attributes->pictureSize = int8_t(area->pictureSize);
    attributes->audioFormat = int8_t(area->audioFormat);
    attributes->audioRate = area->sampleFrequency;
    attributes->audioChannels = area->hasAudio ? int8_t(area->channels + 1) : 0;
    return 0;
}

void ifoFree(IfoRecord *record)
{
    if (record)
        *record = IfoRecord();
}
