#include "app/updater.h"

#include "app/appsettings.h"
#include "talu_version.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

// Long notes would push the buttons off the screen; the download page has them all.
constexpr int kNotesShownChars = 1500;

} // namespace

int applyUpdate(const QStringList &arguments)
{
    Q_UNUSED(arguments);
    return 0;
}

UpdateController::UpdateController(QWidget *window, QObject *parent) : QObject(parent), m_window(window)
{
    connect(&m_checker, &UpdateChecker::finished, this, &UpdateController::onFinished);
}

bool UpdateController::isAutoCheckEnabled()
{
    return openSettings()->value(SettingsKey::updateAutoCheck, true).toBool();
}

void UpdateController::setAutoCheckEnabled(bool on)
{
    openSettings()->setValue(SettingsKey::updateAutoCheck, on);
}

void UpdateController::startBackgroundCheck(int delayMs)
{
    QTimer::singleShot(delayMs, this, [this] {
        if (!isAutoCheckEnabled() || m_checker.isChecking())
            return;
        const auto settings = openSettings();
        const QDateTime now = QDateTime::currentDateTimeUtc();
        if (!isUpdateCheckDue(settings->value(SettingsKey::updateLastCheck).toDateTime(), now))
            return;
        settings->setValue(SettingsKey::updateLastCheck, now);
        m_manual = false;
        m_checker.check(m_feedUrl, QStringLiteral(TALU_VERSION));
    });
}

void UpdateController::checkNow()
{
    m_manual = true;
    m_checker.check(m_feedUrl, QStringLiteral(TALU_VERSION));
}

QMessageBox *UpdateController::openBox(const QString &text)
{
    if (m_box)
        m_box->close();
    auto *box = new QMessageBox(m_window);
    box->setObjectName(QStringLiteral("updateBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(tr("Software Update"));
    box->setText(text);
    auto *autoCheck = new QCheckBox(tr("Check for updates automatically (once a day)"));
    autoCheck->setChecked(isAutoCheckEnabled());
    connect(autoCheck, &QCheckBox::toggled, this, &UpdateController::setAutoCheckEnabled);
    box->setCheckBox(autoCheck);
    m_box = box;
    return box;
}

void UpdateController::onFinished(const UpdateCheckResult &result)
{
    const QString current = QStringLiteral(TALU_VERSION);
    const QString ignored = openSettings()->value(SettingsKey::updateIgnoredVersion).toString();
    const bool isNew = result.kind == UpdateCheckResult::Kind::NewVersion;
    // In the background only a new version the user has not set aside is worth a box.
    const bool show = m_manual || (isNew && result.feed.version != ignored);
    if (!show) {
        emit checkFinished(result, false);
        return;
    }
    QMessageBox *box = nullptr;
    if (result.kind == UpdateCheckResult::Kind::Failed) {
        // Our own reasons are translated here; the network's come translated by Qt.
        const QString reason = QCoreApplication::translate("UpdateFeed", result.error.toUtf8().constData());
        box = openBox(tr("Could not check for updates: %1").arg(reason));
        box->setIcon(QMessageBox::Warning);
        box->setStandardButtons(QMessageBox::Ok);
    } else if (!isNew) {
        box = openBox(tr("Torvane TALU %1 is the latest version.").arg(current));
        box->setIcon(QMessageBox::Information);
        box->setStandardButtons(QMessageBox::Ok);
    } else {
        const UpdateFeed feed = result.feed;
        box = openBox(tr("Torvane TALU %1 is available. You have %2.").arg(feed.version, current));
        box->setIcon(QMessageBox::Information);
        QString notes = feed.notes.trimmed();
        if (notes.size() > kNotesShownChars)
            notes = notes.left(kNotesShownChars) + QStringLiteral("...");
        box->setInformativeText(notes);
        QPushButton *download = box->addButton(tr("Download..."), QMessageBox::AcceptRole);
        QPushButton *ignore = box->addButton(tr("Ignore This Version"), QMessageBox::RejectRole);
        box->addButton(tr("Later"), QMessageBox::RejectRole);
        box->setDefaultButton(download);
        connect(download, &QPushButton::clicked, this,
                [feed] { QDesktopServices::openUrl(feed.downloadPage); });
        connect(ignore, &QPushButton::clicked, this,
                [feed] { openSettings()->setValue(SettingsKey::updateIgnoredVersion, feed.version); });
    }
    // Not modal: a box that comes up a few seconds after start must not hold the window.
    box->setWindowModality(Qt::NonModal);
    box->show();
    emit checkFinished(result, true);
}
