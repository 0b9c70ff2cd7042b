// Filling the side panels for a large installation: 2,048 universes in 60
// groups, 500,000 pixels. Target: the group filter and the patch summary
// together take under 200 ms from setPatch to the first painted picture of
// both; the GPS panel builds 60 group rows without a layout storm. The floor
// printed beside it is one pass over the layout's pixel list, the least any
// fill must read.
#include "largepatch.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/groupfilterpanel.h"
#include "panels/patchsummarypanel.h"
#include "patch/pixellayout.h"
#include "style/moxstyle.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kGroups = 60;
constexpr int kUniverses = 2048;
constexpr int kPixels = 500000;
constexpr int kRuns = 5;

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const TPatch::PatchData patch = makeLargePatch(kGroups, kUniverses, kPixels);
    const TPatch::PixelLayout layout = TPatch::buildPixelLayout(patch);
    std::printf("patch: %d groups, %d universes, %lld pixels in the layout\n", kGroups, kUniverses,
                static_cast<long long>(layout.pixels.size()));

    MoxStyle style;
    GroupFilterPanel filter;
    PatchSummaryPanel summary(style);
    GpsPlaybackPanel gps(style);
    filter.resize(420, 600);
    summary.resize(420, 600);
    gps.resize(420, 800);
    filter.show();
    summary.show();
    gps.show();
    QApplication::processEvents();

    std::vector<double> floorMs, filterMs, summaryMs, paintMs, gpsMs;
    QVector<GpsPanelGroup> gpsGroups;
    for (int g = 0; g < kGroups; ++g)
        gpsGroups.append({patch.groups[g].groupName, int(patch.groups[g].torvoverses.size()), true});
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer t;
        t.start();
        qint64 sum = 0;
        for (const TPatch::LayoutPixel &px : layout.pixels)
            sum += px.groupIndex + px.startChannel;
        floorMs.push_back(t.nsecsElapsed() / 1e6);
        if (sum == -1)
            std::puts("");

        t.restart();
        filter.setPatch(patch, layout);
        filterMs.push_back(t.nsecsElapsed() / 1e6);
        t.restart();
        summary.setPatch(patch, layout, {});
        summaryMs.push_back(t.nsecsElapsed() / 1e6);
        t.restart();
        filter.grab();
        summary.grab();
        paintMs.push_back(t.nsecsElapsed() / 1e6);
        t.restart();
        gps.setGroups(gpsGroups);
        gps.grab();
        gpsMs.push_back(t.nsecsElapsed() / 1e6);
    }
    const double total = median(filterMs) + median(summaryMs) + median(paintMs);
    std::printf("group filter setPatch      %8.1f ms (median of %d)\n", median(filterMs), kRuns);
    std::printf("patch summary setPatch     %8.1f ms\n", median(summaryMs));
    std::printf("first paint of both        %8.1f ms\n", median(paintMs));
    std::printf("fill total                 %8.1f ms   target < 200 ms   floor (one pass over the pixels) %.1f ms\n",
                total, median(floorMs));
    std::printf("GPS panel, 60 group rows   %8.1f ms   (rows built and painted)\n", median(gpsMs));
    return total < 200 ? 0 : 1;
}
