#include "ffmpegtools.h"
#include "mediafixtures.h"
#include "sanitizerreports.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <QColor>
#include <QElapsedTimer>

#include <algorithm>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

// The real kestrove-cli on the fixture discs and files, with HOME in a
// temporary folder so that the user's settings stay untouched.
class TestCli : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnChildSanitizerReports(); }
    void initTestCase();
    void scanDiscsAndFiles_data();
    void scanDiscsAndFiles();
    void scanKeepsGoingPastBadInput();
    void profiles();
    void profileSearch_data();
    void profileSearch();
    void convert_data();
    void convert();
    void convertKeepsTheShape_data();
    void convertKeepsTheShape();
    void interruptStopsEveryEncoder();
    void failuresSayWhy_data();
    void failuresSayWhy();
    void unreadableFileSaysPermissionDenied();
    void nameNotValidUtf8Converts();
    void frameRateOfATitle_data();
    void frameRateOfATitle();
    void help_data();
    void help();
    void wrongArguments_data();
    void wrongArguments();

private:
    struct Result
    {
        int status = -1;
        QByteArray out;
        QString err;
        QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
    };
    Result cli(const QStringList &args, int timeoutMs = 60000);
    QProcessEnvironment environment() const;
    QString input(const QString &name) const;

    QTemporaryDir home;
    QString fixtures;
    QByteArray storedSettings;
};

QProcessEnvironment TestCli::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HOME"), home.path());
    env.remove(QStringLiteral("XDG_CONFIG_HOME"));
    env.remove(QStringLiteral("XDG_DATA_HOME"));
    env.insert(QStringLiteral("TMPDIR"), home.path());
    return env;
}

// A fixture, or a file that initTestCase made in the home folder.
QString TestCli::input(const QString &name) const
{
    const QString path = QDir(fixtures).filePath(name);
    return QFileInfo::exists(path) ? path : QDir(home.path()).filePath(name);
}

TestCli::Result TestCli::cli(const QStringList &args, int timeoutMs)
{
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(KESTROVE_CLI), args);
    Result result;
    if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        result.err = QStringLiteral("did not end normally");
        return result;
    }
    result.status = process.exitCode();
    result.out = process.readAllStandardOutput();
    result.err = QString::fromUtf8(process.readAllStandardError());
    // The encoders' reports reach the program's standard error.
    for (const QString &line : result.err.split(QLatin1Char('\n'))) {
        if (line.contains(QLatin1String("Sanitizer")) || line.contains(QLatin1String("runtime error:")))
            qWarning("%s", qPrintable(line));
    }
    return result;
}

