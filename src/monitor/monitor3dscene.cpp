#include "monitor/monitor3dscene.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

// Depth buckets of the drawing order: a counting sort by quantised depth is
// linear, and dots closer in depth than 1/4096 of the model never overlap
// visibly in a different order.
constexpr int kDepthBuckets = 4096;
constexpr double kMaxStampedRadius = 48.0;
constexpr double kArrowLength = 50.0;
constexpr double kArrowHead = 8.0;
constexpr double kArrowHeadAngle = 5.0 * 3.14159265358979323846 / 6.0;

} // namespace

void Monitor3DScene::setModel(const QVector<Point3> &positions, const QVector<Kinetic3> &kinetics,
                              double worldScale, double ledRadius)
{
    m_positions = positions;
    m_kinetics = kinetics;
    for (Kinetic3 &k : m_kinetics)
        k.value = 0;
    m_colours = QVector<QRgb>(positions.size(), 0xFFFFFFFF);
    m_camera.worldScale = worldScale;
    m_ledRadius = ledRadius;
    m_drawOrder = QVector<int>(positions.size(), -1);
    m_depthBucket.assign(size_t(positions.size()), 0);
    m_bucketStart.assign(kDepthBuckets + 1, 0);
    m_orderValid = false;
}

bool Monitor3DScene::setColours(const QVector<QRgb> &colours)
{
    if (colours.size() != m_colours.size())
        return false;
    std::copy(colours.cbegin(), colours.cend(), m_colours.begin());
    return true;
}

bool Monitor3DScene::setKineticValues(const QVector<float> &values)
{
    if (values.size() != m_kinetics.size())
        return false;
    for (qsizetype i = 0; i < values.size(); ++i)
        m_kinetics[i].value = values.at(i);
    return true;
}

void Monitor3DScene::updateDrawOrder()
{
    const qsizetype n = m_positions.size();
    if (n == 0)
        return;
    const Camera3D::Rotation r = m_camera.rotation();
    float minZ = HUGE_VALF, maxZ = -HUGE_VALF;
    for (const Point3 &p : m_positions) {
        const float z = r.apply(p.x, p.y, p.z).z;
        if (std::isfinite(z)) {
            minZ = std::min(minZ, z);
            maxZ = std::max(maxZ, z);
        }
    }
    const double span = double(maxZ) - double(minZ);
    const double perBucket = span > 0 ? (kDepthBuckets - 1) / span : 0.0;
    std::fill(m_bucketStart.begin(), m_bucketStart.end(), 0);
    for (qsizetype i = 0; i < n; ++i) {
        const Point3 &p = m_positions.at(i);
        const float z = r.apply(p.x, p.y, p.z).z;
        // Far (large z) first: bucket 0 holds the farthest points.
        const double b = std::isfinite(z) ? (double(maxZ) - z) * perBucket : 0.0;
        const quint32 bucket = quint32(std::clamp(b, 0.0, double(kDepthBuckets - 1)));
        m_depthBucket[size_t(i)] = bucket;
        ++m_bucketStart[bucket + 1];
    }
    for (int b = 0; b < kDepthBuckets; ++b)
        m_bucketStart[size_t(b) + 1] += m_bucketStart[size_t(b)];
    int *order = m_drawOrder.data();
    for (qsizetype i = 0; i < n; ++i)
        order[m_bucketStart[m_depthBucket[size_t(i)]]++] = int(i);
    m_sortedPitch = m_camera.pitch;
    m_sortedYaw = m_camera.yaw;
    m_orderValid = true;
}

