#include "monitor/pixeltexts.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct Names
{
    QString group, torvoverse, fixture;
};

Names namesOf(const TPatch::PatchData &patch, const TPatch::LayoutPixel &p)
{
    Names n;
    if (p.groupIndex < 0 || p.groupIndex >= patch.groups.size())
        return n;
    const TPatch::PatchGroup &g = patch.groups.at(p.groupIndex);
    n.group = g.groupName;
    if (p.torvoverseIndex < 0 || p.torvoverseIndex >= g.torvoverses.size())
        return n;
    const TPatch::Torvoverse &t = g.torvoverses.at(p.torvoverseIndex);
    n.torvoverse = t.torvoverseName;
    if (p.fixtureIndex >= 0 && p.fixtureIndex < t.fixtures.size())
        n.fixture = t.fixtures.at(p.fixtureIndex).fixtureName;
    return n;
}

QString hex4(quint16 value)
{
    return QStringLiteral("%1").arg(value, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

namespace PixelTexts {

QString roleName(quint8 role)
{
    static const char *const kNames[] = {"", "R", "G", "B", "W", "CW", "WW"};
    return role < std::size(kNames) ? QString::fromLatin1(kNames[role]) : QString();
}

QString toolTip(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout, int pixelNumber)
{
    if (pixelNumber < 0 || pixelNumber >= layout.pixels.size())
        return {};
    auto tr = [](const char *text) { return QCoreApplication::translate("LedMonitorView", text); };
    const TPatch::LayoutPixel &p = layout.pixels.at(pixelNumber);
    const Names n = namesOf(patch, p);
    QStringList slotTexts;
    for (int i = 0; i < TPatch::kSlotCount; ++i) {
        if (p.roles[i] != TPatch::RoleNone)
            // DMX channels are counted from 1 for people.
            slotTexts << tr("%1 @ %2").arg(roleName(p.roles[i])).arg(int(p.startChannel) + i + 1);
    }
    const QString fixture = n.fixture.isEmpty() ? tr("Fixture") : n.fixture.toHtmlEscaped();
    return QStringLiteral("<b>%1</b><br>%2<br>%3<br>%4<br>%5 &nbsp;&nbsp; Z: %6<br>%7")
        .arg(fixture, tr("Group: %1").arg(n.group.toHtmlEscaped()),
             tr("Torvoverse: %1").arg(n.torvoverse.toHtmlEscaped()), tr("Port address: 0x%1").arg(hex4(p.portAddress)),
             tr("Start channel: %1").arg(int(p.startChannel) + 1), QString::number(p.z),
             tr("Slots: %1").arg(slotTexts.isEmpty() ? tr("none") : slotTexts.join(QStringLiteral(", "))));
}

QString hoverHint(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout, int pixelNumber, QRgb colour)
{
    if (pixelNumber < 0 || pixelNumber >= layout.pixels.size())
        return {};
    const TPatch::LayoutPixel &p = layout.pixels.at(pixelNumber);
    const Names n = namesOf(patch, p);
    return QCoreApplication::translate("MainWindow", "%1 / %2 · port 0x%3 · channel %4 · Z %5 · rgb(%6, %7, %8)")
        .arg(n.group, n.torvoverse, hex4(p.portAddress))
        .arg(int(p.startChannel) + 1)
        .arg(p.z)
        .arg(qRed(colour))
        .arg(qGreen(colour))
        .arg(qBlue(colour));
}

} // namespace PixelTexts
