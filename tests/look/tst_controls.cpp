#include "controls.h"
#include "qxdialog.h"
#include "qxlanguage.h"
#include "qxmainwidget.h"
#include "qxskin.h"
#include "qxwidget.h"
#include "settings.h"
#include "testhome.h"
#include "version.h"
#include "widgettools.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSplashScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 10;
const QColor tiled(10, 20, 30);

QColor piece(int row, int col)
{
    return QColor(50 + 70 * col, 50 + 70 * row, 128);
}

// Nine pieces of distinct colours, the corners with a transparent tip.
QImage ninePatch(int scale = 1)
{
    const int m = margin * scale, s = 3 * m - 1;
    QImage picture(3 * m, 3 * m, QImage::Format_ARGB32);
    QPainter painter(&picture);
    for (int i = 0; i < 9; ++i)
        painter.fillRect(i % 3 * m, i / 3 * m, m, m, piece(i / 3, i % 3));
    painter.end();
    for (const QPoint &p : {QPoint(0, 0), QPoint(s, 0), QPoint(0, s), QPoint(s, s)})
        picture.setPixel(p, qRgba(0, 0, 0, 0));
    picture.setPixel(1, 0, qRgba(255, 255, 255, 128)); // half transparent: still inside
    return picture;
}

// A window of that kind, framed by the picture at `path` when one is given.
std::unique_ptr<QWidget> framedWindow(const QString &kind, const QString &path = QString())
{
    const auto framed = [&](auto *window) {
        if (!path.isEmpty())
            window->setFrame(path, margin, margin, margin, margin);
        return std::unique_ptr<QWidget>(window);
    };
    if (kind == "main"_L1)
        return framed(new QxMainWidget);
    return kind == "dialog"_L1 ? framed(new QxDialog) : framed(new QxWidget);
}

// The corners cut off, the middle of the top and left borders kept.
bool roundShape(const QWidget &window)
{
    const QRegion shape = window.mask();
    const int r = window.width() - 1, b = window.height() - 1;
    return !shape.contains(QPoint(0, 0)) && !shape.contains(QPoint(r, 0))
           && !shape.contains(QPoint(0, b)) && !shape.contains(QPoint(r, b))
           && shape.contains(QPoint(r / 2, 0)) && shape.contains(QPoint(0, b / 2));
}

bool writeFile(const QString &path, const QByteArray &data)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

// A skin's style sheet, its settings in the block the program reads.
QByteArray block(const QByteArray &settings)
{
    return "/* __CONFIG_BEBIN__\n" + settings
           + "__CONFIG_END__ */\nQWidget { image: url(:/skins/skin2/close.png); }\n";
}

// Skin N on disk: its style sheet, one picture, an ini file when one is given.
void makeSkin(const QString &root, int n, const QByteArray &styleSheet,
              const QByteArray &ini = QByteArray())
{
    const QString base = root + u"/skin"_s + QString::number(n);
    QVERIFY(writeFile(base + u".qss"_s, styleSheet) && QDir().mkpath(base));
    QVERIFY(QFile::copy(u":/skins/skin1/close.png"_s, base + u"/close.png"_s));
    if (!ini.isNull())
        QVERIFY(writeFile(base + u".ini"_s, ini));
}

// "Black*-|Paper": each entry, * when checked, - when it can't be chosen.
QString menuState(const QMenu *menu)
{
    QStringList entries;
    for (const QAction *action : menu->actions())
        entries << action->text() + QLatin1String(action->isChecked() ? "*" : "")
                       + QLatin1String(action->isEnabled() ? "" : "-");
    return entries.join(u'|');
}

const QString skinIndexKey = u"SkinIndex"_s;

} // namespace

// The look: skins and their menu, framed windows and the custom controls, driven by mouse and keys.
class TestControls : public QObject
{
    Q_OBJECT

    QTemporaryDir dir, scratch;
    QString framePath;
    QTranslator application, browser, toolkit;

private slots:
    void initTestCase()
    {
        // Dialogs cover all but the top border with a "_tiled" pattern beside the frame.
        framePath = dir.filePath(u"frame.png"_s);
        QImage pattern(4, 4, QImage::Format_RGB32);
        pattern.fill(tiled);
        QVERIFY(ninePatch().save(framePath) && pattern.save(dir.filePath(u"frame_tiled.png"_s)));
    }

