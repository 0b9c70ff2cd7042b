#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QUuid>
#include <QVector>

#include <array>

// The patch tree: groups hold torvoverses (output devices), torvoverses hold
// fixtures, fixtures hold pixel and kinetic records. Every list keeps file
// order, and indices into the lists are the identities the layout, the filter
// panel and the pixel list use. A PatchData is built once per load and never
// edited afterwards.
namespace TPatch {

// Role of one DMX slot of a pixel. Values of 7 and up read from a file become None.
enum SlotRole : quint8 {
    RoleNone = 0,
    RoleRed = 1,
    RoleGreen = 2,
    RoleBlue = 3,
    RoleWhite = 4,
    RoleCoolWhite = 5,
    RoleWarmWhite = 6,
};
constexpr int kRoleCount = 7;
constexpr int kSlotCount = 6;      // a pixel shows at most six slots
constexpr int kStructureCount = 8; // a kinetic item describes at most eight channels
// In a kinetic item's structures, role 6 marks the position channel.
constexpr quint8 kKineticPositionRole = 6;

struct KineticStructure
{
    quint8 channel = 0;
    quint8 role = 0;
    bool is16Bit = false;
};

// One colour pixel (channels form) or one kinetic item (structures form).
struct LedRecord
{
    quint16 posX = 0;
    quint16 posY = 0;
    quint16 posZ = 0;
    quint16 address = 0; // zero-based first DMX channel inside the universe
    std::array<quint8, kSlotCount> roles{};
    std::array<KineticStructure, kStructureCount> structures{};
};

struct PatchFixture
{
    QString fixtureName;
    quint16 maxChannelCount = 0;
    bool isArc = false;
    double arcRadius = 50;
    double arcStartAngle = 0;
    double arcEndAngle = 180;
    quint16 countX = 1, countY = 1, countZ = 1;
    quint16 offsetX = 0, offsetY = 0, offsetZ = 0;
    QVector<LedRecord> kinetics;
    QVector<LedRecord> leds;

    // Scene layout
    bool hasLayout = false;
    double scenePosX = 0;
    double scenePosY = 0;
    double rotationAngle = 0;
    QRectF rect;
    QTransform cornerWarp;
    qint32 resizeFactor = 1;
    qint32 dimX = 1, dimY = 1, dimZ = 1;
    qint32 selectedZ = -1;

    // Free positions (ELM): each pixel of leds carries its own scene point.
    bool freePositions = false;
    QVector<QPointF> pixelPoints;
    QVector<double> pixelRotations; // may be shorter than pixelPoints
    double pixelSize = 10;
};

struct Torvoverse
{
    QString torvoverseName;
    quint16 universe = 0; // as entered; only the low 4 bits reach the wire
    quint8 subNet = 0;
    quint8 Net = 0;
    qint32 PortNo = 0;
    QVector<qint32> targetIP{255, 255, 255, 255};
    QVector<PatchFixture> fixtures;
};

inline const QColor kDefaultGroupColor{240, 130, 32};

struct PatchGroup
{
    QUuid groupId;
    QString groupName;
    QColor groupColor = kDefaultGroupColor;
    QVector<Torvoverse> torvoverses;
};

enum class SourceKind { Native, Madrix, Elm };

struct PatchData
{
    QString fileFormatVersion;
    QString projectName;
    qint32 device = 0;
    qint32 protocol = 0;
    qint32 selectedChLimit = 512;
    QString sourcePath;
    QString importedFrom;
    QVector<PatchGroup> groups;
    QString formatLabel;
    SourceKind sourceKind = SourceKind::Native;
};

struct PatchCounts
{
    qint64 groups = 0;
    qint64 torvoverses = 0;
    qint64 fixtures = 0;
    qint64 pixels = 0;   // leds records
    qint64 kinetics = 0; // kinetics records
};

PatchCounts countPatch(const PatchData &patch);

} // namespace TPatch
