#include "patch/madrixreader.h"

#include "patch/boundedxml.h"
#include "patch/gzipinflate.h"
#include "patch/importwarnings.h"
#include "patch/orderednames.h"
#include "patch/splicedevice.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QThread>
#include <QUuid>
#include <QXmlStreamReader>

#include <algorithm>
#include <thread>

namespace TPatch {

namespace {

const char *const kFormatLabel = "MADRIX 5 patch (.mpz)";
const QLatin1StringView kCheckedVersion("0x05000000");
// Below this much XML a second thread costs more than it saves.
constexpr qsizetype kTwoHalvesBytes = 4 * 1024 * 1024;
// MADRIX numbers universes from 1; Art-Net Port-Addresses are 15 bits.
constexpr quint32 kPortAddressCount = 32768;
constexpr qint64 kUniverseChannels = 512;

enum class Tag
{
    Other,
    Root,
    FixtureList,
    Fixture,
    FixtureSpecification,
    Settings,
    Channel,
    GroupList
};

struct RawChannel
{
    QString name;
    QString number;
    QString colorChannel;
    QString fixedValue;
};

struct RawFixture
{
    bool hasSpecification = false;
    bool hasSettings = false;
    QString protocolType;
    QString fixtureName;
    QString displayName;
    QString displayNameUser;
    QString pixelCount;
    QString channelCount;
    QString position;
    QString rotation;
    QString universe;
    QString dmxChannel;
    QVector<RawChannel> channels;
};

// What mapping counts for the warnings, in the order they are reported.
struct Findings
{
    OrderedNames unsupported; // element names, first seen first
    OrderedNames oddValues;   // "fixture_settings/rotation=..." entries, after the names
    qint64 groups = 0;
    qint64 rotatedMultiPixel = 0;
    OrderedNames ignoredChannels;
    qint64 widePixels = 0;
    qint64 past512 = 0;
    qint64 dvi = 0;
    qint64 noColour = 0;
    qint64 badUniverse = 0;
    qint64 incomplete = 0;
};

struct MappedChannel
{
    int number = 0;
    quint8 role = RoleNone;
    bool fixed = false;
};

// Numbers in free text such as "3, 4, 0" or "8x8": the first count of them, missing ones 0.
QVector<double> numbersIn(QStringView text, int count)
{
    QVector<double> out;
    qsizetype i = 0;
    while (i < text.size() && out.size() < count) {
        const bool sign = text.at(i) == u'-' && i + 1 < text.size() && text.at(i + 1).isDigit();
        if (!sign && !text.at(i).isDigit()) {
            ++i;
            continue;
        }
        qsizetype end = i + (sign ? 1 : 0);
        while (end < text.size() && (text.at(end).isDigit() || text.at(end) == u'.'))
            ++end;
        out.append(text.mid(i, end - i).toDouble());
        i = end;
    }
    while (out.size() < count)
        out.append(0);
    return out;
}

bool toInteger(const QString &text, qint64 *value)
{
    bool ok = false;
    *value = text.trimmed().toLongLong(&ok);
    return ok;
}

quint8 roleOf(const RawChannel &channel, Findings &findings)
{
    qint64 colour = -1;
    toInteger(channel.colorChannel, &colour);
    if (colour >= 0 && colour <= 3)
        return quint8(RoleRed + colour); // 0..3 are R, G, B, W
    const QString lower = channel.name.toLower();
    if (lower.contains(QLatin1StringView("warm")))
        return RoleWarmWhite;
    if (lower.contains(QLatin1StringView("cold")) || lower.contains(QLatin1StringView("cool")))
        return RoleCoolWhite;
    findings.ignoredChannels.add(QStringLiteral("%1 (%2)").arg(channel.name, channel.colorChannel.trimmed()));
    return RoleNone;
}

// Turns a pixel index into its grid position after the fixture's quarter turns.
QPoint rotatedCell(int x, int y, int w, int h, int quarterTurns)
{
    switch (quarterTurns) {
    case 1:
        return {h - 1 - y, x};
    case 2:
        return {w - 1 - x, h - 1 - y};
    case 3:
        return {y, w - 1 - x};
    default:
        return {x, y};
    }
}

class Mapper
{
public:
    QMap<quint16, Torvoverse> torvoverses; // by Port-Address
    Findings findings;

