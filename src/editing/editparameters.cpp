#include "editparameters.h"

#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace {

const int FlipHorizontal = 13;
const int FlipVertical = 14;
const int EffectTypes = 18;

template<typename Entry>
std::vector<std::unique_ptr<Entry>> copied(const std::vector<std::unique_ptr<Entry>> &entries)
{
    std::vector<std::unique_ptr<Entry>> copies;
    copies.reserve(entries.size());
    for (const auto &entry : entries)
        copies.push_back(std::make_unique<Entry>(*entry));
    return copies;
}

template<typename Entry>
bool inRange(const std::vector<Entry> &entries, int index)
{
    return index >= 0 && index < int(entries.size());
}

// Deletes the external entries from the back, so positions stay valid.
template<typename Entry>
void removeExternal(std::vector<std::unique_ptr<Entry>> &entries)
{
    for (int i = int(entries.size()) - 1; i >= 0; --i) {
        if (entries[size_t(i)]->external)
            entries.erase(entries.begin() + i);
    }
}

} // namespace

QString EffectEntry::name(int type)
{
    static const char *const names[EffectTypes]
        = {"Black and White",  "Oil Painting",  "Line Drawing",
           "Woodcarving",      "Negative",      "Embossment",
           "Carving",          "Old Film",      "Haze",
           "Shadow",           "Fog",           "Mosaic",
           "Flip Horizontal",  "Flip Vertical", "Vertical Blind",
           "Horizontal Blind", "Sand",          "Soften"};
    if (type < 1 || type > EffectTypes)
        return QStringLiteral("Unknown");
    return QString::fromLatin1(names[type - 1]);
}

WatermarkEntry::WatermarkEntry()
    : id(QUuid::createUuid())
    , font(QGuiApplication::font())
{
    font.setPointSize(20);
}

QImage WatermarkEntry::textImage(const QString &text, const QFont &font, const QColor &color)
{
    const QFontMetrics metrics(font);
    const int w = metrics.horizontalAdvance(text);
    const int h = metrics.height();
    if (w <= 0 || h <= 0)
        return {};
    QImage image(w, h, QImage::Format_ARGB32);
    image.fill(0x00ffffffu); // transparent white keeps anti-aliased edges light
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QRect(0, 0, w, h), Qt::AlignLeft | Qt::AlignTop, text);
    return image;
}

QString AudioTrackEntry::text() const
{
    if (external)
        return QFileInfo(path).fileName();
    if (track < 0 || track >= int(info.audioStreams.size()))
        return {};
    const AudioStreamInfo &stream = info.audioStreams[size_t(track)];
    if (stream.language.isEmpty())
        return stream.codec;
    return QStringLiteral("%1 (%2)").arg(stream.codec, stream.language);
}

SubtitleEntry::SubtitleEntry()
    : font(QGuiApplication::font())
{}

QString SubtitleEntry::text() const
{
    if (external) {
        const QString name = QFileInfo(path).fileName();
        return language.isEmpty() ? name : QStringLiteral("%1(%2)").arg(name, language);
    }
    if (track < 0 || track >= int(info.subtitleStreams.size()))
        return {};
    return info.subtitleStreams[size_t(track)].language;
}

EditParameters::EditParameters()
{
    effects.reserve(EffectTypes);
    for (int type = 1; type <= EffectTypes; ++type)
        effects.push_back({false, type});
    watermarks.push_back(std::make_unique<WatermarkEntry>());
}

EditParameters::~EditParameters() = default;

EditParameters::EditParameters(const EditParameters &other)
    : zoomMode(other.zoomMode)
    , trimStart(other.trimStart)
    , trimEnd(other.trimEnd)
    , convertEnd(other.convertEnd)
    , cropTop(other.cropTop)
    , cropRight(other.cropRight)
    , cropBottom(other.cropBottom)
    , cropLeft(other.cropLeft)
    , padTop(other.padTop)
    , padRight(other.padRight)
    , padBottom(other.padBottom)
    , padLeft(other.padLeft)
    , innerWidth(other.innerWidth)
    , innerHeight(other.innerHeight)
    , rotation(other.rotation)
    , brightness(other.brightness)
    , contrast(other.contrast)
    , saturation(other.saturation)
    , effects(other.effects)
    , watermarks(copied(other.watermarks))
    , audioTracks(copied(other.audioTracks))
    , subtitles(copied(other.subtitles))
    , watermarkFile(other.watermarkFile)
    , watermarkX(other.watermarkX)
    , watermarkY(other.watermarkY)
    , watermarkRight(other.watermarkRight)
    , watermarkBottom(other.watermarkBottom)
{}