void TestCli::initTestCase()
{
    QVERIFY(home.isValid());
    fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the fixture script failed (ffmpeg, dvdauthor, spumux?)");

    QFile junk(QDir(home.path()).filePath(QStringLiteral("junk.mp4")));
    QVERIFY(junk.open(QIODevice::WriteOnly));
    junk.write(QByteArray(4096, 'x'));
    junk.close();

    // A file whose header promises ten seconds, cut off after four; a disc
    // whose VOB lost its second half; a FIFO no one ever writes to.
    const auto run = [](const QString &program, const QStringList &args) {
        QProcess process;
        process.start(program, args);
        return process.waitForFinished(60000) ? process.exitCode() : -1;
    };
    const QString cut = home.filePath(QStringLiteral("cut.mkv"));
    QCOMPARE(run(QStringLiteral("ffmpeg"),
                     {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                      QStringLiteral("lavfi"), QStringLiteral("-i"),
                      QStringLiteral("testsrc2=s=160x120:r=25:d=10"), QStringLiteral("-c:v"),
                      QStringLiteral("mpeg4"), cut}),
             0);
    QVERIFY(QFile::resize(cut, QFileInfo(cut).size() * 4 / 10));
    QCOMPARE(run(QStringLiteral("cp"), {QStringLiteral("-r"), fixture(fixtures, "dvd-ntsc"),
                                            home.filePath(QStringLiteral("dvd-cut"))}),
             0);
    const QString vob = home.filePath(QStringLiteral("dvd-cut/VIDEO_TS/VTS_01_1.VOB"));
    QVERIFY(QFile::resize(vob, QFileInfo(vob).size() / 2 / 2048 * 2048));
    QCOMPARE(::mkfifo(QFile::encodeName(home.filePath(QStringLiteral("fifo.mp4"))).constData(), 0600),
             0);

    // The user's stored output folder, which no run may change.
    const QString config = home.filePath(QStringLiteral(".config/Tessarine"));
    QVERIFY(QDir().mkpath(config));
    QFile settings(config + QStringLiteral("/Kestrove.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    storedSettings = "[Setting]\nOutputDir=" + home.filePath(QStringLiteral("stored")).toUtf8()
                     + "\nOutputToSrc=1\nProcessCount=1\n";
    settings.write(storedSettings);
}

// What a scan says about one source, in a line: per disc title
// "pgc:seconds(chapter starts)[audio/labels][subtitle labels]", per file
// "WxH seconds audio:codecs subtitles:n chapters:n".
static QString describe(const QJsonObject &source)
{
    QStringList parts;
    const auto number = [](double value) {
        return QString::number(value, 'f', 1);
    };
    if (source.value(QStringLiteral("kind")).toString() == QLatin1String("dvd")) {
        for (const auto &value : source.value(QStringLiteral("titles")).toArray()) {
            const QJsonObject title = value.toObject();
            QStringList chapters, audio, subtitles;
            for (const auto &start : title.value(QStringLiteral("chapters")).toArray())
                chapters << number(start.toDouble());
            for (const auto &label : title.value(QStringLiteral("audio")).toArray())
                audio << label.toString();
            for (const auto &label : title.value(QStringLiteral("subtitles")).toArray())
                subtitles << label.toString();
            parts << QStringLiteral("%1 %2:%3(%4)[%5][%6]")
                         .arg(title.value(QStringLiteral("name")).toString())
                         .arg(title.value(QStringLiteral("pgc")).toInt())
                         .arg(number(title.value(QStringLiteral("duration")).toDouble()),
                              chapters.join(QLatin1Char(',')), audio.join(QLatin1Char('/')),
                              subtitles.join(QLatin1Char('/')));
        }
        return parts.join(QLatin1Char(' '));
    }
    const QJsonObject media = source.value(QStringLiteral("media")).toObject();
    QStringList codecs;
    for (const auto &value : media.value(QStringLiteral("audioStreams")).toArray())
        codecs << value.toObject().value(QStringLiteral("codec")).toString();
    return QStringLiteral("%1x%2 %3 audio:%4 subtitles:%5 chapters:%6")
        .arg(media.value(QStringLiteral("width")).toInt())
        .arg(media.value(QStringLiteral("height")).toInt())
        .arg(number(media.value(QStringLiteral("duration")).toDouble()),
             codecs.join(QLatin1Char(',')))
        .arg(media.value(QStringLiteral("subtitleStreams")).toArray().size())
        .arg(media.value(QStringLiteral("chapters")).toArray().size());
}

void TestCli::scanDiscsAndFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("expected");

    // PGCs 2 and 3 repeat PGC 1 and are dropped, as are PGC 4 (0.6 s) and 5
    // (1.0 s). The red title's chapters are the cells 0-1.2, 1.2-3.0, 3.0-4.2.
    const QString main
        = QStringLiteral("Title_1 0:4.8(0.0,1.2,3.0)[en AC3 2ch/fr MPEG-1 2ch][de Normal] "
                         "Title_2 1:2.4(0.0)[en AC3 2ch/fr MPEG-1 2ch][] "
                         "Title_3 6:4.8(0.0,1.2,3.0)[en AC3 2ch/fr MPEG-1 2ch][de Normal]");
    QTest::newRow("disc root") << fixture(fixtures, "dvd-main") << "dvd" << main;
    QTest::newRow("VIDEO_TS") << fixture(fixtures, "dvd-main/VIDEO_TS") << "dvd" << main;
    QTest::newRow("IFO file") << fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO") << "dvd"
                              << main;
    QTest::newRow("NTSC disc") << fixture(fixtures, "dvd-ntsc") << "dvd"
                               << "Title_1 0:3.0(0.0,1.2)[ja AC3 2ch/es MPEG-1 2ch][]";
    QTest::newRow("file with chapters and subtitles")
        << fixture(fixtures, "movie.mkv") << "file"
        << "320x240 3.0 audio:mp2,ac3 subtitles:1 chapters:2";
    QTest::newRow("audio file") << fixture(fixtures, "tone.flac") << "file"
                                << "0x0 2.5 audio:flac subtitles:0 chapters:0";
}

void TestCli::scanDiscsAndFiles()
{
    QFETCH(QString, path);
    QFETCH(QString, kind);
    QFETCH(QString, expected);

    const Result result = cli({QStringLiteral("scan"), QStringLiteral("--json"), path});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    const QJsonArray sources = result.json().value(QStringLiteral("sources")).toArray();
    QCOMPARE(sources.size(), 1);
    const QJsonObject source = sources.first().toObject();
    QCOMPARE(source.value(QStringLiteral("path")).toString(), path);
    QCOMPARE(source.value(QStringLiteral("kind")).toString(), kind);
    QCOMPARE(describe(source), expected);
    // Titles name the IFO file they are read from, wherever the scan began.
    QString ifo = path;
    if (QFileInfo(path).isDir())
        ifo += path.endsWith(QLatin1String("VIDEO_TS")) ? QStringLiteral("/VTS_01_0.IFO")
                                                        : QStringLiteral("/VIDEO_TS/VTS_01_0.IFO");
    for (const auto &title : source.value(QStringLiteral("titles")).toArray())
        QCOMPARE(title.toObject().value(QStringLiteral("ifo")).toString(), ifo);

    // Without --json the same titles, for a person.
    const Result plain = cli({QStringLiteral("scan"), path});
    QCOMPARE(plain.status, 0);
    QVERIFY(QJsonDocument::fromJson(plain.out).isNull());
    if (kind == QLatin1String("dvd"))
        QVERIFY(plain.out.contains("Title_1"));
}

void TestCli::scanKeepsGoingPastBadInput()
{
    QTemporaryDir dir;
    const QString junk = dir.filePath(QStringLiteral("junk.mp4"));
    QFile file(junk);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    const QString empty = dir.filePath(QStringLiteral("empty"));
    QVERIFY(QDir().mkpath(empty));

    const Result result
        = cli({QStringLiteral("scan"), QStringLiteral("--json"), junk,
               fixture(fixtures, "clip.mp4"), empty, dir.filePath(QStringLiteral("missing.mkv"))});
    QCOMPARE(result.status, 1);
    const QJsonArray sources = result.json().value(QStringLiteral("sources")).toArray();
    QCOMPARE(sources.size(), 4);
    QStringList errors;
    for (const auto &value : sources)
        errors << QString::number(value.toObject().contains(QStringLiteral("error")));
    QCOMPARE(errors.join(QLatin1Char(' ')), QStringLiteral("1 0 1 1"));
    QCOMPARE(describe(sources.at(1).toObject()),
             QStringLiteral("160x120 2.0 audio:aac subtitles:0 chapters:0"));
    QVERIFY2(result.err.contains(junk) && result.err.contains(QStringLiteral("missing.mkv")),
             qPrintable(result.err));
}

void TestCli::profiles()
{
    const Result result = cli({QStringLiteral("profiles"), QStringLiteral("--json")});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    const QJsonArray groups = result.json().value(QStringLiteral("groups")).toArray();
    QVERIFY(groups.size() > 10);
    QSet<QString> keys;
    QStringList recommended;
    int profiles = 0;
    for (const auto &groupValue : groups) {
        const QJsonObject group = groupValue.toObject();
        QVERIFY(!group.value(QStringLiteral("name")).toString().isEmpty());
        const int groupId = group.value(QStringLiteral("id")).toInt(-1);
        for (const auto &value : group.value(QStringLiteral("profiles")).toArray()) {
            const QJsonObject profile = value.toObject();
            const QString key = profile.value(QStringLiteral("key")).toString();
            QCOMPARE(key.section(QLatin1Char(','), 0, 0).toInt(), groupId);
            QVERIFY2(!keys.contains(key), qPrintable(key));
            keys.insert(key);
            QVERIFY(!profile.value(QStringLiteral("ext")).toString().isEmpty());
            if (profile.value(QStringLiteral("recommended")).toBool())
                recommended << profile.value(QStringLiteral("name")).toString();
            ++profiles;
        }
    }
    QCOMPARE(profiles, 85);
    QCOMPARE(recommended.size(), 6);
    QVERIFY(keys.contains(QStringLiteral("1,68")));

    // The listing for a person has one line per profile with its key.
    const Result plain = cli({QStringLiteral("profiles")});
    QCOMPARE(plain.status, 0);
    QCOMPARE(plain.out.count("(*."), 85);
}

void TestCli::profileSearch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hits");
    QTest::newRow("name, any case") << "IPHONE" << true;
    QTest::newRow("extension") << "(*.webm)" << true;
    QTest::newRow("description") << "container" << true;
    QTest::newRow("nothing") << "no such profile at all" << false;
}

