#include "cli/demopatch.h"

#include "patch/gridplacement.h"

using namespace TPatch;

namespace {

constexpr double kCell = 10;   // scene units per grid step of the matrices and strips
constexpr double kArcStep = 3; // scene units per grid step of the arcs (resizeFactor 1)

LedRecord pixelAt(int x, int y, int z, int address, std::initializer_list<quint8> roles)
{
    LedRecord r;
    r.posX = quint16(x);
    r.posY = quint16(y);
    r.posZ = quint16(z);
    r.address = quint16(address);
    int i = 0;
    for (quint8 role : roles)
        r.roles[i++] = role;
    return r;
}

// A countX x countY grid of pixels, channels packed row by row from address 0.
PatchFixture grid(const QString &name, int countX, int countY, int countZ, double x, double y,
                  std::initializer_list<quint8> roles)
{
    PatchFixture f;
    f.fixtureName = name;
    f.countX = quint16(countX);
    f.countY = quint16(countY);
    f.countZ = quint16(countZ);
    f.dimX = countX;
    f.dimY = countY;
    f.dimZ = countZ;
    int address = 0;
    for (int z = 0; z < countZ; ++z)
        for (int row = 0; row < countY; ++row)
            for (int col = 0; col < countX; ++col) {
                f.leds.append(pixelAt(col, row, z, address, roles));
                address += int(roles.size());
            }
    f.maxChannelCount = quint16(address);
    f.hasLayout = true;
    f.scenePosX = x;
    f.scenePosY = y;
    f.rect = QRectF(0, 0, countX * kCell, countY * kCell);
    return f;
}

PatchFixture arc(const QString &name, int pixels, double radius, double startDeg, double endDeg, double x,
                 double y, int firstAddress)
{
    PatchFixture f;
    f.fixtureName = name;
    f.isArc = true;
    f.arcRadius = radius;
    f.arcStartAngle = startDeg;
    f.arcEndAngle = endDeg;
    f.countX = quint16(pixels);
    f.dimX = pixels;
    for (int i = 0; i < pixels; ++i)
        f.leds.append(pixelAt(i, 0, 0, firstAddress + 3 * i, {RoleRed, RoleGreen, RoleBlue}));
    f.maxChannelCount = quint16(3 * pixels);
    // The editor keeps an arc's rectangle around its cells, one step being
    // resizeFactor x 3 scene units; the arc's centre then sits at scenePos
    // minus the cells' top-left corner. Centre the arc at (x + R, y + R).
    const QRectF cells = gridCellBounds(f);
    f.hasLayout = true;
    f.rect = QRectF(0, 0, cells.width() * kArcStep, cells.height() * kArcStep);
    f.scenePosX = x + radius + cells.left() * kArcStep;
    f.scenePosY = y + radius + cells.top() * kArcStep;
    return f;
}

Torvoverse torvoverse(const QString &name, int universe, int lastOctet)
{
    Torvoverse t;
    t.torvoverseName = name;
    t.universe = quint16(universe);
    t.PortNo = 1;
    t.targetIP = {2, 0, 0, lastOctet}; // Art-Net's 2.x.x.x range; only shown, never sent to
    return t;
}

PatchGroup group(const QString &name, const char *uuid, QColor colour)
{
    PatchGroup g;
    g.groupName = name;
    g.groupId = QUuid::fromString(QLatin1StringView(uuid));
    g.groupColor = colour;
    return g;
}

} // namespace

