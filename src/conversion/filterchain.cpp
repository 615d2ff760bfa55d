#include "filterchain.h"

#include "childtask.h"
#include "utils.h"

#include <QStringList>

QString filterChain(const ChildTask &child)
{
    const EditParameters &e = child.edit;
    QStringList filters;

    if (e.cropTop > 0 || e.cropRight > 0 || e.cropBottom > 0 || e.cropLeft > 0)
        filters << QStringLiteral("crop=%1:%2:%3:%4")
                       .arg(child.width - e.cropRight - e.cropLeft)
                       .arg(child.height - e.cropBottom - e.cropTop)
                       .arg(e.cropLeft)
                       .arg(e.cropTop);

    int fullWidth = e.innerWidth + e.padRight + e.padLeft;
    int fullHeight = e.innerHeight + e.padTop + e.padBottom;
    fullWidth += fullWidth % 2;
    fullHeight += fullHeight % 2;
    if (e.padTop <= 0 && e.padRight <= 0 && e.padBottom <= 0 && e.padLeft <= 0) {
        filters << QStringLiteral("scale=%1:%2").arg(fullWidth).arg(fullHeight);
    } else {
        filters << QStringLiteral("scale=%1:%2").arg(e.innerWidth).arg(e.innerHeight)
                << QStringLiteral("pad=%1:%2:%3:%4")
                       .arg(fullWidth)
                       .arg(fullHeight)
                       .arg(e.padLeft)
                       .arg(e.padTop);
    }

    QString effectText;
    for (const EffectEntry &effect : e.effects) {
        if (effect.enabled)
            effectText += QString::number(effect.type) + QLatin1Char('a');
    }
    if (e.brightness != 0 || e.contrast != 0 || e.saturation != 0 || !effectText.isEmpty()) {
        QString text = QStringLiteral("effect2=%1:%2:%3")
                           .arg(e.brightness)
                           .arg(e.contrast)
                           .arg(e.saturation);
        if (!effectText.isEmpty())
            text += QLatin1Char(':') + effectText;
        filters << text;
    }

    if (!e.watermarkFile.isEmpty())
        filters << QStringLiteral("watermark2=%1:%2:%3")
                       .arg(e.watermarkX)
                       .arg(e.watermarkY)
                       .arg(hexText(e.watermarkFile));

    if (const SubtitleEntry *subtitle = e.selectedSubtitleFile()) {
        const QFont &font = subtitle->font;
        int style = 0;
        if (font.weight() > QFont::Normal)
            style += 1;
        if (font.style() != QFont::StyleNormal)
            style += 2;
        filters << QStringLiteral("subtitle=%1:%2:%3:%4x%5x%6:%7:%8:%9:%10")
                       .arg(hexText(font.family()))
                       .arg(font.pointSize())
                       .arg(style)
                       .arg(subtitle->color.red())
                       .arg(subtitle->color.green())
                       .arg(subtitle->color.blue())
                       .arg((100 - subtitle->transparency) * 255 / 100)
                       .arg(subtitle->position)
                       .arg(subtitle->track)
                       .arg(hexText(subtitle->path));
    }
    return filters.join(QLatin1Char(','));
}
