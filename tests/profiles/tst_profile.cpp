#include "profile.h"
#include "settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include "testhome.h"

using Values = QMap<QString, QString>;

namespace {

const QString samplePath = QStringLiteral(":/profile/sample.xml");

// "a|b|c"; an empty text is an empty list, "|x" a list starting empty.
QStringList names(const QString &items)
{
    return items.isEmpty() ? QStringList() : items.split(QLatin1Char('|'));
}

bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

} // namespace

class TestProfile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sectionsAndKeysInDocumentOrder();
    void parameters_data();
    void parameters();
    void values_data();
    void values();
    void saveAndLoadAgain();
    void saveFailsWithoutLosingAnything();
    void userPathsRedirect_data();
    void userPathsRedirect();
    void unreadableDocumentIsEmpty_data();
    void unreadableDocumentIsEmpty();
};

void TestProfile::init()
{
    QDir(userProfilesDir()).removeRecursively();
    QVERIFY(QDir().mkpath(userProfilesDir()));
}

void TestProfile::sectionsAndKeysInDocumentOrder()
{
    const Profile profile(samplePath);
    QStringList sectionNames;
    for (const QDomElement &section : profile.sections())
        sectionNames << section.attribute(QStringLiteral("value"));
    QCOMPARE(sectionNames, names(QStringLiteral("Summary|Video|Audio|Expert|Extra")));
    QCOMPARE(profile.keys(),
             names(QStringLiteral("title|genre|vcodec|s|b|aspect|sameq|level|acodec|ab|ac|vol|an|"
                                  "pix_fmt|deinterlace|qscale|bitexact|futureoption|map1")));
    QCOMPARE(profile.parameter(QStringLiteral("map1")).tagName(), QStringLiteral("map_num_1"));
    QVERIFY(profile.parameter(QStringLiteral("map_num_1")).isNull());
    QStringList simple;
    for (const QDomNode &node : profile.simpleParameters())
        simple << Profile::key(node) + QLatin1Char('=') + Profile::simpleName(node);
    QCOMPARE(simple, names(QStringLiteral("s=Video Size|b=Video Quality|ab=Audio Quality|"
                                          "ac=Channels")));
    const QDomElement ab = profile.parameter(QStringLiteral("ab"));
    QCOMPARE(Profile::simpleLabels(ab), names(QStringLiteral("Highest|Higher|Normal|Lower|Lowest")));
    QCOMPARE(Profile::simpleValues(ab), names(QStringLiteral("160|128|128|96|64")));
}

void TestProfile::parameters_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QString>("candidates");
    QTest::addColumn<bool>("readOnly");
    const auto row = [](const char *name, const char *key, Profile::ParameterKind kind,
                        const char *value, const char *candidates, bool readOnly) {
        QTest::newRow(name) << QString::fromUtf8(key) << int(kind) << QString::fromUtf8(value)
                            << QString::fromUtf8(candidates) << readOnly;
    };
    row("free text, empty", "title", Profile::FreeText, "", "", false);
    row("list without value", "genre", Profile::ClosedList, "", "|Blues|Classic Rock", false);
    row("fixed closed list", "vcodec", Profile::ClosedList, "mpeg4", "mpeg4", true);
    row("open list, labels", "s", Profile::OpenList, "Auto", "Auto|128*96 (sqcif)|320*240", false);
    row("candidates marked no", "b", Profile::OpenList, "1200", "2500|1500|1200|800|512", false);
    row("empty flag", "sameq", Profile::Flag, "False", "", false);
    row("readonly marked no", "level", Profile::ClosedList, "31", "22|30|31", true);
    row("blanks and brackets", "ac", Profile::ClosedList, "2 (Stereo)", "1 (Mono)|2 (Stereo)",
        false);
    row("pix_fmt empty is text", "pix_fmt", Profile::FreeText, "", "", false);
    row("expert default", "qscale", Profile::FreeText, "25", "", false);
    row("flag standing at True", "bitexact", Profile::Flag, "True", "", false);
    row("unknown key", "futureoption", Profile::FreeText, "x,y", "", false);
    row("tag with _num_", "map1", Profile::FreeText, "0:1", "", false);
}

void TestProfile::parameters()
{
    QFETCH(QString, key);
    QFETCH(QString, candidates);
    const QDomElement element = Profile(samplePath).parameter(key);
    QVERIFY2(!element.isNull(), qPrintable(key));
    QCOMPARE(Profile::key(element), key);
    QTEST(int(Profile::kind(element)), "kind");
    QTEST(Profile::defaultValue(element), "defaultValue");
    QCOMPARE(Profile::candidates(element), names(candidates));
    QTEST(isReadOnly(element), "readOnly");
}

void TestProfile::values_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("current"); // what a task holds
    QTest::addColumn<QString>("shown");
    QTest::newRow("open list takes typed text") << "s" << "720*480" << "720*480";
    QTest::newRow("closed list only its candidates") << "ac" << "5.1" << "1 (Mono)";
    QTest::newRow("a flag set") << "sameq" << "True" << "True";
    QTest::newRow("a flag at its default") << "sameq" << "" << "False";
    QTest::newRow("flag default True") << "bitexact" << "" << "True";
    QTest::newRow("empty means the default") << "b" << "" << "1200";
    QTest::newRow("list without value") << "genre" << "" << "";
    QTest::newRow("empty text") << "pix_fmt" << "" << "";
}

