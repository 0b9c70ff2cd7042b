#include "app/appsettings.h"

#include <QDir>
#include <QFileInfo>

std::unique_ptr<QSettings> openSettings()
{
    return std::make_unique<QSettings>(QStringLiteral("Torvane"), QStringLiteral("ArtNetTester"));
}

QStringList withRecentPath(QStringList list, const QString &path)
{
    if (path.isEmpty())
        return list;
    const QString cleaned = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    list.removeAll(cleaned);
    list.prepend(cleaned);
    while (list.size() > kRecentListLength)
        list.removeLast();
    return list;
}

bool StoredSettings::operator==(const StoredSettings &o) const
{
    return patchLastPath == o.patchLastPath && playbackLastPath == o.playbackLastPath
           && playbackFps == o.playbackFps && playbackTab == o.playbackTab && gpsFps == o.gpsFps
           && gpsLoop == o.gpsLoop && gpsPaths == o.gpsPaths && broadcastAddress == o.broadcastAddress
           && broadcastShortName == o.broadcastShortName && broadcastLongName == o.broadcastLongName
           && broadcastRecordDir == o.broadcastRecordDir && broadcastRecordName == o.broadcastRecordName
           && broadcastRecordFps == o.broadcastRecordFps && whiteChannels == o.whiteChannels
           && fastDraw3D == o.fastDraw3D && viewTab == o.viewTab && lastSnapshotDir == o.lastSnapshotDir
           && windowGeometry == o.windowGeometry;
}

StoredSettings readStoredSettings(QSettings &s)
{
    using namespace SettingsKey;
    StoredSettings v;
    v.patchLastPath = s.value(patchLastPath).toString();
    v.playbackLastPath = s.value(playbackLastPath).toString();
    v.playbackFps = s.value(playbackFps, 40).toInt();
    v.playbackTab = s.value(playbackTab, 0).toInt();
    v.gpsFps = s.value(gpsFps, 40).toInt();
    v.gpsLoop = s.value(gpsLoop, true).toBool();
    v.gpsPaths = s.value(gpsPaths).toStringList();
    v.broadcastAddress = s.value(broadcastAddress).toString();
    v.broadcastShortName = s.value(broadcastShortName).toString();
    v.broadcastLongName = s.value(broadcastLongName).toString();
    v.broadcastRecordDir = s.value(broadcastRecordDir).toString();
    v.broadcastRecordName = s.value(broadcastRecordName).toString();
    v.broadcastRecordFps = s.value(broadcastRecordFps, 40).toInt();
    v.whiteChannels = s.value(whiteChannels, false).toBool();
    v.fastDraw3D = s.value(fastDraw3D, false).toBool();
    v.viewTab = s.value(viewTab, 0).toInt();
    v.lastSnapshotDir = s.value(lastSnapshotDir).toString();
    v.windowGeometry = s.value(windowGeometry).toByteArray();
    return v;
}

void writeStoredSettings(QSettings &s, const StoredSettings &v, bool writeGeometry)
{
    using namespace SettingsKey;
    s.setValue(patchLastPath, v.patchLastPath);
    s.setValue(playbackLastPath, v.playbackLastPath);
    s.setValue(playbackFps, v.playbackFps);
    s.setValue(playbackTab, v.playbackTab);
    s.setValue(gpsFps, v.gpsFps);
    s.setValue(gpsLoop, v.gpsLoop);
    s.setValue(gpsPaths, v.gpsPaths);
    s.setValue(broadcastAddress, v.broadcastAddress);
    s.setValue(broadcastShortName, v.broadcastShortName);
    s.setValue(broadcastLongName, v.broadcastLongName);
    s.setValue(broadcastRecordDir, v.broadcastRecordDir);
    s.setValue(broadcastRecordName, v.broadcastRecordName);
    s.setValue(broadcastRecordFps, v.broadcastRecordFps);
    s.setValue(whiteChannels, v.whiteChannels);
    s.setValue(fastDraw3D, v.fastDraw3D);
    s.setValue(viewTab, v.viewTab);
    s.setValue(lastSnapshotDir, v.lastSnapshotDir);
    if (writeGeometry)
        s.setValue(windowGeometry, v.windowGeometry);
}
