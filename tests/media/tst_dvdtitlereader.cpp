#include "dvdtitlereader.h"
#include "ifoparse.h"
#include "mediafixtures.h"
#include "mediainput.h"

#include <QTemporaryDir>
#include <QTest>

#include <dlfcn.h>
#include <dvdread/dvd_reader.h>

#include <set>

extern "C" {
#include <libavformat/avformat.h>
}

using namespace Qt::StringLiterals;

namespace {

// Read errors put on sectors of the title VOBs.
struct
{
    std::set<int> bad;   // fail every time
    std::set<int> flaky; // fail the first time only
    int reads = 0;
} faults;

} // namespace

// The reader's calls come here before they reach libdvdread.
extern "C" ssize_t DVDReadBlocks(dvd_file_t *file, int sector, size_t count, unsigned char *data)
{
    using Read = ssize_t (*)(dvd_file_t *, int, size_t, unsigned char *);
    static const auto real = reinterpret_cast<Read>(dlsym(RTLD_NEXT, "DVDReadBlocks"));
    ++faults.reads;
    for (int s = sector; s < sector + int(count); ++s) {
        if (faults.bad.count(s) || faults.flaky.erase(s))
            return -1;
    }
    return real(file, sector, count, data);
}

namespace {

// The title's blocks cut out of the VOB by hand, less those past its end and
// those on sectors that `lost` names; `skipped` counts those left out.
QByteArray readableBytes(const QString &videoTs, int pgc,
                         const std::function<bool(quint32)> &lost = {}, qint64 *skipped = nullptr)
{
    IfoRecord record;
    QFile vob(videoTs + u"/VTS_01_1.VOB"_s);
    if (ifoParse(QFile::encodeName(videoTs + u"/VTS_01_0.IFO"_s).toStdString(), &record) <= pgc
        || !vob.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes;
    qint64 left = 0;
    for (const IfoCell &cell : record.pgcs[size_t(pgc)].cells) {
        for (quint32 sector = cell.start_lba; sector <= cell.end_lba; ++sector) {
            if ((lost && lost(sector)) || (qint64(sector) + 1) * 2048 > vob.size()) {
                ++left;
                continue;
            }
            vob.seek(qint64(sector) * 2048);
            bytes += vob.read(2048);
        }
    }
    if (skipped)
        *skipped = left;
    return bytes;
}

// All the reader gives; `end` is the last read's result, 0 or -1.
QByteArray readAll(DvdTitleReader &reader, int chunk, qint64 *end = nullptr)
{
    QByteArray all;
    QByteArray buffer(chunk, Qt::Uninitialized);
    qint64 n = 0;
    while ((n = reader.read(buffer.data(), chunk)) > 0)
        all += buffer.left(int(n));
    if (end)
        *end = n;
    return n == 0 || end ? all : QByteArray();
}

} // namespace

class TestDvdTitleReader : public QObject
{
    Q_OBJECT

    QString fixtures;
    QString videoTs;
    QString ifo;

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(fixtures);
        videoTs = fixture(fixtures, "dvd-main/VIDEO_TS");
        ifo = videoTs + u"/VTS_01_0.IFO"_s;
    }

    void readsTheCells_data()
    {
        QTest::addColumn<int>("pgc");
        QTest::addColumn<int>("chunk");
        // Chunks that end inside blocks, and reads longer than the internal buffer.
        QTest::newRow("red, four cells, odd chunks") << 0 << 5001;
        QTest::newRow("blue, one cell") << 1 << 2048;
        QTest::newRow("red again, large reads") << 6 << 300000;
        QTest::newRow("short title") << 4 << 777;
    }

    void readsTheCells()
    {
        QFETCH(int, pgc);
        QFETCH(int, chunk);
        const QByteArray expected = readableBytes(videoTs, pgc);
        QVERIFY(!expected.isEmpty());
        DvdTitleReader reader;
        QVERIFY(reader.open(ifo, pgc));
        QCOMPARE(reader.size(), qint64(expected.size()));
        QVERIFY(readAll(reader, chunk) == expected);
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

    void refusesBadTitles_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("pgc");
        QTest::newRow("negative PGC") << ifo << -1;
        QTest::newRow("PGC past the end") << ifo << 7;
        QTest::newRow("missing IFO") << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_02_0.IFO") << 0;
        QTest::newRow("a media file") << fixture(fixtures, "movie.mkv") << 0;
    }

    void refusesBadTitles()
    {
        QFETCH(QString, path);
        QFETCH(int, pgc);
        DvdTitleReader reader;
        QVERIFY(!reader.open(path, pgc));
        QVERIFY(!reader.isOpen());
        char byte = 0;
        QCOMPARE(reader.read(&byte, 1), qint64(-1));
        QCOMPARE(reader.size(), qint64(0));
    }

    void skipsUnreadableBlocks_data()
    {
        QTest::addColumn<int>("first"); // the unreadable sectors
        QTest::addColumn<int>("last");
        QTest::addColumn<bool>("flaky");
        QTest::addColumn<QString>("failure");
        // PGC 0 is sectors 0-96 in four cells: 0-20, 21-57, 58-79, 80-96.
        QTest::newRow("one block") << 30 << 30 << false << QString();
        QTest::newRow("a block that reads the second time") << 30 << 30 << true << QString();
        QTest::newRow("the first block") << 0 << 0 << false << QString();
        QTest::newRow("a run across two cells") << 15 << 30 << false << QString();
        QTest::newRow("more than one whole read") << 2 << 75 << false << QString();
        QTest::newRow("the end of the title")
            << 90 << 96 << false << u"unreadable from sector 90 to the end of the title"_s;
    }

