#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

// Our own MADRIX 5 patch generator: the XML shape the importer reads, written
// from a plain description so tests and benchmarks can say exactly what a
// file holds. Values are kept as text so that broken files can be described too.

struct MadrixSampleChannel
{
    QString name = QStringLiteral("Red");
    QString number = QStringLiteral("0");
    QString colorChannel = QStringLiteral("0");
    QString fixedValue = QStringLiteral("0");
};

struct MadrixSampleFixture
{
    QString protocolType = QStringLiteral("DMX");
    QString fixtureName = QStringLiteral("RGB Pixel");
    QString displayNameUser;
    QString pixelCount = QStringLiteral("1, 1, 1");
    QVector<MadrixSampleChannel> channels;
    QString position = QStringLiteral("0, 0, 0");
    QString rotation = QStringLiteral("0");
    QString universe = QStringLiteral("1");
    QString dmxChannel = QStringLiteral("0");
    bool withSpecification = true;
    bool withSettings = true;
};

struct MadrixSample
{
    QString version = QStringLiteral("0x05000000"); // empty: no version attribute
    QString product;                                // empty: no <product> element
    QStringList extraElements;                      // further empty header elements, e.g. "save_date"
    int fixtureGroups = 0;                          // > 0 writes a <fixture_group_list>
    bool withFixtureList = true;
    bool indented = false; // one element per line, indented; otherwise one long line

    QVector<MadrixSampleFixture> fixtures;
};

// Channels for pixels x the letters of roles ("RGB", "RGBW"), numbered from first upwards.
QVector<MadrixSampleChannel> madrixChannels(int pixels, const QString &roles, int first = 0);

// A matrix of single-pixel RGB fixtures, columns wide, packed 170 per universe
// from universe 1 (the shape of a large LED wall).
MadrixSample makeMadrixMatrix(int fixtures, int columns);

QByteArray writeMadrixXml(const MadrixSample &sample);

// gzip container (what MADRIX writes for .mpz), via zlib.
QByteArray gzipCompress(const QByteArray &bytes);

// A small gzip file that unpacks to "<madrix_patch>" followed by unpackedBytes
// of spaces: built in pieces, never holding the unpacked data.
QByteArray gzipBomb(qint64 unpackedBytes);
