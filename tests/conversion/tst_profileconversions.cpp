#include "commandbuilder.h"
#include "encoderjob.h"
#include "ffmpegtools.h"
#include "fixturediscs.h"
#include "inputprobe.h"
#include "optiontable.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "task.h"
#include "tasklist.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QtMath>

#include "homemain.h"

using namespace Qt::StringLiterals;

namespace {

QStringList words(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

// The argument list as the queue makes it: the task prepared first.
QStringList preparedArguments(Task &task, const QString &commonRoot)
{
    return CommandBuilder::prepare(task, commonRoot) ? CommandBuilder::build(task) : QStringList();
}

// The profiles of the built-in catalogue, in its order.
struct CatalogueEntry
{
    QString key, name, fileName, extension;
};

QList<CatalogueEntry> catalogueEntries()
{
    const ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    const auto value = [](const QDomNode &node, const char *tag) {
        return node.firstChildElement(QLatin1String(tag)).attribute(u"value"_s);
    };
    QList<CatalogueEntry> entries;
    for (const QDomNode &group : catalogue->groups()) {
        const QString groupId = value(group, "Id");
        const QDomNodeList profiles = catalogue->profiles(group);
        for (int i = 0; i < profiles.size(); ++i) {
            const QString id = value(profiles.at(i), "Id");
            entries.append({ProfileGroupLoader::profileKey(groupId, id),
                            value(profiles.at(i), "Name"), catalogue->profileFileName(groupId, id),
                            catalogue->profileExtName(groupId, id)});
        }
    }
    return entries;
}

// The rows of a long sweep, picked for this run. ctest's `sweep` tests set
// KESTROVE_SHARD=i/N and take every N-th row from row i; without it the run
// takes the first row of each family, so the default run still meets every
// kind of output in a fraction of the time.
class SweepRows
{
public:
    bool take(const QString &family)
    {
        const int row = rows++;
        if (count > 0)
            return row % count == index;
        const qsizetype known = families.size();
        families.insert(family);
        return families.size() > known;
    }

private:
    const QList<QByteArray> shard = qgetenv("KESTROVE_SHARD").split('/');
    const int count = shard.size() == 2 ? std::max(shard[1].toInt(), 0) : 0;
    const int index = shard[0].toInt();
    int rows = 0;
    QSet<QString> families;
};

// The container: what ffprobe calls the format of the profile's extension;
// the quick set converts one profile of each.
const QMap<QString, QString> containers = [] {
    QMap<QString, QString> map;
    const QString pairs = QStringLiteral(
        "mp4=mp4 m4a=mp4 mov=mov 3gp=3gp avi=avi wmv=asf wma=asf asf=asf mpg=mpeg "
        "vob=mpeg rm=rm ra=rm dv=dv mkv=matroska webm=webm ac3=ac3 aiff=aiff flac=flac "
        "au=au mp2=mp3 mp3=mp3 ogg=ogg wav=wav ts=mpegts flv=flv swf=swf bmp=bmp_pipe "
        "gif=gif jpg=image2 png=png_pipe");
    for (const QString &pair : pairs.split(u' '))
        map.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
    return map;
}();

// What ffprobe prints about a file, its errors alone.
QByteArray ffprobe(const char *options, const QString &file)
{
    QByteArray out;
    runTool(u"ffprobe"_s, u"-v error %1"_s.arg(QLatin1String(options)).split(u' ') << file, &out);
    return out;
}

// The documents that no entry of this catalogue names, as a later catalogue
// may name them: each with the container its family suggests.
FixedCatalogue laterCatalogue(const QStringList &files)
{
    QHash<QString, QString> entries;
    for (int i = 0; i < files.size(); ++i) {
        QString extension = u"mp4"_s;
        for (const QString &rule :
             u"wmv=wmv xvid=avi divx=avi avi=avi _ts=ts mpeg2=mpg _ogg=mkv dpg4=mp4 dpg=mpg "
             "wtv=mpg swf=swf flv=flv prores=mov imovie=mov mov=mov xbox_=mov"_s.split(u' ')) {
            if (files[i].toLower().contains(rule.section(u'=', 0, 0))) {
                extension = rule.section(u'=', 1);
                break;
            }
        }
        entries.insert(u"99,"_s + QString::number(i), files[i] + u' ' + extension);
    }
    return FixedCatalogue(entries);
}

} // namespace

// The encoder argument list of a task, element by element, and the output
// names it reserves. Every profile of the built-in catalogue converts a
// short file and a DVD title through the real encoder front into what the
// profile promises (converts). Whatever a user picks from a profile's lists
// must be something the encoder can write (candidateEncodes): each candidate
// of each list is tried with the other values at their defaults; ffmpeg
// encodes a tenth of a second of it into the profile's container. Audio
// choices are tried without video and video choices without audio, which
// keeps the number of runs down. One row per distinct command, picked by
// SweepRows: the quick set takes one row per list.
class TestCatalogueCommands : public QObject
{
    Q_OBJECT

private:
    struct Job
    {
        std::unique_ptr<TaskList> list;
        Task *task = nullptr;
        QProcess process;
    };

