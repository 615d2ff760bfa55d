#include "qxskin.h"
#include "qxwidget.h"
#include "settings.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

bool writeFile(const QString &path, const QByteArray &data)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray styleWithBlock(const QByteArray &name, const QByteArray &extra = QByteArray())
{
    return "/* __CONFIG_BEBIN__\nSKIN_NAME=" + name + "\n" + extra
           + "__CONFIG_END__ */\nQWidget { image: url(:/skins/skin2/close.png); }\n";
}

// A skin on disk: style sheet, one picture, optional ini file.
void makeSkin(const QString &root, int n, const QByteArray &styleSheet,
              const QByteArray &ini = QByteArray())
{
    const QString base = root + QStringLiteral("/skin") + QString::number(n);
    QVERIFY(writeFile(base + QStringLiteral(".qss"), styleSheet));
    QVERIFY(writeFile(base + QStringLiteral("/close.png"),
                      readFile(QStringLiteral(":/skins/skin1/close.png"))));
    if (!ini.isNull())
        QVERIFY(writeFile(base + QStringLiteral(".ini"), ini));
}

QAction *actionFor(QMenu *menu, int number)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
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
    void builtInValues_data();
    void builtInValues();
    void builtInPicturesExist_data();
    void builtInPicturesExist();
    void styleSheetPicturesExist();
    void switchesBetweenSkins();
    void configurationRules_data();
    void configurationRules();
    void rootChoice_data();
    void rootChoice();
    void storedPositionOutOfRangeFallsBack();
    void diskFolderWithoutSkinFallsBackToResources();
    void menuNamesFollowTranslation();

private:
    QTemporaryDir scratch;
};

void TestQxSkin::firstStartWithBuiltInSkinWritesNothing()
{
    QxSkin skin(QStringLiteral(":/skins"));
    QCOMPARE(skin.skinNumbers(), QList<int>{1});
    QCOMPARE(skin.currentSkin(), 1);
    QWidget parent;
    QSignalSpy changed(&skin, &QxSkin::skinChanged);
    QMenu *menu = skin.createMenu(&parent);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 1);
    QVERIFY(qApp->styleSheet().contains(QStringLiteral("__CONFIG_BEBIN__")));
    QCOMPARE(settingInt(skinIndexKey, -1), -1);
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Black"));
    QVERIFY(menu->actions().at(0)->isChecked());
    QVERIFY(!menu->actions().at(0)->isEnabled());
}

void TestQxSkin::builtInValues_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const char *rows[][2] = {
        {"SKIN_NAME", "Black"},
        {"ABOUT_LINK_COLOR", "#8DC6F8"},
        {"FULL_SCREEN_PLAYER_BACKGROUND_COLOR", "#000000"},
        {"COLOR_BUTTON_IMAGE", "colorone.png"},
        {"GETTINGSTARTED_LINK_COLOR", "#00C6FF"},
        {"PROFILE_SUBMENU_FONT_COLOR", "#E1E1E1"},
        {"PLAYER_TRANSPARENT_FIRST_COLOR", "#292929"},
        {"PLAYER_TRANSPARENT_NEXT_COLOR", "#232323"},
        {"START_BUTTON_FADE_DURATION", "<unset>"},
        {"TOOLBAR_BUTTON_FADE_DURATION", "<unset>"},
    };
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void TestQxSkin::builtInValues()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QxSkin skin(QStringLiteral(":/skins"));
    QCOMPARE(skin.configValue(key, QStringLiteral("<unset>")), value);
}

