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

constexpr int margin = 10;
const QColor tiled(10, 20, 30);

QColor piece(int row, int col)
{
    return QColor(50 + 70 * col, 50 + 70 * row, 128);
}

// Nine pieces of distinct colours, the corners with a transparent tip.
QImage ninePatch(int scale = 1)
{
    const int m = margin * scale;
    QImage picture(3 * m, 3 * m, QImage::Format_ARGB32);
    QPainter painter(&picture);
    for (int i = 0; i < 9; ++i)
        painter.fillRect(i % 3 * m, i / 3 * m, m, m, piece(i / 3, i % 3));
    painter.end();
    const int s = 3 * m - 1;
    for (const QPoint &p : {QPoint(0, 0), QPoint(s, 0), QPoint(0, s), QPoint(s, s)})
        picture.setPixel(p, qRgba(0, 0, 0, 0));
    picture.setPixel(1, 0, qRgba(255, 255, 255, 128)); // half transparent: still inside
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
    void paintsNinePiecesAndTakesTheirShape_data();
    void paintsNinePiecesAndTakesTheirShape();
    void missingPictureLeavesPlainWindow();
    void sharpTwinOnHiDpi();
    void dragsByFreeSurfaceAndEscape_data();
    void dragsByFreeSurfaceAndEscape();
    void defaultSkinFramesHaveRoundShape_data();
    void defaultSkinFramesHaveRoundShape();

private:
    QTemporaryDir dir;
    QString framePath;
};

void TestFramedWindows::initTestCase()
{
    // Dialogs cover all but the top border with a "_tiled" pattern beside the frame.
    framePath = dir.filePath(QStringLiteral("frame.png"));
    QImage pattern(4, 4, QImage::Format_RGB32);
    pattern.fill(tiled);
    QVERIFY(ninePatch().save(framePath) && pattern.save(dir.filePath(QStringLiteral("frame_tiled.png"))));
}

void TestFramedWindows::paintsNinePiecesAndTakesTheirShape_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"widget", "main", "dialog"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestFramedWindows::paintsNinePiecesAndTakesTheirShape()
{
    QFETCH(QString, kind);
    const std::unique_ptr<QWidget> window = framedWindow(kind, framePath);
    window->resize(100, 80);
    QVERIFY(showExposed(window.get()));
    const QImage shot = window->grab().toImage();
    // Corners 1:1, edges and centre stretched: x, y, row and column of the piece.
    const int points[][4] = {{9, 9, 0, 0},   {10, 5, 0, 1},  {89, 5, 0, 1},  {90, 5, 0, 2},
                             {5, 40, 1, 0},  {50, 40, 1, 1}, {95, 40, 1, 2}, {5, 75, 2, 0},
                             {50, 75, 2, 1}, {95, 75, 2, 2}};
    const bool dialog = kind == QLatin1String("dialog");
    for (const auto &p : points)
        QCOMPARE(colourAt(shot, p[0], p[1]), dialog && p[2] > 0 ? tiled : piece(p[2], p[3]));
    const QRegion shape = window->mask();
    for (const QPoint &p : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 79), QPoint(99, 79)})
        QVERIFY(!shape.contains(p));
    QVERIFY(shape.contains(QPoint(1, 0)) && shape.contains(QPoint(50, 40)));
    // A larger window gets a new shape at once.
    window->resize(140, 110);
    QVERIFY(!window->mask().contains(QPoint(139, 109)));
    QVERIFY(window->mask().contains(QPoint(138, 55)));
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
}

void TestFramedWindows::sharpTwinOnHiDpi()
{
    const QString path = dir.filePath(QStringLiteral("sharp.png"));
    QImage twin = ninePatch(2);
    twin.setPixel(30, 30, qRgb(1, 2, 3)); // a mark only the twin has, in the centre
    QVERIFY(ninePatch().save(path) && twin.save(dir.filePath(QStringLiteral("sharp@2x.png"))));
    QxFrame frame;
    QVERIFY(frame.setFrame(path, margin, margin, margin, margin));
    QImage hiDpi(60, 60, QImage::Format_ARGB32);
    hiDpi.setDevicePixelRatio(2);
    QPainter painter(&hiDpi);
    frame.paint(painter, QSize(30, 30));
    QCOMPARE(colourAt(hiDpi, 30, 30), QColor(1, 2, 3));
    QCOMPARE(colourAt(hiDpi, 10, 10), piece(0, 0));
    QCOMPARE(colourAt(hiDpi, 50, 50), piece(2, 2));
}

void TestFramedWindows::dragsByFreeSurfaceAndEscape_data()
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

void TestFramedWindows::dragsByFreeSurfaceAndEscape()
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
    // Escape closes a dialog, never a window.
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QCOMPARE(window->isVisible(), kind != QLatin1String("dialog"));
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
    QVERIFY(shape.contains(QPoint(320, 0)) && shape.contains(QPoint(0, 240)));
    // The body's colour reaches the inner side of the borders: no seams.
    const QImage shot = window.grab().toImage();
    QCOMPARE(colourAt(shot, side - 3, 300), colourAt(shot, 320, 300));
    QCOMPARE(colourAt(shot, 320, 479 - side + 3), colourAt(shot, 320, 300));
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    TestFramedWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_framedwindows.moc"
