// Filling the side panels for a large installation: 2,048 universes in 60
// groups, 500,000 pixels. Target: the group filter and the patch summary
// together take under 200 ms from setPatch to the first painted picture of
// both; the GPS panel builds 60 group rows without a layout storm. The floor
// printed beside it is one pass over the layout's pixel list, the least any
// fill must read.
#include "panels/gpsplaybackpanel.h"
#include "panels/groupfilterpanel.h"
#include "panels/patchsummarypanel.h"
#include "patch/patchkeys.h"
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

TPatch::PatchData makePatch()
{
    using namespace TPatch;
    PatchData patch;
    patch.projectName = QStringLiteral("Stadium bowl");
    patch.formatLabel = QStringLiteral("TPatch");
    for (int g = 0; g < kGroups; ++g) {
        PatchGroup group;
        group.groupName = QStringLiteral("Section %1").arg(g + 1);
        patch.groups.append(group);
    }
    int placed = 0;
    for (int u = 0; u < kUniverses; ++u) {
        Torvoverse t;
        t.torvoverseName = QStringLiteral("Uni %1").arg(u);
        t.universe = quint16(u & 0xF);
        t.subNet = quint8((u >> 4) & 0xF);
        t.Net = quint8(u >> 8);
        t.targetIP = {10, 0, qint32(u / 256), qint32(u % 256)};
        PatchFixture f;
        // Spread the pixels evenly: about 244 per universe.
        const int count = (kPixels - placed) / (kUniverses - u);
        for (int i = 0; i < count; ++i) {
            LedRecord r;
            r.posX = quint16(i % 17);
            r.posY = quint16(i / 17);
            r.address = quint16((3 * i) % 510);
            r.roles = {RoleRed, RoleGreen, RoleBlue};
            f.leds.append(r);
        }
        placed += f.leds.size();
        f.hasLayout = true;
        f.countX = 17;
        f.countY = quint16((f.leds.size() + 16) / 17);
        f.scenePosX = (u % 64) * 180.0;
        f.scenePosY = (u / 64) * 260.0;
        f.rect = QRectF(0, 0, 170, 10.0 * f.countY);
        t.fixtures.append(f);
        patch.groups[u * kGroups / kUniverses].torvoverses.append(t);
    }
    return patch;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const TPatch::PatchData patch = makePatch();
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