void TestCli::profileSearch()
{
    QFETCH(QString, text);
    QFETCH(bool, hits);

    const Result all = cli({QStringLiteral("profiles"), QStringLiteral("--json")});
    const Result found = cli(
        {QStringLiteral("profiles"), QStringLiteral("--search"), text, QStringLiteral("--json")});
    QCOMPARE(found.status, 0);
    // The hits are exactly the profiles whose name and extension hold the
    // text, or whose description does; the listing has no descriptions, so
    // a hit without the text in its line must come from its description.
    QSet<QString> hitKeys;
    for (const auto &group : found.json().value(QStringLiteral("groups")).toArray()) {
        QVERIFY(!group.toObject().value(QStringLiteral("profiles")).toArray().isEmpty());
        for (const auto &profile : group.toObject().value(QStringLiteral("profiles")).toArray())
            hitKeys.insert(profile.toObject().value(QStringLiteral("key")).toString());
    }
    QCOMPARE(!hitKeys.isEmpty(), hits);
    for (const auto &group : all.json().value(QStringLiteral("groups")).toArray()) {
        for (const auto &value : group.toObject().value(QStringLiteral("profiles")).toArray()) {
            const QJsonObject profile = value.toObject();
            const QString line = QStringLiteral("%1(*.%2)")
                                     .arg(profile.value(QStringLiteral("name")).toString(),
                                          profile.value(QStringLiteral("ext")).toString());
            if (line.contains(text, Qt::CaseInsensitive))
                QVERIFY2(hitKeys.contains(profile.value(QStringLiteral("key")).toString()),
                         qPrintable(line));
        }
    }
}