void Monitor3DScene::paint(QPainter &painter)
{
    // On an unscaled device the dots (stamped, anti-aliased) or fast draw's
    // squares go straight into an image of the view, background included,
    // and the painter gets one blit: the per-call cost of a painter fill is
    // most of a small dot's.
    // Zoomed in until a dot is larger than a stamp is worth, the few dots on
    // screen go through the painter (masks per radius would be rebuilt every
    // zoom step).
    const double r = m_camera.projectionScale() * m_ledRadius;
    const bool direct = painter.deviceTransform().type() <= QTransform::TxTranslate
                        && (m_fastDraw || r <= kMaxStampedRadius) && ensureBackground();
    if (!direct)
        paintBackground(painter);
    painter.setRenderHint(QPainter::Antialiasing, true);

    painter.save();
    painter.translate(m_camera.pan);
    const QRectF cull = m_viewRect.translated(-m_camera.pan).adjusted(-r, -r, r, r);
    if (direct)
        paintPointsDirect(painter, r, cull);
    else if (!m_positions.isEmpty())
        paintPoints(painter, r, cull);
    if (!m_kinetics.isEmpty())
        paintKinetics(painter);
    if (m_showAxes)
        paintAxes(painter);
    painter.restore();
}

bool Monitor3DScene::ensureBackground()
{
    // Filling a full-screen gradient costs as much as painting tens of
    // thousands of dots, so it is drawn once per size and blitted after.
    const QSize size = m_viewRect.size().toSize();
    if (size.isEmpty() || size.width() > 8192 || size.height() > 8192)
        return false;
    if (m_background.size() != size) {
        m_background = QImage(size, QImage::Format_RGB32);
        QPainter p(&m_background);
        QLinearGradient gradient(QPointF(0, 0), QPointF(m_viewRect.width(), m_viewRect.height()));
        gradient.setColorAt(0, QColor(100, 100, 100));
        gradient.setColorAt(1, QColor(50, 50, 50));
        p.fillRect(QRectF(QPointF(0, 0), m_viewRect.size()), gradient);
    }
    return true;
}

void Monitor3DScene::paintBackground(QPainter &painter)
{
    if (ensureBackground())
        painter.drawImage(m_viewRect.topLeft(), m_background);
    else if (!m_viewRect.isEmpty())
        painter.fillRect(m_viewRect, QColor(75, 75, 75));
}

template <typename DrawSquare>
void Monitor3DScene::forEachVisiblePoint(const QRectF &cull, DrawSquare draw)
{
    if (!m_orderValid || m_sortedPitch != m_camera.pitch || m_sortedYaw != m_camera.yaw)
        updateDrawOrder();
    const Camera3D::Rotation rot = m_camera.rotation();
    const double k = m_camera.pointScale();
    const double distance = m_camera.distance;
    const qsizetype count = m_positions.size();
    const Point3 *points = m_positions.constData();
    const QRgb *colours = m_colours.constData();
    const int *order = m_drawOrder.constData();
    const qsizetype steps = m_drawOrder.isEmpty() ? count : m_drawOrder.size();
    const double left = cull.left(), right = cull.right(), top = cull.top(), bottom = cull.bottom();
    for (qsizetype step = 0; step < steps; ++step) {
        const qsizetype i = m_drawOrder.isEmpty() ? step : order[step];
        // Alpha 0 marks a point the group filter hides; live colours are opaque.
        if (i < 0 || i >= count || qAlpha(colours[i]) == 0)
            continue;
        const Point3 q = rot.apply(points[i].x, points[i].y, points[i].z);
        if (!(q.z + distance > Camera3D::kNearPlane))
            continue;
        const double x = q.x * k;
        const double y = q.y * k;
        if (!(x >= left && x <= right && y >= top && y <= bottom))
            continue;
        draw(x, y, colours[i]);
    }
}

void Monitor3DScene::paintPoints(QPainter &painter, double r, const QRectF &cull)
{
    if (m_fastDraw)
        painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    m_brush.invalidate();
    const double side = 2 * r;
    const bool fast = m_fastDraw;
    forEachVisiblePoint(cull, [&](double x, double y, QRgb colour) {
        const QRectF square(x - r, y - r, side, side);
        if (fast) {
            painter.fillRect(square, QColor(colour)); // opaque: QColor(QRgb) is the cheap conversion
        } else {
            m_brush.set(painter, colour);
            painter.drawEllipse(square);
        }
    });
    if (m_fastDraw)
        painter.setRenderHint(QPainter::Antialiasing, true);
}