EditParameters &EditParameters::operator=(const EditParameters &other)
{
    if (this == &other)
        return *this;
    zoomMode = other.zoomMode;
    trimStart = other.trimStart;
    trimEnd = other.trimEnd;
    cropTop = other.cropTop;
    cropRight = other.cropRight;
    cropBottom = other.cropBottom;
    cropLeft = other.cropLeft;
    padTop = other.padTop;
    padRight = other.padRight;
    padBottom = other.padBottom;
    padLeft = other.padLeft;
    innerWidth = other.innerWidth;
    innerHeight = other.innerHeight;
    brightness = other.brightness;
    contrast = other.contrast;
    saturation = other.saturation;
    effects = other.effects;
    audioTracks = copied(other.audioTracks);
    subtitles = copied(other.subtitles);
    return *this;
}

void EditParameters::assignAll(const EditParameters &other)
{
    if (this == &other)
        return;
    *this = other;
    convertEnd = other.convertEnd;
    rotation = other.rotation;
    watermarks = copied(other.watermarks);
    watermarkFile = other.watermarkFile;
    watermarkX = other.watermarkX;
    watermarkY = other.watermarkY;
    watermarkRight = other.watermarkRight;
    watermarkBottom = other.watermarkBottom;
}

EffectEntry EditParameters::effect(int index) const
{
    return inRange(effects, index) ? effects[size_t(index)] : EffectEntry();
}

void EditParameters::setEffectEnabled(int index, bool enabled)
{
    if (inRange(effects, index))
        effects[size_t(index)].enabled = enabled;
}

void EditParameters::moveEffectUp(int index)
{
    if (inRange(effects, index) && index > 0)
        std::swap(effects[size_t(index)], effects[size_t(index - 1)]);
}

void EditParameters::moveEffectDown(int index)
{
    if (inRange(effects, index + 1) && index >= 0)
        std::swap(effects[size_t(index)], effects[size_t(index + 1)]);
}

bool EditParameters::isFlipped(int type, bool onlyEnabled) const
{
    if (type != FlipHorizontal && type != FlipVertical)
        return false;
    return std::any_of(effects.begin(), effects.end(), [&](const EffectEntry &entry) {
        return entry.type == type && (!onlyEnabled || entry.enabled);
    });
}

bool EditParameters::setFlip(int type, bool enabled)
{
    if (type != FlipHorizontal && type != FlipVertical)
        return false;
    auto found = std::find_if(effects.begin(), effects.end(),
                              [type](const EffectEntry &entry) { return entry.type == type; });
    if (found == effects.end()) {
        effects.push_back({false, type});
        found = effects.end() - 1;
    }
    found->enabled = enabled;
    return true;
}

std::vector<int> EditParameters::enabledEffects() const
{
    std::vector<int> types;
    for (const EffectEntry &entry : effects) {
        if (entry.enabled)
            types.push_back(entry.type);
    }
    return types;
}

bool EditParameters::isEdited() const
{
    if (cropTop || cropRight || cropBottom || cropLeft || rotation)
        return true;
    if (!enabledEffects().empty())
        return true;
    return !watermarks.empty() || !audioTracks.empty() || !subtitles.empty();
}

bool EditParameters::hasWatermark() const
{
    return !watermarks.empty()
           && (!watermark().text.isEmpty() || !watermark().picturePath.isEmpty());
}

void EditParameters::addStreamAudio(int track, const MediaInfo &source)
{
    auto entry = std::make_unique<AudioTrackEntry>();
    entry->track = track;
    entry->info = source;
    entry->infoLoaded = true;
    audioTracks.push_back(std::move(entry));
}

void EditParameters::addStreamSubtitle(int track, const MediaInfo &source)
{
    auto entry = std::make_unique<SubtitleEntry>();
    entry->track = track;
    entry->info = source;
    entry->infoLoaded = true;
    entry->customStyle = false;
    subtitles.push_back(std::move(entry));
}

int EditParameters::addAudioFile(const QString &path)
{
    auto entry = std::make_unique<AudioTrackEntry>();
    entry->external = true;
    entry->path = path;
    audioTracks.push_back(std::move(entry));
    return int(audioTracks.size()) - 1;
}

int EditParameters::addSubtitleFile(const QString &path, const QString &language, int track)
{
    auto entry = std::make_unique<SubtitleEntry>();
    entry->external = true;
    entry->path = path;
    entry->language = language;
    entry->track = track;
    subtitles.push_back(std::move(entry));
    return int(subtitles.size()) - 1;
}

bool EditParameters::removeAudioFile(int index)
{
    if (!inRange(audioTracks, index) || !audioTracks[size_t(index)]->external)
        return false;
    audioTracks.erase(audioTracks.begin() + index);
    return true;
}

bool EditParameters::removeSubtitleFile(int index)
{
    if (!inRange(subtitles, index) || !subtitles[size_t(index)]->external)
        return false;
    subtitles.erase(subtitles.begin() + index);
    return true;
}

void EditParameters::removeAllAudioFiles()
{
    removeExternal(audioTracks);
}

void EditParameters::removeAllSubtitleFiles()
{
    removeExternal(subtitles);
}

