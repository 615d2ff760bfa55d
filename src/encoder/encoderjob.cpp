#include "encoderjob.h"

#include "encoderlimits.h"
#include "filtertranslator.h"
#include "sideencoder.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSize>

#include <iterator>

namespace {

// How long before a file's seek point a subpicture may have begun and still show.
constexpr double subpictureLead = 30.0;

struct Token
{
    QString name; // without '-'; empty for a plain word
    QString value;
    bool hasValue = false;
};

bool looksLikeOption(const QString &word)
{
    // Negative numbers are values, not options.
    return word.size() > 1 && word[0] == QLatin1Char('-') && !word[1].isDigit()
           && word[1] != QLatin1Char('.');
}

const QStringList inputOptionNames
    = {QStringLiteral("ss"),       QStringLiteral("t"),   QStringLiteral("ast"),
       QStringLiteral("f"),        QStringLiteral("pgc"), QStringLiteral("audio_track"),
       QStringLiteral("subtitle"), QStringLiteral("si")};

// Whether the input that the option at `at` belongs to is a DVD title.
bool isTitleAhead(const QList<Token> &tokens, int at)
{
    for (int i = at; i < tokens.size() && tokens[i].name != QLatin1String("i"); ++i) {
        if (tokens[i].name == QLatin1String("pgc") && tokens[i].value.toInt() >= 0)
            return true;
    }
    return false;
}

QString outputSizeOf(const QString &chain)
{
    // The last scale or pad of the chain gives the frame size.
    const QRegularExpression size(QStringLiteral("(?:scale|pad)=(\\d+):(\\d+)"));
    QString found;
    auto it = size.globalMatch(chain);
    while (it.hasNext()) {
        const auto match = it.next();
        found = match.captured(1) + QLatin1Char('x') + match.captured(2);
    }
    return found.isEmpty() ? QStringLiteral("640x480") : found;
}

QString optionValue(const QStringList &options, const char *name)
{
    const int at = options.indexOf(QLatin1String(name));
    return at >= 0 ? options.value(at + 1) : QString();
}

// Subtitles that libavcodec decodes to pictures; the others are text, for libass.
bool isPictureSubtitle(const QString &codec)
{
    static const QStringList pictures
        = {QStringLiteral("dvd_subtitle"), QStringLiteral("hdmv_pgs_subtitle"),
           QStringLiteral("dvb_subtitle"), QStringLiteral("dvb_teletext"), QStringLiteral("xsub")};
    return pictures.contains(codec);
}

// A frame rate as ffmpeg writes it, "25" or "30000/1001"; 0 when not one.
double rateValue(const QString &rate)
{
    const QStringList fraction = rate.split(QLatin1Char('/'));
    return fraction.size() == 2 && fraction[1].toDouble() > 0
               ? fraction[0].toDouble() / fraction[1].toDouble()
               : rate.toDouble();
}

QString joinFilters(const QStringList &parts)
{
    QStringList nonEmpty;
    for (const QString &part : parts) {
        if (!part.isEmpty())
            nonEmpty << part;
    }
    return nonEmpty.join(QLatin1Char(','));
}

} // namespace

