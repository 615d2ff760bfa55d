#include "desktop.h"

#include <algorithm>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace {

const QString fileManagerService = QStringLiteral("org.freedesktop.FileManager1");

bool fileManagerOffered(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return false;
    const QDBusConnectionInterface *busInterface = bus.interface();
    if (!busInterface)
        return false;
    if (busInterface->isServiceRegistered(fileManagerService))
        return true;
    const QDBusReply<QStringList> activatable = busInterface->activatableServiceNames();
    return activatable.isValid() && activatable.value().contains(fileManagerService);
}

bool showItems(const QStringList &files)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!fileManagerOffered(bus))
        return false;
    QStringList uris;
    for (const QString &file : files)
        uris << QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
    QDBusMessage call = QDBusMessage::createMethodCall(
        fileManagerService, QStringLiteral("/org/freedesktop/FileManager1"), fileManagerService,
        QStringLiteral("ShowItems"));
    call << uris << QString();
    // A file manager started on demand can take a moment; don't hang on one
    // that never answers.
    constexpr int replyTimeoutMs = 5000;
    const QDBusMessage reply = bus.call(call, QDBus::Block, replyTimeoutMs);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        qDebug() << "ShowItems failed:" << reply.errorName() << reply.errorMessage();
        return false;
    }
    return true;
}

} // namespace

namespace Utils {

bool openLocalFile(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QList<FolderGroup> folderGroups(QStringList files, int maxFolders)
{
    files.sort();
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const QString &file) { return !QFile::exists(file); }),
                files.end());
    QList<FolderGroup> groups;
    while (!files.isEmpty() && groups.size() < maxFolders) {
        const QString folder = QFileInfo(files.first()).absolutePath();
        if (!QDir(folder).exists()) {
            files.removeFirst();
            continue;
        }
        FolderGroup group{folder, {}};
        for (auto it = files.begin(); it != files.end();) {
            if (QFileInfo(*it).absolutePath() == folder) {
                group.files << *it;
                it = files.erase(it);
            } else {
                ++it;
            }
        }
        groups << group;
    }
    return groups;
}

void openFolderAndSelect(const QStringList &files, int maxFolders)
{
    const QList<FolderGroup> groups = folderGroups(files, maxFolders);
    for (const FolderGroup &group : groups)
        showInFileManager(group);
}

bool showInFileManager(const FolderGroup &group)
{
    if (!group.files.isEmpty() && showItems(group.files))
        return true;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(group.folder));
}

} // namespace Utils
