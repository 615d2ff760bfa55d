#include "ffmpegtools.h"
#include "mediafixtures.h"
#include "mediainfo.h"

#include <QColor>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// "index:language:rate:channels:codec" per audio stream, then "| index:language"
// per subtitle stream, then "| start-end:name" per chapter; a disc title's
// streams have no index.
QString streams(const MediaInfo &info, bool indexed = true)
{
    QStringList audio, subtitles, chapters;
    const auto index = [indexed](int i) {
        return indexed ? u"%1:"_s.arg(i) : QString();
    };
    for (const AudioStreamInfo &stream : info.audioStreams)
        audio << index(stream.index)
                     + u"%1:%2:%3:%4"_s.arg(stream.language)
                           .arg(stream.sampleRate)
                           .arg(stream.channels)
                           .arg(stream.codec);
    for (const SubtitleStreamInfo &subtitle : info.subtitleStreams)
        subtitles << index(subtitle.index) + subtitle.language;
    for (const MediaChapter &chapter : info.chapters)
        chapters << u"%1-%2:%3"_s.arg(chapter.start, 0, 'g', 4)
                        .arg(chapter.end, 0, 'g', 4)
                        .arg(chapter.name);
    return u"%1 | %2 | %3"_s.arg(audio.join(u' '), subtitles.join(u' '), chapters.join(u' '));
}

QString video(const MediaInfo &info)
{
    return u"%1 %2x%3@%4"_s.arg(info.videoCodec)
        .arg(info.width)
        .arg(info.height)
        .arg(info.frameRate);
}

// Mean difference per channel of two pictures of one size.
double difference(const QImage &a, const QImage &b)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB888);
    const QImage y = b.convertToFormat(QImage::Format_RGB888);
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int i = 0; i < x.width() * 3; ++i)
            sum += std::abs(int(x.constScanLine(row)[i]) - int(y.constScanLine(row)[i]));
    }
    return sum / (x.width() * x.height() * 3);
}

} // namespace

class TestMediaInfo : public QObject
{
    Q_OBJECT

    QString fixtures;
    QTemporaryDir scratch;
    QString main() const { return fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"); }
    QString ntsc() const { return fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"); }

private slots:
    void initTestCase() { REQUIRE_MEDIA_FIXTURES(fixtures); }

    void probe_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("pgc"); // a title of a disc, read through the title reader
        QTest::addColumn<double>("duration");
        QTest::addColumn<QString>("video"); // "codec WxH@fps aspect", empty for none
        QTest::addColumn<QString>("streams");
        const auto row = [this](const char *name, const char *path, double duration,
                                const char *video, const char *streams, int pgc = -1) {
            QTest::newRow(name) << fixture(fixtures, path) << pgc << duration
                                << QString::fromLatin1(video) << QString::fromLatin1(streams);
        };
        row("Matroska", "movie.mkv", 3.0, "mpeg4 320x240@25 0",
            "1:eng:48000:2:mp2 2:fre:44100:1:ac3 | 3:ger | 0-1.5:Opening 1.5-3:Chapter_2");
        row("MP4", "clip.mp4", 2.0, "mpeg4 160x120@30 0", "1:und:44100:1:aac |  | ");
        // Pixels that are not square: the shape comes from their aspect.
        row("16:9 MP4", "wide.mp4", 1.0, "mpeg4 720x576@25 1.778", " |  | ");
        row("4:3 MPEG-PS", "narrow.mpg", 1.0, "mpeg2video 720x576@25 1.333", " |  | ");
        row("turned a quarter", "turned.mp4", 1.0, "mpeg4 240x320@25 0", " |  | ");
        // Program streams whose timestamps start again: the walk through
        // them counts what plays.
        row("recorder VOB, clock set back", "recorder.vob", 20.0, "mpeg2video 352x288@25 0",
            "1::48000:1:mp2 |  | ");
        row("VOB of a disc, cells from 0 each", "dvd-main/VIDEO_TS/VTS_01_1.VOB", 8.8,
            "mpeg2video 720x576@25 1.333", "2::48000:2:ac3 3::48000:2:mp2 | 4: | ");
        row("audio only", "tone.flac", 2.5, "", "0::44100:1:flac |  | ");
        // Under libavformat's MPEG-PS demuxer the streams the IFO announces
        // appear by their stream ids.
        const char *ifo = "dvd-main/VIDEO_TS/VTS_01_0.IFO";
        row("red title", ifo, 4.8, "mpeg2video 720x576@25 1.333",
            "128::48000:2:ac3 192::48000:2:mp2 | 32: | ", 0);
        row("blue title", ifo, 2.4, "mpeg2video 720x576@25 1.333",
            "128::48000:2:ac3 192::48000:2:mp2 |  | ", 1);
    }

    void probe()
    {
        QFETCH(QString, path);
        QFETCH(int, pgc);
        QFETCH(double, duration);
        QFETCH(QString, video);
        QFETCH(QString, streams);
        MediaInfo info;
        QCOMPARE(pgc < 0 ? info.Load(path) : info.ProbeTitle(path, pgc), 0);
        QVERIFY2(std::abs(info.duration - duration) < (pgc < 0 ? 0.1 : 0.3),
                 qPrintable(QString::number(info.duration)));
        QCOMPARE(info.hasVideo, !video.isEmpty());
        if (info.hasVideo)
            QCOMPARE(::video(info) + u' ' + QString::number(info.displayAspect, 'g', 4), video);
        QCOMPARE(::streams(info), streams);
        QVERIFY(info.allCodecsKnown);
        QVERIFY(info.forcedFormat.isEmpty());
    }

    void badFiles_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("pgc");
        QTest::addColumn<bool>("probes"); // as a file with a duration, though it has no picture
        const auto write = [this](const char *name, const QByteArray &data) {
            return writeFile(scratch.filePath(QLatin1String(name)), data);
        };
        QTest::newRow("picture") << fixture(fixtures, "picture.png") << -1 << false;
        QTest::newRow("empty file") << write("empty.mkv", {}) << -1 << false;
        QTest::newRow("random bytes")
            << write("noise.mp4", randomBytes(64 * 1024, 99)) << -1 << false;
        QTest::newRow("text") << write("notes.avi", "just some text\n") << -1 << false;
        QTest::newRow("missing") << scratch.filePath(u"missing.mkv"_s) << -1 << false;
        QTest::newRow("a folder") << fixtures << -1 << false;
        QTest::newRow("audio only") << fixture(fixtures, "tone.flac") << -1 << true;
        QTest::newRow("PGC past the end") << main() << 7 << false;
        QTest::newRow("a media file as a title") << fixture(fixtures, "movie.mkv") << 0 << false;
    }

