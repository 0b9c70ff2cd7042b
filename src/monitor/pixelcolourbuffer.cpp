#include "monitor/pixelcolourbuffer.h"

#include <algorithm>
#include <cmath>

namespace {

enum EvalKind : quint8 { Colour, ColourWithWhite, Kinetic8, Kinetic16, KineticUnpatched };

// The sRGB transfer curves as tables, so evaluation never calls pow().
struct GammaTables
{
    float decode[256];    // sRGB byte -> linear light
    quint8 encode[1024];  // linear light in 1/1023 steps -> sRGB byte

    GammaTables()
    {
        for (int v = 0; v < 256; ++v) {
            const double x = v / 255.0;
            decode[v] = float(x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4));
        }
        for (int i = 0; i < 1024; ++i) {
            const double x = i / 1023.0;
            const double s = x <= 0.0031308 ? x * 12.92 : 1.055 * std::pow(x, 1.0 / 2.4) - 0.055;
            encode[i] = quint8(std::clamp(int(s * 255.0 + 0.5), 0, 255));
        }
    }
};

// A function-local static is initialised exactly once even when first reached
// from two threads at the same time.
const GammaTables &gammaTables()
{
    static const GammaTables tables;
    return tables;
}

inline quint8 encodeLinear(const GammaTables &g, float value)
{
    const int index = std::clamp(int(value * 1023.0f + 0.5f), 0, 1023);
    return g.encode[index];
}

// White, cool white and warm white added in linear light. Cool white is
// (0.831, 0.855, 1.0) and warm white (1.0, 0.397, 0.095) of the slot's
// level, plain white adds equally to all three; sums above 1 saturate.
inline QRgb mixWhite(const GammaTables &g, int red, int green, int blue, int white, int cool, int warm)
{
    float r = g.decode[red], gr = g.decode[green], b = g.decode[blue];
    if (white > 0) {
        const float w = g.decode[white];
        r += w;
        gr += w;
        b += w;
    }
    if (cool > 0) {
        const float c = g.decode[cool];
        b += c;
        r += 0.831f * c;
        gr += 0.855f * c;
    }
    if (warm > 0) {
        const float w = g.decode[warm];
        r += w;
        gr += 0.397f * w;
        b += 0.095f * w;
    }
    return 0xFF000000u | (QRgb(encodeLinear(g, r)) << 16) | (QRgb(encodeLinear(g, gr)) << 8) | encodeLinear(g, b);
}

} // namespace

PixelColourBuffer::PixelColourBuffer() = default;

void PixelColourBuffer::setPatch(const QVector<TPatch::LayoutPixel> *pixels)
{
    m_pixels = pixels;
    const qsizetype count = pixels ? pixels->size() : 0;
    m_colours.fill(kDark, count);
    m_kineticValues.fill(0.0f, count);
    m_universeData.clear();
    m_pixelsWithWhite = m_whiteSlots = m_coolWhiteSlots = m_warmWhiteSlots = 0;
    m_peakWhite = 0;
    m_eval.resize(count);
    for (qsizetype i = 0; i < count; ++i) {
        const TPatch::LayoutPixel &px = pixels->at(i);
        EvalEntry &e = m_eval[i];
        e = EvalEntry{};
        if (px.isKinetic) {
            e.channel = px.kineticChannel.channel;
            e.kind = !px.kineticChannel.hasChannel ? KineticUnpatched : px.kineticChannel.is16Bit ? Kinetic16 : Kinetic8;
            continue;
        }
        e.channel = px.startChannel;
        e.slotOfRole.fill(-1);
        bool hasWhite = false;
        for (int s = 0; s < TPatch::kSlotCount; ++s) {
            const quint8 role = px.roles[s];
            if (role == TPatch::RoleNone || role >= TPatch::kRoleCount)
                continue; // codes above 6 never come from a reader: unpatched
            e.slotOfRole[role - 1] = qint8(s);
            e.span = quint8(s + 1);
            if (role == TPatch::RoleWhite)
                ++m_whiteSlots;
            else if (role == TPatch::RoleCoolWhite)
                ++m_coolWhiteSlots;
            else if (role == TPatch::RoleWarmWhite)
                ++m_warmWhiteSlots;
            else
                continue;
            hasWhite = true;
        }
        e.kind = hasWhite ? ColourWithWhite : Colour;
        if (hasWhite)
            ++m_pixelsWithWhite;
    }
    m_eval.squeeze();
}

void PixelColourBuffer::clear()
{
    std::fill(m_colours.begin(), m_colours.end(), kDark);
    std::fill(m_kineticValues.begin(), m_kineticValues.end(), 0.0f);
    m_universeData.clear();
    m_peakWhite = 0;
}

