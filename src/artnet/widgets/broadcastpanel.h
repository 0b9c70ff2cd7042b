#pragma once

#include "artnet/nodeidentity.h"
#include "artnet/nodestats.h"

#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QToolButton;
class StatusLabel;

// The side panel of the live source: where the node listens, with which
// identity it answers ArtPoll, start and stop, recording the incoming stream,
// and the node's liveness and statistics. It holds no network logic: it emits
// requests the main window carries out and shows the state pushed back.
//
// Choices left open: the statistics pieces are joined with " · "; the owner
// refreshes the status on the node's statusChanged and about once a second.
// "Record incoming stream" switches the recording controls on; the record
// button starts and stops. A stored address that no interface has any more
// stays in the list, marked "(not present)", so it is not silently replaced.
// GUI thread only.
class BroadcastPanel : public QWidget
{
    Q_OBJECT
public:
    struct InterfaceAddress
    {
        QString address;       // IPv4 text
        QString interfaceName; // what the system calls the interface
    };
    struct Profile
    {
        const char *label;
        const char *shortName;
        const char *longName;
    };
    static const QVector<Profile> &profiles();
    // The machine's IPv4 addresses, loopback left out (it has its own entry).
    static QVector<InterfaceAddress> localInterfaces();

    explicit BroadcastPanel(QWidget *parent = nullptr);

    // Lists "Any", loopback and the given addresses; keeps the chosen address.
    void setInterfaces(const QVector<InterfaceAddress> &interfaces);
    void refreshInterfaces(); // setInterfaces(localInterfaces())

    QString address() const; // "0.0.0.0" for Any
    void setAddress(const QString &address); // empty keeps Any
    quint16 port() const;
    NodeIdentity identity() const;
    void setNames(const QString &shortName, const QString &longName); // empty keeps the field's value
    QString recordFolder() const;
    void setRecordFolder(const QString &folder);
    QString recordName() const;
    void setRecordName(const QString &name); // empty keeps the default
    int recordFps() const;
    void setRecordFps(int fps);

    void setListening(bool listening);
    bool isListening() const { return m_listening; }
    void setRecording(bool recording);
    bool isRecording() const { return m_recording; }
    void setPatchLoaded(bool loaded);
    // Liveness and statistics lines; msSinceLastPoll negative means no ArtPoll yet.
    void refreshStatus(const NodeStats &stats, qint64 msSinceLastPoll);
    void setListenMessage(std::function<QString()> producer, int level);
    void setRecordMessage(std::function<QString()> producer, int level);

    StatusLabel *livenessLabel() const { return m_liveness; }
    QLabel *statisticsLabel() const { return m_statistics; }
    StatusLabel *listenMessageLabel() const { return m_listenMessage; }
    StatusLabel *recordMessageLabel() const { return m_recordMessage; }
    QLabel *noPatchNote() const { return m_noPatchNote; }
    void retranslateUi();

signals:
    void startRequested(const QString &address, quint16 port, const NodeIdentity &identity);
    void stopRequested();
    void identityChanged(const NodeIdentity &identity);
    void recordStartRequested(const QString &folder, const QString &fileName, int fps);
    void recordStopRequested();
    void refreshInterfacesRequested();

public slots:
    void onBrowseFolder();

protected:
    void changeEvent(QEvent *event) override;

private:
    void onListenClicked();
    void onRecordClicked();
    void onProfileChosen(int index);
    void updateRecordControls();
    void showStatusLines();

    QLabel *m_addressLabel = nullptr;
    QComboBox *m_address = nullptr;
    QToolButton *m_refresh = nullptr;
    QLabel *m_portLabel = nullptr;
    QSpinBox *m_port = nullptr;
    QLabel *m_profileLabel = nullptr;
    QComboBox *m_profile = nullptr;
    QLabel *m_shortLabel = nullptr;
    QLineEdit *m_shortName = nullptr;
    QLabel *m_longLabel = nullptr;
    QLineEdit *m_longName = nullptr;
    QLabel *m_addressCaption = nullptr;
    QLabel *m_netLabel = nullptr;
    QSpinBox *m_net = nullptr;
    QLabel *m_subLabel = nullptr;
    QSpinBox *m_sub = nullptr;
    QPushButton *m_listen = nullptr;
    StatusLabel *m_listenMessage = nullptr;
    StatusLabel *m_liveness = nullptr;
    QLabel *m_statistics = nullptr;

    QCheckBox *m_recordEnabled = nullptr;
    QLabel *m_folderLabel = nullptr;
    QLineEdit *m_folder = nullptr;
    QToolButton *m_browseFolder = nullptr;
    QLabel *m_fileLabel = nullptr;
    QLineEdit *m_fileName = nullptr;
    QLabel *m_fpsLabel = nullptr;
    QSpinBox *m_recordFps = nullptr;
    QPushButton *m_record = nullptr;
    QLabel *m_noPatchNote = nullptr;
    StatusLabel *m_recordMessage = nullptr;

    bool m_listening = false;
    bool m_recording = false;
    bool m_patchLoaded = false;
    bool m_hasStatus = false;
    NodeStats m_stats;
    qint64 m_msSinceLastPoll = -1;
};
