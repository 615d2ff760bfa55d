#pragma once

#include "encoderjob.h"

// What a media file holds, asked of ffprobe.
namespace InputProbe {

// With `error` set when ffprobe could not be run or could not read the file.
InputLayout layout(const QString &path, QString *error = nullptr);

// Seconds of a DVD title as a scan reports them, 0 when unknown, and the
// disc's frame rate.
void addTitleLayout(InputLayout &layout, const QString &ifoPath, int pgcIndex);

// The colour tags of the picture of the file at `path`, or of title `pgc`
// of the DVD behind it, as options for a decoder ("-color_range tv" ...);
// those it doesn't know are left out.
QStringList colourOptions(const QString &path, int pgc);

} // namespace InputProbe
