#include "update/updatechecker.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QNetworkRequest>

UpdateChecker::UpdateChecker(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<UpdateCheckResult>();
}

UpdateChecker::~UpdateChecker()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
}

void UpdateChecker::check(const QUrl &feed, const QString &currentVersion)
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
    }
    m_received.clear();
    m_tooLarge = false;
    m_currentVersion = currentVersion;

    QNetworkRequest request(feed);
    request.setTransferTimeout(kTimeoutMs);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("TorvaneTALU/%1").arg(currentVersion));
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateChecker::onReadyRead);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateChecker::onFinished);
}

void UpdateChecker::onReadyRead()
{
    if (!m_reply || m_tooLarge)
        return;
    m_received += m_reply->read(kMaxFeedBytes + 1 - m_received.size());
    if (m_received.size() > kMaxFeedBytes) {
        m_tooLarge = true;
        m_reply->abort(); // finished follows
    }
}

void UpdateChecker::onFinished()
{
    QNetworkReply *reply = m_reply;
    if (!reply)
        return;
    m_reply = nullptr;
    reply->deleteLater();

    // What readyRead left unread; past the limit it is refused like a reply cut short.
    if (!m_tooLarge && reply->error() == QNetworkReply::NoError) {
        m_received += reply->readAll();
        m_tooLarge = m_received.size() > kMaxFeedBytes;
    }
    UpdateCheckResult result;
    if (m_tooLarge) {
        result.error =
            QString::fromLatin1(QT_TRANSLATE_NOOP("UpdateFeed", "The update information is too large."));
    } else if (reply->error() != QNetworkReply::NoError) {
        result.error = reply->errorString();
    } else {
        const UpdateFeedResult parsed = parseUpdateFeed(m_received);
        if (!parsed.ok) {
            result.error = parsed.error;
        } else {
            result.feed = parsed.feed;
            result.kind = compareVersions(parsed.feed.version, m_currentVersion) > 0
                              ? UpdateCheckResult::Kind::NewVersion
                              : UpdateCheckResult::Kind::UpToDate;
        }
    }
    m_received.clear();
    emit finished(result);
}
