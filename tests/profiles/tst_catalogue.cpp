#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include "testhome.h"

// Walks the whole built-in catalogue and every document in the resources.
namespace {

QString field(const QDomNode &node, const char *tag)
{
    return childValue(node, QString::fromLatin1(tag));
}

struct Entry
{
    QString key;
    QDomNode node;
};

QList<Entry> allEntries(const ProfileGroupLoader &catalogue)
{
    QList<Entry> found;
    for (const QDomNode &group : catalogue.groups()) {
        const QDomNodeList entries = catalogue.profiles(group);
        for (int i = 0; i < entries.size(); ++i)
            found << Entry{
                ProfileGroupLoader::profileKey(group.firstChildElement(QStringLiteral("Id"))
                                                   .attribute(QStringLiteral("value")),
                                               field(entries.at(i), "Id")),
                entries.at(i)};
    }
    return found;
}

QStringList sectionNames(const Profile &profile)
{
    QStringList names;
    for (const QDomElement &section : profile.sections())
        names << section.attribute(QStringLiteral("value"));
    return names;
}

QStringList documentFiles()
{
    QStringList files = QDir(QStringLiteral(":/profile")).entryList({QStringLiteral("*.xml")});
    files.removeAll(QStringLiteral("Group.xml"));
    return files;
}

QStringList split(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void groups_data();
    void groups();
    void profileRows();
    void recommendedRows();
    void formatsThatDifferFromTheExtension();
    void namedDocumentsHaveTheirFamilyKeys();
    void families_data();
    void families();
    void everyDocumentLoads();
    void vocabulary_data();
    void vocabulary();
    void defaultsAcrossDocuments_data();
    void defaultsAcrossDocuments();
    void listsAcrossDocuments();
    void genreList();
    void icons();
};

void TestCatalogue::groups_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<int>("profiles");
    const struct
    {
        const char *id;
        const char *name;
        const char *icon;
        int profiles;
    } rows[] = {{"0", "User Defined", "group_user.png", 0},
                {"1", "General Video", "group_video.png", 16},
                {"2", "General Audio", "group_audio.png", 12},
                {"11", "Android", "group_android.png", 3},
                {"12", "Apple TV", "group_apple_tv.png", 4},
                {"13", "HD Video", "group_hd.png", 10},
                {"14", "iPad", "group_ipad.png", 8},
                {"15", "iPhone", "group_iphone.png", 5},
                {"16", "iPod", "group_ipod.png", 6},
                {"17", "Mobile Phone", "group_phone.png", 6},
                {"18", "Picture and Animation", "group_pic_anim.png", 6},
                {"19", "Portable Multimedia Device", "group_portable.png", 3},
                {"20", "PS3", "group_ps3.png", 1},
                {"21", "PSP", "group_psp.png", 1},
                {"23", "Xbox HD Video", "group_xbox.png", 3},
                {"24", "Zune", "group_zune.png", 1}};
    int position = 0;
    for (const auto &row : rows) {
        QTest::newRow(row.name) << position++ << QString::fromLatin1(row.id)
                                << QString::fromLatin1(row.name) << QString::fromLatin1(row.icon)
                                << row.profiles;
    }
}

void TestCatalogue::groups()
{
    QFETCH(int, position);
    QFETCH(QString, id);
    const ProfileGroupLoader catalogue;
    const QList<QDomNode> all = catalogue.groups();
    QCOMPARE(all.size(), 16);
    const QDomNode group = all.at(position);
    QCOMPARE(group.firstChildElement(QStringLiteral("Id")).attribute(QStringLiteral("value")), id);
    QVERIFY(catalogue.group(id) == group);
    QTEST(group.firstChildElement(QStringLiteral("Name")).attribute(QStringLiteral("value")),
          "name");
    QTEST(group.firstChildElement(QStringLiteral("IconName")).attribute(QStringLiteral("value")),
          "icon");
    QTEST(int(catalogue.profiles(group).size()), "profiles");
}