    void badFiles()
    {
        QFETCH(QString, path);
        QFETCH(int, pgc);
        QFETCH(bool, probes);
        MediaInfo info;
        info.audioStreams.push_back({});
        if (pgc >= 0)
            QCOMPARE(info.ProbeTitle(path, pgc), -1);
        else if (!probes) {
            QCOMPARE(info.Load(path), -1);
            QVERIFY(info.audioStreams.empty());
        }
        QTest::ignoreMessage(
            QtDebugMsg,
            QRegularExpression(u"^MediaInfo\\(\\d+\\): GetPictureFromVideo\\(.*\\) x$"_s));
        QVERIFY(GetPictureFromVideo(path, pgc, 1.0).isNull());
    }

    void loadTitle_data()
    {
        QTest::addColumn<QString>("ifo");
        QTest::addColumn<int>("title");
        QTest::addColumn<QString>("expected");
        // The disc gives one set of sound attributes for all tracks.
        const QString tracks = u"en AC3 2ch:48000:2:AC3 fr MPEG-1 2ch:48000:2:AC3 | "_s;
        QTest::newRow("three chapters")
            << main() << 0
            << u"4.8s MPEG-2 720x576@25 1.333 "_s + tracks
                   + u"de Normal | 0-1.2:Chapter_1 1.2-3:Chapter_2 3-4.2:Chapter_3"_s;
        QTest::newRow("one chapter gives none")
            << main() << 1 << u"2.4s MPEG-2 720x576@25 1.333 "_s + tracks + u" | "_s;
        QTest::newRow("NTSC 16:9") << ntsc() << 0
                                   << u"3.003s MPEG-2 720x480@30 1.778 ja AC3 2ch:48000:2:AC3 "
                                      "es MPEG-1 2ch:48000:2:AC3 |  | 0-1.201:Chapter_1 "
                                      "1.201-2.402:Chapter_2"_s;
    }

