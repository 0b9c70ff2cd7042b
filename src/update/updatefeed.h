#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>

// Where the program looks for a newer version. Show networks are usually
// offline: a check that cannot reach it stays silent unless the user asked.
inline const QUrl kUpdateFeedUrl{QStringLiteral("https://torvane.example/talu/update.json")};

// What the feed announces: the latest version, its release notes (plain text
// or Markdown) and the page to download it from.
struct UpdateFeed
{
    QString version;
    QString notes;
    QUrl downloadPage;
};

struct UpdateFeedResult
{
    bool ok = false;
    UpdateFeed feed;
    // Why the document was refused: English, translated for display in the
    // context "UpdateFeed" (QCoreApplication::translate).
    QString error;
};

// Reads the feed document: a JSON object with a text "version" made of
// dot-separated numbers, an optional text "notes" and a "download" address
// (http or https). Never throws; anything else is refused with a reason.
UpdateFeedResult parseUpdateFeed(const QByteArray &document);

// Orders dotted versions by their numbers ("1.10" after "1.9"; a missing
// part counts as 0, so "1.2" equals "1.2.0"). Negative, zero or positive.
// Versions that are not dotted numbers compare as 0.0.
int compareVersions(const QString &a, const QString &b);

// A background check runs at most once a day: due when no check is on
// record, a day has passed, or the last check lies in the future (a clock
// that was set back).
bool isUpdateCheckDue(const QDateTime &lastCheck, const QDateTime &now);
