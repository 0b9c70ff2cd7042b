#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QString>
#include <QVector>

// The patch summary's universe table: one row per torvoverse with its
// Port-Address, Net/Sub-Net/universe, pixel count, channels in use and
// target IP. Texts are made in data() for the rows being drawn only, so an
// installation of thousands of universes fills at once. The channel cell of a
// range that runs past the channel limit is given the warning colour.
// GUI thread only.
class UniverseTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { PortColumn, AddressColumn, PixelsColumn, ChannelsColumn, TargetColumn, ColumnCount };
    // The value a column sorts by (numbers where the text is a number).
    static constexpr int SortRole = Qt::UserRole + 1;

    struct Row
    {
        quint16 portAddress = 0;
        int net = 0, subNet = 0, universe = 0;
        qint64 pixels = 0;
        int firstChannel = 0; // 1-based; 0 when nothing is patched
        int lastChannel = 0;
        QString targetIp;
    };

    explicit UniverseTableModel(QObject *parent = nullptr);

    // channelLimit: the last channel a range may reach without the warning colour.
    void setRows(const QVector<Row> &rows, int channelLimit);
    void setWarningColour(const QColor &colour);
    // "1 - 6", "1" for one channel, "-" for none.
    static QString channelsText(const Row &row);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    // Re-announces the header texts after a language change.
    void retranslate();

private:
    QVector<Row> m_rows;
    int m_channelLimit = 512;
    QColor m_warning;
};