    struct Run
    {
        QString what;
        QStringList args; // empty: `what` says why there is nothing to run
        QString key;
        QString shape; // what the run tries, for skipping runs that try the same
    };

    const QString home = QDir::homePath(); // TestHome's
    FixtureDiscs discs;
    QString source;
    InputLayout layout;
    QMap<QString, QString> codecOfEncoder;
    QString encoder;
    std::unique_ptr<TaskList> list;

    Task &fileTask(const QString &path)
    {
        Task &task = *list->byId(list->addFile(u"1,68"_s, path));
        task.output.settings = Profile(":/profile/"_L1 + task.output.profileFile).values();
        return task;
    }
    QString outDir() const { return home + u"/out"_s; }

    void useSettings(int threads)
    {
        setSettingString(u"OutputDir"_s, outDir());
        setSettingString(u"CpuUsage"_s, u"100%"_s);
        setSettingInt(u"ThreadCount"_s, threads);
        setSettingInt(u"OutputToSrc"_s, 0);
        setSettingInt(u"CopyDirStruct"_s, 0);
    }

    void start(Job &job, const QString &key, bool title)
    {
        job.list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
        const int id = title ? job.list->addTitle(key, *discs.ntsc->titles[0], 1, 1)
                             : job.list->addFile(key, source);
        job.task = job.list->byId(id);
        QVERIFY(job.task);
        job.task->output.settings
            = Profile(u":/profile/"_s + job.task->output.profileFile).values();
        const QStringList args = preparedArguments(*job.task, job.list->commonRootPath());
        job.process.setProcessChannelMode(QProcess::MergedChannels);
        job.process.start(encoder, args);
    }

