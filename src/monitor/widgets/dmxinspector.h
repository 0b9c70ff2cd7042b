#pragma once

#include "monitor/universechannelmap.h"
#include "patch/pixellayout.h"

#include <QByteArray>
#include <QWidget>

class DmxChannelGrid;
class QComboBox;
class QLabel;

// The "DMX" tab: one universe's 512 raw channel values. The main window gives
// it the universes to choose from and the stored bytes of the chosen one; the
// inspector repaints only when those bytes changed. Patched channels are
// tinted by role, and the channel under the mouse is named with the pixels it
// feeds. GUI thread only.
class DmxInspector : public QWidget
{
    Q_OBJECT
public:
    explicit DmxInspector(QWidget *parent = nullptr);

    // The layout for tints and hover texts (not owned; nullptr for none).
    void setPixelLayout(const TPatch::PixelLayout *layout);
    // The universes to choose from, shown sorted; keeps the current one when
    // it is still offered, else chooses the first. Emits universeChanged.
    void setUniverses(const QVector<quint16> &portAddresses);
    // The chosen universe's Port-Address, or -1 with none to choose from.
    int currentUniverse() const;
    // The stored bytes of the chosen universe; empty shows "no data".
    void setUniverseData(const QByteArray &data);
    void setFormat(DmxValueFormat format);
    void retranslate();

    DmxChannelGrid *grid() const { return m_grid; }
    QString hoverText() const;

signals:
    void universeChanged(int portAddress); // -1 for none

private:
    void onUniverseIndexChanged();
    void onChannelHovered(int channel);

    QLabel *m_universeLabel = nullptr;
    QComboBox *m_universeBox = nullptr;
    QLabel *m_formatLabel = nullptr;
    QComboBox *m_formatBox = nullptr;
    DmxChannelGrid *m_grid = nullptr;
    QLabel *m_hoverLabel = nullptr;
    const TPatch::PixelLayout *m_layout = nullptr;
    UniverseChannelMap m_map;
    int m_hoveredChannel = -1;
};
