#include "packetlog/capturesession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimer>

namespace PacketLog {

namespace {

// The helper's exit codes (see src/capture/talucapture.cpp).
constexpr int kHelperNotPermitted = 3;
constexpr int kHelperNoAdapter = 4;

QString helperName()
{
#ifdef Q_OS_WIN
    return QStringLiteral("talu-capture.exe");
#else
    return QStringLiteral("talu-capture");
#endif
}

LogMessage missingHelper()
{
    return LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture helper (%1) is not installed beside the program, "
                                                     "so adapter capture is not available."),
                      {helperName()});
}

// The helper's "talu-capture: ..." lines without the prefix; the last one says what went wrong.
LogMessage notPermitted(const QString &adapter, const QString &why)
{
    return LogMessage(
        QT_TRANSLATE_NOOP("PacketLog",
                          "Capturing on %1 is not permitted (%2). Only the capture helper may capture: join "
                          "the group \"%3\" (sudo usermod -aG %3 $USER, then log in again), or give a helper "
                          "you built yourself the right with: sudo setcap cap_net_raw,cap_net_admin=eip %4"),
        {adapter, why, QString::fromLatin1(kCaptureGroup), captureHelperPath()});
}

QString lastComplaint(const QByteArray &errors)
{
    QString text;
    for (const QByteArray &line : errors.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (!trimmed.isEmpty() && !trimmed.startsWith("talu-capture: stats "))
            text = QString::fromLocal8Bit(trimmed).remove(QStringLiteral("talu-capture: "));
    }
    return text;
}

} // namespace

QString captureHelperPath()
{
    // Found when it exists: the package lets only the group "talu-capture" run
    // it, and a user outside the group must hear that, not "not installed".
    const QString forced = qEnvironmentVariable("TALU_CAPTURE_HELPER");
    if (!forced.isEmpty())
        return QFileInfo(forced).isFile() ? forced : QString();
    const QDir programDir(QCoreApplication::applicationDirPath());
    const QString candidates[] = {
        programDir.filePath(helperName()),
        programDir.filePath(QStringLiteral("../libexec/talu/") + helperName()),
        // Inside the build tree the helper sits in its own folder.
        programDir.filePath(QStringLiteral("../capture/") + helperName()),
    };
    for (const QString &path : candidates) {
        if (QFileInfo(path).isFile())
            return QDir::cleanPath(path);
    }
    return {};
}

bool listCaptureAdapters(QVector<CaptureAdapter> *adapters, LogMessage *error)
{
    const QString helper = captureHelperPath();
    if (helper.isEmpty()) {
        *error = missingHelper();
        return false;
    }
    QProcess process;
    process.start(helper, {QStringLiteral("--list")});
    if (!process.waitForFinished(5000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        process.kill();
        process.waitForFinished(1000);
        *error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture helper could not list the adapters: %1"),
                            {lastComplaint(process.readAllStandardError())});
        return false;
    }
    adapters->clear();
    for (const QByteArray &line : process.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() < 3 || fields[0].isEmpty())
            continue;
        CaptureAdapter adapter;
        adapter.name = QString::fromLocal8Bit(fields[0]);
        adapter.description = QString::fromLocal8Bit(fields[1]);
        adapter.addresses = QString::fromLatin1(fields[2]).split(QLatin1Char(','), Qt::SkipEmptyParts);
        adapters->append(adapter);
    }
    return true;
}

CaptureSession::CaptureSession(QObject *parent) : QObject(parent)
{
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &CaptureSession::readOutput);
    connect(&m_process, &QProcess::readyReadStandardError, this, &CaptureSession::readErrors);
    connect(&m_process, &QProcess::finished, this, &CaptureSession::finish);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            // Installed but not ours to run: the user is not in the capture group.
            m_failure = QFileInfo(m_process.program()).isExecutable()
                            ? LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture helper could not be started: %1"),
                                         {m_process.errorString()})
                            : notPermitted(m_adapter.name, m_process.errorString());
            emit stopped(m_failure);
        }
    });
}

CaptureSession::~CaptureSession()
{
    disconnect(&m_process, nullptr, this, nullptr);
    if (isRunning()) {
        m_process.terminate();
        if (!m_process.waitForFinished(2000))
            m_process.kill();
        m_process.waitForFinished(1000);
    }
}