void TestCatalogue::profileRows()
{
    const ProfileGroupLoader catalogue;
    const QList<Entry> entries = allEntries(catalogue);
    QCOMPARE(entries.size(), 85);
    QCOMPARE(catalogue.defaultProfile(), QStringLiteral("1,68"));
    QVERIFY(catalogue.hasProfile(catalogue.defaultProfile()));
    QSet<QString> ids;
    QSet<QString> files;
    QStringList shortcuts;
    for (const Entry &entry : entries) {
        const QString id = field(entry.node, "Id");
        QVERIFY2(id.toInt() > 0 && id.toInt() < 1000, qPrintable(entry.key));
        ids.insert(id);
        files.insert(field(entry.node, "FileName"));
        QVERIFY2(catalogue.hasProfile(entry.key), qPrintable(entry.key));
        for (const char *tag :
             {"Name", "Desc", "SName", "ExtName", "Format", "FileName", "IconName"})
            QVERIFY2(!field(entry.node, tag).isEmpty(),
                     qPrintable(entry.key + QLatin1Char(' ') + QLatin1String(tag)));
        QVERIFY(!field(entry.node, "ExtName").startsWith(QLatin1Char('.')));
        if (!field(entry.node, "ShortCut").isEmpty())
            shortcuts << entry.key + QLatin1Char('=') + field(entry.node, "ShortCut");
    }
    // Ids happen to be unique over the whole file; each row has its document.
    QCOMPARE(ids.size(), 85);
    QCOMPARE(files.size(), 85);
    QCOMPARE(shortcuts, (QStringList{QStringLiteral("17,1=P"), QStringLiteral("17,2=H"),
                                     QStringLiteral("17,17=G"), QStringLiteral("24,121=M")}));
    QCOMPARE(field(catalogue.profile(QStringLiteral("14"), QStringLiteral("45")), "Desc"),
             QString());
    QCOMPARE(field(catalogue.profile(QStringLiteral("14"), QStringLiteral("42")), "Desc"),
             QStringLiteral("H.264/MPEG-4 AVC profile optimized for iPad"));
}

void TestCatalogue::recommendedRows()
{
    const ProfileGroupLoader catalogue;
    QStringList recommended;
    for (const Entry &entry : allEntries(catalogue)) {
        if (!field(entry.node, "Recommended").isEmpty())
            recommended << entry.key + QLatin1Char(' ') + field(entry.node, "FileName");
    }
    QCOMPARE(recommended,
             (QStringList{
                 QStringLiteral("11,5 Android_mp4.xml"), QStringLiteral("12,6 AppleTV_h264.xml"),
                 QStringLiteral("15,45 iPhone_h264.xml"), QStringLiteral("16,49 ipod_h264.xml"),
                 QStringLiteral("20,79 ps3h264.xml"), QStringLiteral("23,114 Xbox_wmv.xml")}));
}

void TestCatalogue::formatsThatDifferFromTheExtension()
{
    const ProfileGroupLoader catalogue;
    QStringList differing;
    for (const Entry &entry : allEntries(catalogue)) {
        const QString format = field(entry.node, "Format");
        if (format != field(entry.node, "ExtName"))
            differing << field(entry.node, "Id") + QLatin1Char(':') + format + QLatin1Char('/')
                             + field(entry.node, "ExtName");
    }
    differing.sort();
    QCOMPARE(differing, split("102:xwmv/wma 103:xwmv/wmv 104:xwmv/wmv 105:xwmv/wmv 114:xwmv/wmv "
                              "38:image/bmp 39:image/gif 40:image/jpg 41:image/png 69:mpeg/mpg "
                              "70:vob/mpg 71:vob/mpg 88:psp/mp4 92:rm/ra 98:vcd/mpg"));
}

