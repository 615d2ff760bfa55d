#pragma once

#include <QMap>
#include <QSet>
#include <QString>

// What a task produces: the profile and the task's own copy of its values.
struct TaskOutput
{
    QString profileKey;  // "group,profile"
    QString profileFile; // the profile's document in the catalogue
    QMap<QString, QString> settings;
    QSet<QString> userKeys; // keys of `settings` that the user chose rather than the profile
    QString fileName; // with extension, without folder
    QString filePath; // full path, set when the command line is built
    bool keepMetaData = true;
};
