#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class TaskList;

// One path given on the command line after its import into the list.
struct ImportedSource
{
    QString path; // absolute
    bool disc = false;
    QList<int> taskIds;
    QString error; // why nothing or only part of it could be read; empty when all was read
};

// Imports paths the way the window does: a folder (a disc root, a folder
// above VIDEO_TS, VIDEO_TS itself or a mounted disc) or an IFO file takes the
// disc road, anything else the file road. Each source gets its own disc id.
QList<ImportedSource> importSources(TaskList &list, const QString &profileKey,
                                    const QStringList &paths);
