#pragma once

#include "live/healthanalyser.h"

#include <QRgb>
#include <QString>
#include <QVector>

#include <array>

namespace TPatch {
struct PixelLayout;
}

// The health overlay: every pixel painted in its universe's state colour, so
// the part of an installation that is not fed stands out on the monitor; and
// the words the window uses for states and figures. Pure logic, any thread.
namespace Health {

enum class State { Never, Stale, Conflict, Unstable, Ok };
constexpr int kStateCount = 5;

// The analyser's state word ("stale", ...) as a state; an unknown word is Never.
State stateOf(const QString &word);
// The state as the user reads it, in their language ("never received", "Konflikt"...).
QString stateDisplayName(const QString &word);

// One colour per state, indexed by State; the window takes them from the theme.
struct StatePalette
{
    std::array<QRgb, kStateCount> colours{};
    QRgb colourOf(const QString &word) const { return colours[size_t(stateOf(word))]; }
};

// The universe of this Port-Address in a list sorted by Port-Address (as the
// analyser returns it), or nullptr.
const UniverseHealth *findUniverse(const QVector<UniverseHealth> &universes, quint16 portAddress);

// Fills *colours, one entry per pixel of the layout, with the colour of the
// state of the pixel's universe; a universe not in the list counts as never fed.
void paintStates(const TPatch::PixelLayout &layout, const QVector<UniverseHealth> &universes,
                 const StatePalette &palette, QVector<QRgb> *colours);

// One line of a universe's figures for the monitor's hover line:
// "stale · 1 sender(s) · 0.0 fps · lost 0 · out of order 0 · duplicates 0 · last 5.2 s ago".
QString figuresText(const UniverseHealth &universe);

} // namespace Health
