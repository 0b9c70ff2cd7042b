#pragma once

#include "packetlog/filternode.h"

#include <QString>

#include <array>
#include <string>

namespace PacketLog {

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
