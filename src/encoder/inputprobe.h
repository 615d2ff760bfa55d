#pragma once

#include "encoderjob.h"

// What a media file holds, asked of ffprobe.
namespace InputProbe {

InputLayout layout(const QString &path);

// Seconds of a DVD title as a scan reports them, 0 when unknown, and the
// disc's frame rate.
void addTitleLayout(InputLayout &layout, const QString &ifoPath, int pgcIndex);

} // namespace InputProbe
