#include "version.h"

#include "buildinfo.h"

QString productVersion()
{
    static const QString version = QStringLiteral(KESTROVE_VERSION).left(128);
    return version;
}
