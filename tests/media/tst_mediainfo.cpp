#include "dvddisc.h"
#include "mediafixtures.h"
#include "mediainfo.h"

#include <QColor>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cmath>

namespace {

QString audioText(const MediaInfo &info)
{
    QStringList streams;
    for (const AudioStreamInfo &audio : info.audioStreams)
        streams << QStringLiteral("%1:%2:%3:%4:%5")
                       .arg(audio.index)
                       .arg(audio.language)
                       .arg(audio.sampleRate)
                       .arg(audio.channels)
                       .arg(audio.codec);
    return streams.join(QLatin1Char(' '));
}

QString subtitleText(const MediaInfo &info)
{
    QStringList streams;
    for (const SubtitleStreamInfo &subtitle : info.subtitleStreams)
        streams << QStringLiteral("%1:%2").arg(subtitle.index).arg(subtitle.language);
    return streams.join(QLatin1Char(' '));
}

QString chapterText(const MediaInfo &info)
{
    QStringList chapters;
    for (const MediaChapter &chapter : info.chapters)
        chapters << QStringLiteral("%1-%2:%3")
                        .arg(chapter.start, 0, 'g', 4)
                        .arg(chapter.end, 0, 'g', 4)
                        .arg(chapter.name);
    return chapters.join(QLatin1Char(' '));
}

// Mean difference per channel of two pictures of one size.
double difference(const QImage &a, const QImage &b)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB888);
    const QImage y = b.convertToFormat(QImage::Format_RGB888);
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        const uchar *p = x.constScanLine(row);
        const uchar *q = y.constScanLine(row);
        for (int i = 0; i < x.width() * 3; ++i)
            sum += std::abs(int(p[i]) - int(q[i]));
    }
    return sum / (x.width() * x.height() * 3);
}

QString writeBytes(const QTemporaryDir &dir, const QString &name, const QByteArray &data)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
        return {};
    return path;
}

} // namespace

class TestMediaInfo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void probe_data();
    void probe();
    void probeRefusesBadFiles_data();
    void probeRefusesBadFiles();
    void loadTitle_data();
    void loadTitle();
    void loadTitleNeedsALength();
    void probeTitleThroughTheReader();
    void derivedValues();
    void stillMatchesFfmpeg();
    void stillOfATitle_data();
    void stillOfATitle();
    void stillOfMovingPicture();
    void stillOfATurnedClipIsUpright();
    void stillFailures_data();
    void stillFailures();
    void stillWaitsForTheMediaLock();
    void subtitleLanguages_data();
    void subtitleLanguages();

private:
    QString fixtures;
    QTemporaryDir scratch;
};

void TestMediaInfo::initTestCase()
{
    fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the fixture script failed (ffmpeg, dvdauthor, spumux?)");
    QVERIFY(scratch.isValid());
}

void TestMediaInfo::probe_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<double>("duration");
    QTest::addColumn<QString>("video"); // "codec WxH@fps aspect" as shown, empty for none
    QTest::addColumn<QString>("audio");
    QTest::addColumn<QString>("subtitles");
    QTest::addColumn<QString>("chapters");

    QTest::newRow("Matroska") << fixture(fixtures, "movie.mkv") << 3.0 << "mpeg4 320x240@25 0"
                              << "1:eng:48000:2:mp2 2:fre:44100:1:ac3"
                              << "3:ger"
                              << "0-1.5:Opening 1.5-3:Chapter_2";
    QTest::newRow("MP4") << fixture(fixtures, "clip.mp4") << 2.0 << "mpeg4 160x120@30 0"
                         << "1:und:44100:1:aac"
                         << ""
                         << "";
    // Pixels that are not square: the shape comes from their aspect.
    QTest::newRow("16:9 MP4") << fixture(fixtures, "wide.mp4") << 1.0 << "mpeg4 720x576@25 1.778"
                              << ""
                              << ""
                              << "";
    QTest::newRow("4:3 MPEG-PS") << fixture(fixtures, "narrow.mpg") << 1.0
                                 << "mpeg2video 720x576@25 1.333"
                                 << ""
                                 << ""
                                 << "";
    QTest::newRow("turned a quarter")
        << fixture(fixtures, "turned.mp4") << 1.0 << "mpeg4 240x320@25 0"
        << ""
        << ""
        << "";
    // Program streams whose timestamps start again: the walk through them
    // counts what plays.
    QTest::newRow("recorder VOB, clock set back")
        << fixture(fixtures, "recorder.vob") << 20.0 << "mpeg2video 352x288@25 0"
        << "1::48000:1:mp2"
        << ""
        << "";
    QTest::newRow("VOB of a disc, cells from 0 each")
        << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_1.VOB") << 8.8
        << "mpeg2video 720x576@25 1.333"
        << "2::48000:2:ac3 3::48000:2:mp2"
        << "4:"
        << "";
    QTest::newRow("audio only") << fixture(fixtures, "tone.flac") << 2.5 << ""
                                << "0::44100:1:flac"
                                << ""
                                << "";
}

