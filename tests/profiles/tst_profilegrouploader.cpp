#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "testhome.h"

using namespace Qt::StringLiterals;
using Values = QMap<QString, QString>;

namespace {

const QString samplePath = u":/profile/sample.xml"_s;

// "key=name<inherited from;..." of the user profiles in catalogue order, then " | " and the
// documents in the user's folder: what the user would find at the next start.
QString users(const ProfileGroupLoader &catalogue)
{
    QStringList found;
    const QDomNodeList entries = catalogue.profiles(catalogue.group(u"0"_s));
    for (int i = 0; i < entries.size(); ++i)
        found << u"0,%1=%2<%3"_s.arg(childValue(entries.at(i), u"Id"_s),
                                     childValue(entries.at(i), u"Name"_s),
                                     childValue(entries.at(i), u"InheritFrom"_s));
    QStringList files = QDir(userProfilesDir()).entryList({u"*.xml"_s}, QDir::Files);
    files.removeAll(u"Group.xml"_s);
    return found.join(u';') + u" | "_s + files.join(u';');
}

} // namespace

class TestProfileGroupLoader : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(userProfilesDir()).removeRecursively();
        QVERIFY(QDir().mkpath(userProfilesDir()));
    }

    // What the catalogue finds for a key: "file|extension|previous|next".
    void lookups_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("found");
        const auto row = [](const char *name, const char *key, const char *found = "|||") {
            QTest::newRow(name) << key << found;
        };
        row("default", "1,68", "mp4.xml|mp4|1,64|1,69");
        row("audio", "2,134", "alac.xml|m4a|2,4|2,133");
        row("across a group border", "1,123", "webm.xml|webm|1,122|2,3");
        row("one-profile groups", "20,79", "ps3h264.xml|mp4|19,58|21,88");
        row("first, past the empty user group", "1,12", "asf.xml|asf||1,15");
        row("last of the catalogue", "24,121", "zune_mpeg4.xml|mp4|23,114|");
        row("id of another group", "2,68");
        // An unknown group reads as the first one, which has no such profile.
        row("unknown group", "99,68");
        row("three parts", "1,68,1");
        row("texts, not numbers", "1,068");
        row("empty", "");
    }

    void lookups()
    {
        QFETCH(QString, key);
        const ProfileGroupLoader catalogue;
        const QString group = key.section(u',', 0, 0), id = key.section(u',', 1);
        const QString found
            = QStringList{catalogue.profileFileName(group, id), catalogue.profileExtName(group, id),
                          catalogue.previousProfile(key), catalogue.nextProfile(key)}
                  .join(u'|');
        QTEST(found, "found");
        QCOMPARE(catalogue.hasProfile(key), found != u"|||"_s);
        QCOMPARE(catalogue.profileByKey(key).isNull(), found == u"|||"_s);
    }

    // The user's Group.xml as found at start: whatever it holds, the built-in
    // catalogue stays whole and new profiles can still be saved.
    void userFile_data()
    {
        QTest::addColumn<QByteArray>("contents"); // null: no file
        QTest::addColumn<bool>("unreadable");     // says so in the log
        QTest::addColumn<QString>("first");
        const QByteArray mine
            = "<Profile><Id value=\"1001\"/><Name value=\"Mine\"/></Profile></Group></Groups>";
        QTest::newRow("none") << QByteArray() << false << "1,12";
        QTest::newRow("malformed")
            << QByteArray("<Groups><Group><Id value=\"0\"/>") << true << "1,12";
        QTest::newRow("no group 0") << "<Groups><Group><Id value=\"5\"/>" + mine << false << "1,12";
        QTest::newRow("no id reads as 0")
            << "<Groups><Group><Name value=\"x\"/>" + mine << false << "0,1001";
        QTest::newRow("other groups are ignored")
            << "<Groups><Group><Id value=\"1\"/></Group><Group><Id value=\"0\"/>" + mine << false
            << "0,1001";
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
        const QString mine = first.startsWith(u"0,"_s) ? u"0,1001=Mine<"_s : QString();
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
        QCOMPARE(catalogue.saveUserProfile(u"1,68"_s, {{u"b"_s, u"777"_s}}, u"My Phone"_s),
                 u"0,1001"_s);
        QCOMPARE(catalogue.previousProfile(u"1,12"_s), u"0,1001"_s);
        QCOMPARE(catalogue.profileFileName(u"0"_s, u"1001"_s), u"user/My Phone.xml"_s);
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
        QCOMPARE(users(next), u"0,1001=My Phone<1,68 | My Phone.xml"_s);
        QCOMPARE(next.saveUserProfile(u"15,45"_s, {}, u"Pocket"_s), u"0,1002"_s);
        QVERIFY(next.renameUserProfile(u"0"_s, u"1001"_s, u"Big"_s));
        ProfileGroupLoader reread;
        QCOMPARE(users(reread), u"0,1001=Big<1,68;0,1002=Pocket<15,45 | My Phone.xml;Pocket.xml"_s);
        QCOMPARE(reread.removeUserProfile(u"0"_s, u"1002"_s), u"15,45"_s);
        QCOMPARE(users(ProfileGroupLoader()), u"0,1001=Big<1,68 | My Phone.xml"_s);
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
        QCOMPARE(users(catalogue), u"0,1002=a<14,42;0,1003=/*?:<14,42 | a(1).xml;Untitled.xml"_s);
        // Removing what is already gone, or a built-in profile, changes nothing.
        QCOMPARE(catalogue.removeUserProfile(u"0"_s, u"1001"_s), QString());
        QCOMPARE(catalogue.removeUserProfile(u"1"_s, u"68"_s), QString());
        QVERIFY(catalogue.hasProfile(u"1,68"_s));
        QCOMPARE(::cleanProfileName(u"Fête: a/b*c?d<e>f|g\"h\\i"_s, u"x"_s), u"Fête abcdefghi"_s);
        // A copy of a user profile keeps the built-in profile it came from.
        QCOMPARE(catalogue.saveUserProfile(u"0,1002"_s, {}, u"copy"_s), u"0,1004"_s);
        QVERIFY(catalogue.renameUserProfile(u"0"_s, u"1002"_s, u"Home"_s));
        QCOMPARE(users(ProfileGroupLoader()),
                 u"0,1002=Home<14,42;0,1003=/*?:<14,42;0,1004=copy<14,42 | "
                 "a(1).xml;copy.xml;Untitled.xml"_s);
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
        QCOMPARE(users(catalogue), u"0,1001=a<1,68;0,1002=b<1,68 | a.xml"_s);

        // A folder where the catalogue's file goes: no one, root included, writes there.
        QVERIFY(QFile::remove(ProfileGroupLoader::userPath()));
        QVERIFY(QDir().mkpath(ProfileGroupLoader::userPath()));
        QCOMPARE(catalogue.saveUserProfile(from, {}, u"c"_s), QString());
        QVERIFY(!catalogue.errorString().isEmpty());
        QVERIFY(!catalogue.renameUserProfile(u"0"_s, u"1001"_s, u"d"_s));
        // What could not be recorded is not kept either; what was recorded stays.
        QCOMPARE(catalogue.removeUserProfile(u"0"_s, u"1001"_s), from);
        QCOMPARE(users(catalogue), u"0,1002=b<1,68 | a.xml"_s);
        QVERIFY(QDir(ProfileGroupLoader::userPath()).removeRecursively());
    }

    // The documents and texts are held to their generator by check_generated.py;
    // this checks what the program needs of them: every row reaches its document
    // and icon through the resources, and every document can be shown as it is.
    void rowsReachDocumentsAndIcons()
    {
        const ProfileGroupLoader catalogue;
        QVERIFY(catalogue.hasProfile(catalogue.defaultProfile()));
        QStringList files = QDir(u":/profile"_s).entryList({u"*.xml"_s}), wrong;
        files.removeAll(u"Group.xml"_s);
        QSet<QString> keys;
        QStringList icons{u":/profile/recommend.png"_s};
        for (const QDomNode &group : catalogue.groups()) {
            const QString groupId = group.firstChildElement(u"Id"_s).attribute(u"value"_s);
            icons << u":/profile/"_s + group.firstChildElement(u"IconName"_s).attribute(u"value"_s);
            const QDomNodeList entries = catalogue.profiles(group);
            for (int i = 0; i < entries.size(); ++i) {
                const QString id = childValue(entries.at(i), u"Id"_s);
                const QString key = ProfileGroupLoader::profileKey(groupId, id);
                const QString file = catalogue.profileFileName(groupId, id);
                if (keys.contains(key) || !catalogue.hasProfile(key) || !files.contains(file)
                    || catalogue.profileExtName(groupId, id).isEmpty())
                    wrong << key + u' ' + file;
                keys.insert(key);
                icons << ProfileGroupLoader::iconPath(childValue(entries.at(i), u"IconName"_s));
            }
        }
        for (const QString &path : icons) {
            const QImage image(path);
            if (image.width() < 16 || image.width() != image.height() || !image.hasAlphaChannel())
                wrong << path;
        }
        // Every document, named by a row or not, can be shown as it is: a closed list stands
        // at one of its candidates, a simple setting has a label for each value.
        for (const QString &file : files) {
            const Profile profile(u":/profile/"_s + file);
            const QStringList names = profile.keys();
            if (profile.sections().isEmpty()
                || QSet<QString>(names.begin(), names.end()).size() != names.size())
                wrong << file;
            for (const QDomElement &parameter : profile.parameters()) {
                if (Profile::kind(parameter) == Profile::ClosedList
                    && !Profile::candidates(parameter).contains(Profile::defaultValue(parameter)))
                    wrong << file + u' ' + Profile::key(parameter);
            }
            for (const QDomNode &parameter : profile.simpleParameters()) {
                if (Profile::simpleLabels(parameter).size()
                    != Profile::simpleValues(parameter).size())
                    wrong << file + u' ' + Profile::key(parameter);
            }
        }
        QVERIFY(keys.size() > 80 && files.size() > 100);
        QCOMPARE(wrong.join(u"\n"), QString());
    }

    void sectionsAndKeysInDocumentOrder()
    {
        const Profile profile(samplePath);
        QStringList sections;
        for (const QDomElement &section : profile.sections())
            sections << section.attribute(u"value"_s);
        QCOMPARE(sections.join(u'|'), u"Summary|Video|Audio|Expert|Extra"_s);
        QCOMPARE(profile.keys().join(u'|'),
                 u"title|genre|vcodec|s|b|aspect|sameq|level|acodec|ab|ac|vol|"
                 "an|pix_fmt|deinterlace|qscale|bitexact|futureoption|map1"_s);
        QCOMPARE(profile.parameter(u"map1"_s).tagName(), u"map_num_1"_s);
        QStringList simple;
        for (const QDomNode &node : profile.simpleParameters())
            simple << Profile::key(node) + u'=' + Profile::simpleName(node);
        QCOMPARE(simple.join(u'|'), u"s=Video Size|b=Video Quality|ab=Audio Quality|ac=Channels"_s);
        QCOMPARE(Profile::simpleValues(profile.parameter(u"ab"_s)).join(u'|'),
                 u"160|128|128|96|64"_s);
        // A path holding "user/" is read from the user's folder ("~" here).
        QStringList read;
        for (const char *path :
             {":/profile/user/a b.xml", "/d/user/x/p.xml", "/users/p.xml", "/User/p"})
            read << Profile(QString::fromUtf8(path)).fileName.replace(userProfilesDir(), u"~"_s);
        QCOMPARE(read.join(u'|'), u"~/a b.xml|~/p.xml|/users/p.xml|/User/p"_s);
    }

    // Each parameter of the sample as read: kind, default, candidates, the
    // read-only mark, and what it shows for a task's value.
    void parameters()
    {
        const Profile profile(samplePath);
        const Values task{
            {u"title"_s, u""_s},         {u"genre"_s, u""_s}, {u"vcodec"_s, u"h264"_s},
            {u"s"_s, u"720*480"_s},      {u"b"_s, u""_s},     {u"sameq"_s, u"True"_s},
            {u"level"_s, u"30"_s},       {u"ac"_s, u"5.1"_s}, {u"bitexact"_s, u""_s},
            {u"futureoption"_s, u"z"_s}, {u"map1"_s, u""_s}};
        const char *kinds[] = {"text", "flag", "closed", "open"};
        Values given = task;
        given.insert(u"other"_s, u"x"_s);
        const Values shown = profile.values(given);
        QStringList rows;
        for (const QString &key : task.keys()) {
            const QDomElement element = profile.parameter(key);
            rows << u"%1 %2 %3 [%4]%5 = %6"_s.arg(
                Profile::key(element), QLatin1String(kinds[Profile::kind(element)]),
                Profile::defaultValue(element), Profile::candidates(element).join(u'|'),
                isReadOnly(element) ? u" ro"_s : u""_s, shown.value(key));
        }
        // Candidates marked "no" are candidates still; read-only "no" is read-only:
        // the mark counts, not its value. An empty value means the default.
        QCOMPARE(rows, u"ac closed 2 (Stereo) [1 (Mono)|2 (Stereo)] = 1 (Mono)\n"
                       "b open 1200 [2500|1500|1200|800|512] = 1200\n"
                       "bitexact flag True [] = True\n"
                       "futureoption text x,y [] = z\n"
                       "genre closed  [|Blues|Classic Rock] = \n"
                       "level closed 31 [22|30|31] ro = 30\n"
                       "map1 text 0:1 [] = 0:1\n"
                       "s open Auto [Auto|128*96 (sqcif)|320*240] = 720*480\n"
                       "sameq flag False [] = True\n"
                       "title text  [] = \n"
                       "vcodec closed mpeg4 [mpeg4] ro = mpeg4"_s.split(u'\n'));
        QCOMPARE(shown.size(), profile.keys().size());
        QVERIFY(!shown.contains(u"other"_s));
    }

    void saveAndLoadAgain()
    {
        Profile profile(samplePath);
        Values values = profile.values();
        values[u"title"_s] = u"Ferien in Zürich & <Bern>"_s;
        values[u"b"_s] = u"777"_s;
        values[u"bitexact"_s] = u"False"_s;
        values[u"genre"_s] = u"Classic Rock"_s;
        values[u"map1"_s] = u"0:2"_s;
        const QString target = userProfilesDir() + u"/My Profile ü.xml"_s;
        QVERIFY(profile.saveValues(values, target));
        QCOMPARE(profile.fileName, samplePath);
        // Read back through the user path: values, candidates and hints all there.
        const Profile again(u":/profile/user/My Profile ü.xml"_s);
        QCOMPARE(again.values(), values);
        QCOMPARE(Profile::simpleName(again.parameter(u"s"_s)), u"Video Size"_s);
        QVERIFY(isReadOnly(again.parameter(u"vcodec"_s)));
        QCOMPARE(attributeValue(again.parameter(u"futureoption"_s), u"unknownHint"_s), u"1"_s);
        QCOMPARE(Profile::candidates(again.parameter(u"genre"_s)).join(u'|'),
                 u"|Blues|Classic Rock"_s);

        // A missing folder or a folder in the way: false, a word in the log, nothing replaced.
        const QString folder = userProfilesDir() + u"/taken.xml"_s;
        QVERIFY(QDir().mkpath(folder + u"/inside"_s));
        for (const QString &path : {userProfilesDir() + u"/missing/x.xml"_s, folder}) {
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"^Can't write "_s));
            QVERIFY(!profile.saveValues(values, path));
        }
        QVERIFY(!QFile::exists(userProfilesDir() + u"/missing"_s));
        QVERIFY(QFileInfo(folder + u"/inside"_s).isDir());
    }

    // A file that is there but doesn't parse is named in the log; any of them reads empty.
    void unreadableDocumentIsEmpty()
    {
        const QString path = userProfilesDir() + u"/bad.xml"_s;
        for (const QByteArray &contents :
             {QByteArray(), QByteArray("<Group><Section value=\"V\"><s/></Section></Group>"),
              QByteArray("<Parameter><Section value=\"V\"><s value=\"A\">")}) {
            QFile file(path);
            QVERIFY(contents.isNull()
                    || (file.open(QIODevice::WriteOnly) && file.write(contents) >= 0));
            file.close();
            if (contents.startsWith("<Parameter"))
                QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"^Can't read .*bad.xml"_s));
            const Profile profile(path);
            QVERIFY2(profile.sections().isEmpty() && profile.keys().isEmpty()
                         && profile.values().isEmpty() && profile.simpleParameters().isEmpty(),
                     contents.constData());
            QCOMPARE(profile.fileName, path);
        }
    }
};

// Made before the application, so the store and the user's folders are the test's own.
static TestHome home;
QTEST_MAIN(TestProfileGroupLoader)

#include "tst_profilegrouploader.moc"
