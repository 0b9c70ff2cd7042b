#pragma once

#include "packetlog/comparenode.h"
#include "packetlog/filternode.h"
#include "packetlog/logmessage.h"

#include <memory>

namespace PacketLog {

// "!" and "(" may nest this deep; deeper text is refused with a message
// instead of being parsed by ever deeper recursion.
constexpr int kMaxFilterNesting = 64;

struct FilterCompileResult
{
    std::unique_ptr<FilterNode> root; // null when there is no filter or on error
    LogMessage error;                 // empty on success

    bool ok() const { return error.isEmpty(); }
};

// Compiles a display filter. Empty (after trimming) means no filter: ok with no
// root, every record shown. On error, one message and no tree; whatever was
// built before the error is freed. Never throws. Any thread.
//
// Chains of one connective ("a && b && c ...") are built as a balanced tree so
// that 100 KB of terms do not make a tree thousands of levels deep; the terms
// are still evaluated left to right and stop at the first that decides.
FilterCompileResult compileFilter(const QString &text);

// The tree as one line with every group in parentheses, for talu-cli and tests:
// "(artnet.opcode == artdmx && !(ip.src == 10.0.0.1))"; a bare word prints as "info contains \"word\"".
QString describeFilter(const FilterNode *node);

} // namespace PacketLog
