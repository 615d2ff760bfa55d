#include "dvddisc.h"
#include "dvdtitlereader.h"
#include "ffmpegtools.h"
#include "ifoparse.h"
#include "mediafixtures.h"
#include "mediaimagereader.h"
#include "mediainfo.h"
#include "mediainput.h"
#include "tasklist.h"

#include <QColor>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cmath>
#include <dlfcn.h>
#include <dvdread/dvd_reader.h>
#include <future>
#include <set>
#include <thread>

extern "C" {
#include <libavformat/avformat.h>
}

using Logical::MediaImageReader;
using namespace Qt::StringLiterals;

// Read errors put on sectors of the title VOBs.
static struct
{
    std::set<int> bad;   // fail every time
    std::set<int> flaky; // fail the first time only
    int reads = 0;
} faults;

// The reader's calls come here before they reach libdvdread.
extern "C" ssize_t DVDReadBlocks(dvd_file_t *file, int sector, size_t count, unsigned char *data)
{
    using Read = ssize_t (*)(dvd_file_t *, int, size_t, unsigned char *);
    static const auto real = reinterpret_cast<Read>(dlsym(RTLD_NEXT, "DVDReadBlocks"));
    ++faults.reads;
    for (int s = sector; s < sector + int(count); ++s)
        if (faults.bad.count(s) || faults.flaky.erase(s))
            return -1;
    return real(file, sector, count, data);
}

namespace {

// All the reader gives; `end` is the last read's result, 0 or -1.
QByteArray readAll(DvdTitleReader &reader, int chunk, qint64 &end)
{
    QByteArray all;
    QByteArray buffer(chunk, Qt::Uninitialized);
    while ((end = reader.read(buffer.data(), chunk)) > 0)
        all += buffer.left(int(end));
    return all;
}

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

// "pgcIndex:seconds(chapter start-end,...)[audio][subtitles]" per title.
QString describe(const DvdDisc &disc)
{
    QStringList titles;
    for (const auto &title : disc.titles) {
        QStringList chapters;
        for (const auto &chapter : title->chapters)
            chapters << QString::asprintf("%s%g-%g", chapter->title == title.get() ? "" : "!",
                                          chapter->start, chapter->end);
        titles << QString::asprintf("%d:%g(%s)", title->pgcIndex, title->range->end,
                                    qPrintable(chapters.join(u',')));
        if (!title->audioNames.isEmpty() || !title->subtitleNames.isEmpty())
            titles.last()
                += u"[%1][%2]"_s.arg(title->audioNames.join(u'/'), title->subtitleNames.join(u'/'));
        if (title->disc != &disc)
            titles.last() += u"(not of this disc)"_s;
    }
    return titles.join(u' ');
}

// A copy of a title set IFO with one field changed, named as in badInput_data().
QByteArray damaged(QByteArray ifo, const char *name, quint32 value)
{
    const QLatin1String field(name);
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
    return ifo;
}

// "index:language:rate:channels:codec" per audio stream, then "| index:language"
// per subtitle stream, then "| start-end:name" per chapter.
QString streams(const MediaInfo &info)
{
    QStringList audio, subtitles, chapters;
    for (const AudioStreamInfo &stream : info.audioStreams)
        audio << QString::asprintf("%d:%s:%d:%d:%s", stream.index, qPrintable(stream.language),
                                   stream.sampleRate, stream.channels, qPrintable(stream.codec));
    for (const SubtitleStreamInfo &subtitle : info.subtitleStreams)
        subtitles << u"%1:%2"_s.arg(subtitle.index).arg(subtitle.language);
    for (const MediaChapter &chapter : info.chapters)
        chapters << QString::asprintf("%.4g-%.4g:%s", chapter.start, chapter.end,
                                      qPrintable(chapter.name));
    return u"%1 | %2 | %3"_s.arg(audio.join(u' '), subtitles.join(u' '), chapters.join(u' '));
}

const QString profile = QStringLiteral("1,68");

// The mean colour of a picture, as smooth scaling to one pixel gives it.
QColor meanColour(const QImage &image)
{
    return image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

// Lets queued jobs end and their results arrive.
void settle()
{
    MediaImageReader::instance()->waitForDone();
    QCoreApplication::processEvents();
}

} // namespace

// The disc scan, the title reader that reads what it found, what is known of
// files and disc titles, their stills, and the reader that grabs those as
// thumbnails.
class TestMedia : public QObject
{
    Q_OBJECT

