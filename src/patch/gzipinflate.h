#pragma once

#include "patch/patchmessage.h"

#include <QByteArray>

namespace TPatch {

// The most a compressed patch may unpack to. A file needing more is refused
// rather than allowed to take the machine's memory (a "gzip bomb").
constexpr qint64 kMaxInflatedBytes = qint64(512) * 1024 * 1024;

struct InflateResult
{
    bool ok = false;
    QByteArray bytes;
    PatchMessage error; // untranslated reason, when ok is false
};

// True when the bytes start with the gzip signature 0x1F 0x8B.
bool isGzip(const QByteArray &bytes);

// Inflates a gzip stream. The output buffer starts at the larger of 8 x the
// input size and 64 KiB and doubles whenever it is full, never beyond
// limitBytes; needing more fails with "the unpacked data is too large". A
// stream that ends early fails with "the file is truncated". Never throws.
// Any thread.
InflateResult inflateGzip(const QByteArray &compressed, qint64 limitBytes = kMaxInflatedBytes);

} // namespace TPatch
