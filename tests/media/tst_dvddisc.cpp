#include "dvddisc.h"
#include "ifoparse.h"
#include "mediafixtures.h"

#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// A record from a short text: PGCs separated by '|', cells by ',', a cell
// as "chapter:seconds" with an optional "@sector"; "~" is a PGC without
// cells; text after ';' is the label of one audio track.
IfoRecord record(const QString &text)
{
    IfoRecord result;
    for (const QString &pgcText : text.split(u'|', Qt::SkipEmptyParts)) {
        IfoPgc pgc;
        const QStringList parts = pgcText.split(u';');
        if (parts.size() > 1)
            pgc.audio.push_back({parts[1].toStdString(), 0, 0x80});
        for (const QString &cellText : parts[0].split(u',')) {
            const QStringList fields = cellText.split(QRegularExpression(u"[:@]"_s));
            if (fields.size() < 2)
                continue;
            IfoCell cell;
            cell.chapter = fields[0].toInt();
            cell.playback_time = fields[1].toDouble();
            cell.start_lba = fields.value(2).toUInt();
            pgc.cells.push_back(cell);
        }
        result.pgcs.push_back(pgc);
    }
    return result;
}

// Times in seconds, or in whole frames when `fps` is given, so that two
// descriptions agree within a frame.
QString time(double seconds, double fps)
{
    return fps > 0 ? QString::number(std::lround(seconds * fps)) : QString::number(seconds, 'g', 6);
}

// "pgcIndex:length(chapter start-end,...)" per title, then the labels.
QString describe(const DvdDisc &disc, double fps = 0, bool labels = false)
{
    QStringList titles;
    for (const auto &title : disc.titles) {
        QStringList chapters;
        for (const auto &chapter : title->chapters)
            chapters << (chapter->title == title.get() ? u""_s : u"!"_s) + time(chapter->start, fps)
                            + u'-' + time(chapter->end, fps);
        titles << u"%1:%2(%3)"_s.arg(title->pgcIndex)
                      .arg(time(title->range->end, fps), chapters.join(u','));
        if (labels)
            titles.last()
                += u"[%1][%2]"_s.arg(title->audioNames.join(u'/'), title->subtitleNames.join(u'/'));
        if (title->disc != &disc)
            titles.last() += u"(not of this disc)"_s;
    }
    return titles.join(u' ');
}

QString attributes(const DvdDisc &disc)
{
    return u"%1x%2 %3 %4 %5 %6 %7 %8ch"_s.arg(disc.width)
        .arg(disc.height)
        .arg(disc.aspect == 16.0 / 9.0 ? u"16:9"_s : u"4:3"_s)
        .arg(disc.videoStandard ? u"PAL"_s : u"NTSC"_s)
        .arg(VideoFormatLabel(disc.mpegVersion), AudioFormatLabel(disc.audioFormat))
        .arg(disc.audioRate == 0 ? 48000 : 0)
        .arg(disc.audioChannels);
}

// Changes one field of a title set IFO, named as in damagedTables_data().
void damageField(QByteArray &ifo, const QString &field, quint32 value)
{
    const int pgcit = int(ifoField(ifo, 0xcc, 4)) * 2048;
    const int firstPgc = pgcit + int(ifoField(ifo, pgcit + 12, 4));
    const QStringList names = u"PGC count|first PGC start|cell count|program count|chapter table "
                              "sector|PGC table sector|cell address table sector|first title's "
                              "chapters"_s.split(u'|');
    const int at[] = {pgcit, pgcit + 12, firstPgc + 3, firstPgc + 2,
                      0xc8,  0xcc,       0xe0,         int(ifoField(ifo, 0xc8, 4)) * 2048 + 8};
    const int size[] = {2, 4, 1, 1, 4, 4, 4, 4};
    const int i = int(names.indexOf(field));
    if (i >= 0)
        setIfoField(ifo, at[i], size[i], value);
    else if (field == "length"_L1)
        ifo.truncate(int(value));
    for (quint32 pgc = 0; field == "every PGC start"_L1 && pgc < ifoField(ifo, pgcit, 2); ++pgc)
        setIfoField(ifo, pgcit + 12 + 8 * int(pgc), 4, value);
}

} // namespace

class TestDvdDisc : public QObject
{
    Q_OBJECT

