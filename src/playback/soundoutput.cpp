#include "soundoutput.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QCoreApplication>
#include <QIODevice>
#include <QTimer>
#include <QMediaDevices>
#include <QThread>

namespace {

constexpr int bytesPerFrame = 4; // stereo, 16-bit
constexpr double deviceBufferSeconds = 0.08;
constexpr int pumpMs = 10;

} // namespace

struct SoundOutput::Private
{
    QThread thread;
    QObject host; // lives on `thread`: the sink's calls go through it
    QAudioSink *sink = nullptr;
    QIODevice *io = nullptr; // the sink's, written by the pump
    QTimer *pump = nullptr;
    Feed feed;
    QByteArray buffer;
    int rate = 0;
    double volume = 1.0;

    template<typename F>
    void onThread(F &&work)
    {
        if (!thread.isRunning())
            return;
        QMetaObject::invokeMethod(&host, std::forward<F>(work), Qt::BlockingQueuedConnection);
    }

    void fill()
    {
        if (!sink || !io || !feed || sink->state() == QAudio::SuspendedState)
            return;
        qint64 room = sink->bytesFree();
        room -= room % bytesPerFrame;
        if (room <= 0)
            return;
        const qint64 queued = qMax<qint64>(0, sink->bufferSize() - room);
        buffer.resize(room);
        const qint64 filled = feed(buffer.data(), room, queued);
        if (filled > 0)
            io->write(buffer.constData(), filled);
    }

    void closeSink()
    {
        if (!sink)
            return;
        delete pump;
        pump = nullptr;
        sink->stop();
        delete sink;
        sink = nullptr;
        io = nullptr;
        feed = nullptr;
    }
};

SoundOutput::SoundOutput()
    : d(std::make_unique<Private>())
{
    d->thread.setObjectName(QStringLiteral("sound output"));
}

SoundOutput::~SoundOutput()
{
    stop();
    d->thread.quit();
    d->thread.wait();
}

bool SoundOutput::start(int rate, Feed feed)
{
    stop();
    if (!QCoreApplication::instance())
        return false;
    if (!d->thread.isRunning()) {
        d->host.moveToThread(&d->thread);
        d->thread.start();
    }
    bool started = false;
    d->onThread([&] {
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (device.isNull())
            return;
        QAudioFormat format;
        format.setChannelCount(2);
        format.setSampleFormat(QAudioFormat::Int16);
        format.setSampleRate(rate);
        if (!device.isFormatSupported(format))
            format.setSampleRate(device.preferredFormat().sampleRate());
        if (!device.isFormatSupported(format))
            return;
        d->rate = format.sampleRate();
        d->sink = new QAudioSink(device, format);
        d->sink->setBufferSize(int(d->rate * deviceBufferSeconds) * bytesPerFrame);
        d->sink->setVolume(d->volume);
        d->feed = std::move(feed);
        d->io = d->sink->start();
        started = d->io && d->sink->error() == QAudio::NoError;
        if (!started) {
            d->closeSink();
            return;
        }
        // Pushed by a timer of our own: the device's free room tells what
        // it holds, which the clock needs.
        d->pump = new QTimer;
        d->pump->setTimerType(Qt::PreciseTimer);
        QObject::connect(d->pump, &QTimer::timeout, d->pump, [this] { d->fill(); });
        d->pump->start(pumpMs);
        d->fill();
    });
    return started;
}

void SoundOutput::stop()
{
    d->onThread([this] { d->closeSink(); });
}

void SoundOutput::suspend()
{
    d->onThread([this] {
        if (d->sink)
            d->sink->suspend();
    });
}

void SoundOutput::resume()
{
    d->onThread([this] {
        if (d->sink)
            d->sink->resume();
    });
}

void SoundOutput::setVolume(double level)
{
    d->volume = qBound(0.0, level, 1.0);
    d->onThread([this] {
        if (d->sink)
            d->sink->setVolume(d->volume);
    });
}

int SoundOutput::rate() const
{
    return d->rate;
}
