#pragma once

#include <QtGlobal>

#include <cstring>

// Explicit little- and big-endian reads and writes on raw bytes. The caller
// has checked the length; these never look past the bytes they are given.
namespace PacketLog::ByteIo {

inline quint16 le16(const unsigned char *p) { return quint16(p[0] | (p[1] << 8)); }
inline quint32 le32(const unsigned char *p) { return quint32(p[0]) | (quint32(p[1]) << 8) | (quint32(p[2]) << 16) | (quint32(p[3]) << 24); }
inline quint64 le64(const unsigned char *p) { return quint64(le32(p)) | (quint64(le32(p + 4)) << 32); }
inline quint16 be16(const unsigned char *p) { return quint16((p[0] << 8) | p[1]); }
inline quint32 be32(const unsigned char *p) { return (quint32(p[0]) << 24) | (quint32(p[1]) << 16) | (quint32(p[2]) << 8) | quint32(p[3]); }
inline quint64 be64(const unsigned char *p) { return (quint64(be32(p)) << 32) | quint64(be32(p + 4)); }

inline void putLe16(unsigned char *p, quint16 v) { p[0] = uchar(v); p[1] = uchar(v >> 8); }
inline void putLe32(unsigned char *p, quint32 v) { putLe16(p, quint16(v)); putLe16(p + 2, quint16(v >> 16)); }
inline void putLe64(unsigned char *p, quint64 v) { putLe32(p, quint32(v)); putLe32(p + 4, quint32(v >> 32)); }
inline void putBe16(unsigned char *p, quint16 v) { p[0] = uchar(v >> 8); p[1] = uchar(v); }
inline void putBe32(unsigned char *p, quint32 v) { putBe16(p, quint16(v >> 16)); putBe16(p + 2, quint16(v)); }

// Reads in the byte order a capture file section declared.
struct Reader
{
    bool bigEndian = false;
    quint16 u16(const unsigned char *p) const { return bigEndian ? be16(p) : le16(p); }
    quint32 u32(const unsigned char *p) const { return bigEndian ? be32(p) : le32(p); }
};

} // namespace PacketLog::ByteIo
