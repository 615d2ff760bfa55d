#pragma once

#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>

// Small helpers that ask the real ffmpeg and ffprobe about media files.

// Runs a program; its exit code, or -1 when it didn't end normally.
inline int runTool(const QString &program, const QStringList &arguments,
                   QByteArray *output = nullptr, const QString &workingDir = QString(),
                   int timeoutMs = 60000)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    if (!workingDir.isEmpty())
        process.setWorkingDirectory(workingDir);
    process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit)
        return -1;
    if (output)
        *output = process.readAll();
    return process.exitCode();
}

// One frame at `seconds` as an RGB picture of the file's own size.
inline QImage grabFrame(const QString &file, double seconds, int width, int height)
{
    QProcess process;
    process.start(QStringLiteral("ffmpeg"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-ss"),
                   QString::number(seconds), QStringLiteral("-i"), file,
                   QStringLiteral("-frames:v"), QStringLiteral("1"), QStringLiteral("-f"),
                   QStringLiteral("rawvideo"), QStringLiteral("-pix_fmt"), QStringLiteral("rgb24"),
                   QStringLiteral("-")});
    if (!process.waitForFinished(30000))
        return QImage();
    const QByteArray bytes = process.readAllStandardOutput();
    if (bytes.size() != width * height * 3)
        return QImage();
    return QImage(reinterpret_cast<const uchar *>(bytes.constData()), width, height, width * 3,
                  QImage::Format_RGB888)
        .copy();
}

// Share of pixels whose colour differs by more than `threshold` in any channel.
inline double differingShare(const QImage &a, const QImage &b, int threshold = 40)
{
    if (a.size() != b.size() || a.isNull())
        return -1;
    qint64 differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            if (qAbs(qRed(p) - qRed(q)) > threshold || qAbs(qGreen(p) - qGreen(q)) > threshold
                || qAbs(qBlue(p) - qBlue(q)) > threshold)
                ++differing;
        }
    }
    return double(differing) / (a.width() * a.height());
}

// "key=value" lines of ffprobe for the given entries, e.g. "stream=codec_name".
inline QString probe(const QString &file, const QString &entries, const QString &select = QString())
{
    QStringList args{QStringLiteral("-v"),
                     QStringLiteral("error"),
                     QStringLiteral("-show_entries"),
                     entries,
                     QStringLiteral("-of"),
                     QStringLiteral("default=nw=1")};
    if (!select.isEmpty())
        args << QStringLiteral("-select_streams") << select;
    QProcess process;
    process.start(QStringLiteral("ffprobe"), args << file);
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

inline double probeDuration(const QString &file, const QString &select = QString())
{
    const QString entries
        = select.isEmpty() ? QStringLiteral("format=duration") : QStringLiteral("stream=duration");
    const QString text = probe(file, entries, select).trimmed();
    bool ok = false;
    const double value
        = text.section(QLatin1Char('='), 1).section(QLatin1Char('\n'), 0, 0).toDouble(&ok);
    return ok ? value : -1;
}
