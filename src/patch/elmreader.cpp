#include "patch/elmreader.h"

#include "patch/boundedxml.h"
#include "patch/elmgeometry.h"
#include "patch/importwarnings.h"
#include "patch/orderednames.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLineF>
#include <QMap>
#include <QRegularExpression>
#include <QTransform>
#include <QUuid>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cmath>

namespace TPatch {

namespace {

const char *const kFormatLabel = "ENTTEC ELM project (.elm)";
constexpr int kPortAddressCount = 32768;
constexpr int kUniverseChannels = 512;
// No real fixture comes near this; a larger count is a damaged file, not a reason to allocate.
constexpr qint64 kMaxLedsPerFixture = 100000;
// An ELM fixture is a count of LEDs, a few bytes whatever the count, so a
// small file can ask for millions of them. Past this many in one project the
// remaining fixtures are skipped: memory and time stay bounded whatever the
// file says (a project this size is already thousands of universes).
constexpr qint64 kMaxLedsPerProject = 500000;
// Largest square drawn per LED, in stage pixels; closer LEDs get 80 % of their spacing.
constexpr double kMaxPixelSize = 10.0;

struct RawFixture
{
    QXmlStreamAttributes attributes;
    QXmlStreamAttributes geometry;
    QVector<QPointF> points;
};

struct RawStage
{
    QString name;
    QString id;
    QVector<RawFixture> fixtures;
};

struct Findings
{
    OrderedNames sixteenBitTypes;
    OrderedNames ignoredChannels;
    qint64 splitPixels = 0;
    qint64 past512 = 0;
    qint64 otherProtocol = 0;
    OrderedNames protocols;
    qint64 unknownType = 0;
    OrderedNames unknownTypes;
    qint64 badUniverse = 0;
    qint64 incomplete = 0;
    qint64 sixteenBit = 0;
    qint64 leds = 0;       // LEDs taken so far
    qint64 overLimit = 0;  // fixtures skipped because the project already had kMaxLedsPerProject
};

struct LedType
{
    bool known = false;
    int channelsPerLed = 0;
    std::array<quint8, kSlotCount> roles{};
    bool sixteenBit = false;
    bool hasAmber = false;
};

// "RGB", "GRBW", "RGBAW", "RGB16", ...: one channel per letter (two with the
// 16-bit suffix, high byte first), in the order the letters name them.
LedType parseLedType(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^([RGBWA]{1,6})(16)?$"),
                                            QRegularExpression::CaseInsensitiveOption);
    LedType type;
    const QRegularExpressionMatch m = pattern.match(text.trimmed());
    if (!m.hasMatch())
        return type;
    const QString letters = m.captured(1).toUpper();
    type.known = true;
    type.sixteenBit = m.hasCaptured(2);
    const int width = type.sixteenBit ? 2 : 1;
    type.channelsPerLed = int(letters.size()) * width;
    for (qsizetype i = 0; i < letters.size(); ++i) {
        const QChar c = letters.at(i);
        const quint8 role = c == u'R'   ? RoleRed
                            : c == u'G' ? RoleGreen
                            : c == u'B' ? RoleBlue
                            : c == u'W' ? RoleWhite
                                        : RoleNone;
        type.hasAmber = type.hasAmber || c == u'A';
        const qsizetype slot = i * width;
        if (slot < kSlotCount)
            type.roles[slot] = role;
    }
    return type;
}

bool intAttribute(const QXmlStreamAttributes &a, const char *name, qint64 *value, qint64 fallback)
{
    const QStringView text = a.value(QLatin1StringView(name));
    if (text.isEmpty()) {
        *value = fallback;
        return fallback >= 0;
    }
    bool ok = false;
    *value = text.trimmed().toLongLong(&ok);
    return ok;
}

double doubleAttribute(const QXmlStreamAttributes &a, const char *name)
{
    bool ok = false;
    const double v = a.value(QLatin1StringView(name)).trimmed().toDouble(&ok);
    // Stage coordinates are screen pixels; anything beyond a million is damage, and keeping it finite keeps
    // the spacing arithmetic finite.
    constexpr double kLimit = 1e6;
    return ok && std::isfinite(v) ? std::clamp(v, -kLimit, kLimit) : 0.0;
}

QVector<qint32> parseIp(QStringView text)
{
    const QList<QStringView> parts = text.trimmed().split(u'.');
    if (parts.size() != 4)
        return {255, 255, 255, 255};
    QVector<qint32> ip;
    for (QStringView part : parts) {
        bool ok = false;
        const int octet = part.toInt(&ok);
        if (!ok || octet < 0 || octet > 255)
            return {255, 255, 255, 255};
        ip.append(octet);
    }
    return ip;
}

struct Parsed
{
    bool ok = false;
    PatchMessage error;
    QString appVersion;
    QVector<RawStage> stages;
    QHash<int, QVector<qint32>> universeIps;
};

// Only model/stages/stage is the patch: ELM also writes <stage> under its
// view and inside sequences, which say nothing about wiring.
Parsed parseXml(const QByteArray &bytes)
{
    Parsed parsed;
    QXmlStreamReader xml(bytes);
    QStringList path;
    bool sawRoot = false;
    const auto is = [&path](std::initializer_list<const char *> names) {
        if (path.size() != qsizetype(names.size()))
            return false;
        qsizetype i = 0;
        for (const char *n : names) {
            if (path.at(i++) != QLatin1StringView(n))
                return false;
        }
        return true;
    };
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement) {
            path.removeLast();
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (path.isEmpty() && xml.name() != QLatin1StringView("console")) {
            parsed.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "the <console> root element is missing"));
            return parsed;
        }
        sawRoot = true;
        if (!enterElement(xml, int(path.size()) + 1))
            break;
        path.append(xml.name().toString());
        const QXmlStreamAttributes a = xml.attributes();
        if (path.size() == 1) {
            parsed.appVersion = a.value(QLatin1StringView("appVersion")).toString();
        } else if (is({"console", "model", "stages", "stage"})) {
            parsed.stages.append(RawStage{a.value(QLatin1StringView("name")).toString(),
                                          a.value(QLatin1StringView("id")).toString(),
                                          {}});
        } else if (is({"console", "model", "stages", "stage", "fixtures", "fixture"})) {
            parsed.stages.last().fixtures.append(RawFixture{a, {}, {}});
        } else if (is({"console", "model", "stages", "stage", "fixtures", "fixture", "geometry"})) {
            parsed.stages.last().fixtures.last().geometry = a;
        } else if (is({"console", "model", "stages", "stage", "fixtures", "fixture", "geometry", "points",
                       "point"})) {
            parsed.stages.last().fixtures.last().points.append(
                QPointF(doubleAttribute(a, "x"), doubleAttribute(a, "y")));
        } else if (is({"console", "model", "output", "artnet", "universes", "universe"})) {
            bool ok = false;
            const int id = a.value(QLatin1StringView("id")).toInt(&ok);
            if (ok)
                parsed.universeIps.insert(id, parseIp(a.value(QLatin1StringView("IP"))));
        } else if (path.size() > 2 && !(path.at(1) == QLatin1StringView("model"))) {
            skipElement(xml, int(path.size())); // views, sequences, settings: not the patch
            path.removeLast();
        }
    }
    parsed.error = documentError(xml, sawRoot);
    if (!parsed.error.isEmpty())
        return parsed;
    parsed.ok = true;
    return parsed;
}

