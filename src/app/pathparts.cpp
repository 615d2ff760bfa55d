#include "pathparts.h"

#include <QFile>
#include <QFileInfo>

namespace {

QString driveOf(const QString &text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    return colon < 0 ? QString() : text.left(colon + 1);
}

// A dangling link counts as taken: writing through it would create its target.
bool nameTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

PathParts::PathParts(const QString &fullPath)
    : drivePart(driveOf(fullPath))
{
    const int cut
        = qMax(fullPath.lastIndexOf(QLatin1Char('/')), fullPath.lastIndexOf(QLatin1Char('\\')));
    if (cut < 0) {
        setFileName(fullPath);
        return;
    }
    folderPart = fullPath.left(cut);
    setFileName(fullPath.mid(cut + 1));
}

void PathParts::setFolder(const QString &folder)
{
    folderPart = folder;
    if (folder.contains(QLatin1Char(':')))
        drivePart = driveOf(folder);
}

void PathParts::setFileName(const QString &fileName)
{
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    if (dot < 1) {
        basePart = fileName;
        return;
    }
    basePart = fileName.left(dot);
    extensionPart = fileName.mid(dot + 1);
}

QString PathParts::fileName() const
{
    if (extensionPart.isEmpty())
        return basePart;
    return basePart + QLatin1Char('.') + extensionPart;
}

QString PathParts::fullPath() const
{
    if (folderPart.endsWith(QLatin1Char('/')))
        return folderPart + fileName();
    return folderPart + QLatin1Char('/') + fileName();
}

int PathParts::makeUnique()
{
    return numberFrom(-1, false);
}

int PathParts::makeUniqueAt(int position)
{
    return numberFrom(position, false);
}

int PathParts::reserveUnique()
{
    return numberFrom(-1, true);
}

int PathParts::numberFrom(int position, bool reserve)
{
    const QString original = basePart;
    if (position < 0 || position >= original.size())
        position = original.size();
    for (int n = 0;; ++n) {
        if (n > 0)
            basePart = QString(original).insert(position, QStringLiteral("(%1)").arg(n));
        const QString path = fullPath();
        if (nameTaken(path))
            continue;
        if (!reserve)
            return n;
        // NewOnly closes the gap between the test and the creation; a name
        // that someone took meanwhile just moves on to the next number.
        QFile file(path);
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || !nameTaken(path))
            return n;
    }
}
