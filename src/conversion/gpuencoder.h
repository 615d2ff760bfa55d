#pragma once

#include <QString>

// Whether the GPU H.264 encoder can be used here: NVIDIA's encode library
// loads and answers, and the ffmpeg that the encoder front runs has
// h264_nvenc. Encodes nothing. A yes is kept for the run; a no asks the
// library again next time, which costs little when it is missing.
bool isGpuEncoderAvailable();

// The same question about a given library and ffmpeg program. The program's
// encoder list is read once per program and kept.
bool probeGpuEncoder(const QString &library, const QString &ffmpegProgram);

// Whether the program's "-encoders" list has the encoder. False when it
// can't be run.
bool ffmpegHasEncoder(const QString &ffmpegProgram, const QString &encoder);