void TestCatalogue::namedDocumentsHaveTheirFamilyKeys()
{
    const ProfileGroupLoader catalogue;
    for (const Entry &entry : allEntries(catalogue)) {
        const QString file = field(entry.node, "FileName");
        const Profile profile(QStringLiteral(":/profile/") + file);
        const QStringList keys = profile.keys();
        const QStringList sections = sectionNames(profile);
        const QByteArray what = file.toUtf8();
        QVERIFY2(!sections.isEmpty(), what.constData());
        if (entry.key.startsWith(QLatin1String("2,"))) {
            // Audio alone.
            QVERIFY2(!sections.contains(QStringLiteral("Video")), what.constData());
            QVERIFY2(!sections.contains(QStringLiteral("Expert")), what.constData());
            for (const QString &key : split("acodec ar ac vol"))
                QVERIFY2(keys.contains(key), qPrintable(file + QLatin1Char(' ') + key));
        } else if (file.startsWith(QLatin1String("image_"))) {
            QCOMPARE(keys, split("pcodec pi s"));
            QCOMPARE(sections, split("General Video"));
            QVERIFY(!Profile::defaultValue(profile.parameter(QStringLiteral("pcodec"))).isEmpty());
        } else {
            QStringList needed = split("s r acodec ab ar ac vol");
            if (file != QLatin1String("flv.xml") && file != QLatin1String("swf.xml"))
                needed << split("vcodec aspect sameq an b");
            // H.264 rows carry the level, apart from the general Matroska row.
            const QString codec
                = Profile::defaultValue(profile.parameter(QStringLiteral("vcodec")));
            if (codec == QLatin1String("h264") && file != QLatin1String("mkv.xml"))
                needed << QStringLiteral("level");
            // The camera row fixes its sound and quality, the disc row its quality.
            if (file == QLatin1String("dv.xml"))
                needed = split("vcodec s r aspect acodec ar ac vol");
            if (file == QLatin1String("vcd.xml"))
                needed.removeAll(QStringLiteral("sameq"));
            for (const QString &key : needed)
                QVERIFY2(keys.contains(key), qPrintable(file + QLatin1Char(' ') + key));
            QVERIFY2(sections.indexOf(QStringLiteral("Video"))
                         < sections.indexOf(QStringLiteral("Audio")),
                     what.constData());
        }
        // Every candidate parameter stands at one of its candidates, or may
        // take a typed value.
        for (const QDomElement &parameter : profile.parameters()) {
            if (Profile::kind(parameter) != Profile::ClosedList)
                continue;
            QVERIFY2(Profile::candidates(parameter).contains(Profile::defaultValue(parameter)),
                     qPrintable(file + QLatin1Char(' ') + Profile::key(parameter)));
        }
        // The simple labels and values go in pairs.
        for (const QDomNode &parameter : profile.simpleParameters())
            QCOMPARE(Profile::simpleLabels(parameter).size(),
                     Profile::simpleValues(parameter).size());
    }
}