    void sliderClicks_data()
    {
        QTest::addColumn<QString>("slider");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("expected"); // -1: the value of the pixel clicked
        // Trim marks at 20 and 80: outside, the handle takes the nearer mark.
        QTest::newRow("left of the marks") << "trimmed" << 5 << 20;
        QTest::newRow("right of the marks") << "trimmed" << 205 << 80;
        QTest::newRow("between the marks") << "trimmed" << 105 << -1;
        QTest::newRow("volume, far left") << "volume" << 0 << 0;
        QTest::newRow("volume, last pixel") << "volume" << 199 << 100;
        QTest::newRow("volume right to left, far left") << "mirrored" << 0 << 100;
        QTest::newRow("volume right to left, last pixel") << "mirrored" << 199 << 0;
    }

    void sliderClicks()
    {
        QFETCH(QString, slider);
        QFETCH(int, x);
        QFETCH(int, expected);
        QWidget window;
        const bool mirrored = slider == "mirrored"_L1;
        window.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        CSlider *trimmed = slider == "trimmed"_L1 ? new CSlider(&window) : nullptr;
        QSlider *s = trimmed ? static_cast<QSlider *>(trimmed) : new VolumSlider(&window);
        s->setRange(0, 100);
        s->setValue(mirrored ? 5 : 95); // the handle away from the click
        s->setGeometry(0, 0, trimmed ? 210 : 200, 24);
        QVERIFY(showExposed(&window));
        int H = 0;
        if (trimmed) {
            trimmed->setTrimStart(20);
            trimmed->setTrimEnd(80);
            trimmed->setHandleValue(50);
            H = trimmed->handleRectangle().width();
            if (expected < 0)
                expected = int(100 * double(x - H / 2) / (210 - H));
        }
        QTest::mouseClick(s, Qt::LeftButton, {}, QPoint(x, trimmed ? 2 : 12));
        QCOMPARE(s->value(), expected);
        // The handle stands where the value is.
        if (trimmed)
            QCOMPARE(trimmed->handleRectangle().left(), trimmed->valueToPixel(expected) - H / 2);
    }

    void sliderDragAndKeys()
    {
        QWidget window;
        auto *s = new CSlider(&window);
        s->setGeometry(0, 0, 210, 30);
        s->setRange(0, 100);
        QVERIFY(showExposed(&window));
        s->setTrimStart(10);
        s->setTrimEnd(90);
        s->setHandleValue(40);
        QSignalSpy changed(s, &QSlider::valueChanged);
        // Dragged far past the end mark: it stops there, and on letting go the
        // player hears the value once more, though it didn't change.
        const QPoint grip = s->handleRectangle().center();
        QTest::mousePress(s, Qt::LeftButton, {}, grip);
        QTest::mouseMove(s, QPoint(209, grip.y()));
        QCOMPARE(s->value(), 90);
        const int before = changed.count();
        QTest::mouseRelease(s, Qt::LeftButton, {}, QPoint(209, grip.y()));
        QCOMPARE(changed.count(), before + 1);
        // Keys keep to the marks too.
        s->setFocus();
        QTest::keyClick(s, Qt::Key_Home);
        QTest::keyClick(s, Qt::Key_Left);
        QCOMPARE(s->value(), 10);
        QTest::keyClick(s, Qt::Key_PageUp);
        QCOMPARE(s->value(), 10 + s->pageStep());
    }

    void degenerateSlidersStayQuiet()
    {
        // No range, no room: nothing divides by zero (the sanitizer build watches).
        QWidget window;
        const QList<QSlider *> sliders{new CSlider(&window), new VolumSlider(&window)};
        QVERIFY(showExposed(&window));
        for (QSlider *s : sliders) {
            s->setRange(0, 0);
            s->setGeometry(0, 0, 1, 10);
            QTest::mouseClick(s, Qt::LeftButton, {}, QPoint(0, 1));
            s->repaint();
            QCOMPARE(s->value(), 0);
        }
    }

    // Before any skin is made, while the store is still empty.
    void firstStartWithBuiltInSkinWritesNothing()
    {
        QxSkin skin(u":/skins"_s);
        QCOMPARE(skin.configValue(u"ABOUT_LINK_COLOR"_s), u"#8DC6F8"_s);
        QWidget parent;
        QMenu *menu = skin.createMenu(&parent);
        QVERIFY(qApp->styleSheet().contains(u"__CONFIG_BEBIN__"_s));
        QCOMPARE(settingInt(skinIndexKey, -1), -1);
        QCOMPARE(menuState(menu), u"Black*-"_s);
    }

