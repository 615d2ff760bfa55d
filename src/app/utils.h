#pragma once

class QString;

// The path with another base name and the same suffix, in the same folder.
QString replaceBaseName(const QString &path, const QString &newBase);

namespace Utils {

// Logical processors of this machine.
int processorCount();

} // namespace Utils