    // The output in a line, as ffprobe reads it and as the profile and the
    // encoders the front asked for promise it: "from a file|title, container,
    // video codec WxH or none, audio codec, seconds".
    void check(Job &job, bool title)
    {
        const QString from = title ? u"from a title"_s : u"from a file"_s;
        QVERIFY2(job.process.waitForFinished(120000), qPrintable(from));
        const QByteArray log = job.process.readAll();
        QVERIFY2(job.process.exitStatus() == QProcess::NormalExit && job.process.exitCode() == 0,
                 qPrintable(from + u'\n' + QString::fromUtf8(log.right(700))));
        const Task &task = *job.task;
        QString output = task.output.filePath;
        // Picture profiles: a series, or one animated GIF; no sound either way.
        const bool pictures = !task.value(u"pcodec"_s).isEmpty();
        if (task.isPictureSeries())
            output.replace("%03d"_L1, "001"_L1);
        if (output.endsWith(".gif"_L1)) {
            // One animated GIF: a picture every two seconds of the source, all readable.
            const int count
                = ffprobe("-count_frames -show_entries stream=nb_read_frames -of csv=p=0", output)
                      .trimmed()
                      .toInt();
            const int expected = qCeil(task.convertDuration() / 2.0 - 0.01);
            QVERIFY2(count >= expected && count <= expected + 1,
                     qPrintable(QString::number(count)));
        }
        const QJsonObject root
            = QJsonDocument::fromJson(
                  ffprobe("-print_format json -show_streams -show_format", output))
                  .object();
        QJsonObject video, audio;
        for (const auto &value : root[u"streams"].toArray()) {
            const QString type = value[u"codec_type"].toString();
            QJsonObject &first = type == "video"_L1 ? video : audio;
            if (first.isEmpty() && (type == "video"_L1 || type == "audio"_L1))
                first = value.toObject();
        }
        const QString extension = QFileInfo(task.output.fileName).suffix();
        const QStringList formats = root[u"format"][u"format_name"].toString().split(u',');
        const QString container = containers.value(extension, u"a container for ."_s + extension);
        QStringList want{from, container},
            got{from, formats.contains(container) ? container : formats.join(u',')};

        // What the front made of the list: the encoders it asked for (an
        // encoder ffmpeg doesn't list is not compared) and the frame size of
        // the last filter chain.
        const auto front = EncoderJob::parse(job.process.arguments(), nullptr);
        QVERIFY(front);
        const auto codecOf = [this](const QString &encoder, const QJsonObject &found) {
            const QString codec = codecOfEncoder.value(encoder, encoder);
            return codec.isEmpty() ? found[u"codec_name"].toString() : codec;
        };
        QSize size = task.outputSize();
        const auto last = QRegularExpression(u"(?:scale|pad)=(\\d+):(\\d+)(?!.*(?:scale|pad)=)"_s)
                              .match(front->inputs.last().videoChain);
        if (last.hasMatch())
            size = QSize(last.captured(1).toInt(), last.captured(2).toInt());
        const auto picture = [](const QString &codec, int width, int height) {
            return u"video %1 %2x%3"_s.arg(codec).arg(width).arg(height);
        };
        if (task.value(u"s"_s).isEmpty()) {
            want << u"no video"_s;
            got << (video.isEmpty() || formats.contains(u"mp3"_s) ? u"no video"_s : u"video"_s);
        } else {
            want << picture(codecOf(front->output.videoCodec, video),
                            size.width() + size.width() % 2, size.height() + size.height() % 2);
            got << (video.isEmpty() ? u"no video"_s
                                    : picture(video[u"codec_name"].toString(),
                                              video[u"width"].toInt(), video[u"height"].toInt()));
        }
        if (task.value(u"an"_s) != "True"_L1 && !pictures) {
            // A sound the container can't name is silence in every player.
            const QString named = audio[u"codec_name"].toString(),
                          codec = codecOf(front->output.audioCodec, audio);
            want << u"audio "_s + (codec.isEmpty() || codec == "unknown"_L1 ? u"named"_s : codec);
            got << u"audio "_s + (named.isEmpty() || named == "unknown"_L1 ? u"unnamed"_s : named);
        }
        if (!pictures) {
            double duration = root[u"format"][u"duration"].toString().toDouble();
            if (duration == 0 && !video.isEmpty()) {
                // Some containers (SWF) keep no duration: count the frames.
                const QStringList fields
                    = QString::fromUtf8(ffprobe("-count_packets -select_streams v:0 -show_entries "
                                                "stream=nb_read_packets,r_frame_rate -of csv=p=0",
                                                output))
                          .trimmed()
                          .split(u',');
                const QStringList rate = fields.value(0).split(u'/');
                if (rate.size() == 2 && rate[0].toDouble() > 0)
                    duration = fields.value(1).toDouble() * rate[1].toDouble() / rate[0].toDouble();
            }
            want << u"3 s"_s;
            got << (qAbs(duration - 3.0) < 0.5 ? u"3 s"_s : u"%1 s"_s.arg(duration));
        }
        QCOMPARE(got.join(u", "_s), want.join(u", "_s));
    }

