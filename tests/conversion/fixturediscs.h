#pragma once

#include "mediafixtures.h" // and, with it, dvddisc.h and loadDisc()
#include "profilelookup.h"
#include "tasklist.h"

#include <QHash>
#include <QVariant>

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
    // A task of "m0".."m2", a title of the main disc, of "n", the NTSC title
    // (as title 1 of disc 2), else of a file by its name here or its path.
    int add(TaskList &list, const QString &profile, const QString &what) const
    {
        const int i = what.mid(1).toInt();
        return what == QLatin1String("n") ? list.addTitle(profile, *ntsc->titles[0], 1, 2)
               : what.size() == 2 ? list.addTitle(profile, *main->titles[size_t(i)], i + 1, 1)
                                  : list.addFile(profile, QDir(dir).filePath(what));
    }
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

// Many values in one line, for one comparison.
template<typename... T>
QString joined(const T &...values)
{
    return QStringList{QVariant::fromValue(values).toString()...}.join(QLatin1Char('|'));
}
