#pragma once

#include <QJsonObject>

class ChildTask;
class MediaInfo;

// Every field of a probe under its own name.
QJsonObject mediaInfoJson(const MediaInfo &info);
// A disc title as an import makes it: name, IFO, pgc, duration, chapter
// starts, audio and subtitle labels.
QJsonObject titleJson(const ChildTask &title);
