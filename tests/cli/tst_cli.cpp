#include "ffmpegtools.h"
#include "mediafixtures.h"
#include "processtools.h"
#include "sanitizerreports.h"

#include <QColor>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Words of a command line; "%1" and on are put in after the split, so that
// they may hold spaces.
QStringList words(const QString &line, const QStringList &fill = {})
{
    QStringList words = line.split(u' ', Qt::SkipEmptyParts);
    for (QString &word : words) {
        for (int i = 0; i < fill.size(); ++i)
            word.replace(u"%"_s + QString::number(i + 1), fill[i]);
    }
    return words;
}

// The strings of a JSON array, or `key` of its objects, or its numbers.
QString join(const QJsonValue &array, const QString &key = {})
{
    QStringList parts;
    for (const QJsonValue &value : array.toArray())
        parts << (value.isDouble() ? QString::number(value.toDouble(), 'f', 1)
                  : key.isEmpty()  ? value.toString()
                                   : value[key].toString());
    return parts.join(u'/');
}

// What a scan says about one source, in a line: per disc title
// "name pgc:seconds(chapter starts)[audio labels][subtitle labels]", per
// file "WxH seconds audio:codecs subtitles:n chapters:n".
QString describe(const QJsonObject &source)
{
    QStringList titles;
    for (const QJsonValue &title : source[u"titles"_s].toArray())
        titles << u"%1 %2:%3(%4)[%5][%6]"_s.arg(title[u"name"_s].toString())
                      .arg(title[u"pgc"_s].toInt())
                      .arg(title[u"duration"_s].toDouble(), 0, 'f', 1)
                      .arg(join(title[u"chapters"_s]), join(title[u"audio"_s]),
                           join(title[u"subtitles"_s]));
    if (source[u"kind"_s].toString() == "dvd"_L1)
        return titles.join(u' ');
    const QJsonValue media = source[u"media"_s];
    return u"%1x%2 %3 audio:%4 subtitles:%5 chapters:%6"_s.arg(media[u"width"_s].toInt())
        .arg(media[u"height"_s].toInt())
        .arg(media[u"duration"_s].toDouble(), 0, 'f', 1)
        .arg(join(media[u"audioStreams"_s], u"codec"_s))
        .arg(media[u"subtitleStreams"_s].toArray().size())
        .arg(media[u"chapters"_s].toArray().size());
}

} // namespace

// The real kestrove-cli on the fixture discs and files, with HOME in a
// temporary folder so that the user's settings stay untouched.
class TestCli : public QObject
{
    Q_OBJECT

    struct Result
    {
        int status = -1;
        QByteArray out;
        QString err;
        QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
        QJsonArray tasks() const { return json()[u"tasks"_s].toArray(); }
    };

    QTemporaryDir home;
    QString fixtures;
    QByteArray storedSettings;

    // A fixture, or a file that initTestCase made in the home folder.
    QString input(const QString &name) const
    {
        const QString path = QDir(fixtures).filePath(name);
        return QFileInfo::exists(path) ? path : home.filePath(name);
    }

