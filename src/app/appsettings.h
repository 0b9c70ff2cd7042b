#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>

// Every settings access opens a fresh settings object through this factory;
// nothing keeps one open. The scope is organisation "Torvane", application
// "ArtNetTester" (one word: the sibling tools share this spelling).
std::unique_ptr<QSettings> openSettings();

namespace SettingsKey {
inline const QString theme = QStringLiteral("ui/theme");
inline const QString language = QStringLiteral("ui/language");
inline const QString recentPatches = QStringLiteral("recent/patches");
inline const QString recentRecordings = QStringLiteral("recent/recordings");
inline const QString patchLastPath = QStringLiteral("patch/lastPath");
inline const QString playbackLastPath = QStringLiteral("playback/lastPath");
inline const QString playbackFps = QStringLiteral("playback/fps");
inline const QString playbackTab = QStringLiteral("playback/tab");
inline const QString gpsFps = QStringLiteral("gps/fps");
inline const QString gpsLoop = QStringLiteral("gps/loop");
inline const QString gpsPaths = QStringLiteral("gps/paths");
inline const QString broadcastAddress = QStringLiteral("broadcast/address");
inline const QString broadcastShortName = QStringLiteral("broadcast/shortName");
inline const QString broadcastLongName = QStringLiteral("broadcast/longName");
inline const QString broadcastRecordDir = QStringLiteral("broadcast/recordDir");
inline const QString broadcastRecordName = QStringLiteral("broadcast/recordName");
inline const QString broadcastRecordFps = QStringLiteral("broadcast/recordFps");
inline const QString whiteChannels = QStringLiteral("monitor/whiteChannels");
inline const QString fastDraw3D = QStringLiteral("monitor/fastDraw3D");
inline const QString viewTab = QStringLiteral("monitor/viewTab");
inline const QString lastSnapshotDir = QStringLiteral("monitor/lastSnapshotDir");
inline const QString windowGeometry = QStringLiteral("window/geometry");
// The update check's own keys (not part of StoredSettings: the window never shows them).
inline const QString updateAutoCheck = QStringLiteral("update/autoCheck");
inline const QString updateLastCheck = QStringLiteral("update/lastCheck");
inline const QString updateIgnoredVersion = QStringLiteral("update/ignoredVersion");
} // namespace SettingsKey

// The values the main window remembers between runs (all keys but the theme,
// the language and the recent lists), with the first-start defaults.
struct StoredSettings
{
    QString patchLastPath;
    QString playbackLastPath;
    int playbackFps = 40;
    int playbackTab = 0;
    int gpsFps = 40;
    bool gpsLoop = true;
    QStringList gpsPaths;
    QString broadcastAddress;
    QString broadcastShortName;
    QString broadcastLongName;
    QString broadcastRecordDir;
    QString broadcastRecordName;
    int broadcastRecordFps = 40;
    bool whiteChannels = false;
    bool fastDraw3D = false;
    int viewTab = 0;
    QString lastSnapshotDir;
    QByteArray windowGeometry;

    bool operator==(const StoredSettings &o) const;
};

// Reads every remembered key; a missing key gives its default, a value of the
// wrong type converts the toolkit's way (text to integer yields 0).
StoredSettings readStoredSettings(QSettings &settings);

// The recent lists hold at most this many paths, newest first.
constexpr int kRecentListLength = 8;

// list with path added at the front as an absolute, cleaned path: every equal
// entry removed, the end cut to kRecentListLength. An empty path changes nothing.
QStringList withRecentPath(QStringList list, const QString &path);

// Writes in the fixed order the main window saves in. The geometry is written
// only when writeGeometry is true (never while full screen).
void writeStoredSettings(QSettings &settings, const StoredSettings &values, bool writeGeometry);
