#include "encoderjob.h"
#include "inputprobe.h"
#include "mediafixtures.h"
#include "preparedarguments.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "sweeprows.h"
#include "task.h"
#include "tasklist.h"

#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTest>

#include "homemain.h"

namespace {

// The documents that no entry of this catalogue names, as a later catalogue
// may name them: each with the container its family suggests.
class LaterCatalogue : public ProfileLookup
{
public:
    explicit LaterCatalogue(const QStringList &files)
        : files(files)
    {}
    QString profileFileName(const QString &, const QString &id) const override
    {
        return files.value(id.toInt());
    }
    QString profileExtName(const QString &groupId, const QString &id) const override
    {
        const QString name = profileFileName(groupId, id).toLower();
        const struct
        {
            const char *part;
            const char *extension;
        } rules[] = {{"wmv", "wmv"},    {"xvid", "avi"},   {"divx", "avi"}, {"avi", "avi"},
                     {"_ts", "ts"},     {"mpeg2", "mpg"},  {"_ogg", "mkv"}, {"dpg4", "mp4"},
                     {"dpg", "mpg"},    {"wtv", "mpg"},    {"swf", "swf"},  {"flv", "flv"},
                     {"prores", "mov"}, {"imovie", "mov"}, {"mov", "mov"},  {"xbox_", "mov"}};
        for (const auto &rule : rules) {
            if (name.contains(QLatin1String(rule.part)))
                return QLatin1String(rule.extension);
        }
        return QStringLiteral("mp4");
    }

private:
    QStringList files;
};

} // namespace

// Whatever a user picks from a catalogue profile's lists must be something
// the encoder can write. Each candidate of each list is tried with the other
// values at their defaults; ffmpeg encodes a tenth of a second of it into the
// profile's container. Audio choices are tried without video and video
// choices without audio, which keeps the number of runs down. One row per
// distinct command, picked by SweepRows: the quick set takes one row per list.
class TestCandidateValues : public QObject
{
    Q_OBJECT

private:
    struct Run
    {
        QString what;
        QStringList args; // empty: `what` says why there is nothing to run
        QString key;
        QString shape; // what the run tries, for skipping runs that try the same
    };

    const QString home = QDir::homePath(); // TestHome's
    QString source;
    InputLayout layout;
    QList<Run> runs;

