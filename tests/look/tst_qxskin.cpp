#include "qxskin.h"
#include "settings.h"
#include "testhome.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

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
    QVERIFY(QFile::copy(QStringLiteral(":/skins/skin1/close.png"), base + QStringLiteral("/close.png")));
    if (!ini.isNull())
        QVERIFY(writeFile(base + QStringLiteral(".ini"), ini));
}

QAction *actionFor(QMenu *menu, int number)
{
    for (QAction *action : menu->actions()) {
        if (action->data().toInt() == number)
            return action;
    }
    return nullptr;
}

const QString skinIndexKey = QStringLiteral("SkinIndex");

} // namespace

class TestQxSkin : public QObject
{
    Q_OBJECT

private slots:
    // First, while the store is still empty.
    void firstStartWithBuiltInSkinWritesNothing();
    void builtInPicturesExist();
    void switchesBetweenSkins();
    void configurationRules_data();
    void configurationRules();
    void fallsBackOnBadStoreOrFolder();

private:
    QTemporaryDir scratch;
};

void TestQxSkin::firstStartWithBuiltInSkinWritesNothing()
{
    QxSkin skin(QStringLiteral(":/skins"));
    QCOMPARE(skin.configValue(QStringLiteral("ABOUT_LINK_COLOR")), QStringLiteral("#8DC6F8"));
    QWidget parent;
    QSignalSpy changed(&skin, &QxSkin::skinChanged);
    QMenu *menu = skin.createMenu(&parent);
    QCOMPARE(changed.count(), 1);
    QVERIFY(qApp->styleSheet().contains(QStringLiteral("__CONFIG_BEBIN__")));
    QCOMPARE(settingInt(skinIndexKey, -1), -1);
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Black"));
    QVERIFY(menu->actions().at(0)->isChecked() && !menu->actions().at(0)->isEnabled());
}

