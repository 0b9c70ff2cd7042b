#pragma once

#include <QBrush>
#include <QPainter>
#include <QRgb>

// Sets a solid brush of any colour without a heap allocation per change.
// QBrush(QColor) allocates its data, and recolouring a brush that the painter
// still shares detaches it. The raster engine keeps a reference to the brush
// it last filled with, so two brushes take turns: the one being recoloured is
// never the one the engine holds, and setColor works in place.
class BrushCycler
{
public:
    BrushCycler() : m_brushes{QBrush(Qt::black, Qt::SolidPattern), QBrush(Qt::black, Qt::SolidPattern)} {}

    void set(QPainter &painter, QRgb colour)
    {
        if (m_valid && colour == m_current)
            return;
        m_next ^= 1;
        m_brushes[m_next].setColor(QColor::fromRgba(colour));
        painter.setBrush(m_brushes[m_next]);
        m_current = colour;
        m_valid = true;
    }
    // Forget the cached colour (someone else changed the painter's brush).
    void invalidate() { m_valid = false; }

private:
    QBrush m_brushes[2];
    int m_next = 0;
    QRgb m_current = 0;
    bool m_valid = false;
};
