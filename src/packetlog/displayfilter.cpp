#include "packetlog/displayfilter.h"

#include "packetlog/filtertokenizer.h"

#include <vector>

namespace PacketLog {

namespace {

constexpr char kUnexpectedEnd[] = QT_TRANSLATE_NOOP("PacketLog", "Unexpected end of filter.");
constexpr char kMissingParen[] = QT_TRANSLATE_NOOP("PacketLog", "Missing ')'.");
constexpr char kMissingValue[] = QT_TRANSLATE_NOOP("PacketLog", "Missing value after '%1'.");
constexpr char kUnexpectedToken[] = QT_TRANSLATE_NOOP("PacketLog", "Unexpected token: %1");
constexpr char kTooDeep[] =
    QT_TRANSLATE_NOOP("PacketLog", "The filter is nested too deeply (more than %1 levels of '!' and '(').");

using NodePtr = std::unique_ptr<FilterNode>;

// Operator texts in the order they are tried; "eq" and "ne" stand for == and !=.
struct OperatorText
{
    const char *text;
    CompareNode::Operator op;
};
const OperatorText kOperators[] = {
    {"==", CompareNode::Equal},        {"!=", CompareNode::NotEqual}, {">=", CompareNode::GreaterEqual},
    {"<=", CompareNode::LessEqual},    {">", CompareNode::Greater},   {"<", CompareNode::Less},
    {"contains", CompareNode::Contains}, {"eq", CompareNode::Equal},  {"ne", CompareNode::NotEqual},
};

const OperatorText *operatorOf(const FilterToken &token)
{
    if (token.quoted)
        return nullptr;
    for (const OperatorText &o : kOperators) {
        if (token.text.compare(QLatin1StringView(o.text), Qt::CaseInsensitive) == 0)
            return &o;
    }
    return nullptr;
}

bool isWord(const FilterToken &token, const char *word)
{
    return !token.quoted && token.text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
}

bool isSymbol(const FilterToken &token, const char *symbol)
{
    return token.symbol && token.text == QLatin1StringView(symbol);
}

class Parser
{
public:
    explicit Parser(QVector<FilterToken> tokens) : m_tokens(std::move(tokens)) {}

    FilterCompileResult run()
    {
        FilterCompileResult result;
        NodePtr root = parseOr();
        if (m_error.isEmpty() && m_pos < m_tokens.size())
            fail(LogMessage(kUnexpectedToken, {m_tokens.at(m_pos).text}));
        if (!m_error.isEmpty()) {
            result.error = m_error;
            return result; // root (if any) is freed here
        }
        result.root = std::move(root);
        return result;
    }

private:
    bool atEnd() const { return m_pos >= m_tokens.size(); }
    const FilterToken &peek() const { return m_tokens.at(m_pos); }
    bool failed() const { return !m_error.isEmpty(); }
    NodePtr fail(LogMessage message)
    {
        if (m_error.isEmpty())
            m_error = std::move(message);
        return nullptr;
    }

    bool enterNesting()
    {
        if (++m_depth > kMaxFilterNesting) {
            fail(LogMessage(kTooDeep, {QString::number(kMaxFilterNesting)}));
            return false;
        }
        return true;
    }

    template<typename Node>
    static NodePtr balanced(std::vector<NodePtr> &terms, size_t begin, size_t end)
    {
        if (end - begin == 1)
            return std::move(terms[begin]);
        // The left half takes the odd term, so three terms group as ((a b) c), as left association would.
        const size_t mid = begin + (end - begin + 1) / 2;
        NodePtr left = balanced<Node>(terms, begin, mid);
        NodePtr right = balanced<Node>(terms, mid, end);
        return std::make_unique<Node>(std::move(left), std::move(right));
    }

