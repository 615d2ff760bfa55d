#include "optiontable.h"

#include "codecnames.h"

#include <QRegularExpression>

namespace {

enum class Action {
    Keep,   // pass on as it stands
    Rename, // pass on under the replacement name
    Drop,   // no equivalent: leave out, say so
    Custom, // see apply()
    Input   // a decoding option: given to every input instead
};

struct Row
{
    const char *name;
    OptionTable::Arity arity;
    Action action;
    const char *replacement;
};

using OptionTable::Arity;

// Output options of the argument list. Anything not here is passed on as it
// stands: it is new enough to be ffmpeg's own.
const Row rows[] = {
    // codecs and their settings
    {"vcodec", Arity::One, Action::Custom, "c:v"},
    {"acodec", Arity::One, Action::Custom, "c:a"},
    {"vprofile", Arity::One, Action::Rename, "profile:v"},
    {"preset", Arity::One, Action::Custom, "preset"},
    {"vtag", Arity::One, Action::Rename, "tag:v"},
    {"ab", Arity::One, Action::Rename, "b:a"},
    {"qscale", Arity::One, Action::Rename, "q:v"},
    {"sameq", Arity::None, Action::Custom, nullptr},
    {"flags", Arity::One, Action::Custom, "flags"},
    {"map_meta_data", Arity::One, Action::Custom, "map_metadata"},
    // filters that used to be options
    {"deinterlace", Arity::Guess, Action::Custom, "yadif"},
    {"vol", Arity::One, Action::Custom, "volume"},
    {"async", Arity::One, Action::Custom, "aresample"},
    {"intra", Arity::Guess, Action::Custom, "g"},
    // renamed encoder options
    {"error", Arity::One, Action::Rename, "error_rate"},
    {"nr", Arity::One, Action::Rename, "noise_reduction"},
    // removed from ffmpeg without a successor
    {"me_threshold", Arity::One, Action::Drop, nullptr},
    {"mb_threshold", Arity::One, Action::Drop, nullptr},
    {"pbias", Arity::One, Action::Drop, nullptr},
    {"preme", Arity::One, Action::Drop, nullptr},
    {"qns", Arity::One, Action::Drop, nullptr},
    {"er", Arity::One, Action::Drop, nullptr},
    // still ffmpeg's own, listed for their arity
    {"g", Arity::One, Action::Keep, nullptr},
    {"coder", Arity::One, Action::Keep, nullptr},
    {"pix_fmt", Arity::One, Action::Keep, nullptr},
    {"qmin", Arity::One, Action::Keep, nullptr},
    {"qmax", Arity::One, Action::Keep, nullptr},
    {"lmin", Arity::One, Action::Keep, nullptr},
    {"lmax", Arity::One, Action::Keep, nullptr},
    {"qdiff", Arity::One, Action::Keep, nullptr},
    {"qblur", Arity::One, Action::Keep, nullptr},
    {"qcomp", Arity::One, Action::Keep, nullptr},
    {"rc_init_cplx", Arity::One, Action::Keep, nullptr},
    {"b_qfactor", Arity::One, Action::Keep, nullptr},
    {"i_qfactor", Arity::One, Action::Keep, nullptr},
    {"b_qoffset", Arity::One, Action::Keep, nullptr},
    {"i_qoffset", Arity::One, Action::Keep, nullptr},
    {"ibias", Arity::One, Action::Keep, nullptr},
    {"rc_eq", Arity::One, Action::Keep, nullptr},
    {"rc_override", Arity::One, Action::Keep, nullptr},
    {"bf", Arity::One, Action::Keep, nullptr},
    {"mbd", Arity::One, Action::Keep, nullptr},
    {"mbcmp", Arity::One, Action::Keep, nullptr},
    {"ildctcmp", Arity::One, Action::Keep, nullptr},
    {"subcmp", Arity::One, Action::Keep, nullptr},
    {"cmp", Arity::One, Action::Keep, nullptr},
    {"precmp", Arity::One, Action::Keep, nullptr},
    {"lumi_mask", Arity::One, Action::Keep, nullptr},
    {"dark_mask", Arity::One, Action::Keep, nullptr},
    {"scplx_mask", Arity::One, Action::Keep, nullptr},
    {"tcplx_mask", Arity::One, Action::Keep, nullptr},
    {"p_mask", Arity::One, Action::Keep, nullptr},
    {"ps", Arity::One, Action::Keep, nullptr},
    {"strict", Arity::One, Action::Keep, nullptr},
    {"psnr", Arity::Guess, Action::Keep, nullptr},
    {"vstats", Arity::Guess, Action::Keep, nullptr},
    {"intra_matrix", Arity::One, Action::Keep, nullptr},
    {"inter_matrix", Arity::One, Action::Keep, nullptr},
    {"top", Arity::One, Action::Keep, nullptr},
    {"sc_threshold", Arity::One, Action::Keep, nullptr},
    {"me_range", Arity::One, Action::Keep, nullptr},
    {"dc", Arity::One, Action::Keep, nullptr},
    {"pred", Arity::One, Action::Keep, nullptr},
    {"ec", Arity::One, Action::Input, nullptr},
    {"bug", Arity::One, Action::Input, nullptr},
    {"b:v", Arity::One, Action::Keep, nullptr},
    {"r", Arity::One, Action::Keep, nullptr},
    {"threads", Arity::One, Action::Keep, nullptr},
    {"aspect", Arity::One, Action::Keep, nullptr},
    {"ac", Arity::One, Action::Keep, nullptr},
    {"ar", Arity::One, Action::Keep, nullptr},
    {"metadata", Arity::One, Action::Keep, nullptr},
    {"vn", Arity::None, Action::Keep, nullptr},
    {"an", Arity::None, Action::Keep, nullptr},
    {"sn", Arity::None, Action::Keep, nullptr},
};

// Members of -flags that became options of single encoders.
struct FlagRow
{
    const char *flag;
    const char *option; // nullptr: still a flag; "": no equivalent
};

const FlagRow flagRows[] = {
    {"bitexact", nullptr}, {"ilme", nullptr}, {"qpel", nullptr},
    {"ildct", nullptr},    {"cgop", nullptr}, {"aic", nullptr},
    {"psnr", nullptr},     {"obmc", "obmc"},  {"part", "data_partitioning"},
    {"umv", "umv"},        {"aiv", "aiv"},    {"alt", "alternate_scan"},
    {"scan_offset", ""},
};

struct NameRow
{
    const char *from;
    const char *to; // "": no equivalent
    const char *why;
};

const NameRow inputFormats[] = {
    {"qt", "", "ffmpeg reads QuickTime files by their content"},
    {"ds", "", "ffmpeg reads these files by their content"},
};

// libx264 preset names that NVENC spells otherwise.
const NameRow nvencPresets[] = {
    {"ultrafast", "p1", nullptr}, {"superfast", "p2", nullptr}, {"veryfast", "p2", nullptr},
    {"faster", "p3", nullptr},    {"fast", "p3", nullptr},      {"medium", "p4", nullptr},
    {"slow", "p5", nullptr},      {"slower", "p6", nullptr},    {"veryslow", "p7", nullptr},
};

const Row *findRow(const QString &name)
{
    const QByteArray key = name.toLatin1();
    for (const Row &row : rows) {
        if (key == row.name)
            return &row;
    }
    return nullptr;
}

template<size_t N>
QString mapName(const NameRow (&table)[N], const QString &name, const char *what,
                QStringList *notes)
{
    const QByteArray key = name.toLatin1();
    for (const NameRow &row : table) {
        if (key != row.from)
            continue;
        if (notes && row.why)
            notes->append(
                QStringLiteral("%1 \"%2\" becomes \"%3\": %4")
                    .arg(QLatin1String(what), name, QLatin1String(row.to), QLatin1String(row.why)));
        return QLatin1String(row.to);
    }
    return name;
}

QString codecName(CodecNames::Kind kind, const QString &name, const char *what,
                  QStringList *notes)
{
    QString why;
    const QString stock = CodecNames::stockName(kind, name, &why);
    if (notes && stock != name)
        notes->append(QStringLiteral("%1 \"%2\" becomes \"%3\"%4")
                          .arg(QLatin1String(what), name, stock,
                               why.isEmpty() ? QString() : QStringLiteral(": ") + why));
    return stock;
}

void add(OutputOptions &out, const char *name, const QString &value)
{
    out.args << QLatin1Char('-') + QLatin1String(name) << value;
}

// Every change is said, one line each.
void said(OutputOptions &out, const QString &name, const QString &becomes)
{
    out.notes << QStringLiteral("option -%1 becomes %2").arg(name, becomes);
}

void applyFlags(OutputOptions &out, const QString &value)
{
    QStringList kept;
    const QStringList members
        = value.split(QRegularExpression(QStringLiteral("(?=[+-])")), Qt::SkipEmptyParts);
    for (const QString &member : members) {
        const QChar sign = member.front();
        const QString flag
            = (sign == QLatin1Char('+') || sign == QLatin1Char('-')) ? member.mid(1) : member;
        const FlagRow *found = nullptr;
        for (const FlagRow &row : flagRows) {
            if (flag == QLatin1String(row.flag))
                found = &row;
        }
        if (!found || !found->option) {
            kept << member;
        } else if (!*found->option) {
            out.notes << QStringLiteral("flag \"%1\" has no equivalent: left out").arg(flag);
        } else {
            const QString value = sign == QLatin1Char('-') ? QStringLiteral("0") : QStringLiteral("1");
            out.notes << QStringLiteral("flag \"%1\" becomes -%2 %3")
                             .arg(flag, QLatin1String(found->option), value);
            add(out, found->option, value);
        }
    }
    if (!kept.isEmpty())
        add(out, "flags", kept.join(QString()));
}

} // namespace

