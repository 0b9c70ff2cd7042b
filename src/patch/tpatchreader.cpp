#include "patch/tpatchreader.h"

#include "patch/patchfile.h"
#include "patch/patchkeys.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace TPatch {

namespace {

const char *const kFormatLabel = "Torvane MOX patch (.tpatch)";

// Integer keys: a missing key, a non-number or a number that is not a whole
// int reads as the default; the value is then narrowed to the field's width
// the way the sibling controller stores it.
int intOf(const QJsonObject &o, QLatin1StringView key, int def)
{
    return o.value(key).toInt(def);
}

double numberOf(const QJsonObject &o, QLatin1StringView key, double def)
{
    return o.value(key).toDouble(def);
}

quint8 roleOf(int value)
{
    return (value >= 0 && value < kRoleCount) ? quint8(value) : quint8(RoleNone);
}

void readItemCommon(const QJsonObject &o, LedRecord &record)
{
    record.posX = quint16(intOf(o, QLatin1StringView("posX"), 0));
    record.posY = quint16(intOf(o, QLatin1StringView("posY"), 0));
    record.posZ = quint16(intOf(o, QLatin1StringView("posZ"), 0));
    record.address = quint16(intOf(o, QLatin1StringView("address"), 0));
}

LedRecord readKinetic(const QJsonObject &o)
{
    LedRecord record;
    readItemCommon(o, record);
    const QJsonArray structures = o.value(QLatin1StringView("structures")).toArray();
    const int n = std::min<qsizetype>(structures.size(), kStructureCount);
    for (int i = 0; i < n; ++i) {
        const QJsonObject s = structures.at(i).toObject();
        record.structures[i].channel = quint8(intOf(s, QLatin1StringView("channel"), 0));
        record.structures[i].role = roleOf(intOf(s, QLatin1StringView("role"), 0));
        record.structures[i].is16Bit = intOf(s, QLatin1StringView("bitRes"), 0) == 1;
    }
    return record;
}

LedRecord readLed(const QJsonObject &o)
{
    LedRecord record;
    readItemCommon(o, record);
    const QJsonArray channels = o.value(QLatin1StringView("channels")).toArray();
    const int n = std::min<qsizetype>(channels.size(), kSlotCount);
    for (int i = 0; i < n; ++i)
        record.roles[i] = roleOf(channels.at(i).toInt(0));
    return record;
}

PatchFixture readFixture(const QJsonObject &o)
{
    PatchFixture f;
    f.fixtureName = o.value(QLatin1StringView("fixtureName")).toString();
    f.maxChannelCount = quint16(intOf(o, QLatin1StringView("maxChannelCount"), 0));
    f.isArc = intOf(o, QLatin1StringView("shapeType"), 0) == 1;
    f.arcRadius = numberOf(o, QLatin1StringView("arcRadius"), 50);
    f.arcStartAngle = numberOf(o, QLatin1StringView("arcStartAngle"), 0);
    f.arcEndAngle = numberOf(o, QLatin1StringView("arcEndAngle"), 180);
    f.countX = quint16(intOf(o, QLatin1StringView("countX"), 1));
    f.countY = quint16(intOf(o, QLatin1StringView("countY"), 1));
    f.countZ = quint16(intOf(o, QLatin1StringView("countZ"), 1));
    f.offsetX = quint16(intOf(o, QLatin1StringView("offsetX"), 0));
    f.offsetY = quint16(intOf(o, QLatin1StringView("offsetY"), 0));
    f.offsetZ = quint16(intOf(o, QLatin1StringView("offsetZ"), 0));
    const QJsonArray kinetics = o.value(QLatin1StringView("kinetics")).toArray();
    f.kinetics.reserve(kinetics.size());
    for (const QJsonValue &v : kinetics)
        f.kinetics.append(readKinetic(v.toObject()));
    const QJsonArray leds = o.value(QLatin1StringView("leds")).toArray();
    f.leds.reserve(leds.size());
    for (const QJsonValue &v : leds)
        f.leds.append(readLed(v.toObject()));
    return f;
}

Torvoverse readTorvoverse(const QJsonObject &o)
{
    Torvoverse t;
    t.torvoverseName = o.value(QLatin1StringView("torvoverseName")).toString();
    t.universe = quint16(intOf(o, QLatin1StringView("universe"), 0));
    t.subNet = quint8(intOf(o, QLatin1StringView("subNet"), 0));
    t.Net = quint8(intOf(o, QLatin1StringView("Net"), 0));
    t.PortNo = intOf(o, QLatin1StringView("PortNo"), 0);
    const QJsonArray ip = o.value(QLatin1StringView("targetIP")).toArray();
    if (ip.size() >= 4) {
        for (int i = 0; i < 4; ++i)
            t.targetIP[i] = ip.at(i).toInt(0);
    }
    const QJsonArray fixtures = o.value(QLatin1StringView("fixtures")).toArray();
    t.fixtures.reserve(fixtures.size());
    for (const QJsonValue &v : fixtures)
        t.fixtures.append(readFixture(v.toObject()));
    return t;
}

PatchGroup readGroup(const QJsonObject &o)
{
    PatchGroup g;
    g.groupName = o.value(QLatin1StringView("groupName")).toString();
    g.groupId = QUuid::fromString(o.value(QLatin1StringView("groupId")).toString());
    const QColor colour = QColor::fromString(o.value(QLatin1StringView("groupColor")).toString());
    g.groupColor = colour.isValid() ? colour : kDefaultGroupColor;
    const QJsonArray torvoverses = o.value(QLatin1StringView("torvoverses")).toArray();
    g.torvoverses.reserve(torvoverses.size());
    for (const QJsonValue &v : torvoverses)
        g.torvoverses.append(readTorvoverse(v.toObject()));
    return g;
}

// The sibling controller keys a fixture's layout entry by its tree position;
// indices are combined unmasked, exactly as it does, so out-of-range indices
// in a file collide the same way there and here.
quint64 layoutKey(qint64 group, qint64 torvoverse, qint64 fixture)
{
    return quint64(fixture) | (quint64(torvoverse) << 20) | (quint64(group) << 40);
}

struct SceneLayout
{
    double scenePosX = 0;
    double scenePosY = 0;
    double rotationAngle = 0;
    qint32 resizeFactor = 1;
    qint32 dimX = 1, dimY = 1, dimZ = 1;
    qint32 selectedZ = -1;
    QTransform cornerWarp;
    QRectF rect;
};

SceneLayout readLayout(const QJsonObject &o)
{
    SceneLayout l;
    l.scenePosX = numberOf(o, QLatin1StringView("scenePosX"), 0);
    l.scenePosY = numberOf(o, QLatin1StringView("scenePosY"), 0);
    l.rotationAngle = numberOf(o, QLatin1StringView("rotationAngle"), 0);
    l.resizeFactor = std::max(1, intOf(o, QLatin1StringView("resizeFactor"), 1));
    l.dimX = intOf(o, QLatin1StringView("dimX"), 1);
    l.dimY = intOf(o, QLatin1StringView("dimY"), 1);
    l.dimZ = intOf(o, QLatin1StringView("dimZ"), 1);
    l.selectedZ = intOf(o, QLatin1StringView("selectedZ"), -1);
    const QJsonArray warp = o.value(QLatin1StringView("cornerWarp")).toArray();
    if (warp.size() >= 9) {
        double m[9];
        for (int i = 0; i < 9; ++i)
            m[i] = warp.at(i).toDouble(0);
        l.cornerWarp = QTransform(m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8]);
    }
    const QJsonArray rect = o.value(QLatin1StringView("rect")).toArray();
    if (rect.size() >= 4)
        l.rect = QRectF(rect.at(0).toDouble(0), rect.at(1).toDouble(0), rect.at(2).toDouble(0),
                        rect.at(3).toDouble(0));
    return l;
}

