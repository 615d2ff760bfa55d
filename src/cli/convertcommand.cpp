#include "convertcommand.h"

#include "cliparser.h"
#include "convertermanager.h"
#include "profile.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "tasklist.h"
#include "terminationsignals.h"
#include "timetracker.h"
#include "utils.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

QString stateName(Task::EState state)
{
    switch (state) {
    case Task::Idle:
        return QStringLiteral("Idle");
    case Task::Waiting:
        return QStringLiteral("Waiting");
    case Task::Running:
        return QStringLiteral("Running");
    case Task::Paused:
        return QStringLiteral("Paused");
    case Task::Pending:
        return QStringLiteral("Pending");
    case Task::Succeed:
        return QStringLiteral("Succeed");
    case Task::Failed:
        return QStringLiteral("Failed");
    }
    return QString();
}

// "N,M" of positive numbers; empty on a bad list.
QList<int> numberList(const QString &text)
{
    QList<int> numbers;
    for (const QString &part : text.split(QLatin1Char(','))) {
        bool ok = false;
        const int n = part.trimmed().toInt(&ok);
        if (!ok || n < 1)
            return {};
        numbers << n;
    }
    return numbers;
}

int positiveNumber(const QString &text)
{
    bool ok = false;
    const int n = text.toInt(&ok);
    return ok && n >= 1 ? n : 0;
}

QString timeText(qint64 ms)
{
    return ms < 0 ? QStringLiteral("--:--:--") : Utils::durationText(double(ms) / 1000.0);
}

void writeErr(const QString &text)
{
    std::fputs(qUtf8Printable(text), stderr);
    std::fflush(stderr);
}

} // namespace

ConvertCommand::ConvertCommand(QObject *parent)
    : QObject(parent)
{}

ConvertCommand::~ConvertCommand() = default;