    NodePtr parseOr()
    {
        std::vector<NodePtr> terms;
        terms.push_back(parseAnd());
        while (!failed() && !atEnd() && (isSymbol(peek(), "||") || isWord(peek(), "or"))) {
            ++m_pos;
            terms.push_back(parseAnd());
        }
        return failed() ? nullptr : balanced<OrNode>(terms, 0, terms.size());
    }

    NodePtr parseAnd()
    {
        std::vector<NodePtr> terms;
        terms.push_back(parseNot());
        while (!failed() && !atEnd() && (isSymbol(peek(), "&&") || isWord(peek(), "and"))) {
            ++m_pos;
            terms.push_back(parseNot());
        }
        return failed() ? nullptr : balanced<AndNode>(terms, 0, terms.size());
    }

    NodePtr parseNot()
    {
        if (!atEnd() && (isSymbol(peek(), "!") || isWord(peek(), "not"))) {
            ++m_pos;
            if (!enterNesting())
                return nullptr;
            NodePtr child = parseNot();
            --m_depth;
            return child ? std::make_unique<NotNode>(std::move(child)) : nullptr;
        }
        return parsePrimary();
    }

    NodePtr parsePrimary()
    {
        if (atEnd())
            return fail(LogMessage(kUnexpectedEnd));
        const FilterToken &token = peek();
        if (isSymbol(token, "(")) {
            ++m_pos;
            if (!enterNesting())
                return nullptr;
            NodePtr inner = parseOr();
            --m_depth;
            if (!inner)
                return nullptr;
            if (atEnd() || !isSymbol(peek(), ")"))
                return fail(LogMessage(kMissingParen));
            ++m_pos;
            return inner;
        }
        // A connective or a stray symbol where a term should start.
        if (token.symbol || isWord(token, "and") || isWord(token, "or"))
            return fail(LogMessage(kUnexpectedToken, {token.text}));

        ++m_pos;
        if (!atEnd()) {
            if (const OperatorText *op = operatorOf(peek())) {
                ++m_pos;
                if (atEnd() || peek().symbol)
                    return fail(LogMessage(kMissingValue, {QString::fromLatin1(op->text)}));
                return std::make_unique<CompareNode>(token.text, op->op, m_tokens.at(m_pos++).text);
            }
        }
        return std::make_unique<ContainsNode>(token.text);
    }

    QVector<FilterToken> m_tokens;
    qsizetype m_pos = 0;
    int m_depth = 0;
    LogMessage m_error;
};

QString quotedIfNeeded(const QString &value)
{
    bool plain = !value.isEmpty();
    for (QChar c : value)
        plain = plain && !c.isSpace() && c != u'"' && c != u'(' && c != u')' && c != u'!' && c != u'&' && c != u'|'
             && c != u'=' && c != u'<' && c != u'>';
    return plain ? value : QLatin1Char('"') + value + QLatin1Char('"');
}

} // namespace

FilterCompileResult compileFilter(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    return Parser(tokenizeFilter(trimmed)).run();
}

QString describeFilter(const FilterNode *node)
{
    if (!node)
        return {};
    if (const auto *n = dynamic_cast<const NotNode *>(node))
        return QLatin1Char('!') + describeFilter(n->child());
    if (const auto *n = dynamic_cast<const AndNode *>(node))
        return QStringLiteral("(%1 && %2)").arg(describeFilter(n->left()), describeFilter(n->right()));
    if (const auto *n = dynamic_cast<const OrNode *>(node))
        return QStringLiteral("(%1 || %2)").arg(describeFilter(n->left()), describeFilter(n->right()));
    if (const auto *n = dynamic_cast<const ContainsNode *>(node))
        return QStringLiteral("info contains \"%1\"").arg(n->word());
    if (const auto *n = dynamic_cast<const CompareNode *>(node)) {
        return QStringLiteral("(%1 %2 %3)")
            .arg(n->field(), CompareNode::operatorText(n->op()), quotedIfNeeded(n->value()));
    }
    return {};
}

} // namespace PacketLog
