#include "sourceimport.h"

#include "discimport.h"
#include "dvddisc.h"
#include "tasklist.h"
#include "utils.h"

#include <QDir>
#include <QFileInfo>

namespace {

void importDisc(TaskList &list, const QString &profileKey, ImportedSource &source, int discId)
{
    const QStringList files
        = QFileInfo(source.path).isDir() ? DvdIfoFiles(source.path) : QStringList{source.path};
    if (files.isEmpty()) {
        source.error = QStringLiteral("no DVD title set (VIDEO_TS/VTS_01_0.IFO) found");
        return;
    }
    int titleNumber = 1;
    QStringList invalid;
    for (const QString &file : files) {
        QString why;
        if (!ImportDiscFile(list, profileKey, file, discId, titleNumber, &source.taskIds, &why))
            invalid << QDir::toNativeSeparators(file)
                           + (why.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(why));
    }
    if (!invalid.isEmpty())
        source.error
            = QStringLiteral("The IFO File is invalid: %1").arg(invalid.join(QStringLiteral(", ")));
}

} // namespace

QList<ImportedSource> importSources(TaskList &list, const QString &profileKey,
                                    const QStringList &paths)
{
    QList<ImportedSource> sources;
    int discId = 0;
    for (const QString &path : paths) {
        ImportedSource source;
        source.path = QFileInfo(path).absoluteFilePath();
        source.disc = IsDvdSource(source.path);
        if (!QFileInfo::exists(source.path)) {
            source.error = QStringLiteral("no such file or folder");
        } else if (source.disc) {
            importDisc(list, profileKey, source, ++discId);
        } else {
            // A pipe or a device is never opened: it could block for ever.
            const QString unreadable = Utils::unreadableReason(source.path);
            const int id = unreadable.isEmpty() ? list.addFile(profileKey, source.path) : -1;
            if (!unreadable.isEmpty())
                source.error = QStringLiteral("can not be read: %1").arg(unreadable);
            else if (id < 0)
                source.error = QStringLiteral(
                    "can not be loaded (not a valid media file, or its format is not supported)");
            else
                source.taskIds << id;
        }
        sources << source;
    }
    return sources;
}
