#include "encoderjob.h"
#include "ffmpegtools.h"
#include "filtertranslator.h"
#include "mediafixtures.h"
#include "utils.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace {

QStringList words(const QString &text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Zero crossings per second of the first channel: the tone's pitch, twice.
double crossingsPerSecond(const QString &file)
{
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 words(QStringLiteral("-v error -i %1 -ac 1 -ar 48000 -f s16le -").arg(file)));
    if (!ffmpeg.waitForFinished(30000))
        return -1;
    const QByteArray pcm = ffmpeg.readAllStandardOutput();
    const auto *samples = reinterpret_cast<const qint16 *>(pcm.constData());
    const int count = pcm.size() / 2;
    int crossings = 0;
    for (int i = 1; i < count; ++i)
        crossings += (samples[i - 1] < 0) != (samples[i] < 0);
    return count ? crossings * 48000.0 / count : -1;
}

} // namespace

class TestEncoderJob : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    // The argument list itself
    void titleListBecomesPipedInput();
    void mergedListBecomesJoin();
    void titleTrimIsDoneOnFrames();
    void codecsFittedToTheOutput_data();
    void codecsFittedToTheOutput();
    void badLists_data();
    void badLists();
    void soundApart_data();
    void soundApart();
    void soundApartLists();
    // Real conversions through kestrove-encoder
    void burntSubtitleShowsInItsIntervalOnly_data();
    void burntSubtitleShowsInItsIntervalOnly();
    void interlacedSourceComesOutWhole();
    void trimmedAndCroppedFile();
    void watermarkOnFile();
    void mergeDurationIsTheSum();
    void failuresSayWhyAndLeaveNoFakeResult_data();
    void failuresSayWhyAndLeaveNoFakeResult();
    void damagedDisc_data();
    void damagedDisc();
    void existingFileIsKeptWithoutOverwrite();
    void fullDiskRemovesTheUnfinishedFile_data();
    void fullDiskRemovesTheUnfinishedFile();
    void processorShareIsHeld();
    void soundApartKeepsTheSync();
    void failedSoundFailsTheFile();
    void terminationEndsBothEncoders();

private:
    int encode(const QStringList &arguments, QByteArray *log = nullptr);
    QString fixtures;
    QString ifo;
    QTemporaryDir dir;
};

void TestEncoderJob::initTestCase()
{
    fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
    ifo = fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO");
    QVERIFY(QFile::exists(ifo));
}

int TestEncoderJob::encode(const QStringList &arguments, QByteArray *log)
{
    return runTool(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder"),
                   arguments, log, dir.path(), 120000);
}

void TestEncoderJob::titleListBecomesPipedInput()
{
    // A disc title with the first audio track, no subtitle, the way the
    // program writes it.
    const QStringList list = words(QStringLiteral(
        "-y -ss 0 -pgc 0 -audio_track 0 -subtitle -1 -i /d/VIDEO_TS/VTS_01_0.IFO "
        "-vf scale=640:360,pad=640:480:0:60 -b:v 1200000 -r 29.97 -vcodec mpeg4 -threads 4 "
        "-aspect 1.33333 -ab 192k -ac 2 -ar 44100 -acodec libfaac /v/Title_1.mp4"));
    QString error;
    const auto job = EncoderJob::parse(list, &error);
    QVERIFY2(job, qPrintable(error));
    QCOMPARE(job->inputs.size(), 1);
    const EncoderInput &in = job->inputs.first();
    QCOMPARE(in.pgc, 0);
    QCOMPARE(in.audioTrack, 0);
    QCOMPARE(in.subtitle, -1);
    QCOMPARE(in.path, QStringLiteral("/d/VIDEO_TS/VTS_01_0.IFO"));
    QCOMPARE(in.videoChain, QStringLiteral("scale=640:360,pad=640:480:0:60"));
    QVERIFY(in.options.isEmpty());
    QVERIFY(job->overwrite);

    InputLayout layout;
    layout.audioSpecifier = QStringLiteral("i:0x80");
    QCOMPARE(job->ffmpegArguments({QStringLiteral("pipe:3")}, {layout}),
             words(QStringLiteral(
                 "-nostdin -y -probesize 50M -f mpeg -i pipe:3 "
                 "-vf bwdif=mode=send_frame:deint=interlaced,scale=640:360,pad=640:480:0:60,fps=29.97 "
                 "-map 0:v:0? -af aresample=async=1:first_pts=0 -map 0:i:0x80? -b:v 1200000 "
                 "-r 29.97 -c:v mpeg4 -threads 4 "
                 "-aspect 1.33333 -b:a 192k -ac 2 -ar 44100 -c:a aac /v/Title_1.mp4")));
}

