#include "qxdialog.h"
#include "qxmainwidget.h"
#include "qxskin.h"
#include "qxwidget.h"

#include <QApplication>
#include <QBitmap>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Nine regions of distinct colours, corners with a transparent tip.
const QColor topLeft(200, 0, 0), top(0, 200, 0), topRight(0, 0, 200);
const QColor left(200, 200, 0), centre(0, 200, 200), right(200, 0, 200);
const QColor bottomLeft(100, 50, 0), bottom(0, 100, 50), bottomRight(50, 0, 100);
constexpr int margin = 10;

QImage ninePatch(int scale = 1)
{
    const int s = 30 * scale;
    const int m = margin * scale;
    QImage picture(s, s, QImage::Format_ARGB32);
    QPainter painter(&picture);
    const QColor colours[3][3]
        = {{topLeft, top, topRight}, {left, centre, right}, {bottomLeft, bottom, bottomRight}};
    const int starts[3] = {0, m, s - m};
    const int sizes[3] = {m, s - 2 * m, m};
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col)
            painter.fillRect(starts[col], starts[row], sizes[col], sizes[row], colours[row][col]);
    }
    painter.end();
    // Cut the outermost pixel of each corner, and leave one half-transparent.
    for (const QPoint &p : {QPoint(0, 0), QPoint(s - 1, 0), QPoint(0, s - 1), QPoint(s - 1, s - 1)})
        picture.setPixel(p, qRgba(0, 0, 0, 0));
    picture.setPixel(1, 0, qRgba(255, 255, 255, 128));
    return picture;
}

QColor at(const QImage &image, int x, int y)
{
    return QColor(image.pixel(x, y)).toRgb();
}

} // namespace

class TestFramedWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void paintsNinePieces_data();
    void paintsNinePieces();
    void shapeFollowsTransparentCorners_data();
    void shapeFollowsTransparentCorners();
    void missingPictureLeavesPlainWindow();
    void sharpTwinOnHiDpi();
    void dialogTakesTiledPattern();
    void dragsByFreeSurface_data();
    void dragsByFreeSurface();
    void childThatTakesPressDoesNotDrag();
    void escape();
    void defaultSkinFramesHaveRoundShape_data();
    void defaultSkinFramesHaveRoundShape();

private:
    QTemporaryDir dir;
    QString framePath;
};

void TestFramedWindows::initTestCase()
{
    framePath = dir.filePath(QStringLiteral("frame.png"));
    QVERIFY(ninePatch().save(framePath));
}

// Grabs a window of the given kind with the test frame at 100 by 80.
static QImage grabFramed(const QString &kind, const QString &path)
{
    QImage shot;
    if (kind == QLatin1String("widget")) {
        QxWidget w;
        w.resize(100, 80);
        w.setFrame(path, margin, margin, margin, margin);
        shot = w.grab().toImage();
    } else if (kind == QLatin1String("main")) {
        QxMainWidget w;
        w.resize(100, 80);
        w.setFrame(path, margin, margin, margin, margin);
        shot = w.grab().toImage();
    } else {
        QxDialog w;
        w.resize(100, 80);
        w.setFrame(path, margin, margin, margin, margin);
        shot = w.grab().toImage();
    }
    return shot;
}

void TestFramedWindows::paintsNinePieces_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("widget") << QStringLiteral("widget");
    QTest::newRow("main") << QStringLiteral("main");
    QTest::newRow("dialog") << QStringLiteral("dialog");
}

void TestFramedWindows::paintsNinePieces()
{
    QFETCH(QString, kind);
    const QImage shot = grabFramed(kind, framePath);
    QCOMPARE(shot.size(), QSize(100, 80));
    // Corners 1:1, edges and centre stretched.
    QCOMPARE(at(shot, 5, 5), topLeft);
    QCOMPARE(at(shot, 9, 9), topLeft);
    QCOMPARE(at(shot, 10, 5), top);
    QCOMPARE(at(shot, 89, 5), top);
    QCOMPARE(at(shot, 90, 5), topRight);
    QCOMPARE(at(shot, 5, 40), left);
    QCOMPARE(at(shot, 50, 40), centre);
    QCOMPARE(at(shot, 95, 40), right);
    QCOMPARE(at(shot, 5, 75), bottomLeft);
    QCOMPARE(at(shot, 50, 75), bottom);
    QCOMPARE(at(shot, 95, 75), bottomRight);
}

void TestFramedWindows::shapeFollowsTransparentCorners_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("normal") << QSize(100, 80);
    QTest::newRow("exactly the margins") << QSize(20, 20);
    QTest::newRow("smaller than margins") << QSize(12, 8);
}

