#include "dvddisc.h"
#include "ifoparse.h"
#include "mediafixtures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace {

// A record from a short text: PGCs separated by '|', cells by ',', a cell
// as "chapter:seconds" with an optional "@sector"; "~" is a PGC without
// cells; text after ';' is the label of one audio track.
IfoRecord record(const QString &text)
{
    IfoRecord result;
    if (text.isEmpty())
        return result;
    const QStringList pgcs = text.split(QLatin1Char('|'));
    for (const QString &pgcText : pgcs) {
        IfoPgc pgc;
        const QStringList parts = pgcText.split(QLatin1Char(';'));
        if (parts.size() > 1)
            pgc.audio.push_back({parts[1].toStdString(), 0, 0x80});
        if (parts[0] != QLatin1String("~")) {
            for (const QString &cellText : parts[0].split(QLatin1Char(','))) {
                const QStringList fields
                    = cellText.split(QRegularExpression(QStringLiteral("[:@]")));
                IfoCell cell;
                cell.chapter = fields[0].toInt();
                cell.playback_time = fields[1].toDouble();
                cell.start_lba = fields.value(2).toUInt();
                pgc.cells.push_back(cell);
            }
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
        for (const auto &chapter : title->chapters) {
            const QString owner = chapter->title == title.get() ? QString() : QStringLiteral("!");
            chapters << owner + time(chapter->start, fps) + QLatin1Char('-')
                            + time(chapter->end, fps);
        }
        QString text = QStringLiteral("%1:%2(%3)")
                           .arg(title->pgcIndex)
                           .arg(time(title->range->end, fps), chapters.join(QLatin1Char(',')));
        if (labels)
            text += QStringLiteral("[%1][%2]")
                        .arg(title->audioNames.join(QLatin1Char('/')),
                             title->subtitleNames.join(QLatin1Char('/')));
        titles << text;
    }
    return titles.join(QLatin1Char(' '));
}

QString attributes(const DvdDisc &disc)
{
    return QStringLiteral("%1x%2 %3 %4 %5 %6 %7 %8ch")
        .arg(disc.width)
        .arg(disc.height)
        .arg(disc.aspect == 16.0 / 9.0 ? QStringLiteral("16:9") : QStringLiteral("4:3"))
        .arg(disc.videoStandard ? QStringLiteral("PAL") : QStringLiteral("NTSC"))
        .arg(VideoFormatLabel(disc.mpegVersion), AudioFormatLabel(disc.audioFormat))
        .arg(disc.audioRate == 0 ? 48000 : 0)
        .arg(disc.audioChannels);
}

void writeFile(const QString &path, const QByteArray &data)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(data), data.size());
}

// Changes one field of a title set IFO, named as in damagedTables_data().
void damageField(QByteArray &ifo, const QString &field, quint32 value)
{
    const int pgcit = int(ifoField(ifo, 0xcc, 4)) * 2048;
    const int chapters = int(ifoField(ifo, 0xc8, 4)) * 2048;
    const int firstPgc = pgcit + int(ifoField(ifo, pgcit + 12, 4));
    if (field == QLatin1String("PGC count"))
        setIfoField(ifo, pgcit, 2, value);
    else if (field == QLatin1String("every PGC start"))
        for (quint32 i = 0; i < ifoField(ifo, pgcit, 2); ++i)
            setIfoField(ifo, pgcit + 12 + 8 * int(i), 4, value);
    else if (field == QLatin1String("first PGC start"))
        setIfoField(ifo, pgcit + 12, 4, value);
    else if (field == QLatin1String("cell count"))
        setIfoField(ifo, firstPgc + 3, 1, value);
    else if (field == QLatin1String("program count"))
        setIfoField(ifo, firstPgc + 2, 1, value);
    else if (field == QLatin1String("chapter table sector"))
        setIfoField(ifo, 0xc8, 4, value);
    else if (field == QLatin1String("PGC table sector"))
        setIfoField(ifo, 0xcc, 4, value);
    else if (field == QLatin1String("cell address table sector"))
        setIfoField(ifo, 0xe0, 4, value);
    else if (field == QLatin1String("first title's chapters"))
        setIfoField(ifo, chapters + 8, 4, value);
    else if (field == QLatin1String("length"))
        ifo.truncate(int(value));
    else
        QFAIL(qPrintable(field));
}

