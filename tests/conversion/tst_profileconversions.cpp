#include "dvddisc.h"
#include "encoderjob.h"
#include "ffmpegtools.h"
#include "mediafixtures.h"
#include "optiontable.h"
#include "preparedarguments.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "sweeprows.h"
#include "task.h"
#include "tasklist.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QtMath>

#include "homemain.h"

namespace {

// The container: what ffprobe calls the format of the profile's extension;
// the quick set converts one profile of each.
const QMap<QString, QString> containers = [] {
    QMap<QString, QString> map;
    const QString pairs = QStringLiteral(
        "mp4=mp4 m4a=mp4 mov=mov 3gp=3gp avi=avi wmv=asf wma=asf asf=asf mpg=mpeg "
        "vob=mpeg rm=rm ra=rm dv=dv mkv=matroska webm=webm ac3=ac3 aiff=aiff flac=flac "
        "au=au mp2=mp3 mp3=mp3 ogg=ogg wav=wav ts=mpegts flv=flv swf=swf bmp=bmp_pipe "
        "gif=gif jpg=image2 png=png_pipe");
    for (const QString &pair : pairs.split(QLatin1Char(' ')))
        map.insert(pair.section(QLatin1Char('='), 0, 0), pair.section(QLatin1Char('='), 1));
    return map;
}();

// What ffprobe prints about a file, its errors alone.
QByteArray ffprobe(const char *options, const QString &file)
{
    QByteArray out;
    runTool(QStringLiteral("ffprobe"),
            QStringLiteral("-v error %1").arg(QLatin1String(options)).split(QLatin1Char(' '))
                << file,
            &out);
    return out;
}

} // namespace

// Every profile of the built-in catalogue converts a short file and a DVD
// title through the real encoder front into what the profile promises.
class TestProfileConversions : public QObject
{
    Q_OBJECT

private:
    struct Job
    {
        std::unique_ptr<TaskList> list;
        Task *task = nullptr;
        QProcess process;
    };

    const QString home = QDir::homePath(); // TestHome's
    QString fixtures;
    std::unique_ptr<DvdDisc> disc;
    QMap<QString, QString> codecOfEncoder;
    QString encoder;

    void start(Job &job, const QString &key, bool title)
    {
        job.list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
        const int id = title ? job.list->addTitle(key, *disc->titles[0], 1, 1)
                             : job.list->addFile(key, fixture(fixtures, "movie.mkv"));
        job.task = job.list->byId(id);
        QVERIFY(job.task);
        job.task->output.settings
            = Profile(QStringLiteral(":/profile/") + job.task->output.profileFile).values();
        const QStringList args = preparedArguments(*job.task, job.list->commonRootPath());
        job.process.setProcessChannelMode(QProcess::MergedChannels);
        job.process.start(encoder, args);
    }

