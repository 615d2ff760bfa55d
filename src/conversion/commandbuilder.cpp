#include "commandbuilder.h"

#include "codecnames.h"
#include "filterchain.h"
#include "gpuencoder.h"
#include "pathparts.h"
#include "settings.h"
#include "task.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

int gpuOverride = -1;

const char *const expertKeys[]
    = {"g",          "qscale",     "coder",       "pix_fmt",      "deinterlace",
       "async",      "intra",      "qmin",        "qmax",         "lmin",
       "lmax",       "qdiff",      "qblur",       "qcomp",        "rc_init_cplx",
       "b_qfactor",  "i_qfactor",  "b_qoffset",   "i_qoffset",    "ibias",
       "pbias",      "rc_eq",      "rc_override", "me_threshold", "mb_threshold",
       "bf",         "mbd",        "mbcmp",       "ildctcmp",     "subcmp",
       "cmp",        "precmp",     "preme",       "lumi_mask",    "dark_mask",
       "scplx_mask", "tcplx_mask", "p_mask",      "ps",           "error",
       "strict",     "psnr",       "vstats",      "intra_matrix", "inter_matrix",
       "top",        "nr",         "qns",         "sc_threshold", "me_range",
       "dc",         "pred",       "er",          "ec",           "bug"};

const char *const flagKeys[] = {"bitexact", "ilme", "obmc", "part",  "aic",         "aiv",
                                "umv",      "alt",  "qpel", "ildct", "scan_offset", "cgop"};

const char *const metaKeys[]
    = {"title",    "author",      "copyright", "comment",   "album", "genre",
       "composer", "origaritist", "url",       "encodedby", "year",  "track"};

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

bool gpuUsable()
{
    return gpuOverride >= 0 ? gpuOverride == 1 : isGpuEncoderAvailable();
}

// Where the output goes, reserved on disk so that a second task that starts
// at the same moment can't take the same name. False when the name can't be
// reserved.
bool reserveOutput(Task &task, const QString &commonRoot, QString *error)
{
    QString folder = QDir::fromNativeSeparators(Setting::outputDir());
    const QString firstSource = task.items.empty() ? QString() : task.items.front()->sourcePath;
    const QString sourceFolder = QFileInfo(firstSource).path();
    if (Setting::outputToSrc() != 0) {
        folder = sourceFolder;
    } else if (Setting::copyDirStruct() != 0) {
        QString relative = commonRoot.isEmpty() ? QString(sourceFolder).remove(QLatin1Char(':'))
                                                : sourceFolder.mid(commonRoot.length() + 1);
        // A leading separator would leave the output folder.
        while (relative.startsWith(QLatin1Char('/')))
            relative.remove(0, 1);
        if (!relative.isEmpty()) {
            QDir(folder).mkpath(relative);
            folder += QLatin1Char('/') + relative;
        }
    }

    // The folder first: a name can only be reserved in a folder that exists.
    QDir().mkpath(folder);
    PathParts parts;
    parts.setFolder(folder);
    parts.setFileName(task.output.fileName);
    if (task.isPictureSeries()) {
        // A numbered picture series: base001, base(1)001, ...
        const QString base = parts.baseName();
        parts.setBaseName(base + QStringLiteral("001"));
        const int taken = parts.makeUniqueAt(base.length());
        parts.setBaseName(base + (taken > 0 ? QStringLiteral("(%1)").arg(taken) : QString())
                          + QStringLiteral("%03d"));
    } else {
        parts.reserveUnique();
    }
    task.output.filePath = QDir::toNativeSeparators(parts.fullPath());
    // A series is named by its pattern; its pictures are not reserved.
    if (task.isPictureSeries() || QFileInfo::exists(task.output.filePath))
        return true;
    QFile file(task.output.filePath);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return true;
    if (error)
        *error = QStringLiteral("cannot create the output file \"%1\": %2")
                     .arg(task.output.filePath, file.errorString());
    return false;
}

// "30000/1001" for 29.97: the rates of NTSC and film as ffmpeg names them exactly.
QString rateText(double rate)
{
    const double ntsc = rate * 1.001;
    if (qAbs(ntsc - qRound(ntsc)) < 0.01 && qAbs(rate - qRound(rate)) > 0.01)
        return QStringLiteral("%1/1001").arg(qRound(ntsc) * 1000);
    return number(rate);
}