    QString fixtures;
    QString vts(const char *ending) const
    {
        return fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.") + QLatin1String(ending);
    }

private slots:
    void initTestCase() { REQUIRE_MEDIA_FIXTURES(fixtures); }

    void scanRules_data()
    {
        QTest::addColumn<QString>("pgcs");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<int>("dropped");
        const auto row
            = [](const char *name, const QString &pgcs, const QString &titles, int dropped) {
                  QTest::newRow(name) << pgcs << titles << dropped;
              };
        row("three equal neighbours", u"1:2|1:2|1:2"_s, u"0:2(0-2)"_s, 2);
        row("A B A keeps all", u"1:2@0|1:2@9|1:2@0"_s, u"0:2(0-2) 1:2(0-2) 2:2(0-2)"_s, 0);
        row("only the time differs", u"1:2|1:3"_s, u"0:2(0-2)"_s, 1);
        row("audio label differs", u"1:2;en|1:2;fr"_s, u"0:2(0-2) 1:2(0-2)"_s, 0);
        row("index counts the dropped", u"1:2@0|1:2@0|1:3@5"_s, u"0:2(0-2) 2:3(0-3)"_s, 1);
        row("exactly 1.0 s is dropped", u"1:1.0"_s, QString(), 0);
        row("1.0001 s stays", u"1:1.0001"_s, u"0:1.0001(0-1.0001)"_s, 0);
        row("short title behind", u"1:2@0|1:0.5@4"_s, u"0:2(0-2)"_s, 0);
        row("short title ahead", u"1:0.5@0|1:2@4"_s, u"1:2(0-2)"_s, 0);
        row("short duplicate counted", u"1:0.5|1:0.7"_s, QString(), 1);
        row("1.0 s chapter leaves a hole", u"1:2,2:1.0,3:2"_s, u"0:5(0-2,3-5)"_s, 0);
        row("cells of one chapter join", u"1:1.5,1:1.5,2:2"_s, u"0:5(0-3,3-5)"_s, 0);
        row("all cells chapter 0", u"0:1.5,0:1.5"_s, u"0:3(0-3)"_s, 0);
        row("PGCs without cells", u"~|~"_s, QString(), 1);
        row("no PGCs", QString(), QString(), 0);
    }

    void scanRules()
    {
        QFETCH(QString, pgcs);
        QFETCH(QString, titles);
        QFETCH(int, dropped);
        if (dropped > 0)
            QTest::ignoreMessage(QtDebugMsg, qPrintable(u"drop %1 duplicate pgc."_s.arg(dropped)));
        const std::unique_ptr<DvdDisc> disc = BuildDvdDisc(u"x.IFO"_s, record(pgcs), {});
        QVERIFY(disc);
        QCOMPARE(describe(*disc), titles);
    }

    void fixtureDiscs_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<double>("fps");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<int>("dropped");