std::optional<EncoderJob> EncoderJob::parse(const QStringList &arguments, QString *error)
{
    auto fail = [error](const QString &why) {
        if (error)
            *error = why;
        return std::nullopt;
    };
    if (arguments.isEmpty() || looksLikeOption(arguments.last()))
        return fail(QStringLiteral("the last argument must be the output file"));

    // Pair each option with its value.
    QList<Token> tokens;
    const int end = arguments.size() - 1;
    for (int i = 0; i < end; ++i) {
        const QString &word = arguments[i];
        if (!looksLikeOption(word))
            return fail(QStringLiteral("unexpected argument \"%1\"").arg(word));
        Token token;
        token.name = word.mid(1);
        OptionTable::Arity arity = OptionTable::arity(token.name);
        if (token.name == QLatin1String("y") || token.name == QLatin1String("si"))
            arity = OptionTable::Arity::None;
        else if (inputOptionNames.contains(token.name) || token.name == QLatin1String("i")
                 || token.name == QLatin1String("vf") || token.name == QLatin1String("cpu_percent"))
            arity = OptionTable::Arity::One;
        const bool next = i + 1 < end;
        // Our own input options always take their value; an output option
        // written without one is the table's to judge.
        const bool strict = token.name == QLatin1String("i") || token.name == QLatin1String("vf")
                            || token.name == QLatin1String("cpu_percent")
                            || inputOptionNames.contains(token.name);
        if ((arity == OptionTable::Arity::One && strict)
            || (arity != OptionTable::Arity::None && next && !looksLikeOption(arguments[i + 1]))) {
            if (!next)
                return fail(QStringLiteral("option -%1 needs a value").arg(token.name));
            token.value = arguments[++i];
            token.hasValue = true;
        }
        tokens << token;
    }

    EncoderJob job;
    job.outputPath = arguments.last();
    int lastInput = -1;
    for (int i = 0; i < tokens.size(); ++i) {
        if (tokens[i].name == QLatin1String("i"))
            lastInput = i;
    }
    if (lastInput < 0)
        return fail(QStringLiteral("no input (-i) given"));

    EncoderInput pending;
    bool afterInput = false; // right behind an -i: a -vf belongs to that input
    for (int i = 0; i < tokens.size(); ++i) {
        const Token &t = tokens[i];
        const QString &n = t.name;
        if (n == QLatin1String("y")) {
            job.overwrite = true;
        } else if (n == QLatin1String("cpu_percent")) {
            job.cpuPercent = qBound(0, t.value.toInt(), 100);
        } else if (n == QLatin1String("vf") && afterInput) {
            job.inputs.last().videoChain = t.value;
        } else if (n == QLatin1String("i")) {
            pending.path = t.value;
            job.inputs << pending;
            pending = EncoderInput();
            afterInput = true;
            continue;
        } else if (i < lastInput && inputOptionNames.contains(n)) {
            bool ok = true;
            if (n == QLatin1String("pgc"))
                pending.pgc = t.value.toInt(&ok);
            else if (n == QLatin1String("audio_track"))
                pending.audioTrack = t.value.toInt(&ok);
            else if (n == QLatin1String("subtitle"))
                pending.subtitle = t.value.toInt(&ok);
            else if (n == QLatin1String("ast"))
                pending.audioStream = t.value.toInt(&ok);
            else if (n == QLatin1String("f")) {
                const QString format = OptionTable::inputFormat(t.value, &job.notes);
                if (!format.isEmpty())
                    pending.options << QStringLiteral("-f") << format;
            } else if (n == QLatin1String("ss") && isTitleAhead(tokens, i))
                pending.titleStart = t.value;
            else if (n == QLatin1String("t") && isTitleAhead(tokens, i))
                pending.titleLength = t.value;
            else if (n == QLatin1String("ss") && t.value.toDouble() == 0)
                ; // no seek at all: a seek to 0 shifts the streams of some files apart
            else if (n != QLatin1String("si"))
                pending.options << QLatin1Char('-') + n << t.value;
            if (!ok)
                return fail(
                    QStringLiteral("option -%1 needs a number, not \"%2\"").arg(n, t.value));
        } else if (i < lastInput) {
            // Anything else ahead of an input is an input option of ffmpeg's own.
            pending.options << QLatin1Char('-') + n;
            if (t.hasValue)
                pending.options << t.value;
        } else {
            OptionTable::applyOutput(job.output, n, t.value, t.hasValue);
        }
        afterInput = false;
    }
    OptionTable::finish(job.output);
    job.fitToEncoders();
    job.notes += job.output.notes;
    return job;
}

double EncoderJob::expectedLength(const QList<InputLayout> &layouts) const
{
    for (const char *cut : {"-t", "-frames:v", "-vframes", "-to"}) {
        if (output.args.contains(QLatin1String(cut)))
            return 0;
    }
    if (isPictureSeries())
        return 0;
    double total = 0;
    for (int i = 0; i < inputs.size(); ++i) {
        const EncoderInput &input = inputs[i];
        const double duration = layouts.value(i).duration;
        if (duration <= 0)
            return 0;
        const QString start = input.isTitle() ? input.titleStart : optionValue(input.options, "-ss");
        const QString cut = input.isTitle() ? input.titleLength : optionValue(input.options, "-t");
        double length = duration - start.toDouble();
        if (!cut.isEmpty())
            length = qMin(length, cut.toDouble());
        total += qMax(0.0, length);
    }
    return total;
}

bool EncoderJob::wantsVideo() const
{
    return !output.args.contains(QStringLiteral("-vn"));
}

bool EncoderJob::wantsAudio() const
{
    // Pictures carry no sound, an animated GIF neither.
    return !output.args.contains(QStringLiteral("-an")) && !isPictureSeries()
           && container() != QLatin1String("gif");
}

bool EncoderJob::isPictureSeries() const
{
    static const QRegularExpression series(QStringLiteral("%0?\\d*d\\.(bmp|jpe?g|png|gif)$"),
                                           QRegularExpression::CaseInsensitiveOption);
    return series.match(outputPath).hasMatch();
}

QString EncoderJob::outputOption(const char *name) const
{
    const int at = output.args.indexOf(QLatin1Char('-') + QLatin1String(name));
    return at >= 0 ? output.args.value(at + 1) : QString();
}

void EncoderJob::setOutputOption(const char *name, const QString &value)
{
    const QString option = QLatin1Char('-') + QLatin1String(name);
    const int at = output.args.indexOf(option);
    if (at >= 0 && at + 1 < output.args.size())
        output.args[at + 1] = value;
    else
        output.args << option << value;
}

