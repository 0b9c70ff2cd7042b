#include "cli/gpsverifycommand.h"

#include "cli/clicommon.h"
#include "patch/patchloader.h"
#include "recording/gpssyncset.h"

#include <QDir>
#include <QJsonArray>

namespace {

QString indented(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line.prepend(QStringLiteral("      "));
    return lines.join(u'\n');
}

// "GROUP=FILE": the group is the longest group name followed by "=", so that
// group names and paths may both contain "=".
bool splitAssignment(const QString &value, const QStringList &groups, int *group, QString *file)
{
    *group = -1;
    for (int g = 0; g < groups.size(); ++g) {
        const QString prefix = groups.at(g) + u'=';
        if (value.startsWith(prefix) && (*group < 0 || groups.at(g).size() > groups.at(*group).size()))
            *group = g;
    }
    if (*group < 0)
        return false;
    *file = value.mid(groups.at(*group).size() + 1);
    return !file->isEmpty();
}

} // namespace

int runGpsVerifyCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Verifies a GPS-Sync set - one .tpx recording per patch group, made in one session - against the\n"
        "patch, the way the GPS Mirra tab does when Load set is pressed. Run it on the files you are about\n"
        "to take to site.\n"
        "\n"
        "The files come either from a folder (--folder), matched by name: the recordings are named\n"
        "<name>_<Group>.tpx, and when the folder holds several sessions the one covering the most groups is\n"
        "taken (ties: the newest, then the first name); the group name must match exactly, case included.\n"
        "Or group by group (--set GROUP=FILE, repeated; GROUP is the group's name as in the patch).\n"
        "\n"
        "With --folder the first line says how many groups matched (\"Matched 3 of 4 group(s).\"). Then\n"
        "every check on one line, \"PASS  title\", \"WARN  title\" or \"FAIL  title\", with its detail\n"
        "indented below; \"N of M file(s) could not be read.\" when a file could not be read; and last the\n"
        "summary. Lists in a detail show 8 items, then \"(+N more)\".\n"
        "Universe numbers are Port-Addresses in hexadecimal; a record may also carry the universe the way\n"
        "the sibling controller writes GPS records, (Sub-Net << 8) | universe, and is then counted as its\n"
        "slot's Port-Address.\n"
        "\n"
        "With --json, one object:\n"
        "  checks      array of {verdict (\"PASS\", \"WARN\" or \"FAIL\"), title, detail}, in check order\n"
        "  failures    number of FAIL checks\n"
        "  warnings    number of WARN checks\n"
        "  frameCount  frames every file can play (the shortest file; 0 when a file is missing or "
        "unreadable)\n"
        "  summary     the one-line summary\n"
        "  unreadable  \"N of M file(s) could not be read.\", or null when every file could be read\n"
        "  matched     object: group name -> file path, for every group that has a file\n"
        "  groups      number of groups in the patch\n"
        "Exit codes: 0 no check failed (warnings allowed), 1 a check failed (or the patch could not be\n"
        "loaded), 2 usage error."));
    const QCommandLineOption patchOption(QStringLiteral("patch"),
                                         QStringLiteral("The patch the set was recorded from."),
                                         QStringLiteral("PATCH"));
    const QCommandLineOption folderOption(
        QStringLiteral("folder"), QStringLiteral("Match the groups to the <name>_<Group>.tpx files in DIR."),
        QStringLiteral("DIR"));
    const QCommandLineOption setOption(QStringLiteral("set"),
                                       QStringLiteral("Give one group's file (repeat for every group)."),
                                       QStringLiteral("GROUP=FILE"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOption(patchOption);
    parser.addOption(folderOption);
    parser.addOption(setOption);
    parser.addOption(json);
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("gps-verify"), arguments))
        return *done;
    if (!parser.isSet(patchOption) || parser.isSet(folderOption) == parser.isSet(setOption) ||
        !parser.positionalArguments().isEmpty()) {
        printErr(QStringLiteral(
            "talu-cli gps-verify: give --patch and either --folder DIR or --set GROUP=FILE ..."));
        return ExitUsage;
    }

    const TPatch::PatchLoadResult patch = TPatch::loadPatch(parser.value(patchOption));
    if (!patch.ok)
        printErr(QStringLiteral("error: patch: ") + patch.error.untranslatedText());

    GpsSyncSet set;
    int matched = -1;
    if (patch.ok) {
        set.setGroups(patch.patch);
        if (parser.isSet(folderOption)) {
            matched = set.autoFill(parser.value(folderOption));
        } else {
            QStringList paths = set.paths();
            const QStringList groups = set.groupNames();
            for (const QString &value : parser.values(setOption)) {
                int group = -1;
                QString file;
                if (!splitAssignment(value, groups, &group, &file)) {
                    printErr(
                        QStringLiteral("talu-cli gps-verify: \"%1\" does not name a group of the patch as "
                                       "GROUP=FILE (groups: %2).")
                            .arg(value, groups.join(QStringLiteral(", "))));
                    return ExitUsage;
                }
                if (!paths.at(group).isEmpty()) {
                    printErr(QStringLiteral("talu-cli gps-verify: group \"%1\" is given twice.")
                                 .arg(groups.at(group)));
                    return ExitUsage;
                }
                paths[group] = file;
            }
            set.setPaths(paths);
        }
    }
    const GpsVerification result = set.load(patch.ok ? &patch.patch : nullptr);

    QJsonObject matchedObject;
    for (int g = 0; g < set.groupCount(); ++g)
        if (!set.member(g).path.isEmpty())
            matchedObject.insert(set.member(g).groupName, set.member(g).path);

    if (parser.isSet(json)) {
        QJsonArray checks;
        for (const GpsCheck &c : result.checks)
            checks.append(QJsonObject{{QStringLiteral("verdict"), GpsCheck::verdictWord(c.verdict)},
                                      {QStringLiteral("title"), c.title.untranslatedText()},
                                      {QStringLiteral("detail"), c.untranslatedDetailText()}});
        printJson(QJsonObject{
            {QStringLiteral("checks"), checks},
            {QStringLiteral("failures"), result.failures},
            {QStringLiteral("warnings"), result.warnings},
            {QStringLiteral("frameCount"), result.frameCount},
            {QStringLiteral("summary"), result.summary.untranslatedText()},
            {QStringLiteral("unreadable"), result.unreadableSummary.isEmpty()
                                               ? QJsonValue()
                                               : QJsonValue(result.unreadableSummary.untranslatedText())},
            {QStringLiteral("matched"), matchedObject},
            {QStringLiteral("groups"), set.groupCount()},
        });
    } else {
        if (matched == 0)
            printOut(QStringLiteral("No file in \"%1\" matches a group name. GPS-Sync recordings are named "
                                    "<name>_<Group>.tpx.")
                         .arg(QDir(parser.value(folderOption)).dirName()));
        else if (matched > 0)
            printOut(QStringLiteral("Matched %1 of %2 group(s).").arg(matched).arg(set.groupCount()));
        for (const GpsCheck &c : result.checks) {
            printOut(GpsCheck::verdictWord(c.verdict) + QStringLiteral("  ") + c.title.untranslatedText());
            const QString detail = c.untranslatedDetailText();
            if (!detail.isEmpty())
                printOut(indented(detail));
        }
        if (!result.unreadableSummary.isEmpty())
            printOut(result.unreadableSummary.untranslatedText());
        printOut(result.summary.untranslatedText());
    }
    return result.failures ? ExitRefused : ExitOk;
}
