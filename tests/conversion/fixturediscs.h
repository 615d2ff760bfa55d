#pragma once

#include "dvddisc.h"
#include "mediafixtures.h"
#include "profilelookup.h"

#include <QHash>
#include <QStringList>
#include <QTest>

// The fixture folder and its two discs: the main one with titles of PGC 0
// (4.8 s), 1 (2.4 s) and 6, the NTSC one with one 16:9 title of 3 s.
struct FixtureDiscs
{
    QString dir;
    std::unique_ptr<DvdDisc> main;
    std::unique_ptr<DvdDisc> ntsc;

    // For initTestCase().
    void load()
    {
        REQUIRE_MEDIA_FIXTURES(dir);
        main = loadDisc(fixture(dir, "dvd-main/VIDEO_TS/VTS_01_0.IFO"));
        ntsc = loadDisc(fixture(dir, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), 0);
        QVERIFY(main && main->titles.size() == 3 && ntsc && ntsc->titles.size() == 1);
    }
    QString file(const char *name) const { return fixture(dir, name); }
};

// Profile answers from a table of "group,id" to "FileName ExtName".
class FixedCatalogue : public ProfileLookup
{
public:
    explicit FixedCatalogue(QHash<QString, QString> entries)
        : entries(std::move(entries))
    {}
    QString profileFileName(const QString &group, const QString &id) const override
    {
        return entries.value(group + QLatin1Char(',') + id).section(QLatin1Char(' '), 0, 0);
    }
    QString profileExtName(const QString &group, const QString &id) const override
    {
        return entries.value(group + QLatin1Char(',') + id).section(QLatin1Char(' '), 1);
    }

private:
    QHash<QString, QString> entries;
};

inline QString joinedText(const QString &value)
{
    return value;
}
template<typename T>
QString joinedText(T value)
{
    return QString::number(value);
}
// Many values in one line, for one comparison.
template<typename... T>
QString joined(const T &...values)
{
    return QStringList{joinedText(values)...}.join(QLatin1Char('|'));
}
