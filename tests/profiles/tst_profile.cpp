#include "profile.h"
#include "settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using Values = QMap<QString, QString>;

namespace {

const QString samplePath = QStringLiteral(":/profile/sample.xml");

QStringList names(std::initializer_list<const char *> items)
{
    QStringList list;
    for (const char *item : items)
        list << QString::fromUtf8(item);
    return list;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

} // namespace

// The user profile folder lives below HOME, so each run gets a fresh one.
class TestProfile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sectionsAndKeysInDocumentOrder();
    void parameters_data();
    void parameters();
    void simpleParameters();
    void valuesOverCurrent();
    void saveAndLoadAgain();
    void saveEmptyMapClearsValues();
    void saveFailsWithoutLosingAnything();
    void userPathsRedirect_data();
    void userPathsRedirect();
    void userProfileIsRead();
    void unreadableDocumentIsEmpty_data();
    void unreadableDocumentIsEmpty();
    void fieldReaders();
};

void TestProfile::init()
{
    QDir(userProfilesDir()).removeRecursively();
    QVERIFY(QDir().mkpath(userProfilesDir()));
}

void TestProfile::sectionsAndKeysInDocumentOrder()
{
    const Profile profile(samplePath);
    QCOMPARE(profile.fileName, samplePath);
    QStringList sectionNames;
    for (const QDomElement &section : profile.sections())
        sectionNames << section.attribute(QStringLiteral("value"));
    QCOMPARE(sectionNames, names({"Summary", "Video", "Audio", "Expert", "Extra"}));
    QCOMPARE(profile.keys(), names({"title", "genre", "vcodec", "s", "b", "aspect", "sameq",
                                    "level", "acodec", "ab", "ac", "vol", "an", "pix_fmt",
                                    "deinterlace", "qscale", "bitexact", "futureoption", "map1"}));
    QCOMPARE(profile.parameter(QStringLiteral("map1")).tagName(), QStringLiteral("map_num_1"));
    QVERIFY(profile.parameter(QStringLiteral("map_num_1")).isNull());
    QVERIFY(profile.parameter(QStringLiteral("nosuchkey")).isNull());
}

void TestProfile::parameters_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QStringList>("candidates");
    QTest::addColumn<bool>("readOnly");

    QTest::newRow("free text, empty")
        << "title" << int(Profile::FreeText) << "" << QStringList() << false;
    QTest::newRow("list without value") << "genre" << int(Profile::ClosedList) << ""
                                        << names({"", "Blues", "Classic Rock"}) << false;
    QTest::newRow("fixed closed list")
        << "vcodec" << int(Profile::ClosedList) << "mpeg4" << names({"mpeg4"}) << true;
    QTest::newRow("open list, labels") << "s" << int(Profile::OpenList) << "Auto"
                                       << names({"Auto", "128*96 (sqcif)", "320*240"}) << false;
    QTest::newRow("candidates marked no") << "b" << int(Profile::OpenList) << "1200"
                                          << names({"2500", "1500", "1200", "800", "512"}) << false;
    QTest::newRow("aspect") << "aspect" << int(Profile::OpenList) << "Auto"
                            << names({"Auto", "4:3", "16:9"}) << false;
    QTest::newRow("empty flag") << "sameq" << int(Profile::Flag) << "False" << QStringList()
                                << false;
    QTest::newRow("readonly marked no")
        << "level" << int(Profile::ClosedList) << "31" << names({"22", "30", "31"}) << true;
    QTest::newRow("blanks and brackets") << "ac" << int(Profile::ClosedList) << "2 (Stereo)"
                                         << names({"1 (Mono)", "2 (Stereo)"}) << false;
    QTest::newRow("volume") << "vol" << int(Profile::OpenList) << "100%"
                            << names({"25%", "50%", "100%", "200%"}) << false;
    QTest::newRow("pix_fmt empty is text")
        << "pix_fmt" << int(Profile::FreeText) << "" << QStringList() << false;
    QTest::newRow("deinterlace is a flag")
        << "deinterlace" << int(Profile::Flag) << "False" << QStringList() << false;
    QTest::newRow("expert default")
        << "qscale" << int(Profile::FreeText) << "25" << QStringList() << false;
    QTest::newRow("flag standing at True")
        << "bitexact" << int(Profile::Flag) << "True" << QStringList() << false;
    QTest::newRow("unknown key") << "futureoption" << int(Profile::FreeText) << "x,y"
                                 << QStringList() << false;
    QTest::newRow("tag with _num_")
        << "map1" << int(Profile::FreeText) << "0:1" << QStringList() << false;
}

