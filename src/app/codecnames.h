#pragma once

#include <QString>

// The encoders by the three names they go by: the value in a profile, the
// name the program's encoder command line writes, and stock ffmpeg's encoder.
namespace CodecNames {

enum class Kind { Video, Audio };

// What the command line writes for a profile's value; empty where the value
// names no encoder.
QString commandLineName(Kind kind, const QString &profileValue);

// Stock ffmpeg's encoder for a name of the command line or a profile; the name
// itself where none of ours is known. `why` tells why it stands in for an
// encoder this ffmpeg lacks, and is left alone otherwise.
QString stockName(Kind kind, const QString &name, QString *why = nullptr);

} // namespace CodecNames
