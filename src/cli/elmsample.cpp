#include "cli/elmsample.h"

#include <QXmlStreamWriter>

namespace {

void writeStage(QXmlStreamWriter &xml, const ElmSampleStage &stage)
{
    xml.writeStartElement(QStringLiteral("stage"));
    xml.writeAttribute(QStringLiteral("name"), stage.name);
    xml.writeAttribute(QStringLiteral("id"), stage.id);
    xml.writeAttribute(QStringLiteral("width"), QStringLiteral("1920"));
    xml.writeAttribute(QStringLiteral("height"), QStringLiteral("1080"));
    xml.writeAttribute(QStringLiteral("merge"), QStringLiteral("False"));
    xml.writeAttribute(QStringLiteral("hidden"), QStringLiteral("False"));
    xml.writeAttribute(QStringLiteral("locked"), QStringLiteral("False"));
    xml.writeStartElement(QStringLiteral("fixtures"));
    for (const ElmSampleFixture &f : stage.fixtures) {
        xml.writeStartElement(QStringLiteral("fixture"));
        xml.writeAttribute(QStringLiteral("group"), f.group);
        xml.writeAttribute(QStringLiteral("group2"), QString());
        xml.writeAttribute(QStringLiteral("ledType"), f.ledType);
        xml.writeAttribute(QStringLiteral("dmxProtocol"), f.protocol);
        xml.writeAttribute(QStringLiteral("startUniverse"), f.startUniverse);
        xml.writeAttribute(QStringLiteral("startAddress"), f.startAddress);
        xml.writeAttribute(QStringLiteral("breakUniverseAfter"), f.breakUniverseAfter);
        xml.writeStartElement(QStringLiteral("geometry"));
        xml.writeAttribute(QStringLiteral("nbLeds"), f.leds);
        xml.writeAttribute(QStringLiteral("type"), f.type);
        xml.writeAttribute(QStringLiteral("rotation"), f.rotation);
        if (!f.loop.isEmpty())
            xml.writeAttribute(QStringLiteral("loop"), f.loop);
        xml.writeStartElement(QStringLiteral("points"));
        for (const QPointF &p : f.points) {
            xml.writeEmptyElement(QStringLiteral("point"));
            xml.writeAttribute(QStringLiteral("x"), QString::number(p.x()));
            xml.writeAttribute(QStringLiteral("y"), QString::number(p.y()));
        }
        xml.writeEndElement(); // points
        xml.writeEndElement(); // geometry
        xml.writeEndElement(); // fixture
    }
    xml.writeEndElement(); // fixtures
    xml.writeEndElement(); // stage
}

} // namespace

QByteArray writeElmXml(const ElmSample &sample)
{
    QByteArray out;
    QXmlStreamWriter xml(&out);
    xml.setAutoFormatting(true);
    xml.writeStartElement(QStringLiteral("console"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("appVersion"), sample.appVersion);
    if (sample.decoyStages) {
        // A stage that is only a view of the first one; it must not be read as wiring.
        xml.writeStartElement(QStringLiteral("view"));
        ElmSampleStage decoy;
        decoy.name = QStringLiteral("View of stage");
        decoy.fixtures.append(ElmSampleFixture());
        writeStage(xml, decoy);
        xml.writeEndElement();
    }
    xml.writeStartElement(QStringLiteral("model"));
    xml.writeStartElement(QStringLiteral("stages"));
    for (const ElmSampleStage &stage : sample.stages)
        writeStage(xml, stage);
    xml.writeEndElement(); // stages
    if (sample.decoyStages) {
        xml.writeStartElement(QStringLiteral("sequences"));
        xml.writeStartElement(QStringLiteral("sequence"));
        ElmSampleStage decoy;
        decoy.fixtures.append(ElmSampleFixture());
        writeStage(xml, decoy);
        xml.writeEndElement();
        xml.writeEndElement();
    }
    xml.writeStartElement(QStringLiteral("output"));
    xml.writeStartElement(QStringLiteral("artnet"));
    xml.writeStartElement(QStringLiteral("universes"));
    for (const auto &u : sample.universeIps) {
        xml.writeEmptyElement(QStringLiteral("universe"));
        xml.writeAttribute(QStringLiteral("id"), QString::number(u.first));
        xml.writeAttribute(QStringLiteral("IP"), u.second);
    }
    xml.writeEndElement(); // universes
    xml.writeEndElement(); // artnet
    xml.writeEndElement(); // output
    xml.writeEndElement(); // model
    xml.writeEndElement(); // console
    if (sample.crlf)
        out.replace("\n", "\r\n");
    return out;
}

ElmSample makeElmDemo()
{
    ElmSample sample;
    ElmSampleStage stage;
    stage.name = QStringLiteral("Facade");

    ElmSampleFixture ring;
    ring.group = QStringLiteral("Ring");
    ring.ledType = QStringLiteral("RGBW");
    ring.leds = QStringLiteral("60");
    ring.type = QStringLiteral("curve");
    ring.loop = QStringLiteral("True");
    ring.points = {{400, 100}, {500, 200}, {400, 300}, {300, 200}};
    stage.fixtures.append(ring);

    ElmSampleFixture line;
    line.group = QStringLiteral("Eaves");
    line.ledType = QStringLiteral("GRB");
    line.leds = QStringLiteral("200");
    line.startUniverse = QStringLiteral("1");
    line.points = {{20, 400}, {1000, 400}, {1000, 600}};
    stage.fixtures.append(line);

    ElmSampleFixture bar;
    bar.group = QStringLiteral("Bar");
    bar.ledType = QStringLiteral("RGB16");
    bar.leds = QStringLiteral("32");
    bar.startUniverse = QStringLiteral("3");
    bar.breakUniverseAfter = QStringLiteral("16");
    bar.rotation = QStringLiteral("90");
    bar.points = {{600, 700}, {920, 700}};
    stage.fixtures.append(bar);

    sample.stages.append(stage);
    sample.universeIps = {{1, QStringLiteral("192.0.2.2")}, {2, QStringLiteral("192.0.2.2")}};
    sample.crlf = true;
    return sample;
}
