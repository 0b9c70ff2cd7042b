#include "patch/elmgeometry.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>

namespace TPatch {

namespace {

// Samples per span of the curve: enough that the LEDs' spacing along the
// sampled polyline matches the curve's own to well under a pixel.
constexpr int kCurveSamples = 16;

QPointF catmullRom(const QPointF &p0, const QPointF &p1, const QPointF &p2, const QPointF &p3, double t)
{
    const double t2 = t * t;
    const double t3 = t2 * t;
    return 0.5 * ((2 * p1) + (-p0 + p2) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t2 +
                  (-p0 + 3 * p1 - 3 * p2 + p3) * t3);
}

// The curve through the control points as a dense polyline. A closed curve is
// returned without repeating its first point; the caller closes it.
QVector<QPointF> sampleCurve(const QVector<QPointF> &points, bool loop)
{
    const int n = int(points.size());
    if (n < 3)
        return points;
    const auto at = [&](int i) {
        if (loop)
            return points.at(((i % n) + n) % n);
        return points.at(std::clamp(i, 0, n - 1));
    };
    QVector<QPointF> out;
    const int spans = loop ? n : n - 1;
    out.reserve(spans * kCurveSamples + 1);
    for (int s = 0; s < spans; ++s) {
        for (int k = 0; k < kCurveSamples; ++k)
            out.append(catmullRom(at(s - 1), at(s), at(s + 1), at(s + 2), double(k) / kCurveSamples));
    }
    if (!loop)
        out.append(points.last());
    return out;
}

} // namespace

QVector<QPointF> elmLedPositions(const QVector<QPointF> &points, int ledCount, bool curve, bool loop,
                                 QVector<double> *angles)
{
    QVector<QPointF> out;
    if (angles)
        angles->clear();
    if (ledCount <= 0 || points.isEmpty())
        return out;
    QVector<QPointF> path = curve ? sampleCurve(points, loop) : points;
    if (loop && path.size() > 1)
        path.append(path.first());

    QVector<double> lengthTo(path.size(), 0.0); // running length at each vertex
    for (qsizetype i = 1; i < path.size(); ++i)
        lengthTo[i] = lengthTo[i - 1] + QLineF(path.at(i - 1), path.at(i)).length();
    const double total = lengthTo.last();
    const bool closed = loop && path.size() > 2;
    const double step = closed ? total / ledCount : (ledCount > 1 ? total / (ledCount - 1) : 0.0);

    out.reserve(ledCount);
    if (angles)
        angles->reserve(ledCount);
    qsizetype segment = 1;
    for (int i = 0; i < ledCount; ++i) {
        const double distance = std::min(i * step, total);
        while (segment < path.size() - 1 && lengthTo.at(segment) < distance)
            ++segment;
        if (path.size() == 1 || total <= 1e-9) {
            out.append(path.first());
            if (angles)
                angles->append(0.0);
            continue;
        }
        const QPointF a = path.at(segment - 1);
        const QPointF b = path.at(segment);
        const double span = lengthTo.at(segment) - lengthTo.at(segment - 1);
        const double t = span > 1e-12 ? (distance - lengthTo.at(segment - 1)) / span : 0.0;
        out.append(a + (b - a) * t);
        if (angles)
            angles->append(qRadiansToDegrees(std::atan2(b.y() - a.y(), b.x() - a.x())));
    }
    return out;
}

} // namespace TPatch
