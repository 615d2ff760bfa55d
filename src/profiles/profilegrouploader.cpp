#include "profilegrouploader.h"

#include "pathparts.h"
#include "profile.h"
#include "settings.h"
#include "utils.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString resourceFolder = QStringLiteral(":/profile/");
const QString userGroupName = QStringLiteral("User Defined");
constexpr int firstUserId = 1000;

// A group's own field. Groups are read by their direct children, so that a
// group without an Id doesn't take the first profile's.
QString groupField(const QDomNode &group, const QString &tag)
{
    return group.firstChildElement(tag).attribute(QStringLiteral("value"));
}

// Ids that don't read as a number count as 0, as group 0 does.
bool isUserGroup(const QDomNode &group)
{
    return groupField(group, QStringLiteral("Id")).toInt() == 0;
}

// Sets the value of the first field of that tag, making the field if needed.
void setField(QDomElement entry, const QString &tag, const QString &value)
{
    QDomElement field = entry.firstChildElement(tag);
    if (field.isNull()) {
        field = entry.ownerDocument().createElement(tag);
        entry.appendChild(field);
    }
    field.setAttribute(QStringLiteral("value"), value);
}

void removeComments(QDomNode node)
{
    QDomNode child = node.firstChild();
    while (!child.isNull()) {
        const QDomNode next = child.nextSibling();
        if (child.isComment())
            node.removeChild(child);
        else
            removeComments(child);
        child = next;
    }
}

} // namespace

// The catalogue lives in this static library's resources; it needs this
// once, before anything reads ":/profile". Must stay outside any namespace.
static void initCatalogueResources()
{
    static const bool done = [] {
        Q_INIT_RESOURCE(profile_catalogue);
        return true;
    }();
    Q_UNUSED(done);
}

ProfileGroupLoader *ProfileGroupLoader::instance()
{
    static ProfileGroupLoader catalogue;
    return &catalogue;
}

CatalogueSignals *ProfileGroupLoader::changes()
{
    static CatalogueSignals *changed = new CatalogueSignals;
    return changed;
}

ProfileGroupLoader::ProfileGroupLoader()
{
    initCatalogueResources();
    load(builtInPath());
    mergeUserGroup(userPath());
}

ProfileGroupLoader::~ProfileGroupLoader() = default;

QString ProfileGroupLoader::builtInPath()
{
    return resourceFolder + QStringLiteral("Group.xml");
}

QString ProfileGroupLoader::userPath()
{
    return userProfilesDir() + QStringLiteral("/Group.xml");
}

QString ProfileGroupLoader::iconPath(const QString &iconName)
{
    return QString(resourceFolder + iconName)
        .replace(QStringLiteral("/big/"), QStringLiteral("/small/"));
}

QString ProfileGroupLoader::profileKey(const QString &groupId, const QString &id)
{
    return QStringLiteral("%1,%2").arg(groupId, id);
}

bool ProfileGroupLoader::matchesSearch(const QDomNode &profile, const QString &text)
{
    const QString line = QStringLiteral("%1(*.%2)")
                             .arg(childValue(profile, QStringLiteral("Name")),
                                  childValue(profile, QStringLiteral("ExtName")));
    const QString description = QCoreApplication::translate(
        "Profile", childValue(profile, QStringLiteral("Desc")).toUtf8().constData());
    return line.contains(text, Qt::CaseInsensitive)
           || description.contains(text, Qt::CaseInsensitive);
}

bool ProfileGroupLoader::isUserProfileId(const QString &id)
{
    return id.toInt() >= firstUserId;
}

void ProfileGroupLoader::mergeUserGroup(const QString &path)
{
    if (!QFileInfo::exists(path))
        return;
    XmlLoader user;
    user.load(path);
    QDomElement mine;
    for (QDomElement node = user.doc.documentElement().firstChildElement(); !node.isNull();
         node = node.nextSiblingElement()) {
        if (isUserGroup(node)) {
            mine = node;
            break;
        }
    }
    if (mine.isNull())
        return;
    QDomElement root = doc.documentElement();
    for (QDomElement node = root.firstChildElement(); !node.isNull();
         node = node.nextSiblingElement()) {
        if (isUserGroup(node)) {
            // A group without an id is taken as group 0; it says so from now.
            QDomElement merged = doc.importNode(mine, true).toElement();
            setField(merged, QStringLiteral("Id"), QStringLiteral("0"));
            root.replaceChild(merged, node);
            return;
        }
    }
}

QList<QDomNode> ProfileGroupLoader::groups() const
{
    QList<QDomNode> found;
    for (QDomElement node = doc.documentElement().firstChildElement(QStringLiteral("Group"));
         !node.isNull(); node = node.nextSiblingElement(QStringLiteral("Group")))
        found << node;
    return found;
}