void TestFramedWindows::shapeFollowsTransparentCorners()
{
    QFETCH(QSize, size);
    QxDialog dialog;
    dialog.setFrame(framePath, margin, margin, margin, margin);
    dialog.resize(size);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QRegion shape = dialog.mask();
    QVERIFY(!shape.isEmpty());
    const int w = size.width() - 1;
    const int h = size.height() - 1;
    if (size.width() >= 2 * margin && size.height() >= 2 * margin) {
        for (const QPoint &p : {QPoint(0, 0), QPoint(w, 0), QPoint(0, h), QPoint(w, h)})
            QVERIFY2(!shape.contains(p), qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
        // Half transparent is still inside.
        QVERIFY(shape.contains(QPoint(1, 0)));
    }
    QVERIFY(shape.contains(QPoint(size.width() / 2, size.height() / 2)));
    QVERIFY(shape.contains(QPoint(size.width() / 2, 0)));

    // A larger window gets a new shape at once.
    dialog.resize(size + QSize(40, 30));
    QVERIFY(!dialog.mask().contains(QPoint(w + 40, h + 30)));
    QVERIFY(dialog.mask().contains(QPoint(w + 39, h + 15)));
}

void TestFramedWindows::missingPictureLeavesPlainWindow()
{
    QxWidget window;
    window.resize(100, 80);
    window.setFrame(framePath, margin, margin, margin, margin);
    QVERIFY(!window.mask().isEmpty());

    window.setFrame(dir.filePath(QStringLiteral("nothing-here.png")), 30, 30, 30, 30);
    QVERIFY(window.frameState().isNull());
    QVERIFY(window.mask().isEmpty());
    const QImage shot = window.grab().toImage();
    QVERIFY(at(shot, 5, 5) != topLeft);
    QCOMPARE(at(shot, 0, 0), at(shot, 50, 40)); // one plain background
    window.resize(120, 90);                     // no frame: resizing must not shape the window
    QVERIFY(window.mask().isEmpty());

    // A file that isn't a picture behaves the same.
    const QString junk = dir.filePath(QStringLiteral("junk.png"));
    QFile file(junk);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\x89PNG broken");
    file.close();
    QxDialog dialog;
    dialog.setFrame(junk, 30, 30, 30, 30);
    QVERIFY(dialog.frameState().isNull());
    QVERIFY(!dialog.hasTile());
    dialog.resize(50, 50);
    QVERIFY(dialog.mask().isEmpty());
}

void TestFramedWindows::sharpTwinOnHiDpi()
{
    const QString path = dir.filePath(QStringLiteral("sharp.png"));
    QVERIFY(ninePatch().save(path));
    QImage twin = ninePatch(2);
    twin.setPixel(30, 30, qRgb(1, 2, 3)); // a mark only the twin has, in the centre
    QVERIFY(twin.save(dir.filePath(QStringLiteral("sharp@2x.png"))));

    QxFrame frame;
    QVERIFY(frame.setFrame(path, margin, margin, margin, margin));
    QImage normal(30, 30, QImage::Format_ARGB32);
    normal.fill(Qt::black);
    QImage hiDpi(60, 60, QImage::Format_ARGB32);
    hiDpi.setDevicePixelRatio(2);
    hiDpi.fill(Qt::black);
    {
        QPainter painter(&normal);
        frame.paint(painter, QSize(30, 30));
    }
    {
        QPainter painter(&hiDpi);
        frame.paint(painter, QSize(30, 30));
    }
    QCOMPARE(at(normal, 15, 15), centre);
    QCOMPARE(at(hiDpi, 30, 30), QColor(1, 2, 3));
    QCOMPARE(at(hiDpi, 10, 10), topLeft);
    QCOMPARE(at(hiDpi, 50, 50), bottomRight);

    // A twin of the wrong size is ignored.
    QVERIFY(ninePatch().save(dir.filePath(QStringLiteral("odd@2x.png"))));
    QVERIFY(ninePatch().save(dir.filePath(QStringLiteral("odd.png"))));
    QVERIFY(
        frame.setFrame(dir.filePath(QStringLiteral("odd.png")), margin, margin, margin, margin));
    hiDpi.fill(Qt::black);
    {
        QPainter painter(&hiDpi);
        frame.paint(painter, QSize(30, 30));
    }
    QCOMPARE(at(hiDpi, 30, 30), centre);
}

void TestFramedWindows::dialogTakesTiledPattern()
{
    const QString path = dir.filePath(QStringLiteral("dlg.png"));
    QVERIFY(ninePatch().save(path));
    QImage pattern(4, 4, QImage::Format_RGB32);
    pattern.fill(QColor(10, 20, 30));
    QVERIFY(pattern.save(dir.filePath(QStringLiteral("dlg_tiled.png"))));

    QxDialog dialog;
    dialog.resize(100, 80);
    dialog.setFrame(path, margin, margin, margin, margin);
    QVERIFY(dialog.hasTile());
    QImage shot = dialog.grab().toImage();
    QCOMPARE(at(shot, 50, 5), top);                 // the top border stays free
    QCOMPARE(at(shot, 50, 40), QColor(10, 20, 30)); // the pattern covers the rest
    QCOMPARE(at(shot, 2, 78), QColor(10, 20, 30));

    // A frame without a pattern of its own keeps the old one.
    dialog.setFrame(framePath, margin, margin, margin, margin);
    QVERIFY(dialog.hasTile());
    shot = dialog.grab().toImage();
    QCOMPARE(at(shot, 50, 40), QColor(10, 20, 30));
}

void TestFramedWindows::dragsByFreeSurface_data()
{
    QTest::addColumn<bool>("dialog");
    QTest::addColumn<bool>("maximized");
    QTest::newRow("window") << false << false;
    QTest::newRow("dialog") << true << false;
    QTest::newRow("maximized window") << false << true;
    QTest::newRow("maximized dialog") << true << true;
}

void TestFramedWindows::dragsByFreeSurface()
{
    QFETCH(bool, dialog);
    QFETCH(bool, maximized);
    std::unique_ptr<QWidget> window;
    if (dialog)
        window = std::make_unique<QxDialog>();
    else
        window = std::make_unique<QxWidget>();
    window->setGeometry(100, 100, 200, 150);
    if (maximized)
        window->showMaximized();
    else
        window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(window->isMaximized(), maximized);
    const QPoint start = window->pos();

    QTest::mousePress(window.get(), Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseMove(window.get(), QPoint(30, 40));
    const QPoint expected = maximized ? start : start + QPoint(20, 30);
    QTRY_COMPARE(window->pos(), expected);
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, QPoint(30, 40));
    // After the release, moving the mouse moves nothing.
    QTest::mouseMove(window.get(), QPoint(60, 60));
    QTest::qWait(20);
    QCOMPARE(window->pos(), expected);
}

void TestFramedWindows::childThatTakesPressDoesNotDrag()
{
    QxDialog dialog;
    dialog.setGeometry(100, 100, 200, 150);
    auto *button = new QPushButton(QStringLiteral("OK"), &dialog);
    button->setGeometry(50, 50, 80, 30);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint start = dialog.pos();
    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(button, QPoint(40, 25));
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(40, 25));
    QTest::qWait(20);
    QCOMPARE(dialog.pos(), start);
}

