#include "live/healthoverlay.h"

#include "patch/pixellayout.h"

#include <QCoreApplication>

#include <algorithm>

namespace Health {

namespace {

struct StateWord
{
    State state;
    const char *word;    // as the analyser and talu-cli write it
    const char *display; // as the window shows it
};

constexpr StateWord kWords[] = {
    {State::Never, "never", QT_TRANSLATE_NOOP("Health", "never received")},
    {State::Stale, "stale", QT_TRANSLATE_NOOP("Health", "stale")},
    {State::Conflict, "conflict", QT_TRANSLATE_NOOP("Health", "conflict")},
    {State::Unstable, "unstable", QT_TRANSLATE_NOOP("Health", "unstable")},
    {State::Ok, "ok", QT_TRANSLATE_NOOP("Health", "ok")},
};

} // namespace

State stateOf(const QString &word)
{
    for (const StateWord &w : kWords)
        if (word == QLatin1String(w.word))
            return w.state;
    return State::Never;
}

QString stateDisplayName(const QString &word)
{
    for (const StateWord &w : kWords)
        if (word == QLatin1String(w.word))
            return QCoreApplication::translate("Health", w.display);
    return word;
}

const UniverseHealth *findUniverse(const QVector<UniverseHealth> &universes, quint16 portAddress)
{
    const auto it = std::lower_bound(universes.begin(), universes.end(), portAddress,
                                     [](const UniverseHealth &u, quint16 p) { return u.portAddress < p; });
    return it != universes.end() && it->portAddress == portAddress ? &*it : nullptr;
}

void paintStates(const TPatch::PixelLayout &layout, const QVector<UniverseHealth> &universes,
                 const StatePalette &palette, QVector<QRgb> *colours)
{
    colours->fill(palette.colours[size_t(State::Never)], layout.pixels.size());
    for (const UniverseHealth &u : universes) {
        const QRgb colour = palette.colourOf(u.state);
        for (const int pixel : layout.pixelsForPortAddress(u.portAddress))
            (*colours)[pixel] = colour;
    }
}

QString figuresText(const UniverseHealth &u)
{
    if (u.state == QLatin1String("never"))
        return stateDisplayName(u.state);
    return QCoreApplication::translate("Health",
                                       "%1 · %n sender(s) · %2 fps · lost %3 · out of order %4 · duplicates %5 · "
                                       "last %6 s ago",
                                       nullptr, int(u.sources.size()))
        .arg(stateDisplayName(u.state))
        .arg(u.fps, 0, 'f', 1)
        .arg(u.lost)
        .arg(u.outOfOrder)
        .arg(u.duplicates)
        .arg(double(u.lastSeenMs) / 1000.0, 0, 'f', 1);
}

} // namespace Health