QDomNode ProfileGroupLoader::group(const QString &groupId) const
{
    const QList<QDomNode> all = groups();
    for (const QDomNode &node : all) {
        if (groupField(node, QStringLiteral("Id")) == groupId)
            return node;
    }
    return all.value(0);
}

QDomNodeList ProfileGroupLoader::profiles(const QDomNode &groupNode) const
{
    return groupNode.toElement().elementsByTagName(QStringLiteral("Profile"));
}

QDomNode ProfileGroupLoader::profile(const QString &groupId, const QString &id) const
{
    const QDomNodeList entries = profiles(group(groupId));
    for (int i = 0; i < entries.size(); ++i) {
        if (childValue(entries.at(i), QStringLiteral("Id")) == id)
            return entries.at(i);
    }
    return QDomNode();
}

QDomNode ProfileGroupLoader::profileByKey(const QString &key) const
{
    if (!hasProfile(key))
        return QDomNode();
    const QStringList parts = key.split(QLatin1Char(','));
    return profile(parts.at(0), parts.at(1));
}

QString ProfileGroupLoader::profileFileName(const QString &groupId, const QString &id) const
{
    return childValue(profile(groupId, id), QStringLiteral("FileName"));
}

QString ProfileGroupLoader::profileExtName(const QString &groupId, const QString &id) const
{
    return childValue(profile(groupId, id), QStringLiteral("ExtName"));
}

QString ProfileGroupLoader::defaultProfile() const
{
    return doc.documentElement().attribute(QStringLiteral("default"));
}

bool ProfileGroupLoader::hasProfile(const QString &key) const
{
    const QStringList parts = key.split(QLatin1Char(','));
    if (parts.size() != 2)
        return false;
    for (const QDomNode &node : groups()) {
        if (groupField(node, QStringLiteral("Id")) != parts.at(0))
            continue;
        const QDomNodeList entries = profiles(node);
        for (int i = 0; i < entries.size(); ++i) {
            if (childValue(entries.at(i), QStringLiteral("Id")) == parts.at(1))
                return true;
        }
        return false;
    }
    return false;
}

// The key of the first or the last profile of the catalogue; empty groups
// at either end ("User Defined" before the user saves one) are passed over.
static QString endProfile(const QList<QDomNode> &groupList, bool last)
{
    for (int g = 0; g < groupList.size(); ++g) {
        const QDomNode node = groupList.at(last ? groupList.size() - 1 - g : g);
        const QDomNodeList entries = node.toElement().elementsByTagName(QStringLiteral("Profile"));
        if (!entries.isEmpty())
            return ProfileGroupLoader::profileKey(
                groupField(node, QStringLiteral("Id")),
                childValue(entries.at(last ? entries.size() - 1 : 0), QStringLiteral("Id")));
    }
    return QString();
}

QString ProfileGroupLoader::firstProfile() const
{
    return endProfile(groups(), false);
}

QString ProfileGroupLoader::lastProfile() const
{
    return endProfile(groups(), true);
}

// One walk for both directions: groups are entered at the key's group, or
// anywhere once the key has been passed; ids are then matched by position.
static QString neighbour(const QList<QDomNode> &groupList, const QString &key, bool forward,
                         const ProfileGroupLoader &catalogue)
{
    const QStringList parts = key.split(QLatin1Char(','));
    if (parts.size() != 2)
        return QString();
    bool found = false;
    for (int g = 0; g < groupList.size(); ++g) {
        const QDomNode node = groupList.at(forward ? g : groupList.size() - 1 - g);
        const QString groupId = groupField(node, QStringLiteral("Id"));
        if (groupId != parts.at(0) && !found)
            continue;
        const QDomNodeList entries = catalogue.profiles(node);
        for (int p = 0; p < entries.size(); ++p) {
            const QString id = childValue(entries.at(forward ? p : entries.size() - 1 - p),
                                          QStringLiteral("Id"));
            if (!found) {
                found = id == parts.at(1);
                continue;
            }
            return ProfileGroupLoader::profileKey(groupId, id);
        }
    }
    return QString();
}

QString ProfileGroupLoader::previousProfile(const QString &key) const
{
    return neighbour(groups(), key, false, *this);
}

QString ProfileGroupLoader::nextProfile(const QString &key) const
{
    return neighbour(groups(), key, true, *this);
}

QDomElement ProfileGroupLoader::userGroup()
{
    // Found by its id, as the user's file is merged and saved by it.
    for (const QDomNode &node : groups()) {
        if (isUserGroup(node))
            return node.toElement();
    }
    // Made with id 0, the group that the user's file keeps and the keys name.
    QDomElement made = doc.createElement(QStringLiteral("Group"));
    setField(made, QStringLiteral("Name"), userGroupName);
    setField(made, QStringLiteral("Id"), QStringLiteral("0"));
    setField(made, QStringLiteral("IconName"), QString());
    QDomElement root = doc.documentElement();
    if (root.isNull()) {
        root = doc.createElement(QStringLiteral("Groups"));
        root.setAttribute(QStringLiteral("version"), QStringLiteral("1"));
        doc.appendChild(root);
    }
    root.appendChild(made);
    return made;
}

