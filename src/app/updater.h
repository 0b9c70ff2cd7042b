#pragma once

#include "update/updatechecker.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>

class QWidget;

// The updater's apply step: the elevated process that replaces the program's
// files. Updates are installed from the download page for now; the step
// reports success so that an installer calling "--apply-update" is never left hanging.
int applyUpdate(const QStringList &arguments);

// The update check as the user meets it. In the background: at most once a
// day, never before the window is up, silent when it fails (show networks are
// usually offline) or finds nothing new, and quiet about a version the user
// chose to ignore. "Check for Updates..." reports every outcome. Both show a
// box that does not hold the window; its check box turns the background check
// on and off.
// Settings: "update/autoCheck", "update/lastCheck", "update/ignoredVersion".
// GUI thread only.
class UpdateController : public QObject
{
    Q_OBJECT
public:
    static constexpr int kStartDelayMs = 3000;

    explicit UpdateController(QWidget *window, QObject *parent = nullptr);

    // Where the feed is read from (kUpdateFeedUrl unless changed).
    void setFeedUrl(const QUrl &url) { m_feedUrl = url; }

    // Schedules the background check after delayMs when it is switched on and due.
    void startBackgroundCheck(int delayMs = kStartDelayMs);
    // The manual check: its outcome is always shown.
    void checkNow();
    bool isChecking() const { return m_checker.isChecking(); }

    static bool isAutoCheckEnabled();
    static void setAutoCheckEnabled(bool on);

    // The box shown for the last outcome, while it is open.
    QMessageBox *resultBox() const { return m_box; }

signals:
    // A check ended (shown or not): for the status line and for tests.
    void checkFinished(const UpdateCheckResult &result, bool shown);

private:
    void onFinished(const UpdateCheckResult &result);
    QMessageBox *openBox(const QString &text);

    QWidget *m_window = nullptr; // not owned
    UpdateChecker m_checker;
    QUrl m_feedUrl = kUpdateFeedUrl;
    bool m_manual = false;
    QPointer<QMessageBox> m_box;
};
