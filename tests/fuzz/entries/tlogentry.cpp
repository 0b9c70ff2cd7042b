#include "logpromises.h"

#include "packetlog/tlogfile.h"

#include <cstdint>

int fuzzTlog(const std::uint8_t *data, std::size_t size)
{
    const auto bytes = QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size));
    checkLogPromises("tlog", PacketLog::readTlog(bytes), size);
    return 0;
}
