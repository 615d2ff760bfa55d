#pragma once

#include "profilelookup.h"
#include "xmlloader.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

// Tells the views of the catalogue that its user profiles changed.
class CatalogueSignals : public QObject
{
    Q_OBJECT

signals:
    void profilesChanged();
};

// The catalogue of output profiles: the built-in groups from the resources
// with the user's own group "User Defined" merged in from the user's
// Group.xml. Profiles are named by their key "<group id>,<profile id>".
class ProfileGroupLoader : public XmlLoader, public ProfileLookup
{
public:
    // The process's catalogue, read on first use.
    static ProfileGroupLoader *instance();
    // Says when a user profile is added, renamed or removed.
    static CatalogueSignals *changes();

    // Reads the built-in catalogue, then the user's group. Only the process
    // object and tests make one.
    ProfileGroupLoader();
    ~ProfileGroupLoader() override;

    static QString builtInPath();
    static QString userPath();
    // ":/profile/" and the name, with "/big/" turned into "/small/": the
    // icons that are shipped and shown.
    static QString iconPath(const QString &iconName);
    static QString profileKey(const QString &groupId, const QString &id);
    // The profile search: text occurs, ignoring case, in the stored English
    // name with "(*.ext)", or in the translated description.
    static bool matchesSearch(const QDomNode &profile, const QString &text);
    // Ids from 1000 up belong to the user's profiles.
    static bool isUserProfileId(const QString &id);

    QList<QDomNode> groups() const;
    // The group of that id, else the first group.
    QDomNode group(const QString &groupId) const;
    QDomNodeList profiles(const QDomNode &groupNode) const;
    // Null when the group (or the first group) holds no such id.
    QDomNode profile(const QString &groupId, const QString &id) const;
    QDomNode profileByKey(const QString &key) const;
    QString profileFileName(const QString &groupId, const QString &id) const override;
    QString profileExtName(const QString &groupId, const QString &id) const override;
    QString defaultProfile() const;
    bool hasProfile(const QString &key) const;
    // Keys in catalogue order across groups; empty at either end.
    QString firstProfile() const;
    QString lastProfile() const;
    QString previousProfile(const QString &key) const;
    QString nextProfile(const QString &key) const;

    // Puts a profile entry into "User Defined" with the next free user id
    // and returns its key. The caller saves.
    QString addUserProfile(const QDomNode &node);
    // Sets the entry's Name and saves; false when it could not be saved.
    bool renameUserProfile(const QString &groupId, const QString &id, const QString &name);
    // Takes out a user profile with its document and returns the key it was
    // made from; empty (and nothing removed) for an unknown or built-in one.
    // Its document stays when the catalogue could not be saved without it.
    QString removeUserProfile(const QString &groupId, const QString &id);
    // Writes "User Defined" alone to the user's Group.xml. False when the
    // file can't be written; the catalogue in memory keeps the change.
    bool save() const;
    // Why the last save failed.
    QString errorString() const { return saveError; }

    // Saves values over the document of the profile fromKey as a new user
    // profile called name, and enters it. The file gets the cleaned name,
    // numbered when taken; the entry keeps name as typed. Returns the new
    // key, or empty when fromKey is unknown or the document or the catalogue
    // can't be written (then nothing of it is left).
    QString saveUserProfile(const QString &fromKey, const QMap<QString, QString> &values,
                            const QString &name);

private:
    void mergeUserGroup(const QString &path);
    QDomElement userGroup();

    mutable QString saveError;
};

// The name without the characters that file names can't hold; fallback when
// nothing is left.
QString cleanProfileName(const QString &name, const QString &fallback);
