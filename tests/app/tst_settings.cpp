#include "settings.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
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
