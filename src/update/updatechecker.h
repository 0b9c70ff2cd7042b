#pragma once

#include "update/updatefeed.h"

#include <QMetaType>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>

class QNetworkReply;

struct UpdateCheckResult
{
    enum class Kind
    {
        UpToDate,
        NewVersion,
        Failed
    };
    Kind kind = Kind::Failed;
    UpdateFeed feed; // for UpToDate and NewVersion
    QString error;   // for Failed: why (our own texts untranslated, context "UpdateFeed")
};
Q_DECLARE_METATYPE(UpdateCheckResult)

// Fetches the update feed and compares it with the running version. Every
// check() ends in exactly one finished() signal, from the event loop, never
// inside check(). GUI thread (or any thread with an event loop that owns it).
class UpdateChecker : public QObject
{
    Q_OBJECT
public:
    // A show network may black-hole the request: give up rather than wait.
    static constexpr int kTimeoutMs = 10000;
    // The feed is a few hundred bytes; anything this large is not a feed.
    static constexpr qint64 kMaxFeedBytes = 64 * 1024;

    explicit UpdateChecker(QObject *parent = nullptr);
    ~UpdateChecker() override;

    // Starts a check of feed against currentVersion. A check under way is
    // abandoned without a signal.
    void check(const QUrl &feed, const QString &currentVersion);
    bool isChecking() const { return !m_reply.isNull(); }

signals:
    void finished(const UpdateCheckResult &result);

private:
    void onReadyRead();
    void onFinished();

    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply;
    QByteArray m_received;
    bool m_tooLarge = false;
    QString m_currentVersion;
};