    QList<Run> runsOf(const ProfileLookup *catalogue, const QString &profileKey)
    {
        static const QStringList audioKeys = u"acodec ab ar ac vol"_s.split(u' ');
        static const QStringList videoKeys = u"vcodec s b r aspect level vprofile pi"_s.split(u' ');
        QList<Run> runs;
        TaskList list(catalogue);
        Task &task = *list.byId(list.addFile(profileKey, source));
        const Profile profile(u":/profile/"_s + task.output.profileFile);
        const QMap<QString, QString> defaults = profile.values();
        for (const QString &key : profile.keys()) {
            const QDomElement parameter = profile.parameter(key);
            if (Profile::kind(parameter) != Profile::ClosedList
                && Profile::kind(parameter) != Profile::OpenList)
                continue;
            for (const QString &candidate : Profile::candidates(parameter)) {
                const QString what = u"%1 (%2) %3=\"%4\""_s.arg(profileKey, task.output.profileFile,
                                                                key, candidate);
                task.output.settings = defaults;
                task.output.settings[key] = candidate;
                const bool audioChoice = audioKeys.contains(key);
                const bool videoChoice = videoKeys.contains(key);
                // DV needs both streams.
                const bool dv = task.output.profileFile == "dv.xml"_L1;
                if (audioChoice && !dv)
                    task.output.settings[u"s"_s].clear(); // no video
                if (videoChoice && !dv)
                    task.output.settings[u"an"_s] = u"True"_s;
                const QStringList builderArgs = preparedArguments(task, list.commonRootPath());
                QFile::remove(task.output.filePath); // the builder reserved it
                if (!audioChoice && !videoChoice) {
                    // Tags: passed as they are, whatever the choice.
                    if (!candidate.isEmpty()
                        && !builderArgs.contains(u"%1=%2"_s.arg(key, candidate)))
                        runs << Run{what + u": not passed"_s, {}, key, {}};
                    continue;
                }
                QString error;
                const auto job = EncoderJob::parse(builderArgs, &error);
                if (!job) {
                    runs << Run{what + u": "_s + error, {}, key, {}};
                    continue;
                }
                QStringList args = job->ffmpegArguments({source}, {layout});
                args.insert(args.size() - 1, u"-t"_s);
                args.insert(args.size() - 1, u"0.1"_s);
                args.last() = home + u"/try."_s + QFileInfo(args.last()).suffix();
                // A choice meets the encoder of its own stream and the container;
                // sound also meets the other sound settings. Volume is a filter
                // that any encoder takes.
                const bool volume = key == "vol"_L1;
                QString shape = audioChoice && !volume ? u"sound"_s : key + u'=' + candidate;
                if (!volume) {
                    shape += u' ' + QFileInfo(args.last()).suffix();
                    if (audioChoice) {
                        for (const char *option : {"-c:a", "-b:a", "-q:a", "-ar", "-ac"}) {
                            const int at = args.indexOf(QLatin1String(option));
                            if (at >= 0)
                                shape += u' ' + args.value(at + 1);
                        }
                    } else {
                        shape += u' ' + job->output.videoCodec;
                    }
                }
                runs << Run{what, args, key, shape};
            }
        }
        return runs;
    }

private slots:
    void initTestCase()
    {
        discs.load();
        source = discs.file("movie.mkv");
        layout = InputProbe::layout(source);
        QVERIFY(layout.hasVideo && layout.hasAudio);
        encoder = QCoreApplication::applicationDirPath() + u"/kestrove-encoder"_s;
        CommandBuilder::setGpuEncoderOverride(0);

        QByteArray encoders;
        QCOMPARE(runTool(u"ffmpeg"_s, {u"-hide_banner"_s, u"-encoders"_s}, &encoders), 0);
        const QRegularExpression line(u"^ [VAS][^ ]{5} (\\S+) .*?(?:\\(codec (\\S+)\\))?$"_s,
                                      QRegularExpression::MultilineOption);
        auto it = line.globalMatch(QString::fromUtf8(encoders));
        while (it.hasNext()) {
            const auto match = it.next();
            codecOfEncoder[match.captured(1)]
                = match.captured(2).isEmpty() ? match.captured(1) : match.captured(2);
        }
        QVERIFY(codecOfEncoder.value(u"libx264"_s) == "h264"_L1);
    }

    void init()
    {
        list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
        QDir(outDir()).removeRecursively();
        useSettings(QByteArray(QTest::currentTestFunction()) == "converts" ? 1 : 4);
    }

    void titleToMp4InA4to3Frame()
    {
        // A 16:9 title, first audio track, no subtitle, zoom "16:9", the mp4
        // profile with its defaults and a 640*480 picture.
        Task &task = *list->byId(list->addTitle(u"1,68"_s, *discs.ntsc->titles[0], 1, 1));
        task.output.settings = Profile(u":/profile/mp4.xml"_s).values();
        task.output.settings[u"s"_s] = u"640*480"_s;
        task.items[0]->edit.zoomMode = u"16:9"_s;
        const QStringList args = preparedArguments(task, list->commonRootPath());
        const QString out = outDir() + u"/Title_1.mp4"_s;
        QCOMPARE(args, words(u"-y -ss 0 -pgc 0 -audio_track 0 -subtitle -1 -i %1 "
                             "-vf scale=640:360,pad=640:480:0:60 -b:v 1200000 -r 30000/1001 "
                             "-vcodec mpeg4 -threads 4 -aspect 4:3 -ab 192k -ac 2 -ar 44100 "
                             "-acodec libfaac %2"_s.arg(task.items[0]->sourcePath, out)));
        QCOMPARE(task.output.filePath, out);
        QVERIFY(QFileInfo(out).isFile() && QFileInfo(out).size() == 0); // reserved
        QCOMPARE(task.items[0]->edit.convertEnd, task.items[0]->edit.trimEnd);
    }