struct LedSlot
{
    int universe = 0;
    int channel = 0;
};

class Mapper
{
public:
    Findings findings;
    const QHash<int, QVector<qint32>> *ips = nullptr;

    // Maps one stage's fixtures; the group is left without torvoverses when none could be shown.
    PatchGroup mapStage(const RawStage &stage, int stageNumber);

private:
    void mapFixture(const RawFixture &raw, int fixtureNumber, QMap<int, Torvoverse> &torvoverses);
};

PatchGroup Mapper::mapStage(const RawStage &stage, int stageNumber)
{
    PatchGroup group;
    group.groupName = stage.name.isEmpty() ? QStringLiteral("Stage %1").arg(stageNumber) : stage.name;
    group.groupId = QUuid::fromString(stage.id);
    if (group.groupId.isNull())
        group.groupId = QUuid::createUuid();
    QMap<int, Torvoverse> torvoverses;
    for (qsizetype i = 0; i < stage.fixtures.size(); ++i)
        mapFixture(stage.fixtures.at(i), int(i) + 1, torvoverses);
    for (Torvoverse &t : torvoverses)
        group.torvoverses.append(std::move(t));
    return group;
}

void Mapper::mapFixture(const RawFixture &raw, int fixtureNumber, QMap<int, Torvoverse> &torvoverses)
{
    const QXmlStreamAttributes &a = raw.attributes;
    const QString protocol = a.value(QLatin1StringView("dmxProtocol")).trimmed().toString();
    if (!protocol.isEmpty() && protocol.compare(QLatin1StringView("ArtNet"), Qt::CaseInsensitive) != 0 &&
        protocol.compare(QLatin1StringView("Art-Net"), Qt::CaseInsensitive) != 0) {
        ++findings.otherProtocol;
        findings.protocols.add(protocol);
        return;
    }
    const QString typeText = a.value(QLatin1StringView("ledType")).trimmed().toString();
    const LedType type = parseLedType(typeText.isEmpty() ? QStringLiteral("RGB") : typeText);
    if (!type.known) {
        ++findings.unknownType;
        findings.unknownTypes.add(typeText);
        return;
    }
    qint64 leds = 0, startUniverse = 0, startAddress = 0, breakAfter = 0;
    const QXmlStreamAttributes &g = raw.geometry;
    if (!intAttribute(g, "nbLeds", &leds, -1) || leds < 1 || leds > kMaxLedsPerFixture ||
        raw.points.isEmpty() || !intAttribute(a, "startUniverse", &startUniverse, 0) ||
        !intAttribute(a, "startAddress", &startAddress, 0) ||
        !intAttribute(a, "breakUniverseAfter", &breakAfter, 0) || startAddress < 0 ||
        startAddress >= kUniverseChannels || breakAfter < 0) {
        ++findings.incomplete;
        return;
    }
    if (findings.leds + leds > kMaxLedsPerProject) {
        ++findings.overLimit;
        return;
    }
    findings.leds += leds;

    // Channel of every LED. breakUniverseAfter 0 packs the channels and runs
    // on into the next universe at 512; N starts a fresh universe (at channel
    // 0) after every N LEDs.
    QVector<LedSlot> ledSlots;
    ledSlots.reserve(leds);
    qint64 universe = startUniverse;
    qint64 channel = startAddress;
    bool split = false, past = false;
    for (qint64 i = 0; i < leds; ++i) {
        if (breakAfter > 0 && i > 0 && i % breakAfter == 0) {
            ++universe;
            channel = 0;
        }
        if (breakAfter == 0 && channel >= kUniverseChannels) {
            universe += channel / kUniverseChannels;
            channel %= kUniverseChannels;
        }
        if (universe < 0 || universe >= kPortAddressCount) {
            ++findings.badUniverse;
            return;
        }
        if (channel + type.channelsPerLed > kUniverseChannels) {
            split = split || breakAfter == 0;
            past = past || breakAfter > 0;
        }
        ledSlots.append({int(universe), int(channel)});
        channel += type.channelsPerLed;
    }
    findings.splitPixels += split ? 1 : 0;
    findings.past512 += past ? 1 : 0;
    if (type.sixteenBit) {
        ++findings.sixteenBit;
        findings.sixteenBitTypes.add(typeText.toUpper());
    }
    if (type.hasAmber)
        findings.ignoredChannels.add(QStringLiteral("A (%1)").arg(typeText.toUpper()));

    // Where ELM draws the LEDs, turned about the centre of the control points.
    const bool curve =
        g.value(QLatin1StringView("type")).compare(QLatin1StringView("curve"), Qt::CaseInsensitive) == 0;
    const bool loop =
        g.value(QLatin1StringView("loop")).compare(QLatin1StringView("true"), Qt::CaseInsensitive) == 0;
    QVector<double> angles;
    QVector<QPointF> points = elmLedPositions(raw.points, int(leds), curve, loop, &angles);
    const double rotation = doubleAttribute(g, "rotation");
    if (rotation != 0) {
        // Min and max by hand: QRectF::united drops the empty rectangles single points make.
        double left = raw.points.first().x(), right = left, top = raw.points.first().y(), bottom = top;
        for (const QPointF &p : raw.points) {
            left = std::min(left, p.x());
            right = std::max(right, p.x());
            top = std::min(top, p.y());
            bottom = std::max(bottom, p.y());
        }
        const QRectF box(QPointF(left, top), QPointF(right, bottom));
        const QTransform turn = QTransform()
                                    .translate(box.center().x(), box.center().y())
                                    .rotate(rotation)
                                    .translate(-box.center().x(), -box.center().y());
        for (QPointF &p : points)
            p = turn.map(p);
        for (double &angle : angles)
            angle += rotation;
    }
    double spacing = kMaxPixelSize / 0.8;
    if (leds > 1) {
        spacing = QLineF(points.at(0), points.at(1)).length();
        if (spacing <= 1e-9)
            spacing = kMaxPixelSize / 0.8;
    }
    const double pixelSize = std::clamp(spacing * 0.8, 1.0, kMaxPixelSize);

    QString name = a.value(QLatin1StringView("name")).toString();
    if (name.isEmpty()) {
        const QString group = a.value(QLatin1StringView("group")).toString();
        name = group.isEmpty() ? QStringLiteral("Fixture %1").arg(fixtureNumber)
                               : QStringLiteral("%1 %2").arg(group).arg(fixtureNumber);
    }

    // One fixture per universe the LEDs land in, in order.
    PatchFixture *part = nullptr;
    int partUniverse = -1;
    for (qint64 i = 0; i < leds; ++i) {
        const LedSlot &slot = ledSlots.at(i);
        if (!part || slot.universe != partUniverse) {
            Torvoverse &t = torvoverses[slot.universe];
            if (t.torvoverseName.isEmpty()) {
                t.torvoverseName = QStringLiteral("Universe %1").arg(slot.universe);
                t.Net = quint8(slot.universe >> 8);
                t.subNet = quint8((slot.universe >> 4) & 0xF);
                t.universe = quint16(slot.universe & 0xF);
                t.targetIP = ips->value(slot.universe, QVector<qint32>{255, 255, 255, 255});
            }
            t.fixtures.append(PatchFixture());
            part = &t.fixtures.last();
            part->fixtureName = name;
            part->maxChannelCount = quint16(std::min<qint64>(leds * type.channelsPerLed, 65535));
            part->countX = quint16(std::min<qint64>(leds, 65535));
            part->freePositions = true;
            part->pixelSize = pixelSize;
            part->hasLayout = true;
            partUniverse = slot.universe;
        }
        LedRecord led;
        led.posX = quint16(i);
        led.address = quint16(slot.channel);
        led.roles = type.roles;
        part->leds.append(led);
        part->pixelPoints.append(points.at(i));
        part->pixelRotations.append(angles.value(i));
        const QRectF cell(points.at(i) - QPointF(pixelSize / 2, pixelSize / 2), QSizeF(pixelSize, pixelSize));
        part->rect = part->rect.isNull() ? cell : part->rect.united(cell);
    }
}

