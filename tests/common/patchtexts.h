#pragma once

#include "patch/patchloadresult.h"

#include <QStringList>

// Patch results as texts, so reader tests compare whole lists in one line.
namespace PatchTexts {

// The warnings' English texts, in order.
inline QStringList warnings(const TPatch::PatchLoadResult &r)
{
    QStringList out;
    for (const TPatch::PatchMessage &m : r.warnings)
        out.append(m.untranslatedText());
    return out;
}

// Slot roles as six digits, "123000" for R, G, B.
inline QString roles(const TPatch::LedRecord &led)
{
    QString s;
    for (quint8 r : led.roles)
        s += QString::number(r);
    return s;
}

} // namespace PatchTexts