namespace OptionTable {

Arity arity(const QString &name)
{
    const Row *row = findRow(name);
    return row ? row->arity : Arity::Guess;
}

QString videoCodec(const QString &name, QStringList *notes)
{
    return codecName(CodecNames::Kind::Video, name, "video codec", notes);
}

QString audioCodec(const QString &name, QStringList *notes)
{
    return codecName(CodecNames::Kind::Audio, name, "audio codec", notes);
}

QString inputFormat(const QString &name, QStringList *notes)
{
    return mapName(inputFormats, name, "input format", notes);
}

void applyOutput(OutputOptions &out, const QString &name, const QString &value, bool hasValue)
{
    const Row *row = findRow(name);
    if (!row) {
        out.args << QLatin1Char('-') + name;
        if (hasValue)
            out.args << value;
        return;
    }
    switch (row->action) {
    case Action::Keep:
        if (row->arity == Arity::One && !hasValue) {
            out.notes << QStringLiteral("option -%1 without a value: left out").arg(name);
            return;
        }
        out.args << QLatin1Char('-') + name;
        if (hasValue)
            out.args << value;
        return;
    case Action::Rename:
        said(out, name, QLatin1Char('-') + QLatin1String(row->replacement));
        add(out, row->replacement, value);
        return;
    case Action::Drop:
        out.notes
            << QStringLiteral("option -%1 has no equivalent in this ffmpeg: left out").arg(name);
        return;
    case Action::Input:
        said(out, name, QStringLiteral("an option of every input"));
        out.inputArgs << QLatin1Char('-') + name << value;
        return;
    case Action::Custom:
        break;
    }

    const QByteArray key = name.toLatin1();
    if (key == "vcodec") {
        out.videoCodec = videoCodec(value, &out.notes);
        add(out, "c:v", out.videoCodec);
    } else if (key == "acodec") {
        out.audioCodec = audioCodec(value, &out.notes);
        add(out, "c:a", out.audioCodec);
    } else if (key == "preset") {
        const QString preset = out.videoCodec == QLatin1String("h264_nvenc")
                                   ? mapName(nvencPresets, value, "preset", nullptr)
                                   : value;
        if (preset != value)
            out.notes << QStringLiteral("preset \"%1\" becomes \"%2\"").arg(value, preset);
        add(out, "preset", preset);
    } else if (key == "sameq") {
        out.sameQuality = true;
    } else if (key == "flags") {
        applyFlags(out, value);
    } else if (key == "map_meta_data") {
        // "-1:0" meant: copy no meta data from any input.
        said(out, name, QStringLiteral("-map_metadata"));
        add(out, "map_metadata", value.section(QLatin1Char(':'), 0, 0));
    } else if (key == "deinterlace") {
        said(out, name, QStringLiteral("the yadif filter"));
        if (!hasValue || value != QLatin1String("0"))
            out.preFilters << QStringLiteral("yadif");
    } else if (key == "vol") {
        const int level = value.toInt();
        said(out, name, QStringLiteral("the volume filter"));
        if (level != 256)
            out.audioFilters
                << QStringLiteral("volume=%1").arg(QString::number(level / 256.0, 'g', 6));
    } else if (key == "async") {
        said(out, name, QStringLiteral("the aresample filter"));
        out.audioFilters << QStringLiteral("aresample=async=%1").arg(value.toInt());
    } else if (key == "intra") {
        said(out, name, QStringLiteral("-g 1"));
        if (!hasValue || value != QLatin1String("0"))
            add(out, "g", QStringLiteral("1"));
    }
}

void finish(OutputOptions &out)
{
    if (!out.sameQuality)
        return;
    // "Same quality as the source" is gone; ask each encoder for near-transparent quality.
    const char *option = "q:v";
    QString value = QStringLiteral("2");
    if (out.videoCodec == QLatin1String("libx264") || out.videoCodec == QLatin1String("libx265"))
        option = "crf", value = QStringLiteral("18");
    else if (out.videoCodec == QLatin1String("h264_nvenc"))
        option = "cq", value = QStringLiteral("19");
    said(out, QStringLiteral("sameq"), QStringLiteral("-%1 %2").arg(QLatin1String(option), value));
    add(out, option, value);
}

QStringList knownOptions()
{
    QStringList names;
    for (const Row &row : rows)
        names << QLatin1String(row.name);
    return names;
}

} // namespace OptionTable
