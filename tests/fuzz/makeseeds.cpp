// Writes the seed corpora under tests/fuzz/corpus/<target>/ from our own
// generators. Run by scripts/fuzz --seeds; the seeds are committed, small.
#include "artnet/artnetpacket.h"
#include "cli/demopatch.h"
#include "cli/elmsample.h"
#include "cli/madrixsample.h"
#include "cli/samplelog.h"
#include "packetlog/byteio.h"
#include "packetlog/pcapngwriter.h"
#include "packetlog/tlogfile.h"
#include "patch/tpatchwriter.h"
#include "recording/gpsmetadatablock.h"
#include "recording/recordingwriter.h"

#include <QBuffer>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

bool writeSeed(const QString &root, const char *target, const QString &name, const QByteArray &bytes)
{
    const QString dir = root + QLatin1Char('/') + QLatin1StringView(target);
    QDir().mkpath(dir);
    QFile file(dir + QLatin1Char('/') + name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// The demo patch cut down to a few fixtures per kind, so one seed is a few kilobytes.
TPatch::PatchData smallPatch(int groups)
{
    TPatch::PatchData patch = makeDemoPatch();
    patch.groups.resize(std::min<qsizetype>(groups, patch.groups.size()));
    for (auto &g : patch.groups) {
        g.torvoverses.resize(std::min<qsizetype>(2, g.torvoverses.size()));
        for (auto &t : g.torvoverses)
            for (auto &f : t.fixtures)
                f.leds.resize(std::min<qsizetype>(6, f.leds.size()));
    }
    return patch;
}

bool tpatchSeeds(const QString &root)
{
    TPatch::PatchData stage = makeDemoPatch();
    stage.groups = {stage.groups.at(2)}; // RGBW bars, kinetics, two Z layers
    for (auto &t : stage.groups[0].torvoverses)
        for (auto &f : t.fixtures)
            f.leds.resize(std::min<qsizetype>(4, f.leds.size()));
    TPatch::PatchData colliding = smallPatch(1);
    colliding.groups[0].torvoverses[1].universe = 17; // truncation and shared-address warnings
    colliding.groups[0].torvoverses[0].fixtures[0].hasLayout = false;
    colliding.groups[0].torvoverses[0].fixtures[0].rect = QRectF();
    return writeSeed(root, "tpatch", QStringLiteral("small.tpatch"), TPatch::writeTPatch(smallPatch(4)))
           && writeSeed(root, "tpatch", QStringLiteral("stage.tpatch"), TPatch::writeTPatch(stage))
           && writeSeed(root, "tpatch", QStringLiteral("warnings.tpatch"), TPatch::writeTPatch(colliding))
           && writeSeed(root, "tpatch", QStringLiteral("nogroups.tpatch"), QByteArray("{\"corePatchData\":[]}"));
}

// A few fixtures of every kind the MADRIX importer tells apart.
MadrixSample smallMadrix()
{
    MadrixSample sample = makeMadrixMatrix(4, 2);
    sample.product = QStringLiteral("MADRIX 5");
    sample.extraElements = {QStringLiteral("save_date")};
    sample.fixtureGroups = 1;
    MadrixSampleFixture bar;
    bar.fixtureName = QStringLiteral("RGBW Bar");
    bar.pixelCount = QStringLiteral("4x1");
    bar.channels = madrixChannels(4, QStringLiteral("RGBW"));
    bar.channels.append(MadrixSampleChannel{QStringLiteral("Dimmer"), QStringLiteral("16"), QStringLiteral("-1"),
                                            QStringLiteral("0")});
    bar.rotation = QStringLiteral("1");
    bar.universe = QStringLiteral("2");
    bar.dmxChannel = QStringLiteral("500");
    bar.position = QStringLiteral("3, 4, 1");
    sample.fixtures.append(bar);
    MadrixSampleFixture dvi;
    dvi.protocolType = QStringLiteral("DVI");
    sample.fixtures.append(dvi);
    MadrixSampleFixture lost;
    lost.universe = QStringLiteral("0");
    lost.channels = madrixChannels(1, QStringLiteral("RGB"));
    sample.fixtures.append(lost);
    return sample;
}

bool patchSeeds(const QString &root)
{
    const QByteArray madrix = writeMadrixXml(smallMadrix());
    MadrixSample indented = smallMadrix();
    indented.indented = true;
    indented.version = QStringLiteral("0x04000000");
    ElmSample elm = makeElmDemo();
    elm.crlf = true;
    elm.decoyStages = false;
    ElmSample tiny;
    tiny.stages.append(ElmSampleStage());
    tiny.stages[0].fixtures.append(ElmSampleFixture());
    tiny.universeIps.append({0, QStringLiteral("192.0.2.2")});
    return writeSeed(root, "mpz", QStringLiteral("small.mpz"), madrix)
           && writeSeed(root, "mpz", QStringLiteral("indented.mpz"), writeMadrixXml(indented))
           && writeSeed(root, "mpz", QStringLiteral("small-gzip.mpz"), gzipCompress(madrix))
           && writeSeed(root, "mpz", QStringLiteral("matrix-gzip.mpz"), gzipCompress(writeMadrixXml(makeMadrixMatrix(2, 1))))
           && writeSeed(root, "elm", QStringLiteral("demo.elm"), writeElmXml(makeElmDemo()))
           && writeSeed(root, "elm", QStringLiteral("crlf.elm"), writeElmXml(elm))
           && writeSeed(root, "elm", QStringLiteral("tiny.elm"), writeElmXml(tiny))
           && writeSeed(root, "tpatch", QStringLiteral("madrix-content.tpatch"), madrix)
           && writeSeed(root, "tpatch", QStringLiteral("elm-content.tpatch"), writeElmXml(tiny));
}

// Datagrams behind two-byte big-endian lengths, as the artnet entry reads them.
QByteArray datagramRun(const QList<QByteArray> &datagrams)
{
    QByteArray out;
    for (const QByteArray &d : datagrams) {
        out.append(char(d.size() >> 8));
        out.append(char(d.size() & 0xFF));
        out.append(d);
    }
    return out;
}

bool artnetSeeds(const QString &root)
{
    using namespace ArtNet;
    const QByteArray rgb("\xff\x80\x00\x10\x20\x30", 6);
    ArtNet::PollReplyInput reply;
    reply.universes = {0, 1};
    return writeSeed(root, "artnet", QStringLiteral("poll-and-dmx"),
                     datagramRun({buildPoll(), buildDmx(0, 1, rgb), buildDmx(0, 2, rgb), buildDmx(0, 1, rgb),
                                  buildDmx(0x7FFF, 0, QByteArray(512, '\x7f'))}))
           && writeSeed(root, "artnet", QStringLiteral("kel"),
                        datagramRun({buildKelDmx("KEL-42", 3, 9, rgb), buildKelDmx("0123456789AB", 4, 0, rgb)}))
           && writeSeed(root, "artnet", QStringLiteral("reply-and-junk"),
                        datagramRun({buildPollReply(reply, 0), QByteArray("Art-Net\0", 8), QByteArray(3, 'x')}));
}

bool filterSeeds(const QString &root)
{
    const char *const filters[] = {
        "artnet.opcode == artdmx && !(ip.src == 192.0.2.1)",
        "(frame.len>100) || udp.port eq 6454 and not mox.dir == out",
        "mox.outcome != ok && mox.reason == offline || mox.error >= 10055",
        "ip.addr contains \"192.0\" or artnet.universe <= 0x10",
        "talu.source == capture && ArtPoll",
        "udp.srcport > 1024 && udp.dstport < 7000 && mox.error ne 0 && seq",
    };
    bool ok = true;
    int n = 0;
    for (const char *f : filters)
        ok = ok && writeSeed(root, "filter", QStringLiteral("filter%1").arg(++n), QByteArray(f));
    // A filter followed by a record of ours: the sample session's first ArtDmx.
    for (const PacketLog::PacketRecord &r : makeSampleLog()) {
        if (!r.isDmx())
            continue;
        QByteArray raw(PacketLog::kTlogRecordSize, '\0');
        PacketLog::encodeTlogRecord(r, reinterpret_cast<unsigned char *>(raw.data()));
        raw.truncate(40 + r.headLength);
        return ok && writeSeed(root, "filter", QStringLiteral("with-record"),
                               QByteArray("artnet.universe == 1 && frame.len >= 18") + '\0' + raw);
    }
    return false;
}

// The sample session cut to a handful of records of each kind.
std::vector<PacketLog::PacketRecord> shortSession()
{
    std::vector<PacketLog::PacketRecord> records;
    for (const PacketLog::PacketRecord &r : makeSampleLog()) {
        if (records.size() < 10)
            records.push_back(r);
    }
    for (auto &r : records) // keep the seeds small: a few bytes of each DMX frame are enough
        r.headLength = std::min<quint16>(r.headLength, 40);
    return records;
}

QByteArray pcapngOf(const std::vector<PacketLog::PacketRecord> &records)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PacketLog::writePcapng(records, &buffer, nullptr);
    return buffer.data();
}

// The Ethernet frames of our own pcapng export, rewrapped as a classic pcap
// (microsecond or nanosecond, either byte order), optionally without the
// Ethernet header as raw IPv4 (link type 228).
QByteArray pcapOf(const QByteArray &pcapng, bool nanoseconds, bool bigEndian, bool rawIp)
{
    using namespace PacketLog::ByteIo;
    const auto u32 = [bigEndian](quint32 v) {
        unsigned char b[4];
        if (bigEndian)
            putBe32(b, v);
        else
            putLe32(b, v);
        return QByteArray(reinterpret_cast<const char *>(b), 4);
    };
    const auto u16 = [bigEndian](quint16 v) {
        unsigned char b[2];
        if (bigEndian)
            putBe16(b, v);
        else
            putLe16(b, v);
        return QByteArray(reinterpret_cast<const char *>(b), 2);
    };
    QByteArray out = u32(nanoseconds ? 0xA1B23C4D : 0xA1B2C3D4) + u16(2) + u16(4) + u32(0) + u32(0) + u32(65535)
                     + u32(rawIp ? 228 : 1);
    const auto *p = reinterpret_cast<const unsigned char *>(pcapng.constData());
    qsizetype offset = 0;
    quint32 second = 1767225600;
    while (offset + 12 <= pcapng.size()) {
        const quint32 type = le32(p + offset);
        const quint32 total = le32(p + offset + 4);
        if (total < 12 || offset + total > pcapng.size())
            break;
        if (type == 6) {
            const quint32 captured = le32(p + offset + 20);
            const quint32 original = le32(p + offset + 24);
            const qsizetype skip = rawIp ? 14 : 0;
            out += u32(second++) + u32(nanoseconds ? 123456789 : 123456) + u32(captured - skip)
                   + u32(original - skip);
            out += pcapng.mid(offset + 28 + skip, captured - skip);
        }
        offset += total;
    }
    return out;
}

bool logSeeds(const QString &root)
{
    const std::vector<PacketLog::PacketRecord> session = shortSession();
    const QByteArray pcapng = pcapngOf(session);
    const std::vector<PacketLog::PacketRecord> two(session.begin(), session.begin() + 2);
    return writeSeed(root, "tlog", QStringLiteral("session.tlog"), PacketLog::writeTlog(session, 1767225600000000000LL))
           && writeSeed(root, "tlog", QStringLiteral("empty.tlog"), PacketLog::tlogHeader(0))
           && writeSeed(root, "pcapng", QStringLiteral("session.pcapng"), pcapng)
           && writeSeed(root, "pcapng", QStringLiteral("two.pcapng"), pcapngOf(two))
           && writeSeed(root, "pcap", QStringLiteral("session.pcap"), pcapOf(pcapng, false, false, false))
           && writeSeed(root, "pcap", QStringLiteral("nanoseconds-be.pcap"), pcapOf(pcapng, true, true, false))
           && writeSeed(root, "pcap", QStringLiteral("raw-ipv4.pcap"), pcapOf(pcapngOf(two), false, false, true));
}

// A few frames of three universes (Port-Addresses 0, 1, 2) of a few slots
// each, through our own recording writer.
QByteArray recordingOf(RecordFlavour flavour, int frames, int slotCount)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("seed.tpx"));
    RecordingWriter writer;
    if (!writer.open(path, 30, 3))
        return {};
    writer.setSource(flavour, QStringLiteral("KEL-7"));
    for (int f = 0; f < frames; ++f)
        for (quint16 u = 0; u < 3; ++u)
            writer.write(u, QByteArray(slotCount, char(f * 16 + u)));
    writer.close();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A GPS-Sync file: the block saying three records per frame, then the records.
