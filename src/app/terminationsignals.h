#pragma once

#include <QObject>

class QSocketNotifier;

// Turns SIGINT, SIGTERM and SIGHUP into a Qt signal on the main thread, so
// that a logout or a Ctrl-C ends the program through its normal close path.
class TerminationSignals : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TerminationSignals)

public:
    // Only one instance may exist at a time; it owns the handlers while it lives.
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void requested(int signalNumber);

private:
    void onReadable();

    QSocketNotifier *notifier = nullptr;
};
