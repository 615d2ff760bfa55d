#include "utils.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

QString replaceBaseName(const QString &path, const QString &newBase)
{
    const QFileInfo info(path);
    return QFileInfo(info.dir(), newBase + QLatin1Char('.') + info.suffix()).filePath();
}

namespace Utils {

int processorCount()
{
    return QThread::idealThreadCount();
}

} // namespace Utils
