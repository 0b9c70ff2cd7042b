#pragma once

#include "live/healthoverlay.h"

#include <QAbstractItemModel>
#include <QSet>

// The "Universe health" table: one row per universe, its senders as child
// rows; sortable by any column (the senders keep their order); every
// counter's definition as its tooltip; the state column carries the state
// colour. A refresh with the same universes and senders keeps rows, selection
// and expansion; only a new universe or sender resets the model. GUI thread only.
class UniverseHealthModel : public QAbstractItemModel
{
    Q_OBJECT
public:
    enum Column
    {
        UniverseColumn, // the Port-Address; a sender's address and port on its row
        StateColumn,
        PacketsColumn,
        FpsColumn,
        LostColumn,
        OutOfOrderColumn,
        DuplicatesColumn,
        SyncMissedColumn,
        LengthChangesColumn,
        LastSeenColumn,
        IntervalsColumn,
        ColumnCount
    };

    explicit UniverseHealthModel(QObject *parent = nullptr);

    // The analyser's universes, sorted by Port-Address. open: the universes
    // whose senders a view shows, so their rows are signalled as changed too.
    void setUniverses(QVector<Health::UniverseHealth> universes, const QSet<quint16> &open = {});
    // The column titles in the new language.
    void retranslate() { emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1); }
    void setPalette(const Health::StatePalette &palette);
    // The universe on a top-level row (in the order shown).
    const Health::UniverseHealth &universeAt(int row) const { return m_rows.at(row); }

    // Every universe and sender as a CSV table (the field names of talu-cli health --json).
    static QByteArray csv(const QVector<Health::UniverseHealth> &universes);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void sortRows(QVector<Health::UniverseHealth> *rows) const;
    // Moves to new rows of the same universes and senders, keeping persistent indexes on their universe and sender.
    void relayout(QVector<Health::UniverseHealth> rows, const QSet<quint16> &open);

    QVector<Health::UniverseHealth> m_rows; // in the order shown
    Health::StatePalette m_palette;
    int m_sortColumn = UniverseColumn;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