void TestEncoderJob::mergedListBecomesJoin()
{
    const QStringList list
        = words(QStringLiteral("-y -ss 10 -t 50 -i /a.mkv -vf scale=320:240 -si -ss 0 -ast 1 -i "
                               "/b.mp4 -vf crop=10:10:2:2,scale=320:240 "
                               "-vol 512 -vcodec mpeg4 /o.mp4"));
    QString error;
    const auto job = EncoderJob::parse(list, &error);
    QVERIFY2(job, qPrintable(error));
    QCOMPARE(job->inputs.size(), 2);
    QCOMPARE(job->inputs[0].options, words(QStringLiteral("-ss 10 -t 50")));
    QVERIFY(job->inputs[1].options.isEmpty()); // a seek to 0 is left out
    QCOMPARE(job->inputs[1].audioStream, 1);
    QCOMPARE(job->inputs[1].videoChain, QStringLiteral("crop=10:10:2:2,scale=320:240"));

    InputLayout withAudio;
    withAudio.frameRate = QStringLiteral("25");
    InputLayout silent = withAudio;
    silent.hasAudio = false;
    silent.duration = 3;
    const QStringList args = job->ffmpegArguments(
        {QStringLiteral("/a.mkv"), QStringLiteral("/b.mp4")}, {withAudio, silent});
    const QString graph = args.value(args.indexOf(QStringLiteral("-filter_complex")) + 1);
    QCOMPARE(graph,
             QStringLiteral("[0:v:0]bwdif=mode=send_frame:deint=interlaced,scale=320:240,setsar=1,"
                            "format=yuv420p[v0];"
                            "[0:a:0]aresample=48000,aformat=channel_layouts=stereo[a0];"
                            "[1:v:0]bwdif=mode=send_frame:deint=interlaced,crop=10:10:2:2,"
                            "scale=320:240,setsar=1,format=yuv420p[v1];"
                            "anullsrc=r=48000:cl=stereo,atrim=duration=3[a1];"
                            "[v0][a0][v1][a1]concat=n=2:v=1:a=1[vout][acat];[acat]volume=2[aout]"));
    // One frame rate for the join when the profile gives none.
    QCOMPARE(args.mid(args.indexOf(QStringLiteral("-r")), 2), words(QStringLiteral("-r 25")));
    QVERIFY(args.contains(QStringLiteral("[vout]")));
}

void TestEncoderJob::titleTrimIsDoneOnFrames()
{
    // ffmpeg can't seek in a pipe: a title's -ss and -t move behind the input.
    const auto job = EncoderJob::parse(
        words(QStringLiteral(
            "-ss 1.5 -t 2 -pgc 1 -audio_track -1 -subtitle 0 -i /d.IFO -vf scale=8:8 o.mkv")),
        nullptr);
    QVERIFY(job);
    InputLayout layout;
    layout.subtitleSpecifier = QStringLiteral("i:0x20");
    const QStringList args = job->ffmpegArguments({QStringLiteral("pipe:3")}, {layout});
    QCOMPARE(args.mid(0, args.indexOf(QStringLiteral("-filter_complex"))),
             words(QStringLiteral(
                 "-nostdin -probesize 50M -ifo_palette /d.IFO -f mpeg -i pipe:3 -ss 1.5 -t 2")));
    QCOMPARE(args.value(args.indexOf(QStringLiteral("-filter_complex")) + 1),
             QStringLiteral("[0:v:0]bwdif=mode=send_frame:deint=interlaced[kb];"
                            "[kb][0:i:0x20]overlay=format=auto,scale=8:8[vout]"));
    QVERIFY2(!args.join(QLatin1Char(' ')).contains(QStringLiteral("0:a")),
             "no audio track was chosen");
}

