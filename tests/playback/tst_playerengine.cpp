#include "ffmpegtools.h"
#include "ffplayer.h"
#include "mediafixtures.h"
#include "playerengine.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <mutex>
#include <vector>

namespace {

constexpr double frameRate = 25.0;

// What a test sees of a playing engine: states, pictures, sound.
struct Watcher
{
    std::mutex mutex;
    std::vector<int> states, counters; // counters: the frame number burnt into each picture
    std::vector<double> clocks;  // the clock as each picture was shown
    std::vector<int16_t> left;   // left channel as it went out
    int soundRate = 0;
    PlayerEngine *engine = nullptr;

    void attach(PlayerEngine &e)
    {
        engine = &e;
        e.setStateCallback([this](int state) {
            std::lock_guard<std::mutex> guard(mutex);
            states.push_back(state);
        });
        e.setFrameCallback([this](const PlayerPicture &p) {
            // The left band's luma is twice the frame number.
            const int luma = p.data[0][(p.height / 2) * p.linesize[0] + 4];
            const double clock = engine->clock();
            std::lock_guard<std::mutex> guard(mutex);
            counters.push_back(int(std::lround(luma / 2.0)));
            clocks.push_back(clock);
            return 0;
        });
        e.setSoundTap([this](const int16_t *samples, int frames, int channels, int rate, double) {
            std::lock_guard<std::mutex> guard(mutex);
            soundRate = rate;
            for (int i = 0; i < frames; ++i)
                left.push_back(samples[i * channels]);
        });
    }
    double soundSeconds()
    {
        std::lock_guard<std::mutex> guard(mutex);
        return soundRate > 0 ? double(left.size()) / soundRate : 0.0;
    }
    int lastState()
    {
        std::lock_guard<std::mutex> guard(mutex);
        return states.empty() ? -1 : states.back();
    }
    size_t pictureCount()
    {
        std::lock_guard<std::mutex> guard(mutex);
        return counters.size();
    }
    void clear()
    {
        std::lock_guard<std::mutex> guard(mutex);
        states.clear();
        counters.clear();
        clocks.clear();
        left.clear();
    }
    // Hz of the left channel, from its rises through zero; a rise counts
    // from well below to well above, so that noise near zero does not.
    double frequency()
    {
        std::lock_guard<std::mutex> guard(mutex);
        constexpr int16_t margin = 1000;
        int crossings = 0;
        bool low = false;
        for (int16_t sample : left) {
            if (sample < -margin) {
                low = true;
            } else if (sample > margin && low) {
                low = false;
                ++crossings;
            }
        }
        return soundRate > 0 && !left.empty() ? crossings * double(soundRate) / left.size() : 0.0;
    }
};

} // namespace

class TestPlayerEngine : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString counter; // 4 s, frame number in the picture, a 440 Hz tone
    QString flashes; // a white frame and a beep at 1, 2 and 3 s
    QString titleIfo;

    // Sound must go to a device when the run has started a sound server.
    static bool soundRequired() { return qEnvironmentVariableIsSet("KESTROVE_SOUND_SERVER"); }