QByteArray gpsRecordingOf(const QByteArray &records, int frames, int slotCount, int header)
{
    GpsMetadataBlock block;
    block.universeCount = 3;
    block.frameCount = quint32(frames);
    for (int i = 0; i < 3; ++i)
        block.universeByteLength[size_t(i)] = quint16(header + slotCount + 2);
    block.frameByteSize = 3u * quint64(header + slotCount + 2);
    return block.toBytes() + records;
}

bool recordingSeeds(const QString &root)
{
    const QByteArray artnet = recordingOf(RecordFlavour::ArtNet, 4, 8);
    const QByteArray kel = recordingOf(RecordFlavour::Kel, 3, 6);
    const QByteArray gps = gpsRecordingOf(recordingOf(RecordFlavour::ArtNet, 3, 4), 3, 4, 18);
    const QByteArray full = recordingOf(RecordFlavour::ArtNet, 1, 512);
    if (artnet.isEmpty() || kel.isEmpty() || full.isEmpty())
        return false;
    bool ok = true;
    for (const char *target : {"tpx", "tpxpatch"}) {
        ok = ok && writeSeed(root, target, QStringLiteral("artnet.tpx"), artnet)
             && writeSeed(root, target, QStringLiteral("kel.tpx"), kel)
             && writeSeed(root, target, QStringLiteral("gps.tpx"), gps)
             && writeSeed(root, target, QStringLiteral("full-universes.tpx"), full)
             && writeSeed(root, target, QStringLiteral("trailing.tpx"), artnet.left(artnet.size() - 20));
    }
    return ok && writeSeed(root, "gps", QStringLiteral("three.block"), gps.left(GpsMetadataBlock::kSize))
           && writeSeed(root, "gps", QStringLiteral("short.block"), gps.left(40));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: fuzz_seeds CORPUS_DIR\n");
        return 2;
    }
    const QString root = args.at(1);
    const bool ok = tpatchSeeds(root) && patchSeeds(root) && artnetSeeds(root) && filterSeeds(root) && logSeeds(root)
                    && recordingSeeds(root);
    return ok ? 0 : 1;
}
