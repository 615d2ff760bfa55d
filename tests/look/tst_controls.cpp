#include "controls.h"
#include "focusoutcombo.h"
#include "qxskin.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

// The custom controls, driven by mouse and keys.
class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void trimmedSliderClicks_data();
    void trimmedSliderClicks();
    void sliderDragAndKeys();
    void degenerateSlidersStayQuiet();
    void fadeTurnsRoundMidWay();
    void volumeEnds_data();
    void volumeEnds();
    void colourComboMore_data();
    void colourComboMore();
    void colourButtonTintsOnlyBlack();
    void focusOutCombo();
    void elidingLabel();
};

// A slider 210 pixels wide over 0..100 with its handle's own width.
static CSlider *slider(QWidget *window)
{
    auto *s = new CSlider(window);
    s->setGeometry(0, 0, 210, 30);
    s->setRange(0, 100);
    return s;
}

void TestControls::trimmedSliderClicks_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("expected");
    // Marks at 20 and 80: outside, the handle takes the nearer mark.
    QTest::newRow("left of the marks") << 5 << 20;
    QTest::newRow("right of the marks") << 205 << 80;
    QTest::newRow("between them") << 105 << -1; // the pixel's own value
}

void TestControls::trimmedSliderClicks()
{
    QFETCH(int, x);
    QFETCH(int, expected);
    QWidget window;
    CSlider *s = slider(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    s->setTrimStart(20);
    s->setTrimEnd(80);
    s->setHandleValue(50);
    const int H = s->handleRectangle().width();
    QVERIFY(H > 0);
    if (expected < 0)
        expected = int(100 * double(x - H / 2) / (210 - H));
    QTest::mouseClick(s, Qt::LeftButton, {}, QPoint(x, 2));
    QCOMPARE(s->value(), expected);
    // The handle stands where the value is.
    QCOMPARE(s->handleRectangle().left(), s->valueToPixel(expected) - H / 2);
}

void TestControls::sliderDragAndKeys()
{
    QWidget window;
    CSlider *s = slider(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    s->setTrimStart(10);
    s->setTrimEnd(90);
    s->setHandleValue(40);
    QSignalSpy pressed(s, &CSlider::sliderHandlePressed);
    QSignalSpy changed(s, &QSlider::valueChanged);
    const QPoint grip = s->handleRectangle().center();
    QTest::mousePress(s, Qt::LeftButton, {}, grip);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.last().first().toBool(), true);
    // Dragged far past the end mark: it stops there.
    QTest::mouseMove(s, QPoint(209, grip.y()));
    QCOMPARE(s->value(), 90);
    const int before = changed.count();
    QTest::mouseRelease(s, Qt::LeftButton, {}, QPoint(209, grip.y()));
    QCOMPARE(pressed.last().first().toBool(), false);
    // Let go: the value once more, though it didn't change.
    QCOMPARE(changed.count(), before + 1);
    QCOMPARE(changed.last().first().toInt(), 90);

    // Keys keep to the marks too.
    s->setFocus();
    QTest::keyClick(s, Qt::Key_Home);
    QCOMPARE(s->value(), 10);
    QTest::keyClick(s, Qt::Key_Left);
    QCOMPARE(s->value(), 10);
    QTest::keyClick(s, Qt::Key_PageUp);
    QCOMPARE(s->value(), 10 + s->pageStep());
}

void TestControls::degenerateSlidersStayQuiet()
{
    // No range, no room: nothing divides by zero (the sanitizer build watches).
    QWidget window;
    auto *s = new CSlider(&window);
    s->setRange(0, 0);
    s->setGeometry(0, 0, 1, 10);
    auto *volume = new VolumSlider(&window);
    volume->setRange(0, 0);
    volume->setGeometry(0, 20, 1, 10);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(s, Qt::LeftButton, {}, QPoint(0, 1));
    QTest::mouseClick(volume, Qt::LeftButton, {}, QPoint(0, 1));
    s->repaint();
    QCOMPARE(s->value(), 0);
    QCOMPARE(volume->value(), 0);
}

void TestControls::fadeTurnsRoundMidWay()
{
    QWidget window;
    window.resize(300, 100);
    auto *start = new FadePushButton(&window);
    start->setProperty("status", QStringLiteral("start"));
    start->setGeometry(10, 10, 120, 40);
    auto *tool = new FadeToolButton(&window);
    tool->setGeometry(150, 10, 60, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(start->fadeAlpha(), -1);
    // 33 ms ticks over 330 ms: 25 a tick; the tool bar's 10 ms ticks: 7.
    start->startFade(1);
    start->repaint();
    QCOMPARE(start->fadeAlpha(), 24);
    tool->startFade(1);
    tool->repaint();
    QCOMPARE(tool->fadeAlpha(), 6);

    // The pointer comes in, stays a while, and goes before the fade is done.
    QTest::mouseMove(&window, QPoint(280, 90));
    QTest::mouseMove(start, QPoint(60, 20));
    QTRY_VERIFY(start->fadeAlpha() > 100);
    QTest::mouseMove(&window, QPoint(280, 90));
    const int turned = start->fadeAlpha();
    QVERIFY(turned < 255);
    QTRY_VERIFY(start->fadeAlpha() < turned);
    QTRY_COMPARE(start->fadeAlpha(), 0);
}

void TestControls::volumeEnds_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("expected");
    QTest::newRow("far left") << false << 0 << 0;
    QTest::newRow("last pixel") << false << 199 << 100;
    QTest::newRow("far left, right to left") << true << 0 << 100;
    QTest::newRow("last pixel, right to left") << true << 199 << 0;
}

void TestControls::volumeEnds()
{
    QFETCH(bool, mirrored);
    QFETCH(int, x);
    QFETCH(int, expected);
    QWidget window;
    window.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    auto *volume = new VolumSlider(&window);
    volume->setRange(0, 100);
    volume->setValue(mirrored ? 5 : 95); // the handle away from the click
    volume->setGeometry(0, 0, 200, 24);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(volume, Qt::LeftButton, {}, QPoint(x, 12));
    QCOMPARE(volume->value(), expected);
}

void TestControls::colourComboMore_data()
{
    QTest::addColumn<bool>("accept");
    QTest::newRow("a colour chosen") << true;
    QTest::newRow("cancelled") << false;
}

void TestControls::colourComboMore()
{
    QFETCH(bool, accept);
    QWidget window;
    auto *combo = new QtColorComboBox(&window);
    combo->addStandardColors();
    combo->setColorDialogEnabled();
    combo->addColor(QColor(10, 20, 30), QStringLiteral("Ink"));
    QCOMPARE(combo->itemText(combo->count() - 1), QStringLiteral("More..."));
    QCOMPARE(combo->itemText(combo->count() - 2), QStringLiteral("Ink"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy activated(combo, qOverload<QColor>(&QtColorComboBox::activated));
    combo->setFocus();
    // Red, chosen by keys, is the colour to go back to.
    combo->setCurrentIndex(1);
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.last().first().value<QColor>(), QColor(Qt::red));

    for (int round = 1; round <= 2; ++round) {
        QTimer::singleShot(0, this, [accept] {
            auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            if (accept) {
                dialog->setCurrentColor(QColor(200, 100, 50));
                dialog->accept();
            } else {
                QTest::keyClick(dialog, Qt::Key_Escape);
            }
        });
        QTest::keyClick(combo, Qt::Key_End);
        QCOMPARE(activated.count(), 1 + round);
        if (accept) {
            QCOMPARE(activated.last().first().value<QColor>(), QColor(200, 100, 50));
            QCOMPARE(combo->currentText(), QStringLiteral("User color %1").arg(round));
            QCOMPARE(combo->currentColor(), QColor(200, 100, 50));
        } else {
            QCOMPARE(activated.last().first().value<QColor>(), QColor(Qt::red));
            QCOMPARE(combo->currentText(), QStringLiteral("Red"));
        }
    }
    QCOMPARE(combo->itemText(combo->count() - 1), QStringLiteral("More..."));
}

void TestControls::colourButtonTintsOnlyBlack()
{
    ColorPushButton button;
    button.setColor(QColor(255, 0, 0));
    const QImage source(QxSkin::instance()->imagePath(
        QxSkin::instance()->configValue(QStringLiteral("COLOR_BUTTON_IMAGE"))));
    const QImage tinted = button.colouredImage();
    QVERIFY(!source.isNull());
    QCOMPARE(tinted.size(), source.size());
    int black = 0;
    const QImage original = source.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < original.height(); ++y) {
        for (int x = 0; x < original.width(); ++x) {
            const QRgb was = original.pixel(x, y);
            const QRgb now = tinted.pixel(x, y);
            QCOMPARE(qAlpha(now), qAlpha(was));
            if ((was & 0xffffff) == 0) {
                ++black;
                QCOMPARE(now & 0xffffff, 0xff0000u);
            } else {
                QCOMPARE(now, was);
            }
        }
    }
    QVERIFY(black > 0);
}

void TestControls::focusOutCombo()
{
    QWidget window;
    auto *combo = new FocusOutCombo(&window);
    combo->setEditable(true);
    combo->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[1-9][0-9]{0,3}[*][1-9][0-9]{0,3}")), combo));
    auto *other = new QLineEdit(&window);
    other->move(0, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy cancelled(combo, &FocusOutCombo::CancelInput);
    QSignalSpy taken(combo, &FocusOutCombo::focusOutTextChanged);
    combo->setFocus();
    QTest::keyClicks(combo, QStringLiteral("720*"));
    QTest::keyClick(combo, Qt::Key_Tab);
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(taken.count(), 0);
    combo->setFocus();
    QTest::keyClicks(combo, QStringLiteral("480"));
    QTest::keyClick(combo, Qt::Key_Tab);
    QCOMPARE(taken.count(), 1);
    QCOMPARE(taken.last().first().toString(), QStringLiteral("720*480"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 2);
}

void TestControls::elidingLabel()
{
    QxtLabel label;
    QSignalSpy changed(&label, &QxtLabel::textChanged);
    label.setText(QStringLiteral("A very long file name that will not fit.mkv"));
    label.setText(QStringLiteral("A very long file name that will not fit.mkv"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(label.accessibleName(), label.text());
    QVERIFY(label.minimumSizeHint().width() < label.sizeHint().width());
    label.setElideMode(Qt::ElideNone);
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
}

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
