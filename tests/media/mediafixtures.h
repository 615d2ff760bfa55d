#pragma once

#include <QDir>
#include <QProcess>
#include <QString>

// The fixture folder, made (or found up to date) by the fixture script; an
// empty text when the script failed, e.g. for want of ffmpeg or dvdauthor.
inline QString mediaFixtures()
{
    const QString dir = QStringLiteral(KESTROVE_MEDIA_FIXTURES);
    QProcess script;
    script.setProcessChannelMode(QProcess::ForwardedChannels);
    script.start(QStringLiteral(KESTROVE_MEDIA_FIXTURE_SCRIPT), {dir});
    if (!script.waitForFinished(120000) || script.exitStatus() != QProcess::NormalExit
        || script.exitCode() != 0)
        return {};
    return dir;
}

inline QString fixture(const QString &dir, const char *name)
{
    return QDir(dir).filePath(QString::fromUtf8(name));
}
