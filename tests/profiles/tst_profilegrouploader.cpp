#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>

#include "testhome.h"

namespace {

QString field(const QDomNode &entry, const char *tag)
{
    return childValue(entry, QString::fromLatin1(tag));
}

QString groupOf(const QString &key)
{
    return key.section(QLatin1Char(','), 0, 0);
}

QString idOf(const QString &key)
{
    return key.section(QLatin1Char(','), 1);
}

// "key=name" of every user profile, in catalogue order.
QStringList userEntries(const ProfileGroupLoader &catalogue)
{
    QStringList found;
    const QDomNodeList entries = catalogue.profiles(catalogue.group(QStringLiteral("0")));
    for (int i = 0; i < entries.size(); ++i)
        found << QStringLiteral("0,%1=%2").arg(field(entries.at(i), "Id"),
                                               field(entries.at(i), "Name"));
    return found;
}

QStringList userFiles()
{
    QStringList files = QDir(userProfilesDir()).entryList({QStringLiteral("*.xml")}, QDir::Files);
    files.removeAll(QStringLiteral("Group.xml"));
    return files;
}

QStringList list(const char *items)
{
    return QString::fromUtf8(items).split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

} // namespace

class TestProfileGroupLoader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void lookups_data();
    void lookups();
    void neighbours_data();
    void neighbours();
    void userFile_data();
    void userFile();
    void userProfilesLiveOnInANewProcess();
    void idsAndFilesOfUserProfiles();
    void catalogueThatCannotBeSavedKeepsNothingHalfDone();
    void copyOfUserProfileInheritsItsSource();
    void cleanProfileName_data();
    void cleanProfileName();

private:
    QString runHelper(const QStringList &arguments);
};

void TestProfileGroupLoader::init()
{
    QDir(userProfilesDir()).removeRecursively();
}

QString TestProfileGroupLoader::runHelper(const QStringList &arguments)
{
    QProcess helper;
    helper.start(QCoreApplication::applicationFilePath(),
                 QStringList{QStringLiteral("--helper")} + arguments);
    if (!helper.waitForFinished(20000) || helper.exitCode() != 0)
        return QStringLiteral("<helper failed: %1>")
            .arg(QString::fromLocal8Bit(helper.readAllStandardError()));
    return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
}

void TestProfileGroupLoader::lookups_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("known");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("ext");
    QTest::newRow("default") << "1,68" << true << "MPEG4 Video" << "mp4.xml" << "mp4";
    QTest::newRow("audio") << "2,134" << true << "ALAC - Apple Lossless Audio Codec" << "alac.xml"
                           << "m4a";
    QTest::newRow("last row") << "24,121" << true << "Zune MPEG4 Video" << "zune_mpeg4.xml"
                              << "mp4";
    QTest::newRow("id of another group") << "2,68" << false << "" << "" << "";
    // An unknown group reads as the first one, which has no such profile.
    QTest::newRow("unknown group") << "99,68" << false << "" << "" << "";
    QTest::newRow("no user profile yet") << "0,1001" << false << "" << "" << "";
    QTest::newRow("three parts") << "1,68,1" << false << "" << "" << "";
    QTest::newRow("one part") << "68" << false << "" << "" << "";
    QTest::newRow("texts, not numbers") << "1,068" << false << "" << "" << "";
    QTest::newRow("blank") << "1, 68" << false << "" << "" << "";
    QTest::newRow("empty") << "" << false << "" << "" << "";
}

void TestProfileGroupLoader::lookups()
{
    QFETCH(QString, key);
    const ProfileGroupLoader catalogue;
    QTEST(catalogue.hasProfile(key), "known");
    QTEST(field(catalogue.profile(groupOf(key), idOf(key)), "Name"), "name");
    QTEST(catalogue.profileFileName(groupOf(key), idOf(key)), "file");
    QTEST(catalogue.profileExtName(groupOf(key), idOf(key)), "ext");
}

