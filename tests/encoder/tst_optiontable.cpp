#include "encoderjob.h"
#include "optiontable.h"

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

// Every row of the translation table: what the old dialect says, what stock
// ffmpeg is told instead, and that ffmpeg really accepts it.
class TestOptionTable : public QObject
{
    Q_OBJECT

private slots:
    void translates_data();
    void translates();
    void everyRowHasACase();
    void unknownOptionsPassThrough();

private:
    QSet<QString> covered;
    QTemporaryDir dir;
};

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const QString matrix = [] {
    QStringList values;
    for (int i = 0; i < 64; ++i)
        values << QStringLiteral("16");
    return values.join(QLatin1Char(','));
}();

} // namespace

void TestOptionTable::translates_data()
{
    QTest::addColumn<QStringList>("written");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("videoFilters");
    QTest::addColumn<QString>("audioFilters");
    QTest::addColumn<QString>("note");
    QTest::addColumn<bool>("runnable");
    QTest::addColumn<QStringList>("inputArgs");

    auto row = [this](const char *name, const QStringList &written, const QStringList &expected,
                      const QString &video = QString(), const QString &audio = QString(),
                      const QString &note = QString(), bool runnable = true,
                      const QStringList &inputArgs = QStringList()) {
        for (const QString &word : written) {
            if (word.startsWith(QLatin1Char('-')) && word.size() > 1 && !word[1].isDigit())
                covered << word.mid(1);
        }
        QTest::newRow(name) << written << expected << video << audio << note << runnable
                            << inputArgs;
    };
    // Codecs
    row("vcodec cuh264", words("-vcodec cuh264"), words("-c:v h264_nvenc"), {}, {}, {}, false);
    row("vcodec plain", words("-vcodec mpeg4"), words("-c:v mpeg4"));
    row("vcodec wmv1x", words("-vcodec wmv1x"), words("-c:v wmv1"));
    row("vcodec wmv2x", words("-vcodec wmv2x"), words("-c:v wmv2"));
    row("vcodec wmv3x", words("-vcodec wmv3x"), words("-c:v wmv2"), {}, {},
        QStringLiteral("WMV 9"));
    row("vcodec realvideo", words("-vcodec realvideo"), words("-c:v rv20"));
    row("vcodec vp8", words("-vcodec vp8"), words("-c:v libvpx"));
    row("vcodec xvid", words("-vcodec xvid"), words("-c:v libxvid"));
    row("acodec libfaac", words("-acodec libfaac"), words("-c:a aac"));
    row("acodec mpeg4aac", words("-acodec mpeg4aac"), words("-c:a aac"));
    row("acodec mp3", words("-acodec mp3"), words("-c:a libmp3lame"));
    row("acodec amr", words("-acodec libopencore_amrnb"), words("-c:a aac"), {}, {},
        QStringLiteral("AMR-NB"));
    row("acodec libamr_nb", words("-acodec libamr_nb"), words("-c:a aac"), {}, {},
        QStringLiteral("AMR-NB"));
    row("acodec wma7x", words("-acodec wma7x"), words("-c:a wmav2"));
    row("acodec wma8x", words("-acodec wma8x"), words("-c:a wmav2"));
    row("acodec wma9x", words("-acodec wma9x"), words("-c:a wmav2"), {}, {},
        QStringLiteral("WMA 9"));
    row("acodec wmalsl", words("-acodec wmalsl"), words("-c:a wmav2"), {}, {},
        QStringLiteral("Lossless"));
    row("acodec vorbis", words("-acodec vorbis"), words("-c:a libvorbis"));
    row("vprofile", words("-vcodec libx264 -vprofile baseline"),
        words("-c:v libx264 -profile:v baseline"));
    row("preset x264", words("-vcodec libx264 -preset superfast"),
        words("-c:v libx264 -preset superfast"));
    row("preset nvenc", words("-vcodec cuh264 -preset superfast"),
        words("-c:v h264_nvenc -preset p2"), {}, {}, {}, false);
    row("vtag", words("-vtag DX50"), words("-tag:v DX50"));
    row("ab", words("-ab 128k"), words("-b:a 128k"));
    row("qscale", words("-qscale 4"), words("-q:v 4"));
    row("sameq mpeg4", words("-sameq -vcodec mpeg4"), words("-c:v mpeg4 -q:v 2"));
    row("sameq x264", words("-sameq -vcodec libx264"), words("-c:v libx264 -crf 18"));
    row("flags kept", words("-flags +ilme+ildct"), words("-flags +ilme+ildct"));
    row("flags moved", words("-flags +umv+obmc+scan_offset+qpel"),
        words("-umv 1 -obmc 1 -flags +qpel"), {}, {}, QStringLiteral("scan_offset"));
    row("flags part aic alt aiv", words("-flags +part+aic+alt+aiv"),
        words("-data_partitioning 1 -alternate_scan 1 -aiv 1 -flags +aic"));
    row("map_meta_data", words("-map_meta_data -1:0"), words("-map_metadata -1"));
    // Options that became filters
    row("deinterlace", words("-deinterlace"), {}, QStringLiteral("yadif"));
    row("vol louder", words("-vol 384"), {}, {}, QStringLiteral("volume=1.5"));
    row("vol normal", words("-vol 256"), {});
    row("async", words("-async 1"), {}, {}, QStringLiteral("aresample=async=1"));
    row("intra", words("-intra"), words("-g 1"));
    row("error", words("-error 5"), words("-error_rate 5"));
    row("nr", words("-nr 100"), words("-noise_reduction 100"));
    // Gone without a successor
    for (const char *gone : {"me_threshold", "mb_threshold", "pbias", "preme", "qns", "er"})
        row(gone, {QLatin1Char('-') + QLatin1String(gone), QStringLiteral("1")}, {}, {}, {},
            QLatin1Char('-') + QLatin1String(gone));
    // Still ffmpeg's own
    const QList<QPair<const char *, QString>> kept = {
        {"g", QStringLiteral("250")},
        {"coder", QStringLiteral("1")},
        {"pix_fmt", QStringLiteral("yuv420p")},
        {"qmin", QStringLiteral("2")},
        {"qmax", QStringLiteral("31")},
        {"lmin", QStringLiteral("118")},
        {"lmax", QStringLiteral("3658")},
        {"qdiff", QStringLiteral("3")},
        {"qblur", QStringLiteral("0.5")},
        {"qcomp", QStringLiteral("0.5")},
        {"rc_init_cplx", QStringLiteral("0")},
        {"b_qfactor", QStringLiteral("1.25")},
        {"i_qfactor", QStringLiteral("-0.8")},
        {"b_qoffset", QStringLiteral("1.25")},
        {"i_qoffset", QStringLiteral("0")},
        {"ibias", QStringLiteral("0")},
        {"rc_eq", QStringLiteral("tex^qComp")},
        {"rc_override", QStringLiteral("0,10,2")},
        {"bf", QStringLiteral("2")},
        {"mbd", QStringLiteral("2")},
        {"mbcmp", QStringLiteral("sad")},
        {"ildctcmp", QStringLiteral("sad")},
        {"subcmp", QStringLiteral("sad")},
        {"cmp", QStringLiteral("sad")},
        {"precmp", QStringLiteral("sad")},
        {"lumi_mask", QStringLiteral("0.1")},
        {"dark_mask", QStringLiteral("0.1")},
        {"scplx_mask", QStringLiteral("0.1")},
        {"tcplx_mask", QStringLiteral("0.1")},
        {"p_mask", QStringLiteral("0.1")},
        {"ps", QStringLiteral("0")},
        {"strict", QStringLiteral("experimental")},
        {"intra_matrix", matrix},
        {"inter_matrix", matrix},
        {"top", QStringLiteral("1")},
        {"sc_threshold", QStringLiteral("0")},
        {"me_range", QStringLiteral("16")},
        {"dc", QStringLiteral("8")},
        {"pred", QStringLiteral("1")},
        {"b:v", QStringLiteral("500000")},
        {"r", QStringLiteral("25")},
        {"threads", QStringLiteral("2")},
        {"aspect", QStringLiteral("4:3")},
        {"ac", QStringLiteral("2")},
        {"ar", QStringLiteral("44100")},
        {"metadata", QStringLiteral("title=a b")},
    };
    for (const auto &[name, value] : kept) {
        const QStringList pair{QLatin1Char('-') + QLatin1String(name), value};
        row(name, pair, pair);
    }
    row("bf without a value", words("-bf -g 12"), words("-g 12"), {}, {},
        QStringLiteral("-bf without a value"));
    // Decoding options move in front of the inputs.
    row("ec", words("-ec guess_mvs"), {}, {}, {}, {}, true, words("-ec guess_mvs"));
    row("bug", words("-bug autodetect"), {}, {}, {}, {}, true, words("-bug autodetect"));
    for (const char *flag : {"vn", "an", "sn", "psnr", "vstats"}) {
        const QStringList single{QLatin1Char('-') + QLatin1String(flag)};
        row(flag, single, single);
    }
}