    void map(const RawFixture &raw);
    // Takes over what a mapper of the next stretch of fixtures found; its
    // header findings (names, groups) repeat this one's and are dropped.
    void append(Mapper &&later);
};

void Mapper::append(Mapper &&later)
{
    for (auto it = later.torvoverses.begin(); it != later.torvoverses.end(); ++it) {
        Torvoverse &t = torvoverses[it.key()];
        if (t.torvoverseName.isEmpty())
            t = std::move(it.value());
        else
            t.fixtures.append(std::move(it.value().fixtures));
    }
    const Findings &f = later.findings;
    findings.oddValues.addAll(f.oddValues);
    findings.rotatedMultiPixel += f.rotatedMultiPixel;
    findings.ignoredChannels.addAll(f.ignoredChannels);
    findings.widePixels += f.widePixels;
    findings.past512 += f.past512;
    findings.dvi += f.dvi;
    findings.noColour += f.noColour;
    findings.badUniverse += f.badUniverse;
    findings.incomplete += f.incomplete;
}

void Mapper::map(const RawFixture &raw)
{
    if (raw.protocolType.contains(QLatin1StringView("dvi"), Qt::CaseInsensitive)) {
        ++findings.dvi;
        return;
    }
    qint64 universe = 0;
    qint64 dmxChannel = 0;
    if (!raw.hasSpecification || !raw.hasSettings || !toInteger(raw.universe, &universe) ||
        !toInteger(raw.dmxChannel, &dmxChannel)) {
        ++findings.incomplete;
        return;
    }
    QVector<MappedChannel> channels;
    channels.reserve(raw.channels.size());
    for (const RawChannel &rc : raw.channels) {
        MappedChannel c;
        qint64 number = 0;
        if (!toInteger(rc.number, &number) || number < 0 || number > 65535) {
            ++findings.incomplete;
            return;
        }
        c.number = int(number);
        qint64 fixed = 0;
        c.fixed = toInteger(rc.fixedValue, &fixed) && fixed != 0;
        channels.append(c);
    }
    const QVector<double> grid = numbersIn(raw.pixelCount, 2);
    const int w = int(std::clamp(grid.at(0), 1.0, 65535.0));
    const int h = int(std::clamp(grid.at(1), 1.0, 65535.0));
    const qint64 pixels = qint64(w) * h;
    if (channels.isEmpty() || channels.size() < pixels) {
        // Too few channels to give every pixel one: the file lost part of the fixture.
        if (channels.isEmpty())
            ++findings.noColour;
        else
            ++findings.incomplete;
        return;
    }
    // Taken as unsigned, universe 0 (and anything negative) wraps far past the last Port-Address.
    if (universe < 1 || universe - 1 >= qint64(kPortAddressCount)) {
        ++findings.badUniverse;
        return;
    }

    // Classify before sorting, so the ignored-channel list keeps file order.
    bool anyShown = false;
    for (qsizetype i = 0; i < channels.size(); ++i) {
        if (channels[i].fixed)
            continue;
        channels[i].role = roleOf(raw.channels.at(i), findings);
        anyShown = anyShown || channels[i].role != RoleNone;
    }
    std::stable_sort(channels.begin(), channels.end(),
                     [](const MappedChannel &a, const MappedChannel &b) { return a.number < b.number; });
    if (!anyShown) {
        ++findings.noColour;
        return;
    }

    qint64 rotation = 0;
    if (!raw.rotation.trimmed().isEmpty() && !toInteger(raw.rotation, &rotation)) {
        findings.oddValues.add(QStringLiteral("fixture_settings/rotation=%1").arg(raw.rotation.trimmed()));
        rotation = 0;
    }
    const int quarterTurns = int(rotation & 3);
    if (quarterTurns != 0 && pixels > 1)
        ++findings.rotatedMultiPixel;
    const bool turned = (quarterTurns & 1) != 0;
    const int gridW = turned ? h : w;
    const int gridH = turned ? w : h;

    const quint32 portAddress = quint32(universe - 1);
    PatchFixture fixture;
    fixture.fixtureName = !raw.displayNameUser.trimmed().isEmpty() ? raw.displayNameUser
                          : !raw.displayName.trimmed().isEmpty()   ? raw.displayName
                                                                   : raw.fixtureName;
    qint64 declared = 0;
    fixture.maxChannelCount = quint16(
        std::clamp<qint64>(toInteger(raw.channelCount, &declared) ? declared : channels.size(), 0, 65535));
    fixture.countX = quint16(gridW);
    fixture.countY = quint16(gridH);
    fixture.dimX = gridW;
    fixture.dimY = gridH;
    const QVector<double> position = numbersIn(raw.position, 3);
    const quint16 layer = quint16(std::clamp(position.at(2), 0.0, 65535.0));
    fixture.scenePosX = position.at(0) * kMadrixVoxelSize;
    fixture.scenePosY = position.at(1) * kMadrixVoxelSize;
    fixture.rect = QRectF(0, 0, gridW * kMadrixVoxelSize, gridH * kMadrixVoxelSize);
    fixture.hasLayout = true;

    // Each pixel owns an equal run of the fixture's channels in number order;
    // channels left over after the last pixel are fixture-wide (a master
    // dimmer, a mode) and not part of any pixel.
    const qsizetype perPixel = channels.size() / pixels;
    bool wide = false;
    bool past = false;
    fixture.leds.reserve(pixels);
    for (qint64 p = 0; p < pixels; ++p) {
        int lowest = -1;
        int highest = -1;
        LedRecord led;
        for (qsizetype i = p * perPixel; i < (p + 1) * perPixel; ++i) {
            const MappedChannel &c = channels.at(i);
            if (c.fixed)
                continue;
            if (lowest < 0)
                lowest = c.number;
            highest = c.number;
            const int slot = c.number - lowest;
            if (slot < kSlotCount)
                led.roles[slot] = c.role;
        }
        if (lowest < 0)
            continue; // every channel of this pixel is fixed: nothing to show
        wide = wide || highest - lowest >= kSlotCount;
        past = past || dmxChannel + highest >= kUniverseChannels;
        led.address = quint16(std::clamp<qint64>(dmxChannel + lowest, 0, 65535));
        const QPoint cell = rotatedCell(int(p % w), int(p / w), w, h, quarterTurns);
        led.posX = quint16(cell.x());
        led.posY = quint16(cell.y());
        led.posZ = layer;
        fixture.leds.append(led);
    }
    findings.widePixels += wide ? 1 : 0;
    findings.past512 += past ? 1 : 0;

    Torvoverse &t = torvoverses[quint16(portAddress)];
    if (t.torvoverseName.isEmpty()) {
        t.torvoverseName = QStringLiteral("MADRIX universe %1").arg(universe);
        t.Net = quint8(portAddress >> 8);
        t.subNet = quint8((portAddress >> 4) & 0xF);
        t.universe = quint16(portAddress & 0xF);
    }
    t.fixtures.append(std::move(fixture));
}

struct ParsedFile
{
    bool ok = false;
    PatchMessage error;
    QString product;
    QString version;
};

bool isNamed(const QXmlStreamReader &xml, const char *name)
{
    return xml.name() == QLatin1StringView(name);
}

// Reads the document start to end, handing every complete fixture to the
// mapper at once so only one raw fixture is held at a time.
ParsedFile parseXml(QIODevice *device, Mapper &mapper)
{
    static const char *const kUnsupported[] = {
        "product",           "save_date",          "authentication_list",
        "is_patched",        "matrix_preferences", "virtual_matrix_preferences",
        "fixture_group_list"};
    ParsedFile parsed;
    QXmlStreamReader xml(device);
    QVector<Tag> stack;
    bool sawRoot = false;
    bool sawList = false;
    RawFixture fixture;
    RawChannel channel;

    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement) {
            const Tag closing = stack.takeLast();
            if (closing == Tag::Fixture)
                mapper.map(fixture);
            else if (closing == Tag::Channel)
                fixture.channels.append(channel);
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        // The current element's depth: the root is 1, and every element on the stack is open.
        const int depth = int(stack.size()) + 1;
        if (!enterElement(xml, depth))
            break;
        if (!sawRoot) {
            sawRoot = true;
            if (!isNamed(xml, "madrix_patch")) {
                parsed.error =
                    PatchMessage(QT_TRANSLATE_NOOP("TPatch", "the <madrix_patch> root element is missing"));
                return parsed;
            }
            parsed.version = xml.attributes().value(QLatin1StringView("version")).toString();
            stack.append(Tag::Root);
            continue;
        }
        const Tag parent = stack.last();
        if (parent == Tag::FixtureSpecification) {
            QString *target = isNamed(xml, "protocol_type")       ? &fixture.protocolType
                              : isNamed(xml, "fixture_name")      ? &fixture.fixtureName
                              : isNamed(xml, "display_name")      ? &fixture.displayName
                              : isNamed(xml, "pixel_count")       ? &fixture.pixelCount
                              : isNamed(xml, "dmx_channel_count") ? &fixture.channelCount
                                                                  : nullptr;
            if (isNamed(xml, "channel")) {
                channel = RawChannel();
                stack.append(Tag::Channel);
            } else if (target) {
                *target = readElementText(xml, depth);
            } else {
                skipElement(xml, depth); // manufacturer, homepage, operation_mode, color_depth, ...
            }
            continue;
        }
        if (parent == Tag::Channel || parent == Tag::Settings) {
            QString *target = nullptr;
            if (parent == Tag::Channel) {
                target = isNamed(xml, "name")            ? &channel.name
                         : isNamed(xml, "number")        ? &channel.number
                         : isNamed(xml, "color_channel") ? &channel.colorChannel
                         : isNamed(xml, "fixed_value")   ? &channel.fixedValue
                                                         : nullptr;
            } else {
                target = isNamed(xml, "display_name_user") ? &fixture.displayNameUser
                         : isNamed(xml, "position")        ? &fixture.position
                         : isNamed(xml, "rotation")        ? &fixture.rotation
                         : isNamed(xml, "dmx_universe")    ? &fixture.universe
                         : isNamed(xml, "dmx_channel")     ? &fixture.dmxChannel
                                                           : nullptr;
            }
            if (target)
                *target = readElementText(xml, depth);
            else
                skipElement(xml, depth);
            continue;
        }
        if (parent == Tag::GroupList) {
            ++mapper.findings.groups;
            skipElement(xml, depth);
            continue;
        }
        if (parent == Tag::Fixture) {
            if (isNamed(xml, "fixture_specification")) {
                fixture.hasSpecification = true;
                stack.append(Tag::FixtureSpecification);
            } else if (isNamed(xml, "fixture_settings")) {
                fixture.hasSettings = true;
                stack.append(Tag::Settings);
            } else {
                skipElement(xml, depth);
            }
            continue;
        }
        if (parent == Tag::FixtureList) {
            if (isNamed(xml, "fixture")) {
                fixture = RawFixture();
                stack.append(Tag::Fixture);
            } else {
                skipElement(xml, depth);
            }
            continue;
        }
        // Anywhere else below the root: the list, the header fields, and everything we pass over.
        const auto unsupported = std::find_if(std::begin(kUnsupported), std::end(kUnsupported),
                                              [&xml](const char *name) { return isNamed(xml, name); });
        if (unsupported != std::end(kUnsupported))
            mapper.findings.unsupported.add(QString::fromLatin1(*unsupported));
        if (isNamed(xml, "fixture_list")) {
            sawList = true;
            stack.append(Tag::FixtureList);
        } else if (isNamed(xml, "fixture_group_list")) {
            stack.append(Tag::GroupList);
        } else if (isNamed(xml, "product")) {
            parsed.product = readElementText(xml, depth).trimmed();
        } else if (isNamed(xml, "version") && parsed.version.isEmpty()) {
            parsed.version = readElementText(xml, depth).trimmed();
        } else if (unsupported != std::end(kUnsupported) || !isNamed(xml, "patch")) {
            skipElement(xml, depth);
        } else {
            stack.append(Tag::Other); // <patch>: look inside for the list
        }
    }
    parsed.error = documentError(xml, sawRoot);
    if (!parsed.error.isEmpty())
        return parsed;
    if (!sawList) {
        parsed.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "the <fixture_list> element is missing"));
        return parsed;
    }
    parsed.ok = true;
    return parsed;
}

