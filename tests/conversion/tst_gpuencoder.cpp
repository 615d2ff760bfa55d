#include "gpuencoder.h"

#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestGpuEncoder : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    int programs = 0;

    // A stand-in for ffmpeg: prints an encoder list with the given names and
    // counts its runs in "<name>.runs".
    QString fakeFfmpeg(const QString &name, const QString &encoders, int exitCode = 0)
    {
        const QByteArray text = "#!/bin/sh\necho run >> \"$0.runs\"\n"
                                "printf 'Encoders:\\n V..... = Video\\n ------\\n'\n"
                                "printf ' V....D %s   some encoder\\n' "
                                + encoders.toUtf8() + "\nexit " + QByteArray::number(exitCode)
                                + "\n";
        QFile script(dir.filePath(name));
        const bool made
            = script.open(QIODevice::WriteOnly) && script.write(text) == text.size()
              && script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return made ? script.fileName() : QString();
    }

    int runs(const QString &program)
    {
        QFile file(program + u".runs"_s);
        return file.open(QIODevice::ReadOnly) ? int(file.readAll().count('\n')) : 0;
    }

private slots:
    void probe_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QString>("encoders");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<bool>("usable");
        QTest::addColumn<int>("ffmpegRuns");
        const QString nvenc = u"libx264 h264_nvenc"_s, whole = QStringLiteral(FAKE_NVENCODE);
        QTest::newRow("no library")
            << dir.filePath(u"libnvidia-encode-missing.so.1"_s) << nvenc << 0 << false << 0;
        QTest::newRow("library and h264_nvenc") << whole << nvenc << 0 << true << 1;
        QTest::newRow("ffmpeg without h264_nvenc")
            << whole << u"libx264 hevc_nvenc"_s << 0 << false << 1;
        QTest::newRow("ffmpeg fails") << whole << nvenc << 1 << false << 1;
        QTest::newRow("library lacks an entry point")
            << QStringLiteral(FAKE_NVENCODE_MISSING_EXPORT) << nvenc << 0 << false << 0;
        QTest::newRow("no device for the library")
            << QStringLiteral(FAKE_NVENCODE_VERSION_FAILS) << nvenc << 0 << false << 0;
    }

    void probe()
    {
        QFETCH(QString, library);
        QFETCH(QString, encoders);
        QFETCH(int, exitCode);
        QFETCH(bool, usable);
        QFETCH(int, ffmpegRuns);
        // A program of its own for each row: lists are kept per program.
        const QString ffmpeg = fakeFfmpeg(u"ffmpeg-%1"_s.arg(++programs), encoders, exitCode);
        QVERIFY(!ffmpeg.isEmpty());
        // The encoder list of a program is read once.
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(probeGpuEncoder(library, ffmpeg), usable);
            QCOMPARE(runs(ffmpeg), ffmpegRuns);
        }
    }

    void encoderList()
    {
        const QString ffmpeg = fakeFfmpeg(u"ffmpeg-list"_s, u"libx264 h264_nvenc"_s);
        QString found;
        for (const char *name : {"h264_nvenc", "libx264", "h264", "Video", "="})
            found += u"%1=%2 "_s.arg(QLatin1String(name))
                         .arg(ffmpegHasEncoder(ffmpeg, QLatin1String(name)));
        QCOMPARE(found, u"h264_nvenc=1 libx264=1 h264=0 Video=0 ==0 "_s);
        QCOMPARE(runs(ffmpeg), 1);
        // Debian's own ffmpeg, which the tests need anyway.
        QVERIFY(ffmpegHasEncoder(u"ffmpeg"_s, u"libx264"_s));
        QVERIFY(!ffmpegHasEncoder(dir.filePath(u"no-such-ffmpeg"_s), u"libx264"_s));
    }

    void thisMachine()
    {
        if (QLibrary(u"libnvidia-encode.so.1"_s).load())
            QSKIP("an NVIDIA driver is installed here");
        // An ffmpeg that offers h264_nvenc does not make up for the missing
        // library, and isn't even asked.
        const QString ffmpeg = fakeFfmpeg(u"ffmpeg-nvenc"_s, u"h264_nvenc"_s);
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(ffmpeg));
        QVERIFY(!isGpuEncoderAvailable() && !isGpuEncoderAvailable());
        QCOMPARE(runs(ffmpeg), 0);
        qunsetenv("KESTROVE_FFMPEG");
    }
};

QTEST_GUILESS_MAIN(TestGpuEncoder)
#include "tst_gpuencoder.moc"
