#pragma once

#include "packetlog/packetrecord.h"

#include <QString>

#include <array>
#include <memory>
#include <string>

namespace PacketLog {

// A compiled display filter is a small tree of these; each node owns its
// children. match() is const and touches no shared state, so one tree may be
// evaluated from any thread, several at once.
class FilterNode
{
public:
    virtual ~FilterNode();
    virtual bool match(const PacketRecord &record) const = 0;
};

class NotNode final : public FilterNode
{
public:
    explicit NotNode(std::unique_ptr<FilterNode> child) : m_child(std::move(child)) {}
    bool match(const PacketRecord &record) const override { return !m_child->match(record); }
    const FilterNode *child() const { return m_child.get(); }

private:
    std::unique_ptr<FilterNode> m_child;
};

class AndNode final : public FilterNode
{
public:
    AndNode(std::unique_ptr<FilterNode> left, std::unique_ptr<FilterNode> right)
        : m_left(std::move(left)), m_right(std::move(right)) {}
    bool match(const PacketRecord &record) const override { return m_left->match(record) && m_right->match(record); }
    const FilterNode *left() const { return m_left.get(); }
    const FilterNode *right() const { return m_right.get(); }

private:
    std::unique_ptr<FilterNode> m_left;
    std::unique_ptr<FilterNode> m_right;
};

class OrNode final : public FilterNode
{
public:
    OrNode(std::unique_ptr<FilterNode> left, std::unique_ptr<FilterNode> right)
        : m_left(std::move(left)), m_right(std::move(right)) {}
    bool match(const PacketRecord &record) const override { return m_left->match(record) || m_right->match(record); }
    const FilterNode *left() const { return m_left.get(); }
    const FilterNode *right() const { return m_right.get(); }

private:
    std::unique_ptr<FilterNode> m_left;
    std::unique_ptr<FilterNode> m_right;
};

// A bare word: matches when the record's Info text contains it, ignoring case.
class ContainsNode final : public FilterNode
{
public:
    explicit ContainsNode(QString word) : m_word(std::move(word)) {}
    bool match(const PacketRecord &record) const override;
    const QString &word() const { return m_word; }

private:
    QString m_word;
};

// field operator value. The value is interpreted once, at construction, for
// the field's kind (number, address, word), so match() does no parsing.
class CompareNode final : public FilterNode
{
public:
    // Codes in this order; the filter line's help lists them the same way.
    enum Operator { Equal = 0, NotEqual = 1, Greater = 2, Less = 3, GreaterEqual = 4, LessEqual = 5, Contains = 6 };
    enum class Field {
        Unknown, IpSrc, IpDst, IpAddr, UdpSrcPort, UdpDstPort, UdpPort, FrameLen,
        Opcode, Universe, Error, Outcome, Reason, Source, Dir,
    };

    CompareNode(QString field, Operator op, QString value);
    bool match(const PacketRecord &record) const override;

    const QString &field() const { return m_fieldText; }
    Operator op() const { return m_op; }
    const QString &value() const { return m_value; }
    Field resolvedField() const { return m_field; }

    // "==", "!=", ">", "<", ">=", "<=", "contains".
    static QString operatorText(Operator op);
    // The field a name stands for; "talu." is read as "mox.".
    static Field fieldFromName(const QString &name);

private:
    bool matchNumber(qint64 v) const;
    bool matchAddress(quint32 ip) const;

    QString m_fieldText;
    Operator m_op;
    QString m_value;
    Field m_field = Field::Unknown;
    bool m_valueValid = false; // number fields: the value read as a number or opcode name
    qint64 m_number = 0;
    bool m_ipCanonical = false; // address fields: the value is a dotted quad as we print them
    quint32 m_ip = 0;
    std::string m_valueLatin1; // for "contains" against digits and dots
    bool m_valueAscii = false;
    std::array<bool, 256> m_wordMatches{}; // word fields: the answer for every stored code
};

} // namespace PacketLog