void TestCatalogue::families_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("sections");
    // key=default, fixed keys marked with "!", "-key" for keys that must be absent
    QTest::addColumn<QStringList>("facts");
    const auto row = [](const char *file, const char *sections, const char *facts) {
        QTest::newRow(file) << QString::fromLatin1(file) << split(sections) << split(facts);
    };
    row("mp4.xml", "Video Audio Expert",
        "!vcodec=mpeg4 !acodec=mpeg4aac s=Auto b=1200 r=29.97 ab=192 ar=44100 -level");
    row("mpeg4h264.xml", "Video Audio Expert",
        "!vcodec=h264 b=768 ab=192 level=13 g=250 qscale=25 coder=1");
    row("dvd.xml", "Video Audio Expert",
        "!vcodec=mpeg2video acodec=ac3 s=720*480 b=5000 ar=48000 g=18");
    row("vcd.xml", "Video Audio Expert",
        "!vcodec=mpeg1video !acodec=mp2 s=352*240 !b=1150 ab=224 g=18");
    row("dv.xml", "Video Audio Expert",
        "!vcodec=dvvideo !acodec=pcm_s16le -b -ab !ar=48000 pix_fmt= g=18");
    row("rm.xml", "Video Audio Expert", "vcodec=rv10 !acodec=rmaudio b=384 r=Auto ab=64");
    row("wmv.xml", "Summary Video Audio Expert",
        "vcodec=wmv3x acodec=wma7x r=Auto ar=48000 vn=False genre=");
    row("mkv.xml", "Video Audio Expert", "vcodec=h264 !acodec=libmp3lame -level");
    row("webm.xml", "Video Audio Expert", "!vcodec=vp8 !acodec=vorbis r=Auto");
    row("mpeg4_hd.xml", "Video Audio Expert", "!vcodec=mpeg4 s=1920*1080 b=10000");
    row("mpeg2_ts.xml", "Video Audio Expert", "!vcodec=mpeg2video acodec=mp2 b=12000 ab=128");
    row("iPhone_h264.xml", "Video Audio Expert", "!vcodec=h264 !s=480*320 b=1000 ab=128 level=21");
    row("iPhone_mpeg4.xml", "Video Audio Expert", "!vcodec=mpeg4 !s=480*320 b=1000 -level");
    row("iPad_h264_hd.xml", "Video Audio Expert", "!s=1280*720 b=3500 ar=48000 level=31");
    row("AppleTV_h264.xml", "Summary Video Audio Expert",
        "title= -author acodec=mpeg4aac level=31 g=250 qscale=25 coder=1");
    row("ps3h264.xml", "Video Audio Expert", "!acodec=mpeg4aac level=31 g=250 qscale=25 coder=1");
    row("3gpp.xml", "Video Audio Expert", "vcodec=h263 !acodec=libamr_nb ab=6.7 r=15 ar=8000");
    row("3gpp2.xml", "Video Audio Expert", "vcodec=h263 !acodec=mpeg4aac ab=96 r=15");
    row("flv.xml", "Video Audio", "-vcodec -aspect -sameq !acodec=mp3 b=512 r=15 ab=64");
    row("image_jpeg.xml", "General Video", "!pcodec=JPG pi=2 s=Auto -b");
    row("mp3.xml", "Summary Audio", "!acodec=mp3 ab=128 ar=48000 year=");
    row("wav.xml", "Audio", "acodec=pcm_s16le -ab ar=44100");
    row("prores.xml", "Video Audio", "!vcodec=prores vprofile=Standard -b");
    row("dpg3_ogg.xml", "Video Audio Expert", "!vcodec=mpeg1video");
    row("BlackBerry_3gp.xml", "Video Audio Expert", "bt=60");
    row("Xbox_mpeg4.xml", "Video Audio Expert", "bitexact=False");
}

void TestCatalogue::families()
{
    QFETCH(QString, file);
    QFETCH(QStringList, facts);
    const Profile profile(QStringLiteral(":/profile/") + file);
    QTEST(sectionNames(profile), "sections");
    for (QString fact : facts) {
        if (fact.startsWith(QLatin1Char('-'))) {
            QVERIFY2(profile.parameter(fact.mid(1)).isNull(),
                     qPrintable(file + QLatin1Char(' ') + fact));
            continue;
        }
        const bool fixed = fact.startsWith(QLatin1Char('!'));
        if (fixed)
            fact.remove(0, 1);
        const QString key = fact.section(QLatin1Char('='), 0, 0);
        const QDomElement parameter = profile.parameter(key);
        QVERIFY2(!parameter.isNull(), qPrintable(file + QLatin1Char(' ') + key));
        QCOMPARE(Profile::defaultValue(parameter), fact.section(QLatin1Char('='), 1));
        QCOMPARE(isReadOnly(parameter), fixed);
    }
    // The console rows list the expert options with bitexact first.
    if (file == QLatin1String("Xbox_mpeg4.xml"))
        QCOMPARE(profile.sections().last().firstChildElement().tagName(),
                 QStringLiteral("bitexact"));
}

