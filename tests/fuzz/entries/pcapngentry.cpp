#include "logpromises.h"

#include "packetlog/capturereader.h"

#include <cstdint>

int fuzzPcapng(const std::uint8_t *data, std::size_t size)
{
    const auto bytes = QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size));
    checkLogPromises("pcapng", PacketLog::readPcapng(bytes), size);
    return 0;
}