void TestQxSkin::builtInPicturesExist_data()
{
    QTest::addColumn<QString>("name");
    // What the windows and controls ask of a skin by name.
    const char *names[] = {"mainwnd.png",
                           "subdlg.png",
                           "close.png",
                           "min.png",
                           "max.png",
                           "restore.png",
                           "toolbarMask.png",
                           "toolbarMaskHover.png",
                           "toolbarMaskPressed.png",
                           "startMask.png",
                           "startMaskHover.png",
                           "stopMaskHover.png",
                           "sliderbar.png",
                           "groove.png",
                           "handle.png",
                           "handlehover.png",
                           "handlepressed.png",
                           "trimedtimebg.png",
                           "begin.png",
                           "end.png",
                           "sliderbarTrim.png",
                           "colorone.png",
                           "about.png",
                           "logo.png",
                           "gettingstart.png",
                           "gs_import.png",
                           "gs_trim.png",
                           "gs_crop.png",
                           "gs_start.png",
                           "dvd.png",
                           "video.png",
                           "audio.png",
                           "playwnddefault.png",
                           "playerbg.png",
                           "menuIndicator.png",
                           "menuIndicatorLeft.png",
                           "recommend.png",
                           "trimIcon.png",
                           "cropIcon.png",
                           "imageIcon.png",
                           "watermarkIcon.png",
                           "effectIcon.png",
                           "audioIcon.png",
                           "subtitleIcon.png"};
    for (const char *name : names)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestQxSkin::builtInPicturesExist()
{
    QFETCH(QString, name);
    QxSkin skin(QStringLiteral(":/skins"));
    const QString path = skin.imagePath(name);
    QCOMPARE(path, QStringLiteral(":/skins/skin1/") + name);
    const QImage picture(path);
    QVERIFY2(!picture.isNull(), qPrintable(path));
    // Every picture has a sharp twin of exactly twice the size for HiDPI screens.
    const QImage twin(QString(path).replace(QStringLiteral(".png"), QStringLiteral("@2x.png")));
    QCOMPARE(twin.size(), picture.size() * 2);
}

void TestQxSkin::styleSheetPicturesExist()
{
    const QString text = QString::fromUtf8(readFile(QStringLiteral(":/skins/skin1.qss")));
    QVERIFY(!text.isEmpty());
    const QRegularExpression url(QStringLiteral("url\\(([^)]+)\\)"));
    int count = 0;
    for (auto it = url.globalMatch(text); it.hasNext(); ++count) {
        const QString path = it.next().captured(1);
        QVERIFY2(path.startsWith(QStringLiteral(":/skins/skin1/")), qPrintable(path));
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
    }
    QVERIFY(count > 20);
}

void TestQxSkin::switchesBetweenSkins()
{
    // The built-in skin copied to disk beside a second one.
    const QString root = scratch.path() + QStringLiteral("/switch");
    QVERIFY(writeFile(root + QStringLiteral("/skin1.qss"),
                      readFile(QStringLiteral(":/skins/skin1.qss"))));
    QVERIFY(writeFile(root + QStringLiteral("/skin1/mainwnd.png"),
                      readFile(QStringLiteral(":/skins/skin1/mainwnd.png"))));
    makeSkin(root, 2, styleWithBlock("Paper", "ABOUT_LINK_COLOR=#123456\n"));

    setSettingInt(skinIndexKey, 0);
    QxSkin skin(root);
    QCOMPARE(skin.skinNumbers(), (QList<int>{1, 2}));
    QWidget parent;
    QSignalSpy changed(&skin, &QxSkin::skinChanged);
    QMenu *menu = skin.createMenu(&parent);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(skin.imagePath(QStringLiteral("mainwnd.png")),
             root + QStringLiteral("/skin1/mainwnd.png"));
    QVERIFY(!QImage(skin.imagePath(QStringLiteral("mainwnd.png"))).isNull());
    QCOMPARE(skin.configValue(QStringLiteral("ABOUT_LINK_COLOR")), QStringLiteral("#8DC6F8"));

    QAction *second = actionFor(menu, 2);
    QVERIFY(second);
    QCOMPARE(second->text(), QStringLiteral("Paper"));
    second->trigger();
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).toInt(), 2);
    QCOMPARE(skin.currentSkin(), 2);
    QCOMPARE(skin.skinFolder(), root + QStringLiteral("/skin2/"));
    QCOMPARE(skin.configValue(QStringLiteral("ABOUT_LINK_COLOR")), QStringLiteral("#123456"));
    QCOMPARE(skin.configValue(QStringLiteral("COLOR_BUTTON_IMAGE"), QStringLiteral("none")),
             QStringLiteral("none"));
    // The style sheet now names its pictures on disk.
    QVERIFY(qApp->styleSheet().contains(root + QStringLiteral("/skin2/close.png")));
    QVERIFY(!qApp->styleSheet().contains(QStringLiteral(":/skins")));
    QCOMPARE(settingInt(skinIndexKey, -1), 1);
    // This skin lacks the frame picture: the window stays plain.
    QxWidget window;
    window.resize(200, 100);
    window.setFrame(skin.imagePath(QStringLiteral("mainwnd.png")), 132, 20, 20, 20);
    QVERIFY(window.frameState().isNull());
    QVERIFY(window.mask().isEmpty());
    QVERIFY(!window.grab().isNull());
    QVERIFY(second->isChecked() && !second->isEnabled());
    QVERIFY(!actionFor(menu, 1)->isChecked() && actionFor(menu, 1)->isEnabled());

    // Choosing the current skin again changes nothing.
    QVERIFY(!skin.setSkin(2));
    QCOMPARE(changed.count(), 2);

    actionFor(menu, 1)->trigger();
    QCOMPARE(changed.count(), 3);
    QCOMPARE(changed.at(2).at(0).toInt(), 1);
    QCOMPARE(skin.configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Black"));
    // Once stored, position 0 is stored as well.
    QCOMPARE(settingInt(skinIndexKey, -1), 0);

    // A new start comes back to the stored choice.
    setSettingInt(skinIndexKey, 1);
    QxSkin again(root);
    QCOMPARE(again.currentSkin(), 2);
    QCOMPARE(again.configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Paper"));
}

void TestQxSkin::configurationRules_data()
{
    QTest::addColumn<QByteArray>("styleSheet");
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("fade");

    const QByteArray none; // no ini file
    QTest::newRow("plain") << styleWithBlock("X", "K=v\n") << none << "K"
                           << "v" << 330;
    QTest::newRow("blanks trimmed") << styleWithBlock("X", "   K=v w  \r\n") << none << "K"
                                    << "v w" << 330;
    QTest::newRow("first equals splits") << styleWithBlock("X", "K=a=b\n") << none << "K"
                                         << "a=b" << 330;
    QTest::newRow("later line wins") << styleWithBlock("X", "K=1\nK=2\n") << none << "K"
                                     << "2" << 330;
    QTest::newRow("ini wins") << styleWithBlock("X", "K=block\n") << QByteArray("K=ini\n") << "K"
                              << "ini" << 330;
    QTest::newRow("ini alone") << QByteArray("QWidget {}\n") << QByteArray("K = spaced \n") << "K "
                               << " spaced" << 330;
    QTest::newRow("keys case-sensitive") << styleWithBlock("X", "k=v\n") << none << "K"
                                         << "<unset>" << 330;
    QTest::newRow("line without equals ignored")
        << styleWithBlock("X", "garbage\nK=v\n") << none << "garbage"
        << "<unset>" << 330;
    QTest::newRow("marker at first character")
        << QByteArray("__CONFIG_BEBIN__\nK=v\n__CONFIG_END__\n") << none << "K"
        << "<unset>" << 330;
    QTest::newRow("end before begin")
        << QByteArray("/* __CONFIG_END__ */ /* __CONFIG_BEBIN__\nK=v\n*/") << none << "K"
        << "<unset>" << 330;
    QTest::newRow("no end marker") << QByteArray("/* __CONFIG_BEBIN__\nK=v\n*/") << none << "K"
                                   << "<unset>" << 330;
    QTest::newRow("fade as number")
        << styleWithBlock("X", "START_BUTTON_FADE_DURATION=120\n") << none << "K"
        << "<unset>" << 120;
    QTest::newRow("fade not a number")
        << styleWithBlock("X", "START_BUTTON_FADE_DURATION=abc\n") << none << "K"
        << "<unset>" << 330;
    QTest::newRow("fade empty") << styleWithBlock("X", "START_BUTTON_FADE_DURATION=\n") << none
                                << "K"
                                << "<unset>" << 330;
    QTest::newRow("binary junk") << QByteArray("\xff\xfe\x00\x01__CONFIG_END__", 18)
                                 << QByteArray("\x00\x00=", 3) << "K"
                                 << "<unset>" << 330;
}

void TestQxSkin::configurationRules()
{
    QFETCH(QByteArray, styleSheet);
    QFETCH(QByteArray, ini);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(int, fade);

    const QString root
        = scratch.path() + QStringLiteral("/rules/") + QString::fromLatin1(QTest::currentDataTag());
    makeSkin(root, 4, styleSheet, ini);
    setSettingInt(skinIndexKey, 0);
    QxSkin skin(root);
    QCOMPARE(skin.skinNumbers(), QList<int>{4});
    QCOMPARE(skin.configValue(key, QStringLiteral("<unset>")), value);
    QCOMPARE(skin.configInt(QStringLiteral("START_BUTTON_FADE_DURATION"), 330), fade);
    // Applying it never fails, whatever the text holds.
    QWidget parent;
    QVERIFY(skin.createMenu(&parent));
    QCOMPARE(skin.currentSkin(), 4);
}

void TestQxSkin::rootChoice_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("expected");
    // "<root>" stands for the folder "skins" beside the executable.
    QTest::newRow("no folder") << QStringList() << QStringLiteral(":/skins|1|1|Black");
    QTest::newRow("only skin3") << QStringList{QStringLiteral("skin3.qss")}
                                << QStringLiteral("<root>|3|3|Three");
    QTest::newRow("two skins") << QStringList{QStringLiteral("skin0.qss"),
                                              QStringLiteral("skin7.qss")}
                               << QStringLiteral("<root>|0,7|0|Zero");
    QTest::newRow("beyond nine ignored")
        << QStringList{QStringLiteral("skin10.qss"), QStringLiteral("skin5.qss")}
        << QStringLiteral("<root>|5|5|Five");
    QTest::newRow("empty folder") << QStringList{QStringLiteral("readme.txt")}
                                  << QStringLiteral(":/skins|1|1|Black");
}

