#include "ffmpegtools.h"
#include "filtertranslator.h"
#include "utils.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestFilterTranslator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void translates_data();
    void translates();
    void hexRoundTrip();
    void everyEffectRunsAndChangesThePicture_data();
    void everyEffectRunsAndChangesThePicture();
    void awkwardPathsReachFfmpeg_data();
    void awkwardPathsReachFfmpeg();

private:
    // Runs the graph on a still test picture; the first frame, 160x120.
    QImage render(const QString &graph);
    QTemporaryDir dir;
    QImage plain;
};

void TestFilterTranslator::initTestCase()
{
    plain = render(QStringLiteral("scale=160:120"));
    QVERIFY(!plain.isNull());
}

QImage TestFilterTranslator::render(const QString &graph)
{
    const QString out = dir.filePath(QStringLiteral("frame.png"));
    QFile::remove(out);
    QByteArray log;
    const int code
        = runTool(QStringLiteral("ffmpeg"),
                  {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
                   QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                   QStringLiteral("testsrc2=s=320x240:d=0.1"), QStringLiteral("-vf"), graph,
                   QStringLiteral("-frames:v"), QStringLiteral("1"), QStringLiteral("-y"), out},
                  &log);
    if (code != 0)
        qWarning("%s", log.constData());
    QImage image(out);
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGB888);
}

void TestFilterTranslator::translates_data()
{
    QTest::addColumn<QString>("chain");
    QTest::addColumn<QString>("graph");
    QTest::addColumn<QString>("note");
    QTest::newRow("crop scale pad pass through")
        << QStringLiteral("crop=704:464:8:8,scale=640:422,pad=640:480:0:28")
        << QStringLiteral("crop=704:464:8:8,scale=640:422,pad=640:480:0:28") << QString();
    QTest::newRow("picture and effects in order")
        << QStringLiteral("scale=320:240,effect2=10:-20:30:13a5a")
        << QStringLiteral(
               "scale=320:240,eq=brightness=0.05:contrast=0.8:saturation=1.3,hflip,negate")
        << QString();
    QTest::newRow("effects alone") << QStringLiteral("scale=320:240,effect2=0:0:0:1a")
                                   << QStringLiteral("scale=320:240,hue=s=0") << QString();
    QTest::newRow("neutral picture adds nothing") << QStringLiteral("scale=320:240,effect2=0:0:0")
                                                  << QStringLiteral("scale=320:240") << QString();
    QTest::newRow("unknown effect")
        << QStringLiteral("scale=320:240,effect2=0:0:0:99a14a")
        << QStringLiteral("scale=320:240,vflip") << QStringLiteral("unknown effect 99");
    QTest::newRow("watermark")
        << QStringLiteral("scale=320:240,watermark2=10:20:") + hexText(QStringLiteral("/tmp/w.png"))
        << QStringLiteral("scale=320:240[kv0];movie=filename=/tmp/w.png,format=rgba[kw0];"
                          "[kv0][kw0]overlay=x=10:y=20:format=auto")
        << QString();
    QTest::newRow("watermark then effect")
        << QStringLiteral("scale=320:240,watermark2=1:2:") + hexText(QStringLiteral("/w.png"))
               + QStringLiteral(",effect2=0:0:0:5a")
        << QStringLiteral("scale=320:240[kv0];movie=filename=/"
                          "w.png,format=rgba[kw0];[kv0][kw0]overlay=x=1:y=2:format=auto,negate")
        << QString();
    QTest::newRow("subtitle")
        << QStringLiteral("scale=320:240,subtitle=") + hexText(QStringLiteral("DejaVu Sans"))
               + QStringLiteral(":20:3:255x0x16:127:90:-1:") + hexText(QStringLiteral("/s.srt"))
        << QStringLiteral(
               "scale=320:240,subtitles=filename=/s.srt:force_style=FontName=DejaVu Sans\\,"
               "FontSize=20\\,Bold=-1\\,Italic=-1\\,PrimaryColour=&H801000FF\\,Alignment=2\\,"
               "MarginV=28")
        << QString();
    QTest::newRow("subtitle with track")
        << QStringLiteral("scale=8:8,subtitle=41:10:0:0x0x0:255:100:2:")
               + hexText(QStringLiteral("/m.mkv"))
        << QStringLiteral("scale=8:8,subtitles=filename=/m.mkv:si=2:force_style=FontName=A\\,"
                          "FontSize=10\\,Bold=0\\,Italic=0\\,PrimaryColour=&H00000000\\,"
                          "Alignment=2\\,MarginV=0")
        << QString();
    QTest::newRow("subtitle missing values")
        << QStringLiteral("scale=8:8,subtitle=41:10") << QStringLiteral("scale=8:8")
        << QStringLiteral("needs 8 values");
    QTest::newRow("unknown filter") << QStringLiteral("scale=8:8,boxblur=2")
                                    << QStringLiteral("scale=8:8") << QStringLiteral("boxblur");
}