QByteArray randomBytes(int size)
{
    QByteArray data(size, Qt::Uninitialized);
    QRandomGenerator generator(1234);
    for (char &byte : data)
        byte = char(generator.generate());
    return data;
}

} // namespace

class TestDvdDisc : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void scanRules_data();
    void scanRules();
    void fixtureDiscs_data();
    void fixtureDiscs();
    void labelTables();
    void badInput_data();
    void badInput();
    void damagedTables_data();
    void damagedTables();
    void unreadableIfo();
    void ifoFilesOfFolder_data();
    void ifoFilesOfFolder();

private:
    QString fixtures;
};

void TestDvdDisc::initTestCase()
{
    fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the fixture script failed (ffmpeg, dvdauthor, spumux?)");
}

void TestDvdDisc::scanRules_data()
{
    QTest::addColumn<QString>("pgcs");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<int>("dropped");

    QTest::newRow("three equal neighbours") << "1:2|1:2|1:2"
                                            << "0:2(0-2)" << 2;
    QTest::newRow("A B A keeps all") << "1:2@0|1:2@9|1:2@0"
                                     << "0:2(0-2) 1:2(0-2) 2:2(0-2)" << 0;
    QTest::newRow("only the time differs") << "1:2|1:3"
                                           << "0:2(0-2)" << 1;
    QTest::newRow("audio label differs") << "1:2;en|1:2;fr"
                                         << "0:2(0-2) 1:2(0-2)" << 0;
    QTest::newRow("index counts the dropped") << "1:2@0|1:2@0|1:3@5"
                                              << "0:2(0-2) 2:3(0-3)" << 1;
    QTest::newRow("exactly 1.0 s is dropped") << "1:1.0"
                                              << "" << 0;
    QTest::newRow("1.0001 s stays") << "1:1.0001"
                                    << "0:1.0001(0-1.0001)" << 0;
    QTest::newRow("short title behind") << "1:2@0|1:0.5@4"
                                        << "0:2(0-2)" << 0;
    QTest::newRow("short title ahead") << "1:0.5@0|1:2@4"
                                       << "1:2(0-2)" << 0;
    QTest::newRow("short duplicate counted") << "1:0.5|1:0.7"
                                             << "" << 1;
    QTest::newRow("1.0 s chapter leaves a hole") << "1:2,2:1.0,3:2"
                                                 << "0:5(0-2,3-5)" << 0;
    QTest::newRow("cells of one chapter join") << "1:1.5,1:1.5,2:2"
                                               << "0:5(0-3,3-5)" << 0;
    QTest::newRow("all cells chapter 0") << "0:1.5,0:1.5"
                                         << "0:3(0-3)" << 0;
    QTest::newRow("PGCs without cells") << "~|~"
                                        << "" << 1;
    QTest::newRow("no PGCs") << ""
                             << "" << 0;
}

void TestDvdDisc::scanRules()
{
    QFETCH(QString, pgcs);
    QFETCH(QString, titles);
    QFETCH(int, dropped);

    if (dropped > 0)
        QTest::ignoreMessage(QtDebugMsg,
                             qPrintable(QStringLiteral("drop %1 duplicate pgc.").arg(dropped)));
    const std::unique_ptr<DvdDisc> disc
        = BuildDvdDisc(QStringLiteral("x.IFO"), record(pgcs), MediaAttributes());
    QVERIFY(disc);
    QCOMPARE(describe(*disc), titles);
    for (const auto &title : disc->titles)
        QCOMPARE(title->disc, disc.get());
}

