#pragma once

#include <QObject>
#include <QString>

// A desktop notification through the notification server on the session
// bus, with one action that brings the program back. Nothing happens where
// no server listens.
class DesktopNotifier : public QObject
{
    Q_OBJECT

public:
    explicit DesktopNotifier(QObject *parent = nullptr);

    // Returns at once; the server's answer comes later.
    void notify(const QString &summary, const QString &body, const QString &actionLabel);

signals:
    // The user clicked the last notification, or its action.
    void activated();

private slots:
    void onActionInvoked(uint id, const QString &action);

private:
    uint lastId = 0; // the server's id of the last notification; 0 for none
};
