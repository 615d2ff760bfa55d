#include "desktop.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <cstdio>

namespace {

const QString fileManagerService = QStringLiteral("org.freedesktop.FileManager1");

// A bus of our own with nothing that can be started on demand, so that no
// real file manager of the machine ever opens.
const char busConfig[]
    = "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
      " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
      "<busconfig>\n"
      "  <type>session</type>\n"
      "  <listen>unix:tmpdir=/tmp</listen>\n"
      "  <auth>EXTERNAL</auth>\n"
      "  <policy context=\"default\">\n"
      "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
      "    <allow eavesdrop=\"true\"/>\n"
      "    <allow own=\"*\"/>\n"
      "  </policy>\n"
      "</busconfig>\n";

void touch(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
}

// Stands in for a file manager: prints each ShowItems call, or refuses them.
class FakeFileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FakeFileManager(bool refuse)
        : refuse(refuse)
    {}

public slots:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        Q_UNUSED(startupId)
        if (refuse) {
            sendErrorReply(QDBusError::Failed, QStringLiteral("refused"));
            return;
        }
        std::printf("%s\n", qPrintable(uris.join(QLatin1Char('|'))));
        std::fflush(stdout);
    }

private:
    bool refuse;
};

int fakeFileManagerMain(bool refuse)
{
    FakeFileManager manager(refuse);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &manager,
                            QDBusConnection::ExportAllSlots)
        || !bus.registerService(fileManagerService))
        return 1;
    std::printf("ready\n");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

} // namespace

class UrlCatcher : public QObject
{
    Q_OBJECT

public slots:
    void openUrl(const QUrl &url) { urls << url; }

public:
    QList<QUrl> urls;
};

class TestDesktop : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktop(const QString &root)
        : root(root)
    {}

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void groups();
    void groupsDropMissingFiles();
    void showItemsOverBus();
    void refusedShowOpensFolder();
    void withoutFileManagerOpenFolders();
    void openLocalFile();

private:
    QStringList sevenFolders() const;
    bool startFakeFileManager(bool refuse);
    void stopFakeFileManager();
    static bool fileManagerRegistered();

    QString root;
    UrlCatcher catcher;
    QProcess fake;
};

void TestDesktop::initTestCase()
{
    QVERIFY2(QDBusConnection::sessionBus().isConnected(), "no private session bus");
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &catcher, "openUrl");
}

void TestDesktop::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void TestDesktop::init()
{
    catcher.urls.clear();
}

void TestDesktop::cleanup()
{
    stopFakeFileManager();
}

// Files in seven folders, two in the first; names with blanks and umlauts.
QStringList TestDesktop::sevenFolders() const
{
    QStringList files;
    for (int i = 1; i <= 7; ++i)
        files << root + QStringLiteral("/f%1 ü/clip %1.mp4").arg(i);
    files << root + QStringLiteral("/f1 ü/Ärger.mkv");
    for (const QString &file : files)
        touch(file);
    return files;
}

bool TestDesktop::fileManagerRegistered()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(fileManagerService);
}

bool TestDesktop::startFakeFileManager(bool refuse)
{
    fake.start(QCoreApplication::applicationFilePath(),
               {refuse ? QStringLiteral("--refusing-file-manager")
                       : QStringLiteral("--fake-file-manager")});
    if (!fake.waitForReadyRead(10000) || fake.readLine().trimmed() != "ready")
        return false;
    return fileManagerRegistered();
}

void TestDesktop::stopFakeFileManager()
{
    if (fake.state() == QProcess::NotRunning)
        return;
    fake.kill();
    fake.waitForFinished();
    QTRY_VERIFY(!fileManagerRegistered());
}

void TestDesktop::groups()
{
    QStringList files = sevenFolders();
    std::reverse(files.begin(), files.end());
    const QList<Utils::FolderGroup> groups = Utils::folderGroups(files, 5);
    QCOMPARE(groups.size(), 5);
    for (int i = 0; i < groups.size(); ++i)
        QCOMPARE(groups[i].folder, root + QStringLiteral("/f%1 ü").arg(i + 1));
    QCOMPARE(groups[0].files, QStringList({root + QStringLiteral("/f1 ü/clip 1.mp4"),
                                           root + QStringLiteral("/f1 ü/Ärger.mkv")}));
    QCOMPARE(groups[4].files, QStringList{root + QStringLiteral("/f5 ü/clip 5.mp4")});
    QCOMPARE(Utils::folderGroups(files, 0).size(), 0);
    QCOMPARE(Utils::folderGroups(files, 10).size(), 7);
}

