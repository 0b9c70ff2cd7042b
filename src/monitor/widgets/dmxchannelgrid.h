#pragma once

#include "monitor/universechannelmap.h"

#include <QByteArray>
#include <QWidget>

// The DMX inspector's grid: 512 channel values, 16 to a row, each cell tinted
// by the role of the slot patched on it. Paints itself; "no data" when the
// universe has received nothing. GUI thread only.
class DmxChannelGrid : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kColumns = 16;
    static constexpr int kRows = UniverseChannelMap::kChannels / kColumns;

    explicit DmxChannelGrid(QWidget *parent = nullptr);

    // Returns false (and repaints nothing) when the bytes are unchanged.
    bool setData(const QByteArray &data);
    const QByteArray &data() const { return m_data; }
    void setFormat(DmxValueFormat format);
    DmxValueFormat format() const { return m_format; }
    // Not owned; nullptr for no tint.
    void setChannelMap(const UniverseChannelMap *map);

    // Zero-based channel under a widget point, or -1.
    int channelAt(const QPoint &pos) const;
    QRect cellRect(int channel) const;
    // The cell's fill: the role tint, or the base colour for an unpatched channel.
    QColor cellColour(int channel) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void channelHovered(int channel); // -1 when the mouse leaves the cells

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QSize cellSize() const;

    QByteArray m_data;
    DmxValueFormat m_format = DmxValueFormat::Decimal;
    const UniverseChannelMap *m_map = nullptr;
    int m_hovered = -1;
};
