#include "ffmpegtools.h"
#include "ffplayer.h"
#include "playerscreen.h"
#include "qxskin.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// What a surface shows: logo, frame, bars, zoom, watermark.
class TestPlayerScreen : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString white; // 640x480, white, 4:3

    // The part of the grab that is (near) white: where the picture lies.
    static QRect pictureArea(const QImage &grab)
    {
        QRect area;
        for (int y = 0; y < grab.height(); ++y)
            for (int x = 0; x < grab.width(); ++x)
                if (qGray(grab.pixel(x, y)) > 230)
                    area |= QRect(x, y, 1, 1);
        return area;
    }

    // A surface of that size showing the white picture.
    static void showPicture(PlayerScreen &screen, QSize size)
    {
        screen.resize(size);
        screen.setBackgroundColor(Qt::red);
        screen.setShowVideo(true);
    }

private slots:
    void initTestCase()
    {
        white = dir.filePath(QStringLiteral("white.mkv"));
        QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                         {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                          QStringLiteral("lavfi"), QStringLiteral("-i"),
                          QStringLiteral("color=c=white:s=640x480:r=25:d=2"),
                          QStringLiteral("-c:v"), QStringLiteral("libx264"),
                          QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"), white}),
                 0);
    }

    // Before the first picture the logo shows, though the player plays.
    void logoUntilTheFirstPicture()
    {
        FFPlayer *player = FFPlayer::instance();
        PlayerScreen screen;
        screen.resize(400, 300);
        const QImage logo = QxSkin::instance()->image(QStringLiteral("playwnddefault.png"));
        QCOMPARE(screen.grab().toImage().pixel(200, 150), logo.pixel(logo.width() / 2, logo.height() / 2));
        QSignalSpy pictures(player, &FFPlayer::videoChanged);
        player->open(white, QString(), -1);
        player->playPause();
        QVERIFY(pictures.wait(5000));
        QTRY_VERIFY(screen.showsVideo());
        player->playPause();
        QTRY_COMPARE(player->state(), 2);
        QCOMPARE(qGray(screen.grab().toImage().pixel(200, 150)), 255);
    }

    // Frame ratio, zoom and crop give the picture's size and place.
    void zoomModesSizeThePicture_data()
    {
        QTest::addColumn<QSize>("output");
        QTest::addColumn<double>("zoom");
        QTest::addColumn<int>("cropSides");
        QTest::addColumn<QRect>("picture");
        // A 320x180 surface.
        QTest::newRow("16:9 frame, full screen") << QSize(1280, 720) << -1.0 << 0 << QRect(0, 0, 320, 180);
        QTest::newRow("16:9 frame, keep original: bars") << QSize(1280, 720) << 0.0 << 0 << QRect(40, 0, 240, 180);
        QTest::newRow("keep original, cropped to 2:3") << QSize(1280, 720) << 0.0 << 160 << QRect(100, 0, 120, 180);
        QTest::newRow("forced 4:3") << QSize(1280, 720) << 1.3333333333333333 << 0 << QRect(40, 0, 240, 180);
        QTest::newRow("forced 16:9 in a 4:3 frame") << QSize(640, 480) << 1.7777777777777777 << 0 << QRect(40, 22, 240, 135);
        QTest::newRow("no output size yet") << QSize(0, 0) << 0.0 << 0 << QRect(40, 0, 240, 180);
    }
    void zoomModesSizeThePicture()
    {
        QFETCH(QSize, output);
        QFETCH(double, zoom);
        QFETCH(int, cropSides);
        QFETCH(QRect, picture);
        PlayerScreen screen;
        showPicture(screen, QSize(320, 180));
        screen.setOutputSize(output.width(), output.height());
        screen.setZoom(zoom);
        screen.setCrop(0, cropSides, 0, cropSides);
        const QImage grab = screen.grab().toImage();
        QCOMPARE(pictureArea(grab), picture);
        // Around the picture: black inside the frame, the background outside.
        const QRect frame = output.width() * 9 == output.height() * 16 || output.isEmpty()
                                ? QRect(0, 0, 320, 180)
                                : QRect(40, 0, 240, 180);
        if (frame.left() > 0)
            QCOMPARE(grab.pixel(frame.left() / 2, 90), qRgb(255, 0, 0));
        if (picture.left() > frame.left())
            QCOMPARE(grab.pixel((picture.left() + frame.left()) / 2, 90), qRgb(0, 0, 0));
    }

    // The watermark keeps its place on the picture when the surface resizes.
    void watermarkKeepsItsPlaceOnResize()
    {
        PlayerScreen screen;
        showPicture(screen, QSize(320, 240));
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        screen.setOutputSize(640, 480);
        QImage mark(8, 8, QImage::Format_RGB32);
        mark.fill(Qt::blue);
        screen.setWatermarkImage(mark);
        screen.setWatermarkVisible(true);
        screen.setWatermarkRect(320, 240, 383, 303);
        QCOMPARE(screen.watermarkScreenRect(), QRect(160, 120, 32, 32));
        QCOMPARE(screen.grab().toImage().pixel(175, 135), qRgb(0, 0, 255));
        screen.resize(640, 360); // the 4:3 frame is now 480x360 in the middle
        QCOMPARE(screen.watermarkScreenRect(), QRect(320, 180, 48, 48));
        const QImage grab = screen.grab().toImage();
        QCOMPARE(grab.pixel(343, 203), qRgb(0, 0, 255));
        QCOMPARE(qGray(grab.pixel(300, 160)), 255);
        screen.setWatermarkTransparency(255);
        QCOMPARE(qGray(screen.grab().toImage().pixel(343, 203)), 255);
    }

    // Without edits a surface takes the original picture; any edit moves it
    // to the edited one, and undoing them moves it back.
    void editsChooseThePicture()
    {
        PlayerScreen screen;
        QVERIFY(screen.paintsOriginal());
        screen.setPictureAdjust(10, 0, 0);
        QVERIFY(!screen.paintsOriginal());
        screen.setSubtitle(0, QString());
        screen.setPictureAdjust(0, 0, 0);
        QVERIFY(!screen.paintsOriginal());
        screen.setSubtitle(-1, QString());
        QVERIFY(screen.paintsOriginal());
    }

    void cleanupTestCase() { FFPlayer::instance()->stop(); }
};

QTEST_MAIN(TestPlayerScreen)
#include "tst_playerscreen.moc"
