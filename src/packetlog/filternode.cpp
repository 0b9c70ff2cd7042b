#include "packetlog/filternode.h"

namespace PacketLog {

FilterNode::~FilterNode() = default;

bool ContainsNode::match(const PacketRecord &record) const
{
    return record.info().contains(m_word, Qt::CaseInsensitive);
}

} // namespace PacketLog