        // PGCs 2 and 3 repeat PGC 1, PGC 4 lasts 0.6 s and PGC 5 1.0 s. The
        // red title has chapter marks at 0, 1.2, 3.0 and 4.2 s of 4.8 s.
        const QString labels = u"[en AC3 2ch/fr MPEG-1 2ch]"_s;
        const QString main = u"0:120(0-30,30-75,75-105)%1[de Normal] 1:60(0-60)%1[] "
                             "6:120(0-30,30-75,75-105)%1[de Normal]"_s.arg(labels);
        const QString pal = u"720x576 4:3 PAL MPEG-2 AC3 48000 2ch"_s;
        for (const char *path : {"dvd-main/VIDEO_TS/VTS_01_0.IFO", "dvd-main/VIDEO_TS/VTS_01_0.BUP",
                                 "dvd-main/VIDEO_TS/VIDEO_TS.IFO", "dvd-main/VIDEO_TS", "dvd-main"})
            QTest::newRow(path) << fixture(fixtures, path) << 25.0 << main << pal << 2;
        QTest::newRow("NTSC 16:9")
            << fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO") << 30000.0 / 1001.0
            << "0:90(0-36,36-72)[ja AC3 2ch/es MPEG-1 2ch][]"
            << "720x480 16:9 NTSC MPEG-2 AC3 48000 2ch" << 0;
        QStringList many;
        for (int i = 0; i < 12; i += 2)
            many << u"%1:120(0-30,30-75,75-120)%2[] %3:60(0-60)%2[]"_s.arg(i).arg(labels).arg(i
                                                                                              + 1);
        QTest::newRow("twelve titles") << fixture(fixtures, "dvd-many/VIDEO_TS/VTS_01_0.IFO")
                                       << 25.0 << many.join(u' ') << pal << 0;
    }

    void fixtureDiscs()
    {
        QFETCH(QString, path);
        QFETCH(double, fps);
        QFETCH(QString, titles);
        QFETCH(QString, attributes);
        QFETCH(int, dropped);
        const std::unique_ptr<DvdDisc> disc = loadDisc(path, dropped);
        QVERIFY(disc);
        QCOMPARE(disc->path, path);
        QCOMPARE(describe(*disc, fps, true), titles);
        QCOMPARE(::attributes(*disc), attributes);
        // Past the ends of the label tables.
        QCOMPARE(AudioFormatLabel(-1) + AudioFormatLabel(8) + VideoFormatLabel(2),
                 u"ErrorErrorError"_s);
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("name"); // a name ending in '/' is a folder
        QTest::addColumn<QByteArray>("content");

        const QByteArray valid = readFile(vts("IFO"));
        QVERIFY(!valid.isEmpty());
        const QString ifo = u"VIDEO_TS/VTS_01_0.IFO"_s;
        QTest::newRow("empty IFO") << ifo << QByteArray("");
        QTest::newRow("truncated IFO, no backup") << ifo << valid.left(700);
        QTest::newRow("IFO cut inside its tables") << ifo << valid.left(2100);
        QTest::newRow("text named VIDEO_TS.IFO")
            << u"VIDEO_TS/VIDEO_TS.IFO"_s << QByteArray("text\n");
        QTest::newRow("random bytes as IFO") << ifo << randomBytes(12288);
        QTest::newRow("random bytes as image") << u"disc.iso"_s << randomBytes(1 << 20);
        QTest::newRow("folder without IFOs") << u"VIDEO_TS/"_s << QByteArray("");
        QTest::newRow("missing file") << ifo << QByteArray();
    }

    void badInput()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QTemporaryDir dir;
        const QString path = dir.filePath(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        if (!content.isNull())
            QVERIFY(
                !writeFile(name.endsWith(u'/') ? path + u"notes.txt"_s : path, content).isEmpty());
        QVERIFY(!LoadDvdDisc(path, false));
        IfoRecord parsed;
        QVERIFY(ifoParse(QFile::encodeName(path).toStdString(), &parsed) < 0);
        QVERIFY(parsed.pgcs.empty());
    }

    void damagedTables_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<quint32>("value");
        QTest::addColumn<QString>("backup"); // "good", "same damage" or "none"
        QTest::addColumn<QString>("damage");
        const auto row = [](const char *name, const char *field, quint32 value, const char *backup,
                            const QString &damage) {
            QTest::newRow(name) << QString::fromLatin1(field) << value
                                << QString::fromLatin1(backup) << damage;
        };
        // The fixture's PGCIT is sector 2 and its first PGC starts at byte 64.
        const QString pgcs = u"damaged program chain table"_s,
                      chapters = u"damaged chapter table"_s;
        row("PGC count raised", "PGC count", 200, "good", pgcs);
        row("PGC count raised, bad backup", "PGC count", 200, "same damage", pgcs);
        row("PGC count lowered", "PGC count", 6, "none", chapters);
        row("PGCs share a start past the end", "every PGC start", 0xffff0000u, "same damage", pgcs);
        row("PGC start inside the pointers", "first PGC start", 16, "good", pgcs);
        row("cell count raised", "cell count", 5, "good", pgcs);
        row("cell count lowered", "cell count", 3, "same damage", pgcs);
        row("more programs than cells", "program count", 9, "none", pgcs);
        row("chapter table on the PGCs", "chapter table sector", 2, "good", chapters);
        row("PGC table past the end", "PGC table sector", 1000, "none", pgcs);
        row("PGC table missing", "PGC table sector", 0, "good", u"no program chain table"_s);
        row("cell address table missing", "cell address table sector", 0, "same damage",
            u"no cell address table"_s);
        row("chapters before their table", "first title's chapters", 0, "same damage", chapters);
        row("chapters past their table", "first title's chapters", 0x7fffff00u, "good", chapters);
        row("IFO of 100 bytes", "length", 100, "good", u"missing or empty"_s);
        row("IFO cut inside its tables", "length", 4096, "none", pgcs);
    }

    // Whatever the damage, libdvdread only reads a copy that holds together.
    void damagedTables()
    {
        QFETCH(QString, field);
        QFETCH(quint32, value);
        QFETCH(QString, backup);
        QFETCH(QString, damage);

        const std::unique_ptr<DvdDisc> sound = loadDisc(vts("IFO"));
        QVERIFY(sound);
        QByteArray ifo = readFile(vts("IFO"));
        damageField(ifo, field, value);
        QTemporaryDir dir;
        const QString path = writeFile(dir.filePath(u"VTS_01_0.IFO"_s), ifo);
        const QString bup = dir.filePath(u"VTS_01_0.BUP"_s);
        if (backup != "none"_L1)
            QVERIFY(!writeFile(bup, backup == "good"_L1 ? readFile(vts("BUP")) : ifo).isEmpty());

        QString error;
        if (backup == "good"_L1) {
            QTest::ignoreMessage(QtDebugMsg,
                                 qPrintable(u"VTS_01_0.IFO: %1; reading its backup"_s.arg(damage)));
            const std::unique_ptr<DvdDisc> disc = loadDisc(path, 2, &error);
            QVERIFY2(disc, qPrintable(error));
            QCOMPARE(describe(*disc, 25, true), describe(*sound, 25, true));
        } else {
            QVERIFY(!LoadDvdDisc(path, false, &error));
            QCOMPARE(
                error,
                damage + (backup == "none"_L1 ? u", and no backup"_s : u", and no sound backup"_s));
        }
    }

    // Root reads any file whatever its mode, so there the scan must simply work.
    void unreadableIfo()
    {
        QTemporaryDir dir;
        for (const char *name : {"IFO", "BUP"}) {
            const QString copy = dir.filePath(u"VTS_01_0."_s + QLatin1String(name));
            QVERIFY(QFile::copy(vts(name), copy) && QFile::setPermissions(copy, {}));
        }
        QVERIFY(QFile::copy(fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_1.VOB"),
                            dir.filePath(u"VTS_01_1.VOB"_s)));
        const QString ifo = dir.filePath(u"VTS_01_0.IFO"_s);
        const bool readable = QFile(ifo).open(QIODevice::ReadOnly);
        const std::unique_ptr<DvdDisc> disc = loadDisc(ifo, readable ? 2 : 0);
        QCOMPARE(disc ? disc->titles.size() : 0, readable ? size_t(3) : 0);
    }

    void ifoFilesOfFolder_data()
    {
        QTest::addColumn<QString>("files"); // made below the temporary folder
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("found");

        const QString three
            = u"VIDEO_TS/VTS_01_0.IFO VIDEO_TS/VTS_02_0.IFO VIDEO_TS/VTS_03_0.IFO"_s;
        const QString all = u"VIDEO_TS/VIDEO_TS.IFO "_s + three;
        QTest::newRow("disc root") << all << QString() << three;
        QTest::newRow("root with slash") << all << u"/"_s << three;
        QTest::newRow("VIDEO_TS itself") << all << u"/VIDEO_TS"_s << three;
        QTest::newRow("a gap ends the search") << u"VIDEO_TS/VTS_01_0.IFO VIDEO_TS/VTS_03_0.IFO"_s
                                               << QString() << u"VIDEO_TS/VTS_01_0.IFO"_s;
        QTest::newRow("lower-case folder is looked into")
            << u"video_ts/VTS_01_0.IFO"_s << u"/video_ts"_s << QString();
        QTest::newRow("no title set") << u"VIDEO_TS/VIDEO_TS.IFO"_s << QString() << QString();
    }

    void ifoFilesOfFolder()
    {
        QFETCH(QString, files);
        QFETCH(QString, folder);
        QFETCH(QString, found);
        QTemporaryDir dir;
        for (const QString &name : files.split(u' '))
            QVERIFY(!writeFile(dir.filePath(name), {}).isEmpty());
        QStringList expected;
        for (const QString &name : found.split(u' ', Qt::SkipEmptyParts))
            expected << dir.filePath(name);
        QCOMPARE(DvdIfoFiles(dir.path() + folder), expected);
        QVERIFY(IsDvdSource(dir.path() + folder));
    }
};

QTEST_GUILESS_MAIN(TestDvdDisc)
#include "tst_dvddisc.moc"