void TestEncoderJob::codecsFittedToTheOutput_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("expected"); // must stand in ffmpeg's list
    QTest::addColumn<QString>("absent");
    QTest::addColumn<QString>("note");
    QTest::newRow("a seek to 0 is no seek")
        << "-ss 0 -i /a.mkv -vf scale=64:48 -vcodec mpeg4 /o.avi"
        << "-nostdin -i /a.mkv"
        << "-ss"
        << "";
    QTest::newRow("H.263 at a size it has") << "-i /a.mkv -vf scale=176:144 -vcodec h263 /o.3gp"
                                            << "-c:v h263"
                                            << "mpeg4"
                                            << "";
    QTest::newRow("H.263 at a size it lacks") << "-i /a.mkv -vf scale=320:240 -vcodec h263 /o.3gp"
                                              << "-c:v mpeg4"
                                              << "h263"
                                              << "H.263 has no 320x240";
    QTest::newRow("H.263 in MP4") << "-i /a.mkv -vf scale=176:144 -vcodec h263 /o.mp4"
                                  << "-c:v mpeg4"
                                  << "h263"
                                  << "MP4 files carry no H.263";
    QTest::newRow("RealVideo in steps of 16") << "-i /a.mkv -vf scale=854:480 -vcodec rv20 /o.rm"
                                              << "interlaced,scale=854:480,scale=848:480"
                                              << ""
                                              << "854x480 becomes 848x480";
    QTest::newRow("RealVideo beyond 1280x720") << "-i /a.mkv -vf scale=1920:1080 -vcodec rv10 /o.rm"
                                               << "interlaced,scale=1920:1080,scale=1280:720"
                                               << ""
                                               << "1920x1080 becomes 1280x720";
    QTest::newRow("MPEG-1 at a rate it lacks")
        << "-i /a.mkv -vf scale=320:240 -r 15 -vcodec mpeg1video /o.mpg"
        << "-r 24000/1001"
        << "-r 15"
        << "mpeg1video has no 15 frames a second";
    QTest::newRow("MPEG-2 at a rate it has, 4:2:0")
        << "-i /a.mkv -r 29.97 -vcodec mpeg2video /o.mpg"
        << "-r 29.97 -c:v mpeg2video -f vob -pix_fmt yuv420p"
        << ""
        << "";
    QTest::newRow("Video CD at its one rate")
        << "-i /a.mkv -vf scale=352:288 -r 15 -b:v 2000k -vcodec mpeg1video -ar 48000 -acodec mp2 /o.mpg"
        << "-r 25 -b:v 1150k -c:v mpeg1video -ar 44100 -c:a mp2 -f vcd -muxrate 1411200"
        << "2000k"
        << "VCD with 288 lines runs at 25 frames a second, not 15";
    QTest::newRow("DVD film rate kept, players' limits")
        << "-i /a.mkv -vf scale=720:480 -r 23.976 -vcodec mpeg2video -ar 44100 -acodec ac3 /o.vob"
        << "-r 23.976 -c:v mpeg2video -ar 48000 -c:a ac3 -f dvd -muxrate 10080k -packetsize 2048 -maxrate 9000k"
        << "-ar 44100"
        << "ac3 has no 44100 Hz sampling: 48000 Hz";
    QTest::newRow("H.264 level raised for the picture")
        << "-i /a.mkv -vf scale=1920:1080 -r 30 -vcodec h264 -level 3.0 /o.mp4"
        << "-level 4.0"
        << "-level 3.0"
        << "H.264 level 3.0 holds no 1920x1080 at 30 frames a second: level 4.0";
    QTest::newRow("PAL DV") << "-i /a.mkv -vf scale=720:576 -r 29.97 -ar 32000 -ac 6 /o.dv"
                            << "-r 25 -ar 48000 -ac 2"
                            << "32000"
                            << "DV with 576 lines runs at 25";
    QTest::newRow("NTSC DV keeps its rate, 4:1:1") << "-i /a.mkv -vf scale=720:480 -r 29.97 /o.dv"
                                                   << "-r 29.97 -pix_fmt yuv411p"
                                                   << ""
                                                   << "";
    QTest::newRow("DV50 as asked") << "-i /a.mkv -vf scale=720:480 -pix_fmt yuv422p /o.dv"
                                   << "-pix_fmt yuv422p"
                                   << "yuv411p"
                                   << "";
    QTest::newRow("H.264 baseline from any source")
        << "-i /a.mkv -vf scale=480:320 -vcodec libx264 -vprofile baseline /o.mp4"
        << "-profile:v baseline -pix_fmt yuv420p"
        << ""
        << "";
    QTest::newRow("H.264 main asked for 4:4:4")
        << "-i /a.mkv -vcodec libx264 -vprofile main -pix_fmt yuv444p /o.mp4"
        << "-pix_fmt yuv420p"
        << "yuv444p"
        << "libx264 main takes no yuv444p pictures: yuv420p instead";
    QTest::newRow("interlaced coding keeps the fields")
        << "-i /a.mkv -vf scale=720:576 -flags +ilme+ildct -vcodec mpeg2video /o.mpg"
        << "-vf scale=720:576"
        << "bwdif"
        << "";
    QTest::newRow("-deinterlace takes every frame")
        << "-i /a.mkv -vf scale=64:48 -deinterlace -vcodec mpeg4 /o.avi"
        << "-vf yadif,scale=64:48"
        << "bwdif"
        << "";
    QTest::newRow("a text subtitle on the file's time line")
        << "-ss 1.5 -subtitle 0 -i /a.mkv -vf scale=64:48 -vcodec mpeg4 /o.avi"
        << "interlaced,setpts=PTS+1.5/TB,subtitles=filename=/a.mkv:si=0,setpts=PTS-1.5/TB,scale"
        << "-filter_complex"
        << "";
    QTest::newRow("MP2 at a sampling rate it lacks")
        << "-i /a.mkv -ab 128k -ar 8000 -acodec mp2 /o.mp2"
        << "-ar 16000"
        << "8000"
        << "mp2 has no 8000 Hz sampling: 16000 Hz";
    QTest::newRow("MP2 bit rate over the half-rate table")
        << "-i /a.mkv -ab 192k -ar 22050 -acodec mp2 /o.mp2"
        << "-b:a 160k"
        << "192k"
        << "mp2 has no 192 kbit/s at 22050 Hz";
    QTest::newRow("MP3 in 5.1") << "-i /a.mkv -ab 192k -ac 6 -acodec mp3 /o.mkv"
                                << "-ac 2"
                                << "-ac 6"
                                << "libmp3lame takes at most 2 channels";
    QTest::newRow("AC-3 keeps 5.1") << "-i /a.mkv -ab 192k -ac 6 -acodec ac3 /o.mkv"
                                    << "-ac 6"
                                    << ""
                                    << "";
    QTest::newRow("RM's own audio at a rate AC-3 lacks") << "-i /a.mkv -ar 22050 -vn /o.ra"
                                                         << "-ar 32000"
                                                         << "22050"
                                                         << "ac3 has no";
    QTest::newRow("Vorbis by quality") << "-i /a.mkv -ab 192k -ar 22050 -acodec vorbis /o.ogg"
                                       << "-ar 22050 -c:a libvorbis -q:a 6"
                                       << "-b:a"
                                       << "quality 6";
    QTest::newRow("a title's sound on its time line")
        << "-pgc 0 -audio_track 0 -subtitle -1 -i /d/VTS_01_0.IFO -vcodec wmv2 -acodec wma7x /o.wmv"
        << "-af aresample=async=1:first_pts=0 -map 0:a:0?"
        << ""
        << "";
    QTest::newRow("picture series") << "-i /a.mkv -vf scale=64:48 -r 1/5 /p/shot%03d.gif"
                                    << "-c:v gif -f image2 /p/shot%03d.gif"
                                    << "0:a"
                                    << "";
}

void TestEncoderJob::codecsFittedToTheOutput()
{
    QFETCH(QString, list);
    QFETCH(QString, expected);
    QFETCH(QString, absent);
    QFETCH(QString, note);
    QString error;
    const auto job = EncoderJob::parse(words(list), &error);
    QVERIFY2(job, qPrintable(error));
    const QString args
        = job->ffmpegArguments({job->inputs.first().path}, {InputLayout()}).join(QLatin1Char(' '));
    QVERIFY2(args.contains(expected), qPrintable(args));
    if (!absent.isEmpty())
        QVERIFY2(!args.contains(absent), qPrintable(args));
    // The fitting's own lines, beside those that say how names were translated.
    const QStringList fits = job->notes.filter(
        QRegularExpression(QStringLiteral("^(?!option -|audio codec|video codec|flag |preset )")));
    QVERIFY2(fits.isEmpty() == note.isEmpty(), qPrintable(fits.join(QLatin1Char('\n'))));
    QVERIFY2(fits.join(QLatin1Char('\n')).contains(note), qPrintable(fits.join(QLatin1Char('\n'))));
}