void TestDvdDisc::fixtureDiscs_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<double>("fps");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("dropped");

    // PGCs 2 and 3 repeat PGC 1, PGC 4 lasts 0.6 s and PGC 5 1.0 s. The
    // red title has chapter marks at 0, 1.2, 3.0 and 4.2 s of 4.8 s.
    const QString main
        = QStringLiteral("0:120(0-30,30-75,75-105)[en AC3 2ch/fr MPEG-1 2ch][de Normal] "
                         "1:60(0-60)[en AC3 2ch/fr MPEG-1 2ch][] "
                         "6:120(0-30,30-75,75-105)[en AC3 2ch/fr MPEG-1 2ch][de Normal]");
    const QString pal = QStringLiteral("720x576 4:3 PAL MPEG-2 AC3 48000 2ch");
    QTest::newRow("title set IFO")
        << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO") << 25.0 << main << pal << 2;
    QTest::newRow("title set backup")
        << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.BUP") << 25.0 << main << pal << 2;
    QTest::newRow("VIDEO_TS.IFO") << fixture(fixtures, "dvd-main/VIDEO_TS/VIDEO_TS.IFO") << 25.0
                                  << main << pal << 2;
    QTest::newRow("VIDEO_TS folder")
        << fixture(fixtures, "dvd-main/VIDEO_TS") << 25.0 << main << pal << 2;
    QTest::newRow("disc root") << fixture(fixtures, "dvd-main") << 25.0 << main << pal << 2;
    QTest::newRow("NTSC 16:9") << fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO")
                               << 30000.0 / 1001.0 << "0:90(0-36,36-72)[ja AC3 2ch/es MPEG-1 2ch][]"
                               << "720x480 16:9 NTSC MPEG-2 AC3 48000 2ch" << 0;

    QStringList many;
    for (int i = 0; i < 12; i += 2)
        many << QStringLiteral("%1:120(0-30,30-75,75-120)[en AC3 2ch/fr MPEG-1 2ch][]").arg(i)
             << QStringLiteral("%1:60(0-60)[en AC3 2ch/fr MPEG-1 2ch][]").arg(i + 1);
    QTest::newRow("twelve titles") << fixture(fixtures, "dvd-many/VIDEO_TS/VTS_01_0.IFO") << 25.0
                                   << many.join(QLatin1Char(' ')) << pal << 0;
}

void TestDvdDisc::fixtureDiscs()
{
    QFETCH(QString, path);
    QFETCH(double, fps);
    QFETCH(QString, titles);
    QFETCH(QString, attributes);
    QFETCH(int, dropped);

    if (dropped > 0)
        QTest::ignoreMessage(QtDebugMsg,
                             qPrintable(QStringLiteral("drop %1 duplicate pgc.").arg(dropped)));
    const std::unique_ptr<DvdDisc> disc = LoadDvdDisc(path, false);
    QVERIFY(disc);
    QCOMPARE(disc->path, path);
    QCOMPARE(describe(*disc, fps, true), titles);
    QCOMPARE(::attributes(*disc), attributes);
}

void TestDvdDisc::labelTables()
{
    const QStringList audio
        = {QStringLiteral("Error"),     QStringLiteral("AC3"),    QStringLiteral("Undefined"),
           QStringLiteral("MPEG-1"),    QStringLiteral("MPEG-2"), QStringLiteral("LPCM"),
           QStringLiteral("Undefined"), QStringLiteral("DTS"),    QStringLiteral("Undefined"),
           QStringLiteral("Error")};
    for (int i = -1; i <= 8; ++i)
        QCOMPARE(AudioFormatLabel(i), audio[i + 1]);
    QCOMPARE(VideoFormatLabel(-1), QStringLiteral("Error"));
    QCOMPARE(VideoFormatLabel(1), QStringLiteral("MPEG-2"));
    QCOMPARE(VideoFormatLabel(2), QStringLiteral("Error"));
}

