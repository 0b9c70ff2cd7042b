#pragma once

#include <QtGlobal>

// One record of a loaded recording, referenced by where it lies in the file's
// bytes; the bytes themselves stay in the Recording. 16 bytes, so that the
// index of a 1 GiB file of full universes stays near 32 MB.
struct RecordRef
{
    qint64 dataOffset = 0; // offset of the first DMX slot in the file
    quint16 length = 0;    // DMX data length
    quint16 universe = 0;  // Port-Address as stored in the record
    qint32 headerSize = 0; // 18 (ArtDmx) or 30 (KEL); 0 in the all-zero reference

    bool isNull() const { return headerSize == 0; }
    bool operator==(const RecordRef &o) const
    {
        return dataOffset == o.dataOffset && length == o.length && universe == o.universe &&
               headerSize == o.headerSize;
    }
};
static_assert(sizeof(RecordRef) == 16, "RecordRef is kept small: one per record of a file of any size");
