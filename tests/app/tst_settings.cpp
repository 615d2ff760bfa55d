#include "settings.h"
#include "testhome.h"
#include "utils.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QVariant>

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

private slots:
    void freshUserGetsDefaults();
    void onlyWritesReachTheStore();
    void valuesSurviveNewProcess();
    void badValueReadsAsNull();
    void defaultFoldersFollowUserDirs();
    void overrideIsReadButNeverStored();

private:
    QString runHelper(const QStringList &arguments);
    QString home;
};

void TestSettings::freshUserGetsDefaults()
{
    QCOMPARE(Setting::processCount(), 1);
    QCOMPARE(Setting::threadCount(), Utils::processorCount());
    QCOMPARE(Setting::cpuUsage(), QStringLiteral("100%"));
    QCOMPARE(Setting::outputDir(), home + QStringLiteral("/Documents/Tessarine Kestrove"));
    QCOMPARE(Setting::snapshotDir(), home + QStringLiteral("/Pictures/Tessarine Kestrove"));
    QCOMPARE(Setting::inputDir(), home + QStringLiteral("/Videos"));
    QCOMPARE(Setting::soundDir(), home + QStringLiteral("/Music"));
    QCOMPARE(Setting::enableCuda(), true);
    QCOMPARE(Setting::uiLanguage(), QString());
    QCOMPARE(Setting::profileIndex(QStringLiteral("1,68")), QStringLiteral("1,68"));
    QCOMPARE(userProfilesDir(), home + QStringLiteral("/.local/share/Tessarine Kestrove/Profiles"));
    // Nothing here creates folders.
    QVERIFY(!QDir(Setting::outputDir()).exists());
    QVERIFY(!QDir(userProfilesDir()).exists());
}

void TestSettings::onlyWritesReachTheStore()
{
    Setting::outputDir();
    Setting::threadCount();
    setSettingInt(QStringLiteral("SkinIndex"), 1);
    syncSettings();
    QCOMPARE(settingsFilePath(), home + QStringLiteral("/.config/Tessarine/Kestrove.conf"));
    QFile file(settingsFilePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray contents = file.readAll();
    QVERIFY2(contents.contains("[Setting]\nSkinIndex=1"), contents.constData());
    QVERIFY2(!contents.contains("OutputDir"), contents.constData());
    QVERIFY2(!contents.contains("ThreadCount"), contents.constData());
}

QString TestSettings::runHelper(const QStringList &arguments)
{
    QProcess helper;
    helper.start(QCoreApplication::applicationFilePath(),
                 QStringList{QStringLiteral("--helper")} + arguments);
    if (!helper.waitForFinished(20000) || helper.exitCode() != 0)
        return QStringLiteral("<helper failed: %1>")
            .arg(QString::fromLocal8Bit(helper.readAllStandardError()));
    return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
}

void TestSettings::valuesSurviveNewProcess()
{
    const QString folder = QStringLiteral("/tmp/out put/Vidéos ünï");
    QCOMPARE(runHelper({QStringLiteral("write"), folder}), QStringLiteral("written"));
    QCOMPARE(runHelper({QStringLiteral("read")}), QStringLiteral("3|%1|false|0").arg(folder));
}

void TestSettings::badValueReadsAsNull()
{
    setSettingString(QStringLiteral("ProcessCount"), QStringLiteral("two"));
    QCOMPARE(Setting::processCount(), 0);
    setSettingInt(QStringLiteral("ProcessCount"), 4);
    QCOMPARE(Setting::processCount(), 4);
}

void TestSettings::overrideIsReadButNeverStored()
{
    setSettingString(QStringLiteral("OutputDir"), QStringLiteral("/stored"));
    overrideSetting(QStringLiteral("OutputDir"), QStringLiteral("/for this run"));
    overrideSetting(QStringLiteral("OutputToSrc"), 0);
    QCOMPARE(Setting::outputDir(), QStringLiteral("/for this run"));
    // A write during the override goes to the store; the override still wins.
    setSettingInt(QStringLiteral("OutputToSrc"), 1);
    QCOMPARE(Setting::outputToSrc(), 0);
    syncSettings();
    QVERIFY(runHelper({QStringLiteral("read")}).endsWith(QStringLiteral("|/stored|false|1")));

    overrideSetting(QStringLiteral("OutputDir"), QVariant());
    overrideSetting(QStringLiteral("OutputToSrc"), QVariant());
    QCOMPARE(Setting::outputDir(), QStringLiteral("/stored"));
    QCOMPARE(Setting::outputToSrc(), 1);
}

void TestSettings::defaultFoldersFollowUserDirs()
{
    QDir().mkpath(home + QStringLiteral("/.config"));
    QFile dirs(home + QStringLiteral("/.config/user-dirs.dirs"));
    QVERIFY(dirs.open(QIODevice::WriteOnly));
    dirs.write("XDG_DOCUMENTS_DIR=\"$HOME/Docs\"\n");
    dirs.close();
    QCOMPARE(defaultOutputDir(), home + QStringLiteral("/Docs/Tessarine Kestrove"));
    dirs.remove();
}

// Writes without an explicit sync (the store must flush on its own at exit),
// or reads back what a test process stored.
static int helperMain(const QStringList &arguments)
{
    if (arguments.value(0) == QLatin1String("write")) {
        setSettingInt(QStringLiteral("ProcessCount"), 3);
        setSettingString(QStringLiteral("OutputDir"), arguments.value(1));
        setSettingBool(QStringLiteral("EnableCuda"), false);
        std::puts("written");
        return 0;
    }
    const QString line = QStringLiteral("%1|%2|%3|%4")
                             .arg(Setting::processCount())
                             .arg(Setting::outputDir())
                             .arg(QVariant(Setting::enableCuda()).toString())
                             .arg(Setting::outputToSrc());
    std::puts(line.toUtf8().constData());
    return 0;
}

int main(int argc, char *argv[])
{
    // Children inherit the test's home, so they share the store under test.
    const bool helper = argc > 1 && qstrcmp(argv[1], "--helper") == 0;
    std::unique_ptr<TestHome> home(helper ? nullptr : new TestHome);
    QCoreApplication app(argc, argv);
    if (helper)
        return helperMain(QCoreApplication::arguments().mid(2));
    TestSettings test(home->path());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settings.moc"
