#include "recording/recordingwriter.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cstring>

using namespace RecordLayout;

namespace {

// A controller sends one frame's universes back to back; a longer pause
// than this between two records means a new frame began.
constexpr qint64 kFrameGapNs = 7'000'000;
constexpr int kMinFrameRate = 1;
constexpr int kMaxFrameRate = 240;
// How often, at most, a frame boundary checks that the file is still where it was.
constexpr qint64 kExistenceCheckMs = 1000;
// The protocol version recorded headers carry (Art-Net 14).
constexpr char kProtocolHi = 0;
constexpr char kProtocolLo = 14;

QByteArray kelNameBytes(const QString &name)
{
    QByteArray out = name.toLatin1().left(kKelNameSize);
    out.append(QByteArray(kKelNameSize - out.size(), '\0'));
    return out;
}

} // namespace

RecordingWriter::RecordingWriter(QObject *parent) : QFile(parent), m_kelName(kKelNameSize, '\0') {}

RecordingWriter::~RecordingWriter()
{
    close();
}

bool RecordingWriter::open(OpenMode mode)
{
    return QFile::open(mode);
}

bool RecordingWriter::open(const QString &path, int frameRate, int recordsPerFrame)
{
    close();
    m_failure.clear();
    m_path = path;
    const QFileInfo info(path);
    m_sizeAtOpen = info.exists() ? info.size() : 0;
    setFileName(path);
    if (!QFile::open(QIODevice::WriteOnly | QIODevice::Append)) {
        m_lastError = errorString();
        return false;
    }
    m_lastError.clear();
    m_recordsWritten = 0;
    m_framesWritten = 0;
    m_bytesWritten = 0;
    m_fileSize = m_sizeAtOpen;
    m_frameRate = std::clamp(frameRate, kMinFrameRate, kMaxFrameRate);
    m_expectedRecordsPerFrame = std::max(recordsPerFrame, 0);
    m_recordsPerFrame = m_expectedRecordsPerFrame;
    m_recordsInFrame = 0;
    m_universesInFrame.reset();
    m_frameClock = 0;
    m_recordTimer.invalidate();
    m_lastRecordNs = kNoTime;
    m_existenceCheck.start();
    return true;
}

void RecordingWriter::setSource(RecordFlavour flavour, const QString &kelDeviceName)
{
    // Called for every live packet: the common case, an unchanged source, costs a compare.
    if (flavour == m_flavour && kelDeviceName == m_kelDeviceName)
        return;
    m_flavour = flavour;
    m_kelDeviceName = kelDeviceName;
    m_kelName = kelNameBytes(kelDeviceName);
}

void RecordingWriter::fillHeader(char *out, RecordFlavour flavour, const QByteArray &kelName,
                                 quint16 portAddress, quint16 length)
{
    quint16 opCode = kOpArtDmx;
    if (flavour == RecordFlavour::Kel) {
        opCode = kOpKelDmx;
        out[0] = char(0x01);
        out[1] = 0;
        std::memcpy(out + 2, kelName.constData(), kKelNameSize);
        out += kKelPrefixSize;
    }
    std::memcpy(out, "Art-Net", 8); // the ID with its terminating zero
    out[8] = char(opCode & 0xFF);
    out[9] = char(opCode >> 8);
    out[10] = kProtocolHi;
    out[11] = kProtocolLo;
    out[12] = 0;                        // sequence: never preserved
    out[13] = 0;                        // physical
    out[14] = char(portAddress & 0xFF); // SubUni
    out[15] = char(portAddress >> 8);   // Net
    out[16] = char(length >> 8);        // big-endian, as on the wire
    out[17] = char(length & 0xFF);
}

QByteArray RecordingWriter::header(RecordFlavour flavour, const QString &kelDeviceName, quint16 portAddress,
                                   quint16 length)
{
    QByteArray out(headerSize(flavour), '\0');
    fillHeader(out.data(), flavour, kelNameBytes(kelDeviceName), portAddress, length);
    return out;
}

void RecordingWriter::beginFrame()
{
    ++m_framesWritten;
    m_recordsInFrame = 0;
    m_universesInFrame.reset();
    m_frameClock += m_frameRate;
    // Hand the previous frame to the system now, so a full disk shows up within a frame.
    if (!flush())
        setFailure(errorString());
    else if (m_existenceCheck.elapsed() >= kExistenceCheckMs) {
        m_existenceCheck.start();
        if (!QFileInfo::exists(m_path))
            setFailure(tr("The file was removed or renamed while recording."));
    }
}

template <typename Paused>
bool RecordingWriter::append(quint16 portAddress, QByteArrayView data, Paused paused)
{
    if (!isOpen() || data.isEmpty())
        return !failed();
    if (failed())
        return false;
    const auto length = quint16(std::min<qsizetype>(data.size(), kMaxDmxLength));

    if (m_recordsInFrame > 0) {
        const bool boundary = m_recordsPerFrame >= 1 ? m_recordsInFrame >= m_recordsPerFrame
                                                     : m_universesInFrame.test(portAddress) || paused();
        if (boundary) {
            beginFrame();
            if (failed())
                return false;
        }
    }

    const int headerBytes = headerSize(m_flavour);
    const qsizetype total = headerBytes + length + kTimestampSize;
    m_record.resize(total);
    char *out = m_record.data();
    fillHeader(out, m_flavour, m_kelName, portAddress, length);
    std::memcpy(out + headerBytes, data.data(), length);
    // The stamp is the frame clock in thousandths: it grows by the frame rate per frame.
    qToLittleEndian<quint16>(quint16(m_frameClock / 1000), out + headerBytes + length);
    if (QIODevice::write(m_record) != total) {
        setFailure(errorString());
        return false;
    }

    ++m_recordsWritten;
    ++m_recordsInFrame;
    m_universesInFrame.set(portAddress);
    m_bytesWritten += total;
    m_fileSize = m_sizeAtOpen + m_bytesWritten;
    return true;
}

bool RecordingWriter::write(quint16 portAddress, QByteArrayView data)
{
    const qint64 before = m_recordsWritten;
    const bool ok = append(portAddress, data, [this] {
        return m_recordTimer.isValid() && m_recordTimer.nsecsElapsed() > kFrameGapNs;
    });
    if (m_recordsWritten != before)
        m_recordTimer.start();
    return ok;
}

bool RecordingWriter::writeAt(quint16 portAddress, QByteArrayView data, qint64 timeNs)
{
    const qint64 before = m_recordsWritten;
    const bool ok = append(portAddress, data,
                           [this, timeNs] { return m_lastRecordNs != kNoTime && timeNs - m_lastRecordNs > kFrameGapNs; });
    if (m_recordsWritten != before)
        m_lastRecordNs = timeNs;
    return ok;
}


void RecordingWriter::close()
{
    if (!isOpen())
        return;
    if (m_recordsInFrame > 0)
        ++m_framesWritten;
    m_recordsInFrame = 0;
    if (!flush())
        setFailure(errorString());
    QFile::close();
    m_fileSize = QFileInfo(m_path).size();
}

void RecordingWriter::setFailure(const QString &reason)
{
    if (!m_failure.isEmpty())
        return;
    m_failure = reason.isEmpty() ? tr("The file could not be written.") : reason;
    emit writeFailed(m_failure);
}