QString ProfileGroupLoader::addUserProfile(const QDomNode &node)
{
    QDomElement target = userGroup();
    int highest = firstUserId;
    const QDomNodeList entries = profiles(target);
    for (int i = 0; i < entries.size(); ++i)
        highest = qMax(highest, childValue(entries.at(i), QStringLiteral("Id")).toInt());
    const QString id = QString::number(highest + 1);

    // A copy, so that an entry of another group given here stays where it is.
    QDomElement entry
        = (node.ownerDocument() == doc ? node.cloneNode(true) : doc.importNode(node, true))
              .toElement();
    QDomElement idField = entry.firstChildElement(QStringLiteral("Id"));
    if (idField.isNull()) {
        idField = doc.createElement(QStringLiteral("Id"));
        entry.insertBefore(idField, entry.firstChild());
    }
    idField.setAttribute(QStringLiteral("value"), id);
    target.appendChild(entry);
    emit changes()->profilesChanged();
    return profileKey(QStringLiteral("0"), id);
}

bool ProfileGroupLoader::renameUserProfile(const QString &groupId, const QString &id,
                                           const QString &name)
{
    QDomElement entry = profile(groupId, id).toElement();
    if (entry.isNull())
        return false;
    setField(entry, QStringLiteral("Name"), name);
    emit changes()->profilesChanged();
    return save();
}

QString ProfileGroupLoader::removeUserProfile(const QString &groupId, const QString &id)
{
    if (!isUserProfileId(id))
        return QString();
    QDomNode entry = profile(groupId, id);
    if (entry.isNull())
        return QString();
    const QString file = childValue(entry, QStringLiteral("FileName"));
    const QString inheritFrom = childValue(entry, QStringLiteral("InheritFrom"));
    entry.parentNode().removeChild(entry);
    emit changes()->profilesChanged();
    // The stored catalogue still names the document: keep it for the next start.
    const QString name = QFileInfo(file).fileName();
    if (save() && !name.isEmpty())
        QFile::remove(userProfilesDir() + QLatin1Char('/') + name);
    return inheritFrom;
}

bool ProfileGroupLoader::save() const
{
    QDir().mkpath(userProfilesDir());
    QDomDocument copy = doc.cloneNode(true).toDocument();
    QDomElement root = copy.documentElement();
    for (QDomNode node = root.lastChild(); !node.isNull();) {
        const QDomNode previous = node.previousSibling();
        if (node.isElement() && !isUserGroup(node))
            root.removeChild(node);
        node = previous;
    }
    removeComments(copy);
    root.removeAttribute(QStringLiteral("default"));

    saveError.clear();
    return writeDocument(copy, userPath(), &saveError);
}

QString ProfileGroupLoader::saveUserProfile(const QString &fromKey,
                                            const QMap<QString, QString> &values,
                                            const QString &name)
{
    const QDomNode source = profileByKey(fromKey);
    if (source.isNull())
        return QString();
    Profile document(resourceFolder + childValue(source, QStringLiteral("FileName")));
    if (document.doc.documentElement().isNull()) {
        qDebug().noquote() << "Can't read profile" << document.fileName;
        return QString();
    }

    QDir().mkpath(userProfilesDir());
    const QString base
        = cleanProfileName(name, QCoreApplication::translate("ProfileGroupLoader", "Untitled"));
    PathParts target(userProfilesDir() + QLatin1Char('/') + base + QStringLiteral(".xml"));
    target.makeUnique();
    if (!document.saveValues(values, target.fullPath())) {
        saveError = QStringLiteral("Can't write \"%1\"").arg(target.fullPath());
        return QString();
    }

    QDomElement entry = source.cloneNode(true).toElement();
    setField(entry, QStringLiteral("Name"), name);
    setField(entry, QStringLiteral("FileName"), QStringLiteral("user/") + target.fileName());
    // A copy of a user profile keeps the built-in profile it came from.
    if (entry.firstChildElement(QStringLiteral("InheritFrom")).isNull())
        setField(entry, QStringLiteral("InheritFrom"), fromKey);
    const QString key = addUserProfile(entry);
    if (!save()) {
        const QDomNode added = profileByKey(key);
        added.parentNode().removeChild(added);
        QFile::remove(target.fullPath());
        return QString();
    }
    return key;
}

QString cleanProfileName(const QString &name, const QString &fallback)
{
    const QString cleaned = sanitizeFileName(name);
    return cleaned.isEmpty() ? fallback : cleaned;
}
