#include "task.h"

#include "profilelookup.h"
#include "utils.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

std::unique_ptr<Task> Task::clone() const
{
    auto copy = std::make_unique<Task>();
    for (const auto &child : items) {
        auto childCopy = std::make_unique<ChildTask>(*child);
        childCopy->owner = copy.get();
        copy->items.push_back(std::move(childCopy));
    }
    copy->output = output;
    copy->thumbnails = thumbnails;
    copy->checked = checked;
    copy->name = name;
    copy->progress = progress;
    copy->nextChildId = nextChildId;
    return copy;
}

ChildTask *Task::item(int index) const
{
    return index >= 0 && index < itemCount() ? items[size_t(index)].get() : nullptr;
}

ChildTask *Task::itemById(int childId) const
{
    for (const auto &child : items) {
        if (child->id == childId)
            return child.get();
    }
    return nullptr;
}

int Task::indexOfItem(const ChildTask *child) const
{
    for (int i = 0; i < itemCount(); ++i) {
        if (items[size_t(i)].get() == child)
            return i;
    }
    return -1;
}

int Task::appendItem(const ChildTask &source)
{
    auto copy = std::make_unique<ChildTask>(source);
    copy->id = nextChildId++;
    copy->owner = this;
    items.push_back(std::move(copy));
    return items.back()->id;
}

void Task::removeItem(int index)
{
    if (item(index))
        items.erase(items.begin() + index);
}

int Task::moveItemUp(int index)
{
    if (!item(index) || !item(index - 1))
        return -1;
    std::swap(items[size_t(index)], items[size_t(index - 1)]);
    return 0;
}

int Task::moveItemDown(int index)
{
    if (!item(index) || !item(index + 1))
        return -1;
    std::swap(items[size_t(index)], items[size_t(index + 1)]);
    return 0;
}

bool Task::isChecked(int index) const
{
    if (index == -1)
        return checked;
    const ChildTask *child = item(index);
    return child && child->checked;
}

void Task::setChecked(bool value, int index)
{
    if (index == -1)
        checked = value;
    else if (ChildTask *child = item(index))
        child->checked = value;
}

QString Task::displayPath(int index) const
{
    if (index == -1)
        return name;
    const ChildTask *child = item(index);
    return child ? child->sourcePath : QString();
}

void Task::setState(EState newState)
{
    if (newState == state)
        return;
    // Each run is timed afresh; the queue's time tracker starts the clock.
    if (newState == Running)
        reset();
    state = newState;
}

void Task::setOutputBaseName(const QString &base, const ProfileLookup &catalogue)
{
    setOutputBaseName(base, catalogue.extNameOf(output.profileKey));
}

void Task::setOutputBaseName(const QString &base, const QString &extension)
{
    // A profile the catalogue doesn't know gives no extension and no point.
    output.fileName = extension.isEmpty() ? base : base + QLatin1Char('.') + extension;
}

QSize Task::outputSize() const
{
    const QString text = value(QStringLiteral("s"));
    if (text.isEmpty())
        return {0, 0};
    const QSize size = parseSize(text);
    if (size.isEmpty() && size.isValid()) {
        const ChildTask *first = item(0);
        if (!first)
            return {0, 0};
        return {int(first->DisplayAspect() * first->height), first->height};
    }
    return size.isValid() ? size : QSize(0, 0);
}

double Task::outputAspect() const
{
    const QSize size = outputSize();
    const QString aspect = value(QStringLiteral("aspect"));
    if (aspect == QLatin1String("4:3"))
        return 4.0 / 3.0;
    if (aspect == QLatin1String("16:9"))
        return 16.0 / 9.0;
    const double square = size.height() > 0 ? double(size.width()) / size.height() : 0.0;
    static const QList<QSize> rasters = {{720, 480}, {720, 576}, {704, 480}, {704, 576},
                                         {480, 480}, {480, 576}, {352, 480}, {352, 576},
                                         {352, 240}, {352, 288}};
    const QString vcodec = value(QStringLiteral("vcodec"));
    const bool tape = vcodec == QLatin1String("dvvideo") || vcodec == QLatin1String("mpeg2video");
    if (!rasters.contains(size) || (!tape && vcodec != QLatin1String("mpeg1video")))
        return square;
    const ChildTask *first = item(0);
    const bool wide = tape && first && first->height > 0
                      && first->DisplayAspect() >= (4.0 / 3.0 + 16.0 / 9.0) / 2;
    return wide ? 16.0 / 9.0 : 4.0 / 3.0;
}