void TestProfile::parameters()
{
    QFETCH(QString, key);
    const Profile profile(samplePath);
    const QDomElement element = profile.parameter(key);
    QVERIFY2(!element.isNull(), qPrintable(key));
    QCOMPARE(Profile::key(element), key);
    QTEST(int(Profile::kind(element)), "kind");
    QTEST(Profile::defaultValue(element), "defaultValue");
    QTEST(Profile::candidates(element), "candidates");
    QTEST(isReadOnly(element), "readOnly");
}

void TestProfile::simpleParameters()
{
    const Profile profile(samplePath);
    QStringList simple;
    for (const QDomNode &node : profile.simpleParameters())
        simple << Profile::key(node) + QLatin1Char('=') + Profile::simpleName(node);
    QCOMPARE(simple, names({"s=Video Size", "b=Video Quality", "ab=Audio Quality", "ac=Channels"}));
    const QDomElement ab = profile.parameter(QStringLiteral("ab"));
    QCOMPARE(Profile::simpleLabels(ab), names({"Highest", "Higher", "Normal", "Lower", "Lowest"}));
    QCOMPARE(Profile::simpleValues(ab), names({"160", "128", "128", "96", "64"}));
    QCOMPARE(Profile::simpleLabels(profile.parameter(QStringLiteral("title"))), QStringList());
}

void TestProfile::valuesOverCurrent()
{
    const Profile profile(samplePath);
    const Values defaults = profile.values();
    QCOMPARE(defaults.keys().size(), profile.keys().size());
    QCOMPARE(defaults.value(QStringLiteral("genre")), QString());
    QCOMPARE(defaults.value(QStringLiteral("sameq")), QStringLiteral("False"));
    QCOMPARE(defaults.value(QStringLiteral("bitexact")), QStringLiteral("True"));
    QCOMPARE(defaults.value(QStringLiteral("ac")), QStringLiteral("2 (Stereo)"));
    QCOMPARE(defaults.value(QStringLiteral("pix_fmt")), QString());

    const Values current{{QStringLiteral("s"), QStringLiteral("720*480")},
                         {QStringLiteral("ac"), QStringLiteral("5.1")},
                         {QStringLiteral("sameq"), QStringLiteral("True")},
                         {QStringLiteral("b"), QString()},
                         {QStringLiteral("notinthedocument"), QStringLiteral("1")}};
    const Values shown = profile.values(current);
    // An open list takes typed text; a closed list only its candidates.
    QCOMPARE(shown.value(QStringLiteral("s")), QStringLiteral("720*480"));
    QCOMPARE(shown.value(QStringLiteral("ac")), QStringLiteral("1 (Mono)"));
    QCOMPARE(shown.value(QStringLiteral("sameq")), QStringLiteral("True"));
    // An empty entry means the default.
    QCOMPARE(shown.value(QStringLiteral("b")), QStringLiteral("1200"));
    QVERIFY(!shown.contains(QStringLiteral("notinthedocument")));
}

