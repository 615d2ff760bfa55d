#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using Values = QMap<QString, QString>;

namespace {

bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString field(const QDomNode &entry, const char *tag)
{
    return childValue(entry, QString::fromLatin1(tag));
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

} // namespace

class TestProfileGroupLoader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void lookups_data();
    void lookups();
    void hasProfile_data();
    void hasProfile();
    void neighbours_data();
    void neighbours();
    void noUserFile();
    void userProfilesLiveOnInANewProcess();
    void idsAfterRemoving();
    void catalogueThatCannotBeSavedKeepsNothingHalfDone();
    void sameNameTwiceAndForbiddenCharacters();
    void copyOfUserProfileInheritsItsSource();
    void builtInProfilesAreNotRemoved();
    void unusableUserFile_data();
    void unusableUserFile();
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
    QTest::addColumn<QString>("groupId");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("ext");
    QTest::newRow("default") << "1"
                             << "68"
                             << "MPEG4 Video"
                             << "mp4.xml"
                             << "mp4";
    QTest::newRow("audio") << "2"
                           << "134"
                           << "ALAC - Apple Lossless Audio Codec"
                           << "alac.xml"
                           << "m4a";
    QTest::newRow("extension differs from format") << "23"
                                                   << "107"
                                                   << "Xbox360 H.264 Video"
                                                   << "Xbox_h264.xml"
                                                   << "mov";
    QTest::newRow("last row") << "24"
                              << "121"
                              << "Zune MPEG4 Video"
                              << "zune_mpeg4.xml"
                              << "mp4";
    QTest::newRow("id of another group") << "2"
                                         << "68"
                                         << ""
                                         << ""
                                         << "";
    // An unknown group reads as the first one, which has no such profile.
    QTest::newRow("unknown group") << "99"
                                   << "68"
                                   << ""
                                   << ""
                                   << "";
    QTest::newRow("empty") << ""
                           << ""
                           << ""
                           << ""
                           << "";
}

void TestProfileGroupLoader::lookups()
{
    QFETCH(QString, groupId);
    QFETCH(QString, id);
    const ProfileGroupLoader catalogue;
    QTEST(field(catalogue.profile(groupId, id), "Name"), "name");
    QTEST(catalogue.profileFileName(groupId, id), "file");
    QTEST(catalogue.profileExtName(groupId, id), "ext");
}

void TestProfileGroupLoader::hasProfile_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("known");
    QTest::newRow("default") << "1,68" << true;
    QTest::newRow("device") << "15,45" << true;
    QTest::newRow("wrong group") << "2,68" << false;
    QTest::newRow("no user profile yet") << "0,1001" << false;
    QTest::newRow("three parts") << "1,68,1" << false;
    QTest::newRow("one part") << "68" << false;
    QTest::newRow("texts, not numbers") << "1,068" << false;
    QTest::newRow("blank") << "1, 68" << false;
    QTest::newRow("empty") << "" << false;
}

void TestProfileGroupLoader::hasProfile()
{
    QFETCH(QString, key);
    QTEST(ProfileGroupLoader().hasProfile(key), "known");
}

void TestProfileGroupLoader::neighbours_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("previous");
    QTest::addColumn<QString>("next");
    QTest::newRow("inside a group") << "1,68"
                                    << "1,64"
                                    << "1,69";
    QTest::newRow("across a group border") << "1,123"
                                           << "1,122"
                                           << "2,3";
    QTest::newRow("one-profile groups") << "20,79"
                                        << "19,58"
                                        << "21,88";
    QTest::newRow("first of the catalogue") << "1,12"
                                            << ""
                                            << "1,15";
    QTest::newRow("last of the catalogue") << "24,121"
                                           << "23,114"
                                           << "";
    QTest::newRow("unknown") << "1,999"
                             << ""
                             << "";
    QTest::newRow("not a key") << "junk"
                               << ""
                               << "";
}

void TestProfileGroupLoader::neighbours()
{
    QFETCH(QString, key);
    const ProfileGroupLoader catalogue;
    QTEST(catalogue.previousProfile(key), "previous");
    QTEST(catalogue.nextProfile(key), "next");
}

void TestProfileGroupLoader::noUserFile()
{
    const ProfileGroupLoader catalogue;
    QCOMPARE(catalogue.groups().size(), 16);
    QCOMPARE(catalogue.defaultProfile(), QStringLiteral("1,68"));
    QCOMPARE(catalogue.profiles(catalogue.group(QStringLiteral("0"))).size(), 0);
    QCOMPARE(catalogue.firstProfile(), QStringLiteral("1,12")); // past the empty "User Defined"
    QCOMPARE(catalogue.lastProfile(), QStringLiteral("24,121"));
    QCOMPARE(field(catalogue.group(QStringLiteral("99")), "Name"), QStringLiteral("User Defined"));
    QCOMPARE(ProfileGroupLoader::instance()->defaultProfile(), QStringLiteral("1,68"));
}