    QString fixtures;
    QTemporaryDir scratch;
    QString videoTs;
    QString ifo;
    std::unique_ptr<DvdDisc> disc, ntscDisc;
    TaskList list;
    QImage placeholder{8, 8, QImage::Format_RGB32}, audioPlaceholder{8, 8, QImage::Format_RGB32};
    MediaImageReader *reader() { return MediaImageReader::instance(); }
    // Threads that delivered imageChanged(taskId) while `wait` runs.
    QList<QThread *> deliveries;

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(fixtures);
        videoTs = fixture(fixtures, "dvd-main/VIDEO_TS");
        ifo = videoTs + u"/VTS_01_0.IFO"_s;
        disc = loadDisc(ifo);
        ntscDisc = loadDisc(fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), 0);
        QVERIFY(disc && disc->titles.size() == 3 && ntscDisc);
        reader()->setTaskList(&list);
        placeholder.fill(Qt::darkGray);
        audioPlaceholder.fill(Qt::darkGreen);
        reader()->setVideoImage(placeholder);
        reader()->setAudioImage(audioPlaceholder);
        connect(reader(), qOverload<int>(&MediaImageReader::imageChanged), this,
                [this](int) { deliveries.append(QThread::currentThread()); });
    }

    void scan_data()
    {
        QTest::addColumn<QString>("pgcs");   // as record() reads them, or a fixture disc
        QTest::addColumn<QString>("titles"); // as describe() gives them, then a disc's attributes
        QTest::addColumn<int>("dropped");
        const auto row
            = [](const char *name, const QString &pgcs, const QString &titles, int dropped) {
                  QTest::newRow(name) << pgcs << titles << dropped;
              };
        row("three equal neighbours", u"1:2|1:2|1:2"_s, u"0:2(0-2)"_s, 2);
        row("A B A keeps all", u"1:2@0|1:2@9|1:2@0"_s, u"0:2(0-2) 1:2(0-2) 2:2(0-2)"_s, 0);
        row("only the time differs", u"1:2|1:3"_s, u"0:2(0-2)"_s, 1);
        row("audio label differs", u"1:2;en|1:2;fr"_s, u"0:2(0-2)[en][] 1:2(0-2)[fr][]"_s, 0);
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
        // PGCs 2 and 3 repeat PGC 1, PGC 4 lasts 0.6 s and PGC 5 1.0 s. The
        // red title has chapter marks at 0, 1.2, 3.0 and 4.2 s of 4.8 s.
        const QString labels = u"[en AC3 2ch/fr MPEG-1 2ch]"_s;
        const QString pal = u" | 720x576 4:3 PAL MPEG-2 AC3 48000 2ch"_s;
        const QString main = u"0:4.8(0-1.2,1.2-3,3-4.2)%1[de Normal] 1:2.4(0-2.4)%1[] "
                             "6:4.8(0-1.2,1.2-3,3-4.2)%1[de Normal]"_s.arg(labels);
        for (const char *path : {"dvd-main/VIDEO_TS/VTS_01_0.IFO", "dvd-main/VIDEO_TS/VTS_01_0.BUP",
                                 "dvd-main/VIDEO_TS/VIDEO_TS.IFO", "dvd-main/VIDEO_TS", "dvd-main"})
            row(path, QString::fromLatin1(path), main + pal, 2);
        row("NTSC 16:9", u"dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"_s,
            u"0:3.003(0-1.2012,1.2012-2.4024)[ja AC3 2ch/es MPEG-1 2ch][] | 720x480 16:9 NTSC "
            "MPEG-2 AC3 48000 2ch"_s,
            0);
        QStringList many;
        for (int i = 0; i < 12; i += 2)
            many << u"%1:4.8(0-1.2,1.2-3,3-4.8)%2[] %3:2.4(0-2.4)%2[]"_s.arg(i).arg(labels).arg(
                i + 1);
        row("twelve titles", u"dvd-many/VIDEO_TS/VTS_01_0.IFO"_s, many.join(u' ') + pal, 0);
    }

    void scan()
    {
        QFETCH(QString, pgcs);
        QFETCH(QString, titles);
        QFETCH(int, dropped);
        const QString path = QDir(fixtures).filePath(pgcs);
        const bool onDisc = pgcs.startsWith("dvd-"_L1);
        if (!onDisc && dropped > 0)
            QTest::ignoreMessage(QtDebugMsg, qPrintable(u"drop %1 duplicate pgc."_s.arg(dropped)));
        const std::unique_ptr<DvdDisc> disc
            = onDisc ? loadDisc(path, dropped) : BuildDvdDisc(u"x.IFO"_s, record(pgcs), {});
        QVERIFY(disc);
        const QString attributes = QString::asprintf(
            " | %dx%d %s %s %s %s %d %dch", disc->width, disc->height,
            disc->aspect == 16.0 / 9.0 ? "16:9" : "4:3", disc->videoStandard ? "PAL" : "NTSC",
            qPrintable(VideoFormatLabel(disc->mpegVersion)),
            qPrintable(AudioFormatLabel(disc->audioFormat)), disc->audioRate == 0 ? 48000 : 0,
            int(disc->audioChannels));
        QCOMPARE(describe(*disc) + (onDisc ? attributes : QString()), titles);
        QCOMPARE(disc->path, onDisc ? path : u"x.IFO"_s);
        // Past the ends of the label tables.
        QCOMPARE(AudioFormatLabel(-1) + AudioFormatLabel(8) + VideoFormatLabel(2),
                 u"ErrorErrorError"_s);
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("name"); // a name ending in '/' is a folder
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("backup"); // "good", "same" damage, "none"; empty: no note
        QTest::addColumn<QString>("damage"); // with a good backup, the note of it
        const auto row
            = [](const char *name, const QByteArray &content, const char *backup,
                 const QString &damage, const QString &file = u"VIDEO_TS/VTS_01_0.IFO"_s) {
                  QTest::newRow(name) << file << content << QString::fromLatin1(backup) << damage;
              };
        const QByteArray valid = readFile(ifo);
        const QString empty = u"missing or empty"_s, notIfo = u"not a title set's IFO"_s;
        row("empty IFO", "", "none", empty);
        row("truncated IFO", valid.left(700), "none", empty);
        row("text named VIDEO_TS.IFO", "text\n", "none", empty, u"VIDEO_TS/VIDEO_TS.IFO"_s);
        row("random bytes as IFO", randomBytes(12288), "none", notIfo);
        row("random bytes as image", randomBytes(1 << 20), "none", empty, u"disc.iso"_s);
        row("folder without IFOs", "", "none", empty, u"VIDEO_TS/"_s);
        row("missing file", QByteArray(), "", u"no DVD there"_s);
        row("a media file", readFile(fixture(fixtures, "movie.mkv")), "none", notIfo);
        // The fixture's PGCIT is sector 2 and its first PGC starts at byte 64.
        const QString pgcs = u"damaged program chain table"_s,
                      chapters = u"damaged chapter table"_s;
        const auto damage = [&](const char *name, const char *field, quint32 value,
                                const char *backup, const QString &note) {
            row(name, damaged(valid, field, value), backup, note);
        };
        damage("PGC count raised", "PGC count", 200, "good", pgcs);
        damage("PGC count raised, bad backup", "PGC count", 200, "same", pgcs);
        damage("PGC count lowered", "PGC count", 6, "none", chapters);
        damage("PGCs share a start past the end", "every PGC start", 0xffff0000u, "same", pgcs);
        damage("PGC start inside the pointers", "first PGC start", 16, "good", pgcs);
        damage("cell count raised", "cell count", 5, "good", pgcs);
        damage("cell count lowered", "cell count", 3, "same", pgcs);
        damage("more programs than cells", "program count", 9, "none", pgcs);
        damage("chapter table on the PGCs", "chapter table sector", 2, "good", chapters);
        damage("PGC table past the end", "PGC table sector", 1000, "none", pgcs);
        damage("PGC table missing", "PGC table sector", 0, "good", u"no program chain table"_s);
        damage("cell address table missing", "cell address table sector", 0, "same",
               u"no cell address table"_s);
        damage("chapters before their table", "first title's chapters", 0, "same", chapters);
        damage("chapters past their table", "first title's chapters", 0x7fffff00u, "good",
               chapters);
        damage("IFO of 100 bytes", "length", 100, "good", empty);
        damage("IFO cut before its tables", "length", 2100, "none", pgcs);
        damage("IFO cut inside its tables", "length", 4096, "none", pgcs);
    }

    // Whatever the damage, libdvdread only reads a copy that holds together;
    // what none holds together is refused by the scan and the title reader.
    void badInput()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, backup);
        QFETCH(QString, damage);
        QTemporaryDir dir;
        const QString path = dir.filePath(name);
        if (!content.isNull())
            QVERIFY(
                !writeFile(name.endsWith(u'/') ? path + u"notes.txt"_s : path, content).isEmpty());
        if (backup == "good"_L1 || backup == "same"_L1) {
            const QByteArray bup
                = backup == "good"_L1 ? readFile(videoTs + u"/VTS_01_0.BUP"_s) : content;
            QVERIFY(!writeFile(path.chopped(3) + u"BUP"_s, bup).isEmpty());
        }
        QString error;
        if (backup == "good"_L1) {
            QTest::ignoreMessage(QtDebugMsg,
                                 qPrintable(u"VTS_01_0.IFO: %1; reading its backup"_s.arg(damage)));
            const std::unique_ptr<DvdDisc> disc = loadDisc(path, 2, &error);
            QVERIFY2(disc, qPrintable(error));
            QCOMPARE(describe(*disc), describe(*disc));
            return;
        }
        QVERIFY(!LoadDvdDisc(path, false, &error));
        const QString note
            = backup == "none"_L1 ? u", and no backup"_s : u", and no sound backup"_s;
        QCOMPARE(error, backup.isEmpty() ? damage : damage + note);
        IfoRecord parsed;
        QVERIFY(ifoParse(QFile::encodeName(path).toStdString(), &parsed) < 0
                && parsed.pgcs.empty());
        DvdTitleReader reader;
        QVERIFY(!reader.open(path, 0) && !reader.isOpen());
        char byte = 0;
        QCOMPARE(reader.read(&byte, 1), qint64(-1));
        QCOMPARE(reader.size(), qint64(0));
    }

    // Root reads any file whatever its mode, so there the scan must simply work.
    void unreadableIfo()
    {
        QTemporaryDir dir;
        const QString copy = copyDisc(videoTs, dir.path());
        const QString path = copy + u"/VTS_01_0.IFO"_s;
        QVERIFY(QFile::setPermissions(path, {})
                && QFile::setPermissions(copy + u"/VTS_01_0.BUP"_s, {}));
        const bool readable = QFile(path).open(QIODevice::ReadOnly);
        const std::unique_ptr<DvdDisc> disc = loadDisc(path, readable ? 2 : 0);
        QCOMPARE(disc ? disc->titles.size() : 0, readable ? size_t(3) : 0);
    }

    void ifoFilesOfFolder_data()
    {
        // Files made below the temporary folder: the folder asked about: what is found.
        QTest::addColumn<QString>("row");
        const QString all = u"VIDEO_TS/VIDEO_TS.IFO VIDEO_TS/VTS_01_0.IFO VIDEO_TS/VTS_02_0.IFO "
                            "VIDEO_TS/VTS_03_0.IFO"_s;
        const QString three = all.section(u' ', 1);
        QTest::newRow("disc root") << all + u"::"_s + three;
        QTest::newRow("root with slash") << all + u":/:"_s + three;
        QTest::newRow("VIDEO_TS itself") << all + u":/VIDEO_TS:"_s + three;
        QTest::newRow("a gap ends the search")
            << u"VIDEO_TS/VTS_01_0.IFO VIDEO_TS/VTS_03_0.IFO::VIDEO_TS/VTS_01_0.IFO"_s;
        QTest::newRow("lower-case folder is looked into") << u"video_ts/VTS_01_0.IFO:/video_ts:"_s;
        QTest::newRow("no title set") << u"VIDEO_TS/VIDEO_TS.IFO::"_s;
    }

    void ifoFilesOfFolder()
    {
        QFETCH(QString, row);
        const QString folder = row.section(u':', 1, 1);
        QTemporaryDir dir;
        for (const QString &name : row.section(u':', 0, 0).split(u' '))
            QVERIFY(!writeFile(dir.filePath(name), {}).isEmpty());
        QCOMPARE(DvdIfoFiles(dir.path() + folder).join(u' ').remove(dir.path() + u'/'),
                 row.section(u':', 2));
        QVERIFY(IsDvdSource(dir.path() + folder));
    }

    void readsTheCells_data()
    {
        QTest::addColumn<int>("pgc");
        QTest::addColumn<int>("chunk");
        QTest::addColumn<QString>("bad");    // "first-last" sectors that fail; "~" first: just once
        QTest::addColumn<qint64>("vobSize"); // the VOB cut to this many bytes
        QTest::addColumn<int>("stretch");    // blocks added to the PGC's first cell
        QTest::addColumn<QString>("failure");
        const qint64 whole = 180 * 2048;
        const auto row
            = [](const char *name, int pgc, int chunk, const char *bad, qint64 vobSize = 180 * 2048,
                 int stretch = 0, const QString &failure = {}) {
                  QTest::newRow(name)
                      << pgc << chunk << QString::fromLatin1(bad) << vobSize << stretch << failure;
              };
        // Chunks that end inside blocks, and reads longer than the internal buffer.
        row("red, four cells, odd chunks", 0, 5001, "");
        row("blue, one cell", 1, 2048, "");
        row("red again, large reads", 6, 300000, "");
        row("short title", 4, 777, "");
        // The VOB holds 180 blocks; PGC 0 is sectors 0-96 in four cells: 0-20,
        // 21-57, 58-79, 80-96; PGC 5 is 158-179.
        const QString from = u"unreadable from sector %1 to the end of the title"_s;
        row("one block", 0, 5001, "30-30");
        row("a block that reads the second time", 0, 5001, "~30-30");
        row("the first block", 0, 5001, "0-0");
        row("a run across two cells", 0, 5001, "15-30");
        row("more than one whole read", 0, 5001, "2-75");
        row("the end of the title", 0, 5001, "90-96", whole, 0, from.arg(90));
        // A shortened VOB or a cell that ends past it: the blocks past the
        // end count as unreadable, never as the end of the title.
        row("VOB cut inside the title", 0, 5001, "", 90 * 2048, 0, from.arg(90));
        row("VOB cut inside a block", 5, 5001, "", 170 * 2048 - 100, 0, from.arg(169));
        row("VOB cut before the title", 5, 5001, "", 150 * 2048, 0,
            u"the title lies beyond the end of its VOB files"_s);
        row("cell past the VOB, then cells in it", 0, 5001, "", whole, 1200);
        row("more than 4 MiB past the VOB", 0, 5001, "", whole, 3000,
            u"2841 blocks in a row unreadable from sector 180"_s);
    }

    void readsTheCells()
    {
        QFETCH(int, pgc);
        QFETCH(int, chunk);
        QFETCH(QString, bad);
        QFETCH(qint64, vobSize);
        QFETCH(int, stretch);
        QFETCH(QString, failure);
        const bool flaky = bad.startsWith(u'~');
        const int first = bad.mid(flaky).section(u'-', 0, 0).toInt();
        const int last = bad.isEmpty() ? -1 : bad.section(u'-', 1).toInt();
        QTemporaryDir dir;
        const QString copy = copyDisc(videoTs, dir.path());
        const QString copyIfo = copy + u"/VTS_01_0.IFO"_s;
        QVERIFY(!copy.isEmpty() && QFile::resize(copy + u"/VTS_01_1.VOB"_s, vobSize));
        if (stretch > 0) {
            QVERIFY(changeFile(copyIfo, [&](QByteArray &ifo) {
                const int pgcit = int(ifoField(ifo, 0xcc, 4)) * 2048;
                const int start = pgcit + int(ifoField(ifo, pgcit + 12 + 8 * pgc, 4));
                const int lastSector = start + int(ifoField(ifo, start + 232, 2)) + 20;
                setIfoField(ifo, lastSector, 4, ifoField(ifo, lastSector, 4) + quint32(stretch));
            }));
            QVERIFY(QFile::remove(copy + u"/VTS_01_0.BUP"_s));
        }
        DvdTitleReader reader;
        QVERIFY(!reader.open(copyIfo, -1) && !reader.open(copyIfo, 7));
        if (!reader.open(copyIfo, pgc)) {
            QCOMPARE(reader.errorString(), failure);
            return;
        }
        // The title's blocks cut out of the VOB by hand, less those lost.
        IfoRecord parsed;
        QVERIFY(ifoParse(QFile::encodeName(copyIfo).toStdString(), &parsed) > pgc);
        const QByteArray vob = readFile(copy + u"/VTS_01_1.VOB"_s);
        QByteArray expected;
        qint64 skipped = 0;
        for (const IfoCell &cell : parsed.pgcs[size_t(pgc)].cells) {
            for (int s = int(cell.start_lba); s <= int(cell.end_lba); ++s) {
                const bool lost
                    = (!flaky && s >= first && s <= last) || (s + 1) * 2048 > vob.size();
                skipped += lost;
                if (!lost)
                    expected += vob.mid(s * 2048, 2048);
            }
        }
        // A passing error costs one read more, not a read for each block.
        faults.reads = 0;
        qint64 end = 0;
        if (flaky) {
            readAll(reader, chunk, end);
            QVERIFY(reader.seek(0));
        }
        const int cleanReads = faults.reads;
        for (int s = first; s <= last; ++s)
            (flaky ? faults.flaky : faults.bad).insert(s);
        const QByteArray got = readAll(reader, chunk, end);
        faults.bad.clear();
        faults.flaky.clear();

        QCOMPARE(reader.errorString(), failure);
        QCOMPARE(end, failure.isEmpty() ? 0 : -1);
        if (flaky)
            QCOMPARE(faults.reads, 2 * cleanReads + 1);
        // A long run stops the title: what came before it is whole.
        if (failure.contains("in a row"_L1))
            QVERIFY(!got.isEmpty() && expected.startsWith(got));
        else {
            QCOMPARE(reader.skippedBlocks(), skipped);
            QCOMPARE(got.size(), expected.size());
            QVERIFY(got == expected);
        }
        // A failed title stays failed until a seek.
        char byte;
        QCOMPARE(reader.read(&byte, 1), failure.isEmpty() ? 0 : -1);
        if (skipped > 0)
            return;
        QCOMPARE(reader.size(), qint64(expected.size()));
        QCOMPARE(reader.pos(), reader.size());
        QByteArray buffer(chunk, Qt::Uninitialized);
        for (const qint64 at : {expected.size() / 2 + 7LL, 3LL, expected.size() - 100LL, 0LL}) {
            QVERIFY(reader.seek(at));
            const qint64 n = reader.read(buffer.data(), chunk);
            QCOMPARE(n, std::min<qint64>(chunk, expected.size() - at));
            QVERIFY(buffer.left(int(n)) == expected.mid(int(at), int(n)));
        }
        QVERIFY(reader.seek(reader.size()));
        QCOMPARE(reader.read(buffer.data(), 10), qint64(0));
        QVERIFY(!reader.seek(reader.size() + 1) && !reader.seek(-1));
        // Only the red clip carries the subpicture.
        const QList<int> ids{reader.audioStreamId(0), reader.audioStreamId(1),
                             reader.audioStreamId(2), reader.subtitleStreamId(0),
                             reader.subtitleStreamId(-1)};
        QCOMPARE(ids, QList<int>({0x80, 0xc0, -1, pgc % 6 == 0 ? 0x20 : -1, -1}));
    }

    void selectsTracksUnderTheDemuxer_data()
    {
        // The audio track and subtitle chosen: the stream ids that are not discarded.
        QTest::addColumn<QString>("row");
        QTest::newRow("everything") << u"-1 -1: e0 80 c0 20"_s;
        QTest::newRow("second audio track") << u"1 -1: e0 c0 20"_s;
        QTest::newRow("first audio, the subtitle") << u"0 0: e0 80 20"_s;
        QTest::newRow("missing subtitle") << u"0 3: e0 80"_s;
    }

    void selectsTracksUnderTheDemuxer()
    {
        QFETCH(QString, row);
        const int audioTrack = row.section(u' ', 0, 0).toInt(),
                  subtitle = row.section(u':', 0, 0).section(u' ', 1).toInt();
        const TitleSelection selection{0, audioTrack, subtitle};
        int error = 0;
        const FormatContextPtr context = openMediaInput(ifo, QString(), selection, &error);
        QVERIFY(context);
        QCOMPARE(error, 0);
        QVERIFY(avformat_find_stream_info(context.get(), nullptr) >= 0);
        selectTitleStreams(context.get(), selection);
        QStringList ids;
        for (unsigned i = 0; i < context->nb_streams; ++i) {
            const AVStream *stream = context->streams[i];
            const AVMediaType type = stream->codecpar->codec_type;
            if (stream->discard != AVDISCARD_ALL
                && (type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO
                    || type == AVMEDIA_TYPE_SUBTITLE))
                ids << QString::number(stream->id & 0xff, 16);
        }
        QCOMPARE(ids.join(u' '), row.section(u": "_s, 1));
    }
    void probe_data()
    {
        QTest::addColumn<QString>("path");    // "title N" is one of the disc's, as its IFO tells it
        QTest::addColumn<int>("pgc");         // a title of a disc, read through the title reader
        QTest::addColumn<double>("duration"); // none: the probe fails
        QTest::addColumn<QString>("video");   // "codec WxH@fps aspect", empty for none
        QTest::addColumn<QString>("streams");
        const auto row
            = [this](const char *name, const QString &path, double duration, const char *video = "",
                     const char *streams = " |  | ", int pgc = -1) {
                  QTest::newRow(name) << QDir(fixtures).filePath(path) << pgc << duration
                                      << QString::fromLatin1(video) << QString::fromLatin1(streams);
              };
        row("Matroska", u"movie.mkv"_s, 3.0, "mpeg4 320x240@25 0",
            "1:eng:48000:2:mp2 2:fre:44100:1:ac3 | 3:ger | 0-1.5:Opening 1.5-3:Chapter_2");
        row("MP4", u"clip.mp4"_s, 2.0, "mpeg4 160x120@30 0", "1:und:44100:1:aac |  | ");
        // Pixels that are not square: the shape comes from their aspect.
        row("16:9 MP4", u"wide.mp4"_s, 1.0, "mpeg4 720x576@25 1.778");
        row("4:3 MPEG-PS", u"narrow.mpg"_s, 1.0, "mpeg2video 720x576@25 1.333");
        row("turned a quarter", u"turned.mp4"_s, 1.0, "mpeg4 240x320@25 0");
        // Program streams whose timestamps start again: the walk through
        // them counts what plays.
        row("recorder VOB, clock set back", u"recorder.vob"_s, 20.0, "mpeg2video 352x288@25 0",
            "1::48000:1:mp2 |  | ");
        row("VOB of a disc, cells from 0 each", u"dvd-main/VIDEO_TS/VTS_01_1.VOB"_s, 8.8,
            "mpeg2video 720x576@25 1.333", "2::48000:2:ac3 3::48000:2:mp2 | 4: | ");
        row("audio only", u"tone.flac"_s, 2.5, "", "0::44100:1:flac |  | ");
        // Under libavformat's MPEG-PS demuxer the streams the IFO announces
        // appear by their stream ids.
        row("red title", ifo, 4.8, "mpeg2video 720x576@25 1.333",
            "128::48000:2:ac3 192::48000:2:mp2 | 32: | ", 0);
        row("blue title", ifo, 2.4, "mpeg2video 720x576@25 1.333",
            "128::48000:2:ac3 192::48000:2:mp2 |  | ", 1);
        // The disc gives one set of sound attributes for all tracks.
        const QString tracks = u"0:en AC3 2ch:48000:2:AC3 0:fr MPEG-1 2ch:48000:2:AC3 | "_s;
        row("three chapters", u"title 0"_s, 4.8, "MPEG-2 720x576@25 1.333",
            qPrintable(tracks
                       + u"0:de Normal | 0-1.2:Chapter_1 1.2-3:Chapter_2 3-4.2:Chapter_3"_s));
        row("one chapter gives none", u"title 1"_s, 2.4, "MPEG-2 720x576@25 1.333",
            qPrintable(tracks + u" | "_s));
        row("NTSC 16:9", u"NTSC title 0"_s, 3.003, "MPEG-2 720x480@30 1.778",
            "0:ja AC3 2ch:48000:2:AC3 0:es MPEG-1 2ch:48000:2:AC3 |  | 0-1.201:Chapter_1 "
            "1.201-2.402:Chapter_2");
        row("picture", u"picture.png"_s, -1);
        row("empty file", writeFile(scratch.filePath(u"empty.mkv"_s), {}), -1);
        row("random bytes", writeFile(scratch.filePath(u"noise.mp4"_s), randomBytes(65536, 99)),
            -1);
        row("text", writeFile(scratch.filePath(u"notes.avi"_s), "just some text\n"), -1);
        row("missing", scratch.filePath(u"missing.mkv"_s), -1);
        row("a folder", fixtures, -1);
        row("PGC past the end", ifo, -1, "", " |  | ", 7);
        row("a media file as a title", u"movie.mkv"_s, -1, "", " |  | ", 0);
    }

    void probe()
    {
        QFETCH(QString, path);
        QFETCH(int, pgc);
        QFETCH(double, duration);
        QFETCH(QString, video);
        QFETCH(QString, streams);
        MediaInfo info;
        info.audioStreams.push_back({}); // a failed probe leaves none behind
        const QString title = QFileInfo(path).fileName();
        const DvdDisc &titles = title.startsWith("NTSC"_L1) ? *ntscDisc : *disc;
        const int result = title.contains("title "_L1)
                               ? info.LoadTitle(*titles.titles[title.right(1).toUInt()])
                           : pgc < 0 ? info.Load(path)
                                     : info.ProbeTitle(path, pgc);
        QCOMPARE(result, duration < 0 ? -1 : 0);
        QVERIFY2(duration < 0 || std::abs(info.duration - duration) < (pgc < 0 ? 0.1 : 0.3),
                 qPrintable(QString::number(info.duration)));
        QCOMPARE(info.hasVideo, !video.isEmpty());
        if (info.hasVideo)
            QCOMPARE(QString::asprintf("%s %dx%d@%g %.4g", qPrintable(info.videoCodec), info.width,
                                       info.height, info.frameRate, info.displayAspect),
                     video);
        QCOMPARE(::streams(info), streams);
        QVERIFY(info.allCodecsKnown && info.forcedFormat.isEmpty());
        if (info.hasVideo)
            return;
        QTest::ignoreMessage(
            QtDebugMsg,
            QRegularExpression(u"^MediaInfo\\(\\d+\\): GetPictureFromVideo\\(.*\\) x$"_s));
        QVERIFY(GetPictureFromVideo(path, pgc, 1.0).isNull());
    }

    void derivedValues()
    {
        // Without an aspect of its own the pixels are square; the text is cut, not rounded.
        MediaInfo info;
        QStringList aspects;
        for (const QSize size : {QSize(720, 576), QSize(640, 480), QSize(1, 0)}) {
            info.width = size.width();
            info.height = size.height();
            for (const double own : {0.0, 16.0 / 9.0}) {
                info.displayAspect = own;
                aspects << QString::number(info.DisplayAspect()) + u'=' + info.AspectText();
            }
        }
        QCOMPARE(aspects.join(u' '), u"1.25=1.25 1.77778=1.777 1.33333=1.333 1.77778=1.777 0=0 "
                                     "1.77778=1.777"_s);
        info.audioStreams.push_back({});
        info.audioStreams[0].codec = u"ac3"_s;
        QCOMPARE(info.audioCodec(0) + info.audioCodec(1) + info.audioCodec(-1), u"ac3"_s);
        // A title needs a length.
        DvdTitle empty;
        empty.disc = disc.get();
        empty.range = std::make_unique<DvdChapter>();
        QCOMPARE(info.LoadTitle(empty), -1);
        empty.range->end = 0.5;
        QVERIFY(info.LoadTitle(empty) == 0 && info.duration == 0.5);
    }

    // A still of a picture that does not change, against ffmpeg's own
    // scaling of its first frame; and stills of the discs' plain colours.
    void stills_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("pgc");
        QTest::addColumn<QColor>("colour"); // none: the ffmpeg frame
        QTest::newRow("file") << fixture(fixtures, "clip.mp4") << -1 << QColor();
        // Upright: the stored top left corner's red mark shows at the bottom left.
        QTest::newRow("turned a quarter") << fixture(fixtures, "turned.mp4") << -1 << QColor();
        QTest::newRow("red") << ifo << 0 << QColor(Qt::red);
        QTest::newRow("blue") << ifo << 1 << QColor(Qt::blue);
        QTest::newRow("red again") << ifo << 6 << QColor(Qt::red);
        QTest::newRow("NTSC magenta") << ntscDisc->path << 0 << QColor(Qt::magenta);
    }

    void stills()
    {
        QFETCH(QString, path);
        QFETCH(int, pgc);
        QFETCH(QColor, colour);
        QImage expected(96, 72, QImage::Format_RGB888);
        expected.fill(colour);
        const QString reference = scratch.filePath(u"reference.png"_s);
        if (!colour.isValid()) {
            QCOMPARE(runTool(u"ffmpeg"_s, u"-nostdin -v error -y -i %1 -frames:v 1 -vf "
                                          "scale=96:72:flags=bicubic %2"_s.arg(path, reference)
                                              .split(u' ')),
                     0);
            expected = QImage(reference).convertToFormat(QImage::Format_RGB888);
            QCOMPARE(expected.size(), QSize(96, 72));
        }
        const QImage still = GetPictureFromVideo(path, pgc, 0.5);
        QCOMPARE(still.size(), QSize(96, 72));
        QCOMPARE(still.format(), QImage::Format_RGB888);
        // The mean difference per channel.
        double diff = 0;
        for (int row = 0; row < 72; ++row) {
            for (int i = 0; i < 96 * 3; ++i)
                diff += std::abs(int(still.constScanLine(row)[i])
                                 - int(expected.constScanLine(row)[i]));
        }
        diff /= 96 * 72 * 3;
        QVERIFY2(diff < (colour.isValid() ? 12.0 : 6.0), qPrintable(QString::number(diff)));
    }

    void subtitleLanguages()
    {
        const QByteArray idx = "# VobSub index file, v7\nsize: 720x576\n"
                               "id: en, index: 0\ntimestamp: 00:00:01:000, filepos: 000000000\n"
                               "id: fr, index: 1\n";
        QCOMPARE(GetSubtitleLanguages(writeFile(scratch.filePath(u"movie.IDX"_s), idx)),
                 QStringList({u"en"_s, u"fr"_s}));
        QCOMPARE(GetSubtitleLanguages(writeFile(scratch.filePath(u"movie.srt"_s), "1\n")),
                 QStringList{QString()});
        QCOMPARE(GetSubtitleLanguages(scratch.filePath(u"gone.idx"_s)), QStringList());
    }

    void thumbnails_data()
    {
        QTest::addColumn<QString>("path");   // a fixture, or "title N" of the disc
        QTest::addColumn<qint64>("size");    // the picture made this big and put in its place
        QTest::addColumn<QString>("atOnce"); // "placeholder", "audio" or "picture"
        const auto row = [](const char *name, const char *path, qint64 size, const char *atOnce) {
            QTest::newRow(name) << QString::fromLatin1(path) << size << QString::fromLatin1(atOnce);
        };
        row("file", "movie.mkv", -1, "placeholder");
        row("red title", "title 0", -1, "placeholder");
        row("audio", "tone.flac", -1, "audio");
        row("small picture", "", 0, "picture");
        row("one byte under the limit", "", 5242879, "picture");
        row("exactly the limit", "", 5242880, "placeholder");
    }

    // What comes at once, and the frame that comes later on the GUI thread.
    void thumbnails()
    {
        QFETCH(QString, path);
        QFETCH(qint64, size);
        QFETCH(QString, atOnce);
        // The probe finds no duration in a still picture, so a picture's task
        // is made from a video and then pointed at the picture.
        const int id = path.startsWith("title "_L1)
                           ? list.addTitle(profile, *disc->titles[path.mid(6).toUInt()], 1, 1)
                           : list.addFile(profile, fixture(fixtures, size < 0 ? qPrintable(path)
                                                                              : "clip.mp4"));
        QVERIFY(id >= 0);
        Task *task = list.byId(id);
        const QString picture = scratch.filePath(QStringLiteral("picture%1.png").arg(size));
        if (size >= 0) {
            // A PNG reader stops at the end chunk, so padding behind it keeps
            // the picture readable at any file size.
            QVERIFY(QFile::copy(fixture(fixtures, "picture.png"), picture));
            QVERIFY(size == 0 || QFile::resize(picture, size));
            task->items.front()->sourcePath = picture;
        }
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        deliveries.clear();

        reader()->requestImage(id, 1.0, true);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(task->thumbnail(0), atOnce == "audio"_L1 ? audioPlaceholder
                                     : atOnce == "placeholder"_L1
                                         ? placeholder
                                         : QImage(picture).scaled(96, 72, Qt::IgnoreAspectRatio,
                                                                  Qt::FastTransformation));
        if (atOnce != "placeholder"_L1 || size >= 0) {
            // Nothing was queued: no second delivery ever comes, nor without
            // a placeholder asked for.
            if (atOnce == "audio"_L1)
                reader()->requestImage(id, 1.0, false);
            settle();
            QVERIFY(changed.count() == 1 || size >= 0);
            return;
        }
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
        QCOMPARE(changed.at(1).at(0).toInt(), id);
        QCOMPARE(deliveries, QList<QThread *>({thread(), thread()}));
        const QImage image = task->thumbnail(0);
        QCOMPARE(image.size(), QSize(96, 72));
        // The red title's frame; testsrc2 is many colours, never one flat grey.
        const QColor mean = meanColour(image);
        if (path.startsWith("title "_L1))
            QVERIFY2(mean.red() > 215 && mean.green() + mean.blue() < 40, qPrintable(mean.name()));
        else
            QVERIFY(image.pixel(10, 10) != image.pixel(80, 60)
                    || image.pixel(10, 60) != image.pixel(80, 10));
    }

    void mergedTaskHasOnePicturePerChild()
    {
        const int red = list.addTitle(profile, *disc->titles[0], 1, 1);
        const int blue = list.addTitle(profile, *disc->titles[1], 2, 1);
        const int tone = list.addFile(profile, fixture(fixtures, "tone.flac"));
        const int merge = list.addMerge(profile);
        const int redChild = list.addToMerge(red, merge);
        const int toneChild = list.addToMerge(tone, merge);
        const int blueChild = list.addToMerge(blue, merge);
        QSignalSpy changed(reader(), qOverload<int, int>(&MediaImageReader::imageChanged));

        reader()->requestImage(merge, 1.0, true);
        QCOMPARE(changed.count(), 3); // three placeholders
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 5, 20000);
        Task *task = list.byId(merge);
        QCOMPARE(task->thumbnail(toneChild), audioPlaceholder);
        QVERIFY(meanColour(task->thumbnail(redChild)).red() > 150);
        QVERIFY(meanColour(task->thumbnail(blueChild)).blue() > 150);
        QVERIFY(!task->thumbnails.contains(0));

        // On the merged timeline 5 s lies in the audio-only input, which asks
        // for no frame; with that input unchecked, it lies in the blue title.
        changed.clear();
        reader()->requestImageAt(merge, 5.0, true);
        settle();
        QCOMPARE(changed.count(), 0);
        task->setChecked(false, 1);
        reader()->requestImageAt(merge, 5.0, true);
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, 20000);
        QCOMPARE(changed.at(0).at(1).toInt(), blueChild);
    }

    // Grabs wait for the playback's lock while the GUI goes on; a task
    // removed meanwhile gets nothing.
    void grabWaitsForMediaLock()
    {
        const int id = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        const int removed = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        LockMedia();
        reader()->requestImage(removed, 0.5, false);
        reader()->requestImage(id, 0.5, true);
        list.remove(removed);
        QTest::qWait(700);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(list.byId(id)->thumbnail(0), placeholder);
        UnlockMedia();
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
        settle();
        QTest::qWait(50);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1).at(0).toInt(), id);
        QVERIFY(list.byId(id)->thumbnail(0) != placeholder);
    }

    void stopEndsAllWork()
    {
        const int queued = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        const int later = list.addFile(profile, fixture(fixtures, "movie.mkv"));
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        // A playback on another thread holds the lock for a while, so the job is
        // still waiting when the window stops the reader.
        std::promise<void> locked;
        std::thread player([&locked] {
            LockMedia();
            locked.set_value();
            QThread::msleep(400);
            UnlockMedia();
        });
        locked.get_future().wait();
        reader()->requestImage(queued, 0.5, false);
        reader()->stop();
        player.join();
        reader()->requestImage(later, 0.5, true);
        reader()->requestImage(queued, 0.5, true);
        reader()->requestImageAt(queued, 0.5, false);
        reader()->waitForDone();
        QTest::qWait(50);
        QCOMPARE(changed.count(), 0);
        QVERIFY(list.byId(later)->thumbnails.isEmpty());
        QVERIFY(list.byId(queued)->thumbnails.isEmpty());
    }
};

QTEST_MAIN(TestMedia)
#include "tst_media.moc"