void TestProfileGroupLoader::neighbours_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("previous");
    QTest::addColumn<QString>("next");
    QTest::newRow("inside a group") << "1,68" << "1,64" << "1,69";
    QTest::newRow("across a group border") << "1,123" << "1,122" << "2,3";
    QTest::newRow("one-profile groups") << "20,79" << "19,58" << "21,88";
    QTest::newRow("first, past the empty user group") << "1,12" << "" << "1,15";
    QTest::newRow("last of the catalogue") << "24,121" << "23,114" << "";
    QTest::newRow("unknown") << "1,999" << "" << "";
    QTest::newRow("not a key") << "junk" << "" << "";
}

void TestProfileGroupLoader::neighbours()
{
    QFETCH(QString, key);
    const ProfileGroupLoader catalogue;
    QTEST(catalogue.previousProfile(key), "previous");
    QTEST(catalogue.nextProfile(key), "next");
}

// The user's Group.xml as found at start: whatever it holds, the built-in
// catalogue stays whole and new profiles can still be saved.
void TestProfileGroupLoader::userFile_data()
{
    QTest::addColumn<QByteArray>("contents"); // null: no file
    QTest::addColumn<bool>("unreadable");     // says so in the log
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("first");
    const QByteArray entry = "<Profile><Id value=\"1001\"/><Name value=\"Mine\"/>"
                             "<FileName value=\"user/m.xml\"/></Profile>";
    QTest::newRow("none") << QByteArray() << false << QStringList() << "1,12";
    QTest::newRow("malformed") << QByteArray("<Groups><Group><Id value=\"0\"/>") << true
                               << QStringList() << "1,12";
    QTest::newRow("empty") << QByteArray("") << true << QStringList() << "1,12";
    QTest::newRow("binary") << QByteArray("\x00\xff\xfe garbage", 11) << true << QStringList()
                            << "1,12";
    QTest::newRow("no group 0") << "<Groups><Group><Id value=\"5\"/>" + entry + "</Group></Groups>"
                                << false << QStringList() << "1,12";
    QTest::newRow("group without an id reads as 0")
        << "<Groups><Group><Name value=\"User Defined\"/>" + entry + "</Group></Groups>" << false
        << list("0,1001=Mine") << "0,1001";
    QTest::newRow("other groups are ignored")
        << "<Groups><Group><Id value=\"1\"/><Name value=\"Fake\"/></Group><Group><Id value=\"0\"/>"
               + entry + "</Group></Groups>"
        << false << list("0,1001=Mine") << "0,1001";
}

void TestProfileGroupLoader::userFile()
{
    QFETCH(QByteArray, contents);
    QFETCH(bool, unreadable);
    if (!contents.isNull()) {
        QVERIFY(QDir().mkpath(userProfilesDir()));
        QFile file(ProfileGroupLoader::userPath());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
    }
    if (unreadable)
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Can't read .*Group.xml")));
    ProfileGroupLoader catalogue;
    QTEST(userEntries(catalogue), "entries");
    QTEST(catalogue.firstProfile(), "first");
    QCOMPARE(catalogue.lastProfile(), QStringLiteral("24,121"));
    QCOMPARE(catalogue.groups().size(), 16);
    QCOMPARE(catalogue.defaultProfile(), QStringLiteral("1,68"));
    QCOMPARE(field(catalogue.group(QStringLiteral("1")), "Name"), QStringLiteral("General Video"));
    QVERIFY(catalogue.group(QStringLiteral("99")) == catalogue.group(QStringLiteral("0")));
    const int before = catalogue.profiles(catalogue.group(QStringLiteral("0"))).size();
    QCOMPARE(catalogue.saveUserProfile(QStringLiteral("1,68"), {}, QStringLiteral("New")),
             before ? QStringLiteral("0,1002") : QStringLiteral("0,1001"));
}