    void loadTitle()
    {
        QFETCH(QString, ifo);
        QFETCH(int, title);
        QFETCH(QString, expected);
        const std::unique_ptr<DvdDisc> disc = loadDisc(ifo, ifo == main() ? 2 : 0);
        QVERIFY(disc && int(disc->titles.size()) > title);
        MediaInfo info;
        QCOMPARE(info.LoadTitle(*disc->titles[size_t(title)]), 0);
        QVERIFY(info.hasVideo);
        QCOMPARE(u"%1s %2 %3 "_s.arg(info.duration, 0, 'g', 4)
                         .arg(video(info))
                         .arg(info.DisplayAspect(), 0, 'f', 3)
                     + streams(info, false),
                 expected);

        // A title needs a length.
        DvdTitle empty;
        empty.disc = disc.get();
        empty.range = std::make_unique<DvdChapter>();
        QCOMPARE(info.LoadTitle(empty), -1);
        empty.range->end = 0.5;
        QCOMPARE(info.LoadTitle(empty), 0);
        QCOMPARE(info.duration, 0.5);
    }

    void derivedValues()
    {
        MediaInfo info;
        info.width = 720;
        info.height = 576;
        QCOMPARE(info.DisplayAspect(), 1.25);
        QCOMPARE(info.AspectText(), u"1.25"_s);
        info.width = 640;
        info.height = 480;
        QCOMPARE(info.AspectText(), u"1.333"_s);
        info.displayAspect = 16.0 / 9.0;
        QCOMPARE(info.DisplayAspect(), 16.0 / 9.0);
        QCOMPARE(info.AspectText(), u"1.777"_s);
        info.audioStreams.push_back({});
        info.audioStreams[0].codec = u"ac3"_s;
        QCOMPARE(info.audioCodec(0) + info.audioCodec(1) + info.audioCodec(-1), u"ac3"_s);
    }

    // A still of a picture that does not change, against ffmpeg's own
    // scaling of its first frame; and stills of the discs' plain colours.
    void stills_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("pgc");
        QTest::addColumn<QColor>("colour"); // none: the ffmpeg frame
        QTest::newRow("file") << fixture(fixtures, "clip.mp4") << -1 << QColor();
        QTest::newRow("red") << main() << 0 << QColor(Qt::red);
        QTest::newRow("blue") << main() << 1 << QColor(Qt::blue);
        QTest::newRow("red again") << main() << 6 << QColor(Qt::red);
        QTest::newRow("NTSC magenta") << ntsc() << 0 << QColor(Qt::magenta);
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
            expected.load(reference);
        }
        const QImage still = GetPictureFromVideo(path, pgc, 1.0);
        QCOMPARE(still.size(), QSize(96, 72));
        QCOMPARE(still.format(), QImage::Format_RGB888);
        const double diff = difference(still, expected);
        QVERIFY2(diff < (colour.isValid() ? 12.0 : 6.0), qPrintable(QString::number(diff)));
    }

    // The clip turns a quarter counter-clockwise for display: the red mark
    // of the stored picture's top left corner is shown at the bottom left.
    void stillOfATurnedClipIsUpright()
    {
        const QImage still = GetPictureFromVideo(fixture(fixtures, "turned.mp4"), -1, 0.5);
        QCOMPARE(still.size(), QSize(96, 72));
        QStringList corners;
        for (const QPoint &corner : {QPoint(4, 4), QPoint(91, 4), QPoint(4, 67), QPoint(91, 67)})
            corners << (QColor(still.pixel(corner)).red() > 128 ? u"red"_s : u"blue"_s);
        QCOMPARE(corners.join(u' '), u"blue blue red blue"_s);
    }

    void stillWaitsForTheMediaLock()
    {
        QImage still;
        LockMedia();
        std::unique_ptr<QThread> grabber(QThread::create(
            [&] { still = GetPictureFromVideo(fixture(fixtures, "clip.mp4"), -1, 0.5); }));
        grabber->start();
        const bool finishedWhileLocked = grabber->wait(300);
        UnlockMedia();
        QVERIFY(!finishedWhileLocked);
        QVERIFY(grabber->wait(30000));
        QVERIFY(!still.isNull());
    }

    void subtitleLanguages_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("languages");
        const QByteArray idx = "# VobSub index file, v7\nsize: 720x576\n"
                               "id: en, index: 0\ntimestamp: 00:00:01:000, filepos: 000000000\n"
                               "id: fr, index: 1\n";
        QTest::newRow("VobSub index")
            << writeFile(scratch.filePath(u"movie.IDX"_s), idx) << QStringList{u"en"_s, u"fr"_s};
        QTest::newRow("SubRip") << writeFile(scratch.filePath(u"movie.srt"_s), "1\n")
                                << QStringList{QString()};
        QTest::newRow("missing index") << scratch.filePath(u"gone.idx"_s) << QStringList();
    }

    void subtitleLanguages()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, languages);
        QCOMPARE(GetSubtitleLanguages(path), languages);
    }
};

QTEST_GUILESS_MAIN(TestMediaInfo)
#include "tst_mediainfo.moc"
