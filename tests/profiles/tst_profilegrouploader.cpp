#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "testhome.h"

using namespace Qt::StringLiterals;

namespace {

// "key=name;..." of the user profiles in catalogue order, then " | " and the
// documents in the user's folder: what the user would find at the next start.
QString users(const ProfileGroupLoader &catalogue)
{
    QStringList found;
    const QDomNodeList entries = catalogue.profiles(catalogue.group(u"0"_s));
    for (int i = 0; i < entries.size(); ++i)
        found << u"0,%1=%2"_s.arg(childValue(entries.at(i), u"Id"_s),
                                  childValue(entries.at(i), u"Name"_s));
    QStringList files = QDir(userProfilesDir()).entryList({u"*.xml"_s}, QDir::Files);
    files.removeAll(u"Group.xml"_s);
    return found.join(u';') + u" | "_s + files.join(u';');
}

QString inheritFrom(const ProfileGroupLoader &catalogue, const QString &key)
{
    return childValue(catalogue.profileByKey(key), u"InheritFrom"_s);
}

} // namespace

// A row of the built-in catalogue, or (with the key alone) a key it lacks.
static void lookupRow(const char *name, const char *key, const char *file = "",
                      const char *ext = "", const char *previous = "", const char *next = "")
{
    QTest::newRow(name) << key << file << ext << previous << next;
}

class TestProfileGroupLoader : public QObject
{
    Q_OBJECT

private slots:
    void init() { QDir(userProfilesDir()).removeRecursively(); }

