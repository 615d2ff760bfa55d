#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include <vector>

// The encoder's own filter texts for the picture values and for a subtitle
// file burnt in. The command line and the preview both take them from here,
// so the preview shows what the encoder writes.

// "effect2=B:C:S[:NaNa...]" for the picture values and the effect numbers in
// order; empty when all are neutral.
QString pictureEffectText(int brightness, int contrast, int saturation,
                          const std::vector<int> &effects);

// "subtitle=...": stream `track` of the file at `path` in that style;
// `transparency` in percent, `position` the baseline's place from the top
// in percent.
QString subtitleFileText(const QFont &font, const QColor &color, int transparency, int position,
                         int track, const QString &path);
