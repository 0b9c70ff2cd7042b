#include "recording/recordingdiff.h"

#include "recording/recording.h"

#include <algorithm>
#include <vector>

namespace {

// A frame's records by universe (ascending); the last record wins when a frame repeats one.
std::vector<RecordRef> byUniverse(const Recording &recording, qint64 frame)
{
    std::vector<RecordRef> records;
    for (const RecordRef &r : recording.frameRecords(frame)) {
        if (!r.isNull())
            records.push_back(r);
    }
    std::stable_sort(records.begin(), records.end(),
                     [](const RecordRef &x, const RecordRef &y) { return x.universe < y.universe; });
    auto last = std::unique(records.rbegin(), records.rend(),
                            [](const RecordRef &x, const RecordRef &y) { return x.universe == y.universe; });
    records.erase(records.begin(), last.base());
    return records;
}

// The first difference between two frames, or nothing when they are equal.
std::optional<RecordingDifference> compareFrame(const Recording &a, const Recording &b, qint64 frame)
{
    const std::vector<RecordRef> left = byUniverse(a, frame);
    const std::vector<RecordRef> right = byUniverse(b, frame);
    size_t i = 0, j = 0;
    while (i < left.size() || j < right.size()) {
        RecordingDifference d;
        d.frame = frame;
        if (j == right.size() || (i < left.size() && left[i].universe < right[j].universe)) {
            d.portAddress = left[i].universe; // only in a
            return d;
        }
        if (i == left.size() || right[j].universe < left[i].universe) {
            d.portAddress = right[j].universe; // only in b
            return d;
        }
        const QByteArrayView x = a.dataOf(left[i]);
        const QByteArrayView y = b.dataOf(right[j]);
        const qsizetype n = std::max(x.size(), y.size());
        for (qsizetype c = 0; c < n; ++c) {
            const bool inX = c < x.size(), inY = c < y.size();
            if (inX && inY && x[c] == y[c])
                continue;
            d.portAddress = left[i].universe;
            d.channel = int(c + 1);
            if (inX)
                d.a = quint8(x[c]);
            if (inY)
                d.b = quint8(y[c]);
            return d;
        }
        ++i;
        ++j;
    }
    return std::nullopt;
}

} // namespace

RecordingDiff compareRecordings(const Recording &a, const Recording &b)
{
    RecordingDiff diff;
    diff.framesA = a.frameCount();
    diff.framesB = b.frameCount();
    const qint64 common = std::min(diff.framesA, diff.framesB);
    for (qint64 frame = 0; frame < common; ++frame) {
        if (std::optional<RecordingDifference> d = compareFrame(a, b, frame)) {
            ++diff.differingFrames;
            if (!diff.firstDifference)
                diff.firstDifference = d;
        }
    }
    if (!diff.firstDifference && diff.framesA != diff.framesB) {
        RecordingDifference d;
        d.frame = common; // the first frame only the longer one has
        diff.firstDifference = d;
    }
    diff.identical = !diff.firstDifference;
    return diff;
}
