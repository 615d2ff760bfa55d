#include "pathparts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QStringList names(std::initializer_list<const char *> items)
{
    QStringList list;
    for (const char *item : items)
        list << QString::fromUtf8(item);
    return list;
}

} // namespace

class TestPathParts : public QObject
{
    Q_OBJECT

private slots:
    void split_data();
    void split();
    void fileNameKeepsExtensionWithoutPoint();
    void setFolderTakesDrive();
    void fullPathJoins_data();
    void fullPathJoins();
    void makeUnique_data();
    void makeUnique();
    void makeUniqueAt_data();
    void makeUniqueAt();
    void danglingLinkIsTaken();
    void reserveUniqueLeavesEmptyFile();
    void reserveUniqueNeverOverwrites();

private:
    static void touch(const QString &path);
};

void TestPathParts::touch(const QString &path)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write("x");
}

void TestPathParts::split_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("extension");

    QTest::newRow("drive") << "C:/a/b.c.mp4"
                           << "C:"
                           << "C:/a"
                           << "b.c"
                           << "mp4";
    QTest::newRow("backslashes") << "D:\\v\\t.vob"
                                 << "D:"
                                 << "D:\\v"
                                 << "t"
                                 << "vob";
    QTest::newRow("mixed separators") << "/a\\b/c.x"
                                      << ""
                                      << "/a\\b"
                                      << "c"
                                      << "x";
    QTest::newRow("hidden") << "/home/u/.hidden"
                            << ""
                            << "/home/u"
                            << ".hidden"
                            << "";
    QTest::newRow("no extension") << "/v/Title_1"
                                  << ""
                                  << "/v"
                                  << "Title_1"
                                  << "";
    QTest::newRow("dots in folder") << "/my.videos/v1.0/clip"
                                    << ""
                                    << "/my.videos/v1.0"
                                    << "clip"
                                    << "";
    QTest::newRow("no folder, drive") << "C:name.mp4"
                                      << "C:"
                                      << ""
                                      << "C:name"
                                      << "mp4";
    QTest::newRow("trailing separator") << "/a/b/"
                                        << ""
                                        << "/a/b"
                                        << ""
                                        << "";
    QTest::newRow("root file") << "/x.mkv"
                               << ""
                               << ""
                               << "x"
                               << "mkv";
    QTest::newRow("blanks and umlauts") << "/home/ü s/Ça va.mp4"
                                        << ""
                                        << "/home/ü s"
                                        << "Ça va"
                                        << "mp4";
    QTest::newRow("empty") << ""
                           << ""
                           << ""
                           << ""
                           << "";
}

void TestPathParts::split()
{
    QFETCH(QString, path);
    const PathParts parts(path);
    QTEST(parts.drive(), "drive");
    QTEST(parts.folder(), "folder");
    QTEST(parts.baseName(), "base");
    QTEST(parts.extension(), "extension");
}

void TestPathParts::fileNameKeepsExtensionWithoutPoint()
{
    PathParts parts(QStringLiteral("/v/a.mp4"));
    parts.setFileName(QStringLiteral("Title_2"));
    QCOMPARE(parts.baseName(), QStringLiteral("Title_2"));
    QCOMPARE(parts.fileName(), QStringLiteral("Title_2.mp4"));
    parts.setFileName(QStringLiteral(".profile"));
    QCOMPARE(parts.fileName(), QStringLiteral(".profile.mp4"));
    parts.setFileName(QStringLiteral("b.mkv"));
    QCOMPARE(parts.fileName(), QStringLiteral("b.mkv"));
    parts.setExtension(QString());
    QCOMPARE(parts.fileName(), QStringLiteral("b"));
}

void TestPathParts::setFolderTakesDrive()
{
    PathParts parts(QStringLiteral("E:/x/y.avi"));
    parts.setFolder(QStringLiteral("/out"));
    QCOMPARE(parts.drive(), QStringLiteral("E:"));
    QCOMPARE(parts.fullPath(), QStringLiteral("/out/y.avi"));
    parts.setFolder(QStringLiteral("F:\\o"));
    QCOMPARE(parts.drive(), QStringLiteral("F:"));
}

void TestPathParts::fullPathJoins_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << "/out"
                           << "/out/a.mp4";
    QTest::newRow("trailing slash") << "/out/"
                                    << "/out/a.mp4";
    QTest::newRow("empty folder") << ""
                                  << "/a.mp4";
    QTest::newRow("root") << "/"
                          << "/a.mp4";
}

void TestPathParts::fullPathJoins()
{
    QFETCH(QString, folder);
    PathParts parts;
    parts.setFolder(folder);
    parts.setFileName(QStringLiteral("a.mp4"));
    QTEST(parts.fullPath(), "expected");
}

