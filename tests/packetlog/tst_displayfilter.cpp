#include "packetlog/displayfilter.h"
#include "packetlog/filterhelp.h"
#include "packetlog/filtertokenizer.h"
#include "logtestdata.h"

#include <QtTest>

using namespace PacketLog;
using namespace LogTestData;

namespace {

// A datagram from srcIp:srcPort to dstIp:6454, and how its sending ended.
PacketRecord record(const QByteArray &datagram, Direction direction, quint32 srcIp, quint16 srcPort, quint32 dstIp,
                    Outcome outcome = Outcome::Ok, qint32 error = 0, quint8 reason = ReasonNone)
{
    PacketRecord r;
    r.setDatagram(datagram);
    r.direction = direction;
    r.srcIp = srcIp;
    r.srcPort = srcPort;
    r.dstIp = dstIp;
    r.dstPort = 6454;
    r.outcome = outcome;
    r.error = error;
    r.reason = reason;
    return r;
}

// The records every selection row is matched against, by name. 10.0.0.1 sends to 192.168.1.50 (0xC0A80132).
std::vector<std::pair<QString, PacketRecord>> namedRecords()
{
    const QByteArray dmx = artDmx(1, 7, 512);
    const QByteArray poll = QByteArray("Art-Net\0\0\x20", 10).leftJustified(14, '\0'); // ArtPoll, 14 bytes
    PacketRecord capture = record(QByteArray("hello"), Direction::In, 0xC0A80132, 1234, 0x0A000002); // to 10.0.0.2
    capture.source = RecordSource::Capture;
    return {{"dmx", record(artDmx(0x0012, 7, 512), Direction::In, 0x0A000001, 6454, 0xC0A80132)},
            {"poll-out", record(poll, Direction::Out, 0xC0000201, 50000, 0xFFFFFFFF)}, // 192.0.2.1, broadcast
            {"failed", record(dmx, Direction::Out, 0x0A000001, 6454, 0xC0000263, Outcome::Failed, 10055)}, // 192.0.2.99
            {"notsent", record(dmx, Direction::Out, 0x0A000001, 6454, 0xC0A80132, Outcome::NotSent, 0, ReasonOffline)},
            {"capture", capture}};
}

QString matching(const FilterNode *root)
{
    QStringList names;
    for (const auto &[name, r] : namedRecords()) {
        if (!root || root->match(r))
            names.append(name);
    }
    return names.join(QLatin1Char(' '));
}

} // namespace