void TestMediaInfo::probe()
{
    QFETCH(QString, path);
    QFETCH(double, duration);
    QFETCH(QString, video);
    QFETCH(QString, audio);
    QFETCH(QString, subtitles);
    QFETCH(QString, chapters);

    MediaInfo info;
    QCOMPARE(info.Load(path), 0);
    QVERIFY2(std::abs(info.duration - duration) < 0.1, qPrintable(QString::number(info.duration)));
    QCOMPARE(info.hasVideo, !video.isEmpty());
    if (info.hasVideo)
        QCOMPARE(QStringLiteral("%1 %2x%3@%4 %5")
                     .arg(info.videoCodec)
                     .arg(info.width)
                     .arg(info.height)
                     .arg(info.frameRate)
                     .arg(info.displayAspect, 0, 'g', 4),
                 video);
    QCOMPARE(audioText(info), audio);
    QCOMPARE(subtitleText(info), subtitles);
    QCOMPARE(chapterText(info), chapters);
    QVERIFY(info.allCodecsKnown);
    QVERIFY(info.forcedFormat.isEmpty());
}

void TestMediaInfo::probeRefusesBadFiles_data()
{
    QTest::addColumn<QString>("path");

    QByteArray noise(64 * 1024, Qt::Uninitialized);
    QRandomGenerator generator(99);
    for (char &byte : noise)
        byte = char(generator.generate());
    QTest::newRow("picture without duration") << fixture(fixtures, "picture.png");
    QTest::newRow("empty file") << writeBytes(scratch, QStringLiteral("empty.mkv"), {});
    QTest::newRow("random bytes") << writeBytes(scratch, QStringLiteral("noise.mp4"), noise);
    QTest::newRow("text") << writeBytes(scratch, QStringLiteral("notes.avi"), "just some text\n");
    QTest::newRow("missing") << scratch.filePath(QStringLiteral("missing.mkv"));
    QTest::newRow("a folder") << fixtures;
}

void TestMediaInfo::probeRefusesBadFiles()
{
    QFETCH(QString, path);

    MediaInfo info;
    info.audioStreams.push_back({});
    QCOMPARE(info.Load(path), -1);
    QVERIFY(info.audioStreams.empty());
}

void TestMediaInfo::loadTitle_data()
{
    QTest::addColumn<QString>("ifo");
    QTest::addColumn<int>("title");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("chapters");

    const QString main = fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO");
    QTest::newRow("three chapters") << main << 0
                                    << "4.8s MPEG-2 720x576@25 1.333 | en AC3 2ch:48000:2:AC3 fr "
                                       "MPEG-1 2ch:48000:2:AC3 | de Normal"
                                    << "0-1.2:Chapter_1 1.2-3:Chapter_2 3-4.2:Chapter_3";
    QTest::newRow("one chapter gives none")
        << main << 1
        << "2.4s MPEG-2 720x576@25 1.333 | en AC3 2ch:48000:2:AC3 fr MPEG-1 2ch:48000:2:AC3 | "
        << "";
    QTest::newRow("NTSC 16:9")
        << fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO") << 0
        << "3.003s MPEG-2 720x480@30 1.778 | ja AC3 2ch:48000:2:AC3 es MPEG-1 2ch:48000:2:AC3 | "
        << "0-1.201:Chapter_1 1.201-2.402:Chapter_2";
}

