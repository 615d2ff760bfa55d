#include "taskbarprogress.h"

#include <QDBusConnection>
#include <QDBusMessage>

TaskbarProgress::TaskbarProgress(const QString &desktopId)
    : uri(QStringLiteral("application://") + desktopId)
{}

void TaskbarProgress::setProgressValue(qint64 value, qint64 total)
{
    const double now = total > 0 ? qBound(0.0, double(value) / double(total), 1.0) : 0.0;
    if (now == fraction && state != NoProgress)
        return;
    fraction = now;
    if (state == NoProgress)
        state = Normal;
    send();
}

void TaskbarProgress::setProgressState(State newState)
{
    if (newState == state)
        return;
    state = newState;
    send();
}

void TaskbarProgress::send() const
{
    const QVariantMap properties{{QStringLiteral("progress"), fraction},
                                 {QStringLiteral("progress-visible"), state != NoProgress},
                                 {QStringLiteral("urgent"), state == Error}};
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage update = QDBusMessage::createSignal(QStringLiteral("/com/tessarine/kestrove"),
                                                     QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                                     QStringLiteral("Update"));
    update << uri << properties;
    bus.send(update);
}