// Large patches are parsed on two threads: the document is read twice, once
// with the second half of the fixture list cut out and once with the first
// half cut out, each with the full header and tail. The cut is made before a
// "<fixture>" start tag in the middle of the only <fixture_list>; a cut that
// is not between two fixtures (inside a comment, a CDATA section or a nested
// element) leaves one half malformed, and any failure falls back to a single
// pass, which also gives the exact error. Documents with a DTD are never split
// (entity definitions would have to be seen by both halves).
bool parseInTwoHalves(const QByteArray &xml, Mapper &mapper, ParsedFile &parsed)
{
    if (xml.size() < kTwoHalvesBytes || QThread::idealThreadCount() < 2 || xml.contains("<!DOCTYPE") ||
        xml.contains("<!ENTITY"))
        return false;
    const QByteArrayView open("<fixture_list>");
    const QByteArrayView close("</fixture_list>");
    const qsizetype listStart = xml.indexOf(open);
    const qsizetype listEnd = xml.lastIndexOf(close);
    if (listStart < 0 || listEnd < 0 || xml.indexOf("<fixture_list", listStart + 1) >= 0 ||
        xml.indexOf(close) != listEnd)
        return false;
    const qsizetype contentStart = listStart + open.size();
    const qsizetype cut = xml.indexOf("<fixture>", contentStart + (listEnd - contentStart) / 2);
    if (cut < 0 || cut >= listEnd)
        return false;

    Mapper later;
    ParsedFile laterParsed;
    std::thread worker([&xml, &later, &laterParsed, contentStart, cut]() {
        SpliceDevice device(xml, {0, contentStart}, {cut, xml.size()});
        laterParsed = parseXml(&device, later);
    });
    SpliceDevice device(xml, {0, cut}, {listEnd, xml.size()});
    parsed = parseXml(&device, mapper);
    worker.join();
    if (!parsed.ok || !laterParsed.ok)
        return false;
    mapper.append(std::move(later));
    return true;
}

