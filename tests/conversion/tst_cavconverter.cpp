#include "cavconverter.h"
#include "ffmpegtools.h"
#include "processtools.h"
#include "sanitizerreports.h"
#include "version.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// ffmpeg arguments for a real-time encode of a synthetic clip.
QStringList liveEncode(const QString &output, int seconds)
{
    return QStringLiteral("-hide_banner -y -re -f lavfi -i "
                          "testsrc2=size=160x120:rate=25:duration=%1 -c:v mpeg4")
               .arg(seconds)
               .split(QLatin1Char(' '))
           << output;
}

} // namespace

class TestCAVConverter : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

private slots:
    void init() { failOnChildSanitizerReports(); }

    void parseTime_data()
    {
        QTest::addColumn<QByteArray>("chunk");
        QTest::addColumn<double>("seconds");
        QTest::newRow("status line") << QByteArray(
            "frame=  50 fps=25 q=3.1 size=  120kB time=00:00:02.00 bitrate= 491.5kbits/s\r")
                                     << 2.0;
        QTest::newRow("fraction is cut, not rounded")
            << QByteArray("time=00:00:07.99 bitrate") << 7.0;
        QTest::newRow("hours and minutes") << QByteArray("time=01:02:03.45 ") << 3723.0;
        QTest::newRow("first line of a chunk counts")
            << QByteArray("time=00:00:04.00 x\rtime=00:00:05.00 x\r") << 4.0;
        QTest::newRow("no blank behind the value")
            << QByteArray("size=1kB time=00:00:04.00") << -1.0;
        QTest::newRow("no status field") << QByteArray("Press [q] to stop\n") << -1.0;
        QTest::newRow("unparsable value counts as zero")
            << QByteArray("time=N/A bitrate=N/A\r") << 0.0;
        QTest::newRow("any first time= counts")
            << QByteArray("Output #0, avi, to 'time=my clip.avi':\n") << 0.0;
        QTest::newRow("text behind a NUL is not read")
            << QByteArray("frame=1\0time=00:00:09.00 ", 25) << -1.0;
        QTest::newRow("overlong value") << QByteArray("time=") + QByteArray(300, '1') + " " << -1.0;
    }

    void parseTime()
    {
        QFETCH(QByteArray, chunk);
        QFETCH(double, seconds);
        QCOMPARE(CAVConverter::parseTime(chunk), seconds);
    }

    void reasonFromOutput_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("reason");
        QTest::newRow("the front's own errors win")
            << QByteArray("kestrove-encoder: sampling rate 8000 Hz taken for 7000 Hz\n"
                          "[mp4 @ 0x1] Could not write header\n"
                          "kestrove-encoder: error: the output lasts 2.0 s, but the source should "
                          "give 4.8 s\nkestrove-encoder: removed the unfinished output \"a.mp4\"\n")
            << "the output lasts 2.0 s, but the source should give 4.8 s";
        QTest::newRow("else ffmpeg's last lines, without status lines")
            << QByteArray("kestrove-encoder: a note\nline one\nline two\nframe=1 time=00:00:01.00 "
                          "\rframe=2 time=00:00:02.00 \nline three\nline four\n")
            << "line two; line three; line four";
        QTest::newRow("nothing said") << QByteArray("frame=1 size=1kB time=00:00:01.00 \r") << "";
    }

    void reasonFromOutput()
    {
        QFETCH(QByteArray, output);
        QFETCH(QString, reason);
        QCOMPARE(CAVConverter::reasonFromOutput(output), reason);
    }

    void reportsWholeSecondsUpToOutputLength()
    {
        const QString output = dir.filePath(QStringLiteral("progress.avi"));
        const QString log = dir.filePath(QStringLiteral("progress.log"));
        CAVConverter converter;
        QSignalSpy progress(&converter, &CAVConverter::progressUpdated);
        QSignalSpy finished(&converter, &CAVConverter::convertFinished);
        converter.setLogFile(log);
        converter.setCommand(liveEncode(output, 4), 7);
        QCOMPARE(converter.state(), int(CAVConverter::NoChild));
        converter.start();
        QCOMPARE(converter.state(), int(CAVConverter::Running));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
        QCOMPARE(finished.at(0).at(0).toInt(), 7);
        QCOMPARE(finished.at(0).at(1).toBool(), true);
        QCOMPARE(converter.state(), int(CAVConverter::NoChild));

        QList<double> values;
        for (const auto &call : std::as_const(progress))
            values << call.at(1).toDouble();
        QVERIFY2(values.size() >= 3,
                 qPrintable(QStringLiteral("only %1 reports").arg(values.size())));
        for (int i = 0; i < values.size(); ++i) {
            QCOMPARE(progress.at(i).at(0).toInt(), 7);
            QCOMPARE(values[i], double(qint64(values[i])));
            if (i > 0)
                QVERIFY2(values[i] > values[i - 1], "reports must rise and never repeat");
        }
        const double length = probeDuration(output);
        QVERIFY(length > 3.5);
        QCOMPARE(values.last(), double(qint64(length)));

        QFile file(log);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.startsWith("\n\n=======================================================\n"));
        QVERIFY(!productVersion().isEmpty()
                && text.contains(" kestrove " + productVersion().toUtf8() + "\n\n"));
        QVERIFY(text.contains(liveEncode(output, 4).join(QLatin1Char(' ')).toUtf8() + "\n\n"));
        QVERIFY(text.contains("time=00:00:0"));
    }

    void pauseStopsEveryProcessAndResumes()
    {
        const QString output = dir.filePath(QStringLiteral("paused.avi"));
        CAVConverter converter;
        QSignalSpy progress(&converter, &CAVConverter::progressUpdated);
        QSignalSpy finished(&converter, &CAVConverter::convertFinished);
        converter.setCommand(liveEncode(output, 5), 1);
        converter.start();
        QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 15000);

        for (int round = 0; round < 2; ++round) {
            converter.setPaused(true);
            QCOMPARE(converter.state(), int(CAVConverter::Suspended));
            const QList<qint64> tree = processTree(converter.processId());
            QVERIFY2(tree.size() >= 2, "the front runs ffmpeg as its child");
            for (qint64 pid : tree)
                QTRY_COMPARE_WITH_TIMEOUT(processState(pid), 'T', 20000);
            // Let anything already in the pipe arrive, then watch for a standstill.
            QTest::qWait(300);
            const int reports = progress.count();
            QTest::qWait(1500);
            QCOMPARE(progress.count(), reports);
            QVERIFY(finished.isEmpty());

            converter.setPaused(false);
            QCOMPARE(converter.state(), int(CAVConverter::Running));
            for (qint64 pid : tree)
                QTRY_VERIFY_WITH_TIMEOUT(processState(pid) != 'T', 5000);
            QTest::qWait(700);
        }
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
        QCOMPARE(finished.at(0).at(1).toBool(), true);
        QVERIFY(probeDuration(output) > 4.5);
    }

    void stopKillsRunningAndSuspendedEncoders_data()
    {
        QTest::addColumn<QString>("when");
        QTest::newRow("running") << "running";
        QTest::newRow("suspended") << "suspended";
        // The queue may stop a task in the same pass that started it.
        QTest::newRow("right after the start") << "at once";
    }

    void stopKillsRunningAndSuspendedEncoders()
    {
        QFETCH(QString, when);
        const QString output = dir.filePath(QStringLiteral("stopped.avi"));
        CAVConverter converter;
        QSignalSpy progress(&converter, &CAVConverter::progressUpdated);
        QSignalSpy finished(&converter, &CAVConverter::convertFinished);
        converter.setCommand(liveEncode(output, 60), 3);
        converter.start();
        QList<qint64> tree;
        if (when != QLatin1String("at once")) {
            QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 15000);
            tree = processTree(converter.processId());
            QVERIFY(tree.size() >= 2);
        }
        if (when == QLatin1String("suspended"))
            converter.setPaused(true);

        converter.stop();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
        QCOMPARE(finished.at(0).at(0).toInt(), 3);
        QCOMPARE(finished.at(0).at(1).toBool(), false);
        QCOMPARE(converter.state(), int(CAVConverter::NoChild));
        // ffmpeg itself is gone too, not left running on its own, and with it
        // the file it had begun, which no player could read.
        for (qint64 pid : tree)
            QTRY_VERIFY_WITH_TIMEOUT(processState(pid) == '?' || processState(pid) == 'Z', 5000);
        QVERIFY(!QFile::exists(output));
        QVERIFY2(when == QLatin1String("at once")
                     || converter.failureReason().contains(QStringLiteral("stopped")),
                 qPrintable(converter.failureReason()));
    }

    void encoderThatCannotStartFails_data()
    {
        QTest::addColumn<QString>("program"); // empty: the front, without an ffmpeg
        QTest::addColumn<QString>("said");
        const QString unstartable = QStringLiteral("could not be started");
        QTest::newRow("missing") << dir.filePath(QStringLiteral("no-such-encoder")) << unstartable;
        QTest::newRow("not executable")
            << dir.filePath(QStringLiteral("plain-file")) << unstartable;
        QTest::newRow("a folder") << dir.path() << unstartable;
        QTest::newRow("no ffmpeg") << QString() << "kestrove-encoder: cannot start";
    }

    void encoderThatCannotStartFails()
    {
        QFETCH(QString, program);
        QFETCH(QString, said);
        QFile file(program.isEmpty() ? dir.filePath(QStringLiteral("noffmpeg.log")) : program);
        if (program.endsWith(QLatin1String("plain-file"))) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("#!/bin/sh\nexit 0\n");
            file.close();
        }
        if (program.isEmpty())
            qputenv("KESTROVE_FFMPEG",
                    QFile::encodeName(dir.filePath(QStringLiteral("no-ffmpeg"))));
        CAVConverter converter;
        QSignalSpy finished(&converter, &CAVConverter::convertFinished);
        if (!program.isEmpty())
            converter.setProgram(program);
        converter.setLogFile(file.fileName());
        converter.setCommand(QStringLiteral("-i in.wav out.wav").split(QLatin1Char(' ')), 11);
        converter.start();
        // Reported after start() returns, never from inside it.
        QCOMPARE(finished.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
        qunsetenv("KESTROVE_FFMPEG");
        QCOMPARE(finished.at(0).at(0).toInt(), 11);
        QCOMPARE(finished.at(0).at(1).toBool(), false);
        QCOMPARE(converter.state(), int(CAVConverter::NoChild));
        QTest::qWait(200);
        QCOMPARE(finished.count(), 1);
        QString reason = converter.failureReason();
        if (program.isEmpty()) { // the front's own words go to the log
            QVERIFY(file.open(QIODevice::ReadOnly));
            reason = QString::fromUtf8(file.readAll());
        }
        QVERIFY2(reason.contains(said), qPrintable(reason));

        // The converter is usable again afterwards.
        converter.setProgram(CAVConverter::defaultProgram());
        converter.setCommand(liveEncode(dir.filePath(QStringLiteral("again.avi")), 1), 11);
        converter.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 2, 10000);
        QCOMPARE(finished.at(1).at(1).toBool(), true);
        QVERIFY(converter.failureReason().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCAVConverter)
#include "tst_cavconverter.moc"
