#include "recording/recording.h"

#include "artnet/artnetwire.h"

#include "patch/frameorder.h"
#include "recording/gpsmetadatablock.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QtEndian>

#if defined(_MSC_VER) && (defined(_M_X64) || defined(_M_IX86))
#include <xmmintrin.h>
#endif

#include <bitset>
#include <cstring>
#include <memory>

using TPatch::PatchMessage;
using namespace RecordLayout;

namespace {

// A file smaller than this cannot hold the smallest record: an 18-byte
// ArtDmx header with no data and its timestamp.
constexpr qint64 kMinFileSize = 20;
// Period detection tries candidate periods up to here; a frame of more
// records than this is read as one long frame.
constexpr qint64 kMaxPeriod = 4096;
// How many records ahead the walk asks for headers (see prefetch). Asking for
// a few at each step measured better than one: single requests get dropped
// when the memory system is busy.
constexpr qint64 kPrefetchFrom = 4;
constexpr qint64 kPrefetchTo = 8;

// Callers check the size first: the walk is hot and knows it has the bytes.
bool hasId(const char *at)
{
    return std::memcmp(at, ArtNet::kId, sizeof ArtNet::kId) == 0;
}
quint16 le16(const char *at)
{
    return qFromLittleEndian<quint16>(at);
}
quint16 be16(const char *at)
{
    return qFromBigEndian<quint16>(at);
}

// The record shape that starts at p, checking only what fits in the bytes
// left: the ID and OpCode of a plain ArtDmx at p, else of a KEL packet at p + 12.
bool recordAt(const char *data, qint64 size, qint64 p, RecordFlavour *flavour)
{
    const qint64 r = size - p;
    if (r >= kArtNetHeaderSize && hasId(data + p) && le16(data + p + 8) == kOpArtDmx) {
        *flavour = RecordFlavour::ArtNet;
        return true;
    }
    if (r >= kKelHeaderSize && hasId(data + p + kKelPrefixSize) &&
        le16(data + p + kKelPrefixSize + 8) == kOpKelDmx) {
        *flavour = RecordFlavour::Kel;
        return true;
    }
    return false;
}

// Asks the processor to fetch the header bytes at p ahead of time. The walk
// is a chain of dependent loads (each record's length gives the next one's
// position), so without this every record of a large file waits a full
// memory round trip; records of one file nearly always have one size, so
// the next headers are where the last size says.
inline void prefetch(const char *data, qint64 size, qint64 p)
{
#if defined(__GNUC__) || defined(__clang__)
    if (p < size)
        __builtin_prefetch(data + p);
#elif defined(_MSC_VER) && (defined(_M_X64) || defined(_M_IX86))
    if (p < size)
        _mm_prefetch(data + p, _MM_HINT_T0);
#else
    Q_UNUSED(data);
    Q_UNUSED(size);
    Q_UNUSED(p);
#endif
}

// Walks the records from p while they have the file's flavour and fit in the
// file, calling onRecord for each. Returns where the walk ended; *clean tells
// whether it reached the end of the file (at most two stray bytes left).
template <typename OnRecord>
qint64 walk(const char *data, qint64 size, qint64 p, RecordFlavour fileFlavour, bool *clean,
            OnRecord onRecord)
{
    *clean = false;
    for (;;) {
        RecordFlavour flavour;
        if (!recordAt(data, size, p, &flavour) || flavour != fileFlavour)
            return p;
        const int header = headerSize(flavour);
        const quint16 length = be16(data + p + header - 2);
        const qint64 end = p + header + length + kTimestampSize;
        if (end > size)
            return p;
        for (qint64 ahead = kPrefetchFrom; ahead <= kPrefetchTo; ++ahead)
            prefetch(data, size, p + ahead * (end - p));
        onRecord(RecordRef{p + header, length, le16(data + p + header - 4), header});
        p = end;
        if (p + kTimestampSize >= size) {
            *clean = true;
            return p;
        }
    }
}

} // namespace

RecordingLoadResult Recording::fail(PatchMessage error)
{
    reset();
    RecordingLoadResult result;
    result.error = std::move(error);
    return result;
}

void Recording::reset()
{
    m_path.clear();
    m_bytes.clear();
    m_records = QVector<RecordRef>();
    m_universes = QVector<quint16>();
    m_recordsPerFrame = 0;
    m_matchesPatch = false;
    m_frameCount = 0;
    m_flavour = RecordFlavour::ArtNet;
    m_gpsSync = false;
    m_kelDeviceName.clear();
    m_gpsBlock = QByteArray();
    m_detectedPeriod = 0;
    m_firstRecordOffset = 0;
    m_parsedBytes = 0;
}

