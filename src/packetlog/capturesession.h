#pragma once

#include "packetlog/capturereader.h"

#include <QObject>
#include <QProcess>

#include <vector>

namespace PacketLog {

// A network adapter the capture helper can capture on.
struct CaptureAdapter
{
    QString name;        // "eth0"
    QString description; // may be empty
    QStringList addresses; // IPv4, dotted
};

// The group whose members may capture once the package installed the helper.
inline constexpr const char *kCaptureGroup = "talu-capture";

// Where the capture helper (talu-capture) is: $TALU_CAPTURE_HELPER, beside
// the program, or in ../libexec/talu/ as the package installs it. Empty when
// it is nowhere.
QString captureHelperPath();

// Asks the helper for the adapters (waits at most a few seconds). False with a message when it cannot.
bool listCaptureAdapters(QVector<CaptureAdapter> *adapters, LogMessage *error);

// One capture from one adapter: the helper runs as a child process and
// streams pcap; its UDP packets to or from the port become records with
// source "capture", "out" when they leave one of the adapter's own addresses.
// The GUI's log window and `talu-cli capture` both capture through this.
// Thread of its owner only.
class CaptureSession : public QObject
{
    Q_OBJECT
public:
    explicit CaptureSession(QObject *parent = nullptr);
    ~CaptureSession() override; // stops the helper

    // count > 0: the helper stops after that many packets.
    void start(const CaptureAdapter &adapter, quint16 port = 6454, qint64 count = 0);
    // Every byte of the helper's pcap stream is also written here (not owned;
    // null: none): the capture as the adapter saw it, whole packets, which
    // the records (their first 256 bytes) are not.
    void setRawCopy(QIODevice *device) { m_rawCopy = device; }
    // Asks the helper to stop; stopped() follows once it has.
    void stop();
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    // The records captured since the last call, in arrival order.
    std::vector<PacketRecord> takeRecords();
    qint64 recordCount() const { return m_records; }
    qint64 skipped() const { return m_stream.skipped(); }
    // Packets the system dropped before the helper read them (known once stopped).
    qint64 dropped() const { return m_dropped; }
    QString adapterName() const { return m_adapter.name; }

signals:
    // The helper is capturing (its stream has begun).
    void started();
    void recordsReady();
    // The capture ended. error is empty when it ended as asked (stop() or the
    // count reached); otherwise it says why, and what was captured is kept.
    void stopped(const PacketLog::LogMessage &error);

private:
    void readOutput();
    void readErrors();
    void finish(int exitCode, QProcess::ExitStatus status);

    QProcess m_process;
    CaptureAdapter m_adapter;
    std::vector<quint32> m_ownAddresses;
    PcapStreamReader m_stream;
    std::vector<PacketRecord> m_pending;
    qint64 m_records = 0;
    qint64 m_dropped = 0;
    QByteArray m_errorText; // the helper's last complaint
    LogMessage m_failure;   // our own reason, when we stopped it for one
    bool m_stopAsked = false;
    QIODevice *m_rawCopy = nullptr;
};

} // namespace PacketLog