int ConvertCommand::parseRequest(const QStringList &args, Request &request)
{
    CliParser cli(
        QStringLiteral("convert"), QStringLiteral("INPUT... --profile KEY [options]"),
        QStringLiteral("Converts discs, folders, IFO files and media files with a profile, as a "
                       "batch of parallel encoders. A disc gives one task per title that an "
                       "import makes. Exit status: 0 when every task succeeded, 1 when some "
                       "failed or could not be read, 2 for wrong arguments."));
    QCommandLineParser &options = cli.options();
    options.addOption({QStringLiteral("profile"),
                       QStringLiteral("The profile key \"group,profile\" (see 'kestrove-cli "
                                      "profiles')."),
                       QStringLiteral("KEY")});
    options.addOption({QStringLiteral("titles"),
                       QStringLiteral("The disc titles to convert, by number as scan names them "
                                      "(Title_N), or all (the default)."),
                       QStringLiteral("N,M|all")});
    options.addOption({QStringLiteral("chapters"),
                       QStringLiteral("Converts only chapters A to B of each input (from 1)."),
                       QStringLiteral("A-B")});
    options.addOption({QStringLiteral("audio"),
                       QStringLiteral("The audio track to take, from 1 in scan's order."),
                       QStringLiteral("N")});
    options.addOption({QStringLiteral("subtitle"),
                       QStringLiteral("The subtitle to burn in, from 1 in scan's order."),
                       QStringLiteral("N")});
    options.addOption({QStringLiteral("set"),
                       QStringLiteral("Sets a profile parameter; may be repeated."),
                       QStringLiteral("KEY=VALUE")});
    options.addOption({QStringLiteral("output-dir"),
                       QStringLiteral("Where the outputs go for this run; the stored setting "
                                      "stays as it is."),
                       QStringLiteral("DIR")});
    options.addOption({QStringLiteral("jobs"),
                       QStringLiteral("How many encoders run at once (default: the stored "
                                      "setting)."),
                       QStringLiteral("N")});
    options.addOption(
        {QStringLiteral("merge"), QStringLiteral("Joins all inputs into one output.")});
    options.addOption({QStringLiteral("json"),
                       QStringLiteral("Ends with one JSON document of the results on standard "
                                      "output.")});
    options.addPositionalArgument(QStringLiteral("INPUT"),
                                  QStringLiteral("A disc, folder, IFO file or media file."),
                                  QStringLiteral("INPUT..."));
    if (const int status = cli.parse(args); status >= 0)
        return status;

    request.inputs = cli.positional();
    if (request.inputs.isEmpty())
        return cli.usageError(QStringLiteral("no INPUT given"));
    request.profileKey = cli.value(QStringLiteral("profile"));
    if (request.profileKey.isEmpty())
        return cli.usageError(QStringLiteral("--profile KEY is required"));
    const ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    if (!catalogue->hasProfile(request.profileKey))
        return cli.usageError(
            QStringLiteral("unknown profile '%1' ('kestrove-cli profiles' lists them)")
                .arg(request.profileKey));
    const Profile profile(QStringLiteral(":/profile/") + catalogue->fileNameOf(request.profileKey));
    request.values = profile.values();
    for (const QString &assignment : cli.values(QStringLiteral("set"))) {
        const int equals = assignment.indexOf(QLatin1Char('='));
        const QString key = assignment.left(equals);
        if (equals <= 0)
            return cli.usageError(
                QStringLiteral("--set wants KEY=VALUE, not '%1'").arg(assignment));
        if (!request.values.contains(key))
            return cli.usageError(
                QStringLiteral("profile %1 has no parameter '%2' (it has: %3)")
                    .arg(request.profileKey, key, profile.keys().join(QStringLiteral(", "))));
        const QString value = assignment.mid(equals + 1);
        QString why;
        if (key == QLatin1String("s") && !Task::parseSize(value, &why).isValid())
            return cli.usageError(QStringLiteral("--set s: %1").arg(why));
        request.values.insert(key, value);
        request.userKeys.insert(key);
    }

    if (cli.isSet(QStringLiteral("titles"))) {
        const QString titles = cli.value(QStringLiteral("titles"));
        if (titles != QLatin1String("all")) {
            request.titles = numberList(titles);
            if (request.titles.isEmpty())
                return cli.usageError(
                    QStringLiteral("--titles wants N,M or all, not '%1'").arg(titles));
        }
    }
    if (cli.isSet(QStringLiteral("chapters"))) {
        const QString chapters = cli.value(QStringLiteral("chapters"));
        const QStringList ends = chapters.split(QLatin1Char('-'));
        request.firstChapter = positiveNumber(ends.value(0));
        request.lastChapter
            = ends.size() == 2 ? positiveNumber(ends.value(1)) : request.firstChapter;
        if (ends.size() > 2 || request.firstChapter == 0
            || request.lastChapter < request.firstChapter)
            return cli.usageError(
                QStringLiteral("--chapters wants A-B with 1 <= A <= B, not '%1'").arg(chapters));
    }
    for (const auto &[name, target] : {std::pair{QStringLiteral("audio"), &request.audio},
                                       std::pair{QStringLiteral("subtitle"), &request.subtitle}}) {
        if (!cli.isSet(name))
            continue;
        *target = positiveNumber(cli.value(name));
        if (*target == 0)
            return cli.usageError(QStringLiteral("--%1 wants a track number from 1, not '%2'")
                                      .arg(name, cli.value(name)));
    }
    request.jobs = Setting::processCount();
    if (cli.isSet(QStringLiteral("jobs"))) {
        request.jobs = positiveNumber(cli.value(QStringLiteral("jobs")));
        if (request.jobs == 0)
            return cli.usageError(QStringLiteral("--jobs wants a number from 1, not '%1'")
                                      .arg(cli.value(QStringLiteral("jobs"))));
    }
    if (cli.isSet(QStringLiteral("output-dir"))) {
        request.outputDir = QFileInfo(cli.value(QStringLiteral("output-dir"))).absoluteFilePath();
        if (!QDir().mkpath(request.outputDir) || !QFileInfo(request.outputDir).isWritable())
            return cli.usageError(
                QStringLiteral("can not write to the output folder '%1'").arg(request.outputDir));
    }
    request.merge = cli.isSet(QStringLiteral("merge"));
    request.json = cli.isSet(QStringLiteral("json"));
    return -1;
}

// Applies the options to one input; the reason when it can't take them.
QString ConvertCommand::editTask(const Request &request, int taskId)
{
    Task &task = *list->byId(taskId);
    task.output.settings = request.values;
    task.output.userKeys = request.userKeys;
    ChildTask &child = *task.item(0);
    if (request.firstChapter > 0) {
        if (request.lastChapter > std::max(1, int(child.chapters.size())))
            return QStringLiteral("has no chapter %1").arg(request.lastChapter);
        // An input without chapter marks is one chapter.
        if (!child.chapters.isEmpty()) {
            child.edit.trimStart = child.chapters.at(request.firstChapter - 1).start;
            child.edit.trimEnd = child.chapters.at(request.lastChapter - 1).end;
        }
    }
    if (request.audio > 0) {
        child.edit.clearAudioSelection();
        if (!child.edit.selectAudio(request.audio - 1))
            return QStringLiteral("has no audio track %1").arg(request.audio);
    }
    if (request.subtitle > 0) {
        child.edit.clearSubtitleSelection();
        if (!child.edit.selectSubtitle(request.subtitle - 1))
            return QStringLiteral("has no subtitle %1").arg(request.subtitle);
    }
    return QString();
}

