#include "ifocheck.h"

#include <dvdread/ifo_types.h>

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

constexpr qint64 sectorSize = 2048;

// The packed structs of libdvdread lay the fields out as the disc does.
static_assert(offsetof(pgc_t, command_tbl_offset) == 228);
static_assert(offsetof(cell_playback_t, first_sector) == 8 && sizeof(cell_playback_t) == 24);
static_assert(offsetof(vtsi_mat_t, vts_pgcit) == 0xcc);
static_assert(offsetof(vmgi_mat_t, tt_srpt) == 0xc4);
static_assert(sizeof(title_info_t) == 12 && sizeof(cell_position_t) == 4);

// A span of the file, end exclusive; empty where a check failed.
struct Range
{
    qint64 begin = 0;
    qint64 end = 0;
    bool empty() const { return end <= begin; }
};

// The file's big-endian fields. Outside the file they read as 0, so a value
// can be fetched before its bounds are known to hold.
class Ifo
{
public:
    explicit Ifo(const QByteArray &data)
        : data(data)
    {}
    qint64 size() const { return data.size(); }
    quint32 u8(qint64 at) const { return at >= 0 && at < size() ? quint8(data[int(at)]) : 0; }
    quint32 u16(qint64 at) const { return u8(at) << 8 | u8(at + 1); }
    quint32 u32(qint64 at) const { return u16(at) << 16 | u16(at + 2); }

private:
    const QByteArray &data;
};

// A table that states its own last byte: its span, when that holds its
// header and lies inside `within`.
Range table(qint64 at, qint64 header, qint64 lastByte, Range within)
{
    const Range range{at, at + lastByte + 1};
    if (at < within.begin || range.end < at + header || range.end > within.end)
        return {};
    return range;
}

// Most tables open with a 16-bit count and their 32-bit last byte.
Range countedTable(const Ifo &ifo, qint64 at, Range within)
{
    return table(at, 8, ifo.u32(at + 4), within);
}

// What the checks of one file share: the chapters name PGCs by number, the
// titles name title sets.
struct Context
{
    Range file;
    quint32 pgcs = 0;
    quint32 titleSets = 0;
};

// One PGC, which ends where the next one begins.
bool pgcHolds(const Ifo &ifo, Range pgc)
{
    const qint64 at = pgc.begin;
    if (pgc.end - at < qint64(PGC_SIZE))
        return false;
    const quint32 programs = ifo.u8(at + offsetof(pgc_t, nr_of_programs));
    const quint32 cells = ifo.u8(at + offsetof(pgc_t, nr_of_cells));
    if (programs > cells)
        return false;
    // Where one of its tables starts: 0 when there is none, -1 when it does not fit.
    const auto inner = [&](size_t field, qint64 length, bool needed) -> qint64 {
        const quint32 offset = ifo.u16(at + field);
        if (offset == 0)
            return needed ? -1 : 0;
        return offset >= PGC_SIZE && at + offset + length <= pgc.end ? at + offset : -1;
    };

    const qint64 commands = inner(offsetof(pgc_t, command_tbl_offset), PGC_COMMAND_TBL_SIZE, false);
    if (commands < 0)
        return false;
    if (commands > 0) {
        const Range range
            = table(commands, PGC_COMMAND_TBL_SIZE, ifo.u16(commands + 6), {at, pgc.end});
        const qint64 count
            = qint64(ifo.u16(commands)) + ifo.u16(commands + 2) + ifo.u16(commands + 4);
        if (range.empty() || count >= 255
            || commands + PGC_COMMAND_TBL_SIZE + count * COMMAND_DATA_SIZE > range.end)
            return false;
    }

    const qint64 map = inner(offsetof(pgc_t, program_map_offset), programs, programs > 0);
    if (map < 0)
        return false;
    quint32 previous = 0;
    for (quint32 p = 0; p < programs; ++p) {
        const quint32 cell = ifo.u8(map + p);
        if (cell <= previous || cell > cells)
            return false;
        previous = cell;
    }

    const qint64 playback
        = inner(offsetof(pgc_t, cell_playback_offset), cells * sizeof(cell_playback_t), cells > 0);
    const qint64 positions
        = inner(offsetof(pgc_t, cell_position_offset), cells * sizeof(cell_position_t), cells > 0);
    if (playback < 0 || positions < 0)
        return false;
    for (quint32 c = 0; c < cells; ++c) {
        const qint64 cell = playback + c * sizeof(cell_playback_t);
        if (ifo.u32(cell + offsetof(cell_playback_t, first_sector))
            > ifo.u32(cell + offsetof(cell_playback_t, last_sector)))
            return false;
    }
    return true;
}

