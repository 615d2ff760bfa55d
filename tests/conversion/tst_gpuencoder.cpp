#include "gpuencoder.h"

#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

class TestGpuEncoder : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    int programs = 0;

    // A stand-in for ffmpeg: prints an encoder list with the given lines and
    // counts its runs in "<name>.runs".
    QString fakeFfmpeg(const QString &name, const QStringList &encoders, int exitCode = 0)
    {
        const QString path = dir.filePath(name);
        QFile script(path);
        if (!script.open(QIODevice::WriteOnly))
            return {};
        QByteArray text = "#!/bin/sh\necho run >> '" + QFile::encodeName(path) + ".runs'\n";
        text += "echo 'Encoders:'\necho ' V..... = Video'\necho ' ------'\n";
        for (const QString &encoder : encoders)
            text += "echo ' V....D " + encoder.toUtf8() + "   some encoder'\n";
        text += "exit " + QByteArray::number(exitCode) + "\n";
        script.write(text);
        script.close();
        script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
        return path;
    }

    int runs(const QString &program)
    {
        QFile file(program + QStringLiteral(".runs"));
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        return file.readAll().count('\n');
    }

private slots:
    void probe_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QStringList>("encoders");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<bool>("usable");
        QTest::addColumn<int>("ffmpegRuns");

        const QStringList nvenc{QStringLiteral("libx264"), QStringLiteral("h264_nvenc")};
        const QString missing = dir.filePath(QStringLiteral("libnvidia-encode-missing.so.1"));
        QTest::newRow("no library") << missing << nvenc << 0 << false << 0;
        QTest::newRow("library and h264_nvenc")
            << QStringLiteral(FAKE_NVENCODE) << nvenc << 0 << true << 1;
        QTest::newRow("ffmpeg without h264_nvenc")
            << QStringLiteral(FAKE_NVENCODE)
            << QStringList{QStringLiteral("libx264"), QStringLiteral("hevc_nvenc")} << 0 << false
            << 1;
        QTest::newRow("ffmpeg fails") << QStringLiteral(FAKE_NVENCODE) << nvenc << 1 << false << 1;
        QTest::newRow("library lacks an entry point")
            << QStringLiteral(FAKE_NVENCODE_MISSING_EXPORT) << nvenc << 0 << false << 0;
        QTest::newRow("no device for the library")
            << QStringLiteral(FAKE_NVENCODE_VERSION_FAILS) << nvenc << 0 << false << 0;
    }

    void probe()
    {
        QFETCH(QString, library);
        QFETCH(QStringList, encoders);
        QFETCH(int, exitCode);
        QFETCH(bool, usable);
        QFETCH(int, ffmpegRuns);
        // A program of its own for each row: lists are kept per program.
        const QString ffmpeg
            = fakeFfmpeg(QStringLiteral("ffmpeg-%1").arg(++programs), encoders, exitCode);
        QVERIFY(!ffmpeg.isEmpty());
        QCOMPARE(probeGpuEncoder(library, ffmpeg), usable);
        QCOMPARE(runs(ffmpeg), ffmpegRuns);
        // The encoder list of a program is read once.
        QCOMPARE(probeGpuEncoder(library, ffmpeg), usable);
        QCOMPARE(runs(ffmpeg), ffmpegRuns);
    }

    void encoderList()
    {
        const QString ffmpeg
            = fakeFfmpeg(QStringLiteral("ffmpeg-list"),
                         {QStringLiteral("libx264"), QStringLiteral("h264_nvenc")});
        QVERIFY(ffmpegHasEncoder(ffmpeg, QStringLiteral("h264_nvenc")));
        QVERIFY(ffmpegHasEncoder(ffmpeg, QStringLiteral("libx264")));
        QVERIFY(!ffmpegHasEncoder(ffmpeg, QStringLiteral("h264")));
        QVERIFY(!ffmpegHasEncoder(ffmpeg, QStringLiteral("Video")));
        QVERIFY(!ffmpegHasEncoder(ffmpeg, QStringLiteral("=")));
        QCOMPARE(runs(ffmpeg), 1);
        // Debian's own ffmpeg, which the tests need anyway.
        QVERIFY(ffmpegHasEncoder(QStringLiteral("ffmpeg"), QStringLiteral("libx264")));
        QVERIFY(!ffmpegHasEncoder(dir.filePath(QStringLiteral("no-such-ffmpeg")),
                                  QStringLiteral("libx264")));
    }

    void thisMachine()
    {
        if (QLibrary(QStringLiteral("libnvidia-encode.so.1")).load())
            QSKIP("an NVIDIA driver is installed here");
        // An ffmpeg that offers h264_nvenc does not make up for the missing
        // library, and isn't even asked.
        const QString ffmpeg
            = fakeFfmpeg(QStringLiteral("ffmpeg-nvenc"), {QStringLiteral("h264_nvenc")});
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(ffmpeg));
        QVERIFY(!isGpuEncoderAvailable());
        QVERIFY(!isGpuEncoderAvailable());
        QCOMPARE(runs(ffmpeg), 0);
        qunsetenv("KESTROVE_FFMPEG");
    }
};

QTEST_GUILESS_MAIN(TestGpuEncoder)
#include "tst_gpuencoder.moc"