void Monitor3DScene::paintPointsDirect(QPainter &painter, double r, const QRectF &cull)
{
    if (m_layer.size() != m_background.size())
        m_layer = QImage(m_background.size(), QImage::Format_RGB32);
    std::memcpy(m_layer.bits(), m_background.constBits(), size_t(m_background.sizeInBytes()));
    const int width = m_layer.width();
    const int height = m_layer.height();
    const qsizetype stride = m_layer.bytesPerLine() / qsizetype(sizeof(QRgb));
    QRgb *bits = reinterpret_cast<QRgb *>(m_layer.bits());
    // Image pixel of a point: painter coordinates are panned view coordinates.
    const double originX = m_camera.pan.x() - m_viewRect.left();
    const double originY = m_camera.pan.y() - m_viewRect.top();
    if (!m_fastDraw) {
        m_dots.prepare(r);
        forEachVisiblePoint(cull, [&](double x, double y, QRgb colour) {
            m_dots.stamp(bits, stride, width, height, x + originX, y + originY, colour);
        });
        painter.drawImage(m_viewRect.topLeft() - m_camera.pan, m_layer);
        return;
    }
    forEachVisiblePoint(cull, [&](double x, double y, QRgb colour) {
        // Rounded like the raster engine's rectangle fill; never thinner than a pixel.
        int x1 = qRound(x - r + originX), x2 = qRound(x + r + originX);
        int y1 = qRound(y - r + originY), y2 = qRound(y + r + originY);
        x2 = std::max(x2, x1 + 1);
        y2 = std::max(y2, y1 + 1);
        x1 = std::max(x1, 0);
        y1 = std::max(y1, 0);
        x2 = std::min(x2, width);
        y2 = std::min(y2, height);
        if (x1 >= x2 || y1 >= y2)
            return; // off the picture (culling allows a dot's radius beyond the edges)
        for (int row = y1; row < y2; ++row)
            std::fill(bits + row * stride + x1, bits + row * stride + x2, colour | 0xFF000000);
    });
    painter.drawImage(m_viewRect.topLeft() - m_camera.pan, m_layer);
}

void Monitor3DScene::paintKinetics(QPainter &painter)
{
    painter.setPen(QPen(Qt::white, 3.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const Camera3D::Rotation rot = m_camera.rotation();
    for (const Kinetic3 &kin : std::as_const(m_kinetics)) {
        const Point3 base = rot.apply(kin.x, kin.y, kin.z);
        const Point3 tip = rot.apply(kin.x, kin.y, double(kin.z) + kin.value);
        if (m_camera.isVisible(base) && m_camera.isVisible(tip))
            painter.drawLine(m_camera.project(base), m_camera.project(tip));
    }
}

void Monitor3DScene::paintAxes(QPainter &painter)
{
    const Camera3D::Rotation rot = m_camera.rotation();
    const Point3 units[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    const Qt::GlobalColor colours[3] = {Qt::red, Qt::green, Qt::blue};
    for (int a = 0; a < 3; ++a) {
        const Point3 v = rot.apply(units[a].x, units[a].y, units[a].z);
        const double dx = v.x * m_camera.worldScale;
        const double dy = v.y * m_camera.worldScale;
        const double length = std::hypot(dx, dy);
        if (length < 0.001)
            continue;
        const double angle = std::atan2(dy, dx);
        const QPointF tip(kArrowLength * dx / length, kArrowLength * dy / length);
        painter.setPen(QPen(colours[a], 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawLine(QPointF(0, 0), tip);
        for (const double turn : {kArrowHeadAngle, -kArrowHeadAngle})
            painter.drawLine(tip, tip + QPointF(kArrowHead * std::cos(angle + turn), kArrowHead * std::sin(angle + turn)));
    }
}
