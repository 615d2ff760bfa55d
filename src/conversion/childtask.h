#pragma once

#include "editparameters.h"
#include "mediainfo.h"

class Task;

// One input of a task: what the source holds and what the user did to it.
// A copy takes everything; an assignment keeps the target's watermark and
// rotation, as EditParameters' does.
class ChildTask : public MediaInfo
{
public:
    QString inputFormat; // forced demuxer, handed to the encoder
    EditParameters edit;
    QString sourcePath; // the file, or the IFO file of a disc title
    QString title;      // display name
    int pgcIndex = -1;  // -1 for a file, else the disc title's program chain
    Task *owner = nullptr;
    bool checked = true;
    int id = 0; // 0 for the input a task is born with, from 1000 for appended ones

    bool isDiscTitle() const { return pgcIndex >= 0; }

    // One entry per stream of the input, the first audio one selected.
    void addAudioTracks();
    void addSubtitleTracks();
    QString trimmedText() const;
    // Fresh edit values with the same range, and the stream entries again.
    void resetEdit();
};
