#pragma once

#include <QByteArray>
#include <QIODevice>

#include <utility>

namespace TPatch {

// A read-only device over two ranges of one byte array, read one after the
// other, so a document can be parsed with a stretch cut out of its middle
// without copying it. The array must outlive the device. Used from one thread.
class SpliceDevice : public QIODevice
{
public:
    using Range = std::pair<qsizetype, qsizetype>; // begin, end

    SpliceDevice(const QByteArray &bytes, Range first, Range second);

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray &m_bytes;
    Range m_ranges[2];
    int m_current = 0;
    qsizetype m_position = 0;
};

} // namespace TPatch
