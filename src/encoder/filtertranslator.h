#pragma once

#include <QString>
#include <QStringList>

// Turns the program's own video filter chain (crop, scale, pad, effect2,
// watermark2, subtitle) into a stock libavfilter graph. The encoder front and
// the preview both use it, so the preview shows what the encoder writes.
class FilterTranslator
{
public:
    struct Result
    {
        QString graph;     // one input, one output; empty when nothing is to be done
        QStringList notes; // what was left out, one line each
        // A VobSub file to lay on the source's picture, which no filter of
        // one input can read: the caller's to add as an input.
        QString subpictureFile;
        int subpictureTrack = 0;
    };

    // Labels inside the graph start with labelPrefix, so several graphs can share one text.
    // A subtitle file is timed on the source's own time line: where the
    // frames' time starts `subtitleShift` seconds into the source (a seek
    // ahead of the input), the subtitle sees them shifted back.
    static Result translate(const QString &chain, const QString &labelPrefix = QString(),
                            double subtitleShift = 0.0);

    // Subtitle stream `stream` of the file at `path` burnt in, in the file's
    // own style; `shift` seconds of the file's time line come before the
    // frames' time 0.
    static QString sourceSubtitleFilter(const QString &path, int stream, double shift);

    // The stock filters of one effect number, or empty when the number is unknown.
    static QString effectFilter(int type);
    // brightness, contrast and saturation from -100 to 100, 0 neutral.
    static QString pictureFilter(int brightness, int contrast, int saturation);

    // The index of the VobSub pair that `path` (its .idx or .sub) belongs
    // to; empty for text subtitle files.
    static QString vobSubIndex(const QString &path);

    // A filter option value quoted for use inside a filter graph text.
    static QString escapeValue(const QString &value);
};