    Result cli(const QStringList &args, int timeoutMs = 60000,
               const QString &program = QStringLiteral(KESTROVE_CLI))
    {
        QProcess process;
        process.start(program, args);
        Result result;
        if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit) {
            process.kill();
            process.waitForFinished();
            result.err = u"did not end normally"_s;
            return result;
        }
        result.status = process.exitCode();
        result.out = process.readAllStandardOutput();
        result.err = QString::fromUtf8(process.readAllStandardError());
        // The encoders' reports reach the program's standard error.
        for (const QString &line : result.err.split(u'\n')) {
            if (line.contains("Sanitizer"_L1) || line.contains("runtime error:"_L1))
                qWarning("%s", qPrintable(line));
        }
        return result;
    }

    // The frame size, and the shape of the picture inside its bars as shown:
    // "WxH aspect [x,y of the red mark]".
    static void checkShape(const QString &output, const QString &expected)
    {
        const QStringList want = expected.split(u' '), red = want.value(2).split(u',');
        const QStringList stream
            = probe(output, u"stream=width,height,sample_aspect_ratio"_s, u"v:0"_s)
                  .split(QRegularExpression(u"\n|[a-z_]+=|:"_s), Qt::SkipEmptyParts);
        QCOMPARE(stream.mid(0, 2).join(u'x'), want[0]);
        const double pixel = stream.value(2).toDouble() / stream.value(3).toDouble();
        // The picture is what is not black around it.
        const QImage picture = grabFrame(output, 0.5, stream[0].toInt(), stream[1].toInt());
        QRect bounds;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor colour = picture.pixelColor(x, y);
                if (std::max({colour.red(), colour.green(), colour.blue()}) > 48)
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        const double shown = bounds.width() * pixel / bounds.height();
        QVERIFY2(
            std::abs(shown / want[1].toDouble() - 1.0) < 0.01,
            qPrintable(u"%1x%2 shown as %3"_s.arg(bounds.width()).arg(bounds.height()).arg(shown)));
        const QColor mark = picture.pixelColor(red[0].toInt(), red.value(1).toInt());
        QVERIFY(red.size() < 2 || (mark.red() > 128 && mark.blue() < 128));
    }

