#pragma once

#include "packetlog/filternode.h"
#include "packetlog/packetrecord.h"

#include <QAbstractTableModel>
#include <QColor>

#include <memory>
#include <unordered_map>
#include <vector>

// The packet list over its own copy of the records: new records arrive in
// batches (one insert per batch, never per packet), the display filter is an
// index vector over the store rather than a proxy over millions of rows, and
// text is formatted in data() only for the rows being drawn.
//
// Each record is also marked as it arrives: an ArtDmx whose sequence is out
// of order for its sender and universe, or an OpCode the log does not know.
// GUI thread only.
class PacketListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        NumberColumn,
        TimeColumn,
        DirectionColumn,
        SourceColumn,
        DestinationColumn,
        LengthColumn,
        OpCodeColumn,
        UniverseColumn,
        SequenceColumn,
        OutcomeColumn,
        InfoColumn,
        ColumnCount
    };
    enum Mark : quint8
    {
        NoMark = 0,
        SequenceError = 1,
        UnknownOpCode = 2
    };
    // The live list keeps at most this many records (about 300 MB); past it
    // the oldest quarter goes (the session's .tlog file keeps everything).
    // A file's list keeps every record (setRecordLimit(0)).
    static constexpr qint64 kMaxRecords = 1'000'000;

    explicit PacketListModel(QObject *parent = nullptr);
    ~PacketListModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // Adds records at the end; the ones the filter passes become rows in one insert.
    void appendRecords(const std::vector<PacketLog::PacketRecord> &records);
    // Replaces every record (a file opened, a clear).
    void setRecords(std::vector<PacketLog::PacketRecord> records);
    // The filter rows must pass (null: every record); the rows are rebuilt once.
    void setFilter(std::shared_ptr<const PacketLog::FilterNode> filter);

    // 0: no limit.
    void setRecordLimit(qint64 limit) { m_limit = limit; }

    qint64 recordCount() const { return qint64(m_records.size()); }
    // Records let go to stay within kMaxRecords.
    qint64 trimmedCount() const { return m_trimmed; }
    const PacketLog::PacketRecord &recordAt(int row) const { return m_records[size_t(m_shown[size_t(row)])]; }
    quint8 markAt(int row) const { return m_marks[size_t(m_shown[size_t(row)])]; }
    // The records the rows show, in order (for saving what the filter shows).
    std::vector<PacketLog::PacketRecord> shownRecords() const;
    const std::vector<PacketLog::PacketRecord> &records() const { return m_records; }

    // Colours of the rows that must stand out (from the theme).
    void setMarkColours(const QColor &failed, const QColor &sequenceError, const QColor &unknownOpCode);

private:
    quint8 markOf(const PacketLog::PacketRecord &record);
    void dropOldest(qint64 count);
    // The rows again from every record (inside a model reset).
    void rebuildShown();

    std::vector<PacketLog::PacketRecord> m_records;
    std::vector<quint8> m_marks;
    std::vector<qint64> m_shown; // indices into m_records
    std::shared_ptr<const PacketLog::FilterNode> m_filter;
    qint64 m_firstNumber = 0; // the No. column counts from the first record ever taken
    qint64 m_trimmed = 0;
    qint64 m_limit = kMaxRecords;
    // Last sequence per sender, Port-Address, source and direction.
    std::unordered_map<quint64, quint8> m_lastSequence;
    QColor m_failedColour, m_sequenceColour, m_unknownColour;
};
