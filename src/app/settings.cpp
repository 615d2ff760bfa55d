#include "settings.h"

#include "utils.h"

#include <QMap>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace {

struct Store
{
    Store()
        : settings(QSettings::UserScope, QStringLiteral("Tessarine"), QStringLiteral("Kestrove"))
    {
        settings.beginGroup(QStringLiteral("Setting"));
    }
    QVariant value(const QString &key, const QVariant &defaultValue) const
    {
        const auto it = overrides.constFind(key);
        return it != overrides.constEnd() ? *it : settings.value(key, defaultValue);
    }
    QSettings settings;
    QMap<QString, QVariant> overrides;
};

Q_GLOBAL_STATIC(Store, store)

const QString productFolder = QStringLiteral("/Tessarine Kestrove");

QString location(QStandardPaths::StandardLocation type)
{
    return QStandardPaths::writableLocation(type);
}

QString firstOf(std::initializer_list<QStandardPaths::StandardLocation> types)
{
    for (auto type : types) {
        const QString path = location(type);
        if (!path.isEmpty())
            return path;
    }
    return QString();
}

} // namespace

QString settingString(const QString &key, const QString &defaultValue)
{
    return store->value(key, defaultValue).toString();
}

void setSettingString(const QString &key, const QString &value)
{
    store->settings.setValue(key, value);
}

int settingInt(const QString &key, int defaultValue)
{
    return store->value(key, defaultValue).toInt();
}

void setSettingInt(const QString &key, int value)
{
    store->settings.setValue(key, value);
}

bool settingBool(const QString &key, bool defaultValue)
{
    return store->value(key, defaultValue).toBool();
}

void setSettingBool(const QString &key, bool value)
{
    store->settings.setValue(key, value);
}

void overrideSetting(const QString &key, const QVariant &value)
{
    if (value.isValid())
        store->overrides.insert(key, value);
    else
        store->overrides.remove(key);
}

void syncSettings()
{
    store->settings.sync();
}

QString settingsFilePath()
{
    return store->settings.fileName();
}

QString defaultOutputDir()
{
    return firstOf({QStandardPaths::DocumentsLocation, QStandardPaths::HomeLocation})
           + productFolder;
}

QString defaultSnapshotDir()
{
    return location(QStandardPaths::PicturesLocation) + productFolder;
}

QString defaultInputDir()
{
    return firstOf({QStandardPaths::MoviesLocation, QStandardPaths::DocumentsLocation,
                    QStandardPaths::HomeLocation});
}

QString defaultSoundDir()
{
    return firstOf({QStandardPaths::MusicLocation, QStandardPaths::DocumentsLocation,
                    QStandardPaths::HomeLocation});
}

QString userDataDir()
{
    return firstOf({QStandardPaths::GenericDataLocation, QStandardPaths::HomeLocation})
           + productFolder;
}

QString userProfilesDir()
{
    return userDataDir() + QStringLiteral("/Profiles");
}

namespace Setting {

QString outputDir()
{
    return settingString(QStringLiteral("OutputDir"), defaultOutputDir());
}
int outputToSrc()
{
    return settingInt(QStringLiteral("OutputToSrc"), 0);
}
int copyDirStruct()
{
    return settingInt(QStringLiteral("CopyDirStruct"), 0);
}
int outputLog()
{
    return settingInt(QStringLiteral("OutputLog"), 0);
}
QString cpuUsage()
{
    return settingString(QStringLiteral("CpuUsage"), QStringLiteral("100%"));
}
int threadCount()
{
    return settingInt(QStringLiteral("ThreadCount"), Utils::processorCount());
}
int processCount()
{
    // 0 or less, as a hand-edited store may hold, still runs one encoder.
    return std::max(1, settingInt(QStringLiteral("ProcessCount"), 1));
}
bool enableCuda()
{
    return settingBool(QStringLiteral("EnableCuda"), true);
}
int action()
{
    return settingInt(QStringLiteral("Action"), 0);
}
QString snapshotDir()
{
    return settingString(QStringLiteral("SnapshotDir"), defaultSnapshotDir());
}
QString imageType()
{
    return settingString(QStringLiteral("ImageType"), QStringLiteral("JPG"));
}
QString uiLanguage()
{
    return settingString(QStringLiteral("UiLanguage"));
}
int skinIndex()
{
    return settingInt(QStringLiteral("SkinIndex"), 0);
}
QString profileIndex(const QString &catalogueDefault)
{
    return settingString(QStringLiteral("ProfileIndex"), catalogueDefault);
}
QString inputDir()
{
    return settingString(QStringLiteral("InputDir"), defaultInputDir());
}
QString dvdDir()
{
    return settingString(QStringLiteral("DVDDir"), QStringLiteral("/"));
}
QString ifoFileDir()
{
    return settingString(QStringLiteral("IFOFileDir"), QStringLiteral("/"));
}
QString soundDir()
{
    return settingString(QStringLiteral("SoundDir"), defaultSoundDir());
}
int useAspi()
{
    return settingInt(QStringLiteral("UseAspi"), 0);
}
int proxyType()
{
    return settingInt(QStringLiteral("PROXY_TYPE"), 2);
}
QString proxySocks()
{
    return settingString(QStringLiteral("PROXY_SOCKS"));
}
int proxySocksPort()
{
    return settingInt(QStringLiteral("PROXY_SOCKS_PORT"), 1080);
}

} // namespace Setting
