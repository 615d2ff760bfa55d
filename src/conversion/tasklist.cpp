#include "tasklist.h"

#include "dvddisc.h"
#include "pathparts.h"
#include "profilelookup.h"
#include "utils.h"

#include <algorithm>

namespace {

// A task born with one input, owned by it.
std::unique_ptr<Task> taskWithOneInput()
{
    auto task = std::make_unique<Task>();
    auto child = std::make_unique<ChildTask>();
    child->owner = task.get();
    task->items.push_back(std::move(child));
    return task;
}

// What every new input does after its probe: stream entries and the range.
bool takeProbe(ChildTask &child)
{
    child.addAudioTracks();
    child.addSubtitleTracks();
    if (!(child.duration > 0.0))
        return false;
    child.inputFormat = child.forcedFormat;
    child.edit.trimEnd = child.duration;
    return true;
}

} // namespace

TaskList::TaskList(const ProfileLookup *catalogue)
    : catalogue(catalogue)
{}

TaskList::~TaskList() = default;

QString TaskList::extensionOf(const QString &profileKey) const
{
    return catalogue ? catalogue->extNameOf(profileKey) : QString();
}

void TaskList::setProfile(Task &task, const QString &profileKey) const
{
    task.output.profileKey = profileKey;
    task.output.profileFile = catalogue ? catalogue->fileNameOf(profileKey) : QString();
}

int TaskList::append(std::unique_ptr<Task> task)
{
    task->id = nextTaskId++;
    tasks.push_back(std::move(task));
    return tasks.back()->id;
}

int TaskList::addFile(const QString &profileKey, const QString &path)
{
    auto task = taskWithOneInput();
    ChildTask &child = *task->items.front();
    if (child.Load(path) < 0 || !takeProbe(child))
        return -1;
    child.sourcePath = path;
    setProfile(*task, profileKey);

    PathParts parts(path);
    parts.setExtension(extensionOf(profileKey));
    child.title = parts.baseName();
    task->setOutputBaseName(parts.baseName(), parts.extension());
    return append(std::move(task));
}

int TaskList::addTitle(const QString &profileKey, const DvdTitle &title, int titleNumber,
                       int discId)
{
    auto task = taskWithOneInput();
    ChildTask &child = *task->items.front();
    if (child.LoadTitle(title) < 0 || !takeProbe(child))
        return -1;
    child.sourcePath = title.disc ? title.disc->path : QString();
    child.pgcIndex = title.pgcIndex;
    // Only the two exact disc aspects choose a zoom; anything else keeps
    // the picture as it is.
    const double aspect = child.DisplayAspect();
    if (aspect == 1.7777777777777777)
        child.edit.zoomMode = QStringLiteral("16:9");
    else if (aspect == 1.3333333333333333)
        child.edit.zoomMode = QStringLiteral("4:3");
    setProfile(*task, profileKey);

    child.title = tr("Title_%1").arg(titleNumber);
    task->setOutputBaseName(child.title, extensionOf(profileKey));
    const int taskId = append(std::move(task));

    if (discId == lastDiscId && !discRanges.empty() && discRanges.back().end == count() - 1) {
        ++discRanges.back().end;
    } else {
        discRanges.push_back({count() - 1, count()});
        lastDiscId = discId;
    }
    return taskId;
}

int TaskList::addMerge(const QString &profileKey)
{
    auto task = std::make_unique<Task>();
    task->name = nextMergeName();
    setProfile(*task, profileKey);
    task->setOutputBaseName(task->name, extensionOf(profileKey));
    return append(std::move(task));
}

int TaskList::addToMerge(int sourceTaskId, int mergeTaskId)
{
    const Task *source = byId(sourceTaskId);
    Task *merge = byId(mergeTaskId);
    if (!source || !merge || source == merge || !source->item(0))
        return -1;
    return merge->appendItem(*source->item(0));
}

int TaskList::clone(int taskId)
{
    const Task *source = byId(taskId);
    if (!source)
        return -1;
    return append(source->clone());
}

