#include "pathparts.h"
#include "settings.h"
#include "testhome.h"
#include "utils.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVariant>

#include <climits>
#include <csignal>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// makeUnique() rather than makeUniqueAt(position).
constexpr int plain = INT_MIN;

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write("x");
}

} // namespace

// The store and the paths and names the program makes. The store is process-wide,
// so each test process gets a fresh home first.
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
            return u"<helper failed: %1>"_s.arg(
                QString::fromLocal8Bit(helper.readAllStandardError()));
        return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
    }

private slots:
    void freshUserGetsFoldersAndAnEmptyStore()
    {
        QCOMPARE(Setting::outputDir(), home + u"/Documents/Tessarine Kestrove"_s);
        QCOMPARE(Setting::snapshotDir(), home + u"/Pictures/Tessarine Kestrove"_s);
        QCOMPARE(Setting::inputDir(), home + u"/Videos"_s);
        QCOMPARE(userProfilesDir(), home + u"/.local/share/Tessarine Kestrove/Profiles"_s);
        QVERIFY(!QDir(Setting::outputDir()).exists() && !QDir(userProfilesDir()).exists());
        // Reading stores nothing; a write lands in the user's config folder.
        setSettingInt(u"SkinIndex"_s, 1);
        syncSettings();
        QCOMPARE(settingsFilePath(), home + u"/.config/Tessarine/Kestrove.conf"_s);
        QFile file(settingsFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().trimmed(), QByteArray("[Setting]\nSkinIndex=1"));

        // Documents moved by the user's own folder configuration.
        QFile dirs(home + u"/.config/user-dirs.dirs"_s);
        QVERIFY(dirs.open(QIODevice::WriteOnly)
                && dirs.write("XDG_DOCUMENTS_DIR=\"$HOME/Docs\"\n"));
        dirs.close();
        QCOMPARE(defaultOutputDir(), home + u"/Docs/Tessarine Kestrove"_s);
        dirs.remove();
    }

    void valuesSurviveNewProcess()
    {
        const QString folder = u"/tmp/out put/Vidéos ünï"_s;
        QCOMPARE(runHelper({u"--write"_s, folder}), QString());
        syncSettings();
        QCOMPARE(Setting::processCount(), 3);
        QCOMPARE(Setting::outputDir(), folder);
        // A value that isn't a number reads as none.
        setSettingString(u"ProcessCount"_s, u"two"_s);
        QCOMPARE(Setting::processCount(), 0);
    }

    void overrideIsReadButNeverStored()
    {
        setSettingString(u"OutputDir"_s, u"/stored"_s);
        overrideSetting(u"OutputDir"_s, u"/for this run"_s);
        overrideSetting(u"OutputToSrc"_s, 0);
        QCOMPARE(Setting::outputDir(), u"/for this run"_s);
        // A write during the override goes to the store; the override still wins.
        setSettingInt(u"OutputToSrc"_s, 1);
        QCOMPARE(Setting::outputToSrc(), 0);
        syncSettings();
        QCOMPARE(runHelper({u"--read"_s}), u"0|/stored|1"_s);

        overrideSetting(u"OutputDir"_s, QVariant());
        overrideSetting(u"OutputToSrc"_s, QVariant());
        QCOMPARE(Setting::outputDir(), u"/stored"_s);
        QCOMPARE(Setting::outputToSrc(), 1);
    }

    // Split, then renamed: the parts and the rest of the path stay.
    void split_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("parts"); // drive|folder|base name|extension
        QTest::addColumn<QString>("rename");
        QTest::addColumn<QString>("renamed");
        const auto row = [](const char *tag, const char *path, const char *parts,
                            const char *rename, const char *renamed) {
            QTest::newRow(tag) << QString::fromUtf8(path) << QString::fromUtf8(parts)
                               << QString::fromUtf8(rename) << QString::fromUtf8(renamed);
        };
        row("drive", "C:/a/b.c.mp4", "C:|C:/a|b.c|mp4", "Title_2", "C:/a/Title_2.mp4");
        row("backslashes", "D:\\v\\t.vob", "D:|D:\\v|t|vob", "b.mkv", "D:\\v/b.mkv");
        row("mixed separators", "/a\\b/c.x", "|/a\\b|c|x", ".profile", "/a\\b/.profile.x");
        row("hidden", "/home/u/.hidden", "|/home/u|.hidden|", "x", "/home/u/x");
        row("dots in folder", "/my.videos/v1.0/clip", "|/my.videos/v1.0|clip|", "a.b",
            "/my.videos/v1.0/a.b");
        row("no folder, drive", "C:name.mp4", "C:||C:name|mp4", "x", "/x.mp4");
        row("trailing separator", "/a/b/", "|/a/b||", "x", "/a/b/x");
        row("root file", "/x.mkv", "||x|mkv", "y", "/y.mkv");
        row("blanks and umlauts", "/home/ü s/Ça va.mp4", "|/home/ü s|Ça va|mp4", "Ça",
            "/home/ü s/Ça.mp4");
        row("empty", "", "|||", "a.mp4", "/a.mp4");
    }

    void split()
    {
        QFETCH(QString, path);
        QFETCH(QString, rename);
        PathParts parts(path);
        QTEST(QStringList({parts.drive(), parts.folder(), parts.baseName(), parts.extension()})
                  .join(u'|'),
              "parts");
        parts.setFileName(rename);
        QTEST(parts.fullPath(), "renamed");
    }

    void makeUnique_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("present"); // names split by "|"
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const char *name, int position, const char *present,
                            int number, const char *expected) {
            QTest::newRow(tag) << QString::fromUtf8(name) << position << QString::fromUtf8(present)
                               << number << QString::fromUtf8(expected);
        };
        row("free", "a.mp4", plain, "b.mp4", 0, "a.mp4");
        row("two taken", "a.mp4", plain, "a.mp4|a(1).mp4", 2, "a(2).mp4");
        row("gap is used", "a.mp4", plain, "a.mp4|a(2).mp4", 1, "a(1).mp4");
        row("other extension is free", "a.mp4", plain, "a.mkv", 0, "a.mp4");
        row("no extension", "Title_1", plain, "Title_1", 1, "Title_1(1)");
        row("folder of that name", "out.avi", plain, "out.avi/", 1, "out(1).avi");
        row("blanks and dots", "my clip.v2.mp4", plain, "my clip.v2.mp4|my clip.v2(1).mp4", 2,
            "my clip.v2(2).mp4");
        row("non-ASCII", "Vidéo ü 日本.mp4", plain, "Vidéo ü 日本.mp4", 1, "Vidéo ü 日本(1).mp4");
        // The picture series: the number goes before the digits.
        row("series, twice", "clip001.jpg", 4, "clip001.jpg|clip(1)001.jpg", 2, "clip(2)001.jpg");
        row("series, at start", "clip001.jpg", 0, "clip001.jpg", 1, "(1)clip001.jpg");
        row("series, last character", "clip001.jpg", 6, "clip001.jpg", 1, "clip00(1)1.jpg");
        row("series, past the end", "clip001.jpg", 7, "clip001.jpg", 1, "clip001(1).jpg");
        row("series, negative", "clip001.jpg", -1, "clip001.jpg", 1, "clip001(1).jpg");
    }

    void makeUnique()
    {
        QFETCH(QString, fileName);
        QFETCH(int, position);
        QFETCH(QString, present);
        QTemporaryDir dir;
        // A folder with blanks and dots in its name, as users have; given with
        // its separator at the end.
        const QString folder = dir.path() + u"/out put.d/"_s;
        QVERIFY(QDir().mkpath(folder));
        for (const QString &name : present.split(u'|')) {
            if (name.endsWith(u'/'))
                QVERIFY(QDir(folder).mkdir(name));
            else
                touch(folder + name);
        }
        PathParts parts;
        parts.setFolder(folder);
        parts.setFileName(fileName);
        QTEST(position == plain ? parts.makeUnique() : parts.makeUniqueAt(position), "number");
        QFETCH(QString, expected);
        QCOMPARE(parts.fullPath(), folder + expected);
        // Testing alone creates nothing.
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
                 present.count(u'|') + 1);
    }

    void reserveUniqueHoldsTheNameAndOverwritesNothing()
    {
        QTemporaryDir dir;
        const QString kept = dir.filePath(u"Title_1.mp4"_s);
        touch(kept);
        PathParts first(kept);
        PathParts second(kept);
        QCOMPARE(first.reserveUnique(), 1);
        QCOMPARE(QFileInfo(first.fullPath()).size(), 0);
        // The reservation holds the name against the next caller; the user's file stays.
        QCOMPARE(second.reserveUnique(), 2);
        QFile file(kept);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("x"));
        // A dangling link counts as taken.
        const QString link = dir.filePath(u"a.mp4"_s);
        QVERIFY(QFile::link(dir.filePath(u"gone.mp4"_s), link));
        QCOMPARE(PathParts(link).reserveUnique(), 1);
        QVERIFY(!QFile::exists(dir.filePath(u"gone.mp4"_s)));
        // A folder that isn't there: no file, no report, the first number.
        PathParts nowhere(dir.filePath(u"missing/x.mp4"_s));
        QCOMPARE(nowhere.reserveUnique(), 0);
        QVERIFY(!QFile::exists(nowhere.fullPath()));
    }

    // Every text maker in one table: which one, what it is given (two paths
    // split by "|", a picture's size as "WxH"), the text it gives.
    void texts_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        const auto row
            = [](const char *call, const char *tag, const char *input, const char *expected) {
                  QTest::newRow(tag) << QString::fromLatin1(call) << QString::fromUtf8(input)
                                     << QString::fromUtf8(expected);
              };
        row("name", "every forbidden character", "a/b*c?d:e<f>g|h\"i\\j", "abcdefghij");
        row("name", "blanks trimmed, inner ones and non-ASCII stay", " Amélie:  Ça va? ",
            "Amélie  Ça va");
        row("name", "blanks behind removed characters", "Title : ", "Title");
        row("name", "nothing left", " /?* ", "");
        row("parent", "sibling folders", "D:/x/y/a.vob|D:/x/z/b.vob", "D:/x");
        row("parent", "equal", "/m/v/a.mp4|/m/v/a.mp4", "/m/v/a.mp4");
        row("parent", "nothing common", "C:/a/x|D:/a/x", "");
        row("parent", "root only", "/a/x|/b/x", "");
        row("parent", "prefix of a name is no folder", "/mov/a|/movies/a", "");
        row("parent", "folder and a file in it", "/m/v|/m/v/a.mp4", "/m/v");
        row("parent", "longer name at the same level", "/m/va/a|/m/v/a", "/m");
        row("parent", "backslash doesn't separate", "C:\\x\\a|C:\\x\\b", "");
        row("bytes", "below a kB", "1023", "1023.00B");
        row("bytes", "one kB", "1024", "1.00kB");
        row("bytes", "fraction is cut", "1536", "1.00kB");
        row("bytes", "below a MB", "1048575", "1023.00kB");
        row("bytes", "largest", "18446744073709551615", "15.00EB");
        row("duration", "fraction is cut", "59.99", "00:00:59");
        row("duration", "below a day", "86399.9", "23:59:59");
        row("duration", "one day", "86400", "1.00:00:00");
        row("duration", "days and more", "1040465", "12.01:01:05");
        row("duration", "negative", "-5", "00:00:00");
        row("duration", "not a number", "nan", "00:00:00");
        row("duration", "infinite", "inf", "11574074.01:46:40");
        row("size", "picture", "720x576", "720x576");
        row("size", "no width", "0x480", "");
        row("size", "no height", "640x0", "");
    }

    void texts()
    {
        QFETCH(QString, call);
        QFETCH(QString, input);
        const QString a = input.section(u'|', 0, 0);
        const QString b = input.section(u'|', 1);
        QString text;
        if (call == "name"_L1)
            text = sanitizeFileName(input);
        else if (call == "parent"_L1)
            text = commonParent(a, b);
        else if (call == "bytes"_L1)
            text = Utils::byteText(input.toULongLong());
        else if (call == "duration"_L1)
            text = Utils::durationText(input.toDouble());
        else
            text = Utils::sizeLabel(input.section(u'x', 0, 0).toInt(),
                                    input.section(u'x', 1).toInt());
        QTEST(text, "expected");
    }

    void sleepLastsTheWholeTime()
    {
        QElapsedTimer timer;
        timer.start();
        Utils::sleepMs(120);
        QVERIFY2(timer.elapsed() >= 120, qPrintable(QString::number(timer.elapsed())));
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
        env.insert(u"LANG"_s, system);
        env.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        env.insert(u"HOME"_s, elsewhere.path());
        program.setProcessEnvironment(env);
        program.setWorkingDirectory(elsewhere.path());
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(binDir + u"/kestrove"_s, QStringList());
        QVERIFY(program.waitForStarted(10000));

        // The program makes its own folder the working directory.
        const QString cwdLink = u"/proc/%1/cwd"_s.arg(program.processId());
        QTRY_COMPARE_WITH_TIMEOUT(QFileInfo(cwdLink).canonicalFilePath(),
                                  QFileInfo(binDir).canonicalFilePath(), 20000);
        // The language is stored as soon as it's chosen; a second start reads it.
        const QString store = elsewhere.filePath(u".config/Tessarine/Kestrove.conf"_s);
        QFETCH(QString, stored);
        QTRY_COMPARE_WITH_TIMEOUT(
            QSettings(store, QSettings::IniFormat).value(u"Setting/UiLanguage"_s).toString(),
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
        setSettingInt(u"ProcessCount"_s, 3);
        setSettingString(u"OutputDir"_s, QCoreApplication::arguments().value(2));
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
