#pragma once

#include <QString>
#include <QVector>

namespace PacketLog {

// One token of a display filter. Symbols are the punctuation split off the
// text ("(", ")", "!", "&&", "||", "==", "!=", ">=", "<=", ">", "<", and a
// lone "=", "&" or "|"); a quoted token is always a plain word or value.
struct FilterToken
{
    QString text;
    bool quoted = false;
    bool symbol = false;
};

// White space (QChar::isSpace) separates tokens; double quotes keep blanks and
// punctuation inside one token (a quote left open runs to the end of the text);
// punctuation is split off where typed without blanks, as in "(frame.len>100)".
QVector<FilterToken> tokenizeFilter(const QString &text);

} // namespace PacketLog