class TestDisplayFilter : public QObject
{
    Q_OBJECT

private slots:
    void tokens_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("tokens");
        QTest::newRow("blanks") << " a  b\tc " << QStringList{"a", "b", "c"};
        QTest::newRow("packed") << "(frame.len>100)" << QStringList{"(", "frame.len", ">", "100", ")"};
        QTest::newRow("two-char symbols") << "a>=1&&b<=2||!c!=3==4"
                                          << QStringList{"a", ">=", "1", "&&", "b", "<=", "2", "||", "!", "c", "!=", "3", "==", "4"};
        QTest::newRow("quotes keep blanks") << "info == \"a b && c\"" << QStringList{"info", "==", "a b && c"};
        QTest::newRow("open quote runs to end") << "x == \"open (" << QStringList{"x", "==", "open ("};
        QTest::newRow("empty quotes") << "x == \"\"" << QStringList{"x", "==", ""};
        QTest::newRow("lone symbols") << "a = b & c | d" << QStringList{"a", "=", "b", "&", "c", "|", "d"};
    }
    void tokens()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, tokens);
        QStringList got;
        for (const FilterToken &t : tokenizeFilter(text))
            got.append(t.text);
        QCOMPARE(got, tokens);
    }

    // Grammar and precedence, seen through the tree's one-line form; refused text, through its one message.
    void compile_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("expected"); // the tree, or the message when the filter is refused
        QTest::newRow("and binds tighter") << "a || b && c" << "(info contains \"a\" || (info contains \"b\" && info contains \"c\"))";
        QTest::newRow("left assoc and") << "a && b && c" << "((info contains \"a\" && info contains \"b\") && info contains \"c\")";
        QTest::newRow("not binds to the comparison")
            << "not ip.src == 10.0.0.1 && frame.len > 100" << "(!(ip.src == 10.0.0.1) && (frame.len > 100))";
        QTest::newRow("parentheses") << "(a || b) && c" << "((info contains \"a\" || info contains \"b\") && info contains \"c\")";
        QTest::newRow("word connectives") << "a and not b or c" << "((info contains \"a\" && !info contains \"b\") || info contains \"c\")";
        QTest::newRow("capital operators") << "talu.error EQ 5 and frame.len CONTAINS 1" << "((talu.error == 5) && (frame.len contains 1))";
        QTest::newRow("ne") << "frame.len ne 3" << "(frame.len != 3)";
        QTest::newRow("packed symbols") << "(frame.len>100)" << "(frame.len > 100)";
        QTest::newRow("quoted value") << "ip.src == \"a b\"" << "(ip.src == \"a b\")";
        QTest::newRow("double not") << "!!a" << "!!info contains \"a\"";
        QTest::newRow("unknown field still compiles") << "foo.bar == 1" << "(foo.bar == 1)";
        QTest::newRow("empty") << "   " << "";
        const QString a = QStringLiteral("info contains \"a\"");
        QTest::newRow("parens at the nesting limit")
            << QString(kMaxFilterNesting, u'(') + "a" + QString(kMaxFilterNesting, u')') << a;
        QTest::newRow("nots at the nesting limit") << QString(kMaxFilterNesting, u'!') + "a"
                                                   << QString(kMaxFilterNesting, u'!') + a;
        QTest::newRow("open paren") << "(frame.len > 100" << "Missing ')'.";
        QTest::newRow("missing value") << "frame.len >" << "Missing value after '>'.";
        QTest::newRow("missing value, word operator") << "frame.len CONTAINS" << "Missing value after 'contains'.";
        QTest::newRow("missing value before paren") << "(frame.len == )" << "Missing value after '=='.";
        QTest::newRow("leftover paren") << "frame.len > 100 )" << "Unexpected token: )";
        QTest::newRow("leftover word") << "a b" << "Unexpected token: b";
        QTest::newRow("end after and") << "a &&" << "Unexpected end of filter.";
        QTest::newRow("end after not") << "!" << "Unexpected end of filter.";
        QTest::newRow("empty parens") << "()" << "Unexpected token: )";
        QTest::newRow("leading and") << "&& a" << "Unexpected token: &&";
        QTest::newRow("lone equals") << "frame.len = 3" << "Unexpected token: =";
        const QString tooDeep = QStringLiteral("The filter is nested too deeply (more than 64 levels of '!' and '(').");
        QTest::newRow("too deep nots") << QString(10000, u'!') + QStringLiteral("a") << tooDeep;
        QTest::newRow("too deep parens") << QString(100, u'(') + QStringLiteral("a") + QString(100, u')') << tooDeep;
        QTest::newRow("unbalanced closing") << "a))" << "Unexpected token: )";
    }
    void compile()
    {
        QFETCH(QString, filter);
        QFETCH(QString, expected);
        const FilterCompileResult r = compileFilter(filter);
        QCOMPARE(r.ok() ? describeFilter(r.root.get()) : r.error.untranslatedText(), expected);
        QVERIFY(r.ok() || !r.root); // a refused filter leaves no tree
    }

    // 100 KB of terms must make a shallow tree: matching and freeing it must not exhaust the stack.
    void longChainsStayShallow()
    {
        QString text;
        for (int i = 0; text.size() < 100000; ++i)
            text += QStringLiteral("frame.len == %1 %2 ").arg(i).arg(i % 3 ? QStringLiteral("||") : QStringLiteral("&&"));
        text += QStringLiteral("frame.len == 530");
        const FilterCompileResult r = compileFilter(text);
        QVERIFY(r.ok());
        // Evaluated and freed without running out of stack (the sanitizers watch it).
        (void)r.root->match(namedRecords().front().second);
        const FilterCompileResult garbage = compileFilter(QString(100000, u'(') + QString(100000, u'"'));
        QVERIFY(!garbage.ok());
    }

    // Random text from the characters that matter: always a tree or a message, never a crash.
    void randomTextNeverCrashes()
    {
        static const char kPieces[][10] = {"(", ")", "!", "&&", "||", "==", "!=", ">", "<=", "\"", " ", "not ",
                                           "and ", "or ", "ip.src", "frame.len", "10.0.0.1", "0x", "artdmx", "a"};
        QRandomGenerator rng(6454);
        for (int round = 0; round < 3000; ++round) {
            QString text;
            const int n = int(rng.bounded(40));
            for (int i = 0; i < n; ++i)
                text += QLatin1StringView(kPieces[rng.bounded(int(sizeof kPieces / sizeof kPieces[0]))]);
            const FilterCompileResult r = compileFilter(text);
            QVERIFY(r.ok() == r.error.isEmpty());
            QVERIFY(!r.ok() || r.root || text.trimmed().isEmpty());
            if (r.root)
                (void)r.root->match(PacketRecord());
        }
    }

    // Field semantics over a fixed set of records.
    void selection_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("selected");
        const QString all = QStringLiteral("dmx poll-out failed notsent capture");
        QTest::newRow("opcode name") << "artnet.opcode == artdmx" << "dmx failed notsent";
        QTest::newRow("opcode hex") << "artnet.opcode == 0x5000" << "dmx failed notsent";
        QTest::newRow("opcode decimal") << "artnet.opcode == 20480" << "dmx failed notsent";
        QTest::newRow("opcode name any case") << "artnet.opcode == ArtPoll" << "poll-out";
        QTest::newRow("not a number or name") << "frame.len > abc" << "";
        QTest::newRow("unknown field") << "foo == 1" << "";
        QTest::newRow("field names are case-sensitive") << "IP.SRC == 10.0.0.1" << "";
        QTest::newRow("udp.port either side") << "udp.port == 6454" << all;
        QTest::newRow("udp.port dst only") << "udp.port == 1234" << "capture";
        QTest::newRow("udp.srcport") << "udp.srcport == 6454" << "dmx failed notsent";
        QTest::newRow("udp.dstport") << "udp.dstport != 6454" << "";
        QTest::newRow("ip.addr either side") << "ip.addr == 192.168.1.50" << "dmx notsent capture";
        QTest::newRow("ip.addr != is either side") << "ip.addr != 192.168.1.50" << all;
        QTest::newRow("ip.src") << "ip.src == 10.0.0.1" << "dmx failed notsent";
        QTest::newRow("ip.dst broadcast") << "ip.dst == 255.255.255.255" << "poll-out";
        QTest::newRow("ip contains") << "ip.dst contains 168.1" << "dmx notsent";
        QTest::newRow("ip not canonical never equal") << "ip.src == 010.0.0.1" << "";
        QTest::newRow("ip ordering is false") << "ip.src > 1.0.0.0" << "";
        QTest::newRow("frame.len") << "frame.len >= 530" << "dmx failed notsent";
        QTest::newRow("frame.len <") << "frame.len < 14" << "capture";
        QTest::newRow("frame.len <=") << "frame.len <= 14" << "poll-out capture";
        QTest::newRow("number contains") << "frame.len contains 53" << "dmx failed notsent";
        QTest::newRow("universe") << "artnet.universe == 0x12" << "dmx";
        QTest::newRow("universe decimal") << "artnet.universe == 18" << "dmx";
        QTest::newRow("error") << "talu.error == 10055" << "failed";
        QTest::newRow("mox.error") << "mox.error == 10055" << "failed";
        QTest::newRow("outcome any case") << "talu.outcome == FAILED" << "failed";
        QTest::newRow("outcome ok") << "talu.outcome == ok" << "dmx poll-out capture";
        QTest::newRow("outcome contains") << "mox.outcome contains SENT" << "notsent";
        QTest::newRow("outcome ordering") << "talu.outcome > ok" << "";
        QTest::newRow("reason") << "talu.reason == offline" << "notsent";
        QTest::newRow("reason none") << "talu.reason == none" << "dmx poll-out failed capture";
        QTest::newRow("mox.reason") << "mox.reason == offline" << "notsent";
        QTest::newRow("dir") << "talu.dir == out" << "poll-out failed notsent";
        QTest::newRow("mox.dir") << "mox.dir == IN" << "dmx capture";
        QTest::newRow("source talu") << "talu.source == talu" << "dmx poll-out failed notsent";
        QTest::newRow("source mox") << "mox.source == mox" << "dmx poll-out failed notsent";
        QTest::newRow("source capture") << "talu.source == capture" << "capture";
        QTest::newRow("bare word in Info") << "ArtPoll" << "poll-out notsent"; // "no ArtPollReply" in the reason
        QTest::newRow("bare word ignores case") << "artdmx" << "dmx failed notsent";
        QTest::newRow("bare word reaches outcome label") << "\"SEND FAILED\"" << "failed";
        QTest::newRow("precedence with not")
            << "artnet.opcode == artdmx && udp.port == 6454 && !(ip.dst == 192.168.1.50)" << "failed";
        QTest::newRow("or") << "talu.dir == out || talu.source == capture" << "poll-out failed notsent capture";
        QTest::newRow("not") << "!talu.dir == out" << "dmx capture";
        QTest::newRow("no filter") << "" << all;
    }
    void selection()
    {
        QFETCH(QString, filter);
        QFETCH(QString, selected);
        const FilterCompileResult r = compileFilter(filter);
        QVERIFY2(r.ok(), qPrintable(r.error.untranslatedText()));
        QCOMPARE(matching(r.root.get()), selected);
    }

    // Short-circuit: the right side is not evaluated once the left decides.
    void shortCircuit()
    {
        struct Counting : FilterNode
        {
            bool result;
            int *calls;
            Counting(bool r, int *c) : result(r), calls(c) {}
            bool match(const PacketRecord &) const override { ++*calls; return result; }
        };
        int calls = 0;
        const PacketRecord r;
        QVERIFY(!AndNode(std::make_unique<Counting>(false, &calls), std::make_unique<Counting>(true, &calls)).match(r));
        QCOMPARE(calls, 1);
        QVERIFY(OrNode(std::make_unique<Counting>(true, &calls), std::make_unique<Counting>(false, &calls)).match(r));
        QCOMPARE(calls, 2);
    }

    // Every example the help shows must compile to a comparison of a field we have.
    void helpExamplesCompile()
    {
        const QVector<FilterHelpExample> examples = filterHelpExamples(false);
        QCOMPARE(examples.size(), 14);
        for (const FilterHelpExample &e : examples) {
            const FilterCompileResult r = compileFilter(e.example);
            QVERIFY2(r.ok(), qPrintable(e.example));
            const auto *compare = dynamic_cast<const CompareNode *>(r.root.get());
            QVERIFY2(compare && compare->resolvedField() != CompareNode::Field::Unknown, qPrintable(e.example));
        }
        QCOMPARE(examples.at(2).note, QStringLiteral("source or destination"));
        QCOMPARE(filterHelpLines(false).constFirst(), QStringLiteral("Connectives:  &&  and   ||  or   !  not   ( )"));
    }
};

QTEST_GUILESS_MAIN(TestDisplayFilter)
#include "tst_displayfilter.moc"
