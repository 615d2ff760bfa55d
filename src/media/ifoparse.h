#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct dvd_reader_s;

// The IFO layer: a DVD's program chains (PGCs), their cells and the stream
// attributes, copied out of libdvdread into plain values.

struct IfoCell
{
    uint32_t start_lba = 0; // sectors inside the title set's VOBs, inclusive
    uint32_t end_lba = 0;
    uint16_t vob_id = 0;
    uint8_t cell_id = 0;
    uint8_t angle = 0; // 0 outside an angle block, else the angle (only 1 is listed)
    int32_t chapter = 0;
    double playback_time = 0.0; // seconds
};

struct IfoAudioTrack
{
    std::string audio_name; // label such as "en AC3 2ch"
    int32_t audio_format = 0;
    int32_t audio_id = 0; // MPEG-PS stream id: 0x80 AC-3, 0x88 DTS, 0xA0 LPCM, 0xC0 MPEG
};

struct IfoSubtitleTrack
{
    std::string sub_name; // "Subtitle <language> <kind>"
    int32_t id = 0;       // MPEG-PS private stream id, 0x20 and up
};

struct IfoPgc
{
    std::string name;     // diagnostics only
    int32_t titleSet = 0; // VTS number whose VOBs hold the cells
    std::vector<IfoCell> cells;
    std::vector<IfoAudioTrack> audio;
    std::vector<IfoSubtitleTrack> subtitles;
};

// What the title set's IFO says of its video and first audio stream, in the
// IFO's own codes. Only ParseMediaArrib reads it.
struct IfoArea
{
    uint8_t mpegVersion = 0;
    uint8_t videoFormat = 0;
    uint8_t displayAspect = 0;
    uint8_t pictureSize = 0;
    uint8_t audioFormat = 0;
    uint8_t sampleFrequency = 0;
    uint8_t channels = 0; // count minus one, as stored
    bool hasAudio = false;
};

struct IfoRecord
{
    std::vector<IfoPgc> pgcs;
    IfoArea area;
};

// The attribute block of a parsed IFO.
struct MediaAttributes
{
    uint8_t mpegVersion = 0;   // 0 MPEG-1, 1 MPEG-2
    uint8_t videoStandard = 0; // 0 NTSC, else PAL
    uint8_t aspect = 0;        // 0 4:3, else 16:9
    int8_t pictureSize = 0;    // 0 to 3
    int8_t audioFormat = 0;
    uint8_t audioRate = 0; // 0 is 48000 Hz
    int8_t audioChannels = 0;
};

// Parses the PGCs that `path` addresses: a "VTS_nn_0.IFO" (or .BUP) gives the
// PGCs of that title set; "VIDEO_TS.IFO", a VIDEO_TS folder, a disc's root
// folder or a disc device gives the first PGC of every title of the disc.
// Negative on failure, with nothing to free and `why` saying what is wrong
// (e.g. "damaged program chain table, and no sound backup"); else the number
// of PGCs. A damaged IFO is passed over for its backup.
int ifoParse(const std::string &path, IfoRecord *record, std::string *why = nullptr);
int ParseMediaArrib(const IfoArea *area, MediaAttributes *attributes);
void ifoFree(IfoRecord *record);

struct DvdReaderDeleter
{
    void operator()(dvd_reader_s *reader) const;
};
using DvdReaderPtr = std::unique_ptr<dvd_reader_s, DvdReaderDeleter>;

// Opens the disc, folder or image that holds the IFO at `path`. Encrypted
// discs are read through libdvdcss when it is installed.
DvdReaderPtr openDvdReader(const std::string &path);

// The DVD-Video audio coding names by format code 0 to 7, else null.
const char *ifoAudioFormatName(int index);