void CaptureSession::start(const CaptureAdapter &adapter, quint16 port, qint64 count)
{
    if (isRunning())
        return;
    m_adapter = adapter;
    m_ownAddresses.clear();
    for (const QString &address : adapter.addresses) {
        quint32 ip = 0;
        if (parseIpv4(address, &ip))
            m_ownAddresses.push_back(ip);
    }
    m_stream = PcapStreamReader();
    m_pending.clear();
    m_records = 0;
    m_dropped = 0;
    m_errorText.clear();
    m_failure = LogMessage();
    m_stopAsked = false;
    const QString helper = captureHelperPath();
    if (helper.isEmpty()) {
        m_failure = missingHelper();
        emit stopped(m_failure);
        return;
    }
    QStringList arguments{QStringLiteral("--interface"), adapter.name, QStringLiteral("--port"),
                          QString::number(port)};
    if (count > 0)
        arguments << QStringLiteral("--count") << QString::number(count);
    m_process.start(helper, arguments, QIODevice::ReadOnly);
}

void CaptureSession::stop()
{
    if (!isRunning())
        return;
    m_stopAsked = true;
    m_process.terminate();
    // A helper that cannot take the signal (Windows consoles, one stuck in the driver) is killed.
    QTimer::singleShot(3000, this, [this] {
        if (isRunning())
            m_process.kill();
    });
}

std::vector<PacketRecord> CaptureSession::takeRecords()
{
    std::vector<PacketRecord> taken;
    taken.swap(m_pending);
    return taken;
}

void CaptureSession::readOutput()
{
    const QByteArray bytes = m_process.readAllStandardOutput();
    if (m_rawCopy && !bytes.isEmpty() && m_rawCopy->write(bytes) != bytes.size() && m_failure.isEmpty()) {
        m_failure = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture could not be written: %1"),
                               {m_rawCopy->errorString()});
        m_process.kill();
    }
    const size_t before = m_pending.size();
    const bool wasStarted = m_stream.started();
    if (!m_stream.feed(bytes, &m_pending)) {
        const LogMessage reason = m_stream.warnings().isEmpty() ? m_stream.error() : m_stream.warnings().constLast();
        m_failure = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture helper's output is damaged: %1"),
                               {reason.text()});
        m_process.kill();
    }
    for (size_t i = before; i < m_pending.size(); ++i) {
        PacketRecord &r = m_pending[i];
        r.source = RecordSource::Capture;
        if (std::find(m_ownAddresses.begin(), m_ownAddresses.end(), r.srcIp) != m_ownAddresses.end())
            r.direction = Direction::Out;
    }
    if (!wasStarted && m_stream.started())
        emit started();
    m_records += qint64(m_pending.size() - before);
    if (m_pending.size() > before)
        emit recordsReady();
}

void CaptureSession::readErrors()
{
    m_errorText += m_process.readAllStandardError();
    static const QRegularExpression kStats(QStringLiteral("stats received=(\\d+) dropped=(\\d+)"));
    const QRegularExpressionMatch m = kStats.match(QString::fromLatin1(m_errorText));
    if (m.hasMatch())
        m_dropped = m.captured(2).toLongLong();
}

void CaptureSession::finish(int exitCode, QProcess::ExitStatus status)
{
    readOutput();
    readErrors();
    LogMessage error = m_failure;
    const QString complaint = lastComplaint(m_errorText);
    if (!error.isEmpty()) {
        // Our own reason (damaged output, no helper) is worded already.
    } else if (status != QProcess::NormalExit) {
        if (!m_stopAsked)
            error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture helper stopped unexpectedly; the %1 "
                                                              "packets captured until then are kept."),
                               {QString::number(m_records)});
    } else if (exitCode == kHelperNotPermitted) {
        error = notPermitted(m_adapter.name, complaint);
    } else if (exitCode == kHelperNoAdapter) {
        error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "There is no adapter %1 to capture on."), {m_adapter.name});
    } else if (exitCode != 0) {
        error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Capture on %1 failed: %2"),
                           {m_adapter.name, complaint.isEmpty() ? QString::number(exitCode) : complaint});
    }
    m_stream.finish();
    emit stopped(error);
}

} // namespace PacketLog
