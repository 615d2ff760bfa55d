#include "filterchain.h"

#include "childtask.h"
#include "filtertext.h"
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

    std::vector<int> effects;
    for (const EffectEntry &effect : e.effects) {
        if (effect.enabled)
            effects.push_back(effect.type);
    }
    const QString picture = pictureEffectText(e.brightness, e.contrast, e.saturation, effects);
    if (!picture.isEmpty())
        filters << picture;

    if (!e.watermarkFile.isEmpty())
        filters << QStringLiteral("watermark2=%1:%2:%3")
                       .arg(e.watermarkX)
                       .arg(e.watermarkY)
                       .arg(hexText(e.watermarkFile));

    if (const SubtitleEntry *subtitle = e.selectedSubtitleFile())
        filters << subtitleFileText(subtitle->font, subtitle->color, subtitle->transparency,
                                    subtitle->position, subtitle->track, subtitle->path);
    return filters.join(QLatin1Char(','));
}
