#include "recording/gpsfoldermatch.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace {

const QLatin1StringView kSuffix(".tpx");

struct Session
{
    QHash<int, QString> files; // group index -> path
    QDateTime newest;
};

} // namespace

GpsFolderMatch GpsFolderMatch::match(const QString &folder, const QStringList &groupNames)
{
    GpsFolderMatch out;
    for (int g = 0; g < groupNames.size(); ++g)
        out.paths.append(QString());

    QHash<QString, Session> sessions;
    // Unreadable files stay in, so that the verifier says what is wrong with
    // them instead of a group going missing.
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &info : entries) {
        const QString name = info.fileName();
        // A stick that has been in a Mac carries a "._show_Front.tpx" beside
        // every file; they count as hidden here but not on Windows, so they are named.
        if (!name.endsWith(kSuffix, Qt::CaseInsensitive) || name.startsWith(QLatin1StringView("._")))
            continue;
        const QString base = name.left(name.size() - kSuffix.size());
        for (int g = 0; g < groupNames.size(); ++g) {
            const QString &group = groupNames.at(g);
            if (group.isEmpty() || base.size() <= group.size() || !base.endsWith(group, Qt::CaseSensitive) ||
                base.at(base.size() - group.size() - 1) != u'_')
                continue;
            Session &s = sessions[base.left(base.size() - group.size() - 1)];
            s.files.insert(g, info.filePath());
            const QDateTime modified = info.lastModified();
            if (!s.newest.isValid() || modified > s.newest)
                s.newest = modified;
        }
    }

    const Session *best = nullptr;
    for (auto it = sessions.cbegin(); it != sessions.cend(); ++it) {
        const Session &s = it.value();
        const bool better =
            !best || s.files.size() > best->files.size() ||
            (s.files.size() == best->files.size() &&
             (s.newest > best->newest || (s.newest == best->newest && it.key() < out.session)));
        if (better) {
            best = &s;
            out.session = it.key();
        }
    }
    if (!best)
        return out;
    for (auto it = best->files.cbegin(); it != best->files.cend(); ++it)
        out.paths[it.key()] = it.value();
    out.matched = int(best->files.size());
    return out;
}
