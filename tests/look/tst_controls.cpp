#include "controls.h"
#include "qxskin.h"
#include "widgettools.h"

#include <QApplication>
#include <QColorDialog>
#include <QSignalSpy>
#include <QTimer>

// The custom controls, driven by mouse and keys.
class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void sliderClicks_data();
    void sliderClicks();
    void sliderDragAndKeys();
    void degenerateSlidersStayQuiet();
    void colourComboMore();
    void colourButtonTintsOnlyBlack();
    void elidingLabel();
};

void TestControls::sliderClicks_data()
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

void TestControls::sliderClicks()
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
    if (trimmed) {
        trimmed->setTrimStart(20);
        trimmed->setTrimEnd(80);
        trimmed->setHandleValue(50);
        const int H = trimmed->handleRectangle().width();
        QVERIFY(H > 0);
        if (expected < 0)
            expected = int(100 * double(x - H / 2) / (210 - H));
        QTest::mouseClick(s, Qt::LeftButton, {}, QPoint(x, 2));
        // The handle stands where the value is.
        QCOMPARE(trimmed->handleRectangle().left(), trimmed->valueToPixel(expected) - H / 2);
    } else {
        QTest::mouseClick(s, Qt::LeftButton, {}, QPoint(x, 12));
    }
    QCOMPARE(s->value(), expected);
}

void TestControls::sliderDragAndKeys()
{
    QWidget window;
    auto *s = new CSlider(&window);
    s->setGeometry(0, 0, 210, 30);
    s->setRange(0, 100);
    QVERIFY(showExposed(&window));
    s->setTrimStart(10);
    s->setTrimEnd(90);
    s->setHandleValue(40);
    QSignalSpy pressed(s, &CSlider::sliderHandlePressed);
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
    QCOMPARE(pressed.count(), 2);
    QVERIFY(pressed.first().first().toBool() && !pressed.last().first().toBool());

    // Keys keep to the marks too.
    s->setFocus();
    QTest::keyClick(s, Qt::Key_Home);
    QTest::keyClick(s, Qt::Key_Left);
    QCOMPARE(s->value(), 10);
    QTest::keyClick(s, Qt::Key_PageUp);
    QCOMPARE(s->value(), 10 + s->pageStep());
}

void TestControls::degenerateSlidersStayQuiet()
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

void TestControls::colourComboMore()
{
    QWidget window;
    auto *combo = new QtColorComboBox(&window);
    combo->addStandardColors();
    combo->setColorDialogEnabled();
    combo->addColor(QColor(10, 20, 30), QStringLiteral("Ink"));
    QCOMPARE(combo->itemText(combo->count() - 2), QStringLiteral("Ink"));
    QVERIFY(showExposed(&window));
    QSignalSpy activated(combo, qOverload<QColor>(&QtColorComboBox::activated));
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
        const int before = activated.count();
        QTest::keyClick(combo, Qt::Key_End);
        QCOMPARE(activated.count(), before + 1);
        const QColor colour = accept ? QColor(200, 100, 50) : QColor(Qt::red);
        QCOMPARE(activated.last().first().value<QColor>(), colour);
        QCOMPARE(combo->currentColor(), colour);
        QCOMPARE(combo->currentText(),
                 accept ? QStringLiteral("User color %1").arg(++users) : QStringLiteral("Red"));
    }
    QCOMPARE(combo->itemText(combo->count() - 1), QStringLiteral("More..."));
}

void TestControls::colourButtonTintsOnlyBlack()
{
    ColorPushButton button;
    button.setColor(QColor(255, 0, 0));
    QImage expected = QImage(QxSkin::instance()->imagePath(QxSkin::instance()->configValue(
                                 QStringLiteral("COLOR_BUTTON_IMAGE"))))
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

void TestControls::elidingLabel()
{
    QxtLabel label;
    QSignalSpy changed(&label, &QxtLabel::textChanged);
    label.setText(QStringLiteral("A very long file name that will not fit.mkv"));
    label.setText(QStringLiteral("A very long file name that will not fit.mkv"));
    QCOMPARE(changed.count(), 1);
    // A long name never widens the window; without eliding it does.
    QVERIFY(label.minimumSizeHint().width() < label.sizeHint().width());
    label.setElideMode(Qt::ElideNone);
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
}

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
