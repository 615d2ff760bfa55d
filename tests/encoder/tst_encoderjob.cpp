#include "conversion/processtools.h"
#include "encoderjob.h"
#include "encoderlimits.h"
#include "ffmpegtools.h"
#include "filtertranslator.h"
#include "mediafixtures.h"
#include "optiontable.h"
#include "utils.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/times.h>
#include <unistd.h>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

using namespace Qt::StringLiterals;

namespace {

// Blanks, accents and the filter syntax: the name of the watermark, and of a
// subtitle file and its folder.
const char awkward[] = "mé a'b:c,d;e[f]g\\h";

QStringList words(QAnyStringView text)
{
    return text.toString().split(u' ', Qt::SkipEmptyParts);
}

QString encoderPath()
{
    return QCoreApplication::applicationDirPath() + u"/kestrove-encoder"_s;
}

// The last report of a measuring filter: a graph set up twice reports twice,
// first with nothing counted.
QRegularExpressionMatch measure(const QString &filters, const QString &input, const char *pattern)
{
    QByteArray log;
    runTool(u"ffmpeg"_s, QStringList{u"-i"_s, input, u"-lavfi"_s, filters} + words("-f null -"),
            &log);
    return QRegularExpression("(?s).*"_L1 + QLatin1String(pattern)).match(QString::fromUtf8(log));
}

const struct
{
    const char *written, *expected, *note = "";
} changedOptions[] = {
    // clang-format off
    {"-vcodec cuh264", "-c:v h264_nvenc"}, {"-vcodec mpeg4", "-c:v mpeg4"},
    {"-vcodec wmv3x", "-c:v wmv2", "WMV 9"}, {"-vcodec xvid", "-c:v libxvid"},
    {"-acodec libfaac", "-c:a aac"}, {"-acodec libamr_nb", "-c:a aac", "AMR-NB"},
    {"-acodec vorbis", "-c:a libvorbis"}, {"-vtag DX50", "-tag:v DX50"},
    {"-vcodec libx264 -vprofile baseline", "-c:v libx264 -profile:v baseline"},
    {"-vcodec cuh264 -preset superfast", "-c:v h264_nvenc -preset p2"},
    {"-ab 128k", "-b:a 128k"}, {"-qscale 4", "-q:v 4"}, {"-intra", "-g 1"}, {"-vol 256", ""},
    {"-sameq -vcodec mpeg4", "-c:v mpeg4 -q:v 2"}, {"-flags +ilme+ildct", "-flags +ilme+ildct"},
    {"-sameq -vcodec libx264", "-c:v libx264 -crf 18"}, {"-map_meta_data -1:0", "-map_metadata -1"},
    {"-flags +umv+obmc+scan_offset+qpel", "-umv 1 -obmc 1 -flags +qpel", "scan_offset"},
    {"-flags +part+aic+alt+aiv", "-data_partitioning 1 -alternate_scan 1 -aiv 1 -flags +aic"},
    {"-deinterlace", "-vf yadif"}, {"-vol 384", "-af volume=1.5"}, {"-error 5", "-error_rate 5"},
    {"-async 1", "-af aresample=async=1"}, {"-nr 100", "-noise_reduction 100"},
    {"-bf -g 12", "-g 12", "-bf without a value"}, {"-me_threshold 1", "", "-me_threshold"},
    {"-bug autodetect", "-bug autodetect", "every input"},
    {"-ec guess_mvs", "-ec guess_mvs", "every input"},
    {"-mb_threshold 1", "", "-mb_threshold"}, {"-pbias 1", "", "-pbias"}, {"-qns 1", "", "-qns"},
    {"-preme 1", "", "-preme"}, {"-er 1", "", "-er"},
    // Not the table's: ffmpeg's own.
    {"-movflags +faststart -tune film -shortest", "-movflags +faststart -tune film -shortest"},
    // clang-format on
};

// Values for options that ffmpeg takes no "1" for.
QString valueFor(const QString &name)
{
    // clang-format off
    const char *const values[][2] = {{"pix_fmt", "yuv420p"}, {"qmax", "31"}, {"lmax", "3658"}, {"dc", "8"},
        {"r", "25"}, {"ar", "44100"}, {"metadata", "title=a b"}, {"rc_override", "0,10,2"}};
    // clang-format on
    for (const auto &value : values) {
        if (name == QLatin1String(value[0]))
            return QString::fromUtf8(value[1]);
    }
    return name.endsWith("_matrix"_L1) ? QStringList(64, u"16"_s).join(u',') : u"1"_s;
}

const char *const apartList = "-y -ss 10 -t 5 -pgc 0 -audio_track 1 -i /d/VTS_01_0.IFO "
                              "-vf scale=480:320 -b:v 1000000 -vcodec libx264 -threads 2 -ab 128k "
                              "-ac 2 -ar 44100 -acodec libfaac -vol 512 /o/out.mp4";

// expected and absent: parts of ffmpeg's list, split at " | "
const struct
{
    const char *name, *list, *expected, *absent = "", *note = "", *mode = "";
} argumentsCases[] = {
    {"disc title",
     "-y -ss 0 -pgc 0 -audio_track 0 -i /d/VIDEO_TS/VTS_01_0.IFO -vf scale=640:360,"
     "pad=640:480:0:60 -b:v 1200000 -r 29.97 -vcodec mpeg4 -threads 4 -aspect 1.33333 -ab 192k "
     "-ac 2 -ar 44100 -acodec libfaac /v/Title_1.mp4",
     "-nostdin -y -probesize 50M -threads 1 -f mpeg -i pipe:3 -vf bwdif=mode=send_frame:deint=interlaced,"
     "scale=640:360,pad=640:480:0:60,fps=29.97 -map 0:v:0? -af aresample=async=1:first_pts=0 "
     "-map 0:i:0x80? -b:v 1200000 -r 29.97 -c:v mpeg4 -threads 4 -aspect 1.33333 -b:a 192k -ac 2 "
     "-ar 44100 -c:a aac /v/Title_1.mp4"},
    // ffmpeg can't seek in a pipe: a title's -ss and -t move behind the input.
    {"title cut on its frames, subpicture, no sound",
     "-ss 1.5 -t 2 -pgc 1 -audio_track -1 -subtitle 0 -i /d.IFO -vf scale=8:8 o.mkv",
     "-nostdin -probesize 50M -threads 1 -ifo_palette /d.IFO -f mpeg -i pipe:3 -ss 1.5 -t 2 "
     "-filter_complex "
     "[0:v:0]bwdif=mode=send_frame:deint=interlaced[kb];[kb][0:i:0x20]overlay=format=auto,"
     "scale=8:8[vout]",
     "0:i:0x80 | 0:a"},
    {"a seek to 0 is no seek", "-ss 0 -i /a.mkv -vf scale=64:48 -vcodec mpeg4 /o.avi",
     "-nostdin -i /a.mkv", "-ss"},
    {"H.263 at a size it lacks", "-i /a.mkv -vf scale=320:240 -vcodec h263 /o.3gp", "-c:v mpeg4",
     "h263", "H.263 has no 320x240"},
    {"H.263 in MP4", "-i /a.mkv -vf scale=176:144 -vcodec h263 /o.mp4", "-c:v mpeg4", "h263",
     "MP4 files carry no H.263"},
    {"RealVideo in steps of 16", "-i /a.mkv -vf scale=854:480 -vcodec rv20 /o.rm",
     "interlaced,scale=854:480,scale=848:480", "", "854x480 becomes 848x480"},
    {"RealVideo beyond 1280x720", "-i /a.mkv -vf scale=1920:1080 -vcodec rv10 /o.rm",
     "interlaced,scale=1920:1080,scale=1280:720", "", "1920x1080 becomes 1280x720"},
    {"MPEG-1 at a rate it lacks", "-i /a.mkv -vf scale=320:240 -r 15 -vcodec mpeg1video /o.mpg",
     "-r 24000/1001", "-r 15", "mpeg1video has no 15 frames a second"},
    {"MPEG-2 at a rate it has, 4:2:0", "-i /a.mkv -r 29.97 -vcodec mpeg2video /o.mpg",
     "-r 29.97 -c:v mpeg2video -f vob -pix_fmt yuv420p"},
    {"Video CD at its one rate",
     "-i /a.mkv -vf scale=352:288 -r 15 -b:v 2000k -vcodec mpeg1video -ar 48000 -acodec mp2 /o.mpg",
     "-r 25 -b:v 1150k -c:v mpeg1video -ar 44100 -c:a mp2 -f vcd -muxrate 1411200", "2000k",
     "VCD with 288 lines runs at 25 frames a second, not 15"},
    {"DVD film rate kept, players' limits",
     "-i /a.mkv -vf scale=720:480 -r 23.976 -vcodec mpeg2video -ar 44100 -acodec ac3 /o.vob",
     "-r 23.976 -c:v mpeg2video -ar 48000 -c:a ac3 -f dvd -muxrate 10080k -packetsize 2048 "
     "-maxrate 9000k",
     "-ar 44100", "ac3 has no 44100 Hz sampling: 48000 Hz"},
    {"H.264 level raised for the picture",
     "-i /a.mkv -vf scale=1920:1080 -r 30 -vcodec h264 -level 3.0 /o.mp4", "-level 4.0",
     "-level 3.0", "H.264 level 3.0 holds no 1920x1080 at 30 frames a second: level 4.0"},
    {"PAL DV", "-i /a.mkv -vf scale=720:576 -r 29.97 -ar 32000 -ac 6 /o.dv",
     "-r 25 -ar 48000 -ac 2", "32000", "DV with 576 lines runs at 25"},
    {"H.264 main asked for 4:4:4",
     "-i /a.mkv -vcodec libx264 -vprofile main -pix_fmt yuv444p /o.mp4", "-pix_fmt yuv420p",
     "yuv444p", "libx264 main takes no yuv444p pictures: yuv420p instead"},
    {"interlaced coding keeps the fields",
     "-i /a.mkv -vf scale=720:576 -flags +ilme+ildct -vcodec mpeg2video /o.mpg",
     "-vf scale=720:576", "bwdif"},
    {"-deinterlace takes every frame",
     "-i /a.mkv -vf scale=64:48 -deinterlace -vcodec mpeg4 /o.avi", "-vf yadif,scale=64:48",
     "bwdif"},
    {"a text subtitle on the file's time line",
     "-ss 1.5 -subtitle 0 -i /a.mkv -vf scale=64:48 -vcodec mpeg4 /o.avi",
     "interlaced,setpts=PTS+1.5/TB,subtitles=filename=/a.mkv:si=0,setpts=PTS-1.5/TB,scale",
     "-filter_complex"},
    {"MP2 bit rate over the half-rate table", "-i /a.mkv -ab 192k -ar 22050 -acodec mp2 /o.mp2",
     "-b:a 160k", "192k", "mp2 has no 192 kbit/s at 22050 Hz"},
    {"MP3 in 5.1", "-i /a.mkv -ab 192k -ac 6 -acodec mp3 /o.mkv", "-ac 2", "-ac 6",
     "libmp3lame takes at most 2 channels"},
    {"Vorbis by quality", "-i /a.mkv -ab 192k -ar 22050 -acodec vorbis /o.ogg",
     "-ar 22050 -c:a libvorbis -q:a 6", "-b:a", "quality 6"},
    {"picture series", "-i /a.mkv -vf scale=64:48 -r 1/5 /p/shot%03d.gif",
     "-c:v gif -f image2 /p/shot%03d.gif", "0:a"},
    // Later inputs are silent and three seconds long; a seek to 0 is left out.
    {"join",
     "-y -ss 10 -t 50 -i /a.mkv -vf scale=320:240 -si -ss 0 -ast 1 -i /b.mp4 "
     "-vf crop=10:10:2:2,scale=320:240 -vol 512 -vcodec mpeg4 /o.mp4",
     "-ss 10 -t 50 -i /a.mkv -i /b.mp4 -r 30000/1001 -filter_complex [0:v:0]bwdif=mode=send_frame:"
     "deint=interlaced,scale=320:240,setsar=1,format=yuv420p[v0];[0:a:0]aresample=48000,"
     "aformat=channel_layouts=stereo[a0];[1:v:0]bwdif=mode=send_frame:deint=interlaced,"
     "crop=10:10:2:2,scale=320:240,setsar=1,format=yuv420p[v1];anullsrc=r=48000:cl=stereo,"
     "atrim=duration=3[a1];[v0][a0][v1][a1]concat=n=2:v=1:a=1[vout][acat];[acat]volume=2[aout] | "
     "-map [vout]"},
    // Lists that fail: nothing expected, the note is the error.
    {"no output", "-i a.mkv -vcodec", "", "", "last argument"},
    {"no input", "-vcodec mpeg4 out.mkv", "", "", "no input"},
    {"stray word", "-i a.mkv stray out.mkv", "", "", "unexpected argument"},
    {"pgc not a number", "-pgc x -i a.IFO out.mkv", "", "", "needs a number"},
    {"nothing", "", "", "", "last argument"},
    // All of the title's sound from time zero, encoded, as NUT; no picture, no cut.
    {"sound apart, the sound's ffmpeg", apartList,
     "-f mpeg -i pipe:3 -map 0:i:0x80 -vn -sn -dn | aresample=async=1:first_pts=0 | volume=2 | "
     "-b:a 128k | -ac 2 | -ar 44100 | -c:a aac | -f nut pipe:1",
     "-ss | -t 5 | scale | -c:v | out.mp4", "", "sound"},
    // The picture as before, the sound copied, both cut alike. AAC primes its
    // encoder with 1024 samples, which NUT can't place before zero.
    {"sound apart, the file's ffmpeg", apartList,
     "-i pipe:3 -itsoffset -0.023220 -f nut -i pipe:4 | -map 0:v:0? -map 1:a:0 | -ss 10 | -t 5 | "
     "-c:v libx264 | -c:a copy /o/out.mp4",
     "-b:a | -ar | -af | 0:i:0x80", "", "file"},
    // With the picture apart as well: each side ffmpeg cuts its own stream, the
    // writer only encodes the raw frames, with the source's colour tags.
    {"picture apart, the picture's ffmpeg", apartList,
     "-nostats -loglevel error -probesize 50M -threads 1 -f mpeg -i pipe:3 -ss 10 -t 5 -vf "
     "bwdif=mode=send_frame:deint=interlaced,scale=480:320 -map 0:v:0? -an -sn -dn | "
     "-c:v rawvideo -f nut pipe:1",
     "libx264 | -b:v | out.mp4 | -threads 2", "", "picture"},
    {"picture apart, the sound's ffmpeg", apartList,
     "volume=2,aresample=async=1:first_pts=0 -ss 10 -t 5 | -f nut pipe:1", "scale", "",
     "cut sound"},
    {"picture apart, the writing ffmpeg", apartList,
     "-nostdin -y -copyts -color_range tv -f nut -i pipe:3 -itsoffset -0.023220 -f nut -i "
     "pipe:4 -map 0:v:0 -map 1:a:0 | -c:v libx264 | -threads 2 | -c:a copy /o/out.mp4",
     "-ss | -t 5 | -vf | -b:a | volume | mpeg", "", "writer"},
    // Sound in an ffmpeg of its own where that is sure to pay, and never for a silent source.
    {"title with sound", "-pgc 0 -audio_track 0 -i /d.IFO -acodec libfaac /o.mp4", "apart"},
    {"title without a track", "-pgc 0 -audio_track -1 -i /d.IFO -acodec libfaac /o.mp4",
     "together"},
    {"file with sound", "-i /a.mkv -acodec libfaac /o.mp4", "apart"},
    {"share of the processor", "-cpu_percent 50 -i /a.mkv -acodec libfaac /o.mp4", "together"},
    {"two inputs", "-i /a.mkv -si -i /b.mkv -acodec libfaac /o.mp4", "together"},
    {"no picture", "-i /a.mkv -vn -acodec libfaac /o.mp4", "together"},
    {"no sound", "-i /a.mkv -an -acodec libfaac /o.mp4", "together"},
    {"PCM is quick anyway", "-i /a.mkv -acodec pcm_s16le /o.dv", "together"},
    {"WMA loses its block size in NUT", "-i /a.mkv -acodec wma7x /o.wmv", "together"},
};

QString hexed(const char *chain)
{
    QString text = QString::fromUtf8(chain);
    const QRegularExpression quoted(u"<([^>]*)>"_s);
    for (QRegularExpressionMatch m; (m = quoted.match(text)).hasMatch();)
        text.replace(m.capturedStart(), m.capturedLength(), hexText(m.captured(1)));
    return text;
}

const struct
{
    const char *name, *chain, *graph, *note = "";
} filterCases[] = {
    {"crop scale pad pass through", "crop=704:464:8:8,scale=640:422,pad=640:480:0:28",
     "crop=704:464:8:8,scale=640:422,pad=640:480:0:28"},
    {"picture and effects in order", "scale=320:240,effect2=10:-20:30:13a5a",
     "scale=320:240,eq=brightness=0.05:contrast=0.8:saturation=1.3,hflip,negate"},
    {"effects alone", "scale=320:240,effect2=0:0:0:1a", "scale=320:240,hue=s=0"},
    {"neutral picture adds nothing", "scale=320:240,effect2=0:0:0", "scale=320:240"},
    {"unknown effect", "scale=320:240,effect2=0:0:0:99a14a", "scale=320:240,vflip",
     "unknown effect 99"},
    {"watermark", "scale=320:240,watermark2=10:20:</tmp/w.png>",
     "scale=320:240[kv0];movie=filename=/tmp/w.png,format=rgba[kw0];"
     "[kv0][kw0]overlay=x=10:y=20:format=auto"},
    {"watermark then effect", "scale=320:240,watermark2=1:2:</w.png>,effect2=0:0:0:5a",
     "scale=320:240[kv0];movie=filename=/w.png,format=rgba[kw0];"
     "[kv0][kw0]overlay=x=1:y=2:format=auto,negate"},
    {"subtitle", "scale=320:240,subtitle=<DejaVu Sans>:20:3:255x0x16:127:90:-1:</s.srt>",
     "scale=320:240,subtitles=filename=/s.srt:force_style=FontName=DejaVu Sans\\,FontSize=20\\,"
     "Bold=-1\\,Italic=-1\\,PrimaryColour=&H801000FF\\,Alignment=2\\,MarginV=28"},
    {"subtitle with track", "scale=8:8,subtitle=41:10:0:0x0x0:255:100:2:</m.mkv>",
     "scale=8:8,subtitles=filename=/m.mkv:si=2:force_style=FontName=A\\,FontSize=10\\,Bold=0\\,"
     "Italic=0\\,PrimaryColour=&H00000000\\,Alignment=2\\,MarginV=0"},
    {"subtitle missing values", "scale=8:8,subtitle=41:10", "scale=8:8", "needs 8 values"},
    {"unknown filter", "scale=8:8,boxblur=2", "scale=8:8", "boxblur"},
};

} // namespace