private slots:
    void initTestCase()
    {
        counter = dir.filePath(QStringLiteral("counter.mkv"));
        flashes = dir.filePath(QStringLiteral("flashes.mkv"));
        // Lossless, so that the burnt-in number reads back exactly.
        const QString video = QStringLiteral("-v error -y -f lavfi -i %1 -f lavfi -i %2 -c:v libx264 -qp 0 "
                                             "-g 25 -pix_fmt yuv420p -c:a flac");
        QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                         video.arg(QStringLiteral("color=c=gray:s=160x120:r=25:d=4,"
                                                  "geq=lum='if(lt(X\\,32)\\,2*N\\,128)':cb=128:cr=128"),
                                   QStringLiteral("sine=f=440:r=48000:d=4"))
                                 .split(QLatin1Char(' '))
                             << counter, nullptr, QString(), 120000),
                 0);
        QCOMPARE(runTool(QStringLiteral("ffmpeg"),
                         video.arg(QStringLiteral("color=c=black:s=160x120:r=25:d=4,geq=lum='if(eq(mod(N\\,25)"
                                                  "\\,0)*gte(N\\,25)\\,235\\,16)':cb=128:cr=128"),
                                   QStringLiteral("aevalsrc='if(lt(mod(t\\,1)\\,0.04)*gte(t\\,1)\\,"
                                                  "0.8*sin(2*PI*1000*t)\\,0)':s=48000:d=4"))
                                 .split(QLatin1Char(' '))
                             << flashes, nullptr, QString(), 120000),
                 0);
        titleIfo = fixture(mediaFixtures(), "dvd-main/VIDEO_TS/VTS_01_0.IFO");
    }

    // Real speed, and a pause that holds.
    void clockRunsAtRealSpeedAndPauseHoldsIt()
    {
        Watcher watcher; // outlives the engine, whose threads call it
        PlayerEngine engine;
        watcher.attach(engine);
        QVERIFY(engine.open(counter, TitleSelection()));
        engine.play();
        QCOMPARE(watcher.lastState(), int(PlayerEngine::Playing));
        QTRY_VERIFY(watcher.pictureCount() > 2);
        QElapsedTimer wall;
        wall.start();
        const double start = engine.clock();
        QTest::qWait(2000);
        const double ran = engine.clock() - start;
        const double elapsed = wall.nsecsElapsed() / 1e9;
        QVERIFY2(std::abs(ran - elapsed) < 0.05 * elapsed,
                 qPrintable(QStringLiteral("clock %1 s in %2 s").arg(ran).arg(elapsed)));

        engine.pause();
        QCOMPARE(watcher.lastState(), int(PlayerEngine::Paused));
        const double held = engine.clock();
        const size_t shown = watcher.pictureCount();
        QTest::qWait(300);
        QCOMPARE(engine.clock(), held);
        QCOMPARE(watcher.pictureCount(), shown);
        engine.pause();
        QCOMPARE(watcher.lastState(), int(PlayerEngine::Playing));
        QTRY_VERIFY(engine.clock() > held + 0.1);
    }

    void seekShowsTheFrameAtTheTarget_data()
    {
        QTest::addColumn<QString>("when");
        QTest::addColumn<double>("target");
        QTest::newRow("playing, on a key frame") << QStringLiteral("playing") << 2.0;
        QTest::newRow("playing, between key frames") << QStringLiteral("playing") << 2.52;
        QTest::newRow("backwards") << QStringLiteral("playing") << 0.4;
        QTest::newRow("paused") << QStringLiteral("paused") << 2.0;
        QTest::newRow("before play") << QStringLiteral("before play") << 3.0;
        QTest::newRow("after stop") << QStringLiteral("after stop") << 1.2;
    }
    void seekShowsTheFrameAtTheTarget()
    {
        QFETCH(QString, when);
        QFETCH(double, target);
        Watcher watcher; // outlives the engine, whose threads call it
        PlayerEngine engine;
        watcher.attach(engine);
        QVERIFY(engine.open(counter, TitleSelection()));
        if (when != QLatin1String("before play")) {
            engine.play();
            QTRY_VERIFY(watcher.pictureCount() > 20); // past the target of "backwards"
        }
        if (when == QLatin1String("paused"))
            engine.pause();
        if (when == QLatin1String("after stop"))
            engine.stop();
        watcher.clear();
        engine.seek(target);
        if (when == QLatin1String("before play") || when == QLatin1String("after stop"))
            engine.play();
        QTRY_VERIFY(watcher.pictureCount() > 0);
        const int expected = int(std::lround(target * frameRate));
        QCOMPARE(watcher.counters.front(), expected);
        if (when == QLatin1String("paused")) {
            QTest::qWait(200);
            QCOMPARE(watcher.pictureCount(), size_t(1));
            QVERIFY(std::abs(engine.clock() - expected / frameRate) <= 1 / frameRate);
        } else {
            // Never early; a busy machine may hand the picture out a little
            // late, while a clock that kept its old time is off by seconds.
            constexpr double busyLateness = 0.1;
            const double off = watcher.clocks.front() - expected / frameRate;
            QVERIFY2(off >= -1 / frameRate && off <= 1 / frameRate + busyLateness,
                     qPrintable(QString::number(watcher.clocks.front())));
        }
    }

    void endAndStopReportStopped()
    {
        Watcher watcher; // outlives the engine, whose threads call it
        PlayerEngine engine;
        watcher.attach(engine);
        QVERIFY(engine.open(counter, TitleSelection()));
        engine.seek(3.5);
        engine.play();
        QTRY_COMPARE_WITH_TIMEOUT(watcher.lastState(), int(PlayerEngine::Stopped), 5000);
        QCOMPARE(watcher.counters.back(), 99); // the last frame was shown
        QCOMPARE(engine.state(), int(PlayerEngine::Stopped));
        engine.play(); // again, from the start
        QTRY_VERIFY(watcher.pictureCount() > 0 && watcher.lastState() == PlayerEngine::Playing);
        engine.stop();
        QCOMPARE(watcher.lastState(), int(PlayerEngine::Stopped));
        QCOMPARE(engine.state(), int(PlayerEngine::Stopped));
    }

    void tracksPlayTheirOwnSound_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("pgc");
        QTest::addColumn<int>("track");
        QTest::addColumn<double>("hertz");
        QTest::newRow("disc title, first track") << QString() << 0 << 0 << 440.0;
        QTest::newRow("disc title, second track") << QString() << 0 << 1 << 660.0;
        QTest::newRow("file, second stream") << QStringLiteral("movie.mkv") << -1 << 1 << 660.0;
        QTest::newRow("file, no sound") << QStringLiteral("movie.mkv") << -1 << -1 << 0.0;
    }
    void tracksPlayTheirOwnSound()
    {
        QFETCH(QString, source);
        QFETCH(int, pgc);
        QFETCH(int, track);
        QFETCH(double, hertz);
        Watcher watcher; // outlives the engine, whose threads call it
        PlayerEngine engine;
        watcher.attach(engine);
        TitleSelection title;
        QString path = titleIfo;
        if (pgc >= 0) {
            title.pgc = pgc;
            title.audioTrack = track;
        } else {
            path = fixture(mediaFixtures(), qPrintable(source));
            engine.selectAudio(track < 0 ? PlayerEngine::noTrack : track);
        }
        QVERIFY2(engine.open(path, title), qPrintable(engine.errorString()));
        engine.play();
        // A sound server may take a while to start its sink.
        QTRY_VERIFY_WITH_TIMEOUT(hertz == 0.0 ? watcher.pictureCount() > 25
                                              : watcher.soundSeconds() > 0.5,
                                 8000);
        engine.stop();
        if (hertz == 0.0) {
            QCOMPARE(watcher.frequency(), 0.0);
            QVERIFY(watcher.pictureCount() > 0);
        } else {
            QVERIFY2(std::abs(watcher.frequency() - hertz) < 0.03 * hertz,
                     qPrintable(QString::number(watcher.frequency())));
        }
    }

    void badSourcesReportStoppedAndNeverHang_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes"); // written to the file first, unless empty
        QTest::addColumn<int>("pgc");
        QTest::newRow("missing file") << QStringLiteral("gone.mkv") << QByteArray() << -1;
        QTest::newRow("noise") << QStringLiteral("noise.mpg") << QByteArray(300000, 'x') << -1;
        QTest::newRow("text") << QStringLiteral("notes.mp4") << QByteArray("just words\n") << -1;
        QTest::newRow("title beyond the disc") << QString() << QByteArray() << 99;
    }
    void badSourcesReportStoppedAndNeverHang()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(int, pgc);
        QString path = name.isEmpty() ? titleIfo : dir.filePath(name);
        if (!bytes.isEmpty()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
        Watcher watcher; // outlives the engine, whose threads call it
        PlayerEngine engine;
        watcher.attach(engine);
        TitleSelection title;
        title.pgc = pgc;
        QVERIFY(!engine.open(path, title));
        QVERIFY(engine.errorString().contains(QFileInfo(path).fileName()));
        QCOMPARE(watcher.states, std::vector<int>{PlayerEngine::Stopped});
        engine.play();
        engine.seek(1.0);
        engine.stop();
        QCOMPARE(watcher.states, (std::vector<int>(3, PlayerEngine::Stopped)));
    }

    // Under the sanitizers: no leak, no use after free, no lock-up.
    void survivesManyCycles()
    {
        Watcher watcher; // outlives the engine, whose threads call it
        PlayerEngine engine;
        watcher.attach(engine);
        QRandomGenerator random(7);
        for (int cycle = 0; cycle < 50; ++cycle) {
            const bool title = cycle % 5 == 4;
            TitleSelection selection;
            selection.pgc = title ? 0 : -1;
            QVERIFY(engine.open(title ? titleIfo : counter, selection));
            engine.play();
            QTest::qWait(int(random.bounded(60)));
            engine.seek(random.bounded(3.0));
            switch (cycle % 3) {
            case 0: // stop during the seek
                break;
            case 1:
                QTest::qWait(int(random.bounded(40)));
                engine.pause();
                engine.seek(random.bounded(3.0));
                break;
            case 2: // open while playing
                QVERIFY(engine.open(counter, TitleSelection()));
                engine.play();
                QTest::qWait(int(random.bounded(40)));
                break;
            }
            engine.stop();
            QCOMPARE(watcher.lastState(), int(PlayerEngine::Stopped));
        }
    }

    // The window's side: queued states, the last picture as an image.
    void playerGivesStatesAndPictures()
    {
        FFPlayer *player = FFPlayer::instance();
        QSignalSpy states(player, &FFPlayer::playStateChanged);
        QSignalSpy pictures(player, &FFPlayer::videoChanged);
        QVERIFY(player->originalImage().isNull());
        player->open(counter, QString(), -1);
        player->seek(2.0);
        player->playPause();
        QVERIFY(states.isEmpty()); // through the event queue
        QTRY_COMPARE(player->state(), 1);
        QTRY_VERIFY(!pictures.isEmpty());
        player->playPause();
        QTRY_COMPARE(player->state(), 2);
        const QImage image = player->originalImage();
        QCOMPARE(image.size(), QSize(160, 120));
        // Video range: luma 16-235 is grey 0-255.
        const auto luma = [&](int x) { return qGray(image.pixel(x, 60)) * 219 / 255.0 + 16; };
        const long number = std::lround(luma(4) / 2);
        QVERIFY2(number >= 50 && number < 100, qPrintable(QString::number(number)));
        QVERIFY(std::abs(luma(100) - 128) <= 2);
        player->stop();
        QTRY_COMPARE(player->state(), 0);
        QCOMPARE(states.last().at(0).toInt(), 0);
    }

    // With a sound server: each flash shows when its beep plays.
    void flashesShowWithTheirBeeps()
    {
        std::mutex mutex;
        std::vector<double> flashTimes;
        PlayerEngine engine; // ends before what its callback writes to
        engine.setFrameCallback([&](const PlayerPicture &p) {
            if (p.data[0][(p.height / 2) * p.linesize[0] + p.width / 2] > 128) {
                std::lock_guard<std::mutex> guard(mutex);
                flashTimes.push_back(engine.clock());
            }
            return 0;
        });
        QVERIFY(engine.open(flashes, TitleSelection()));
        engine.play();
        if (!engine.hasSoundDevice()) {
            engine.stop();
            if (soundRequired())
                QFAIL("the sound server started for this run gave no device");
            QSKIP("no sound device: the sync check runs in the test with a sound server");
        }
        QTRY_COMPARE_WITH_TIMEOUT(engine.state(), int(PlayerEngine::Stopped), 8000);
        std::lock_guard<std::mutex> guard(mutex);
        QCOMPARE(flashTimes.size(), size_t(3));
        for (size_t i = 0; i < flashTimes.size(); ++i)
            QVERIFY2(std::abs(flashTimes[i] - double(i + 1)) <= 0.04,
                     qPrintable(QStringLiteral("flash %1 at %2").arg(i + 1).arg(flashTimes[i])));
    }
};

QTEST_GUILESS_MAIN(TestPlayerEngine)
#include "tst_playerengine.moc"