void EncoderJob::fitCodecToSize()
{
    if (inputs.isEmpty())
        return;
    const QStringList size = outputSizeOf(inputs.last().videoChain).split(QLatin1Char('x'));
    const int width = size.value(0).toInt(), height = size.value(1).toInt();
    const QString codec = pictureEncoder();
    auto replaceCodec = [this](const QString &to) {
        const int at = output.args.indexOf(QStringLiteral("-c:v"));
        if (at >= 0)
            output.args[at + 1] = to;
        output.videoCodec = to;
    };
    if (codec == QLatin1String("h263")) {
        static const QList<QSize> sizes
            = {{128, 96}, {176, 144}, {352, 288}, {704, 576}, {1408, 1152}};
        if (container() == QLatin1String("mp4")) {
            // The MP4 muxer has no tag for H.263; 3GP and QuickTime have.
            output.notes << QStringLiteral("MP4 files carry no H.263: encoded as MPEG-4 part 2");
            replaceCodec(QStringLiteral("mpeg4"));
        } else if (!sizes.contains(QSize(width, height))) {
            output.notes << QStringLiteral("H.263 has no %1x%2 pictures: encoded as MPEG-4 part 2")
                                .arg(width)
                                .arg(height);
            replaceCodec(QStringLiteral("mpeg4"));
        }
    } else if (codec == QLatin1String("rv10") || codec == QLatin1String("rv20")) {
        // RealVideo takes whole macroblocks only, and the RM muxer no frame
        // over 64 kB, which pictures beyond 1280x720 soon make.
        const double shrink = qMin(1.0, qMin(1280.0 / width, 720.0 / height));
        const int w = qMax(16, int(width * shrink + 8) / 16 * 16);
        const int h = qMax(16, int(height * shrink + 8) / 16 * 16);
        if (w == width && h == height)
            return;
        output.notes << QStringLiteral("RealVideo takes sizes in steps of 16 up to 1280x720: "
                                       "%1x%2 becomes %3x%4")
                            .arg(width)
                            .arg(height)
                            .arg(w)
                            .arg(h);
        for (EncoderInput &input : inputs)
            input.videoChain += QStringLiteral(",scale=%1:%2").arg(w).arg(h);
    }
}

void EncoderJob::fitPictureFormat()
{
    if (!wantsVideo() || inputs.isEmpty())
        return;
    const QString encoder = pictureEncoder();
    const QString profile = outputOption("profile:v");
    const int lines = outputSizeOf(inputs.last().videoChain).section(QLatin1Char('x'), 1).toInt();
    const QStringList formats = EncoderLimits::pictureFormats(encoder, profile, lines);
    const QString asked = outputOption("pix_fmt");
    if (formats.isEmpty() || formats.contains(asked))
        return;
    if (!asked.isEmpty())
        output.notes << QStringLiteral("%1 takes no %2 pictures: %3 instead")
                            .arg(QStringList{encoder, profile}.join(QLatin1Char(' ')).trimmed(),
                                 asked, formats.first());
    setOutputOption("pix_fmt", formats.first());
}

void EncoderJob::deinterlaceForProgressiveOutput()
{
    // Interlaced coding asked for, DV (interlaced by nature), or the
    // -deinterlace of old, which takes every frame.
    static const QRegularExpression interlacedCoding(
        QStringLiteral("(?:^|\\+)il(?:dct|me)(?![a-z])"));
    if (!wantsVideo() || pictureEncoder() == QLatin1String("dvvideo")
        || interlacedCoding.match(outputOption("flags")).hasMatch()
        || output.preFilters.contains(QStringLiteral("yadif")))
        return;
    // By the frames' own flags, so that a progressive source passes untouched:
    // idet's guesses call much of a moving progressive picture interlaced.
    output.preFilters.prepend(QStringLiteral("bwdif=mode=send_frame:deint=interlaced"));
}

void EncoderJob::fitContainer()
{
    if (inputs.isEmpty() || !wantsVideo() || !outputOption("f").isEmpty())
        return;
    const QString video = pictureEncoder();
    const QString name = container();
    const QString size = outputSizeOf(inputs.last().videoChain);
    const bool mpg = name == QLatin1String("mpg") || name == QLatin1String("mpeg");
    auto setIfUnset = [this](const char *option, const QString &value) {
        if (outputOption(option).isEmpty())
            setOutputOption(option, value);
    };
    if (video == QLatin1String("mpeg2video") && name == QLatin1String("vob")) {
        setOutputOption("f", QStringLiteral("dvd"));
        setOutputOption("muxrate", QStringLiteral("10080k"));
        setOutputOption("packetsize", QStringLiteral("2048"));
        setIfUnset("maxrate", QStringLiteral("9000k"));
        setIfUnset("bufsize", QStringLiteral("1835k"));
    } else if (video == QLatin1String("mpeg2video") && mpg) {
        setOutputOption("f", QStringLiteral("vob"));
    } else if (video == QLatin1String("mpeg1video") && mpg
               && (size == QLatin1String("352x240") || size == QLatin1String("352x288"))) {
        // A Video CD's picture comes at one constant rate.
        setOutputOption("f", QStringLiteral("vcd"));
        setOutputOption("muxrate", QStringLiteral("1411200"));
        setOutputOption("packetsize", QStringLiteral("2324"));
        setOutputOption("b:v", QStringLiteral("1150k"));
        setOutputOption("minrate", QStringLiteral("1150k"));
        setOutputOption("maxrate", QStringLiteral("1150k"));
        setOutputOption("bufsize", QStringLiteral("327680"));
    }
}

