#include "cli/colourcommand.h"

#include "cli/clicommon.h"
#include "monitor/pixelcolourbuffer.h"

#include <QJsonArray>

#include <optional>

namespace {

constexpr int kMaxUniverseBytes = 512; // one DMX universe

// "R", "g", "CW", "4", "-", "none" -> role code; nullopt when unknown.
std::optional<quint8> parseRole(const QString &token)
{
    static const char *const kNames[] = {"none", "R", "G", "B", "W", "CW", "WW"};
    const QString t = token.trimmed();
    if (t == QLatin1StringView("-"))
        return TPatch::RoleNone;
    for (int i = 0; i < TPatch::kRoleCount; ++i) {
        if (t.compare(QLatin1StringView(kNames[i]), Qt::CaseInsensitive) == 0)
            return quint8(i);
    }
    bool ok = false;
    const int code = t.toInt(&ok);
    if (ok && code >= 0 && code < TPatch::kRoleCount)
        return quint8(code);
    return std::nullopt;
}

// Decimal or 0x-prefixed hexadecimal, 0..255.
std::optional<quint8> parseByte(const QString &token)
{
    bool ok = false;
    const int value = token.trimmed().toInt(&ok, 0);
    if (!ok || value < 0 || value > 255)
        return std::nullopt;
    return quint8(value);
}

QString hexColour(QRgb argb)
{
    return QStringLiteral("0x%1").arg(argb, 8, 16, QLatin1Char('0')).toUpper().replace(QStringLiteral("0X"),
                                                                                         QStringLiteral("0x"));
}

} // namespace

int runColourCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Evaluates one pixel against a universe's DMX bytes exactly as the monitor does and prints its colour\n"
        "as 0xAARRGGBB (alpha is always FF). Useful to check what a fixture profile will show.\n"
        "\n"
        "The bytes are the universe from its first channel on: decimal or 0x-hexadecimal values 0-255, as\n"
        "separate arguments or comma-separated, at most 512. The pixel's slot i reads the byte at\n"
        "start + i; slots past the last byte read 0.\n"
        "\n"
        "Roles, in slot order, at most six: R, G, B, W, CW, WW, or - (none); role codes 0-6 work too.\n"
        "With --white the W / CW / WW slots are added in linear light (cool white as 0.831, 0.855, 1.0,\n"
        "warm white as 1.0, 0.397, 0.095); without it they are ignored.\n"
        "\n"
        "Example: talu-cli colour --roles R,G,B,W --white 0,0,0,255   prints 0xFFFFFFFF\n"
        "\n"
        "With --json, one object: colour (text 0xAARRGGBB), red, green, blue (integers), white (bool),\n"
        "slots (array of six: the byte each slot read, or null for a slot without a role or past the data),\n"
        "peakWhite (the white peak the monitor's status line would report).\n"
        "Exit codes: 0 evaluated, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("bytes"), QStringLiteral("The universe's bytes from channel 1 on."),
                                 QStringLiteral("BYTE..."));
    const QCommandLineOption roles(QStringLiteral("roles"), QStringLiteral("Slot roles, comma-separated (default R,G,B)."),
                                   QStringLiteral("list"), QStringLiteral("R,G,B"));
    const QCommandLineOption start(QStringLiteral("start"),
                                   QStringLiteral("Zero-based channel of the first slot (default 0)."),
                                   QStringLiteral("channel"), QStringLiteral("0"));
    const QCommandLineOption white(QStringLiteral("white"), QStringLiteral("Add the W / CW / WW slots to the colour."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({roles, start, white, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("colour"), arguments))
        return *done;

    TPatch::LayoutPixel pixel;
    const QStringList roleTokens = parser.value(roles).split(QLatin1Char(','));
    if (roleTokens.size() > TPatch::kSlotCount) {
        printErr(QStringLiteral("talu-cli colour: a pixel has at most six slots."));
        return ExitUsage;
    }
    for (int i = 0; i < roleTokens.size(); ++i) {
        const std::optional<quint8> role = parseRole(roleTokens.at(i));
        if (!role) {
            printErr(QStringLiteral("talu-cli colour: unknown role \"%1\" (use R, G, B, W, CW, WW or -).")
                         .arg(roleTokens.at(i)));
            return ExitUsage;
        }
        pixel.roles[i] = *role;
    }
    bool ok = false;
    const int startChannel = parser.value(start).toInt(&ok);
    if (!ok || startChannel < 0 || startChannel > 65535) {
        printErr(QStringLiteral("talu-cli colour: --start takes a channel from 0 to 65535."));
        return ExitUsage;
    }
    pixel.startChannel = quint16(startChannel);

    QByteArray bytes;
    for (const QString &argument : parser.positionalArguments()) {
        for (const QString &token : argument.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            const std::optional<quint8> value = parseByte(token);
            if (!value) {
                printErr(QStringLiteral("talu-cli colour: \"%1\" is not a byte (0-255 or 0x00-0xFF).").arg(token));
                return ExitUsage;
            }
            bytes.append(char(*value));
        }
    }
    if (bytes.isEmpty() || bytes.size() > kMaxUniverseBytes) {
        printErr(QStringLiteral("talu-cli colour: give between 1 and 512 universe bytes."));
        return ExitUsage;
    }

    const QVector<TPatch::LayoutPixel> pixels{pixel};
    PixelColourBuffer buffer;
    buffer.setPatch(&pixels);
    buffer.setWhiteEnabled(parser.isSet(white));
    const auto *data = reinterpret_cast<const quint8 *>(bytes.constData());
    buffer.applyUniverse(QVector<int>{0}, data, int(bytes.size()));
    buffer.storeUniverse(pixel.portAddress, data, int(bytes.size()));
    const QRgb colour = buffer.colours().constFirst();

    if (parser.isSet(json)) {
        QJsonArray slotValues;
        for (const int v : buffer.pixelSlotValues(0))
            slotValues.append(v < 0 ? QJsonValue() : QJsonValue(v));
        printJson(QJsonObject{
            {QStringLiteral("colour"), hexColour(colour)},
            {QStringLiteral("red"), qRed(colour)},
            {QStringLiteral("green"), qGreen(colour)},
            {QStringLiteral("blue"), qBlue(colour)},
            {QStringLiteral("white"), parser.isSet(white)},
            {QStringLiteral("slots"), slotValues},
            {QStringLiteral("peakWhite"), buffer.peakWhite()},
        });
    } else {
        printOut(hexColour(colour));
    }
    return ExitOk;
}