void TestCli::convert_data()
{
    QTest::addColumn<QStringList>("inputs");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("status");
    // Per task in the order of the inputs: "title:state:seconds of output".
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("jobs"); // encoders that must have run at once; 0: not looked at

    const QStringList mp4{QStringLiteral("--profile"), QStringLiteral("1,68")};
    QTest::newRow("files and a disc, two encoders")
        << QStringList{QStringLiteral("clip.mp4"), QStringLiteral("movie.mkv"),
                       QStringLiteral("dvd-ntsc")}
        << mp4 + QStringList{QStringLiteral("--jobs"), QStringLiteral("2")} << 0
        << "clip:Succeed:2.0 movie:Succeed:3.0 Title_1:Succeed:3.0" << 2;
    QTest::newRow("a bad input among good ones")
        << QStringList{QStringLiteral("junk.mp4"), QStringLiteral("clip.mp4")} << mp4 << 1
        << ":Failed:- clip:Succeed:2.0" << 1;
    QTest::newRow("chosen titles and chapters")
        << QStringList{QStringLiteral("dvd-main")}
        << mp4
               + QStringList{QStringLiteral("--titles"), QStringLiteral("1,3"),
                             QStringLiteral("--chapters"), QStringLiteral("2-3")}
        << 0 << "Title_1:Succeed:3.0 Title_3:Succeed:3.0" << 0;
    QTest::newRow("a title the disc lacks")
        << QStringList{QStringLiteral("dvd-ntsc")}
        << mp4 + QStringList{QStringLiteral("--titles"), QStringLiteral("1,2")} << 1
        << "Title_2:Failed:- Title_1:Succeed:3.0" << 0;
    QTest::newRow("audio track and a parameter")
        << QStringList{QStringLiteral("movie.mkv")}
        << mp4
               + QStringList{QStringLiteral("--audio"), QStringLiteral("2"),
                             QStringLiteral("--set"), QStringLiteral("b=800"),
                             QStringLiteral("--set"), QStringLiteral("s=320x240")}
        << 0 << "movie:Succeed:3.0" << 0;
    QTest::newRow("an audio track the input lacks")
        << QStringList{QStringLiteral("clip.mp4"), QStringLiteral("movie.mkv")}
        << mp4 + QStringList{QStringLiteral("--audio"), QStringLiteral("2")} << 1
        << "clip:Failed:- movie:Succeed:3.0" << 0;
    // The recommended iPhone profile: H.264 baseline, 8-bit 4:2:0 only.
    const QStringList iphone{QStringLiteral("--profile"), QStringLiteral("15,45")};
    QTest::newRow("a subtitle burnt in, H.264 baseline")
        << QStringList{QStringLiteral("dvd-main")}
        << iphone
               + QStringList{QStringLiteral("--titles"), QStringLiteral("1"),
                             QStringLiteral("--subtitle"), QStringLiteral("1")}
        << 0 << "Title_1:Succeed:4.8" << 0;
    QTest::newRow("10 bits and 4:4:4 to H.264 baseline")
        << QStringList{QStringLiteral("h264-10bit.mkv"), QStringLiteral("hevc-10bit.mkv"),
                       QStringLiteral("yuv444.mkv")}
        << iphone << 0 << "h264-10bit:Succeed:1.0 hevc-10bit:Succeed:1.0 yuv444:Succeed:1.0" << 0;
    // Its clock set back halfway: the encoder front must not take it for cut short.
    QTest::newRow("a recorder's VOB")
        << QStringList{QStringLiteral("recorder.vob")} << mp4 << 0 << "recorder:Succeed:20.0" << 0;
    QTest::newRow("merged into one output")
        << QStringList{QStringLiteral("clip.mp4"), QStringLiteral("movie.mkv")}
        << mp4 + QStringList{QStringLiteral("--merge")} << 0 << "Merge 1:Succeed:5.0" << 0;
}