void EncoderJob::fitToEncoders()
{
    fitCodecToSize();
    fitContainer();
    fitPictureFormat();
    deinterlaceForProgressiveOutput();
    // Disc and tape standards have one frame rate for each line count.
    const QString standard = container();
    const bool dv = standard == QLatin1String("dv");
    const bool disc = standard == QLatin1String("dvd") || standard == QLatin1String("vcd");

    // Frame rate: MPEG-1/2 streams know a handful; DV one for each line count.
    const QString video = pictureEncoder();
    const QString rate = outputOption("r");
    const double wanted = rateValue(rate);
    if ((dv || disc) && !inputs.isEmpty()) {
        const QString size = outputSizeOf(inputs.last().videoChain);
        const int lines = size.section(QLatin1Char('x'), 1).toInt();
        const bool pal = lines == 576 || lines == 288;
        const QString dvRate = pal ? QStringLiteral("25") : QStringLiteral("30000/1001");
        // Film rate is the other NTSC DVDs and Video CDs may carry.
        const bool film = !pal && disc && qAbs(wanted - 23.976) < 0.01;
        if (!film && (rate.isEmpty() || qAbs(wanted - (pal ? 25.0 : 29.97)) > 0.01)) {
            if (!rate.isEmpty())
                output.notes << QStringLiteral(
                                    "%1 with %2 lines runs at %3 frames a second, not %4")
                                    .arg(standard.toUpper())
                                    .arg(lines)
                                    .arg(pal ? QStringLiteral("25") : QStringLiteral("29.97"),
                                         rate);
            setOutputOption("r", dvRate);
        }
    } else if (wanted > 0) {
        const QList<QPair<int, int>> rates = EncoderLimits::frameRates(video);
        QPair<int, int> best{0, 1};
        for (const auto &allowed : rates) {
            const double value = double(allowed.first) / allowed.second;
            if (best.first == 0
                || qAbs(value - wanted) < qAbs(double(best.first) / best.second - wanted))
                best = allowed;
        }
        const double chosen = double(best.first) / best.second;
        if (best.first && qAbs(chosen - wanted) > wanted / 100) {
            output.notes << QStringLiteral("%1 has no %2 frames a second: %3 instead")
                                .arg(video, rate, QString::number(chosen, 'g', 5));
            setOutputOption("r", QStringLiteral("%1/%2").arg(best.first).arg(best.second));
        }
    }
    const QString level = outputOption("level");
    if (!level.isEmpty()
        && (video == QLatin1String("libx264") || video == QLatin1String("h264")
            || video == QLatin1String("h264_nvenc"))) {
        const QStringList size = outputSizeOf(inputs.value(0).videoChain).split(QLatin1Char('x'));
        // Without a rate of its own the output keeps the source's: take a usual one.
        const double fps = rateValue(outputOption("r")) > 0 ? rateValue(outputOption("r")) : 30.0;
        const QString fitted = EncoderLimits::h264Level(level, size.value(0).toInt(),
                                                        size.value(1).toInt(), fps);
        if (fitted != level) {
            output.notes << QStringLiteral("H.264 level %1 holds no %2 at %3 frames a second: "
                                           "level %4")
                                .arg(level, size.join(QLatin1Char('x')))
                                .arg(fps, 0, 'g', 4)
                                .arg(fitted);
            setOutputOption("level", fitted);
        }
    }

    if (!wantsAudio())
        return;
    const QString audio = soundEncoder();
    int sampleRate = outputOption("ar").toInt();
    QList<int> rates = EncoderLimits::sampleRates(audio);
    if (dv || standard == QLatin1String("dvd"))
        rates = {48000}; // the DV muxer writes no other, DVD players play no other
    else if (standard == QLatin1String("vcd"))
        rates = {44100};
    if (sampleRate > 0 && !rates.isEmpty() && !rates.contains(sampleRate)) {
        const int fitted = EncoderLimits::nearest(rates, sampleRate);
        output.notes << QStringLiteral("%1 has no %2 Hz sampling: %3 Hz instead")
                            .arg(dv ? QStringLiteral("DV") : audio)
                            .arg(sampleRate)
                            .arg(fitted);
        setOutputOption("ar", QString::number(fitted));
        sampleRate = fitted;
    }
    const int channels = outputOption("ac").toInt();
    const int most = dv ? 2 : EncoderLimits::maxChannels(audio);
    if (most > 0 && channels > most) {
        output.notes << QStringLiteral("%1 takes at most %2 channels: %3 mixed down")
                            .arg(dv ? QStringLiteral("DV") : audio)
                            .arg(most)
                            .arg(channels);
        setOutputOption("ac", QString::number(most));
    }
    const QString bitRate = outputOption("b:a");
    const int kbits
        = bitRate.endsWith(QLatin1Char('k')) ? bitRate.chopped(1).toInt() : bitRate.toInt() / 1000;
    const QList<int> bitRates
        = EncoderLimits::audioBitRates(audio, sampleRate > 0 ? sampleRate : 44100);
    if (kbits > 0 && !bitRates.isEmpty() && !bitRates.contains(kbits)) {
        const int fitted = EncoderLimits::nearest(bitRates, kbits);
        output.notes << QStringLiteral("%1 has no %2 kbit/s at %3 Hz: %4 kbit/s instead")
                            .arg(audio)
                            .arg(kbits)
                            .arg(sampleRate)
                            .arg(fitted);
        setOutputOption("b:a", QString::number(fitted) + QLatin1Char('k'));
    }
    if (audio == QLatin1String("libvorbis") && kbits > 0) {
        // Vorbis's bit rate mode fails for most pairs of a high rate and a low
        // sampling rate; its quality scale works for all. The steps are what
        // each quality gives for stereo at 44.1 kHz.
        static const int steps[] = {64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
        int quality = 0;
        while (quality + 1 < int(std::size(steps)) && steps[quality + 1] <= kbits)
            ++quality;
        const int at = output.args.indexOf(QStringLiteral("-b:a"));
        output.args.removeAt(at + 1);
        output.args.removeAt(at);
        output.args << QStringLiteral("-q:a") << QString::number(quality);
        output.notes << QStringLiteral("libvorbis at %1 kbit/s becomes its quality %2").arg(kbits).arg(quality);
    }
}

QString EncoderJob::container() const
{
    return EncoderLimits::containerName(outputPath, outputOption("f"));
}

QString EncoderJob::pictureEncoder() const
{
    return output.videoCodec.isEmpty()
               ? EncoderLimits::defaultVideoEncoder(outputPath, outputOption("f"))
               : output.videoCodec;
}

QString EncoderJob::soundEncoder() const
{
    return output.audioCodec.isEmpty()
               ? EncoderLimits::defaultAudioEncoder(outputPath, outputOption("f"))
               : output.audioCodec;
}

bool EncoderJob::soundApart(const QList<InputLayout> &layouts) const
{
    // Encoders slow enough to be worth a process of their own, whose
    // streams come through NUT whole. (WMA loses its block size there.)
    static const QStringList worth
        = {QStringLiteral("aac"), QStringLiteral("libmp3lame"), QStringLiteral("mp2"),
           QStringLiteral("ac3"), QStringLiteral("libvorbis")};
    // A share of the processor is kept by stopping one process.
    return cpuPercent == 0 && inputs.size() == 1 && wantsVideo() && wantsAudio()
           && layouts.value(0).hasVideo && layouts.value(0).hasAudio
           && (!inputs[0].isTitle() || inputs[0].audioTrack >= 0)
           && (inputs[0].isTitle() || layouts.value(0).audioStreams < 0
               || inputs[0].audioStream < layouts.value(0).audioStreams)
           && worth.contains(soundEncoder());
}

QStringList EncoderJob::inputArguments(int i, const QString &source) const
{
    QStringList args = output.inputArgs + inputs[i].options;
    if (inputs[i].isTitle()) {
        // Subpicture streams may start late in a title: read further before
        // deciding. (A longer analyzeduration together with -ss on a pipe
        // crashes ffmpeg 5.1.)
        args << QStringLiteral("-probesize") << QStringLiteral("50M");
        // A disc's MPEG-2 decodes fast on one thread; more cost the
        // encoder more than they gain.
        if (!args.contains(QStringLiteral("-threads")))
            args << QStringLiteral("-threads") << QStringLiteral("1");
        if (inputs[i].subtitle >= 0)
            args << QStringLiteral("-ifo_palette") << inputs[i].path;
        if (!inputs[i].options.contains(QStringLiteral("-f")))
            args << QStringLiteral("-f") << QStringLiteral("mpeg");
    }
    return args << QStringLiteral("-i") << source;
}

QString EncoderJob::audioSpecifier(int i, const InputLayout &layout) const
{
    if (!layout.audioSpecifier.isEmpty())
        return layout.audioSpecifier;
    const int position
        = inputs[i].isTitle() ? qMax(0, inputs[i].audioTrack) : inputs[i].audioStream;
    return QStringLiteral("a:%1").arg(position);
}

QString EncoderJob::soundTimeline()
{
    return QStringLiteral("aresample=async=1:first_pts=0");
}

QStringList EncoderJob::soundArguments(const QString &source, const InputLayout &layout,
                                       bool cut) const
{
    QStringList args = quietHead();
    args << inputArguments(0, source) << QStringLiteral("-map")
         << QStringLiteral("0:%1").arg(audioSpecifier(0, layout)) << QStringLiteral("-vn")
         << QStringLiteral("-sn") << QStringLiteral("-dn");
    // Time zero is the input's start, as for the picture; a gap becomes silence.
    QStringList filters = output.audioFilters;
    filters << soundTimeline();
    args << QStringLiteral("-af") << filters.join(QLatin1Char(','));
    // Else the sound is for the whole title, and the writing ffmpeg cuts
    // both streams alike.
    if (cut)
        args << titleCut();
    for (int i = 0; i < output.args.size(); ++i) {
        if (isSoundOption(output.args[i]) || output.args[i] == QLatin1String("-strict"))
            args << output.args[i] << output.args.value(i + 1);
    }
    // Without a codec named, NUT's own (Vorbis) would reach a container that
    // can't name it: the container's own is wanted.
    if (output.audioCodec.isEmpty())
        args << QStringLiteral("-c:a") << soundEncoder();
    return args << QStringLiteral("-f") << QStringLiteral("nut") << QStringLiteral("pipe:1");
}

double EncoderJob::soundLead(const InputLayout &layout) const
{
    int rate = outputOption("ar").toInt();
    if (rate <= 0)
        rate = layout.audioRates.value(inputs[0].isTitle() ? 0 : inputs[0].audioStream, 48000);
    const int channels = outputOption("ac").toInt();
    QString bits = outputOption("b:a");
    const bool kilo = bits.endsWith(QLatin1Char('k'));
    bits.chop(kilo ? 1 : 0);
    const QString quality = outputOption("q:a");
    const int samples = SideEncoder::primingSamples(
        soundEncoder(), rate, channels > 0 ? channels : 2,
        qint64(bits.toDouble() * (kilo ? 1000 : 1)),
        quality.isEmpty() ? -1.0 : quality.toDouble());
    return rate > 0 ? double(samples) / rate : 0;
}

QString EncoderJob::sourceFilters(int i, const InputLayout &layout) const
{
    QStringList filters = output.preFilters;
    const EncoderInput &in = inputs[i];
    if (!in.isTitle() && in.subtitle >= 0
        && !isPictureSubtitle(layout.subtitleCodecs.value(in.subtitle))) {
        // The filter reads the file by itself, on the file's own time line;
        // the frames' time starts at the file's start and seek point.
        const double shift = layout.startTime + optionValue(in.options, "-ss").toDouble();
        filters << FilterTranslator::sourceSubtitleFilter(in.path, in.subtitle, shift);
    }
    return filters.join(QLatin1Char(','));
}

QString EncoderJob::subpictureStream(int i, const InputLayout &layout) const
{
    const EncoderInput &in = inputs[i];
    if (in.subtitle < 0 || !layout.hasVideo
        || (!in.isTitle() && !isPictureSubtitle(layout.subtitleCodecs.value(in.subtitle))))
        return QString();
    return layout.subtitleSpecifier.isEmpty() ? QStringLiteral("s:%1").arg(in.subtitle)
                                              : layout.subtitleSpecifier;
}

bool EncoderJob::isSoundOption(const QString &option)
{
    static const QStringList options
        = {QStringLiteral("-b:a"), QStringLiteral("-q:a"), QStringLiteral("-ac"),
           QStringLiteral("-ar"), QStringLiteral("-c:a")};
    return options.contains(option);
}

QStringList EncoderJob::ffmpegArguments(const QStringList &sources,
                                        const QList<InputLayout> &layouts,
                                        const QString &soundSource, double soundLead) const
{
    QStringList args{QStringLiteral("-nostdin")};
    if (overwrite)
        args << QStringLiteral("-y");
    args << (inputs.size() == 1 ? singleInput(sources.value(0), layouts.value(0), soundSource,
                                              soundLead)
                                : joinedInputs(sources, layouts));
    return args << outputTail(!soundSource.isEmpty());
}

QStringList EncoderJob::pictureArguments(const QString &source, const InputLayout &layout) const
{
    QStringList args = quietHead();
    args << inputArguments(0, source);
    const Picture picture = singlePicture(source, layout, 1);
    args << picture.inputs << titleCut() << picture.graph << QStringLiteral("-an")
         << QStringLiteral("-sn") << QStringLiteral("-dn");
    // Converted here, so the writing ffmpeg has only the encoder to run.
    const QString format = outputOption("pix_fmt");
    if (!format.isEmpty())
        args << QStringLiteral("-pix_fmt") << format;
    return args << QStringLiteral("-c:v") << QStringLiteral("rawvideo") << QStringLiteral("-f")
                << QStringLiteral("nut") << QStringLiteral("pipe:1");
}

QStringList EncoderJob::writerArguments(const QString &pictureSource, const InputLayout &layout,
                                        const QString &soundSource, double soundLead) const
{
    QStringList args{QStringLiteral("-nostdin")};
    if (overwrite)
        args << QStringLiteral("-y");
    // The frames keep the times they had in the picture's ffmpeg, as they
    // would in one. NUT drops the colour tags: the source's stand in.
    args << QStringLiteral("-copyts") << layout.colourOptions << QStringLiteral("-f")
         << QStringLiteral("nut") << QStringLiteral("-i") << pictureSource;
    const bool soundReady = !soundSource.isEmpty();
    if (soundReady)
        args << soundInput(soundSource, soundLead);
    args << QStringLiteral("-map") << QStringLiteral("0:v:0");
    if (soundReady)
        args << QStringLiteral("-map") << QStringLiteral("1:a:0");
    return args << outputTail(soundReady);
}

bool EncoderJob::pictureApart(const QList<InputLayout> &layouts) const
{
    // For tests and benchmarks: 0 never, 1 whenever the job allows it.
    const QByteArray wanted = qgetenv("KESTROVE_PICTURE_APART");
    if (wanted == "0" || cpuPercent != 0 || inputs.size() != 1 || !wantsVideo()
        || !layouts.value(0).hasVideo || isPictureSeries()
        || container() == QLatin1String("gif"))
        return false;
    // Coding in fields needs their order, which raw frames lose in NUT.
    static const QRegularExpression fields(QStringLiteral("ildct|ilme|^-top$|^-field_order$"));
    for (const QString &arg : output.args) {
        if (fields.match(arg).hasMatch())
            return false;
    }
    // The sound, where there is any, must come ready too: the writing
    // ffmpeg reads nothing of the source.
    const InputLayout &layout = layouts.first();
    const EncoderInput &in = inputs.first();
    const bool silent = !wantsAudio() || !layout.hasAudio || (in.isTitle() && in.audioTrack < 0)
                        || (!in.isTitle() && layout.audioStreams >= 0
                            && in.audioStream >= layout.audioStreams);
    if (!silent && !soundApart(layouts))
        return false;
    // Below this a third process costs more than it gains.
    constexpr double shortest = 10.0;
    return wanted == "1" || expectedLength(layouts) >= shortest;
}

QStringList EncoderJob::quietHead()
{
    // The status lines that report progress come from the writing ffmpeg.
    return {QStringLiteral("-nostdin"), QStringLiteral("-nostats"), QStringLiteral("-loglevel"),
            QStringLiteral("error")};
}

QStringList EncoderJob::titleCut() const
{
    QStringList args;
    const EncoderInput &in = inputs.first();
    if (!in.titleStart.isEmpty() && in.titleStart.toDouble() != 0)
        args << QStringLiteral("-ss") << in.titleStart;
    if (!in.titleLength.isEmpty())
        args << QStringLiteral("-t") << in.titleLength;
    return args;
}

QStringList EncoderJob::soundInput(const QString &source, double lead)
{
    QStringList args;
    if (lead > 0)
        args << QStringLiteral("-itsoffset") << QString::number(-lead, 'f', 6);
    return args << QStringLiteral("-f") << QStringLiteral("nut") << QStringLiteral("-i") << source;
}

EncoderJob::Picture EncoderJob::singlePicture(const QString &source, const InputLayout &layout,
                                              int nextInput) const
{
    Picture picture;
    const EncoderInput &in = inputs.first();
    // A rate change by the output's -r alone comes two frames late in
    // ffmpeg 5.1; the fps filter takes the frame nearest each instant.
    const QString rate = outputOption("r");
    // A file seeks ahead of its input, which starts the frames' time at 0.
    const double seek = in.isTitle() ? 0.0 : optionValue(in.options, "-ss").toDouble();
    const FilterTranslator::Result edits = FilterTranslator::translate(in.videoChain, {}, seek);
    const QString graph
        = joinFilters({edits.graph, rate.isEmpty() ? QString() : QStringLiteral("fps=") + rate});
    const QString sourceChain = sourceFilters(0, layout);
    QString subpicture = subpictureStream(0, layout);
    const QString ownInput = QString::number(nextInput);
    if (!edits.subpictureFile.isEmpty()) {
        // A VobSub file is timed from the source's start, as a text file is.
        if (seek > 0)
            picture.inputs << QStringLiteral("-itsoffset") << QString::number(-seek, 'g', 10);
        picture.inputs << QStringLiteral("-i") << edits.subpictureFile;
        subpicture = ownInput + QStringLiteral(":s:%1").arg(edits.subpictureTrack);
    } else if (!subpicture.isEmpty() && seek > 0) {
        // The seek ahead of the input would skip a subpicture begun before
        // it: the stream comes from a second reading that starts earlier.
        QStringList again = inputArguments(0, source);
        for (const QLatin1String cut : {QLatin1String("-ss"), QLatin1String("-t")}) {
            const int at = again.indexOf(cut);
            if (at >= 0 && at + 2 < again.size())
                again.remove(at, 2);
        }
        const double from = qMax(0.0, seek - subpictureLead);
        QStringList early;
        if (from > 0)
            early << QStringLiteral("-ss") << QString::number(from, 'g', 10);
        early << QStringLiteral("-itsoffset") << QString::number(from - seek, 'g', 10);
        picture.inputs << again.mid(0, again.size() - 2) << early << again.mid(again.size() - 2);
        subpicture = ownInput + QLatin1Char(':') + subpicture;
    } else if (!subpicture.isEmpty()) {
        subpicture.prepend(QStringLiteral("0:"));
    }
    if (!subpicture.isEmpty()) {
        // The subpicture lies on the source frame, ahead of crop and scale.
        const QString head
            = QStringLiteral("[0:v:0]%1[kb];[kb][%2]overlay=format=auto")
                  .arg(sourceChain.isEmpty() ? QStringLiteral("null") : sourceChain, subpicture);
        picture.graph << QStringLiteral("-filter_complex")
                      << head + (graph.isEmpty() ? QString() : QLatin1Char(',') + graph)
                             + QStringLiteral("[vout]")
                      << QStringLiteral("-map") << QStringLiteral("[vout]");
    } else {
        const QString chain = joinFilters({sourceChain, graph});
        if (!chain.isEmpty())
            picture.graph << QStringLiteral("-vf") << chain;
        picture.graph << QStringLiteral("-map") << QStringLiteral("0:v:0?");
    }
    return picture;
}

QStringList EncoderJob::singleInput(const QString &source, const InputLayout &layout,
                                    const QString &soundSource, double soundLead) const
{
    const EncoderInput &in = inputs.first();
    QStringList args = inputArguments(0, source);
    const bool soundReady = !soundSource.isEmpty();
    if (soundReady)
        args << soundInput(soundSource, soundLead);
    Picture picture;
    if (wantsVideo())
        picture = singlePicture(source, layout, soundReady ? 2 : 1);
    // The title's cut, for every stream: behind the last input.
    args << picture.inputs << titleCut() << picture.graph;
    if (!wantsAudio())
        return args;
    if (soundReady) {
        args << QStringLiteral("-map") << QStringLiteral("1:a:0");
    } else if (!in.isTitle() || in.audioTrack >= 0) {
        // A title's sound has gaps between its cells: fill them, or the
        // timestamps run backwards in the output.
        const QString audioFilters = output.audioFilters.join(QLatin1Char(','));
        const QString filters
            = in.isTitle() ? joinFilters({audioFilters, soundTimeline()}) : audioFilters;
        if (!filters.isEmpty())
            args << QStringLiteral("-af") << filters;
        args << QStringLiteral("-map")
             << QStringLiteral("0:%1?").arg(audioSpecifier(0, layout));
    }
    return args;
}

QStringList EncoderJob::joinedInputs(const QStringList &sources,
                                     const QList<InputLayout> &layouts) const
{
    // Several inputs follow each other in one output.
    QStringList args;
    for (int i = 0; i < inputs.size(); ++i)
        args << inputArguments(i, sources.value(i));
    const bool video = wantsVideo();
    const bool audio = wantsAudio();
    // The joined video gets the output's frame rate, else the first input's.
    const int rateAt = output.args.indexOf(QStringLiteral("-r"));
    QString rate = rateAt >= 0 ? output.args.value(rateAt + 1) : layouts.value(0).frameRate;
    if (rate.isEmpty() || rate == QLatin1String("0/0"))
        rate = QStringLiteral("25");
    QStringList parts;
    QString concatInputs;
    for (int i = 0; i < inputs.size(); ++i) {
        parts << joinedPart(i, layouts.value(i), rate);
        if (video)
            concatInputs += QStringLiteral("[v%1]").arg(i);
        if (audio)
            concatInputs += QStringLiteral("[a%1]").arg(i);
    }
    QString tail = QStringLiteral("%1concat=n=%2:v=%3:a=%4")
                       .arg(concatInputs)
                       .arg(inputs.size())
                       .arg(video ? 1 : 0)
                       .arg(audio ? 1 : 0);
    if (video)
        tail += QStringLiteral("[vout]");
    const QString audioFilters = output.audioFilters.join(QLatin1Char(','));
    if (audio)
        tail += audioFilters.isEmpty()
                    ? QStringLiteral("[aout]")
                    : QStringLiteral("[acat];[acat]%1[aout]").arg(audioFilters);
    parts << tail;
    // One frame rate for the whole join, set on the output: an fps filter
    // ahead of the join, or right behind it, makes the video longer than its audio.
    if (video && rateAt < 0)
        args << QStringLiteral("-r") << rate;
    args << QStringLiteral("-filter_complex") << parts.join(QLatin1Char(';'));
    if (video)
        args << QStringLiteral("-map") << QStringLiteral("[vout]");
    if (audio)
        args << QStringLiteral("-map") << QStringLiteral("[aout]");
    return args;
}

QStringList EncoderJob::joinedPart(int i, const InputLayout &layout, const QString &rate) const
{
    QStringList parts;
    const EncoderInput &in = inputs[i];
    const QString length = QString::number(layout.duration > 0 ? layout.duration : 1, 'g', 10);
    QString videoTrim, audioTrim;
    if (in.isTitle() && (in.titleStart.toDouble() > 0 || !in.titleLength.isEmpty())) {
        QString range = QStringLiteral("start=%1").arg(in.titleStart.toDouble());
        if (!in.titleLength.isEmpty())
            range += QStringLiteral(":duration=%1").arg(in.titleLength);
        videoTrim = QStringLiteral("setpts=PTS-STARTPTS,trim=%1,setpts=PTS-STARTPTS").arg(range);
        audioTrim
            = QStringLiteral("asetpts=PTS-STARTPTS,atrim=%1,asetpts=PTS-STARTPTS,").arg(range);
    }
    if (wantsVideo() && layout.hasVideo) {
        const QString graph
            = FilterTranslator::translate(in.videoChain, QStringLiteral("i%1").arg(i)).graph;
        const QString source = sourceFilters(i, layout);
        const QString subpicture = subpictureStream(i, layout);
        // A title's subpicture goes on before its trim, which moves the frames' time.
        const QString rest
            = joinFilters({videoTrim, graph, QStringLiteral("setsar=1,format=yuv420p")});
        if (subpicture.isEmpty())
            parts << QStringLiteral("[%1:v:0]%2[v%1]").arg(i).arg(joinFilters({source, rest}));
        else
            parts << QStringLiteral("[%1:v:0]%2[kb%1]")
                         .arg(i)
                         .arg(source.isEmpty() ? QStringLiteral("null") : source)
                  << QStringLiteral("[kb%1][%1:%2]overlay=format=auto,%3[v%1]")
                         .arg(i)
                         .arg(subpicture, rest);
    } else if (wantsVideo()) {
        const QString size = outputSizeOf(inputs.first().videoChain);
        parts << QStringLiteral("color=c=black:s=%1:r=%2:d=%3,setsar=1,format=yuv420p[v%4]")
                     .arg(size, rate, length)
                     .arg(i);
    }
    if (wantsAudio() && layout.hasAudio && (!in.isTitle() || in.audioTrack >= 0))
        parts << QStringLiteral("[%1:%2]%3aresample=48000,aformat=channel_layouts=stereo[a%1]")
                     .arg(i)
                     .arg(audioSpecifier(i, layout), audioTrim);
    else if (wantsAudio())
        parts << QStringLiteral("anullsrc=r=48000:cl=stereo,atrim=duration=%1[a%2]")
                     .arg(length)
                     .arg(i);
    return parts;
}

QStringList EncoderJob::outputTail(bool soundReady) const
{
    QStringList args;
    if (soundReady) {
        for (int i = 0; i < output.args.size(); ++i) {
            if (isSoundOption(output.args[i]))
                ++i;
            else
                args << output.args[i];
        }
        args << QStringLiteral("-c:a") << QStringLiteral("copy");
    } else {
        args << output.args;
    }
    if (isPictureSeries()) {
        // Each picture in the format its name says; the gif muxer would
        // otherwise take "%03d" for part of one file's name.
        if (output.videoCodec.isEmpty()) {
            const QString extension = QFileInfo(outputPath).suffix().toLower();
            args << QStringLiteral("-c:v")
                 << (extension.startsWith(QLatin1String("jp")) ? QStringLiteral("mjpeg")
                                                               : extension);
        }
        if (!output.args.contains(QStringLiteral("-f")))
            args << QStringLiteral("-f") << QStringLiteral("image2");
    }
    args << outputPath;
    return args;
}
