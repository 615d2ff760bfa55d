#include "childtask.h"

#include "utils.h"

void ChildTask::addAudioTracks()
{
    if (audioStreams.empty())
        return;
    for (int i = 0; i < int(audioStreams.size()); ++i)
        edit.addStreamAudio(i, *this);
    edit.selectAudio(0);
}

void ChildTask::addSubtitleTracks()
{
    for (int i = 0; i < int(subtitleStreams.size()); ++i)
        edit.addStreamSubtitle(i, *this);
}

QString ChildTask::trimmedText() const
{
    return Utils::durationText(edit.trimEnd - edit.trimStart);
}

void ChildTask::resetEdit()
{
    EditParameters fresh;
    fresh.trimStart = edit.trimStart;
    fresh.trimEnd = edit.trimEnd;
    edit.assignAll(fresh);
    addAudioTracks();
    addSubtitleTracks();
}