PatchLoadResult emptyResult(const QString &sourcePath)
{
    return emptyImportResult(kFormatLabel, SourceKind::Madrix, sourcePath);
}

PatchLoadResult unreadable(const QString &fileName, const QString &sourcePath, const PatchMessage &reason)
{
    PatchLoadResult result = emptyResult(sourcePath);
    result.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" is not a readable MADRIX patch: %2"),
                                {fileName, reason.untranslatedText()});
    return result;
}

void appendWarnings(const Findings &f, QVector<PatchMessage> &warnings)
{
    OrderedNames ignoredFields = f.unsupported;
    ignoredFields.addAll(f.oddValues);
    if (!ignoredFields.isEmpty())
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "Some MADRIX fields are not supported yet and were ignored: %1"),
            {ignoredFields.joined()}));
    if (f.groups > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 MADRIX fixture group(s) were found, but groups "
                                                     "are not imported yet; all fixtures were placed in "
                                                     "one group."),
                         {f.groups}));
    if (f.rotatedMultiPixel > 0)
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch",
                              "%1 rotated multi-pixel fixture(s): the pixel layout after rotation has not "
                              "been verified against MADRIX yet. Check them on the monitor."),
            {f.rotatedMultiPixel}));
    warnIgnoredChannels(f.ignoredChannels, warnings);
    if (f.widePixels > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) have pixels whose color channels span "
                                                     "more than 6 DMX channels; only the first 6 are "
                                                     "shown."),
                         {f.widePixels}));
    warnPast512(f.past512, warnings);
    if (f.dvi > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 DVI fixture(s) were skipped: they have no DMX "
                                                     "address, so nothing of theirs reaches Art-Net."),
                         {f.dvi}));
    if (f.noColour > 0)
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch",
                              "%1 fixture(s) have no color channel the tester can show and were skipped."),
            {f.noColour}));
    warnBadUniverse(f.badUniverse, warnings);
    warnIncomplete(f.incomplete, warnings);
}

} // namespace

