#include "settings.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVariant>

#include <csignal>
#include <cstdio>
#include <memory>

// The store is process-wide, so each test process gets a fresh home first.
class TestSettings : public QObject
{
    Q_OBJECT

public:
    explicit TestSettings(const QString &home)
        : home(home)
    {}

private:
    QString home;

    // Runs this program as a helper that writes (without an explicit sync),
    // or reads "processes|output folder|output to source".
    static QString runHelper(const QStringList &arguments)
    {
        QProcess helper;
        helper.start(QCoreApplication::applicationFilePath(), arguments);
        if (!helper.waitForFinished(20000) || helper.exitCode() != 0)
            return QStringLiteral("<helper failed: %1>")
                .arg(QString::fromLocal8Bit(helper.readAllStandardError()));
        return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
    }

private slots:
    void freshUserGetsFoldersAndAnEmptyStore()
    {
        QCOMPARE(Setting::outputDir(), home + QStringLiteral("/Documents/Tessarine Kestrove"));
        QCOMPARE(Setting::snapshotDir(), home + QStringLiteral("/Pictures/Tessarine Kestrove"));
        QCOMPARE(Setting::inputDir(), home + QStringLiteral("/Videos"));
        QCOMPARE(userProfilesDir(),
                 home + QStringLiteral("/.local/share/Tessarine Kestrove/Profiles"));
        QVERIFY(!QDir(Setting::outputDir()).exists() && !QDir(userProfilesDir()).exists());
        // Reading stores nothing; a write lands in the user's config folder.
        setSettingInt(QStringLiteral("SkinIndex"), 1);
        syncSettings();
        QCOMPARE(settingsFilePath(), home + QStringLiteral("/.config/Tessarine/Kestrove.conf"));
        QFile file(settingsFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().trimmed(), QByteArray("[Setting]\nSkinIndex=1"));

        // Documents moved by the user's own folder configuration.
        QFile dirs(home + QStringLiteral("/.config/user-dirs.dirs"));
        QVERIFY(dirs.open(QIODevice::WriteOnly)
                && dirs.write("XDG_DOCUMENTS_DIR=\"$HOME/Docs\"\n"));
        dirs.close();
        QCOMPARE(defaultOutputDir(), home + QStringLiteral("/Docs/Tessarine Kestrove"));
        dirs.remove();
    }

    void valuesSurviveNewProcess()
    {
        const QString folder = QStringLiteral("/tmp/out put/Vidéos ünï");
        QCOMPARE(runHelper({QStringLiteral("--write"), folder}), QString());
        syncSettings();
        QCOMPARE(Setting::processCount(), 3);
        QCOMPARE(Setting::outputDir(), folder);
        // A value that isn't a number reads as none.
        setSettingString(QStringLiteral("ProcessCount"), QStringLiteral("two"));
        QCOMPARE(Setting::processCount(), 0);
    }

    void overrideIsReadButNeverStored()
    {
        setSettingString(QStringLiteral("OutputDir"), QStringLiteral("/stored"));
        overrideSetting(QStringLiteral("OutputDir"), QStringLiteral("/for this run"));
        overrideSetting(QStringLiteral("OutputToSrc"), 0);
        QCOMPARE(Setting::outputDir(), QStringLiteral("/for this run"));
        // A write during the override goes to the store; the override still wins.
        setSettingInt(QStringLiteral("OutputToSrc"), 1);
        QCOMPARE(Setting::outputToSrc(), 0);
        syncSettings();
        QCOMPARE(runHelper({QStringLiteral("--read")}), QStringLiteral("0|/stored|1"));

        overrideSetting(QStringLiteral("OutputDir"), QVariant());
        overrideSetting(QStringLiteral("OutputToSrc"), QVariant());
        QCOMPARE(Setting::outputDir(), QStringLiteral("/stored"));
        QCOMPARE(Setting::outputToSrc(), 1);
    }

    // Starts the real window program, as a user would, from a foreign folder,
    // on an empty store under a system language.
    void firstStartFollowsTheSystemAndQuitsCleanly_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("German, logout") << "de_DE.UTF-8"
                                        << "de" << int(SIGTERM);
        QTest::newRow("Chinese as listed, ctrl-c") << "zh_CN.UTF-8"
                                                   << "zh_CN" << int(SIGINT);
        QTest::newRow("Chinese of a region not listed") << "zh_HK.UTF-8"
                                                        << "en" << int(SIGTERM);
    }

    void firstStartFollowsTheSystemAndQuitsCleanly()
    {
        QFETCH(QString, system);
        QFETCH(int, signalNumber);
        QTemporaryDir elsewhere;
        const QString binDir = QCoreApplication::applicationDirPath();
        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE", "XDG_CONFIG_HOME"})
            env.remove(QLatin1String(name));
        env.insert(QStringLiteral("LANG"), system);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("HOME"), elsewhere.path());
        program.setProcessEnvironment(env);
        program.setWorkingDirectory(elsewhere.path());
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(binDir + QStringLiteral("/kestrove"), QStringList());
        QVERIFY(program.waitForStarted(10000));

        // The program makes its own folder the working directory.
        const QString cwdLink = QStringLiteral("/proc/%1/cwd").arg(program.processId());
        QTRY_COMPARE_WITH_TIMEOUT(QFileInfo(cwdLink).canonicalFilePath(),
                                  QFileInfo(binDir).canonicalFilePath(), 20000);
        // The language is stored as soon as it's chosen; a second start reads it.
        const QString store = elsewhere.filePath(QStringLiteral(".config/Tessarine/Kestrove.conf"));
        QFETCH(QString, stored);
        QTRY_COMPARE_WITH_TIMEOUT(QSettings(store, QSettings::IniFormat)
                                      .value(QStringLiteral("Setting/UiLanguage"))
                                      .toString(),
                                  stored, 30000);
        // It keeps running: the window is up and the event loop turns.
        QTest::qWait(500);
        QCOMPARE(program.state(), QProcess::Running);

        ::kill(static_cast<pid_t>(program.processId()), signalNumber);
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }
};

int main(int argc, char *argv[])
{
    // The helper inherits the test's home, so it reads the store under test.
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    std::unique_ptr<TestHome> home(mode.startsWith("--") ? nullptr : new TestHome);
    QCoreApplication app(argc, argv);
    if (mode == "--write") {
        setSettingInt(QStringLiteral("ProcessCount"), 3);
        setSettingString(QStringLiteral("OutputDir"), QCoreApplication::arguments().value(2));
        return 0;
    }
    if (mode == "--read") {
        std::printf("%d|%s|%d\n", Setting::processCount(),
                    Setting::outputDir().toUtf8().constData(), Setting::outputToSrc());
        return 0;
    }
    TestSettings test(home->path());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settings.moc"
