#pragma once

#include <QString>
#include <QStringList>

// Matching a folder of GPS-Sync recordings to the patch's groups. The
// sibling controller names each group's file <name>_<Group>.tpx, <name>
// being the session's name, so a folder of several sessions holds several
// files per group. The session that covers the most groups wins; on a tie the
// session whose newest file is the most recent, then the first name in
// alphabetical order (so the outcome never depends on directory order).
//
// Group names may contain underscores and spaces: a file is tried against
// every group name as a suffix "_<Group>", so "show_Stage_Left.tpx" is
// session "show" for a group "Stage_Left" and session "show_Stage" for a
// group "Left"; the session vote settles which reading is meant.
//
// Case: the group name is compared exactly, case included. The controller
// writes the group's name into the file name unchanged, the file systems we
// run on keep the case they were given, and a patch may hold groups that
// differ only in case ("Front" and "FRONT"), which must not take each
// other's file. The ".tpx" extension alone is compared without case, as
// Windows treats it.
struct GpsFolderMatch
{
    QStringList paths; // one per group, in group order; empty where nothing matched
    int matched = 0;   // groups that got a file
    QString session;   // the winning <name>, empty when nothing matched

    // Groups with an empty name never match. Reads the folder; any thread.
    static GpsFolderMatch match(const QString &folder, const QStringList &groupNames);
};