void TestMediaInfo::loadTitle()
{
    QFETCH(QString, ifo);
    QFETCH(int, title);
    QFETCH(QString, expected);
    QFETCH(QString, chapters);

    if (ifo.contains(QLatin1String("dvd-main")))
        QTest::ignoreMessage(QtDebugMsg, "drop 2 duplicate pgc.");
    const std::unique_ptr<DvdDisc> disc = LoadDvdDisc(ifo, false);
    QVERIFY(disc && int(disc->titles.size()) > title);
    MediaInfo info;
    QCOMPARE(info.LoadTitle(*disc->titles[size_t(title)]), 0);
    QVERIFY(info.hasVideo);
    QCOMPARE(info.videoBitRate, 0);
    QStringList audio;
    for (const AudioStreamInfo &stream : info.audioStreams)
        audio << QStringLiteral("%1:%2:%3:%4")
                     .arg(stream.language)
                     .arg(stream.sampleRate)
                     .arg(stream.channels)
                     .arg(stream.codec);
    QStringList subtitles;
    for (const SubtitleStreamInfo &stream : info.subtitleStreams)
        subtitles << stream.language;
    const QString text = QStringLiteral("%1s %2 %3x%4@%5 %6 | %7 | %8")
                             .arg(info.duration, 0, 'g', 4)
                             .arg(info.videoCodec)
                             .arg(info.width)
                             .arg(info.height)
                             .arg(info.frameRate)
                             .arg(info.DisplayAspect(), 0, 'f', 3)
                             .arg(audio.join(QLatin1Char(' ')), subtitles.join(QLatin1Char(' ')));
    QCOMPARE(text, expected);
    QCOMPARE(chapterText(info), chapters);
}

void TestMediaInfo::loadTitleNeedsALength()
{
    DvdDisc disc;
    DvdTitle title;
    title.disc = &disc;
    title.range = std::make_unique<DvdChapter>();
    MediaInfo info;
    QCOMPARE(info.LoadTitle(title), -1);
    title.range->end = 0.5;
    QCOMPARE(info.LoadTitle(title), 0);
    QCOMPARE(info.duration, 0.5);
}

// The title reader under libavformat's MPEG-PS demuxer sees the streams the
// IFO announces, by their stream ids.
void TestMediaInfo::probeTitleThroughTheReader()
{
    const QString ifo = fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO");
    MediaInfo info;
    QCOMPARE(info.ProbeTitle(ifo, 0), 0);
    QVERIFY(info.hasVideo);
    QCOMPARE(QStringLiteral("%1 %2x%3@%4")
                 .arg(info.videoCodec)
                 .arg(info.width)
                 .arg(info.height)
                 .arg(info.frameRate),
             QStringLiteral("mpeg2video 720x576@25"));
    QVERIFY2(std::abs(info.duration - 4.8) < 0.3, qPrintable(QString::number(info.duration)));
    QCOMPARE(audioText(info), QStringLiteral("128::48000:2:ac3 192::48000:2:mp2"));
    QCOMPARE(subtitleText(info), QStringLiteral("32:"));

    QCOMPARE(info.ProbeTitle(ifo, 1), 0);
    QCOMPARE(subtitleText(info), QString());
    QCOMPARE(info.ProbeTitle(ifo, 7), -1);
    QCOMPARE(info.ProbeTitle(fixture(fixtures, "movie.mkv"), 0), -1);
}

void TestMediaInfo::derivedValues()
{
    MediaInfo info;
    info.width = 720;
    info.height = 576;
    QCOMPARE(info.DisplayAspect(), 1.25);
    QCOMPARE(info.AspectText(), QStringLiteral("1.25"));
    info.width = 640;
    info.height = 480;
    QCOMPARE(info.AspectText(), QStringLiteral("1.333"));
    info.displayAspect = 16.0 / 9.0;
    QCOMPARE(info.DisplayAspect(), 16.0 / 9.0);
    QCOMPARE(info.AspectText(), QStringLiteral("1.777"));
    info.audioStreams.push_back({});
    info.audioStreams[0].codec = QStringLiteral("ac3");
    QCOMPARE(info.audioCodec(0), QStringLiteral("ac3"));
    QCOMPARE(info.audioCodec(1), QString());
    QCOMPARE(info.audioCodec(-1), QString());
}

// A still of a picture that does not change, against ffmpeg's own scaling of
// its first frame.
void TestMediaInfo::stillMatchesFfmpeg()
{
    const QString clip = fixture(fixtures, "clip.mp4");
    const QString reference = scratch.filePath(QStringLiteral("reference.png"));
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
                  QStringLiteral("-y"), QStringLiteral("-i"), clip, QStringLiteral("-frames:v"),
                  QStringLiteral("1"), QStringLiteral("-vf"),
                  QStringLiteral("scale=96:72:flags=bicubic"), reference});
    QVERIFY(ffmpeg.waitForFinished(30000));
    QCOMPARE(ffmpeg.exitCode(), 0);
    const QImage expected(reference);
    QVERIFY(!expected.isNull());

    const QImage still = GetPictureFromVideo(clip, -1, 1.0);
    QCOMPARE(still.size(), QSize(96, 72));
    QCOMPARE(still.format(), QImage::Format_RGB888);
    const double diff = difference(still, expected);
    QVERIFY2(diff < 6.0, qPrintable(QStringLiteral("mean difference %1").arg(diff)));
}