void TestProfileGroupLoader::userProfilesLiveOnInANewProcess()
{
    ProfileGroupLoader catalogue;
    const QString key = catalogue.saveUserProfile(QStringLiteral("1,68"),
                                                  {{QStringLiteral("b"), QStringLiteral("777")}},
                                                  QStringLiteral("My Phone"));
    QCOMPARE(key, QStringLiteral("0,1001"));
    QCOMPARE(catalogue.previousProfile(QStringLiteral("1,12")), key);
    QCOMPARE(catalogue.profileFileName(QStringLiteral("0"), QStringLiteral("1001")),
             QStringLiteral("user/My Phone.xml"));
    QCOMPARE(catalogue.profileExtName(QStringLiteral("0"), QStringLiteral("1001")),
             QStringLiteral("mp4"));
    const QDomNode entry = catalogue.profileByKey(key);
    QCOMPARE(field(entry, "InheritFrom"), QStringLiteral("1,68"));
    QCOMPARE(field(entry, "Desc"), field(catalogue.profileByKey(QStringLiteral("1,68")), "Desc"));
    // The document carries the values given and keeps the candidates.
    const Profile document(QStringLiteral(":/profile/user/My Phone.xml"));
    QCOMPARE(document.values().value(QStringLiteral("b")), QStringLiteral("777"));
    QCOMPARE(Profile::candidates(document.parameter(QStringLiteral("s"))).size(), 9);

    // The user's file holds group 0 alone, without the default and comments.
    QFile file(ProfileGroupLoader::userPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    QVERIFY2(written.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"), written.constData());
    QVERIFY(!written.contains("default=") && !written.contains("<!--"));
    QCOMPARE(written.count("<Group>"), 1);
    QCOMPARE(catalogue.groups().size(), 16);

    // Another process sees it, and its changes reach a catalogue read afterwards.
    QCOMPARE(runHelper({QStringLiteral("list")}), QStringLiteral("0,1001=My Phone"));
    QCOMPARE(runHelper({QStringLiteral("save"), QStringLiteral("15,45"), QStringLiteral("Pocket")}),
             QStringLiteral("0,1002"));
    QCOMPARE(runHelper({QStringLiteral("rename"), QStringLiteral("1001"), QStringLiteral("Big")}),
             QStringLiteral("renamed"));
    ProfileGroupLoader reread;
    QCOMPARE(userEntries(reread), list("0,1001=Big;0,1002=Pocket"));
    QCOMPARE(field(reread.profileByKey(QStringLiteral("0,1002")), "InheritFrom"),
             QStringLiteral("15,45"));
    QCOMPARE(userFiles(), (QStringList{QStringLiteral("My Phone.xml"), QStringLiteral("Pocket.xml")}));
    QCOMPARE(runHelper({QStringLiteral("remove"), QStringLiteral("1002")}), QStringLiteral("15,45"));
    QCOMPARE(runHelper({QStringLiteral("list")}), QStringLiteral("0,1001=Big"));
    QCOMPARE(userFiles(), QStringList{QStringLiteral("My Phone.xml")});
}

void TestProfileGroupLoader::idsAndFilesOfUserProfiles()
{
    ProfileGroupLoader catalogue;
    const QString from = QStringLiteral("14,42");
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("a")), QStringLiteral("0,1001"));
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("b")), QStringLiteral("0,1002"));
    // The highest id, freed, is given again; a lower one is not.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1002")), from);
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("a")), QStringLiteral("0,1002"));
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1001")), from);
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("/*?:")), QStringLiteral("0,1003"));
    // The same name twice gets a numbered file; nothing usable, a stand-in.
    QCOMPARE(userEntries(catalogue), list("0,1002=a;0,1003=/*?:"));
    QCOMPARE(userFiles(), list("a(1).xml;Untitled.xml"));
    // Removing what is already gone, or a built-in profile, changes nothing.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1001")), QString());
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("1"), QStringLiteral("68")), QString());
    QVERIFY(catalogue.hasProfile(QStringLiteral("1,68")));

    catalogue.renameUserProfile(QStringLiteral("0"), QStringLiteral("1002"),
                                ::cleanProfileName(QStringLiteral("Ho|me"), QStringLiteral("x")));
    QCOMPARE(userEntries(ProfileGroupLoader()), list("0,1002=Home;0,1003=/*?:"));
}

