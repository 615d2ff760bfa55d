#include "qxlanguage.h"
#include "qxskin.h"
#include "settings.h"
#include "testhome.h"
#include "version.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QRegularExpression>
#include <QSplashScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

bool writeFile(const QString &path, const QByteArray &data)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

QByteArray styleWithBlock(const QByteArray &name, const QByteArray &extra = QByteArray())
{
    return "/* __CONFIG_BEBIN__\nSKIN_NAME=" + name + "\n" + extra
           + "__CONFIG_END__ */\nQWidget { image: url(:/skins/skin2/close.png); }\n";
}

// Skin N on disk: its style sheet, one picture, an ini file when one is given.
void makeSkin(const QString &root, int n, const QByteArray &styleSheet,
              const QByteArray &ini = QByteArray())
{
    const QString base = root + QStringLiteral("/skin") + QString::number(n);
    QVERIFY(writeFile(base + QStringLiteral(".qss"), styleSheet) && QDir().mkpath(base));
    QVERIFY(QFile::copy(QStringLiteral(":/skins/skin1/close.png"),
                        base + QStringLiteral("/close.png")));
    if (!ini.isNull())
        QVERIFY(writeFile(base + QStringLiteral(".ini"), ini));
}

// "Black*-|Paper": each entry, * when checked, - when it can't be chosen.
QString menuState(const QMenu *menu)
{
    QStringList entries;
    for (const QAction *action : menu->actions())
        entries << action->text() + QLatin1String(action->isChecked() ? "*" : "")
                       + QLatin1String(action->isEnabled() ? "" : "-");
    return entries.join(QLatin1Char('|'));
}

// What the windows and controls ask of a skin by name.
const char askedPictures[]
    = "mainwnd subdlg close min max restore toolbarMask toolbarMaskHover toolbarMaskPressed "
      "startMask startMaskHover stopMaskHover sliderbar groove handle handlehover handlepressed "
      "trimedtimebg begin end sliderbarTrim colorone about logo gettingstart gs_import gs_trim "
      "gs_crop gs_start dvd video audio playwnddefault playerbg menuIndicator menuIndicatorLeft "
      "recommend trimIcon cropIcon imageIcon watermarkIcon effectIcon audioIcon subtitleIcon "
      "item_up item_down";

const QString skinIndexKey = QStringLiteral("SkinIndex");

} // namespace

// The View menus: skins and languages, chosen and stored.
class TestQxSkin : public QObject
{
    Q_OBJECT

    QTemporaryDir scratch;
    QTranslator application, browser, toolkit;

private slots:
    // First, while the store is still empty.
    void firstStartWithBuiltInSkinWritesNothing()
    {
        QxSkin skin(QStringLiteral(":/skins"));
        QCOMPARE(skin.configValue(QStringLiteral("ABOUT_LINK_COLOR")), QStringLiteral("#8DC6F8"));
        QWidget parent;
        QMenu *menu = skin.createMenu(&parent);
        QVERIFY(qApp->styleSheet().contains(QStringLiteral("__CONFIG_BEBIN__")));
        QCOMPARE(settingInt(skinIndexKey, -1), -1);
        QCOMPARE(menuState(menu), QStringLiteral("Black*-"));
    }

    void builtInPicturesExist()
    {
        const QDir folder(QStringLiteral(":/skins/skin1"));
        for (const QString &name : QString::fromLatin1(askedPictures).split(QLatin1Char(' ')))
            QVERIFY2(folder.exists(name + QStringLiteral(".png")), qPrintable(name));
        // Every picture has a sharp twin of exactly twice the size for HiDPI screens.
        for (const QString &name : folder.entryList({QStringLiteral("*.png")})) {
            const QImage picture(folder.filePath(name));
            const QImage twin(folder.filePath(name.chopped(4) + QStringLiteral("@2x.png")));
            QVERIFY2(name.contains(QLatin1Char('@'))
                         || (!picture.isNull() && twin.size() == picture.size() * 2),
                     qPrintable(name));
        }
        // And every picture the style sheet names is there.
        QFile sheet(QStringLiteral(":/skins/skin1.qss"));
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        const QRegularExpression url(QStringLiteral("url\\(([^)]+)\\)"));
        int count = 0;
        for (auto it = url.globalMatch(QString::fromUtf8(sheet.readAll())); it.hasNext(); ++count) {
            const QString path = it.next().captured(1);
            QVERIFY2(path.startsWith(folder.path()) && !QImage(path).isNull(), qPrintable(path));
        }
        QVERIFY(count > 20);
    }

