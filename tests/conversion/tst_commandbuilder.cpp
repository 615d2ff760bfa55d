#include "dvddisc.h"
#include "mediafixtures.h"
#include "preparedarguments.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "task.h"
#include "tasklist.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "homemain.h"

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

private:
    Task &fileTask(const QString &path)
    {
        const int id = list->addFile(QStringLiteral("1,68"), path);
        Task *task = list->byId(id);
        Q_ASSERT(task);
        task->output.settings
            = Profile(QStringLiteral(":/profile/") + task->output.profileFile).values();
        return *task;
    }
    QString outDir() const { return home + QStringLiteral("/out"); }

    const QString home = QDir::homePath(); // TestHome's
    QString fixtures;
    std::unique_ptr<TaskList> list;

private slots:
    void initTestCase()
    {
        fixtures = mediaFixtures();
        QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
        CommandBuilder::setGpuEncoderOverride(0);
    }

    void init()
    {
        list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
        QDir(outDir()).removeRecursively();
        setSettingString(QStringLiteral("OutputDir"), outDir());
        setSettingString(QStringLiteral("CpuUsage"), QStringLiteral("100%"));
        setSettingInt(QStringLiteral("ThreadCount"), 4);
        setSettingInt(QStringLiteral("OutputToSrc"), 0);
        setSettingInt(QStringLiteral("CopyDirStruct"), 0);
    }

    void titleToMp4InA4to3Frame()
    {
        // A 16:9 title, first audio track, no subtitle, zoom "16:9", the mp4
        // profile with its defaults and a 640*480 picture.
        const auto disc = LoadDvdDisc(fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), false);
        QVERIFY(disc && !disc->titles.empty());
        Task &task = *list->byId(list->addTitle(QStringLiteral("1,68"), *disc->titles[0], 1, 1));
        task.output.settings = Profile(QStringLiteral(":/profile/mp4.xml")).values();
        task.output.settings[QStringLiteral("s")] = QStringLiteral("640*480");
        task.items[0]->edit.zoomMode = QStringLiteral("16:9");
        QCOMPARE(task.output.fileName, QStringLiteral("Title_1.mp4"));

        const QStringList args = preparedArguments(task, list->commonRootPath());
        const QString out = QDir::toNativeSeparators(outDir() + QStringLiteral("/Title_1.mp4"));
        QCOMPARE(
            args,
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

    void mergedFilesWithTrimAndSubtitle()
    {
        const QString clip = fixture(fixtures, "clip.mp4");
        const QString movie = fixture(fixtures, "movie.mkv");
        Task &task = fileTask(clip);
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

    void processorShare_data()
    {
        QTest::addColumn<QString>("usage");
        QTest::addColumn<QString>("expected"); // empty: no share is given
        QTest::newRow("40% is raised to 50") << "40%"
                                             << "50";
        QTest::newRow("75%") << "75%"
                             << "75";
        for (const char *none : {"100%", "150%", "85", "9%"})
            QTest::newRow(none) << none << "";
    }

    void processorShare()
    {
        QFETCH(QString, usage);
        QFETCH(QString, expected);
        setSettingString(QStringLiteral("CpuUsage"), usage);
        Task &task = fileTask(fixture(fixtures, "clip.mp4"));
        const QStringList args = preparedArguments(task, QString());
        QCOMPARE(args.first(), QStringLiteral("-y"));
        if (expected.isEmpty())
            QVERIFY(!args.contains(QStringLiteral("-cpu_percent")));
        else
            QCOMPARE(args.mid(1, 2), QStringList({QStringLiteral("-cpu_percent"), expected}));
    }

    void outputNames()
    {
        Task &a = fileTask(fixture(fixtures, "clip.mp4"));
        Task &b = fileTask(fixture(fixtures, "clip.mp4"));
        preparedArguments(a, QString());
        preparedArguments(b, QString());
        QCOMPARE(QFileInfo(a.output.filePath).fileName(), QStringLiteral("clip.mp4"));
        QCOMPARE(QFileInfo(b.output.filePath).fileName(), QStringLiteral("clip(1).mp4"));
        // A retry gets a new name; a file of the user's with the name is never touched.
        QFile mine(a.output.filePath);
        QVERIFY(mine.open(QIODevice::WriteOnly) && mine.write("mine") == 4);
        mine.close();
        QCOMPARE(QFileInfo(preparedArguments(a, QString()).last()).fileName(),
                 QStringLiteral("clip(2).mp4"));
        QVERIFY(mine.open(QIODevice::ReadOnly));
        QCOMPARE(mine.readAll(), QByteArray("mine"));
    }

    void pictureSeries()
    {
        Task &task = fileTask(fixture(fixtures, "clip.mp4"));
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

    void values_data()
    {
        QTest::addColumn<QStringList>("settings"); // key=value pairs
        QTest::addColumn<QString>("expected"); // arguments that must stand in the list, in a row
        QTest::addColumn<QString>("absent");   // arguments that must not, each on its own
        auto row
            = [](const char *name, const char *settings, const char *expected, const char *absent) {
                  QTest::newRow(name)
                      << QString::fromUtf8(settings).split(QLatin1Char(';')) << expected << absent;
              };
        row("audio only", "s=;g=12", "-vn", "-vf -g -aspect");
        row("ac with its label", "ac=2 (Stereo)", "-ac 2", "");
        row("ac 5.1", "ac=5.1", "-ac 6", "");
        row("vol 150%", "vol=150%", "-vol 384", "");
        row("vol 25%", "vol=25%", "-vol 64", "");
        row("vol 100%", "vol=100%", "", "-vol");
        row("aac is experimental", "acodec=aac", "-strict experimental -acodec aac", "");
        row("rmaudio names no codec", "acodec=rmaudio", "", "-acodec");
        row("mp3", "acodec=mp3", "-acodec libmp3lame", "");
        row("no audio", "an=True", "-an", "-ab");
        row("sameq drops the bit rate", "sameq=True", "-sameq", "-b:v");
        row("empty bit rate", "b=", "", "-b:v");
        row("h264 small", "vcodec=h264;s=640*480",
            "-vcodec libx264 -preset superfast -vprofile baseline -threads 4", "cuh264");
        row("h264 720", "vcodec=h264;s=1280*720", "-vprofile main", "");
        row("h264 1080", "vcodec=h264;s=1920*1080", "-vprofile high", "");
        row("h264 profile and level the document names",
            "vcodec=h264;s=1920*1080;vprofile=main;level=31", "-vprofile main -level 3.1", "high");
        row("divx", "vcodec=divx", "-vtag DX50 -vcodec mpeg4", "-threads");
        row("mpeg1video has no threads", "vcodec=mpeg1video", "-vcodec mpeg1video", "-threads");
        row("vp8", "vcodec=vp8", "-vcodec libvpx", "");
        row("expert values and flags", "g=12;psnr=True;qmin=False;ildct=True;ilme=True",
            "-g 12 -psnr -flags +ilme+ildct", "-qmin");
        row("aspect given", "aspect=16:9", "-aspect 16:9", "");
        row("frame rate Auto", "r=Auto", "", "-r");
        // "source=" sets the source's frame rate; "!" marks a value the user chose.
        row("profile rate is a ceiling", "source=25;r=29.97", "-r 25", "30000/1001");
        row("film keeps its rate", "source=23.976;r=29.97", "-r 24000/1001", "");
        row("faster source comes down", "source=50;r=29.97", "-r 30000/1001", "");
        row("variable rate near the ceiling", "source=29.5;r=29.97", "-r 30000/1001", "");
        row("a rate the user chose stands", "source=25;!r=29.97", "-r 30000/1001", "25");
        // "trim=" ends the input that long before its end; "name=" names the output.
        row("trim near the end adds no length", "trim=0.05", "", "-t");
        row("trim further off", "trim=0.5", "-t", "");
        // Subtitles are left out of Matroska by its extension, spelt exactly.
        row("matroska", "name=a.mkv", "-sn", "");
        row("MKV", "name=b.MKV", "", "-sn");
        row("meta data", "title=My Film;year=2001", "-metadata title=My Film -metadata year=2001",
            "");
    }

    void values()
    {
        QFETCH(QStringList, settings);
        QFETCH(QString, expected);
        QFETCH(QString, absent);
        Task &task = fileTask(fixture(fixtures, "clip.mp4"));
        for (const QString &pair : settings) {
            QString key = pair.section(QLatin1Char('='), 0, 0);
            const QString value = pair.section(QLatin1Char('='), 1);
            if (key == QLatin1String("source"))
                task.item(0)->frameRate = value.toDouble();
            else if (key == QLatin1String("trim"))
                task.items[0]->edit.trimEnd = task.items[0]->duration - value.toDouble();
            else if (key == QLatin1String("name"))
                task.output.fileName = value;
            else if (key.startsWith(QLatin1Char('!')))
                task.output.settings[*task.output.userKeys.insert(key.remove(0, 1))] = value;
            else
                task.output.settings[key] = value;
        }
        const QStringList args = preparedArguments(task, QString());
        const QString text = args.join(QLatin1Char(' '));
        // Building again changes nothing: the list is a function of the task.
        QCOMPARE(CommandBuilder::build(task).join(QLatin1Char(' ')), text);
        if (!expected.isEmpty())
            QVERIFY2(text.contains(QLatin1Char(' ') + expected + QLatin1Char(' ')),
                     qPrintable(text));
        for (const QString &word : words(absent))
            QVERIFY2(!args.contains(word), qPrintable(word + QStringLiteral(" in ") + text));
        if (settings.contains(QStringLiteral("s=")))
            QCOMPARE(task.items[0]->edit.innerWidth, 0); // no frame prepared
    }

    void outputBesideTheSourceAndCopiedTree()
    {
        QTemporaryDir sources;
        QVERIFY(QDir().mkpath(sources.filePath(QStringLiteral("trip/day 1"))));
        const QString source = sources.filePath(QStringLiteral("trip/day 1/clip.mp4"));
        QVERIFY(QFile::copy(fixture(fixtures, "clip.mp4"), source));

        setSettingInt(QStringLiteral("OutputToSrc"), 1);
        Task &beside = fileTask(source);
        QCOMPARE(preparedArguments(beside, QString()).last(),
                 sources.filePath(QStringLiteral("trip/day 1/clip(1).mp4")));

        setSettingInt(QStringLiteral("OutputToSrc"), 0);
        setSettingInt(QStringLiteral("CopyDirStruct"), 1);
        Task &copied = fileTask(source);
        QCOMPARE(preparedArguments(copied, sources.filePath(QStringLiteral("trip"))).last(),
                 outDir() + QStringLiteral("/day 1/clip.mp4"));
        QVERIFY(QFileInfo::exists(outDir() + QStringLiteral("/day 1/clip.mp4")));
    }

    void watermarkIsRenderedForTheChain()
    {
        Task &task = fileTask(fixture(fixtures, "clip.mp4"));
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
        QVERIFY(task.items[0]->edit.watermarkFile.isEmpty());
    }
};

KESTROVE_HOME_MAIN(TestCommandBuilder)

#include "tst_commandbuilder.moc"
