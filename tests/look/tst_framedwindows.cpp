#include "qxdialog.h"
#include "qxmainwidget.h"
#include "qxskin.h"
#include "qxwidget.h"
#include "widgettools.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>

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

template<class Window>
void frame(Window &window, const QString &path, int top = margin, int side = margin)
{
    window.setFrame(path, top, side, side, side);
}

// A window of that kind, framed by the picture at `path` when one is given.
std::unique_ptr<QWidget> framedWindow(const QString &kind, const QString &path = QString())
{
    const auto framed = [&path](auto *window) {
        if (!path.isEmpty())
            frame(*window, path);
        return std::unique_ptr<QWidget>(window);
    };
    if (kind == QLatin1String("main"))
        return framed(new QxMainWidget);
    if (kind == QLatin1String("dialog"))
        return framed(new QxDialog);
    return framed(new QxWidget);
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
    void escapeClosesOnlyDialogs();
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

void TestFramedWindows::paintsNinePieces_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"widget", "main", "dialog"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestFramedWindows::paintsNinePieces()
{
    QFETCH(QString, kind);
    const std::unique_ptr<QWidget> window = framedWindow(kind, framePath);
    window->resize(100, 80);
    const QImage shot = window->grab().toImage();
    QCOMPARE(shot.size(), QSize(100, 80));
    // Corners 1:1, edges and centre stretched.
    const std::pair<QPoint, QColor> expected[]
        = {{{9, 9}, topLeft},  {{10, 5}, top},       {{89, 5}, top},     {{90, 5}, topRight},
           {{5, 40}, left},    {{50, 40}, centre},   {{95, 40}, right},  {{5, 75}, bottomLeft},
           {{50, 75}, bottom}, {{95, 75}, bottomRight}};
    for (const auto &[point, colour] : expected)
        QCOMPARE(colourAt(shot, point.x(), point.y()), colour);
}

void TestFramedWindows::shapeFollowsTransparentCorners_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("normal") << QSize(100, 80);
    QTest::newRow("smaller than margins") << QSize(12, 8);
}

void TestFramedWindows::shapeFollowsTransparentCorners()
{
    QFETCH(QSize, size);
    QxDialog dialog;
    frame(dialog, framePath);
    dialog.resize(size);
    QVERIFY(showExposed(&dialog));
    const QRegion shape = dialog.mask();
    const int w = size.width() - 1;
    const int h = size.height() - 1;
    if (size.width() >= 2 * margin) {
        for (const QPoint &p : {QPoint(0, 0), QPoint(w, 0), QPoint(0, h), QPoint(w, h)})
            QVERIFY(!shape.contains(p));
        QVERIFY(shape.contains(QPoint(1, 0))); // half transparent is still inside
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
    frame(window, framePath);
    QVERIFY(!window.mask().isEmpty());
    frame(window, dir.filePath(QStringLiteral("nothing-here.png")), 30, 30);
    QVERIFY(window.mask().isEmpty());
    const QImage shot = window.grab().toImage();
    QCOMPARE(colourAt(shot, 0, 0), colourAt(shot, 50, 40)); // one plain background
    window.resize(120, 90); // no frame: resizing must not shape the window
    QVERIFY(window.mask().isEmpty());

    // A file that isn't a picture behaves the same.
    const QString junk = dir.filePath(QStringLiteral("junk.png"));
    QFile file(junk);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("\x89PNG broken") > 0);
    file.close();
    QxDialog dialog;
    frame(dialog, junk, 30, 30);
    QVERIFY(!dialog.hasTile());
    dialog.resize(50, 50);
    QVERIFY(dialog.mask().isEmpty());
}

