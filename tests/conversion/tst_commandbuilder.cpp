#include "preparedarguments.h"
#include "dvddisc.h"
#include "mediafixtures.h"
#include "optiontable.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "task.h"
#include "tasklist.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

#include "testhome.h"

namespace {

QStringList words(const QString &text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

// The encoder argument list of a task, element by element, and the output
// names it reserves. No encoder runs here.
class TestCommandBuilder : public QObject
{
    Q_OBJECT

public:
    explicit TestCommandBuilder(const QString &home)
        : home(home)
    {}

private slots:
    void initTestCase();
    void init();
    void titleOfTheWorkedExample();
    void mergedFilesWithTrimAndSubtitle();
    void processorShare_data();
    void processorShare();
    void trimNearTheEndAddsNoLength();
    void sameNameTwiceGetsNumbered();
    void retryGetsANewPath();
    void pictureSeries();
    void audioOnlyProfile();
    void audioValues_data();
    void audioValues();
    void videoValues_data();
    void videoValues();
    void extensionMatchIsExact();
    void outputBesideTheSourceAndCopiedTree();
    void watermarkIsRenderedForTheChain();
    void everyCandidateCodecIsOneFfmpegHas();

private:
    Task &fileTask(const QString &profileKey, const QString &path);
    QString outDir() const { return home + QStringLiteral("/out"); }

    QString home;
    QString fixtures;
    std::unique_ptr<TaskList> list;
};

void TestCommandBuilder::initTestCase()
{
    fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
    CommandBuilder::setGpuEncoderOverride(0);
}

void TestCommandBuilder::init()
{
    list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
    QDir(outDir()).removeRecursively();
    setSettingString(QStringLiteral("OutputDir"), outDir());
    setSettingString(QStringLiteral("CpuUsage"), QStringLiteral("100%"));
    setSettingInt(QStringLiteral("ThreadCount"), 4);
    setSettingInt(QStringLiteral("OutputToSrc"), 0);
    setSettingInt(QStringLiteral("CopyDirStruct"), 0);
}

Task &TestCommandBuilder::fileTask(const QString &profileKey, const QString &path)
{
    const int id = list->addFile(profileKey, path);
    Task *task = list->byId(id);
    Q_ASSERT(task);
    task->output.settings
        = Profile(QStringLiteral(":/profile/") + task->output.profileFile).values();
    return *task;
}

void TestCommandBuilder::titleOfTheWorkedExample()
{
    // A 16:9 title, first audio track, no subtitle, zoom "16:9", the mp4
    // profile with its defaults and a 640*480 picture.
    const auto disc = LoadDvdDisc(fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), false);
    QVERIFY(disc && !disc->titles.empty());
    const QString mp4 = QStringLiteral("1,68");
    QCOMPARE(
        ProfileGroupLoader::instance()->profileFileName(QStringLiteral("1"), QStringLiteral("68")),
        QStringLiteral("mp4.xml"));
    const int id = list->addTitle(mp4, *disc->titles[0], 1, 1);
    Task &task = *list->byId(id);
    task.output.settings = Profile(QStringLiteral(":/profile/mp4.xml")).values();
    task.output.settings[QStringLiteral("s")] = QStringLiteral("640*480");
    task.items[0]->edit.zoomMode = QStringLiteral("16:9");
    QCOMPARE(task.output.fileName, QStringLiteral("Title_1.mp4"));

    const QStringList args = preparedArguments(task, list->commonRootPath());
    const QString out = QDir::toNativeSeparators(outDir() + QStringLiteral("/Title_1.mp4"));
    QCOMPARE(args,
             words(QStringLiteral(
                       "-y -ss 0 -pgc 0 -audio_track 0 -subtitle -1 -i %1 "
                       "-vf scale=640:360,pad=640:480:0:60 -b:v 1200000 -r 30000/1001 -vcodec mpeg4 "
                       "-threads 4 -aspect 4:3 -ab 192k -ac 2 -ar 44100 -acodec libfaac")
                       .arg(QDir::toNativeSeparators(task.items[0]->sourcePath)))
                 << out);
    QCOMPARE(task.output.filePath, out);
    QVERIFY(QFile::exists(out)); // reserved, empty
    QCOMPARE(QFileInfo(out).size(), 0);
    QCOMPARE(task.items[0]->edit.convertEnd, task.items[0]->edit.trimEnd);
}

void TestCommandBuilder::mergedFilesWithTrimAndSubtitle()
{
    const QString clip = fixture(fixtures, "clip.mp4");
    const QString movie = fixture(fixtures, "movie.mkv");
    Task &task = fileTask(QStringLiteral("1,68"), clip);
    task.appendItem(*list->byId(list->addFile(QStringLiteral("1,68"), movie))->items[0]);
    task.items[0]->edit.trimStart = 0.5;
    task.items[0]->edit.trimEnd = 1.5;
    task.items[1]->edit.selectSubtitle(0);
    const QStringList args = preparedArguments(task, list->commonRootPath());
    const int first = args.indexOf(QStringLiteral("-ss"));
    QCOMPARE(args.mid(first, 7), words(QStringLiteral("-ss 0.5 -t 1 -i"))
                                     << clip << QStringLiteral("-vf"));
    const int join = args.indexOf(QStringLiteral("-si"));
    QVERIFY(join > first);
    QCOMPARE(args.mid(join, 8), words(QStringLiteral("-si -ss 0 -subtitle 0 -i"))
                                    << movie << QStringLiteral("-vf"));
    QCOMPARE(args.count(QStringLiteral("-vf")), 2);
}

void TestCommandBuilder::processorShare_data()
{
    QTest::addColumn<QString>("usage");
    QTest::addColumn<QString>("expected");
    QTest::newRow("40% is raised to 50") << "40%"
                                         << "50";
    QTest::newRow("75%") << "75%"
                         << "75";
    QTest::newRow("100% adds nothing") << "100%"
                                       << "";
    QTest::newRow("150% adds nothing") << "150%"
                                       << "";
    QTest::newRow("no percent sign") << "85"
                                     << "";
    QTest::newRow("too short") << "9%"
                               << "";
}

void TestCommandBuilder::processorShare()
{
    QFETCH(QString, usage);
    QFETCH(QString, expected);
    setSettingString(QStringLiteral("CpuUsage"), usage);
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    const QStringList args = preparedArguments(task, QString());
    QCOMPARE(args.first(), QStringLiteral("-y"));
    if (expected.isEmpty())
        QVERIFY(!args.contains(QStringLiteral("-cpu_percent")));
    else
        QCOMPARE(args.mid(1, 2), QStringList({QStringLiteral("-cpu_percent"), expected}));
}

void TestCommandBuilder::trimNearTheEndAddsNoLength()
{
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    EditParameters &edit = task.items[0]->edit;
    edit.trimEnd = task.items[0]->duration - 0.05;
    QVERIFY(!preparedArguments(task, QString()).contains(QStringLiteral("-t")));
    edit.trimEnd = task.items[0]->duration - 0.5;
    QVERIFY(preparedArguments(task, QString()).contains(QStringLiteral("-t")));
}

void TestCommandBuilder::sameNameTwiceGetsNumbered()
{
    Task &a = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    Task &b = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    preparedArguments(a, QString());
    preparedArguments(b, QString());
    QCOMPARE(QFileInfo(a.output.filePath).fileName(), QStringLiteral("clip.mp4"));
    QCOMPARE(QFileInfo(b.output.filePath).fileName(), QStringLiteral("clip(1).mp4"));
}

void TestCommandBuilder::retryGetsANewPath()
{
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    // A file of the user's that happens to have the name is never touched.
    QDir().mkpath(outDir());
    QFile mine(outDir() + QStringLiteral("/clip.mp4"));
    QVERIFY(mine.open(QIODevice::WriteOnly));
    mine.write("mine");
    mine.close();
    const QString first = preparedArguments(task, QString()).last();
    const QString second = preparedArguments(task, QString()).last();
    QCOMPARE(QFileInfo(first).fileName(), QStringLiteral("clip(1).mp4"));
    QCOMPARE(QFileInfo(second).fileName(), QStringLiteral("clip(2).mp4"));
    QVERIFY(mine.open(QIODevice::ReadOnly));
    QCOMPARE(mine.readAll(), QByteArray("mine"));
}

void TestCommandBuilder::pictureSeries()
{
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    task.output.settings[QStringLiteral("pcodec")] = QStringLiteral("png");
    task.output.settings[QStringLiteral("pi")] = QStringLiteral("5");
    task.output.fileName = QStringLiteral("shot.png");
    QDir().mkpath(outDir());
    QFile taken(outDir() + QStringLiteral("/shot001.png"));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    taken.close();
    const QStringList args = preparedArguments(task, QString());
    QCOMPARE(QFileInfo(args.last()).fileName(), QStringLiteral("shot(1)%03d.png"));
    const int rate = args.lastIndexOf(QStringLiteral("-r"));
    QCOMPARE(args.value(rate + 1), QStringLiteral("1/5"));
}

void TestCommandBuilder::audioOnlyProfile()
{
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    task.output.settings.remove(QStringLiteral("s"));
    task.output.settings[QStringLiteral("g")] = QStringLiteral("12");
    const QStringList args = preparedArguments(task, QString());
    QVERIFY(args.contains(QStringLiteral("-vn")));
    QVERIFY(!args.contains(QStringLiteral("-vf")));
    QVERIFY(!args.contains(QStringLiteral("-g")));
    QVERIFY(!args.contains(QStringLiteral("-aspect")));
    QCOMPARE(task.items[0]->edit.innerWidth, 0); // no frame prepared
}

void TestCommandBuilder::audioValues_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected"); // the arguments that must stand in the list
    QTest::addColumn<QString>("absent");   // an argument that must not
    QTest::newRow("ac with its label") << "ac"
                                       << "2 (Stereo)"
                                       << "-ac 2"
                                       << "";
    QTest::newRow("ac 5.1") << "ac"
                            << "5.1"
                            << "-ac 6"
                            << "";
    QTest::newRow("vol 150%") << "vol"
                              << "150%"
                              << "-vol 384"
                              << "";
    QTest::newRow("vol 25%") << "vol"
                             << "25%"
                             << "-vol 64"
                             << "";
    QTest::newRow("vol 100%") << "vol"
                              << "100%"
                              << ""
                              << "-vol";
    QTest::newRow("aac is experimental") << "acodec"
                                         << "aac"
                                         << "-strict experimental -acodec aac"
                                         << "";
    QTest::newRow("rmaudio names no codec") << "acodec"
                                            << "rmaudio"
                                            << ""
                                            << "-acodec";
    QTest::newRow("mp3") << "acodec"
                         << "mp3"
                         << "-acodec libmp3lame"
                         << "";
    QTest::newRow("no audio") << "an"
                              << "True"
                              << "-an"
                              << "-ab";
}

