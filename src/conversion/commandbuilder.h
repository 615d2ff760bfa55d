#pragma once

#include <QStringList>

class Task;

// Turns a task into the encoder's argument list, in two steps: what must be
// on disk first, then the list itself.
class CommandBuilder
{
public:
    // Fixes and reserves the output path (the only writer of
    // TaskOutput::filePath), works out each input's bars and renders the
    // watermark pictures its filter chain names. False with the reason when
    // the output name can't be reserved.
    static bool prepare(Task &task, const QString &commonRoot, QString *error = nullptr);

    // The argument list of a prepared task: reads the task's values and the
    // global settings at the moment of the call, and changes nothing.
    static QStringList build(const Task &task);

    // Whether the GPU H.264 encoder may be used; tests set it, the program asks the probe.
    static void setGpuEncoderOverride(int usable); // -1: ask the probe, 0: no, 1: yes
};
