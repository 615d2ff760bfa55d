#pragma once

#include <QString>

// The window's progress on its dock entry: the launcher-entry signal on the
// session bus, which a dock that knows the program's desktop entry shows.
// Nothing happens where there is no bus or no dock listens.
class TaskbarProgress
{
public:
    enum State { NoProgress, Normal, Paused, Error };

    explicit TaskbarProgress(const QString &desktopId = QStringLiteral("kestrove.desktop"));

    void setProgressValue(qint64 value, qint64 total);
    void setProgressState(State state);
    State progressState() const { return state; }

private:
    void send() const;

    QString uri;
    State state = NoProgress;
    double fraction = 0.0;
};