void TestEncoderJob::soundApart_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("hasAudio");
    QTest::addColumn<bool>("apart");
    const QString tail
        = QStringLiteral("-vf scale=320:240 -vcodec libx264 -ab 128k -acodec libfaac /o.mp4");
    QTest::newRow("title with sound")
        << QStringLiteral("-pgc 0 -audio_track 0 -subtitle -1 -i /d/VTS_01_0.IFO ") + tail << true
        << true;
    QTest::newRow("title without a track")
        << QStringLiteral("-pgc 0 -audio_track -1 -subtitle -1 -i /d/VTS_01_0.IFO ") + tail << true
        << false;
    QTest::newRow("file with sound") << QStringLiteral("-i /a.mkv ") + tail << true << true;
    QTest::newRow("file without sound") << QStringLiteral("-i /a.mkv ") + tail << false << false;
    QTest::newRow("share of the processor")
        << QStringLiteral("-cpu_percent 50 -i /a.mkv ") + tail << true << false;
    QTest::newRow("two inputs") << QStringLiteral("-i /a.mkv -si -i /b.mkv ") + tail << true
                                << false;
    QTest::newRow("no picture") << QStringLiteral("-i /a.mkv -vn -ab 128k -acodec mp3 /o.mp3")
                                << true << false;
    QTest::newRow("no sound") << QStringLiteral("-i /a.mkv -an -vcodec mpeg4 /o.mp4") << true
                              << false;
    QTest::newRow("PCM is quick anyway")
        << QStringLiteral("-i /a.mkv -vcodec dvvideo -acodec pcm_s16le /o.dv") << true << false;
    QTest::newRow("WMA loses its block size in NUT")
        << QStringLiteral("-i /a.mkv -vcodec wmv2 -acodec wma7x /o.wmv") << true << false;
}

void TestEncoderJob::soundApart()
{
    QFETCH(QString, list);
    QFETCH(bool, hasAudio);
    QString error;
    const auto job = EncoderJob::parse(words(list), &error);
    QVERIFY2(job, qPrintable(error));
    QList<InputLayout> layouts;
    for (int i = 0; i < job->inputs.size(); ++i) {
        InputLayout layout;
        layout.hasAudio = hasAudio;
        layouts << layout;
    }
    QTEST(job->soundApart(layouts), "apart");
}

void TestEncoderJob::soundApartLists()
{
    const auto job = EncoderJob::parse(
        words(QStringLiteral("-y -ss 10 -t 5 -pgc 0 -audio_track 1 -subtitle -1 -i /d/VTS_01_0.IFO "
                             "-vf scale=480:320 -b:v 1000000 -vcodec libx264 -threads 2 -ab 128k "
                             "-ac 2 -ar 44100 -acodec libfaac -vol 512 /o/out.mp4")),
        nullptr);
    QVERIFY(job);
    InputLayout layout;
    layout.audioSpecifier = QStringLiteral("i:0x81");
    const QString sound
        = job->soundArguments(QStringLiteral("pipe:3"), layout).join(QLatin1Char(' '));
    // All of the title's sound from time zero, encoded, as NUT; no picture, no cut.
    for (const char *part :
         {"-f mpeg -i pipe:3 -map 0:i:0x81 -vn -sn -dn", "aresample=async=1:first_pts=0",
          "volume=2", "-b:a 128k", "-ac 2", "-ar 44100", "-c:a aac", "-f nut pipe:1"})
        QVERIFY2(sound.contains(QLatin1String(part)),
                 qPrintable(sound + QLatin1String(" / ") + QLatin1String(part)));
    for (const char *part : {"-ss", "-t ", "scale", "-c:v", "out.mp4"})
        QVERIFY2(!sound.contains(QLatin1String(part)),
                 qPrintable(sound + QLatin1String(" / ") + QLatin1String(part)));

    // AAC primes its encoder with 1024 samples, which NUT can't place before zero.
    QCOMPARE(job->soundLead(layout), 1024.0 / 44100);
    const QString file = job->ffmpegArguments({QStringLiteral("pipe:3")}, {layout},
                                              QStringLiteral("pipe:4"), job->soundLead(layout))
                             .join(QLatin1Char(' '));
    // The picture as before, the sound copied from the other ffmpeg, both cut alike.
    for (const char *part : {"-i pipe:3 -itsoffset -0.023220 -f nut -i pipe:4", "-map 0:v:0? -map 1:a:0", "-ss 10",
                             "-t 5", "-c:v libx264", "-c:a copy /o/out.mp4"})
        QVERIFY2(file.contains(QLatin1String(part)),
                 qPrintable(file + QLatin1String(" / ") + QLatin1String(part)));
    for (const char *part : {"-b:a", "-ar", "-af", "0:i:0x81"})
        QVERIFY2(!file.contains(QLatin1String(part)),
                 qPrintable(file + QLatin1String(" / ") + QLatin1String(part)));
}

void TestEncoderJob::badLists_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("error");
    QTest::newRow("no output") << QStringLiteral("-i a.mkv -vcodec")
                               << QStringLiteral("last argument");
    QTest::newRow("no input") << QStringLiteral("-vcodec mpeg4 out.mkv")
                              << QStringLiteral("no input");
    QTest::newRow("stray word") << QStringLiteral("-i a.mkv stray out.mkv")
                                << QStringLiteral("unexpected argument");
    QTest::newRow("pgc not a number")
        << QStringLiteral("-pgc x -i a.IFO out.mkv") << QStringLiteral("needs a number");
    QTest::newRow("nothing") << QStringLiteral("") << QStringLiteral("last argument");
}

void TestEncoderJob::badLists()
{
    QFETCH(QString, list);
    QFETCH(QString, error);
    QString said;
    QVERIFY(!EncoderJob::parse(words(list), &said));
    QVERIFY2(said.contains(error), qPrintable(said));
}

