#include "panels/universetablemodel.h"

#include "patch/tpatchreader.h"

UniverseTableModel::UniverseTableModel(QObject *parent) : QAbstractTableModel(parent) {}

void UniverseTableModel::setRows(const QVector<Row> &rows, int channelLimit)
{
    beginResetModel();
    m_rows = rows;
    m_channelLimit = channelLimit;
    endResetModel();
}

void UniverseTableModel::setWarningColour(const QColor &colour)
{
    m_warning = colour;
    if (!m_rows.isEmpty())
        emit dataChanged(index(0, ChannelsColumn), index(int(m_rows.size()) - 1, ChannelsColumn), {Qt::ForegroundRole});
}

QString UniverseTableModel::channelsText(const Row &row)
{
    if (row.lastChannel <= 0)
        return QStringLiteral("-");
    if (row.lastChannel == row.firstChannel)
        return QString::number(row.firstChannel);
    return QStringLiteral("%1 - %2").arg(row.firstChannel).arg(row.lastChannel);
}

int UniverseTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int UniverseTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant UniverseTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row &r = m_rows.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        switch (index.column()) {
        case PortColumn:
            return TPatch::formatPortAddress(r.portAddress);
        case AddressColumn:
            return QStringLiteral("%1/%2/%3").arg(r.net).arg(r.subNet).arg(r.universe);
        case PixelsColumn:
            return QString::number(r.pixels);
        case ChannelsColumn:
            return channelsText(r);
        case TargetColumn:
            return r.targetIp;
        default:
            return {};
        }
    }
    if (role == SortRole) {
        switch (index.column()) {
        case PortColumn:
            return int(r.portAddress);
        case AddressColumn:
            return (r.net << 24) | (r.subNet << 16) | r.universe;
        case PixelsColumn:
            return r.pixels;
        case ChannelsColumn:
            return r.lastChannel;
        case TargetColumn:
            return r.targetIp;
        default:
            return {};
        }
    }
    if (role == Qt::ForegroundRole && index.column() == ChannelsColumn && r.lastChannel > m_channelLimit
        && m_warning.isValid())
        return m_warning;
    if (role == Qt::TextAlignmentRole && index.column() == PixelsColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant UniverseTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case PortColumn:
        return tr("port");
    case AddressColumn:
        return tr("net/sub/uni");
    case PixelsColumn:
        return tr("pixels");
    case ChannelsColumn:
        return tr("channels");
    case TargetColumn:
        return tr("target IP");
    default:
        return {};
    }
}

void UniverseTableModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}