void TestCli::convert()
{
    QFETCH(QStringList, inputs);
    QFETCH(QStringList, options);
    QFETCH(int, status);
    QFETCH(QString, expected);
    QFETCH(int, jobs);

    QTemporaryDir out;
    QStringList args{QStringLiteral("convert")};
    for (const QString &name : std::as_const(inputs))
        args << input(name);
    args << options << QStringLiteral("--output-dir") << out.path() << QStringLiteral("--json");
    const Result result = cli(args, 240000);
    QVERIFY2(result.status == status, qPrintable(result.err));

    QStringList tasks;
    for (const auto &value : result.json().value(QStringLiteral("tasks")).toArray()) {
        const QJsonObject task = value.toObject();
        const QString state = task.value(QStringLiteral("state")).toString();
        const QString output = task.value(QStringLiteral("output")).toString();
        QString seconds = QStringLiteral("-");
        if (state == QLatin1String("Succeed")) {
            QCOMPARE(QFileInfo(output).path(), out.path());
            const double duration = probeDuration(output);
            // Within half a second, shown at the expected figure.
            seconds = QString::number(duration, 'f', 1);
            const double wanted = expected
                                      .section(task.value(QStringLiteral("title")).toString()
                                                   + QStringLiteral(":Succeed:"),
                                               1)
                                      .section(QLatin1Char(' '), 0, 0)
                                      .toDouble();
            if (qAbs(duration - wanted) < 0.5)
                seconds = QString::number(wanted, 'f', 1);
        } else {
            QVERIFY(output.isEmpty());
            QVERIFY(!task.value(QStringLiteral("error")).toString().isEmpty());
        }
        tasks << QStringLiteral("%1:%2:%3")
                     .arg(task.value(QStringLiteral("title")).toString(), state, seconds);
        QVERIFY(!task.value(QStringLiteral("source")).toString().isEmpty());
    }
    QCOMPARE(tasks.join(QLatin1Char(' ')), expected);

    // Standard error is no terminal here: one line per change of state.
    if (jobs > 0) {
        int running = 0, most = 0;
        for (const QString &line : result.err.split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String("Running: ")))
                most = std::max(most, ++running);
            else if (line.startsWith(QLatin1String("Succeed: "))
                     || line.startsWith(QLatin1String("Failed: ")))
                --running;
        }
        QCOMPARE(most, jobs);
    }

    // The run's output folder never reaches the stored settings.
    QFile settings(home.filePath(QStringLiteral(".config/Tessarine/Kestrove.conf")));
    QVERIFY(settings.open(QIODevice::ReadOnly));
    QCOMPARE(settings.readAll(), storedSettings);
    QVERIFY(!QFileInfo::exists(home.filePath(QStringLiteral("stored"))));
}

void TestCli::convertKeepsTheShape_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("size"); // the profile's; Auto: the source's as shown
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<double>("aspect"); // of the picture inside the bars, as shown
    QTest::addColumn<QPoint>("red");    // a point of the red mark, if the source has one

    QTest::newRow("16:9 MP4") << "wide.mp4"
                              << "Auto" << QSize(1024, 576) << 16.0 / 9.0 << QPoint();
    QTest::newRow("4:3 Matroska") << "narrow.mkv"
                                  << "Auto" << QSize(768, 576) << 4.0 / 3.0 << QPoint();
    QTest::newRow("16:9 MPEG-TS, bars above and below")
        << "wide.ts"
        << "640x480" << QSize(640, 480) << 16.0 / 9.0 << QPoint();
    QTest::newRow("4:3 MPEG-PS, bars left and right")
        << "narrow.mpg"
        << "640x360" << QSize(640, 360) << 4.0 / 3.0 << QPoint();
    // Upright: the stored top left corner turns to the bottom left.
    QTest::newRow("turned a quarter") << "turned.mp4"
                                      << "Auto" << QSize(240, 320) << 0.75 << QPoint(20, 300);
}