void TestFilterTranslator::translates()
{
    QFETCH(QString, chain);
    QFETCH(QString, graph);
    QFETCH(QString, note);
    const auto result = FilterTranslator::translate(chain);
    QCOMPARE(result.graph, graph);
    if (note.isEmpty())
        QVERIFY(result.notes.isEmpty());
    else
        QVERIFY2(result.notes.join(QLatin1Char('\n')).contains(note),
                 qPrintable(result.notes.join(QLatin1Char('\n'))));
}

void TestFilterTranslator::hexRoundTrip()
{
    const QString text = QStringLiteral("/tmp/Vidéos d'été: [1], a;b\\c");
    const QString hex = hexText(text);
    QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-f]+$")).match(hex).hasMatch());
    QCOMPARE(fromHexText(hex), text);
}

void TestFilterTranslator::everyEffectRunsAndChangesThePicture_data()
{
    QTest::addColumn<int>("type");
    for (int type = 1; type <= 18; ++type)
        QTest::addRow("effect %d", type) << type;
}

void TestFilterTranslator::everyEffectRunsAndChangesThePicture()
{
    QFETCH(int, type);
    const QString chain = QStringLiteral("scale=160:120,effect2=0:0:0:%1a").arg(type);
    const auto result = FilterTranslator::translate(chain);
    QVERIFY(result.notes.isEmpty());
    const QImage image = render(result.graph);
    QVERIFY(!image.isNull());
    QCOMPARE(image.size(), QSize(160, 120));
    QVERIFY2(differingShare(image, plain, 12) > 0.02, "the effect leaves the picture as it was");
}

void TestFilterTranslator::awkwardPathsReachFfmpeg_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("mark");
    QTest::newRow("blanks and accents") << QStringLiteral("mé mark été");
    QTest::newRow("filter syntax") << QStringLiteral("a'b:c,d;e[f]g\\h");
}

void TestFilterTranslator::awkwardPathsReachFfmpeg()
{
    QFETCH(QString, name);
    QDir(dir.path()).mkpath(name);
    const QString folder = dir.filePath(name);

    // A watermark: a pure green block at 10,20.
    QImage mark(30, 20, QImage::Format_ARGB32);
    mark.fill(QColor(0, 255, 0));
    const QString markPath = folder + QStringLiteral("/w ") + name + QStringLiteral(".png");
    QVERIFY(mark.save(markPath));
    const auto marked = FilterTranslator::translate(
        QStringLiteral("scale=160:120,watermark2=10:20:") + hexText(markPath));
    const QImage withMark = render(marked.graph);
    QVERIFY(!withMark.isNull());
    QCOMPARE(QColor(withMark.pixel(25, 30)), QColor(0, 255, 0));
    QCOMPARE(differingShare(withMark.copy(50, 50, 100, 60), plain.copy(50, 50, 100, 60), 8), 0.0);

    // A subtitle file, burnt in near the bottom.
    const QString srtPath = folder + QStringLiteral("/s ") + name + QStringLiteral(".srt");
    QFile srt(srtPath);
    QVERIFY(srt.open(QIODevice::WriteOnly));
    srt.write("1\n00:00:00,000 --> 00:00:05,000\nWWWWWWWW\n\n");
    srt.close();
    const auto subtitled = FilterTranslator::translate(
        QStringLiteral("scale=160:120,subtitle=%1:24:1:255x0x255:255:90:-1:%2")
            .arg(hexText(QStringLiteral("DejaVu Sans")), hexText(srtPath)));
    const QImage withText = render(subtitled.graph);
    QVERIFY(!withText.isNull());
    const double changed = differingShare(withText, plain);
    QVERIFY2(changed > 0.01, qPrintable(QString::number(changed)));
    // Near the bottom, not at the top.
    QCOMPARE(differingShare(withText.copy(0, 0, 160, 40), plain.copy(0, 0, 160, 40)), 0.0);
}

QTEST_GUILESS_MAIN(TestFilterTranslator)
#include "tst_filtertranslator.moc"