    void mergedFilesWithTrimAndSubtitle()
    {
        const QString clip = discs.file("clip.mp4");
        const QString movie = discs.file("movie.mkv");
        Task &task = fileTask(clip);
        task.appendItem(*list->byId(list->addFile(u"1,68"_s, movie))->items[0]);
        task.items[0]->edit.trimStart = 0.5;
        task.items[0]->edit.trimEnd = 1.5;
        task.items[1]->edit.selectSubtitle(0);
        const QStringList args = preparedArguments(task, list->commonRootPath());
        const int first = args.indexOf(u"-ss"_s);
        QCOMPARE(args.mid(first, 7), words(u"-ss 0.5 -t 1 -i"_s) << clip << u"-vf"_s);
        const int join = args.indexOf(u"-si"_s);
        QVERIFY(join > first);
        QCOMPARE(args.mid(join, 8), words(u"-si -ss 0 -subtitle 0 -i"_s) << movie << u"-vf"_s);
        QCOMPARE(args.count(u"-vf"_s), 2);
    }

    void outputNames()
    {
        const QString clip = discs.file("clip.mp4");
        Task &first = fileTask(clip);
        preparedArguments(first, QString());
        QCOMPARE(preparedArguments(fileTask(clip), QString()).last(), outDir() + "/clip(1).mp4"_L1);
        // A retry gets a new name; a file of the user's with the name is never touched.
        const QString mine = writeFile(first.output.filePath, "mine");
        QCOMPARE(mine, outDir() + "/clip.mp4"_L1);
        QCOMPARE(preparedArguments(first, QString()).last(), outDir() + "/clip(2).mp4"_L1);
        QCOMPARE(readFile(mine), QByteArray("mine"));

        // Beside the source, or in a copy of the folders below the common root.
        QTemporaryDir sources;
        const QString source = sources.filePath(u"trip/day 1/clip.mp4"_s);
        QVERIFY(QDir().mkpath(QFileInfo(source).path()) && QFile::copy(clip, source));
        setSettingInt(u"OutputToSrc"_s, 1);
        QCOMPARE(preparedArguments(fileTask(source), QString()).last(),
                 sources.filePath(u"trip/day 1/clip(1).mp4"_s));
        setSettingInt(u"OutputToSrc"_s, 0);
        setSettingInt(u"CopyDirStruct"_s, 1);
        QCOMPARE(preparedArguments(fileTask(source), sources.filePath(u"trip"_s)).last(),
                 outDir() + "/day 1/clip.mp4"_L1);
        QVERIFY(QFileInfo::exists(outDir() + "/day 1/clip.mp4"_L1));
    }

    void values_data()
    {
        QTest::addColumn<QStringList>("settings"); // key=value pairs
        // Arguments that must stand in the list, in a row (the output by its
        // name alone); | separates such runs.
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("absent"); // arguments that must not, each on its own
        auto row = [](const char *name, const char *settings, const char *expected,
                      const char *absent) {
            QTest::newRow(name) << QString::fromUtf8(settings).split(u';') << expected << absent;
        };
        row("processor share 40% is raised to 50", "cpu=40%", "-y -cpu_percent 50", "");
        row("processor share 75%", "cpu=75%", "-y -cpu_percent 75", "");
        for (const char *none : {"100%", "150%", "85", "9%"})
            QTest::addRow("processor share %s", none)
                << QStringList{u"cpu="_s + QLatin1String(none)} << ""
                << "-cpu_percent";
        // "taken=" is a file already in the output folder.
        row("picture series", "pcodec=png;pi=5;name=shot.png;taken=shot001.png",
            "-r 1/5|shot(1)%03d.png", "");
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
        Task &task = fileTask(discs.file("clip.mp4"));
        for (const QString &pair : settings) {
            QString key = pair.section(u'=', 0, 0);
            const QString value = pair.section(u'=', 1);
            if (key == "source"_L1)
                task.item(0)->frameRate = value.toDouble();
            else if (key == "trim"_L1)
                task.items[0]->edit.trimEnd = task.items[0]->duration - value.toDouble();
            else if (key == "name"_L1)
                task.output.fileName = value;
            else if (key == "cpu"_L1)
                setSettingString(u"CpuUsage"_s, value);
            else if (key == "taken"_L1)
                QVERIFY(!writeFile(outDir() + u'/' + value, {}).isEmpty());
            else if (key.startsWith(u'!'))
                task.output.settings[*task.output.userKeys.insert(key.remove(0, 1))] = value;
            else
                task.output.settings[key] = value;
        }
        QStringList args = preparedArguments(task, QString());
        // Building again changes nothing: the list is a function of the task.
        QCOMPARE(CommandBuilder::build(task), args);
        args.last() = QFileInfo(args.last()).fileName();
        const QString text = u' ' + args.join(u' ') + u' ';
        for (const QString &run : expected.split(u'|', Qt::SkipEmptyParts))
            QVERIFY2(text.contains(u' ' + run + u' '), qPrintable(text));
        for (const QString &word : words(absent))
            QVERIFY2(!args.contains(word), qPrintable(word + u" in "_s + text));
        if (settings.contains(u"s="_s))
            QCOMPARE(task.items[0]->edit.innerWidth, 0); // no frame prepared
    }

