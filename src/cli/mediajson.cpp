#include "mediajson.h"

#include "childtask.h"

#include <QJsonArray>

QJsonObject mediaInfoJson(const MediaInfo &info)
{
    QJsonArray chapters;
    for (const MediaChapter &chapter : info.chapters)
        chapters.append(QJsonObject{{QStringLiteral("start"), chapter.start},
                                    {QStringLiteral("end"), chapter.end},
                                    {QStringLiteral("name"), chapter.name}});
    QJsonArray audio;
    for (const AudioStreamInfo &stream : info.audioStreams)
        audio.append(QJsonObject{{QStringLiteral("index"), stream.index},
                                 {QStringLiteral("language"), stream.language},
                                 {QStringLiteral("sampleRate"), stream.sampleRate},
                                 {QStringLiteral("channels"), stream.channels},
                                 {QStringLiteral("bitRate"), stream.bitRate},
                                 {QStringLiteral("codec"), stream.codec}});
    QJsonArray subtitles;
    for (const SubtitleStreamInfo &stream : info.subtitleStreams)
        subtitles.append(QJsonObject{{QStringLiteral("index"), stream.index},
                                     {QStringLiteral("language"), stream.language},
                                     {QStringLiteral("name"), stream.name}});
    return QJsonObject{{QStringLiteral("duration"), info.duration},
                       {QStringLiteral("hasVideo"), info.hasVideo},
                       {QStringLiteral("allCodecsKnown"), info.allCodecsKnown},
                       {QStringLiteral("displayAspect"), info.displayAspect},
                       {QStringLiteral("chapters"), chapters},
                       {QStringLiteral("width"), info.width},
                       {QStringLiteral("height"), info.height},
                       {QStringLiteral("frameRate"), info.frameRate},
                       {QStringLiteral("videoCodec"), info.videoCodec},
                       {QStringLiteral("videoBitRate"), info.videoBitRate},
                       {QStringLiteral("audioStreams"), audio},
                       {QStringLiteral("subtitleStreams"), subtitles},
                       {QStringLiteral("forcedFormat"), info.forcedFormat}};
}

QJsonObject titleJson(const ChildTask &title)
{
    // A title of one chapter keeps no chapter list; its one chapter starts at 0.
    QJsonArray chapters;
    for (const MediaChapter &chapter : title.chapters)
        chapters.append(chapter.start);
    if (chapters.isEmpty())
        chapters.append(0.0);
    QJsonArray audio;
    for (const AudioStreamInfo &stream : title.audioStreams)
        audio.append(stream.language);
    QJsonArray subtitles;
    for (const SubtitleStreamInfo &stream : title.subtitleStreams)
        subtitles.append(stream.language);
    return QJsonObject{
        {QStringLiteral("name"), title.title},   {QStringLiteral("ifo"), title.sourcePath},
        {QStringLiteral("pgc"), title.pgcIndex}, {QStringLiteral("duration"), title.duration},
        {QStringLiteral("chapters"), chapters},  {QStringLiteral("audio"), audio},
        {QStringLiteral("subtitles"), subtitles}};
}
