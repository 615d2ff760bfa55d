#pragma once

#include <QList>
#include <QString>

class TaskList;

// The disc road of an import, shared by the window and the command line: one
// IFO file of a disc load becomes one task per title that the list accepts.
// titleNumber runs across all files of one load and counts accepted titles
// only, so the names go "Title_1", "Title_2"... without a gap. discId is the
// same non-zero value for every file of one load. The new task ids are
// appended to taskIds. False when the IFO file can't be read, with `error`
// saying why.
bool ImportDiscFile(TaskList &list, const QString &profileKey, const QString &ifoPath, int discId,
                    int &titleNumber, QList<int> *taskIds = nullptr, QString *error = nullptr);
