#pragma once

#include "packetlog/packetrecord.h"

#include <QString>

#include <memory>

namespace PacketLog {

// A compiled display filter is a small tree of these: the connectives and the
// bare word here, the comparisons in comparenode.h. Each node owns its
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

} // namespace PacketLog