// A PGCIT: its pointers, and each PGC they point to.
Range programChains(const Ifo &ifo, qint64 at, Range within, quint32 *count)
{
    const Range range = countedTable(ifo, at, within);
    const qint64 n = ifo.u16(at);
    const qint64 pointers = at + PGCIT_SIZE + n * PGCI_SRP_SIZE;
    if (range.empty() || pointers > range.end)
        return {};
    std::vector<qint64> starts;
    for (qint64 i = 0; i < n; ++i) {
        const qint64 start = at + ifo.u32(at + PGCIT_SIZE + i * PGCI_SRP_SIZE + 4);
        if (start < pointers)
            return {};
        starts.push_back(start);
    }
    // Two pointers may share a PGC.
    std::sort(starts.begin(), starts.end());
    starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
    for (size_t i = 0; i < starts.size(); ++i) {
        const qint64 end = i + 1 < starts.size() ? starts[i + 1] : range.end;
        if (!pgcHolds(ifo, {starts[i], end}))
            return {};
    }
    if (count)
        *count = quint32(n);
    return range;
}

// The menus' PGCITs, one for each language.
Range menus(const Ifo &ifo, qint64 at, Context &context)
{
    const Range range = countedTable(ifo, at, context.file);
    const qint64 n = ifo.u16(at);
    const qint64 units = at + PGCI_UT_SIZE + n * PGCI_LU_SIZE;
    if (range.empty() || units > range.end)
        return {};
    std::vector<qint64> starts;
    for (qint64 i = 0; i < n; ++i)
        starts.push_back(at + ifo.u32(at + PGCI_UT_SIZE + i * PGCI_LU_SIZE + 4));
    std::sort(starts.begin(), starts.end());
    starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
    for (const qint64 start : starts) {
        if (start < units || programChains(ifo, start, range, nullptr).empty())
            return {};
    }
    return range;
}

// The VTS_PTT_SRPT: each title's chapters, each naming an existing PGC.
Range chapters(const Ifo &ifo, qint64 at, Context &context)
{
    const Range range = countedTable(ifo, at, context.file);
    const qint64 n = ifo.u16(at);
    const qint64 offsets = at + VTS_PTT_SRPT_SIZE + 4 * n;
    if (range.empty() || n == 0 || offsets > range.end)
        return {};
    qint64 start = offsets;
    for (qint64 i = 0; i < n; ++i) {
        const qint64 next = at + ifo.u32(at + VTS_PTT_SRPT_SIZE + 4 * i);
        const qint64 end
            = i + 1 < n ? at + ifo.u32(at + VTS_PTT_SRPT_SIZE + 4 * (i + 1)) : range.end;
        if (next < start || end < next || end > range.end)
            return {};
        start = next;
        for (qint64 p = start; p + 4 <= end; p += 4) {
            const quint32 pgcn = ifo.u16(p);
            if (pgcn == 0 || pgcn > context.pgcs)
                return {};
        }
    }
    return range;
}