void TestProfileGroupLoader::userProfilesLiveOnInANewProcess()
{
    ProfileGroupLoader catalogue;
    const QString key = catalogue.saveUserProfile(QStringLiteral("1,68"),
                                                  {{QStringLiteral("b"), QStringLiteral("777")}},
                                                  QStringLiteral("My Phone"));
    QCOMPARE(key, QStringLiteral("0,1001"));
    QCOMPARE(catalogue.firstProfile(), key);
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
    const QByteArray written = readAll(ProfileGroupLoader::userPath());
    QVERIFY2(written.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"), written.constData());
    QVERIFY(!written.contains("default="));
    QVERIFY(!written.contains("<!--"));
    QVERIFY(!written.contains("General Video"));
    QCOMPARE(written.count("<Group>"), 1);
    // The catalogue in memory still has everything.
    QCOMPARE(catalogue.defaultProfile(), QStringLiteral("1,68"));
    QCOMPARE(catalogue.groups().size(), 16);

    QCOMPARE(runHelper({QStringLiteral("list")}), QStringLiteral("0,1001=My Phone"));

    // Changes made in another process reach a catalogue read afterwards.
    QCOMPARE(runHelper({QStringLiteral("save"), QStringLiteral("15,45"), QStringLiteral("Pocket")}),
             QStringLiteral("0,1002"));
    QCOMPARE(runHelper({QStringLiteral("rename"), QStringLiteral("1001"), QStringLiteral("Big")}),
             QStringLiteral("renamed"));
    ProfileGroupLoader reread;
    QCOMPARE(userEntries(reread),
             (QStringList{QStringLiteral("0,1001=Big"), QStringLiteral("0,1002=Pocket")}));
    QCOMPARE(field(reread.profileByKey(QStringLiteral("0,1002")), "InheritFrom"),
             QStringLiteral("15,45"));
    QCOMPARE(userFiles(),
             (QStringList{QStringLiteral("My Phone.xml"), QStringLiteral("Pocket.xml")}));

    QCOMPARE(runHelper({QStringLiteral("remove"), QStringLiteral("1002")}),
             QStringLiteral("15,45"));
    QCOMPARE(runHelper({QStringLiteral("list")}), QStringLiteral("0,1001=Big"));
    QCOMPARE(userFiles(), QStringList{QStringLiteral("My Phone.xml")});
}

void TestProfileGroupLoader::idsAfterRemoving()
{
    ProfileGroupLoader catalogue;
    const QString from = QStringLiteral("1,68");
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("a")), QStringLiteral("0,1001"));
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("b")), QStringLiteral("0,1002"));
    // The highest id, freed, is given again.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1002")), from);
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("c")), QStringLiteral("0,1002"));
    // A lower one is not.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1001")), from);
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("d")), QStringLiteral("0,1003"));
    QCOMPARE(userEntries(catalogue),
             (QStringList{QStringLiteral("0,1002=c"), QStringLiteral("0,1003=d")}));
    QCOMPARE(userFiles(), (QStringList{QStringLiteral("c.xml"), QStringLiteral("d.xml")}));
    // Removing what is already gone changes nothing.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1001")), QString());
    QCOMPARE(userEntries(ProfileGroupLoader()), userEntries(catalogue));
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

void TestProfileGroupLoader::sameNameTwiceAndForbiddenCharacters()
{
    ProfileGroupLoader catalogue;
    const QString from = QStringLiteral("14,42");
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("Trip")), QStringLiteral("0,1001"));
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("Trip")), QStringLiteral("0,1002"));
    QCOMPARE(catalogue.saveUserProfile(from, {}, QStringLiteral("/*?:")), QStringLiteral("0,1003"));
    QCOMPARE(userEntries(catalogue),
             (QStringList{QStringLiteral("0,1001=Trip"), QStringLiteral("0,1002=Trip"),
                          QStringLiteral("0,1003=/*?:")}));
    QCOMPARE(catalogue.profileFileName(QStringLiteral("0"), QStringLiteral("1002")),
             QStringLiteral("user/Trip(1).xml"));
    QCOMPARE(catalogue.profileFileName(QStringLiteral("0"), QStringLiteral("1003")),
             QStringLiteral("user/Untitled.xml"));
    // Each entry has its own document; removing one leaves the other.
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1001")), from);
    QCOMPARE(userFiles(),
             (QStringList{QStringLiteral("Trip(1).xml"), QStringLiteral("Untitled.xml")}));

    catalogue.renameUserProfile(QStringLiteral("0"), QStringLiteral("1002"),
                                ::cleanProfileName(QStringLiteral("Ho|me"), QStringLiteral("x")));
    QCOMPARE(userEntries(ProfileGroupLoader()),
             (QStringList{QStringLiteral("0,1002=Home"), QStringLiteral("0,1003=/*?:")}));
}

