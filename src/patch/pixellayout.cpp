#include "patch/pixellayout.h"

#include "patch/gridplacement.h"
#include "patch/patchkeys.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <tuple>

namespace TPatch {

namespace {

// The editor's grid step is resizeFactor x 3 scene units tall; its width
// follows the fixture rectangle's aspect.
constexpr double kCellHeightPerResize = 3.0;
constexpr double kTinyExtent = 1e-6;

bool isFinite(const QTransform &m)
{
    const double v[] = {m.m11(), m.m12(), m.m13(), m.m21(), m.m22(), m.m23(), m.m31(), m.m32(), m.m33()};
    return std::all_of(std::begin(v), std::end(v), [](double d) { return std::isfinite(d); });
}

bool isFinite(const QPointF &p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

// Everything the entries of one torvoverse share.
struct TorvoverseContext
{
    int group = 0;
    int torvoverse = 0;
    quint16 portAddress = 0;
    quint64 deviceKey = 0;
    QVector<int> *portPixels = nullptr;
    QVector<int> *devicePixels = nullptr;
};

class LayoutBuilder
{
public:
    explicit LayoutBuilder(PixelLayout &layout) : m_layout(layout) {}

    void addGridFixture(const TorvoverseContext &ctx, int fixtureIndex, const PatchFixture &fixture);
    void addFreeFixture(const TorvoverseContext &ctx, int fixtureIndex, const PatchFixture &fixture);

private:
    void append(const TorvoverseContext &ctx, int fixtureIndex, const std::array<QPointF, 4> &corners,
                const LedRecord &record, bool isKinetic);

    PixelLayout &m_layout;
    QVector<QPointF> m_positions; // reused across fixtures
};

// Maps a point by a possibly projective transform; false when the point lands
// at infinity or the numbers overflow. w's sign is returned so a cell that
// straddles the warp's horizon can be refused as a whole.
bool mapProjective(const QTransform &m, const QPointF &p, QPointF *out, bool *positiveW)
{
    const double x = m.m11() * p.x() + m.m21() * p.y() + m.m31();
    const double y = m.m12() * p.x() + m.m22() * p.y() + m.m32();
    const double w = m.m13() * p.x() + m.m23() * p.y() + m.m33(); // exactly 1 for affine transforms
    if (!(std::fabs(w) > 1e-12))
        return false;
    *out = QPointF(x / w, y / w);
    *positiveW = w > 0;
    return isFinite(*out);
}

// A fixture's transform M: corner warp first, then the rotation by minus
// rotationAngle about the rectangle's centre and the move to scenePos.
QTransform fixtureTransform(const PatchFixture &f)
{
    const QPointF c = f.rect.center();
    QTransform t = QTransform::fromTranslate(-c.x(), -c.y());
    t *= QTransform().rotate(-f.rotationAngle);
    t *= QTransform::fromTranslate(f.scenePosX + c.x(), f.scenePosY + c.y());
    return f.cornerWarp * t;
}

bool usableRect(const QRectF &r)
{
    return std::isfinite(r.x()) && std::isfinite(r.y()) && std::isfinite(r.width()) && std::isfinite(r.height())
        && r.width() > 0 && r.height() > 0;
}

void LayoutBuilder::addGridFixture(const TorvoverseContext &ctx, int fixtureIndex, const PatchFixture &f)
{
    if (!usableRect(f.rect) || !std::isfinite(f.scenePosX) || !std::isfinite(f.scenePosY)
        || !std::isfinite(f.rotationAngle))
        return;
    const GridPlacement placement(f);
    if (!placement.isValid())
        return;
    const double cellHeight = std::max(1, f.resizeFactor) * kCellHeightPerResize;
    const double aspect = f.rect.height() > kTinyExtent ? f.rect.width() / f.rect.height() : 1.0;
    const double cellWidth = cellHeight * aspect;
    if (!std::isfinite(cellWidth) || !(cellWidth > 0))
        return;

    m_positions.clear();
    double minX = 1e9, minY = 1e9, maxX = -1e9, maxY = -1e9;
    auto collect = [&](const QVector<LedRecord> &records) {
        for (const LedRecord &r : records) {
            const QPointF step = placement.stepPosition(r);
            const QPointF p(step.x() * cellWidth, step.y() * cellHeight);
            m_positions.append(p);
            minX = std::min(minX, p.x());
            maxX = std::max(maxX, p.x());
            minY = std::min(minY, p.y());
            maxY = std::max(maxY, p.y());
        }
    };
    collect(f.kinetics);
    collect(f.leds);
    if (m_positions.isEmpty())
        return;

    // Fit the records' extent (plus half a cell all round) into the rectangle.
    const double left = minX - cellWidth / 2;
    const double top = minY - cellHeight / 2;
    const double extentX = maxX - minX + cellWidth;
    const double extentY = maxY - minY + cellHeight;
    const double sx = extentX > kTinyExtent ? f.rect.width() / extentX : 1.0;
    const double sy = extentY > kTinyExtent ? f.rect.height() / extentY : 1.0;
    QTransform toScene = QTransform::fromTranslate(-left, -top);
    toScene *= QTransform::fromScale(sx, sy);
    toScene *= QTransform::fromTranslate(f.rect.x(), f.rect.y());
    toScene *= fixtureTransform(f);
    if (!isFinite(toScene))
        return;

    const int kineticCount = int(f.kinetics.size());
    const double hw = cellWidth / 2, hh = cellHeight / 2;
    for (int i = 0; i < m_positions.size(); ++i) {
        const QPointF p = m_positions.at(i);
        const QPointF cell[4] = {{p.x() - hw, p.y() - hh}, {p.x() + hw, p.y() - hh}, {p.x() + hw, p.y() + hh},
                                 {p.x() - hw, p.y() + hh}};
        std::array<QPointF, 4> corners;
        bool positive[4];
        bool ok = true;
        for (int k = 0; k < 4 && ok; ++k)
            ok = mapProjective(toScene, cell[k], &corners[k], &positive[k]);
        if (!ok || positive[0] != positive[1] || positive[0] != positive[2] || positive[0] != positive[3])
            continue;
        const bool kinetic = i < kineticCount;
        append(ctx, fixtureIndex, corners, kinetic ? f.kinetics.at(i) : f.leds.at(i - kineticCount), kinetic);
    }
}

void LayoutBuilder::addFreeFixture(const TorvoverseContext &ctx, int fixtureIndex, const PatchFixture &f)
{
    // The points are scene positions already: no fixture transform applies.
    const double half = f.pixelSize / 2;
    if (!std::isfinite(half) || !(half > 0))
        return;
    const int count = int(std::min(f.leds.size(), f.pixelPoints.size()));
    for (int i = 0; i < count; ++i) {
        const QPointF point = f.pixelPoints.at(i);
        const double rotation = i < f.pixelRotations.size() ? f.pixelRotations.at(i) : 0.0;
        if (!isFinite(point) || !std::isfinite(rotation))
            continue;
        QTransform t;
        if (rotation != 0.0)
            t.rotate(rotation);
        t *= QTransform::fromTranslate(point.x(), point.y());
        const std::array<QPointF, 4> corners = {t.map(QPointF(-half, -half)), t.map(QPointF(half, -half)),
                                                t.map(QPointF(half, half)), t.map(QPointF(-half, half))};
        if (!std::all_of(corners.begin(), corners.end(), [](const QPointF &p) { return isFinite(p); }))
            continue;
        append(ctx, fixtureIndex, corners, f.leds.at(i), false);
    }
}

void LayoutBuilder::append(const TorvoverseContext &ctx, int fixtureIndex, const std::array<QPointF, 4> &corners,
                           const LedRecord &record, bool isKinetic)
{
    double minX = corners[0].x(), maxX = minX, minY = corners[0].y(), maxY = minY;
    double twiceArea = 0;
    for (int k = 0; k < 4; ++k) {
        const QPointF &a = corners[k];
        const QPointF &b = corners[(k + 1) % 4];
        minX = std::min(minX, a.x());
        maxX = std::max(maxX, a.x());
        minY = std::min(minY, a.y());
        maxY = std::max(maxY, a.y());
        twiceArea += a.x() * b.y() - b.x() * a.y();
    }
    // A warp that folds the cell onto a line or a point leaves nothing to see.
    const double boxArea = (maxX - minX) * (maxY - minY);
    if (!std::isfinite(boxArea) || !std::isfinite(twiceArea) || !(std::fabs(twiceArea) / 2 > 1e-9 * boxArea))
        return;

    LayoutPixel px;
    px.outline = corners;
    px.bounds = QRectF(minX, minY, maxX - minX, maxY - minY);
    px.centre = px.bounds.center();
    px.deviceKey = ctx.deviceKey;
    px.groupIndex = ctx.group;
    px.torvoverseIndex = ctx.torvoverse;
    px.fixtureIndex = fixtureIndex;
    px.z = record.posZ;
    px.portAddress = ctx.portAddress;
    px.startChannel = record.address;
    px.roles = record.roles;
    px.isKinetic = isKinetic;
    if (isKinetic)
        px.kineticChannel = kineticChannel(record);

    const int number = int(m_layout.pixels.size());
    m_layout.pixels.append(px);
    ctx.portPixels->append(number);
    ctx.devicePixels->append(number);

    QRectF &scene = m_layout.sceneRect;
    if (number == 0) {
        scene = px.bounds;
    } else {
        const double l = std::min(scene.left(), minX), t = std::min(scene.top(), minY);
        const double r = std::max(scene.right(), maxX), b = std::max(scene.bottom(), maxY);
        scene = QRectF(l, t, r - l, b - t);
    }
    ZRange &zr = m_layout.zRange;
    if (!zr.seen) {
        zr = ZRange{true, record.posZ, record.posZ};
    } else {
        zr.min = std::min<int>(zr.min, record.posZ);
        zr.max = std::max<int>(zr.max, record.posZ);
    }
}

qint64 placeableRecordCount(const PatchData &patch)
{
    qint64 count = 0;
    for (const PatchGroup &g : patch.groups)
        for (const Torvoverse &t : g.torvoverses)
            for (const PatchFixture &f : t.fixtures)
                if (f.hasLayout)
                    count += f.freePositions ? std::min(f.leds.size(), f.pixelPoints.size())
                                             : f.kinetics.size() + f.leds.size();
    return count;
}

} // namespace

bool LayoutPixel::isAxisAligned() const
{
    // Corners run round the rectangle: each edge is horizontal or vertical.
    for (int k = 0; k < 4; ++k) {
        const QPointF &a = outline[k];
        const QPointF &b = outline[(k + 1) % 4];
        if (a.x() != b.x() && a.y() != b.y())
            return false;
    }
    return true;
}

const QVector<int> &PixelLayout::pixelsForPortAddress(quint16 portAddress) const
{
    static const QVector<int> kNone;
    const auto it = portAddressPixels.constFind(portAddress);
    return it == portAddressPixels.cend() ? kNone : *it;
}

const QVector<int> &PixelLayout::pixelsForDeviceKey(quint64 deviceKey) const
{
    static const QVector<int> kNone;
    const auto it = deviceKeyPixels.constFind(deviceKey);
    return it == deviceKeyPixels.cend() ? kNone : *it;
}

qint64 PixelLayout::drawablePixelCount() const
{
    return std::count_if(pixels.cbegin(), pixels.cend(), [](const LayoutPixel &p) { return !p.isKinetic; });
}

PixelLayout buildPixelLayout(const PatchData &patch)
{
    PixelLayout layout;
    const qint64 expected = placeableRecordCount(patch);
    layout.pixels.reserve(qsizetype(std::min<qint64>(expected, std::numeric_limits<int>::max())));
    LayoutBuilder builder(layout);
    for (int g = 0; g < patch.groups.size(); ++g) {
        const auto &torvoverses = patch.groups.at(g).torvoverses;
        for (int t = 0; t < torvoverses.size(); ++t) {
            const Torvoverse &tv = torvoverses.at(t);
            TorvoverseContext ctx{g, t, portAddress(tv), deviceKey(tv), nullptr, nullptr};
            // No other key is inserted while this torvoverse is laid out, so
            // the references stay valid.
            ctx.portPixels = &layout.portAddressPixels[ctx.portAddress];
            ctx.devicePixels = &layout.deviceKeyPixels[ctx.deviceKey];
            for (int f = 0; f < tv.fixtures.size(); ++f) {
                const PatchFixture &fixture = tv.fixtures.at(f);
                if (!fixture.hasLayout)
                    continue;
                if (fixture.freePositions)
                    builder.addFreeFixture(ctx, f, fixture);
                else
                    builder.addGridFixture(ctx, f, fixture);
            }
        }
    }
    // Drop universes and devices that ended up without a drawn pixel, and the
    // lists' growth slack (a large patch keeps these for its whole life).
    for (auto it = layout.portAddressPixels.begin(); it != layout.portAddressPixels.end();) {
        if (it->isEmpty()) {
            it = layout.portAddressPixels.erase(it);
        } else {
            it->squeeze();
            ++it;
        }
    }
    for (auto it = layout.deviceKeyPixels.begin(); it != layout.deviceKeyPixels.end();) {
        if (it->isEmpty()) {
            it = layout.deviceKeyPixels.erase(it);
        } else {
            it->squeeze();
            ++it;
        }
    }
    const PatchMessage overlap = overlapWarning(layout.pixels);
    if (!overlap.isEmpty())
        layout.warnings.append(overlap);
    return layout;
}

PatchMessage overlapWarning(const QVector<LayoutPixel> &pixels)
{
    struct FixtureArea
    {
        double left, top, right, bottom;
        int minZ;
    };
    using FixtureId = std::tuple<int, int, int>;
    std::map<FixtureId, FixtureArea> fixtures;
    auto last = fixtures.end();
    for (const LayoutPixel &p : pixels) {
        if (p.isKinetic)
            continue;
        const FixtureId id{p.groupIndex, p.torvoverseIndex, p.fixtureIndex};
        // Pixels of one fixture come one after another: look up only when it changes.
        if (last == fixtures.end() || last->first != id) {
            last = fixtures.find(id);
            if (last == fixtures.end()) {
                last = fixtures.emplace(id, FixtureArea{p.bounds.left(), p.bounds.top(), p.bounds.right(),
                                                        p.bounds.bottom(), 2147483647})
                           .first;
            }
        }
        FixtureArea &a = last->second;
        a.left = std::min(a.left, p.bounds.left());
        a.top = std::min(a.top, p.bounds.top());
        a.right = std::max(a.right, p.bounds.right());
        a.bottom = std::max(a.bottom, p.bounds.bottom());
        a.minZ = std::min<int>(a.minZ, p.z);
    }

    // Adding 0.0 turns a rounded -0 into 0, so -0.4 and 0.3 read alike.
    auto rounded = [](double v) { return QString::number(std::round(v) + 0.0, 'f', 0); };
    QHash<QString, int> counts;
    for (const auto &[id, a] : fixtures) {
        const QString text = QStringLiteral("%1,%2,%3,%4,%5")
                                 .arg(rounded(a.left), rounded(a.top), rounded(a.right - a.left),
                                      rounded(a.bottom - a.top))
                                 .arg(a.minZ);
        ++counts[text];
    }
    qint64 positions = 0, overlapping = 0;
    for (const int n : std::as_const(counts)) {
        if (n > 1) {
            ++positions;
            overlapping += n;
        }
    }
    if (positions == 0)
        return {};
    return PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 fixtures overlap on %2 screen position(s) - only the "
                                                    "topmost one is visible. Use the group filter to isolate a "
                                                    "torvoverse."),
                        {overlapping, positions});
}

} // namespace TPatch
