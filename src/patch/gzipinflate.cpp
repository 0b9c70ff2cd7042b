#include "patch/gzipinflate.h"

#include <zlib.h>

#include <algorithm>

namespace TPatch {

namespace {

constexpr qint64 kInitialOutputBytes = 65536;
// zlib counts in uInt; feed and drain it in pieces it can describe.
constexpr qint64 kMaxChunk = 1 << 30;

InflateResult failure(const char *source, QVector<PatchMessage::Argument> args = {})
{
    InflateResult result;
    result.error = PatchMessage(source, std::move(args));
    return result;
}

} // namespace

bool isGzip(const QByteArray &bytes)
{
    return bytes.size() >= 2 && quint8(bytes.at(0)) == 0x1F && quint8(bytes.at(1)) == 0x8B;
}

InflateResult inflateGzip(const QByteArray &compressed, qint64 limitBytes)
{
    z_stream stream{};
    // 16 + MAX_WBITS: gzip wrapper only, with its header and CRC checked.
    if (inflateInit2(&stream, 16 + MAX_WBITS) != Z_OK)
        return failure(QT_TRANSLATE_NOOP("TPatch", "zlib could not be initialised"));

    qint64 capacity = std::min(std::max(qint64(8) * compressed.size(), kInitialOutputBytes), limitBytes);
    QByteArray out;
    out.resize(capacity);
    qint64 produced = 0;
    qint64 consumed = 0;
    int code = Z_OK;
    for (;;) {
        if (produced == capacity) {
            if (capacity >= limitBytes) {
                inflateEnd(&stream);
                return failure(QT_TRANSLATE_NOOP("TPatch", "the unpacked data is too large"));
            }
            capacity = std::min(capacity * 2, limitBytes);
            out.resize(capacity);
        }
        const qint64 inChunk = std::min(qint64(compressed.size()) - consumed, kMaxChunk);
        const qint64 outChunk = std::min(capacity - produced, kMaxChunk);
        stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(compressed.constData() + consumed));
        stream.avail_in = uInt(inChunk);
        stream.next_out = reinterpret_cast<Bytef *>(out.data() + produced);
        stream.avail_out = uInt(outChunk);
        code = inflate(&stream, Z_NO_FLUSH);
        consumed += inChunk - stream.avail_in;
        produced += outChunk - stream.avail_out;
        if (code == Z_STREAM_END)
            break;
        if (code == Z_OK || code == Z_BUF_ERROR) {
            // Room left for output but no input left: the stream stops before its end.
            if (produced < capacity && consumed == compressed.size()) {
                inflateEnd(&stream);
                return failure(QT_TRANSLATE_NOOP("TPatch", "the file is truncated"));
            }
            continue;
        }
        {
            InflateResult result;
            if (stream.msg)
                result.error = PatchMessage("%1", {QString::fromLatin1(stream.msg)});
            else
                result.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "zlib error %1"), {qint64(code)});
            inflateEnd(&stream);
            return result;
        }
    }
    inflateEnd(&stream);
    out.resize(produced);
    InflateResult result;
    result.ok = true;
    result.bytes = std::move(out);
    return result;
}

} // namespace TPatch