void TestProfile::values()
{
    QFETCH(QString, key);
    QFETCH(QString, current);
    const Profile profile(samplePath);
    const Values shown = profile.values({{key, current}, {QStringLiteral("other"), current}});
    QTEST(shown.value(key), "shown");
    QCOMPARE(shown.keys().size(), profile.keys().size());
    QVERIFY(!shown.contains(QStringLiteral("other")));
}

void TestProfile::saveAndLoadAgain()
{
    Profile profile(samplePath);
    Values values = profile.values();
    values[QStringLiteral("title")] = QStringLiteral("Ferien in Zürich & <Bern>");
    values[QStringLiteral("b")] = QStringLiteral("777");
    values[QStringLiteral("bitexact")] = QStringLiteral("False");
    values[QStringLiteral("genre")] = QStringLiteral("Classic Rock");
    values[QStringLiteral("map1")] = QStringLiteral("0:2");
    const QString target = userProfilesDir() + QStringLiteral("/My Profile ü.xml");
    QVERIFY(profile.saveValues(values, target));
    QCOMPARE(profile.fileName, samplePath);
    QFile written(target);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));

    // Read back through the user path: values, candidates and hints all there.
    const Profile again(QStringLiteral(":/profile/user/My Profile ü.xml"));
    QCOMPARE(again.values(), values);
    QCOMPARE(again.keys(), profile.keys());
    QCOMPARE(Profile::kind(again.parameter(QStringLiteral("sameq"))), Profile::Flag);
    QCOMPARE(Profile::simpleName(again.parameter(QStringLiteral("s"))),
             QStringLiteral("Video Size"));
    QVERIFY(isReadOnly(again.parameter(QStringLiteral("vcodec"))));
    QCOMPARE(attributeValue(again.parameter(QStringLiteral("futureoption")),
                            QStringLiteral("unknownHint")),
             QStringLiteral("1"));
    QCOMPARE(Profile::candidates(again.parameter(QStringLiteral("genre"))),
             names(QStringLiteral("|Blues|Classic Rock")));

    // Saved with no values, every parameter is emptied and the layout stays.
    QVERIFY(profile.saveValues(Values(), target));
    const Profile cleared(target);
    for (const QDomElement &element : cleared.parameters())
        QCOMPARE(element.attribute(QStringLiteral("value")), QString());
    QCOMPARE(cleared.keys(), profile.keys());
}

void TestProfile::saveFailsWithoutLosingAnything()
{
    Profile profile(samplePath);
    const QString missingFolder = userProfilesDir() + QStringLiteral("/missing/x.xml");
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Can't write .*x.xml")));
    QVERIFY(!profile.saveValues(profile.values(), missingFolder));
    QVERIFY(!QFile::exists(missingFolder));
    // A folder in the way is not replaced.
    const QString folder = userProfilesDir() + QStringLiteral("/taken.xml");
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/inside")));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Can't write .*taken")));
    QVERIFY(!profile.saveValues(profile.values(), folder));
    QVERIFY(QFileInfo(folder + QStringLiteral("/inside")).isDir());
}

void TestProfile::userPathsRedirect_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("file"); // in the user's folder; empty: the path as given
    QTest::newRow("built-in") << ":/profile/mp4.xml" << "";
    QTest::newRow("user profile") << ":/profile/user/a b.xml" << "a b.xml";
    QTest::newRow("user folder on the way") << "/data/user/x/p.xml" << "p.xml";
    QTest::newRow("users is no user/") << "/users/p.xml" << "";
    QTest::newRow("case counts") << "/User/p.xml" << "";
}

void TestProfile::userPathsRedirect()
{
    QFETCH(QString, path);
    QFETCH(QString, file);
    const QString expected = file.isEmpty() ? path : userProfilesDir() + QLatin1Char('/') + file;
    QCOMPARE(Profile::resolvedPath(path), expected);
    QCOMPARE(Profile(path).fileName, expected);
}

void TestProfile::unreadableDocumentIsEmpty_data()
{
    QTest::addColumn<QByteArray>("contents"); // null: no file
    QTest::addColumn<bool>("parses");
    QTest::newRow("malformed") << QByteArray("<Parameter><Section value=\"Video\"><s value=\"A\">")
                               << false;
    QTest::newRow("empty file") << QByteArray("") << false;
    QTest::newRow("not XML") << QByteArray("\x00\xff\x10garbage", 10) << false;
    QTest::newRow("other root")
        << QByteArray("<Group><Section value=\"Video\"><s value=\"Auto\"/></Section></Group>")
        << true;
    QTest::newRow("missing file") << QByteArray() << false;
}

void TestProfile::unreadableDocumentIsEmpty()
{
    QFETCH(QByteArray, contents);
    QFETCH(bool, parses);
    const QString path = userProfilesDir() + QStringLiteral("/bad.xml");
    if (!contents.isNull())
        QVERIFY(writeFile(path, contents));
    // A file that is there but doesn't parse is named in the log.
    for (int reads = 0; reads < 2 && !contents.isNull() && !parses; ++reads)
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Can't read .*bad.xml")));
    const Profile profile(path);
    QVERIFY(profile.sections().isEmpty());
    QVERIFY(profile.keys().isEmpty() && profile.values().isEmpty());
    QVERIFY(profile.simpleParameters().isEmpty());
    QCOMPARE(profile.fileName, path);
    QCOMPARE(XmlLoader().load(path), parses);
}

int main(int argc, char *argv[])
{
    TestHome home;
    QCoreApplication app(argc, argv);
    Q_INIT_RESOURCE(profile_samples);
    TestProfile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profile.moc"
