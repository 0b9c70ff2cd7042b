#include "monitor/widgets/dmxchannelgrid.h"

#include "style/moxstyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

// Tints by role: none, R, G, B, W, CW, WW, kinetic.
const QColor kRoleTints[] = {QColor(),           QColor(200, 40, 40), QColor(40, 170, 60),  QColor(50, 90, 220),
                             QColor(210, 210, 210), QColor(150, 200, 255), QColor(255, 170, 60), QColor(170, 80, 200)};

} // namespace

DmxChannelGrid::DmxChannelGrid(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

bool DmxChannelGrid::setData(const QByteArray &data)
{
    if (data == m_data)
        return false;
    m_data = data;
    update();
    return true;
}

void DmxChannelGrid::setFormat(DmxValueFormat format)
{
    m_format = format;
    update();
}

void DmxChannelGrid::setChannelMap(const UniverseChannelMap *map)
{
    m_map = map;
    update();
}

QSize DmxChannelGrid::cellSize() const
{
    const QFontMetrics fm(font());
    return QSize(fm.horizontalAdvance(QStringLiteral("888")) + 6, fm.height() + 4);
}

QSize DmxChannelGrid::minimumSizeHint() const
{
    const QSize cell = cellSize();
    return QSize(kColumns * 16 + 1, cell.height() * kRows + 1);
}

QSize DmxChannelGrid::sizeHint() const
{
    const QSize cell = cellSize();
    return QSize(cell.width() * kColumns + 1, cell.height() * kRows + 1);
}

QRect DmxChannelGrid::cellRect(int channel) const
{
    // Cells share the widget's width so all sixteen columns fit the side column.
    const QSize cell = cellSize();
    const int width = std::max(1, (this->width() - 1) / kColumns);
    return QRect((channel % kColumns) * width, (channel / kColumns) * cell.height(), width, cell.height());
}

int DmxChannelGrid::channelAt(const QPoint &pos) const
{
    if (pos.x() < 0 || pos.y() < 0)
        return -1;
    const QRect first = cellRect(0);
    const int column = pos.x() / first.width();
    const int row = pos.y() / first.height();
    if (column >= kColumns || row >= kRows)
        return -1;
    return row * kColumns + column;
}

QColor DmxChannelGrid::cellColour(int channel) const
{
    const quint8 role = m_map ? m_map->role(channel) : 0;
    if (role == 0 || role >= std::size(kRoleTints))
        return palette().color(QPalette::Base);
    QColor tint = kRoleTints[role];
    tint.setAlpha(90);
    return tint;
}

void DmxChannelGrid::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    QColor grid = palette().color(QPalette::Mid);
    painter.fillRect(rect(), base);
    if (m_data.isEmpty()) {
        painter.setPen(text);
        painter.drawText(rect(), Qt::AlignCenter, tr("no data"));
        return;
    }
    for (int c = 0; c < UniverseChannelMap::kChannels; ++c) {
        const QRect r = cellRect(c);
        painter.fillRect(r, cellColour(c));
        painter.setPen(grid);
        painter.drawRect(r);
        // The value must read on its tinted cell in every theme.
        const QColor fill = cellColour(c);
        const qreal a = fill.alphaF();
        const QColor shown = QColor::fromRgbF(float(fill.redF() * a + base.redF() * (1 - a)),
                                              float(fill.greenF() * a + base.greenF() * (1 - a)),
                                              float(fill.blueF() * a + base.blueF() * (1 - a)));
        painter.setPen(c == m_hovered ? palette().color(QPalette::Highlight) : MoxStyle::readableOn(shown, text));
        if (c < m_data.size())
            painter.drawText(r, Qt::AlignCenter, formatDmxValue(quint8(m_data.at(c)), m_format));
    }
}

void DmxChannelGrid::mouseMoveEvent(QMouseEvent *event)
{
    const int channel = channelAt(event->position().toPoint());
    if (channel != m_hovered) {
        m_hovered = channel;
        update();
        emit channelHovered(channel);
    }
    QWidget::mouseMoveEvent(event);
}

void DmxChannelGrid::leaveEvent(QEvent *event)
{
    if (m_hovered != -1) {
        m_hovered = -1;
        update();
        emit channelHovered(-1);
    }
    QWidget::leaveEvent(event);
}