bool Recording::findFirstRecord()
{
    const char *data = m_bytes.data();
    const qint64 size = m_bytes.size();
    for (const qint64 o : {qint64(0), qint64(kGpsBlockSize)}) {
        const qint64 r = size - o;
        if (o + 19 < size && r > 17 && hasId(data + o) && le16(data + o + 8) == kOpArtDmx) {
            m_flavour = RecordFlavour::ArtNet;
        } else if (r > 29 && hasId(data + o + kKelPrefixSize) &&
                   le16(data + o + kKelPrefixSize + 8) == kOpKelDmx) {
            m_flavour = RecordFlavour::Kel;
            const char *name = data + o + 2;
            m_kelDeviceName = QString::fromLatin1(name, qsizetype(qstrnlen(name, kKelNameSize)));
        } else {
            continue;
        }
        m_firstRecordOffset = o;
        m_gpsSync = o != 0;
        return true;
    }
    return false;
}

bool Recording::walkRecords(RecordingLoadResult *result, const QString &fileName)
{
    const char *data = m_bytes.data();
    const qint64 size = m_bytes.size();

    // One pass: the walk is bound by memory latency, so a second (counting)
    // pass would double the load time. The index is reserved for as many
    // records as the file holds if they all have the first record's size,
    // which is exact for every recording a controller makes (it sends whole
    // universes); a file whose records shrink later grows the index.
    const qint64 firstSize =
        headerSize(m_flavour) + be16(data + m_firstRecordOffset + headerSize(m_flavour) - 2) + kTimestampSize;
    m_records.reserve((size - m_firstRecordOffset) / firstSize + 1);

    bool clean = false;
    auto seen = std::make_unique<std::bitset<65536>>(); // Port-Addresses are 16-bit: a perfect hash
    const qint64 end = walk(data, size, m_firstRecordOffset, m_flavour, &clean, [&](const RecordRef &ref) {
        m_records.append(ref);
        if (!seen->test(ref.universe)) {
            seen->set(ref.universe);
            m_universes.append(ref.universe);
        }
    });
    // A short first record in front of long ones overestimates: give the rest back.
    if (m_records.capacity() > m_records.size() + m_records.size() / 4 + 1024)
        m_records.squeeze();
    m_parsedBytes = end - m_firstRecordOffset;
    if (clean)
        return true;
    if (m_records.isEmpty()) {
        result->error =
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" contains no usable DMX records."), {fileName});
        return false;
    }
    result->warnings.append(PatchMessage(
        QT_TRANSLATE_NOOP("TPatch", "Stopped parsing at byte %1 of %2 - the file is truncated or contains a "
                                    "record this reader does not understand. %3 record(s) were usable."),
        {end, size, qint64(m_records.size())}));
    return true;
}

quint32 Recording::detectPeriod(const QVector<RecordRef> &records)
{
    const qint64 n = records.size();
    if (n < 2)
        return quint32(n);
    const RecordRef *u = records.constData();
    for (qint64 p = 1; p <= n && p <= kMaxPeriod; ++p) {
        if (n % p != 0)
            continue;
        qint64 i = 0;
        while (i < n - p && u[i].universe == u[i + p].universe)
            ++i;
        if (i == n - p)
            return quint32(p);
    }
    return quint32(n);
}

void Recording::matchPatch(const TPatch::PatchData &patch, RecordingLoadResult *result)
{
    const QVector<quint16> expected = TPatch::expectedFrameOrder(patch).universes();
    const qint64 k = expected.size();
    if (k == 0)
        return;
    const qint64 n = m_records.size();
    bool matches = n >= k;
    for (qint64 i = 0; matches && i < n; ++i)
        matches = m_records.at(i).universe == expected.at(i % k);
    if (matches) {
        m_recordsPerFrame = qint32(k);
    } else {
        result->warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "This recording does not match the loaded patch: the patch expects "
                                        "%1 record(s) per frame in a fixed "
                                        "order, but the file repeats every %2. Playback will follow the file "
                                        "and map records by universe "
                                        "number, which cannot separate devices that share a universe."),
            {k, qint64(m_detectedPeriod)}));
    }
    // Literally "the frame layout has the patch's size": a file of another
    // order that happens to repeat every k records keeps its warning but still
    // plays frame by frame.
    m_matchesPatch = m_recordsPerFrame == k;
}

RecordingLoadResult Recording::load(const QString &path, const TPatch::PatchData *patch, bool quiet)
{
    reset();
    const QString fileName = QFileInfo(path).fileName();
    if (!m_bytes.load(path))
        return fail(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Could not open \"%1\": %2"),
                                 {fileName, m_bytes.errorString()}));
    return index(path, fileName, patch, quiet);
}

