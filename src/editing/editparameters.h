#pragma once

#include "mediainfo.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>
#include <QUuid>

#include <memory>
#include <vector>

struct EffectEntry
{
    bool enabled = false;
    int type = 0;

    // The English name of an effect number, "Unknown" for any other number.
    static QString name(int type);
};

// A text or picture laid over the output. Active when text or picturePath is
// set; at most one of them is.
class WatermarkEntry
{
public:
    WatermarkEntry();

    int transparency = 0; // 0 opaque, 255 invisible
    QUuid id;
    QFont font;
    QColor color = Qt::white;
    QString text;
    QString picturePath;
    QImage image; // the rendered text or the loaded picture
    // Inclusive rectangle in output pixels.
    int left = 1;
    int top = 1;
    int right = 160;
    int bottom = 120;

    // The text drawn from the top left of a transparent picture just its size.
    static QImage textImage(const QString &text, const QFont &font, const QColor &color);
};

class AudioTrackEntry
{
public:
    bool selected = false;
    bool external = false; // an added file rather than a stream of the input
    QString path;
    bool loop = false;
    int track = -1; // position in the input's audioStreams; -1 for an added file
    MediaInfo info;
    bool infoLoaded = false;

    QString text() const;
};

class SubtitleEntry
{
public:
    SubtitleEntry();

    bool selected = false;
    bool external = false;
    bool customStyle = true;
    QFont font;
    QColor color = QColor(255, 255, 255, 255);
    int transparency = 0; // percent
    int position = 90;
    QString path;
    QString language;
    int track = -1; // stream position, or position in the added file's languages
    MediaInfo info;
    bool infoLoaded = false;

    QString text() const;
};

// What a user did to one input: range, crop, zoom, picture, effects,
// watermark, audio and subtitle choice.
class EditParameters
{
public:
    EditParameters();
    ~EditParameters();
    // Takes every field, with copies of the owned entries.
    EditParameters(const EditParameters &other);
    // Takes the zoom, trim range, crop, pads, inner size, picture values and
    // effects, and copies of the audio and subtitle entries. Rotation, the
    // watermark, convertEnd and the rendered watermark stay as they were.
    EditParameters &operator=(const EditParameters &other);
    // Every field, as the copy constructor takes them.
    void assignAll(const EditParameters &other);

    QString zoomMode = QStringLiteral("Keep Original");
    double trimStart = 0.0;
    double trimEnd = 0.0;
    double convertEnd = 0.0;
    int cropTop = 0;
    int cropRight = 0;
    int cropBottom = 0;
    int cropLeft = 0;
    int padTop = 0;
    int padRight = 0;
    int padBottom = 0;
    int padLeft = 0;
    int innerWidth = 0;
    int innerHeight = 0;
    int rotation = 0;
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
    std::vector<EffectEntry> effects;
    std::vector<std::unique_ptr<WatermarkEntry>> watermarks;
    std::vector<std::unique_ptr<AudioTrackEntry>> audioTracks;
    std::vector<std::unique_ptr<SubtitleEntry>> subtitles;
    QString watermarkFile;
    int watermarkX = 0;
    int watermarkY = 0;
    int watermarkRight = -1;
    int watermarkBottom = -1;

    int effectCount() const { return int(effects.size()); }
    EffectEntry effect(int index) const;
    void setEffectEnabled(int index, bool enabled);
    void moveEffectUp(int index);
    void moveEffectDown(int index);
    bool isFlipped(int type, bool onlyEnabled) const;
    bool setFlip(int type, bool enabled);
    std::vector<int> enabledEffects() const;

    bool isEdited() const;
    bool hasWatermark() const;
    WatermarkEntry &watermark() { return *watermarks.front(); }
    const WatermarkEntry &watermark() const { return *watermarks.front(); }

    void addStreamAudio(int track, const MediaInfo &source);
    void addStreamSubtitle(int track, const MediaInfo &source);
    int addAudioFile(const QString &path);
    int addSubtitleFile(const QString &path, const QString &language, int track);
    bool removeAudioFile(int index);
    bool removeSubtitleFile(int index);
    void removeAllAudioFiles();
    void removeAllSubtitleFiles();
    void clearAudioSelection();
    void clearSubtitleSelection();
    bool selectAudio(int index);
    bool selectSubtitle(int index);
    bool anyAudioSelected() const;
    bool anySubtitleSelected() const;
    int selectedAudioStream() const;
    int selectedSubtitleStream() const;
    const SubtitleEntry *selectedSubtitleFile() const;

    // The properties of the entry's stream (stream 0 of an added file); an
    // added file is probed on first use. False when nothing can be said.
    static bool loadAudioInfo(AudioTrackEntry &entry, AudioStreamInfo &stream);

    // The "Apply to All" steps: what another input takes from this one.
    void applyCropTo(EditParameters &target, int targetWidth, int targetHeight) const;
    void applyImageTo(EditParameters &target) const;
    void applyWatermarkTo(EditParameters &target) const;

    // A fresh name in the temporary folder's "Watermark" folder.
    static QString newWatermarkPath();
    // Lays the watermark over a transparent frame of the output size and
    // saves the part it covers as a PNG under path; fills watermarkFile and
    // the watermark rectangle. False when there is nothing to render or the
    // file can't be written.
    bool renderWatermark(int width, int height, const QString &path);

private:
    void copyEntriesFrom(const EditParameters &other);
};
