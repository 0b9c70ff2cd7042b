#include "patch/tpatchwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace TPatch {

namespace {

QJsonObject itemCommon(const LedRecord &r)
{
    return QJsonObject{{QStringLiteral("posX"), r.posX},
                       {QStringLiteral("posY"), r.posY},
                       {QStringLiteral("posZ"), r.posZ},
                       {QStringLiteral("address"), r.address}};
}

QJsonObject kineticItem(const LedRecord &r)
{
    QJsonObject o = itemCommon(r);
    QJsonArray structures;
    for (const KineticStructure &s : r.structures) {
        structures.append(QJsonObject{{QStringLiteral("channel"), s.channel},
                                      {QStringLiteral("role"), s.role},
                                      {QStringLiteral("bitRes"), s.is16Bit ? 1 : 0}});
    }
    o.insert(QStringLiteral("structures"), structures);
    return o;
}

QJsonObject ledItem(const LedRecord &r)
{
    QJsonObject o = itemCommon(r);
    QJsonArray channels;
    int used = kSlotCount;
    while (used > 0 && r.roles[used - 1] == RoleNone)
        --used;
    for (int i = 0; i < used; ++i)
        channels.append(r.roles[i]);
    o.insert(QStringLiteral("channels"), channels);
    return o;
}

QJsonObject fixtureObject(const PatchFixture &f)
{
    QJsonArray kinetics, leds;
    for (const LedRecord &r : f.kinetics)
        kinetics.append(kineticItem(r));
    for (const LedRecord &r : f.leds)
        leds.append(ledItem(r));
    return QJsonObject{{QStringLiteral("fixtureName"), f.fixtureName},
                       {QStringLiteral("maxChannelCount"), f.maxChannelCount},
                       {QStringLiteral("shapeType"), f.isArc ? 1 : 0},
                       {QStringLiteral("arcRadius"), f.arcRadius},
                       {QStringLiteral("arcStartAngle"), f.arcStartAngle},
                       {QStringLiteral("arcEndAngle"), f.arcEndAngle},
                       {QStringLiteral("countX"), f.countX},
                       {QStringLiteral("countY"), f.countY},
                       {QStringLiteral("countZ"), f.countZ},
                       {QStringLiteral("offsetX"), f.offsetX},
                       {QStringLiteral("offsetY"), f.offsetY},
                       {QStringLiteral("offsetZ"), f.offsetZ},
                       {QStringLiteral("kinetics"), kinetics},
                       {QStringLiteral("leds"), leds}};
}

QJsonObject layoutObject(const PatchFixture &f, int group, int torvoverse, int fixture)
{
    const QTransform &w = f.cornerWarp;
    return QJsonObject{
        {QStringLiteral("grpIndex"), group},
        {QStringLiteral("torvoIndex"), torvoverse},
        {QStringLiteral("fixIndex"), fixture},
        {QStringLiteral("scenePosX"), f.scenePosX},
        {QStringLiteral("scenePosY"), f.scenePosY},
        {QStringLiteral("rotationAngle"), f.rotationAngle},
        {QStringLiteral("resizeFactor"), f.resizeFactor},
        {QStringLiteral("dimX"), f.dimX},
        {QStringLiteral("dimY"), f.dimY},
        {QStringLiteral("dimZ"), f.dimZ},
        {QStringLiteral("selectedZ"), f.selectedZ},
        {QStringLiteral("cornerWarp"),
         QJsonArray{w.m11(), w.m12(), w.m13(), w.m21(), w.m22(), w.m23(), w.m31(), w.m32(), w.m33()}},
        {QStringLiteral("rect"), QJsonArray{f.rect.x(), f.rect.y(), f.rect.width(), f.rect.height()}}};
}

} // namespace

QByteArray writeTPatch(const PatchData &patch)
{
    QJsonArray groups;
    QJsonArray layouts;
    for (int g = 0; g < patch.groups.size(); ++g) {
        const PatchGroup &group = patch.groups.at(g);
        QJsonArray torvoverses;
        for (int t = 0; t < group.torvoverses.size(); ++t) {
            const Torvoverse &tv = group.torvoverses.at(t);
            QJsonArray fixtures;
            for (int f = 0; f < tv.fixtures.size(); ++f) {
                fixtures.append(fixtureObject(tv.fixtures.at(f)));
                layouts.append(layoutObject(tv.fixtures.at(f), g, t, f));
            }
            QJsonArray ip;
            for (qint32 octet : tv.targetIP)
                ip.append(octet);
            torvoverses.append(QJsonObject{{QStringLiteral("torvoverseName"), tv.torvoverseName},
                                           {QStringLiteral("universe"), tv.universe},
                                           {QStringLiteral("subNet"), tv.subNet},
                                           {QStringLiteral("Net"), tv.Net},
                                           {QStringLiteral("PortNo"), tv.PortNo},
                                           {QStringLiteral("targetIP"), ip},
                                           {QStringLiteral("fixtures"), fixtures}});
        }
        groups.append(QJsonObject{{QStringLiteral("groupName"), group.groupName},
                                  {QStringLiteral("groupId"), group.groupId.toString(QUuid::WithBraces)},
                                  {QStringLiteral("groupColor"), group.groupColor.name(QColor::HexArgb)},
                                  {QStringLiteral("torvoverses"), torvoverses}});
    }
    const QJsonObject root{
        {QStringLiteral("fileFormatVersion"), patch.fileFormatVersion},
        {QStringLiteral("projectParams"), QJsonObject{{QStringLiteral("projectName"), patch.projectName},
                                                      {QStringLiteral("device"), patch.device},
                                                      {QStringLiteral("protocol"), patch.protocol},
                                                      {QStringLiteral("selectedChLimit"), patch.selectedChLimit}}},
        {QStringLiteral("corePatchData"), groups},
        {QStringLiteral("sceneLayout"), QJsonObject{{QStringLiteral("ledItems"), layouts}}}};
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

} // namespace TPatch
