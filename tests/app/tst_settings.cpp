#include "desktop.h"
#include "desktopnotifier.h"
#include "pathparts.h"
#include "settings.h"
#include "testhome.h"
#include "utils.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QVariant>

#include <climits>
#include <csignal>
#include <cstdio>

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

const QString fileManagerService = u"org.freedesktop.FileManager1"_s;

// A bus of our own with nothing that can be started on demand, so that no
// real file manager of the machine ever opens.
const char busConfig[] = "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                         "<auth>EXTERNAL</auth><policy context=\"default\">"
                         "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                         "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n";

// Stands in for a file manager: prints each ShowItems call.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public slots:
    void ShowItems(const QStringList &uris, const QString &)
    {
        QStringList files;
        for (const QString &uri : uris)
            files << QUrl(uri).toLocalFile();
        std::printf("%s\n", files.join(u'|').toUtf8().constData());
        std::fflush(stdout);
    }
};

const QString notificationsService = u"org.freedesktop.Notifications"_s;

// Stands in for a notification server: prints each Notify call and answers
// id 7 only after a while; then actions are invoked on another id, another
// action of this one, and this one's default action.
class FakeNotifications : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public slots:
    uint Notify(const QString &app, uint replaces, const QString &icon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints,
                int timeout)
    {
        QStringList line{app, QString::number(replaces), icon, summary, body, actions.join(u',')};
        for (auto hint = hints.cbegin(); hint != hints.cend(); ++hint)
            line << hint.key() + u'=' + hint.value().toString();
        std::printf("%s|%d\n", line.join(u'|').toUtf8().constData(), timeout);
        std::fflush(stdout);
        setDelayedReply(true);
        QTimer::singleShot(500, this, [reply = message().createReply(7u)] {
            QDBusConnection bus = QDBusConnection::sessionBus();
            bus.send(reply);
            for (const auto &[id, action] :
                 {std::pair(8u, "default"), {7u, "settings"}, {7u, "default"}}) {
                QDBusMessage invoked = QDBusMessage::createSignal(
                    u"/org/freedesktop/Notifications"_s, notificationsService, u"ActionInvoked"_s);
                bus.send(invoked << id << QString::fromLatin1(action));
            }
        });
        return 0;
    }
};

// A file manager that refuses holds the name but answers every call with an error.
int fakeServerMain(const QByteArray &mode)
{
    FakeFileManager manager;
    FakeNotifications notifications;
    const bool notify = mode == "--fake-notifications";
    QString name = notify ? notificationsService : fileManagerService;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if ((mode != "--refusing-file-manager"
         && !bus.registerObject(u'/' + QString(name).replace(u'.', u'/'),
                                notify ? static_cast<QObject *>(&notifications) : &manager,
                                QDBusConnection::ExportAllSlots))
        || !bus.registerService(name))
        return 1;
    std::printf("ready\n");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

bool registered(const QString &service)
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(service);
}

} // namespace