void TestOptionTable::translates()
{
    QFETCH(QStringList, written);
    QFETCH(QStringList, expected);
    QFETCH(QString, videoFilters);
    QFETCH(QString, audioFilters);
    QFETCH(QString, note);
    QFETCH(bool, runnable);
    QFETCH(QStringList, inputArgs);

    QString error;
    const auto job = EncoderJob::parse(QStringList{QStringLiteral("-i"), QStringLiteral("in.mkv")}
                                           + written + QStringList{QStringLiteral("out.mkv")},
                                       &error);
    QVERIFY2(job, qPrintable(error));
    QCOMPARE(job->outputPath, QStringLiteral("out.mkv"));
    // The picture format and the deinterlacing fitted to every source are the
    // job's, not the table's.
    QStringList translated = job->output.args;
    const int format = translated.indexOf(QStringLiteral("-pix_fmt"));
    if (!written.contains(QStringLiteral("-pix_fmt")) && format >= 0)
        translated.remove(format, 2);
    QStringList preFilters = job->output.preFilters;
    preFilters.removeIf([](const QString &filter) { return filter.startsWith(QLatin1String("bwdif")); });
    QCOMPARE(translated, expected);
    QCOMPARE(job->output.inputArgs, inputArgs);
    QCOMPARE(preFilters.join(QLatin1Char(',')), videoFilters);
    QCOMPARE(job->output.audioFilters.join(QLatin1Char(',')), audioFilters);
    // Whatever changes is said; what stands as written, or in ffmpeg's newer
    // spelling of the same option, is not.
    const QString notes = job->notes.join(QLatin1Char('\n'));
    const QStringList respelt = QStringList(expected)
                                    .replaceInStrings(QStringLiteral("-c:v"), QStringLiteral("-vcodec"))
                                    .replaceInStrings(QStringLiteral("-c:a"), QStringLiteral("-acodec"));
    QVERIFY2(job->notes.isEmpty() == (written == respelt), qPrintable(notes));
    QVERIFY2(notes.contains(note), qPrintable(notes));

    if (!runnable
        || (expected.isEmpty() && videoFilters.isEmpty() && audioFilters.isEmpty()
            && inputArgs.isEmpty()))
        return;
    // The ffmpeg we run must take the translation as it stands.
    // Decoding options need a decoder: a small encoded file as the video input.
    const QString clip = dir.filePath(QStringLiteral("clip.mkv"));
    if (!QFile::exists(clip))
        QCOMPARE(
            QProcess::execute(
                QStringLiteral("ffmpeg"),
                words("-nostdin -v error -f lavfi -i testsrc2=s=64x48:d=0.2 -c:v mpeg4") << clip),
            0);
    QStringList args{QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error")};
    args << inputArgs << QStringLiteral("-i") << clip;
    args << QStringList{QStringLiteral("-f"),   QStringLiteral("lavfi"),
                        QStringLiteral("-i"),   QStringLiteral("sine=d=0.2"),
                        QStringLiteral("-c:v"), QStringLiteral("mpeg4"),
                        QStringLiteral("-c:a"), QStringLiteral("aac")};
    if (!videoFilters.isEmpty())
        args << QStringLiteral("-vf") << videoFilters;
    if (!audioFilters.isEmpty())
        args << QStringLiteral("-af") << audioFilters;
    args << expected << QStringLiteral("-f") << QStringLiteral("null") << QStringLiteral("-");
    QProcess ffmpeg;
    ffmpeg.setWorkingDirectory(dir.path()); // -vstats writes beside it
    ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
    ffmpeg.start(QStringLiteral("ffmpeg"), args);
    QVERIFY(ffmpeg.waitForFinished(30000));
    QVERIFY2(ffmpeg.exitCode() == 0, ffmpeg.readAll().constData());
}

void TestOptionTable::everyRowHasACase()
{
    const QStringList known = OptionTable::knownOptions();
    QVERIFY(known.size() > 60);
    for (const QString &name : known)
        QVERIFY2(covered.contains(name), qPrintable(QStringLiteral("no case for -%1").arg(name)));
}

void TestOptionTable::unknownOptionsPassThrough()
{
    QString error;
    const auto job = EncoderJob::parse(
        words("-i in.mkv -movflags +faststart -tune film -shortest out.mp4"), &error);
    QVERIFY2(job, qPrintable(error));
    QCOMPARE(job->output.args, words("-movflags +faststart -tune film -shortest"));
    QVERIFY(job->notes.isEmpty());
}

QTEST_GUILESS_MAIN(TestOptionTable)
#include "tst_optiontable.moc"
