#include "cavconverter.h"

#include "version.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTime>
#include <QTimer>

#include <csignal>

CAVConverter::CAVConverter(QObject *parent)
    : QObject(parent)
    , process(this)
    , programPath(defaultProgram())
    , killTimer(new QTimer(this))
{
    killTimer->setSingleShot(true);
    killTimer->setInterval(stopGraceMs);
    connect(killTimer, &QTimer::timeout, this, [this] {
        if (process.state() != QProcess::NotRunning)
            process.killGroup();
    });
    connect(&process, &QProcess::readyReadStandardOutput, this, &CAVConverter::onStdoutReady);
    connect(&process, &QProcess::readyReadStandardError, this, &CAVConverter::onStdoutReady);
    connect(&process, &QProcess::finished, this, &CAVConverter::onProcessFinished);
    connect(&process, &QProcess::errorOccurred, this, &CAVConverter::onProcessError);
}

QString CAVConverter::defaultProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-encoder");
}

void CAVConverter::appendLog(const QByteArray &bytes) const
{
    if (logPath.isEmpty())
        return;
    QFile file(logPath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(bytes);
}

void CAVConverter::setLogFile(const QString &path)
{
    logPath = path;
    const QString header
        = QStringLiteral("\n\n=======================================================\n")
          + QDateTime::currentDateTime().toString(Qt::ISODate)
          + QStringLiteral(" %1 %2").arg(QLatin1String(productCode), productVersion())
          + QStringLiteral("\n\n");
    appendLog(header.toUtf8());
}

void CAVConverter::setCommand(const QStringList &args, int id)
{
    arguments = args;
    taskId = id;
    appendLog((arguments.join(QLatin1Char(' ')) + QStringLiteral("\n\n")).toUtf8());
}

void CAVConverter::start()
{
    lastSeconds = 0.0;
    tail.clear();
    pendingLine.clear();
    reason.clear();
    process.setProcessChannelMode(QProcess::MergedChannels);
    // Set before the start: a program that can't start reports from inside start().
    runState = Running;
    process.start(programPath, arguments, QIODevice::ReadWrite);
}

void CAVConverter::setPaused(bool paused)
{
    runState = paused ? Suspended : Running;
    process.setSuspended(paused);
}

void CAVConverter::stop()
{
    // A child that was just started is still Starting until the event loop
    // has seen it come up; it has a process id and must end all the same.
    if (process.state() == QProcess::NotRunning)
        return;
    // Killed at once, ffmpeg would leave a file without its index that
    // plays nowhere; asked to end, the front removes it.
    if (!process.terminateGroup())
        process.killGroup();
    else if (!killTimer->isActive())
        killTimer->start();
}

double CAVConverter::parseTime(const QByteArray &chunk)
{
    // The chunk counts up to its first NUL, like a C string.
    const QByteArray text(chunk.constData(), qstrnlen(chunk.constData(), chunk.size()));
    const int at = text.indexOf("time=");
    if (at < 0)
        return -1;
    const int begin = at + 5;
    const int blank = text.indexOf(' ', begin);
    if (blank < 0 || blank - begin >= 255)
        return -1;
    const QTime time
        = QTime::fromString(QString::fromLatin1(text.mid(begin, blank - begin)), Qt::TextDate);
    return time.isValid() ? QTime(0, 0).secsTo(time) : 0;
}

void CAVConverter::keepTail(const QByteArray &chunk)
{
    tail.append(chunk);
    if (tail.size() > 16384)
        tail.remove(0, tail.size() - 16384);
    // A sanitizer's report from the encoder must reach whoever watches us,
    // whatever becomes of the run.
    pendingLine.append(chunk);
    int end;
    while ((end = pendingLine.indexOf('\n')) >= 0) {
        const QByteArray line = pendingLine.left(end).trimmed();
        pendingLine.remove(0, end + 1);
        if (line.contains("Sanitizer") || line.contains("runtime error:"))
            qWarning("encoder of task %d: %s", taskId, line.constData());
    }
    if (pendingLine.size() > 4096)
        pendingLine.clear();
}

QString CAVConverter::reasonFromOutput(const QByteArray &output)
{
    static const QByteArray front = "kestrove-encoder: ";
    static const QByteArray frontError = front + "error: ";
    QStringList own;
    QStringList others;
    for (QByteArray line : output.split('\n')) {
        // A status line ends in a carriage return, the next one follows it.
        line = line.mid(line.lastIndexOf('\r') + 1).trimmed();
        if (line.isEmpty())
            continue;
        if (line.startsWith(frontError)) {
            own << QString::fromUtf8(line.mid(frontError.size()));
        } else if (!line.startsWith(front) && !line.startsWith("frame=")
                   && !line.startsWith("size=") && !line.contains("Press [q]")) {
            others << QString::fromUtf8(line);
        }
    }
    if (!own.isEmpty())
        return own.join(QStringLiteral("; "));
    return others.mid(qMax(0, others.size() - 3)).join(QStringLiteral("; "));
}

void CAVConverter::onStdoutReady()
{
    const QByteArray chunk = process.readAll();
    if (chunk.isEmpty())
        return;
    appendLog(chunk);
    keepTail(chunk);
    const double seconds = parseTime(chunk);
    if (seconds < 0 || seconds == lastSeconds)
        return;
    lastSeconds = seconds;
    emit progressUpdated(taskId, seconds);
}

void CAVConverter::onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    killTimer->stop();
    onStdoutReady();
    // The front exits 0 only when its output is whole.
    const bool success = exitStatus == QProcess::NormalExit && exitCode == 0;
    if (!success) {
        reason = reasonFromOutput(tail);
        if (reason.isEmpty())
            reason = exitStatus == QProcess::CrashExit
                         ? QStringLiteral("the encoder was stopped or crashed")
                         : QStringLiteral("the encoder ended with status %1").arg(exitCode);
    }
    emit convertFinished(taskId, success);
    runState = NoChild;
}

void CAVConverter::onProcessError(QProcess::ProcessError error)
{
    if (error != QProcess::FailedToStart)
        return;
    // No finished() follows a failed start; end the run as a failure, after
    // start() has returned so that callers see a consistent order.
    QMetaObject::invokeMethod(
        this,
        [this] {
            runState = NoChild;
            reason = QStringLiteral("the encoder \"%1\" could not be started: %2")
                         .arg(programPath, process.errorString());
            emit convertFinished(taskId, false);
        },
        Qt::QueuedConnection);
}
