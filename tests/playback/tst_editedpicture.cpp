#include "ffmpegtools.h"
#include "ffplayer.h"
#include "filtertext.h"
#include "mediafixtures.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

namespace {

// Peak signal to noise ratio of two pictures of one size, over R, G and B.
double psnr(const QImage &a, const QImage &b)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB888);
    const QImage y = b.convertToFormat(QImage::Format_RGB888);
    if (x.size() != y.size() || x.isNull())
        return 0.0;
    double sum = 0.0;
    for (int row = 0; row < x.height(); ++row) {
        const uchar *p = x.constScanLine(row);
        const uchar *q = y.constScanLine(row);
        for (int i = 0; i < x.width() * 3; ++i)
            sum += double(p[i] - q[i]) * (p[i] - q[i]);
    }
    const double mse = sum / (double(x.width()) * x.height() * 3);
    return mse == 0.0 ? 99.0 : 10.0 * std::log10(255.0 * 255.0 / mse);
}

} // namespace

// What the preview shows is what the encoder writes.
class TestEditedPicture : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString still;   // one picture for 4 s
    QString small;   // the same at another size
    QString srt;     // "Preview" from 1 s to 3 s
    FFPlayer *player = nullptr;

    // The player paused on its picture at `seconds`: a seek while paused
    // shows that very picture.
    bool showAt(const QString &source, double seconds)
    {
        player->stop();
        QSignalSpy pictures(player, &FFPlayer::videoChanged);
        player->open(source, QString(), -1);
        player->playPause();
        if (!pictures.wait(5000))
            return false;
        player->playPause();
        if (!QTest::qWaitFor([&] { return player->state() == 2; }, 5000))
            return false;
        pictures.clear();
        player->seek(seconds);
        return pictures.wait(5000);
    }

    // `input` as the program writes it: "-ss S -i FILE" or a title's options.
    QImage encoderFrame(const QStringList &input, const QString &chain)
    {
        const QString out = dir.filePath(QStringLiteral("encoded.png"));
        QFile::remove(out);
        QByteArray log;
        const int code = runTool(
            QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder"),
            QStringList{QStringLiteral("-y")} + input
                + QStringList{QStringLiteral("-vf"), chain, QStringLiteral("-vframes"),
                              QStringLiteral("1"), QStringLiteral("-vcodec"),
                              QStringLiteral("png"), QStringLiteral("-an"), out},
            &log, dir.path(), 60000);
        if (code != 0)
            qWarning("%s", log.constData());
        return QImage(out);
    }

