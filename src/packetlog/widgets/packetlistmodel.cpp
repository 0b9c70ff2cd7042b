#include "packetlog/widgets/packetlistmodel.h"

#include "artnet/artnetwire.h"
#include "packetlog/packetvocabulary.h"
#include "packetlog/textexport.h"

#include <QBrush>

#include <algorithm>

using PacketLog::PacketRecord;

PacketListModel::PacketListModel(QObject *parent) : QAbstractTableModel(parent) {}

PacketListModel::~PacketListModel() = default;

int PacketListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int PacketListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PacketListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NumberColumn:
        return tr("No.");
    case TimeColumn:
        return tr("Time");
    case DirectionColumn:
        return tr("Dir");
    case SourceColumn:
        return tr("Source");
    case DestinationColumn:
        return tr("Destination");
    case LengthColumn:
        return tr("Length");
    case OpCodeColumn:
        return tr("OpCode");
    case UniverseColumn:
        return tr("Universe");
    case SequenceColumn:
        return tr("Seq");
    case OutcomeColumn:
        return tr("Outcome");
    case InfoColumn:
        return tr("Info");
    }
    return {};
}

QVariant PacketListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= int(m_shown.size()))
        return {};
    const qint64 at = m_shown[size_t(index.row())];
    const PacketRecord &r = m_records[size_t(at)];
    if (role == Qt::ForegroundRole) {
        if (r.outcome != PacketLog::Outcome::Ok)
            return QBrush(m_failedColour);
        if (m_marks[size_t(at)] & SequenceError)
            return QBrush(m_sequenceColour);
        if (m_marks[size_t(at)] & UnknownOpCode)
            return QBrush(m_unknownColour);
        return {};
    }
    if (role == Qt::TextAlignmentRole && (index.column() == NumberColumn || index.column() == LengthColumn ||
                                          index.column() == SequenceColumn))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const bool out = r.direction == PacketLog::Direction::Out;
    switch (index.column()) {
    case NumberColumn:
        return at + 1;
    case TimeColumn:
        return PacketLog::formatRecordTime(r.timeNs);
    case DirectionColumn:
        return out ? tr("out") : tr("in");
    case SourceColumn:
        return QStringLiteral("%1:%2").arg(PacketLog::ipv4Text(r.srcIp)).arg(r.srcPort);
    case DestinationColumn:
        return QStringLiteral("%1:%2").arg(PacketLog::ipv4Text(r.dstIp)).arg(r.dstPort);
    case LengthColumn:
        return r.length;
    case OpCodeColumn:
        return r.isArtNet() ? PacketLog::opcodeName(r.opcode) : QString();
    case UniverseColumn:
        return r.isDmx() ? QStringLiteral("0x%1").arg(r.portAddress, 4, 16, QLatin1Char('0')) : QString();
    case SequenceColumn:
        return r.isDmx() ? QString::number(r.sequence) : QString();
    case OutcomeColumn:
        return PacketLog::outcomeLabel(r.outcome);
    case InfoColumn:
        return r.info();
    }
    return {};
}

quint8 PacketListModel::markOf(const PacketRecord &r)
{
    quint8 mark = NoMark;
    if (r.isArtNet() && PacketLog::opcodeName(r.opcode).startsWith(QLatin1String("OpCode")))
        mark |= UnknownOpCode;
    if (r.isDmx() && r.sequence != 0) {
        // Per sender and universe, and apart for each way the packet was seen:
        // the node's own record and a capture's copy of the same packet (or a
        // loopback capture's sent and received copies) are not a repeat.
        const quint64 key = (quint64(r.srcIp) << 18) | (quint64(r.portAddress) << 2)
                          | (r.source == PacketLog::RecordSource::Capture ? 2u : 0u)
                          | (r.direction == PacketLog::Direction::Out ? 1u : 0u);
        quint8 &last = m_lastSequence[key];
        if (last != 0 && ArtNet::isSequenceError(last, r.sequence))
            mark |= SequenceError;
        last = r.sequence;
    }
    return mark;
}

void PacketListModel::appendRecords(const std::vector<PacketRecord> &records)
{
    std::vector<qint64> added;
    for (const PacketRecord &r : records) {
        m_marks.push_back(markOf(r));
        m_records.push_back(r);
        if (!m_filter || m_filter->match(r))
            added.push_back(qint64(m_records.size() - 1));
    }
    if (!added.empty()) {
        const int first = int(m_shown.size());
        beginInsertRows(QModelIndex(), first, first + int(added.size()) - 1);
        m_shown.insert(m_shown.end(), added.begin(), added.end());
        endInsertRows();
    }
    // Also when the filter hides the whole batch: the store stays within its limit.
    if (m_limit > 0 && qint64(m_records.size()) > m_limit)
        dropOldest(qint64(m_records.size()) - m_limit * 3 / 4);
}

void PacketListModel::dropOldest(qint64 count)
{
    // The shown rows are in record order: those of the dropped records come first.
    const auto kept = std::lower_bound(m_shown.begin(), m_shown.end(), count);
    const int removedRows = int(kept - m_shown.begin());
    if (removedRows > 0)
        beginRemoveRows(QModelIndex(), 0, removedRows - 1);
    m_shown.erase(m_shown.begin(), kept);
    for (qint64 &i : m_shown)
        i -= count;
    m_records.erase(m_records.begin(), m_records.begin() + count);
    m_marks.erase(m_marks.begin(), m_marks.begin() + count);
    m_firstNumber += count;
    m_trimmed += count;
    if (removedRows > 0)
        endRemoveRows();
}

void PacketListModel::setRecords(std::vector<PacketRecord> records)
{
    beginResetModel();
    m_records = std::move(records);
    m_firstNumber = 0;
    m_trimmed = 0;
    m_lastSequence.clear();
    m_marks.clear();
    m_marks.reserve(m_records.size());
    for (const PacketRecord &r : m_records)
        m_marks.push_back(markOf(r));
    rebuildShown();
    endResetModel();
}

void PacketListModel::setFilter(std::shared_ptr<const PacketLog::FilterNode> filter)
{
    beginResetModel();
    m_filter = std::move(filter);
    rebuildShown();
    endResetModel();
}

void PacketListModel::rebuildShown()
{
    m_shown.clear();
    for (size_t i = 0; i < m_records.size(); ++i)
        if (!m_filter || m_filter->match(m_records[i]))
            m_shown.push_back(qint64(i));
}

std::vector<PacketRecord> PacketListModel::shownRecords() const
{
    std::vector<PacketRecord> shown;
    shown.reserve(m_shown.size());
    for (const qint64 i : m_shown)
        shown.push_back(m_records[size_t(i)]);
    return shown;
}

void PacketListModel::setMarkColours(const QColor &failed, const QColor &sequenceError,
                                     const QColor &unknownOpCode)
{
    m_failedColour = failed;
    m_sequenceColour = sequenceError;
    m_unknownColour = unknownOpCode;
    if (!m_shown.empty())
        emit dataChanged(index(0, 0), index(int(m_shown.size()) - 1, ColumnCount - 1), {Qt::ForegroundRole});
}
