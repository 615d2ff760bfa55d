#include "codecnames.h"

namespace {

using CodecNames::Kind;

struct Row
{
    Kind kind;
    const char *profile;
    const char *commandLine; // "": no encoder
    const char *stock;
    const char *why; // where the stock encoder only stands in
};

const Row rows[] = {
    {Kind::Video, "wmv1x", "wmv1x", "wmv1", nullptr},
    {Kind::Video, "wmv2x", "wmv2x", "wmv2", nullptr},
    {Kind::Video, "wmv3x", "wmv3x", "wmv2", "this ffmpeg has no WMV 9 encoder"},
    {Kind::Video, "realvideo", "rv20", "rv20", nullptr},
    {Kind::Video, "vp8", "libvpx", "libvpx", nullptr},
    {Kind::Video, "xvid", "xvid", "libxvid", nullptr},
    {Kind::Video, "cuh264", "cuh264", "h264_nvenc", nullptr},
    {Kind::Audio, "mpeg4aac", "libfaac", "aac", nullptr},
    {Kind::Audio, "mp3", "libmp3lame", "libmp3lame", nullptr},
    {Kind::Audio, "libamr_nb", "libopencore_amrnb", "aac", "this ffmpeg has no AMR-NB encoder"},
    {Kind::Audio, "wma7x", "wmav2", "wmav2", nullptr},
    {Kind::Audio, "wma8x", "wma8x", "wmav2", nullptr},
    {Kind::Audio, "wma9x", "wma9x", "wmav2", "this ffmpeg has no WMA 9 encoder"},
    {Kind::Audio, "wmalsl", "wmalsl", "wmav2", "this ffmpeg has no WMA Lossless encoder"},
    {Kind::Audio, "vorbis", "libvorbis", "libvorbis", nullptr},
    {Kind::Audio, "rmaudio", "", "", nullptr},
};

} // namespace

namespace CodecNames {

QString commandLineName(Kind kind, const QString &profileValue)
{
    for (const Row &row : rows) {
        if (row.kind == kind && profileValue == QLatin1String(row.profile))
            return QLatin1String(row.commandLine);
    }
    return profileValue;
}

QString stockName(Kind kind, const QString &name, QString *why)
{
    for (const Row &row : rows) {
        if (row.kind != kind || !*row.stock
            || (name != QLatin1String(row.profile) && name != QLatin1String(row.commandLine)))
            continue;
        if (why && row.why)
            *why = QLatin1String(row.why);
        return QLatin1String(row.stock);
    }
    return name;
}

} // namespace CodecNames