// The root is settled beside the executable, so a copy of this test runs
// from a scratch folder and reports what it found.
void TestQxSkin::rootChoice()
{
    QFETCH(QStringList, files);
    QFETCH(QString, expected);

    QTemporaryDir place;
    const QString bin = place.path() + QStringLiteral("/bin");
    QVERIFY(QDir().mkpath(bin));
    const QString copy = bin + QStringLiteral("/tst_qxskin");
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
    const QString root = bin + QStringLiteral("/skins");
    if (!files.isEmpty())
        QVERIFY(QDir().mkpath(root));
    const QMap<QString, QByteArray> names{{QStringLiteral("skin0.qss"), "Zero"},
                                          {QStringLiteral("skin3.qss"), "Three"},
                                          {QStringLiteral("skin5.qss"), "Five"},
                                          {QStringLiteral("skin7.qss"), "Seven"},
                                          {QStringLiteral("skin10.qss"), "Ten"}};
    for (const QString &file : files)
        QVERIFY(writeFile(root + QLatin1Char('/') + file, styleWithBlock(names.value(file))));

    QProcess helper;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HOME"), place.path()); // a store of its own
    helper.setProcessEnvironment(env);
    helper.start(copy, {QStringLiteral("--report-root")});
    QVERIFY(helper.waitForFinished(60000));
    QCOMPARE(helper.exitCode(), 0);
    QString report = QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
    report.replace(root, QStringLiteral("<root>"));
    QCOMPARE(report, expected);
}

