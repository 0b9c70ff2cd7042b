#pragma once

#include "patch/layoutpixel.h"

#include <QByteArray>
#include <QHash>
#include <QRgb>
#include <QVector>

#include <array>

// Turns DMX universes into one displayed colour per pixel and one position
// value per kinetic item. The main window owns one for the whole run, points
// it at the loaded patch's pixel list and feeds it one universe at a time; the
// 2D and 3D views only read colours() and kineticValues().
//
// Threads: every method is called from the GUI thread. The gamma tables are
// shared by all instances, built once on first use under a one-time guard.
class PixelColourBuffer
{
public:
    PixelColourBuffer();

    // Points the evaluator at a pixel list (not owned; it must outlive the
    // buffer's use of it, or be replaced first), or at nothing with nullptr.
    // Every colour becomes opaque black, every kinetic value 0, the stored
    // universes are dropped and the white slots of the list are counted.
    void setPatch(const QVector<TPatch::LayoutPixel> *pixels);
    // Back to dark: colours black, kinetic values 0, stored universes and the
    // peak dropped; sizes and white counts kept.
    void clear();

    // Evaluates the listed pixels against one universe's bytes. Allocates
    // nothing (the lists were sized by setPatch and are only written in place).
    void applyUniverse(const int *pixelNumbers, qsizetype count, const quint8 *data, int length);
    void applyUniverse(const QVector<int> &pixelNumbers, const quint8 *data, int length)
    {
        applyUniverse(pixelNumbers.constData(), pixelNumbers.size(), data, length);
    }

    // Keeps a copy of one universe's bytes for the DMX inspector and the hover
    // texts; ignored for null data or an empty universe.
    void storeUniverse(quint16 portAddress, const quint8 *data, int length);
    QByteArray universeData(quint16 portAddress) const;
    // The stored byte of each of the pixel's six slots, or -1 where the slot has
    // no role, lies past the stored data, or nothing is stored for its universe.
    std::array<int, TPatch::kSlotCount> pixelSlotValues(int pixelNumber) const;

    void setWhiteEnabled(bool enabled) { m_whiteEnabled = enabled; }
    bool whiteEnabled() const { return m_whiteEnabled; }

    const QVector<QRgb> &colours() const { return m_colours; }
    const QVector<float> &kineticValues() const { return m_kineticValues; }
    int pixelsWithWhite() const { return m_pixelsWithWhite; }
    // Slots with role W (4), CW (5) or WW (6) over the patch; 0 for other roles.
    int whiteSlotCount(int role) const;
    int peakWhite() const { return m_peakWhite; }

    static constexpr QRgb kDark = 0xFF000000;
    // A kinetic item at full level stands this many model units tall in 3D.
    static constexpr double kKineticScale = 50.0;

private:
    void applyNearEnd(int pixelNumber, const quint8 *data, int length, int *peak);

    // What evaluation needs of a pixel, packed so a large patch's pass over a
    // universe stays in cache (the full entries are ten times larger).
    struct EvalEntry
    {
        quint16 channel = 0; // start channel, or the kinetic channel
        // Per role R, G, B, W, CW, WW: the slot that supplies it (the last one
        // carrying the role), or -1. Valid when the pixel's slots all lie
        // inside the data; near a short universe's end the slots are walked.
        std::array<qint8, TPatch::kSlotCount> slotOfRole{};
        quint8 span = 0; // 1 + the highest slot with a role, 0 for none
        quint8 kind = 0;
    };

    const QVector<TPatch::LayoutPixel> *m_pixels = nullptr;
    QVector<QRgb> m_colours;
    QVector<float> m_kineticValues;
    bool m_whiteEnabled = false;
    QHash<quint16, QByteArray> m_universeData;
    int m_pixelsWithWhite = 0;
    int m_whiteSlots = 0;
    int m_coolWhiteSlots = 0;
    int m_warmWhiteSlots = 0;
    int m_peakWhite = 0;
    QVector<EvalEntry> m_eval;
};