void TestCommandBuilder::audioValues()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, expected);
    QFETCH(QString, absent);
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    task.output.settings[key] = value;
    const QString text = preparedArguments(task, QString()).join(QLatin1Char(' '));
    if (!expected.isEmpty())
        QVERIFY2(text.contains(QLatin1Char(' ') + expected + QLatin1Char(' ')), qPrintable(text));
    if (!absent.isEmpty())
        QVERIFY2(!text.contains(QLatin1Char(' ') + absent + QLatin1Char(' ')), qPrintable(text));
}

void TestCommandBuilder::videoValues_data()
{
    QTest::addColumn<QStringList>("settings"); // key=value pairs
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("absent");
    QTest::newRow("sameq drops the bit rate")
        << QStringList{QStringLiteral("sameq=True")} << "-sameq"
        << "-b:v";
    QTest::newRow("empty bit rate") << QStringList{QStringLiteral("b=")} << ""
                                    << "-b:v";
    QTest::newRow("h264 small") << QStringList{QStringLiteral("vcodec=h264"),
                                               QStringLiteral("s=640*480")}
                                << "-vcodec libx264 -preset superfast -vprofile baseline -threads 4"
                                << "cuh264";
    QTest::newRow("h264 720") << QStringList{QStringLiteral("vcodec=h264"),
                                             QStringLiteral("s=1280*720")}
                              << "-vprofile main"
                              << "";
    QTest::newRow("h264 1080") << QStringList{QStringLiteral("vcodec=h264"),
                                              QStringLiteral("s=1920*1080")}
                               << "-vprofile high"
                               << "";
    QTest::newRow("h264 profile and level the document names")
        << QStringList{QStringLiteral("vcodec=h264"), QStringLiteral("s=1920*1080"),
                       QStringLiteral("vprofile=main"), QStringLiteral("level=31")}
        << "-vprofile main -level 3.1"
        << "-vprofile high";
    QTest::newRow("divx") << QStringList{QStringLiteral("vcodec=divx")}
                          << "-vtag DX50 -vcodec mpeg4"
                          << "-threads";
    QTest::newRow("mpeg1video has no threads")
        << QStringList{QStringLiteral("vcodec=mpeg1video")} << "-vcodec mpeg1video"
        << "-threads";
    QTest::newRow("vp8") << QStringList{QStringLiteral("vcodec=vp8")} << "-vcodec libvpx"
                         << "";
    QTest::newRow("expert values and flags")
        << QStringList{QStringLiteral("g=12"), QStringLiteral("psnr=True"),
                       QStringLiteral("qmin=False"), QStringLiteral("ildct=True"),
                       QStringLiteral("ilme=True")}
        << "-g 12 -psnr -flags +ilme+ildct"
        << "-qmin";
    QTest::newRow("aspect given") << QStringList{QStringLiteral("aspect=16:9")} << "-aspect 16:9"
                                  << "";
    QTest::newRow("frame rate Auto") << QStringList{QStringLiteral("r=Auto")} << ""
                                     << "-r";
    // "source=" sets the source's frame rate; "!" marks a value the user chose.
    QTest::newRow("profile rate is a ceiling")
        << QStringList{QStringLiteral("source=25"), QStringLiteral("r=29.97")} << "-r 25"
        << "-r 30000/1001";
    QTest::newRow("film keeps its rate")
        << QStringList{QStringLiteral("source=23.976"), QStringLiteral("r=29.97")}
        << "-r 24000/1001"
        << "";
    QTest::newRow("faster source comes down")
        << QStringList{QStringLiteral("source=50"), QStringLiteral("r=29.97")} << "-r 30000/1001"
        << "";
    QTest::newRow("variable rate near the ceiling")
        << QStringList{QStringLiteral("source=29.5"), QStringLiteral("r=29.97")} << "-r 30000/1001"
        << "";
    QTest::newRow("a rate the user chose stands")
        << QStringList{QStringLiteral("source=25"), QStringLiteral("!r=29.97")} << "-r 30000/1001"
        << "-r 25";
    QTest::newRow("meta data") << QStringList{QStringLiteral("title=My Film"),
                                              QStringLiteral("year=2001")}
                               << "-metadata title=My Film -metadata year=2001"
                               << "";
}

