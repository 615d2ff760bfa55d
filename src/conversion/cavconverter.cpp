#include "cavconverter.h"

#include "version.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTime>

CAVConverter::CAVConverter(QObject *parent)
    : QObject(parent)
    , process(this)
    , programPath(defaultProgram())
{
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
    // has seen it come up; it has a process id and must die all the same.
    if (process.state() != QProcess::NotRunning)
        process.killGroup();
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

void CAVConverter::onStdoutReady()
{
    const QByteArray chunk = process.readAll();
    if (chunk.isEmpty())
        return;
    appendLog(chunk);
    const double seconds = parseTime(chunk);
    if (seconds < 0 || seconds == lastSeconds)
        return;
    lastSeconds = seconds;
    emit progressUpdated(taskId, seconds);
}

void CAVConverter::onProcessFinished(int, QProcess::ExitStatus exitStatus)
{
    const bool success = exitStatus != QProcess::CrashExit;
    onStdoutReady();
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
            emit convertFinished(taskId, false);
        },
        Qt::QueuedConnection);
}