// Pixels that are not square, and pictures stored on their side, come out
// with the shape they are shown with.
void TestCli::convertKeepsTheShape()
{
    QFETCH(QString, input);
    QFETCH(QString, size);
    QFETCH(QSize, frame);
    QFETCH(double, aspect);
    QFETCH(QPoint, red);

    QTemporaryDir out;
    const Result result
        = cli({QStringLiteral("convert"), this->input(input), QStringLiteral("--profile"),
               QStringLiteral("1,68"), QStringLiteral("--set"), QStringLiteral("s=") + size,
               QStringLiteral("--output-dir"), out.path(), QStringLiteral("--json")});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    const QString output = result.json()
                               .value(QStringLiteral("tasks"))
                               .toArray()
                               .at(0)
                               .toObject()
                               .value(QStringLiteral("output"))
                               .toString();
    const QString stream = probe(output, QStringLiteral("stream=width,height,sample_aspect_ratio"),
                                 QStringLiteral("v:0"));
    const QRegularExpressionMatch shape
        = QRegularExpression(QStringLiteral("width=(\\d+)\nheight=(\\d+)\n"
                                            "sample_aspect_ratio=(\\d+):(\\d+)"))
              .match(stream);
    QVERIFY2(shape.hasMatch(), qPrintable(stream));
    QCOMPARE(QSize(shape.captured(1).toInt(), shape.captured(2).toInt()), frame);
    const double pixel = shape.captured(3).toDouble() / shape.captured(4).toDouble();

    // The picture is what is not black around it.
    const QImage picture = grabFrame(output, 0.5, frame.width(), frame.height());
    QVERIFY(!picture.isNull());
    QRect bounds;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            if (std::max({colour.red(), colour.green(), colour.blue()}) > 48)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    const double shown = bounds.width() * pixel / bounds.height();
    QVERIFY2(std::abs(shown / aspect - 1.0) < 0.01, qPrintable(QStringLiteral("%1x%2 shown as %3")
                                                                   .arg(bounds.width())
                                                                   .arg(bounds.height())
                                                                   .arg(shown)));
    if (!red.isNull())
        QCOMPARE(picture.pixelColor(red).red() > 128 && picture.pixelColor(red).blue() < 128, true);
}

// Ctrl-C while encoders run: they are stopped, the waiting task never
// starts, and the program ends with a report.
void TestCli::interruptStopsEveryEncoder()
{
    // An encoder that never ends, and says who it is; the one that encodes
    // a task's sound apart says so in a file of its own.
    const QString pids = home.filePath(QStringLiteral("encoder.pids"));
    const QString soundPids = home.filePath(QStringLiteral("sound.pids"));
    const QString fake = home.filePath(QStringLiteral("slow-ffmpeg"));
    QFile script(fake);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\ncase \"$*\" in *pipe:1) echo $$ >> '" + soundPids.toUtf8()
                 + "';; *) echo $$ >> '" + pids.toUtf8() + "';; esac\nexec sleep 120\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

    QTemporaryDir out;
    QProcess process;
    QProcessEnvironment env = environment();
    env.insert(QStringLiteral("KESTROVE_FFMPEG"), fake);
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(KESTROVE_CLI),
                  {QStringLiteral("convert"), input(QStringLiteral("clip.mp4")),
                   input(QStringLiteral("movie.mkv")), input(QStringLiteral("tone.flac")),
                   QStringLiteral("--profile"), QStringLiteral("1,68"), QStringLiteral("--jobs"),
                   QStringLiteral("2"), QStringLiteral("--output-dir"), out.path(),
                   QStringLiteral("--json")});
    QVERIFY(process.waitForStarted());
    auto started = [&pids] {
        QFile file(pids);
        return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
    };
    QTRY_COMPARE_WITH_TIMEOUT(started(), 2, 60000);
    ::kill(pid_t(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);

    const QJsonObject report = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    QCOMPARE(report.value(QStringLiteral("interrupted")).toBool(), true);
    QStringList states;
    for (const auto &value : report.value(QStringLiteral("tasks")).toArray())
        states << value.toObject().value(QStringLiteral("state")).toString() + QLatin1Char('/')
                      + value.toObject().value(QStringLiteral("error")).toString();
    QCOMPARE(states.join(QLatin1Char(' ')),
             QStringLiteral("Failed/stopped Failed/stopped Idle/not started"));

    // No encoder outlives the program (a zombie has ended too).
    QFile file(pids), soundFile(soundPids);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray all = file.readAll();
    if (soundFile.open(QIODevice::ReadOnly))
        all += soundFile.readAll();
    for (const QByteArray &line : all.split('\n')) {
        if (line.isEmpty())
            continue;
        auto gone = [&line] {
            QFile stat(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(line)));
            return !stat.open(QIODevice::ReadOnly) || stat.readAll().contains(") Z ");
        };
        QTRY_VERIFY_WITH_TIMEOUT(gone(), 10000);
    }
    QCOMPARE(started(), 2);
    // Nothing is left, not even the empty names the queue reserved.
    QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList());
}