void TestCommandBuilder::videoValues()
{
    QFETCH(QStringList, settings);
    QFETCH(QString, expected);
    QFETCH(QString, absent);
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    for (const QString &pair : settings) {
        QString key = pair.section(QLatin1Char('='), 0, 0);
        const QString value = pair.section(QLatin1Char('='), 1);
        if (key == QLatin1String("source")) {
            task.item(0)->frameRate = value.toDouble();
            continue;
        }
        if (key.startsWith(QLatin1Char('!')))
            task.output.userKeys.insert(key.remove(0, 1));
        task.output.settings[key] = value;
    }
    const QString text = preparedArguments(task, QString()).join(QLatin1Char(' '));
    // Building again changes nothing: the list is a function of the task.
    QCOMPARE(CommandBuilder::build(task).join(QLatin1Char(' ')), text);
    if (!expected.isEmpty())
        QVERIFY2(text.contains(QLatin1Char(' ') + expected + QLatin1Char(' ')), qPrintable(text));
    if (!absent.isEmpty())
        QVERIFY2(!text.contains(QLatin1Char(' ') + absent + QLatin1Char(' ')), qPrintable(text));
}

void TestCommandBuilder::extensionMatchIsExact()
{
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    task.output.fileName = QStringLiteral("a.mkv");
    QVERIFY(preparedArguments(task, QString()).contains(QStringLiteral("-sn")));
    task.output.fileName = QStringLiteral("b.MKV");
    QVERIFY(!preparedArguments(task, QString()).contains(QStringLiteral("-sn")));
}

