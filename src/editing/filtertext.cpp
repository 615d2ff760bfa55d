#include "filtertext.h"

#include "utils.h"

QString pictureEffectText(int brightness, int contrast, int saturation,
                          const std::vector<int> &effects)
{
    QString effectText;
    for (int type : effects)
        effectText += QString::number(type) + QLatin1Char('a');
    if (brightness == 0 && contrast == 0 && saturation == 0 && effectText.isEmpty())
        return {};
    QString text
        = QStringLiteral("effect2=%1:%2:%3").arg(brightness).arg(contrast).arg(saturation);
    if (!effectText.isEmpty())
        text += QLatin1Char(':') + effectText;
    return text;
}

QString subtitleFileText(const QFont &font, const QColor &color, int transparency, int position,
                         int track, const QString &path)
{
    int style = 0;
    if (font.weight() > QFont::Normal)
        style += 1;
    if (font.style() != QFont::StyleNormal)
        style += 2;
    return QStringLiteral("subtitle=%1:%2:%3:%4x%5x%6:%7:%8:%9:%10")
        .arg(hexText(font.family()))
        .arg(font.pointSize())
        .arg(style)
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg((100 - transparency) * 255 / 100)
        .arg(position)
        .arg(track)
        .arg(hexText(path));
}