QHash<quint64, SceneLayout> readLayouts(const QJsonObject &root)
{
    QHash<quint64, SceneLayout> layouts;
    const QJsonArray items =
        root.value(QLatin1StringView("sceneLayout")).toObject().value(QLatin1StringView("ledItems")).toArray();
    for (const QJsonValue &v : items) {
        const QJsonObject o = v.toObject();
        const quint64 key = layoutKey(intOf(o, QLatin1StringView("grpIndex"), -1),
                                      intOf(o, QLatin1StringView("torvoIndex"), -1),
                                      intOf(o, QLatin1StringView("fixIndex"), -1));
        layouts.insert(key, readLayout(o)); // a later entry replaces an earlier one
    }
    return layouts;
}

// Attaches layouts and returns how many fixtures have none that can be drawn.
qint64 attachLayouts(PatchData &patch, const QHash<quint64, SceneLayout> &layouts)
{
    qint64 unusable = 0;
    for (qsizetype g = 0; g < patch.groups.size(); ++g) {
        auto &torvoverses = patch.groups[g].torvoverses;
        for (qsizetype t = 0; t < torvoverses.size(); ++t) {
            auto &fixtures = torvoverses[t].fixtures;
            for (qsizetype f = 0; f < fixtures.size(); ++f) {
                PatchFixture &fixture = fixtures[f];
                const auto it = layouts.constFind(layoutKey(g, t, f));
                if (it != layouts.constEnd()) {
                    const SceneLayout &l = *it;
                    fixture.scenePosX = l.scenePosX;
                    fixture.scenePosY = l.scenePosY;
                    fixture.rotationAngle = l.rotationAngle;
                    fixture.resizeFactor = l.resizeFactor;
                    fixture.dimX = l.dimX;
                    fixture.dimY = l.dimY;
                    fixture.dimZ = l.dimZ;
                    fixture.selectedZ = l.selectedZ;
                    fixture.cornerWarp = l.cornerWarp;
                    fixture.rect = l.rect;
                    fixture.hasLayout = l.rect.width() > 0 && l.rect.height() > 0;
                }
                if (!fixture.hasLayout)
                    ++unusable;
            }
        }
    }
    return unusable;
}

