#pragma once

#include <QByteArray>
#include <QPair>
#include <QPointF>
#include <QString>
#include <QVector>

// Our own ENTTEC ELM project generator: the attribute-only XML shape ELM
// writes (no declaration, stages under console/model/stages), from a plain
// description. Values are text so that broken files can be described too.

struct ElmSampleFixture
{
    QString group = QStringLiteral("Strips");
    QString ledType = QStringLiteral("RGB");
    QString protocol = QStringLiteral("ArtNet");
    QString startUniverse = QStringLiteral("0");
    QString startAddress = QStringLiteral("0");
    QString breakUniverseAfter = QStringLiteral("0");
    QString leds = QStringLiteral("10");
    QString type = QStringLiteral("line");
    QString rotation = QStringLiteral("0");
    QString loop; // empty: attribute left out
    QVector<QPointF> points{{0, 0}, {90, 0}};
};

struct ElmSampleStage
{
    QString name = QStringLiteral("Stage 1");
    QString id = QStringLiteral("{6f1c2a1e-3b7d-4c55-9e0a-1d2b3c4d5e6f}");
    QVector<ElmSampleFixture> fixtures;
};

struct ElmSample
{
    QString appVersion = QStringLiteral("1.0.0.673");
    QVector<ElmSampleStage> stages;
    QVector<QPair<int, QString>> universeIps; // model/output/artnet/universes
    bool crlf = false;
    bool decoyStages = true; // <stage> elements under view and in a sequence, which are not the patch
};

QByteArray writeElmXml(const ElmSample &sample);

// A small show: a looped curve of RGBW, a line of GRB running across a
// universe boundary, and an RGB16 bar, on one stage.
ElmSample makeElmDemo();
