#pragma once

#include "patch/patchmessage.h"

#include <QString>
#include <QVector>

// One finding of a GPS-Sync set verification: a verdict, a title and a
// detail, all kept untranslated (context "TPatch") and rendered when shown.
//
// Many details name a list of offending items ("Front: file has 3, patch
// expects 4"). The items are kept as messages of their own and joined into
// the detail's "%1" when rendered, so a language change re-renders them too;
// the detail's own arguments then fill "%2" onwards.
struct GpsCheck
{
    enum Verdict
    {
        Pass = 0,
        Warn = 1,
        Fail = 2
    };
    // Inline lists are joined with "; " and cut after kMaxListedItems with
    // "(+N more)"; line lists put one item per line and are never cut.
    enum class ListStyle
    {
        Inline,
        Lines
    };

    // Eight items keep a detail within three or four lines of the report
    // view, which is still readable at a glance; the count of the rest says
    // how bad it is.
    static constexpr int kMaxListedItems = 8;

    Verdict verdict = Pass;
    TPatch::PatchMessage title;
    TPatch::PatchMessage detail;
    QVector<TPatch::PatchMessage> items; // joined into the detail's %1 when not empty
    ListStyle listStyle = ListStyle::Inline;

    QString titleText() const { return title.text(); }
    QString detailText() const;
    QString untranslatedDetailText() const;

    // "PASS", "WARN" or "FAIL": the report's first column, the same in every language.
    static QString verdictWord(Verdict verdict);
};
