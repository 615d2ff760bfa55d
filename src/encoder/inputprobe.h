#pragma once

#include "encoderjob.h"

// What a media file holds, asked of ffprobe.
namespace InputProbe {

InputLayout layout(const QString &path);

} // namespace InputProbe