void TestQxSkin::builtInPicturesExist()
{
    // What the windows and controls ask of a skin by name.
    const QStringList asked = QStringLiteral(
        "mainwnd subdlg close min max restore toolbarMask toolbarMaskHover toolbarMaskPressed "
        "startMask startMaskHover stopMaskHover sliderbar groove handle handlehover handlepressed "
        "trimedtimebg begin end sliderbarTrim colorone about logo gettingstart gs_import gs_trim "
        "gs_crop gs_start dvd video audio playwnddefault playerbg menuIndicator menuIndicatorLeft "
        "recommend trimIcon cropIcon imageIcon watermarkIcon effectIcon audioIcon subtitleIcon "
        "item_up item_down").split(QLatin1Char(' '));
    const QDir folder(QStringLiteral(":/skins/skin1"));
    for (const QString &name : asked)
        QVERIFY2(folder.exists(name + QStringLiteral(".png")), qPrintable(name));
    // Every picture has a sharp twin of exactly twice the size for HiDPI screens.
    const QStringList pictures = folder.entryList({QStringLiteral("*.png")});
    for (const QString &name : pictures) {
        const QImage picture(folder.filePath(name));
        const QString twin = QString(name).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
        QVERIFY2(!picture.isNull()
                     && (name.contains(QLatin1Char('@'))
                         || QImage(folder.filePath(twin)).size() == picture.size() * 2),
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

void TestQxSkin::switchesBetweenSkins()
{
    // The built-in skin copied to disk beside two more.
    const QString root = scratch.path() + QStringLiteral("/switch");
    QVERIFY(QDir().mkpath(root + QStringLiteral("/skin1")));
    QVERIFY(QFile::copy(QStringLiteral(":/skins/skin1.qss"), root + QStringLiteral("/skin1.qss")));
    makeSkin(root, 2, styleWithBlock("Paper", "ABOUT_LINK_COLOR=#123456\n"));
    makeSkin(root, 3, QByteArray("QWidget {}\n")); // no name at all

    setSettingInt(skinIndexKey, 0);
    QxSkin skin(root);
    QWidget parent;
    QSignalSpy changed(&skin, &QxSkin::skinChanged);
    QMenu *first = skin.createMenu(&parent);
    // A second menu takes the first one's actions.
    QMenu *menu = skin.createMenu(&parent);
    QCOMPARE(first->actions().size(), 0);
    QCOMPARE(menu->actions().size(), 3);
    QCOMPARE(actionFor(menu, 3)->text(), QStringLiteral("Skin3"));
    QAction *second = actionFor(menu, 2);
    QCOMPARE(second->text(), QStringLiteral("Paper"));
    second->trigger();
    QCOMPARE(changed.last().at(0).toInt(), 2);
    QCOMPARE(skin.configValue(QStringLiteral("ABOUT_LINK_COLOR")), QStringLiteral("#123456"));
    QCOMPARE(skin.configValue(QStringLiteral("COLOR_BUTTON_IMAGE"), QStringLiteral("none")),
             QStringLiteral("none"));
    // The style sheet now names its pictures on disk.
    QVERIFY(qApp->styleSheet().contains(root + QStringLiteral("/skin2/close.png")));
    QVERIFY(!qApp->styleSheet().contains(QStringLiteral(":/skins")));
    QCOMPARE(settingInt(skinIndexKey, -1), 1);
    QVERIFY(second->isChecked() && !second->isEnabled());
    QVERIFY(!actionFor(menu, 1)->isChecked() && actionFor(menu, 1)->isEnabled());

    // Choosing the current skin again changes nothing.
    const int told = changed.count();
    QVERIFY(!skin.setSkin(2));
    actionFor(menu, 1)->trigger();
    QCOMPARE(changed.count(), told + 1);
    QCOMPARE(skin.configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Black"));
    QCOMPARE(settingInt(skinIndexKey, -1), 0);

    // A new start comes back to the stored choice.
    setSettingInt(skinIndexKey, 1);
    QCOMPARE(QxSkin(root).configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Paper"));
}

void TestQxSkin::configurationRules_data()
{
    QTest::addColumn<QByteArray>("styleSheet");
    QTest::addColumn<QByteArray>("ini"); // null: no ini file
    QTest::addColumn<QString>("value");  // of the key "K"
    QTest::addColumn<int>("fade");
    const auto row = [](const char *tag, const QByteArray &sheet, const QByteArray &ini,
                        const char *value, int fade = 330) {
        QTest::newRow(tag) << sheet << ini << QString::fromLatin1(value) << fade;
    };
    const auto block = [](const char *extra) { return styleWithBlock("X", extra); };
    const QByteArray none;
    row("blanks trimmed", block("   K=v w  \r\n"), none, "v w");
    row("first equals splits", block("K=a=b\n"), none, "a=b");
    row("later line wins", block("K=1\nK=2\n"), none, "2");
    row("ini wins", block("K=block\n"), "K=ini\n", "ini");
    row("keys case-sensitive", block("k=v\n"), none, "<unset>");
    row("marker at first character", "__CONFIG_BEBIN__\nK=v\n__CONFIG_END__\n", none, "<unset>");
    row("no end marker", "/* __CONFIG_BEBIN__\nK=v\n*/", none, "<unset>");
    row("fade as number", block("START_BUTTON_FADE_DURATION=120\n"), none, "<unset>", 120);
    row("fade not a number", block("START_BUTTON_FADE_DURATION=abc\n"), none, "<unset>");
    row("binary junk", QByteArray("\xff\xfe\x00\x01__CONFIG_END__", 18), QByteArray("\0\0=", 3),
        "<unset>");
}

void TestQxSkin::configurationRules()
{
    QFETCH(QByteArray, styleSheet);
    QFETCH(QByteArray, ini);
    const QString root
        = scratch.path() + QStringLiteral("/rules/") + QString::fromLatin1(QTest::currentDataTag());
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

void TestQxSkin::fallsBackOnBadStoreOrFolder()
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

int main(int argc, char *argv[])
{
    TestHome home;
    QApplication app(argc, argv);
    TestQxSkin test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_qxskin.moc"
