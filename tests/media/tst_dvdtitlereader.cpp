#include "dvdtitlereader.h"
#include "ifoparse.h"
#include "mediafixtures.h"
#include "mediainput.h"

#include <QFile>
#include <QTest>

extern "C" {
#include <libavformat/avformat.h>
}

namespace {

// The title's bytes cut out of the VOB file by hand, from the parsed cells.
QByteArray expectedBytes(const QString &videoTs, int pgc)
{
    IfoRecord record;
    if (ifoParse(QFile::encodeName(videoTs + QStringLiteral("/VTS_01_0.IFO")).toStdString(),
                 &record)
        <= pgc)
        return {};
    QFile vob(videoTs + QStringLiteral("/VTS_01_1.VOB"));
    if (!vob.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes;
    for (const IfoCell &cell : record.pgcs[size_t(pgc)].cells) {
        vob.seek(qint64(cell.start_lba) * 2048);
        bytes += vob.read(qint64(cell.end_lba - cell.start_lba + 1) * 2048);
    }
    return bytes;
}

QByteArray readAll(DvdTitleReader &reader, int chunk)
{
    QByteArray all;
    QByteArray buffer(chunk, Qt::Uninitialized);
    qint64 n = 0;
    while ((n = reader.read(buffer.data(), chunk)) > 0)
        all += buffer.left(int(n));
    return n == 0 ? all : QByteArray();
}

} // namespace

class TestDvdTitleReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsTheCells_data();
    void readsTheCells();
    void seeks();
    void streamIds();
    void refusesBadTitles_data();
    void refusesBadTitles();
    void selectsTracksUnderTheDemuxer_data();
    void selectsTracksUnderTheDemuxer();

private:
    QString fixtures;
    QString videoTs;
};

void TestDvdTitleReader::initTestCase()
{
    fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the fixture script failed (ffmpeg, dvdauthor, spumux?)");
    videoTs = fixture(fixtures, "dvd-main/VIDEO_TS");
}

void TestDvdTitleReader::readsTheCells_data()
{
    QTest::addColumn<int>("pgc");
    QTest::addColumn<int>("chunk");

    // Chunks that end inside blocks, and reads longer than the internal buffer.
    QTest::newRow("red, four cells, odd chunks") << 0 << 5001;
    QTest::newRow("blue, one cell") << 1 << 2048;
    QTest::newRow("red again, large reads") << 6 << 300000;
    QTest::newRow("short title") << 4 << 777;
}

void TestDvdTitleReader::readsTheCells()
{
    QFETCH(int, pgc);
    QFETCH(int, chunk);

    const QByteArray expected = expectedBytes(videoTs, pgc);
    QVERIFY(!expected.isEmpty());
    DvdTitleReader reader;
    QVERIFY(reader.open(videoTs + QStringLiteral("/VTS_01_0.IFO"), pgc));
    QCOMPARE(reader.size(), qint64(expected.size()));
    const QByteArray got = readAll(reader, chunk);
    QCOMPARE(got.size(), expected.size());
    QVERIFY(got == expected);
    QCOMPARE(reader.pos(), reader.size());
}

void TestDvdTitleReader::seeks()
{
    const QByteArray expected = expectedBytes(videoTs, 0);
    DvdTitleReader reader;
    QVERIFY(reader.open(videoTs + QStringLiteral("/VTS_01_0.IFO"), 0));
    char buffer[10000];
    for (const qint64 at : {expected.size() / 2 + 7LL, 3LL, expected.size() - 100LL, 0LL}) {
        QVERIFY(reader.seek(at));
        const qint64 n = reader.read(buffer, sizeof buffer);
        QCOMPARE(n, std::min<qint64>(sizeof buffer, expected.size() - at));
        QVERIFY(QByteArray(buffer, int(n)) == expected.mid(int(at), int(n)));
    }
    QVERIFY(reader.seek(reader.size()));
    QCOMPARE(reader.read(buffer, 10), qint64(0));
    QVERIFY(!reader.seek(reader.size() + 1));
    QVERIFY(!reader.seek(-1));
}

void TestDvdTitleReader::streamIds()
{
    DvdTitleReader reader;
    QVERIFY(reader.open(videoTs + QStringLiteral("/VTS_01_0.IFO"), 0));
    QCOMPARE(reader.audioStreamId(0), 0x80);
    QCOMPARE(reader.audioStreamId(1), 0xc0);
    QCOMPARE(reader.audioStreamId(2), -1);
    QCOMPARE(reader.subtitleStreamId(0), 0x20);
    QCOMPARE(reader.subtitleStreamId(-1), -1);
    QVERIFY(reader.open(videoTs + QStringLiteral("/VTS_01_0.IFO"), 1));
    QCOMPARE(reader.subtitleStreamId(0), -1);
}

void TestDvdTitleReader::refusesBadTitles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("pgc");

    const QString ifo = fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO");
    QTest::newRow("negative PGC") << ifo << -1;
    QTest::newRow("PGC past the end") << ifo << 7;
    QTest::newRow("missing IFO") << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_02_0.IFO") << 0;
    QTest::newRow("a media file") << fixture(fixtures, "movie.mkv") << 0;
}

void TestDvdTitleReader::refusesBadTitles()
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

void TestDvdTitleReader::selectsTracksUnderTheDemuxer_data()
{
    QTest::addColumn<int>("audioTrack");
    QTest::addColumn<int>("subtitle");
    QTest::addColumn<QString>("kept"); // stream ids that are not discarded

    QTest::newRow("everything") << -1 << -1 << "e0 80 c0 20";
    QTest::newRow("second audio track") << 1 << -1 << "e0 c0 20";
    QTest::newRow("first audio, the subtitle") << 0 << 0 << "e0 80 20";
    QTest::newRow("missing subtitle") << 0 << 3 << "e0 80";
}

void TestDvdTitleReader::selectsTracksUnderTheDemuxer()
{
    QFETCH(int, audioTrack);
    QFETCH(int, subtitle);
    QFETCH(QString, kept);

    TitleSelection selection;
    selection.pgc = 0;
    selection.audioTrack = audioTrack;
    selection.subtitle = subtitle;
    int error = 0;
    const FormatContextPtr context
        = openMediaInput(videoTs + QStringLiteral("/VTS_01_0.IFO"), QString(), selection, &error);
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
    QCOMPARE(ids.join(QLatin1Char(' ')), kept);
}

QTEST_GUILESS_MAIN(TestDvdTitleReader)
#include "tst_dvdtitlereader.moc"