QSize Task::parseSize(QString text, QString *error)
{
    // Far beyond any screen, and small enough for every product of two sides.
    constexpr int largest = 16384;
    const int bracket = text.indexOf(QLatin1Char('('));
    if (bracket >= 0)
        text.truncate(bracket);
    text = text.trimmed();
    if (text == QLatin1String("Auto"))
        return QSize(0, 0);
    static const QRegularExpression pattern(QStringLiteral("^(-?\\d+)\\s*[*xX×]\\s*(-?\\d+)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    bool wideOk = false, highOk = false;
    const int width = match.captured(1).toInt(&wideOk);
    const int height = match.captured(2).toInt(&highOk);
    if (!match.hasMatch() || !wideOk || !highOk || width <= 0 || height <= 0 || width > largest
        || height > largest) {
        if (error)
            *error = QStringLiteral("\"%1\" is no picture size: give width and height from 1 to "
                                    "%2, as 640x480 or 640*480, or Auto")
                         .arg(text)
                         .arg(largest);
        return QSize();
    }
    return QSize(width, height);
}

QImage Task::thumbnail(int childId)
{
    return thumbnails[childId];
}

double Task::totalDuration(bool onlyChecked) const
{
    double sum = 0.0;
    for (const auto &child : items) {
        if (!onlyChecked || child->checked)
            sum += child->duration;
    }
    return sum;
}

QString Task::totalDurationText(bool onlyChecked) const
{
    return Utils::durationText(totalDuration(onlyChecked));
}

double Task::trimmedDuration() const
{
    double sum = 0.0;
    for (const auto &child : items)
        sum += child->edit.trimEnd - child->edit.trimStart;
    return sum;
}

QString Task::trimmedDurationText() const
{
    return Utils::durationText(trimmedDuration());
}

double Task::convertDuration() const
{
    double sum = 0.0;
    for (const auto &child : items)
        sum += child->edit.convertEnd - child->edit.trimStart;
    return sum;
}

bool Task::hasVideoInput() const
{
    return std::any_of(items.begin(), items.end(),
                       [](const auto &child) { return child->hasVideo; });
}

qint64 Task::estimatedSize() const
{
    const double seconds = trimmedDuration();
    // The video term is a tenth of the nominal rate; the audio one is not.
    const qint64 video = qint64(value(QStringLiteral("b")).toInt() * 1000.0 * seconds) / 10;
    const double audio = value(QStringLiteral("ab")).toInt() * 1000.0 * seconds;
    return qint64(audio + double(video));
}

void Task::prepareFrame(int index)
{
    ChildTask *child = item(index);
    if (!child)
        return;
    EditParameters &edit = child->edit;
    const QSize size = outputSize();
    const int W = size.width();
    const int H = size.height();
    // Bars of an earlier zoom or profile must not outlive it.
    edit.padLeft = edit.padRight = edit.padTop = edit.padBottom = 0;
    if (!hasVideoInput()) {
        edit.innerWidth = std::max(W, 16);
        edit.innerHeight = std::max(H, 16);
        return;
    }
    if (W <= 0 || H <= 0)
        return; // a profile without video has no frame

    const int cw = std::max(child->width - edit.cropRight - edit.cropLeft, 16);
    const int ch = std::max(child->height - edit.cropBottom - edit.cropTop, 16);
    double ratio = 0.0;
    if (edit.zoomMode == QLatin1String("Full Screen")) {
        edit.innerWidth = W;
        edit.innerHeight = H;
        return;
    } else if (edit.zoomMode == QLatin1String("4:3")) {
        ratio = 1.3333333333333333;
    } else if (edit.zoomMode == QLatin1String("16:9")) {
        ratio = 1.7777777777777777;
    } else {
        // The cropped part keeps the shape of the source's pixels.
        const double pixelAspect = child->displayAspect > 0.0 && child->width > 0
                                       ? child->displayAspect * child->height / child->width
                                       : 1.0;
        ratio = double(cw) / double(ch) * pixelAspect;
    }

    // An odd bar moves one pixel to the left or the bottom one, so that the
    // left and top offsets stay even. Bars are measured in the output's
    // pixels, which need not be square.
    const double frame = outputAspect();
    if (frame >= ratio) {
        const int half = (W - int(W * ratio / frame)) / 2;
        edit.padRight = edit.padLeft = half;
        if (half % 2) {
            edit.padRight = half - 1;
            edit.padLeft = half + 1;
        }
        edit.innerWidth = W - edit.padLeft - edit.padRight;
        edit.innerHeight = H;
    } else {
        const int half = (H - int(H * frame / ratio)) / 2;
        edit.padTop = edit.padBottom = half;
        if (half % 2) {
            edit.padTop = half - 1;
            edit.padBottom = half + 1;
        }
        edit.innerWidth = W;
        edit.innerHeight = H - edit.padBottom - edit.padTop;
    }
}

void Task::removeWatermarkFiles()
{
    for (const auto &child : items) {
        if (child->edit.watermarkFile.isEmpty())
            continue;
        QFile::remove(child->edit.watermarkFile);
        child->edit.watermarkFile.clear();
    }
}