void TestProfileGroupLoader::copyOfUserProfileInheritsItsSource()
{
    ProfileGroupLoader catalogue;
    const QString first = catalogue.saveUserProfile(QStringLiteral("12,6"),
                                                    {{QStringLiteral("b"), QStringLiteral("1500")}},
                                                    QStringLiteral("TV"));
    const Values shown = Profile(QStringLiteral(":/profile/user/TV.xml")).values();
    const QString copy = catalogue.saveUserProfile(first, shown, QStringLiteral("TV again"));
    QCOMPARE(copy, QStringLiteral("0,1002"));
    QCOMPARE(field(catalogue.profileByKey(copy), "InheritFrom"), QStringLiteral("12,6"));
    QCOMPARE(Profile(QStringLiteral(":/profile/user/TV again.xml")).values(), shown);
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("0"), QStringLiteral("1002")),
             QStringLiteral("12,6"));
    // Nothing to save from: no file, no entry.
    QCOMPARE(catalogue.saveUserProfile(QStringLiteral("1,9999"), {}, QStringLiteral("x")),
             QString());
    QCOMPARE(userFiles(), QStringList{QStringLiteral("TV.xml")});
}

void TestProfileGroupLoader::builtInProfilesAreNotRemoved()
{
    ProfileGroupLoader catalogue;
    QCOMPARE(catalogue.removeUserProfile(QStringLiteral("1"), QStringLiteral("68")), QString());
    QVERIFY(catalogue.hasProfile(QStringLiteral("1,68")));
    QVERIFY(!QFile::exists(ProfileGroupLoader::userPath()));
}

void TestProfileGroupLoader::unusableUserFile_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("entries");
    const QByteArray entry = "<Profile><Id value=\"1001\"/><Name value=\"Mine\"/>"
                             "<FileName value=\"user/m.xml\"/></Profile>";
    QTest::newRow("malformed") << QByteArray("<Groups><Group><Id value=\"0\"/>") << QStringList();
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("binary") << QByteArray("\x00\xff\xfe garbage", 11) << QStringList();
    QTest::newRow("no group 0") << "<Groups><Group><Id value=\"5\"/>" + entry + "</Group></Groups>"
                                << QStringList();
    QTest::newRow("group without an id reads as 0")
        << "<Groups><Group><Name value=\"User Defined\"/>" + entry + "</Group></Groups>"
        << QStringList{QStringLiteral("0,1001=Mine")};
    QTest::newRow("other groups are ignored")
        << "<Groups><Group><Id value=\"1\"/><Name value=\"Fake\"/></Group><Group><Id value=\"0\"/>"
               + entry + "</Group></Groups>"
        << QStringList{QStringLiteral("0,1001=Mine")};
}

void TestProfileGroupLoader::unusableUserFile()
{
    QFETCH(QByteArray, contents);
    QVERIFY(QDir().mkpath(userProfilesDir()));
    QVERIFY(writeFile(ProfileGroupLoader::userPath(), contents));
    ProfileGroupLoader catalogue;
    QTEST(userEntries(catalogue), "entries");
    QCOMPARE(catalogue.groups().size(), 16);
    QCOMPARE(field(catalogue.group(QStringLiteral("1")), "Name"), QStringLiteral("General Video"));
    QVERIFY(catalogue.hasProfile(QStringLiteral("1,68")));
    // The catalogue works on: a new profile follows what was read.
    const int before = catalogue.profiles(catalogue.group(QStringLiteral("0"))).size();
    QCOMPARE(catalogue.saveUserProfile(QStringLiteral("1,68"), {}, QStringLiteral("New")),
             before ? QStringLiteral("0,1002") : QStringLiteral("0,1001"));
}

void TestProfileGroupLoader::cleanProfileName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cleaned");
    QTest::newRow("plain") << "My iPad (2)"
                           << "My iPad (2)";
    QTest::newRow("every forbidden character") << "a/b*c?d:e<f>g|h\"i\\j"
                                               << "abcdefghij";
    QTest::newRow("nothing left") << "/*?:<>|\"\\"
                                  << "Untitled";
    QTest::newRow("empty") << ""
                           << "Untitled";
    QTest::newRow("unicode kept") << "Fête: été"
                                  << "Fête été";
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
    QTemporaryDir home;
    if (!helper) {
        // Children inherit this home, so they share the profiles under test.
        qputenv("HOME", home.path().toLocal8Bit());
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_DATA_HOME");
    }
    QCoreApplication app(argc, argv);
    if (helper)
        return helperMain(QCoreApplication::arguments().mid(2));
    TestProfileGroupLoader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profilegrouploader.moc"