void TestEncoderJob::burntSubtitleShowsInItsIntervalOnly_data()
{
    QTest::addColumn<QString>("input"); // %1 the subtitle, %2 the fixture folder
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("pitch"); // of the sound taken, 0 for none
    QTest::addColumn<double>("shown"); // a moment with the subtitle on
    QTest::addColumn<double>("gone");  // and one after it
    // The title's second track is the 660 Hz one; the first is 440 Hz.
    QTest::newRow("DVD title, second audio track")
        << "-pgc 0 -audio_track 1 -subtitle %1 -i %2/dvd-main/VIDEO_TS/VTS_01_0.IFO" << 4.8 << 660.0
        << 1.0 << 3.5;
    QTest::newRow("text stream of a file")
        << "-subtitle %1 -i %2/movie.mkv" << 3.0 << 440.0 << 1.0 << 2.5;
    QTest::newRow("picture stream of a file")
        << "-subtitle %1 -i %2/subpicture.mkv" << 4.8 << 0.0 << 1.0 << 3.5;
}

void TestEncoderJob::burntSubtitleShowsInItsIntervalOnly()
{
    QFETCH(QString, input);
    QFETCH(double, seconds);
    QFETCH(double, pitch);
    QFETCH(double, shown);
    QFETCH(double, gone);
    const QString burnt = dir.filePath(QStringLiteral("burnt.mp4"));
    const QString clean = dir.filePath(QStringLiteral("clean.mp4"));
    const QString common = QStringLiteral("-y -ss 0 ") + input
                           + QStringLiteral(" -vf scale=360:288 -vcodec mpeg4 -qscale 2 "
                                            "-acodec libfaac -ab 128k ");
    QByteArray log;
    QVERIFY2(encode(words(common.arg(0).arg(fixtures) + burnt), &log) == 0, log.constData());
    QVERIFY2(encode(words(common.arg(-1).arg(fixtures) + clean), &log) == 0, log.constData());

    QVERIFY(qAbs(probeDuration(burnt) - seconds) < 0.5);
    if (pitch > 0)
        QVERIFY2(qAbs(crossingsPerSecond(burnt) / 2 - pitch) < 30,
                 qPrintable(QString::number(crossingsPerSecond(burnt) / 2)));
    const double on
        = differingShare(grabFrame(burnt, shown, 360, 288), grabFrame(clean, shown, 360, 288));
    QVERIFY2(on > 0.002, qPrintable(QString::number(on)));
    const double off
        = differingShare(grabFrame(burnt, gone, 360, 288), grabFrame(clean, gone, 360, 288));
    QVERIFY2(off >= 0 && off < 0.001, qPrintable(QString::number(off)));
}

void TestEncoderJob::interlacedSourceComesOutWhole()
{
    // Moving pictures at 50 fields a second, woven into frames and coded
    // interlaced; and the same pictures progressive.
    const QString interlaced = dir.filePath(QStringLiteral("interlaced.mkv"));
    const QString progressive = dir.filePath(QStringLiteral("progressive.mkv"));
    const QString source = QStringLiteral("-v error -y -f lavfi -i testsrc2=s=320x240:r=%1:d=2 ");
    QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                     words(source.arg(50)
                           + QStringLiteral("-vf interlace -c:v libx264 -crf 12 -flags +ildct+ilme "
                                            "-field_order tt ")
                           + interlaced)),
             0);
    QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                     words(source.arg(25) + QStringLiteral("-c:v libx264 -crf 12 ") + progressive)),
             0);
    auto convert = [this](const QString &from, const QString &to) {
        return encode(words(
            QStringLiteral("-y -i %1 -vf scale=320:240 -vcodec mpeg4 -qscale 2 %2").arg(from, to)));
    };
    auto measure = [](const QString &filters, const QStringList &inputs, const char *pattern) {
        QStringList args;
        for (const QString &input : inputs)
            args << QStringLiteral("-i") << input;
        QByteArray log;
        runTool(QStringLiteral("ffmpeg"),
                args << QStringLiteral("-lavfi") << filters << words(QStringLiteral("-f null -")),
                &log);
        // The last report: a graph set up twice reports twice, first with nothing counted.
        QRegularExpressionMatch last;
        auto it = QRegularExpression(QLatin1String(pattern)).globalMatch(QString::fromUtf8(log));
        while (it.hasNext())
            last = it.next();
        return last;
    };

    // No combs left, and flagged as whole frames.
    const QString clean = dir.filePath(QStringLiteral("deinterlaced.mkv"));
    QCOMPARE(convert(interlaced, clean), 0);
    const auto fields = measure(QStringLiteral("idet"), {clean},
                                "Multi frame detection: TFF: *(\\d+) BFF: *(\\d+) "
                                "Progressive: *(\\d+)");
    QVERIFY(fields.hasMatch());
    QVERIFY2(fields.captured(3).toInt() > 0
                 && fields.captured(3).toInt()
                        >= 9 * (fields.captured(1).toInt() + fields.captured(2).toInt()),
             qPrintable(fields.captured(0)));
    QCOMPARE(probe(clean, QStringLiteral("stream=field_order"), QStringLiteral("v")).trimmed(),
             QStringLiteral("field_order=progressive"));

    // A progressive source loses nothing to it: as close to the source as
    // the same encoding without any deinterlacer.
    const QString kept = dir.filePath(QStringLiteral("kept.mkv"));
    const QString plain = dir.filePath(QStringLiteral("plain.mkv"));
    QCOMPARE(convert(progressive, kept), 0);
    QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                     words(QStringLiteral("-v error -y -i %1 -c:v mpeg4 -q:v 2 %2")
                               .arg(progressive, plain))),
             0);
    const char *ssim = "All:([0-9.]+)";
    const auto ours = measure(QStringLiteral("ssim"), {kept, progressive}, ssim);
    const auto without = measure(QStringLiteral("ssim"), {plain, progressive}, ssim);
    QVERIFY(ours.hasMatch() && without.hasMatch());
    QVERIFY2(ours.captured(1).toDouble() >= without.captured(1).toDouble() - 0.0005,
             qPrintable(ours.captured(0) + QStringLiteral(" / ") + without.captured(0)));
}

