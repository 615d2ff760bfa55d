#pragma once

#include "childtask.h"
#include "runtimer.h"
#include "taskoutput.h"

#include <QImage>
#include <QMap>
#include <QSize>

#include <memory>
#include <vector>

class ProfileLookup;

// One output file: its inputs in encoding order, what to produce, and its
// place in the conversion.
class Task : public RunTimer
{
public:
    enum EState {
        Idle = 0,
        Waiting = 1,
        Running = 2,
        Paused = 3,
        Pending = 4,
        Succeed = 5,
        Failed = 6
    };

    Task() = default;

    std::vector<std::unique_ptr<ChildTask>> items;
    TaskOutput output;
    QMap<int, QImage> thumbnails; // by child id; a single input uses 0
    bool checked = true;
    QString name; // "Merge %1" for a merged task, else empty
    EState state = Idle;
    double progress = 0.0; // seconds of output the encoder reported
    QString failure;       // why the last run failed; empty otherwise
    int id = 0;
    int nextChildId = 1000;

    // A deep copy: new children owned by the copy, Idle, stopwatch at zero.
    std::unique_ptr<Task> clone() const;

    QString value(const QString &key) const { return output.settings.value(key); }
    // A numbered series of pictures ("name%03d.png") instead of one file; an
    // animated GIF is one file.
    bool isPictureSeries() const
    {
        const QString codec = value(QStringLiteral("pcodec"));
        return !codec.isEmpty() && codec.compare(QLatin1String("GIF"), Qt::CaseInsensitive) != 0;
    }

    int itemCount() const { return int(items.size()); }
    ChildTask *item(int index) const;
    ChildTask *itemById(int childId) const;
    int indexOfItem(const ChildTask *child) const;
    int appendItem(const ChildTask &source);
    void removeItem(int index);
    int moveItemUp(int index);
    int moveItemDown(int index);

    bool isChecked(int index = -1) const;
    void setChecked(bool value, int index = -1);
    QString displayPath(int index = -1) const;

    void setState(EState newState);
    void setOutputBaseName(const QString &base, const ProfileLookup &catalogue);
    void setOutputBaseName(const QString &base, const QString &extension);

    // The profile's picture size, (0, 0) for a profile without video.
    QSize outputSize() const;
    // The shape the output's frame is shown at: the user's "4:3" or "16:9";
    // for a disc or tape raster (MPEG-1, MPEG-2, DV) left on "Auto", the
    // one of the two nearer the source (MPEG-1: always 4:3); else the
    // frame's own shape, its pixels square.
    double outputAspect() const;
    // A size value as profiles and users write it: "320*240", "320x240",
    // with a label in brackets behind it or not. "Auto" (the source's size)
    // gives an empty QSize; a value that is no usable size gives an invalid
    // one and says why in `error`.
    static QSize parseSize(QString text, QString *error = nullptr);

    QImage thumbnail(int childId);
    void setThumbnail(int childId, const QImage &image) { thumbnails[childId] = image; }

    double totalDuration(bool onlyChecked) const;
    QString totalDurationText(bool onlyChecked) const;
    double trimmedDuration() const;
    QString trimmedDurationText() const;
    double convertDuration() const;
    bool hasVideoInput() const;
    qint64 estimatedSize() const;

    // The bars and inner picture size of one input for the output size.
    void prepareFrame(int index);
    // Deletes the watermark pictures rendered for a conversion.
    void removeWatermarkFiles();
};