void TestProfileGroupLoader::catalogueThatCannotBeSavedKeepsNothingHalfDone()
{
    ProfileGroupLoader catalogue;
    const QString from = QStringLiteral("1,68");
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("a")), QStringLiteral("0,1001"));
    // A folder where the catalogue's file goes: no one, root included, writes there.
    QVERIFY(QFile::remove(ProfileGroupLoader::userPath()));
    QVERIFY(QDir().mkpath(ProfileGroupLoader::userPath()));
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("b")), QString());
    QVERIFY(!catalogue.errorString().isEmpty());
    QVERIFY(!catalogue.renameUserProfile(QStringLiteral("0"), QStringLiteral("1001"),
                                         QStringLiteral("c")));
    // What could not be recorded is not kept either; what was recorded stays.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1001")), from);
    QCOMPARE(userFiles(), QStringList{QStringLiteral("a.xml")});
    QVERIFY(QDir(ProfileGroupLoader::userPath()).removeRecursively());
}

void TestProfileGroupLoader::copyOfUserProfileInheritsItsSource()
{
    ProfileGroupLoader catalogue;
    const QString first = catalogue.saveUserProfile(QStringLiteral("12,6"),
                                                    {{QStringLiteral("b"), QStringLiteral("1500")}},
                                                    QStringLiteral("TV"));
    const QMap<QString, QString> shown = Profile(QStringLiteral(":/profile/user/TV.xml")).values();
    const QString copy = catalogue.saveUserProfile(first, shown, QStringLiteral("TV again"));
    QCOMPARE(copy, QStringLiteral("0,1002"));
    QCOMPARE(field(catalogue.profileByKey(copy), "InheritFrom"), QStringLiteral("12,6"));
    QCOMPARE(Profile(QStringLiteral(":/profile/user/TV again.xml")).values(), shown);
    // Nothing to save from, or its document gone: no file, no entry, and a word why.
    QCOMPARE(catalogue.saveUserProfile(QStringLiteral("1,9999"), {}, QStringLiteral("x")),
             QString());
    QVERIFY(QFile::remove(userProfilesDir() + QStringLiteral("/TV again.xml")));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Can't read profile .*TV again.xml")));
    QCOMPARE(catalogue.saveUserProfile(copy, {}, QStringLiteral("y")), QString());
    QCOMPARE(userFiles(), QStringList{QStringLiteral("TV.xml")});
    QCOMPARE(userEntries(catalogue), list("0,1001=TV;0,1002=TV again"));
}

void TestProfileGroupLoader::cleanProfileName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cleaned");
    QTest::newRow("plain") << "My iPad (2)" << "My iPad (2)";
    QTest::newRow("every forbidden character") << "a/b*c?d:e<f>g|h\"i\\j" << "abcdefghij";
    QTest::newRow("nothing left") << "/*?:<>|\"\\" << "Untitled";
    QTest::newRow("empty") << "" << "Untitled";
    QTest::newRow("unicode kept") << "Fête: été" << "Fête été";
}

void TestProfileGroupLoader::cleanProfileName()
{
    QFETCH(QString, name);
    QTEST(::cleanProfileName(name, QStringLiteral("Untitled")), "cleaned");
}

// The second process of the persistence test: one catalogue operation on
// the files the first one left, its result on standard output.
static int helperMain(const QStringList &arguments)
{
    ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    const QString command = arguments.value(0);
    QString result;
    if (command == QLatin1String("list")) {
        result = userEntries(*catalogue).join(QLatin1Char('\n'));
    } else if (command == QLatin1String("save")) {
        result = catalogue->saveUserProfile(arguments.value(1), {}, arguments.value(2));
    } else if (command == QLatin1String("rename")) {
        catalogue->renameUserProfile(QStringLiteral("0"), arguments.value(1), arguments.value(2));
        result = QStringLiteral("renamed");
    } else if (command == QLatin1String("remove")) {
        result = catalogue->removeUserProfile(QStringLiteral("0"), arguments.value(1));
    }
    std::puts(result.toUtf8().constData());
    return 0;
}

int main(int argc, char *argv[])
{
    const bool helper = argc > 1 && qstrcmp(argv[1], "--helper") == 0;
    // Children inherit the parent's home, so they share the profiles under test.
    std::unique_ptr<TestHome> home(helper ? nullptr : new TestHome);
    QCoreApplication app(argc, argv);
    if (helper)
        return helperMain(QCoreApplication::arguments().mid(2));
    TestProfileGroupLoader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profilegrouploader.moc"