// A table of 32-bit offsets to entries of `length(entry)` bytes each.
template<typename Length>
Range offsetTable(const Ifo &ifo, qint64 at, Range within, Length length)
{
    const Range range = countedTable(ifo, at, within);
    const qint64 offsets = at + 8 + 4 * qint64(ifo.u16(at));
    if (range.empty() || offsets > range.end)
        return {};
    for (qint64 offset = at + 8; offset < offsets; offset += 4) {
        const qint64 entry = at + ifo.u32(offset);
        if (entry < offsets || entry + length(entry) > range.end)
            return {};
    }
    return range;
}

Range timeMaps(const Ifo &ifo, qint64 at, Context &context)
{
    return offsetTable(ifo, at, context.file,
                       [&](qint64 map) { return VTS_TMAP_SIZE + 4 * qint64(ifo.u16(map + 2)); });
}

Range cellAddresses(const Ifo &ifo, qint64 at, Context &context)
{
    return countedTable(ifo, at, context.file);
}

Range vobuMap(const Ifo &ifo, qint64 at, Context &context)
{
    return table(at, VOBU_ADMAP_SIZE, ifo.u32(at), context.file);
}

// The TT_SRPT: each title in a title set the disc has.
Range titles(const Ifo &ifo, qint64 at, Context &context)
{
    const Range range = countedTable(ifo, at, context.file);
    const qint64 n = ifo.u16(at);
    if (range.empty() || n == 0 || at + TT_SRPT_SIZE + n * qint64(sizeof(title_info_t)) > range.end)
        return {};
    for (qint64 i = 0; i < n; ++i) {
        const qint64 title = at + TT_SRPT_SIZE + i * sizeof(title_info_t);
        const quint32 set = ifo.u8(title + offsetof(title_info_t, title_set_nr));
        if (set == 0 || set > context.titleSets
            || ifo.u8(title + offsetof(title_info_t, vts_ttn)) == 0)
            return {};
    }
    return range;
}

Range parentalTable(const Ifo &ifo, qint64 at, Context &context)
{
    const Range range = countedTable(ifo, at, context.file);
    const qint64 countries = ifo.u16(at);
    const qint64 levels = (qint64(ifo.u16(at + 2)) + 1) * qint64(sizeof(pf_level_t));
    const qint64 list = at + PTL_MAIT_SIZE + countries * PTL_MAIT_COUNTRY_SIZE;
    if (range.empty() || list > range.end)
        return {};
    for (qint64 i = 0; i < countries; ++i) {
        const qint64 start = at + ifo.u16(at + PTL_MAIT_SIZE + i * PTL_MAIT_COUNTRY_SIZE + 4);
        if (start < list || start + levels > range.end)
            return {};
    }
    return range;
}

Range titleSetAttributes(const Ifo &ifo, qint64 at, Context &context)
{
    return offsetTable(ifo, at, context.file, [](qint64) { return VTS_ATTRIBUTES_MIN_SIZE; });
}

// libdvdread reads only the header of the text table.
Range textTable(const Ifo &, qint64 at, Context &context)
{
    return at + TXTDT_MGI_SIZE <= context.file.end ? Range{at, at + TXTDT_MGI_SIZE} : Range{};
}

Range titleSetPgcs(const Ifo &ifo, qint64 at, Context &context)
{
    return programChains(ifo, at, context.file, &context.pgcs);
}

struct TableCheck
{
    size_t pointer; // of the table's sector in the management table
    const char *name;
    bool needed;
    Range (*check)(const Ifo &ifo, qint64 at, Context &context);
};

// The tables in order, each inside the file and none over another.
std::string tablesDamage(const Ifo &ifo, const std::vector<TableCheck> &checks, Context &context,
                         std::vector<Range> ranges)
{
    for (const TableCheck &table : checks) {
        const qint64 sector = ifo.u32(qint64(table.pointer));
        if (sector == 0) {
            if (table.needed)
                return std::string("no ") + table.name;
            continue;
        }
        const Range range = table.check(ifo, sector * sectorSize, context);
        if (range.empty())
            return std::string("damaged ") + table.name;
        ranges.push_back(range);
    }
    std::sort(ranges.begin(), ranges.end(),
              [](const Range &a, const Range &b) { return a.begin < b.begin; });
    for (size_t i = 1; i < ranges.size(); ++i) {
        if (ranges[i].begin < ranges[i - 1].end)
            return "damaged table pointers";
    }
    return {};
}