void TestEncoderJob::trimmedAndCroppedFile()
{
    const QString out = dir.filePath(QStringLiteral("trimmed.mkv"));
    QCOMPARE(encode(words(
                 QStringLiteral(
                     "-y -ss 0.5 -t 1 -i %1 -vf crop=100:80:30:20,scale=200:160 -vcodec mpeg4 %2")
                     .arg(fixture(fixtures, "movie.mkv"), out))),
             0);
    QVERIFY(qAbs(probeDuration(out) - 1.0) < 0.15);
    QCOMPARE(probe(out, QStringLiteral("stream=width,height"), QStringLiteral("v")).trimmed(),
             QStringLiteral("width=200\nheight=160"));
}

void TestEncoderJob::watermarkOnFile()
{
    QImage mark(40, 30, QImage::Format_ARGB32);
    mark.fill(QColor(255, 0, 0));
    const QString markPath = dir.filePath(QStringLiteral("mark, 'one'.png"));
    QVERIFY(mark.save(markPath));
    const QString out = dir.filePath(QStringLiteral("marked.mkv"));
    const QString chain = QStringLiteral("scale=320:240,watermark2=100:50:") + hexText(markPath);
    QCOMPARE(encode({QStringLiteral("-y"), QStringLiteral("-i"), fixture(fixtures, "clip.mp4"),
                     QStringLiteral("-vf"), chain, QStringLiteral("-vcodec"),
                     QStringLiteral("mpeg4"), QStringLiteral("-qscale"), QStringLiteral("2"), out}),
             0);
    const QImage frame = grabFrame(out, 0.5, 320, 240);
    QVERIFY(!frame.isNull());
    const QColor inside = frame.pixelColor(120, 65);
    QVERIFY2(inside.red() > 200 && inside.green() < 60 && inside.blue() < 60,
             qPrintable(inside.name()));
    const QColor outside = frame.pixelColor(300, 220);
    QVERIFY(!(outside.red() > 200 && outside.green() < 60));
}

void TestEncoderJob::mergeDurationIsTheSum()
{
    const QString out = dir.filePath(QStringLiteral("merged.mp4"));
    const double first = probeDuration(fixture(fixtures, "clip.mp4"));
    QVERIFY(first > 0);
    QCOMPARE(
        encode(words(
            QStringLiteral("-y -ss 0 -i %1 -vf scale=320:240 -si -ss 1 -t 2 -pgc 0 -audio_track 0 "
                           "-subtitle -1 -i %2 -vf scale=320:180,pad=320:240:0:30 -vcodec mpeg4 "
                           "-acodec libfaac %3")
                .arg(fixture(fixtures, "clip.mp4"), ifo, out))),
        0);
    QVERIFY2(qAbs(probeDuration(out, QStringLiteral("v")) - (first + 2)) < 0.2,
             qPrintable(QString::number(probeDuration(out, QStringLiteral("v")))));
    QVERIFY(qAbs(probeDuration(out, QStringLiteral("a")) - (first + 2)) < 0.2);
}

void TestEncoderJob::failuresSayWhyAndLeaveNoFakeResult_data()
{
    QTest::addColumn<QString>("inputPart");
    QTest::addColumn<QString>("said");
    QTest::newRow("missing source")
        << QStringLiteral("-i %D/no-such.mkv") << QStringLiteral("No such file");
    QTest::newRow("pgc out of range") << QStringLiteral("-pgc 99 -audio_track 0 -subtitle -1 -i %I")
                                      << QStringLiteral("cannot read title 99");
    QTest::newRow("not a disc") << QStringLiteral(
        "-pgc 0 -audio_track 0 -subtitle -1 -i %D/VTS_01_0.IFO")
                                << QStringLiteral("cannot read title 0");
    QTest::newRow("no such audio track")
        << QStringLiteral("-pgc 0 -audio_track 7 -subtitle -1 -i %I")
        << QStringLiteral("no audio track 7");
    QTest::newRow("no such subtitle") << QStringLiteral("-pgc 0 -audio_track 0 -subtitle 3 -i %I")
                                      << QStringLiteral("no subtitle track 3");
}

void TestEncoderJob::failuresSayWhyAndLeaveNoFakeResult()
{
    QFETCH(QString, inputPart);
    QFETCH(QString, said);
    QFile text(dir.filePath(QStringLiteral("VTS_01_0.IFO")));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("this is not an IFO file\n");
    text.close();
    // The program reserves the output name with an empty file first.
    const QString out = dir.filePath(QStringLiteral("failed.mp4"));
    QFile reserved(out);
    QVERIFY(reserved.open(QIODevice::WriteOnly));
    reserved.close();

    QByteArray log;
    const QString input = QString(inputPart)
                              .replace(QStringLiteral("%D"), dir.path())
                              .replace(QStringLiteral("%I"), ifo);
    const int code = encode(
        words(QStringLiteral("-y ") + input + QStringLiteral(" -vcodec mpeg4 ") + out), &log);
    QVERIFY(code != 0);
    QVERIFY2(log.contains(said.toUtf8()), log.constData());
    QVERIFY(QFileInfo(out).size() == 0);
}

