#include "cli/madrixsample.h"

#include <QXmlStreamWriter>

#include <zlib.h>

#include <algorithm>

namespace {

void writeText(QXmlStreamWriter &xml, const char *name, const QString &value)
{
    xml.writeTextElement(QString::fromLatin1(name), value);
}

} // namespace

QVector<MadrixSampleChannel> madrixChannels(int pixels, const QString &roles, int first)
{
    QVector<MadrixSampleChannel> out;
    int number = first;
    for (int p = 0; p < pixels; ++p) {
        for (QChar c : roles) {
            MadrixSampleChannel ch;
            const int colour = c == u'R' ? 0 : c == u'G' ? 1 : c == u'B' ? 2 : 3;
            static const char *const names[] = {"Red", "Green", "Blue", "White"};
            ch.name = QString::fromLatin1(names[colour]);
            ch.colorChannel = QString::number(colour);
            ch.number = QString::number(number++);
            out.append(ch);
        }
    }
    return out;
}

MadrixSample makeMadrixMatrix(int fixtures, int columns)
{
    MadrixSample sample;
    sample.product = QString();
    sample.fixtures.reserve(fixtures);
    const QVector<MadrixSampleChannel> rgb = madrixChannels(1, QStringLiteral("RGB"));
    columns = std::max(1, columns);
    for (int i = 0; i < fixtures; ++i) {
        MadrixSampleFixture f;
        f.channels = rgb;
        f.displayNameUser = QStringLiteral("Pixel %1").arg(i + 1);
        f.position = QStringLiteral("%1, %2, 0").arg(i % columns).arg(i / columns);
        f.universe = QString::number(1 + i / 170); // 170 RGB pixels fill 510 of a universe's 512 channels
        f.dmxChannel = QString::number((i % 170) * 3);
        sample.fixtures.append(f);
    }
    return sample;
}

QByteArray writeMadrixXml(const MadrixSample &sample)
{
    QByteArray out;
    QXmlStreamWriter xml(&out);
    xml.setAutoFormatting(sample.indented);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("madrix_patch"));
    if (!sample.version.isEmpty())
        xml.writeAttribute(QStringLiteral("version"), sample.version);
    if (!sample.product.isEmpty())
        writeText(xml, "product", sample.product);
    for (const QString &name : sample.extraElements)
        xml.writeEmptyElement(name);
    if (sample.fixtureGroups > 0) {
        xml.writeStartElement(QStringLiteral("fixture_group_list"));
        for (int g = 0; g < sample.fixtureGroups; ++g)
            writeText(xml, "fixture_group", QStringLiteral("Group %1").arg(g + 1));
        xml.writeEndElement();
    }
    xml.writeStartElement(QStringLiteral("patch"));
    if (sample.withFixtureList) {
        xml.writeStartElement(QStringLiteral("fixture_list"));
        for (const MadrixSampleFixture &f : sample.fixtures) {
            xml.writeStartElement(QStringLiteral("fixture"));
            if (f.withSpecification) {
                xml.writeStartElement(QStringLiteral("fixture_specification"));
                writeText(xml, "protocol_type", f.protocolType);
                writeText(xml, "manufacturer", QStringLiteral("Torvane Test Works"));
                writeText(xml, "fixture_name", f.fixtureName);
                writeText(xml, "display_name", f.fixtureName);
                writeText(xml, "pixel_count", f.pixelCount);
                writeText(xml, "dmx_channel_count", QString::number(f.channels.size()));
                for (const MadrixSampleChannel &c : f.channels) {
                    xml.writeStartElement(QStringLiteral("channel"));
                    writeText(xml, "version", QStringLiteral("1"));
                    writeText(xml, "name", c.name);
                    writeText(xml, "number", c.number);
                    writeText(xml, "color_channel", c.colorChannel);
                    writeText(xml, "default_value", QStringLiteral("0"));
                    writeText(xml, "fixed_value", c.fixedValue);
                    xml.writeEndElement();
                }
                xml.writeEndElement();
            }
            if (f.withSettings) {
                xml.writeStartElement(QStringLiteral("fixture_settings"));
                writeText(xml, "display_name_user", f.displayNameUser);
                writeText(xml, "position", f.position);
                writeText(xml, "rotation", f.rotation);
                writeText(xml, "dmx_universe", f.universe);
                writeText(xml, "dmx_channel", f.dmxChannel);
                xml.writeEndElement();
            }
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement(); // patch
    xml.writeEndElement(); // madrix_patch
    xml.writeEndDocument();
    return out;
}

QByteArray gzipCompress(const QByteArray &bytes)
{
    z_stream stream{};
    // 16 + MAX_WBITS asks zlib for the gzip wrapper.
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY) !=
        Z_OK)
        return {};
    QByteArray out;
    out.resize(qsizetype(deflateBound(&stream, uLong(bytes.size()))) + 64);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    const int code = deflate(&stream, Z_FINISH);
    out.resize(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return code == Z_STREAM_END ? out : QByteArray();
}

QByteArray gzipBomb(qint64 unpackedBytes)
{
    z_stream stream{};
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, 16 + MAX_WBITS, 9, Z_DEFAULT_STRATEGY) != Z_OK)
        return {};
    QByteArray piece(1 << 20, ' ');
    const QByteArray head("<madrix_patch>");
    piece.replace(0, head.size(), head);
    QByteArray out;
    QByteArray buffer(1 << 16, '\0');
    qint64 left = unpackedBytes + head.size();
    bool first = true;
    int code = Z_OK;
    do {
        const qint64 n = std::min<qint64>(left, piece.size());
        stream.next_in = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_in = uInt(n);
        left -= n;
        const int flush = left == 0 ? Z_FINISH : Z_NO_FLUSH;
        do {
            stream.next_out = reinterpret_cast<Bytef *>(buffer.data());
            stream.avail_out = uInt(buffer.size());
            code = deflate(&stream, flush);
            out.append(buffer.constData(), buffer.size() - qsizetype(stream.avail_out));
        } while (stream.avail_out == 0);
        if (first) {
            piece.replace(0, head.size(), QByteArray(head.size(), ' '));
            first = false;
        }
    } while (left > 0);
    deflateEnd(&stream);
    return code == Z_STREAM_END ? out : QByteArray();
}
