#include "gpuencoder.h"

#include "ffmpegrunner.h"

#include <QDebug>
#include <QHash>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>

#include <cstdint>

namespace {

const char *const NvEncodeLibrary = "libnvidia-encode.so.1";

// The entry points of NVIDIA's encode library. Only the version query is
// called; both must be there for ffmpeg's h264_nvenc to work.
struct NvEncoderApi
{
    using GetMaxSupportedVersion = int (*)(std::uint32_t *version);
    using CreateInstance = int (*)(void *functionList);
    GetMaxSupportedVersion getMaxSupportedVersion = nullptr;
    CreateInstance createInstance = nullptr;
};

bool loadNvEncoderApi(const QString &name, NvEncoderApi &api)
{
    // Stays loaded until the process ends, as the encoder would keep it.
    QLibrary library(name);
    if (!library.load()) {
        qDebug("[!]Load dll failed: %s", qPrintable(name));
        return false;
    }
    api.getMaxSupportedVersion = reinterpret_cast<NvEncoderApi::GetMaxSupportedVersion>(
        library.resolve("NvEncodeAPIGetMaxSupportedVersion"));
    api.createInstance = reinterpret_cast<NvEncoderApi::CreateInstance>(
        library.resolve("NvEncodeAPICreateInstance"));
    if (!api.getMaxSupportedVersion || !api.createInstance) {
        qDebug("[!]Export function not found: %s", qPrintable(name));
        library.unload();
        return false;
    }
    return true;
}

int gpuEncoderState = -1; // 1: usable; a no is not kept

} // namespace

bool ffmpegHasEncoder(const QString &ffmpegProgram, const QString &encoder)
{
    static QHash<QString, QStringList> encodersByProgram;
    auto known = encodersByProgram.constFind(ffmpegProgram);
    if (known == encodersByProgram.constEnd()) {
        QProcess process;
        process.start(ffmpegProgram, {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")});
        QStringList names;
        if (process.waitForFinished(10000) && process.exitStatus() == QProcess::NormalExit
            && process.exitCode() == 0) {
            // " V....D h264_nvenc    NVIDIA NVENC H.264 encoder (codec h264)"
            static const QRegularExpression line(QStringLiteral("^ [A-Z.]{6} (\\S+)"),
                                                 QRegularExpression::MultilineOption);
            // The legend above the "------" line has the same shape.
            QString listing = QString::fromLocal8Bit(process.readAllStandardOutput());
            listing.remove(0, listing.indexOf(QLatin1String("------")));
            for (auto match = line.globalMatch(listing); match.hasNext();)
                names.append(match.next().captured(1));
        } else {
            process.kill();
            process.waitForFinished(1000);
            qDebug() << "encoder list not readable from" << ffmpegProgram;
        }
        known = encodersByProgram.insert(ffmpegProgram, names);
    }
    return known->contains(encoder);
}

bool probeGpuEncoder(const QString &library, const QString &ffmpegProgram)
{
    NvEncoderApi api;
    if (!loadNvEncoderApi(library, api))
        return false;
    std::uint32_t version = 0;
    const int status = api.getMaxSupportedVersion(&version);
    if (status != 0 || version == 0) {
        qDebug() << "NVIDIA encoder version query failed:" << status;
        return false;
    }
    return ffmpegHasEncoder(ffmpegProgram, QStringLiteral("h264_nvenc"));
}

bool isGpuEncoderAvailable()
{
    if (gpuEncoderState == -1
        && probeGpuEncoder(QString::fromLatin1(NvEncodeLibrary), FFmpegRunner::ffmpegProgram()))
        gpuEncoderState = 1;
    return gpuEncoderState > 0;
}