std::string titleSetDamage(const Ifo &ifo)
{
    if (ifo.u8(offsetof(vtsi_mat_t, nr_of_vts_audio_streams)) > 8
        || ifo.u8(offsetof(vtsi_mat_t, nr_of_vts_subp_streams)) > 32)
        return "damaged stream attributes";
    Context context{{0, ifo.size()}};
    // First the PGCs, which the chapters name by number.
    static const std::vector<TableCheck> checks = {
        {offsetof(vtsi_mat_t, vts_pgcit), "program chain table", true, &titleSetPgcs},
        {offsetof(vtsi_mat_t, vts_ptt_srpt), "chapter table", true, &chapters},
        {offsetof(vtsi_mat_t, vtsm_pgci_ut), "menu table", false, &menus},
        {offsetof(vtsi_mat_t, vts_tmapt), "time map table", false, &timeMaps},
        {offsetof(vtsi_mat_t, vtsm_c_adt), "menu cell address table", false, &cellAddresses},
        {offsetof(vtsi_mat_t, vtsm_vobu_admap), "menu VOBU address map", false, &vobuMap},
        {offsetof(vtsi_mat_t, vts_c_adt), "cell address table", true, &cellAddresses},
        {offsetof(vtsi_mat_t, vts_vobu_admap), "VOBU address map", true, &vobuMap},
    };
    return tablesDamage(ifo, checks, context, {{0, qint64(sizeof(vtsi_mat_t))}});
}

std::string videoManagerDamage(const Ifo &ifo)
{
    Context context{{0, ifo.size()}};
    context.titleSets = ifo.u16(offsetof(vmgi_mat_t, vmg_nr_of_title_sets));
    std::vector<Range> ranges{{0, qint64(sizeof(vmgi_mat_t))}};
    const qint64 firstPlay = ifo.u32(offsetof(vmgi_mat_t, first_play_pgc));
    if (firstPlay != 0) {
        const Range pgc{firstPlay, qint64(ifo.u32(offsetof(vmgi_mat_t, vmgi_last_byte))) + 1};
        if (firstPlay < ranges[0].end || pgc.end > context.file.end || !pgcHolds(ifo, pgc))
            return "damaged first play program chain";
        ranges.push_back(pgc);
    }
    static const std::vector<TableCheck> checks = {
        {offsetof(vmgi_mat_t, tt_srpt), "title table", true, &titles},
        {offsetof(vmgi_mat_t, vmgm_pgci_ut), "menu table", false, &menus},
        {offsetof(vmgi_mat_t, ptl_mait), "parental table", false, &parentalTable},
        {offsetof(vmgi_mat_t, vts_atrt), "title set attribute table", true, &titleSetAttributes},
        {offsetof(vmgi_mat_t, txtdt_mgi), "text table", false, &textTable},
        {offsetof(vmgi_mat_t, vmgm_c_adt), "menu cell address table", false, &cellAddresses},
        {offsetof(vmgi_mat_t, vmgm_vobu_admap), "menu VOBU address map", false, &vobuMap},
    };
    return tablesDamage(ifo, checks, context, ranges);
}

} // namespace

std::string ifoDamage(const QByteArray &data, bool videoManager)
{
    const Ifo ifo(data);
    if (ifo.size() < sectorSize)
        return "cut short";
    const QByteArray identifier = videoManager ? "DVDVIDEO-VMG" : "DVDVIDEO-VTS";
    if (!data.startsWith(identifier))
        return videoManager ? "not a disc's IFO" : "not a title set's IFO";
    return videoManager ? videoManagerDamage(ifo) : titleSetDamage(ifo);
}