    void check(Job &job, const QString &key, bool title)
    {
        const QString what
            = QStringLiteral("%1 from a %2")
                  .arg(key, title ? QStringLiteral("title") : QStringLiteral("file"));
        QVERIFY2(job.process.waitForFinished(120000), qPrintable(what));
        const QByteArray log = job.process.readAll();
        QVERIFY2(job.process.exitStatus() == QProcess::NormalExit && job.process.exitCode() == 0,
                 qPrintable(what + QLatin1Char('\n') + QString::fromUtf8(log.right(700))));
        const Task &task = *job.task;

        QString output = task.output.filePath;
        // Picture profiles: a series, or one animated GIF; no sound either way.
        const bool pictures = !task.value(QStringLiteral("pcodec")).isEmpty();
        if (task.isPictureSeries())
            output.replace(QStringLiteral("%03d"), QStringLiteral("001"));
        QVERIFY2(QFileInfo(output).size() > 0, qPrintable(what));
        if (output.endsWith(QLatin1String(".gif"))) {
            // One animated GIF: a picture every two seconds of the source, all readable.
            const int count
                = ffprobe("-count_frames -show_entries stream=nb_read_frames -of csv=p=0", output)
                      .trimmed()
                      .toInt();
            const int expected = qCeil(task.convertDuration() / 2.0 - 0.01);
            QVERIFY2(count >= expected && count <= expected + 1,
                     qPrintable(what + QStringLiteral(": %1 frames").arg(count)));
        }

        const QJsonObject root
            = QJsonDocument::fromJson(
                  ffprobe("-print_format json -show_streams -show_format", output))
                  .object();
        QJsonObject video, audio;
        for (const auto &value : root[u"streams"].toArray()) {
            const QString type = value[u"codec_type"].toString();
            QJsonObject &first = type == QLatin1String("video") ? video : audio;
            if (first.isEmpty()
                && (type == QLatin1String("video") || type == QLatin1String("audio")))
                first = value.toObject();
        }

        const QString extension = QFileInfo(task.output.fileName).suffix();
        const QStringList formats
            = root[u"format"][u"format_name"].toString().split(QLatin1Char(','));
        QVERIFY2(containers.contains(extension),
                 qPrintable(what + QStringLiteral(": extension ") + extension));
        QVERIFY2(
            formats.contains(containers.value(extension)),
            qPrintable(what + QStringLiteral(": container ") + formats.join(QLatin1Char(','))));

        // What the encoder front made of the list: the encoders it asked for
        // and the frame size of the last filter chain.
        const auto front = EncoderJob::parse(job.process.arguments(), nullptr);
        QVERIFY(front);
        auto codecOf = [this](const QString &encoderName) {
            return codecOfEncoder.value(encoderName, encoderName);
        };
        QSize size = task.outputSize();
        const QRegularExpression lastSize(
            QStringLiteral("(?:scale|pad)=(\\d+):(\\d+)(?!.*(?:scale|pad)=)"));
        const auto match = lastSize.match(front->inputs.last().videoChain);
        if (match.hasMatch())
            size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
        if (task.value(QStringLiteral("s")).isEmpty()) {
            QVERIFY2(video.isEmpty() || formats.contains(QStringLiteral("mp3")),
                     qPrintable(what + QStringLiteral(": video in audio output")));
        } else {
            QVERIFY2(!video.isEmpty(), qPrintable(what + QStringLiteral(": no video")));
            const QString codec = codecOf(front->output.videoCodec);
            if (!codec.isEmpty())
                QCOMPARE(video[u"codec_name"].toString(), codec);
            QCOMPARE(video[u"width"].toInt(), size.width() + size.width() % 2);
            QCOMPARE(video[u"height"].toInt(), size.height() + size.height() % 2);
        }
        if (task.value(QStringLiteral("an")) != QLatin1String("True") && !pictures) {
            QVERIFY2(!audio.isEmpty(), qPrintable(what + QStringLiteral(": no audio")));
            // A sound the container can't name is silence in every player.
            const QString named = audio[u"codec_name"].toString();
            QVERIFY2(!named.isEmpty() && named != QLatin1String("unknown"),
                     qPrintable(what + QStringLiteral(": sound under an unknown tag")));
            const QString codec = codecOf(front->output.audioCodec);
            if (!codec.isEmpty())
                QCOMPARE(audio[u"codec_name"].toString(), codec);
        }
        if (!pictures) {
            double duration = root[u"format"][u"duration"].toString().toDouble();
            if (duration == 0 && !video.isEmpty()) {
                // Some containers (SWF) keep no duration: count the frames.
                const QByteArray counted
                    = ffprobe("-count_packets -select_streams v:0 -show_entries "
                              "stream=nb_read_packets,r_frame_rate -of csv=p=0",
                              output);
                const QStringList fields
                    = QString::fromUtf8(counted).trimmed().split(QLatin1Char(','));
                const QStringList rate = fields.value(0).split(QLatin1Char('/'));
                if (rate.size() == 2 && rate[0].toDouble() > 0)
                    duration = fields.value(1).toDouble() * rate[1].toDouble() / rate[0].toDouble();
            }
            QVERIFY2(qAbs(duration - 3.0) < 0.5,
                     qPrintable(what + QStringLiteral(": lasts ") + QString::number(duration)));
        }
    }

private slots:

    void initTestCase()
    {
        fixtures = mediaFixtures();
        QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
        disc = LoadDvdDisc(fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), false);
        QVERIFY(disc && !disc->titles.empty());
        encoder = QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder");
        CommandBuilder::setGpuEncoderOverride(0);
        setSettingString(QStringLiteral("OutputDir"), home + QStringLiteral("/out"));
        setSettingInt(QStringLiteral("ThreadCount"), 1);

        QByteArray encoders;
        QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                         {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")}, &encoders),
                 0);
        const QRegularExpression line(
            QStringLiteral("^ [VAS][^ ]{5} (\\S+) .*?(?:\\(codec (\\S+)\\))?$"),
            QRegularExpression::MultilineOption);
        auto it = line.globalMatch(QString::fromUtf8(encoders));
        while (it.hasNext()) {
            const auto match = it.next();
            codecOfEncoder[match.captured(1)]
                = match.captured(2).isEmpty() ? match.captured(1) : match.captured(2);
        }
        QVERIFY(codecOfEncoder.value(QStringLiteral("libx264")) == QLatin1String("h264"));
    }

    void converts_data()
    {
        QTest::addColumn<QString>("key");
        SweepRows pick;
        for (const CatalogueEntry &entry : catalogueEntries()) {
            if (pick.take(containers.value(entry.extension, entry.extension)))
                QTest::newRow(qPrintable(entry.key + QLatin1Char(' ') + entry.name)) << entry.key;
        }
    }

    void converts()
    {
        QFETCH(QString, key);
        // The file and the title convert side by side, one encoder each.
        Job file, title;
        start(file, key, false);
        start(title, key, true);
        check(file, key, false);
        check(title, key, true);
    }
};

KESTROVE_HOME_MAIN(TestProfileConversions)

#include "tst_profileconversions.moc"