// The profile's own rate is a ceiling, not a target: a source below it keeps
// its rate. A rate the user chose is taken as it is. "29.97" means NTSC's.
QString outputRate(const Task &task)
{
    const QString rate = task.value(QStringLiteral("r"));
    bool numeric = false;
    const double ceiling = rate.toDouble(&numeric);
    if (!numeric || ceiling <= 0)
        return rate;
    double source = 0;
    for (const auto &child : task.items)
        source = qMax(source, child->frameRate);
    // Near the ceiling (a phone's variable rate) the profile's rate stands.
    if (task.output.userKeys.contains(QStringLiteral("r")) || source <= 0
        || source >= ceiling * 0.97)
        return rateText(ceiling);
    return rateText(source);
}

} // namespace

void CommandBuilder::setGpuEncoderOverride(int usable)
{
    gpuOverride = usable;
}

bool CommandBuilder::prepare(Task &task, const QString &commonRoot, QString *error)
{
    const bool audioOnly = task.value(QStringLiteral("s")).isEmpty();
    for (int i = 0; i < task.itemCount(); ++i) {
        EditParameters &edit = task.items[size_t(i)]->edit;
        edit.convertEnd = edit.trimEnd;
        edit.watermarkFile.clear();
        if (audioOnly)
            continue;
        task.prepareFrame(i);
        const QSize size = task.outputSize();
        if (edit.hasWatermark())
            edit.renderWatermark(size.width(), size.height(), EditParameters::newWatermarkPath());
    }
    return reserveOutput(task, commonRoot, error);
}

