#include "preparedarguments.h"
#include "encoderjob.h"
#include "inputprobe.h"
#include "mediafixtures.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "task.h"
#include "tasklist.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QSet>
#include <QTest>

#include "testhome.h"

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
// choices without audio, which keeps the number of runs down.
class TestCandidateValues : public QObject
{
    Q_OBJECT

public:
    explicit TestCandidateValues(const QString &home)
        : home(home)
    {}

private slots:
    void initTestCase();
    void everyCandidateEncodes();

private:
    struct Run
    {
        QString what;
        QStringList args;
        QString shape; // what the run tries, for skipping runs that try the same
    };
    QList<Run> runsOf(const ProfileLookup *catalogue, const QString &profileKey);
    static void finish(QProcess &process, const Run &run, QStringList &failures);

    QString home;
    QString source;
    InputLayout layout;
};

void TestCandidateValues::initTestCase()
{
    const QString fixtures = mediaFixtures();
    QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
    source = fixture(fixtures, "movie.mkv");
    layout = InputProbe::layout(source);
    QVERIFY(layout.hasVideo && layout.hasAudio);
    CommandBuilder::setGpuEncoderOverride(0);
    setSettingString(QStringLiteral("OutputDir"), home + QStringLiteral("/out"));
    setSettingInt(QStringLiteral("ThreadCount"), 1);
}

QList<TestCandidateValues::Run> TestCandidateValues::runsOf(const ProfileLookup *catalogue,
                                                            const QString &profileKey)
{
    static const QSet<QString> audioKeys
        = {QStringLiteral("acodec"), QStringLiteral("ab"), QStringLiteral("ar"),
           QStringLiteral("ac"), QStringLiteral("vol")};
    static const QSet<QString> videoKeys
        = {QStringLiteral("vcodec"),   QStringLiteral("s"),      QStringLiteral("b"),
           QStringLiteral("r"),        QStringLiteral("aspect"), QStringLiteral("level"),
           QStringLiteral("vprofile"), QStringLiteral("pi")};
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
                    runs << Run{
                        QStringLiteral("%1 %2=%3: not passed").arg(profileKey, key, candidate),
                        {},
                        {}};
                continue;
            }
            QString error;
            const auto job = EncoderJob::parse(builderArgs, &error);
            if (!job) {
                runs << Run{
                    QStringLiteral("%1 %2=%3: %4").arg(profileKey, key, candidate, error), {}, {}};
                continue;
            }
            QStringList args = job->ffmpegArguments({source}, {layout});
            args.insert(args.size() - 1, QStringLiteral("-t"));
            args.insert(args.size() - 1, QStringLiteral("0.1"));
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
            runs << Run{QStringLiteral("%1 (%2) %3=\"%4\"")
                            .arg(profileKey, task.output.profileFile, key, candidate),
                        args, shape};
        }
    }
    return runs;
}

void TestCandidateValues::finish(QProcess &process, const Run &run, QStringList &failures)
{
    process.waitForFinished(60000);
    const QString log = QString::fromUtf8(process.readAll());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        failures << run.what + QStringLiteral("\n    ffmpeg ") + run.args.join(QLatin1Char(' '))
                        + QStringLiteral("\n    ") + log.right(300).trimmed();
}

void TestCandidateValues::everyCandidateEncodes()
{
    QStringList failures;
    QList<Run> runs;
    QSet<QString> seen;
    auto add = [&](QList<Run> more) {
        for (Run &run : more) {
            if (run.args.isEmpty()) {
                failures << run.what;
                continue;
            }
            if (seen.contains(run.shape))
                continue;
            seen.insert(run.shape);
            const QString suffix = QFileInfo(run.args.last()).suffix();
            run.args.last() = home + QStringLiteral("/try%1.").arg(runs.size() % 2) + suffix;
            runs << run;
        }
    };
    const ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    QStringList named;
    int profiles = 0;
    for (const QDomNode &group : catalogue->groups()) {
        const QString groupId
            = group.firstChildElement(QStringLiteral("Id")).attribute(QStringLiteral("value"));
        const QDomNodeList entries = catalogue->profiles(group);
        for (int i = 0; i < entries.size(); ++i) {
            const QString id = entries.at(i)
                                   .firstChildElement(QStringLiteral("Id"))
                                   .attribute(QStringLiteral("value"));
            ++profiles;
            named << catalogue->profileFileName(groupId, id);
            add(runsOf(catalogue, ProfileGroupLoader::profileKey(groupId, id)));
        }
    }
    QCOMPARE(profiles, 85);

    QStringList unnamed = QDir(QStringLiteral(":/profile")).entryList({QStringLiteral("*.xml")});
    unnamed.removeAll(QStringLiteral("Group.xml"));
    for (const QString &file : std::as_const(named))
        unnamed.removeAll(file);
    QCOMPARE(unnamed.size(), 59);
    const LaterCatalogue later(unnamed);
    for (int i = 0; i < unnamed.size(); ++i)
        add(runsOf(&later, QStringLiteral("99,%1").arg(i)));
    QVERIFY(runs.size() > 200);

    // Two at a time: the machines that run this have two cores.
    QProcess processes[2];
    for (QProcess &process : processes)
        process.setProcessChannelMode(QProcess::MergedChannels);
    for (int i = 0; i < runs.size(); ++i) {
        QProcess &process = processes[i % 2];
        if (i >= 2)
            finish(process, runs[i - 2], failures);
        process.start(QStringLiteral("ffmpeg"),
                      QStringList{QStringLiteral("-hide_banner"), QStringLiteral("-nostats"),
                                  QStringLiteral("-loglevel"), QStringLiteral("error")}
                          + runs[i].args);
    }
    for (int i = qMax(0, int(runs.size()) - 2); i < runs.size(); ++i)
        finish(processes[i % 2], runs[i], failures);
    qInfo("%d distinct commands", int(runs.size()));
    for (const QString &failure : failures)
        qWarning().noquote() << failure;
    QVERIFY2(failures.isEmpty(), qPrintable(QString::number(failures.size())
                                            + QStringLiteral(" choices failed (listed above)")));
}

int main(int argc, char *argv[])
{
    TestHome home;
    qputenv("TMPDIR", home.path().toLocal8Bit());
    // Watermark entries take the application's font.
    QGuiApplication app(argc, argv);
    TestCandidateValues test(home.path());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_candidatevalues.moc"