void TestEncoderJob::damagedDisc_data()
{
    QTest::addColumn<QStringList>("damaged"); // of the title set's files
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("said");

    // The IFOs say there are 200 PGCs, which once crashed libdvdread.
    QTest::newRow("IFO damaged, backup sound")
        << QStringList{QStringLiteral("IFO")} << 0
        << QStringList{QStringLiteral("VTS_01_0.IFO: damaged program chain table; reading its "
                                      "backup")};
    QTest::newRow("IFO and backup damaged")
        << QStringList{QStringLiteral("IFO"), QStringLiteral("BUP")} << 1
        << QStringList{QStringLiteral("cannot read title 0 of the DVD behind"),
                       QStringLiteral(": damaged program chain table, and no sound backup")};
    // Title 0 is sectors 0-96.
    QTest::newRow("VOB cut short")
        << QStringList{QStringLiteral("VOB")} << 1
        << QStringList{QStringLiteral("skipped 7 unreadable blocks of title 0"),
                       QStringLiteral("title 0 could not be read whole: unreadable from sector "
                                      "90 to the end of the title"),
                       QStringLiteral("removed the unfinished output")};
}

void TestEncoderJob::damagedDisc()
{
    QFETCH(QStringList, damaged);
    QFETCH(int, exitCode);
    QFETCH(QStringList, said);

    QTemporaryDir disc;
    const QString videoTs = copyDisc(QFileInfo(ifo).path(), disc.path());
    QVERIFY(!videoTs.isEmpty());
    for (const QString &suffix : damaged) {
        const QString file = videoTs
                             + QStringLiteral("/VTS_01_%1.%2")
                                   .arg(suffix == QLatin1String("VOB") ? 1 : 0)
                                   .arg(suffix);
        if (suffix == QLatin1String("VOB")) {
            QVERIFY(QFile::resize(file, 90 * 2048));
            continue;
        }
        QVERIFY(changeFile(file, [](QByteArray &bytes) {
            setIfoField(bytes, int(ifoField(bytes, 0xcc, 4)) * 2048, 2, 200);
        }));
    }
    const QString out = dir.filePath(QStringLiteral("damaged.mp4"));
    QFile::remove(out);
    QByteArray log;
    const int code = encode(words(QStringLiteral("-y -pgc 0 -audio_track 0 -subtitle -1 -i "
                                                 "%1/VTS_01_0.IFO -vf scale=180:144 -vcodec "
                                                 "mpeg4 %2")
                                      .arg(videoTs, out)),
                            &log);
    QVERIFY2(!log.contains("AddressSanitizer"), log.constData());
    QCOMPARE(code, exitCode);
    for (const QString &line : said)
        QVERIFY2(log.contains(line.toUtf8()), log.constData());
    QCOMPARE(QFile::exists(out), exitCode == 0);
    if (exitCode == 0)
        QVERIFY(qAbs(probeDuration(out) - 4.8) < 0.5);
}

void TestEncoderJob::existingFileIsKeptWithoutOverwrite()
{
    const QString out = dir.filePath(QStringLiteral("precious.mkv"));
    QFile file(out);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("the user's own file");
    file.close();
    QByteArray log;
    QVERIFY(
        encode(
            words(QStringLiteral("-i %1 -vcodec mpeg4 %2").arg(fixture(fixtures, "clip.mp4"), out)),
            &log)
        != 0);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("the user's own file"));
}

void TestEncoderJob::fullDiskRemovesTheUnfinishedFile_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("options");
    QTest::addColumn<bool>("reserved"); // the program made the file to reserve its name
    QTest::newRow("one file") << "out.mkv" << "-vcodec mpeg4 -b:v 5000000" << true;
    QTest::newRow("picture series") << "out%03d.png" << "-an" << false;
}

void TestEncoderJob::fullDiskRemovesTheUnfinishedFile()
{
    QFETCH(QString, output);
    QFETCH(QString, options);
    QFETCH(bool, reserved);
    // A tiny file system of its own; a private mount namespace where we aren't root.
    const QString mountPoint = dir.filePath(QStringLiteral("full"));
    QVERIFY(QDir().mkpath(mountPoint));
    const QString encoder
        = QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder");
    const QString script
        = QStringLiteral("mount -t tmpfs -o size=8k none '%1' || exit 99; %6 "
                         "'%2' -y -i '%3' %5 '%1/%4'; rc=$?; "
                         "if [ -n \"$(ls -A '%1')\" ]; then echo LEFT; ls '%1'; fi; umount '%1'; exit $rc")
              .arg(mountPoint, encoder, fixture(fixtures, "clip.mp4"), output, options,
                   reserved ? QStringLiteral(": > '%1/%2';").arg(mountPoint, output) : QString());
    const QStringList args = ::geteuid() == 0
                                 ? QStringList{QStringLiteral("-m"), QStringLiteral("sh"),
                                               QStringLiteral("-c"), script}
                                 : QStringList{QStringLiteral("-rm"), QStringLiteral("sh"),
                                               QStringLiteral("-c"), script};
    QByteArray log;
    const int code = runTool(QStringLiteral("unshare"), args, &log);
    QVERIFY2(code != 99, "could not mount a small file system");
    QVERIFY2(code != 0, log.constData());
    QVERIFY2(log.contains("kestrove-encoder: error:"), log.constData());
    QVERIFY2(!log.contains("LEFT"), log.constData());
}

