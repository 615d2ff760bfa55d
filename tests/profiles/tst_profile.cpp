#include "profile.h"
#include "settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include "testhome.h"

using namespace Qt::StringLiterals;
using Values = QMap<QString, QString>;

namespace {

const QString samplePath = u":/profile/sample.xml"_s;

// "a|b|c"; an empty text is an empty list, "|x" a list starting empty.
QStringList names(const QString &items)
{
    return items.isEmpty() ? QStringList() : items.split(u'|');
}

} // namespace

class TestProfile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(userProfilesDir()).removeRecursively();
        QVERIFY(QDir().mkpath(userProfilesDir()));
    }

    void sectionsAndKeysInDocumentOrder()
    {
        const Profile profile(samplePath);
        QStringList sections;
        for (const QDomElement &section : profile.sections())
            sections << section.attribute(u"value"_s);
        QCOMPARE(sections, names(u"Summary|Video|Audio|Expert|Extra"_s));
        QCOMPARE(profile.keys(),
                 names(u"title|genre|vcodec|s|b|aspect|sameq|level|acodec|ab|ac|vol|"
                       "an|pix_fmt|deinterlace|qscale|bitexact|futureoption|map1"_s));
        QCOMPARE(profile.parameter(u"map1"_s).tagName(), u"map_num_1"_s);
        QStringList simple;
        for (const QDomNode &node : profile.simpleParameters())
            simple << Profile::key(node) + u'=' + Profile::simpleName(node);
        QCOMPARE(simple, names(u"s=Video Size|b=Video Quality|ab=Audio Quality|ac=Channels"_s));
        QCOMPARE(Profile::simpleValues(profile.parameter(u"ab"_s)), names(u"160|128|128|96|64"_s));
        // A path holding "user/" is read from the user's folder ("~" here).
        QStringList read;
        for (const char *path :
             {":/profile/user/a b.xml", "/d/user/x/p.xml", "/users/p.xml", "/User/p"})
            read << Profile(QString::fromUtf8(path)).fileName.replace(userProfilesDir(), u"~"_s);
        QCOMPARE(read, names(u"~/a b.xml|~/p.xml|/users/p.xml|/User/p"_s));
    }

    // Each parameter of the sample as read, and what it shows for a task's value.
    void parameters_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<QString>("candidates");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<QString>("current"); // what a task holds
        QTest::addColumn<QString>("shown");
        const auto row
            = [](const char *key, Profile::ParameterKind kind, const char *value,
                 const char *candidates, bool readOnly, const char *current, const char *shown) {
                  QTest::newRow(key)
                      << key << int(kind) << value << candidates << readOnly << current << shown;
              };
        using P = Profile;
        row("title", P::FreeText, "", "", false, "", "");
        row("genre", P::ClosedList, "", "|Blues|Classic Rock", false, "", "");
        row("vcodec", P::ClosedList, "mpeg4", "mpeg4", true, "h264", "mpeg4");
        row("s", P::OpenList, "Auto", "Auto|128*96 (sqcif)|320*240", false, "720*480", "720*480");
        // Candidates marked "no" are candidates still; an empty value means the default.
        row("b", P::OpenList, "1200", "2500|1500|1200|800|512", false, "", "1200");
        row("sameq", P::Flag, "False", "", false, "True", "True");
        // Marked read-only "no" is read-only: the mark counts, not its value.
        row("level", P::ClosedList, "31", "22|30|31", true, "30", "30");
        row("ac", P::ClosedList, "2 (Stereo)", "1 (Mono)|2 (Stereo)", false, "5.1", "1 (Mono)");
        row("bitexact", P::Flag, "True", "", false, "", "True");
        row("futureoption", P::FreeText, "x,y", "", false, "z", "z");
        row("map1", P::FreeText, "0:1", "", false, "", "0:1");
    }

    void parameters()
    {
        QFETCH(QString, key);
        QFETCH(QString, candidates);
        QFETCH(QString, current);
        const Profile profile(samplePath);
        const QDomElement element = profile.parameter(key);
        QVERIFY2(!element.isNull(), qPrintable(key));
        QCOMPARE(Profile::key(element), key);
        QTEST(int(Profile::kind(element)), "kind");
        QTEST(Profile::defaultValue(element), "defaultValue");
        QCOMPARE(Profile::candidates(element), names(candidates));
        QTEST(isReadOnly(element), "readOnly");
        const Values shown = profile.values({{key, current}, {u"other"_s, current}});
        QTEST(shown.value(key), "shown");
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
        QCOMPARE(Profile::candidates(again.parameter(u"genre"_s)), names(u"|Blues|Classic Rock"_s));
        // Saved with no values, every parameter is emptied and the layout stays.
        QVERIFY(profile.saveValues(Values(), target));
        const Profile cleared(target);
        for (const QDomElement &element : cleared.parameters())
            QCOMPARE(element.attribute(u"value"_s), QString());
        QCOMPARE(cleared.keys(), profile.keys());

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

    void unreadableDocumentIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("contents"); // null: no file
        QTest::addColumn<bool>("parses");
        QTest::newRow("malformed")
            << QByteArray("<Parameter><Section value=\"V\"><s value=\"A\">") << false;
        QTest::newRow("other root")
            << QByteArray("<Group><Section value=\"V\"><s/></Section></Group>") << true;
        QTest::newRow("missing file") << QByteArray() << false;
    }

    void unreadableDocumentIsEmpty()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, parses);
        const QString path = userProfilesDir() + u"/bad.xml"_s;
        QFile file(path);
        QVERIFY(contents.isNull()
                || (file.open(QIODevice::WriteOnly) && file.write(contents) >= 0));
        file.close();
        // A file that is there but doesn't parse is named in the log.
        if (!contents.isNull() && !parses)
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"^Can't read .*bad.xml"_s));
        const Profile profile(path);
        QVERIFY(profile.sections().isEmpty() && profile.keys().isEmpty());
        QVERIFY(profile.values().isEmpty() && profile.simpleParameters().isEmpty());
        QCOMPARE(profile.fileName, path);
    }
};

int main(int argc, char *argv[])
{
    TestHome home;
    QCoreApplication app(argc, argv);
    Q_INIT_RESOURCE(profile_samples);
    TestProfile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profile.moc"