    void switchesBetweenSkins()
    {
        // The built-in skin copied to disk beside two more.
        const QString root = scratch.path() + QStringLiteral("/switch");
        QVERIFY(QDir().mkpath(root + QStringLiteral("/skin1")));
        QVERIFY(
            QFile::copy(QStringLiteral(":/skins/skin1.qss"), root + QStringLiteral("/skin1.qss")));
        makeSkin(root, 2, styleWithBlock("Paper", "ABOUT_LINK_COLOR=#123456\n"));
        makeSkin(root, 3, QByteArray("QWidget {}\n")); // no name at all

        setSettingInt(skinIndexKey, 0);
        QxSkin skin(root);
        QWidget parent;
        QMenu *first = skin.createMenu(&parent);
        // A second menu takes the first one's actions.
        QMenu *menu = skin.createMenu(&parent);
        QCOMPARE(menuState(first), QString());
        QCOMPARE(menuState(menu), QStringLiteral("Black*-|Paper|Skin3"));
        menu->actions().at(1)->trigger();
        QCOMPARE(skin.configValue(QStringLiteral("ABOUT_LINK_COLOR")), QStringLiteral("#123456"));
        // The style sheet now names its pictures on disk.
        QVERIFY(qApp->styleSheet().contains(root + QStringLiteral("/skin2/close.png")));
        QVERIFY(!qApp->styleSheet().contains(QStringLiteral(":/skins")));
        QCOMPARE(settingInt(skinIndexKey, -1), 1);
        QCOMPARE(menuState(menu), QStringLiteral("Black|Paper*-|Skin3"));

        menu->actions().at(0)->trigger();
        QCOMPARE(skin.configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Black"));
        QCOMPARE(settingInt(skinIndexKey, -1), 0);

        // A new start comes back to the stored choice.
        setSettingInt(skinIndexKey, 1);
        QCOMPARE(QxSkin(root).configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Paper"));
    }

    void configurationRules_data()
    {
        QTest::addColumn<QByteArray>("styleSheet");
        QTest::addColumn<QByteArray>("ini"); // null: no ini file
        QTest::addColumn<QString>("value");  // of the key "K"
        QTest::addColumn<int>("fade");
        const auto row = [](const char *tag, const QByteArray &sheet, const QByteArray &ini,
                            const char *value, int fade = 330) {
            QTest::newRow(tag) << sheet << ini << QString::fromLatin1(value) << fade;
        };
        const auto block = [](const char *extra) {
            return styleWithBlock("X", extra);
        };
        const QByteArray none;
        row("blanks trimmed", block("   K=v w  \r\n"), none, "v w");
        row("first equals splits", block("K=a=b\n"), none, "a=b");
        row("later line wins", block("K=1\nK=2\n"), none, "2");
        row("ini wins", block("K=block\n"), "K=ini\n", "ini");
        row("keys case-sensitive", block("k=v\n"), none, "<unset>");
        row("marker at first character", "__CONFIG_BEBIN__\nK=v\n__CONFIG_END__\n", none,
            "<unset>");
        row("no end marker", "/* __CONFIG_BEBIN__\nK=v\n*/", none, "<unset>");
        row("fade as number", block("START_BUTTON_FADE_DURATION=120\n"), none, "<unset>", 120);
        row("fade not a number", block("START_BUTTON_FADE_DURATION=abc\n"), none, "<unset>");
        row("binary junk", QByteArray("\xff\xfe\x00\x01__CONFIG_END__", 18), QByteArray("\0\0=", 3),
            "<unset>");
    }

    void configurationRules()
    {
        QFETCH(QByteArray, styleSheet);
        QFETCH(QByteArray, ini);
        const QString root = scratch.path() + QStringLiteral("/rules/")
                             + QString::fromLatin1(QTest::currentDataTag());
        makeSkin(root, 4, styleSheet, ini);
        setSettingInt(skinIndexKey, 0);
        QxSkin skin(root);
        QTEST(skin.configValue(QStringLiteral("K"), QStringLiteral("<unset>")), "value");
        QTEST(skin.configInt(QStringLiteral("START_BUTTON_FADE_DURATION"), 330), "fade");
        // Applying it never fails, whatever the text holds.
        QWidget parent;
        QVERIFY(skin.createMenu(&parent));
        QCOMPARE(skin.currentSkin(), 4);
    }

    void fallsBackOnBadStoreOrFolder()
    {
        const QString root = scratch.path() + QStringLiteral("/range");
        for (int n : {2, 5, 8, 10}) // skin10 is beyond the numbers looked for
            makeSkin(root, n, styleWithBlock("S" + QByteArray::number(n)));
        QCOMPARE(QxSkin(root).skinNumbers(), (QList<int>{2, 5, 8}));
        for (int position : {7, 3, -2}) {
            setSettingInt(skinIndexKey, position);
            QCOMPARE(QxSkin(root).currentSkin(), 2);
        }
        setSettingInt(skinIndexKey, 2);
        QCOMPARE(QxSkin(root).currentSkin(), 8);

        // A folder of pictures without a style sheet is no skin.
        const QString empty = scratch.path() + QStringLiteral("/empty");
        QVERIFY(writeFile(empty + QStringLiteral("/skin1/close.png"), QByteArray("not a picture")));
        setSettingInt(skinIndexKey, 0);
        QxSkin skin(empty);
        QCOMPARE(skin.rootFolder(), QStringLiteral(":/skins"));
        QCOMPARE(skin.configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Black"));
    }

    // Last: it leaves translators installed.
    void languageMenuSwitchesAtOnce()
    {
        for (QTranslator *t : {&application, &browser, &toolkit})
            QCoreApplication::installTranslator(t);
        QxLanguage::setTranslators(&application, &browser, &toolkit);
        QxLanguage *language = QxLanguage::instance();
        QWidget window;
        QMenu *menu = language->createMenu(&window);
        language->setLanguage(QStringLiteral("en"));

        // Chosen from the menu as a user does: the menu, its title and the splash speak German.
        auto pick = [&](const QString &name) {
            menu->popup(QPoint(0, 0));
            QVERIFY(QTest::qWaitForWindowExposed(menu));
            for (QAction *action : menu->actions()) {
                if (action->text() == name)
                    QTest::mouseClick(menu, Qt::LeftButton, {},
                                      menu->actionGeometry(action).center());
            }
        };
        pick(QStringLiteral("Deutsch"));
        QCOMPARE(language->currentLocale(), QStringLiteral("de"));
        QCOMPARE(menu->title(), QStringLiteral("&Sprache"));
        QCOMPARE(menuState(menu),
                 QStringLiteral("English|Français|Deutsch*-|Español|Italiano|"
                                "日本語|简体中文|繁體中文|العربية|Čeština|Português"));
        QCOMPARE(Setting::uiLanguage(), QStringLiteral("de"));
        QCOMPARE(showSplash()->message(),
                 QStringLiteral("© %1 Tessarine. Alle Rechte vorbehalten.\n"
                                "Version: %2\n\n")
                     .arg(QString::fromLatin1(__DATE__).right(4), productVersion()));

        // Arabic turns the layout round, by the toolkit's own translation.
        pick(QStringLiteral("العربية"));
        QTRY_COMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
        QCOMPARE(menu->title(), QStringLiteral("ال&لغة"));
        language->setLanguage(QStringLiteral("en"));
        QTRY_COMPARE(QApplication::layoutDirection(), Qt::LeftToRight);

        // A stored language that's no longer known keeps English texts.
        language->setLanguage(QStringLiteral("xx"));
        QCOMPARE(menu->title(), QStringLiteral("&Language"));
        QCOMPARE(Setting::uiLanguage(), QStringLiteral("xx"));
    }
};

// Made before the application, so the store and the user's folders are the test's own.
static TestHome home;
QTEST_MAIN(TestQxSkin)

#include "tst_qxskin.moc"
