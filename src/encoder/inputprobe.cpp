#include "inputprobe.h"

#include "dvddisc.h"
#include "mediainput.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
}

namespace InputProbe {

InputLayout layout(const QString &path, QString *error)
{
    InputLayout result;
    const QString ffprobe = QStandardPaths::findExecutable(QStringLiteral("ffprobe"));
    auto fail = [&](const QString &why) {
        if (error)
            *error = QStringLiteral("ffprobe could not tell what \"%1\" holds: %2").arg(path, why);
        return result;
    };
    if (ffprobe.isEmpty())
        return fail(QStringLiteral("no ffprobe on the PATH"));
    QProcess probe;
    probe.start(ffprobe, {QStringLiteral("-v"), QStringLiteral("error"),
                          QStringLiteral("-print_format"), QStringLiteral("json"),
                          QStringLiteral("-show_streams"), QStringLiteral("-show_format"), path});
    if (!probe.waitForFinished(30000))
        return fail(probe.errorString());
    if (probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 0)
        return fail(QString::fromLocal8Bit(probe.readAllStandardError().trimmed()));
    const QJsonObject root = QJsonDocument::fromJson(probe.readAllStandardOutput()).object();
    result.hasVideo = false;
    result.hasAudio = false;
    result.audioStreams = 0;
    const QJsonArray streams = root.value(QStringLiteral("streams")).toArray();
    for (const auto &value : streams) {
        const QString type = value.toObject().value(QStringLiteral("codec_type")).toString();
        if (type == QLatin1String("video") && !result.hasVideo)
            result.frameRate = value.toObject().value(QStringLiteral("avg_frame_rate")).toString();
        result.hasVideo |= type == QLatin1String("video");
        result.hasAudio |= type == QLatin1String("audio");
        result.audioStreams += type == QLatin1String("audio") ? 1 : 0;
        if (type == QLatin1String("audio"))
            result.audioRates
                << value.toObject().value(QStringLiteral("sample_rate")).toString().toInt();
        if (type == QLatin1String("subtitle"))
            result.subtitleCodecs
                << value.toObject().value(QStringLiteral("codec_name")).toString();
    }
    const QJsonObject format = root.value(QStringLiteral("format")).toObject();
    result.duration = format.value(QStringLiteral("duration")).toString().toDouble();
    result.startTime = format.value(QStringLiteral("start_time")).toString().toDouble();
    // ffprobe counts a program stream from its first timestamp to its last,
    // which is wrong where they start again inside (a disc's cells, a
    // recorder's joins): there the output would look cut short.
    if (format.value(QStringLiteral("format_name")).toString() == QLatin1String("mpeg")) {
        const double restarted = restartedDuration(path);
        if (restarted > 0.0)
            result.duration = restarted;
    }
    return result;
}

void addTitleLayout(InputLayout &layout, const QString &ifoPath, int pgcIndex)
{
    const auto disc = LoadDvdDisc(ifoPath, false);
    if (!disc)
        return;
    layout.frameRate
        = disc->videoStandard == 0 ? QStringLiteral("30000/1001") : QStringLiteral("25");
    for (const auto &title : disc->titles) {
        if (title->pgcIndex == pgcIndex && title->range)
            layout.duration = title->range->end - title->range->start;
    }
}

QStringList colourOptions(const QString &path, int pgc)
{
    TitleSelection selection;
    selection.pgc = pgc;
    FormatContextPtr context = openMediaInput(path, QString(), selection);
    if (!context || ::avformat_find_stream_info(context.get(), nullptr) < 0)
        return {};
    const int at = ::av_find_best_stream(context.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (at < 0)
        return {};
    const AVCodecParameters *picture = context->streams[at]->codecpar;
    QStringList options;
    auto add = [&options](const char *option, bool known, const char *name) {
        if (known && name)
            options << QLatin1Char('-') + QLatin1String(option) << QLatin1String(name);
    };
    add("color_range", picture->color_range != AVCOL_RANGE_UNSPECIFIED,
        ::av_color_range_name(picture->color_range));
    add("color_primaries",
        picture->color_primaries != AVCOL_PRI_UNSPECIFIED
            && picture->color_primaries != AVCOL_PRI_RESERVED0,
        ::av_color_primaries_name(picture->color_primaries));
    add("color_trc",
        picture->color_trc != AVCOL_TRC_UNSPECIFIED && picture->color_trc != AVCOL_TRC_RESERVED0,
        ::av_color_transfer_name(picture->color_trc));
    add("colorspace", picture->color_space != AVCOL_SPC_UNSPECIFIED,
        ::av_color_space_name(picture->color_space));
    return options;
}

} // namespace InputProbe