void TestCli::failuresSayWhy_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("error");
    QTest::newRow("a file cut short")
        << "cut.mkv" << "lasts [0-9.]+ s, but the source should give 10.0 s";
    QTest::newRow("a disc whose VOB was cut short")
        << "dvd-cut" << "lasts [0-9.]+ s, but the source should give 3.0 s";
    QTest::newRow("a FIFO") << "fifo.mp4" << "can not be read: not a regular file";
}

// A task that fails says why, in the encoder's words, and leaves nothing.
void TestCli::failuresSayWhy()
{
    QFETCH(QString, input);
    QFETCH(QString, error);
    QTemporaryDir out;
    QElapsedTimer clock;
    clock.start();
    const Result result = cli({QStringLiteral("convert"), this->input(input),
                               QStringLiteral("--profile"), QStringLiteral("1,68"),
                               QStringLiteral("--output-dir"), out.path(), QStringLiteral("--json")});
    QVERIFY2(result.status == 1, qPrintable(result.err));
    const QJsonArray tasks = result.json().value(QStringLiteral("tasks")).toArray();
    QCOMPARE(tasks.size(), 1);
    const QJsonObject task = tasks.at(0).toObject();
    QCOMPARE(task.value(QStringLiteral("state")).toString(), QStringLiteral("Failed"));
    const QString said = task.value(QStringLiteral("error")).toString();
    QVERIFY2(QRegularExpression(error).match(said).hasMatch(), qPrintable(said));
    QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList());
    // A FIFO is never opened, so the refusal can't wait for a writer.
    if (input == QLatin1String("fifo.mp4"))
        QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
}

void TestCli::unreadableFileSaysPermissionDenied()
{
    // Root reads anything: the scan then runs as nobody.
    QTemporaryDir dir;
    QVERIFY(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner
                                                  | QFile::ExeOwner | QFile::ExeOther));
    const QString file = dir.filePath(QStringLiteral("locked.mp4"));
    QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), file));
    QVERIFY(QFile::setPermissions(file, QFile::WriteOwner));
    QStringList command{QStringLiteral(KESTROVE_CLI), QStringLiteral("scan"),
                        QStringLiteral("--json"), file};
    if (::geteuid() == 0)
        command = QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=65534"),
                              QStringLiteral("--regid=65534"), QStringLiteral("--clear-groups")}
                  + command;
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(command.takeFirst(), command);
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 1);
    const QJsonArray sources = QJsonDocument::fromJson(process.readAllStandardOutput())
                                   .object()
                                   .value(QStringLiteral("sources"))
                                   .toArray();
    QCOMPARE(sources.size(), 1);
    const QString error = sources.at(0).toObject().value(QStringLiteral("error")).toString();
    QVERIFY2(error.contains(QStringLiteral("permission denied")), qPrintable(error));
}

void TestCli::nameNotValidUtf8Converts()
{
    // "café" written in Latin-1: the é is a byte that UTF-8 can't start with.
    QTemporaryDir dir, out;
    const QByteArray name = QFile::encodeName(dir.path()) + "/caf\xe9.mp4";
    QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), dir.filePath(QStringLiteral("plain.mp4"))));
    QCOMPARE(::rename(QFile::encodeName(dir.filePath(QStringLiteral("plain.mp4"))).constData(),
                      name.constData()),
             0);
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral("sh"),
                  {QStringLiteral("-c"),
                   QStringLiteral("exec \"$0\" convert \"$1/$(printf 'caf\\351.mp4')\" --profile "
                                  "1,68 --output-dir \"$2\" --json"),
                   QStringLiteral(KESTROVE_CLI), dir.path(), out.path()});
    QVERIFY(process.waitForFinished(120000));
    const QByteArray err = process.readAllStandardError();
    QVERIFY2(process.exitCode() == 0, err.constData());
    const QJsonObject task = QJsonDocument::fromJson(process.readAllStandardOutput())
                                 .object()
                                 .value(QStringLiteral("tasks"))
                                 .toArray()
                                 .at(0)
                                 .toObject();
    QCOMPARE(task.value(QStringLiteral("state")).toString(), QStringLiteral("Succeed"));
    QVERIFY(QFileInfo(task.value(QStringLiteral("output")).toString()).size() > 0);
    // QTemporaryDir can't name it either.
    QCOMPARE(::unlink(name.constData()), 0);
}

void TestCli::frameRateOfATitle_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("rate");
    QTest::newRow("the profile's rate is a ceiling") << QStringList() << "25/1";
    QTest::newRow("a rate the user chose")
        << QStringList{QStringLiteral("--set"), QStringLiteral("r=29.97")} << "30000/1001";
}