RecordingLoadResult Recording::loadData(const QByteArray &bytes, const QString &fileName,
                                        const TPatch::PatchData *patch, bool quiet)
{
    reset();
    m_bytes.setBytes(bytes);
    return index(fileName, fileName, patch, quiet);
}

RecordingLoadResult Recording::index(const QString &path, const QString &fileName, const TPatch::PatchData *patch,
                                     bool quiet)
{
    if (m_bytes.size() < kMinFileSize)
        return fail(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "\"%1\" is too small to contain a single record."), {fileName}));
    if (!findFirstRecord())
        return fail(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch",
                              "\"%1\" does not start with an Art-Net or KEL DMX record. It is not a Torvane "
                              "recording, or it is damaged."),
            {fileName}));

    RecordingLoadResult result;
    if (!walkRecords(&result, fileName))
        return fail(result.error);
    std::sort(m_universes.begin(), m_universes.end());

    m_detectedPeriod = detectPeriod(m_records);
    m_recordsPerFrame = qint32(m_detectedPeriod);
    const qint64 n = m_records.size();

    if (m_gpsSync) {
        if (m_bytes.size() > kGpsBlockSize - 1)
            m_gpsBlock = QByteArray(m_bytes.data(), kGpsBlockSize);
        GpsMetadataBlock block;
        if (GpsMetadataBlock::parse(m_gpsBlock, &block) && block.universeCountUsable() &&
            block.universeCount <= n)
            m_recordsPerFrame = block.universeCount;
        if (!quiet)
            result.warnings.append(
                PatchMessage(QT_TRANSLATE_NOOP("TPatch", "GPS-Sync recording: this file holds one group's "
                                                         "universes only. Records are mapped by universe "
                                                         "number, so pixels outside that group stay dark. "
                                                         "Use the GPS Mirra tab to play a full set of group "
                                                         "files together.")));
        m_matchesPatch = false;
    } else if (patch) {
        matchPatch(*patch, &result);
    }

    if (m_recordsPerFrame > 1) {
        m_frameCount = n / m_recordsPerFrame;
        if (const qint64 rest = n % m_recordsPerFrame)
            result.warnings.append(PatchMessage(
                QT_TRANSLATE_NOOP("TPatch",
                                  "%1 trailing record(s) do not form a complete frame and are ignored."),
                {rest}));
    } else {
        m_frameCount = n;
    }
    if (m_frameCount <= 0)
        return fail(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" does not contain a complete frame."),
                                 {fileName}));

    m_path = path;
    result.ok = true;
    return result;
}

RecordRef Recording::recordAt(qint64 frame, int slot) const
{
    if (frame < 0 || frame >= m_frameCount || slot < 0 || slot >= m_recordsPerFrame)
        return {};
    const qint64 index = qint64(m_recordsPerFrame) * frame + slot;
    if (index >= m_records.size())
        return {};
    return m_records.at(index);
}

QVector<RecordRef> Recording::frameRecords(qint64 frame) const
{
    QVector<RecordRef> out;
    if (frame < 0 || frame >= m_frameCount || m_recordsPerFrame < 1)
        return out;
    out.reserve(m_recordsPerFrame);
    for (int slot = 0; slot < m_recordsPerFrame; ++slot) {
        const RecordRef ref = recordAt(frame, slot);
        if (ref.isNull())
            break;
        out.append(ref);
    }
    return out;
}

quint16 Recording::timestampOf(const RecordRef &record) const
{
    const qint64 at = record.dataOffset + record.length;
    if (record.dataOffset < 0 || at + kTimestampSize > m_bytes.size())
        return 0;
    return le16(m_bytes.data() + at);
}

QByteArrayView Recording::dataOf(const RecordRef &record) const
{
    if (record.dataOffset < 0 || record.dataOffset + record.length > m_bytes.size())
        return {};
    return QByteArrayView(m_bytes.data() + record.dataOffset, record.length);
}

QString Recording::formatLabel() const
{
    QString label;
    if (m_flavour == RecordFlavour::ArtNet)
        label = QCoreApplication::translate("TPatch", "Art-Net");
    else if (!m_kelDeviceName.isEmpty())
        label = QCoreApplication::translate("TPatch", "KEL (%1)").arg(m_kelDeviceName);
    else
        label = QCoreApplication::translate("TPatch", "KEL");
    if (m_gpsSync)
        label += QCoreApplication::translate("TPatch", " GPS-Sync");
    return label;
}