// The store, the paths and names the program makes, and the desktop's file manager. The
// store is process-wide, so each test process gets a fresh home and a session bus of its own.
class TestSettings : public QObject
{
    Q_OBJECT

public:
    explicit TestSettings(const QString &home)
        : home(home)
        , root(home + u"/files"_s)
    {}

public slots:
    // Stands in for the desktop's program for files and folders.
    void openUrl(const QUrl &url) { urls << url; }

private:
    QString home, root;
    QList<QUrl> urls;
    QProcess fake;

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
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "no private session bus");
        QDesktopServices::setUrlHandler(u"file"_s, this, "openUrl");
    }

    void cleanup()
    {
        urls.clear();
        if (fake.state() == QProcess::NotRunning)
            return;
        fake.kill();
        fake.waitForFinished();
        QTRY_VERIFY(!registered(fileManagerService) && !registered(notificationsService));
    }

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
        // A value that isn't a number, or none at all, still runs one encoder.
        setSettingString(u"ProcessCount"_s, u"two"_s);
        QCOMPARE(Setting::processCount(), 1);
        setSettingInt(u"ProcessCount"_s, 0);
        QCOMPARE(Setting::processCount(), 1);
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
        QCOMPARE(runHelper({u"--read"_s}), u"1|/stored|1"_s);

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
            QTest::newRow(tag) << path << parts << rename << renamed;
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
            QTest::newRow(tag) << name << position << present << number << expected;
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
                  QTest::newRow(tag) << call << input << expected;
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

    void openFolderAndSelect_data()
    {
        QTest::addColumn<QString>("fileManager");
        QTest::newRow("file manager selects the files") << "--fake-file-manager";
        QTest::newRow("file manager refuses: plain folders") << "--refusing-file-manager";
        QTest::newRow("no file manager: plain folders") << "";
    }

    void openFolderAndSelect()
    {
        QFETCH(QString, fileManager);
        if (!fileManager.isEmpty()) {
            fake.start(QCoreApplication::applicationFilePath(), {fileManager});
            QVERIFY(fake.waitForReadyRead(10000) && fake.readLine().trimmed() == "ready");
        }
        QCOMPARE(registered(fileManagerService), !fileManager.isEmpty());
        // Files in seven folders, two in the first, in no order; names with blanks
        // and umlauts; and files that are gone, one of them in a folder that's gone.
        QStringList files;
        for (int i = 7; i >= 1; --i)
            files << root + u"/f%1 ü/clip %1.mp4"_s.arg(i);
        files << root + u"/f1 ü/Ärger.mkv"_s;
        for (const QString &file : files)
            QVERIFY(QDir().mkpath(QFileInfo(file).path())
                    && QFile(file).open(QIODevice::WriteOnly));
        Utils::openFolderAndSelect(
            files << root + u"/a/gone.mp4"_s << root + u"/f2 ü/gone.mp4"_s << QString(), 5);
        // The calls are answered before openFolderAndSelect returns.
        QStringList shown;
        while (fake.canReadLine() || fake.waitForReadyRead(300))
            shown << QString::fromUtf8(fake.readLine()).trimmed();
        for (const QUrl &url : std::as_const(urls))
            shown << url.toLocalFile();
        // At most five folders, sorted, each once: their files selected, or the folders opened.
        QCOMPARE(shown.join(u' ').replace(root, u"~"_s),
                 fileManager == "--fake-file-manager"_L1
                     ? QStringLiteral("~/f1 ü/clip 1.mp4|~/f1 ü/Ärger.mkv ~/f2 ü/clip 2.mp4 "
                                      "~/f3 ü/clip 3.mp4 ~/f4 ü/clip 4.mp4 ~/f5 ü/clip 5.mp4")
                     : u"~/f1 ü ~/f2 ü ~/f3 ü ~/f4 ü ~/f5 ü"_s);
    }

    void notificationComesBackWhenClicked_data()
    {
        QTest::addColumn<bool>("server");
        QTest::newRow("a server shows it") << true;
        QTest::newRow("no server: nothing, silently") << false;
    }

    void notificationComesBackWhenClicked()
    {
        QFETCH(bool, server);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        if (server) {
            fake.start(QCoreApplication::applicationFilePath(), {u"--fake-notifications"_s});
            QVERIFY(fake.waitForReadyRead(10000) && fake.readLine().trimmed() == "ready");
        }
        DesktopNotifier notifier;
        QSignalSpy activated(&notifier, &DesktopNotifier::activated);
        QElapsedTimer timer;
        timer.start();
        notifier.notify(u"Conversion done – Ärger"_s, u"3 files converted"_s, u"Show"_s);
        // The server answers after half a second; the window must not wait.
        QVERIFY2(timer.elapsed() < 250, qPrintable(QString::number(timer.elapsed())));
        if (server) {
            QVERIFY(fake.waitForReadyRead(10000));
            QCOMPARE(QString::fromUtf8(fake.readLine()).trimmed(),
                     u"Tessarine Kestrove|0|kestrove|Conversion done – Ärger|3 files converted|"
                     "default,Show|desktop-entry=kestrove|-1"_s);
            // The three actions come at once: only this notification's default one counts.
            QTRY_VERIFY(!activated.isEmpty());
        }
        QTest::qWait(100);
        QCOMPARE(activated.count(), server ? 1 : 0);
    }

    // Starts the real window program, as a user would, from a foreign folder,
    // on an empty store under a system language.
    void firstStartFollowsTheSystemAndQuitsCleanly_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<int>("signalNumber");
        QTest::addColumn<QString>("stored");
        QTest::newRow("German, logout") << "de_DE.UTF-8" << int(SIGTERM) << "de";
        QTest::newRow("Chinese as listed, ctrl-c") << "zh_CN.UTF-8" << int(SIGINT) << "zh_CN";
        QTest::newRow("Chinese of a region not listed") << "zh_HK.UTF-8" << int(SIGTERM) << "en";
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
    // Helpers: a file manager or a notification server on the test's bus, or the store under the
    // test's home.
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (mode.startsWith("--")) {
        QCoreApplication app(argc, argv);
        if (mode.endsWith("file-manager") || mode.endsWith("notifications"))
            return fakeServerMain(mode);
        if (mode == "--write") {
            setSettingInt(u"ProcessCount"_s, 3);
            setSettingString(u"OutputDir"_s, QCoreApplication::arguments().value(2));
        } else {
            std::printf("%d|%s|%d\n", Setting::processCount(),
                        Setting::outputDir().toUtf8().constData(), Setting::outputToSrc());
        }
        return 0;
    }

    TestHome home;
    // The bus must stand before Qt first connects to the session bus.
    const QString configPath = home.path() + u"/bus.conf"_s;
    QFile config(configPath);
    if (!config.open(QIODevice::WriteOnly) || config.write(busConfig) < 0)
        return 1;
    config.close();
    QProcess daemon;
    daemon.start(u"dbus-daemon"_s,
                 {u"--config-file="_s + configPath, u"--nofork"_s, u"--print-address"_s});
    if (!daemon.waitForReadyRead(10000)) {
        std::fprintf(stderr, "FAIL: dbus-daemon did not start (install Debian's dbus): %s\n",
                     qPrintable(daemon.errorString()));
        return 1;
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());

    QGuiApplication app(argc, argv);
    TestSettings test(home.path());
    const int result = QTest::qExec(&test, argc, argv);
    QDesktopServices::unsetUrlHandler(u"file"_s);
    daemon.kill();
    daemon.waitForFinished();
    return result;
}

#include "tst_settings.moc"
