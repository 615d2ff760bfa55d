#include "filtertranslator.h"

#include "utils.h"

#include <QByteArray>
#include <QFileInfo>

namespace {

const char *const sepia = "colorchannelmixer=.393:.769:.189:0:.349:.686:.168:0:.272:.534:.131";

QString subtitleFilter(const QStringList &args, QStringList &notes)
{
    // font:size:style:RxGxB:opacity:position:track:path
    if (args.size() != 8) {
        notes
            << QStringLiteral("subtitle filter needs 8 values, got %1: left out").arg(args.size());
        return QString();
    }
    const QString path = fromHexText(args[7]);
    if (path.isEmpty()) {
        notes << QStringLiteral("subtitle filter without a file: left out");
        return QString();
    }
    // force_style is a comma list of its own: a font name cannot carry one.
    QString family = fromHexText(args[0]);
    family.remove(QLatin1Char(','));
    const int size = args[1].toInt();
    const int style = args[2].toInt();
    const QStringList rgb = args[3].split(QLatin1Char('x'));
    const int red = rgb.value(0).toInt(), green = rgb.value(1).toInt(), blue = rgb.value(2).toInt();
    const int opacity = qBound(0, args[4].toInt(), 255);
    const int position = qBound(0, args[5].toInt(), 100);
    const int track = args[6].toInt();

    // libass works in a 288-line script space for plain subtitle files;
    // the position is the baseline's place from the top in percent.
    const int marginV = (100 - position) * 288 / 100;
    QStringList force;
    if (!family.isEmpty())
        force << QStringLiteral("FontName=%1").arg(family);
    if (size > 0)
        force << QStringLiteral("FontSize=%1").arg(size);
    force << QStringLiteral("Bold=%1").arg(style & 1 ? -1 : 0)
          << QStringLiteral("Italic=%1").arg(style & 2 ? -1 : 0)
          << QStringLiteral("PrimaryColour=&H")
                 + QStringLiteral("%1%2%3%4")
                       .arg(255 - opacity, 2, 16, QLatin1Char('0'))
                       .arg(blue, 2, 16, QLatin1Char('0'))
                       .arg(green, 2, 16, QLatin1Char('0'))
                       .arg(red, 2, 16, QLatin1Char('0'))
                       .toUpper()
          << QStringLiteral("Alignment=2") << QStringLiteral("MarginV=%1").arg(marginV);
    QString text = QStringLiteral("subtitles=filename=%1").arg(FilterTranslator::escapeValue(path));
    if (track >= 0)
        text += QStringLiteral(":si=%1").arg(track);
    text += QStringLiteral(":force_style=%1")
                .arg(FilterTranslator::escapeValue(force.join(QLatin1Char(','))));
    return text;
}

} // namespace

namespace {

// A subtitle filter that reads its file on the file's own time line, where
// the frames' time 0 lies `shift` seconds in.
QString shifted(const QString &subtitles, double shift)
{
    if (shift == 0.0)
        return subtitles;
    const QString shiftText = QString::number(shift, 'g', 10);
    return QStringLiteral("setpts=PTS+%1/TB,%2,setpts=PTS-%1/TB").arg(shiftText, subtitles);
}

} // namespace

QString FilterTranslator::sourceSubtitleFilter(const QString &path, int stream, double shift)
{
    return shifted(QStringLiteral("subtitles=filename=%1:si=%2").arg(escapeValue(path)).arg(stream), shift);
}

QString FilterTranslator::vobSubIndex(const QString &path)
{
    const QFileInfo file(path);
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("idx"))
        return path;
    if (suffix != QLatin1String("sub"))
        return QString();
    // A .sub is MicroDVD text unless an index stands beside it.
    const QString index = file.path() + QLatin1Char('/') + file.completeBaseName();
    for (const QString &name : {index + QStringLiteral(".idx"), index + QStringLiteral(".IDX")})
        if (QFileInfo::exists(name))
            return name;
    return QString();
}

QString FilterTranslator::escapeValue(const QString &value)
{
    // First the option level (quote, backslash, colon), then the graph level.
    QString option;
    for (QChar c : value) {
        if (c == QLatin1Char('\\') || c == QLatin1Char('\'') || c == QLatin1Char(':'))
            option += QLatin1Char('\\');
        option += c;
    }
    QString graph;
    for (QChar c : option) {
        if (QStringLiteral("\\'[],;").contains(c))
            graph += QLatin1Char('\\');
        graph += c;
    }
    return graph;
}

QString FilterTranslator::pictureFilter(int brightness, int contrast, int saturation)
{
    if (brightness == 0 && contrast == 0 && saturation == 0)
        return QString();
    auto number = [](double value) {
        return QString::number(value, 'g', 4);
    };
    return QStringLiteral("eq=brightness=%1:contrast=%2:saturation=%3")
        .arg(number(qBound(-100, brightness, 100) / 200.0),
             number(1.0 + qBound(-100, contrast, 100) / 100.0),
             number(1.0 + qBound(-100, saturation, 100) / 100.0));
}