void TestCommandBuilder::outputBesideTheSourceAndCopiedTree()
{
    QTemporaryDir sources;
    QVERIFY(QDir().mkpath(sources.filePath(QStringLiteral("trip/day 1"))));
    const QString source = sources.filePath(QStringLiteral("trip/day 1/clip.mp4"));
    QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), source));

    setSettingInt(QStringLiteral("OutputToSrc"), 1);
    Task &beside = fileTask(QStringLiteral("1,68"), source);
    QCOMPARE(preparedArguments(beside, QString()).last(),
             sources.filePath(QStringLiteral("trip/day 1/clip(1).mp4")));

    setSettingInt(QStringLiteral("OutputToSrc"), 0);
    setSettingInt(QStringLiteral("CopyDirStruct"), 1);
    Task &copied = fileTask(QStringLiteral("1,68"), source);
    QCOMPARE(preparedArguments(copied, sources.filePath(QStringLiteral("trip"))).last(),
             outDir() + QStringLiteral("/day 1/clip.mp4"));
    QVERIFY(QFileInfo::exists(outDir() + QStringLiteral("/day 1/clip.mp4")));
}

void TestCommandBuilder::watermarkIsRenderedForTheChain()
{
    Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
    task.output.settings[QStringLiteral("s")] = QStringLiteral("320*240");
    WatermarkEntry &mark = task.items[0]->edit.watermark();
    mark.text = QStringLiteral("Kestrove");
    const QStringList args = preparedArguments(task, QString());
    const QString chain = args.value(args.indexOf(QStringLiteral("-vf")) + 1);
    const QString file = task.items[0]->edit.watermarkFile;
    QVERIFY(QFile::exists(file));
    QVERIFY(file.startsWith(QDir::tempPath() + QStringLiteral("/Watermark/")));
    QVERIFY2(chain.contains(QStringLiteral(",watermark2=%1:%2:")
                                .arg(task.items[0]->edit.watermarkX)
                                .arg(task.items[0]->edit.watermarkY)
                            + QString::fromLatin1(file.toLocal8Bit().toHex())),
             qPrintable(chain));
    task.removeWatermarkFiles();
    QVERIFY(!QFile::exists(file));
}

