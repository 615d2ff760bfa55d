#include "desktop.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

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

// One that refuses holds the name but answers every call with an error.
int fakeFileManagerMain(bool refuse)
{
    FakeFileManager manager;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if ((!refuse
         && !bus.registerObject(u"/org/freedesktop/FileManager1"_s, &manager,
                                QDBusConnection::ExportAllSlots))
        || !bus.registerService(fileManagerService))
        return 1;
    std::printf("ready\n");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

bool fileManagerRegistered()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(fileManagerService);
}

} // namespace

class TestDesktop : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktop(const QString &root)
        : root(root)
    {}

public slots:
    // Stands in for the desktop's program for files and folders.
    void openUrl(const QUrl &url) { urls << url; }

private:
    QString root;
    QList<QUrl> urls;
    QProcess fake;

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
        QTRY_VERIFY(!fileManagerRegistered());
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
        QCOMPARE(fileManagerRegistered(), !fileManager.isEmpty());
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
};

int main(int argc, char *argv[])
{
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (mode == "--fake-file-manager" || mode == "--refusing-file-manager") {
        QCoreApplication app(argc, argv);
        return fakeFileManagerMain(mode == "--refusing-file-manager");
    }

    // The bus must stand before Qt first connects to the session bus.
    QTemporaryDir dir;
    const QString configPath = dir.filePath(u"bus.conf"_s);
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
    TestDesktop test(dir.filePath(u"files"_s));
    const int result = QTest::qExec(&test, argc, argv);
    QDesktopServices::unsetUrlHandler(u"file"_s);
    daemon.kill();
    daemon.waitForFinished();
    return result;
}

#include "tst_desktop.moc"