private slots:
    void initTestCase()
    {
        still = dir.filePath(QStringLiteral("still.mkv"));
        small = dir.filePath(QStringLiteral("small.mkv"));
        srt = dir.filePath(QStringLiteral("words.srt"));
        for (const auto &[path, size] : {std::pair{still, QStringLiteral("320x240")},
                                          std::pair{small, QStringLiteral("160x120")}})
            QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                             {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                              QStringLiteral("lavfi"), QStringLiteral("-i"),
                              QStringLiteral("testsrc2=s=%1:r=25:d=0.04,loop=loop=99:size=1")
                                  .arg(size),
                              QStringLiteral("-c:v"), QStringLiteral("libx264"),
                              QStringLiteral("-qp"), QStringLiteral("0"),
                              QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"), path}),
                     0);
        QFile words(srt);
        QVERIFY(words.open(QIODevice::WriteOnly));
        words.write("1\n00:00:01,000 --> 00:00:03,000\nPreview\n\n");
        words.close();
        player = FFPlayer::instance();
    }

    void cleanup()
    {
        player->setPictureAdjust(0, 0, 0);
        player->setEffects({});
        player->setSubtitle(-1, QString());
        player->setAudioTrack(0);
        player->stop();
    }

    void previewEqualsTheEncodersFrame_data()
    {
        QTest::addColumn<QString>("source"); // empty: the still
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("brightness");
        QTest::addColumn<std::vector<int>>("effects");
        QTest::addColumn<QString>("subtitle"); // "file", "stream" or none
        QTest::newRow("picture values and two effects")
            << QString() << 2.0 << 30 << std::vector<int>{2, 5} << QString();
        QTest::newRow("a subtitle file burnt in")
            << QString() << 2.0 << 0 << std::vector<int>{} << QStringLiteral("file");
        QTest::newRow("picture values and a text stream of the source")
            << QStringLiteral("movie.mkv") << 1.0 << 20 << std::vector<int>{} << QStringLiteral("stream");
    }
    void previewEqualsTheEncodersFrame()
    {
        QFETCH(QString, source);
        QFETCH(double, seconds);
        QFETCH(int, brightness);
        QFETCH(std::vector<int>, effects);
        QFETCH(QString, subtitle);
        const QString path = source.isEmpty() ? still : fixture(mediaFixtures(), qPrintable(source));
        const int contrast = brightness ? -20 : 0;
        const int saturation = brightness ? 40 : 0;
        QFont font(QStringLiteral("DejaVu Sans"), 20);
        font.setBold(true);
        const QColor color(255, 220, 0);
        player->setPictureAdjust(brightness, contrast, saturation);
        player->setEffects(effects);
        if (subtitle == QLatin1String("file"))
            player->setSubtitleStyle(-1, srt, font, color, 0, 85);
        if (subtitle == QLatin1String("stream"))
            player->setSubtitle(0, QString());
        QVERIFY(showAt(path, seconds));
        const QImage preview = player->outputImage().copy();
        QVERIFY(psnr(preview, player->originalImage()) < 30); // the edits show

        QString chain = pictureEffectText(brightness, contrast, saturation, effects);
        if (subtitle == QLatin1String("file"))
            chain = subtitleFileText(font, color, 0, 85, -1, srt);
        QStringList input{QStringLiteral("-ss"), QString::number(seconds)};
        if (subtitle == QLatin1String("stream"))
            input << QStringLiteral("-subtitle") << QStringLiteral("0");
        const QImage encoded = encoderFrame(input << QStringLiteral("-i") << path,
                                            QStringLiteral("scale=320:240,") + chain);
        QVERIFY(!encoded.isNull());
        const double figure = psnr(preview, encoded);
        QVERIFY2(figure > 40.0, qPrintable(QStringLiteral("PSNR %1 dB").arg(figure)));
    }

    // Subpictures, in their own colours, as the encoder lays them on: a
    // disc title's, a file's stream and a VobSub file.
    void subpictureEqualsTheEncoders_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("pgc");
        QTest::addColumn<bool>("vobSub");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<bool>("shown");
        const QString file = QStringLiteral("subpicture.mkv");
        QTest::newRow("disc title, inside the subpicture")
            << QStringLiteral("dvd-main/VIDEO_TS/VTS_01_0.IFO") << 0 << false << 1.0 << true;
        QTest::newRow("stream of a file, begun before the seek") << file << -1 << false << 1.0 << true;
        QTest::newRow("VobSub, inside its interval") << file << -1 << true << 1.5 << true;
        QTest::newRow("VobSub, before it") << file << -1 << true << 0.5 << false;
    }
    void subpictureEqualsTheEncoders()
    {
        QFETCH(QString, source);
        QFETCH(int, pgc);
        QFETCH(bool, vobSub);
        QFETCH(double, seconds);
        QFETCH(bool, shown);
        const QString path = fixture(mediaFixtures(), qPrintable(source));
        const QString index = fixture(mediaFixtures(), "vobsub.idx");
        player->setAudioTrack(0);
        player->setSubtitle(0, vobSub ? index : QString());
        player->stop();
        QSignalSpy pictures(player, &FFPlayer::videoChanged);
        player->open(path, QString(), pgc);
        player->seek(seconds);
        player->playPause();
        QVERIFY(pictures.wait(5000));
        player->playPause();
        QTRY_COMPARE(player->state(), 2);
        const QImage preview = player->outputImage().copy();
        // The subpicture's box is white on the red picture.
        QCOMPARE(qGray(preview.pixel(160, 235)) > 200, shown);
        QVERIFY(qRed(preview.pixel(160, 300)) > 200 && qGreen(preview.pixel(160, 300)) < 80);
        QStringList input{QStringLiteral("-ss"), QString::number(seconds)};
        if (pgc >= 0)
            input << QStringLiteral("-pgc") << QString::number(pgc)
                  << QStringLiteral("-audio_track") << QStringLiteral("0");
        QString chain = QStringLiteral("scale=720:576");
        if (vobSub)
            chain += QLatin1Char(',') + subtitleFileText(QFont(), Qt::white, 0, 90, 0, index);
        else
            input << QStringLiteral("-subtitle") << QStringLiteral("0");
        const QImage encoded = encoderFrame(input << QStringLiteral("-i") << path, chain);
        const double figure = psnr(preview, encoded);
        QVERIFY2(figure > 40.0, qPrintable(QStringLiteral("PSNR %1 dB").arg(figure)));
    }

    // Outside its interval a subtitle leaves the picture alone.
    void subtitleShowsOnlyInItsInterval()
    {
        player->setSubtitleStyle(-1, srt, QFont(QStringLiteral("DejaVu Sans"), 20), Qt::white, 0,
                                 85);
        QVERIFY(showAt(still, 0.4));
        QImage edited = player->outputImage().copy();
        QCOMPARE(edited, player->originalImage());
        QVERIFY(showAt(still, 1.6));
        edited = player->outputImage().copy();
        QVERIFY(edited != player->originalImage());
    }

    void editsOutliveASizeChangeAndUndoToTheOriginal()
    {
        player->setPictureAdjust(0, 0, 0);
        player->setEffects({1}); // black and white
        QVERIFY(showAt(still, 1.0));
        QImage edited = player->outputImage().copy();
        QVERIFY(edited != player->originalImage());
        QVERIFY(showAt(small, 1.0));
        edited = player->outputImage().copy();
        QCOMPARE(edited.size(), QSize(160, 120));
        const QRgb colourful = player->originalImage().pixel(20, 20);
        QVERIFY(qRed(colourful) != qBlue(colourful));
        QCOMPARE(qRed(edited.pixel(20, 20)), qBlue(edited.pixel(20, 20)));
        player->setEffects({});
        edited = player->outputImage().copy();
        QCOMPARE(edited, player->originalImage());
    }
};

QTEST_GUILESS_MAIN(TestEditedPicture)
#include "tst_editedpicture.moc"
