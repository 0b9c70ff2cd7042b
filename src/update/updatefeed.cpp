#include "update/updatefeed.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

bool isDottedVersion(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\d{1,9}(\\.\\d{1,9}){0,3}$"));
    return pattern.match(text).hasMatch();
}

} // namespace

UpdateFeedResult parseUpdateFeed(const QByteArray &document)
{
    UpdateFeedResult result;
    QJsonParseError parseError;
    const QJsonDocument json = QJsonDocument::fromJson(document, &parseError);
    if (parseError.error != QJsonParseError::NoError || !json.isObject()) {
        result.error =
            QString::fromLatin1(QT_TRANSLATE_NOOP("UpdateFeed", "The update information is not readable."));
        return result;
    }
    const QJsonObject object = json.object();
    const QString version = object.value(QStringLiteral("version")).toString().trimmed();
    if (!isDottedVersion(version)) {
        result.error = QString::fromLatin1(
            QT_TRANSLATE_NOOP("UpdateFeed", "The update information names no valid version."));
        return result;
    }
    const QUrl download(object.value(QStringLiteral("download")).toString().trimmed(), QUrl::StrictMode);
    if (!download.isValid() ||
        (download.scheme() != QLatin1String("https") && download.scheme() != QLatin1String("http")) ||
        download.host().isEmpty()) {
        result.error = QString::fromLatin1(
            QT_TRANSLATE_NOOP("UpdateFeed", "The update information has no valid download page."));
        return result;
    }
    result.ok = true;
    result.feed.version = version;
    result.feed.notes = object.value(QStringLiteral("notes")).toString();
    result.feed.downloadPage = download;
    return result;
}

int compareVersions(const QString &a, const QString &b)
{
    const QStringList left = isDottedVersion(a) ? a.split(QLatin1Char('.')) : QStringList();
    const QStringList right = isDottedVersion(b) ? b.split(QLatin1Char('.')) : QStringList();
    const qsizetype parts = std::max(left.size(), right.size());
    for (qsizetype i = 0; i < parts; ++i) {
        const qint64 l = i < left.size() ? left.at(i).toLongLong() : 0;
        const qint64 r = i < right.size() ? right.at(i).toLongLong() : 0;
        if (l != r)
            return l < r ? -1 : 1;
    }
    return 0;
}

bool isUpdateCheckDue(const QDateTime &lastCheck, const QDateTime &now)
{
    if (!lastCheck.isValid() || lastCheck > now)
        return true;
    return lastCheck.secsTo(now) >= 24 * 60 * 60;
}