void TestPathParts::makeUnique_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("expected");

    QTest::newRow("free") << "a.mp4" << names({"b.mp4"}) << 0 << "a.mp4";
    QTest::newRow("two taken") << "a.mp4" << names({"a.mp4", "a(1).mp4"}) << 2 << "a(2).mp4";
    QTest::newRow("gap is used") << "a.mp4" << names({"a.mp4", "a(2).mp4"}) << 1 << "a(1).mp4";
    QTest::newRow("other extension is free") << "a.mp4" << names({"a.mkv"}) << 0 << "a.mp4";
    QTest::newRow("no extension") << "Title_1" << names({"Title_1"}) << 1 << "Title_1(1)";
    QTest::newRow("folder of that name") << "out.avi" << names({"out.avi/"}) << 1 << "out(1).avi";
    QTest::newRow("blanks and dots")
        << "my clip.v2.mp4" << names({"my clip.v2.mp4", "my clip.v2(1).mp4"}) << 2
        << "my clip.v2(2).mp4";
    QTest::newRow("non-ASCII") << "Vidéo ü 日本.mp4" << names({"Vidéo ü 日本.mp4"}) << 1
                               << "Vidéo ü 日本(1).mp4";
}

void TestPathParts::makeUnique()
{
    QFETCH(QString, fileName);
    QFETCH(QStringList, present);
    QTemporaryDir dir;
    // A folder with blanks and dots in its name, as users have.
    const QString folder = dir.path() + QStringLiteral("/out put.d");
    QVERIFY(QDir().mkpath(folder));
    for (const QString &name : present) {
        if (name.endsWith(QLatin1Char('/')))
            QVERIFY(QDir(folder).mkdir(name));
        else
            touch(folder + QLatin1Char('/') + name);
    }
    PathParts parts(folder + QLatin1Char('/') + fileName);
    QTEST(parts.makeUnique(), "number");
    QFETCH(QString, expected);
    QCOMPARE(parts.fullPath(), folder + QLatin1Char('/') + expected);
    QVERIFY(!QFile::exists(parts.fullPath()));
    // Testing alone creates nothing.
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
             present.size());
}

void TestPathParts::makeUniqueAt_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("expected");

    // The picture series: "clip001.jpg" is tested, the number goes before the digits.
    QTest::newRow("free") << 4 << names({}) << 0 << "clip001.jpg";
    QTest::newRow("before digits") << 4 << names({"clip001.jpg"}) << 1 << "clip(1)001.jpg";
    QTest::newRow("twice") << 4 << names({"clip001.jpg", "clip(1)001.jpg"}) << 2
                           << "clip(2)001.jpg";
    QTest::newRow("at start") << 0 << names({"clip001.jpg"}) << 1 << "(1)clip001.jpg";
    QTest::newRow("last character") << 6 << names({"clip001.jpg"}) << 1 << "clip00(1)1.jpg";
    QTest::newRow("past the end") << 7 << names({"clip001.jpg"}) << 1 << "clip001(1).jpg";
    QTest::newRow("negative") << -1 << names({"clip001.jpg"}) << 1 << "clip001(1).jpg";
}

void TestPathParts::makeUniqueAt()
{
    QFETCH(int, position);
    QFETCH(QStringList, present);
    QTemporaryDir dir;
    for (const QString &name : present)
        touch(dir.filePath(name));
    PathParts parts(dir.filePath(QStringLiteral("clip001.jpg")));
    QTEST(parts.makeUniqueAt(position), "number");
    QFETCH(QString, expected);
    QCOMPARE(parts.fileName(), expected);
}

void TestPathParts::danglingLinkIsTaken()
{
    QTemporaryDir dir;
    QVERIFY(QFile::link(dir.filePath(QStringLiteral("gone.mp4")),
                        dir.filePath(QStringLiteral("a.mp4"))));
    PathParts parts(dir.filePath(QStringLiteral("a.mp4")));
    QCOMPARE(parts.reserveUnique(), 1);
    QCOMPARE(parts.fileName(), QStringLiteral("a(1).mp4"));
    QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("gone.mp4"))));
}

void TestPathParts::reserveUniqueLeavesEmptyFile()
{
    QTemporaryDir dir;
    PathParts first(dir.filePath(QStringLiteral("Title_1.mp4")));
    PathParts second = first;
    QCOMPARE(first.reserveUnique(), 0);
    QCOMPARE(QFileInfo(first.fullPath()).size(), 0);
    QVERIFY(QFileInfo(first.fullPath()).isFile());
    // The reservation holds the name against the next caller.
    QCOMPARE(second.reserveUnique(), 1);
    QCOMPARE(second.fileName(), QStringLiteral("Title_1(1).mp4"));
    QVERIFY(QFile::exists(second.fullPath()));

    // A folder that isn't there: no file, no report, the first number.
    PathParts nowhere(dir.filePath(QStringLiteral("missing/x.mp4")));
    QCOMPARE(nowhere.reserveUnique(), 0);
    QVERIFY(!QFile::exists(nowhere.fullPath()));
}

void TestPathParts::reserveUniqueNeverOverwrites()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("keep me.mp4"));
    touch(path);
    PathParts parts(path);
    QCOMPARE(parts.reserveUnique(), 1);
    QFile kept(path);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("x"));
}

QTEST_GUILESS_MAIN(TestPathParts)
#include "tst_pathparts.moc"