void TaskList::remove(int taskId)
{
    const int position = positionOf(taskId);
    if (position < 0)
        return;
    tasks.erase(tasks.begin() + position);
    for (auto range = discRanges.begin(); range != discRanges.end();) {
        if (range->start > position) {
            --range->start;
            --range->end;
        } else if (range->end > position) {
            if (--range->end == range->start) {
                range = discRanges.erase(range);
                continue;
            }
        }
        ++range;
    }
}

void TaskList::clear()
{
    tasks.clear();
    discRanges.clear();
    batchTimer.reset();
}

bool TaskList::allAtRest() const
{
    for (const auto &task : tasks) {
        const Task::EState state = task->state;
        if (state == Task::Waiting || state == Task::Running || state == Task::Paused
            || state == Task::Pending)
            return false;
    }
    return true;
}

Task *TaskList::at(int position) const
{
    return position >= 0 && position < count() ? tasks[size_t(position)].get() : nullptr;
}

Task *TaskList::byId(int taskId) const
{
    const int position = positionOf(taskId);
    return position < 0 ? nullptr : tasks[size_t(position)].get();
}

int TaskList::positionOf(int taskId) const
{
    for (int i = 0; i < count(); ++i) {
        if (tasks[size_t(i)]->id == taskId)
            return i;
    }
    return -1;
}

Task *TaskList::firstInState(Task::EState state) const
{
    for (const auto &task : tasks) {
        if (task->state == state)
            return task.get();
    }
    return nullptr;
}

int TaskList::moveTaskUp(int taskId)
{
    const int position = positionOf(taskId);
    if (position < 1)
        return -1;
    std::swap(tasks[size_t(position)], tasks[size_t(position - 1)]);
    return 0;
}

int TaskList::moveTaskDown(int taskId)
{
    const int position = positionOf(taskId);
    if (position < 0 || position + 1 >= count())
        return -1;
    std::swap(tasks[size_t(position)], tasks[size_t(position + 1)]);
    return 0;
}

int TaskList::rangeAtRow(int row) const
{
    int rows = 0;
    int position = 0;
    for (int i = 0; i < int(discRanges.size()); ++i) {
        const DiscRange &range = discRanges[size_t(i)];
        const int rangeRow = rows + range.start - position;
        if (rangeRow == row)
            return i;
        rows = rangeRow + 1;
        position = range.end;
    }
    return -1;
}

int TaskList::positionAtRow(int row) const
{
    if (row < 0)
        return -1;
    int rows = 0;
    int position = 0;
    for (const DiscRange &range : discRanges) {
        const int rangeRow = rows + range.start - position;
        if (rangeRow >= row)
            return range.start - rangeRow + row;
        rows = rangeRow + 1;
        position = range.end;
    }
    const int totalRows = rows + count() - position;
    if (row >= totalRows)
        return -1;
    return count() - totalRows + row;
}

void TaskList::moveRangeUp(int row)
{
    const int lower = rangeAtRow(row);
    const int upper = rangeAtRow(row - 1);
    if (lower < 0 || upper < 0)
        return;
    DiscRange &up = discRanges[size_t(upper)];
    DiscRange &down = discRanges[size_t(lower)];
    const int upLength = up.end - up.start;
    const int downLength = down.end - down.start;
    std::rotate(tasks.begin() + up.start, tasks.begin() + down.start, tasks.begin() + down.end);
    up.end = up.start + downLength;
    down.start = up.end;
    down.end = down.start + upLength;
}

void TaskList::applyToAll(const ChildTask &edited, bool crop, bool image, bool watermark)
{
    for (const auto &task : tasks) {
        for (const auto &child : task->items) {
            if (child.get() == &edited)
                continue;
            if (crop)
                edited.edit.applyCropTo(child->edit, child->width, child->height);
            if (image)
                edited.edit.applyImageTo(child->edit);
            if (watermark)
                edited.edit.applyWatermarkTo(child->edit);
        }
    }
}

void TaskList::updateCommonRoot()
{
    commonRoot.clear();
    for (const auto &task : tasks) {
        for (const auto &child : task->items) {
            if (commonRoot.isEmpty()) {
                commonRoot = PathParts(child->sourcePath).folder();
            } else {
                commonRoot = commonParent(child->sourcePath, commonRoot);
            }
        }
    }
}

QString TaskList::nextMergeName()
{
    return tr("Merge %1").arg(++mergeCount);
}