void TestFramedWindows::escape()
{
    QxMainWidget main;
    main.resize(200, 150);
    main.show();
    QVERIFY(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_Escape);
    QVERIFY(main.isVisible());

    QxDialog dialog;
    dialog.resize(200, 150);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestFramedWindows::defaultSkinFramesHaveRoundShape_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("side");
    QTest::newRow("main window built") << QStringLiteral("mainwnd.png") << 132 << 20;
    QTest::newRow("main window reskinned") << QStringLiteral("mainwnd.png") << 131 << 15;
    QTest::newRow("dialog") << QStringLiteral("subdlg.png") << 30 << 30;
}

void TestFramedWindows::defaultSkinFramesHaveRoundShape()
{
    QFETCH(QString, picture);
    QFETCH(int, top);
    QFETCH(int, side);
    QxSkin skin(QStringLiteral(":/skins"));
    const QString path = skin.imagePath(picture);
    const QImage image(path);
    QVERIFY(!image.isNull());
    // The shape's fill colour must not occur in the picture.
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < argb.height(); ++y) {
        for (int x = 0; x < argb.width(); ++x)
            QVERIFY(argb.pixel(x, y) != 0xFFFF00FF);
    }

    QxWidget window;
    window.resize(640, 480);
    window.setFrame(path, top, side, side, side);
    const QRegion shape = window.mask();
    for (const QPoint &p : {QPoint(0, 0), QPoint(639, 0), QPoint(0, 479), QPoint(639, 479)})
        QVERIFY(!shape.contains(p));
    QVERIFY(shape.contains(QPoint(320, 0)));
    QVERIFY(shape.contains(QPoint(0, 240)));
    QVERIFY(shape.contains(QPoint(320, 240)));

    // Body colour in the centre and at the inner side of the borders alike,
    // so both sets of margins give a seamless window.
    const QImage shot = window.grab().toImage();
    QCOMPARE(at(shot, 320, 300), at(shot, side - 3, 300));
    QCOMPARE(at(shot, 320, 300), at(shot, 639 - side + 3, 300));
    QCOMPARE(at(shot, 320, 300), at(shot, 320, 479 - side + 3));
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    TestFramedWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_framedwindows.moc"
