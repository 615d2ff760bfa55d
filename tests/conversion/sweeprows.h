#pragma once

#include "profilegrouploader.h"

#include <QSet>
#include <QString>

// The profiles of the built-in catalogue, in its order.
struct CatalogueEntry
{
    QString key;
    QString name;
    QString fileName;
    QString extension;
};

inline QList<CatalogueEntry> catalogueEntries()
{
    const ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    const auto value = [](const QDomNode &node, const char *tag) {
        return node.firstChildElement(QLatin1String(tag)).attribute(QStringLiteral("value"));
    };
    QList<CatalogueEntry> entries;
    for (const QDomNode &group : catalogue->groups()) {
        const QString groupId = value(group, "Id");
        const QDomNodeList profiles = catalogue->profiles(group);
        for (int i = 0; i < profiles.size(); ++i) {
            const QString id = value(profiles.at(i), "Id");
            entries.append({ProfileGroupLoader::profileKey(groupId, id),
                            value(profiles.at(i), "Name"), catalogue->profileFileName(groupId, id),
                            catalogue->profileExtName(groupId, id)});
        }
    }
    return entries;
}

// The rows of a long sweep, picked for this run. ctest's `sweep` tests set
// KESTROVE_SHARD=i/N and take every N-th row from row i; without it the run
// takes the first row of each family, so the default run still meets every
// kind of output in a fraction of the time.
class SweepRows
{
public:
    SweepRows()
    {
        const QList<QByteArray> parts = qgetenv("KESTROVE_SHARD").split('/');
        if (parts.size() == 2 && parts[1].toInt() > 0) {
            index = parts[0].toInt();
            count = parts[1].toInt();
        }
    }

    bool take(const QString &family)
    {
        const int row = rows++;
        if (count > 0)
            return row % count == index;
        if (families.contains(family))
            return false;
        families.insert(family);
        return true;
    }

private:
    int index = 0;
    int count = 0;
    int rows = 0;
    QSet<QString> families;
};
