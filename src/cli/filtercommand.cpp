#include "cli/filtercommand.h"

#include "cli/clicommon.h"
#include "packetlog/displayfilter.h"
#include "packetlog/filterhelp.h"

using namespace PacketLog;

namespace {

// The tree as nested objects; its depth is bounded by the compiler's nesting limit
// and the balanced connective chains.
QJsonValue nodeJson(const FilterNode *node)
{
    if (!node)
        return QJsonValue();
    if (const auto *n = dynamic_cast<const NotNode *>(node))
        return QJsonObject{{QStringLiteral("node"), QStringLiteral("not")}, {QStringLiteral("child"), nodeJson(n->child())}};
    if (const auto *n = dynamic_cast<const AndNode *>(node))
        return QJsonObject{{QStringLiteral("node"), QStringLiteral("and")},
                           {QStringLiteral("left"), nodeJson(n->left())},
                           {QStringLiteral("right"), nodeJson(n->right())}};
    if (const auto *n = dynamic_cast<const OrNode *>(node))
        return QJsonObject{{QStringLiteral("node"), QStringLiteral("or")},
                           {QStringLiteral("left"), nodeJson(n->left())},
                           {QStringLiteral("right"), nodeJson(n->right())}};
    if (const auto *n = dynamic_cast<const ContainsNode *>(node))
        return QJsonObject{{QStringLiteral("node"), QStringLiteral("contains")}, {QStringLiteral("word"), n->word()}};
    if (const auto *n = dynamic_cast<const CompareNode *>(node))
        return QJsonObject{{QStringLiteral("node"), QStringLiteral("compare")},
                           {QStringLiteral("field"), n->field()},
                           {QStringLiteral("known"), n->resolvedField() != CompareNode::Field::Unknown},
                           {QStringLiteral("operator"), CompareNode::operatorText(n->op())},
                           {QStringLiteral("value"), n->value()}};
    return QJsonValue();
}

} // namespace

int runFilterCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    QString examples;
    for (const FilterHelpExample &e : filterHelpExamples(false))
        examples += QStringLiteral("  ") + (e.example.leftJustified(26) + e.note).trimmed() + QLatin1Char('\n');
    parser.setApplicationDescription(
        QStringLiteral("Compiles a packet log display filter and prints its tree, every group in parentheses, or its error.\n"
                       "Several arguments are joined with blanks, so the expression need not be quoted as one.\n"
                       "\n"
                       "Examples:\n")
        + examples + filterHelpLines(false).join(QLatin1Char('\n'))
        + QStringLiteral("\n"
                         "Values may be written in double quotes; \"eq\" and \"ne\" stand for == and !=.\n"
                         "Text fields compare ignoring case; ip.addr and udp.port hold when either side does.\n"
                         "\"!\" and \"(\" nest at most 64 deep.\n"
                         "\n"
                         "With --json, one object: ok (bool), error (text or null), tree (the one-line form, or null when\n"
                         "there is no filter or an error), root (nested objects: node \"and\"/\"or\" with left and right,\n"
                         "\"not\" with child, \"contains\" with word, \"compare\" with field, known (bool: a field we have),\n"
                         "operator, value).\n"
                         "Exit codes: 0 compiled (an empty expression is no filter), 1 the expression has an error,\n"
                         "2 usage error."));
    parser.addPositionalArgument(QStringLiteral("expr"), QStringLiteral("The filter expression."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOption(json);
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("filter"), arguments))
        return *done;
    if (parser.positionalArguments().isEmpty()) {
        printErr(QStringLiteral("talu-cli filter: give a filter expression."));
        return ExitUsage;
    }
    const FilterCompileResult result = compileFilter(parser.positionalArguments().join(QLatin1Char(' ')));
    const QString tree = describeFilter(result.root.get());
    if (parser.isSet(json)) {
        printJson(QJsonObject{
            {QStringLiteral("ok"), result.ok()},
            {QStringLiteral("error"), result.ok() ? QJsonValue() : QJsonValue(result.error.untranslatedText())},
            {QStringLiteral("tree"), result.root ? QJsonValue(tree) : QJsonValue()},
            {QStringLiteral("root"), nodeJson(result.root.get())},
        });
    } else if (!result.ok()) {
        printErr(QStringLiteral("error: ") + result.error.untranslatedText());
    } else {
        printOut(result.root ? tree : QStringLiteral("(no filter: every record is shown)"));
    }
    return result.ok() ? ExitOk : ExitRefused;
}
