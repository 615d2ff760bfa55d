#include "utils.h"

#include "pathparts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QTime>
#include <QWaitCondition>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

QString hexText(const QString &text)
{
    return QString::fromLatin1(text.toLocal8Bit().toHex());
}

QString fromHexText(const QString &hex)
{
    return QString::fromLocal8Bit(QByteArray::fromHex(hex.toLatin1()));
}

QString replaceBaseName(const QString &path, const QString &newBase)
{
    const QFileInfo info(path);
    return QFileInfo(info.dir(), newBase + QLatin1Char('.') + info.suffix()).filePath();
}

QString sanitizeFileName(const QString &text)
{
    static const QRegularExpression forbidden(QStringLiteral("[/*?:<>|\"\\\\]"));
    return QString(text).remove(forbidden).trimmed();
}

QString commonParent(const QString &a, const QString &b)
{
    if (a == b)
        return a;
    int pos = 0;
    for (;;) {
        int i = a.indexOf(QLatin1Char('/'), pos);
        int j = b.indexOf(QLatin1Char('/'), pos);
        if (i < 0)
            i = a.size();
        if (j < 0)
            j = b.size();
        if (i != j || QStringView(a).left(i) != QStringView(b).left(i))
            break;
        pos = i + 1;
    }
    if (pos > 0)
        --pos;
    return a.left(pos);
}

namespace Utils {

void sleepMs(unsigned long milliseconds)
{
    QMutex mutex;
    QWaitCondition never;
    QMutexLocker locker(&mutex);
    QDeadlineTimer deadline(qint64(milliseconds), Qt::PreciseTimer);
    // Nothing wakes the condition; the loop only guards against early returns.
    while (!deadline.hasExpired())
        never.wait(&mutex, deadline);
}

QString sizeLabel(int width, int height)
{
    if (width <= 0 || height <= 0)
        return QString();
    return QCoreApplication::translate("Utils", "%1x%2").arg(width).arg(height);
}

QString byteText(quint64 bytes)
{
    static const char *const units[]
        = {QT_TRANSLATE_NOOP("Utils", "B"),  QT_TRANSLATE_NOOP("Utils", "kB"),
           QT_TRANSLATE_NOOP("Utils", "MB"), QT_TRANSLATE_NOOP("Utils", "GB"),
           QT_TRANSLATE_NOOP("Utils", "TB"), QT_TRANSLATE_NOOP("Utils", "PB"),
           QT_TRANSLATE_NOOP("Utils", "EB"), QT_TRANSLATE_NOOP("Utils", "ZB"),
           QT_TRANSLATE_NOOP("Utils", "YB")};
    int i = 0;
    while (bytes >= 1024 && i < int(std::size(units)) - 1) {
        bytes >>= 10;
        ++i;
    }
    return QString::number(double(bytes), 'f', 2) + QCoreApplication::translate("Utils", units[i]);
}

QString durationText(double seconds)
{
    // Far beyond any media length, and small enough to convert safely.
    constexpr double longest = 1e12;
    if (!(seconds > 0))
        seconds = 0;
    seconds = std::min(seconds, longest);
    const qint64 days = qint64(seconds / 86400);
    seconds -= double(days) * 86400;
    const QString time = QTime(0, 0).addSecs(int(seconds)).toString(QStringLiteral("hh:mm:ss"));
    if (days == 0)
        return time;
    return QStringLiteral("%1.%2").arg(days).arg(time);
}

int processorCount()
{
    return QThread::idealThreadCount();
}

QString unreadableReason(const QString &path)
{
    const QByteArray native = QFile::encodeName(path);
    struct stat info;
    if (::stat(native.constData(), &info) != 0)
        return QString::fromLocal8Bit(std::strerror(errno)).toLower();
    if (S_ISDIR(info.st_mode))
        return QStringLiteral("a folder, not a media file");
    if (!S_ISREG(info.st_mode))
        return QStringLiteral("not a regular file (a pipe, socket or device)");
    if (::access(native.constData(), R_OK) != 0)
        return QString::fromLocal8Bit(std::strerror(errno)).toLower();
    return QString();
}

QString reachablePath(const QByteArray &nativePath)
{
    const QString decoded = QFile::decodeName(nativePath);
    if (QFile::encodeName(decoded) == nativePath)
        return decoded;
    static QTemporaryDir links(QDir::tempPath() + QStringLiteral("/kestrove-names-XXXXXX"));
    if (!links.isValid())
        return decoded;
    const int slash = nativePath.lastIndexOf('/');
    QString name = QFile::decodeName(nativePath.mid(slash + 1));
    name.replace(QChar::ReplacementCharacter, QLatin1Char('_'));
    PathParts parts(links.filePath(name));
    parts.makeUnique();
    const QString link = parts.fullPath();
    QByteArray target = nativePath;
    if (!target.startsWith('/')) {
        char cwd[4096];
        if (::getcwd(cwd, sizeof cwd))
            target = QByteArray(cwd) + '/' + target;
    }
    if (::symlink(target.constData(), QFile::encodeName(link).constData()) != 0)
        return decoded;
    return link;
}

} // namespace Utils