void TestProfile::saveAndLoadAgain()
{
    Profile profile(samplePath);
    Values values = profile.values();
    values[QStringLiteral("title")] = QStringLiteral("Ferien in Zürich & <Bern>");
    values[QStringLiteral("s")] = QStringLiteral("320*240");
    values[QStringLiteral("b")] = QStringLiteral("777");
    values[QStringLiteral("deinterlace")] = QStringLiteral("True");
    values[QStringLiteral("bitexact")] = QStringLiteral("False");
    values[QStringLiteral("genre")] = QStringLiteral("Classic Rock");

    const QString target = userProfilesDir() + QStringLiteral("/My Profile ü.xml");
    QVERIFY(profile.saveValues(values, target));
    QCOMPARE(profile.fileName, samplePath);

    const QByteArray written = readAll(target);
    QVERIFY2(written.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"), written.constData());
    QVERIFY2(written.contains("\n        <s "), written.constData());

    const Profile again(QStringLiteral(":/profile/user/My Profile ü.xml"));
    QCOMPARE(again.fileName, target);
    QCOMPARE(again.values(), values);
    QCOMPARE(again.keys(), profile.keys());
    // A flag left at its default now carries "False" and is still a flag.
    const QDomElement sameq = again.parameter(QStringLiteral("sameq"));
    QCOMPARE(sameq.attribute(QStringLiteral("value")), QStringLiteral("False"));
    QCOMPARE(Profile::kind(sameq), Profile::Flag);
    // Candidates and hints come along.
    const QDomElement s = again.parameter(QStringLiteral("s"));
    QCOMPARE(Profile::kind(s), Profile::OpenList);
    QCOMPARE(Profile::simpleName(s), QStringLiteral("Video Size"));
    QVERIFY(isReadOnly(again.parameter(QStringLiteral("vcodec"))));
    QCOMPARE(attributeValue(again.parameter(QStringLiteral("futureoption")),
                            QStringLiteral("unknownHint")),
             QStringLiteral("1"));
    QCOMPARE(Profile::candidates(again.parameter(QStringLiteral("genre"))),
             names({"", "Blues", "Classic Rock"}));
}

void TestProfile::saveEmptyMapClearsValues()
{
    Profile profile(samplePath);
    const QString target = userProfilesDir() + QStringLiteral("/cleared.xml");
    QVERIFY(profile.saveValues(Values(), target));
    const Profile again(target);
    for (const QDomElement &element : again.parameters())
        QCOMPARE(element.attribute(QStringLiteral("value")), QString());
    // Flags without a value stay flags; an emptied "True" turns into text.
    QCOMPARE(Profile::kind(again.parameter(QStringLiteral("sameq"))), Profile::Flag);
    QVERIFY(!again.parameter(QStringLiteral("sameq")).hasAttribute(QStringLiteral("value")));
    QCOMPARE(Profile::kind(again.parameter(QStringLiteral("bitexact"))), Profile::FreeText);
    QCOMPARE(again.sections().size(), 5);
}

void TestProfile::saveFailsWithoutLosingAnything()
{
    Profile profile(samplePath);
    const QString missingFolder = userProfilesDir() + QStringLiteral("/missing/x.xml");
    QVERIFY(!profile.saveValues(profile.values(), missingFolder));
    QVERIFY(!QFile::exists(missingFolder));

    // A folder in the way is not replaced.
    const QString folder = userProfilesDir() + QStringLiteral("/taken.xml");
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/inside")));
    QVERIFY(!profile.saveValues(profile.values(), folder));
    QVERIFY(QFileInfo(folder + QStringLiteral("/inside")).isDir());
}

void TestProfile::userPathsRedirect_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("redirected");
    QTest::addColumn<QString>("file");
    QTest::newRow("built-in") << ":/profile/mp4.xml" << false << "";
    QTest::newRow("user profile") << ":/profile/user/a b.xml" << true << "a b.xml";
    QTest::newRow("user folder on the way") << "/data/user/x/p.xml" << true << "p.xml";
    QTest::newRow("users is no user/") << "/users/p.xml" << false << "";
    QTest::newRow("case counts") << "/User/p.xml" << false << "";
}

