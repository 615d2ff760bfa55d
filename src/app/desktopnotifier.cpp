#include "desktopnotifier.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");

} // namespace

DesktopNotifier::DesktopNotifier(QObject *parent)
    : QObject(parent)
{
    // From any sender: naming the service would make Qt look its owner up
    // with a blocking call; the id tells ours apart.
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        bus.connect(QString(), path, service, QStringLiteral("ActionInvoked"), this,
                    SLOT(onActionInvoked(uint, QString)));
}

void DesktopNotifier::notify(const QString &summary, const QString &body,
                             const QString &actionLabel)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QDBusConnectionInterface *daemon = bus.isConnected() ? bus.interface() : nullptr;
    // A server the bus starts on demand listens as well as a running one.
    if (!daemon
        || (!daemon->isServiceRegistered(service)
            && !daemon->activatableServiceNames().value().contains(service)))
        return;
    QDBusMessage call
        = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    call << QStringLiteral("Tessarine Kestrove") << uint(0) << QStringLiteral("kestrove") << summary
         << body << QStringList{QStringLiteral("default"), actionLabel}
         << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("kestrove")}}
         << qint32(-1);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *answer) {
                const QDBusPendingReply<uint> reply = *answer;
                // A server that fails leaves nothing to click; no need to say so.
                if (!reply.isError())
                    lastId = reply.value();
                answer->deleteLater();
            });
}

void DesktopNotifier::onActionInvoked(uint id, const QString &action)
{
    if (id != 0 && id == lastId && action == QLatin1String("default"))
        emit activated();
}