PatchLoadResult parseMadrixPatch(const QByteArray &fileBytes, const QString &fileName,
                                 const QString &sourcePath)
{
    QByteArray xmlBytes;
    if (isGzip(fileBytes)) {
        InflateResult inflated = inflateGzip(fileBytes);
        if (!inflated.ok)
            return unreadable(fileName, sourcePath, inflated.error);
        xmlBytes = std::move(inflated.bytes);
    } else {
        xmlBytes = fileBytes;
    }

    Mapper mapper;
    ParsedFile parsed;
    if (!parseInTwoHalves(xmlBytes, mapper, parsed)) {
        // Through a device the reader decodes a few kilobytes at a time instead of
        // turning the whole document into one string first: faster, and half the memory.
        mapper = Mapper();
        QBuffer device;
        device.setData(xmlBytes);
        device.open(QIODevice::ReadOnly);
        parsed = parseXml(&device, mapper);
    }
    if (!parsed.ok)
        return unreadable(fileName, sourcePath, parsed.error);

    PatchLoadResult result = emptyResult(sourcePath);
    const QString product = parsed.product.isEmpty() ? QStringLiteral("MADRIX") : parsed.product;
    if (parsed.version != kCheckedVersion)
        result.warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch",
                              "\"%1\" was saved by %2 (file version %3), which this importer has not been "
                              "checked against. Verify the result on the monitor."),
            {fileName, product, parsed.version.isEmpty() ? QStringLiteral("-") : parsed.version}));
    appendWarnings(mapper.findings, result.warnings);

    if (mapper.torvoverses.isEmpty()) {
        result.error = nothingToShow(fileName);
        return result;
    }

    PatchGroup group;
    group.groupId = QUuid::createUuid();
    group.groupName = QStringLiteral("MADRIX");
    group.torvoverses.reserve(mapper.torvoverses.size());
    for (Torvoverse &t : mapper.torvoverses)
        group.torvoverses.append(std::move(t));
    result.patch.groups.append(std::move(group));
    result.patch.projectName = QFileInfo(fileName).completeBaseName();
    result.patch.importedFrom = parsed.version.isEmpty()
                                    ? product
                                    : QStringLiteral("%1 (file version %2)").arg(product, parsed.version);
    result.ok = true;
    return result;
}

PatchLoadResult readMadrixPatch(const QString &path)
{
    return readImport(path, parseMadrixPatch, kFormatLabel, SourceKind::Madrix);
}

} // namespace TPatch