void ConvertCommand::buildTasks(const Request &request, const QList<ImportedSource> &sources)
{
    QList<int> accepted;
    for (const ImportedSource &source : sources) {
        if (!source.error.isEmpty())
            entries << Entry{source.path, QString(), -1, source.error};
        // A title asked for by number that the disc doesn't make.
        if (source.disc && source.error.isEmpty()) {
            for (int number : request.titles) {
                if (number > source.taskIds.size())
                    entries << Entry{source.path, QStringLiteral("Title_%1").arg(number), -1,
                                     QStringLiteral("no such title")};
            }
        }
        for (int i = 0; i < source.taskIds.size(); ++i) {
            const int id = source.taskIds.at(i);
            if (source.disc && !request.titles.isEmpty() && !request.titles.contains(i + 1)) {
                list->remove(id);
                continue;
            }
            const QString title = list->byId(id)->item(0)->title;
            const QString error = editTask(request, id);
            if (!error.isEmpty()) {
                entries << Entry{source.path, title, -1, error};
                list->remove(id);
                continue;
            }
            entries << Entry{source.path, title, id, QString()};
            accepted << id;
        }
    }
    if (!request.merge || accepted.size() < 2)
        return;
    const int mergeId = list->addMerge(request.profileKey);
    list->byId(mergeId)->output.settings = request.values;
    list->byId(mergeId)->output.userKeys = request.userKeys;
    QStringList sourcesOfMerge;
    for (int id : std::as_const(accepted)) {
        list->addToMerge(id, mergeId);
        list->remove(id);
    }
    QList<Entry> kept;
    for (const Entry &entry : std::as_const(entries)) {
        if (entry.taskId < 0)
            kept << entry;
        else if (!sourcesOfMerge.contains(entry.source))
            sourcesOfMerge << entry.source;
    }
    kept << Entry{sourcesOfMerge.join(QLatin1Char(';')), list->byId(mergeId)->name, mergeId,
                  QString()};
    entries = kept;
}

void ConvertCommand::onStateChanged(int taskId, Task::EState state)
{
    TimeTracker::stateChanged(*list, taskId, state);
    const Task *task = list->byId(taskId);
    if (terminal || !task || state == Task::Waiting)
        return;
    for (const Entry &entry : std::as_const(entries)) {
        if (entry.taskId != taskId)
            continue;
        QString line = QStringLiteral("%1: %2").arg(stateName(state), entry.source);
        if (!entry.title.isEmpty())
            line += QStringLiteral(" (%1)").arg(entry.title);
        if (!task->output.filePath.isEmpty())
            line += QStringLiteral(" -> ") + task->output.filePath;
        writeErr(line + QLatin1Char('\n'));
    }
}

void ConvertCommand::onInterrupted()
{
    if (interrupted)
        return;
    interrupted = true;
    clearProgress();
    writeErr(QStringLiteral("Stopping the encoders...\n"));
    manager->stopAll();
}

void ConvertCommand::clearProgress()
{
    if (!terminal || drawnLines == 0)
        return;
    // Up to the first drawn line, then clear to the end of the screen.
    writeErr(QStringLiteral("\033[%1F\033[J").arg(drawnLines));
    drawnLines = 0;
}