void TestCatalogue::everyDocumentLoads()
{
    const ProfileGroupLoader catalogue;
    const QStringList files = documentFiles();
    QCOMPARE(files.size(), 144);
    QSet<QString> named;
    for (const Entry &entry : allEntries(catalogue))
        named.insert(field(entry.node, "FileName"));
    int unnamed = 0;
    for (const QString &file : files) {
        XmlLoader loader;
        QVERIFY2(loader.load(QStringLiteral(":/profile/") + file), qPrintable(file));
        const Profile profile(QStringLiteral(":/profile/") + file);
        QVERIFY2(!profile.sections().isEmpty(), qPrintable(file));
        QVERIFY2(profile.keys().contains(QStringLiteral("acodec"))
                     || file.startsWith(QLatin1String("image_")),
                 qPrintable(file));
        // Keys are unique across sections.
        const QStringList keys = profile.keys();
        QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
        if (!named.contains(file))
            ++unnamed;
    }
    QCOMPARE(unnamed, 59);
    for (const QString &file : named)
        QVERIFY2(files.contains(file), qPrintable(file));
}

void TestCatalogue::vocabulary_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("documents");
    QTest::addColumn<int>("fixed");
    const struct
    {
        const char *key;
        int documents;
        int fixed;
    } rows[] = {{"pcodec", 4, 4},    {"pi", 4, 0},    {"title", 13, 0},     {"author", 8, 0},
                {"year", 8, 0},      {"genre", 8, 0}, {"vcodec", 125, 104}, {"s", 132, 37},
                {"b", 126, 1},       {"r", 128, 0},   {"aspect", 124, 0},   {"sameq", 122, 0},
                {"level", 32, 0},    {"vn", 4, 0},    {"bt", 1, 0},         {"vprofile", 7, 0},
                {"acodec", 140, 91}, {"ab", 132, 0},  {"ar", 140, 1},       {"ac", 140, 1},
                {"vol", 140, 0},     {"an", 123, 0},  {"pix_fmt", 124, 0},  {"cgop", 124, 0}};
    for (const auto &row : rows)
        QTest::newRow(row.key) << QString::fromLatin1(row.key) << row.documents << row.fixed;
}

void TestCatalogue::vocabulary()
{
    QFETCH(QString, key);
    int documents = 0;
    int fixed = 0;
    for (const QString &file : documentFiles()) {
        const QDomElement parameter = Profile(QStringLiteral(":/profile/") + file).parameter(key);
        if (parameter.isNull())
            continue;
        ++documents;
        if (isReadOnly(parameter))
            ++fixed;
    }
    QTEST(documents, "documents");
    QTEST(fixed, "fixed");
}

void TestCatalogue::defaultsAcrossDocuments_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("documents");
    const struct
    {
        const char *key;
        const char *value;
        int documents;
    } rows[] = {{"vcodec", "mpeg4", 34}, {"vcodec", "h264", 34},     {"vcodec", "mpeg2video", 11},
                {"vcodec", "wmv3x", 11}, {"vcodec", "libxvid", 8},   {"vcodec", "mpeg1video", 7},
                {"vcodec", "divx", 5},   {"vcodec", "h263", 4},      {"acodec", "mpeg4aac", 71},
                {"acodec", "mp3", 23},   {"acodec", "mp2", 13},      {"acodec", "wma7x", 12},
                {"acodec", "ac3", 5},    {"acodec", "pcm_s16le", 4}, {"r", "29.97", 91},
                {"ab", "128", 99},       {"ab", "192", 17},          {"ar", "44100", 128},
                {"aspect", "Auto", 124}, {"vol", "100%", 140}};
    for (const auto &row : rows)
        QTest::addRow("%s=%s", row.key, row.value)
            << QString::fromLatin1(row.key) << QString::fromLatin1(row.value) << row.documents;
}

void TestCatalogue::defaultsAcrossDocuments()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    int documents = 0;
    for (const QString &file : documentFiles()) {
        const Profile profile(QStringLiteral(":/profile/") + file);
        if (!profile.parameter(key).isNull() && profile.values().value(key) == value)
            ++documents;
    }
    QTEST(documents, "documents");
}

