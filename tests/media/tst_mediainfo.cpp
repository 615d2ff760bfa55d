#include "dvddisc.h"
#include "ffmpegtools.h"
#include "mediafixtures.h"
#include "mediaimagereader.h"
#include "mediainfo.h"
#include "tasklist.h"

#include <QColor>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <cmath>
#include <future>
#include <thread>

using Logical::MediaImageReader;

using namespace Qt::StringLiterals;

namespace {

// "index:language:rate:channels:codec" per audio stream, then "| index:language"
// per subtitle stream, then "| start-end:name" per chapter.
QString streams(const MediaInfo &info)
{
    QStringList audio, subtitles, chapters;
    for (const AudioStreamInfo &stream : info.audioStreams)
        audio << u"%1:%2:%3:%4:%5"_s.arg(stream.index)
                     .arg(stream.language)
                     .arg(stream.sampleRate)
                     .arg(stream.channels)
                     .arg(stream.codec);
    for (const SubtitleStreamInfo &subtitle : info.subtitleStreams)
        subtitles << u"%1:%2"_s.arg(subtitle.index).arg(subtitle.language);
    for (const MediaChapter &chapter : info.chapters)
        chapters << u"%1-%2:%3"_s.arg(chapter.start, 0, 'g', 4)
                        .arg(chapter.end, 0, 'g', 4)
                        .arg(chapter.name);
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
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

} // namespace

// What is known of files and disc titles, their stills, and the reader that
// grabs those as thumbnails.
class TestMediaInfo : public QObject
{
    Q_OBJECT

    QString fixtures;
    QTemporaryDir scratch;
    QString main() const { return fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"); }
    QString ntsc() const { return fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"); }
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
        disc = loadDisc(main());
        ntscDisc = loadDisc(ntsc(), 0);
        QVERIFY(disc && disc->titles.size() == 3 && ntscDisc);
        reader()->setTaskList(&list);
        placeholder.fill(Qt::darkGray);
        audioPlaceholder.fill(Qt::darkGreen);
        reader()->setVideoImage(placeholder);
        reader()->setAudioImage(audioPlaceholder);
        QCOMPARE(QThreadPool::globalInstance()->maxThreadCount(), 1);
        connect(reader(), qOverload<int>(&MediaImageReader::imageChanged), this,
                [this](int) { deliveries.append(QThread::currentThread()); });
        connect(reader(), qOverload<int, int>(&MediaImageReader::imageChanged), this,
                [this](int, int) { deliveries.append(QThread::currentThread()); });
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
        row("red title", main(), 4.8, "mpeg2video 720x576@25 1.333",
            "128::48000:2:ac3 192::48000:2:mp2 | 32: | ", 0);
        row("blue title", main(), 2.4, "mpeg2video 720x576@25 1.333",
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
        const auto write = [this](const char *name, const QByteArray &data) {
            return writeFile(scratch.filePath(QLatin1String(name)), data);
        };
        row("picture", u"picture.png"_s, -1);
        row("empty file", write("empty.mkv", {}), -1);
        row("random bytes", write("noise.mp4", randomBytes(64 * 1024, 99)), -1);
        row("text", write("notes.avi", "just some text\n"), -1);
        row("missing", scratch.filePath(u"missing.mkv"_s), -1);
        row("a folder", fixtures, -1);
        row("PGC past the end", main(), -1, "", " |  | ", 7);
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
            QCOMPARE(u"%1 %2x%3@%4 %5"_s.arg(info.videoCodec)
                         .arg(info.width)
                         .arg(info.height)
                         .arg(info.frameRate)
                         .arg(info.displayAspect, 0, 'g', 4),
                     video);
        QCOMPARE(::streams(info), streams);
        QVERIFY(info.allCodecsKnown);
        QVERIFY(info.forcedFormat.isEmpty());
        if (info.hasVideo)
            return;
        QTest::ignoreMessage(
            QtDebugMsg,
            QRegularExpression(u"^MediaInfo\\(\\d+\\): GetPictureFromVideo\\(.*\\) x$"_s));
        QVERIFY(GetPictureFromVideo(path, pgc, 1.0).isNull());
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
        // A title needs a length.
        DvdTitle empty;
        empty.disc = disc.get();
        empty.range = std::make_unique<DvdChapter>();
        QCOMPARE(info.LoadTitle(empty), -1);
        empty.range->end = 0.5;
        QCOMPARE(info.LoadTitle(empty), 0);
        QCOMPARE(info.duration, 0.5);
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
        QVERIFY(redChild >= 0 && toneChild >= 0 && blueChild >= 0);
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
        QThreadPool::globalInstance()->waitForDone();
        QTest::qWait(50);
        QCOMPARE(changed.count(), 0);
        QVERIFY(list.byId(later)->thumbnails.isEmpty());
        QVERIFY(list.byId(queued)->thumbnails.isEmpty());
    }
};

QTEST_MAIN(TestMediaInfo)
#include "tst_mediainfo.moc"
