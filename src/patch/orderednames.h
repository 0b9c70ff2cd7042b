#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace TPatch {

// Distinct names in first-seen order, for the lists importer warnings print.
// The set keeps a file with many distinct names from making this quadratic.
class OrderedNames
{
public:
    void add(const QString &name)
    {
        if (m_seen.contains(name))
            return;
        m_seen.insert(name);
        m_names.append(name);
    }
    void addAll(const OrderedNames &other)
    {
        for (const QString &name : other.m_names)
            add(name);
    }
    bool isEmpty() const { return m_names.isEmpty(); }
    QString joined() const { return m_names.join(QStringLiteral(", ")); }

private:
    QSet<QString> m_seen;
    QStringList m_names;
};

} // namespace TPatch
