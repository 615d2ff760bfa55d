#pragma once

#include <QString>

class ChildTask;

// The text of one input's -vf argument: crop, size with its bars, picture
// and effects, watermark, burnt-in subtitle file. Never empty: the size is
// always there. Reads the bars and inner size that Task::prepareFrame wrote.
QString filterChain(const ChildTask &child);