PatchLoadResult emptyResult(const QString &sourcePath)
{
    return emptyImportResult(kFormatLabel, SourceKind::Elm, sourcePath);
}

void appendWarnings(const Findings &f, QVector<PatchMessage> &warnings)
{
    if (f.sixteenBit > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) use 16-bit LED types (%2); the "
                                                     "monitor shows the high byte of each color only."),
                         {f.sixteenBit, f.sixteenBitTypes.joined()}));
    warnIgnoredChannels(f.ignoredChannels, warnings);
    if (f.splitPixels > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) have a pixel split across a universe "
                                                     "boundary; its channels in the next universe are not "
                                                     "shown."),
                         {f.splitPixels}));
    warnPast512(f.past512, warnings);
    if (f.otherProtocol > 0)
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) output %2 rather than Art-Net and were skipped."),
            {f.otherProtocol, f.protocols.joined()}));
    if (f.unknownType > 0)
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch",
                              "%1 fixture(s) use LED types the tester does not know (%2) and were skipped."),
            {f.unknownType, f.unknownTypes.joined()}));
    warnBadUniverse(f.badUniverse, warnings);
    warnIncomplete(f.incomplete, warnings);
    if (f.overLimit > 0)
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) were skipped: the project has more than %2 LEDs."),
            {f.overLimit, kMaxLedsPerProject}));
}

} // namespace

