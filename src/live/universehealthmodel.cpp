#include "live/universehealthmodel.h"

#include "patch/tpatchreader.h"

#include <QColor>
#include <QCoreApplication>
#include <QHostAddress>

#include <algorithm>
#include <map>

namespace {

using Health::SourceHealth;
using Health::UniverseHealth;

// The counter each column shows, for its definition; the first has none.
const char *const kCounters[UniverseHealthModel::ColumnCount] = {
    "", "state", "packets", "fps", "lost", "outOfOrder", "duplicates", "syncMissed", "lengthChanges", "lastSeenMs",
    "intervals"};

const char *const kHeaders[UniverseHealthModel::ColumnCount] = {
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Universe / sender"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "State"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Packets"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "fps"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Lost"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Out of order"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Duplicates"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Sync missed"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Length changes"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Last seen"),
    QT_TRANSLATE_NOOP("UniverseHealthModel", "Intervals min / median / max (ms)"),
};

// A recording keeps no senders: its one "sender" is the file.
bool isRecording(const SourceHealth &s)
{
    return s.address == 0 && s.port == 0;
}

QString senderText(const SourceHealth &s)
{
    if (isRecording(s))
        return QCoreApplication::translate("UniverseHealthModel", "the recording");
    return QStringLiteral("%1:%2").arg(QHostAddress(s.address).toString()).arg(s.port);
}

QString intervalsText(const SourceHealth &s)
{
    return QStringLiteral("%1 / %2 / %3")
        .arg(s.minIntervalMs, 0, 'f', 1)
        .arg(s.medianIntervalMs, 0, 'f', 1)
        .arg(s.maxIntervalMs, 0, 'f', 1);
}

QString secondsText(qint64 ms)
{
    return ms < 0 ? QString() : QCoreApplication::translate("UniverseHealthModel", "%1 s ago").arg(double(ms) / 1000.0, 0, 'f', 1);
}

// What a universe row sorts by in a column.
double sortKey(const UniverseHealth &u, int column)
{
    switch (column) {
    case UniverseHealthModel::StateColumn: return double(Health::stateOf(u.state));
    case UniverseHealthModel::PacketsColumn: return double(u.packets);
    case UniverseHealthModel::FpsColumn: return u.fps;
    case UniverseHealthModel::LostColumn: return double(u.lost);
    case UniverseHealthModel::OutOfOrderColumn: return double(u.outOfOrder);
    case UniverseHealthModel::DuplicatesColumn: return double(u.duplicates);
    case UniverseHealthModel::SyncMissedColumn: return double(u.syncMissed);
    case UniverseHealthModel::LengthChangesColumn: return double(u.lengthChanges);
    case UniverseHealthModel::LastSeenColumn: return double(u.lastSeenMs);
    case UniverseHealthModel::IntervalsColumn: {
        double longest = 0;
        for (const SourceHealth &s : u.sources)
            longest = std::max(longest, s.maxIntervalMs);
        return longest;
    }
    default: return double(u.portAddress);
    }
}

quint64 senderKey(const SourceHealth &s)
{
    return (quint64(s.address) << 16) | s.port;
}

// Universes and their senders, whatever the order of the rows.
std::map<quint16, std::vector<quint64>> shapeOf(const QVector<UniverseHealth> &rows)
{
    std::map<quint16, std::vector<quint64>> shape;
    for (const UniverseHealth &u : rows) {
        std::vector<quint64> &senders = shape[u.portAddress];
        for (const SourceHealth &s : u.sources)
            senders.push_back(senderKey(s));
    }
    return shape;
}

} // namespace

UniverseHealthModel::UniverseHealthModel(QObject *parent) : QAbstractItemModel(parent) {}

void UniverseHealthModel::setUniverses(QVector<UniverseHealth> universes, const QSet<quint16> &open)
{
    sortRows(&universes);
    if (shapeOf(universes) != shapeOf(m_rows)) {
        beginResetModel();
        m_rows = std::move(universes);
        endResetModel();
        return;
    }
    relayout(std::move(universes), open);
}