void TestDvdDisc::badInput_data()
{
    QTest::addColumn<QString>("name"); // a name ending in '/' is a folder
    QTest::addColumn<bool>("create");
    QTest::addColumn<QByteArray>("content");

    QFile ifo(fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"));
    QVERIFY(ifo.open(QIODevice::ReadOnly));
    const QByteArray valid = ifo.readAll();

    const QString vts = QStringLiteral("VIDEO_TS/VTS_01_0.IFO");
    QTest::newRow("empty IFO") << vts << true << QByteArray();
    QTest::newRow("truncated IFO, no backup") << vts << true << valid.left(700);
    QTest::newRow("IFO cut inside its tables") << vts << true << valid.left(2100);
    QTest::newRow("text named VIDEO_TS.IFO")
        << QStringLiteral("VIDEO_TS/VIDEO_TS.IFO") << true << QByteArray("not a DVD\n");
    QTest::newRow("random bytes as IFO") << vts << true << randomBytes(12288);
    QTest::newRow("random bytes as image")
        << QStringLiteral("disc.iso") << true << randomBytes(1 << 20);
    QTest::newRow("folder without IFOs") << QStringLiteral("VIDEO_TS/") << true << QByteArray();
    QTest::newRow("missing file") << vts << false << QByteArray();
}

void TestDvdDisc::badInput()
{
    QFETCH(QString, name);
    QFETCH(bool, create);
    QFETCH(QByteArray, content);

    QTemporaryDir dir;
    const QString path = dir.filePath(name);
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    if (name.endsWith(QLatin1Char('/')))
        writeFile(path + QStringLiteral("notes.txt"), "nothing here");
    else if (create)
        writeFile(path, content);
    QVERIFY(!LoadDvdDisc(path, false));
    IfoRecord parsed;
    QVERIFY(ifoParse(QFile::encodeName(path).toStdString(), &parsed) < 0);
    QVERIFY(parsed.pgcs.empty());
}

void TestDvdDisc::damagedTables_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<QString>("backup"); // "good", "same damage" or "none"
    QTest::addColumn<QString>("damage");

    // The fixture's PGCIT is sector 2 and its first PGC starts at byte 64.
    const QString pgcs = QStringLiteral("damaged program chain table");
    const QString chapters = QStringLiteral("damaged chapter table");
    QTest::newRow("PGC count raised") << "PGC count" << 200u << "good" << pgcs;
    QTest::newRow("PGC count raised, bad backup") << "PGC count" << 200u << "same damage" << pgcs;
    QTest::newRow("PGC count lowered") << "PGC count" << 6u << "none" << chapters;
    QTest::newRow("PGCs share a start past the end")
        << "every PGC start" << 0xffff0000u << "same damage" << pgcs;
    QTest::newRow("PGC start inside the pointers") << "first PGC start" << 16u << "good" << pgcs;
    QTest::newRow("cell count raised") << "cell count" << 5u << "good" << pgcs;
    QTest::newRow("cell count lowered") << "cell count" << 3u << "same damage" << pgcs;
    QTest::newRow("more programs than cells") << "program count" << 9u << "none" << pgcs;
    QTest::newRow("chapter table on the PGCs")
        << "chapter table sector" << 2u << "good" << chapters;
    QTest::newRow("PGC table past the end") << "PGC table sector" << 1000u << "none" << pgcs;
    QTest::newRow("PGC table missing") << "PGC table sector" << 0u << "good"
                                       << "no program chain table";
    QTest::newRow("cell address table missing")
        << "cell address table sector" << 0u << "same damage"
        << "no cell address table";
    QTest::newRow("chapters before their table")
        << "first title's chapters" << 0u << "same damage" << chapters;
    QTest::newRow("chapters past their table")
        << "first title's chapters" << 0x7fffff00u << "good" << chapters;
    QTest::newRow("IFO of 100 bytes") << "length" << 100u << "good"
                                      << "missing or empty";
    QTest::newRow("IFO cut inside its tables") << "length" << 4096u << "none"
                                               << "damaged program chain table";
}

// Whatever the damage, libdvdread only reads a copy that holds together.
void TestDvdDisc::damagedTables()
{
    QFETCH(QString, field);
    QFETCH(quint32, value);
    QFETCH(QString, backup);
    QFETCH(QString, damage);

    const QString source = fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.");
    QTest::ignoreMessage(QtDebugMsg, "drop 2 duplicate pgc.");
    const std::unique_ptr<DvdDisc> sound = LoadDvdDisc(source + QStringLiteral("IFO"), false);
    QVERIFY(sound);
    QFile original(source + QStringLiteral("IFO"));
    QVERIFY(original.open(QIODevice::ReadOnly));
    QByteArray ifo = original.readAll();
    damageField(ifo, field, value);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("VTS_01_0.IFO"));
    writeFile(path, ifo);
    if (backup == QLatin1String("good"))
        QVERIFY(QFile::copy(source + QStringLiteral("BUP"),
                            dir.filePath(QStringLiteral("VTS_01_0.BUP"))));
    else if (backup == QLatin1String("same damage"))
        writeFile(dir.filePath(QStringLiteral("VTS_01_0.BUP")), ifo);

    QString error;
    if (backup == QLatin1String("good")) {
        QTest::ignoreMessage(
            QtDebugMsg,
            qPrintable(QStringLiteral("VTS_01_0.IFO: %1; reading its backup").arg(damage)));
        QTest::ignoreMessage(QtDebugMsg, "drop 2 duplicate pgc.");
        const std::unique_ptr<DvdDisc> disc = LoadDvdDisc(path, false, &error);
        QVERIFY2(disc, qPrintable(error));
        QCOMPARE(describe(*disc, 25, true), describe(*sound, 25, true));
    } else {
        QVERIFY(!LoadDvdDisc(path, false, &error));
        QCOMPARE(error,
                 damage
                     + (backup == QLatin1String("none") ? QStringLiteral(", and no backup")
                                                        : QStringLiteral(", and no sound backup")));
    }
}

