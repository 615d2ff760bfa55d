#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// What the encoders and containers of the ffmpeg we run can take. The front
// keeps this as a table of its own rather than load libavcodec, which would
// cost every start a good part of the time the front may add; a test holds
// the table against the libavcodec that ffmpeg loads.
namespace EncoderLimits {

// Sampling rates the audio encoder takes; empty when it takes any.
QList<int> sampleRates(const QString &encoder);

// The most channels the audio encoder takes; 0 when it sets no limit.
int maxChannels(const QString &encoder);

// Bit rates in kbit/s that the encoder allows at this sampling rate; empty
// when any rate will do.
QList<int> audioBitRates(const QString &encoder, int sampleRate);

// Frame rates the video encoder writes into a standard stream, as
// numerator and denominator; empty when it takes any.
QList<QPair<int, int>> frameRates(const QString &encoder);

// Picture formats the encoder writes with this profile (`-profile:v`) at
// this many lines, the one to take first; empty when ffmpeg's own choice
// for the source will do.
QStringList pictureFormats(const QString &encoder, const QString &profile, int lines);

// The container the output is written in: its `-f` format, else its
// extension.
QString containerName(const QString &outputPath, const QString &format);

// The encoders the container picks when none is named, by the output's
// `-f` format or else its extension. Empty when no fitting is known.
QString defaultAudioEncoder(const QString &outputPath, const QString &format);
QString defaultVideoEncoder(const QString &outputPath, const QString &format);

// The encoders the table knows, for tests.
QStringList audioEncoders();
QStringList videoEncoders();
QStringList containerNames();

// The H.264 level, as "3.1", that holds pictures of this size and rate: the
// `wanted` one when it does, else the lowest that does.
QString h264Level(const QString &wanted, int width, int height, double frameRate);

// The value from `allowed` nearest to `wanted`; the higher one on a tie.
int nearest(const QList<int> &allowed, int wanted);

} // namespace EncoderLimits
