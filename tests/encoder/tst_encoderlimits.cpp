#include "encoderlimits.h"

#include <QSet>
#include <QTest>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

// The front's table of encoder limits against the libavcodec and
// libavformat that ffmpeg loads: an FFmpeg upgrade that changes a limit
// shows here.
class TestEncoderLimits : public QObject
{
    Q_OBJECT

private slots:
    void audioEncodersAsLibavcodecHasThem_data();
    void audioEncodersAsLibavcodecHasThem();
    void standardFrameRates();
    void containerDefaults();
    void nearestValue();
};

void TestEncoderLimits::audioEncodersAsLibavcodecHasThem_data()
{
    QTest::addColumn<QString>("encoder");
    for (const QString &name : EncoderLimits::audioEncoders())
        QTest::newRow(qPrintable(name)) << name;
}

void TestEncoderLimits::audioEncodersAsLibavcodecHasThem()
{
    QFETCH(QString, encoder);
    const AVCodec *codec = avcodec_find_encoder_by_name(encoder.toLatin1().constData());
    QVERIFY2(codec, "this FFmpeg has no such encoder");
    QVERIFY(codec->type == AVMEDIA_TYPE_AUDIO);

    QSet<int> rates;
    for (const int *rate = codec->supported_samplerates; rate && *rate; ++rate)
        rates.insert(*rate);
    const QList<int> table = EncoderLimits::sampleRates(encoder);
    QCOMPARE(QSet<int>(table.begin(), table.end()), rates);

    // Channels: some encoders list their layouts, others check when they
    // open; so open them.
    auto opens = [codec](int channels, int sampleRate, int bitRate) {
        AVCodecContext *context = avcodec_alloc_context3(codec);
        context->sample_fmt = codec->sample_fmts[0];
        context->sample_rate = sampleRate;
        // ffmpeg takes the encoder's own layout for a channel count where it has one.
        av_channel_layout_default(&context->ch_layout, channels);
        for (const AVChannelLayout *layout = codec->ch_layouts; layout && layout->nb_channels;
             ++layout) {
            if (layout->nb_channels == channels)
                av_channel_layout_copy(&context->ch_layout, layout);
        }
        context->bit_rate = bitRate;
        const int result = avcodec_open2(context, codec, nullptr);
        avcodec_free_context(&context);
        return result == 0;
    };
    const int rate = table.isEmpty() ? 44100 : table.first();
    // Vorbis runs on its quality scale, as the front asks for it.
    const int bitRate = codec->id == AV_CODEC_ID_VORBIS ? 0 : 128000;
    const int most = EncoderLimits::maxChannels(encoder);
    QVERIFY2(opens(2, rate, bitRate), "stereo");
    QVERIFY2(opens(most > 0 ? most : 8, rate, bitRate), qPrintable(QString::number(most)));
    QVERIFY2(most == 0 || !opens(most + 1, rate, bitRate), qPrintable(QString::number(most + 1)));
    // Every bit rate of the table is one the encoder opens with.
    for (const int sampleRate : table) {
        for (const int kbits : EncoderLimits::audioBitRates(encoder, sampleRate))
            QVERIFY2(opens(2, sampleRate, kbits * 1000),
                     qPrintable(QStringLiteral("%1 kbit/s at %2 Hz").arg(kbits).arg(sampleRate)));
    }
}

void TestEncoderLimits::standardFrameRates()
{
    for (const QString &name : EncoderLimits::videoEncoders()) {
        const AVCodec *codec = avcodec_find_encoder_by_name(name.toLatin1().constData());
        QVERIFY2(codec && codec->supported_framerates, qPrintable(name));
        // These are the rates it opens with under the standard's rules.
        QList<QPair<int, int>> standard;
        for (const AVRational *rate = codec->supported_framerates; rate->num; ++rate) {
            if (rate->num < 20 * rate->den)
                break; // the unofficial rates that follow need -strict
            standard << qMakePair(rate->num, rate->den);
        }
        QCOMPARE(EncoderLimits::frameRates(name), standard);
    }
    QVERIFY(EncoderLimits::frameRates(QStringLiteral("libx264")).isEmpty());
    const AVCodec *mpeg1 = avcodec_find_encoder_by_name("mpeg1video");
    auto opens = [mpeg1](AVRational rate) {
        AVCodecContext *context = avcodec_alloc_context3(mpeg1);
        context->width = 352;
        context->height = 240;
        context->pix_fmt = AV_PIX_FMT_YUV420P;
        context->time_base = av_inv_q(rate);
        context->framerate = rate;
        const int result = avcodec_open2(context, mpeg1, nullptr);
        avcodec_free_context(&context);
        return result == 0;
    };
    for (const auto &rate : EncoderLimits::frameRates(QStringLiteral("mpeg1video")))
        QVERIFY(opens(AVRational{rate.first, rate.second}));
    QVERIFY(!opens(AVRational{15, 1}));
}

void TestEncoderLimits::containerDefaults()
{
    for (const QString &name : EncoderLimits::containerNames()) {
        const QByteArray file = QByteArray("out.") + name.toLatin1();
        const AVOutputFormat *muxer = av_guess_format(nullptr, file.constData(), nullptr);
        QVERIFY2(muxer, qPrintable(name));
        const AVCodec *audio = avcodec_find_encoder(muxer->audio_codec);
        QVERIFY2(audio, qPrintable(name));
        QCOMPARE(EncoderLimits::defaultAudioEncoder(QString::fromLatin1(file), QString()),
                 QString::fromLatin1(audio->name));
        const QString video = EncoderLimits::defaultVideoEncoder(QString::fromLatin1(file), {});
        if (!video.isEmpty()) {
            const AVCodec *codec = avcodec_find_encoder(muxer->video_codec);
            QVERIFY2(codec, qPrintable(name));
            QCOMPARE(video, QString::fromLatin1(codec->name));
        }
    }
    // A -f format counts ahead of the extension.
    QCOMPARE(EncoderLimits::defaultAudioEncoder(QStringLiteral("out.bin"), QStringLiteral("dv")),
             QStringLiteral("pcm_s16le"));
    QVERIFY(EncoderLimits::defaultAudioEncoder(QStringLiteral("out.mp4"), {}).isEmpty());
}

void TestEncoderLimits::nearestValue()
{
    const QList<int> rates{48000, 44100, 32000};
    QCOMPARE(EncoderLimits::nearest(rates, 22050), 32000);
    QCOMPARE(EncoderLimits::nearest(rates, 46050), 48000); // a tie goes up
    QCOMPARE(EncoderLimits::nearest(rates, 96000), 48000);
    QCOMPARE(EncoderLimits::nearest({}, 1234), 1234);
}

QTEST_GUILESS_MAIN(TestEncoderLimits)
#include "tst_encoderlimits.moc"