void TestFramedWindows::sharpTwinOnHiDpi()
{
    const auto paintHiDpi = [this](const char *name, const QImage &twin) {
        const QString path = dir.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        ninePatch().save(path);
        twin.save(dir.filePath(QString::fromLatin1(name) + QStringLiteral("@2x.png")));
        QxFrame frame;
        frame.setFrame(path, margin, margin, margin, margin);
        QImage hiDpi(60, 60, QImage::Format_ARGB32);
        hiDpi.setDevicePixelRatio(2);
        hiDpi.fill(Qt::black);
        QPainter painter(&hiDpi);
        frame.paint(painter, QSize(30, 30));
        return hiDpi;
    };
    QImage twin = ninePatch(2);
    twin.setPixel(30, 30, qRgb(1, 2, 3)); // a mark only the twin has, in the centre
    const QImage sharp = paintHiDpi("sharp", twin);
    QCOMPARE(colourAt(sharp, 30, 30), QColor(1, 2, 3));
    QCOMPARE(colourAt(sharp, 10, 10), topLeft);
    QCOMPARE(colourAt(sharp, 50, 50), bottomRight);
    // A twin of the wrong size is ignored.
    QCOMPARE(colourAt(paintHiDpi("odd", ninePatch()), 30, 30), centre);
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
    frame(dialog, path);
    QImage shot = dialog.grab().toImage();
    QCOMPARE(colourAt(shot, 50, 5), top);                 // the top border stays free
    QCOMPARE(colourAt(shot, 50, 40), QColor(10, 20, 30)); // the pattern covers the rest
    QCOMPARE(colourAt(shot, 2, 78), QColor(10, 20, 30));
    // A frame without a pattern of its own keeps the old one.
    frame(dialog, framePath);
    QCOMPARE(colourAt(dialog.grab().toImage(), 50, 40), QColor(10, 20, 30));
}

void TestFramedWindows::dragsByFreeSurface_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<bool>("onButton");
    QTest::newRow("window") << "widget" << false << false;
    QTest::newRow("dialog") << "dialog" << false << false;
    QTest::newRow("maximized window") << "widget" << true << false;
    QTest::newRow("maximized dialog") << "dialog" << true << false;
    QTest::newRow("a button takes the press") << "dialog" << false << true;
}

void TestFramedWindows::dragsByFreeSurface()
{
    QFETCH(QString, kind);
    QFETCH(bool, maximized);
    QFETCH(bool, onButton);
    const std::unique_ptr<QWidget> window = framedWindow(kind);
    window->setGeometry(100, 100, 200, 150);
    auto *button = new QPushButton(QStringLiteral("OK"), window.get());
    button->setGeometry(50, 50, 80, 30);
    if (maximized)
        window->showMaximized();
    QVERIFY(showExposed(window.get()));
    const QPoint start = window->pos();
    QWidget *target = onButton ? static_cast<QWidget *>(button) : window.get();
    drag(target, QPoint(5, 5), QPoint(25, 35));
    const QPoint expected = maximized || onButton ? start : start + QPoint(20, 30);
    QTRY_COMPARE(window->pos(), expected);
    // After the release, moving the mouse moves nothing.
    QTest::mouseMove(target, QPoint(60, 60));
    QTest::qWait(20);
    QCOMPARE(window->pos(), expected);
}

void TestFramedWindows::escapeClosesOnlyDialogs()
{
    QxMainWidget main;
    QxDialog dialog;
    for (QWidget *window : {static_cast<QWidget *>(&main), static_cast<QWidget *>(&dialog)}) {
        window->resize(200, 150);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_Escape);
    }
    QVERIFY(main.isVisible());
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
    QxWidget window;
    window.resize(640, 480);
    frame(window, QxSkin(QStringLiteral(":/skins")).imagePath(picture), top, side);
    const QRegion shape = window.mask();
    for (const QPoint &p : {QPoint(0, 0), QPoint(639, 0), QPoint(0, 479), QPoint(639, 479)})
        QVERIFY(!shape.contains(p));
    for (const QPoint &p : {QPoint(320, 0), QPoint(0, 240), QPoint(320, 240)})
        QVERIFY(shape.contains(p));
    // Body colour in the centre and at the inner side of the borders alike,
    // so both sets of margins give a seamless window.
    const QImage shot = window.grab().toImage();
    const QColor body = colourAt(shot, 320, 300);
    QCOMPARE(colourAt(shot, side - 3, 300), body);
    QCOMPARE(colourAt(shot, 639 - side + 3, 300), body);
    QCOMPARE(colourAt(shot, 320, 479 - side + 3), body);
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    TestFramedWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_framedwindows.moc"
