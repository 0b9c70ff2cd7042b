#include "cli/demorecording.h"

#include "cli/demopatch.h"
#include "patch/frameorder.h"
#include "recording/recordingwriter.h"

#include <QColor>
#include <QFile>

#include <algorithm>
#include <cmath>

using namespace TPatch;

namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kCell = 10; // scene units per grid step, as in the demo patch

// The colour of a pixel at scene x in a group at time t: the hue drifts
// across the venue and over time, and a band of brightness sweeps from left
// to right so the motion is plain to see.
QColor waveColour(double x, int group, double t)
{
    const double hue = std::fmod(0.15 * t + x / 1400.0 + 0.18 * group + 10.0, 1.0);
    const double sweep = 0.5 + 0.5 * std::sin(kTwoPi * (x / 500.0 - 0.6 * t));
    return QColor::fromHsvF(float(hue), 1.0f, float(0.15 + 0.85 * sweep));
}

quint8 roleValue(quint8 role, const QColor &c)
{
    switch (role) {
    case RoleRed:
        return quint8(c.red());
    case RoleGreen:
        return quint8(c.green());
    case RoleBlue:
        return quint8(c.blue());
    case RoleWhite:
    case RoleCoolWhite:
    case RoleWarmWhite:
        return quint8(std::min({c.red(), c.green(), c.blue()}) / 2);
    default:
        return 0;
    }
}

// Channels the torvoverse uses, rounded up to an even count as controllers send them.
int usedChannels(const Torvoverse &t)
{
    int used = 2;
    for (const PatchFixture &f : t.fixtures) {
        for (const LedRecord &led : f.leds)
            used = std::max(used, led.address + kSlotCount);
        for (const LedRecord &k : f.kinetics)
            used = std::max(used, k.address + 2);
    }
    used = std::min(used, 512);
    return used + (used & 1);
}

} // namespace

QByteArray demoUniverseData(const Torvoverse &t, int group, double time)
{
    QByteArray data(usedChannels(t), '\0');
    auto put = [&data](int channel, quint8 value) {
        if (channel >= 0 && channel < data.size())
            data[channel] = char(value);
    };
    for (const PatchFixture &f : t.fixtures) {
        for (const LedRecord &led : f.leds) {
            const QColor c = waveColour(f.scenePosX + led.posX * kCell, group, time);
            for (int slot = 0; slot < kSlotCount; ++slot)
                if (led.roles[size_t(slot)] != RoleNone)
                    put(led.address + slot, roleValue(led.roles[size_t(slot)], c));
        }
        // Each winch: a 16-bit position, coarse then fine, the balls a phase apart.
        for (int i = 0; i < f.kinetics.size(); ++i) {
            const double phase = 0.5 + 0.5 * std::sin(kTwoPi * (0.4 * time + i / double(f.kinetics.size())));
            const auto position = quint16(std::lround(phase * 65535.0));
            put(f.kinetics.at(i).address, quint8(position >> 8));
            put(f.kinetics.at(i).address + 1, quint8(position & 0xFF));
        }
    }
    return data;
}

bool writeDemoRecording(const QString &path, QString *error)
{
    const PatchData patch = makeDemoPatch();
    const FrameOrder order = expectedFrameOrder(patch);

    // The writer appends; a generator starts from an empty file.
    const QString partPath = path + QStringLiteral(".part");
    QFile::remove(partPath);
    RecordingWriter writer;
    if (!writer.open(partPath, kDemoRecordingFps, order.recordsPerFrame())) {
        *error = writer.lastError();
        return false;
    }
    for (int frame = 0; frame < kDemoRecordingFrames; ++frame) {
        const double time = frame / double(kDemoRecordingFps);
        for (const FrameSlot &slot : order.entries) {
            const Torvoverse &t = patch.groups.at(slot.groupIndex).torvoverses.at(slot.torvoverseIndex);
            writer.write(slot.portAddress, demoUniverseData(t, slot.groupIndex, time));
        }
    }
    writer.close();
    if (writer.failed()) {
        *error = writer.failureReason();
        QFile::remove(partPath);
        return false;
    }
    QFile::remove(path);
    if (!QFile::rename(partPath, path)) {
        *error = QStringLiteral("cannot rename %1 to %2").arg(partPath, path);
        return false;
    }
    return true;
}
