#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

// Starts the real window program, as a user would, from a foreign folder,
// on an empty store under a system language.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void firstStartFollowsTheSystemAndQuitsCleanly_data();
    void firstStartFollowsTheSystemAndQuitsCleanly();
};

void TestStartup::firstStartFollowsTheSystemAndQuitsCleanly_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("German, logout") << "de_DE.UTF-8" << "de" << int(SIGTERM);
    QTest::newRow("Chinese as listed, ctrl-c") << "zh_CN.UTF-8" << "zh_CN" << int(SIGINT);
    QTest::newRow("Chinese of a region not listed") << "zh_HK.UTF-8" << "en" << int(SIGTERM);
}

void TestStartup::firstStartFollowsTheSystemAndQuitsCleanly()
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
    QTRY_COMPARE_WITH_TIMEOUT(
        QSettings(store, QSettings::IniFormat).value(QStringLiteral("Setting/UiLanguage")).toString(),
        stored, 30000);
    // It keeps running: the window is up and the event loop turns.
    QTest::qWait(500);
    QCOMPARE(program.state(), QProcess::Running);

    ::kill(static_cast<pid_t>(program.processId()), signalNumber);
    QVERIFY(program.waitForFinished(20000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
