#include "patch/gridplacement.h"

#include <algorithm>
#include <cmath>

namespace TPatch {

namespace {

constexpr double kPi = 3.14159265358979323846;
// The editor draws one grid step resizeFactor x 3 scene units tall.
constexpr double kStepUnitsPerResize = 3.0;

} // namespace

GridPlacement::GridPlacement(const PatchFixture &fixture) : m_isArc(fixture.isArc)
{
    if (!m_isArc)
        return;
    double start = fixture.arcStartAngle;
    double end = fixture.arcEndAngle;
    const double radius = std::fabs(fixture.arcRadius) / (kStepUnitsPerResize * std::max(1, fixture.resizeFactor));
    if (!std::isfinite(start) || !std::isfinite(end) || !std::isfinite(radius)) {
        m_valid = false;
        return;
    }
    if (end <= start)
        end += 360.0;
    m_radiusSteps = radius;
    m_startRad = start * kPi / 180.0;
    m_sweepRad = (end - start) * kPi / 180.0;
    if (!std::isfinite(m_sweepRad)) {
        m_valid = false;
        return;
    }
    int largest = 0;
    for (const LedRecord &r : fixture.kinetics)
        largest = std::max<int>(largest, r.posX);
    for (const LedRecord &r : fixture.leds)
        largest = std::max<int>(largest, r.posX);
    m_arcCount = std::max<int>(fixture.countX, largest + 1);
}

QPointF GridPlacement::stepPosition(const LedRecord &record) const
{
    if (!m_isArc)
        return QPointF(record.posX, record.posY);
    const double angle = m_startRad + m_sweepRad * (record.posX + 0.5) / m_arcCount;
    const double radius = m_radiusSteps + record.posY;
    // Screen y grows downwards: counter-clockwise on screen is minus sine.
    return QPointF(radius * std::cos(angle), -radius * std::sin(angle));
}

QRectF gridCellBounds(const PatchFixture &fixture)
{
    const GridPlacement placement(fixture);
    if (!placement.isValid() || (fixture.kinetics.isEmpty() && fixture.leds.isEmpty()))
        return {};
    double left = 1e300, top = 1e300, right = -1e300, bottom = -1e300;
    auto unite = [&](const QVector<LedRecord> &records) {
        for (const LedRecord &r : records) {
            const QPointF p = placement.stepPosition(r);
            left = std::min(left, p.x() - 0.5);
            right = std::max(right, p.x() + 0.5);
            top = std::min(top, p.y() - 0.5);
            bottom = std::max(bottom, p.y() + 0.5);
        }
    };
    unite(fixture.kinetics);
    unite(fixture.leds);
    return QRectF(left, top, right - left, bottom - top);
}

} // namespace TPatch