    void watermarkIsRenderedForTheChain()
    {
        Task &task = fileTask(discs.file("clip.mp4"));
        task.output.settings[u"s"_s] = u"320*240"_s;
        WatermarkEntry &mark = task.items[0]->edit.watermark();
        mark.text = u"Kestrove"_s;
        const QStringList args = preparedArguments(task, QString());
        const QString chain = args.value(args.indexOf(u"-vf"_s) + 1);
        const QString file = task.items[0]->edit.watermarkFile;
        QVERIFY(QFile::exists(file) && file.startsWith(QDir::tempPath() + "/Watermark/"_L1));
        QVERIFY2(chain.contains(u",watermark2=%1:%2:"_s.arg(task.items[0]->edit.watermarkX)
                                    .arg(task.items[0]->edit.watermarkY)
                                + QString::fromLatin1(file.toLocal8Bit().toHex())),
                 qPrintable(chain));
        task.removeWatermarkFiles();
        QVERIFY(!QFile::exists(file));
        QVERIFY(task.items[0]->edit.watermarkFile.isEmpty());
    }
    void converts_data()
    {
        QTest::addColumn<QString>("key");
        SweepRows pick;
        for (const CatalogueEntry &entry : catalogueEntries()) {
            if (pick.take(containers.value(entry.extension, entry.extension)))
                QTest::newRow(qPrintable(entry.key + u' ' + entry.name)) << entry.key;
        }
    }

    void converts()
    {
        QFETCH(QString, key);
        // The file and the title convert side by side, one encoder each.
        Job file, title;
        start(file, key, false);
        start(title, key, true);
        check(file, false);
        check(title, true);
    }

    void candidateEncodes_data()
    {
        QTest::addColumn<QStringList>("args");
        useSettings(1);
        QSet<QString> seen;
        SweepRows pick;
        int rows = 0;
        const auto add = [&](const QList<Run> &more) {
            for (const Run &run : more) {
                const qsizetype known = seen.size();
                seen.insert(run.shape);
                if (!run.args.isEmpty() && seen.size() == known)
                    continue;
                // A choice that can't even be put on a command line is always shown.
                if (++rows && pick.take(run.args.isEmpty() ? run.what : run.key))
                    QTest::newRow(qPrintable(run.what)) << run.args;
            }
        };
        QStringList named;
        for (const CatalogueEntry &entry : catalogueEntries()) {
            named << entry.fileName;
            add(runsOf(ProfileGroupLoader::instance(), entry.key));
        }
        QCOMPARE(named.size(), 85);

        QStringList unnamed = QDir(u":/profile"_s).entryList({u"*.xml"_s});
        unnamed.removeAll(u"Group.xml"_s);
        for (const QString &file : std::as_const(named))
            unnamed.removeAll(file);
        QCOMPARE(unnamed.size(), 59);
        const FixedCatalogue later = laterCatalogue(unnamed);
        for (int i = 0; i < unnamed.size(); ++i)
            add(runsOf(&later, u"99,%1"_s.arg(i)));
        QVERIFY(rows > 200);
    }

    void candidateEncodes()
    {
        QFETCH(QStringList, args);
        QVERIFY2(!args.isEmpty(), "no command for this choice");
        args = QStringList{u"-y"_s, u"-hide_banner"_s, u"-nostats"_s, u"-loglevel"_s, u"error"_s}
               + args;
        QByteArray said;
        QVERIFY2(runTool(u"ffmpeg"_s, args, &said, {}, 120000) == 0,
                 qPrintable(u"ffmpeg "_s + args.join(u' ') + u"\n    "_s
                            + QString::fromUtf8(said.right(300).trimmed())));
    }
};

KESTROVE_HOME_MAIN(TestCatalogueCommands)

#include "tst_profileconversions.moc"
