#include "discimport.h"

#include "dvddisc.h"
#include "settings.h"
#include "tasklist.h"

bool ImportDiscFile(TaskList &list, const QString &profileKey, const QString &ifoPath, int discId,
                    int &titleNumber, QList<int> *taskIds, QString *error)
{
    const std::unique_ptr<DvdDisc> disc = LoadDvdDisc(ifoPath, Setting::useAspi() != 0, error);
    if (!disc)
        return false;
    for (const auto &title : disc->titles) {
        const int id = list.addTitle(profileKey, *title, titleNumber, discId);
        if (id < 0)
            continue;
        ++titleNumber;
        if (taskIds)
            taskIds->append(id);
    }
    return true;
}