class TestEncoderJob : public QObject
{
    Q_OBJECT

    QImage plain;
    QString fixtures;
    QTemporaryDir dir;
    QByteArray log; // of the last tool run

    // %F the fixtures, %I the fixture disc's title set, %D this test's folder.
    QStringList expand(const QString &text) const
    {
        return words(QString(text)
                         .replace(u"%I"_s, u"%F/dvd-main/VIDEO_TS/VTS_01_0.IFO"_s)
                         .replace(u"%F"_s, fixtures)
                         .replace(u"%D"_s, dir.path()));
    }

    int encode(const QString &list, const QString &out)
    {
        return runTool(encoderPath(), expand(list) << out, &log, dir.path(), 120000);
    }

    // A source made by ffmpeg in this test's folder; empty when that failed.
    QString make(const char *name, const QStringList &ffmpegArguments)
    {
        const QString path = dir.filePath(QString::fromUtf8(name));
        if (runTool(u"ffmpeg"_s, words("-v error -y") + ffmpegArguments << path, &log) == 0)
            return path;
        qWarning("%s", log.constData());
        return {};
    }

    // The chain's graph on a still test picture; the first frame, 160x120.
    QImage render(const QString &chain)
    {
        return QImage(make("frame.png",
                           words("-nostdin -f lavfi -i testsrc2=s=320x240:d=0.1 -frames:v 1 -vf")
                               << FilterTranslator::translate(chain).graph))
            .convertToFormat(QImage::Format_RGB888);
    }

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(fixtures);
        plain = render(u"scale=160:120"_s);
        QVERIFY(!plain.isNull());
        // A red watermark, and sources made once.
        QImage mark(40, 30, QImage::Format_ARGB32);
        mark.fill(Qt::red);
        QVERIFY(mark.save(dir.filePath(QString::fromUtf8(awkward) + u".png"_s)));
        // clang-format off
        const char *const sources[][2] = {
            // Sound a second after the picture, with a tone from 2.5 s on.
            {"late-sound.mkv", "-f lavfi -i testsrc2=s=320x240:r=25:d=4 -itsoffset 1 -f lavfi -i "
                               "aevalsrc=sin(2*PI*440*t)*(1+sgn(t-1.5))/2:d=3 -c:v mpeg4 -c:a mp2"},
            // Moving pictures at 50 fields a second, woven into frames and coded interlaced.
            {"interlaced.mkv", "-f lavfi -i testsrc2=s=320x240:r=50:d=2 -vf interlace -c:v libx264 "
                               "-crf 12 -flags +ildct+ilme -field_order tt"},
            // For decoding options, and for a conversion long enough to stop.
            {"clip.mkv", "-f lavfi -i testsrc2=s=64x48:d=0.2 -c:v mpeg4"},
            {"long.mkv", "-f lavfi -i testsrc2=s=320x240:r=25:d=30 -f lavfi -i sine=d=30 "
                         "-c:v mpeg4 -c:a mp2"},
        };
        // clang-format on
        for (const auto &source : sources)
            QVERIFY(!make(source[0], words(source[1])).isEmpty());
        QVERIFY(!writeFile(dir.filePath(u"VTS_01_0.IFO"_s), "this is not an IFO file\n").isEmpty());
        // A DVD title whose tone sets in at 2.5 s.
        qputenv("VIDEO_FORMAT", "PAL");
        QVERIFY(!make("tone.mpg", words("-f lavfi -i testsrc2=s=352x288:r=25:d=4 -f lavfi -i "
                                        "aevalsrc=sin(2*PI*440*t)*(1+sgn(t-2.5))/2:s=48000:d=4 "
                                        "-target pal-dvd -b:v 2000k"))
                     .isEmpty());
        QVERIFY2(runTool(u"dvdauthor"_s, words("-o tone-dvd -t tone.mpg"), &log, dir.path()) == 0
                     && runTool(u"dvdauthor"_s, words("-o tone-dvd -T"), &log, dir.path()) == 0,
                 log.constData());
        // An ffmpeg that notes each list it runs.
        const QString logging = writeFile(
            dir.filePath(u"logging-ffmpeg"_s),
            "#!/bin/sh\necho \"$*\" >> \"$(dirname \"$0\")/ffmpeg.log\"\nexec ffmpeg \"$@\"\n");
        QVERIFY(QFile::setPermissions(logging, QFile::permissions(logging) | QFileDevice::ExeOwner));
        // An ffmpeg that can't encode sound, but writes pictures.
        const QString script
            = writeFile(dir.filePath(u"no-sound-ffmpeg"_s),
                        "#!/bin/sh\ncase \"$*\" in *'-f nut pipe:1'*) echo 'sound encoder gone' "
                        ">&2; exit 1;; esac\nexec ffmpeg \"$@\"\n");
        QVERIFY(QFile::setPermissions(script, QFile::permissions(script) | QFileDevice::ExeOwner));
    }

    // The argument list itself
    void translates_data()
    {
        QTest::addColumn<QStringList>("written");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QString>("note");
        QSet<QString> covered;
        for (const auto &c : changedOptions) {
            const QStringList written = words(c.written);
            for (const QString &word : written.filter(QRegularExpression(u"^-\\D"_s)))
                covered << word.mid(1);
            QTest::newRow(c.written) << written << words(c.expected) << QString::fromUtf8(c.note);
        }
        const QStringList known = OptionTable::knownOptions();
        QVERIFY(known.size() > 60);
        for (const QString &name : known) {
            QStringList kept{u'-' + name};
            if (OptionTable::arity(name) == OptionTable::Arity::One)
                kept << valueFor(name);
            if (!covered.contains(name))
                QTest::newRow(qPrintable(kept.join(u' '))) << kept << kept << QString();
        }
    }

    void translates()
    {
        QFETCH(QStringList, written);
        QFETCH(QStringList, expected);
        QFETCH(QString, note);
        QString error;
        const auto job = EncoderJob::parse(words("-i in.mkv") + written + words("out.mkv"), &error);
        QVERIFY2(job, qPrintable(error));
        const OutputOptions &out = job->output;
        auto withFilters = [&out](const QStringList &video) {
            QStringList args = out.args;
            if (!video.isEmpty())
                args << u"-vf"_s << video.join(u',');
            if (!out.audioFilters.isEmpty())
                args << u"-af"_s << out.audioFilters.join(u',');
            return args;
        };
        // The picture format and the deinterlacing fitted to every source are the
        // job's, not the table's.
        QStringList translated
            = out.inputArgs
              + withFilters(out.preFilters.filter(QRegularExpression(u"^(?!bwdif)"_s)));
        const int format = translated.indexOf(u"-pix_fmt"_s);
        if (!written.contains(u"-pix_fmt"_s) && format >= 0)
            translated.remove(format, 2);
        QCOMPARE(translated, expected);
        // Whatever changes is said; what stands as written, or in ffmpeg's newer
        // spelling of the same option, is not.
        const QString notes = job->notes.join(u'\n');
        const QStringList respelt = QStringList(expected).replaceInStrings(
            QRegularExpression(u"^-c:(.)$"_s), u"-\\1codec"_s);
        QVERIFY2(job->notes.isEmpty() == (written == respelt && out.inputArgs.isEmpty())
                     && notes.contains(note),
                 qPrintable(notes));
        // The ffmpeg we run must take the translation as it stands (NVENC needs a
        // GPU); decoding options need an encoded video input, -vstats writes beside it.
        if (out.videoCodec == "h264_nvenc"_L1)
            return;
        const QStringList args = words("-nostdin -v error") + out.inputArgs
                                 + words("-i clip.mkv -f lavfi -i sine=d=0.2 -c:v mpeg4 -c:a aac")
                                 + withFilters(out.preFilters) + words("-f null -");
        QVERIFY2(runTool(u"ffmpeg"_s, args, &log, dir.path()) == 0, log.constData());
    }

    void filterChains_data()
    {
        QTest::addColumn<QString>("chain");
        QTest::addColumn<QString>("graph"); // empty: any graph that changes the picture
        QTest::addColumn<QString>("note");
        for (const auto &c : filterCases)
            QTest::newRow(c.name) << hexed(c.chain) << QString::fromUtf8(c.graph)
                                  << QString::fromUtf8(c.note);
        // A subtitle file in an awkward folder: blanks, accents and the filter syntax.
        const QString name = QString::fromUtf8(awkward);
        const QString srt = writeFile(dir.filePath(name + u"/s "_s + name + u".srt"_s),
                                      "1\n00:00:00,000 --> 00:00:05,000\nWWWWWWWW\n\n");
        QTest::newRow("subtitle at an awkward path")
            << u"scale=160:120,subtitle=%1:24:1:255x0x255:255:90:-1:%2"_s.arg(
                   hexText(u"DejaVu Sans"_s), hexText(srt))
            << QString() << QString();
        for (int type = 1; type <= 18; ++type)
            QTest::addRow("effect %d", type)
                << u"scale=160:120,effect2=0:0:0:%1a"_s.arg(type) << QString() << QString();
    }

    void filterChains()
    {
        QFETCH(QString, chain);
        QFETCH(QString, graph);
        QFETCH(QString, note);
        const auto result = FilterTranslator::translate(chain);
        const QString notes = result.notes.join(u'\n');
        QVERIFY2(notes.isEmpty() == note.isEmpty() && notes.contains(note), qPrintable(notes));
        if (!graph.isEmpty())
            QCOMPARE(result.graph, graph);
        else
            QVERIFY(differingShare(render(chain), plain, 12) > 0.02);
    }

    void arguments_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("absent");
        QTest::addColumn<QString>("note");
        QTest::addColumn<QString>("mode");
        for (const auto &c : argumentsCases)
            QTest::newRow(c.name) << QString::fromUtf8(c.list) << QString::fromUtf8(c.expected)
                                  << QString::fromUtf8(c.absent) << QString::fromUtf8(c.note)
                                  << QString::fromUtf8(c.mode);
    }

    void arguments()
    {
        QFETCH(QString, list);
        QFETCH(QString, expected);
        QFETCH(QString, absent);
        QFETCH(QString, note);
        QFETCH(QString, mode);
        QString error;
        const auto job = EncoderJob::parse(words(list), &error);
        QVERIFY2(!job == expected.isEmpty() && (job || error.contains(note)), qPrintable(error));
        if (!job)
            return;
        // A title comes through a pipe, its streams known by their ids.
        InputLayout layout;
        layout.frameRate = u"30000/1001"_s;
        QStringList sources;
        QList<InputLayout> layouts;
        for (const EncoderInput &in : job->inputs) {
            sources << (in.isTitle() ? u"pipe:3"_s : in.path);
            if (in.isTitle()) {
                layout.audioSpecifier = u"i:0x80"_s;
                layout.subtitleSpecifier = u"i:0x20"_s;
            }
            layouts << layout;
            layout.hasAudio = false;
            layout.duration = 3;
        }
        if (expected == "apart"_L1 || expected == "together"_L1) {
            QCOMPARE(QString::fromLatin1(job->soundApart(layouts) ? "apart" : "together"),
                     expected);
            layouts[0].hasAudio = false;
            QVERIFY(!job->soundApart(layouts));
            return;
        }
        layouts[0].colourOptions = words("-color_range tv");
        const double lead = job->soundLead(layouts[0]);
        const QString joined
            = (mode == "sound"_L1       ? job->soundArguments(sources[0], layouts[0])
               : mode == "cut sound"_L1 ? job->soundArguments(sources[0], layouts[0], true)
               : mode == "picture"_L1   ? job->pictureArguments(sources[0], layouts[0])
               : mode == "writer"_L1
                   ? job->writerArguments(u"pipe:3"_s, layouts[0], u"pipe:4"_s, lead)
               : mode == "file"_L1 ? job->ffmpegArguments(sources, layouts, u"pipe:4"_s, lead)
                                   : job->ffmpegArguments(sources, layouts))
                  .join(u' ');
        for (const QString &part : expected.split(u" | "_s))
            QVERIFY2(joined.contains(part), qPrintable(joined + u"\nlacks "_s + part));
        for (const QString &part : absent.split(u" | "_s, Qt::SkipEmptyParts))
            QVERIFY2(!joined.contains(part), qPrintable(joined + u"\nholds "_s + part));
        // The fitting's own lines, beside those that say how names were translated.
        const QString fits = job->notes
                                 .filter(QRegularExpression(
                                     u"^(?!option -|audio codec|video codec|flag |preset )"_s))
                                 .join(u'\n');
        QVERIFY2(fits.isEmpty() == note.isEmpty() && fits.contains(note), qPrintable(fits));
    }

    // The picture goes apart only where a third ffmpeg gains and can give the same output.
    void pictureApartWhereItGains_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<bool>("apart");
        const QString x264 = u" -vf scale=480:320 -vcodec libx264 -acodec libfaac /o.mp4"_s;
        // clang-format off
        QTest::newRow("long title") << u"-pgc 0 -audio_track 0 -i /d.IFO"_s + x264 << 300.0 << true;
        QTest::newRow("a few seconds") << u"-pgc 0 -audio_track 0 -i /d.IFO"_s + x264 << 4.0 << false;
        QTest::newRow("a few seconds of a long file") << u"-ss 10 -t 5 -i /a.mkv"_s + x264 << 300.0 << false;
        QTest::newRow("title without sound") << u"-pgc 0 -audio_track -1 -i /d.IFO"_s + x264 << 300.0 << true;
        QTest::newRow("sound the writer must encode")
            << u"-i /a.mkv -vcodec mpeg4 -acodec pcm_s16le /o.mov"_s << 300.0 << false;
        QTest::newRow("share of the processor") << u"-cpu_percent 50 -i /a.mkv"_s + x264 << 300.0 << false;
        QTest::newRow("two inputs") << u"-i /a.mkv -si -i /b.mkv"_s + x264 << 300.0 << false;
        QTest::newRow("coded in fields")
            << u"-i /a.mkv -flags +ilme+ildct -vcodec mpeg2video /o.mpg"_s << 300.0 << false;
        QTest::newRow("pictures") << u"-i /a.mkv -vf scale=64:48 -r 1/5 /p/shot%03d.png"_s << 300.0 << false;
        QTest::newRow("no picture") << u"-i /a.mkv -vn -acodec libfaac /o.m4a"_s << 300.0 << false;
        // clang-format on
    }

    void pictureApartWhereItGains()
    {
        QFETCH(QString, list);
        QFETCH(double, seconds);
        QFETCH(bool, apart);
        const auto job = EncoderJob::parse(words(list), nullptr);
        QVERIFY(job);
        QList<InputLayout> layouts(job->inputs.size());
        for (InputLayout &layout : layouts) {
            layout.duration = seconds;
            layout.audioSpecifier = job->inputs[0].isTitle() ? u"i:0x80"_s : QString();
        }
        QCOMPARE(job->pictureApart(layouts), apart);
    }

    // Picture apart or not, the output is the same: its frames, their times,
    // the sync of picture and sound.
    void pictureApartGivesTheSameOutput_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<double>("tone");
        const QString title = u"-pgc 0 -audio_track 0 -i %D/tone-dvd/VIDEO_TS/VTS_01_0.IFO"_s;
        const QString x264 = u" -vf scale=320:240 -vcodec libx264 -threads 2 -ab 128k -ac 2 "
                             "-ar 44100 -acodec libfaac"_s;
        QTest::newRow("file, sound a second late") << u"-i %D/late-sound.mkv"_s + x264 << 2.5;
        QTest::newRow("DVD title") << u"-ss 0 "_s + title + x264 << 2.5;
        QTest::newRow("DVD title cut") << u"-ss 1 -t 2.6 "_s + title + x264 << 1.5;
    }

    void pictureApartGivesTheSameOutput()
    {
        QFETCH(QString, list);
        QFETCH(double, tone);
        const auto restore = qScopeGuard([] {
            qunsetenv("KESTROVE_PICTURE_APART");
            qunsetenv("KESTROVE_FFMPEG");
        });
        qputenv("KESTROVE_FFMPEG", dir.filePath(u"logging-ffmpeg"_s).toLocal8Bit());
        QStringList outs;
        for (const char *apart : {"0", "1"}) {
            qputenv("KESTROVE_PICTURE_APART", apart);
            QFile::remove(dir.filePath(u"ffmpeg.log"_s));
            outs << dir.filePath(u"apart%1.mp4"_s.arg(QLatin1String(apart)));
            QVERIFY2(encode(u"-y "_s + list, outs.last()) == 0, log.constData());
            QCOMPARE(readFile(dir.filePath(u"ffmpeg.log"_s)).contains("rawvideo"), *apart == '1');
            const auto onset = measure(u"[0:a]silencedetect=n=-40dB:d=0.3"_s, outs.last(),
                                       "silence_end: ([0-9.]+)");
            QVERIFY2(qAbs(onset.captured(1).toDouble() - tone) < 0.06, qPrintable(onset.captured(1)));
        }
        const QString frames = u"stream=nb_frames,duration"_s;
        QCOMPARE(probe(outs[1], frames, u"v"_s), probe(outs[0], frames, u"v"_s));
        QVERIFY(qAbs(probeDuration(outs[1], u"a"_s) - probeDuration(outs[0], u"a"_s)) < 0.03);
        runTool(u"ffmpeg"_s, QStringList{u"-i"_s, outs[0], u"-i"_s, outs[1]} + words("-lavfi ssim -f null -"), &log);
        const QString ssim = QRegularExpression(u"All:([0-9.]+)"_s).match(QString::fromUtf8(log)).captured(1);
        QVERIFY2(ssim.toDouble() > 0.9995, log.constData());
    }

    // Real conversions through kestrove-encoder. The checks: v= and a= the streams' length,
    // len= the file's, size= the picture's, mark= where the red watermark (%M) shows, tone=
    // where a tone after silence sets in, pitch= the sound's; combs: none left. A list with
    // %1 burns in that subtitle: shown= a moment it differs from the same without, gone= not.
    void encodes_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("checks");
        const QString burn
            = u" -vf scale=360:288 -vcodec mpeg4 -qscale 2 -acodec libfaac -ab 128k"_s;
        // clang-format off
        QTest::newRow("trimmed and cropped file")
            << u"-ss 0.5 -t 1 -i %F/movie.mkv -vf crop=100:80:30:20,scale=200:160 -vcodec mpeg4"_s
            << u"v=1 a=1 size=200x160"_s;
        // The file's two seconds, then two of the title.
        QTest::newRow("join of a file and a title cut short")
            << u"-ss 0 -i %F/clip.mp4 -vf scale=320:240 -si -ss 1 -t 2 -pgc 0 -audio_track 0 -i %I "
               "-vf scale=320:180,pad=320:240:0:30 -vcodec mpeg4 -acodec libfaac"_s
            << u"v=4 a=4 size=320x240"_s;
        QTest::newRow("watermark")
            << u"-i %F/clip.mp4 -vf scale=320:240,watermark2=100:50:%M -vcodec mpeg4 -qscale 2"_s
            << u"v=2 a=2 size=320x240 mark=120,65"_s;
        // Sound apart: read from the file's start, the tone sets in where it did.
        QTest::newRow("sound apart keeps the sync")
            << u"-i %D/late-sound.mkv -vf scale=320:240 -vcodec libx264 -ab 128k -ac 2 -ar 44100 "
               "-acodec libfaac"_s << u"v=4 a=4 size=320x240 tone=2.5"_s;
        // A busy machine only lowers the share; a small one leaves an unheld
        // encoder above it even there.
        QTest::newRow("share of the processor")
            << u"-cpu_percent 10 -t 6 -f lavfi -i testsrc2=s=640x480:r=25 -vcodec libx264 "
               "-preset medium -threads 2"_s << u"v=6 size=640x480"_s;
        QTest::newRow("interlaced source")
            << u"-i %D/interlaced.mkv -vf scale=320:240 -vcodec libx264"_s << u"v=2 size=320x240 combs"_s;
        // The title's second track is the 660 Hz one; the first is 440 Hz.
        QTest::newRow("subtitle of a DVD title, second audio track")
            << u"-ss 0 -pgc 0 -audio_track 1 -subtitle %1 -i %I"_s + burn
            << u"len=4.8 size=360x288 pitch=660 shown=1 gone=3.5"_s;
        QTest::newRow("text subtitle") << u"-ss 0 -subtitle %1 -i %F/movie.mkv"_s + burn
            << u"len=3 size=360x288 pitch=440 shown=1 gone=2.5"_s;
        QTest::newRow("picture subtitle") << u"-ss 0 -subtitle %1 -i %F/subpicture.mkv"_s + burn
            << u"len=4.8 size=360x288 shown=1 gone=3.5"_s;
        // clang-format on
    }

    void encodes()
    {
        QFETCH(QString, list);
        QFETCH(QString, checks);
        QHash<QString, QString> check;
        for (const QString &word : words(checks))
            check.insert(word.section(u'=', 0, 0), word.section(u'=', 1));
        const QString out = dir.filePath(u"whole.mp4"_s), clean = dir.filePath(u"clean.mp4"_s);
        list.replace(u"%M"_s, hexText(dir.filePath(QString::fromUtf8(awkward) + u".png"_s)));
        const bool subtitle = list.contains("%1"_L1);
        tms before, after;
        const clock_t start = ::times(&before);
        QVERIFY2(encode(u"-y "_s + (subtitle ? list.arg(0) : list), out) == 0, log.constData());
        const clock_t wall = ::times(&after) - start;
        const double share
            = double(after.tms_cutime + after.tms_cstime - before.tms_cutime - before.tms_cstime)
              / wall;
        const int percent
            = QRegularExpression(u"-cpu_percent (\\d+)"_s).match(list).captured(1).toInt();
        const double allowed = percent / 100.0 * ::sysconf(_SC_NPROCESSORS_ONLN);
        QVERIFY2(percent == 0 || share < allowed * 1.35,
                 qPrintable(u"used %1 of a processor, allowed %2"_s.arg(share).arg(allowed)));
        for (const QString &stream : {u"v"_s, u"a"_s}) {
            const double lasts = probeDuration(out, stream);
            QVERIFY2(!check.contains(stream) || qAbs(lasts - check[stream].toDouble()) < 0.15,
                     qPrintable(stream + QString::number(lasts)));
        }
        QVERIFY(!check.contains(u"len"_s)
                || qAbs(probeDuration(out) - check[u"len"_s].toDouble()) < 0.5);
        const QString size = check.value(u"size"_s);
        QCOMPARE(probe(out, u"stream=width,height"_s, u"v"_s).simplified(),
                 u"width="_s + QString(size).replace(u'x', u" height="_s));
        const int width = size.section(u'x', 0, 0).toInt(), height = size.section(u'x', 1).toInt();
        if (check.contains(u"combs"_s)) {
            const auto fields
                = measure(u"idet"_s, out,
                          "Multi frame detection: TFF: *(\\d+) BFF: *(\\d+) Progressive: *(\\d+)");
            const int whole = fields.captured(3).toInt();
            QVERIFY2(whole > 0
                         && whole >= 9 * (fields.captured(1).toInt() + fields.captured(2).toInt()),
                     qPrintable(fields.capturedTexts().mid(1).join(u' ')));
        }
        if (check.contains(u"mark"_s)) {
            auto red = [](const QColor &c) {
                return c.red() > 200 && c.green() < 60 && c.blue() < 60;
            };
            const QImage frame = grabFrame(out, 0.5, width, height);
            const QStringList at = check[u"mark"_s].split(u',');
            QVERIFY(red(frame.pixelColor(at[0].toInt(), at[1].toInt()))
                    && !red(frame.pixelColor(300, 220)));
        }
        if (check.contains(u"tone"_s)) {
            const auto end
                = measure(u"[0:a]silencedetect=n=-40dB:d=0.3"_s, out, "silence_end: ([0-9.]+)");
            QVERIFY2(qAbs(end.captured(1).toDouble() - check[u"tone"_s].toDouble()) < 0.1,
                     qPrintable(end.captured(1)));
        }
        if (check.contains(u"pitch"_s)) {
            const auto crossings
                = measure(u"[0:a]aresample=48000,astats"_s, out, "Zero crossings rate: ([0-9.]+)");
            const double heard = crossings.captured(1).toDouble() * 48000 / 2;
            QVERIFY2(qAbs(heard - check[u"pitch"_s].toDouble()) < 30,
                     qPrintable(QString::number(heard)));
        }
        if (subtitle) {
            QVERIFY2(encode(u"-y "_s + list.arg(-1), clean) == 0, log.constData());
            auto differing = [&](const QString &at) {
                return differingShare(grabFrame(out, check[at].toDouble(), width, height),
                                      grabFrame(clean, check[at].toDouble(), width, height));
            };
            const double on = differing(u"shown"_s), off = differing(u"gone"_s);
            QVERIFY2(on > 0.002 && off >= 0 && off < 0.001,
                     qPrintable(u"%1 %2"_s.arg(on).arg(off)));
        }
    }

    void failuresSayWhyAndLeaveNoFakeResult_data()
    {
        QTest::addColumn<QString>("damaged"); // the copied title set's files, or ffmpeg
        QTest::addColumn<QString>("list");    // %V the copied VIDEO_TS
        QTest::addColumn<bool>("whole");
        QTest::addColumn<QString>("said"); // lines split at '|'
        const QString copied = u"-y -pgc 0 -audio_track 0 -i %V/VTS_01_0.IFO"_s;
        // clang-format off
        QTest::newRow("missing source") << "" << "-y -i %D/no-such.mkv" << false << "No such file";
        QTest::newRow("pgc out of range") << "" << "-y -pgc 99 -i %I" << false << "cannot read title 99";
        QTest::newRow("not a disc") << "" << "-y -pgc 0 -i %D/VTS_01_0.IFO" << false << "cannot read title 0";
        QTest::newRow("no such audio track")
            << "" << "-y -pgc 0 -audio_track 7 -i %I" << false << "no audio track 7";
        QTest::newRow("no such subtitle")
            << "" << "-y -pgc 0 -subtitle 3 -i %I" << false << "no subtitle track 3";
        // Without -y the user's own file stays as it is.
        QTest::newRow("existing file") << "" << "-i %F/clip.mp4" << false << "already exists";
        // The IFOs say there are 200 PGCs, which once crashed libdvdread.
        QTest::newRow("IFO damaged, backup sound") << "IFO" << copied << true
            << "VTS_01_0.IFO: damaged program chain table; reading its backup";
        QTest::newRow("IFO and backup damaged") << "IFO BUP" << copied << false
            << "cannot read title 0 of the DVD behind|: damaged program chain table, and no sound "
               "backup";
        QTest::newRow("sound encoder fails")
            << "ffmpeg" << "-y -i %F/clip.mp4" << false << "sound encoder gone";
        // Title 0 is sectors 0-96.
        QTest::newRow("VOB cut short") << "VOB" << copied << false
            << "skipped 7 unreadable blocks of title 0|title 0 could not be read whole: unreadable "
               "from sector 90 to the end of the title|removed the unfinished output";
        // clang-format on
    }

    void failuresSayWhyAndLeaveNoFakeResult()
    {
        QFETCH(QString, damaged);
        QFETCH(QString, list);
        QFETCH(bool, whole);
        QFETCH(QString, said);
        QTemporaryDir disc;
        const QString videoTs = copyDisc(QFileInfo(expand(u"%I"_s).first()).path(), disc.path());
        QVERIFY(!videoTs.isEmpty());
        const auto restore = qScopeGuard([] { qunsetenv("KESTROVE_FFMPEG"); });
        for (const QString &part : words(damaged)) {
            const QString file = videoTs + u"/VTS_01_%1.%2"_s.arg(part == "VOB"_L1).arg(part);
            if (part == "ffmpeg"_L1)
                qputenv("KESTROVE_FFMPEG", dir.filePath(u"no-sound-ffmpeg"_s).toLocal8Bit());
            else if (part == "VOB"_L1)
                QVERIFY(QFile::resize(file, 90 * 2048));
            else
                QVERIFY(changeFile(file, [](QByteArray &bytes) {
                    setIfoField(bytes, int(ifoField(bytes, 0xcc, 4)) * 2048, 2, 200);
                }));
        }
        // With -y the program has reserved the name with an empty file.
        const QByteArray before = list.startsWith("-y"_L1) ? "" : "the user's own file";
        const QString out = writeFile(dir.filePath(u"failed.mp4"_s), before);
        const int code = encode(list.replace(u"%V"_s, videoTs)
                                    + u" -vf scale=180:144 -vcodec mpeg4 -acodec libfaac"_s,
                                out);
        QVERIFY2(!log.contains("AddressSanitizer") && (code == 0) == whole, log.constData());
        for (const QString &line : said.split(u'|'))
            QVERIFY2(log.contains(line.toUtf8()), log.constData());
        // Whole, or gone, or as it was.
        if (whole)
            QVERIFY(qAbs(probeDuration(out) - 4.8) < 0.5);
        else
            QCOMPARE(readFile(out), before);
    }

    void fullDiskRemovesTheUnfinishedFile_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("options");
        QTest::newRow("one file") << u"out.mkv"_s << u"-vcodec mpeg4 -b:v 5000000"_s;
        QTest::newRow("picture series") << u"out%03d.png"_s << u"-an"_s;
    }

    void fullDiskRemovesTheUnfinishedFile()
    {
        QFETCH(QString, output);
        QFETCH(QString, options);
        // A tiny file system of its own; a private mount namespace where we aren't root. The
        // program reserves the name of one file, not of a series, with an empty file.
        const QString mountPoint = dir.filePath(u"full"_s);
        QVERIFY(QDir().mkpath(mountPoint));
        const QString script
            = u"mount -t tmpfs -o size=8k none '%1' || exit 99; case '%4' in *%*) ;; *) : > "
              u"'%1/%4';; "
              "esac; '%2' -y -i '%3' %5 '%1/%4'; rc=$?; "
              "if [ -n \"$(ls -A '%1')\" ]; then echo LEFT; ls '%1'; fi; umount '%1'; exit $rc"_s
                  .arg(mountPoint, encoderPath(), fixture(fixtures, "clip.mp4"), output, options);
        const int code = runTool(
            u"unshare"_s, {::geteuid() == 0 ? u"-m"_s : u"-rm"_s, u"sh"_s, u"-c"_s, script}, &log);
        QVERIFY2(code != 99, "could not mount a small file system");
        QVERIFY2(code != 0 && log.contains("kestrove-encoder: error:") && !log.contains("LEFT"),
                 log.constData());
    }

    // Whichever of the front and its three ffmpegs (picture, sound, writer) ends
    // before its time, the others end too, the job fails and leaves no file.
    void anyEndEndsAll_data()
    {
        QTest::addColumn<QByteArray>("killed"); // what its list holds; empty: the front
        QTest::newRow("front stopped") << QByteArray();
        QTest::newRow("picture's ffmpeg killed") << QByteArray("rawvideo");
        QTest::newRow("sound's ffmpeg killed") << QByteArray("-vn");
        QTest::newRow("writing ffmpeg killed") << QByteArray("-copyts");
    }

    void anyEndEndsAll()
    {
        QFETCH(QByteArray, killed);
        const QString out = dir.filePath(u"ended.mp4"_s);
        // Each ffmpeg reads at the pace the source plays, so all three run for its thirty seconds.
        QProcess running;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"KESTROVE_FFMPEG"_s, writePacedFfmpeg(dir.path()));
        running.setProcessEnvironment(environment);
        running.start(encoderPath(),
                      expand(u"-y -i %D/long.mkv -vf scale=320:240 -vcodec libx264 -ab 128k "
                             "-acodec libfaac"_s)
                          << out);
        QVERIFY(running.waitForStarted());
        QTRY_COMPARE_WITH_TIMEOUT(childrenNamed(running.processId(), "ffmpeg").size(), 3, 20000);
        const QList<qint64> encoders = childrenNamed(running.processId(), "ffmpeg");
        QTest::qWait(500);
        qint64 victim = running.processId();
        for (const qint64 pid : encoders) {
            QFile list(u"/proc/%1/cmdline"_s.arg(pid));
            if (!killed.isEmpty() && list.open(QIODevice::ReadOnly) && list.readAll().contains(killed))
                victim = pid;
        }
        QVERIFY(killed.isEmpty() || victim != running.processId());
        ::kill(pid_t(victim), killed.isEmpty() ? SIGTERM : SIGKILL);
        QVERIFY(running.waitForFinished(15000));
        QVERIFY(running.exitStatus() != QProcess::NormalExit || running.exitCode() != 0);
        for (const qint64 pid : encoders)
            QTRY_VERIFY2_WITH_TIMEOUT(processEnded(pid), qPrintable(QString::number(pid)), 5000);
        QVERIFY(!QFile::exists(out));
    }

    // The table of encoder limits against the libavcodec and libavformat that
    // ffmpeg loads: an FFmpeg upgrade that changes a limit shows here.
    void audioEncodersAsLibavcodecHasThem_data()
    {
        QTest::addColumn<QString>("encoder");
        for (const QString &name : EncoderLimits::audioEncoders())
            QTest::newRow(qPrintable(name)) << name;
    }

    void audioEncodersAsLibavcodecHasThem()
    {
        QFETCH(QString, encoder);
        const AVCodec *codec = avcodec_find_encoder_by_name(encoder.toLatin1().constData());
        QVERIFY(codec && codec->type == AVMEDIA_TYPE_AUDIO);
        QSet<int> rates;
        for (const int *rate = codec->supported_samplerates; rate && *rate; ++rate)
            rates.insert(*rate);
        const QList<int> table = EncoderLimits::sampleRates(encoder);
        QCOMPARE(QSet<int>(table.begin(), table.end()), rates);
        // Channels: some encoders list their layouts, others check when they
        // open; so open them.
        auto opens = [codec](int channels, int sampleRate, int bitRate) {
            AVCodecContext *context = avcodec_alloc_context3(codec);
            context->sample_fmt = codec->sample_fmts[0];
            context->sample_rate = sampleRate;
            context->bit_rate = bitRate;
            // ffmpeg takes the encoder's own layout for a channel count where it has one.
            av_channel_layout_default(&context->ch_layout, channels);
            for (const AVChannelLayout *layout = codec->ch_layouts; layout && layout->nb_channels;
                 ++layout) {
                if (layout->nb_channels == channels)
                    av_channel_layout_copy(&context->ch_layout, layout);
            }
            const int result = avcodec_open2(context, codec, nullptr);
            avcodec_free_context(&context);
            return result == 0;
        };
        const int rate = table.isEmpty() ? 44100 : table.first();
        // Vorbis runs on its quality scale, as the front asks for it.
        const int bitRate = codec->id == AV_CODEC_ID_VORBIS ? 0 : 128000;
        const int most = EncoderLimits::maxChannels(encoder);
        QVERIFY(opens(2, rate, bitRate) && opens(most > 0 ? most : 8, rate, bitRate));
        QVERIFY(most == 0 || !opens(most + 1, rate, bitRate));
        // Every bit rate of the table is one the encoder opens with.
        for (const int sampleRate : table) {
            for (const int kbits : EncoderLimits::audioBitRates(encoder, sampleRate))
                QVERIFY2(opens(2, sampleRate, kbits * 1000),
                         qPrintable(u"%1 kbit/s at %2 Hz"_s.arg(kbits).arg(sampleRate)));
        }
    }

    void videoLimitsAndContainerDefaults()
    {
        for (const QString &name : EncoderLimits::videoEncoders()) {
            const AVCodec *codec = avcodec_find_encoder_by_name(name.toLatin1().constData());
            QVERIFY2(codec && codec->supported_framerates, qPrintable(name));
            // The rates it opens with under the standard's rules; the unofficial
            // ones that follow need -strict.
            QList<QPair<int, int>> standard;
            for (const AVRational *rate = codec->supported_framerates;
                 rate->num && rate->num >= 20 * rate->den; ++rate)
                standard << qMakePair(rate->num, rate->den);
            QCOMPARE(EncoderLimits::frameRates(name), standard);
        }
        for (const QString &name : EncoderLimits::containerNames()) {
            const QString file = u"out."_s + name;
            const AVOutputFormat *muxer = av_guess_format(nullptr, qPrintable(file), nullptr);
            QVERIFY2(muxer, qPrintable(name));
            const AVCodec *audio = avcodec_find_encoder(muxer->audio_codec);
            QCOMPARE(EncoderLimits::defaultAudioEncoder(file, {}),
                     QString::fromLatin1(audio ? audio->name : "-"));
            const QString video = EncoderLimits::defaultVideoEncoder(file, {});
            const AVCodec *codec = avcodec_find_encoder(muxer->video_codec);
            if (!video.isEmpty())
                QCOMPARE(video, QString::fromLatin1(codec ? codec->name : "-"));
        }
        // A -f format counts ahead of the extension.
        QCOMPARE(EncoderLimits::defaultAudioEncoder(u"out.bin"_s, u"dv"_s), u"pcm_s16le"_s);
        QVERIFY(EncoderLimits::defaultAudioEncoder(u"out.mp4"_s, {}).isEmpty());
        // The nearest value of a list; a tie goes up.
        const QList<int> rates{48000, 44100, 32000};
        QCOMPARE(
            QList<int>({EncoderLimits::nearest(rates, 22050), EncoderLimits::nearest(rates, 46050),
                        EncoderLimits::nearest(rates, 96000), EncoderLimits::nearest({}, 1234)}),
            QList<int>({32000, 48000, 48000, 1234}));
    }
};

QTEST_GUILESS_MAIN(TestEncoderJob)
#include "tst_encoderjob.moc"