PatchData makeDemoPatch()
{
    PatchData patch;
    patch.fileFormatVersion = QStringLiteral("1.4");
    patch.projectName = QStringLiteral("Harbour Hall demo");
    patch.device = 0;
    patch.selectedChLimit = 512;
    patch.formatLabel = QStringLiteral("Torvane MOX patch (.tpatch)");

    // Facade: six 16 x 10 RGB matrices side by side, one universe each (480 channels).
    PatchGroup facade = group(QStringLiteral("Facade"), "{6f1c2a10-0d51-4c57-9a0e-1b9d8e3f0a01}", QColor(240, 130, 32));
    for (int i = 0; i < 6; ++i) {
        Torvoverse t = torvoverse(QStringLiteral("Facade %1").arg(i + 1), i, 11 + i);
        t.fixtures.append(grid(QStringLiteral("Matrix %1").arg(i + 1), 16, 10, 1, i * 170.0, 0,
                               {RoleRed, RoleGreen, RoleBlue}));
        facade.torvoverses.append(t);
    }
    patch.groups.append(facade);

    // Canopy: four universes, each a pair of 75-pixel half rings (450 channels) forming a full ring.
    PatchGroup canopy = group(QStringLiteral("Canopy"), "{6f1c2a10-0d51-4c57-9a0e-1b9d8e3f0a02}", QColor(64, 200, 255));
    for (int i = 0; i < 4; ++i) {
        Torvoverse t = torvoverse(QStringLiteral("Canopy ring %1").arg(i + 1), 6 + i, 21 + i);
        const double x = 40 + i * 250.0;
        t.fixtures.append(arc(QStringLiteral("Ring %1 upper").arg(i + 1), 75, 100, 0, 180, x, 160, 0));
        t.fixtures.append(arc(QStringLiteral("Ring %1 lower").arg(i + 1), 75, 100, 180, 360, x, 160, 225));
        canopy.torvoverses.append(t);
    }
    patch.groups.append(canopy);

    // Stage: RGBW bars, a kinetic ball curtain and a cube of two Z layers.
    PatchGroup stage = group(QStringLiteral("Stage"), "{6f1c2a10-0d51-4c57-9a0e-1b9d8e3f0a03}", QColor(255, 220, 120));
    Torvoverse bars = torvoverse(QStringLiteral("Stage bars"), 10, 31);
    for (int b = 0; b < 4; ++b) {
        PatchFixture bar = grid(QStringLiteral("RGBW bar %1").arg(b + 1), 30, 1, 1, 100, 400 + b * 20.0,
                                {RoleRed, RoleGreen, RoleBlue, RoleWhite});
        for (LedRecord &led : bar.leds)
            led.address = quint16(led.address + b * 120);
        bar.maxChannelCount = 120;
        bars.fixtures.append(bar);
    }
    stage.torvoverses.append(bars);

    Torvoverse kinetic = torvoverse(QStringLiteral("Ball curtain"), 11, 32);
    PatchFixture balls = grid(QStringLiteral("Kinetic balls"), 8, 1, 1, 500, 400, {});
    balls.leds.clear();
    for (int i = 0; i < 8; ++i) {
        // Each ball: 16-bit winch position on channels +0/+1, then RGB.
        LedRecord winch;
        winch.posX = quint16(i);
        winch.address = quint16(i * 5);
        winch.structures[0] = {1, kKineticPositionRole, true};
        balls.kinetics.append(winch);
        balls.leds.append(pixelAt(i, 0, 0, i * 5 + 2, {RoleRed, RoleGreen, RoleBlue}));
    }
    balls.maxChannelCount = 40;
    kinetic.fixtures.append(balls);
    stage.torvoverses.append(kinetic);

    Torvoverse cube = torvoverse(QStringLiteral("Cube"), 12, 33);
    cube.fixtures.append(grid(QStringLiteral("Cube 8x8x2"), 8, 8, 2, 640, 380, {RoleRed, RoleGreen, RoleBlue}));
    stage.torvoverses.append(cube);
    patch.groups.append(stage);

    // Floor: two 170-pixel RGB strips, a full universe each (510 channels).
    PatchGroup floor = group(QStringLiteral("Floor"), "{6f1c2a10-0d51-4c57-9a0e-1b9d8e3f0a04}", QColor(120, 255, 140));
    for (int i = 0; i < 2; ++i) {
        Torvoverse t = torvoverse(QStringLiteral("Floor strip %1").arg(i + 1), 13 + i, 41 + i);
        t.fixtures.append(grid(QStringLiteral("Strip %1").arg(i + 1), 170, 1, 1, 0, 560 + i * 30.0,
                               {RoleRed, RoleGreen, RoleBlue}));
        floor.torvoverses.append(t);
    }
    patch.groups.append(floor);
    return patch;
}
