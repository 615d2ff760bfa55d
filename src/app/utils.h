#pragma once

#include <QtGlobal>

class QString;

// The path with another base name and the same suffix, in the same folder.
QString replaceBaseName(const QString &path, const QString &newBase);

// Text in the local 8-bit encoding as lower-case hexadecimal digits, two a
// byte: paths and font names travel this way inside filter texts, whose own
// syntax has no room for them.
QString hexText(const QString &text);
QString fromHexText(const QString &hex);

// A file name made from a title: the characters that no file system takes
// everywhere removed, blanks trimmed.
QString sanitizeFileName(const QString &text);

// The longest common folder of two paths ("/" separates, case counts);
// empty when they share no first part.
QString commonParent(const QString &a, const QString &b);

namespace Utils {

// Blocks the calling thread for the whole time.
void sleepMs(unsigned long milliseconds);

// "640x480", empty unless both are positive.
QString sizeLabel(int width, int height);

// "1.00kB": whole units of 1024, always two zero decimals, no blank.
QString byteText(quint64 bytes);

// "hh:mm:ss", with "days." in front from one day on.
QString durationText(double seconds);

// Logical processors of this machine.
int processorCount();

// Why a media file can't be read as one, in a few words ("permission
// denied", "not a regular file"); empty for a readable regular file. Never
// opens a FIFO or a device.
QString unreadableReason(const QString &path);

// A path that Qt can carry for a file whose name, in the bytes the system
// gave, is not valid UTF-8: a link with a readable name in a folder of our
// own, made on first use. The bytes themselves when they are valid.
QString reachablePath(const QByteArray &nativePath);

} // namespace Utils
