#pragma once

#include <QString>

class QSettings;
class QVariant;

// The persistent store: one user-scope QSettings, group "Setting".
// Main thread only.
QString settingString(const QString &key, const QString &defaultValue = QString());
void setSettingString(const QString &key, const QString &value);
int settingInt(const QString &key, int defaultValue = 0);
void setSettingInt(const QString &key, int value);
bool settingBool(const QString &key, bool defaultValue = false);
void setSettingBool(const QString &key, bool value);

// A value that holds for this process only: read before the store and never
// written to it, so a run can point somewhere else without changing what the
// user keeps. An invalid value takes the override away.
void overrideSetting(const QString &key, const QVariant &value);

// Writes pending values now instead of waiting for the event loop.
void syncSettings();
// The file behind the store.
QString settingsFilePath();

// Default folders, computed on each call, never created here.
QString defaultOutputDir();
QString defaultSnapshotDir();
QString defaultInputDir();
QString defaultSoundDir();
QString userDataDir();
QString userProfilesDir();

// Every key of the store with its default, so that no caller repeats a default.
namespace Setting {
QString outputDir();
int outputToSrc();
int copyDirStruct();
int outputLog();
QString cpuUsage();
int threadCount();
int processCount();
bool enableCuda();
int action();
QString snapshotDir();
QString imageType();
QString uiLanguage();
int skinIndex();
QString profileIndex(const QString &catalogueDefault);
QString inputDir();
QString dvdDir();
QString ifoFileDir();
QString soundDir();
int useAspi();
int proxyType();
QString proxySocks();
int proxySocksPort();
} // namespace Setting
