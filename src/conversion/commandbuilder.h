#pragma once

#include <QStringList>

class Task;

// Turns a task into the encoder's argument list. Holds no state; reads the
// task's values and the global settings at the moment of the call, fixes and
// reserves the output path (the only writer of TaskOutput::filePath), and
// renders the watermark pictures the filter chains name.
class CommandBuilder
{
public:
    static QStringList build(Task &task, const QString &commonRoot);

    // Whether the GPU H.264 encoder may be used; tests set it, the program asks the probe.
    static void setGpuEncoderOverride(int usable); // -1: ask the probe, 0: no, 1: yes
};
