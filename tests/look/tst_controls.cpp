#include "controls.h"
#include "qxdialog.h"
#include "qxmainwidget.h"
#include "qxskin.h"
#include "qxwidget.h"
#include "widgettools.h"

#include <QApplication>
#include <QColorDialog>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

namespace {

QColor colourAt(const QImage &image, int x, int y)
{
    return QColor(image.pixel(x, y)).toRgb();
}

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
    if (kind == QLatin1String("main"))
        return framed(new QxMainWidget);
    return kind == QLatin1String("dialog") ? framed(new QxDialog) : framed(new QxWidget);
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

} // namespace

// The custom controls and framed windows, driven by mouse and keys.
class TestControls : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString framePath;

private slots:
    void initTestCase()
    {
        // Dialogs cover all but the top border with a "_tiled" pattern beside the frame.
        framePath = dir.filePath(QStringLiteral("frame.png"));
        QImage pattern(4, 4, QImage::Format_RGB32);
        pattern.fill(tiled);
        QVERIFY(ninePatch().save(framePath)
                && pattern.save(dir.filePath(QStringLiteral("frame_tiled.png"))));
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
        const bool mirrored = slider == QLatin1String("mirrored");
        window.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        CSlider *trimmed = slider == QLatin1String("trimmed") ? new CSlider(&window) : nullptr;
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
            QCOMPARE(combo->currentText(),
                     accept ? QStringLiteral("User color %1").arg(++users) : QStringLiteral("Red"));
        }
        QCOMPARE(combo->itemText(combo->count() - 1), QStringLiteral("More..."));
    }

    void colourButtonTintsOnlyBlack()
    {
        ColorPushButton button;
        button.setColor(QColor(255, 0, 0));
        QxSkin *skin = QxSkin::instance();
        QImage expected
            = QImage(skin->imagePath(skin->configValue(QStringLiteral("COLOR_BUTTON_IMAGE"))))
                  .convertToFormat(QImage::Format_ARGB32);
        int black = 0;
        // Black takes the colour and keeps its transparency; the rest stays.
        for (int y = 0; y < expected.height(); ++y) {
            for (int x = 0; x < expected.width(); ++x) {
                if ((expected.pixel(x, y) & 0xffffff) == 0) {
                    expected.setPixel(x, y, expected.pixel(x, y) | 0xff0000u);
                    ++black;
                }
            }
        }
        QVERIFY(black > 0);
        QCOMPARE(button.colouredImage().convertToFormat(QImage::Format_ARGB32), expected);
    }

    void elidingLabel()
    {
        // A long name never widens the window; without eliding it does.
        QxtLabel label;
        label.setText(QStringLiteral("A very long file name that will not fit.mkv"));
        QVERIFY(label.minimumSizeHint().width() < label.sizeHint().width());
        label.setElideMode(Qt::ElideNone);
        QCOMPARE(label.minimumSizeHint(), label.sizeHint());
    }

    void paintsNinePiecesAndTakesTheirShape_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"widget", "main", "dialog"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
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
        const bool dialog = kind == QLatin1String("dialog");
        for (const auto &p : points)
            QCOMPARE(colourAt(shot, p[0], p[1]), dialog && p[2] > 0 ? tiled : piece(p[2], p[3]));
        QVERIFY(roundShape(*window) && window->mask().contains(QPoint(1, 0)));
        // A larger window gets a new shape at once.
        window->resize(140, 110);
        QVERIFY(roundShape(*window));
    }

    void sharpTwinOnHiDpi()
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
        auto *button = new QPushButton(QStringLiteral("OK"), window.get());
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
        QCOMPARE(window->isVisible(), kind != QLatin1String("dialog"));
    }

    // The default skin's frames, and a picture that isn't there: a plain window,
    // that no resize shapes.
    void defaultSkinFramesHaveRoundShape_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("side");
        QTest::newRow("main window built") << QStringLiteral("mainwnd.png") << 132 << 20;
        QTest::newRow("main window reskinned") << QStringLiteral("mainwnd.png") << 131 << 15;
        QTest::newRow("dialog") << QStringLiteral("subdlg.png") << 30 << 30;
        QTest::newRow("missing picture") << QStringLiteral("nothing-here.png") << 30 << 30;
    }

    void defaultSkinFramesHaveRoundShape()
    {
        QFETCH(QString, picture);
        QFETCH(int, top);
        QFETCH(int, side);
        QxWidget window;
        window.resize(640, 480);
        window.setFrame(framePath, margin, margin, margin, margin);
        window.setFrame(QxSkin(QStringLiteral(":/skins")).imagePath(picture), top, side, side,
                        side);
        const bool missing = picture == QLatin1String("nothing-here.png");
        QCOMPARE(roundShape(window), !missing);
        QCOMPARE(window.mask().isEmpty(), missing);
        // The body's colour reaches the inner side of the borders: no seams.
        const QImage shot = window.grab().toImage();
        QCOMPARE(colourAt(shot, side - 3, 300), colourAt(shot, 320, 300));
        QCOMPARE(colourAt(shot, 320, 479 - side + 3), colourAt(shot, 320, 300));
        window.resize(700, 500);
        QCOMPARE(window.mask().isEmpty(), missing);
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
