#include "monitor/universechannelmap.h"

#include <utility>
#include <vector>

UniverseChannelMap::UniverseChannelMap(const TPatch::PixelLayout &layout, quint16 portAddress)
{
    std::vector<std::pair<int, int>> feeds; // (channel, pixel)
    auto add = [&](int channel, int pixel, quint8 role) {
        if (channel < 0 || channel >= kChannels)
            return;
        m_roles[size_t(channel)] = role; // the last pixel patched on a channel names its role
        feeds.emplace_back(channel, pixel);
    };
    for (const int p : layout.pixelsForPortAddress(portAddress)) {
        if (p < 0 || p >= layout.pixels.size())
            continue;
        const TPatch::LayoutPixel &px = layout.pixels.at(p);
        if (px.isKinetic) {
            if (!px.kineticChannel.hasChannel)
                continue;
            add(px.kineticChannel.channel, p, kKineticRole);
            if (px.kineticChannel.is16Bit)
                add(px.kineticChannel.channel + 1, p, kKineticRole);
            continue;
        }
        for (int i = 0; i < TPatch::kSlotCount; ++i) {
            if (px.roles[size_t(i)] != TPatch::RoleNone)
                add(int(px.startChannel) + i, p, px.roles[size_t(i)]);
        }
    }
    // Counting sort by channel keeps each channel's pixels in pixel order.
    for (const auto &f : feeds)
        ++m_start[size_t(f.first) + 1];
    for (int c = 0; c < kChannels; ++c)
        m_start[size_t(c) + 1] += m_start[size_t(c)];
    m_pixels.resize(qsizetype(feeds.size()));
    std::array<int, kChannels> next{};
    for (const auto &f : feeds)
        m_pixels[m_start[size_t(f.first)] + next[size_t(f.first)]++] = f.second;
}

quint8 UniverseChannelMap::role(int channel) const
{
    return channel >= 0 && channel < kChannels ? m_roles[size_t(channel)] : quint8(0);
}

QVector<int> UniverseChannelMap::pixels(int channel) const
{
    if (channel < 0 || channel >= kChannels)
        return {};
    QVector<int> out;
    for (int i = m_start[size_t(channel)]; i < m_start[size_t(channel) + 1]; ++i) {
        if (out.isEmpty() || out.constLast() != m_pixels.at(i))
            out.append(m_pixels.at(i));
    }
    return out;
}

QString formatDmxValue(int value, DmxValueFormat format)
{
    switch (format) {
    case DmxValueFormat::Hex:
        return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')).toUpper();
    case DmxValueFormat::Percent:
        return QString::number((value * 100 + 127) / 255);
    case DmxValueFormat::Decimal:
        break;
    }
    return QString::number(value);
}