    void skipsUnreadableBlocks()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(bool, flaky);
        QFETCH(QString, failure);
        qint64 skipped = 0;
        const QByteArray expected = readableBytes(
            videoTs, 0, [&](quint32 s) { return !flaky && int(s) >= first && int(s) <= last; },
            &skipped);
        DvdTitleReader reader;
        QVERIFY(reader.open(ifo, 0));
        faults.reads = 0;
        readAll(reader, 5001);
        const int cleanReads = faults.reads;
        QVERIFY(reader.seek(0));
        faults.reads = 0;
        for (int s = first; s <= last; ++s)
            (flaky ? faults.flaky : faults.bad).insert(s);
        qint64 end = 0;
        const QByteArray got = readAll(reader, 5001, &end);
        faults.bad.clear();
        faults.flaky.clear();

        QCOMPARE(reader.skippedBlocks(), skipped);
        QCOMPARE(reader.errorString(), failure);
        QCOMPARE(end, failure.isEmpty() ? 0 : -1);
        // A passing error costs one read more, not a read for each block.
        if (flaky)
            QCOMPARE(faults.reads, cleanReads + 1);
        QVERIFY(got == expected);
        // A failed title stays failed until a seek.
        char byte;
        QCOMPARE(reader.read(&byte, 1), failure.isEmpty() ? 0 : -1);
    }

    void cellsBeyondTheVobs_data()
    {
        QTest::addColumn<int>("pgc");
        QTest::addColumn<qint64>("vobSize"); // the VOB cut to this many bytes
        QTest::addColumn<int>("stretch");    // blocks added to the PGC's first cell
        QTest::addColumn<QString>("failure");
        // The VOB holds 180 blocks; PGC 0 is sectors 0-96 and PGC 5 158-179.
        const QString from = u"unreadable from sector %1 to the end of the title"_s;
        QTest::newRow("VOB cut inside the title") << 0 << 90 * 2048LL << 0 << from.arg(90);
        QTest::newRow("VOB cut inside a block") << 5 << 170 * 2048LL - 100 << 0 << from.arg(169);
        QTest::newRow("VOB cut before the title")
            << 5 << 150 * 2048LL << 0 << u"the title lies beyond the end of its VOB files"_s;
        QTest::newRow("cell past the VOB, then cells in it")
            << 0 << 180 * 2048LL << 1200 << QString();
        QTest::newRow("more than 4 MiB past the VOB")
            << 0 << 180 * 2048LL << 3000 << u"2841 blocks in a row unreadable from sector 180"_s;
    }

    // A shortened VOB or a cell that ends past it: the blocks past the end
    // count as unreadable, never as the end of the title.
    void cellsBeyondTheVobs()
    {
        QFETCH(int, pgc);
        QFETCH(qint64, vobSize);
        QFETCH(int, stretch);
        QFETCH(QString, failure);
        QTemporaryDir dir;
        const QString copy = copyDisc(videoTs, dir.path());
        QVERIFY(!copy.isEmpty());
        QVERIFY(QFile::resize(copy + u"/VTS_01_1.VOB"_s, vobSize));
        if (stretch > 0) {
            QVERIFY(changeFile(copy + u"/VTS_01_0.IFO"_s, [&](QByteArray &ifo) {
                const int lastSector = cellTableOfPgc(ifo, pgc) + 20;
                setIfoField(ifo, lastSector, 4, ifoField(ifo, lastSector, 4) + quint32(stretch));
            }));
            QVERIFY(QFile::remove(copy + u"/VTS_01_0.BUP"_s));
        }

        DvdTitleReader reader;
        if (!reader.open(copy + u"/VTS_01_0.IFO"_s, pgc)) {
            QCOMPARE(reader.errorString(), failure);
            return;
        }
        qint64 skipped = 0;
        const QByteArray expected = readableBytes(copy, pgc, {}, &skipped);
        qint64 end = 0;
        const QByteArray got = readAll(reader, 65536, &end);
        QCOMPARE(reader.errorString(), failure);
        QCOMPARE(end, failure.isEmpty() ? 0 : -1);
        if (failure.isEmpty())
            QCOMPARE(reader.skippedBlocks(), skipped);
        // A long run stops the title: what came before it is whole.
        QVERIFY(!got.isEmpty());
        QVERIFY(failure.isEmpty() ? got == expected : expected.startsWith(got));
    }

    void selectsTracksUnderTheDemuxer_data()
    {
        QTest::addColumn<int>("audioTrack");
        QTest::addColumn<int>("subtitle");
        QTest::addColumn<QString>("kept"); // stream ids that are not discarded
        QTest::newRow("everything") << -1 << -1 << u"e0 80 c0 20"_s;
        QTest::newRow("second audio track") << 1 << -1 << u"e0 c0 20"_s;
        QTest::newRow("first audio, the subtitle") << 0 << 0 << u"e0 80 20"_s;
        QTest::newRow("missing subtitle") << 0 << 3 << u"e0 80"_s;
    }

    void selectsTracksUnderTheDemuxer()
    {
        QFETCH(int, audioTrack);
        QFETCH(int, subtitle);
        QFETCH(QString, kept);
        TitleSelection selection;
        selection.pgc = 0;
        selection.audioTrack = audioTrack;
        selection.subtitle = subtitle;
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
        QCOMPARE(ids.join(u' '), kept);
    }
};

QTEST_GUILESS_MAIN(TestDvdTitleReader)
#include "tst_dvdtitlereader.moc"