void checkUniverses(const PatchData &patch, QVector<PatchMessage> &warnings)
{
    QSet<int> truncated;
    QMap<quint16, int> torvoversesPerAddress;
    for (const PatchGroup &group : patch.groups) {
        for (const Torvoverse &t : group.torvoverses) {
            if (t.universe > 15)
                truncated.insert(t.universe);
            ++torvoversesPerAddress[portAddress(t)];
        }
    }
    if (!truncated.isEmpty()) {
        QStringList numbers;
        for (int u : truncated)
            numbers.append(QString::number(u));
        numbers.sort(); // as text, the way the sibling controller lists them: 100 before 16
        warnings.append(PatchMessage(QT_TRANSLATE_NOOP("TPatch",
                                                       "Universe numbers above 15 are truncated to 4 bits on "
                                                       "the wire (Art-Net PortAddress). Affected universes: %1"),
                                     {numbers.join(QStringLiteral(", "))}));
    }
    QStringList shared;
    for (auto it = torvoversesPerAddress.constBegin(); it != torvoversesPerAddress.constEnd(); ++it) {
        if (it.value() > 1)
            shared.append(QStringLiteral("%1 x%2").arg(formatPortAddress(it.key())).arg(it.value()));
    }
    if (!shared.isEmpty()) {
        shared.sort();
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 port address(es) are used by more than one torvoverse (%2). Recorded "
                                        "playback can still tell them apart by frame order, but a live capture "
                                        "at a single IP will only see one device's data."),
            {qint64(shared.size()), shared.join(QStringLiteral(", "))}));
    }
}

} // namespace

QString formatPortAddress(quint16 portAddress)
{
    return QStringLiteral("0x") + QStringLiteral("%1").arg(portAddress, 4, 16, QLatin1Char('0')).toUpper();
}

PatchLoadResult parseTPatch(const QByteArray &bytes, const QString &fileName, const QString &sourcePath)
{
    PatchLoadResult result;
    result.patch.formatLabel = QString::fromLatin1(kFormatLabel);
    result.patch.sourceKind = SourceKind::Native;

    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (document.isNull() || !document.isObject()) {
        // A valid document whose root is an array carries no parser error; say what is wrong anyway.
        const QString reason = parseError.error != QJsonParseError::NoError
                                   ? parseError.errorString()
                                   : QStringLiteral("the root is not a JSON object");
        result.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" is not a valid .tpatch file: %2"),
                                    {fileName, reason});
        return result;
    }
    const QJsonObject root = document.object();

    PatchData patch;
    patch.formatLabel = result.patch.formatLabel;
    patch.sourceKind = SourceKind::Native;
    patch.sourcePath = sourcePath;
    patch.fileFormatVersion = root.value(QLatin1StringView("fileFormatVersion")).toString();
    const QJsonObject params = root.value(QLatin1StringView("projectParams")).toObject();
    patch.projectName = params.value(QLatin1StringView("projectName")).toString();
    patch.device = intOf(params, QLatin1StringView("device"), 0);
    patch.protocol = intOf(params, QLatin1StringView("protocol"), 0);
    patch.selectedChLimit = intOf(params, QLatin1StringView("selectedChLimit"), 512);

    const QJsonArray groups = root.value(QLatin1StringView("corePatchData")).toArray();
    if (groups.isEmpty()) {
        result.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" contains no groups."), {fileName});
        return result;
    }
    patch.groups.reserve(groups.size());
    for (const QJsonValue &v : groups)
        patch.groups.append(readGroup(v.toObject()));

    const qint64 unusable = attachLayouts(patch, readLayouts(root));
    if (unusable > 0) {
        result.warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) have no usable scene layout and will not be drawn."),
            {unusable}));
    }
    checkUniverses(patch, result.warnings);

    result.patch = std::move(patch);
    result.ok = true;
    return result;
}

PatchLoadResult readTPatch(const QString &path)
{
    QByteArray bytes;
    PatchLoadResult result;
    if (!readPatchFile(path, &bytes, &result.error)) {
        result.patch.formatLabel = QString::fromLatin1(kFormatLabel);
        return result;
    }
    return parseTPatch(bytes, QFileInfo(path).fileName(), path);
}

} // namespace TPatch
