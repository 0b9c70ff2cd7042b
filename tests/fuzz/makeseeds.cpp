// Writes the seed corpora under tests/fuzz/corpus/<target>/ from our own
// generators. Run by scripts/fuzz --seeds; the seeds are committed, small.
#include "cli/demopatch.h"
#include "patch/tpatchwriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

bool writeSeed(const QString &root, const char *target, const QString &name, const QByteArray &bytes)
{
    const QString dir = root + QLatin1Char('/') + QLatin1StringView(target);
    QDir().mkpath(dir);
    QFile file(dir + QLatin1Char('/') + name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// The demo patch cut down to a few fixtures per kind, so one seed is a few kilobytes.
TPatch::PatchData smallPatch(int groups)
{
    TPatch::PatchData patch = makeDemoPatch();
    patch.groups.resize(std::min<qsizetype>(groups, patch.groups.size()));
    for (auto &g : patch.groups) {
        g.torvoverses.resize(std::min<qsizetype>(2, g.torvoverses.size()));
        for (auto &t : g.torvoverses)
            for (auto &f : t.fixtures)
                f.leds.resize(std::min<qsizetype>(6, f.leds.size()));
    }
    return patch;
}

bool tpatchSeeds(const QString &root)
{
    TPatch::PatchData stage = makeDemoPatch();
    stage.groups = {stage.groups.at(2)}; // RGBW bars, kinetics, two Z layers
    for (auto &t : stage.groups[0].torvoverses)
        for (auto &f : t.fixtures)
            f.leds.resize(std::min<qsizetype>(4, f.leds.size()));
    TPatch::PatchData colliding = smallPatch(1);
    colliding.groups[0].torvoverses[1].universe = 17; // truncation and shared-address warnings
    colliding.groups[0].torvoverses[0].fixtures[0].hasLayout = false;
    colliding.groups[0].torvoverses[0].fixtures[0].rect = QRectF();
    return writeSeed(root, "tpatch", QStringLiteral("small.tpatch"), TPatch::writeTPatch(smallPatch(4)))
           && writeSeed(root, "tpatch", QStringLiteral("stage.tpatch"), TPatch::writeTPatch(stage))
           && writeSeed(root, "tpatch", QStringLiteral("warnings.tpatch"), TPatch::writeTPatch(colliding))
           && writeSeed(root, "tpatch", QStringLiteral("nogroups.tpatch"), QByteArray("{\"corePatchData\":[]}"));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: fuzz_seeds CORPUS_DIR\n");
        return 2;
    }
    const QString root = args.at(1);
    const bool ok = tpatchSeeds(root);
    return ok ? 0 : 1;
}
