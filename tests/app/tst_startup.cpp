#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

// Starts the real window program, as a user would, from a foreign folder.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void startsFromAnyFolderAndQuitsCleanly_data();
    void startsFromAnyFolderAndQuitsCleanly();
};

void TestStartup::startsFromAnyFolderAndQuitsCleanly_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("logout") << int(SIGTERM);
    QTest::newRow("ctrl-c") << int(SIGINT);
}

void TestStartup::startsFromAnyFolderAndQuitsCleanly()
{
    QFETCH(int, signalNumber);
    QTemporaryDir elsewhere;
    const QString binDir = QCoreApplication::applicationDirPath();

    QProcess program;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
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
