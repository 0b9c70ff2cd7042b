#include "packetlog/comparenode.h"

#include <cstdio>
#include <string_view>

namespace PacketLog {

namespace {

struct FieldName
{
    const char *name;
    CompareNode::Field field;
};

const FieldName kFields[] = {
    {"ip.src", CompareNode::Field::IpSrc},
    {"ip.dst", CompareNode::Field::IpDst},
    {"ip.addr", CompareNode::Field::IpAddr},
    {"udp.srcport", CompareNode::Field::UdpSrcPort},
    {"udp.dstport", CompareNode::Field::UdpDstPort},
    {"udp.port", CompareNode::Field::UdpPort},
    {"frame.len", CompareNode::Field::FrameLen},
    {"artnet.opcode", CompareNode::Field::Opcode},
    {"artnet.universe", CompareNode::Field::Universe},
    {"mox.error", CompareNode::Field::Error},
    {"mox.outcome", CompareNode::Field::Outcome},
    {"mox.reason", CompareNode::Field::Reason},
    {"mox.source", CompareNode::Field::Source},
    {"mox.dir", CompareNode::Field::Dir},
};

bool isWordField(CompareNode::Field f)
{
    using F = CompareNode::Field;
    return f == F::Outcome || f == F::Reason || f == F::Source || f == F::Dir;
}

bool isAddressField(CompareNode::Field f)
{
    using F = CompareNode::Field;
    return f == F::IpSrc || f == F::IpDst || f == F::IpAddr;
}

// The word a stored code reads as, for the four word fields.
QString wordOf(CompareNode::Field f, int code)
{
    using F = CompareNode::Field;
    switch (f) {
    case F::Outcome: return outcomeWord(Outcome(code));
    case F::Reason: return reasonWord(quint8(code));
    case F::Source: return code == 0 ? QStringLiteral("mox") : code == 1 ? QStringLiteral("capture") : QStringLiteral("unknown");
    case F::Dir: return code == 0 ? QStringLiteral("in") : code == 1 ? QStringLiteral("out") : QStringLiteral("unknown");
    default: return {};
    }
}

bool textMatches(CompareNode::Operator op, const QString &fieldText, const QString &value)
{
    switch (op) {
    case CompareNode::Equal: return fieldText.compare(value, Qt::CaseInsensitive) == 0;
    case CompareNode::NotEqual: return fieldText.compare(value, Qt::CaseInsensitive) != 0;
    case CompareNode::Contains: return fieldText.contains(value, Qt::CaseInsensitive);
    default: return false; // text has no order
    }
}

} // namespace

CompareNode::Field CompareNode::fieldFromName(const QString &name)
{
    QString key = name;
    if (key.startsWith(QLatin1StringView("talu.")))
        key.replace(0, 5, QStringLiteral("mox."));
    for (const FieldName &f : kFields) {
        if (key == QLatin1StringView(f.name))
            return f.field;
    }
    return Field::Unknown;
}

QString CompareNode::operatorText(Operator op)
{
    static const char *const kTexts[] = {"==", "!=", ">", "<", ">=", "<=", "contains"};
    return QString::fromLatin1(kTexts[op]);
}

CompareNode::CompareNode(QString field, Operator op, QString value)
    : m_fieldText(std::move(field)), m_op(op), m_value(std::move(value))
{
    m_field = fieldFromName(m_fieldText);
    m_valueAscii = true;
    for (QChar c : m_value)
        m_valueAscii = m_valueAscii && c.unicode() < 0x80;
    if (m_valueAscii)
        m_valueLatin1 = m_value.toStdString();

    if (isWordField(m_field)) {
        QString v = m_value;
        // Our own socket's records are "mox" in files shared with Torvane MOX; "talu" names the same thing.
        if (m_field == Field::Source && v.compare(QLatin1StringView("talu"), Qt::CaseInsensitive) == 0)
            v = QStringLiteral("mox");
        for (int code = 0; code < 256; ++code)
            m_wordMatches[size_t(code)] = textMatches(m_op, wordOf(m_field, code), v);
    } else if (isAddressField(m_field)) {
        m_ipCanonical = parseIpv4(m_value, &m_ip);
    } else if (m_field != Field::Unknown) {
        bool ok = false;
        if (m_value.startsWith(QLatin1StringView("0x")))
            m_number = m_value.mid(2).toLongLong(&ok, 16);
        else
            m_number = m_value.toLongLong(&ok, 10);
        if (!ok) {
            quint16 opcode = 0;
            ok = opcodeFromName(m_value.toLower(), &opcode);
            m_number = opcode;
        }
        m_valueValid = ok;
    }
}

bool CompareNode::matchNumber(qint64 v) const
{
    switch (m_op) {
    case Equal: return v == m_number;
    case NotEqual: return v != m_number;
    case Greater: return v > m_number;
    case Less: return v < m_number;
    case GreaterEqual: return v >= m_number;
    case LessEqual: return v <= m_number;
    case Contains: {
        if (!m_valueAscii)
            return false;
        char digits[24];
        const int n = std::snprintf(digits, sizeof digits, "%lld", static_cast<long long>(v));
        return std::string_view(digits, size_t(n)).find(m_valueLatin1) != std::string_view::npos;
    }
    }
    return false;
}

bool CompareNode::matchAddress(quint32 ip) const
{
    // A dotted quad is digits and dots only, so the case-insensitive text
    // equality reduces to comparing numbers when the value is printed as we print.
    switch (m_op) {
    case Equal: return m_ipCanonical && ip == m_ip;
    case NotEqual: return !m_ipCanonical || ip != m_ip;
    case Contains: {
        if (!m_valueAscii)
            return false;
        char text[16];
        const int n = std::snprintf(text, sizeof text, "%u.%u.%u.%u", ip >> 24, (ip >> 16) & 0xFF, (ip >> 8) & 0xFF,
                                    ip & 0xFF);
        return std::string_view(text, size_t(n)).find(m_valueLatin1) != std::string_view::npos;
    }
    default: return false;
    }
}

bool CompareNode::match(const PacketRecord &r) const
{
    switch (m_field) {
    case Field::Unknown: return false;
    case Field::IpSrc: return matchAddress(r.srcIp);
    case Field::IpDst: return matchAddress(r.dstIp);
    // Either side: the source first, then the destination, for every operator,
    // so "ip.addr != X" holds for any packet with one side other than X.
    case Field::IpAddr: return matchAddress(r.srcIp) || matchAddress(r.dstIp);
    case Field::Outcome: return m_wordMatches[quint8(r.outcome)];
    case Field::Reason: return m_wordMatches[r.reason];
    case Field::Source: return m_wordMatches[quint8(r.source)];
    case Field::Dir: return m_wordMatches[quint8(r.direction)];
    default: break;
    }
    if (!m_valueValid)
        return false;
    switch (m_field) {
    case Field::UdpSrcPort: return matchNumber(r.srcPort);
    case Field::UdpDstPort: return matchNumber(r.dstPort);
    case Field::UdpPort: return matchNumber(r.srcPort) || matchNumber(r.dstPort);
    case Field::FrameLen: return matchNumber(r.length);
    case Field::Opcode: return matchNumber(r.opcode);
    case Field::Universe: return matchNumber(r.portAddress);
    case Field::Error: return matchNumber(r.error);
    default: return false;
    }
}

} // namespace PacketLog