void TestCommandBuilder::everyCandidateCodecIsOneFfmpegHas()
{
    // What the builder asks for, after the encoder front's own renaming, must
    // be an encoder of the ffmpeg that runs.
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"), words(QStringLiteral("-hide_banner -encoders")));
    QVERIFY(ffmpeg.waitForFinished(20000));
    const QString encoders = QString::fromUtf8(ffmpeg.readAllStandardOutput());
    auto has = [&](const QString &name) {
        return encoders.contains(
            QRegularExpression(QStringLiteral("\\s%1\\s").arg(QRegularExpression::escape(name))));
    };
    const QStringList files
        = QDir(QStringLiteral(":/profile")).entryList({QStringLiteral("*.xml")});
    QVERIFY(files.size() > 100);
    QSet<QString> checked;
    for (const QString &file : files) {
        if (file == QLatin1String("Group.xml"))
            continue;
        const Profile profile(QStringLiteral(":/profile/") + file);
        for (const char *key : {"vcodec", "acodec"}) {
            const QDomElement parameter = profile.parameter(QLatin1String(key));
            if (parameter.isNull())
                continue;
            QStringList values = Profile::candidates(parameter);
            values << Profile::defaultValue(parameter);
            for (const QString &value : values) {
                if (value.isEmpty() || checked.contains(QLatin1String(key) + value))
                    continue;
                checked << QLatin1String(key) + value;
                Task &task = fileTask(QStringLiteral("1,68"), fixture(fixtures, "clip.mp4"));
                task.output.settings[QLatin1String(key)] = value;
                const QStringList args = preparedArguments(task, QString());
                const int at
                    = args.lastIndexOf(key == QByteArray("vcodec") ? QStringLiteral("-vcodec")
                                                                   : QStringLiteral("-acodec"));
                if (at < 0) {
                    QCOMPARE(value, QStringLiteral("rmaudio")); // the one that names no codec
                    continue;
                }
                // As the encoder front names it to stock ffmpeg.
                const QString name = key == QByteArray("vcodec")
                                         ? OptionTable::videoCodec(args.value(at + 1))
                                         : OptionTable::audioCodec(args.value(at + 1));
                QVERIFY2(has(name), qPrintable(QStringLiteral("%1: %2 %3 gives %4")
                                                   .arg(file, QLatin1String(key), value, name)));
            }
        }
    }
    QVERIFY(checked.size() > 10);
}

int main(int argc, char *argv[])
{
    TestHome home;
    qputenv("TMPDIR", home.path().toLocal8Bit());
    // Watermark entries take the application's font.
    QGuiApplication app(argc, argv);
    TestCommandBuilder test(home.path());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_commandbuilder.moc"