// The H.264 levels the documents start at, the full list of sampling rates,
// and the device documents whose audio steps repeat a number.
void TestCatalogue::listsAcrossDocuments()
{
    int fullRateList = 0;
    QStringList repeating;
    QSet<QString> levels;
    for (const QString &file : documentFiles()) {
        const Profile profile(QStringLiteral(":/profile/") + file);
        const QString level = profile.values().value(QStringLiteral("level"));
        if (!level.isEmpty())
            levels.insert(level);
        const QDomElement ar = profile.parameter(QStringLiteral("ar"));
        if (!ar.isNull()
            && Profile::candidates(ar).join(QLatin1Char(','))
                   == QLatin1String("48000,44100,32000,22050,16000,8000"))
            ++fullRateList;
        const QStringList steps = Profile::simpleValues(profile.parameter(QStringLiteral("ab")));
        if (QSet<QString>(steps.begin(), steps.end()).size() < steps.size())
            repeating << file;
    }
    QCOMPARE(levels,
             (QSet<QString>{QStringLiteral("13"), QStringLiteral("20"), QStringLiteral("21"),
                            QStringLiteral("30"), QStringLiteral("31"), QStringLiteral("40")}));
    QCOMPARE(fullRateList, 121);
    QCOMPARE(repeating.size(), 30);
    for (const char *device : {"iPhone_h264.xml", "iPad_h264_hd.xml", "AppleTV_h264.xml",
                               "ipod_h264.xml", "zune_mpeg4.xml", "Android_mp4.xml"})
        QVERIFY2(repeating.contains(QLatin1String(device)), device);
    QCOMPARE(
        Profile::simpleValues(
            Profile(QStringLiteral(":/profile/iPhone_h264.xml")).parameter(QStringLiteral("ab"))),
        QStringList({QStringLiteral("160"), QStringLiteral("128"), QStringLiteral("128"),
                     QStringLiteral("96"), QStringLiteral("64")}));
}

void TestCatalogue::genreList()
{
    const Profile profile(QStringLiteral(":/profile/mp3.xml"));
    const QDomElement genre = profile.parameter(QStringLiteral("genre"));
    QVERIFY(!genre.hasAttribute(QStringLiteral("value")));
    QCOMPARE(Profile::kind(genre), Profile::ClosedList);
    const QStringList genres = Profile::candidates(genre);
    QCOMPARE(genres.size(), 127);
    QCOMPARE(genres.at(0), QString());
    QCOMPARE(genres.at(1), QStringLiteral("Blues"));
    QCOMPARE(genres.at(19), QStringLiteral("Techno"));
    QCOMPARE(genres.last(), QStringLiteral("Dance Hall"));
    QCOMPARE(profile.values().value(QStringLiteral("genre")), QString());
}

void TestCatalogue::icons()
{
    const ProfileGroupLoader catalogue;
    QStringList paths{QStringLiteral(":/profile/recommend.png")};
    for (const QDomNode &group : catalogue.groups())
        paths << QStringLiteral(":/profile/")
                     + group.firstChildElement(QStringLiteral("IconName"))
                           .attribute(QStringLiteral("value"));
    for (const Entry &entry : allEntries(catalogue)) {
        const QString icon = field(entry.node, "IconName");
        QVERIFY2(icon.startsWith(QLatin1String("big/")) || entry.key == QLatin1String("14,143"),
                 qPrintable(entry.key));
        paths << ProfileGroupLoader::iconPath(icon);
    }
    QCOMPARE(ProfileGroupLoader::iconPath(QStringLiteral("big/mpeg-4.png")),
             QStringLiteral(":/profile/small/mpeg-4.png"));
    for (const QString &path : paths) {
        const QImage image(path);
        QVERIFY2(!image.isNull(), qPrintable(path));
        QVERIFY2(image.width() >= 16 && image.width() == image.height(), qPrintable(path));
        QVERIFY2(image.hasAlphaChannel(), qPrintable(path));
    }
}

int main(int argc, char *argv[])
{
    TestHome home;
    QGuiApplication app(argc, argv);
    TestCatalogue test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_catalogue.moc"
