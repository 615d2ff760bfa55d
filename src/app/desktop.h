#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Hand-offs to the desktop: kept apart from kestrove_app because they need
// QtGui and QtDBus, which headless programs must not load.
namespace Utils {

// Opens the file with the desktop's program for it.
bool openLocalFile(const QString &path);

struct FolderGroup
{
    QString folder;
    QStringList files;
};

// The folders that openFolderAndSelect shows, at most maxFolders of them,
// in sorted order, each with its existing files; missing files are dropped.
QList<FolderGroup> folderGroups(QStringList files, int maxFolders);

// Shows the files in the file manager, selected, one window per folder.
void openFolderAndSelect(const QStringList &files, int maxFolders);

// One folder with files selected: org.freedesktop.FileManager1 on the session
// bus when a file manager offers it, else the plain folder. False when
// neither could be handed off.
bool showInFileManager(const FolderGroup &group);

} // namespace Utils