void TestEncoderJob::soundApartKeepsTheSync()
{
    // Sound that begins a second after the picture, and a tone from 2.5 s on.
    const QString source = dir.filePath(QStringLiteral("late-sound.mkv"));
    QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                     words(QStringLiteral("-v error -y -f lavfi -i testsrc2=s=320x240:r=25:d=4 "
                                          "-itsoffset 1 -f lavfi -i "
                                          "aevalsrc=sin(2*PI*440*t)*(1+sgn(t-1.5))/2:d=3 "
                                          "-c:v mpeg4 -c:a mp2 %1")
                               .arg(source))),
             0);
    const QString out = dir.filePath(QStringLiteral("late-sound.mp4"));
    QByteArray log;
    QCOMPARE(encode(words(QStringLiteral("-y -i %1 -vf scale=320:240 -vcodec libx264 -ab 128k "
                                         "-ac 2 -ar 44100 -acodec libfaac %2")
                              .arg(source, out)),
                    &log),
             0);
    // Read from the file's start, the tone sets in where it did in the source.
    QByteArray silence;
    QCOMPARE(
        runTool(QStringLiteral("ffmpeg"),
                words(QStringLiteral("-i %1 -map 0:a -af silencedetect=n=-40dB:d=0.3 -f null -")
                          .arg(out)),
                &silence),
        0);
    const QRegularExpression end(QStringLiteral("silence_end: ([0-9.]+)"));
    const auto match = end.match(QString::fromUtf8(silence));
    QVERIFY2(match.hasMatch(), silence.constData());
    QVERIFY2(qAbs(match.captured(1).toDouble() - 2.5) < 0.1, silence.constData());
    QVERIFY(
        qAbs(probeDuration(out, QStringLiteral("a:0")) - probeDuration(out, QStringLiteral("v:0")))
        < 0.15);
}

void TestEncoderJob::failedSoundFailsTheFile()
{
    // An ffmpeg that can't encode sound, but writes pictures.
    const QString wrapper = dir.filePath(QStringLiteral("no-sound-ffmpeg"));
    QFile script(wrapper);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n"
                 "case \"$*\" in *'-f nut pipe:1'*) echo 'sound encoder gone' >&2; exit 1;; esac\n"
                 "exec ffmpeg \"$@\"\n");
    script.close();
    script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
    const QString out = dir.filePath(QStringLiteral("no-sound.mp4"));
    QProcess encoder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KESTROVE_FFMPEG"), wrapper);
    encoder.setProcessEnvironment(environment);
    encoder.setProcessChannelMode(QProcess::MergedChannels);
    encoder.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder"),
                  words(QStringLiteral("-y -i %1 -vf scale=320:240 -vcodec libx264 -ab 128k "
                                       "-acodec libfaac %2")
                            .arg(fixture(fixtures, "clip.mp4"), out)));
    QVERIFY(encoder.waitForFinished(60000));
    const QByteArray log = encoder.readAll();
    QVERIFY2(encoder.exitCode() != 0, log.constData());
    QVERIFY2(log.contains("sound encoder gone"), log.constData());
    QVERIFY2(!QFile::exists(out), log.constData());
}

void TestEncoderJob::terminationEndsBothEncoders()
{
    const QString source = dir.filePath(QStringLiteral("long.mkv"));
    QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                     words(QStringLiteral("-v error -y -f lavfi -i testsrc2=s=320x240:r=25:d=30 "
                                          "-f lavfi -i sine=d=30 -c:v mpeg4 -c:a mp2 %1")
                               .arg(source))),
             0);
    const QString out = dir.filePath(QStringLiteral("terminated.mp4"));
    QProcess encoder;
    encoder.setProcessChannelMode(QProcess::MergedChannels);
    encoder.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder"),
                  words(QStringLiteral("-y -i %1 -vf scale=1280:960 -vcodec libx264 -preset slow "
                                       "-ab 128k -acodec libfaac %2")
                            .arg(source, out)));
    QVERIFY(encoder.waitForStarted());
    const pid_t front = pid_t(encoder.processId());
    auto children = [front] {
        QFile file(QStringLiteral("/proc/%1/task/%1/children").arg(front));
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromLatin1(file.readAll()).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                   : QStringList();
    };
    // Picture and sound each in an ffmpeg of its own.
    QTRY_COMPARE_WITH_TIMEOUT(children().size(), 2, 20000);
    const QStringList encoders = children();
    QTest::qWait(500);
    ::kill(front, SIGTERM);
    QVERIFY(encoder.waitForFinished(15000));
    QVERIFY(encoder.exitStatus() != QProcess::NormalExit || encoder.exitCode() != 0);
    auto gone = [](const QString &pid) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        return !stat.open(QIODevice::ReadOnly) || stat.readAll().contains(") Z ");
    };
    for (const QString &pid : encoders)
        QTRY_VERIFY2_WITH_TIMEOUT(gone(pid), qPrintable(pid), 5000);
    QVERIFY(!QFile::exists(out));
}

void TestEncoderJob::processorShareIsHeld()
{
    const QString out = dir.filePath(QStringLiteral("limited.mkv"));
    const QStringList job
        = words(QStringLiteral("-y -cpu_percent 25 -t 6 -f lavfi -i testsrc2=s=640x480:r=25 "
                               "-vcodec libx264 -preset medium -threads 2 %1")
                    .arg(out));
    rusage before;
    ::getrusage(RUSAGE_CHILDREN, &before);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(encode(job), 0);
    const double wall = timer.elapsed() / 1000.0;
    rusage after;
    ::getrusage(RUSAGE_CHILDREN, &after);
    auto seconds = [](const timeval &t) {
        return t.tv_sec + t.tv_usec / 1e6;
    };
    const double cpu = seconds(after.ru_utime) - seconds(before.ru_utime) + seconds(after.ru_stime)
                       - seconds(before.ru_stime);
    const double allowed = 0.25 * ::sysconf(_SC_NPROCESSORS_ONLN);
    QVERIFY2(
        cpu / wall < allowed * 1.35,
        qPrintable(
            QStringLiteral("used %1 of a processor, allowed %2").arg(cpu / wall).arg(allowed)));
    QVERIFY(qAbs(probeDuration(out) - 6) < 0.2);
}

QTEST_GUILESS_MAIN(TestEncoderJob)
#include "tst_encoderjob.moc"
