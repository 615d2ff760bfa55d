#include "profile.h"
#include "profilegrouploader.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QSet>
#include <QTest>

#include "testhome.h"

using namespace Qt::StringLiterals;

// The documents and texts are held to their generator by check_generated.py;
// this checks what the program needs of them: every row reaches its document
// and icon through the resources, and every document can be shown as it is.
class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void rowsReachTheirDocumentsAndIcons()
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
    }

    void everyDocumentIsUsable()
    {
        QStringList files = QDir(u":/profile"_s).entryList({u"*.xml"_s});
        files.removeAll(u"Group.xml"_s);
        QVERIFY(files.size() > 100);
        for (const QString &file : files) {
            const Profile profile(u":/profile/"_s + file);
            const QStringList keys = profile.keys();
            QVERIFY2(!profile.sections().isEmpty(), qPrintable(file));
            QVERIFY2(QSet<QString>(keys.begin(), keys.end()).size() == keys.size(),
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
    TestCatalogue test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_catalogue.moc"