private slots:
    void init() { failOnChildSanitizerReports(); }

    void initTestCase()
    {
        // The programs started here inherit these.
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("TMPDIR", QFile::encodeName(home.path()));
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_DATA_HOME");
        REQUIRE_MEDIA_FIXTURES(fixtures);
        QVERIFY(!writeFile(home.filePath(u"junk.mp4"_s), QByteArray(4096, 'x')).isEmpty());
        QVERIFY(QDir().mkpath(home.filePath(u"empty"_s)));
        // A file its owner may not read; nobody, who scans it under root, may
        // pass home.
        QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), home.filePath(u"locked.mp4"_s)));
        QVERIFY(QFile::setPermissions(home.filePath(u"locked.mp4"_s), QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(home.path(), QFile::ReadOwner | QFile::WriteOwner
                                                       | QFile::ExeOwner | QFile::ExeOther));

        // A file whose header promises ten seconds, cut off after four; a
        // disc whose VOB lost its second half; a FIFO no one ever writes to.
        const QString cut = home.filePath(u"cut.mkv"_s);
        QCOMPARE(runTool(u"ffmpeg"_s,
                         words(u"-v error -f lavfi -i testsrc2=s=160x120:r=25:d=10 -c:v mpeg4 %1"_s,
                               {cut})),
                 0);
        QVERIFY(QFile::resize(cut, QFileInfo(cut).size() * 4 / 10));
        QCOMPARE(runTool(u"cp"_s, {u"-r"_s, fixture(fixtures, "dvd-ntsc"), input(u"dvd-cut"_s)}),
                 0);
        const QString vob = home.filePath(u"dvd-cut/VIDEO_TS/VTS_01_1.VOB"_s);
        QVERIFY(QFile::resize(vob, QFileInfo(vob).size() / 2 / 2048 * 2048));
        QCOMPARE(::mkfifo(QFile::encodeName(home.filePath(u"fifo.mp4"_s)).constData(), 0600), 0);

        // The user's stored output folder, which no run may change.
        storedSettings = "[Setting]\nOutputDir=" + home.filePath(u"stored"_s).toUtf8()
                         + "\nOutputToSrc=1\nProcessCount=1\n";
        QVERIFY(!writeFile(home.filePath(u".config/Tessarine/Kestrove.conf"_s), storedSettings)
                     .isEmpty());
    }

    void scan_data()
    {
        QTest::addColumn<QString>("paths");    // fixtures, or what initTestCase made
        QTest::addColumn<QString>("expected"); // per source; "error" for a refused one
        // PGCs 2 and 3 repeat PGC 1 and are dropped, as are PGC 4 (0.6 s) and
        // 5 (1.0 s). The red title's chapters are the cells 0-1.2, 1.2-3.0, 3.0-4.2.
        const QString main = u"Title_1 0:4.8(0.0/1.2/3.0)[en AC3 2ch/fr MPEG-1 2ch][de Normal] "
                             "Title_2 1:2.4(0.0)[en AC3 2ch/fr MPEG-1 2ch][] "
                             "Title_3 6:4.8(0.0/1.2/3.0)[en AC3 2ch/fr MPEG-1 2ch][de Normal]"_s;
        for (const char *path : {"dvd-main", "dvd-main/VIDEO_TS", "dvd-main/VIDEO_TS/VTS_01_0.IFO"})
            QTest::newRow(path) << QString::fromLatin1(path) << main;
        QTest::newRow("NTSC disc")
            << u"dvd-ntsc"_s << u"Title_1 0:3.0(0.0/1.2)[ja AC3 2ch/es MPEG-1 2ch][]"_s;
        QTest::newRow("file with chapters and subtitles")
            << u"movie.mkv"_s << u"320x240 3.0 audio:mp2/ac3 subtitles:1 chapters:2"_s;
        QTest::newRow("audio file")
            << u"tone.flac"_s << u"0x0 2.5 audio:flac subtitles:0 chapters:0"_s;
        // The scan goes on past bad sources, and names them.
        QTest::newRow("bad among good")
            << u"junk.mp4 clip.mp4 empty missing.mkv"_s
            << u"error: can not be loaded (not a valid media file, or its format is not supported) "
               u"| "
               "160x120 2.0 audio:aac subtitles:0 chapters:0 | "
               "error: no DVD title set (VIDEO_TS/VTS_01_0.IFO) found | error: no such file or folder"_s;
        QTest::newRow("unreadable")
            << u"locked.mp4"_s << u"error: can not be read: permission denied"_s;
    }

    void scan()
    {
        QFETCH(QString, paths);
        QFETCH(QString, expected);
        QStringList args = words(u"scan --json"_s);
        for (const QString &name : paths.split(u' '))
            args << input(name);
        // Root reads anything: an unreadable file is scanned as nobody.
        const bool asNobody = ::geteuid() == 0 && expected.contains("permission denied"_L1);
        const QStringList nobody = words(u"--reuid=65534 --regid=65534 --clear-groups %1"_s,
                                         {QStringLiteral(KESTROVE_CLI)});
        const auto scan = [&](const QStringList &line) {
            return asNobody ? cli(nobody + line, 60000, u"setpriv"_s) : cli(line);
        };
        const Result result = scan(args);
        QVERIFY2(result.status == (expected.contains("error"_L1) ? 1 : 0), qPrintable(result.err));
        QStringList described;
        for (const QJsonValue &source : result.json()[u"sources"_s].toArray()) {
            const QString path = source[u"path"_s].toString();
            QCOMPARE(path, args.at(described.size() + 2));
            const bool refused = source.toObject().contains(u"error"_s);
            described << (refused ? u"error: "_s + source[u"error"_s].toString()
                                  : describe(source.toObject()));
            QVERIFY(!refused || result.err.contains(path));
            // Titles name the IFO file they are read from, wherever the scan began.
            QString ifo = path;
            if (QFileInfo(path).isDir())
                ifo += path.endsWith("VIDEO_TS"_L1) ? u"/VTS_01_0.IFO"_s
                                                    : u"/VIDEO_TS/VTS_01_0.IFO"_s;
            for (const QJsonValue &title : source[u"titles"_s].toArray())
                QCOMPARE(title[u"ifo"_s].toString(), ifo);
        }
        QCOMPARE(described.join(" | "_L1), expected);

        // Without --json the same titles, for a person.
        const Result plain = scan(args.mid(0, 1) + args.mid(2));
        QCOMPARE(plain.status, result.status);
        QVERIFY(QJsonDocument::fromJson(plain.out).isNull());
        QCOMPARE(plain.out.contains("Title_1"), expected.contains("Title_1"_L1));
    }

    void profiles_data()
    {
        QTest::addColumn<QString>("text"); // searched for; none: the whole listing
        QTest::addColumn<bool>("hits");
        QTest::newRow("all") << QString() << true;
        QTest::newRow("name, any case") << u"IPHONE"_s << true;
        QTest::newRow("extension") << u"(*.webm)"_s << true;
        QTest::newRow("description") << u"container"_s << true;
        QTest::newRow("nothing") << u"no such profile at all"_s << false;
    }

    void profiles()
    {
        QFETCH(QString, text);
        QFETCH(bool, hits);
        const Result found
            = cli(words(u"profiles --json"_s)
                  + (text.isNull() ? QStringList() : QStringList{u"--search"_s, text}));
        QVERIFY2(found.status == 0, qPrintable(found.err));
        QSet<QString> keys;
        int recommended = 0;
        for (const QJsonValue &group : found.json()[u"groups"_s].toArray()) {
            QVERIFY(!group[u"name"_s].toString().isEmpty());
            // A search lists only groups with hits.
            QVERIFY(text.isNull() || !group[u"profiles"_s].toArray().isEmpty());
            for (const QJsonValue &profile : group[u"profiles"_s].toArray()) {
                const QString key = profile[u"key"_s].toString();
                QCOMPARE(key.section(u',', 0, 0).toInt(), group[u"id"_s].toInt(-1));
                QVERIFY2(!keys.contains(key), qPrintable(key));
                keys.insert(key);
                QVERIFY(!profile[u"ext"_s].toString().isEmpty());
                recommended += profile[u"recommended"_s].toBool();
            }
        }
        QCOMPARE(!keys.isEmpty(), hits);
        if (text.isNull()) {
            // Profiles, recommended ones, the MP4 one, and the lines of the
            // listing for a person, one per profile.
            QCOMPARE(u"%1 %2 %3 %4"_s.arg(keys.size())
                         .arg(recommended)
                         .arg(keys.contains(u"1,68"_s))
                         .arg(cli({u"profiles"_s}).out.count("(*.")),
                     u"85 6 1 85"_s);
            return;
        }
        // The hits are exactly the profiles whose name and extension hold the
        // text, or whose description does; the listing has no descriptions,
        // so a hit without the text in its line must come from its description.
        for (const QJsonValue &group :
             cli(words(u"profiles --json"_s)).json()[u"groups"_s].toArray()) {
            for (const QJsonValue &profile : group[u"profiles"_s].toArray()) {
                const QString line = u"%1(*.%2)"_s.arg(profile[u"name"_s].toString(),
                                                       profile[u"ext"_s].toString());
                if (line.contains(text, Qt::CaseInsensitive))
                    QVERIFY2(keys.contains(profile[u"key"_s].toString()), qPrintable(line));
            }
        }
    }

    void convert_data()
    {
        QTest::addColumn<QString>("inputs");
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("status");
        // Per task in the order of the inputs: "title:state:seconds of output".
        QTest::addColumn<QString>("expected");
        // One more check: "jobs N", encoders that must have run at once;
        // "rate R", the frame rate of the output; "error E", what a failed
        // task says, as a pattern; "shape WxH A [X,Y]", the frame, the shown
        // aspect of the picture inside its bars and a point of its red mark.
        QTest::addColumn<QString>("also");
        const auto row = [](const char *name, const char *inputs, const char *options, int status,
                            const char *expected, const char *also = "") {
            QTest::newRow(name) << QString::fromLatin1(inputs) << QString::fromLatin1(options)
                                << status << QString::fromLatin1(expected)
                                << QString::fromLatin1(also);
        };
        row("files and a disc, two encoders", "clip.mp4 movie.mkv dvd-ntsc", "--jobs 2", 0,
            "clip:Succeed:2.0 movie:Succeed:3.0 Title_1:Succeed:3.0", "jobs 2");
        row("a bad input among good ones", "junk.mp4 clip.mp4", "", 1, ":Failed:- clip:Succeed:2.0",
            "jobs 1");
        row("chosen titles and chapters", "dvd-main", "--titles 1,3 --chapters 2-3", 0,
            "Title_1:Succeed:3.0 Title_3:Succeed:3.0");
        row("a title the disc lacks", "dvd-ntsc", "--titles 1,2", 1,
            "Title_2:Failed:- Title_1:Succeed:3.0");
        row("audio track and a parameter", "movie.mkv", "--audio 2 --set b=800 --set s=320x240", 0,
            "movie:Succeed:3.0");
        row("an audio track the input lacks", "clip.mp4 movie.mkv", "--audio 2", 1,
            "clip:Failed:- movie:Succeed:3.0");
        // The recommended iPhone profile: H.264 baseline, 8-bit 4:2:0 only.
        row("a subtitle burnt in, H.264 baseline", "dvd-main",
            "--profile 15,45 --titles 1 --subtitle 1", 0, "Title_1:Succeed:4.8");
        row("10 bits and 4:4:4 to H.264 baseline", "h264-10bit.mkv hevc-10bit.mkv yuv444.mkv",
            "--profile 15,45", 0,
            "h264-10bit:Succeed:1.0 hevc-10bit:Succeed:1.0 yuv444:Succeed:1.0");
        // Its clock set back halfway: the encoder front must not take it for cut short.
        row("a recorder's VOB", "recorder.vob", "", 0, "recorder:Succeed:20.0");
        row("merged into one output", "clip.mp4 movie.mkv", "--merge", 0, "Merge 1:Succeed:5.0");
        // A PAL title with the iPhone profile, whose rate is 29.97: a ceiling
        // unless the user chose it.
        row("a title's own rate", "dvd-main", "--titles 2 --profile 15,45", 0,
            "Title_2:Succeed:2.4", "rate 25/1");
        row("a rate the user chose", "dvd-main", "--titles 2 --profile 15,45 --set r=29.97", 0,
            "Title_2:Succeed:2.4", "rate 30000/1001");
        // A task that fails says why, in the encoder's words, and leaves nothing.
        row("a file cut short", "cut.mkv", "", 1, "cut:Failed:-",
            "error lasts [0-9.]+ s, but the source should give 10.0 s");
        row("a disc whose VOB was cut short", "dvd-cut", "", 1, "Title_1:Failed:-",
            "error lasts [0-9.]+ s, but the source should give 3.0 s");
        row("a FIFO", "fifo.mp4", "", 1, ":Failed:-", "error can not be read: not a regular file");
        // Pixels that are not square, and pictures stored on their side, come
        // out with the shape they are shown with.
        row("16:9 MP4", "wide.mp4", "--set s=Auto", 0, "wide:Succeed:1.0", "shape 1024x576 1.7778");
        row("4:3 Matroska", "narrow.mkv", "--set s=Auto", 0, "narrow:Succeed:1.0",
            "shape 768x576 1.3333");
        row("16:9 MPEG-TS, bars above and below", "wide.ts", "--set s=640x480", 0,
            "wide:Succeed:1.0", "shape 640x480 1.7778");
        row("4:3 MPEG-PS, bars left and right", "narrow.mpg", "--set s=640x360", 0,
            "narrow:Succeed:1.0", "shape 640x360 1.3333");
        // Upright: the stored top left corner turns to the bottom left.
        row("turned a quarter", "turned.mp4", "--set s=Auto", 0, "turned:Succeed:1.0",
            "shape 240x320 0.75 20,300");
    }

    void convert()
    {
        QFETCH(QString, inputs);
        QFETCH(QString, options);
        QFETCH(int, status);
        QFETCH(QString, expected);
        QFETCH(QString, also);
        const QString check = also.section(u' ', 0, 0), value = also.section(u' ', 1);
        QTemporaryDir out;
        QElapsedTimer clock;
        clock.start();
        QStringList args{u"convert"_s};
        for (const QString &name : inputs.split(u' '))
            args << input(name);
        // With the MP4 profile unless the options name another.
        if (!options.contains("--profile"_L1))
            options += u" --profile 1,68"_s;
        const Result result
            = cli(args + words(options + u" --output-dir %1 --json"_s, {out.path()}), 240000);
        QVERIFY2(result.status == status, qPrintable(result.err));

        QStringList tasks;
        for (const QJsonValue &task : result.tasks()) {
            const QString state = task[u"state"_s].toString();
            const QString output = task[u"output"_s].toString();
            QString seconds = u"-"_s;
            if (state == "Succeed"_L1) {
                QCOMPARE(QFileInfo(output).path(), out.path());
                // Within half a second, shown at the expected figure.
                const double duration = probeDuration(output);
                const double wanted
                    = expected.section(task[u"title"_s].toString() + ":Succeed:"_L1, 1)
                          .section(u' ', 0, 0)
                          .toDouble();
                seconds
                    = QString::number(qAbs(duration - wanted) < 0.5 ? wanted : duration, 'f', 1);
                if (check == "rate"_L1)
                    QCOMPARE(probe(output, u"stream=r_frame_rate"_s, u"v"_s).trimmed(),
                             u"r_frame_rate="_s + value);
                if (check == "shape"_L1)
                    checkShape(output, value);
            } else {
                const QString error = task[u"error"_s].toString();
                QVERIFY(output.isEmpty() && !error.isEmpty());
                if (check == "error"_L1)
                    QVERIFY2(QRegularExpression(value).match(error).hasMatch(), qPrintable(error));
            }
            tasks << u"%1:%2:%3"_s.arg(task[u"title"_s].toString(), state, seconds);
            QVERIFY(!task[u"source"_s].toString().isEmpty());
        }
        QCOMPARE(tasks.join(u' '), expected);

        // Standard error is no terminal here: one line per change of state.
        int running = 0, most = 0;
        for (const QString &line : result.err.split(u'\n')) {
            if (line.startsWith("Running: "_L1))
                most = std::max(most, ++running);
            else if (line.startsWith("Succeed: "_L1) || line.startsWith("Failed: "_L1))
                --running;
        }
        QVERIFY(check != "jobs"_L1 || most == value.toInt());
        // Nothing but the outputs is left.
        QCOMPARE(QDir(out.path()).entryList(QDir::Files).size(), expected.count(":Succeed:"_L1));
        // A FIFO is never opened, so the refusal can't wait for a writer.
        if (inputs == "fifo.mp4"_L1)
            QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));

        // The run's output folder never reaches the stored settings.
        QCOMPARE(readFile(home.filePath(u".config/Tessarine/Kestrove.conf"_s)), storedSettings);
        QVERIFY(!QFileInfo::exists(home.filePath(u"stored"_s)));
    }

    // Ctrl-C while encoders run: they are stopped, the waiting task never
    // starts, and the program ends with a report.
    void interruptStopsEveryEncoder()
    {
        // An encoder that never ends, and says who it is; the one that
        // encodes a task's sound apart says so in a file of its own.
        const QString fake
            = writeFile(home.filePath(u"slow-ffmpeg"_s),
                        "#!/bin/sh\ncase \"$*\" in *pipe:1) echo $$ >> \"$0.sound\";; "
                        "*) echo $$ >> \"$0.pids\";; esac\nexec sleep 120\n");
        const QString pids = fake + u".pids"_s;
        QVERIFY(
            QFile::setPermissions(fake, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

        QTemporaryDir out;
        QProcess process;
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(fake));
        process.start(QStringLiteral(KESTROVE_CLI),
                      words(u"convert %1 %2 %3 --profile 1,68 --jobs 2 --output-dir %4 --json"_s,
                            {input(u"clip.mp4"_s), input(u"movie.mkv"_s), input(u"tone.flac"_s),
                             out.path()}));
        qunsetenv("KESTROVE_FFMPEG");
        QVERIFY(process.waitForStarted());
        QTRY_COMPARE_WITH_TIMEOUT(readFile(pids).count('\n'), 2, 60000);
        ::kill(pid_t(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished(30000));
        QCOMPARE(process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, 1);

        const QJsonObject report
            = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QCOMPARE(report[u"interrupted"_s].toBool(), true);
        QStringList states;
        for (const QJsonValue &task : report[u"tasks"_s].toArray())
            states << task[u"state"_s].toString() + u'/' + task[u"error"_s].toString();
        QCOMPARE(states.join(u' '), u"Failed/stopped Failed/stopped Idle/not started"_s);

        // No encoder outlives the program (a zombie has ended too).
        for (const QByteArray &pid : (readFile(pids) + readFile(fake + u".sound"_s)).split('\n'))
            QTRY_VERIFY_WITH_TIMEOUT(pid.isEmpty() || processEnded(pid.toLongLong()), 10000);
        QCOMPARE(readFile(pids).count('\n'), 2);
        // Nothing is left, not even the empty names the queue reserved.
        QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList());
    }

    void nameNotValidUtf8Converts()
    {
        // "café" written in Latin-1: the é is a byte that UTF-8 can't start
        // with. The source is left, by that name.
        QTemporaryDir dir, out;
        const Result result = cli(
            {u"-c"_s,
             u"f=\"$1/$(printf 'caf\\351.mp4')\"; cp \"$3\" \"$f\" || exit 9; \"$0\" "
             "convert \"$f\" --profile 1,68 --output-dir \"$2\" --json; "
             "s=$?; rm \"$f\" || exit 9; exit $s"_s,
             QStringLiteral(KESTROVE_CLI), dir.path(), out.path(), fixture(fixtures, "clip.mp4")},
            120000, u"sh"_s);
        QVERIFY2(result.status == 0, qPrintable(result.err));
        QCOMPARE(result.tasks().at(0)[u"state"_s].toString(), u"Succeed"_s);
        QVERIFY(QFileInfo(result.tasks().at(0)[u"output"_s].toString()).size() > 0);
    }

    void commandLines_data()
    {
        QTest::addColumn<QString>("args"); // MP4: convert movie.mkv --profile 1,68
        QTest::addColumn<QString>("message");
        // Help: how it starts, then what else it mentions.
        for (const char *row :
             {"scan --help => Usage: kestrove-cli scan|--json",
              "profiles --help => Usage: kestrove-cli profiles|--search", " => no command given",
              "transcode => unknown command 'transcode'", "scan => scan: no PATH given",
              "scan --fast x => scan: Unknown option 'fast'",
              "profiles --search => profiles: Missing value after '--search'",
              "profiles movie.mkv => profiles: unexpected argument 'movie.mkv'",
              "convert movie.mkv => convert: --profile KEY is required",
              "convert --profile 1,68 => convert: no INPUT given",
              "convert movie.mkv --profile 9,999 => convert: unknown profile '9,999'",
              "MP4 --set speed=9 => convert: profile 1,68 has no parameter 'speed'",
              "MP4 --set b => convert: --set wants KEY=VALUE, not 'b'",
              "MP4 --titles first => convert: --titles wants N,M or all, not 'first'",
              "MP4 --chapters 3-2 => convert: --chapters wants A-B with 1 <= A <= B, not '3-2'",
              "MP4 --jobs 0 => convert: --jobs wants a number from 1, not '0'",
              "MP4 --audio 0 => convert: --audio wants a track number from 1, not '0'",
              "MP4 --set s=0x240 => convert: --set s: \"0x240\" is no picture size"}) {
            const QString text = QString::fromUtf8(row);
            QTest::newRow(row) << text.section(" => "_L1, 0, 0)
                                      .replace("MP4"_L1, "convert movie.mkv --profile 1,68"_L1)
                               << text.section(" => "_L1, 1);
        }
    }

    // Help goes to standard output; a wrong command line is refused on
    // standard error, before anything is done.
    void commandLines()
    {
        QFETCH(QString, args);
        QFETCH(QString, message);
        const Result result = cli(words(args));
        const bool help = args.endsWith("--help"_L1);
        QCOMPARE(result.status, help ? 0 : 2);
        const QString said = help ? QString::fromUtf8(result.out) : result.err;
        QVERIFY2(!help || said.startsWith(message.section(u'|', 0, 0)), qPrintable(said));
        for (const QString &part : message.split(u'|'))
            QVERIFY2(said.contains(part), qPrintable(said));
        QVERIFY(help || result.out.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