void TestQxSkin::storedPositionOutOfRangeFallsBack()
{
    const QString root = scratch.path() + QStringLiteral("/range");
    for (int n : {2, 5, 8})
        makeSkin(root, n, styleWithBlock("S" + QByteArray::number(n)));
    for (int position : {7, 3, -2}) {
        setSettingInt(skinIndexKey, position);
        QxSkin skin(root);
        QCOMPARE(skin.currentSkin(), 2);
    }
    setSettingInt(skinIndexKey, 2);
    QCOMPARE(QxSkin(root).currentSkin(), 8);
}

void TestQxSkin::diskFolderWithoutSkinFallsBackToResources()
{
    const QString root = scratch.path() + QStringLiteral("/empty");
    QVERIFY(writeFile(root + QStringLiteral("/skin1/close.png"), QByteArray("not a picture")));
    setSettingInt(skinIndexKey, 0);
    QxSkin skin(root);
    QCOMPARE(skin.rootFolder(), QStringLiteral(":/skins"));
    QCOMPARE(skin.currentSkin(), 1);
    QCOMPARE(skin.configValue(QStringLiteral("SKIN_NAME")), QStringLiteral("Black"));
}

void TestQxSkin::menuNamesFollowTranslation()
{
    const QString root = scratch.path() + QStringLiteral("/names");
    makeSkin(root, 0, styleWithBlock("Named"));
    makeSkin(root, 1, QByteArray("QWidget {}\n")); // no name at all
    setSettingInt(skinIndexKey, 0);
    QxSkin skin(root);
    QWidget parent;
    QMenu *menu = skin.createMenu(&parent);
    QCOMPARE(menu->title(), QStringLiteral("&Skin"));
    QCOMPARE(actionFor(menu, 0)->text(), QStringLiteral("Named"));
    QCOMPARE(actionFor(menu, 1)->text(), QStringLiteral("Skin1"));

    // A second menu replaces the first one's actions in the group.
    QMenu *again = skin.createMenu(&parent);
    QCOMPARE(again->actions().size(), 2);
    QCOMPARE(menu->actions().size(), 0);
    QCOMPARE(skin.currentSkin(), 0);
}

static int reportRoot()
{
    QxSkin *skin = QxSkin::instance();
    QStringList numbers;
    const QList<int> found = skin->skinNumbers();
    for (int n : found)
        numbers.append(QString::number(n));
    const QString line = QStringList{skin->rootFolder(), numbers.join(QLatin1Char(',')),
                                     QString::number(skin->currentSkin()),
                                     skin->configValue(QStringLiteral("SKIN_NAME"))}
                             .join(QLatin1Char('|'));
    std::puts(line.toUtf8().constData());
    return 0;
}

int main(int argc, char *argv[])
{
    const bool helper = argc > 1 && qstrcmp(argv[1], "--report-root") == 0;
    QTemporaryDir home;
    if (!helper) {
        qputenv("HOME", home.path().toLocal8Bit());
        qunsetenv("XDG_CONFIG_HOME");
    }
    QApplication app(argc, argv);
    if (helper)
        return reportRoot();
    TestQxSkin test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_qxskin.moc"
