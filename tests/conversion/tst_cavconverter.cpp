#include "cavconverter.h"
#include "ffmpegtools.h"
#include "processtools.h"
#include "sanitizerreports.h"
#include "version.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// ffmpeg arguments for a real-time encode of a synthetic clip.
QStringList liveEncode(const QString &output, int seconds)
{
    return u"-hide_banner -y -re -f lavfi -i testsrc2=size=160x120:rate=25:duration=%1 -c:v mpeg4"_s
               .arg(seconds)
               .split(u' ')
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

    // The seconds done that a chunk of the front's output tells, or the
    // reason a failed run gives.
    void parsing_data()
    {
        QTest::addColumn<QByteArray>("chunk");
        QTest::addColumn<QString>("expected");
        const auto time = [](const char *name, const QByteArray &chunk, double seconds) {
            QTest::addRow("time: %s", name) << chunk << QString::number(seconds);
        };
        time("status line",
             "frame=  50 fps=25 q=3.1 size=  120kB time=00:00:02.00 bitrate= 491.5kbits/s\r", 2);
        time("fraction is cut, not rounded", "time=00:00:07.99 bitrate", 7);
        time("hours and minutes", "time=01:02:03.45 ", 3723);
        time("first line of a chunk counts", "time=00:00:04.00 x\rtime=00:00:05.00 x\r", 4);
        time("no blank behind the value", "size=1kB time=00:00:04.00", -1);
        time("no status field", "Press [q] to stop\n", -1);
        time("unparsable value counts as zero", "time=N/A bitrate=N/A\r", 0);
        time("any first time= counts", "Output #0, avi, to 'time=my clip.avi':\n", 0);
        time("text behind a NUL is not read", QByteArray("frame=1\0time=00:00:09.00 ", 25), -1);
        time("overlong value", "time=" + QByteArray(300, '1') + " ", -1);
        QTest::newRow("reason: the front's own errors win")
            << QByteArray("kestrove-encoder: sampling rate 8000 Hz taken for 7000 Hz\n"
                          "[mp4 @ 0x1] Could not write header\n"
                          "kestrove-encoder: error: the output lasts 2.0 s, but the source should "
                          "give 4.8 s\nkestrove-encoder: removed the unfinished output \"a.mp4\"\n")
            << "the output lasts 2.0 s, but the source should give 4.8 s";
        QTest::newRow("reason: else ffmpeg's last lines, without status lines")
            << QByteArray("kestrove-encoder: a note\nline one\nline two\nframe=1 time=00:00:01.00 "
                          "\rframe=2 time=00:00:02.00 \nline three\nline four\n")
            << "line two; line three; line four";
        QTest::newRow("reason: nothing said")
            << QByteArray("frame=1 size=1kB time=00:00:01.00 \r") << "";
    }

    void parsing()
    {
        QFETCH(QByteArray, chunk);
        QFETCH(QString, expected);
        QCOMPARE(QByteArray(QTest::currentDataTag()).startsWith("time")
                     ? QString::number(CAVConverter::parseTime(chunk))
                     : CAVConverter::reasonFromOutput(chunk),
                 expected);
    }

    void lifecycle_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<int>("pauses");
        QTest::addColumn<QString>("stop"); // when stop() is called; empty: never
        QTest::newRow("to the end") << 4 << 0 << QString();
        QTest::newRow("paused twice") << 5 << 2 << QString();
        QTest::newRow("stopped running") << 60 << 0 << "running";
        QTest::newRow("stopped suspended") << 60 << 1 << "suspended";
        // The queue may stop a task in the same pass that started it.
        QTest::newRow("stopped right after the start") << 60 << 0 << "at once";
    }

    void lifecycle()
    {
        QFETCH(int, seconds);
        QFETCH(int, pauses);
        QFETCH(QString, stop);
        const QString output
            = dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + ".avi"_L1);
        CAVConverter converter;
        QSignalSpy progress(&converter, &CAVConverter::progressUpdated);
        QSignalSpy finished(&converter, &CAVConverter::convertFinished);
        converter.setLogFile(output + ".log"_L1);
        converter.setCommand(liveEncode(output, seconds), 7);
        converter.start();
        QCOMPARE(converter.state(), int(CAVConverter::Running));
        QList<qint64> tree;
        if (stop != "at once"_L1) {
            QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 15000);
            tree = processTree(converter.processId());
            QVERIFY2(tree.size() >= 2, "the front runs ffmpeg as its child");
        }
        for (int round = 0; round < pauses; ++round) {
            converter.setPaused(true);
            QCOMPARE(converter.state(), int(CAVConverter::Suspended));
            if (!stop.isEmpty())
                break;
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
        if (!stop.isEmpty())
            converter.stop();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
        QCOMPARE(finished.at(0), QVariantList({7, stop.isEmpty()}));
        QCOMPARE(converter.state(), int(CAVConverter::NoChild));
        if (!stop.isEmpty()) {
            // ffmpeg itself is gone too, not left running on its own, and with
            // it the file it had begun, which no player could read.
            for (qint64 pid : tree)
                QTRY_VERIFY_WITH_TIMEOUT(processEnded(pid), 5000);
            QVERIFY(!QFile::exists(output));
            QVERIFY2(stop == "at once"_L1 || converter.failureReason().contains("stopped"_L1),
                     qPrintable(converter.failureReason()));
            return;
        }
        // Whole seconds, rising, up to the length of the output.
        QList<double> values;
        for (const auto &call : std::as_const(progress)) {
            QCOMPARE(call.at(0).toInt(), 7);
            values << call.at(1).toDouble();
            QCOMPARE(values.last(), double(qint64(values.last())));
            QVERIFY(values.size() == 1 || values.last() > values[values.size() - 2]);
        }
        const double length = probeDuration(output);
        QVERIFY(length > seconds - 0.5);
        // After a pause the lines that waited in the pipe come as one chunk.
        if (pauses == 0) {
            QVERIFY2(values.size() >= 3, qPrintable(QString::number(values.size())));
            QCOMPARE(values.last(), double(qint64(length)));
        }
        QFile file(output + ".log"_L1);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray log = file.readAll();
        QVERIFY(log.startsWith("\n\n=======================================================\n"));
        QVERIFY(!productVersion().isEmpty()
                && log.contains(" kestrove " + productVersion().toUtf8() + "\n\n"));
        QVERIFY(log.contains(liveEncode(output, seconds).join(u' ').toUtf8() + "\n\n"));
        QVERIFY(log.contains("time=00:00:0"));
    }

    void encoderThatCannotStartFails_data()
    {
        QTest::addColumn<QString>("program"); // empty: the front, without an ffmpeg
        QTest::addColumn<QString>("said");
        const QString unstartable = u"could not be started"_s;
        QTest::newRow("missing") << dir.filePath(u"no-such-encoder"_s) << unstartable;
        QTest::newRow("not executable") << dir.filePath(u"plain-file"_s) << unstartable;
        QTest::newRow("a folder") << dir.path() << unstartable;
        QTest::newRow("no ffmpeg") << QString() << "kestrove-encoder: cannot start";
    }

    void encoderThatCannotStartFails()
    {
        QFETCH(QString, program);
        QFETCH(QString, said);
        QFile file(program.isEmpty() ? dir.filePath(u"noffmpeg.log"_s) : program);
        if (program.endsWith("plain-file"_L1))
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\nexit 0\n") > 0);
        file.close();
        if (program.isEmpty())
            qputenv("KESTROVE_FFMPEG", QFile::encodeName(dir.filePath(u"no-ffmpeg"_s)));
        CAVConverter converter;
        QSignalSpy finished(&converter, &CAVConverter::convertFinished);
        if (!program.isEmpty())
            converter.setProgram(program);
        converter.setLogFile(file.fileName());
        converter.setCommand({u"-i"_s, u"in.wav"_s, u"out.wav"_s}, 11);
        converter.start();
        // Reported after start() returns, never from inside it, and once.
        QCOMPARE(finished.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
        qunsetenv("KESTROVE_FFMPEG");
        QCOMPARE(finished.at(0), QVariantList({11, false}));
        QCOMPARE(converter.state(), int(CAVConverter::NoChild));
        QTest::qWait(200);
        QCOMPARE(finished.count(), 1);
        QString reason = converter.failureReason();
        if (program.isEmpty() && file.open(QIODevice::ReadOnly)) // the front's words go to the log
            reason = QString::fromUtf8(file.readAll());
        QVERIFY2(reason.contains(said), qPrintable(reason));

        // The converter is usable again afterwards.
        converter.setProgram(CAVConverter::defaultProgram());
        converter.setCommand(liveEncode(dir.filePath(u"again.avi"_s), 1), 11);
        converter.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 2, 10000);
        QCOMPARE(finished.at(1), QVariantList({11, true}));
        QVERIFY(converter.failureReason().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCAVConverter)
#include "tst_cavconverter.moc"