    void lookups_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("ext");
        QTest::addColumn<QString>("previous");
        QTest::addColumn<QString>("next");
        lookupRow("default", "1,68", "mp4.xml", "mp4", "1,64", "1,69");
        lookupRow("audio", "2,134", "alac.xml", "m4a", "2,4", "2,133");
        lookupRow("across a group border", "1,123", "webm.xml", "webm", "1,122", "2,3");
        lookupRow("one-profile groups", "20,79", "ps3h264.xml", "mp4", "19,58", "21,88");
        lookupRow("first, past the empty user group", "1,12", "asf.xml", "asf", "", "1,15");
        lookupRow("last of the catalogue", "24,121", "zune_mpeg4.xml", "mp4", "23,114", "");
        lookupRow("id of another group", "2,68");
        // An unknown group reads as the first one, which has no such profile.
        lookupRow("unknown group", "99,68");
        lookupRow("three parts", "1,68,1");
        lookupRow("texts, not numbers", "1,068");
        lookupRow("empty", "");
    }

    void lookups()
    {
        QFETCH(QString, key);
        QFETCH(QString, file);
        const ProfileGroupLoader catalogue;
        const QString group = key.section(u',', 0, 0);
        const QString id = key.section(u',', 1);
        QCOMPARE(catalogue.hasProfile(key), !file.isEmpty());
        QCOMPARE(catalogue.profileByKey(key).isNull(), file.isEmpty());
        QCOMPARE(catalogue.profileFileName(group, id), file);
        QTEST(catalogue.profileExtName(group, id), "ext");
        QTEST(catalogue.previousProfile(key), "previous");
        QTEST(catalogue.nextProfile(key), "next");
    }

    // The user's Group.xml as found at start: whatever it holds, the built-in
    // catalogue stays whole and new profiles can still be saved.
    void userFile_data()
    {
        QTest::addColumn<QByteArray>("contents"); // null: no file
        QTest::addColumn<bool>("unreadable");     // says so in the log
        QTest::addColumn<QString>("first");
        const QByteArray entry = "<Profile><Id value=\"1001\"/><Name value=\"Mine\"/></Profile>";
        QTest::newRow("none") << QByteArray() << false << "1,12";
        QTest::newRow("malformed")
            << QByteArray("<Groups><Group><Id value=\"0\"/>") << true << "1,12";
        QTest::newRow("no group 0")
            << "<Groups><Group><Id value=\"5\"/>" + entry + "</Group></Groups>" << false << "1,12";
        QTest::newRow("group without an id reads as 0")
            << "<Groups><Group><Name value=\"x\"/>" + entry + "</Group></Groups>" << false
            << "0,1001";
        QTest::newRow("other groups are ignored")
            << "<Groups><Group><Id value=\"1\"/></Group><Group><Id value=\"0\"/>" + entry
                   + "</Group></Groups>"
            << false << "0,1001";
    }

    void userFile()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, first);
        if (!contents.isNull()) {
            QVERIFY(QDir().mkpath(userProfilesDir()));
            QFile file(ProfileGroupLoader::userPath());
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
        }
        QFETCH(bool, unreadable);
        if (unreadable)
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"^Can't read .*Group.xml"_s));
        ProfileGroupLoader catalogue;
        const QString mine = first.startsWith(u"0,"_s) ? u"0,1001=Mine"_s : QString();
        QCOMPARE(users(catalogue), mine + u" | "_s);
        QCOMPARE(catalogue.firstProfile(), first);
        QCOMPARE(catalogue.groups().size(), 16);
        QVERIFY(catalogue.group(u"99"_s) == catalogue.group(u"0"_s));
        QCOMPARE(catalogue.saveUserProfile(u"1,68"_s, {}, u"New"_s),
                 mine.isEmpty() ? u"0,1001"_s : u"0,1002"_s);
    }

    void userProfilesLiveOn()
    {
        ProfileGroupLoader catalogue;
        const QString key
            = catalogue.saveUserProfile(u"1,68"_s, {{u"b"_s, u"777"_s}}, u"My Phone"_s);
        QCOMPARE(key, u"0,1001"_s);
        QCOMPARE(catalogue.previousProfile(u"1,12"_s), key);
        QCOMPARE(catalogue.profileFileName(u"0"_s, u"1001"_s), u"user/My Phone.xml"_s);
        QCOMPARE(inheritFrom(catalogue, key), u"1,68"_s);
        // The document carries the values given.
        const Profile document(u":/profile/user/My Phone.xml"_s);
        QCOMPARE(document.values().value(u"b"_s), u"777"_s);
        // The user's file holds group 0 alone, without the default and comments.
        QFile file(ProfileGroupLoader::userPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray written = file.readAll();
        QVERIFY(!written.contains("default=") && !written.contains("<!--"));
        QCOMPARE(written.count("<Group>"), 1);

        // A catalogue read afterwards, as at the next start, has it; its changes
        // reach the next one.
        ProfileGroupLoader next;
        QCOMPARE(users(next), u"0,1001=My Phone | My Phone.xml"_s);
        QCOMPARE(next.saveUserProfile(u"15,45"_s, {}, u"Pocket"_s), u"0,1002"_s);
        QVERIFY(next.renameUserProfile(u"0"_s, u"1001"_s, u"Big"_s));
        ProfileGroupLoader reread;
        QCOMPARE(users(reread), u"0,1001=Big;0,1002=Pocket | My Phone.xml;Pocket.xml"_s);
        QCOMPARE(inheritFrom(reread, u"0,1002"_s), u"15,45"_s);
        QCOMPARE(reread.removeUserProfile(u"0"_s, u"1002"_s), u"15,45"_s);
        QCOMPARE(users(ProfileGroupLoader()), u"0,1001=Big | My Phone.xml"_s);
    }

    void idsAndFilesOfUserProfiles()
    {
        ProfileGroupLoader catalogue;
        const QString from = u"14,42"_s;
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"a"_s), u"0,1001"_s);
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"b"_s), u"0,1002"_s);
        // The highest id, freed, is given again; a lower one is not.
        QCOMPARE(catalogue.removeUserProfile(u"0"_s, u"1002"_s), from);
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"a"_s), u"0,1002"_s);
        QCOMPARE(catalogue.removeUserProfile(u"0"_s, u"1001"_s), from);
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"/*?:"_s), u"0,1003"_s);
        // The same name twice gets a numbered file; nothing usable, a stand-in.
        QCOMPARE(users(catalogue), u"0,1002=a;0,1003=/*?: | a(1).xml;Untitled.xml"_s);
        // Removing what is already gone, or a built-in profile, changes nothing.
        QCOMPARE(catalogue.removeUserProfile(u"0"_s, u"1001"_s), QString());
        QCOMPARE(catalogue.removeUserProfile(u"1"_s, u"68"_s), QString());
        QVERIFY(catalogue.hasProfile(u"1,68"_s));
        QCOMPARE(::cleanProfileName(u"Fête: a/b*c?d<e>f|g\"h\\i"_s, u"x"_s), u"Fête abcdefghi"_s);
        // A copy of a user profile keeps the built-in profile it came from.
        QCOMPARE(catalogue.saveUserProfile(u"0,1002"_s, {}, u"copy"_s), u"0,1004"_s);
        QCOMPARE(inheritFrom(catalogue, u"0,1004"_s), from);
        QVERIFY(catalogue.renameUserProfile(u"0"_s, u"1002"_s, u"Home"_s));
        QCOMPARE(users(ProfileGroupLoader()),
                 u"0,1002=Home;0,1003=/*?:;0,1004=copy | a(1).xml;copy.xml;Untitled.xml"_s);
    }

    void failuresLeaveNothingHalfDone()
    {
        ProfileGroupLoader catalogue;
        const QString from = u"1,68"_s;
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"a"_s), u"0,1001"_s);
        QCOMPARE(catalogue.saveUserProfile(u"0,1001"_s, {}, u"b"_s), u"0,1002"_s);
        // Nothing to save from, or its document gone: no file, no entry, and a word why.
        QCOMPARE(catalogue.saveUserProfile(u"1,9999"_s, {}, u"x"_s), QString());
        QVERIFY(QFile::remove(userProfilesDir() + u"/b.xml"_s));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"^Can't read profile .*b.xml"_s));
        QCOMPARE(catalogue.saveUserProfile(u"0,1002"_s, {}, u"y"_s), QString());
        QCOMPARE(users(catalogue), u"0,1001=a;0,1002=b | a.xml"_s);

        // A folder where the catalogue's file goes: no one, root included, writes there.
        QVERIFY(QFile::remove(ProfileGroupLoader::userPath()));
        QVERIFY(QDir().mkpath(ProfileGroupLoader::userPath()));
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"c"_s), QString());
        QVERIFY(!catalogue.errorString().isEmpty());
        QVERIFY(!catalogue.renameUserProfile(u"0"_s, u"1001"_s, u"d"_s));
        // What could not be recorded is not kept either; what was recorded stays.
        QCOMPARE(catalogue.removeUserProfile(u"0"_s, u"1001"_s), from);
        QCOMPARE(users(catalogue), u"0,1002=b | a.xml"_s);
        QVERIFY(QDir(ProfileGroupLoader::userPath()).removeRecursively());
    }

    // The documents and texts are held to their generator by check_generated.py;
    // this checks what the program needs of them: every row reaches its document
    // and icon through the resources, and every document can be shown as it is.
    void rowsReachDocumentsAndIcons()
    {
        const ProfileGroupLoader catalogue;
        QVERIFY(catalogue.hasProfile(catalogue.defaultProfile()));
        QSet<QString> keys;
        QStringList icons{u":/profile/recommend.png"_s};
        for (const QDomNode &group : catalogue.groups()) {
            const QString groupId = group.firstChildElement(u"Id"_s).attribute(u"value"_s);
            icons << u":/profile/"_s + group.firstChildElement(u"IconName"_s).attribute(u"value"_s);
            const QDomNodeList entries = catalogue.profiles(group);
            for (int i = 0; i < entries.size(); ++i) {
                const QString id = childValue(entries.at(i), u"Id"_s);
                const QString key = ProfileGroupLoader::profileKey(groupId, id);
                QVERIFY2(!keys.contains(key) && catalogue.hasProfile(key), qPrintable(key));
                keys.insert(key);
                const QString file = catalogue.profileFileName(groupId, id);
                QVERIFY2(!Profile(u":/profile/"_s + file).sections().isEmpty(),
                         qPrintable(key + QLatin1Char(' ') + file));
                QVERIFY2(!catalogue.profileExtName(groupId, id).isEmpty(), qPrintable(key));
                icons << ProfileGroupLoader::iconPath(childValue(entries.at(i), u"IconName"_s));
            }
        }
        QVERIFY(keys.size() > 80);
        for (const QString &path : icons) {
            const QImage image(path);
            QVERIFY2(!image.isNull(), qPrintable(path));
            QVERIFY2(image.width() >= 16 && image.width() == image.height(), qPrintable(path));
            QVERIFY2(image.hasAlphaChannel(), qPrintable(path));
        }
        // Every document, named by a row or not, can be shown as it is.
        QStringList files = QDir(u":/profile"_s).entryList({u"*.xml"_s});
        files.removeAll(u"Group.xml"_s);
        QVERIFY(files.size() > 100);
        for (const QString &file : files) {
            const Profile profile(u":/profile/"_s + file);
            const QStringList names = profile.keys();
            QVERIFY2(!profile.sections().isEmpty(), qPrintable(file));
            QVERIFY2(QSet<QString>(names.begin(), names.end()).size() == names.size(),
                     qPrintable(file));
            // A closed list must stand at one of its candidates, or it can't be shown.
            for (const QDomElement &parameter : profile.parameters()) {
                if (Profile::kind(parameter) == Profile::ClosedList)
                    QVERIFY2(
                        Profile::candidates(parameter).contains(Profile::defaultValue(parameter)),
                        qPrintable(file + QLatin1Char(' ') + Profile::key(parameter)));
            }
            for (const QDomNode &parameter : profile.simpleParameters())
                QVERIFY2(Profile::simpleLabels(parameter).size()
                             == Profile::simpleValues(parameter).size(),
                         qPrintable(file + QLatin1Char(' ') + Profile::key(parameter)));
        }
    }
};

int main(int argc, char *argv[])
{
    TestHome home;
    QGuiApplication app(argc, argv);
    TestProfileGroupLoader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profilegrouploader.moc"
