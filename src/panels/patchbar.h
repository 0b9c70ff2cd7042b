#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class StatusLabel;

// The small widget through which the user names the patch file to load. It
// loads nothing itself: it hands a trimmed path to the main window through
// uploadRequested, and the main window shows the busy state while loading.
// The status line takes message levels (0 information, 2 error) and leaves
// their colours to the theme. GUI thread only.
class PatchBar : public QWidget
{
    Q_OBJECT
public:
    explicit PatchBar(QWidget *parent = nullptr);

    void setBusy(bool busy);
    bool isBusy() const { return m_busy; }
    void retranslateUi();

    StatusLabel *statusLabel() const { return m_status; }
    QString path() const;
    void setPath(const QString &path);

signals:
    void uploadRequested(const QString &path);

public slots:
    void onUpload();
    void onBrowse();

protected:
    void changeEvent(QEvent *event) override;

private:
    QLabel *m_caption = nullptr;
    QLineEdit *m_pathEdit = nullptr;
    QToolButton *m_browse = nullptr;
    QPushButton *m_upload = nullptr;
    StatusLabel *m_status = nullptr;
    bool m_busy = false;
};
