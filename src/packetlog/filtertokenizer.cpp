#include "packetlog/filtertokenizer.h"

namespace PacketLog {

namespace {

bool isSymbolChar(QChar c)
{
    switch (c.unicode()) {
    case u'(': case u')': case u'!': case u'&': case u'|': case u'=': case u'<': case u'>':
        return true;
    default:
        return false;
    }
}

// Length of the symbol starting at text[i]: two-character forms first.
int symbolLength(const QString &text, qsizetype i)
{
    const QChar c = text.at(i);
    const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
    if ((c == u'&' && next == u'&') || (c == u'|' && next == u'|') || (c == u'=' && next == u'=')
        || (c == u'!' && next == u'=') || (c == u'>' && next == u'=') || (c == u'<' && next == u'='))
        return 2;
    return 1;
}

} // namespace

QVector<FilterToken> tokenizeFilter(const QString &text)
{
    QVector<FilterToken> tokens;
    FilterToken current;
    bool inToken = false;
    const auto finish = [&] {
        if (inToken)
            tokens.append(std::move(current));
        current = FilterToken();
        inToken = false;
    };

    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'"') {
            // Quoted part: up to the closing quote, or to the end when there is none.
            inToken = true;
            current.quoted = true;
            qsizetype j = i + 1;
            while (j < text.size() && text.at(j) != u'"')
                ++j;
            current.text += QStringView(text).mid(i + 1, j - i - 1);
            i = j;
        } else if (c.isSpace()) {
            finish();
        } else if (isSymbolChar(c)) {
            finish();
            const int n = symbolLength(text, i);
            tokens.append(FilterToken{text.mid(i, n), false, true});
            i += n - 1;
        } else {
            inToken = true;
            current.text += c;
        }
    }
    finish();
    return tokens;
}

} // namespace PacketLog