PatchLoadResult parseElmProject(const QByteArray &bytes, const QString &fileName, const QString &sourcePath)
{
    PatchLoadResult result = emptyResult(sourcePath);
    const Parsed parsed = parseXml(bytes);
    if (!parsed.ok) {
        result.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" is not a readable ELM project: %2"),
                                    {fileName, parsed.error.untranslatedText()});
        return result;
    }
    Mapper mapper;
    mapper.ips = &parsed.universeIps;
    for (qsizetype i = 0; i < parsed.stages.size(); ++i) {
        PatchGroup group = mapper.mapStage(parsed.stages.at(i), int(i) + 1);
        if (!group.torvoverses.isEmpty())
            result.patch.groups.append(std::move(group));
    }
    appendWarnings(mapper.findings, result.warnings);
    if (result.patch.groups.isEmpty()) {
        result.error = nothingToShow(fileName);
        return result;
    }
    // A backup is named "<project>@@YYYY-MM-DD HHhMMm.elmbackup"; its project is the part before "@@".
    const QString base = QFileInfo(fileName).completeBaseName();
    result.patch.projectName = base.section(QStringLiteral("@@"), 0, 0);
    result.patch.importedFrom = parsed.appVersion.isEmpty()
                                    ? QStringLiteral("ENTTEC ELM")
                                    : QStringLiteral("ENTTEC ELM %1").arg(parsed.appVersion);
    result.ok = true;
    return result;
}

PatchLoadResult readElmProject(const QString &path)
{
    return readImport(path, parseElmProject, kFormatLabel, SourceKind::Elm);
}

} // namespace TPatch
