#pragma once

#include <QList>

// What the settings window calls a parameter key or a section, and the
// description it shows for it. Keys without a row are shown by their name.
struct CaptionRow
{
    const char *key;
    const char *caption;
    const char *description; // null: none
};

const QList<CaptionRow> &captionTable();
