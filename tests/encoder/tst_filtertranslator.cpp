#include "ffmpegtools.h"
#include "filtertranslator.h"
#include "utils.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestFilterTranslator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void translates_data();
    void translates();
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

namespace {

// Text between < and > stands for its hexadecimal form, as the program writes it.
QString hexed(const char *chain)
{
    QString text = QString::fromUtf8(chain);
    const QRegularExpression quoted(QStringLiteral("<([^>]*)>"));
    for (QRegularExpressionMatch m; (m = quoted.match(text)).hasMatch();)
        text.replace(m.capturedStart(), m.capturedLength(), hexText(m.captured(1)));
    return text;
}

struct Case
{
    const char *name, *chain, *graph, *note = "";
};

const Case cases[] = {
    {"crop scale pad pass through", "crop=704:464:8:8,scale=640:422,pad=640:480:0:28",
     "crop=704:464:8:8,scale=640:422,pad=640:480:0:28"},
    {"picture and effects in order", "scale=320:240,effect2=10:-20:30:13a5a",
     "scale=320:240,eq=brightness=0.05:contrast=0.8:saturation=1.3,hflip,negate"},
    {"effects alone", "scale=320:240,effect2=0:0:0:1a", "scale=320:240,hue=s=0"},
    {"neutral picture adds nothing", "scale=320:240,effect2=0:0:0", "scale=320:240"},
    {"unknown effect", "scale=320:240,effect2=0:0:0:99a14a", "scale=320:240,vflip",
     "unknown effect 99"},
    {"watermark", "scale=320:240,watermark2=10:20:</tmp/w.png>",
     "scale=320:240[kv0];movie=filename=/tmp/w.png,format=rgba[kw0];"
     "[kv0][kw0]overlay=x=10:y=20:format=auto"},
    {"watermark then effect", "scale=320:240,watermark2=1:2:</w.png>,effect2=0:0:0:5a",
     "scale=320:240[kv0];movie=filename=/w.png,format=rgba[kw0];"
     "[kv0][kw0]overlay=x=1:y=2:format=auto,negate"},
    {"subtitle", "scale=320:240,subtitle=<DejaVu Sans>:20:3:255x0x16:127:90:-1:</s.srt>",
     "scale=320:240,subtitles=filename=/s.srt:force_style=FontName=DejaVu Sans\\,FontSize=20\\,"
     "Bold=-1\\,Italic=-1\\,PrimaryColour=&H801000FF\\,Alignment=2\\,MarginV=28"},
    {"subtitle with track", "scale=8:8,subtitle=41:10:0:0x0x0:255:100:2:</m.mkv>",
     "scale=8:8,subtitles=filename=/m.mkv:si=2:force_style=FontName=A\\,FontSize=10\\,Bold=0\\,"
     "Italic=0\\,PrimaryColour=&H00000000\\,Alignment=2\\,MarginV=0"},
    {"subtitle missing values", "scale=8:8,subtitle=41:10", "scale=8:8", "needs 8 values"},
    {"unknown filter", "scale=8:8,boxblur=2", "scale=8:8", "boxblur"},
};

} // namespace

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
    if (runTool(QStringLiteral("ffmpeg"),
                QStringLiteral("-nostdin -v error -f lavfi -i testsrc2=s=320x240:d=0.1 -frames:v 1 -y")
                        .split(QLatin1Char(' '))
                    << QStringLiteral("-vf") << graph << out,
                &log)
        != 0)
        qWarning("%s", log.constData());
    QImage image(out);
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGB888);
}

void TestFilterTranslator::translates_data()
{
    QTest::addColumn<QString>("chain");
    QTest::addColumn<QString>("graph");
    QTest::addColumn<QString>("note");
    for (const Case &c : cases)
        QTest::newRow(c.name) << hexed(c.chain) << c.graph << c.note;
}

void TestFilterTranslator::translates()
{
    QFETCH(QString, chain);
    QFETCH(QString, note);
    const auto result = FilterTranslator::translate(chain);
    QTEST(result.graph, "graph");
    const QString notes = result.notes.join(QLatin1Char('\n'));
    QVERIFY2(notes.isEmpty() == note.isEmpty() && notes.contains(note), qPrintable(notes));
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
    const auto result
        = FilterTranslator::translate(QStringLiteral("scale=160:120,effect2=0:0:0:%1a").arg(type));
    QVERIFY(result.notes.isEmpty());
    const QImage image = render(result.graph);
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
    QVERIFY(QDir(dir.path()).mkpath(name));
    const QString folder = dir.filePath(name);

    // A watermark: a pure green block at 10,20.
    QImage mark(30, 20, QImage::Format_ARGB32);
    mark.fill(QColor(0, 255, 0));
    const QString markPath = folder + QStringLiteral("/w ") + name + QStringLiteral(".png");
    QVERIFY(mark.save(markPath));
    const QImage withMark = render(FilterTranslator::translate(
        QStringLiteral("scale=160:120,watermark2=10:20:") + hexText(markPath)).graph);
    QVERIFY(!withMark.isNull());
    QCOMPARE(QColor(withMark.pixel(25, 30)), QColor(0, 255, 0));
    QCOMPARE(differingShare(withMark.copy(50, 50, 100, 60), plain.copy(50, 50, 100, 60), 8), 0.0);

    // A subtitle file, burnt in near the bottom, not at the top.
    const QString srtPath = folder + QStringLiteral("/s ") + name + QStringLiteral(".srt");
    QFile srt(srtPath);
    QVERIFY(srt.open(QIODevice::WriteOnly));
    srt.write("1\n00:00:00,000 --> 00:00:05,000\nWWWWWWWW\n\n");
    srt.close();
    const QImage withText = render(FilterTranslator::translate(
        QStringLiteral("scale=160:120,subtitle=%1:24:1:255x0x255:255:90:-1:%2")
            .arg(hexText(QStringLiteral("DejaVu Sans")), hexText(srtPath))).graph);
    const double changed = differingShare(withText, plain);
    QVERIFY2(changed > 0.01, qPrintable(QString::number(changed)));
    QCOMPARE(differingShare(withText.copy(0, 0, 160, 40), plain.copy(0, 0, 160, 40)), 0.0);
}

QTEST_GUILESS_MAIN(TestFilterTranslator)
#include "tst_filtertranslator.moc"
