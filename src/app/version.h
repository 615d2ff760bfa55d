#pragma once

#include <QString>

// The product version, compiled in from the build's project version.
QString productVersion();

// The product code written into encoder logs.
inline constexpr char productCode[] = "kestrove";