// Root reads any file whatever its mode, so there the scan must simply work.
void TestDvdDisc::unreadableIfo()
{
    QTemporaryDir dir;
    const QString source = fixture(fixtures, "dvd-main/VIDEO_TS/");
    for (const char *name : {"VTS_01_0.IFO", "VTS_01_0.BUP", "VTS_01_1.VOB"})
        QVERIFY(QFile::copy(source + QLatin1String(name), dir.filePath(QLatin1String(name))));
    const QString ifo = dir.filePath(QStringLiteral("VTS_01_0.IFO"));
    QVERIFY(QFile::setPermissions(ifo, {}));
    QVERIFY(QFile::setPermissions(dir.filePath(QStringLiteral("VTS_01_0.BUP")), {}));

    QFile probe(ifo);
    if (probe.open(QIODevice::ReadOnly)) {
        qInfo("running with the right to read any file: the scan must succeed");
        QTest::ignoreMessage(QtDebugMsg, "drop 2 duplicate pgc.");
        const std::unique_ptr<DvdDisc> disc = LoadDvdDisc(ifo, false);
        QVERIFY(disc);
        QCOMPARE(disc->titles.size(), size_t(3));
    } else {
        QVERIFY(!LoadDvdDisc(ifo, false));
    }
}

void TestDvdDisc::ifoFilesOfFolder_data()
{
    QTest::addColumn<QStringList>("files"); // made below the temporary folder
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("found");

    const QStringList three
        = {QStringLiteral("VIDEO_TS/VIDEO_TS.IFO"), QStringLiteral("VIDEO_TS/VTS_01_0.IFO"),
           QStringLiteral("VIDEO_TS/VTS_02_0.IFO"), QStringLiteral("VIDEO_TS/VTS_03_0.IFO")};
    const QStringList found
        = {QStringLiteral("VIDEO_TS/VTS_01_0.IFO"), QStringLiteral("VIDEO_TS/VTS_02_0.IFO"),
           QStringLiteral("VIDEO_TS/VTS_03_0.IFO")};
    QTest::newRow("disc root") << three << QString() << found;
    QTest::newRow("root with slash") << three << QStringLiteral("/") << found;
    QTest::newRow("VIDEO_TS itself") << three << QStringLiteral("/VIDEO_TS") << found;
    QTest::newRow("a gap ends the search")
        << QStringList{QStringLiteral("VIDEO_TS/VTS_01_0.IFO"),
                       QStringLiteral("VIDEO_TS/VTS_03_0.IFO")}
        << QString() << QStringList{QStringLiteral("VIDEO_TS/VTS_01_0.IFO")};
    QTest::newRow("lower-case folder is looked into")
        << QStringList{QStringLiteral("video_ts/VTS_01_0.IFO")} << QStringLiteral("/video_ts")
        << QStringList();
    QTest::newRow("no title set") << QStringList{QStringLiteral("VIDEO_TS/VIDEO_TS.IFO")}
                                  << QString() << QStringList();
}

void TestDvdDisc::ifoFilesOfFolder()
{
    QFETCH(QStringList, files);
    QFETCH(QString, folder);
    QFETCH(QStringList, found);

    QTemporaryDir dir;
    for (const QString &name : files) {
        QVERIFY(QDir().mkpath(QFileInfo(dir.filePath(name)).path()));
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QStringList expected;
    for (const QString &name : found)
        expected << dir.filePath(name);
    QCOMPARE(DvdIfoFiles(dir.path() + folder), expected);
    QVERIFY(IsDvdSource(dir.path() + folder));
}

QTEST_GUILESS_MAIN(TestDvdDisc)
#include "tst_dvddisc.moc"
