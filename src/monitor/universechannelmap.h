#pragma once

#include "patch/pixellayout.h"

#include <QString>
#include <QVector>

#include <array>

// What each of one universe's 512 channels drives: its slot role and the
// pixels it feeds (a channel may feed several where fixtures overlap). Built
// from the layout for the universe the DMX inspector shows. Value type.
class UniverseChannelMap
{
public:
    static constexpr int kChannels = 512;
    // Role codes 0..6 as in the patch; kinetic channels get their own code.
    static constexpr quint8 kKineticRole = 7;

    UniverseChannelMap() = default;
    UniverseChannelMap(const TPatch::PixelLayout &layout, quint16 portAddress);

    // Zero-based channel; role 0 for an unpatched or out-of-range channel.
    quint8 role(int channel) const;
    // The pixel numbers a zero-based channel feeds, in pixel order.
    QVector<int> pixels(int channel) const;

private:
    std::array<quint8, kChannels> m_roles{};
    std::array<int, kChannels + 1> m_start{}; // into m_pixels, per channel
    QVector<int> m_pixels;
};

enum class DmxValueFormat { Decimal, Hex, Percent };

// One cell's text: "255", "FF" or "100".
QString formatDmxValue(int value, DmxValueFormat format);