    void builtInPicturesExist()
    {
        const QDir folder(u":/skins/skin1"_s);
        // Every picture has a sharp twin of exactly twice the size for HiDPI screens.
        for (const QString &name : folder.entryList({u"*.png"_s})) {
            const QImage picture(folder.filePath(name));
            const QImage twin(folder.filePath(name.chopped(4) + u"@2x.png"_s));
            QVERIFY2(name.contains(u'@')
                         || (!picture.isNull() && twin.size() == picture.size() * 2),
                     qPrintable(name));
        }
        // And every picture the style sheet names is there.
        QFile sheet(u":/skins/skin1.qss"_s);
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        const QRegularExpression url(u"url\\(([^)]+)\\)"_s);
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
        const QString root = scratch.path() + u"/switch"_s;
        QVERIFY(QDir().mkpath(root + u"/skin1"_s));
        QVERIFY(QFile::copy(u":/skins/skin1.qss"_s, root + u"/skin1.qss"_s));
        makeSkin(root, 2, block("SKIN_NAME=Paper\nABOUT_LINK_COLOR=#123456\n"));
        makeSkin(root, 3, QByteArray("QWidget {}\n")); // no name at all

        setSettingInt(skinIndexKey, 0);
        QxSkin skin(root);
        QWidget parent;
        QMenu *menu = skin.createMenu(&parent);
        QCOMPARE(menuState(menu), u"Black*-|Paper|Skin3"_s);
        menu->actions().at(1)->trigger();
        QCOMPARE(skin.configValue(u"ABOUT_LINK_COLOR"_s), u"#123456"_s);
        // The style sheet now names its pictures on disk.
        QVERIFY(qApp->styleSheet().contains(root + u"/skin2/close.png"_s));
        QVERIFY(!qApp->styleSheet().contains(u":/skins"_s));
        QCOMPARE(settingInt(skinIndexKey, -1), 1);
        QCOMPARE(menuState(menu), u"Black|Paper*-|Skin3"_s);

        menu->actions().at(0)->trigger();
        QCOMPARE(skin.configValue(u"SKIN_NAME"_s), u"Black"_s);
        QCOMPARE(settingInt(skinIndexKey, -1), 0);

        // A new start comes back to the stored choice.
        setSettingInt(skinIndexKey, 1);
        QCOMPARE(QxSkin(root).configValue(u"SKIN_NAME"_s), u"Paper"_s);
    }