void PixelColourBuffer::applyUniverse(const int *pixelNumbers, qsizetype count, const quint8 *data, int length)
{
    if (!m_pixels || !data || length < 1 || !pixelNumbers)
        return;
    const GammaTables &gamma = gammaTables();
    const EvalEntry *eval = m_eval.constData();
    const quint32 pixelCount = quint32(m_eval.size());
    // data() detaches at most once, and only if a reader kept a copy.
    QRgb *colours = m_colours.data();
    int peak = m_peakWhite;
    const bool whiteEnabled = m_whiteEnabled;

    for (qsizetype n = 0; n < count; ++n) {
        const int p = pixelNumbers[n];
        if (quint32(p) >= pixelCount) // negative numbers wrap above the count
            continue;
        const EvalEntry &e = eval[p];
        const int channel = e.channel;
        if (e.kind > ColourWithWhite || channel + e.span > length) {
            applyNearEnd(p, data, length, &peak);
            continue;
        }
        const quint8 *pixelData = data + channel;
        const auto component = [&](int role) { return e.slotOfRole[role - 1] < 0 ? 0 : pixelData[e.slotOfRole[role - 1]]; };
        const int red = component(TPatch::RoleRed), green = component(TPatch::RoleGreen);
        const int blue = component(TPatch::RoleBlue);
        if (e.kind == Colour) {
            colours[p] = 0xFF000000u | (QRgb(red) << 16) | (QRgb(green) << 8) | QRgb(blue);
            continue;
        }
        const int white = component(TPatch::RoleWhite), cool = component(TPatch::RoleCoolWhite);
        const int warm = component(TPatch::RoleWarmWhite);
        // Keep the OR, not the max, in the test: the status line has always
        // reported the peak this way.
        if ((cool | warm | white) > peak)
            peak = std::max({white, cool, warm});
        if (whiteEnabled && (white | cool | warm) != 0)
            colours[p] = mixWhite(gamma, red, green, blue, white, cool, warm);
        else
            colours[p] = 0xFF000000u | (QRgb(red) << 16) | (QRgb(green) << 8) | QRgb(blue);
    }
    m_peakWhite = peak;
}

// Kinetic items, and colour pixels whose slots run past a short universe's
// end: each slot is read only when its channel is inside the data, a later
// slot of the same role overriding an earlier one.
void PixelColourBuffer::applyNearEnd(int p, const quint8 *data, int length, int *peak)
{
    const EvalEntry &e = m_eval.at(p);
    const int channel = e.channel;
    switch (e.kind) {
    case Kinetic16:
        if (channel + 1 < length)
            m_kineticValues[p] = float(((data[channel] << 8) | data[channel + 1]) / 65535.0 * kKineticScale);
        return;
    case Kinetic8:
        if (channel < length)
            m_kineticValues[p] = float(data[channel] / 255.0 * kKineticScale);
        return;
    case KineticUnpatched:
        return;
    default:
        break;
    }
    if (p >= m_pixels->size()) // the list was changed behind setPatch's back
        return;
    // Indexed by role; slots without a role write into the unused entry 0.
    int c[TPatch::kRoleCount] = {};
    const auto &roles = m_pixels->at(p).roles;
    for (int s = 0; s < TPatch::kSlotCount && channel + s < length; ++s)
        c[roles[s] < TPatch::kRoleCount ? roles[s] : 0] = data[channel + s];
    const int white = c[TPatch::RoleWhite], cool = c[TPatch::RoleCoolWhite], warm = c[TPatch::RoleWarmWhite];
    if ((cool | warm | white) > *peak)
        *peak = std::max({white, cool, warm});
    if (m_whiteEnabled && (white | cool | warm) != 0)
        m_colours[p] = mixWhite(gammaTables(), c[TPatch::RoleRed], c[TPatch::RoleGreen], c[TPatch::RoleBlue], white,
                                cool, warm);
    else
        m_colours[p] = 0xFF000000u | (QRgb(c[TPatch::RoleRed]) << 16) | (QRgb(c[TPatch::RoleGreen]) << 8)
                     | QRgb(c[TPatch::RoleBlue]);
}

void PixelColourBuffer::storeUniverse(quint16 portAddress, const quint8 *data, int length)
{
    if (!data || length < 1)
        return;
    m_universeData.insert(portAddress, QByteArray(reinterpret_cast<const char *>(data), length));
}

QByteArray PixelColourBuffer::universeData(quint16 portAddress) const
{
    return m_universeData.value(portAddress);
}

std::array<int, TPatch::kSlotCount> PixelColourBuffer::pixelSlotValues(int pixelNumber) const
{
    std::array<int, TPatch::kSlotCount> values;
    values.fill(-1);
    if (!m_pixels || pixelNumber < 0 || pixelNumber >= m_pixels->size())
        return values;
    const TPatch::LayoutPixel &px = m_pixels->at(pixelNumber);
    const auto it = m_universeData.constFind(px.portAddress);
    if (it == m_universeData.cend())
        return values;
    for (int s = 0; s < TPatch::kSlotCount; ++s) {
        const int channel = px.startChannel + s;
        if (px.roles[s] != TPatch::RoleNone && channel < it->size())
            values[s] = quint8(it->at(channel));
    }
    return values;
}

int PixelColourBuffer::whiteSlotCount(int role) const
{
    switch (role) {
    case TPatch::RoleWhite:
        return m_whiteSlots;
    case TPatch::RoleCoolWhite:
        return m_coolWhiteSlots;
    case TPatch::RoleWarmWhite:
        return m_warmWhiteSlots;
    default:
        return 0;
    }
}