QStringList CommandBuilder::build(const Task &task)
{
    const bool audioOnly = task.value(QStringLiteral("s")).isEmpty();

    QStringList args{QStringLiteral("-y")};
    const QString cpu = Setting::cpuUsage();
    if (cpu.length() > 2 && cpu.endsWith(QLatin1Char('%'))) {
        const int percent = cpu.chopped(1).toInt();
        if (percent < 100)
            args << QStringLiteral("-cpu_percent") << QString::number(qMax(percent, 50));
    }

    for (int i = 0; i < task.itemCount(); ++i) {
        const ChildTask &child = *task.items[size_t(i)];
        const EditParameters &edit = child.edit;
        if (i > 0)
            args << QStringLiteral("-si");
        args << QStringLiteral("-ss") << number(edit.trimStart);
        if (child.duration - 0.1 > edit.convertEnd - edit.trimStart)
            args << QStringLiteral("-t") << number(edit.convertEnd - edit.trimStart);
        const int audio = edit.selectedAudioStream();
        if (child.pgcIndex < 0 && audio > 0)
            args << QStringLiteral("-ast") << QString::number(audio);
        if (child.pgcIndex < 0 && edit.selectedSubtitleStream() >= 0)
            args << QStringLiteral("-subtitle") << QString::number(edit.selectedSubtitleStream());
        if (!child.inputFormat.isEmpty())
            args << QStringLiteral("-f") << child.inputFormat;
        if (child.pgcIndex >= 0)
            args << QStringLiteral("-pgc") << QString::number(child.pgcIndex)
                 << QStringLiteral("-audio_track") << QString::number(audio)
                 << QStringLiteral("-subtitle") << QString::number(edit.selectedSubtitleStream());
        args << QStringLiteral("-i") << QDir::toNativeSeparators(child.sourcePath);
        if (!audioOnly)
            args << QStringLiteral("-vf") << filterChain(child);
    }

    if (!task.output.keepMetaData)
        args << QStringLiteral("-map_meta_data") << QStringLiteral("-1:0");

    if (audioOnly) {
        args << QStringLiteral("-vn");
    } else {
        for (const char *key : expertKeys) {
            const QString value = task.value(QLatin1String(key));
            if (value.isEmpty() || value == QLatin1String("False"))
                continue;
            args << QLatin1Char('-') + QLatin1String(key);
            if (value != QLatin1String("True"))
                args << value;
        }
        QString flags;
        for (const char *key : flagKeys) {
            if (task.value(QLatin1String(key)) == QLatin1String("True"))
                flags += QLatin1Char('+') + QLatin1String(key);
        }
        if (!flags.isEmpty())
            args << QStringLiteral("-flags") << flags;

        const bool sameq = task.value(QStringLiteral("sameq")) == QLatin1String("True");
        const QString bitRate = task.value(QStringLiteral("b"));
        if (sameq)
            args << QStringLiteral("-sameq");
        else if (!bitRate.isEmpty())
            args << QStringLiteral("-b:v") << bitRate + QStringLiteral("000");
        const QString rate = outputRate(task);
        if (!rate.isEmpty() && rate != QLatin1String("Auto"))
            args << QStringLiteral("-r") << rate;
        const QString interval = task.value(QStringLiteral("pi"));
        if (!interval.isEmpty())
            args << QStringLiteral("-r") << QStringLiteral("1/") + interval;

        const QSize size = task.outputSize();
        const QString vcodec = task.value(QStringLiteral("vcodec"));
        if (vcodec == QLatin1String("h264") && gpuUsable() && Setting::enableCuda()) {
            args << QStringLiteral("-vcodec") << QStringLiteral("cuh264");
        } else if (vcodec == QLatin1String("h264")) {
            // A device's document names the profile it decodes; others go by height.
            const QString named = task.value(QStringLiteral("vprofile"));
            const QString profile
                = QStringList{QStringLiteral("baseline"), QStringLiteral("main"),
                              QStringLiteral("high")}
                          .contains(named)    ? named
                  : size.height() <= 480 ? QStringLiteral("baseline")
                  : size.height() <= 720 ? QStringLiteral("main")
                                         : QStringLiteral("high");
            args << QStringLiteral("-vcodec") << QStringLiteral("libx264")
                 << QStringLiteral("-preset") << QStringLiteral("superfast")
                 << QStringLiteral("-vprofile") << profile;
            // The document's level is ten times the standard's: 31 is 3.1.
            const int level = task.value(QStringLiteral("level")).toInt();
            if (level > 0)
                args << QStringLiteral("-level")
                     << QStringLiteral("%1.%2").arg(level / 10).arg(level % 10);
        } else if (vcodec == QLatin1String("divx")) {
            args << QStringLiteral("-vtag") << QStringLiteral("DX50") << QStringLiteral("-vcodec")
                 << QStringLiteral("mpeg4");
        } else if (!vcodec.isEmpty()) {
            args << QStringLiteral("-vcodec")
                 << CodecNames::commandLineName(CodecNames::Kind::Video, vcodec);
        }
        const int threads = Setting::threadCount();
        if ((vcodec == QLatin1String("mpeg4") || vcodec == QLatin1String("mpeg2video")
             || vcodec == QLatin1String("h264"))
            && threads > 1)
            args << QStringLiteral("-threads") << QString::number(threads);

        const double aspect = task.outputAspect();
        args << QStringLiteral("-aspect")
             << (qAbs(aspect - 4.0 / 3.0) < 1e-9   ? QStringLiteral("4:3")
                 : qAbs(aspect - 16.0 / 9.0) < 1e-9 ? QStringLiteral("16:9")
                 : aspect > 0                       ? number(aspect)
                                                    : QStringLiteral("1"));
    }

    if (task.value(QStringLiteral("an")) == QLatin1String("True")) {
        args << QStringLiteral("-an");
    } else {
        const QString ab = task.value(QStringLiteral("ab"));
        if (!ab.isEmpty())
            args << QStringLiteral("-ab") << ab + QLatin1Char('k');
        const QString ac = task.value(QStringLiteral("ac"));
        if (!ac.isEmpty()) {
            const QString channels = ac.contains(QLatin1Char(' '))
                                         ? ac.section(QLatin1Char(' '), 0, 0)
                                     : ac == QLatin1String("5.1") ? QStringLiteral("6")
                                                                  : ac;
            args << QStringLiteral("-ac") << channels;
        }
        const QString ar = task.value(QStringLiteral("ar"));
        if (!ar.isEmpty())
            args << QStringLiteral("-ar") << ar;
        const QString acodec = task.value(QStringLiteral("acodec"));
        if (acodec == QLatin1String("aac"))
            args << QStringLiteral("-strict") << QStringLiteral("experimental");
        const QString encoderName = CodecNames::commandLineName(CodecNames::Kind::Audio, acodec);
        if (!encoderName.isEmpty())
            args << QStringLiteral("-acodec") << encoderName;
        const QString vol = task.value(QStringLiteral("vol"));
        if (!vol.isEmpty() && vol != QLatin1String("100%"))
            args << QStringLiteral("-vol") << QString::number(vol.chopped(1).toInt() * 256 / 100);
    }

    for (const char *key : metaKeys) {
        const QString value = task.value(QLatin1String(key));
        if (!value.isEmpty())
            args << QStringLiteral("-metadata") << QLatin1String(key) + QLatin1Char('=') + value;
    }
    if (QFileInfo(task.output.fileName).suffix() == QLatin1String("mkv"))
        args << QStringLiteral("-sn");
    args << task.output.filePath;
    return args;
}