void ConvertCommand::drawProgress()
{
    if (!terminal)
        return;
    QString text;
    int lines = 0;
    for (int i = 0; i < list->count(); ++i) {
        const Task &task = *list->at(i);
        if (task.state != Task::Running && task.state != Task::Paused)
            continue;
        const double length = task.convertDuration();
        const double percent
            = length > 0 ? qBound(0.0, task.progress * 100.0 / length, 100.0) : 0.0;
        const int filled = int(percent / 5.0);
        text += QStringLiteral("%1 [%2%3] %4%  %5 left\n")
                    .arg(QFileInfo(task.output.filePath).fileName().left(40).leftJustified(40),
                         QString(filled, QLatin1Char('#')), QString(20 - filled, QLatin1Char(' ')))
                    .arg(int(percent), 3)
                    .arg(timeText(TimeTracker::remainingMs(task)));
        ++lines;
    }
    TimeTracker::BatchFigures figures;
    const bool known = TimeTracker::batchFigures(*list, &figures);
    text += QStringLiteral("Total: %1 of %2 done, %3%, %4 left\n")
                .arg(figures.finished)
                .arg(figures.count)
                .arg(int(figures.percent))
                .arg(known ? timeText(figures.remaining) : timeText(-1));
    ++lines;
    clearProgress();
    writeErr(text);
    drawnLines = lines;
}

int ConvertCommand::report(bool json)
{
    bool allGood = true;
    QJsonArray tasks;
    QString text;
    for (const Entry &entry : std::as_const(entries)) {
        const Task *task = entry.taskId >= 0 ? list->byId(entry.taskId) : nullptr;
        const QString state = task ? stateName(task->state) : stateName(Task::Failed);
        const QString output
            = task && task->state == Task::Succeed ? task->output.filePath : QString();
        allGood = allGood && task && task->state == Task::Succeed;
        QString error = entry.error;
        if (task && task->state == Task::Failed)
            error = interrupted            ? QStringLiteral("stopped")
                    : task->failure.isEmpty() ? QStringLiteral("the encoder failed")
                                              : task->failure;
        else if (task && task->state != Task::Succeed)
            error = QStringLiteral("not started");
        QJsonObject object{{QStringLiteral("source"), entry.source},
                           {QStringLiteral("title"), entry.title},
                           {QStringLiteral("state"), state},
                           {QStringLiteral("output"), output}};
        if (!error.isEmpty())
            object.insert(QStringLiteral("error"), error);
        tasks.append(object);
        text += QStringLiteral("%1\t%2\t%3\t%4\n")
                    .arg(state, entry.source, entry.title, error.isEmpty() ? output : error);
    }
    if (json)
        printOut(QString::fromUtf8(
            QJsonDocument(QJsonObject{{QStringLiteral("tasks"), tasks},
                                      {QStringLiteral("interrupted"), interrupted}})
                .toJson()));
    else
        printOut(text);
    return allGood ? ExitSuccess : ExitSomeFailed;
}

int ConvertCommand::run(const QStringList &args)
{
    Request request;
    if (const int status = parseRequest(args, request); status >= 0)
        return status;

    // The run's own output folder: an override that is never written back,
    // so the stored OutputDir and OutputToSrc stay as the user left them.
    if (!request.outputDir.isEmpty()) {
        overrideSetting(QStringLiteral("OutputDir"), request.outputDir);
        overrideSetting(QStringLiteral("OutputToSrc"), 0);
    }

    list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
    buildTasks(request, importSources(*list, request.profileKey, request.inputs));
    for (const Entry &entry : std::as_const(entries)) {
        if (!entry.error.isEmpty())
            CliParser::error(
                QStringLiteral("%1%2: %3")
                    .arg(entry.source,
                         entry.title.isEmpty() ? QString() : QStringLiteral(" ") + entry.title,
                         entry.error));
    }

    terminal = isatty(STDERR_FILENO) != 0;
    manager = std::make_unique<ConverterManager>(list.get());
    manager->setMaxProcesses(request.jobs);
    QEventLoop loop;
    connect(manager.get(), &ConverterManager::stateChanged, this,
            [this, &loop](int id, Task::EState state) {
                onStateChanged(id, state);
                if (list->allAtRest())
                    loop.quit();
            });
    // The queue reports progress; the task keeps it, as the window's rows do.
    connect(manager.get(), &ConverterManager::progressChanged, this,
            [this](int id, double progress) {
                if (Task *task = list->byId(id))
                    task->progress = progress;
            });
    TerminationSignals termination;
    connect(&termination, &TerminationSignals::requested, this, &ConvertCommand::onInterrupted);
    ticker = new QTimer(this);
    connect(ticker, &QTimer::timeout, this, &ConvertCommand::drawProgress);

    if (list->count() > 0) {
        manager->startAll();
        if (!list->allAtRest()) {
            ticker->start(500);
            drawProgress();
            loop.exec();
            ticker->stop();
            clearProgress();
        }
    }
    disconnect(manager.get(), nullptr, this, nullptr);
    return report(request.json);
}