void UniverseHealthModel::relayout(QVector<UniverseHealth> rows, const QSet<quint16> &open)
{
    bool sameOrder = true;
    for (int i = 0; i < rows.size() && sameOrder; ++i)
        sameOrder = rows.at(i).portAddress == m_rows.at(i).portAddress;
    if (sameOrder) {
        m_rows = std::move(rows);
        if (m_rows.isEmpty())
            return;
        // One signal for the universes, and one per universe whose senders are
        // open: one per universe would cost a tree view a search of its rows
        // each, thousands of times a refresh.
        emit dataChanged(index(0, 0), index(int(m_rows.size()) - 1, ColumnCount - 1));
        for (int i = 0; i < m_rows.size(); ++i) {
            const qsizetype senders = m_rows.at(i).sources.size();
            if (senders > 0 && open.contains(m_rows.at(i).portAddress))
                emit dataChanged(index(0, 0, index(i, 0)), index(int(senders) - 1, ColumnCount - 1, index(i, 0)));
        }
        return;
    }
    emit layoutAboutToBeChanged();
    const QModelIndexList old = persistentIndexList();
    QVector<QPair<quint16, int>> where; // universe and sender row (-1: the universe's row) of each
    for (const QModelIndex &i : old) {
        const bool child = i.internalId() != 0;
        where.append({m_rows.at(child ? int(i.internalId() - 1) : i.row()).portAddress, child ? i.row() : -1});
    }
    m_rows = std::move(rows);
    std::map<quint16, int> rowOf;
    for (int r = 0; r < m_rows.size(); ++r)
        rowOf[m_rows.at(r).portAddress] = r;
    QModelIndexList moved;
    for (int k = 0; k < old.size(); ++k) {
        const int row = rowOf.at(where.at(k).first);
        moved.append(where.at(k).second < 0 ? index(row, old.at(k).column())
                                            : index(where.at(k).second, old.at(k).column(), index(row, 0)));
    }
    changePersistentIndexList(old, moved);
    emit layoutChanged();
}

void UniverseHealthModel::setPalette(const Health::StatePalette &palette)
{
    m_palette = palette;
    if (!m_rows.isEmpty())
        emit dataChanged(index(0, StateColumn), index(int(m_rows.size()) - 1, StateColumn), {Qt::DecorationRole});
}

void UniverseHealthModel::sortRows(QVector<UniverseHealth> *rows) const
{
    const int column = m_sortColumn;
    const bool ascending = m_sortOrder == Qt::AscendingOrder;
    std::stable_sort(rows->begin(), rows->end(), [column, ascending](const UniverseHealth &a, const UniverseHealth &b) {
        const double ka = sortKey(a, column), kb = sortKey(b, column);
        if (ka != kb)
            return ascending ? ka < kb : ka > kb;
        return a.portAddress < b.portAddress; // ties stay in universe order, whichever way
    });
}

void UniverseHealthModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= ColumnCount)
        return;
    m_sortColumn = column;
    m_sortOrder = order;
    QVector<UniverseHealth> rows = m_rows;
    sortRows(&rows);
    relayout(std::move(rows), {});
}

QModelIndex UniverseHealthModel::index(int row, int column, const QModelIndex &parent) const
{
    if (column < 0 || column >= ColumnCount || row < 0)
        return {};
    if (!parent.isValid())
        return row < m_rows.size() ? createIndex(row, column, quintptr(0)) : QModelIndex();
    if (parent.internalId() != 0 || parent.column() != 0 || parent.row() >= m_rows.size() ||
        row >= m_rows.at(parent.row()).sources.size())
        return {};
    // A sender's row carries its universe's row, plus one so 0 stays "top level".
    return createIndex(row, column, quintptr(parent.row() + 1));
}

QModelIndex UniverseHealthModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == 0)
        return {};
    return createIndex(int(child.internalId() - 1), 0, quintptr(0));
}

int UniverseHealthModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_rows.size());
    if (parent.internalId() != 0 || parent.column() != 0)
        return 0;
    return int(m_rows.at(parent.row()).sources.size());
}

int UniverseHealthModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant UniverseHealthModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int column = index.column();
    if (role == Qt::ToolTipRole)
        return Health::translatedDefinition(QLatin1String(kCounters[column]));
    if (role == Qt::TextAlignmentRole)
        return column >= PacketsColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    const bool sender = index.internalId() != 0;
    const UniverseHealth &u = m_rows.at(sender ? int(index.internalId() - 1) : index.row());
    if (role == Qt::DecorationRole && column == StateColumn && !sender)
        return QColor::fromRgb(m_palette.colourOf(u.state));
    if (role != Qt::DisplayRole)
        return {};
    if (sender) {
        const SourceHealth &s = u.sources.at(index.row());
        switch (column) {
        case UniverseColumn: return senderText(s);
        case PacketsColumn: return s.packets;
        case FpsColumn: return QString::number(s.fps, 'f', 1);
        case LostColumn: return s.lost;
        case OutOfOrderColumn: return s.outOfOrder;
        case DuplicatesColumn: return s.duplicates;
        case LengthChangesColumn: return s.lengthChanges;
        case LastSeenColumn: return secondsText(s.lastSeenMs);
        case IntervalsColumn: return intervalsText(s);
        default: return {};
        }
    }
    const bool never = u.sources.isEmpty();
    switch (column) {
    case UniverseColumn: return TPatch::formatPortAddress(u.portAddress);
    case StateColumn: return Health::stateDisplayName(u.state);
    case PacketsColumn: return u.packets;
    case FpsColumn: return never ? QString() : QString::number(u.fps, 'f', 1);
    case LostColumn: return u.lost;
    case OutOfOrderColumn: return u.outOfOrder;
    case DuplicatesColumn: return u.duplicates;
    case SyncMissedColumn: return u.syncMissed;
    case LengthChangesColumn: return u.lengthChanges;
    case LastSeenColumn: return secondsText(u.lastSeenMs);
    case IntervalsColumn: return u.sources.size() == 1 ? intervalsText(u.sources.constFirst()) : QString();
    default: return {};
    }
}

QVariant UniverseHealthModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return QCoreApplication::translate("UniverseHealthModel", kHeaders[section]);
    if (role == Qt::ToolTipRole)
        return Health::translatedDefinition(QLatin1String(kCounters[section]));
    return {};
}

QByteArray UniverseHealthModel::csv(const QVector<UniverseHealth> &universes)
{
    QByteArray out = "portAddress,state,sender,packets,fps,lost,outOfOrder,duplicates,syncMissed,lengthChanges,"
                     "lastSeenMs,minIntervalMs,medianIntervalMs,maxIntervalMs\r\n";
    const auto number = [](double v) { return QByteArray::number(v, 'f', 1); };
    for (const UniverseHealth &u : universes) {
        const qint64 seen = u.lastSeenMs;
        out += TPatch::formatPortAddress(u.portAddress).toLatin1() + ',' + u.state.toLatin1() + ",," +
               QByteArray::number(u.packets) + ',' + number(u.fps) + ',' + QByteArray::number(u.lost) + ',' +
               QByteArray::number(u.outOfOrder) + ',' + QByteArray::number(u.duplicates) + ',' +
               QByteArray::number(u.syncMissed) + ',' + QByteArray::number(u.lengthChanges) + ',' +
               (seen < 0 ? QByteArray() : QByteArray::number(seen)) + ",,,\r\n";
        for (const SourceHealth &s : u.sources)
            out += TPatch::formatPortAddress(u.portAddress).toLatin1() + ",," +
                   (isRecording(s) ? QByteArray("recording") : senderText(s).toLatin1()) + ',' +
                   QByteArray::number(s.packets) + ',' + number(s.fps) + ',' + QByteArray::number(s.lost) + ',' +
                   QByteArray::number(s.outOfOrder) + ',' + QByteArray::number(s.duplicates) + ",," +
                   QByteArray::number(s.lengthChanges) + ',' + QByteArray::number(s.lastSeenMs) + ',' +
                   number(s.minIntervalMs) + ',' + number(s.medianIntervalMs) + ',' + number(s.maxIntervalMs) +
                   "\r\n";
    }
    return out;
}
