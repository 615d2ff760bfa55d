#pragma once

#include <QString>
#include <QStringList>

// The encoder's argument list speaks the option dialect of an older ffmpeg.
// This is the one place that knows what each of those options, codec names
// and values is called in the ffmpeg we run, or that it has no equivalent.
struct OutputOptions
{
    QStringList args;         // translated output options, in order
    QStringList inputArgs;    // decoding options, given to every input
    QStringList preFilters;   // video filters that belong ahead of scaling
    QStringList audioFilters; // audio filters, in order
    QString videoCodec;       // as ffmpeg names it
    QString audioCodec;
    bool sameQuality = false;
    QStringList notes; // one line for each thing changed or left out
};

namespace OptionTable {

enum class Arity { None, One, Guess };

// How many values an option takes, as written by the caller (name without '-').
Arity arity(const QString &name);

// Adds one output option to `out`, translated.
void applyOutput(OutputOptions &out, const QString &name, const QString &value, bool hasValue);

// Work that needs the whole list first (quality that depends on the codec).
void finish(OutputOptions &out);

QString videoCodec(const QString &name, QStringList *notes = nullptr);
QString audioCodec(const QString &name, QStringList *notes = nullptr);

// An input format name, or empty when ffmpeg should find the format itself.
QString inputFormat(const QString &name, QStringList *notes = nullptr);

// Every option name the table knows, for tests.
QStringList knownOptions();

} // namespace OptionTable