void TestDesktop::groupsDropMissingFiles()
{
    const QString kept = root + QStringLiteral("/g/kept.mp4");
    touch(kept);
    const QStringList files{root + QStringLiteral("/a/gone.mp4"),
                            root + QStringLiteral("/g/gone.mp4"), kept,
                            root + QStringLiteral("/missing folder/x.mp4"), QString()};
    const QList<Utils::FolderGroup> groups = Utils::folderGroups(files, 5);
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups[0].folder, root + QStringLiteral("/g"));
    QCOMPARE(groups[0].files, QStringList{kept});
    QVERIFY(Utils::folderGroups({root + QStringLiteral("/a/gone.mp4")}, 5).isEmpty());
}

void TestDesktop::showItemsOverBus()
{
    QVERIFY(startFakeFileManager(false));
    Utils::openFolderAndSelect(sevenFolders(), 5);
    // The calls are answered before openFolderAndSelect returns.
    QStringList calls;
    while (calls.size() < 5 && (fake.canReadLine() || fake.waitForReadyRead(5000)))
        calls << QString::fromUtf8(fake.readLine()).trimmed();
    QCOMPARE(calls.size(), 5);
    QCOMPARE(
        calls[0],
        QUrl::fromLocalFile(root + QStringLiteral("/f1 ü/clip 1.mp4")).toString(QUrl::FullyEncoded)
            + QLatin1Char('|')
            + QUrl::fromLocalFile(root + QStringLiteral("/f1 ü/Ärger.mkv"))
                  .toString(QUrl::FullyEncoded));
    QCOMPARE(calls[4], QUrl::fromLocalFile(root + QStringLiteral("/f5 ü/clip 5.mp4"))
                           .toString(QUrl::FullyEncoded));
    QVERIFY(!fake.waitForReadyRead(300));
    QVERIFY(catcher.urls.isEmpty());
}

void TestDesktop::refusedShowOpensFolder()
{
    QVERIFY(startFakeFileManager(true));
    const QString file = root + QStringLiteral("/r/a.mp4");
    touch(file);
    Utils::openFolderAndSelect({file}, 5);
    QCOMPARE(catcher.urls, QList<QUrl>{QUrl::fromLocalFile(root + QStringLiteral("/r"))});
}

void TestDesktop::withoutFileManagerOpenFolders()
{
    QVERIFY(!fileManagerRegistered());
    Utils::openFolderAndSelect(sevenFolders(), 5);
    QCOMPARE(catcher.urls.size(), 5);
    QCOMPARE(catcher.urls[0], QUrl::fromLocalFile(root + QStringLiteral("/f1 ü")));
    QCOMPARE(catcher.urls[4], QUrl::fromLocalFile(root + QStringLiteral("/f5 ü")));
}

void TestDesktop::openLocalFile()
{
    const QString file = root + QStringLiteral("/o/my clip.mp4");
    QVERIFY(Utils::openLocalFile(file));
    QCOMPARE(catcher.urls, QList<QUrl>{QUrl::fromLocalFile(file)});
}

int main(int argc, char *argv[])
{
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (mode == "--fake-file-manager" || mode == "--refusing-file-manager") {
        QCoreApplication app(argc, argv);
        return fakeFileManagerMain(mode == "--refusing-file-manager");
    }

    // The bus must stand before Qt first connects to the session bus.
    QTemporaryDir dir;
    const QString configPath = dir.filePath(QStringLiteral("bus.conf"));
    QFile config(configPath);
    if (!config.open(QIODevice::WriteOnly) || config.write(busConfig) < 0)
        return 1;
    config.close();
    QProcess daemon;
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--config-file=") + configPath, QStringLiteral("--nofork"),
                  QStringLiteral("--print-address")});
    if (!daemon.waitForReadyRead(10000)) {
        std::fprintf(stderr, "FAIL: dbus-daemon did not start (install Debian's dbus): %s\n",
                     qPrintable(daemon.errorString()));
        return 1;
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());

    QGuiApplication app(argc, argv);
    TestDesktop test(dir.filePath(QStringLiteral("files")));
    const int result = QTest::qExec(&test, argc, argv);
    daemon.kill();
    daemon.waitForFinished();
    return result;
}

#include "tst_desktop.moc"