void TestMediaInfo::stillOfATitle_data()
{
    QTest::addColumn<QString>("ifo");
    QTest::addColumn<int>("pgc");
    QTest::addColumn<QColor>("colour");

    const QString main = fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO");
    QTest::newRow("red") << main << 0 << QColor(Qt::red);
    QTest::newRow("blue") << main << 1 << QColor(Qt::blue);
    QTest::newRow("red again") << main << 6 << QColor(Qt::red);
    QTest::newRow("NTSC magenta") << fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO") << 0
                                  << QColor(Qt::magenta);
}

void TestMediaInfo::stillOfATitle()
{
    QFETCH(QString, ifo);
    QFETCH(int, pgc);
    QFETCH(QColor, colour);

    const QImage still = GetPictureFromVideo(ifo, pgc, 1.0);
    QCOMPARE(still.size(), QSize(96, 72));
    QImage expected(still.size(), QImage::Format_RGB888);
    expected.fill(colour);
    const double diff = difference(still, expected);
    QVERIFY2(diff < 12.0, qPrintable(QStringLiteral("mean difference %1").arg(diff)));
}

void TestMediaInfo::stillOfMovingPicture()
{
    const QImage still = GetPictureFromVideo(fixture(fixtures, "movie.mkv"), -1, 1.0);
    QCOMPARE(still.size(), QSize(96, 72));
    QSet<QRgb> colours;
    for (int y = 0; y < still.height(); y += 4)
        for (int x = 0; x < still.width(); x += 4)
            colours.insert(still.pixel(x, y));
    QVERIFY2(colours.size() > 20, "the still looks blank");
}

// The clip turns a quarter counter-clockwise for display: the red mark of
// the stored picture's top left corner is shown at the bottom left.
void TestMediaInfo::stillOfATurnedClipIsUpright()
{
    const QImage still = GetPictureFromVideo(fixture(fixtures, "turned.mp4"), -1, 0.5);
    QCOMPARE(still.size(), QSize(96, 72));
    QCOMPARE(still.format(), QImage::Format_RGB888);
    QStringList corners;
    for (const QPoint &corner : {QPoint(4, 4), QPoint(91, 4), QPoint(4, 67), QPoint(91, 67)})
        corners << (QColor(still.pixel(corner)).red() > 128 ? QStringLiteral("red")
                                                            : QStringLiteral("blue"));
    QCOMPARE(corners.join(QLatin1Char(' ')), QStringLiteral("blue blue red blue"));
}

void TestMediaInfo::stillFailures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("pgc");

    QTest::newRow("audio only") << fixture(fixtures, "tone.flac") << -1;
    QTest::newRow("one picture") << fixture(fixtures, "picture.png") << -1;
    QTest::newRow("PGC past the end") << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO") << 7;
    QTest::newRow("empty file") << writeBytes(scratch, QStringLiteral("empty.mp4"), {}) << -1;
    QTest::newRow("missing") << scratch.filePath(QStringLiteral("missing.mp4")) << -1;
}

void TestMediaInfo::stillFailures()
{
    QFETCH(QString, path);
    QFETCH(int, pgc);

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral(
                                         "^MediaInfo\\(\\d+\\): GetPictureFromVideo\\(.*\\) x$")));
    QVERIFY(GetPictureFromVideo(path, pgc, 1.0).isNull());
}

void TestMediaInfo::stillWaitsForTheMediaLock()
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

void TestMediaInfo::subtitleLanguages_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("languages");

    const QByteArray idx = "# VobSub index file, v7\nsize: 720x576\n"
                           "id: en, index: 0\ntimestamp: 00:00:01:000, filepos: 000000000\n"
                           "id: fr, index: 1\n";
    QTest::newRow("VobSub index") << writeBytes(scratch, QStringLiteral("movie.IDX"), idx)
                                  << QStringList{QStringLiteral("en"), QStringLiteral("fr")};
    QTest::newRow("SubRip") << writeBytes(scratch, QStringLiteral("movie.srt"), "1\n")
                            << QStringList{QString()};
    QTest::newRow("missing index") << scratch.filePath(QStringLiteral("gone.idx")) << QStringList();
}

void TestMediaInfo::subtitleLanguages()
{
    QFETCH(QString, path);
    QFETCH(QStringList, languages);

    QCOMPARE(GetSubtitleLanguages(path), languages);
}

QTEST_GUILESS_MAIN(TestMediaInfo)
#include "tst_mediainfo.moc"