void TestProfile::userPathsRedirect()
{
    QFETCH(QString, path);
    QFETCH(bool, redirected);
    QFETCH(QString, file);
    const QString expected = redirected ? userProfilesDir() + QLatin1Char('/') + file : path;
    QCOMPARE(Profile::resolvedPath(path), expected);
    QCOMPARE(Profile(path).fileName, expected);
}

void TestProfile::userProfileIsRead()
{
    QVERIFY(writeFile(userProfilesDir() + QStringLiteral("/mine.xml"),
                      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Parameter><Section "
                      "value=\"Audio\"><ab value=\"96\" advHasCandidates=\"yes\" "
                      "advCandidatesDisplay=\"128,96\"/></Section></Parameter>\n"));
    const Profile profile(QStringLiteral(":/profile/user/mine.xml"));
    QCOMPARE(profile.values(), (Values{{QStringLiteral("ab"), QStringLiteral("96")}}));
}

void TestProfile::unreadableDocumentIsEmpty_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("malformed") << QByteArray(
        "<Parameter><Section value=\"Video\"><s value=\"Auto\">");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("not XML") << QByteArray("\x00\xff\x10garbage", 10);
    QTest::newRow("other root") << QByteArray(
        "<Group><Section value=\"Video\"><s value=\"Auto\"/></Section></Group>");
    QTest::newRow("missing file") << QByteArray("-");
}

void TestProfile::unreadableDocumentIsEmpty()
{
    QFETCH(QByteArray, contents);
    const QString path = userProfilesDir() + QStringLiteral("/bad.xml");
    if (contents != "-")
        QVERIFY(writeFile(path, contents));
    Profile profile(path);
    QVERIFY(profile.sections().isEmpty());
    QVERIFY(profile.keys().isEmpty());
    QVERIFY(profile.simpleParameters().isEmpty());
    QVERIFY(profile.values().isEmpty());
    QVERIFY(profile.parameter(QStringLiteral("s")).isNull());
    QCOMPARE(profile.fileName, path);

    XmlLoader loader;
    const bool readable = QByteArray(contents).startsWith("<Group>");
    QCOMPARE(loader.load(path), readable);
}

void TestProfile::fieldReaders()
{
    // The catalogue keeps its fields as value attributes of nested elements.
    XmlLoader loader;
    const QString path = userProfilesDir() + QStringLiteral("/Group.xml");
    QVERIFY(writeFile(path, "<Groups default=\"1,68\"><Group><Id value=\"1\"/>"
                            "<Name value=\"General Video\"/><Profile><Id value=\"68\"/>"
                            "<Name value=\"MPEG4 Video\"/></Profile></Group></Groups>"));
    QVERIFY(loader.load(path));
    const QDomElement root = loader.doc.documentElement();
    QCOMPARE(attributeValue(root, QStringLiteral("default")), QStringLiteral("1,68"));
    QCOMPARE(attributeValue(root, QStringLiteral("absent")), QString());
    const QDomElement group = root.firstChildElement(QStringLiteral("Group"));
    QCOMPARE(childValue(group, QStringLiteral("Name")), QStringLiteral("General Video"));
    QCOMPARE(childValue(group.firstChildElement(QStringLiteral("Profile")), QStringLiteral("Id")),
             QStringLiteral("68"));
    QCOMPARE(childValue(loader.doc, QStringLiteral("Id")), QStringLiteral("1"));
    QCOMPARE(childValue(group, QStringLiteral("Missing")), QString());
    QCOMPARE(childValue(QDomNode(), QStringLiteral("Id")), QString());
    QVERIFY(!isReadOnly(group));
}

int main(int argc, char *argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_HOME");
    QCoreApplication app(argc, argv);
    Q_INIT_RESOURCE(profile_samples);
    TestProfile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profile.moc"