void EditParameters::clearAudioSelection()
{
    for (const auto &entry : audioTracks)
        entry->selected = false;
}

void EditParameters::clearSubtitleSelection()
{
    for (const auto &entry : subtitles)
        entry->selected = false;
}

bool EditParameters::selectAudio(int index)
{
    if (!inRange(audioTracks, index))
        return false;
    audioTracks[size_t(index)]->selected = true;
    return true;
}

bool EditParameters::selectSubtitle(int index)
{
    if (!inRange(subtitles, index))
        return false;
    subtitles[size_t(index)]->selected = true;
    return true;
}

bool EditParameters::anyAudioSelected() const
{
    return std::any_of(audioTracks.begin(), audioTracks.end(),
                       [](const auto &entry) { return entry->selected; });
}

bool EditParameters::anySubtitleSelected() const
{
    return std::any_of(subtitles.begin(), subtitles.end(),
                       [](const auto &entry) { return entry->selected; });
}

int EditParameters::selectedAudioStream() const
{
    for (const auto &entry : audioTracks) {
        if (entry->selected && entry->track != -1)
            return entry->track;
    }
    return -1;
}

int EditParameters::selectedSubtitleStream() const
{
    // An added file's track is a position in its own language list, not a
    // stream of the input.
    for (const auto &entry : subtitles) {
        if (entry->selected && !entry->external && entry->track != -1)
            return entry->track;
    }
    return -1;
}

const SubtitleEntry *EditParameters::selectedSubtitleFile() const
{
    for (const auto &entry : subtitles) {
        if (entry->selected && entry->external)
            return entry.get();
    }
    return nullptr;
}

bool EditParameters::loadAudioInfo(AudioTrackEntry &entry, AudioStreamInfo &stream)
{
    if (!entry.infoLoaded) {
        MediaInfo probed;
        if (probed.Load(entry.path) < 0 || probed.audioStreams.empty())
            return false;
        entry.info = probed;
        entry.infoLoaded = true;
    }
    const int track = entry.external ? 0 : entry.track;
    if (track < 0 || track >= int(entry.info.audioStreams.size()))
        return false;
    stream = entry.info.audioStreams[size_t(track)];
    return true;
}

void EditParameters::applyCropTo(EditParameters &target, int targetWidth, int targetHeight) const
{
    // A source too small for the cut keeps its own edges; at least 16
    // pixels of picture always remain.
    if (targetWidth > cropRight + cropLeft + 16) {
        target.cropLeft = cropLeft;
        target.cropRight = cropRight;
    }
    if (targetHeight > cropBottom + cropTop + 16) {
        target.cropTop = cropTop;
        target.cropBottom = cropBottom;
    }
    target.zoomMode = zoomMode;
}

void EditParameters::applyImageTo(EditParameters &target) const
{
    target.brightness = brightness;
    target.contrast = contrast;
    target.saturation = saturation;
}

void EditParameters::applyWatermarkTo(EditParameters &target) const
{
    auto copy = std::make_unique<WatermarkEntry>(watermark());
    copy->id = QUuid::createUuid();
    if (target.watermarks.empty())
        target.watermarks.push_back(std::move(copy));
    else
        target.watermarks.front() = std::move(copy);
}

QString EditParameters::newWatermarkPath()
{
    return QStringLiteral("%1/Watermark/%2.png")
        .arg(QDir::tempPath(), QUuid::createUuid().toString(QUuid::WithoutBraces));
}

bool EditParameters::renderWatermark(int width, int height, const QString &path)
{
    if (!hasWatermark() || width <= 0 || height <= 0)
        return false;
    const WatermarkEntry &entry = watermark();
    watermarkX = std::max(entry.left, 0);
    watermarkY = std::max(entry.top, 0);
    watermarkRight = std::min(entry.right, width - 1);
    watermarkBottom = std::min(entry.bottom, height - 1);
    if (entry.right < entry.left || entry.bottom < entry.top)
        return false;
    const QRect clipped(QPoint(watermarkX, watermarkY), QPoint(watermarkRight, watermarkBottom));
    if (clipped.isEmpty())
        return false; // wholly outside the frame

    QImage picture = entry.image;
    if (picture.isNull()) {
        picture = entry.text.isEmpty()
                      ? QImage(entry.picturePath)
                      : WatermarkEntry::textImage(entry.text, entry.font, entry.color);
    }
    if (picture.isNull())
        return false;

    QImage frame(width, height, QImage::Format_ARGB32);
    frame.fill(0);
    {
        QPainter painter(&frame);
        painter.setOpacity((255 - entry.transparency) * 0.00392156862745098);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(QPoint(entry.left, entry.top), QPoint(entry.right, entry.bottom)),
                          picture);
    }
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    if (!frame.copy(clipped).save(path, "png"))
        return false;
    watermarkFile = path;
    return true;
}