    QList<Run> runsOf(const ProfileLookup *catalogue, const QString &profileKey)
    {
        static const QStringList audioKeys
            = QStringLiteral("acodec ab ar ac vol").split(QLatin1Char(' '));
        static const QStringList videoKeys
            = QStringLiteral("vcodec s b r aspect level vprofile pi").split(QLatin1Char(' '));
        QList<Run> runs;
        TaskList list(catalogue);
        Task &task = *list.byId(list.addFile(profileKey, source));
        const Profile profile(QStringLiteral(":/profile/") + task.output.profileFile);
        const QMap<QString, QString> defaults = profile.values();
        for (const QString &key : profile.keys()) {
            const QDomElement parameter = profile.parameter(key);
            if (Profile::kind(parameter) != Profile::ClosedList
                && Profile::kind(parameter) != Profile::OpenList)
                continue;
            for (const QString &candidate : Profile::candidates(parameter)) {
                const QString what = QStringLiteral("%1 (%2) %3=\"%4\"")
                                         .arg(profileKey, task.output.profileFile, key, candidate);
                task.output.settings = defaults;
                task.output.settings[key] = candidate;
                const bool audioChoice = audioKeys.contains(key);
                const bool videoChoice = videoKeys.contains(key);
                // DV needs both streams.
                const bool dv = task.output.profileFile == QLatin1String("dv.xml");
                if (audioChoice && !dv)
                    task.output.settings[QStringLiteral("s")].clear(); // no video
                if (videoChoice && !dv)
                    task.output.settings[QStringLiteral("an")] = QStringLiteral("True");
                const QStringList builderArgs = preparedArguments(task, list.commonRootPath());
                QFile::remove(task.output.filePath); // the builder reserved it
                if (!audioChoice && !videoChoice) {
                    // Tags: passed as they are, whatever the choice.
                    if (!candidate.isEmpty()
                        && !builderArgs.contains(QStringLiteral("%1=%2").arg(key, candidate)))
                        runs << Run{what + QStringLiteral(": not passed"), {}, key, {}};
                    continue;
                }
                QString error;
                const auto job = EncoderJob::parse(builderArgs, &error);
                if (!job) {
                    runs << Run{what + QStringLiteral(": ") + error, {}, key, {}};
                    continue;
                }
                QStringList args = job->ffmpegArguments({source}, {layout});
                args.insert(args.size() - 1, QStringLiteral("-t"));
                args.insert(args.size() - 1, QStringLiteral("0.1"));
                args.last() = home + QStringLiteral("/try.") + QFileInfo(args.last()).suffix();
                // A choice meets the encoder of its own stream and the container;
                // sound also meets the other sound settings. Volume is a filter
                // that any encoder takes.
                const bool volume = key == QLatin1String("vol");
                QString shape = audioChoice && !volume ? QStringLiteral("sound")
                                                       : key + QLatin1Char('=') + candidate;
                if (!volume) {
                    shape += QLatin1Char(' ') + QFileInfo(args.last()).suffix();
                    if (audioChoice) {
                        for (const char *option : {"-c:a", "-b:a", "-q:a", "-ar", "-ac"}) {
                            const int at = args.indexOf(QLatin1String(option));
                            if (at >= 0)
                                shape += QLatin1Char(' ') + args.value(at + 1);
                        }
                    } else {
                        shape += QLatin1Char(' ') + job->output.videoCodec;
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
        const QString fixtures = mediaFixtures();
        QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
        source = fixture(fixtures, "movie.mkv");
        layout = InputProbe::layout(source);
        QVERIFY(layout.hasVideo && layout.hasAudio);
        CommandBuilder::setGpuEncoderOverride(0);
        setSettingString(QStringLiteral("OutputDir"), home + QStringLiteral("/out"));
        setSettingInt(QStringLiteral("ThreadCount"), 1);

        QSet<QString> seen;
        auto add = [&](const QList<Run> &more) {
            for (const Run &run : more) {
                if (run.args.isEmpty() || !seen.contains(run.shape))
                    runs << run;
                seen.insert(run.shape);
            }
        };
        QStringList named;
        for (const CatalogueEntry &entry : catalogueEntries()) {
            named << entry.fileName;
            add(runsOf(ProfileGroupLoader::instance(), entry.key));
        }
        QCOMPARE(named.size(), 85);

        QStringList unnamed
            = QDir(QStringLiteral(":/profile")).entryList({QStringLiteral("*.xml")});
        unnamed.removeAll(QStringLiteral("Group.xml"));
        for (const QString &file : std::as_const(named))
            unnamed.removeAll(file);
        QCOMPARE(unnamed.size(), 59);
        const LaterCatalogue later(unnamed);
        for (int i = 0; i < unnamed.size(); ++i)
            add(runsOf(&later, QStringLiteral("99,%1").arg(i)));
        QVERIFY(runs.size() > 200);
    }

    void candidateEncodes_data()
    {
        QTest::addColumn<QStringList>("args");
        SweepRows pick;
        for (const Run &run : std::as_const(runs)) {
            // A choice that can't even be put on a command line is always shown.
            if (pick.take(run.args.isEmpty() ? run.what : run.key))
                QTest::newRow(qPrintable(run.what)) << run.args;
        }
    }

    void candidateEncodes()
    {
        QFETCH(QStringList, args);
        QVERIFY2(!args.isEmpty(), "no command for this choice");
        QProcess ffmpeg;
        ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
        ffmpeg.start(QStringLiteral("ffmpeg"),
                     QStringList{QStringLiteral("-y"), QStringLiteral("-hide_banner"),
                                 QStringLiteral("-nostats"), QStringLiteral("-loglevel"),
                                 QStringLiteral("error")}
                         + args);
        QVERIFY(ffmpeg.waitForFinished(120000));
        QVERIFY2(ffmpeg.exitStatus() == QProcess::NormalExit && ffmpeg.exitCode() == 0,
                 qPrintable(QStringLiteral("ffmpeg ") + args.join(QLatin1Char(' '))
                            + QStringLiteral("\n    ")
                            + QString::fromUtf8(ffmpeg.readAll().right(300).trimmed())));
    }
};

KESTROVE_HOME_MAIN(TestCandidateValues)

#include "tst_candidatevalues.moc"