QString FilterTranslator::effectFilter(int type)
{
    switch (type) {
    case 1: // Black and White
        return QStringLiteral("hue=s=0");
    case 2: // Oil Painting: brightness only, the chroma is coarse already and a third of the cost
        return QStringLiteral("median=radius=2:planes=1,eq=saturation=1.3");
    case 3: // Line Drawing
        return QStringLiteral("edgedetect=low=0.08:high=0.2,negate");
    case 4: // Woodcarving
        return QStringLiteral("edgedetect=mode=colormix:low=0.05:high=0.15,")
               + QLatin1String(sepia);
    case 5: // Negative
        return QStringLiteral("negate");
    case 6: // Embossment
        return QStringLiteral("format=gray,convolution=0m=-2 -1 0 -1 0 1 0 1 2:0bias=128");
    case 7: // Carving
        return QStringLiteral("format=gray,convolution=0m=2 1 0 1 0 -1 0 -1 -2:0bias=128");
    case 8: // Old Film
        return QLatin1String(sepia) + QStringLiteral(",noise=alls=12:allf=t,vignette");
    case 9: // Haze
        return QStringLiteral("eq=contrast=0.75:brightness=0.12:saturation=0.8");
    case 10: // Shadow
        return QStringLiteral("eq=brightness=-0.15:gamma=0.8");
    case 11: // Fog
        return QStringLiteral("gblur=sigma=2,eq=contrast=0.6:brightness=0.2");
    case 12: // Mosaic
        return QStringLiteral("pixelize=w=16:h=16");
    case 13: // Flip Horizontal
        return QStringLiteral("hflip");
    case 14: // Flip Vertical
        return QStringLiteral("vflip");
    case 15: // Vertical Blind
        return QStringLiteral("drawgrid=w=16:h=ih:t=5:c=black@0.5");
    case 16: // Horizontal Blind
        return QStringLiteral("drawgrid=w=iw:h=16:t=5:c=black@0.5");
    case 17: // Sand
        return QStringLiteral("noise=alls=35:allf=u");
    case 18: // Soften
        return QStringLiteral("gblur=sigma=1.2");
    default:
        return QString();
    }
}

FilterTranslator::Result FilterTranslator::translate(const QString &chain,
                                                     const QString &labelPrefix,
                                                     double subtitleShift)
{
    Result result;
    // Each link of the graph: the filters of one linear run, and the
    // overlays that join a picture source into it.
    QStringList linear;
    QStringList sections;
    int label = 0;
    auto flush = [&] {
        return linear.join(QLatin1Char(','));
    };

    const QStringList filters = chain.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &filter : filters) {
        const int eq = filter.indexOf(QLatin1Char('='));
        const QString name = eq < 0 ? filter : filter.left(eq);
        const QString argText = eq < 0 ? QString() : filter.mid(eq + 1);
        const QStringList args = argText.split(QLatin1Char(':'));

        if (name == QLatin1String("effect2")) {
            QStringList parts;
            const QString picture = pictureFilter(args.value(0).toInt(), args.value(1).toInt(),
                                                  args.value(2).toInt());
            if (!picture.isEmpty())
                parts << picture;
            const QStringList numbers = args.value(3).split(QLatin1Char('a'), Qt::SkipEmptyParts);
            for (const QString &number : numbers) {
                const QString effect = effectFilter(number.toInt());
                if (effect.isEmpty())
                    result.notes << QStringLiteral("unknown effect %1: left out").arg(number);
                else
                    parts << effect;
            }
            if (!parts.isEmpty())
                linear << parts.join(QLatin1Char(','));
        } else if (name == QLatin1String("watermark2")) {
            const QString path = fromHexText(args.value(2));
            if (args.size() != 3 || path.isEmpty()) {
                result.notes << QStringLiteral("watermark filter without a picture: left out");
                continue;
            }
            // The picture is a second source; format keeps its alpha for overlay.
            const QString main = QStringLiteral("%1kv%2").arg(labelPrefix).arg(label);
            const QString mark = QStringLiteral("%1kw%2").arg(labelPrefix).arg(label);
            ++label;
            sections << (linear.isEmpty() ? QStringLiteral("null") : flush())
                            + QStringLiteral("[%1]").arg(main);
            sections
                << QStringLiteral("movie=filename=%1,format=rgba[%2]").arg(escapeValue(path), mark);
            linear = {QStringLiteral("[%1][%2]overlay=x=%3:y=%4:format=auto")
                          .arg(main, mark, QString::number(args.value(0).toInt()),
                               QString::number(args.value(1).toInt()))};
        } else if (name == QLatin1String("subtitle")) {
            const QString index = args.size() == 8 ? vobSubIndex(fromHexText(args[7])) : QString();
            if (!index.isEmpty()) {
                result.subpictureFile = index;
                result.subpictureTrack = qMax(0, args[6].toInt());
                continue;
            }
            const QString text = subtitleFilter(args, result.notes);
            if (!text.isEmpty())
                linear << shifted(text, subtitleShift);
        } else if (name == QLatin1String("crop") || name == QLatin1String("scale")
                   || name == QLatin1String("pad") || name == QLatin1String("yadif")) {
            linear << filter;
        } else {
            result.notes << QStringLiteral("unknown filter \"%1\": left out").arg(name);
        }
    }
    if (!linear.isEmpty())
        sections << flush();
    result.graph = sections.join(QLatin1Char(';'));
    return result;
}
