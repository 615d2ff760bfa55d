#include "encoderjob.h"
#include "ffmpegtools.h"
#include "optiontable.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

// What the old dialect says, what stock ffmpeg is told instead, and that
// ffmpeg really accepts it.
class TestOptionTable : public QObject
{
    Q_OBJECT

private slots:
    void translates_data();
    void translates();

private:
    QTemporaryDir dir;
};

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

struct Case
{
    const char *written, *expected, *note = "";
};

// Every option that changes; any other option of the table must stand as
// written. Decoding options come first, filters last.
const Case changed[] = {
    {"-vcodec cuh264", "-c:v h264_nvenc"},
    {"-vcodec mpeg4", "-c:v mpeg4"},
    {"-vcodec wmv3x", "-c:v wmv2", "WMV 9"},
    {"-vcodec xvid", "-c:v libxvid"},
    {"-acodec libfaac", "-c:a aac"},
    {"-acodec libamr_nb", "-c:a aac", "AMR-NB"},
    {"-acodec vorbis", "-c:a libvorbis"},
    {"-vcodec libx264 -vprofile baseline", "-c:v libx264 -profile:v baseline"},
    {"-vcodec cuh264 -preset superfast", "-c:v h264_nvenc -preset p2"},
    {"-vtag DX50", "-tag:v DX50"},
    {"-ab 128k", "-b:a 128k"},
    {"-qscale 4", "-q:v 4"},
    {"-sameq -vcodec mpeg4", "-c:v mpeg4 -q:v 2"},
    {"-sameq -vcodec libx264", "-c:v libx264 -crf 18"},
    {"-flags +ilme+ildct", "-flags +ilme+ildct"},
    {"-flags +umv+obmc+scan_offset+qpel", "-umv 1 -obmc 1 -flags +qpel", "scan_offset"},
    {"-flags +part+aic+alt+aiv", "-data_partitioning 1 -alternate_scan 1 -aiv 1 -flags +aic"},
    {"-map_meta_data -1:0", "-map_metadata -1"},
    {"-deinterlace", "-vf yadif"},
    {"-vol 384", "-af volume=1.5"},
    {"-vol 256", ""},
    {"-async 1", "-af aresample=async=1"},
    {"-intra", "-g 1"},
    {"-error 5", "-error_rate 5"},
    {"-nr 100", "-noise_reduction 100"},
    {"-bf -g 12", "-g 12", "-bf without a value"},
    {"-ec guess_mvs", "-ec guess_mvs", "every input"},
    {"-bug autodetect", "-bug autodetect", "every input"},
    {"-me_threshold 1", "", "-me_threshold"}, {"-mb_threshold 1", "", "-mb_threshold"},
    {"-pbias 1", "", "-pbias"}, {"-preme 1", "", "-preme"},
    {"-qns 1", "", "-qns"}, {"-er 1", "", "-er"},
    // Not the table's: ffmpeg's own.
    {"-movflags +faststart -tune film -shortest", "-movflags +faststart -tune film -shortest"},
};

// Values for options that ffmpeg takes no "1" for.
const char *const values[][2] = {
    {"pix_fmt", "yuv420p"}, {"qmax", "31"}, {"lmax", "3658"},    {"dc", "8"},
    {"r", "25"},            {"ar", "44100"}, {"metadata", "title=a b"}, {"rc_override", "0,10,2"},
};

QString valueFor(const QString &name)
{
    for (const auto &value : values) {
        if (name == QLatin1String(value[0]))
            return QString::fromUtf8(value[1]);
    }
    return name.endsWith(QLatin1String("_matrix"))
               ? QStringList(64, QStringLiteral("16")).join(QLatin1Char(','))
               : QStringLiteral("1");
}

} // namespace

void TestOptionTable::translates_data()
{
    QTest::addColumn<QStringList>("written");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("note");
    QSet<QString> covered;
    for (const Case &c : changed) {
        for (const QString &word : words(c.written)) {
            if (word.startsWith(QLatin1Char('-')) && !word[1].isDigit())
                covered << word.mid(1);
        }
        QTest::newRow(c.written) << words(c.written) << words(c.expected) << c.note;
    }
    const QStringList known = OptionTable::knownOptions();
    QVERIFY(known.size() > 60);
    for (const QString &name : known) {
        QStringList kept{QLatin1Char('-') + name};
        if (OptionTable::arity(name) == OptionTable::Arity::One)
            kept << valueFor(name);
        if (!covered.contains(name))
            QTest::newRow(qPrintable(kept.join(QLatin1Char(' ')))) << kept << kept << QString();
    }
}

void TestOptionTable::translates()
{
    QFETCH(QStringList, written);
    QFETCH(QStringList, expected);
    QFETCH(QString, note);
    QString error;
    const auto job = EncoderJob::parse(words("-i in.mkv") + written + words("out.mkv"), &error);
    QVERIFY2(job, qPrintable(error));
    QCOMPARE(job->outputPath, QStringLiteral("out.mkv"));
    const OutputOptions &out = job->output;
    auto withFilters = [&out](const QStringList &video) {
        QStringList args = out.args;
        if (!video.isEmpty())
            args << QStringLiteral("-vf") << video.join(QLatin1Char(','));
        if (!out.audioFilters.isEmpty())
            args << QStringLiteral("-af") << out.audioFilters.join(QLatin1Char(','));
        return args;
    };
    // The picture format and the deinterlacing fitted to every source are the
    // job's, not the table's.
    QStringList video = out.preFilters;
    video.removeIf([](const QString &filter) { return filter.startsWith(QLatin1String("bwdif")); });
    QStringList translated = out.inputArgs + withFilters(video);
    const int format = translated.indexOf(QStringLiteral("-pix_fmt"));
    if (!written.contains(QStringLiteral("-pix_fmt")) && format >= 0)
        translated.remove(format, 2);
    QCOMPARE(translated, expected);
    // Whatever changes is said; what stands as written, or in ffmpeg's newer
    // spelling of the same option, is not.
    const QString notes = job->notes.join(QLatin1Char('\n'));
    const QStringList respelt = QStringList(expected)
                                    .replaceInStrings(QStringLiteral("-c:v"), QStringLiteral("-vcodec"))
                                    .replaceInStrings(QStringLiteral("-c:a"), QStringLiteral("-acodec"));
    QVERIFY2(job->notes.isEmpty() == (written == respelt && out.inputArgs.isEmpty()),
             qPrintable(notes));
    QVERIFY2(notes.contains(note), qPrintable(notes));

    // The ffmpeg we run must take the translation as it stands (NVENC needs a GPU).
    if (out.videoCodec == QLatin1String("h264_nvenc"))
        return;
    // Decoding options need a decoder: a small encoded file as the video input.
    const QString clip = dir.filePath(QStringLiteral("clip.mkv"));
    if (!QFile::exists(clip))
        QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                         words("-v error -f lavfi -i testsrc2=s=64x48:d=0.2 -c:v mpeg4") << clip),
                 0);
    QByteArray log;
    // -vstats writes beside it.
    QVERIFY2(runTool(QStringLiteral("ffmpeg"),
                     words("-nostdin -v error") + out.inputArgs + QStringList{QStringLiteral("-i"), clip}
                         + words("-f lavfi -i sine=d=0.2 -c:v mpeg4 -c:a aac") + withFilters(out.preFilters)
                         + words("-f null -"),
                     &log, dir.path())
                 == 0,
             log.constData());
}

QTEST_GUILESS_MAIN(TestOptionTable)
#include "tst_optiontable.moc"