    void configurationRules_data()
    {
        QTest::addColumn<QByteArray>("styleSheet");
        QTest::addColumn<QByteArray>("ini"); // null: no ini file
        QTest::addColumn<QString>("value");  // of the key "K"
        QTest::addColumn<int>("fade");
        const auto row = [](const char *tag, const QByteArray &sheet, const QByteArray &ini,
                            const char *value, int fade = 330) {
            QTest::newRow(tag) << sheet << ini << value << fade;
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
        const QString root
            = scratch.path() + u"/rules/"_s + QString::fromLatin1(QTest::currentDataTag());
        makeSkin(root, 4, styleSheet, ini);
        setSettingInt(skinIndexKey, 0);
        QxSkin skin(root);
        QTEST(skin.configValue(u"K"_s, u"<unset>"_s), "value");
        QTEST(skin.configInt(u"START_BUTTON_FADE_DURATION"_s, 330), "fade");
        // Applying it never fails, whatever the text holds.
        QWidget parent;
        QVERIFY(skin.createMenu(&parent));
        QCOMPARE(skin.currentSkin(), 4);
    }

    void fallsBackOnBadStoreOrFolder()
    {
        const QString root = scratch.path() + u"/range"_s;
        for (int n : {2, 5, 8, 10}) // skin10 is beyond the numbers looked for
            makeSkin(root, n, block("SKIN_NAME=S" + QByteArray::number(n) + "\n"));
        QCOMPARE(QxSkin(root).skinNumbers(), (QList<int>{2, 5, 8}));
        for (int position : {7, 3, -2}) {
            setSettingInt(skinIndexKey, position);
            QCOMPARE(QxSkin(root).currentSkin(), 2);
        }
        setSettingInt(skinIndexKey, 2);
        QCOMPARE(QxSkin(root).currentSkin(), 8);

        // A folder of pictures without a style sheet is no skin.
        const QString empty = scratch.path() + u"/empty"_s;
        QVERIFY(writeFile(empty + u"/skin1/close.png"_s, QByteArray("not a picture")));
        setSettingInt(skinIndexKey, 0);
        QxSkin skin(empty);
        QCOMPARE(skin.rootFolder(), u":/skins"_s);
        QCOMPARE(skin.configValue(u"SKIN_NAME"_s), u"Black"_s);
    }

    void colourComboMore()
    {
        QWidget window;
        auto *combo = new QtColorComboBox(&window);
        combo->addStandardColors();
        combo->setColorDialogEnabled();
        QVERIFY(showExposed(&window));
        combo->setFocus();
        combo->setCurrentIndex(1);
        QTest::keyClick(combo, Qt::Key_Down); // red, chosen by keys
        // "More...": cancelled, the colour before stays; chosen, a new one joins the list.
        int users = 0;
        for (bool accept : {false, true, true}) {
            QTimer::singleShot(0, this, [accept] {
                auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
                QVERIFY(dialog);
                dialog->setCurrentColor(QColor(200, 100, 50));
                accept ? dialog->accept() : QTest::keyClick(dialog, Qt::Key_Escape);
            });
            QTest::keyClick(combo, Qt::Key_End);
            QCOMPARE(combo->currentColor(), accept ? QColor(200, 100, 50) : QColor(Qt::red));
            QCOMPARE(combo->currentText(), accept ? u"User color %1"_s.arg(++users) : u"Red"_s);
        }
        QCOMPARE(combo->itemText(combo->count() - 1), u"More..."_s);
    }

    void colourButtonTintsOnlyBlack()
    {
        ColorPushButton button;
        button.setColor(QColor(255, 0, 0));
        QxSkin *skin = QxSkin::instance();
        QImage expected = QImage(skin->imagePath(skin->configValue(u"COLOR_BUTTON_IMAGE"_s)))
                              .convertToFormat(QImage::Format_ARGB32);
        auto *pixels = reinterpret_cast<QRgb *>(expected.bits());
        int black = 0;
        // Black takes the colour and keeps its transparency; the rest stays.
        for (int i = 0; i < expected.width() * expected.height(); ++i) {
            if ((pixels[i] & 0xffffff) == 0) {
                pixels[i] |= 0xff0000u;
                ++black;
            }
        }
        QVERIFY(black > 0);
        QCOMPARE(button.colouredImage().convertToFormat(QImage::Format_ARGB32), expected);
    }

    void elidingLabel()
    {
        // A long name never widens the window; without eliding it does.
        QxtLabel label;
        label.setText(u"A very long file name that will not fit.mkv"_s);
        QVERIFY(label.minimumSizeHint().width() < label.sizeHint().width());
        label.setElideMode(Qt::ElideNone);
        QCOMPARE(label.minimumSizeHint(), label.sizeHint());
    }

    void paintsNinePiecesAndTakesTheirShape_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"widget", "main", "dialog"})
            QTest::newRow(kind) << kind;
    }

    void paintsNinePiecesAndTakesTheirShape()
    {
        QFETCH(QString, kind);
        const std::unique_ptr<QWidget> window = framedWindow(kind, framePath);
        window->resize(100, 80);
        QVERIFY(showExposed(window.get()));
        const QImage shot = window->grab().toImage();
        // Corners 1:1, edges and centre stretched: x, y, row and column of the piece.
        const int points[][4]
            = {{9, 9, 0, 0},   {10, 5, 0, 1},  {89, 5, 0, 1}, {90, 5, 0, 2},  {5, 40, 1, 0},
               {50, 40, 1, 1}, {95, 40, 1, 2}, {5, 75, 2, 0}, {50, 75, 2, 1}, {95, 75, 2, 2}};
        const bool dialog = kind == "dialog"_L1;
        for (const auto &p : points)
            QCOMPARE(QColor(shot.pixel(p[0], p[1])),
                     dialog && p[2] > 0 ? tiled : piece(p[2], p[3]));
        QVERIFY(roundShape(*window) && window->mask().contains(QPoint(1, 0)));
        // A larger window gets a new shape at once.
        window->resize(140, 110);
        QVERIFY(roundShape(*window));
    }

    void sharpTwinOnHiDpi()
    {
        const QString path = dir.filePath(u"sharp.png"_s);
        QImage twin = ninePatch(2);
        twin.setPixel(30, 30, qRgb(1, 2, 3)); // a mark only the twin has, in the centre
        QVERIFY(ninePatch().save(path) && twin.save(dir.filePath(u"sharp@2x.png"_s)));
        QxFrame frame;
        QVERIFY(frame.setFrame(path, margin, margin, margin, margin));
        QImage hiDpi(60, 60, QImage::Format_ARGB32);
        hiDpi.setDevicePixelRatio(2);
        QPainter painter(&hiDpi);
        frame.paint(painter, QSize(30, 30));
        QCOMPARE(QColor(hiDpi.pixel(30, 30)), QColor(1, 2, 3));
        QCOMPARE(QColor(hiDpi.pixel(10, 10)), piece(0, 0));
        QCOMPARE(QColor(hiDpi.pixel(50, 50)), piece(2, 2));
    }

    void dragsByFreeSurfaceAndEscape_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("maximized");
        QTest::addColumn<bool>("onButton");
        QTest::newRow("main window") << "main" << false << false;
        QTest::newRow("dialog") << "dialog" << false << false;
        QTest::newRow("maximized window") << "widget" << true << false;
        QTest::newRow("maximized dialog") << "dialog" << true << false;
        QTest::newRow("a button takes the press") << "dialog" << false << true;
    }

    void dragsByFreeSurfaceAndEscape()
    {
        QFETCH(QString, kind);
        QFETCH(bool, maximized);
        QFETCH(bool, onButton);
        const std::unique_ptr<QWidget> window = framedWindow(kind);
        window->setGeometry(100, 100, 200, 150);
        auto *button = new QPushButton(u"OK"_s, window.get());
        button->setGeometry(50, 50, 80, 30);
        if (maximized)
            window->showMaximized();
        QVERIFY(showExposed(window.get()));
        const QPoint start = window->pos();
        QWidget *target = onButton ? static_cast<QWidget *>(button) : window.get();
        QTest::mousePress(target, Qt::LeftButton, {}, QPoint(5, 5));
        QTest::mouseMove(target, QPoint(25, 35));
        QTest::mouseRelease(target, Qt::LeftButton, {}, QPoint(25, 35));
        const QPoint expected = maximized || onButton ? start : start + QPoint(20, 30);
        QTRY_COMPARE(window->pos(), expected);
        // After the release, moving the mouse moves nothing.
        QTest::mouseMove(target, QPoint(60, 60));
        QTest::qWait(20);
        QCOMPARE(window->pos(), expected);
        // Escape closes a dialog, never a window.
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QCOMPARE(window->isVisible(), kind != "dialog"_L1);
    }

    // The default skin's frames, and a picture that isn't there: a plain window,
    // that no resize shapes.
    void defaultSkinFramesHaveRoundShape_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("side");
        QTest::newRow("main window") << u"mainwnd.png"_s << 132 << 20;
        QTest::newRow("dialog") << u"subdlg.png"_s << 30 << 30;
        QTest::newRow("missing picture") << u"nothing-here.png"_s << 30 << 30;
    }

    void defaultSkinFramesHaveRoundShape()
    {
        QFETCH(QString, picture);
        QFETCH(int, top);
        QFETCH(int, side);
        QxWidget window;
        window.resize(640, 480);
        window.setFrame(framePath, margin, margin, margin, margin);
        window.setFrame(QxSkin(u":/skins"_s).imagePath(picture), top, side, side, side);
        const bool missing = picture == "nothing-here.png"_L1;
        QCOMPARE(roundShape(window), !missing);
        QCOMPARE(window.mask().isEmpty(), missing);
        // The body's colour reaches the inner side of the borders: no seams.
        const QImage shot = window.grab().toImage();
        QCOMPARE(QColor(shot.pixel(side - 3, 300)), QColor(shot.pixel(320, 300)));
        QCOMPARE(QColor(shot.pixel(320, 479 - side + 3)), QColor(shot.pixel(320, 300)));
        window.resize(700, 500);
        QCOMPARE(window.mask().isEmpty(), missing);
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
        language->setLanguage(u"en"_s);

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
        pick(u"Deutsch"_s);
        QCOMPARE(menu->title(), u"&Sprache"_s);
        QCOMPARE(menuState(menu),
                 QStringLiteral("English|Français|Deutsch*-|Español|Italiano|"
                                "日本語|简体中文|繁體中文|العربية|Čeština|Português"));
        QCOMPARE(Setting::uiLanguage(), u"de"_s);
        QCOMPARE(showSplash()->message(),
                 QStringLiteral("© %1 Tessarine. Alle Rechte vorbehalten.\n"
                                "Version: %2\n\n")
                     .arg(QString::fromLatin1(__DATE__).right(4), productVersion()));

        // Arabic turns the layout round, by the toolkit's own translation.
        pick(u"العربية"_s);
        QTRY_COMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
        QCOMPARE(menu->title(), u"ال&لغة"_s);
        language->setLanguage(u"en"_s);
        QTRY_COMPARE(QApplication::layoutDirection(), Qt::LeftToRight);

        // A stored language that's no longer known keeps English texts.
        language->setLanguage(u"xx"_s);
        QCOMPARE(menu->title(), u"&Language"_s);
    }
};

// Made before the application, so the store and the user's folders are the test's own.
static TestHome home;
QTEST_MAIN(TestControls)
#include "tst_controls.moc"