// A PAL title with the recommended iPhone profile, whose rate is 29.97.
void TestCli::frameRateOfATitle()
{
    QFETCH(QStringList, options);
    QFETCH(QString, rate);
    QTemporaryDir out;
    const Result result = cli(QStringList{QStringLiteral("convert"), input(QStringLiteral("dvd-main")),
                                          QStringLiteral("--titles"), QStringLiteral("2"),
                                          QStringLiteral("--profile"), QStringLiteral("15,45"),
                                          QStringLiteral("--output-dir"), out.path(),
                                          QStringLiteral("--json")}
                              + options);
    QVERIFY2(result.status == 0, qPrintable(result.err));
    const QString output = result.json()
                               .value(QStringLiteral("tasks"))
                               .toArray()
                               .at(0)
                               .toObject()
                               .value(QStringLiteral("output"))
                               .toString();
    QProcess probe;
    probe.start(QStringLiteral("ffprobe"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                 QStringLiteral("v"), QStringLiteral("-show_entries"),
                 QStringLiteral("stream=r_frame_rate"), QStringLiteral("-of"),
                 QStringLiteral("csv=p=0"), output});
    QVERIFY(probe.waitForFinished(30000));
    QCOMPARE(QString::fromLatin1(probe.readAllStandardOutput().trimmed()), rate);
}

void TestCli::help_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("mentions");
    QTest::newRow("scan") << "scan"
                          << "--json";
    QTest::newRow("profiles") << "profiles"
                              << "--search";
}

void TestCli::help()
{
    QFETCH(QString, command);
    QFETCH(QString, mentions);
    const Result result = cli({command, QStringLiteral("--help")});
    QCOMPARE(result.status, 0);
    const QString text = QString::fromUtf8(result.out);
    QVERIFY2(text.startsWith(QStringLiteral("Usage: kestrove-cli ") + command), qPrintable(text));
    QVERIFY(text.contains(mentions));
}

void TestCli::wrongArguments_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("no command") << QStringList() << "no command given";
    QTest::newRow("unknown command")
        << QStringList{QStringLiteral("transcode")} << "unknown command 'transcode'";
    QTest::newRow("scan without path")
        << QStringList{QStringLiteral("scan")} << "scan: no PATH given";
    QTest::newRow("unknown option")
        << QStringList{QStringLiteral("scan"), QStringLiteral("--fast"), QStringLiteral("x")}
        << "scan: Unknown option 'fast'";
    QTest::newRow("search without text")
        << QStringList{QStringLiteral("profiles"), QStringLiteral("--search")}
        << "profiles: Missing value after '--search'";
    QTest::newRow("profiles takes no path")
        << QStringList{QStringLiteral("profiles"), QStringLiteral("movie.mkv")}
        << "profiles: unexpected argument 'movie.mkv'";
    const QString input = QStringLiteral("movie.mkv");
    const QString profile = QStringLiteral("--profile");
    const QString mp4 = QStringLiteral("1,68");
    QTest::newRow("convert without profile")
        << QStringList{QStringLiteral("convert"), input} << "convert: --profile KEY is required";
    QTest::newRow("convert without input")
        << QStringList{QStringLiteral("convert"), profile, mp4} << "convert: no INPUT given";
    QTest::newRow("unknown profile")
        << QStringList{QStringLiteral("convert"), input, profile, QStringLiteral("9,999")}
        << "convert: unknown profile '9,999'";
    QTest::newRow("unknown parameter")
        << QStringList{QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--set"),
                       QStringLiteral("speed=9")}
        << "convert: profile 1,68 has no parameter 'speed'";
    QTest::newRow("set without value")
        << QStringList{QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--set"),
                       QStringLiteral("b")}
        << "convert: --set wants KEY=VALUE, not 'b'";
    QTest::newRow("titles not numbers")
        << QStringList{QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--titles"),
                       QStringLiteral("first")}
        << "convert: --titles wants N,M or all, not 'first'";
    QTest::newRow("chapters backwards")
        << QStringList{QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--chapters"),
                       QStringLiteral("3-2")}
        << "convert: --chapters wants A-B with 1 <= A <= B, not '3-2'";
    QTest::newRow("no encoders") << QStringList{
        QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--jobs"),
        QStringLiteral("0")} << "convert: --jobs wants a number from 1, not '0'";
    QTest::newRow("audio track 0")
        << QStringList{QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--audio"),
                       QStringLiteral("0")}
        << "convert: --audio wants a track number from 1, not '0'";
    QTest::newRow("a size that is none")
        << QStringList{QStringLiteral("convert"), input, profile, mp4, QStringLiteral("--set"),
                       QStringLiteral("s=0x240")}
        << "convert: --set s: \"0x240\" is no picture size";
}

void TestCli::wrongArguments()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const Result result = cli(args);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
    QVERIFY(result.out.isEmpty());
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
