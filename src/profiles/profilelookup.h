#pragma once

#include <QString>
#include <QStringList>

// The two answers the task model needs from the profile catalogue. The
// catalogue, or an adapter over it, implements this.
class ProfileLookup
{
public:
    virtual ~ProfileLookup() = default;

    // The entries FileName and ExtName of a profile, empty when unknown.
    virtual QString profileFileName(const QString &groupId, const QString &id) const = 0;
    virtual QString profileExtName(const QString &groupId, const QString &id) const = 0;

    // The same by profile key ("1,68").
    QString fileNameOf(const QString &key) const
    {
        const QStringList parts = key.split(QLatin1Char(','));
        return parts.size() >= 2 ? profileFileName(parts[0], parts[1]) : QString();
    }
    QString extNameOf(const QString &key) const
    {
        const QStringList parts = key.split(QLatin1Char(','));
        return parts.size() >= 2 ? profileExtName(parts[0], parts[1]) : QString();
    }
};
